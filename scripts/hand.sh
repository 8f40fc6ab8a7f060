# Sourced after wine_env.sh by whoever drives the companion's windows: the deeds of
# mirrell-hand, and pictures of single windows.

# companion_start PROGRAM_FOLDER: starts the companion there and waits until it
# stands on the desktop. Sets companion_pid.
companion_start() {
  local folder=$1 window=
  hand_program=$PWD/build/windows/tools/hand/mirrell-hand.exe
  ( cd "$folder" && exec wine mirrell.exe 2>/dev/null ) &
  companion_pid=$!
  for _ in $(seq 200); do
    window=$(xdotool search --onlyvisible --name '^ミルレール$' 2>/dev/null | head -n 1) && [ -n "$window" ] && break
    sleep 0.1
  done
  [ -n "$window" ] || { echo "the companion did not appear" >&2; return 1; }
}

# hand DEED ...: see tools/hand/main.cpp.
hand() { wine "$hand_program" "$@" | tr -d '\r'; return "${PIPESTATUS[0]}"; }

# send NUMBER
send() { hand send "$1"; }
press() { hand press "$1" "$2"; }
choose() { hand choose "$1" "$2" "$3"; }
double() { hand double "$1" "$2" "$3"; }
fill() { hand type "$1" "$2" "$3"; }
# leave TITLE [ID]: closes a window, by a button if one is named, and waits.
leave() { hand leave "$@"; }

# shot FOLDER NAME TITLE: FOLDER/NAME.png is the window with that title.
window_shot() {
  local place
  place=$(hand find "$3") || return 1
  # Let it paint.
  sleep 0.25
  area_shot "$1/$2.png" $place
}

# brief_shot FOLDER NAME TITLE DEED...: of a window that stays only for moments after
# the deed: the companion is held still meanwhile.
brief_shot() {
  local file=$1/$2.png title=$3 place waits
  place=$(mktemp)
  hand hold "$title" >"$place" &
  waits=$!
  sleep 0.6
  "${@:4}"
  if wait "$waits"; then
    area_shot "$file" $(cat "$place")
    waits=0
  fi
  hand release -
  rm -f "$place"
  [ "$waits" = 0 ]
}

# area_shot FILE X Y WIDTH HEIGHT
area_shot() { import -window root -crop "$4x$5+$2+$3" +repage "$1"; }

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
  printf 'メモ\n' >"$1/メモ.txt"
}
