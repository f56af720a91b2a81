// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Vocabulary.h"

#include "core/SetTables.h"

#include <array>

namespace deckforge {

namespace {

struct TypeRow {
    const char* Name;
    const char* SubName;
    const char* ReversedName;
    const char* ReversedSubName;
    int16 Number;
};

// The order must not change: cards and files of older versions refer to types by row. The first part of a
// type in two parts ends with the hyphen.
constexpr std::array<TypeRow, BuiltInTypeCount> TypeRows = {{
    {"ENEMY-", "Alien", "-ENEMY", "Alien", 2},
    {"ENEMY-", "Animal", "-ENEMY", "Animal", 2},
    {"ENEMY-", "Dragon", "-ENEMY", "Dragon", 2},
    {"ENEMY-Fey", "", "Fey-ENEMY", "", 2},
    {"ENEMY-", "Monster", "-ENEMY", "Monster", 2},
    {"ENEMY-", "Spirit", "-ENEMY", "Spirit", 3},
    {"EVENT", "", "EVENT", "", 1},
    {"EVENT-Law", "", "Law-EVENT", "", 1},
    {"FOLLOWER", "", "FOLLOWER", "", 5},
    {"OBJECT", "", "OBJECT", "", 5},
    {"OBJECT-", "Magic", "-OBJECT", "Magic", 5},
    {"PLACE", "", "PLACE", "", 6},
    {"SPELL", "", "SPELL", "", -1},
    {"STRANGER", "", "STRANGER", "", 4},
    {"ENEMY-Troll", "", "Troll-ENEMY", "", 2},
}};

// The art of row r is the picture with number r - 1.
constexpr char BackNames[] =
    "Adventure|City|Dungeon 1|Dungeon 2|Loan|Purchase|Spell|Varnhelm|Timescape|Purchase Timescape|"
    "Warrant|Faeries|Island|Mystic Brew|Contract|Diablo II|Diablo II Artifact|Cursed Swamp|"
    "Transformations|Space Hulk|Realm Of Chaos|Trolls|Trolls Treasure|Sea Realm|Desert|"
    "Warlock's Maze|Blank";

constexpr int TypeOfNewCards = 2;

/// The places of a region; an area is "REGION-PLACE".
struct Region {
    const char* Name;
    const char* Places;
};

// Kept: three places of the city have a typographic apostrophe.
constexpr Region Regions[] = {
    {"MAIN",
     "VILLAGE|FIELDS|GRAVEYARD|WOODS|SENTINEL|HILLS|CHAPEL|CRAGS|PLAINS|CITY|TAVERN|RUINS|FOREST|"
     "PORTAL OF POWER|BLACK KNIGHT|HIDDEN VALLEY|CURSED GLADE|RUNES|CHASM|WARLOCK'S CAVE|DESERT|OASIS|"
     "TEMPLE|CASTLE|PLAIN OF PERIL|MINES|CRYPT|VAMPIRE'S TOWER|DICE WITH DEATH|PITS|WEREWOLF DEN|"
     "VALLEY OF FIRE|CROWN OF COMMAND"},
    {"CITY", "HIGH TEMPLE|HIGH TEMPLE SQUARE|APOTHECARY|THE BANK|THE WHARF|THE PENTAGRAM|MAGIC EMPORIUM|"
             "FLASK STREET|GOLD LANE|THE 6 FATES INN|NORTH SIDE ALLEY|SOUTH SIDE ALLEY|ENCHANTRESS|DONJON|"
             "ROYAL CASTLE|IMPERIAL AVENUE|TOWN SQUARE|SPEAKERS’ CORNER|STREET OF TEMPLES|STABLES|"
             "ANARCHISTS GUILD|GUILDS’ STREET|CITY GATE|DOCTOR’S SURGERY|DROPPINGS LANE|ARMOURY"},
    {"DUNGEON", "TUNNEL|VAULT|CORRIDOR|CELL|LIBRARY|KITCHEN|TREASURE CHAMBER|CAVERN|CHAMBER OF DARKNESS|"
                "TORTURE CHAMBER|GUARD ROOM|ENTRANCE"},
    {"TIMESCAPE",
     "FOURTH DIMENSION|WARP GATE|WARP DEMON|LIMBO|NEGATIVE ZONE|TIME LOOP|ASTRAL PLANE|VORTEX|NEXUS|"
     "RAD ZONE|PLANET-FALL|REALM OF CHAOS|DEATH WORLD|THE VOID|SPACE FORTRESS|SENTINEL OUTPOST"},
};

} // namespace

void InitCardTypes(CardSet& set)
{
    set.CardTypes.Clear();
    for (const TypeRow& row : TypeRows) {
        set.CardTypes.Add() = {.Name = row.Name,
                               .SubName = row.SubName,
                               .ReversedName = row.ReversedName,
                               .ReversedSubName = row.ReversedSubName,
                               .Number = row.Number,
                               .BuiltIn = true};
    }
    ChooseDefaultType(set, TypeOfNewCards);
}

void InitCardBacks(CardSet& set)
{
    set.CardBacks.Clear();
    for (const QString& name : QString::fromLatin1(BackNames).split(QLatin1Char('|')))
        set.CardBacks.Add() = {.Name = name, .Picture = {}, .BuiltIn = true};
    set.LastCardBack = 1;
}

const QStringList& CardNumbers()
{
    static const QStringList list = {"1", "2", "3", "4", "5", "6"};
    return list;
}

const QStringList& CharacterBackNames()
{
    static const QStringList list = {"STANDARD", "MASTER 1", "MASTER 2", UserDefinedBack()};
    return list;
}

const QStringList& Alignments()
{
    static const QStringList list = {"AS BEFORE", "GOOD", "EVIL", "NEUTRAL"};
    return list;
}

const QStringList& StartAreas()
{
    static const QStringList list = [] {
        QStringList areas;
        for (const Region& region : Regions) {
            for (const QString& place : QString(region.Places).split(QLatin1Char('|')))
                areas += QLatin1String(region.Name) + QLatin1Char('-') + place;
        }
        return areas;
    }();
    return list;
}

const QStringList& AttributeValues()
{
    static const QStringList list =
        QStringLiteral("+9 +8 +7 +6 +5 +4 +3 +2 +1 +0 --- 1 2 3 4 5 6 7 8 9").split(QLatin1Char(' '));
    return list;
}

const QStringList& SaveFormats()
{
    static const QStringList list = {"BMP", "JPG", "GIF"};
    return list;
}

QString UserDefinedBack()
{
    return QStringLiteral("User defined");
}

QString TypeListEntry(const CardType& type)
{
    return type.Name + type.SubName;
}

} // namespace deckforge
