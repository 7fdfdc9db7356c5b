#!/bin/sh
# Builds everything under the sanitizers and runs every test.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
cd "$here"

tools/install_packages.sh g++ cmake ninja-build qt6-base-dev qt6-svg-dev libemf2svg-dev libgl-dev \
  libgtest-dev python3 fonts-liberation poppler-utils libreoffice-writer-nogui xvfb xauth

echo "Building in $here/build/check ..."
[ -f build/check/build.ninja ] || cmake --preset check
cmake --build --preset check

echo "Testing ..."
ctest --preset check
