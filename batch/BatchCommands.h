#pragma once

#include <QString>
#include <QStringList>

namespace deckforge {

/// What a run of the batch program comes to, as its exit status.
enum class ExitStatus { Done = 0, FailureReported = 1, WrongUse = 2 };

/// Carries out a command line, the program's name not among it.
[[nodiscard]] ExitStatus RunBatch(const QStringList& arguments);

} // namespace deckforge
