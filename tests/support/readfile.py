#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Prints what other programs read in a sheet or PDF of the program, as text: readfile.py FILE ANSWER.
The answer gets its name when it is complete."""

import os
import re
import struct
import subprocess
import sys

import xlrd
import xlrd.compdoc


def print_setup(path):
    """Reads the records that xlrd skips."""
    stream = xlrd.compdoc.CompDoc(open(path, "rb").read()).get_named_stream("Workbook")
    records = {}
    at = 0
    while at + 4 <= len(stream):
        kind, size = struct.unpack_from("<HH", stream, at)
        records[kind] = stream[at + 4 : at + 4 + size]
        at += 4 + size
    margins = {"%.4f" % struct.unpack("<d", records[kind]) for kind in range(0x26, 0x2A)}
    setup = struct.unpack_from("<6H", records[0xA1])
    yield f"paper {setup[0]} " + ("portrait" if setup[5] & 2 else "landscape")
    fits = struct.unpack("<H", records[0x81])[0] & 0x100
    yield f"margins {' '.join(sorted(margins))}" + (f" fits {setup[3]}x{setup[4]}" if fits else "")


def sheet(path):
    book = xlrd.open_workbook(path, formatting_info=True, logfile=sys.stderr)
    page = book.sheet_by_index(0)
    yield f'sheet "{page.name}"' + (" hidden" if page.visibility else "")
    yield from print_setup(path)
    for name in book.name_obj_list:
        yield f"{name.name} {name.result.text}"
    if page.panes_are_frozen:
        yield f"frozen rows {page.horz_split_pos}"
    for column, info in sorted(page.colinfo_map.items()):
        yield f"column {column + 1} width {info.width}"
    for row in range(page.nrows):
        cells = []
        for column, cell in enumerate(page.row(row)):
            if cell.ctype == xlrd.XL_CELL_EMPTY:
                continue
            look = book.xf_list[cell.xf_index]
            marks = ["general", "", "center", "right"][look.alignment.hor_align]
            bold = "bold" if book.font_list[look.font_index].weight == 700 else ""
            text = f'"{cell.value}"'
            if cell.ctype == xlrd.XL_CELL_NUMBER:
                text = f"{cell.value:.2f} {book.format_map[look.format_key].format_str}"
            cells.append(" ".join(filter(None, [str(column + 1), text, marks, bold])))
        yield f"{row + 1}: " + ", ".join(cells)


def document(path):
    def output(*command):
        return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout.decode()

    for line in output("pdfinfo", "-l", "9999", path).split("\n"):
        if re.match(r"Title:|Page .*size:", line):
            yield " ".join(line.split())
    for at, page in enumerate(output("pdftotext", "-bbox", path, "-").split("<page ")[1:], 1):
        ends = re.findall(r'xMax="([\d.]+)" yMax="([\d.]+)"', page)
        right, low = (max(float(end[side]) for end in ends) for side in (0, 1))
        yield f"Page {at} text up to {right // 100:.0f}00,{low // 100:.0f}00"
    for font in output("pdffonts", path).split("\n")[2:]:
        if font and not re.search(r" yes +\w+ +\w+ +\d+ +\d+$", font):
            yield "missing font " + font
    for at, page in enumerate(output("pdftotext", "-layout", path, "-").split("\f"), 1):
        yield from (f"{at}: " + " ".join(line.split()) for line in page.split("\n") if line.strip())


def read(path):
    try:
        yield from (sheet if open(path, "rb").read(2) == b"\xd0\xcf" else document)(path)
    except Exception as error:
        yield f"unreadable: {error!r}"


path, answer = sys.argv[1:]
with open(answer + ".part", "w", encoding="utf-8") as out:
    out.writelines(line + "\n" for line in read(path))
os.rename(answer + ".part", answer)
