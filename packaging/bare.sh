#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs ./run and ./test on a system that has nothing but git, sudo and a shell.
# debootstrap installs it into build/bare, so packages of this machine cannot
# hide one that is missing from packaging/prepare.sh.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/prepare.sh

usage()
{
    cat <<'USAGE'
Usage: packaging/bare.sh [--root] [--keep] [--language LANG] SUITE
       packaging/bare.sh --reachable SUITE

Installs the release SUITE of Debian or Ubuntu (bookworm, trixie, noble, ...)
into build/bare/SUITE, clones the last commit into a home folder whose name has
a blank and Thai letters, runs ./run and ./test there, then ./run once more
without network, and prints how long each took. Must be started by root.

  --root            Run the commands as root; otherwise as a user with sudo.
  --keep            Leave the system in build/bare/SUITE for further trials.
  --language LANG   Set LANG to this locale, and install it (default: C).
  --reachable       Only say by the exit status whether this can be done here.

Packages come from the archive that this machine uses; DESK_MIRROR names another.
USAGE
}

home='/home/โพย งวดนี้'
user=agent keep='' language=C only_ask=''
while [[ ${1-} == -* ]]; do
    case $1 in
        --root) user=root ;;
        --keep) keep=yes ;;
        --language) language=${2-} && shift ;;
        --reachable) only_ask=yes ;;
        -h | --help) usage && exit 0 ;;
        *) usage >&2 && exit 2 ;;
    esac
    shift
done
(($# == 1)) || { usage >&2 && exit 2; }
suite=$1
system=$PWD/build/bare/$suite
mirror=${DESK_MIRROR-}
if [[ -z $mirror ]] && command -v apt-get >/dev/null; then
    # shellcheck disable=SC2016 # a name of apt-get's own
    mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' | head -n 1)
fi

reachable()
{
    local answer status=0
    answer=$(mktemp)
    /usr/lib/apt/apt-helper download-file "$mirror/dists/$suite/Release" "$answer" >/dev/null 2>&1 || status=$?
    rm -f "$answer"
    return "$status"
}

((EUID == 0)) || die "only root can install a system into a folder"
[[ -n $mirror ]] || die "no package archive is known; name one in DESK_MIRROR"
reachable || die "the release $suite cannot be had from the package archive"
[[ -z $only_ask ]] || exit 0

install_missing bare

# inside [OPTION...] -- USER COMMAND...: runs a command in the bare system. Options are those of
# unshare. What the command leaves running ends with it.
inside()
{
    local -a options=()
    while [[ $1 != -- ]]; do
        options+=("$1")
        shift
    done
    local who=$2
    shift 2
    unshare --mount --pid --fork --kill-child --root="$system" --wd=/ --mount-proc "${options[@]}" \
        setpriv --reuid="$who" --regid="$who" --init-groups \
        env -i LANG="$language" HOME="$home" USER="$who" TERM=dumb \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "$@"
}

make_system()
{
    local -a script=()
    local include=git,sudo,ca-certificates
    [[ $language == C* ]] || include+=,locales
    # An older debootstrap does not know the names of newer releases; those of one maker are alike.
    if [[ ! -e /usr/share/debootstrap/scripts/$suite ]]; then
        script=(/usr/share/debootstrap/scripts/gutsy) # of all releases of Ubuntu
    fi
    rm -rf "$system"
    mkdir -p "$system"
    debootstrap --variant=minbase --components=main,universe --include="$include" \
        "$suite" "$system" "$mirror" "${script[@]}" >"$system.log" 2>&1 ||
        die "debootstrap failed, see $system.log"
    [[ $language == C* ]] || inside -- root localedef -i "${language%.*}" -f "${language#*.}" "$language"
    inside -- root useradd --create-home --home-dir "$home" --shell /bin/bash agent
    echo 'agent ALL=(ALL) NOPASSWD: ALL' >"$system/etc/sudoers.d/agent"
    git clone -q . "$system$home/mirakla-desk"
    inside -- root chown -R "$user:" "$home/mirakla-desk"
}

report=()
# timed WHAT [OPTION...] -- COMMAND...
timed()
{
    local what=$1 begin=$SECONDS
    local -a options=()
    shift
    while [[ $1 != -- ]]; do
        options+=("$1")
        shift
    done
    shift
    inside "${options[@]}" -- "$user" bash -c "cd ~/mirakla-desk && $*" ||
        die "$what failed on $suite; the system is left in $system"
    report+=("$(printf '%-28s %4d s' "$what" $((SECONDS - begin)))")
}

make_system
timed './run' -- ./run
timed './test' -- ./test
timed './run without network' --net -- ./run
[[ -n $keep ]] || rm -rf "$system"
echo "=== $suite, ${user/agent/a user with sudo}, LANG=$language"
printf '%s\n' "${report[@]}"
