# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# Names and places that the scripts of this folder share. Sourced.

windows=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# Prefix of the names of the compiler and its tools, as set in the toolchain file.
target=$(sed -nE 's/^set\(target (.*)\)$/\1/p' "$windows/toolchain.cmake")

# The folder of the libraries that dependencies.sh builds. Its name has a checksum of that script
# and of the toolchain file, so that a change of either builds a new set.
prefix=${DESK_WINDOWS_PREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/mirakla-desk}
[[ $prefix == /* ]] || { echo "$prefix: the folder of the libraries must be an absolute path" >&2 && exit 1; }
prefix=$prefix/windows-$(cat "$windows/dependencies.sh" "$windows/toolchain.cmake" | sha256sum | cut -c1-16)

# runtime_places: the folders of the compiler's own libraries, one a line.
runtime_places()
{
    dirname "$("$target-g++-posix" -print-file-name=libstdc++-6.dll)"
    echo "/usr/$target/lib"
}
