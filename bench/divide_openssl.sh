#!/usr/bin/env bash
# The scrambled division beside a real cipher: encrypting a file and splitting the
# stream into 16 pieces, best of five.  bench/divide_openssl.sh [MIB]
set -euo pipefail
megabytes=${1:-256}
room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT
head -c "${megabytes}M" /dev/urandom > "$room/source"
for round in 1 2 3 4 5; do
  rm -f "$room"/piece*
  begin=$(date +%s%N)
  openssl enc -aes-128-ctr -K 00112233445566778899aabbccddeeff -iv 00000000000000000000000000000000 \
    -in "$room/source" | split -b "$((megabytes / 16))M" - "$room/piece"
  echo "$(( ($(date +%s%N) - begin) / 1000000 )) ms"
done | sort -n | head -n 1
