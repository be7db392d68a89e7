#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# One book, kept by turns under both systems: what one has keyed the other reads
# to the letter, also where the one before it was killed. In the end it has to
# hold what a book has that was kept under one system alone.
# Usage: bothways.sh NATIVE_FOLDER WINE COMMAND_FOLDER

set -euo pipefail
here=$1 wine=$2 there=$3
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
mixed="$place/สมุด งวดนี้"
alone=$place/alone
mkdir -p "$mixed/data" "$alone/data"

fail()
{
    echo "bothways: $*" >&2
    exit 1
}

native() { "$here/keeper" "$@"; }
other() { "$wine" "$there/keeper.exe" "$@"; }

"$wine" "$there/make-empty-ledger.exe" "$mixed/data/ztkdata.ZDB"
"$here/make-empty-ledger" "$alone/data/ztkdata.ZDB"

seed=0
for turn in native other "native leave" "other leave" native other; do
    read -r system manner <<<"$turn"
    seed=$((seed + 1))
    native "$alone" "$seed" >"$place/expected"
    "$system" "$mixed" "$seed" ${manner:+"$manner"} >"$place/keyed"
    cmp "$place/expected" "$place/keyed" || fail "turn $seed, $turn: keyed something else"
    [[ -z $manner || -e $mixed/data/ztkdata.ZDB-wal ]] || fail "turn $seed, $turn: no journal was left"
    [[ $system == native ]] && reader=other || reader=native
    "$reader" "$mixed" 0 >"$place/read"
    cmp "$place/keyed" "$place/read" || fail "turn $seed, $turn: read otherwise by the $reader system"
    [[ $(ls "$mixed/data") == ztkdata.ZDB ]] || fail "turn $seed, $turn: something stays beside the book"
done
echo "$seed turns, $(stat -c %s "$place/read") bytes told alike"
