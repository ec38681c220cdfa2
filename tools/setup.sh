#!/bin/bash
# Makes a Debian 12 machine able to build, test and show the program: installs the packages it lacks, and only those.
#
#     tools/setup.sh [--check | --package]      # also what the continuous checks or the Debian package need
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config
    libx11-dev libxt-dev libxaw7-dev                          # the program
    libgtest-dev libgmock-dev                                 # its tests
    libxtst-dev libpng-dev libpugixml-dev                     # its scripted client
    libxres-dev                                               # its long runs
    xvfb openbox metacity locales xfonts-base                          # the displays and languages that they run with
    python3                                                   # the translators' tools
    libbenchmark-dev libexpat1-dev                            # its benchmarks
)
packaging=(dpkg-dev file)
case ${1-} in
    --check) packages+=(clang-format clang libclang-rt-14-dev "${packaging[@]}") ;;
    --package) packages+=("${packaging[@]}") ;;
esac

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Run this as root, or install sudo: ${missing[*]} must be installed." >&2; exit 1; }
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends "${missing[@]}"
