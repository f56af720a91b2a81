#include "core/CardVocabulary.h"
#include "core/Vocabulary.h"
#include "files/SetFileFormat.h"
#include "files/SetReader.h"
#include "files/TypeFinder.h"
#include "files/modFile.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

namespace deckforge {

namespace {

constexpr int16 NumberOfOldFiles = 2;

void ReadFont(SetReader& in, FontSpec& font)
{
    font.Name = in.Text();
    font.Size = in.Real();
    font.Bold = in.Boolean();
    font.Italic = in.Boolean();
    font.Color = in.Int32();
}

void ReadHeader(SetReader& in, int16 version, SetHeader& header)
{
    header.SetName = in.Text();
    header.FileName = in.Path();
    header.SaveTo = in.Path();
    header.Autonumber = in.Boolean();
    header.Symbol = in.Path();
    header.FilenamePrefix = in.Text();
    header.FileNr = in.Boolean();
    header.NoBack = in.Boolean();
    header.SaveFormat = version >= 2 ? in.Int16() : int16{0};
    header.ReplaceSpace = version >= 5 ? in.Boolean() : false;
    header.ArtistColor = version >= 8 ? in.Int32() : LightGrey;
    // Fonts that an old file lacks keep what the set before had.
    const std::size_t fontCount = version >= 9 ? setFile::Fonts.size() : setFile::FontsOfOldFiles;
    for (std::size_t i = 0; i < fontCount; ++i)
        ReadFont(in, header.*setFile::Fonts[i]);
}

void ReadCardType(SetReader& in, int16 version, CardType& type)
{
    type.Name = in.Text();
    type.SubName = version >= 6 ? in.Text() : QString();
    type.ReversedName = in.Text();
    type.ReversedSubName = version >= 6 ? in.Text() : QString();
    type.Number = in.Int16();
    type.BuiltIn = in.Boolean();
}

void ReadCardBack(SetReader& in, int16 /*version*/, CardBack& back)
{
    back.Name = in.Text();
    back.Picture = in.Path();
    back.BuiltIn = in.Boolean();
}

void ReadNewCardBack(SetReader& in, int16 /*version*/, NewCardBack& back)
{
    back.BackText = in.Text();
    back.Filename = in.Text();
    back.FrameColor = in.Int32();
    back.InnerColor = in.Int32();
    back.Name = in.Text();
    back.BackColor = in.Int32();
    back.Picture = in.Path();
    back.UsePicture = in.Boolean();
    ReadFont(in, back.Font);
}

/// Before version 6 a type was one text. Its parts come from the table, by the card's row or by the text.
void ConvertType(const CardSet& set, TypeFinder& types, Card& card)
{
    if (card.TypeIndex >= 1 && card.TypeIndex <= BuiltInTypeCount) {
        TakeTypeTexts(card, set.CardTypes[card.TypeIndex]);
    } else if (card.TypeIndex == 0) {
        if (const int16 row = types.FindCardType(card.Type, card.TypeReversed))
            TakeTypeTexts(card, set.CardTypes[row]);
    }
}

void ReadCard(SetReader& in, int16 version, Card& card)
{
    card.Title = in.Text();
    card.Copies = version >= 3 ? in.Int16() : int16{1};
    card.Type = in.Text();
    card.SubType = version >= 6 ? in.Text() : QString();
    card.TypeReversed = version >= 2 ? in.Text() : card.Type;
    card.SubTypeReversed = version >= 6 ? in.Text() : QString();
    card.OneLine = version >= 2 ? in.Boolean() : false;
    card.TypeIndex = in.Int16();
    card.Number = in.Text();
    card.ShowPicture = in.Boolean();
    card.Picture = in.Path();
    card.PictureTop = in.Real();
    card.FrameHeight = in.Int16();
    card.PictureLeft = in.Real();
    card.Frame = in.Boolean();
    card.Resize = in.Boolean();
    card.Artist = version >= 8 ? in.Text() : QString();
    card.BoldText = in.Text();
    card.Info = in.Flattened();
    card.Background = in.Path();
    card.CardBack = in.Int16();
    card.Color = in.Int32();
    card.Filename = in.Text();
}

void ReadLargeCard(SetReader& in, int16 /*version*/, LargeCard& card)
{
    card.Title = in.Text();
    card.Copies = in.Int16();
    card.ShowPicture = in.Boolean();
    card.Picture = in.Path();
    card.PictureTop = in.Real();
    card.PictureLeft = in.Real();
    card.FrameHeight = in.Int16();
    card.Frame = in.Boolean();
    card.Resize = in.Boolean();
    card.Info = in.Flattened();
    card.Background = in.Path();
    card.CardBack = in.Path();
    card.Color = in.Int32();
    card.Filename = in.Text();
}

void ReadCharacter(SetReader& in, int16 /*version*/, Character& character)
{
    character.Name = in.Text();
    character.SpecialAbilities = in.Flattened();
    character.Alignment = in.Text();
    character.Background = in.Path();
    character.Craft = in.Text();
    character.Filename = in.Text();
    character.Gold = in.Text();
    character.Lives = in.Text();
    character.PictureLeft = in.Real();
    character.PictureTop = in.Real();
    character.Picture = in.Path();
    character.FrameHeight = in.Int16();
    character.StartArea = in.Text();
    character.Strength = in.Text();
    character.Frame = in.Boolean();
    character.ShowPicture = in.Boolean();
    character.CardBack = in.Int16();
    character.CardBackPicture = in.Path();
    character.PlayingPiece = in.Path();
    character.PlayingPieceLeft = in.Real();
    character.PlayingPieceTop = in.Real();
}

/// A table with built-in rows. With no rows of its own in the file, the rows of the set before stay in it.
template <class Record>
void ReadOwnRows(SetReader& in, int16 version, OneBasedArray<Record>& table, int16& count, int16 builtIn,
                 void (*read)(SetReader&, int16, Record&))
{
    int16 own = in.Int16();
    if (version < 6)
        own = CheckedAdd(own, static_cast<int16>(-builtIn)); // old files count the built-in rows too
    if (own <= 0)
        return;
    count = CheckedAdd(builtIn, own);
    table.Resize(count);
    for (int row = builtIn + 1; row <= count; ++row)
        read(in, version, table[row]);
}

/// A kind of card that files have since the version given; older files have none of it.
template <class Record>
void ReadSection(SetReader& in, int16 version, int16 sinceVersion, OneBasedArray<Record>& records,
                 int16& count, void (*read)(SetReader&, int16, Record&))
{
    if (version < sinceVersion) {
        count = 0;
        records.Recreate(0);
        return;
    }
    count = in.Int16();
    records.Resize(count);
    for (int i = 1; i <= count; ++i)
        read(in, version, records[i]);
}

void ReadCards(SetReader& in, int16 version, CardSet& set)
{
    set.CardCount = in.Int16();
    set.Cards.Resize(set.CardCount);
    std::optional<TypeFinder> types;
    if (version < 6)
        types.emplace(set);
    for (int i = 1; i <= set.CardCount; ++i) {
        ReadCard(in, version, set.Cards[i]);
        if (types)
            ConvertType(set, *types, set.Cards[i]);
    }
}

void ReadClosingLines(SetReader& in, int16 version, CardSet& set)
{
    set.LastCardBack = in.Int16();
    set.LastType = in.Text();
    set.LastTypeReversed = version >= 2 ? in.Text() : set.LastType;
    set.LastSubType = version >= 7 ? in.Text() : QString();
    set.LastSubTypeReversed = version >= 7 ? in.Text() : QString();
    set.LastNumber = version >= 2 ? in.Int16() : NumberOfOldFiles;
    set.LastBackground = in.Path();
}

void ReadSet(SetReader& in, int16 version, CardSet& set)
{
    in.Line(); // the start line; its text does not matter
    ReadHeader(in, version, set.Header);
    ReadOwnRows(in, version, set.CardTypes, set.CardTypeCount, BuiltInTypeCount, ReadCardType);
    ReadOwnRows(in, version, set.CardBacks, set.CardBackCount, BuiltInBackCount, ReadCardBack);
    ReadSection(in, version, 10, set.NewCardBacks, set.NewCardBackCount, ReadNewCardBack);
    ReadCards(in, version, set);
    ReadSection(in, version, 4, set.LargeCards, set.LargeCardCount, ReadLargeCard);
    ReadSection(in, version, 6, set.Characters, set.CharacterCount, ReadCharacter);
    ReadClosingLines(in, version, set);
}

/// "Version 10" gives 10. Without a blank the whole line is taken, and is no number.
int16 VersionOf(QByteArrayView line)
{
    const qsizetype blank = line.indexOf(' ');
    return ToInt16(NumberFromText(blank < 0 ? line : line.sliced(blank + 1)));
}

void Tell(UserPort& user, BoxStyle style, const char* title, const char* text)
{
    user.ShowMessage(
        {.Text = QString::fromLatin1(text), .Title = QString::fromLatin1(title), .Style = style});
}

/// Reads what tells whether the file can be read at all; nothing when it cannot, which the user is told.
std::optional<int16> ReadVersion(SetReader& in, UserPort& user)
{
    if (in.Line() != setFile::Signature) {
        Tell(user, BoxStyle::Critical, "Open File Error", "This is not a correct card set file.");
        return std::nullopt;
    }
    const int16 version = VersionOf(in.Line());
    if (version < setFile::CurrentVersion) {
        Tell(user, BoxStyle::Information, "Converting",
             "The set you are opening is of an older version.\r\nIt will now be converted to the new "
             "version.");
    }
    if (version > setFile::CurrentVersion) {
        Tell(user, BoxStyle::Information, "Version conflict",
             "The set you are opening is from a newer version.\r\nIt can not be opened in this version.");
        return std::nullopt;
    }
    return version;
}

/// False for a file that is refused.
bool ReadFile(CardSet& set, const QString& path, UserPort& user)
{
    SetReader in(path);
    const std::optional<int16> version = ReadVersion(in, user);
    if (!version)
        return false;
    ReadSet(in, *version, set);
    if (in.Line() != setFile::End)
        Tell(user, BoxStyle::Question, "Error", "No final match!");
    return true;
}

} // namespace

bool ReadDKF(CardSet& set, const QString& path, UserPort& user)
{
    bool isRead = false;
    try {
        WithMemoryAsFailure([&] { isRead = ReadFile(set, path, user); });
    } catch (const RunTimeError& error) {
        user.ShowMessage({.Text = QStringLiteral("Error while opening the Varnhelm Card Set.\r\n\r\n") +
                                  error.NumberAndDescription(),
                          .Title = QStringLiteral("Error"),
                          .Style = BoxStyle::Critical});
    }
    if (!isRead)
        return false;
    Tell(user, BoxStyle::Information, "Open file", "The card set is loaded.");
    set.CurrentCard = 1;
    return true;
}

} // namespace deckforge
