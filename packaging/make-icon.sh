#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Draws the program's icon: a sheet of the book with its rows of bets, and a ring
# around the winning number. Run by hand; both files are under version control.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/prepare.sh
install_missing pictures

drawing=$(mktemp --suffix=.png)
trap 'rm -f "$drawing"' EXIT

row()
{
    printf 'fill %s roundrectangle 80,%d %d,%d 6,6 ' "$1" "$2" "$3" $(($2 + 18))
}

convert -size 256x256 xc:none -draw "
    fill #17414f roundrectangle 8,8 247,247 40,40
    fill #ffffff roundrectangle 52,36 203,219 12,12
    $(row '#94a3b8' 62 176) $(row '#94a3b8' 98 150)
    $(row '#b91c1c' 134 130) $(row '#94a3b8' 170 164)
    fill none stroke #b91c1c stroke-width 9 ellipse 105,143 46,25 0,360" "$drawing"
convert "$drawing" -depth 8 -define icon:auto-resize=256,64,48,32,24,16 \
    packaging/windows/mirakla-desk.ico
convert "$drawing" -depth 8 -resize 128x128 -strip data/mirakla-desk.png
