#!/usr/bin/env bash
# program_folder.sh FOLDER [OPTION]...: makes a program folder with the programs and, if
# there is none yet, a new data set, for which mirrell-newdata is given the options. A data
# set that is there stays: it is the user's.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=$1
mkdir -p "$folder"
cp -f build/windows/src/mirrell.exe build/windows/tools/send/mirrell-send.exe "$folder/"
if [ ! -e "$folder/mirrell_sys_file.svs" ]; then
  build/native-release/tools/newdata/mirrell-newdata "${@:2}" "$folder"
fi
