#!/usr/bin/env bash
# Runs the end-to-end tests under Wine on a virtual display; the arguments go to
# the test program.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh

# All on one core: the programs and Wine's server then hand over to each other at once,
# which takes less than half the time that two cores waking each other take.
core=$(taskset -cp $$ | sed 's/.*: //; s/[,-].*//')
taskset -cp "$core" $$ >/dev/null

arguments=()
for argument in "$@"; do
  case "$argument" in
    # The report is written by a Windows program: give it its own kind of path.
    --gtest_output=xml:*) arguments+=("--gtest_output=xml:Z:$PWD/${argument#--gtest_output=xml:}") ;;
    *) arguments+=("$argument") ;;
  esac
done

program=build/desktop/program
rm -rf "$program"
scripts/program_folder.sh "$program"
# The tests ask the program what it holds, which only this build answers.
mv "$program/mirrell.exe" "$program/shipped.exe"
cp build/windows/src/mirrell-report.exe "$program/mirrell.exe"

trap display_stop EXIT
display_start 1280x960
wine_prefix
export MIRRELL_PROGRAM="Z:$PWD/$program"
MIRRELL_PROGRAM=${MIRRELL_PROGRAM//\//\\}
wine build/windows/tests/desktop/desktop_tests.exe "${arguments[@]}"
