// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CardVocabulary.h"
#include "core/Vocabulary.h"
#include "core/modInfo.h"
#include "files/Rescue.h"
#include "files/SetFields.h"
#include "files/SetReader.h"
#include "files/TypeFinder.h"
#include "files/modFile.h"
#include "platform/Numbers.h"
#include "platform/Paths.h"
#include "platform/SaveFile.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>

namespace deckforge {

namespace {

/// Before version 6 a type was one text. Takes the two parts from the table, by the card's row or its text.
void ConvertType(const CardSet& set, TypeFinder& types, Card& card)
{
    if (card.TypeIndex >= 1 && card.TypeIndex <= BuiltInTypeCount) {
        SetTypeTexts(card, set.CardTypes[card.TypeIndex]);
    } else if (card.TypeIndex == 0) {
        if (const int16 row = types.FindCardType(card.Type, card.TypeReversed))
            SetTypeTexts(card, set.CardTypes[row]);
    }
}

/// Reads the own rows of a table.
/// Kept: if the file has none, the own rows of the set that was open before stay.
template <class Record>
void ReadOwnRows(SetReader& in, OneBasedArray<Record>& table, int16 builtIn)
{
    int16 own = in.Count();
    if (!in.Has({6}))
        own = CheckedAdd(own, static_cast<int16>(-builtIn)); // old files count the built-in rows, too
    if (own <= 0)
        return;
    table.Resize(CheckedAdd(builtIn, own));
    for (int row = builtIn + 1; row <= table.Count(); ++row)
        setFile::Fields(in, table[row]);
}

/// Reads a list that was added in the given version.
template <class Record>
void ReadSection(SetReader& in, setFile::Since since, OneBasedArray<Record>& records)
{
    records.Resize(in.Has(since) ? in.Count() : 0);
    for (int i = 1; i <= records.Count(); ++i)
        setFile::Fields(in, records[i]);
}

void ReadCards(SetReader& in, CardSet& set)
{
    set.Cards.Resize(in.Count());
    std::optional<TypeFinder> types;
    if (!in.Has({6}))
        types.emplace(set);
    for (int i = 1; i <= set.Cards.Count(); ++i) {
        setFile::Fields(in, set.Cards[i]);
        if (types)
            ConvertType(set, *types, set.Cards[i]);
    }
}

/// The 10 of "Version 10".
int16 VersionOf(QByteArrayView line)
{
    return ToInt16(NumberFromText(line.sliced(line.indexOf(' ') + 1)));
}

/// Reads signature and version; false if the file is rejected.
[[nodiscard]] bool ReadVersion(SetReader& in, ReadOutcome& outcome)
{
    if (in.Line() != setFile::Signature) {
        outcome.Rejected = ReadOutcome::Rejection::NoCardSet;
        return false;
    }
    const int16 version = VersionOf(in.Line());
    in.SetVersion(version);
    outcome.IsConverted = version < setFile::CurrentVersion;
    if (version > setFile::CurrentVersion)
        outcome.Rejected = ReadOutcome::Rejection::NewerVersion;
    return version <= setFile::CurrentVersion;
}

/// Reads everything behind the version; false if the last line is not the end line.
[[nodiscard]] bool ReadBody(SetReader& in, CardSet& set)
{
    in.Line(); // the start line; its text does not matter
    setFile::Fields(in, set.Header);
    ReadOwnRows(in, set.CardTypes, BuiltInTypeCount);
    ReadOwnRows(in, set.CardBacks, BuiltInBackCount);
    ReadSection(in, {10}, set.NewCardBacks);
    ReadCards(in, set);
    ReadSection(in, {4}, set.LargeCards);
    ReadSection(in, {6}, set.Characters);
    setFile::Fields(in, static_cast<NewCardValues&>(set));
    return in.Line() == setFile::End;
}

/// Makes the set valid after a complete or failed read: with a standard card, and current indices that exist.
void MakeValid(CardSet& set)
{
    if (set.Cards.Count() < 1)
        MakeFirstElement<Card>(set);
    for (const CardKind kind :
         {CardKind::Standard, CardKind::Large, CardKind::Character, CardKind::NewBack}) {
        if (CurrentOf(set, kind) < 1 || CurrentOf(set, kind) > CountOf(set, kind))
            CurrentOf(set, kind) = std::min<int16>(CountOf(set, kind), 1);
    }
}

/// The file to propose for saving. Nothing for rescued sets and safety copies: they contain the path of their
/// set, which is proposed instead.
std::optional<SetFile> FileOf(const QString& path)
{
    const std::optional<FileAttributes> attributes = AttributesOf(path);
    if (!attributes || IsSafetyCopy(path) || IsRescuedSet(path))
        return std::nullopt;
    return SetFile{QFileInfo(PathToOpen(path)).absoluteFilePath(), *attributes};
}

void ReadFile(CardSet& set, const QString& path, ReadOutcome& outcome)
{
    std::optional<SetFile> file = FileOf(path);
    SetReader in(ReadWholeFile(path, setFile::MaxBytes));
    const auto place = [&] { return path + QLatin1Char(':') + QString::number(in.LineNumber()); };
    try {
        if (!ReadVersion(in, outcome))
            return;
        const auto finish = qScopeGuard([&] {
            MakeValid(set);
            set.File = std::move(file);
        });
        if (!ReadBody(in, set))
            outcome.UnmatchedEnd = place();
    } catch (const RunTimeError& error) {
        throw error.At(place());
    }
}

} // namespace

void CheckReadable(const QByteArray& bytes)
{
    try {
        SetReader in(bytes, SetReader::Texts::Skip);
        ReadOutcome outcome;
        CardSet scratch;
        if (!ReadVersion(in, outcome) || !ReadBody(in, scratch))
            throw RunTimeError(ErrorNumber::InvalidCall);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.Number(),
                           QStringLiteral("The set could not be opened again: %1").arg(error.Description()));
    }
}

ReadOutcome ReadDKF(CardSet& set, const QString& path)
{
    ReadOutcome outcome;
    try {
        WithMemoryAsFailure([&] { ReadFile(set, path, outcome); });
        if (outcome.IsRead())
            set.Cards.Current = 1;
    } catch (const RunTimeError& error) {
        outcome.Failure = error.At(path);
    }
    outcome.SafetyCopies = SafetyCopiesOf(path);
    return outcome;
}

} // namespace deckforge
