#!/bin/sh
# Builds Brindlepage and starts it on a program folder of your own. With no display it makes one
# sheet of every kind from the sample lists and says where they are.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
cd "$here"

tools/install_packages.sh g++ cmake ninja-build qt6-base-dev libgl-dev fonts-liberation

echo "Building in $here/build/release ..."
[ -f build/release/build.ninja ] || cmake --preset release
cmake --build --preset release --target brindlepage brindlepage-walk

# A teacher's lists live in the teacher's own folder, never in the source tree.
folder="${XDG_DATA_HOME:-$HOME/.local/share}/brindlepage"
if [ ! -f "$folder/brindlepage.dat" ]; then
  echo "Making the program folder $folder"
  mkdir -p "$folder"
  cp -R program_folder/. "$folder/"
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "Starting Brindlepage on $folder"
  cd "$folder"
  exec "$here/build/release/brindlepage"
fi

sheets="$here/build/sheets"
echo "There is no display. Making the sheets from the sample lists in $sheets"
tools/make_sheets.sh build/release/brindlepage-walk program_folder "$sheets"
