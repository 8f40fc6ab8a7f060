#!/usr/bin/env bash
# The dialogs of a scenario with full tables under Wine: the CPU that opening each takes.
# With fewer PARAMETERS than 2,048 what the lists and combo boxes of the cast take stands out.
# Run after ./run has built everything and `cmake --build --preset native-release` the
# native benchmarks:  bench/scenario.sh [ROUNDS [PARAMETERS]]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
rounds=${1:-9}

program=build/bench/scenario
rm -rf "$program"
scripts/program_folder.sh "$program"
build/native-release/bench/full_scenario "$PWD/$program" "${2:-2048}"

trap display_stop EXIT
display_start 1280x960
wine_prefix
windows_path() { printf 'Z:%s' "$PWD/$1" | tr / '\\'; }

( cd "$program" && exec wine mirrell.exe ) &
sleep 5
companion=$(pgrep -n -f 'mirrell\.exe$')  # the newest: another may run elsewhere
server=$(pgrep -n -x wineserver64 || pgrep -n -x wineserver)
echo "CPU of opening a dialog, median of $rounds:"
wine build/windows/bench/desktop/dialog_time.exe "$rounds" "$companion" "$server"
