#!/usr/bin/env bash
# Looks whether what the documents name is there: the targets and headings of their links, the
# project's own files in backticks, scripts, and presets.
set -euo pipefail
cd "$(dirname "$0")/.."

failed=0
tell() {
    echo "check-docs: $*" >&2
    failed=1
}

# All matches of a pattern in a document, or nothing.
found_in() {
    grep -oE -e "$2" "$1" || true
}

# The anchors that a document's headings get.
anchors() {
    sed -n 's/^##* //p' "$1" | tr '[:upper:]' '[:lower:]' | sed 's/[^a-z0-9 _-]//g; s/ /-/g'
}

check_link() {
    local document=$1 link=$2
    local path=${link%%#*} anchor=
    [ "$path" = "$link" ] || anchor=${link#*#}
    local target=$document
    [ -z "$path" ] || target=$(dirname "$document")/$path
    if [ ! -e "$target" ]; then
        tell "$document: no $link"
    elif [ -n "$anchor" ] && ! anchors "$target" | grep -qxF -e "$anchor"; then
        tell "$document: no heading for $link"
    fi
}

folders=$(git ls-files | sed -n 's|/.*||p' | sort -u)
presets=$(sed -n 's/.*"name": "\([^"]*\)".*/\1/p' CMakePresets.json)
links=0
for document in $(git ls-files --cached --others --exclude-standard '*.md'); do
    while IFS= read -r link; do
        [[ "$link" =~ ^[a-z]+: ]] || check_link "$document" "$link"
        links=$((links + 1))
    done < <(found_in "$document" '\]\([^)]+\)|src="[^"]+"' | sed 's/^](//; s/)$//; s/^src="//; s/"$//')

    while IFS= read -r path; do
        if grep -qxF -e "${path%%/*}" <<<"$folders" && [ ! -e "$path" ]; then
            tell "$document: no $path"
        fi
    done < <(found_in "$document" '`[A-Za-z0-9_.@-]+/[A-Za-z0-9_./@-]*`' | tr -d '`')

    while IFS= read -r script; do
        [ -x "$script" ] || tell "$document: no script $script"
    done < <(found_in "$document" 'scripts/[a-z-]+\.sh')

    while IFS= read -r preset; do
        grep -qxF -e "$preset" <<<"$presets" || tell "$document: no preset $preset"
    done < <(found_in "$document" '(--preset|scripts/(build|test)\.sh) [a-z][a-z-]*' | sed 's/.* //')
done
[ $links -gt 0 ] || tell "no links found"
[ $failed = 0 ] && echo "check-docs: all well, $links links"
exit $failed
