#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# run.sh [PROJECT.iv]
# Builds Idrova and opens it; without a display, computes a sample and prints its report.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
programs=$root/build/release/bin

build() {
    cd "$root"
    scripts/install-packages.sh build
    # A tree that already builds the tests keeps them.
    local tests=()
    [ -e build/release/CMakeCache.txt ] || tests=(-DBUILD_TESTING=OFF)
    cmake --preset release "${tests[@]}"
    cmake --build --preset release
}

compute_a_sample() {
    local samples=("$root"/data/samples/*.iv)
    local results
    results=$(mktemp -d)
    # shellcheck disable=SC2064 # the folder's name is wanted as it is now
    trap "rm -rf '$results'" EXIT
    cp "$root"/data/*.dat "$results"
    echo "There is no display: idrova-calc computes ${samples[0]}"
    "$programs/idrova-calc" --data "$results" "${samples[0]}"
}

(build)
if [ -x "$programs/idrova" ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$programs/idrova" "$@"
fi
compute_a_sample
