#!/usr/bin/env bash
# Takes a picture of every window and dialog of the real companion, on a virtual
# display: out/gallery/NAME.png and all of them on one sheet, out/gallery.png.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
. scripts/hand.sh

pictures=out/gallery
program=build/gallery/program
rm -rf "$pictures" build/gallery
mkdir -p "$pictures"
scripts/program_folder.sh "$program"
example_files "$program/見本"
missing=()

# shot NAME TITLE: a row of the table. "-" is the topmost window without a title.
shot() { window_shot "$pictures" "$1" "$2" || missing+=("$1"); }
# dialog NAME TITLE [ID]: the same, and closes it again (by that button).
dialog() { shot "$1" "$2"; leave "${@:2}" || true; }
# at NAME TITLE: presses ID of OWNER first.
pressed() { press "$3" "$4" || true; dialog "$1" "$2" "${@:5}"; }

trap display_stop EXIT
display_start 1280x960
wine_prefix
xsetroot -solid '#3a6ea5' 2>/dev/null || true
companion_start "$program"
sleep 1

# --- The stage, and all frames of the data set as they are on the disk.
screenshot "$pictures/desktop.png"
for number in 0 1 2 3; do
  main='ミルレールキャラクタ'
  send 2281
  choose "$main" 100 "$number"
  shot "OptionSelDlg1_2_$number" "$main"
  press "$main" 2369
  for motion in 2285 2286 2287 2288; do
    press '動作の確認' "$motion"
    sleep 0.3
    dialog "DspOptionOpeDlg_${number}_$motion" '動作の確認'
  done
  dialog "OptionSelDlg1_1_2_$number" '動作の確認'
  leave "$main" 1
  sleep 0.5
  area_shot "$pictures/stage_$number.png" $(hand stage)
done
(
  cd "$program"
  for first in キャラクタ/Chara*_0.bmp; do
    name=$(basename "${first%_0.bmp}")
    montage $(ls "${first%_0.bmp}"_*.bmp | grep -v 'x\.bmp$' | sort -V) -background '#3a6ea5' -geometry '+4+4' -tile 8x \
      "$OLDPWD/$pictures/frames_$name.png"
  done
)

# --- The panel at each level.
xdotool mousemove $(hand stage | awk '{ print $1 + $3 / 2, $2 + $4 / 2 }')
shot DspDiskMenu_1 -
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
for check in 2289 2290 2291; do
  pressed "AlarmChkDialog_$check" 'アラーム動作の確認' 'アラームキャラクタ' "$check"
done
leave 'アラームキャラクタ'
send 2283
dialog OptionSelDlg3 'レイアウト設定'

# --- A walk, its end picture and the balloon.
send 2004
shot FlyingBat1_walk -
sleep 4
screenshot "$pictures/FlyingBat1_end.png"
hand gone - || true

# --- Notices.
send 2336
dialog FlyingBat5 '時計 アラーム'

# --- Back-up.
backup='ファイル バックアップ'
picker='ファイルのロード'
send 1901
shot FileBackUpSetDlg_empty "$backup"
pressed box_back_up_none 'ファイル未設定' "$backup" 114 1
press "$backup" 110
double "$picker" 2 '[見本]'
sleep 0.5
choose "$picker" 103 '大'
shot FileSelectForLoadDlg "$picker"
leave "$picker" 1
for name in 'とて' '見本007' '見本012' '見本100'; do
  press "$backup" 110
  choose "$picker" 103 "$name" || choose "$picker" 103 3
  leave "$picker" 1
done
press "$backup" 111
folder='バックアップ先ディレクトリ指定'
double "$folder" 2 '[写真]'
sleep 0.5
dialog FileBackUpDirDlg "$folder" 1
fill "$backup" 103 '毎週の控え'
shot FileBackUpSetDlg "$backup"
press "$backup" 118
save='ファイルの保存'
shot FileSelectForSaveDlg "$save"
leave "$save" 3
pressed FileBackUpDateDlg 'バックアップファイル日付比較' "$backup" 115 1
pressed box_back_up_contents '内容で比較エラー' "$backup" 116 1
press "$backup" 114
shot BackUpDlg 'バックアップ実行中'
dialog box_back_up_done 'ファイルバックアップ完了' 1
printf 'x' >>"$program/見本/見本007.txt"
pressed FileBackUpContentDlg 'バックアップファイル内容比較' "$backup" 116 1
pressed box_back_up_clear '全バックアップソース選択の解除' "$backup" 113 2
leave "$backup"

# --- Dividing and restoring.
divide='ファイル 分割'
restore='ファイル 復元'
keyword='暗号化キーワード入力'
send 1915
dialog FileDivideSetDlg 'ファイル 分割/復元選択'
send 2066
press "$divide" 110
choose "$picker" 103 '大'
leave "$picker" 1
press "$divide" 111
folder='分割ファイル格納先ディレクトリ選択'
double "$folder" 2 '[音楽]'
dialog FileDivFileDlg "$folder" 1
fill "$divide" 104 '分割見本'
fill "$divide" 103 '90'
press "$divide" 105
shot FileDivideSetDlg2 "$divide"
leave "$divide"
send 2067
shot FileDivideSetDlg3 "$restore"
leave "$restore"

# --- Folder scope.
scope='フォルダースコープ'
send 1914
shot FolderScopeSetDlg "$scope"
leave "$scope"

# --- Desktop tidy.
send 1920
dialog FileDesktopClrDlg 'デスクトップの整理'
send 1922
dialog DesktopIconSetDlg 'デスクトップ カバー設定'

# --- Message boxes and popup menus.
send 1908
dialog box_exit 'プログラム終了' 2
send 2337
shot menu_clock -
send 50

montage -label '%t' "$pictures"/*.png -background '#d8d8d8' -geometry '+8+8' -tile 6x out/gallery.png
echo "the gallery: out/gallery.png, $(ls "$pictures" | wc -l) pictures"
if [ ${#missing[@]} -gt 0 ]; then
  echo "did not appear: ${missing[*]}" >&2
  exit 1
fi
