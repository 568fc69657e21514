#!/bin/sh
# The portable folder on a desktop without Qt: a copy in a scratch place,
# started in a private mount namespace whose library folder holds nothing but
# the host libraries named after the folder (and what they need themselves),
# shows its main window under Xvfb and makes its first-run files beside
# itself. Skips, saying why, where namespaces or mounts are refused.
# usage: startwithoutqt.sh FOLDER HOST-LIBRARY...
folder=$1
shift
skip() { echo "Skipped: $*"; exit 77; }
[ "$(id -u)" = 0 ] || skip "a private mount namespace needs root"
unshare -m -n mount -t tmpfs none /mnt 2>/dev/null || skip "this machine refuses mount namespaces or mounts"
for tool in Xvfb xdotool; do command -v $tool >/dev/null || skip "$tool is missing"; done

scratch=$(mktemp -d)
trap 'kill $app $xvfb 2>/dev/null; rm -rf "$scratch"' EXIT
cp -r "$folder" "$scratch/stick"
libdir=$(dirname "$(ldd /bin/sh | awk '$1 == "libc.so.6" { print $3 }')")
mkdir "$scratch/host" "$scratch/home"
for name in "$@"; do [ -e "$libdir/$name" ] && cp -L "$libdir/$name" "$scratch/host/"; done
ldd "$scratch"/host/* 2>/dev/null | awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u | xargs -r cp -L -n -t "$scratch/host"

Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$scratch/display" 2>/dev/null &
xvfb=$!
for i in $(seq 50); do [ -s "$scratch/display" ] && break; sleep 0.2; done
export DISPLAY=:$(cat "$scratch/display")
# A network namespace of its own too: another Tandry on this machine must not
# count as a running instance.
unshare -m -n sh -c 'mount --bind "$1" "$2" && exec env -i DISPLAY="$DISPLAY" HOME="$3" "$4/tandry"' \
    - "$scratch/host" "$libdir" "$scratch/home" "$scratch/stick" >"$scratch/log" 2>&1 &
app=$!

# The main window: named as the splash, but wider.
main_window_shown() {
    for window in $(xdotool search --onlyvisible --name '^Tandry$' 2>/dev/null); do
        [ "$(xdotool getwindowgeometry --shell "$window" | sed -n 's/^WIDTH=//p')" -gt 360 ] && return 0
    done
    return 1
}
for i in $(seq 120); do main_window_shown && break; sleep 0.5; done
main_window_shown || { echo "No main window; the program said:"; cat "$scratch/log"; exit 1; }
status=0
for file in setting.ini category.dat cat.dat cty.dat name.dat data; do
    [ -e "$scratch/stick/$file" ] || { echo "$file was not made beside the program"; status=1; }
done
exit $status
