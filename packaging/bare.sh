#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs ./run and ./test on a system that has nothing but git, sudo and a shell.
# debootstrap installs it into build/bare, so that packages of this machine
# cannot hide one that is missing from packaging/prepare.sh.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/prepare.sh

usage()
{
    cat <<'USAGE'
Usage: packaging/bare.sh [--root] [--keep] [--language LANG] SUITE
       packaging/bare.sh --folder [--keep] SUITE
       packaging/bare.sh --inside SUITE COMMAND...
       packaging/bare.sh --reachable SUITE

Installs the release SUITE of Debian or Ubuntu (bookworm, trixie, noble, ...)
into build/bare/SUITE, clones the last commit into a home folder whose name has
a space and Thai letters, runs ./run and ./test there, then ./run once more
without network, and prints how long each took. If the tests have been built on
this machine, one book is then written alternately here and there. Must be run as
root.

  --root            Run the commands as root; otherwise as a user with sudo.
  --keep            Keep the system in build/bare/SUITE.
  --language LANG   Set LANG to this locale, and install it (default: C).
  --folder          Instead, install what every desktop has, and start the
                    portable folder that ./run folder has made.
  --inside          Only run a command, as root, in a kept system, with /tmp of
                    this machine.
  --reachable       Only check whether the package archive has SUITE. The exit
                    status is the result.

Packages come from the archive that this machine uses, or from DESK_MIRROR.
USAGE
}

home='/home/โพย งวดนี้'
user=agent keep='' language=C mode=commands
while [[ ${1-} == -* ]]; do
    case $1 in
        --root) user=root ;;
        --keep) keep=yes ;;
        --language) language=${2-} && shift ;;
        --folder | --inside | --reachable) mode=${1#--} ;;
        -h | --help) usage && exit 0 ;;
        *) usage >&2 && exit 2 ;;
    esac
    shift
done
(($# == 1)) || [[ $mode == inside && $# -gt 1 ]] || { usage >&2 && exit 2; }
suite=$1
system=$PWD/build/bare/$suite
mirror=${DESK_MIRROR-}
if [[ -z $mirror ]] && command -v apt-get >/dev/null; then
    # shellcheck disable=SC2016 # expanded by apt-get
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

# inside [--net] USER COMMAND...: runs a command in the bare system, with --net without network.
# Processes that the command leaves behind are killed when it ends.
inside()
{
    local -a net=()
    [[ $1 != --net ]] || { net=(--net) && shift; }
    local who=$1
    shift
    # shellcheck disable=SC2016 # expanded by the inner shell
    unshare --mount --pid --fork --kill-child "${net[@]}" bash -c '
        mount -t proc proc "$1/proc" && mount --bind /tmp "$1/tmp" && exec chroot "$@"' bash "$system" \
        setpriv --reuid="$who" --regid="$who" --init-groups \
        env -i LANG="$language" HOME="$home" USER="$who" TERM=dumb \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "$@"
}

make_system()
{
    local -a script=()
    local include=$1
    [[ $language == C* ]] || include+=,locales
    # An older debootstrap does not know newer releases of Ubuntu. All use the script of gutsy.
    if [[ ! -e /usr/share/debootstrap/scripts/$suite ]]; then
        script=(/usr/share/debootstrap/scripts/gutsy)
    fi
    rm -rf "$system"
    mkdir -p "$system"
    debootstrap --variant=minbase --components=main,universe --include="$include" \
        "$suite" "$system" "$mirror" "${script[@]}" >"$system.log" 2>&1 ||
        die "debootstrap failed, see $system.log"
    [[ $language == C* ]] || inside root localedef -i "${language%.*}" -f "${language#*.}" "$language"
    inside root useradd --create-home --home-dir "$home" --shell /bin/bash agent
}

report=()
# timed [--net] COMMAND...: runs a command in the clone.
timed()
{
    local begin=$SECONDS what=$1
    local -a net=()
    [[ $1 != --net ]] || { net=("$1") && shift && what="$1 without network"; }
    # shellcheck disable=SC2016 # expanded by the inner shell
    inside "${net[@]}" "$user" bash -c 'cd ~/mirakla-desk && exec "$@"' bash "$@" ||
        die "$what failed on $suite; the system is left in $system"
    report+=("$(printf '%-24s %4d s' "$what" $((SECONDS - begin)))")
}

try_commands()
{
    local build=$home/mirakla-desk/build/release
    make_system git,sudo,ca-certificates
    echo 'agent ALL=(ALL) NOPASSWD: ALL' >"$system/etc/sudoers.d/agent"
    git clone -q . "$system$home/mirakla-desk"
    inside root chown -R "$user:" "$home"
    timed ./run
    timed ./test
    timed --net ./run
    # A keeper of an earlier state would read its arguments in another way.
    if [[ -x build/release/keeper ]] && cmake --build build/release --target keeper; then
        tests/twosystems/bothways.sh build/release/keeper "$build/keeper" "$build/make-empty-ledger" \
            packaging/bare.sh --inside "$suite" || die "one book cannot be used alternately here and on $suite"
        report+=("one book written alternately here and there")
    else
        report+=("one book written alternately NOT RUN: ./test has not been run here")
    fi
}

try_folder()
{
    local archive plugins=build/release/tests/portable/plugins
    archive=$(echo build/portable/*.tar.gz)
    [[ -e $archive && -d $plugins ]] || die "./run folder and ./test have to be run here first"
    make_system ca-certificates
    # These programs depend on the libraries that every desktop has. debootstrap itself could not install them,
    # since it does not know which package provides a virtual one.
    inside root bash -c 'apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y \
        --no-install-recommends zenity mesa-utils alsa-utils xvfb xauth' >"$system.log" 2>&1 ||
        die "the libraries of a desktop cannot be installed, see $system.log"
    tar -xf "$archive" -C "$system$home"
    cp -r "$plugins" "$system$home/visitor"
    inside root chown -R agent: "$home"
    # "exit" keeps the shell, since Xvfb does not signal a process 1 that it is ready.
    # shellcheck disable=SC2016 # expanded by the inner shell
    inside agent bash -c 'cd ~ && QT_PLUGIN_PATH=$HOME/visitor QT_QPA_GENERIC_PLUGINS=visitor \
        SDL_AUDIODRIVER=dummy xvfb-run -a timeout 30 mirakla-desk-*/mirakla-desk; exit $?' >"$system.seen" ||
        die "the folder does not start on $suite; the system is left in $system"
    [[ $(pdffonts "$system$home/paper.pdf" | grep -c 'NotoSans.*Identity-H *yes') == 2 ]] || die "Thai is not drawn"
    [[ $(sqlcipher "$system$home"/mirakla-desk-*/data/ztkdata.ZDB "PRAGMA key = '639417';
        PRAGMA cipher_compatibility = 3; SELECT numValue, numBuy FROM tblNumber;" | tail -n 1) == '123|100' ]] ||
        die "the folder on $suite has not saved its ticket"
    report+=("The portable folder starts, draws Thai and saves a ticket.")
}

((EUID == 0)) || die "only root can install a system into a folder"
if [[ $mode == inside ]]; then
    inside root "${@:2}"
    exit
fi
[[ -n $mirror ]] || die "no package archive is known; set DESK_MIRROR to one"
reachable || die "the package archive does not have $suite, or does not answer"
[[ $mode != reachable ]] || exit 0
install_missing bare
"try_$mode"
[[ -n $keep ]] || rm -rf "$system"
echo "=== $suite, ${user/agent/a user with sudo}, LANG=$language"
printf '%s\n' "${report[@]}"
