#!/usr/bin/env python3
"""Writes sample.dkf.in, the sample set with placeholders for its folders.

@SAMPLES@ stands for the folder of the samples, @OUT@ for the folder of the created
images and @SET@ for the path of the set file itself. Whoever installs the samples puts
the real paths in.

Run it without arguments.
"""

from dataclasses import dataclass
from pathlib import Path

PICTURES = "@SAMPLES@/pictures/"
PARCHMENT, FROST, MOSS, NONE = "parchment.jpg", "frost.bmp", "moss.jpg", ""
WHITE = 0xFFFFFF
TWIPS = 15  # a pixel

# The built-in card types that the cards below use: both halves, both halves reversed, number.
TYPES = {
    1: ("ENEMY-", "Alien", "-ENEMY", "Alien", "2"),
    2: ("ENEMY-", "Animal", "-ENEMY", "Animal", "2"),
    3: ("ENEMY-", "Dragon", "-ENEMY", "Dragon", "2"),
    4: ("ENEMY-Fey", "", "Fey-ENEMY", "", "2"),
    5: ("ENEMY-", "Monster", "-ENEMY", "Monster", "2"),
    6: ("ENEMY-", "Spirit", "-ENEMY", "Spirit", "3"),
    7: ("EVENT", "", "EVENT", "", "1"),
    8: ("EVENT-Law", "", "Law-EVENT", "", "1"),
    9: ("FOLLOWER", "", "FOLLOWER", "", "5"),
    10: ("OBJECT", "", "OBJECT", "", "5"),
    11: ("OBJECT-", "Magic", "-OBJECT", "Magic", "5"),
    12: ("PLACE", "", "PLACE", "", "6"),
    13: ("SPELL", "", "SPELL", "", ""),
    14: ("STRANGER", "", "STRANGER", "", "4"),
    15: ("ENEMY-Troll", "", "Troll-ENEMY", "", "2"),
}


@dataclass
class Card:
    title: str
    type: int | str  # a row of TYPES, or a type typed freely
    picture: str
    info: str  # "|" breaks a line
    bold: str = ""
    left: int = 0  # of the picture in its frame, in pixels
    top: int = 0
    height: int = 105  # of the frame
    frame: bool = True
    resize: bool = False
    one_line: bool = False
    artist: str = ""
    background: str = PARCHMENT
    back: int = 1
    color: int = WHITE
    number: str = ""  # of a freely typed type; the others bring their own


CARDS = [
    Card("CINDERWING", 3, "dragon.jpg", left=-24, top=-26, bold="STRENGTH 7", artist="Ilse Varrow", back=8,
         info="Cinderwing sleeps on the ash of three burned towns. If you win, take 2 bags of gold from the hoard."),
    Card("BRIDGE TROLL", 15, "troll.bmp", bold="STRENGTH 6", artist="Ilse Varrow", background=MOSS, back=22,
         info="The troll stays until it is killed. You may pay it 1 gold and pass without a fight."),
    Card("WEEPING SHADE", 6, "shade.gif", left=16, resize=True, bold="CRAFT 4", artist="Bram Oxley", background=FROST, back=18,
         info="It mourns whoever it meets. Nobody can heal or gain lives in this space while it is here."),
    Card("OLD GREYMUZZLE", 2, "wolf.bmp", bold="STRENGTH 3", artist="Maëlle Dorn", background=FROST,
         info="Too hungry to run from you."),
    Card("THISTLE IMP", 4, "imp.gif", left=23, top=-3, resize=True, bold="CRAFT 2", background=MOSS, back=12,
         info="If it wins, it takes no life but your newest object. Put that object in the woods."),
    Card("MARSH GULPER", 5, "gulper.jpg", frame=False, bold="STRENGTH 5", artist="Bram Oxley", background=MOSS, back=14,
         info="It swallows before it bites: if you lose, one of your followers is gone as well."),
    Card("STAR-FALLEN WATCHER", 1, "watcher.gif", height=100, bold="CRAFT 6", back=9,
         info="Nobody knows what it counts. Before the fight, show it your spells. It has +1 for each of them.", background=FROST),
    Card("SUDDEN STORM", 7, "storm.jpg", left=-30, height=95, one_line=True, artist="Maëlle Dorn",
         info="Roads turn to mud and rivers to lakes. For one round nobody moves more than 1 space. Boats and rafts are lost. Then put this card on the discard pile."),
    Card("THE KING’S TITHE", 8, "tithe.wmf", artist="Tomas Quill", back=11,
         info="Every player with more than 3 gold pays 1 gold for each object beyond the fourth.|The law stands until the next event card is drawn."),
    Card("WANDERING HEALER", 14, "healer.jpg", left=11, resize=True, artist="Maëlle Dorn",
         info="She asks for nothing. Heal all lost lives, then she moves on: put her card on any space you choose."),
    Card("STUBBORN MULE", 9, "mule.bmp", height=90, one_line=True, artist="Tomas Quill", back=6,
         info="The mule carries up to 4 objects for you. If you roll a 1 for your move, it will not budge, and you lose the turn.||It never fights."),
    Card("NOTCHED SWORD", 10, "sword.wmf", height=60, artist="Ilse Varrow", back=23,
         info="Add 1 to your strength in battle as long as you wield the sword.||When you roll a 1 in battle, another notch is made; roll again. On a second 1 the blade breaks: discard it."),
    Card("EMBERGLASS RING", 11, "ring.wmf", height=80, back=26,
         info="Once in each turn you may warm the ring in your hand and add 1 to your craft.||You cannot wear it together with any other ring."),
    Card("HOLLOWBROOK", 12, "village.bmp", left=-20, top=-8, artist="Tomas Quill", background=MOSS, back=2,
         info="Roll a die:|1-2 Nobody is at home.|3-4 A bed. Heal 1 life.|5 Sell objects at 1 gold each.|6 A child follows you."),
    Card("THE LEANING TANKARD", 12, "tavern.jpg", one_line=True, artist="Bram Oxley", back=2,
         info="You may buy a round for 1 gold. If you do, look at the top 3 cards of any deck and put them back in any order."),
    Card("VEIL OF MIST", 13, "mist.gif", height=70, frame=False, background=FROST, artist="Ilse Varrow", back=7,
         info="Cast on any character before the die for the move is rolled. Until the end of that turn nobody can attack or rob the character, and strangers and enemies do not see it. The mist lifts at once when the character attacks or casts a spell."),
    Card("THE RED COMET", "OMEN", "comet.wmf", left=-6, top=-3, frame=False, artist="Bram Oxley", back=19, number="1", one_line=True,
         info="All spells cost nothing until the comet has passed. Put 3 counters here and remove one each round."),
    Card("A LONG WINTER", 7, NONE, height=20, background=NONE, color=0xFFF4E6, back=27, bold="LASTS 4 ROUNDS",
         info="Snow covers the whole land.||Each character who ends a turn in the open must discard 1 follower or lose 1 life. Villages, taverns and castles are safe, and so is anyone who carries a fire.||When the fourth round is over, discard this card and draw a new one in its stead."),
]

FONTS = [  # in the order of the file: size, bold, colour
    ("title", 7, True, 0), ("type", 7, False, 0), ("number", 7, False, 0), ("bold line", 7, True, 0), ("text", 7, False, 0),
    ("running number", 5, False, 0), ("large title", 7, True, 0), ("large text", 7, False, 0), ("character", 7, True, 0xFFFFFF),
    ("abilities title", 7, True, 0), ("abilities", 7, False, 0), ("alignment", 6, True, 0), ("playing piece", 7, True, 0),
]


class SetFile:
    """The lines of a set file; one method for each kind of line."""

    def __init__(self):
        self.lines = []

    def text(self, *values):
        self.lines += values

    def boolean(self, *values):
        self.lines += ("True" if value else "False" for value in values)

    def number(self, *values):
        self.lines += (f"{value:.15g} " if value < 0 else f" {value:.15g} " for value in values)

    def save(self, path):
        path.write_bytes("".join(line + "\r\n" for line in self.lines).encode("cp1252"))


def write_header(out):
    out.text("Amber Gnome - Varnhelm Deck Foundry", "Version 10", "-- START --")
    out.text("Varnhelm Sample", "@SET@", "@OUT@/")
    out.boolean(True)  # running numbers
    out.text(PICTURES + "symbol.gif", "sample")
    out.boolean(True, False)  # number in file names; images without a back
    out.number(0)  # BMP
    out.boolean(False)  # spaces in file names stay
    out.number(0x606060)  # colour of the artist's name
    for _, size, bold, color in FONTS:
        out.text("Small Fonts")
        out.number(size)
        out.boolean(bold, False)
        out.number(color)


def write_card(out, card):
    row, halves = (-1, (card.type, "", card.type, "", card.number)) if isinstance(card.type, str) else (card.type, TYPES[card.type])
    name, sub, name_reversed, sub_reversed, number = halves
    out.text(card.title)
    out.number(1)  # copies
    out.text(name, sub, name_reversed, sub_reversed)
    out.boolean(card.one_line)
    out.number(row)
    out.text(number)
    out.boolean(card.picture != NONE)
    out.text(PICTURES + card.picture if card.picture else "")
    out.number(card.top * TWIPS, card.height, card.left * TWIPS)
    out.boolean(card.frame, card.resize)
    out.text(card.artist, card.bold, card.info, PICTURES + card.background if card.background else "")
    out.number(card.back, card.color)
    out.text("")  # no image created yet


def main():
    out = SetFile()
    write_header(out)
    out.number(0, 0, 0)  # own types, own backs, designed backs
    out.number(len(CARDS))
    for card in CARDS:
        write_card(out, card)
    out.number(0, 0)  # large cards, characters
    out.number(1)  # what the next card starts with: back, type, number, background
    out.text("ENEMY-", "-ENEMY", "Animal", "Animal")
    out.number(2)
    out.text("", "-- END --")
    out.save(Path(__file__).resolve().parent / "sample.dkf.in")


if __name__ == "__main__":
    main()
