#!/bin/bash
# Makes a Debian 12 machine able to build, test and show the program: installs the packages it lacks, and only those.
#
#     tools/setup.sh               # what building and testing need
#     tools/setup.sh --demo        # only what the demonstration needs
#     tools/setup.sh --package     # only what the Debian package needs
#     tools/setup.sh --check       # also what the continuous checks need
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config
    libx11-dev libxt-dev libxaw7-dev                          # the program
)
playing=(
    libxtst-dev libpng-dev libpugixml-dev                     # the scripted client
    xvfb openbox locales xfonts-base                          # the displays and languages that it plays with
)
testing=(
    libgtest-dev libgmock-dev                                 # the tests
    metacity                                                  # another window manager that they run with
    libxres-dev                                               # the long runs
    python3                                                   # the translators' tools, the example of a client
    libbenchmark-dev libexpat1-dev                            # the benchmarks
)
packaging=(dpkg-dev file)
case ${1-} in
    --demo) packages+=("${playing[@]}") ;;
    --package) packages+=("${packaging[@]}") ;;
    --check) packages+=("${playing[@]}" "${testing[@]}" "${packaging[@]}" clang-format clang libclang-rt-14-dev) ;;
    *) packages+=("${playing[@]}" "${testing[@]}") ;;
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
