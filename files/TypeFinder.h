// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <QStringView>
#include <cstdint>
#include <vector>

namespace deckforge {

/// The rows of CardTypes by their texts, for cards of old files, which have their type as one text.
///
/// A search takes about as long in a table of one row as in one of thousands: files from strangers have both
/// tables as long as they like. The set's table stays as it is for the time of the finder.
class TypeFinder {
public:
    explicit TypeFinder(const CardSet& set);

    /// The row that the type texts of a card belong to, or 0. The first row whose Name and SubName both occur
    /// in the texts wins, so "EVENT" comes before "EVENT-Law". Texts far longer than a type line belong to
    /// none.
    [[nodiscard]] int16 FindCardType(const QString& typeText, const QString& reversedText);

private:
    static constexpr std::size_t None = SIZE_MAX;

    /// A text of the table, and which search has met it last.
    struct Known {
        QStringView Text;
        std::size_t LongestPrefix; ///< the longest other text that this one starts with
        int FoundBy;
    };
    struct Row {
        std::size_t Name; ///< places in the texts
        std::size_t SubName;
    };

    void LinkPrefixes();
    [[nodiscard]] std::size_t IndexOf(QStringView text) const;
    void MarkPrefixesOf(QStringView text);

    std::vector<Known> m_texts; ///< in order, each once
    std::vector<Row> m_rows;    ///< from row 1
    int m_search = 0;
};

} // namespace deckforge
