// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/modFile.h"
#include "platform/LineWriter.h"
#include "platform/Version.h"

namespace deckforge {

namespace {

QString DashToEmpty(const QString& value)
{
    return value == QLatin1String("---") ? QString() : value;
}

class Listing {
public:
    explicit Listing(const QString& path) : m_lines(path) {}

    void Line(const char* label, const QString& text = {}) { m_lines.Line(QLatin1String(label) + text); }
    void Separator() { Line(" "); }
    void Count(int count, const char* what) { m_lines.Line(QString::number(count) + QLatin1String(what)); }
    void Title(int index, const QString& title) { m_lines.Line(QStringLiteral("%1. ").arg(index) + title); }
    void Close() { m_lines.Close(); }

private:
    LineWriter m_lines;
};

void ListCard(Listing& out, int index, const Card& card)
{
    out.Title(index, card.Title);
    out.Line("Type: ", card.Type + card.SubType);
    out.Line("Nr:   ", card.Number);
    if (!card.BoldText.isEmpty())
        out.Line("Bold: ", card.BoldText);
    out.Line("Text: ", card.Info);
    out.Separator();
}

void ListLargeCard(Listing& out, int index, const LargeCard& card)
{
    out.Title(index, card.Title);
    out.Line("Text: ", card.Info);
    out.Separator();
}

void ListCharacter(Listing& out, int index, const Character& character)
{
    out.Title(index, character.Name);
    out.Line("Strength:   ", DashToEmpty(character.Strength));
    out.Line("Craft:      ", DashToEmpty(character.Craft));
    out.Line("Gold:       ", DashToEmpty(character.Gold));
    out.Line("Lives:      ", DashToEmpty(character.Lives));
    out.Line("Alignment:  ", character.Alignment);
    out.Line("Start area: ", character.StartArea);
    out.Line("Abilities:  ", character.SpecialAbilities);
    out.Separator();
}

template <class Record>
void ListAll(Listing& out, const OneBasedArray<Record>& records, const char* heading,
             void (*list)(Listing&, int, const Record&))
{
    if (records.Count() == 0)
        return;
    out.Separator();
    out.Count(records.Count(), heading);
    out.Separator();
    for (int i = 1; i <= records.Count(); ++i)
        list(out, i, records[i]);
}

} // namespace

void ExportSetText(const CardSet& set, const QString& path)
{
    Listing out(path);
    out.Line("Created with Varnhelm Deck Forge");
    out.Line(WebAddress);
    out.Separator();
    out.Line("Set: ", set.Header.SetName);
    ListAll(out, set.Cards, " Cards", ListCard);
    ListAll(out, set.LargeCards, " Large Cards", ListLargeCard);
    ListAll(out, set.Characters, " Characters", ListCharacter);
    out.Close();
}

} // namespace deckforge
