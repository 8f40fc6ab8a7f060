#!/usr/bin/env bash
# What the real program holds under Wine with a clock and a calendar on the desktop: memory
# and objects at the start, after ten minutes of ticks and after an hour of them (120,000),
# sent one behind the other while the program's time goes on from 9 to 10 o'clock. Run after
# ./run has built everything:  bench/memory.sh
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh

program=build/bench/memory
rm -rf "$program"
scripts/program_folder.sh "$program"
cp build/windows/src/mirrell-report.exe "$program/mirrell.exe"  # the build that tells what it holds
# put FILE OFFSET BYTES: writes bytes ("\1\0") at a place of a file.
put() { printf "$3" | dd of="$program/$1" bs=1 seek="$2" conv=notrunc status=none; }
settings=mirrell_sys_file.svs
put "$settings" 1092 '\1\0'  # the clock shows, in the first design
put "$settings" 2169 '\1'    # the calendar shows, with its picture
# Its ticker runs, with rests: the first calendar's definition; today has a note.
put mirrell_calen_file.dcd $((3986 + 3 * (56064 + 120) + 26227)) '\0\2\1\0'
month=$(($(date +%-m) - 1)) day=$(($(date +%-d) - 1))
put "$settings" $((2190 + month * 4672 + 34 + day * 128)) 'memory'

trap display_stop EXIT
display_start 1280x960
wine_prefix
( cd "$program" && exec wine mirrell.exe ) &
sleep 5
for pid in $(pgrep -f 'mirrell\.exe$') none; do  # another may run elsewhere
  [ "$(readlink "/proc/$pid/cwd")" = "$PWD/$program" ] && break
done
[ "$pid" != none ] || { echo "the companion did not come up" >&2; exit 1; }

# report NAME COUNT FIRST: sends ticks and tells what is held then.
report() {
  local objects
  objects=$(wine build/windows/bench/desktop/send_ticks.exe "$2" "$3")
  awk -v n="$1" -v o="${objects%, }" '/^VmRSS:/ {r = $2} /^Private_/ {p += $2}
    END {printf "%-20s resident %d kB, private %d kB; %s\n", n, r, p, o}' \
    "/proc/$pid/status" "/proc/$pid/smaps_rollup"
}
report 'at the start' 100 0
report 'after ten minutes' 20000 100
report 'after an hour' 99900 20100
