#!/bin/sh
# Plays a story in a copy of the program folder and compares what it prints with the text file
# beside it.
#
#   run_walk.sh WALK_BINARY PROGRAM_FOLDER STORY.walk
#
# The first lines of a story may say how it is played:
#
#   # status 1             what the walk ends with; 0 if nothing is said
#   # screen 640x480       the screen, as --screen takes it
#   # draw-limit 1000      as --draw-limit takes it
#   # files class_lists    a folder beside the story, copied over the program folder first
#   # without Riddles.dat  a file taken away first
#   # leaves after_edit    a folder beside the story, each of whose files the walk must leave
set -u

walk=$(realpath "$1")
program_folder=$(realpath "$2")
story=$(realpath "$3")
beside=$(dirname "$story")

temp=$(mktemp -d) || exit 1
trap 'rm -rf "$temp"' EXIT
trap 'exit 1' HUP INT TERM

# What the story's first lines say of a thing, a line each.
said() { sed -n -e '/^#/!q' -e "s/^# $1 //p" "$story" | tr -d '\r'; }

folder=$temp/program
mkdir "$folder" && cp -R "$program_folder/." "$folder" && chmod -R u+w "$folder" || exit 1
for files in $(said files); do
  cp -R "$beside/$files/." "$folder" || exit 1
done
said without | while IFS= read -r file; do rm -r "${folder:?}/$file"; done

set -- --folder "$folder"
for screen in $(said screen); do set -- "$@" --screen "$screen"; done
for limit in $(said draw-limit); do set -- "$@" --draw-limit "$limit"; done

(cd "$beside" && "$walk" "$@" "$story") >"$temp/printed" 2>"$temp/errors"
status=$?

# The program folder's own path stands as FOLDER in what is printed, be it as Windows writes it.
as_windows=Z:$(printf '%s' "$folder" | sed 's|/|\\\\\\\\|g')
sed -i -e "s|$folder|FOLDER|g" -e "s|$as_windows|FOLDER|g" "$temp/printed"

failed=0
wanted=$(said status)
if [ "$status" -ne "${wanted:-0}" ]; then
  echo "ended with status $status instead of ${wanted:-0}"
  cat "$temp/errors"
  failed=1
elif [ "$status" -ne 2 ] && [ -s "$temp/errors" ]; then
  cat "$temp/errors"
  failed=1
fi
diff -u "${story%.walk}.txt" "$temp/printed" || failed=1
for left in $(said leaves); do
  (cd "$beside/$left" && find . -type f) >"$temp/left"
  while IFS= read -r file; do
    cmp "$beside/$left/$file" "$folder/$file" || failed=1
  done <"$temp/left"
done
exit $failed
