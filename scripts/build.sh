#!/usr/bin/env bash
# Builds the presets named on the command line.
set -euo pipefail
cd "$(dirname "$0")/.."

for preset in "$@"; do
  log="build/$preset.log"
  mkdir -p build
  if ! { cmake --preset "$preset" && cmake --build --preset "$preset"; } >"$log" 2>&1; then
    grep -E 'error|Error|FAILED' "$log" | head -n 40 >&2
    echo "building $preset failed; the whole log: $log" >&2
    exit 1
  fi
  echo "built: $preset"
done
