#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs a Windows program of the build under Wine as if it were one of this
# machine: wine.sh PROGRAM [ARGUMENT...]. CTest starts every test through it.
# The Windows that it makes for that lies in DESK_WINEPREFIX, or in build/windows.wine.

set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
source "$root/packaging/windows/places.sh"

export WINEPREFIX=${DESK_WINEPREFIX:-$root/build/windows.wine}
export WINEDEBUG=${WINEDEBUG:--all}
# Neither a browser nor .NET is asked for on first use, and a program that fails ends.
export WINEDLLOVERRIDES="mscoree,mshtml,winedbg.exe="
export LC_ALL=C.UTF-8
# For tests that name a file to a program of this machine.
export DESK_WINE_DRIVES=$WINEPREFIX/dosdevices

# Root may ignore a file's permissions, and so would the Windows that it runs.
plainly=()
if ((EUID == 0)); then
    plainly=(setpriv --inh-caps=-dac_override --bounding-set=-dac_override)
fi

# With memory laid out at random, one start in a thousand or so finds a place taken that Wine needs,
# and fails.
if setarch --addr-no-randomize true 2>/dev/null; then
    plainly+=(setarch --addr-no-randomize)
fi

# Tests start at the same time; one of them makes the Windows, the others wait.
make_windows()
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
    [[ -e $WINEPREFIX/ready ]] || make_windows >"$WINEPREFIX/made.log" 2>&1 9>&- ||
        { echo "wine.sh: no Windows could be made; see $WINEPREFIX/made.log" >&2 && exit 1; }
    # The services start with the first program. With its output in hand they would keep it open
    # behind its end, and whoever reads it would wait for them.
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
