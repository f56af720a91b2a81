// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>

namespace deckforge {

struct ProcessLimits {
    int Seconds = 10;            ///< of processor time and in all
    qint64 MemoryBytes = 0;      ///< of address space; not limited under the address sanitizer
    qint64 WrittenFileBytes = 0; ///< per file
};

/// Runs a program that handles untrusted data, passes it the input, and returns what it writes to its
/// standard output. Nothing if it fails, crashes or exceeds a limit; error 57 if it cannot be started.
[[nodiscard]] std::optional<QByteArray> RunLimited(const QString& program, const QStringList& arguments,
                                                   const QByteArray& input, const ProcessLimits& limits);

} // namespace deckforge
