#!/usr/bin/env bash
# Builds the Debian package and, as root, installs it, starts the installed program on a screen of its
# own, closes it, and removes the package again: nothing of it may stay behind.
set -euo pipefail
cd "$(dirname "$0")/.."

fail() {
    echo "check-package: $*" >&2
    exit 1
}

if ! command -v dpkg >/dev/null 2>&1; then
    echo "check-package: skipped, since this system knows no Debian packages"
    exit 0
fi
[ "${TESSARIN_NO_INSTALL:-0}" = 1 ] || scripts/install-dependencies.sh deb package
scripts/build.sh release >/dev/null
packages=build/release/packages
rm -rf "$packages"
cpack --config build/release/CPackConfig.cmake -G DEB -B "$packages" >/dev/null
package=$(echo "$packages"/tessarin_*.deb)

needs() {
    dpkg-deb -f "$package" "$1" | tr ',' '\n' | grep -Eq "^ *$2( |$)" ||
        fail "$(basename "$package") has no $2 in \"$1\""
}
needs Depends libqt5widgets5
needs Depends qt5-image-formats-plugins
needs Recommends kimageformat-plugins
needs Section graphics
dpkg-deb --fsys-tarfile "$package" |
    tar -xO --wildcards '*/tessarin/Tessarin' >"$packages/Tessarin" ||
    fail "there is no program in $(basename "$package")"
scripts/check-hardening.sh "$packages/Tessarin"
diff <(cd Resources && find . -type f ! -name .gitkeep | sort) \
    <(dpkg-deb -c "$package" | sed -n 's|.*[^/] \./usr/share/tessarin/Resources/\(.*[^/]\)$|./\1|p' |
        sort) || fail "the package's \"Resources\" are not the project's"

if [ "$(id -u)" -ne 0 ]; then
    echo "check-package: built $package; only root can install it, so the rest is skipped"
    exit 0
fi
if dpkg-query -W tessarin >/dev/null 2>&1; then
    fail "there is a package \"tessarin\" on this system already: remove it first"
fi

room=$(mktemp -d)
screen= program=
clean_up() {
    for process in $program $screen; do
        kill "$process" 2>/dev/null || true
    done
    dpkg --purge tessarin >/dev/null 2>&1 || true
    rm -rf "$room"
}
trap clean_up EXIT
traces() {
    find /etc /opt /usr /var -xdev -iname '*tessarin*' ! -path "$PWD/*" ! -path '/var/log/*' | sort
}
traces >"$room/before"

DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "./$package" \
    >"$room/install.log" 2>&1 || { cat "$room/install.log" && fail "the package can't be installed"; }

# A home of its own, a folder to start from that the program knows nothing of, a screen with one pixel
# for each of the program's, and a window manager, which closes a window as a user does.
mkdir -m 700 "$room/home"
on_screen() { # for the background: it turns into the program
    cd "$room/home"
    exec env -i HOME="$room/home" XDG_RUNTIME_DIR="$room/home" PATH="$PATH" DISPLAY="$DISPLAY" "$@"
}
await() {
    local _
    for _ in $(seq 300); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.2
    done
    return 1
}
Xvfb -displayfd 3 -screen 0 1280x1024x24 -dpi 96 -noreset 3>"$room/display" 2>/dev/null &
screen=$!
await test -s "$room/display" || fail "there is no virtual screen"
DISPLAY=:$(cat "$room/display")
export DISPLAY
on_screen openbox >/dev/null 2>&1 &
# A window that opens while the manager takes over may get lost.
await sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"' ||
    fail "there is no window manager"
on_screen tessarin "$room/some photo.jpeg" >"$room/program.log" 2>&1 &
program=$!
find_window() {
    window=$(xdotool search --onlyvisible --name '^Tessarin$') && [ -n "$window" ]
}
await find_window || {
    cat "$room/program.log"
    xwininfo -root -tree
    fail "no window of the program appeared"
}
size=$(xwininfo -id "$window" | sed -n 's/^ *\(Width\|Height\): //p' | paste -sd x)
[ "$size" = 400x400 ] || fail "the window measures $size"
xprop -id "$window" WM_CLASS | grep -q '"Tessarin"$' ||
    fail "desktops can't tell that the window belongs to the menu's entry"
[ "$(readlink "/proc/$program/cwd")" = /usr/share/tessarin ] ||
    fail "the program does not run where its \"Resources\" are"

is_over() {
    ! kill -0 "$program" || { wmctrl -i -c "$window" && false; }
}
await is_over || fail "the program does not end when its window is closed"
wait "$program" || fail "the program ended with exit code $?"
program=

dpkg --purge tessarin >/dev/null
traces | diff "$room/before" - || fail "files stay behind when the package is removed"
echo "check-package: $(basename "$package") is installed, started, closed and removed well"
