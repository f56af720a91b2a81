// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Vocabulary.h"
#include "files/SetFields.h"
#include "files/SetWriter.h"
#include "files/modFile.h"
#include "platform/SaveFile.h"

namespace deckforge {

namespace {

/// A count line and a group of lines for each element behind the built-in ones.
template <class Record>
void WriteSection(SetWriter& out, const OneBasedArray<Record>& records, int16 builtIn = 0)
{
    out.Integer(records.Count() - builtIn);
    for (int i = builtIn + 1; i <= records.Count(); ++i)
        setFile::Fields(out, records[i]);
}

} // namespace

QByteArray SetFileBytes(const CardSet& set, Unwritable unwritable)
{
    SetWriter out(unwritable);
    out.Literal(setFile::Signature);
    out.Text(QStringLiteral("Version %1").arg(setFile::CurrentVersion));
    out.Literal(setFile::Start);
    setFile::Fields(out, set.Header);
    WriteSection(out, set.CardTypes, BuiltInTypeCount);
    WriteSection(out, set.CardBacks, BuiltInBackCount);
    WriteSection(out, set.NewCardBacks);
    WriteSection(out, set.Cards);
    WriteSection(out, set.LargeCards);
    WriteSection(out, set.Characters);
    setFile::Fields(out, static_cast<const NewCardValues&>(set));
    out.Literal(setFile::End);
    return out.TakeBytes();
}

void WriteDKF(const CardSet& set, const QString& path)
{
    const QByteArray bytes = SetFileBytes(set, Unwritable::Fail);
    CheckReadable(bytes);
    SaveFile(path, bytes);
}

} // namespace deckforge
