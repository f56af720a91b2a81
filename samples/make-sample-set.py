#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes sample.dkf.in, the sample set with placeholders for its folders.

@SAMPLES@ stands for the folder of the samples, @OUT@ for the folder of the created
images and @SET@ for the path of the set file itself. Whoever installs the samples puts
the real paths in.

Run it without arguments.
"""

from dataclasses import dataclass
from pathlib import Path

PICTURES = "@SAMPLES@/pictures/"
PARCHMENT, FROST, MOSS, VELLUM, HAZE, NONE = "parchment.jpg", "frost.bmp", "moss.jpg", "vellum.jpg", "haze.jpg", ""
WHITE = 0xFFFFFF
TWIPS = 15  # a pixel

# The card types that the cards below use: both halves, both halves reversed, number. From 16 they are the set's own.
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
    16: ("RUMOUR-", "Tavern", "-RUMOUR", "Tavern", "4"),
}
OWN_TYPES_FROM = 16

OWN_BACKS = [("Rumours", "rumour-back.bmp")]  # from row 28


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
    copies: int = 1


@dataclass
class LargeCard:
    title: str
    picture: str
    info: str
    left: int = 0
    top: int = 0
    width: int = 121  # of the frame
    frame: bool = True
    resize: bool = False
    background: str = NONE
    back: str = NONE  # the built-in one
    color: int = WHITE
    copies: int = 1


@dataclass
class Character:
    title: str
    picture: str
    piece: str
    alignment: str
    start: str
    strength: str
    craft: str
    gold: str
    lives: str
    abilities: str
    left: int = 0
    top: int = 0
    width: int = 121  # of the frame
    frame: bool = False
    background: str = NONE
    back: int = 0  # standard, master 1, master 2, user defined
    back_picture: str = NONE
    piece_left: int = 0
    piece_top: int = 0


@dataclass
class Design:
    """A user-designed back; colours are 0xRRGGBB."""
    name: str
    text: str
    inner: int = 0x000000
    ornament: int = 0xFFFFFF
    margin: int = 0xFFFFFF
    letters: int = 0xFFFFFF
    picture: str = NONE


CARDS = [
    Card("CINDERWING", 3, "dragon.jpg", left=-24, top=-26, bold="STRENGTH 7", artist="Ilse Varrow", back=8,
         info="Cinderwing sleeps on the ash of three burned towns. If you win, take 2 bags of gold from the hoard."),
    Card("BRIDGE TROLL", 15, "troll.bmp", bold="STRENGTH 6", artist="Ilse Varrow", background=MOSS, back=22,
         info="The troll stays until it is killed. You may pay it 1 gold and pass without a fight."),
    Card("WEEPING SHADE", 6, "shade.gif", left=16, resize=True, bold="CRAFT 4", artist="Bram Oxley", background=FROST, back=18,
         info="It mourns whoever it meets. Nobody can heal or gain lives in this space while it is here."),
    Card("OLD GREYMUZZLE", 2, "wolf.bmp", bold="STRENGTH 3", artist="Maëlle Dorn", background=FROST, copies=3,
         info="Too hungry to run from you."),
    Card("THISTLE IMP", 4, "imp.gif", left=23, top=-3, resize=True, bold="CRAFT 2", background=MOSS, back=12,
         info="If it wins, it takes no life but your newest object. Put that object in the woods."),
    Card("MARSH GULPER", 5, "gulper.jpg", frame=False, bold="STRENGTH 5", artist="Bram Oxley", background=MOSS, back=14, copies=2,
         info="It swallows before it bites: if you lose, one of your followers is gone as well."),
    Card("STAR-FALLEN WATCHER", 1, "watcher.gif", height=100, bold="CRAFT 6", back=9,
         info="Nobody knows what it counts. Before the fight, show it your spells. It has +1 for each of them.", background=FROST),
    Card("SUDDEN STORM", 7, "storm.jpg", left=-30, height=95, one_line=True, artist="Maëlle Dorn", back=24,
         info="Roads turn to mud and rivers to lakes. For one round nobody moves more than 1 space. Boats and rafts are lost. Then put this card on the discard pile."),
    Card("THE KING’S TITHE", 8, "tithe.wmf", artist="Tomas Quill", back=11,
         info="Every player with more than 3 gold pays 1 gold for each object beyond the fourth.|The law stands until the next event card is drawn."),
    Card("WANDERING HEALER", 14, "healer.jpg", left=11, resize=True, artist="Maëlle Dorn",
         info="She asks for nothing. Heal all lost lives, then she moves on: put her card on any space you choose."),
    Card("STUBBORN MULE", 9, "mule.bmp", height=90, one_line=True, artist="Tomas Quill", back=6, copies=2,
         info="The mule carries up to 4 objects for you. If you roll a 1 for your move, it will not budge, and you lose the turn.||It never fights."),
    Card("NOTCHED SWORD", 10, "sword.wmf", height=60, artist="Ilse Varrow", back=23,
         info="Add 1 to your strength in battle as long as you wield the sword.||When you roll a 1 in battle, another notch is made; roll again. On a second 1 the blade breaks: discard it."),
    Card("EMBERGLASS RING", 11, "ring.wmf", height=80, back=26,
         info="Once in each turn you may warm the ring in your hand and add 1 to your craft.||You cannot wear it together with any other ring."),
    Card("HOLLOWBROOK", 12, "village.bmp", left=-20, top=-8, artist="Tomas Quill", background=MOSS, back=2,
         info="Roll a die:|1-2 Nobody is at home.|3-4 A bed. Heal 1 life.|5 Sell objects at 1 gold each.|6 A child follows you."),
    Card("THE LEANING TANKARD", 12, "tavern.jpg", one_line=True, artist="Bram Oxley", back=5,
         info="You may buy a round for 1 gold. If you do, look at the top 3 cards of any deck and put them back in any order."),
    Card("VEIL OF MIST", 13, "mist.gif", height=70, frame=False, background=FROST, artist="Ilse Varrow", back=7, copies=4,
         info="Cast on any character before the die for the move is rolled. Until the end of that turn nobody can attack or rob the character, and strangers and enemies do not see it. The mist lifts at once when the character attacks or casts a spell."),
    Card("THE RED COMET", "OMEN", "comet.wmf", left=-6, top=-3, frame=False, artist="Bram Oxley", back=19, number="1", one_line=True,
         info="All spells cost nothing until the comet has passed. Put 3 counters here and remove one each round."),
    Card("A LONG WINTER", 7, NONE, height=20, background=NONE, color=0xFFF4E6, back=27, bold="LASTS 4 ROUNDS",
         info="Snow covers the whole land.||Each character who ends a turn in the open must discard 1 follower or lose 1 life. Villages, taverns and castles are safe, and so is anyone who carries a fire.||When the fourth round is over, discard this card and draw a new one in its stead."),
    Card("A WHISPER AT THE TABLE", 16, "whisper.jpg", artist="Maëlle Dorn", back=28,
         info="Look at the next 2 cards of the deck of your choice and keep one of them in your hand.|On a die roll of 1 it was a lie: discard both."),
]

LARGE_CARDS = [
    LargeCard("THE DROWNED CATHEDRAL", "cathedral.jpg", left=-20, top=-22, color=0xFFF8E8,
              info="Whoever can breathe under water or owns a boat may go in. Roll a die for each turn inside:||"
                   "1  The tide comes in. Lose 1 life and move out.|2  Only fish. Nothing happens.|3  Coins on the floor: take 1 gold.|"
                   "4  The bell rings below the waves. Gain 1 spell.|5  The drowned choir sings. Heal all lost lives.|"
                   "6  The altar stands open. Take the top object of any discard pile.||Leave whenever you like."),
    LargeCard("THE SKY FERRY", "skyferry.jpg", top=36, width=140, resize=True, color=0xE8F4FF,
              info="The ferry lands on any space where a character ends a turn with at least 2 gold.||"
                   "Pay 2 gold for yourself and 1 for each follower. In your next turn do not roll for your move: step off on any space of the same region.||"
                   "Followers that you cannot pay for stay behind.||When a storm is drawn, the ferry is lost with all who are on board; they lose 1 life each."),
    LargeCard("THE ROYAL TOURNAMENT", NONE, background=VELLUM, back="tourney-back.jpg", copies=2,
              info="Heralds ride through the land. For three rounds nobody may attack another character, for all are guests of the king.||"
                   "Then every character within two spaces of the castle may enter the lists for 1 gold. "
                   "The others look on, and may bet up to 3 gold on a rider.||"
                   "Each rider rolls two dice and adds strength. A horse adds 2, a lance 1. The lowest is unhorsed and loses 1 life; "
                   "the others ride again, until one is left. The winner takes all the fees and one of these:|"
                   "-  the king’s purse, 4 gold;|-  a steed, which carries the rider 1 space farther in each move;|"
                   "-  the king’s word: once in the game, no law touches the rider.|"
                   "Bets on the winner are paid back twice. All others are lost."),
]

CHARACTERS = [
    Character("ASH KNIGHT", "knight.jpg", "knight-piece.jpg", "GOOD", "CASTLE", "4", "2", "1", "5", frame=True,
              abilities="Your burning sword adds 1 to your strength against all trolls and beasts.|Fire never harms you."),
    Character("MARSH WITCH", "witch.jpg", "witch-piece.jpg", "EVIL", "CURSED GLADE", "2", "5", "---", "4", back=1,
              abilities="You begin the game with one spell.|You may turn any animal that you meet into a frog and let it be.|"
                        "For 1 gold you brew a draught in the woods: heal 1 life, your own or another’s.|Spirits do not see you."),
    Character("TINKER GNOME", "gnome.jpg", "gnome-piece.gif", "AS BEFORE", "FLASK STREET", "+1", "+1", "3", "---", back=2,
              left=-2, width=118, frame=True, piece_top=-2,
              abilities="Keep the objects, followers and gold of the character that you were.|Each turn you may take one object apart. Roll a die:|"
                        "1  A bang. Lose 1 life.|2-3  Scrap.|4-5  Sell it for 2 gold.|6  Draw two objects, keep one.|You may carry 6 objects.|"
                        "No lock stays shut before you."),
    Character("STORM BARD", "bard.jpg", "bard-piece.jpg", "NEUTRAL", "TAVERN", "3", "3", "---", "---", back=3, back_picture="bard-back.jpg",
              background=HAZE,
              abilities="Wherever you meet a stranger you may sing first, and then roll two dice and take the one you like.|"
                        "Storms and floods do you no harm; you may end them.|At an inn, take 1 gold instead of a roll.|"
                        "A follower who joins you never leaves of its own will.||You cannot wear armour: you could not hold the lute."),
    Character("RANGER OF THE NORTH", "ranger.jpg", "ranger-piece.jpg", "NEUTRAL", "CRAGS", "3", "4", "+1", "4", frame=True,
              abilities="Before a battle with an enemy you may shoot: roll a die. On a 5 or 6 it is dead before it reaches you.|"
                        "You need not roll in the crags and in the forest.|Cold and snow never cost you a life."),
]

DESIGNS = [
    Design("Guild of Thieves", "THIEVES", inner=0x3A1248, ornament=0xE8C45A, margin=0x1A0820, letters=0xF6E2A6),
    Design("Northern Realm", "THE NORTH", inner=0x1C4A6A, ornament=0xDFF2FA, margin=0x9AC8DC),
    Design("Harbour", "HARBOUR", letters=0x24103A, picture="harbour.jpg"),
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

    def picture(self, name):
        self.text(PICTURES + name if name else "")

    def font(self, name, size, bold, color):
        self.text(name)
        self.number(size)
        self.boolean(bold, False)
        self.number(color)

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
        out.font("Small Fonts", size, bold, color)


def write_own_types(out):
    own = [row for row in TYPES if row >= OWN_TYPES_FROM]
    out.number(len(own))
    for row in own:
        *texts, number = TYPES[row]
        out.text(*texts)
        out.number(int(number))
        out.boolean(False)


def write_own_backs(out):
    out.number(len(OWN_BACKS))
    for name, picture in OWN_BACKS:
        out.text(name)
        out.picture(picture)
        out.boolean(False)


def write_design(out, design):
    def color(rgb):
        return (rgb & 0xFF) << 16 | rgb & 0xFF00 | rgb >> 16
    out.text(design.text, "")  # no image created yet
    out.number(color(design.ornament), color(design.inner))
    out.text(design.name)
    out.number(color(design.margin))
    out.picture(design.picture)
    out.boolean(design.picture != NONE)
    out.font("Arial", 18, True, color(design.letters))


def write_card(out, card):
    row, halves = (-1, (card.type, "", card.type, "", card.number)) if isinstance(card.type, str) else (card.type, TYPES[card.type])
    name, sub, name_reversed, sub_reversed, number = halves
    out.text(card.title)
    out.number(card.copies)
    out.text(name, sub, name_reversed, sub_reversed)
    out.boolean(card.one_line)
    out.number(row)
    out.text(number)
    out.boolean(card.picture != NONE)
    out.picture(card.picture)
    out.number(card.top * TWIPS, card.height, card.left * TWIPS)
    out.boolean(card.frame, card.resize)
    out.text(card.artist, card.bold, card.info)
    out.picture(card.background)
    out.number(card.back, card.color)
    out.text("")  # no image created yet


def write_large_card(out, card):
    out.text(card.title)
    out.number(card.copies)
    out.boolean(card.picture != NONE)
    out.picture(card.picture)
    out.number(card.top * TWIPS, card.left * TWIPS, card.width)
    out.boolean(card.frame, card.resize)
    out.text(card.info)
    out.picture(card.background)
    out.picture(card.back)
    out.number(card.color)
    out.text("")  # no image created yet


def write_character(out, character):
    out.text(character.title, character.abilities, character.alignment)
    out.picture(character.background)
    out.text(character.craft, "", character.gold, character.lives)  # between craft and gold: no image created yet
    out.number(character.left * TWIPS, character.top * TWIPS)
    out.picture(character.picture)
    out.number(character.width)
    out.text(character.start, character.strength)
    out.boolean(character.frame, character.picture != NONE)
    out.number(character.back)
    out.picture(character.back_picture)
    out.picture(character.piece)
    out.number(character.piece_left * TWIPS, character.piece_top * TWIPS)


def main():
    out = SetFile()
    write_header(out)
    write_own_types(out)
    write_own_backs(out)
    for write, records in ((write_design, DESIGNS), (write_card, CARDS), (write_large_card, LARGE_CARDS),
                           (write_character, CHARACTERS)):
        out.number(len(records))
        for record in records:
            write(out, record)
    out.number(1)  # what the next card starts with: back, type, number, background
    out.text("ENEMY-", "-ENEMY", "Animal", "Animal")
    out.number(2)
    out.text("", "-- END --")
    out.save(Path(__file__).resolve().parent / "sample.dkf.in")


if __name__ == "__main__":
    main()
