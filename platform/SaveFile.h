// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

namespace deckforge {

/// Writes the bytes to a file, following links. After a failure, a crash or a power loss the file has its old
/// or its new contents; the new ones are on the disk when this returns.
///
/// The file is replaced atomically by a new one with its owner and permissions. Where that would change other
/// attributes, or the folder is not writable, it is overwritten, while a safety copy holds the old bytes. If
/// restoring them fails as well, the error's description says where the copy is. Concurrent saves of a file
/// wait for each other. No other files are touched.
///
/// Devices and pipes are written directly. A read-only file is error 70.
void SaveFile(const QString& path, QByteArrayView bytes);

/// The safety copies left by interrupted saves of the file, in all folders where they can be.
[[nodiscard]] QStringList SafetyCopiesOf(const QString& path);

[[nodiscard]] bool IsSafetyCopy(const QString& path);

} // namespace deckforge
