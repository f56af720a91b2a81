// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace deckforge {

/// Exit status of the batch program.
enum class ExitStatus { Done = 0, FailureReported = 1, WrongUse = 2 };

/// Runs a command line, without the program's name.
[[nodiscard]] ExitStatus RunBatch(const QStringList& arguments);

} // namespace deckforge
