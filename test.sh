#!/bin/sh
# Builds everything under the sanitizers and runs every test.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
cd "$here"

tools/install_packages.sh g++ clang cmake ninja-build qt6-base-dev libqt6svg6 libfontconfig-dev \
  libemf2svg-dev libgl-dev libgtest-dev python3 fonts-liberation poppler-utils xvfb xauth libreoffice-writer-nogui

echo "Building in $here/build/check ..."
[ -f build/check/build.ninja ] || cmake --preset check
cmake --build --preset check

tools/fuzz.sh 60

echo "Testing ..."
ctest --preset check
