# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# Shared by the other scripts: the packages that the project needs, and functions
# that install and build. Source it from a bash script whose working directory is
# the root of the tree, or run it by itself ("bash packaging/prepare.sh") to
# install everything that a contributor needs.

# One package per line: its group, its name, and its purpose.
#   build   to configure and compile the program
#   screen  to show windows without a display
#   test    to run the tests
#   bench   to run the benchmarks
#   coverage to see which lines the tests run
#   bare    to test the project on a system that has nothing installed
#   lint    to check source and scripts
#   fuzz    to search for inputs that break a rule
#   windows to build and test the program for Windows
#   voice   to make the recordings again
#   pictures to make the icon and the pictures of README and guide
packages='
build   build-essential   the C++ compiler, the linker and the system headers
build   cmake             configures the build and runs the tests
build   ninja-build       runs the build
build   pkg-config        finds the libraries below
build   qt6-base-dev      windows, widgets and the X11 platform plugin
build   libgl-dev         OpenGL headers, without which Qt is not found by CMake
build   libsqlcipher-dev  the encrypted database that holds the book
build   libssl-dev        derives the key of a book whose salt is damaged
build   libx11-dev        the keyboard state of the X server
build   libsdl2-mixer-dev plays sounds
build   fonts-noto-core   draws Thai and Latin text
screen  xvfb              a virtual screen
screen  xauth             admits programs to the virtual screen
test    sqlcipher         reads the book independently of the program
test    python3-xlrd      reads sheets independently of the program
test    poppler-utils     reads PDF files independently of the program
bench   libbenchmark-dev  measures the benchmarks
coverage gcovr            adds up the lines that the tests run
bare    debootstrap       installs a system into a folder
lint    clang-format      checks the layout of the source
lint    shellcheck        checks the scripts for common mistakes
lint    clang-tidy        checks the source for common mistakes
fuzz    clang             the C++ compiler with a fuzzer
fuzz    libclang-rt-dev   libraries of the fuzzer and the sanitizers
windows g++-mingw-w64-x86-64-posix  the compiler for Windows
windows dpkg-dev          unpacks the sources of the libraries
windows perl              configures one of them
windows tcl               generates the source of another
windows wine              runs Windows programs
windows wine64            the 64-bit part of wine
voice   espeak-ng         speaks the words of the recordings
voice   sox               trims and levels the recordings
voice   lame              packs the recordings
pictures imagemagick      draws the icon
pictures pngquant         reduces pictures to a palette
'

# Prints an error message and ends the script.
die()
{
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Succeeds on systems whose packages have the names above and are recent enough.
is_supported()
{
    local ID='' VERSION_ID=''
    # shellcheck source=/dev/null
    [[ -r /etc/os-release ]] && source /etc/os-release
    case $ID in
        debian) [[ -z $VERSION_ID || ${VERSION_ID%%.*} -ge 12 ]] ;; # testing has no number
        ubuntu) [[ ${VERSION_ID%%.*} -ge 24 ]] ;;
        *) false ;;
    esac && command -v dpkg-query >/dev/null && command -v apt-get >/dev/null
}

# install_missing GROUP...: installs the packages of the groups that are missing.
# Calls dpkg-query only once, and nothing else if all are installed.
install_missing()
{
    local group name why installed
    local -a wanted=() missing=() as_root=()
    local -A purpose=()

    while read -r group name why; do
        if [[ -n $group && " $* " == *" $group "* ]]; then
            wanted+=("$name")
            purpose[$name]=$why
        fi
    done <<<"$packages"

    is_supported ||
        die "packages are installed on Debian from 12 and Ubuntu from 24.04 only; here install what Debian calls: ${wanted[*]}; then build with CMake, as CONTRIBUTING.md says"

    # dpkg-query fails if it does not know a package, but prints the lines of the
    # others.
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null) || true
    for name in "${wanted[@]}"; do
        if [[ $'\n'$installed$'\n' != *$'\n'"installed $name"$'\n'* ]]; then
            missing+=("$name")
        fi
    done
    ((${#missing[@]})) || return 0

    echo "Packages to install:"
    for name in "${missing[@]}"; do
        printf '  %-18s %s\n' "$name" "${purpose[$name]}"
    done

    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            die "installing packages needs root, and there is no sudo; run as root: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    as_root+=(env DEBIAN_FRONTEND=noninteractive)

    "${as_root[@]}" apt-get update -q ||
        die "apt-get could not refresh its package lists"
    "${as_root[@]}" apt-get install -q -y --no-install-recommends "${missing[@]}" ||
        die "apt-get could not install: ${missing[*]}"
}

# build PRESET [TARGET...]: configures and builds the targets, or everything if
# none is named. The presets release, test, bench and ci share a folder, so that
# nothing is built twice: each adds its option to those that are on. Ninja itself
# notices changed CMakeLists.txt files; this function checks for changed presets
# and a missing option.
build()
{
    local preset=$1 folder=build/release option=''
    shift
    case $preset in
        test) option=BUILD_TESTING ;;
        bench) option=MIRAKLA_BENCHMARKS ;;
        ci) option=CMAKE_COMPILE_WARNING_AS_ERROR ;;
        dev | coverage | fuzz) folder=build/$preset ;;
    esac
    if [[ ! $folder/build.ninja -nt CMakePresets.json ]] ||
        { [[ -n $option ]] && ! grep -q "^$option:[A-Z]*=ON\$" "$folder/CMakeCache.txt"; }; then
        cmake --preset "$preset" || die "the $preset build could not be configured"
    fi
    cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"} ||
        die "the $preset build failed"
}

if [[ ${BASH_SOURCE[0]} == "$0" ]]; then
    set -euo pipefail
    install_missing build screen test bench lint
    echo "All packages are installed."
fi
