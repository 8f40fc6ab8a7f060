#!/usr/bin/env bash
# The desktop clock under Wine: its repaint against a bare window that draws the same, and
# the idle CPU of a companion with a clock beside one without. Run after ./run has built
# everything:  bench/clock.sh [SECONDS]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
seconds=${1:-60}

for kind in plain clock; do
  rm -rf "build/bench/$kind"
  scripts/program_folder.sh "build/bench/$kind"
done
# The clock shows, in the first design.
printf '\1\0' | dd of=build/bench/clock/mirrell_sys_file.svs bs=1 seek=1092 conv=notrunc status=none

trap display_stop EXIT
display_start 1280x960
wine_prefix
windows_path() { printf 'Z:%s' "$PWD/$1" | tr / '\\'; }

paint_time=$(windows_path build/windows/bench/desktop/paint_time.exe)
bare=$(windows_path build/windows/bench/desktop/bare_clock.exe)
echo "repaint of the clock (A) against a bare window that draws the same (B):"
( cd build/bench/clock && wine "$paint_time" 21 300 mirrell.exe "$bare" )

run_time_of() { cat "/proc/$1/task"/*/schedstat | awk '{sum += $1} END {printf "%.0f", sum}'; }
echo "idle for $seconds s, a companion with the clock and one without:"
for kind in clock plain; do
  ( cd "build/bench/$kind" && exec wine mirrell.exe ) &
  sleep 5
  pid=$(pgrep -n -f 'mirrell\.exe$')  # the newest: another may run elsewhere
  before=$(run_time_of "$pid")
  sleep "$seconds"
  awk -v n="$kind" -v u=$(( $(run_time_of "$pid") - before )) -v s="$seconds" \
    'BEGIN { printf "%-6s %.3f %% of a core\n", n, 100 * u / 1e9 / s }'
  kill "$pid"
  sleep 1
done
