#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Makes the recordings in data/mp3: the Thai words that the program speaks while
# bets are typed. espeak-ng speaks them from the phonemes below, since it cannot
# read Thai; sox trims them and makes them equally loud; lame encodes them. With
# the same versions of the three, the files are identical.

set -euo pipefail
export LC_ALL=C
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/prepare.sh

usage()
{
    cat <<'USAGE'
Usage: packaging/make-voice.sh [FOLDER]
       packaging/make-voice.sh --help

Writes the 24 recordings to FOLDER (relative to the root of the tree), or to
data/mp3.
USAGE
}

# One recording per line: file, maximum length in seconds, voice, words per
# minute, phonemes ("_" separates words), and the Thai text.
#
# The digit after a vowel is its tone: 1 rising, 2 low, 3 mid, 4 high,
# 5 falling. A colon makes the vowel long, a quote stresses the syllable that
# distinguishes the word from similar ones; "**" is the tapped r. In Thai a stop
# at the end of a syllable is not released. Inside a recording it is written "b",
# which espeak-ng does not release there; at the end of a recording the release
# is cut off.
#
# The dash is spoken as "money", not as the equally common "equals", which begins
# like "nine": if the next key comes quickly, no more than that is heard.
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
peak=-1      # dBFS, maximum of every recording

# A frame of MPEG-1 layer III at 48 kHz and 64 kbit/s lasts 24 ms and always has
# 192 bytes.
rate=48000
frame_bytes=192
frame_ms=24

# Adds two Thai voices to a copy of espeak-ng's data. Their pitch range is ten
# semitones instead of three, since the tones cannot be heard otherwise; their
# tune does not change the tones, and their consonants are crisper. (The negative
# pitch is only the start of the scale: the lowest tone is spoken at 89 Hz.) The
# second voice also lowers the second formant of its vowel from 1.7 to 1.4 kHz,
# since espeak-ng has no closer sound for the Thai "ue".
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

# level WAV NAME: prints the level of that name in the statistics of sox, in dBFS.
level()
{
    sox "$1" -n stats 2>&1 | awk -v name="$2" 'index($0, name) == 1 { print $4 }'
}

# speak VOICE RATE PHONEMES: writes the spoken word to $work/word.wav, without
# silence around it and as loud as the others.
#
# At the end, sounds shorter than a tenth of a second are cut off too, such as the
# puff with which espeak-ng releases a stop.
speak()
{
    espeak-ng --path="$work" -v "$1" -s "$2" -w "$work/raw.wav" "[[${3//_/ }]]"
    sox -D "$work/raw.wav" -b 24 "$work/cut.wav" highpass 60 \
        silence 1 0.001 0.3% reverse silence 1 0.1 0.3% fade t 0.008 reverse
    sox -D "$work/cut.wav" "$work/word.wav" rate -v "$rate" \
        gain "$(awk -v is="$(level "$work/cut.wav" 'RMS lev dB')" -v to="$loudness" \
            'BEGIN { print to - is }')"
}

# pack FILE: encodes the word as FILE. lame puts 1105 samples of silence in front,
# which would delay the word of a key by 23 ms, so the first frame of 1152 samples
# is dropped. The options make frames independent of each other and leave out
# header and tag. Half of the second frame cannot be decoded without the first, so
# silence is put there: the word begins 13 ms into the file. The silence after the
# word is for players that do not play the last frame to its end.
pack()
{
    sox -D "$work/word.wav" -b 16 "$work/padded.wav" pad 0.014 0.024
    lame --quiet -m m --cbr -b 64 --nores -t --noreplaygain "$work/padded.wav" "$work/packed.mp3"
    tail -c "+$((frame_bytes + 1))" "$work/packed.mp3" >"$1"
}

# check FILE SECONDS: prints length and levels of the recording, and ends the
# script if it is too long or too loud.
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
