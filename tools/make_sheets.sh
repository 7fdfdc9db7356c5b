#!/bin/sh
# Plays a teacher who makes one sheet of every kind from the sample lists, and writes each sheet as
# the walk prints it: make_sheets.sh WALK PROGRAM_FOLDER OUT_FOLDER
set -eu
walk=$(realpath "$1")
program_folder=$(realpath "$2")
stories=$(cd "$(dirname "$0")" && pwd)/sheets
mkdir -p "$3"
out=$(realpath "$3")

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -R "$program_folder/." "$folder/"

for story in "$stories"/*.walk; do
  sheet="$out/$(basename "$story" .walk).txt"
  "$walk" --folder "$folder" "$story" >"$sheet"
  echo "  $sheet"
done
