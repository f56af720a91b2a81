// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace deckforge {

QString TestFolder::Write(const QString& name, const QByteArray& bytes) const
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
}

QString TestFolder::WritePicture(const QString& name, const Picture& picture) const
{
    SavePicture(picture, Path(name));
    return Path(name);
}

void TestFolder::SetTime(const QString& name, const QDateTime& time) const
{
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
}

QByteArray TestFolder::Read(const QString& name) const
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "no file " << name.toStdString();
    return file.readAll();
}

} // namespace deckforge
