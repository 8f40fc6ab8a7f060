#!/usr/bin/env bash
# Installs what building, running and testing need. Quiet, and quick when
# everything is there already. Debian; as root or with sudo.
set -euo pipefail

packages=(
  cmake ninja-build g++ g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64
  libgtest-dev googletest libbenchmark-dev
  librsvg2-dev libcairo2-dev pkg-config
  wine wine64 xvfb xdotool imagemagick x11-xserver-utils
  fonts-ipafont-gothic fonts-wine locales python3 dovecot-pop3d
)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done

as_root() { if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi; }

if [ ${#missing[@]} -gt 0 ]; then
  echo "installing: ${missing[*]}"
  log=$(mktemp)
  if ! { as_root apt-get update -qq &&
         as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
       } >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
  fi
  rm -f "$log"
fi

# Wine takes its code page from the locale. A folder of its own, and not the archive of
# all: a shell that has looked into that already would not find a new one in it.
if ! locale -a 2>/dev/null | grep -qi '^ja_JP\.utf-\?8$'; then
  as_root localedef --no-archive -i ja_JP -f UTF-8 ja_JP.UTF-8
fi
