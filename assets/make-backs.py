#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the built-in card backs: backs/imgCB-00.svg to imgCB-26.svg and backs/picBack.svg
for standard cards, backs/imgChB-0.svg to imgChB-3.svg for character cards and large cards.

All backs are one family, as if cut in wood by one hand: the border of two plaited bands with
its carved corners, the panel, the emblem and the ribbon with the name. Each has its own palette,
field, emblem and style of lettering. The order of BACKS is the order of the built-in card
backs, since a back is found by its index alone; so it is with WIDE_BACKS.

Run it without arguments; it writes beside itself.
"""

from pathlib import Path

import backs
import emblems_arms as arms
import emblems_lore as lore
import emblems_realm as realm
from backs import back, palette

CARD = (150, 254)
IVORY, GOLD = "#f5e9c9", "#f0bf4a"

BACKS = [  # name, lettering, field, emblem, palette
    ("Adventure", "roman", backs.field_rays, realm.adventure, palette("#b3261f", "#7c120f", "#8a1713", "#3c0a08", "#f2c65a", "#a8601c", a=IVORY, b="#d9c08a", e=GOLD, h="#2c6e7f")),
    ("City", "bold", backs.field_lines, realm.city, palette("#4f86b8", "#1f4f82", "#b9d8ea", "#12294a", "#dfe8ee", "#6f97bd", a=IVORY, b="#d8b98c", c="#8f7a5c", e="#c4452f", h=GOLD)),
    ("Dungeon 1", "timber", backs.field_stone, realm.dungeon_gate, palette("#5b5f66", "#33363d", "#3b3e45", "#17191d", "#c3c7c9", "#71767d", a="#c9ccd0", b="#9aa0a5", c="#6d665d", e="#ee7a1c", h="#ffd95a")),
    ("Dungeon 2", "timber", backs.field_stone, realm.dungeon_bones, palette("#7c4a2a", "#472412", "#532c17", "#241007", "#e5c083", "#93602f", a="#f4ead2", b="#cdb68c", e="#e9b347", h="#b8281e")),
    ("Loan", "fine", backs.field_damask, realm.balance, palette("#2f7a4c", "#124a2b", "#195a36", "#08261a", "#e9cf83", "#87903e", a="#f3e3b6", b="#c99a3d", e="#f5cf56", h="#b3331f")),
    ("Purchase", "bold", backs.field_damask, realm.purse, palette("#e3a62c", "#b56f12", "#bd7c17", "#4a2606", "#ffe7a0", "#c57f1c", a=IVORY, b="#9b5a34", e="#ffd95c", h="#8e1f1a")),
    ("Spell", "uncial", backs.field_stars, lore.spell, palette("#5d2f92", "#2f1258", "#b48ae0", "#1b0836", "#d9b9f5", "#7d4db2", a="#f5e4cf", b="#d9b896", c="#3c2a66", e="#ffb52e", h="#ffe98a")),
    ("Varnhelm", "roman", backs.field_rays, lore.varnhelm, palette("#2b2a33", "#121117", "#5a4a24", "#0d0c10", "#ecc561", "#8c6a26", a="#f2ecdc", b="#aeb4bd", c="#7a4a28", e="#eabb48", h="#c2281f")),
    ("Timescape", "fine", backs.field_stars, lore.timescape, palette("#15528f", "#08244d", "#6fb4e6", "#041226", "#8fdcf2", "#2f77a8", a="#e9fbff", b="#b9c4d2", c="#0d2440", e="#5fe3d6", h="#ffd95c")),
    ("Purchase Timescape", "fine", backs.field_stars, lore.star_coin, palette("#15807f", "#064746", "#7ed9cb", "#032626", "#f5d27a", "#7f8f4a", a="#fff6d8", b="#e39d2e", c="#0b3a3e", e="#fad15a", h="#d65a1f")),
    ("Warrant", "roman", backs.field_pales, lore.warrant, palette("#c9ac74", "#8f7038", "#a88850", "#3d2c12", "#f3e3b4", "#a3803f", a="#fbf3dc", b="#b98a4a", c="#6e4522", e="#b3211c", h="#d8402c")),
    ("Faeries", "uncial", backs.field_leaves, lore.faeries, palette("#cf6fa6", "#94306e", "#e7a3c9", "#4a1238", "#fbd8ea", "#c2669c", a="#fff3ea", b="#8cc97c", c="#5b2c4e", e="#f2c14e", h="#7fd0c0")),
    ("Island", "roman", backs.field_lines, realm.island, palette("#63bfd0", "#2187a4", "#cdeff0", "#0a3c52", "#fbeec0", "#5fa9b5", a="#ecd9a4", b="#2d7fb0", c="#a58654", e="#f7b63a", h="#3f8a4c")),
    ("Mystic Brew", "uncial", backs.field_scales, lore.cauldron, palette("#4f8f1f", "#234f0c", "#35700f", "#122a06", "#cdf06a", "#6d9a2c", a="#dfe3d0", b="#56585e", c="#2e3036", e="#f58a1f", h="#b9f04a")),
    ("Contract", "fine", backs.field_pales, lore.contract, palette("#8c3a2a", "#541a12", "#64231a", "#2b0b07", "#ecc9a2", "#a25c3f", a="#fbf1d9", b="#d9bd8a", c="#6b3a24", e="#c52a1c", h="#7fb0c4")),
    ("Diablo II", "roman", backs.field_rays, lore.arms_chevrons, palette("#8fb0ac", "#4a736f", "#688f8b", "#18302e", "#eef4ec", "#7ba09b", a="#f7f1de", b="#d3a544", e="#1f6a66", h="#d3a544")),
    ("Diablo II Artifact", "roman", backs.field_damask, lore.arms_lozenge, palette("#a68cb8", "#684a80", "#856a9a", "#2c1b3b", "#f2e6f5", "#9a7fae", a="#f7f1de", b="#d3a544", e="#7a2f6d", h="#e2b04a")),
    ("Cursed Swamp", "gothic", backs.field_waves, realm.swamp, palette("#5d6b34", "#2c3716", "#465226", "#171d0b", "#c7cf8e", "#6f7c3e", a="#dfe0b4", b="#6a5a48", c="#44522c", e="#e6e2a0", h="#9fc23c")),
    ("Transformations", "uncial", backs.field_rays, lore.transformations, palette("#e2701e", "#a83d0b", "#bb4b10", "#471805", "#ffd690", "#c9702a", a="#fdf0c4", b="#3f9a5a", c="#37305e", e="#ffd24a", h="#f8efd2")),
    ("Space Hulk", "bold", backs.field_pales, lore.arms_fess, palette("#7d8fb0", "#3f5078", "#5d7096", "#161f38", "#e6ecf5", "#7a8db0", a="#f7f1de", b="#b9bfc8", e="#28427e", h="#e2b04a")),
    ("Realm Of Chaos", "roman", backs.field_damask, lore.arms_wavy, palette("#8e2446", "#4f0d24", "#641530", "#28050f", "#f3cdb2", "#a64a5e", a="#f7f1de", b="#d3a544", e="#2a3f70", h="#d6a83e")),
    ("Trolls", "timber", backs.field_leaves, lore.troll, palette("#97a86a", "#56683a", "#75894c", "#222c12", "#e8edc2", "#8b9c5c", a="#fbf3d4", b="#7f9a86", c="#5a4632", e="#c4452f", h="#f2c53d")),
    ("Trolls Treasure", "timber", backs.field_rays, lore.chest, palette("#4a5a2c", "#222c10", "#364420", "#12180a", "#f3cf62", "#8a7a2c", a="#fdf3c8", b="#a5673a", c="#6d7076", e="#f8cb45", h="#c92c28")),
    ("Sea Realm", "roman", backs.field_scales, realm.sea_realm, palette("#1b6a94", "#083856", "#10507a", "#041c2e", "#9fe0e4", "#2f86a0", a="#eaf5ea", b="#3fa6a6", e="#f3b33c", h="#e8614a")),
    ("Desert", "roman", backs.field_rays, realm.desert, palette("#ecbc62", "#c98028", "#d99c42", "#5a2c08", "#fff0c0", "#c98a38", a="#fff3cc", b="#a6462a", c="#7c3a1c", e="#f58a1e", h="#ffdf5e")),
    ("Warlock's Maze", "gothic", backs.field_lines, lore.maze, palette("#3a2362", "#180b33", "#5d3f92", "#0d051c", "#f29a4e", "#7a3f72", a="#efdcb8", b="#8a5a3c", c="#20123a", e="#f5732a", h="#ffd24a")),
    ("Blank", "roman", backs.field_plain, lore.blank, palette("#faf6ea", "#f4eedd", "#faf6ea", "#3d3a36", "#d9d5ca", "#8b867c")),
]

SEAL = palette("#23375c", "#0e1830", "#33507e", "#0a1020", "#ecc561", "#8c6a26", a="#f2ecdc", b="#aeb4bd", c="#16233f", e="#eabb48", h="#b3261f")
DEFAULT = ("roman", backs.field_rays, arms.great_seal, SEAL)

# The last row is the usual back of a large card: flat colours, few enough for a palette of sixteen.
WIDE_BACKS = [  # title, size, name, lettering, field, emblem, palette
    ("STANDARD", (302, 254), "Varnhelm", "roman", backs.field_rays, arms.sword_and_staff,
     palette("#7a1f22", "#430c10", "#56131a", "#24060a", "#ecc561", "#9a5a26", a="#f2ecdc", b="#aeb4bd", c="#6a4426", e="#eabb48", h="#235a6e")),
    ("MASTER 1", (302, 254), "Master I", "roman", backs.field_damask, arms.crowned_lions,
     palette("#1f4f86", "#0b2448", "#123768", "#071327", "#f2d27a", "#7f7a4c", a="#f7efdc", b="#d9a93e", c="#7a4a28", e="#f0c04c", h="#b3261f")),
    ("MASTER 2", (302, 254), "Master II", "roman", backs.field_leaves, arms.oak_and_orb,
     palette("#2c6a48", "#0f3321", "#1a4a30", "#081b11", "#f0dc9a", "#7f8a4a", a="#f7efdc", b="#8fae4e", c="#6b4a2a", e="#e9b944", h="#8c2450")),
    ("Large card", (302, 254), "", "roman", backs.field_plain, arms.great_arms,
     palette("#8a2a24", "#8a2a24", "#8a2a24", "#2a0a0a", "#e8c060", "#a06028", a="#f2e8d0", b="#a8b0b8", c="#60442c", e="#e8c060", h="#204860"), (304, 256)),
]


def main():
    folder = Path(__file__).resolve().parent / "backs"
    folder.mkdir(exist_ok=True)

    def save(name, drawing):
        (folder / name).write_text(drawing, encoding="utf-8", newline="\n")

    for index, (name, *row) in enumerate(BACKS):
        save(f"imgCB-{index:02}.svg", back(name, CARD, "" if name == "Blank" else name, *row))
    save("picBack.svg", back("Varnhelm", CARD, "", *DEFAULT))
    for index, (title, size, *row) in enumerate(WIDE_BACKS):
        save(f"imgChB-{index}.svg", back(title, size, *row))


if __name__ == "__main__":
    main()
