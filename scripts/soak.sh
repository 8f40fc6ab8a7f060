#!/usr/bin/env bash
# soak.sh [SENDS [SEED]]: sends the real program under Wine every command in any order and
# leaves what opens again. Run after ./run has built everything.
set -euo pipefail
cd "$(dirname "$0")/.."
export MIRRELL_SOAK_SENDS=${1:-2000} MIRRELL_SOAK_SEED=${2:-1}
exec scripts/desktop_tests.sh --gtest_also_run_disabled_tests --gtest_filter='AnyCommandTest.*'
