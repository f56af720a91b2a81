#include "core/Vocabulary.h"
#include "files/SetFileFormat.h"
#include "files/SetWriter.h"
#include "files/modFile.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

namespace deckforge {

namespace {

void WriteFont(SetWriter& out, const FontSpec& font)
{
    out.Text(font.Name);
    out.Real(font.Size);
    out.Boolean(font.Bold);
    out.Boolean(font.Italic);
    out.Integer(font.Color);
}

void WriteHeader(SetWriter& out, const SetHeader& header)
{
    out.Literal(setFile::Signature);
    out.Text(QStringLiteral("Version %1").arg(setFile::CurrentVersion));
    out.Literal(setFile::Start);
    out.Text(header.SetName);
    out.Path(header.FileName);
    out.Path(header.SaveTo);
    out.Boolean(header.Autonumber);
    out.Path(header.Symbol);
    out.Text(header.FilenamePrefix);
    out.Boolean(header.FileNr);
    out.Boolean(header.NoBack);
    out.Integer(header.SaveFormat);
    out.Boolean(header.ReplaceSpace);
    out.Integer(header.ArtistColor);
    for (const auto font : setFile::Fonts)
        WriteFont(out, header.*font);
}

void WriteCardType(SetWriter& out, const CardType& type)
{
    out.Text(type.Name);
    out.Text(type.SubName);
    out.Text(type.ReversedName);
    out.Text(type.ReversedSubName);
    out.Integer(type.Number);
    out.Boolean(type.BuiltIn);
}

void WriteCardBack(SetWriter& out, const CardBack& back)
{
    out.Text(back.Name);
    out.Path(back.Picture);
    out.Boolean(back.BuiltIn);
}

void WriteNewCardBack(SetWriter& out, const NewCardBack& back)
{
    out.Text(back.BackText);
    out.Text(back.Filename);
    out.Integer(back.FrameColor);
    out.Integer(back.InnerColor);
    out.Text(back.Name);
    out.Integer(back.BackColor);
    out.Path(back.Picture);
    out.Boolean(back.UsePicture);
    WriteFont(out, back.Font);
}

void WriteCard(SetWriter& out, const Card& card)
{
    out.Text(card.Title);
    out.Integer(card.Copies);
    out.Text(card.Type);
    out.Text(card.SubType);
    out.Text(card.TypeReversed);
    out.Text(card.SubTypeReversed);
    out.Boolean(card.OneLine);
    out.Integer(card.TypeIndex);
    out.Text(card.Number);
    out.Boolean(card.ShowPicture);
    out.Path(card.Picture);
    out.Real(card.PictureTop);
    out.Integer(card.FrameHeight);
    out.Real(card.PictureLeft);
    out.Boolean(card.Frame);
    out.Boolean(card.Resize);
    out.Text(card.Artist);
    out.Text(card.BoldText);
    out.Flattened(card.Info);
    out.Path(card.Background);
    out.Integer(card.CardBack);
    out.Integer(card.Color);
    out.Text(card.Filename);
}

void WriteLargeCard(SetWriter& out, const LargeCard& card)
{
    out.Text(card.Title);
    out.Integer(card.Copies);
    out.Boolean(card.ShowPicture);
    out.Path(card.Picture);
    out.Real(card.PictureTop);
    out.Real(card.PictureLeft);
    out.Integer(card.FrameHeight);
    out.Boolean(card.Frame);
    out.Boolean(card.Resize);
    out.Flattened(card.Info);
    out.Path(card.Background);
    out.Path(card.CardBack);
    out.Integer(card.Color);
    out.Text(card.Filename);
}

void WriteCharacter(SetWriter& out, const Character& character)
{
    out.Text(character.Name);
    out.Flattened(character.SpecialAbilities);
    out.Text(character.Alignment);
    out.Path(character.Background);
    out.Text(character.Craft);
    out.Text(character.Filename);
    out.Text(character.Gold);
    out.Text(character.Lives);
    out.Real(character.PictureLeft);
    out.Real(character.PictureTop);
    out.Path(character.Picture);
    out.Integer(character.FrameHeight);
    out.Text(character.StartArea);
    out.Text(character.Strength);
    out.Boolean(character.Frame);
    out.Boolean(character.ShowPicture);
    out.Integer(character.CardBack);
    out.Path(character.CardBackPicture);
    out.Path(character.PlayingPiece);
    out.Real(character.PlayingPieceLeft);
    out.Real(character.PlayingPieceTop);
}

/// A count line and a group of lines for each element behind the built-in ones.
template <class Record>
void WriteSection(SetWriter& out, const OneBasedArray<Record>& records, int16 count, int16 builtIn,
                  void (*write)(SetWriter&, const Record&))
{
    out.Integer(count - builtIn);
    for (int i = builtIn + 1; i <= count; ++i)
        write(out, records[i]);
}

void WriteClosingLines(SetWriter& out, const CardSet& set)
{
    out.Integer(set.LastCardBack);
    out.Text(set.LastType);
    out.Text(set.LastTypeReversed);
    out.Text(set.LastSubType);
    out.Text(set.LastSubTypeReversed);
    out.Integer(set.LastNumber);
    out.Path(set.LastBackground);
    out.Literal(setFile::End);
}

void WriteSet(SetWriter& out, const CardSet& set)
{
    WriteHeader(out, set.Header);
    WriteSection(out, set.CardTypes, set.CardTypeCount, BuiltInTypeCount, WriteCardType);
    WriteSection(out, set.CardBacks, set.CardBackCount, BuiltInBackCount, WriteCardBack);
    WriteSection(out, set.NewCardBacks, set.NewCardBackCount, 0, WriteNewCardBack);
    WriteSection(out, set.Cards, set.CardCount, 0, WriteCard);
    WriteSection(out, set.LargeCards, set.LargeCardCount, 0, WriteLargeCard);
    WriteSection(out, set.Characters, set.CharacterCount, 0, WriteCharacter);
    WriteClosingLines(out, set);
}

QString SafeCopyOf(const QString& path)
{
    return path + QStringLiteral("~");
}

/// Whether the file is a set with its end, and not what a failed write left.
bool IsWholeSet(const QString& path)
{
    QByteArray bytes = ReadWholeFile(path, setFile::MostBytes);
    if (bytes.endsWith(setFile::LineEnd))
        bytes.chop(sizeof(setFile::LineEnd) - 1);
    return bytes.startsWith(setFile::Signature) &&
           bytes.endsWith(QByteArray(setFile::LineEnd) + setFile::End);
}

/// Sees to it that the old set has a copy before its file is replaced; gives whether there was one to copy.
bool KeepCopy(const QString& path)
{
    if (!IsRegularFile(path))
        return false;
    CheckWritable(path);
    // A whole set beside one that is not is the copy that a failed write left behind: it is worth more than
    // the rest of that write.
    const QString copy = SafeCopyOf(path);
    const bool isRestOfFailure = IsRegularFile(copy) && IsWholeSet(copy) && !IsWholeSet(path);
    if (!isRestOfFailure)
        CopyFileSafely(path, copy);
    return true;
}

/// The set is on the disk; a copy that cannot be taken away takes nothing from that.
void DropCopy(const QString& path)
{
    try {
        RemoveFile(SafeCopyOf(path));
    } catch (const RunTimeError&) {
    }
}

void WriteSafely(const CardSet& set, const QString& path)
{
    const bool hasCopy = KeepCopy(path);
    SetWriter out(path);
    WriteSet(out, set);
    out.Close();
    if (hasCopy)
        DropCopy(path);
}

} // namespace

void TellNotSaved(UserPort& user, const RunTimeError& error)
{
    user.ShowMessage({.Text = QStringLiteral("The file is NOT saved due to an error.\r\n\r\n") +
                              error.NumberAndDescription(),
                      .Title = QStringLiteral("Error"),
                      .Style = BoxStyle::Critical});
}

QByteArray SetFileBytes(const CardSet& set, Unwritable unwritable)
{
    SetWriter out(unwritable);
    WriteSet(out, set);
    return std::move(out.Gathered());
}

bool WriteDKF(const CardSet& set, const QString& path, UserPort& user, Report report)
{
    try {
        WithMemoryAsFailure([&] { WriteSafely(set, path); });
    } catch (const RunTimeError& error) {
        TellNotSaved(user, error);
        return false;
    }
    if (report == Report::Tell) {
        user.ShowMessage({.Text = QStringLiteral("The card set is saved."),
                          .Title = QStringLiteral("Save file"),
                          .Style = BoxStyle::Information});
    }
    return true;
}

} // namespace deckforge
