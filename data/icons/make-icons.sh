#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes every icon file from the drawings beside this script. The results are checked in: only
# who changes a drawing needs the tools (rsvg-convert of librsvg2-bin, icotool of icoutils).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
id=io.github.idrova.Idrova
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

png() { rsvg-convert --width "$2" --height "$2" --output "$3" "$1"; }

# ico DRAWING FILE: the sizes of a cell at one to three times its size on the screen.
ico() {
    local images=()
    for size in 16 32 48 64; do
        png "$1" "$size" "$work/$size.png"
        images+=("$work/$size.png")
    done
    icotool --create --output "$2" "${images[@]}"
}

# turned DEGREES: the pump, delivering to another side.
turned() {
    sed -e "s|<circle|<g transform=\"rotate($1 8 8)\"><circle|" -e 's|</svg>|</g></svg>|' pump.svg \
        >"$work/turned.svg"
    echo "$work/turned.svg"
}

mkdir -p ../IMG
ico pump.svg ../IMG/arrt.ico
ico "$(turned 90)" ../IMG/ardn.ico
ico "$(turned 180)" ../IMG/arlt.ico
ico "$(turned 270)" ../IMG/arup.ico
ico loss.svg ../IMG/PERC.ico

program=()
for size in 16 24 32 48 64 128 256; do
    small=
    [ "$size" -gt 32 ] || small=-small
    folder=hicolor/${size}x${size}
    mkdir -p "$folder/apps" "$folder/mimetypes"
    png "idrova$small.svg" "$size" "$folder/apps/$id.png"
    png "project$small.svg" "$size" "$folder/mimetypes/application-x-idrova.png"
    program+=("$folder/apps/$id.png")
done
icotool --create --output idrova.ico "${program[@]::6}" --raw "${program[6]}"
