#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the drawings of the sample's pictures as SVG files into a folder: draw.py FOLDER"""

import sys
from pathlib import Path

import inks  # noqa: F401  (opens the way to the tools)
import beings
import figures
import grounds
import places
from woodcut import document


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name, (width, height, draw) in (beings.PICTURES | places.PICTURES | figures.PICTURES | grounds.PICTURES).items():
        (folder / f"{name}.svg").write_text(document(name, width, height, [draw()]), encoding="utf-8", newline="\n")
    for name, drawing in grounds.back_drawings():
        (folder / f"{name}.svg").write_text(drawing, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
