#!/bin/sh
# with_display.sh WIDTHxHEIGHT COMMAND...
# Runs COMMAND on a virtual screen of this size with a window manager, both of its own.
set -eu

size=$1
shift
work=$(mktemp -d "$PWD/display.XXXXXX")
screen='' manager=''
clean() {
  kill $manager $screen 2>/dev/null || true
  wait
  rm -rf "$work"
}
trap clean EXIT
trap 'exit 143' INT TERM HUP

# The server writes the number of the free display that it took, once it accepts clients.
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 "${size}x24" -noreset -nolisten tcp 3>"$work/number" 2>"$work/xvfb.log" &
screen=$!
read -r number <"$work/number" || { cat "$work/xvfb.log" >&2; exit 1; }

# The player's own settings and data files play no part.
export DISPLAY=":$number" QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
export XDG_DATA_HOME="$work/data" XDG_CONFIG_HOME="$work/config" XDG_CACHE_HOME="$work/cache"
mkdir -m 700 "$work/run"
export XDG_RUNTIME_DIR="$work/run"
unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME

openbox >"$work/openbox.log" 2>&1 &
manager=$!
tries=0
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
  tries=$((tries + 1))
  [ "$tries" -lt 200 ] || { echo "the window manager does not start:"; cat "$work/openbox.log"; exit 1; } >&2
  sleep 0.05
done

"$@"
