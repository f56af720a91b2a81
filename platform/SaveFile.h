#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

namespace deckforge {

/// Writes the bytes to the path, links followed, so that after a failure, a crash or a loss of power the file
/// is the old one or the new one, and on the disk before this returns.
///
/// The file is replaced in one step by a new one with its owner and permissions. Where that would change what
/// the file is, or its folder takes no new file, it is overwritten instead: a safety copy holds the old bytes
/// meanwhile. Should restoring them fail too, the failure's description says where the copy is. Programs that
/// save one file wait for each other. No file is touched that this save did not make.
///
/// Devices and pipes are written straight. A read-only file is error 70.
void SaveFile(const QString& path, QByteArrayView bytes);

/// The safety copies of the file whose save was cut off, wherever that save could make them.
[[nodiscard]] QStringList SafetyCopiesOf(const QString& path);

[[nodiscard]] bool IsSafetyCopy(const QString& path);

} // namespace deckforge
