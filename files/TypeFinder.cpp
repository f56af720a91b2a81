// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/TypeFinder.h"

#include <algorithm>

namespace deckforge {

namespace {

constexpr qsizetype MaxSearchedCharacters = 300;

/// The length of the common prefix.
qsizetype CommonPrefix(QStringView a, QStringView b)
{
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return inA - a.begin();
}

} // namespace

TypeFinder::TypeFinder(const CardSet& set)
{
    std::vector<QStringView> texts;
    for (int row = 1; row <= set.CardTypes.Count(); ++row) {
        texts.push_back(set.CardTypes[row].Name);
        texts.push_back(set.CardTypes[row].SubName);
    }
    std::sort(texts.begin(), texts.end());
    texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
    for (const QStringView text : texts)
        m_texts.push_back({.Text = text, .LongestPrefix = None, .FoundBy = 0});
    LinkPrefixes();
    for (int row = 1; row <= set.CardTypes.Count(); ++row) {
        const CardType& type = set.CardTypes[row];
        m_rows.push_back({IndexOf(type.Name), IndexOf(type.SubName)});
    }
}

/// In sorted order the longest prefix of a text is the text before it, or a prefix of that one.
void TypeFinder::LinkPrefixes()
{
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        std::size_t start = i == 0 ? None : i - 1;
        while (start != None && !m_texts[i].Text.startsWith(m_texts[start].Text))
            start = m_texts[start].LongestPrefix;
        m_texts[i].LongestPrefix = start;
    }
}

std::size_t TypeFinder::IndexOf(QStringView text) const
{
    const auto place = std::lower_bound(m_texts.begin(), m_texts.end(), text,
                                        [](const Known& known, QStringView t) { return known.Text < t; });
    return static_cast<std::size_t>(place - m_texts.begin());
}

void TypeFinder::MarkPrefixesOf(QStringView text)
{
    const auto behind = std::upper_bound(m_texts.begin(), m_texts.end(), text,
                                         [](QStringView t, const Known& known) { return t < known.Text; });
    if (behind == m_texts.begin())
        return;
    std::size_t place = static_cast<std::size_t>(behind - m_texts.begin()) - 1;
    const qsizetype common = CommonPrefix(text, m_texts[place].Text);
    for (; place != None && m_texts[place].FoundBy != m_search; place = m_texts[place].LongestPrefix) {
        if (m_texts[place].Text.size() <= common)
            m_texts[place].FoundBy = m_search;
    }
}

int16 TypeFinder::FindCardType(const QString& typeText, const QString& reversedText)
{
    const QString searched = typeText.trimmed() + QLatin1Char(' ') + reversedText.trimmed();
    if (searched.size() > MaxSearchedCharacters)
        return 0;
    ++m_search;
    for (qsizetype at = 0; at < searched.size(); ++at)
        MarkPrefixesOf(QStringView(searched).sliced(at));
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [this](const Row& r) {
        return m_texts[r.Name].FoundBy == m_search && m_texts[r.SubName].FoundBy == m_search;
    });
    return row == m_rows.end() ? int16{0} : static_cast<int16>(row - m_rows.begin() + 1);
}

} // namespace deckforge
