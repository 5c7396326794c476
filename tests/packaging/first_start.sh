#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# first_start.sh PREFIX [EDITOR]: on a display, a user who never started the program installed below
# PREFIX opens a sample with it and has it computed by its key. It has to make the folder that it
# works in, and to write the results that idrova-calc gets, but for what the start values leave open.
# Then it shows them in EDITOR, whose window is to fill the screen and to have the focus.
set -euo pipefail
account=$1/account
sample=$1/share/idrova/samples/ring-main.iv
rm -rf "$account"
mkdir -p "$account/batch"
export HOME=$account XDG_DATA_HOME=$account/data QT_QPA_PLATFORM=xcb
cd "$account"

# The display may not take its first client yet.
(for ((tries = 0; tries < 50; ++tries)); do
    openbox && break
    sleep 0.2
done) &
manager=$!
"$1/bin/idrova" "$sample" &
program=$!
trap 'kill "$program" "$manager" 2>/dev/null || true' EXIT

made=$XDG_DATA_HOME/idrova
# press KEY FILE: presses the key in the main window, again every second, until the file is there.
# A search that meets a window just being closed, as the splash is, fails.
press() {
    local window
    for ((seconds = 0; seconds < 60; ++seconds)); do
        window=$(xdotool search --onlyvisible --name 'ring-main\.iv' 2>/dev/null | head -n 1) || true
        [ -z "$window" ] || timeout 5 xdotool windowactivate --sync "$window" key "$1" || true
        for ((tenths = 0; tenths < 10; ++tenths)); do
            if [ -s "$2" ]; then return; fi
            sleep 0.1
        done
    done
    return 1
}

press F5 "$made/out.dat"
for database in fluidi pompe percon; do
    cmp "$made/$database.dat" "$1/share/idrova/$database.dat"
done

cp "$1"/share/idrova/*.dat batch
"$1/bin/idrova-calc" --data batch "$sample" >batch/printed
cmp batch/printed batch/out.dat
# The heading holds the time; numbers may differ by what an iteration leaves open.
paste -d '\n' <(tail -n +3 "$made/out.dat") <(tail -n +3 batch/out.dat) | awk '
    NR % 2 { split($0, ours); fields = NF; lines++; next }
    NF != fields { print "fields: " $0; bad = 1 }
    {
        for (i = 1; i <= NF; ++i) {
            if ($i == ours[i]) continue
            gap = $i - ours[i]; size = $i < 0 ? -$i : $i
            if (gap < 0) gap = -gap
            if ($i + 0 == 0 || gap > 0.001 * size + 0.01) { print ours[i] " in: " $0; bad = 1 }
        }
    }
    END { exit bad || lines < 100 }'

kill -0 "$program"
[ -n "${2-}" ] || exit 0
printf '%s\n' "$2" >"$made/IV.CFG"
press F6 "$made/out.dat.in-front"
kill -0 "$program"
