#!/usr/bin/env bash
# Installs what is missing to build and run Tessarin. Asks nothing; uses sudo only where it has to.
# Arguments: names of further sets, of "format" (the formatter), "clang" (a second compiler, with what
# it needs for sanitizers and fuzzing), "bench" (the benchmark library), "memcheck" (valgrind), "deb" (to
# make a Debian package), and what the checks of their name need: "desktop", "package" and "windows".
set -euo pipefail

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

install_debian() {
    local packages=(cmake ninja-build g++ qtbase5-dev qttools5-dev qttools5-dev-tools
        qttranslations5-l10n qt5-image-formats-plugins fonts-dejavu-core)
    local set
    for set in "$@"; do
        case "$set" in
        format) packages+=(clang-format-14) ;;
        clang) packages+=(clang-14 libclang-rt-14-dev) ;;
        bench) packages+=(libbenchmark-dev) ;;
        memcheck) packages+=(valgrind libc6-dbg) ;;
        desktop) packages+=(appstream desktop-file-utils file libglib2.0-bin libxml2-utils mandoc
            shared-mime-info) ;;
        deb) packages+=(dpkg-dev file) ;;
        package) packages+=(openbox wmctrl x11-utils xdotool xvfb) ;;
        windows) packages+=(g++-mingw-w64-x86-64-posix python3) ;;
        esac
    done
    local missing=() package
    for package in "${packages[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

installed() {
    command -v "$1" >/dev/null 2>&1
}

if installed apt-get; then
    install_debian "$@"
elif installed dnf; then
    as_root dnf install -y cmake ninja-build gcc-c++ qt5-qtbase-devel qt5-linguist \
        qt5-qttools-devel qt5-qtimageformats qt5-qttranslations dejavu-sans-fonts
elif installed pacman; then
    as_root pacman -S --needed --noconfirm cmake ninja gcc qt5-base qt5-tools qt5-imageformats \
        qt5-translations ttf-dejavu
elif installed zypper; then
    as_root zypper --non-interactive install cmake ninja gcc-c++ libqt5-qtbase-devel \
        libqt5-qttools-devel libqt5-linguist-devel libqt5-qttranslations \
        libqt5-qtimageformats dejavu-fonts
elif installed brew; then
    brew install cmake ninja qt@5
else
    cat >&2 <<'MESSAGE'
No package manager that this script knows (apt-get, dnf, pacman, zypper, brew) is on this machine.
Tessarin needs: CMake 3.24 or newer, Ninja, a C++17 compiler, and Qt 5.15 with its development
files, its Linguist tools and its image format plug-ins. Install them, then call this again with
TESSARIN_NO_INSTALL=1 set.
MESSAGE
    exit 1
fi
