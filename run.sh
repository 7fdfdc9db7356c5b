#!/bin/sh
# Builds Brindlepage and starts it on a program folder of your own. With no display it makes one
# sheet of every kind from the sample lists and says where they are.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
cd "$here"

tools/install_packages.sh g++ cmake ninja-build qt6-base-dev libqt6svg6 libfontconfig-dev \
  libemf2svg-dev libgl-dev fonts-liberation

echo "Building in $here/build/release ..."
[ -f build/release/build.ninja ] || cmake --preset release
cmake --build --preset release --target brindlepage brindlepage-walk

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "Starting Brindlepage"
  export BRINDLEPAGE_PROGRAM="$here/build/release/brindlepage"
  export BRINDLEPAGE_FRESH_FOLDER="$here/program_folder"
  exec packaging/brindlepage
fi

sheets="$here/build/sheets"
echo "There is no display. Making the sheets from the sample lists in $sheets"
tools/make_sheets.sh build/release/brindlepage-walk program_folder "$sheets"
