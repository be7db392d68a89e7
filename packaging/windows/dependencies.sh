#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds for Windows what the program stands on, from Debian's source packages:
# Qt, SQLCipher with OpenSSL's cipher inside, SDL2 and SDL2_mixer with its own
# MP3 decoder. Prints the folder that holds them as its last line; places.sh
# tells how it is named. It is kept.

set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/../prepare.sh"
source "$here/places.sh"

# One source package a line, and the version that is built. They are of one
# release of Debian; Qt has to be of the version whose tools the machine has.
pins='
qt6-base      6.4.2+dfsg-10
sqlcipher     3.4.1-2
openssl       3.0.20-1~deb12u2
libsdl2       2.26.5+dfsg-1
libsdl2-mixer 2.6.2+dfsg-2
'

case "$#:${1-}" in
    0:) ;;
    1:--where)
        echo "$prefix"
        exit 0
        ;;
    *) die "usage: dependencies.sh [--where]" ;;
esac

# Two runs at the same time would write the same files: the second waits for the first.
mkdir -p "${prefix%/*}"
exec 9>"$prefix.lock"
flock --nonblock 9 || { echo "Waiting for the run that builds the libraries for Windows" >&2 && flock 9; }

if [[ -e $prefix/complete ]]; then
    echo "$prefix"
    exit 0
fi

work=$prefix.work
mkdir -p "$prefix" "$work"/{lists/partial,archives/partial,src,log}

# timed STEP: runs the function of that name and tells how long it took. What it
# prints goes to a file; a failure shows the end of it.
timed()
{
    local begin=$SECONDS status=0
    # In the background, since the shell would go on behind an error in the first part of an "or".
    ("$1") >"$work/log/$1" 2>&1 &
    wait $! || status=$?
    if ((status != 0)); then
        tail -n 30 "$work/log/$1" >&2
        die "$1 failed; all it said is in $work/log/$1"
    fi
    printf '%-16s %4d s\n' "$1" $((SECONDS - begin)) >&2
}

# The archive that the machine installs from also has the sources. They are asked
# for through a list of our own, so that nothing of the machine is changed.
source_list()
{
    local file
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.{list,sources}; do
        [[ -f $file ]] || continue
        case $file in
            *.sources) sed -E 's/^Types:.*/Types: deb-src/' "$file" >>"$work/debian.sources" && echo >>"$work/debian.sources" ;;
            *) sed -nE 's/^deb(-src)?([[:space:]])/deb-src\2/p' "$file" >>"$work/debian.list" ;;
        esac
    done
}

fetch()
{
    local package version file
    local -a wanted=() settings=(-o Dir::Etc::sourceparts="$work/parts" -o Dir::Etc::sourcelist=/dev/null
        -o Dir::State::lists="$work/lists" -o Dir::Cache::archives="$work/archives"
        -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= -o APT::Sandbox::User=)
    rm -rf "$work"/{parts,debian.*}
    source_list
    mkdir "$work/parts"
    for file in "$work"/debian.*; do
        mv "$file" "$work/parts/"
    done
    apt-get "${settings[@]}" update -q
    while read -r package version; do
        [[ -z $package ]] || wanted+=("$package=$version")
    done <<<"$pins"
    cd "$work/src"
    # A version that has left the archive is an error on purpose: the pin has to be moved by hand.
    apt-get "${settings[@]}" source -q --only-source "${wanted[@]}"
}

# The folder of an unpacked source package.
source_of()
{
    echo "$work/src/$1"-[0-9]*/
}

# cmake_build NAME SOURCE OPTION...: configures, builds and installs with CMake.
cmake_build()
{
    local name=$1 from=$2
    shift 2
    local -a launcher=()
    if command -v ccache >/dev/null; then
        launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    cmake -G Ninja -S "$from" -B "$work/$name" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DDESK_SYSROOT="$prefix" \
        -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=ON ${launcher[@]+"${launcher[@]}"} "$@"
    nice cmake --build "$work/$name" --parallel "$(nproc)"
    cmake --install "$work/$name" --strip
}

# Before its first window Qt would start Direct3D, only to learn which screen suits OpenGL, which is
# left out here. That takes a tenth of a second and more.
without_direct3d()
{
    local file
    file=$(source_of qt6-base)src/plugins/platforms/windows/qwindowswindow.cpp
    sed -i 's/^    static QString forceToScreen;$/    return nullptr; \/\/ changed for Mirakla Desk\n&/' "$file"
    grep -q 'changed for Mirakla Desk' "$file"
}

# Only what a window program needs. Direct2D has to be on though nothing draws
# with it: the Windows platform plugin does not link without. The tablet's header
# is not in the source package.
qt()
{
    local tools
    tools=/usr/lib/$(dpkg-architecture -q DEB_HOST_MULTIARCH)/cmake
    without_direct3d
    cmake_build qt "$(source_of qt6-base)" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$tools" \
        -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DCMAKE_STAGING_PREFIX="$prefix" \
        -DQT_BUILD_{EXAMPLES,TESTS,BENCHMARKS,TOOLS_WHEN_CROSSCOMPILING}=OFF \
        -DFEATURE_{pkg_config,network,sql,dbus,concurrent,xml,vulkan,icu,glib,zstd}=OFF \
        -DFEATURE_{androiddeployqt,tabletevent,direct2d1_1,system_libb2,system_zlib}=OFF \
        -DFEATURE_direct2d=ON -DINPUT_opengl=no \
        -DINPUT_{libpng,libjpeg,freetype,harfbuzz,pcre,doubleconversion,libmd4c}=qt
}

# Of OpenSSL only the ciphers and digests, as a static library: for SQLCipher, and
# for the tests that look below it.
openssl()
{
    mkdir -p "$work/openssl"
    cd "$work/openssl"
    perl "$(source_of openssl)/Configure" mingw64 --cross-compile-prefix="$target-" \
        no-{shared,tests,engine,dso,module,legacy,comp,ssl,tls,dtls,cms,ts,ocsp,srp,ct,cmp} \
        no-{sock,async,ui-console,autoload-config,ec2m,camellia,aria,sm2,sm3,sm4,idea,seed} \
        no-{bf,cast,rc2,rc4,rc5,md4,mdc2,rmd160,whirlpool,blake2,siphash,gost,dsa,capieng}
    nice make -j"$(nproc)" build_generated libcrypto.a
    mkdir -p "$prefix"/{lib,include}
    cp libcrypto.a "$prefix/lib/"
    cp -r "$(source_of openssl)/include/openssl" "$prefix/include/"
    cp include/openssl/*.h "$prefix/include/openssl/"
}

# The machine's own configure makes the one large source file, which is then
# compiled for Windows: with the settings of Debian's package that the program
# can see, since both systems open one book.
sqlcipher()
{
    local cc=$target-gcc-posix
    local -a settings=(-O2 -DNDEBUG -DSQLITE_HAS_CODEC -DSQLCIPHER_CRYPTO_OPENSSL
        -DSQLITE_THREADSAFE=1 -DSQLITE_TEMP_STORE=2 -DSQLITE_SECURE_DELETE
        -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_ENABLE_UPDATE_DELETE_LIMIT)
    mkdir -p "$work/sqlcipher" "$prefix"/{bin,lib/pkgconfig,include/sqlcipher}
    cd "$work/sqlcipher"
    CFLAGS="-DSQLITE_HAS_CODEC -DSQLITE_ENABLE_UPDATE_DELETE_LIMIT=1" \
        "$(source_of sqlcipher)/configure" --disable-tcl --enable-tempstore=yes \
        --with-crypto-lib=none
    make sqlite3.c shell.c
    $cc "${settings[@]}" "-DSQLITE_API=__declspec(dllexport)" -fno-strict-aliasing \
        -I"$work/openssl/include" -I"$(source_of openssl)/include" -c sqlite3.c -o sqlite3.o
    $cc -shared -s -static-libgcc -o "$prefix/bin/libsqlcipher-0.dll" sqlite3.o \
        "$work/openssl/libcrypto.a" -lws2_32 -lcrypt32 -lbcrypt \
        -Wl,--out-implib,"$prefix/lib/libsqlcipher.dll.a"
    # The stock tool, with which the tests look into a book.
    $cc "${settings[@]}" -s -static-libgcc -I. -o "$prefix/bin/sqlcipher.exe" shell.c \
        "$prefix/lib/libsqlcipher.dll.a"
    cp sqlite3.h "$prefix/include/sqlcipher/"
    cat >"$prefix/lib/pkgconfig/sqlcipher.pc" <<PC
Name: sqlcipher
Description: encrypted database
Version: $(sed -nE 's/^sqlcipher +([0-9.]+).*/\1/p' <<<"$pins")
Libs: -L$prefix/lib -lsqlcipher
Cflags: -I$prefix/include/sqlcipher
PC
}

# For its sound; it does not link without its windows.
sdl()
{
    cmake_build sdl "$(source_of libsdl2)" -DSDL_{STATIC,TEST}=OFF \
        -DSDL_{RENDER,JOYSTICK,HAPTIC,HIDAPI,SENSOR,POWER}=OFF
    # It would turn every program into one that has a window and begins in its own main().
    sed -i -E 's/ -(lmingw32|mwindows|lSDL2main|Dmain=SDL_main)\b//g' \
        "$prefix/lib/pkgconfig/sdl2.pc"
}

sdl_mixer()
{
    cmake_build sdl_mixer "$(source_of libsdl2-mixer)" \
        -DSDL2MIXER_{SAMPLES,CMD,FLAC,MOD,MIDI,OPUS,VORBIS,MP3_MPG123}=OFF \
        -DSDL2MIXER_MP3_DRMP3=ON
}

# What the makers ask to be passed on with their libraries.
licenses()
{
    local package version
    mkdir -p "$prefix/licenses"
    printf 'The libraries in this folder are built from these source packages of Debian:\n\n' \
        >"$prefix/licenses/PACKAGES.txt"
    while read -r package version; do
        [[ -n $package ]] || continue
        cp "$(source_of "$package")/debian/copyright" "$prefix/licenses/$package.txt"
        echo "$package $version" >>"$prefix/licenses/PACKAGES.txt"
    done <<<"$pins"
    printf '\n%s\n' "Changed in qt6-base: QWindowsWindow::forcedScreenForGLWindow() gives nullptr at once." \
        >>"$prefix/licenses/PACKAGES.txt"
    cp "/usr/share/doc/g++-mingw-w64-x86-64-posix/copyright" "$prefix/licenses/compiler-runtime.txt"
    cp "/usr/share/doc/mingw-w64-common/copyright" "$prefix/licenses/mingw-w64.txt"
}

echo "Building the libraries for Windows in $prefix" >&2
for part in fetch openssl sqlcipher sdl sdl_mixer qt licenses; do
    timed "$part"
done
touch "$prefix/complete"
rm -rf "$work"
echo "$prefix"
