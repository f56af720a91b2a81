#pragma once

#include "platform/RunTimeError.h"
#include "platform/Types.h"

#include <vector>

namespace deckforge {

/// A growable array that counts from 1. The element at index 0 exists and stays empty.
/// Any index outside 0 to LastIndex() is error 9.
template <class Element>
class OneBasedArray {
public:
    OneBasedArray() : m_elements(1) {}

    [[nodiscard]] Element& operator[](int index) { return m_elements[Checked(index)]; }
    [[nodiscard]] const Element& operator[](int index) const { return m_elements[Checked(index)]; }

    [[nodiscard]] int LastIndex() const { return static_cast<int>(m_elements.size()) - 1; }

    /// Keeps the elements up to the new last index. A negative one is error 9.
    void Resize(int lastIndex)
    {
        if (lastIndex < 0)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        m_elements.resize(static_cast<std::size_t>(lastIndex) + 1);
    }

    /// Makes the array anew with empty elements.
    void Recreate(int lastIndex)
    {
        m_elements.clear();
        Resize(lastIndex);
    }

    /// Takes one element out; those above it move down by one.
    void Remove(int index)
    {
        m_elements.erase(m_elements.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
    }

private:
    [[nodiscard]] std::size_t Checked(int index) const
    {
        if (index < 0 || index > LastIndex())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(index);
    }

    std::vector<Element> m_elements;
};

} // namespace deckforge
