#!/bin/sh
# Builds the Debian package, installs it, starts the program as a new user would, looks for its
# window, and removes the package again. Needs root; leaves the machine as it was.
set -eu
here=$(cd "$(dirname "$0")/.." && pwd)
cd "$here"

tools/install_packages.sh g++ cmake ninja-build qt6-base-dev libqt6svg6 libfontconfig-dev \
  libemf2svg-dev libgl-dev dpkg-dev file fonts-liberation xvfb xauth xdotool desktop-file-utils

echo "Building in $here/build/package ..."
[ -f build/package/build.ninja ] || cmake --preset package
cmake --build --preset package
package=$(realpath build/package/brindlepage_*.deb)
home=$(mktemp -d)

fail() {
  echo "FAILED: $1"
  exit 1
}
remove() { dpkg --remove brindlepage >/dev/null; }
trap 'remove || true; rm -rf "$home"' EXIT

apt-get install -y -q --no-install-recommends "$package"
for needed in libemf2svg1 libqt6svg6; do
  dpkg-deb --field "$package" Depends | grep -q "$needed" || fail "it comes without $needed"
done
desktop-file-validate /usr/share/applications/brindlepage.desktop
shown=$(fc-match --format '%{family}' "Courrier New")
[ "$shown" = "Liberation Mono" ] || fail "Courrier New shows as $shown"

echo "Starting it as a new user ..."
lists="$home/.local/share/brindlepage/TheLists.dat"
HOME="$home" XDG_DATA_HOME="$home/.local/share" timeout 60 xvfb-run -a sh -c '
  brindlepage &
  xdotool search --sync --onlyvisible --name "^Brindlepage$" >/dev/null && echo "The menu is up."
  kill $!
  wait $! || true' | grep "The menu is up." || fail "the menu did not come up"
[ -s "$lists" ] || fail "the first start made no program folder"

remove
trap 'rm -rf "$home"' EXIT
[ ! -e /usr/bin/brindlepage ] || fail "the program is still there"
[ ! -e /etc/fonts/conf.d/45-brindlepage.conf ] || fail "the fonts are still aliased"
[ -s "$lists" ] || fail "removing the package took the teacher's lists"
echo "The package installs, runs and goes, and the lists stay."
