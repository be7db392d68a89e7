#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs a Windows program of the build under Wine: wine.sh PROGRAM [ARGUMENT...].
# CTest starts every test through it. The Wine prefix is DESK_WINEPREFIX, or
# build/windows.wine, and is created if it is missing.

set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
source "$root/packaging/windows/places.sh"

export WINEPREFIX=${DESK_WINEPREFIX:-$root/build/windows.wine}
export WINEDEBUG=${WINEDEBUG:--all}
# Disabled: the browser and .NET, which Wine would offer to install, and the debugger that it would
# start after a crash.
export WINEDLLOVERRIDES="mscoree,mshtml,winedbg.exe="
export LC_ALL=C.UTF-8
# For tests that pass the path of a file to a Linux program.
export DESK_WINE_DRIVES=$WINEPREFIX/dosdevices

# Root ignores the permissions of files, and so would a Windows program that root runs.
plainly=()
if ((EUID == 0)); then
    plainly=(setpriv --inh-caps=-dac_override --bounding-set=-dac_override)
fi

# With address space randomization about one start in a thousand fails, because something is at an
# address that Wine needs.
if setarch --addr-no-randomize true 2>/dev/null; then
    plainly+=(setarch --addr-no-randomize)
fi

# Tests start at the same time: one creates the prefix, the others wait.
create_prefix()
{
    local key='HKCU\Software\Wine'
    # Unmanaged: without a window manager each window would wait two seconds for one.
    "${plainly[@]}" wine wineboot --init &&
        "${plainly[@]}" wine reg add "$key" /v Version /d win10 /f &&
        "${plainly[@]}" wine reg add "$key\X11 Driver" /v Managed /d N /f &&
        touch "$WINEPREFIX/ready"
}

mkdir -p "$WINEPREFIX"
(
    flock 9
    [[ -e $WINEPREFIX/ready ]] || create_prefix >"$WINEPREFIX/made.log" 2>&1 9>&- ||
        { echo "wine.sh: the Wine prefix could not be created; see $WINEPREFIX/made.log" >&2 && exit 1; }
    # Wine's services start with the first program. They would inherit its output and keep it open
    # after its exit, and a reader of that output would wait for them.
    wineserver -k0 2>/dev/null || "${plainly[@]}" wine wineboot >/dev/null 2>&1 9>&- </dev/null
) 9>"$WINEPREFIX/lock"

# Wine passes variables that begin with QT_ only if they have the prefix WINE.
for name in "${!QT_@}"; do
    export "WINE$name=${!name}"
done
export WINEQT_FORCE_STDERR_LOGGING=1
export WINEQT_QPA_FONTDIR=${WINEQT_QPA_FONTDIR-$(dirname "$1")/fonts}

# A shipped folder has its libraries beside the program; for the build they are here.
if [[ -z ${DESK_SHIPPED-} ]]; then
    WINEPATH="$prefix/bin;$(runtime_places | paste -sd ';')"
    export WINEPATH
    export WINEQT_PLUGIN_PATH=$prefix/plugins${QT_PLUGIN_PATH:+;$QT_PLUGIN_PATH}
fi
# For measurements: the time just before Wine starts, in seconds since 1970.
if [[ -n ${DESK_WINE_BEGIN-} ]]; then
    echo "$EPOCHREALTIME" >"$DESK_WINE_BEGIN"
fi
exec "${plainly[@]}" wine "$@"
