#!/bin/sh
# Installs the named Debian packages that are missing; says nothing if none is.
set -eu

missing=""
for package in "$@"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed"; then
    missing="$missing $package"
  fi
done
[ -z "$missing" ] && exit 0

as_root=""
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "These packages are missing and need root or sudo to install:$missing" >&2
    exit 1
  fi
  as_root="sudo"
fi

echo "Installing:$missing"
$as_root apt-get update -q
# shellcheck disable=SC2086
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing
