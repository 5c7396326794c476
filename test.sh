#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# test.sh [OPTION...]
# Builds Idrova and runs all of its tests; the options go to ctest.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/install-packages.sh build test
cmake --preset release -DBUILD_TESTING=ON
cmake --build --preset release
ctest --preset release --parallel "$(nproc)" "$@"
