# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What ./run windows and ./test windows share. Source this after prepare.sh.

windows_build=build/windows
windows_name=mirakla-desk-$(sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)-windows
windows_zip=build/$windows_name.zip

# build_windows: builds everything for Windows, the libraries first if they are
# missing, and the programs of the Linux build that the tests use.
build_windows()
{
    local prefix
    install_missing build screen test windows
    prefix=$(packaging/windows/dependencies.sh) || die "the libraries for Windows could not be built"
    build test keeper make-empty-ledger
    # CMake caches the paths of libraries, so other libraries need a new build folder.
    grep -qsF "=$prefix" "$windows_build/CMakeCache.txt" || rm -rf "$windows_build"
    DESK_SYSROOT=$prefix DESK_WINDOWS_ZIP=$PWD/$windows_zip \
        DESK_HOST_CMAKE=/usr/lib/$(gcc -print-multiarch)/cmake cmake --preset windows ||
        die "the Windows build could not be configured"
    cmake --build --preset windows --parallel "$(nproc)" || die "the Windows build failed"
}

# pack_windows: lays out the folder that is shipped and packs it. Only the archive is kept: someone
# might use a folder left here, and the next build would delete its book.
pack_windows()
{
    local place=$windows_build/packing
    rm -rf "$place"
    mkdir "$place"
    packaging/windows/folder.sh "$windows_build" "$place/$windows_name" ||
        die "the folder for Windows could not be made"
    rm -f "$windows_zip"
    # Thai file names need a UTF-8 locale.
    (cd "$place" && LC_ALL=C.UTF-8 cmake -E tar cf "$OLDPWD/$windows_zip" --format=zip "$windows_name") ||
        die "the folder could not be packed"
    rm -rf "$place"
    echo "The program for Windows: $windows_zip, $(($(stat -c %s "$windows_zip") / 1000000)) MB"
}
