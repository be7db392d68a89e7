#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Lays out the folder that is shipped: folder.sh BUILD FOLDER. FOLDER must not
# exist, since it may contain a book. Copies the program, its data with an empty
# Ledger, the fonts, and each library that they need and that Windows does not
# have, with its license.

set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
source "$root/packaging/prepare.sh"
source "$root/packaging/windows/places.sh"
(($# == 2)) || die "usage: folder.sh BUILD FOLDER"
build=$1 folder=$2
[[ ! -e $folder ]] || die "$folder exists already"
mapfile -t places < <(echo "$prefix/bin" && runtime_places)
# Windows has the libraries that Wine reimplements, and the api-ms-win-* names.
windows_has=/usr/lib/$(gcc -print-multiarch)/wine/x86_64-windows

# Copies the libraries that a program or library needs, and those that they need.
add_libraries_of()
{
    local name place
    for name in $("$target-objdump" -p "$1" | sed -nE 's/^[[:space:]]*DLL Name: (.*)/\1/p'); do
        [[ ! -e $folder/$name && ! -e $windows_has/${name,,} && $name != api-ms-win-* ]] || continue
        for place in "${places[@]}"; do
            [[ -e $place/$name ]] && break
        done
        [[ -e $place/$name ]] || die "$1 needs $name, which was not found"
        cp "$place/$name" "$folder/"
        add_libraries_of "$folder/$name"
    done
}

mkdir -p "$folder"/{data,platforms,licenses}
cp "$build/mirakla-desk.exe" "$folder/"
cp "$prefix/plugins/platforms/qwindows.dll" "$folder/platforms/"
cp -r "$build/fonts" "$folder/"
# Not the data of the build, which may have been used.
cp -r "$root/data/." "$folder/data/"
"$root/packaging/windows/wine.sh" "$build/make-empty-ledger.exe" "$folder/data/ztkdata.ZDB"

for file in "$folder"/{*.exe,platforms/*}; do
    add_libraries_of "$file"
done
"$target-strip" "$folder"/*.{exe,dll} "$folder"/platforms/*.dll

cp "$root/LICENSE" "$folder/LICENSE.txt"
cp "$prefix/licenses/"* "$folder/licenses/"
cp /usr/share/doc/fonts-noto-core/copyright "$folder/licenses/fonts-noto-core.txt"
# A source of Qt is changed, so the scripts that build the libraries are passed on with them.
mkdir -p "$folder/licenses/libraries/windows"
cp "$root/packaging/prepare.sh" "$folder/licenses/libraries/"
cp "$windows"/{dependencies.sh,places.sh,toolchain.cmake} "$folder/licenses/libraries/windows/"
{
    printf '\nMade from those sources by libraries/windows/dependencies.sh.\n'
    printf '\nThe run time of the compiler and the fonts come from these packages of Debian:\n\n'
    dpkg-query -W -f='${Package} ${Version}\n' gcc-mingw-w64-x86-64-posix-runtime \
        mingw-w64-x86-64-dev fonts-noto-core
} >>"$folder/licenses/PACKAGES.txt"
# Debian's copies of licenses, to which the files above refer.
grep -ohE '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$folder"/licenses/*.txt | sort -u |
    while read -r text; do
        cp "$text" "$folder/licenses/${text##*/}.txt"
    done
cp -r "$root/packaging/guide/." "$folder/"
