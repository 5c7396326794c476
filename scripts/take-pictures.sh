#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the pictures of docs/pictures anew from the program's own windows; needs no display.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
cmake --preset release
cmake --build --preset release --target take_pictures
QT_QPA_PLATFORM=offscreen:configfile=$PWD/tools/picture_screen.json \
    build/release/tools/take_pictures data docs/pictures
