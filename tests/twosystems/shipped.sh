#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# What is shipped for Windows, as its user gets it: unpacked into a folder with
# blanks and Thai letters in its name, in a Windows that has never seen it and
# has no type of this machine. A visitor keys and saves a ticket, then the tour
# plays its draws there and leaves pictures. Where nothing can be written the
# program says so and ends.
# Usage: shipped.sh CMAKE ZIP VERSION WINE BUILD TEST_LIBRARY TOUR PICTURES

set -euo pipefail
cmake=$1 zip=$2 version=$3 wine=$4 build=$5 test_library=$6 tour=$7 pictures=$8
source "${BASH_SOURCE[0]%/*}/../../packaging/windows/places.sh"
place=$(mktemp -d)
export DESK_WINEPREFIX=$place/windows WINEPREFIX=$place/windows DESK_SHIPPED=yes
trap 'wineserver -k || true; wineserver -w || true; rm -rf "$place"' EXIT

fail()
{
    echo "shipped: $*" >&2
    exit 1
}

printf '<fontconfig><cachedir>%s</cachedir></fontconfig>\n' "$place/cache" >"$place/fonts.conf"
export FONTCONFIG_FILE=$place/fonts.conf

[[ ! $zip -ot $build/mirakla-desk.exe ]] ||
    fail "the zip is older than the program; ./test windows packs it anew"
megabytes=$(($(stat -c %s "$zip") / 1000000))
((megabytes <= 40)) || fail "the zip has $megabytes MB"
mkdir "$place/โพย งวดนี้"
cd "$place/โพย งวดนี้"
"$cmake" -E tar xf "$zip"
folder=$(echo "$PWD"/mirakla*)
book=$folder/data/ztkdata.ZDB

for file in LICENSE.txt คู่มือ.html fonts/NotoSansThai-Regular.ttf \
    licenses/{qt6-base,sqlcipher,openssl,libsdl2,libsdl2-mixer,compiler-runtime,mingw-w64}.txt \
    licenses/{fonts-noto-core,Apache-2.0,LGPL-3,GPL-1,GPL-3,GFDL-1.2,PACKAGES}.txt \
    licenses/libraries/{prepare.sh,windows/{dependencies.sh,places.sh,toolchain.cmake}}; do
    [[ -s $folder/$file ]] || fail "$file is missing"
done
"$target-windres" -i "$folder/mirakla-desk.exe" -J coff -O rc >"$place/resources"
for resource in "VALUE \"ProductVersion\", \"$version\"" 'Type: group icon' 'Type: 24'; do
    grep -qF "$resource" "$place/resources" || fail "the program has no $resource"
done

# Starts the program, and leaves a visitor's words in $place/seen.
visit()
{
    QT_PLUGIN_PATH="$build/tests/portable/plugins" QT_QPA_GENERIC_PLUGINS=visitor \
        timeout 90 "$wine" "$folder/mirakla-desk.exe" >"$place/seen" 2>"$place/errors"
}

visit ||
    fail "the program ended with status $?: $(cat "$place/seen" "$place/errors")"
rows=$(sqlcipher "$book" "PRAGMA key = '639417'; PRAGMA cipher_compatibility = 3;
    SELECT NameFK, num23, updown, numType, numValue, numBuy FROM tblNumber;" | tail -n 1)
[[ $rows == '0|3|-1|1|123|100' ]] || fail "the ticket stands in the book as: $rows"
[[ ! -e $book-wal ]] || fail "the book was not closed"
grep -q '^font: Noto Sans, Noto Sans Thai' "$place/seen" || fail "$(grep ^font: "$place/seen")"
pdffonts paper.pdf | grep -q 'Thai.*yes' || fail "Thai is not printed"

cp "$book" "$place/before"
# closed [-R] FILE: starts it where FILE cannot be written.
closed()
{
    local status=0
    chmod a-w "$@"
    visit || status=$?
    chmod u+w "$@"
    [[ $status == 1 && $(sed -n 's/^box: //p' "$place/seen") == \
        'เชื่อมต่อฐานข้อมูลไม่ได้ : attempt to write a readonly database'* ]] ||
        fail "where nothing can be written: status $status, $(cat "$place/seen" "$place/errors")"
    cmp "$book" "$place/before" || fail "the book was touched where nothing can be written"
}
closed "$folder/data" # the book's rights alone would allow it
closed -R "$folder"

cp "$build/test_script.exe" "$test_library" "$folder/"
rm -rf "$pictures"
mkdir -p "$pictures"
DESK_PICTURES=Z:$pictures "$wine" "$folder/test_script.exe" "Z:$tour"
[[ -n $(ls "$pictures") ]] || fail "the tour left no pictures"
