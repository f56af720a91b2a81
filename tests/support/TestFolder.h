// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/Failures.h"
#include "support/PixelText.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

namespace deckforge {

/// A temporary folder, removed at the end of the test.
class TestFolder {
public:
    [[nodiscard]] QString Path(const QString& name = {}) const { return m_folder.filePath(name); }
    /// The path with a trailing separator.
    [[nodiscard]] QString WithSeparator() const { return m_folder.path() + '/'; }
    QString Write(const QString& name, const QByteArray& bytes) const;
    /// Writes a picture file; by default one in which all pixels differ.
    QString WritePicture(const QString& name, const Picture& picture = PictureOfPlaces({40, 30})) const;
    void SetTime(const QString& name, const QDateTime& time) const;
    [[nodiscard]] QByteArray Read(const QString& name) const;
    [[nodiscard]] QImage Image(const QString& name) const { return QImage(Path(name)); }
    [[nodiscard]] bool Has(const QString& name) const { return QFile::exists(Path(name)); }

private:
    QTemporaryDir m_folder;
};

} // namespace deckforge
