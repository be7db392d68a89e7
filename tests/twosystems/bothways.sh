#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# One book, kept by turns under two systems: after each turn it has to hold what
# a model of all turns holds, and the other system has to read the same. Some
# turns end in a kill or begin with a wipe.
# Usage: bothways.sh NATIVE_KEEPER OTHER_KEEPER OTHER_MAKER RUN...
# RUN is the command, with its arguments, that runs a program of the other system.

set -euo pipefail
native_keeper=$1 keeper=$2 maker=$3
run=("${@:4}")
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
book="$place/สมุด งวดนี้"
mkdir -p "$book/data"

fail()
{
    echo "bothways: $*" >&2
    exit 1
}

native() { "$native_keeper" "$book" "$@"; }
other() { "${run[@]}" "$keeper" "$book" "$@"; }

"${run[@]}" "$maker" "$book/data/ztkdata.ZDB"
turns=
for turn in "native 1k" "other 2k" "native 3l" "other 4l" "native 5k" "other 6w" "native 7w" "other 8k"; do
    read -r system now <<<"$turn"
    "$system" "$turns" "$now" >"$place/kept" || fail "turn $turn failed"
    [[ $now != *l || -e $book/data/ztkdata.ZDB-wal ]] || fail "turn $turn: no WAL was left"
    turns+=$now,
    [[ $system == native ]] && reader=other || reader=native
    "$reader" "$turns" >"$place/read" || fail "turn $turn: the $reader system found something else"
    cmp "$place/kept" "$place/read" || fail "turn $turn: the $reader system read something else"
    [[ $(ls "$book/data") == ztkdata.ZDB ]] || fail "turn $turn: something stays beside the book"
done
echo "$turns $(stat -c %s "$place/read") bytes alike"
