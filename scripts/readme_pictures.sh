#!/usr/bin/env bash
# Makes the small pictures of README.md, docs/pictures/NAME.png, from those that
# scripts/gallery.sh and ./run --tour have left in out/.
set -euo pipefail
cd "$(dirname "$0")/.."

gallery=out/gallery
tour=out/tour
pictures=docs/pictures
rm -rf "$pictures"
mkdir -p "$pictures"

# small NAME WIDTH COLOURS FILE [CONVERT ARGUMENT...]: at most that wide, with a palette.
small() {
  convert "$4" "${@:5}" +repage -filter Triangle -resize "$2>" -strip +dither -colors "$3" \
    -define png:compression-level=9 "PNG8:$pictures/$1.png"
}
# row NAME WIDTH COLOURS FILE...: side by side, on the desktop's colour.
row() {
  montage "${@:4}" -background '#3a6ea5' -gravity center -geometry +10+8 -tile x1 miff:- |
    small "$1" "$2" "$3" miff:-
}

small desktop 400 64 "$tour/02_panel.png" -crop 400x250+490+285
row characters 560 96 "$gallery"/stage_[0123].png
small file_open 460 64 "$tour/19_walk_ends.png" -crop 640x400+220+240
small back_up 400 16 "$gallery/FileBackUpSetDlg.png"
small divide 400 16 "$gallery/FileDivideSetDlg2.png"
small folder_scope 400 24 "$gallery/FolderStaticsDlg.png" -crop 706x520+0+130
small tidy 320 16 "$gallery/FileDesktopClrDlg.png"
small schedule 440 24 "$gallery/ScheduleMakeDlg.png"
small chart 440 24 "$gallery/ScheduleLineDlg_31.png" -crop 966x400+0+0
small map 400 96 "$gallery/DispCelSclMapPosDlg.png"
small plan 440 16 "$gallery/SchedulePlan1Dlg.png"
row clocks 560 96 "$gallery"/FlyingBat6_[0123].png
row calendars 560 96 "$gallery"/FlyingBat3_{month,week,day}_1.png
small mail 320 16 "$gallery/MailSettingMenuDlg.png"
small music 400 24 "$gallery/EntertainmentBGMDlg_row.png" -crop 814x260+0+0
small scene 400 16 "$gallery/SnryFileSetting_cast.png"
small backdrop 400 96 "$gallery/SnryCharBackDlg.png"
small trace 400 16 "$gallery/CheckParameterDlg2.png"

ls -l "$pictures" | awk '{ bytes += $5 } END { print "the pictures of the page: " int(bytes / 1024) " KB" }'
