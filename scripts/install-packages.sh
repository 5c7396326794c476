#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# scripts/install-packages.sh GROUP...
# Installs what is missing of the distribution's packages for these groups:
#   build  to build and run the programs
#   test   to run the tests as well
#   check  to run .ci/run: sanitizers, benchmarks, static checks, packages
# Does nothing, and needs no network, when all of them are there.
set -euo pipefail

packages_of() {
    case "$1" in
    build) echo cmake g++ ninja-build pkg-config qt6-base-dev qt6-svg-dev libqcustomplot-dev libxcb-ewmh-dev libcli11-dev libsuitesparse-dev nlohmann-json3-dev ;;
    test) echo libgmock-dev libgtest-dev appstream desktop-file-utils locales openbox shared-mime-info xauth xdotool xvfb ;;
    check) echo clang-format clang-tidy dpkg-dev file git libbenchmark-dev lintian shellcheck ;;
    *) echo "$0: no group of packages is called $1" >&2 && return 1 ;;
    esac
}

wanted=()
for group in "$@"; do
    packages=$(packages_of "$group")
    read -ra names <<<"$packages"
    wanted+=("${names[@]}")
done

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    {
        echo "This system has no apt. Install what these Debian packages hold, by the names"
        echo "that your distribution gives them, then use CMake directly (see README.md):"
        echo "  ${wanted[*]}"
    } >&2
    exit 1
fi

missing=()
for package in "${wanted[@]}"; do
    state=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$state" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "As root, install: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q "$@" ||
        { echo "apt-get $1 failed; these packages are needed: ${missing[*]}" >&2 && return 1; }
}

echo "Installing from the distribution's packages: ${missing[*]}"
apt update
apt install -y --no-install-recommends "${missing[@]}"
