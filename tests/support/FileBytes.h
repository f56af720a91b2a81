// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "BuildPaths.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <gtest/gtest.h>

namespace deckforge {

// Reads image files byte by byte, independent of the libraries that wrote them.

inline int Byte(const QByteArray& bytes, qsizetype at)
{
    return static_cast<quint8>(bytes.at(at));
}

template <class Number>
Number LittleEndian(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

/// The contents of all segments with the marker in front of the compressed data, joined.
inline QByteArray JpegSegments(const QByteArray& jpeg, int marker)
{
    constexpr int startOfScan = 0xDA;
    QByteArray found;
    qsizetype at = 2;
    while (at + 4 <= jpeg.size() && Byte(jpeg, at + 1) != startOfScan) {
        const int length = qFromBigEndian<quint16>(jpeg.constData() + at + 2);
        if (Byte(jpeg, at + 1) == marker)
            found += jpeg.mid(at + 4, length - 2);
        at += 2 + length;
    }
    return found;
}

/// The largest divisor for brightness (table 0) or colour (table 1). It depends on the quality: at 90 it is
/// a fifth of the 121 or 99 in the tables of the JPEG standard.
inline int CoarsestJpegStep(const QByteArray& jpeg, int table)
{
    constexpr int tableBytes = 65; // with its number
    const QByteArray steps = JpegSegments(jpeg, 0xDB).mid(table * tableBytes + 1, tableBytes - 1);
    return steps.isEmpty() ? 0 : Byte(steps, std::max_element(steps.begin(), steps.end()) - steps.begin());
}

/// Compares texts line by line.
inline void ExpectLines(const QByteArray& text, const QByteArray& expectedText)
{
    const QStringList lines = QString::fromLatin1(text).split('\n');
    const QStringList expected = QString::fromLatin1(expectedText).split('\n');
    EXPECT_EQ(lines.size(), expected.size());
    for (qsizetype i = 0; i < std::min(lines.size(), expected.size()); ++i)
        EXPECT_EQ(lines[i], expected[i]) << "line " << i + 1;
}

/// A test data file, with the line ends of a set.
inline QByteArray TestData(const QString& name)
{
    QFile file(DECKFORGE_SOURCE_DIR "/tests/data/" + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll().replace("\n", "\r\n");
}

} // namespace deckforge
