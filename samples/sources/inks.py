# SPDX-License-Identifier: GPL-3.0-or-later
"""The inks of the sample set: one palette for all its pictures, so that the cards are of one country.

Also opens the way to the woodcutter's tools in assets/.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "assets"))

from woodcut import Cut  # noqa: E402  (after the path is set)

INKS = {
    "k": "#1b1618",  # ink
    "a": "#f4e8ca",  # paper
    "e": "#e2a83c",  # amber
    "h": "#b83f2b",  # rust
    "b": "#80563a",  # bark
    "c": "#4d4441",  # dark stone
    "s": "#8f979d",  # stone
    "w": "#e9efef",  # snow
    "f": "#356a8c",  # fjord
    "g": "#a3c9cf",  # pale sky
    "n": "#1f3350",  # night
    "m": "#6f8f4e",  # moss
    "p": "#2f5645",  # pine
    "t": "#e0b086",  # skin
    "v": "#7a4668",  # heather
}


def sheet(weight=1.3):
    return Cut(INKS, weight)
