#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# One book, kept alternately under two systems: after each turn it has to hold what the model of all
# turns holds, and the other system has to read the same.
# Usage: bothways.sh NATIVE_KEEPER OTHER_KEEPER OTHER_MAKER RUN...
# RUN is the command, with its arguments, that runs a program of the other system.

set -euo pipefail
native=("$1") other=("${@:4}" "$2")
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
book="$place/สมุด งวดนี้"
mkdir -p "$book/data"
"${@:4}" "$3" "$book/data/ztkdata.ZDB"
for turn in {1..4}; do
    "${native[@]}" "$book" $((2 * turn - 2)) $((2 * turn - 1))
    "${other[@]}" "$book" $((2 * turn - 1)) $((2 * turn))
    "${native[@]}" "$book" $((2 * turn)) $((2 * turn))
done
"${other[@]}" "$book" 8 8
find "$book/data" -type f -printf '%f\n' | diff <(echo ztkdata.ZDB) -
