#!/usr/bin/env bash
# The desktop calendar under Wine: the repaint of each page against a bare window that draws
# the same texts, and the CPU of a companion whose calendar has a running ticker beside a
# bare window that scrolls one line of text, and beside a companion with a still calendar.
# Run after ./run has built everything:  bench/calendar.sh [SECONDS]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
seconds=${1:-60}

# put FILE OFFSET BYTES: writes bytes ("\1\0") at a place of a file.
put() { printf "$3" | dd of="$1" bs=1 seek="$2" conv=notrunc status=none; }

# The calendar shows, with no picture: that is believed of a file without its last field.
for kind in month:0 week:1 day:2 ticker:0 still:0; do
  folder=build/bench/calendar_${kind%:*}
  rm -rf "$folder"
  scripts/program_folder.sh "$folder"
  settings=$folder/mirrell_sys_file.svs
  put "$settings" 2169 '\1'
  put "$settings" 2189 "\\${kind#*:}"
  put "$settings" 170405 '\0'
  truncate -s 172716 "$settings"
done
# The first calendar's definition: a ticker of two pixels a step without a rest to speak of;
# today has a note.
folder=build/bench/calendar_ticker
definition=$((3986 + 3 * (56064 + 120)))
put "$folder/mirrell_calen_file.dcd" $((definition + 26228)) '\1\1\0'
month=$(($(date +%-m) - 1)) day=$(($(date +%-d) - 1))
put "$folder/mirrell_sys_file.svs" $((2190 + month * 4672 + 34 + day * 128)) 'the note of today'

trap display_stop EXIT
display_start 1280x960
wine_prefix
windows_path() { printf 'Z:%s' "$PWD/$1" | tr / '\\'; }
paint_time=$(windows_path build/windows/bench/desktop/paint_time.exe)
bare=$(windows_path build/windows/bench/desktop/bare_calendar.exe)
for kind in month week day; do
  echo "repaint of the $kind page (A) against a bare window with the same texts (B):"
  ( cd "build/bench/calendar_$kind" && wine "$paint_time" 21 200 mirrell.exe "$bare $kind" )
done

run_time_of() { cat "/proc/$1/task"/*/schedstat | awk '{sum += $1} END {printf "%.0f", sum}'; }
# cpu NAME FOLDER PATTERN PROGRAM [ARGUMENT]
cpu() {
  ( cd "$2" && exec wine "${@:4}" ) &
  sleep 5
  local pid before
  pid=$(pgrep -n -f "$3")  # the newest: another may run elsewhere
  before=$(run_time_of "$pid")
  sleep "$seconds"
  awk -v n="$1" -v u=$(( $(run_time_of "$pid") - before )) -v s="$seconds" \
    'BEGIN { printf "%-14s %.3f %% of a core\n", n, 100 * u / 1e9 / s }'
  kill "$pid"
  sleep 1
}
echo "for $seconds s each:"
cpu 'running ticker' build/bench/calendar_ticker 'mirrell\.exe$' mirrell.exe
cpu 'bare line' build/bench/calendar_still 'bare_calendar\.exe ticker$' "$bare" ticker
cpu 'still calendar' build/bench/calendar_still 'mirrell\.exe$' mirrell.exe
