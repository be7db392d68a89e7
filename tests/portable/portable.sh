#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# What is shipped, as its user gets it: in a folder with spaces and Thai letters in its name, without
# fonts and settings of this machine. A visitor saves a ticket in the program there. Where nothing can
# be written, the program says so and ends. For Windows the tour is played there, too.
# Usage: portable.sh CMAKE BUILD [ZIP VERSION WINE TEST_LIBRARY TOUR PICTURES]

set -euo pipefail
cmake=$1 build=$2 zip=${3-}
place=$(mktemp -d)
trap 'chmod -R u+w "$place"; rm -rf "$place"' EXIT
folder="$place/โพย งวดนี้/mirakla desk"
book="$folder/data/ztkdata.ZDB"
printf '<fontconfig><cachedir>%s</cachedir></fontconfig>\n' "$place/cache" >"$place/fonts.conf"
variables=(FONTCONFIG_FILE="$place/fonts.conf" QT_QPA_GENERIC_PLUGINS=visitor
    QT_PLUGIN_PATH="$build/tests/portable/plugins" SDL_AUDIODRIVER=dummy)

# expect LINE...: compares the input with these lines.
expect() { diff --label expected <(printf '%s' "${@/%/$'\n'}") --label actual - >&2; }

install() { "$cmake" --install "$build" --prefix "$folder" >/dev/null; }

# visit STATUS BOX: starts the program; compares its exit status and what its boxes say.
visit()
{
    local status=0
    (cd "$place" && timeout 90 env "${variables[@]}" "${start[@]}" >seen 2>errors) || status=$?
    { echo "$status" && sed -n 's/^box: //p' "$place/seen"; } | tr -d '\r' | expect "$@" || { cat "$place/errors" && exit 1; }
}

if [[ -n $zip ]]; then
    source "${BASH_SOURCE[0]%/*}/../../packaging/windows/places.sh"
    export DESK_SHIPPED=yes DESK_WINEPREFIX=$place/windows WINEPREFIX=$place/windows
    trap 'wineserver -k || true; wineserver -w || true; chmod -R u+w "$place"; rm -rf "$place"' EXIT
    find "$zip" ! -size +40000k -newer "$build/mirakla-desk.exe" | expect "$zip"
    (cd "$place" && "$cmake" -E tar xf "$zip" && mkdir "${folder%/*}" && mv mirakla-* "$folder")
    start=("$5" "$folder/mirakla-desk.exe")
    "$target-windres" -i "${start[1]}" -J coff -O rc >"$place/resources"
    grep -oE 'ProductVersion", ".*"|Type: (group icon|24)$' "$place/resources" |
        sort | expect "ProductVersion\", \"$4\"" 'Type: 24' 'Type: group icon'
else
    install
    # As a desktop starts it. Once the backslashes of the file format are undone, Exec is quoted as a
    # shell quotes; %k is the path of the desktop file.
    # shellcheck disable=SC2016 # expanded by the shell that runs it
    exec_line=$(sed -n 's/^Exec=//p' "$folder/mirakla-desk.desktop" | sed 's/\\\\/\\/g; s/%k/"$0.desktop"/')
    start=(xvfb-run -a -s "-screen 0 1366x768x24" bash -c "$exec_line" "$folder/mirakla-desk")
    # Root ignores permissions, unless it gives that up.
    ((EUID != 0)) || start=(setpriv --bounding-set -dac_override --inh-caps -dac_override "${start[@]}")
    variables=(-i PATH="$PATH" HOME="$place" TMPDIR="$place" LC_ALL=C.UTF-8 "${variables[@]}")
    ls "$folder"/{LICENSE.txt,licenses/{libqt6core6*,LGPL-3,fonts-noto-core}.txt} >/dev/null
    find "$folder" '(' -type l -o -name '*.desktop' ! -perm -u+x ')' | expect # not every stick can hold links
fi

visit 0 'คุณแน่ใจว่าต้องการเพิ่มข้อมูล ตัวเลข เหล่านี้ ลงฐานข้อมูล ? . . .' \
    'คุณแน่ใจว่าต้องการจบการทำงานของโปรแกรม ?'
sqlcipher "$book" "PRAGMA key = '639417'; PRAGMA cipher_compatibility = 3;
    SELECT NameFK, num23, updown, numType, numValue, numBuy FROM tblNumber;" | tail -n 1 | expect '0|3|-1|1|123|100'
find "$folder/data" -name '*ZDB*' -printf '%f\n' | expect ztkdata.ZDB
pdffonts "$place/paper.pdf" | grep -c 'NotoSans.*Identity-H *yes' | expect 2
# Of the files in use, whatever the folder has must come from there, and Qt from nowhere else.
[[ -n $zip ]] || sed -nE "s#^[^/]*/#/#; \#^$folder/#d; \#/(lib[qQ].*$(find "$folder/lib" -printf '|%f')|.*\.ttf)\$#p" \
    "$place/seen" | expect

cp "$book" "$place/before"
[[ -n $zip ]] || install
for closed in "$folder/data" "$book"; do
    chmod a-w "$closed"
    visit 1 'เชื่อมต่อฐานข้อมูลไม่ได้ : attempt to write a readonly database'
    cmp "$book" "$place/before"
done

if [[ -n $zip ]]; then
    chmod -R u+w "$folder"
    cp "$build/test_script.exe" "$6" "$folder/"
    rm -rf "$8"
    mkdir -p "$8"
    DESK_PICTURES=Z:$8 "$5" "$folder/test_script.exe" "Z:$7"
    ls "$8"/* >/dev/null
fi
