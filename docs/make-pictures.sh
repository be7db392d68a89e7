#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Takes the pictures of the README and the guide: plays the tour and copies
# the screens named below. windows.png is taken by hand under Windows.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/prepare.sh

# Picture, and the picture of the tour that it is made from.
pictures='
docs/pictures/board.png                 board
docs/pictures/check.png                 winners
docs/pictures/customers.png             customers
docs/pictures/cut.png                   cut
docs/pictures/cuts.png                  cuts-page
docs/pictures/entry.png                 ticket-16,460
docs/pictures/history.png               history
docs/pictures/keys.png                  keys
docs/pictures/paper.png                 winners-printed
docs/pictures/risk.png                  scan
docs/pictures/settings.png              settings
docs/pictures/statement.png             statement-page
docs/pictures/winners.png               winners-page
packaging/guide/pictures/board.png      board
packaging/guide/pictures/check.png      winners
packaging/guide/pictures/entry.png      ticket-4,520
packaging/guide/pictures/settings.png   settings
'

install_missing pictures
./run tour
while read -r picture screen; do
    [[ -n $picture ]] || continue
    # A palette more than halves a picture. Dithering would put dots into plain areas and letters.
    pngquant --nofs --speed 1 --strip --force --output "$picture" 256 "build/tour/$screen.png" ||
        die "$picture could not be made"
done <<<"$pictures"
echo "The pictures are taken. Look at each before they go in."
