#!/usr/bin/env bash
# The window of a full schedule under Wine: its repaint against a bare window that writes
# the same texts. Run after ./run has built everything:  bench/table.sh
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/wine_env.sh
program=build/bench/table
rm -rf "$program"
scripts/program_folder.sh "$program"

trap display_stop EXIT
display_start 1280x960
wine_prefix
windows_path() { printf 'Z:%s' "$PWD/$1" | tr / '\\'; }

# A schedule of 31 full lines of long ago is the executing one, which command 2264 opens.
python3 - "$program" "$(windows_path "$program/bench.GPI")" <<'END'
import struct
import sys

folder, path = sys.argv[1:]
text = "古い写真を整理して、家族に送るものを選ぶ".encode("cp932")
day = bytes([20, 0, 0, 8])
item = struct.pack("<BB4s4sBBIBB10xI128s", 1, 0, day, day, 0, 0, 12, 1, 0, 0, text)
head = b"SCL Data File : " + struct.pack(">Biiiii", 1, 31, 20, 0, 0, 8) + struct.pack(">Biii", 0, 10, 8, 18)
head += struct.pack(">iii", 10, 8, 18) * 8 + "秋の旅行の計画".encode("cp932").ljust(129, b"\0")
open(folder + "/bench.GPI", "wb").write(head + item * 31)
application = b"Z:\\none.exe".ljust(600, b"\0")
schedule = path.encode("cp932").ljust(600, b"\0")
with open(folder + "/mirrell_apli_list_file.ali", "wb") as file:
    file.write(b"Mirrell ApliCation List:" + struct.pack(">iii", 1, 0, 1) + application + schedule)
END

echo "repaint of a full table (A) against a bare window that writes the same (B):"
paint_time=$(windows_path build/windows/bench/desktop/paint_time.exe)
bare=$(windows_path build/windows/bench/desktop/bare_table.exe)
cd "$program"
( sleep 4; wine mirrell-send.exe schedule-executing ) &
wine "$paint_time" 41 200 mirrell.exe "$bare"
