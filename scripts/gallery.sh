#!/usr/bin/env bash
# Takes a picture of every window and dialog of the real companion, on a virtual
# display: out/gallery/NAME.png and all of them on one sheet, out/gallery.png.
#
#   scripts/gallery.sh            all of them
#   scripts/gallery.sh ROOM ...   those of some files of scripts/gallery/ only
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
. scripts/hand.sh

pictures=out/gallery
# In a drive of its own, so that the folder scope has a small one to measure.
program=$WINEPREFIX/drive_c/MIRRELL
[ "$#" != 0 ] || rm -rf "$pictures"
mkdir -p "$pictures"

# shot NAME TITLE: a row of the table. "-" is the topmost window without a title.
shot() { window_shot "$pictures/$1.png" "$2"; }
# whole NAME TITLE [COUNT]: the whole display when the windows have come.
whole() { held_shot "$pictures/$1.png" "${@:2}"; }
# brief NAME TITLE OWNER ID: of one that stays for moments after ID of OWNER.
brief() { brief_shot "$pictures/$1.png" "$2" press "$3" "$4"; }
# dialog NAME TITLE [ID]: the same, and closes it again (by that button).
dialog() { shot "$1" "$2"; leave "${@:2}"; }
# pressed NAME TITLE OWNER ID [ID]: and is opened by the button ID of OWNER.
pressed() { press "$3" "$4"; dialog "$1" "$2" "${@:5}"; }
# sent NAME TITLE NUMBER [ID]: and is opened by a command.
sent() { send "$3"; dialog "$1" "$2" "${@:4}"; }

# walk_flags FLAGS: of all four characters' walks (1 trail, 2 wipe, 4 shake), in the
# gallery's copy of the data set: they stand before four numbers at the file's end.
walk_flags() {
  local file=$program/mirrell_chara_file.dcx
  printf "\\x$1\\x$1\\x$1\\x$1" |
    dd of="$file" bs=1 seek=$(($(stat -c %s "$file") - 66)) conv=notrunc status=none
}

trap display_stop EXIT
display_start 1280x960
wine_prefix
rm -rf "$program"
scripts/program_folder.sh "$program"
example_files "$program/見本"
# Nothing is to look touched.
xdotool mousemove 2 2
companion_start "$program"
sleep 1

# The picker of files, in all rooms.
picker='ファイルのロード'

if [ "$#" = 0 ]; then
# --- The stage, and all frames of the data set as they are on the disk.
screenshot "$pictures/desktop.png"
for number in 0 1 2 3; do
  main='ミルレールキャラクタ'
  send 2281
  choose "$main" 100 "$number"
  shot "OptionSelDlg1_2_$number" "$main"
  if [ "$number" = 0 ]; then
    press "$main" 2369
    for motion in 2285 2286 2287 2288; do
      press '動作の確認' "$motion"
      sleep 0.3
      dialog "DspOptionOpeDlg_$motion" '動作の確認'
    done
    dialog OptionSelDlg1_1_2 '動作の確認'
  fi
  leave "$main" 1
  sleep 0.5
  area_shot "$pictures/stage_$number.png" $(hand stage)
done
for first in "$program"/キャラクタ/Chara*_1.bmp; do
  frames=${first%_1.bmp}
  montage $(ls "$frames"_*.bmp | grep -v 'x\.bmp$' | sort -V) -background '#3a6ea5' -geometry '+4+4' -tile 5x \
    "$pictures/frames_$(basename "$frames").png"
done

# --- The panel at each level.
brief_shot "$pictures/DspDiskMenu_1.png" - \
  xdotool mousemove $(hand stage | awk '{ print $1 + $3 / 2, $2 + $4 / 2 }')
xdotool mousemove 20 20
hand gone -
for level in 4:1902 5:1903 6:1904 7:1906 8:1907; do
  send "${level#*:}"
  shot "DspDiskMenu_${level%:*}" -
  hand key - 27
  hand gone -
done

# --- Options.
send 2282
shot OptionSelDlg2 'アラームキャラクタ'
choose 'アラームキャラクタ' 101 3
for check in 2289 2290 2291; do
  pressed "AlarmChkDialog_$check" 'アラーム動作の確認' 'アラームキャラクタ' "$check"
done
leave 'アラームキャラクタ' 1
sent OptionSelDlg3 'レイアウト設定' 2283

# --- Opening files: first one by the walk, so that there is a history.
open='ファイル オープン'
# go TITLE FOLDER...: from folder to folder in a list of folders.
go() {
  local folder
  for folder in "${@:2}"; do
    double "$1" 2 "$folder"
    sleep 0.3
  done
}
# pick BUTTON NAME [FOLDER...]: a file or a program, in the last of those folders.
pick() {
  press "$open" "$1"
  go "$picker" "${@:3}"
  choose "$picker" 103 "$2"
  leave "$picker" 1
}
send 1900
pick 2002 'メモ.txt' '[見本]'
pick 2003 'notepad.exe' '[..]' '[..]' '[windows]'
brief FlyingBat1_walk - "$open" 1
whole FlyingBat1_end - 2
hand gone -
leave 'other:メモ'
send 1900
pick 2002 'カレー' '[..]' '[MIRRELL]' '[見本]'
choose "$open" 102 1
shot FileOpnDialog "$open"
press "$open" 2008
group='グループ登録'
fill "$group" 105 '毎朝開くもの'
for file in 'メモ' 'カレー'; do
  choose "$group" 101 "$file"
  choose "$group" 102 1
  press "$group" 126
done
sleep 0.3
shot FileOpnGrpSetDlg "$group"
pressed DspListOpnFileHisDlg '詳細表示' "$group" 128
press "$group" 1
dialog box_group '登録の確認' 1
sleep 0.3
send 1900
pressed SetOpnFileAnimeDlg 'ファイルオープン アニメーション/サウンド設定' "$open" 125 2
pressed DspListOpnFileRecDlg '記録確認' "$open" 122
history='オープン履歴削除'
press "$open" 124
choose "$history" 101 0
dialog DelListOpnFileHisDlg "$history"
pressed SetGrpOpnFileRecDlg '記録をグループ化' "$open" 121
press "$open" 120
group='グループ呼び出し'
choose "$group" 103 0
shot TakeOpnGrpSetDlg "$group"
fill "$group" 109 '毎朝'
pressed SerchOpnFileGrpSelDlg '検索したグループの選択' "$group" 131 2
press "$group" 1
whole FlyingBat1_group - 2
hand gone -
for file in 'メモ' 'カレー'; do leave "other:$file"; done

# --- Back-up.
backup='ファイル バックアップ'
send 1901
shot FileBackUpSetDlg_empty "$backup"
pressed box_back_up_none 'ファイル未設定' "$backup" 114 1
press "$backup" 110
go "$picker" '[..]' '[MIRRELL]' '[見本]'
choose "$picker" 103 '大'
shot FileSelectForLoadDlg "$picker"
leave "$picker" 1
for name in '見本001' '見本007' '見本012' '見本100'; do
  press "$backup" 110
  choose "$picker" 103 "$name"
  leave "$picker" 1
done
press "$backup" 111
folder='バックアップ先ディレクトリ指定'
go "$folder" '[写真]'
dialog FileBackUpDirDlg "$folder" 1
fill "$backup" 103 '毎週の控え'
shot FileBackUpSetDlg "$backup"
press "$backup" 118
save='ファイルの保存'
shot FileSelectForSaveDlg "$save"
leave "$save" 3
pressed FileBackUpDateDlg 'バックアップファイル日付比較' "$backup" 115 1
pressed box_back_up_contents '内容で比較エラー' "$backup" 116 1
brief BackUpDlg 'バックアップ実行中' "$backup" 114
dialog box_back_up_done 'ファイルバックアップ完了' 1
printf 'x' >>"$program/見本/見本007.txt"
pressed FileBackUpContentDlg 'バックアップファイル内容比較' "$backup" 116 1
pressed box_back_up_clear '全バックアップソース選択の解除' "$backup" 113 2
leave "$backup"

# --- Dividing and restoring.
divide='ファイル 分割'
restore='ファイル 復元'
keyword='暗号化キーワード入力'
sent FileDivideSetDlg 'ファイル 分割/復元選択' 1915
send 2066
press "$divide" 110
choose "$picker" 103 '大'
leave "$picker" 1
press "$divide" 111
folder='分割ファイル格納先ディレクトリ選択'
go "$folder" '[..]' '[音楽]'
dialog FileDivFileDlg "$folder" 1
fill "$divide" 103 '分割見本'
fill "$divide" 104 '90'
press "$divide" 105
shot FileDivideSetDlg2 "$divide"
press "$divide" 112
fill "$keyword" 101 'かぎ12'
shot FileDivKeyWordDlg "$keyword"
press "$keyword" 1
shot box_divide_begins 'ファイル分割の実行'
brief FileDivExeDlg 'ファイル分割中' 'ファイル分割の実行' 1
shot FileDivideSetDlg2_running "$divide"
dialog box_divided '分割を正常終了' 1
shot FileDivideSetDlg2_done "$divide"
leave "$divide"
send 2067
press "$restore" 110
choose "$picker" 103 '分割'
leave "$picker" 1
press "$restore" 111
folder='合成ファイル格納先ディレクトリ選択'
dialog FileUDivFileDlg "$folder" 1
shot FileDivideSetDlg3 "$restore"
press "$restore" 112
fill "$keyword" 101 'かぎ12'
shot FileDivKeyWordDlg2 "$keyword"
brief FileUnDivExeDlg 'ファイル復元中' "$keyword" 1
dialog box_restored '復元を正常終了' 1
leave "$restore"

# --- Folder scope: a folder of a folder, so that both pies and all rows show.
scope='フォルダースコープ'
send 1914
shot FolderScopeSetDlg "$scope"
brief SerchDrvDlg '指定ドライブ検索中' "$scope" 110
hand gone '指定ドライブ検索中'
hand gone '指定フォルダ検索中'
dialog FolderStaticsDlg 'フォルダー統計 円グラフ'
brief SerchFolderDlg '指定フォルダ検索中' "$scope" 111
hand gone '指定フォルダ検索中'
dialog FolderStaticsDlg2 'フォルダー統計 棒グラフ'
leave "$scope"

# --- Desktop tidy.
sent FileDesktopClrDlg 'デスクトップの整理' 1920
sent DesktopIconSetDlg 'デスクトップ カバー設定' 1922

fi

# --- The rooms that have a file of their own. Each begins in the program folder, with
# nothing open.
rooms=("$@")
[ "$#" != 0 ] || rooms=($(basename -s .sh scripts/gallery/*.sh))
for room in "${rooms[@]}"; do
  companion_end
  companion_start "$program"
  . "scripts/gallery/$room.sh"
done
if [ "$#" != 0 ]; then exit; fi

# --- The exit question.
sent box_exit 'プログラム終了' 1908 2

# --- The walks that the data set has none of. The shake is seen by the trail.
for walk in trail:01:12 wipe:02:1 shake:05:12; do
  companion_end
  walk_flags "$(cut -d: -f2 <<<"$walk")"
  companion_start "$program"
  send 1900
  press "$open" 1
  hand find - >/dev/null
  sleep 1.5
  whole "FlyingBat1_${walk%%:*}" - "${walk##*:}"
  hand gone -
  leave 'other:メモ'
done
companion_end
walk_flags 00

# --- Notices and popup menus, of the companion that has something to tell.
companion_start "$program" "$PWD/build/windows/tools/notices/mirrell-notices.exe"
whole FlyingBat2X_brought 'メール受信連絡'
dialog FlyingBat2X 'メール受信連絡' 1
sent FlyingBat4_schedule 'ミルレール' 2265
for note in today one_day two_days; do
  sent "FlyingBat4_note_$note" 'ミルレール' 2294
done
sent FlyingBat5 '時計 アラーム' 2336 1
for menu in schedule_line:2039 calendar_day:2279 clock:2337; do
  send "${menu#*:}"
  shot "menu_${menu%:*}" -
  xdotool click 1
  hand gone -
done

montage -font /usr/share/fonts/opentype/ipafont-gothic/ipag.ttf -label '%t' "$pictures"/*.png \
  -background '#d8d8d8' -geometry '420x320>+6+6' -tile 10x out/gallery.png
echo "the gallery: out/gallery.png, $(ls "$pictures" | wc -l) pictures"
