// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Vocabulary.h"
#include "files/SetFields.h"
#include "files/SetWriter.h"
#include "files/modFile.h"
#include "platform/SaveFile.h"

namespace deckforge {

namespace {

/// Writes the fields of a section. A file is of the current version, which has them all.
class FieldWriter {
public:
    explicit FieldWriter(SetWriter& out) : m_out(out) {}

    template <class... Older>
    void Text(const QString& field, const Older&... /*unused*/)
    {
        m_out.Text(field);
    }
    void Flattened(const QString& field) { m_out.Flattened(field); }
    void Path(const QString& field) { m_out.Path(field); }
    template <class... Older>
    void Boolean(bool field, const Older&... /*unused*/)
    {
        m_out.Boolean(field);
    }
    template <class... Older>
    void Integer(int32 field, const Older&... /*unused*/)
    {
        m_out.Integer(field);
    }
    void Real(double field) { m_out.Real(field); }
    [[nodiscard]] static bool Has(setFile::Since /*unused*/) { return true; }

private:
    SetWriter& m_out;
};

/// A count line and a group of lines for each element behind the built-in ones.
template <class Record>
void WriteSection(SetWriter& out, const OneBasedArray<Record>& records, int16 builtIn,
                  void (*write)(FieldWriter&, const Record&))
{
    out.Integer(records.Count() - builtIn);
    FieldWriter fields(out);
    for (int i = builtIn + 1; i <= records.Count(); ++i)
        write(fields, records[i]);
}

void WriteSet(SetWriter& out, const CardSet& set)
{
    FieldWriter fields(out);
    out.Literal(setFile::Signature);
    out.Text(QStringLiteral("Version %1").arg(setFile::CurrentVersion));
    out.Literal(setFile::Start);
    setFile::HeaderFields(fields, set.Header);
    WriteSection(out, set.CardTypes, BuiltInTypeCount, setFile::CardTypeFields);
    WriteSection(out, set.CardBacks, BuiltInBackCount, setFile::CardBackFields);
    WriteSection(out, set.NewCardBacks, 0, setFile::NewCardBackFields);
    WriteSection(out, set.Cards, 0, setFile::CardFields);
    WriteSection(out, set.LargeCards, 0, setFile::LargeCardFields);
    WriteSection(out, set.Characters, 0, setFile::CharacterFields);
    setFile::ClosingFields(fields, set);
    out.Literal(setFile::End);
}

template <class Record>
void TryWriting(const Record& record, void (*write)(FieldWriter&, const Record&))
{
    SetWriter out(Unwritable::Fail);
    FieldWriter fields(out);
    write(fields, record);
}

} // namespace

QByteArray SetFileBytes(const CardSet& set, Unwritable unwritable)
{
    SetWriter out(unwritable);
    WriteSet(out, set);
    return out.TakeBytes();
}

void CheckSavable(const SetHeader& header)
{
    TryWriting(header, setFile::HeaderFields);
}

void CheckSavable(const NewCardValues& values)
{
    TryWriting(values, setFile::ClosingFields);
}

void CheckSavable(const CardType& type)
{
    TryWriting(type, setFile::CardTypeFields);
}

void CheckSavable(const CardBack& back)
{
    TryWriting(back, setFile::CardBackFields);
}

void CheckSavable(const Card& card)
{
    TryWriting(card, setFile::CardFields);
}

void CheckSavable(const LargeCard& card)
{
    TryWriting(card, setFile::LargeCardFields);
}

void CheckSavable(const Character& character)
{
    TryWriting(character, setFile::CharacterFields);
}

void CheckSavable(const NewCardBack& back)
{
    TryWriting(back, setFile::NewCardBackFields);
}

void WriteDKF(const CardSet& set, const QString& path)
{
    const QByteArray bytes = SetFileBytes(set, Unwritable::Fail);
    CheckReadable(bytes);
    SaveFile(path, bytes);
}

} // namespace deckforge
