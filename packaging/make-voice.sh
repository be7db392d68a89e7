#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Makes the recordings of data/mp3: the Thai words that the program speaks while
# bets are keyed. espeak-ng speaks them from the phonemes below, since it cannot
# read Thai spelling; sox takes the silence off and makes them equally loud;
# lame packs them. The same versions of the three give the same bytes.

set -euo pipefail
export LC_ALL=C
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/prepare.sh

usage()
{
    cat <<'USAGE'
Usage: packaging/make-voice.sh [FOLDER]
       packaging/make-voice.sh --help

Writes the 24 recordings into FOLDER (as seen from the root of the tree), or into
data/mp3 if none is named.
USAGE
}

# One recording a line: file, seconds it may last, voice, words a minute,
# phonemes ("_" parts words), and the Thai.
#
# The figure after a vowel is its tone: 1 rising, 2 low, 3 mid, 4 high,
# 5 falling. A colon makes the vowel long, a quote stresses the syllable that
# distinguishes the word from similar ones; "**" is the tapped r. Thai does not release the
# stop that ends a syllable: inside a recording it is written "b", the one here
# that is held shut, and at the end of one the release is cut off.
#
# The dash is "money", not the equally usual "equals": the latter begins like
# nine, and that is all one hears of it when the next key comes quickly.
recordings="
0         0.6  plain  170  s'u:1n                       ศูนย์
1         0.6  ue     170  n'i.2N                       หนึ่ง
2         0.6  plain  170  s'O:1N                       สอง
3         0.6  plain  170  s'a:1m                       สาม
4         0.6  plain  165  s'i:2                        สี่
5         0.6  plain  155  h'a:5                        ห้า
6         0.6  plain  150  h'o2k                        หก
7         0.6  plain  150  tS;'e2t                      เจ็ด
8         0.6  plain  150  p'E:2t                       แปด
9         0.6  plain  155  k'a:u5                       เก้า
money     0.6  plain  165  N'@3n                        เงิน
up        1.3  plain  165  b'o3n                        บน
down      1.3  plain  165  l'a:5N                       ล่าง
tod       1.3  plain  150  t'o:4t                       โต๊ด
runup     1.3  plain  165  wi5N_b'o3n                   วิ่งบน
rundown   1.3  plain  165  wi5N_l'a:5N                  วิ่งล่าง
kup       1.3  plain  165  kla2bb'o3n                   กลับบน
kdown     1.3  plain  165  kla2bl'a:5N                  กลับล่าง
tongtod   1.3  plain  165  t**o3N_t'o:4t                ตรงโต๊ด
updown    1.3  plain  165  bo3n_l'a:5N                  บนล่าง
19up      1.3  plain  175  si2bka:u5_p**a2tu:3_b'o3n    สิบเก้าประตูบน
19down    1.3  plain  175  si2bka:u5_p**a2tu:3_l'a:5N   สิบเก้าประตูล่าง
0099up    1.3  plain  185  su:1nsu:1n_ka:u5ka:u5_b'o3n  ศูนย์ศูนย์เก้าเก้าบน
0099down  1.3  plain  185  su:1nsu:1n_ka:u5ka:u5_l'a:5N ศูนย์ศูนย์เก้าเก้าล่าง
"

loudness=-20 # dBFS, root mean square of every recording
peak=-1      # dBFS, which none may exceed

# A frame of MPEG-1 layer III at 48 kHz and 64 kbit/s lasts 24 ms and has 192
# bytes, never one more or less.
rate=48000
frame_bytes=192
frame_ms=24

# Lays out beside espeak-ng's own data two voices that speak Thai with a range of
# ten semitones instead of three, since the tones are lost otherwise, with a tune
# that leaves the tones alone, and with crisper consonants. (A pitch below zero is
# only where the scale begins: the lowest tone is spoken at 89 Hz.) The second one
# also draws the second formant of its one vowel from 1.7 to 1.4 kHz: espeak-ng
# has no nearer sound for the Thai "ue".
make_voices()
{
    local installed voices=$work/espeak-ng-data/voices
    installed=$(espeak-ng --version | sed -n 's/.*Data at: //p')
    [[ -e $installed/phontab ]] || die "the data of espeak-ng was not found"

    mkdir -p "$voices"
    ln -s "$installed"/{phontab,phondata,phonindex,intonations,th_dict,lang} "${voices%/*}"
    printf '%s\n' 'language th' 'pitch -20 126' 'tunes c2 c2 c2 c2' 'consonants 150 150' \
        | tee "$voices/plain" >"$voices/ue"
    echo 'formant 2 80 100 100' >>"$voices/ue"
}

# level WAV NAME: the level of that name in the statistics of sox, in dBFS.
level()
{
    sox "$1" -n stats 2>&1 | awk -v name="$2" 'index($0, name) == 1 { print $4 }'
}

# speak VOICE RATE PHONEMES: leaves the spoken word in $work/word.wav: nothing
# before it, nothing behind it, as loud as the others.
#
# From the end everything goes that does not sound for a tenth of a second, so
# also the puff with which espeak-ng releases a last stop.
speak()
{
    espeak-ng --path="$work" -v "$1" -s "$2" -w "$work/raw.wav" "[[${3//_/ }]]"
    sox -D "$work/raw.wav" -b 24 "$work/cut.wav" highpass 60 \
        silence 1 0.001 0.3% reverse silence 1 0.1 0.3% fade t 0.008 reverse
    sox -D "$work/cut.wav" "$work/word.wav" rate -v "$rate" \
        gain "$(awk -v is="$(level "$work/cut.wav" 'RMS lev dB')" -v to="$loudness" \
            'BEGIN { print to - is }')"
}

# pack FILE: packs the word into FILE. lame puts 1105 samples of silence in front,
# which would delay the echo of a key by 23 ms, so the first frame, 1152 samples,
# is dropped; no frame leans on the bits of another, and there is neither a header
# nor a tag. The first half frame that remains cannot be restored without the one
# dropped, so silence is put there: the word begins 13 ms into the file. The silence
# behind it is for players that never finish the last frame.
pack()
{
    sox -D "$work/word.wav" -b 16 "$work/padded.wav" pad 0.014 0.024
    lame --quiet -m m --cbr -b 64 --nores -t --noreplaygain "$work/padded.wav" "$work/packed.mp3"
    tail -c "+$((frame_bytes + 1))" "$work/packed.mp3" >"$1"
}

# check FILE SECONDS: prints what the recording measures, and ends the script if
# it is too long or too loud.
check()
{
    local ms top
    ms=$(($(stat -c %s "$1") * frame_ms / frame_bytes))
    top=$(level "$work/word.wav" 'Pk lev dB')
    printf '%-14s %5d ms  RMS %6.2f dB  peak %6.2f dB\n' "${1##*/}" "$ms" \
        "$(level "$work/word.wav" 'RMS lev dB')" "$top"
    awk -v ms="$ms" -v most="$2" -v top="$top" -v peak="$peak" \
        'BEGIN { exit !(ms <= most * 1000 && top <= peak) }' ||
        die "$1 is too long or too loud"
}

case "$#:${1-}" in
    1:--help) usage; exit ;;
    1:-* | [2-9]:*) usage >&2; exit 2 ;;
esac
folder=${1-data/mp3}

install_missing voice
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
make_voices
mkdir -p "$folder"
while read -r name seconds voice speed phonemes _; do
    [[ -n $name ]] || continue
    speak "$voice" "$speed" "$phonemes"
    pack "$folder/$name.mp3"
    check "$folder/$name.mp3" "$seconds"
done <<<"$recordings"
