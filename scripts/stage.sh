# Where the programs are driven and photographed: a display of our own with a window manager, a folder for what comes
# on the way ($work), and a player's home in it that reads well in pictures. To be sourced; all goes at the end.
work=$(mktemp -d)
processes=()
trap '[ ${#processes[@]} -eq 0 ] || kill "${processes[@]}" 2>/dev/null || true; rm -rf "$work"; [ ! -L /tmp/player ] || rm /tmp/player' EXIT
mkdir -p "$work/home/Documents"
ln -sfT "$work/home" /tmp/player # fails where somebody has a folder of that name
export HOME=/tmp/player XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8

# The first free number: another display's windows are not ours to photograph.
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1440x1000x24 3>"$work/display" 2>/dev/null &
processes+=($!)
read -r number <"$work/display"
export DISPLAY=:$number
unset WAYLAND_DISPLAY
openbox 2>/dev/null &
processes+=($!)
sleep 1
