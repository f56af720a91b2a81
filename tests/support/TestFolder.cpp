#include "support/TestFolder.h"

#include <QFile>
#include <gtest/gtest.h>

namespace deckforge {

QString TestFolder::Write(const QString& name, const QByteArray& bytes) const
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
}

QByteArray TestFolder::Read(const QString& name) const
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "no file " << name.toStdString();
    return file.readAll();
}

bool TestFolder::Has(const QString& name) const
{
    return QFile::exists(Path(name));
}

} // namespace deckforge
