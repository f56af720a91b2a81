#pragma once

#include <QByteArray>
#include <QTemporaryDir>

namespace deckforge {

/// A folder of the test's own that goes away with it.
class TestFolder {
public:
    [[nodiscard]] QString Path(const QString& name = {}) const { return m_folder.filePath(name); }
    /// The folder as a set names it, with its separator.
    [[nodiscard]] QString WithSeparator() const { return m_folder.path() + QLatin1Char('/'); }
    QString Write(const QString& name, const QByteArray& bytes) const;
    [[nodiscard]] QByteArray Read(const QString& name) const;
    [[nodiscard]] bool Has(const QString& name) const;

private:
    QTemporaryDir m_folder;
};

} // namespace deckforge
