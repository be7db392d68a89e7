#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# What is shipped for Windows, as its user gets it: unpacked into a folder with
# blanks and Thai letters in its name, in a Windows that has never seen it and
# has no type of this machine. A visitor keys and saves a ticket, then the tour
# plays its draws there and leaves pictures.
# Usage: shipped.sh CMAKE ZIP WINE BUILD TEST_LIBRARY PICTURES

set -euo pipefail
cmake=$1 zip=$2 wine=$3 build=$4 test_library=$5 pictures=$6
place=$(mktemp -d)
export WINEPREFIX=$place/windows DESK_SHIPPED=yes
trap 'wineserver -k || true; wineserver -w || true; rm -rf "$place"' EXIT

fail()
{
    echo "shipped: $*" >&2
    exit 1
}

printf '<fontconfig><cachedir>%s</cachedir></fontconfig>\n' "$place/cache" >"$place/fonts.conf"
export FONTCONFIG_FILE=$place/fonts.conf

megabytes=$(($(stat -c %s "$zip") / 1000000))
((megabytes <= 40)) || fail "the zip has $megabytes MB"
mkdir "$place/โพย งวดนี้"
cd "$place/โพย งวดนี้"
"$cmake" -E tar xf "$zip"
folder=$(echo "$PWD"/mirakla*)
book=$folder/data/ztkdata.ZDB

QT_PLUGIN_PATH="$build/tests/portable/plugins" QT_QPA_GENERIC_PLUGINS=visitor \
    timeout 90 "$wine" "$folder/mirakla-desk.exe" >"$place/seen" 2>"$place/errors" ||
    fail "the program ended with status $?: $(cat "$place/seen" "$place/errors")"
rows=$(sqlcipher "$book" "PRAGMA key = '639417'; PRAGMA cipher_compatibility = 3;
    SELECT NameFK, num23, updown, numType, numValue, numBuy FROM tblNumber;" | tail -n 1)
[[ $rows == '0|3|-1|1|123|100' ]] || fail "the ticket stands in the book as: $rows"
[[ ! -e $book-wal ]] || fail "the book was not closed"
grep -q '^type: Noto Sans, Noto Sans Thai' "$place/seen" || fail "$(grep ^type: "$place/seen")"
pdffonts paper.pdf | grep -q 'Thai.*yes' || fail "Thai is not printed"

cp "$build/tour.exe" "$test_library" "$folder/"
rm -rf "$pictures"
"$wine" "$folder/tour.exe" --pictures "Z:$pictures"
[[ -n $(ls "$pictures") ]] || fail "the tour left no pictures"
