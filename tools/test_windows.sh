#!/bin/sh
# Builds brindlepage-walk for Windows and plays every story with it under Wine.
set -eu
here=$(cd "$(dirname "$0")/.." && pwd)
cd "$here"

tools/install_packages.sh g++-mingw-w64-x86-64-posix wine64 cmake ninja-build

echo "Building in $here/build/windows ..."
[ -f build/windows/build.ninja ] || cmake --preset windows
cmake --build --preset windows

# What Wine keeps for a user goes into the build, and its own news nowhere.
export WINEPREFIX="$here/build/windows/wine" WINEDEBUG=-all
wine=/usr/lib/wine/wine64
cat >build/windows/walk.sh <<END
#!/bin/sh
exec $wine "$here/build/windows/brindlepage-walk.exe" "\$@"
END
chmod +x build/windows/walk.sh
$wine wineboot --init >/dev/null 2>&1

echo "Playing the stories ..."
failed=0
played=0
for story in tests/walks/*.walk; do
  played=$((played + 1))
  if ! said=$(tests/run_walk.sh build/windows/walk.sh program_folder "$story" 2>&1); then
    failed=$((failed + 1))
    echo "FAILED $story"
    echo "$said"
  fi
done
echo "$((played - failed)) of $played stories passed"
[ "$failed" -eq 0 ]
