# SPDX-License-Identifier: GPL-3.0-or-later
# Environment for screenshots: a virtual display with a window manager, a temporary folder ($work), and a home folder in it
# whose name looks well in screenshots. To be sourced; removed on exit.
work=$(mktemp -d)
processes=()
trap '[ ${#processes[@]} -eq 0 ] || kill "${processes[@]}" 2>/dev/null || true; rm -rf "$work"; [ ! -L /tmp/player ] || rm /tmp/player' EXIT
mkdir -p "$work/home/Documents"
ln -sfT "$work/home" /tmp/player # fails where somebody has a folder of that name
export HOME=/tmp/player XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8

# The first free display number.
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1440x1000x24 3>"$work/display" 2>/dev/null &
processes+=($!)
read -r number <"$work/display"
export DISPLAY=:$number
unset WAYLAND_DISPLAY
openbox 2>/dev/null &
processes+=($!)
sleep 1
