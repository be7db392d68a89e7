#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# One book, kept by turns under two systems: what one has keyed the other reads
# without a difference, also where the one before it was killed or the book was
# wiped. In the end it has to hold what a book has that was kept under one
# system alone.
# Usage: bothways.sh NATIVE_FOLDER OTHER_KEEPER OTHER_MAKER RUN...
# RUN is the command, with its arguments, that runs a program of the other system.

set -euo pipefail
here=$1 keeper=$2 maker=$3
run=("${@:4}")
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
other() { "${run[@]}" "$keeper" "$@"; }

"${run[@]}" "$maker" "$mixed/data/ztkdata.ZDB"
"$here/make-empty-ledger" "$alone/data/ztkdata.ZDB"

seed=0
for turn in native other "native leave" "other leave" native "other wipe" "native wipe" other; do
    read -r system manner <<<"$turn"
    seed=$((seed + 1))
    native "$alone" "$seed" "${manner#leave}" >"$place/expected"
    "$system" "$mixed" "$seed" ${manner:+"$manner"} >"$place/keyed"
    cmp "$place/expected" "$place/keyed" || fail "turn $seed, $turn: keyed something else"
    [[ $manner != leave || -e $mixed/data/ztkdata.ZDB-wal ]] || fail "turn $seed, $turn: no WAL was left"
    [[ $system == native ]] && reader=other || reader=native
    "$reader" "$mixed" 0 >"$place/read"
    cmp "$place/keyed" "$place/read" || fail "turn $seed, $turn: read otherwise by the $reader system"
    [[ $(ls "$mixed/data") == ztkdata.ZDB ]] || fail "turn $seed, $turn: something stays beside the book"
done
echo "$seed turns, $(stat -c %s "$place/read") bytes alike"
