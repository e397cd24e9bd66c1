#!/bin/sh
# Measures the game window of a build folder on a display of its own, which needs Debian's xvfb:
#   bench/window.sh build/release
set -eu

build=$(cd "$1" && pwd)
bench=$build/bench

if [ -z "${INSIDE_DISPLAY-}" ]; then
    INSIDE_DISPLAY=yes exec xvfb-run -a -s '-screen 0 2560x1440x24 -noreset' "$0" "$build"
fi

folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
export XDG_CONFIG_HOME="$folder" XDG_DATA_HOME="$folder"
printf 'HM\r\nRed\r\nBlue\r\n1\r\n' >"$folder/game.tgf"

echo "From the start to the window on screen, beside an empty Qt window:"
"$bench/start_up" "$bench/empty_window" "$build/qarn $folder/game.tgf"
echo "A repaint of the whole board, a click, and the pointer, until everything it changed is painted:"
"$bench/window_bench"
