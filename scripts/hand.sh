# Sourced after wine_env.sh by whoever drives the companion's windows: the deeds of
# mirrell-hand, and pictures of single windows. What fails ends the script, with a
# word about it and a picture of the display.

set -Eeuo pipefail

failed() {
  [ "$BASH_SUBSHELL" = 0 ] || return 0
  echo "$0 failed: $BASH_COMMAND (lines ${BASH_LINENO[*]}); see out/failed.png" >&2
  screenshot out/failed.png || true
}
trap failed ERR
rm -f out/failed.png

# companion_start FOLDER [PROGRAM]: starts the companion there and waits until it
# stands on the desktop.
companion_start() {
  local folder=$1 program=${2:-mirrell.exe} window=
  hand_program=$PWD/build/windows/tools/hand/mirrell-hand.exe
  ( cd "$folder" && exec wine "$program" 2>/dev/null ) &
  companion_pid=$!
  for _ in $(seq 200); do
    window=$(xdotool search --onlyvisible --name '^ミルレール$' 2>/dev/null | head -n 1) || true
    [ -z "$window" ] || return 0
    sleep 0.1
  done
  echo "the companion did not appear" >&2
  return 1
}

# companion_end: closes the companion, as its own menu does, and waits.
companion_end() {
  send 8
  wait "$companion_pid"
}

# hand DEED ...: see tools/hand/main.cpp.
hand() {
  wine "$hand_program" "$@" | tr -d '\r' && return
  echo "mirrell-hand $*: ended with ${PIPESTATUS[0]}" >&2
  return 1
}

# send NUMBER
send() { hand send "$1"; }
press() { hand press "$1" "$2"; }
choose() { hand choose "$1" "$2" "$3"; }
double() { hand double "$1" "$2" "$3"; }
fill() { hand type "$1" "$2" "$3"; }
# leave TITLE [ID]: closes a window, by a button if one is named, and waits.
leave() { hand leave "$@"; }

# window_shot FILE TITLE: the window with that title.
window_shot() {
  local place
  place=$(hand find "$2")
  # Let it paint.
  sleep 0.25
  area_shot "$1" $place
}

# held_shot FILE TITLE [COUNT]: the whole display at the moment when COUNT windows of
# that title have come; the companion is held still meanwhile.
held_shot() {
  hand hold "${@:2}" >/dev/null
  screenshot "$1"
  hand release -
}

# brief_shot FILE TITLE DEED...: a window that stays only for moments after the deed.
brief_shot() {
  local file=$1 title=$2 place waits
  place=$(mktemp)
  hand hold "$title" >"$place" &
  waits=$!
  sleep 0.6
  "${@:3}"
  wait "$waits"
  area_shot "$file" $(cat "$place")
  hand release -
  rm -f "$place"
}

# area_shot FILE X Y WIDTH HEIGHT
area_shot() {
  [ "${4:-0}" -gt 0 ]
  import -window root -crop "$4x$5+$2+$3" +repage "$1"
}

# example_files FOLDER: files of many sizes, some of them in folders, to show.
example_files() {
  local i size
  mkdir -p "$1/写真" "$1/音楽"
  for i in $(seq 120); do
    size=$(( (i * i * 37) % 9000 + i ))
    head -c "${size}k" /dev/zero >"$1/見本$(printf %03d "$i").txt"
  done
  head -c 90M /dev/zero >"$1/大きなファイル.bin"
  head -c 40M /dev/zero >"$1/写真/海の写真.bmp"
  head -c 25M /dev/zero >"$1/音楽/とても長い名前の付いた夏の歌の録音.wav"
  printf '牛乳\r\n卵\r\n青い糸\r\n' | iconv -t CP932 >"$1/メモ.txt"
  printf '一、玉ねぎを炒める。\r\n二、水を入れて煮る。\r\n' | iconv -t CP932 >"$1/カレーの作り方.txt"
}
