#!/usr/bin/env bash
# Whole-process figures under Wine: the start against a bare window, and idle CPU
# and memory beside two programs of the desktop-pet kind. Run after ./run has
# built everything:  bench/desktop.sh [SECONDS [furnished]]
# "furnished" puts the clock and a still calendar on the desktop too.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
seconds=${1:-60}

for peer in oneko xpenguins; do
  command -v "$peer" >/dev/null || apt-get install -y -qq --no-install-recommends "$peer" >/dev/null
done

program=build/bench/program
rm -rf "$program"
scripts/program_folder.sh "$program"
if [ "${2:-}" = furnished ]; then
  # put OFFSET BYTES: into the settings.
  put() { printf "$2" | dd of="$program/mirrell_sys_file.svs" bs=1 seek="$1" conv=notrunc status=none; }
  put 1092 '\1\0'  # the clock shows, in the first design
  put 2169 '\1'    # the calendar shows, with no picture: see bench/calendar.sh
  put 170405 '\0'
  truncate -s 172716 "$program/mirrell_sys_file.svs"
fi

trap display_stop EXIT
display_start 1280x960
wine_prefix

windows_path() { printf 'Z:%s' "$PWD/$1" | tr / '\\'; }

echo "start to first paint, companion (A) against a bare window (B):"
wine build/windows/bench/desktop/start_time.exe 20 \
  "$(windows_path $program/mirrell.exe)" "$(windows_path build/windows/bench/desktop/bare_window.exe)"

# Time on a core of all threads of a process, in nanoseconds.
run_time_of() { cat "/proc/$1/task"/*/schedstat | awk '{sum += $1} END {printf "%.0f", sum}'; }
memory_of() { awk '/^Pss:/ {sum += $2} END {print sum}' "/proc/$1/smaps_rollup"; }

( cd "$program" && exec wine mirrell.exe ) &
sleep 5
companion=$(pgrep -n -f 'mirrell\.exe$')  # the newest: another may run elsewhere
PATH=$PATH:/usr/games
oneko & oneko_pid=$!
xpenguins & xpenguins_pid=$!
sleep 5

declare -A before
for pid in "$companion" "$oneko_pid" "$xpenguins_pid"; do before[$pid]=$(run_time_of "$pid"); done
sleep "$seconds"
report() {
  local used=$(( $(run_time_of "$2") - ${before[$2]} ))
  awk -v n="$1" -v u="$used" -v s="$seconds" -v m="$(memory_of "$2")" \
    'BEGIN { printf "%-12s %.3f %% of a core, %.1f MB (proportional)\n", n, 100 * u / 1e9 / s, m / 1024 }'
}
echo "idle for $seconds s on one display:"
report companion "$companion"
report oneko "$oneko_pid"
report xpenguins "$xpenguins_pid"
kill "$oneko_pid" "$xpenguins_pid" 2>/dev/null || true
