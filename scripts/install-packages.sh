#!/usr/bin/env bash
# Installs the Debian packages that building needs, when any is missing. With "test" also those for testing, with
# "lint" those and the linter, with "coverage" those and what tells of branches, with "package" those for making and
# testing the packages of packaging/.
set -euo pipefail

# Building and running a station.
packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-l10n-tools qt6-svg-dev libgl-dev libxcb1-dev
    libsndfile1-dev libpulse-dev libhidapi-dev libcups2-dev
    fonts-dejavu-core qt6-translations-l10n
)
# Checking what lands: formatting, windows under a real window manager, sound, printing.
test_packages=(
    git ccache clang-format python3 libgtest-dev libbenchmark-dev
    xvfb openbox xdotool x11-utils wmctrl trayer imagemagick dbus-daemon
    pulseaudio pulseaudio-utils cups cups-client
)
# Looking for mistakes that the compiler does not see.
lint_packages=(clang-tidy)
# Telling which branches the tests take.
coverage_packages=(clang-14 llvm-14 libclang-rt-14-dev)
# Making the packages, looking at what they hold, installing them in a bare Debian.
package_packages=(
    dpkg-dev file binutils
    desktop-file-utils appstream lintian man-db groff mandoc debootstrap
)
case "${1:-}" in
    test) packages+=("${test_packages[@]}") ;;
    lint) packages+=("${test_packages[@]}" "${lint_packages[@]}") ;;
    coverage) packages+=("${test_packages[@]}" "${coverage_packages[@]}") ;;
    package) packages+=("${package_packages[@]}") ;;
esac

missing=()
for package in "${packages[@]}"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

command -v apt-get >/dev/null || { echo "Missing: ${missing[*]}. Install them and start again." >&2; exit 1; }
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Missing: ${missing[*]}. Install them as root and start again." >&2; exit 1; }
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
