#!/usr/bin/env bash
# Brings translations/*.ts up to the texts of the sources. Texts that are gone are taken out; new ones
# come in unfinished, and the tests fail until somebody has translated them.
# With --check nothing is changed, and the script fails if something would be.
set -euo pipefail
cd "$(dirname "$0")/.."

target=translations
if [ "${1:-}" = --check ]; then
    target=$(mktemp -d)
    trap 'rm -rf "$target"' EXIT
    cp translations/*.ts "$target"
fi

# The texts of qt_*.ts stand in Qt's sources.
for file in "$target"/{libs,Tessarin}_*.ts; do
    case "$file" in
    */libs_*) folders=(libs) ;;
    *) folders=(app batch flow intake preview) ;;
    esac
    lupdate -silent -no-obsolete -locations none "${folders[@]}" -ts "$file" 2>/dev/null
done

if [ "$target" != translations ]; then
    diff -r translations "$target"
fi
