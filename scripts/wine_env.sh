# Sourced by whoever starts Wine: a Japanese locale, a private prefix under
# build/, a display. Ends what it started when the shell ends. (The driver of USB
# devices is left out: it outlives its server.)

export LANG=ja_JP.UTF-8 LC_ALL=ja_JP.UTF-8
export WINEDLLOVERRIDES="mscoree=;mshtml=;wineusb.sys=" WINEDEBUG="${WINEDEBUG:--all}"
export WINEPREFIX="${MIRRELL_WINEPREFIX:-$PWD/build/wine}"

# wine_prefix: makes the prefix once. Without a window manager Wine itself
# draws captions and handles focus.
wine_prefix() {
  [ -e "$WINEPREFIX/mirrell-ready" ] && { wine_folders; return 0; }
  rm -rf "$WINEPREFIX"
  mkdir -p "$(dirname "$WINEPREFIX")"
  wine wineboot --init >/dev/null 2>&1
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
  for face in 'MS Gothic' 'ＭＳ ゴシック'; do
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$face" /d IPAGothic /f >/dev/null 2>&1
  done
  for face in 'MS UI Gothic' 'MS PGothic' 'ＭＳ Ｐゴシック' 'MS Shell Dlg' 'MS Shell Dlg 2'; do
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$face" /d IPAPGothic /f >/dev/null 2>&1
  done
  # The signs on the buttons of captions.
  cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null || true
  wineserver -w
  wine_folders
  touch "$WINEPREFIX/mirrell-ready"
}

# wine_folders: the desktop and its like are folders of the prefix, no links into
# the developer's home, which a test would tidy up otherwise.
wine_folders() {
  local folder
  for folder in "$WINEPREFIX"/drive_c/users/*/*; do
    [ -L "$folder" ] || continue
    rm "$folder"
    mkdir "$folder"
  done
}

# display_start WIDTHxHEIGHT: a virtual display of our own; sets DISPLAY and
# display_pid.
display_start() {
  local size=${1:-1280x960} number pipe
  pipe=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$pipe" >/dev/null 2>&1 &
  display_pid=$!
  for _ in $(seq 100); do
    number=$(cat "$pipe")
    [ -n "$number" ] && break
    sleep 0.1
  done
  rm -f "$pipe"
  [ -n "$number" ] || { echo "no virtual display could be started" >&2; return 1; }
  export DISPLAY=":$number"
  # A plain colour behind the character shows that nothing else is drawn around it.
  xsetroot -solid '#3a6ea5' 2>/dev/null || true
}

display_stop() {
  wineserver -k >/dev/null 2>&1 || true
  if [ -n "${display_pid:-}" ]; then
    kill "$display_pid" 2>/dev/null || true
    wait "$display_pid" 2>/dev/null || true
    display_pid=
  fi
}

# screenshot FILE: the whole display as a PNG.
screenshot() {
  mkdir -p "$(dirname "$1")"
  /usr/bin/import -window root "$1"
}
