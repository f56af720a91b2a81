// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <QStringView>
#include <cstdint>
#include <vector>

namespace deckforge {

/// Finds the row of a card's type by its text, for old files, which have the type as one text.
///
/// The time of a search hardly depends on the size of the table, since untrusted files may have many types
/// and many cards. The set's table must not change during the finder's life.
class TypeFinder {
public:
    explicit TypeFinder(const CardSet& set);

    /// The first row whose Name and SubName both occur in the texts of a card, or 0. So "EVENT" is found
    /// before "EVENT-Law". Texts far longer than a type line have no row.
    [[nodiscard]] int16 FindCardType(const QString& typeText, const QString& reversedText);

private:
    static constexpr std::size_t None = SIZE_MAX;

    /// A text of the table.
    struct Known {
        QStringView Text;
        std::size_t LongestPrefix; ///< the longest other text that this one starts with
        int FoundBy;               ///< number of the last search that found it
    };
    struct Row {
        std::size_t Name; ///< indices in m_texts
        std::size_t SubName;
    };

    void LinkPrefixes();
    [[nodiscard]] std::size_t IndexOf(QStringView text) const;
    void MarkPrefixesOf(QStringView text);

    std::vector<Known> m_texts; ///< sorted, without duplicates
    std::vector<Row> m_rows;    ///< row 1 first
    int m_search = 0;
};

} // namespace deckforge
