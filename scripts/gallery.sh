#!/usr/bin/env bash
# Takes a picture of every window and dialog of the real companion, on a virtual
# display: out/gallery/NAME.png and all of them on one sheet, out/gallery.png.
set -uo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
. scripts/hand.sh

pictures=out/gallery
# In a drive of its own, so that the folder scope has a small one to measure.
program=$WINEPREFIX/drive_c/MIRRELL
rm -rf "$pictures"
mkdir -p "$pictures"
missing=()

# shot NAME TITLE: a row of the table. "-" is the topmost window without a title.
shot() { window_shot "$pictures" "$1" "$2" || missing+=("$1"); }
# brief NAME TITLE OWNER ID: of one that stays for moments after ID of OWNER.
brief() { brief_shot "$pictures" "$1" "$2" press "$3" "$4" || missing+=("$1"); }
# dialog NAME TITLE [ID]: the same, and closes it again (by that button).
dialog() { shot "$1" "$2"; leave "${@:2}"; }
# pressed NAME TITLE OWNER ID [ID]: and is opened by the button ID of OWNER.
pressed() { press "$3" "$4"; dialog "$1" "$2" "${@:5}"; }

trap display_stop EXIT
display_start 1280x960
wine_prefix
rm -rf "$program"
scripts/program_folder.sh "$program"
example_files "$program/見本"
companion_start "$program"
# Nothing is to look touched.
xdotool mousemove 2 2
sleep 1

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

# --- Notices.
send 2336
dialog FlyingBat5 '時計 アラーム'

# --- Opening files.
picker='ファイルのロード'
open='ファイル オープン'
send 1900
pick() { press "$open" 2002; choose "$picker" 103 "$1"; leave "$picker" 1; }
press "$open" 2002
double "$picker" 2 '[見本]'
sleep 0.3
leave "$picker" 3
pick 'メ'
shot FileOpnDialog "$open"
press "$open" 2008
group='グループ登録'
fill "$group" 105 '毎朝開くもの'
press "$group" 126
sleep 0.3
shot FileOpnGrpSetDlg "$group"
pressed DspListOpnFileHisDlg '詳細表示' "$group" 128
press "$group" 1
dialog box_group '登録の確認' 1
sleep 0.3
send 1900
press "$open" 125
dialog SetOpnFileAnimeDlg 'ファイルオープン アニメーション/サウンド設定' 2
press "$open" 120
group='グループ呼び出し'
choose "$group" 103 0
shot TakeOpnGrpSetDlg "$group"
fill "$group" 109 '毎朝'
press "$group" 131
dialog SerchOpnFileGrpSelDlg '検索したグループの選択' 2
leave "$group" 2
pressed DspListOpnFileRecDlg '記録確認' "$open" 122
pressed DelListOpnFileHisDlg 'オープン履歴削除' "$open" 124
pressed SetGrpOpnFileRecDlg '記録をグループ化' "$open" 121
pick 'メ'
brief FlyingBat1_walk - "$open" 1
# The end picture and the balloon beside it, which is at least 300 by 200.
for _ in $(seq 60); do
  hand list | grep -q '^"" .* 300 200' && break
  sleep 0.1
done
screenshot "$pictures/FlyingBat1_end.png"
hand gone -

# --- Back-up.
backup='ファイル バックアップ'
send 1901
shot FileBackUpSetDlg_empty "$backup"
pressed box_back_up_none 'ファイル未設定' "$backup" 114 1
press "$backup" 110
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
send 1915
dialog FileDivideSetDlg 'ファイル 分割/復元選択'
send 2066
press "$divide" 110
choose "$picker" 103 '大'
leave "$picker" 1
press "$divide" 111
folder='分割ファイル格納先ディレクトリ選択'
double "$folder" 2 '[音楽]'
sleep 0.3
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
hand find '指定フォルダ検索中' >/dev/null
hand gone '指定フォルダ検索中'
dialog FolderStaticsDlg 'フォルダー統計 円グラフ'
brief SerchFolderDlg '指定フォルダ検索中' "$scope" 111
hand gone '指定フォルダ検索中'
dialog FolderStaticsDlg2 'フォルダー統計 棒グラフ'
leave "$scope"

# --- Desktop tidy.
send 1920
dialog FileDesktopClrDlg 'デスクトップの整理'
send 1922
dialog DesktopIconSetDlg 'デスクトップ カバー設定'

# --- The exit question.
send 1908
dialog box_exit 'プログラム終了' 2
montage -font /usr/share/fonts/opentype/ipafont-gothic/ipag.ttf -label '%t' "$pictures"/*.png -background '#d8d8d8' -geometry '+8+8' -tile 6x out/gallery.png
echo "the gallery: out/gallery.png, $(ls "$pictures" | wc -l) pictures"
if [ ${#missing[@]} -gt 0 ]; then
  echo "did not appear: ${missing[*]}" >&2
  exit 1
fi
