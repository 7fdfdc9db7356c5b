#!/bin/sh
# Plays a teacher who makes one sheet of every kind from the sample lists and saves each with its
# answer key: make_sheets.sh WALK PROGRAM_FOLDER OUT_FOLDER
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
  if ! said=$("$walk" --folder "$folder" "$story" 2>&1); then
    echo "$story went wrong:" >&2
    echo "$said" >&2
    exit 1
  fi
done
for sheet in "$folder"/worksheets/*.rtf; do
  cp "$sheet" "$out/"
  echo "  $out/$(basename "$sheet")"
done
