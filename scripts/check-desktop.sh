#!/usr/bin/env bash
# Checks what an installed Tessarin tells the desktop: its entry in menus, its page in software
# centres, its manual, its icons, and the type of flow files.
set -euo pipefail
cd "$(dirname "$0")/.."

[ "${TESSARIN_NO_INSTALL:-0}" = 1 ] || scripts/install-dependencies.sh desktop
cmake --preset release >/dev/null
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
cmake --install build/release --component desktop --prefix "$stage/usr" >/dev/null
share=$stage/usr/share

fail() {
    echo "check-desktop: $*" >&2
    exit 1
}

find "$share" -name '*.xml' -o -name '*.svg' | xargs xmllint --noout
entry=$(echo "$share"/applications/*.desktop)
desktop-file-validate "$entry"
appstreamcli validate-tree --no-net --no-color "$stage"
grep -q "<launchable type=\"desktop-id\">$(basename "$entry")<" "$share"/metainfo/*.xml ||
    fail "the software centre starts another entry than the one that is installed"
zcat -f "$share"/man/man1/tessarin.1* | mandoc -T lint -W warning

icons=0
for icon in "$share"/icons/hicolor/*/*/*.png; do
    size=$(basename "$(dirname "$(dirname "$icon")")")
    [[ "$(file -b "$icon")" == *" ${size%x*} x ${size#*x},"* ]] || fail "$icon is not of its size"
    icons=$((icons + 1))
done
[ $icons -gt 0 ] || fail "there are no icons"
named=$(sed -n 's/^Icon=//p' "$entry")
[ -e "$share/icons/hicolor/scalable/apps/$named.svg" ] || fail "there is no icon $named"

# Flow files are known by name, and by content where the name tells nothing; other XML is not taken.
XDG_DATA_HOME=$share update-mime-database "$share/mime"
type_of() {
    XDG_DATA_HOME=$share gio info -a standard::content-type "$1" |
        sed -n 's/.*standard::content-type: *//p'
}
expect_type() {
    local found
    found=$(type_of "$1")
    [ "$found" = "$2" ] || fail "$(basename "$1") is taken for $found, not for $2"
}
flow=application/x-tessarin-flow+xml
echo "nothing that tells" >"$stage/named.flow"
cp app/resources/sample.flow "$stage/unnamed"
{ echo '<?xml version="1.0"?>' && cat app/resources/sample.flow; } >"$stage/declared"
echo '<?xml version="1.0"?><Operations/>' >"$stage/other.xml"
expect_type "$stage/named.flow" $flow
expect_type "$stage/unnamed" $flow
expect_type "$stage/declared" $flow
expect_type "$stage/other.xml" application/xml
[ -e "$share/icons/hicolor/scalable/mimetypes/${flow/\//-}.svg" ] || fail "flow files have no icon"
echo "check-desktop: $icons icons, the entry, its description, the manual and the file type are right"
