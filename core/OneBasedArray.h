// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

#include <vector>

namespace deckforge {

/// A growable array with indices from 1. The element at index 0 exists and stays empty. An index outside 0 to
/// Count() is error 9, more than 32,767 elements are error 6.
template <class Element>
class OneBasedArray {
public:
    OneBasedArray() : m_elements(1) {}

    [[nodiscard]] Element& operator[](int index) { return m_elements[Checked(index)]; }
    [[nodiscard]] const Element& operator[](int index) const { return m_elements[Checked(index)]; }

    [[nodiscard]] int16 Count() const { return static_cast<int16>(m_elements.size() - 1); }

    /// Adds an empty element at the end.
    Element& Add()
    {
        Resize(CheckedAdd(Count(), 1));
        return m_elements.back();
    }

    /// Error 9 for a negative count.
    void Resize(int16 count)
    {
        if (count < 0)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        m_elements.resize(static_cast<std::size_t>(count) + 1);
    }

    void Clear() { m_elements.resize(1); }

    /// Removes one element; the elements behind it move down by one.
    void Remove(int index)
    {
        m_elements.erase(m_elements.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
    }

private:
    [[nodiscard]] std::size_t Checked(int index) const
    {
        if (index < 0 || index > Count())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(index);
    }

    std::vector<Element> m_elements;
};

} // namespace deckforge
