// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RunTimeError.h"

#include <QRect>
#include <gtest/gtest.h>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QRect& rect, std::ostream* out)
{
    *out << rect.x() << ", " << rect.y() << ", " << rect.width() << " x " << rect.height();
}

namespace deckforge {

/// The error number of the step's failure; 0 if it succeeds.
template <class Step>
int FailureOf(Step&& step)
{
    try {
        step();
    } catch (const RunTimeError& error) {
        return static_cast<int>(error.Number());
    }
    return 0;
}

} // namespace deckforge
