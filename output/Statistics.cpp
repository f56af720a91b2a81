// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/Statistics.h"

#include "platform/Numbers.h"

#include <QHash>
#include <cmath>
#include <vector>

namespace deckforge {

namespace {

struct Row {
    QString Name;
    int16 Count = 0;
};

QString TypeName(const QString& type, const QString& subType)
{
    return subType.isEmpty() ? type : type + QLatin1Char(' ') + subType;
}

/// The rows of the table, then the types of cards that are not in the table.
std::vector<Row> CountTypes(const CardSet& set)
{
    std::vector<Row> rows;
    for (int i = 1; i <= set.CardTypes.Count(); ++i)
        rows.push_back({TypeName(set.CardTypes[i].Name, set.CardTypes[i].SubName)});
    QHash<QString, std::size_t> rowOf; // the first row of each name
    for (std::size_t row = rows.size(); row-- > 0;)
        rowOf[rows[row].Name] = row;
    for (int i = 1; i <= set.Cards.Count(); ++i) {
        const QString name = TypeName(set.Cards[i].Type, set.Cards[i].SubType);
        const auto found = rowOf.constFind(name);
        const std::size_t row = found == rowOf.constEnd() ? rows.size() : *found;
        if (row == rows.size()) {
            rowOf[name] = row;
            rows.push_back({name});
        }
        rows[row].Count = CheckedAdd(rows[row].Count, 1);
    }
    return rows;
}

std::vector<Row> CountBacks(const CardSet& set)
{
    std::vector<Row> rows;
    for (int i = 1; i <= set.CardBacks.Count(); ++i)
        rows.push_back({set.CardBacks[i].Name});
    for (int i = 1; i <= set.Cards.Count(); ++i) {
        const int16 back = set.Cards[i].CardBack;
        if (back < 1 || back > set.CardBacks.Count())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        Row& row = rows[static_cast<std::size_t>(back) - 1];
        row.Count = CheckedAdd(row.Count, 1);
    }
    return rows;
}

/// Sorts by descending count.
/// Kept: this exchange sort is not stable, and its order of equal counts is part
/// of the listing.
void SortByCount(std::vector<Row>& rows)
{
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        for (std::size_t j = i + 1; j < rows.size(); ++j) {
            if (rows[j].Count > rows[i].Count)
                std::swap(rows[i], rows[j]);
        }
    }
}

QString UsedRows(std::vector<Row> rows, int16 cardCount)
{
    constexpr double whole = 100;
    SortByCount(rows);
    QString text;
    for (const Row& row : rows) {
        if (row.Count == 0)
            continue;
        const double percent = static_cast<double>(row.Count) / cardCount * whole;
        text += QStringLiteral("\r\n%1 - %2 (%3%)")
                    .arg(QString::number(row.Count), row.Name, QString::number(std::lround(percent)));
    }
    return text;
}

} // namespace

QString StatisticsText(const CardSet& set)
{
    return QStringLiteral("Number of cards used/type:") + UsedRows(CountTypes(set), set.Cards.Count()) +
           QStringLiteral("\r\n\r\nNumber of cards used/set:") +
           UsedRows(CountBacks(set), set.Cards.Count()) +
           QStringLiteral(
               "\r\n\r\n%1 cards in set.\r\n\r\n%2 large cards in set.\r\n\r\n%3 character cards in set.")
               .arg(set.Cards.Count())
               .arg(set.LargeCards.Count())
               .arg(set.Characters.Count());
}

} // namespace deckforge
