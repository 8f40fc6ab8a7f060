#!/usr/bin/env bash
# Walks through the companion's windows as a user would, with a pointer that moves
# and clicks on a virtual display. Each step leaves a picture in out/tour/.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
. scripts/hand.sh

pictures=out/tour
program=$WINEPREFIX/drive_c/MIRRELL
rm -rf "$pictures"
mkdir -p "$pictures"

step=0
# picture NAME: the whole display, numbered.
picture() {
  step=$((step + 1))
  sleep 0.4
  screenshot "$pictures/$(printf '%02d_%s' "$step" "$1").png"
}

# point X Y: moves the pointer there in a few small moves, as a hand does.
point() {
  local x y i
  [ $# = 2 ]
  eval "$(xdotool getmouselocation --shell | grep -E '^[XY]=')"
  for i in 1 2 3 4 5 6; do
    x=$((X + ($1 - X) * i / 6)) y=$((Y + ($2 - Y) * i / 6))
    xdotool mousemove "$x" "$y"
    sleep 0.03
  done
}
click() { point "$@"; sleep 0.1; xdotool click 1; }
drag() {
  point "$1" "$2"
  xdotool mousedown 1
  point "$3" "$4"
  xdotool mouseup 1
}
double_click() { point "$@"; xdotool click --repeat 2 --delay 80 1; }

# into X Y WIDTH HEIGHT [PART OF WIDTH IN %]: a point in a rectangle; nothing without one.
into() { [ $# -lt 4 ] || echo $(($1 + $3 * ${5:-50} / 100)) $(($2 + $4 / 2)); }
# push TITLE ID: clicks the button.
push() { click $(into $(hand part "$1" "$2")); }

# touch_stage: moves the pointer onto the character, which opens the panel, and into
# the panel before that closes again: someone looks out for it from before it opens.
touch_stage() {
  local stage panel lookout
  point 6 6
  hand gone -
  stage=$(hand stage)
  panel=$(mktemp)
  hand find - >"$panel" &
  lookout=$!
  sleep 0.5
  point $(into $stage)
  wait "$lookout"
  xdotool mousemove $(into $(cat "$panel"))
  rm -f "$panel"
}
# row NUMBER: clicks a row of the panel.
row() {
  local place
  place=($(hand find -))
  point $((place[0] + 80)) $((place[1] + 20 + 20 * $1))
  [ -z "${2:-}" ] || picture "$2"
  xdotool click 1
  sleep 0.3
}
# pick TITLE ID ROW: clicks a row of a list; go likewise, twice.
pick() { click $(into $(hand row "$@") 20); }
go() { double_click $(into $(hand row "$@") 20); sleep 0.5; }
# drop TITLE ID ROW: a row of a combo box.
drop() {
  push "$1" "$2"
  sleep 0.3
  pick "$@"
}
# held NAME [COUNT]: a picture at the moment when so many windows without a title
# have come: a walking character is one, its end picture and balloon are two.
held() {
  hand hold - "${2:-1}" >/dev/null
  picture "$1"
  hand release -
}
# shut TEXT: closes the program whose caption begins so, by the sign on its caption.
shut() {
  local place
  place=($(hand find "other:$1"))
  click $((place[0] + place[2] - 13)) $((place[1] + 13))
  hand gone "other:$1"
}

trap display_stop EXIT
display_start 1280x960
wine_prefix
rm -rf "$program"
scripts/program_folder.sh "$program"
example_files "$program/見本"
xdotool mousemove 6 6
companion_start "$program"
sleep 1
picture desktop

# --- The panel and its levels.
touch_stage
picture panel
row 6
picture panel_options
row 0
main='ミルレールキャラクタ'
picture main_character
pick "$main" 100 2
picture main_character_chosen
push "$main" 2369
push '動作の確認' 2285
picture motion_of_the_menu
leave '動作の確認'
leave '動作の確認'
push "$main" 1
picture main_character_taken

touch_stage
row 6
row 1
alarm='アラームキャラクタ'
picture alarm_characters
push "$alarm" 2290
picture alarm_character_plays
push 'アラーム動作の確認' 2
push "$alarm" 2

# --- The layout, dragged.
touch_stage
row 6
row 2
layout='レイアウト設定'
picture layout
# The stage's rectangle in the image of the screen, which is a fifth of it.
stage=($(hand stage))
client=($(hand part "$layout" 2292))
left=$((client[0] - 12 + 10)) top=$((client[1] - 284 + 34))
point $((left + stage[0] / 5 + 12)) $((top + stage[1] / 5 + 16))
xdotool mousedown 1
point $((left + 60)) $((top + 60))
picture layout_dragged
xdotool mouseup 1
push "$layout" 1
picture layout_applied

# --- A file is opened: the character walks, says so, and the program comes up.
touch_stage
row 0
open='ファイル オープン'
picker='ファイルのロード'
picture file_open
push "$open" 2002
go "$picker" 2 '[見本]'
pick "$picker" 103 'メモ'
picture file_open_file
push "$picker" 1
push "$open" 2003
for folder in '[..]' '[..]' '[windows]'; do go "$picker" 2 "$folder"; done
pick "$picker" 103 'notepad'
picture file_open_program
push "$picker" 1
picture file_open_chosen
push "$open" 1
held walk_begins
sleep 1.5
held walk_goes_on
held walk_ends 2
hand find 'other:メモ' >/dev/null
picture program_started
shut 'メモ'
picture program_closed

# --- Two files are made a group, and the group is called.
touch_stage
row 0
push "$open" 2002
for folder in '[..]' '[MIRRELL]' '[見本]'; do go "$picker" 2 "$folder"; done
pick "$picker" 103 'カレー'
push "$picker" 1
push "$open" 2008
group='グループ登録'
push "$group" 105
xdotool type 'asa'
push "$group" 126
drop "$group" 101 'メモ'
push "$group" 126
picture group_files
# The first one again, with a program of its own: it moves to the end.
drop "$group" 101 'カレー'
drop "$group" 102 1
push "$group" 126
picture group_registered
push "$group" 1
push '登録の確認' 1
touch_stage
row 0
push "$open" 120
group='グループ呼び出し'
picture group_called
push "$group" 1
held group_walk_ends 2
for file in 'メモ' 'カレー'; do hand find "other:$file" >/dev/null; done
# They stand in one place: the upper one is drawn aside by its caption.
drag 400 13 720 253
picture group_started
shut 'カレー'
shut 'メモ'

# --- Back-up.
touch_stage
row 1
backup='ファイル バックアップ'
picture back_up
push "$backup" 110
for folder in '[..]' '[MIRRELL]' '[見本]'; do go "$picker" 2 "$folder"; done
pick "$picker" 103 '見本001'
picture back_up_source
push "$picker" 1
push "$backup" 111
folder='バックアップ先ディレクトリ指定'
go "$folder" 2 '[写真]'
picture back_up_folder
push "$folder" 1
push "$backup" 114
hand find 'ファイルバックアップ完了' >/dev/null
picture back_up_done
push 'ファイルバックアップ完了' 1
push "$backup" 2

# --- Dividing.
touch_stage
row 2
picture panel_files
row 1
picture divide_or_restore
push 'ファイル 分割/復元選択' 110
divide='ファイル 分割'
push "$divide" 110
pick "$picker" 103 0
push "$picker" 1
push "$divide" 111
push '分割ファイル格納先ディレクトリ選択' 1
click $(into $(hand part "$divide" 103))
xdotool type 'pieces'
click $(into $(hand part "$divide" 104))
xdotool key End BackSpace BackSpace
xdotool type '12'
picture divide
push "$divide" 112
hand find '分割を正常終了' >/dev/null
picture divide_done
push '分割を正常終了' 1
push "$divide" 2

# --- The folder scope.
touch_stage
row 2
row 0
scope='フォルダースコープ'
picture folder_scope
push "$scope" 110
hand find 'フォルダー統計 円グラフ' >/dev/null
hand gone '指定ドライブ検索中'
sleep 0.2
hand gone '指定フォルダ検索中'
picture folder_scope_pies
push 'フォルダー統計 円グラフ' 2
push "$scope" 3

# --- The rooms that have a file of their own.
for room in scripts/tour/*.sh; do
  [ ! -e "$room" ] || . "$room"
done

# --- The end, that is put off.
touch_stage
row 7 panel_exit
hand find 'プログラム終了' >/dev/null
picture exit_question
push 'プログラム終了' 2
picture exit_cancelled

echo "the tour: out/tour, $step pictures"
