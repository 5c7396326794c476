#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# first_start.sh PREFIX: the program installed below PREFIX is started by a user who never did. It
# has to make the folder it works in, and still to run when the splash window has gone.
set -euo pipefail
account=$1/account
rm -rf "$account"
mkdir -p "$account"
export HOME=$account XDG_DATA_HOME=$account/data QT_QPA_PLATFORM=offscreen
cd "$account"

"$1/bin/idrova" &
program=$!
trap 'kill "$program" 2>/dev/null || true' EXIT

made=$XDG_DATA_HOME/idrova
for ((tenths = 0; tenths < 300; ++tenths)); do
    [ -e "$made/IMG/PERC.ico" ] && break
    sleep 0.1
done
cmp "$made/fluidi.dat" "$1/share/idrova/fluidi.dat"
cmp "$made/pompe.dat" "$1/share/idrova/pompe.dat"
cmp "$made/percon.dat" "$1/share/idrova/percon.dat"
sleep 5
kill -0 "$program"
