#!/usr/bin/env bash
# Compiles for Windows what can be without the toolkit: the calls of its shell, the pixel kernels, the
# heap's policy, and the program's icon and version.
set -euo pipefail
cd "$(dirname "$0")/.."

[ "${TESSARIN_NO_INSTALL:-0}" = 1 ] || scripts/install-dependencies.sh windows
cmake --preset release >/dev/null
built=$(mktemp -d)
trap 'rm -rf "$built"' EXIT

for source in libs/cpp/QMWidgets/platform/*Windows.cpp libs/cpp/MGraphX/HeapPolicy.cpp \
    libs/cpp/MGraphX/kernels/*.cpp; do
    x86_64-w64-mingw32-g++ -std=c++17 -O3 -ffp-contract=off -fno-math-errno -DUNICODE -D_UNICODE \
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror \
        -c "$source" -o "$built/$(basename "$source" .cpp).o"
done

packaging/icons.py "$built/tessarin.ico"
x86_64-w64-mingw32-windres --include-dir "$built" build/release/packaging/windows/tessarin.rc \
    "$built/resources.o"

# They make a program: nothing of what the files call is missing on Windows.
echo 'int main() { return 0; }' >"$built/main.cpp"
x86_64-w64-mingw32-g++ -mwindows "$built/main.cpp" "$built"/*.o -o "$built/Tessarin.exe"
echo "check-windows: $(find "$built" -name '*.o' | wc -l) files compile and link for Windows"
