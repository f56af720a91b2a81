// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Vocabulary.h"

namespace deckforge {

namespace {

// Region, hyphen, place. Kept: three places of the city have a typographic apostrophe.
constexpr const char16_t* Areas[] = {
    u"MAIN-VILLAGE",
    u"MAIN-FIELDS",
    u"MAIN-GRAVEYARD",
    u"MAIN-WOODS",
    u"MAIN-SENTINEL",
    u"MAIN-HILLS",
    u"MAIN-CHAPEL",
    u"MAIN-CRAGS",
    u"MAIN-PLAINS",
    u"MAIN-CITY",
    u"MAIN-TAVERN",
    u"MAIN-RUINS",
    u"MAIN-FOREST",
    u"MAIN-PORTAL OF POWER",
    u"MAIN-BLACK KNIGHT",
    u"MAIN-HIDDEN VALLEY",
    u"MAIN-CURSED GLADE",
    u"MAIN-RUNES",
    u"MAIN-CHASM",
    u"MAIN-WARLOCK'S CAVE",
    u"MAIN-DESERT",
    u"MAIN-OASIS",
    u"MAIN-TEMPLE",
    u"MAIN-CASTLE",
    u"MAIN-PLAIN OF PERIL",
    u"MAIN-MINES",
    u"MAIN-CRYPT",
    u"MAIN-VAMPIRE'S TOWER",
    u"MAIN-DICE WITH DEATH",
    u"MAIN-PITS",
    u"MAIN-WEREWOLF DEN",
    u"MAIN-VALLEY OF FIRE",
    u"MAIN-CROWN OF COMMAND",

    u"CITY-HIGH TEMPLE",
    u"CITY-HIGH TEMPLE SQUARE",
    u"CITY-APOTHECARY",
    u"CITY-THE BANK",
    u"CITY-THE WHARF",
    u"CITY-THE PENTAGRAM",
    u"CITY-MAGIC EMPORIUM",
    u"CITY-FLASK STREET",
    u"CITY-GOLD LANE",
    u"CITY-THE 6 FATES INN",
    u"CITY-NORTH SIDE ALLEY",
    u"CITY-SOUTH SIDE ALLEY",
    u"CITY-ENCHANTRESS",
    u"CITY-DONJON",
    u"CITY-ROYAL CASTLE",
    u"CITY-IMPERIAL AVENUE",
    u"CITY-TOWN SQUARE",
    u"CITY-SPEAKERS’ CORNER",
    u"CITY-STREET OF TEMPLES",
    u"CITY-STABLES",
    u"CITY-ANARCHISTS GUILD",
    u"CITY-GUILDS’ STREET",
    u"CITY-CITY GATE",
    u"CITY-DOCTOR’S SURGERY",
    u"CITY-DROPPINGS LANE",
    u"CITY-ARMOURY",

    u"DUNGEON-TUNNEL",
    u"DUNGEON-VAULT",
    u"DUNGEON-CORRIDOR",
    u"DUNGEON-CELL",
    u"DUNGEON-LIBRARY",
    u"DUNGEON-KITCHEN",
    u"DUNGEON-TREASURE CHAMBER",
    u"DUNGEON-CAVERN",
    u"DUNGEON-CHAMBER OF DARKNESS",
    u"DUNGEON-TORTURE CHAMBER",
    u"DUNGEON-GUARD ROOM",
    u"DUNGEON-ENTRANCE",

    u"TIMESCAPE-FOURTH DIMENSION",
    u"TIMESCAPE-WARP GATE",
    u"TIMESCAPE-WARP DEMON",
    u"TIMESCAPE-LIMBO",
    u"TIMESCAPE-NEGATIVE ZONE",
    u"TIMESCAPE-TIME LOOP",
    u"TIMESCAPE-ASTRAL PLANE",
    u"TIMESCAPE-VORTEX",
    u"TIMESCAPE-NEXUS",
    u"TIMESCAPE-RAD ZONE",
    u"TIMESCAPE-PLANET-FALL",
    u"TIMESCAPE-REALM OF CHAOS",
    u"TIMESCAPE-DEATH WORLD",
    u"TIMESCAPE-THE VOID",
    u"TIMESCAPE-SPACE FORTRESS",
    u"TIMESCAPE-SENTINEL OUTPOST",
};

} // namespace

const QStringList& StartAreas()
{
    static const QStringList list = [] {
        QStringList areas;
        for (const char16_t* area : Areas)
            areas.append(QString::fromUtf16(area));
        return areas;
    }();
    return list;
}

} // namespace deckforge
