#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Installs the portable folder where blanks and Thai letters are in the path, has a visitor key a
# ticket in the program that lies there, and starts it where nothing can be written.
#   portable.sh CMAKE BUILD VISITOR_PLUGINS

set -euo pipefail
cmake=$1 build=$2 plugins=$3

place=$(mktemp -d)
trap 'chmod -R u+w "$place"; rm -rf "$place"' EXIT
folder="$place/โพย งวดนี้/mirakla desk"
book="$folder/data/ztkdata.ZDB"

fail()
{
    printf 'portable: %s\n' "$*" >&2
    exit 1
}

lay_out()
{
    "$cmake" --install "$build" --prefix "$folder" >"$place/install.log" 2>&1 ||
        { cat "$place/install.log" >&2; fail "cmake --install failed"; }
}

# A machine that has no type of its own, and nothing of this one's settings.
printf '<fontconfig><cachedir>%s</cachedir></fontconfig>\n' "$place/cache" >"$place/fonts.conf"

# visit [COMMAND...]: starts the program below COMMAND, and leaves its words in $place/seen.
visit()
{
    (cd "$place" && env -i PATH="$PATH" HOME="$place" TMPDIR="$place" LC_ALL=C.UTF-8 \
        SDL_AUDIODRIVER=dummy FONTCONFIG_FILE="$place/fonts.conf" \
        QT_PLUGIN_PATH="$plugins" QT_QPA_GENERIC_PLUGINS=visitor \
        xvfb-run -a -s "-screen 0 1366x768x24" timeout 20 "$@" "$folder/mirakla-desk") \
        >"$place/seen" 2>"$place/errors"
}

# saw PREFIX: what the visitor told with that prefix.
saw()
{
    sed -n "s/^$1: //p" "$place/seen"
}

lay_out
# As a desktop starts it. Once the backslashes of the file format are undone, Exec is quoted as a
# shell quotes; %k is the path of the desktop file.
# shellcheck disable=SC2016 # expanded by the shell that runs it
exec_line=$(sed -n 's/^Exec=//p' "$folder/mirakla-desk.desktop" | sed 's/\\\\/\\/g; s/%k/"$0.desktop"/')
[[ -x $folder/mirakla-desk.desktop ]] || fail "the desktop file may not be started"
visit bash -c "$exec_line" || fail "the program ended with status $?: $(cat "$place/seen" "$place/errors")"

rows=$(sqlcipher "$book" "PRAGMA key = '639417'; PRAGMA cipher_compatibility = 3;
    SELECT NameFK, num23, updown, numType, numValue, numBuy FROM tblNumber;" | tail -n 1)
[[ $rows == '0|3|-1|1|123|100' ]] || fail "the ticket stands in the book as: $rows"
[[ ! -e $book-wal ]] || fail "the book was not closed"
[[ $(saw font) == 'Noto Sans, Noto Sans Thai' ]] || fail "Thai is drawn with: $(saw font)"
pdffonts "$place/paper.pdf" | grep -q 'NotoSansThai.*Identity-H *yes' || fail "Thai is not printed"

[[ $(saw icon) == 1 ]] || fail "the window has no icon"

# Whatever the folder carries has to come from there, and Qt from nowhere else.
grep -qF "file: $folder/plugins/platforms/libqxcb.so" "$place/seen" || fail "no window system"
while read -r file; do
    name=${file##*/}
    [[ $file == "$folder"/* || ! ( -e $folder/lib/$name || $name == libQt* || $name == *.ttf ) ]] ||
        fail "$file was taken from the machine"
done < <(saw file)
# Newer releases have t64 at the end of a library's package.
for text in "$folder"/{LICENSE.txt,licenses/{libqt6core6*,LGPL-3,fonts-noto-core}.txt}; do
    [[ -s $text ]] || fail "${text##*/} is missing"
done
[[ -z $(find "$folder" -type l) ]] || fail "a link, which not every stick can hold"

cp "$book" "$place/before"
lay_out
cmp "$book" "$place/before" || fail "installing anew touched the book"

# Root passes over rights, unless it is told not to.
plain=()
((EUID != 0)) || plain=(setpriv --bounding-set -dac_override --inh-caps -dac_override)
for closed in data .; do
    chmod -R a-w "$folder/$closed"
    status=0
    visit "${plain[@]}" || status=$?
    [[ $status == 1 && $(saw box) == 'เชื่อมต่อฐานข้อมูลไม่ได้ : attempt to write a readonly database' ]] ||
        fail "with '$closed' read-only: status $status, $(cat "$place/seen")"
    chmod -R u+w "$folder/$closed"
    cmp "$book" "$place/before" || fail "the book was touched where '$closed' is read-only"
done
