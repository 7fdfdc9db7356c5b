#!/bin/sh
# The launcher makes the teacher's program folder once, whole, and never touches it again.
#
#   launcher_test.sh LAUNCHER PROGRAM_FOLDER
set -eu
launcher=$(realpath "$1")
fresh=$(realpath "$2")
temp=$(mktemp -d)
trap 'chmod -R u+w "$temp"; rm -rf "$temp"' EXIT

fail() {
  echo "$1"
  exit 1
}

# Stands in for the program: says where it was started, and with what.
cat >"$temp/program" <<END
#!/bin/sh
echo "\$(pwd) \$*"
END
chmod +x "$temp/program"
export BRINDLEPAGE_PROGRAM="$temp/program" BRINDLEPAGE_FRESH_FOLDER="$fresh"
export HOME="$temp/ann" XDG_DATA_HOME=
unset XDG_DATA_HOME
mkdir "$HOME"
own="$HOME/.local/share/brindlepage"

said=$("$launcher" one "two three")
[ "$said" = "$own one two three" ] || fail "started as: $said"
diff -r "$fresh" "$own" || fail "the first start did not copy the fresh folder"

# The teacher's own lists stay, and what was deleted does not come back.
echo "Ann's list" >"$own/TheLists.dat"
rm "$own/Riddles.dat"
"$launcher" >/dev/null
[ "$(cat "$own/TheLists.dat")" = "Ann's list" ] || fail "the lists were overwritten"
[ ! -e "$own/Riddles.dat" ] || fail "a deleted file came back"

# Each teacher has a folder of their own, and it may be wanted elsewhere.
XDG_DATA_HOME="$temp/bob's data" "$launcher" >/dev/null
diff -r "$fresh" "$temp/bob's data/brindlepage" || fail "no folder where the data belongs"

# A copy that breaks off leaves nothing behind that looks like a program folder.
rm -rf "$own"
if BRINDLEPAGE_FRESH_FOLDER="$temp/missing" "$launcher" >/dev/null 2>&1; then
  fail "started without a fresh folder"
fi
[ -z "$(ls -A "$HOME/.local/share")" ] || fail "a broken copy was left behind"

# A folder that was installed without the right to write becomes the teacher's.
cp -R "$fresh" "$temp/fresh" && chmod -R a-w "$temp/fresh"
BRINDLEPAGE_FRESH_FOLDER="$temp/fresh" "$launcher" >/dev/null
[ "$(stat -c %a "$own/TheLists.dat")" = 600 ] || fail "the lists can't be written"
