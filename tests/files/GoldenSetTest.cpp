#include "support/SetTest.h"

namespace deckforge {

namespace {

constexpr int CurrentVersion = 10;
constexpr int FirstWithOwnRowsOnly = 6; ///< older files count the built-in rows of the tables, too

QString Shown(const QString& text)
{
    return QString(text).replace('|', "(bar)").replace("\r\n", "|");
}

QString Shown(bool value)
{
    return value ? "True" : "False";
}

template <class Number>
QString Shown(Number value)
{
    return QString::number(value);
}

/// A line of the golden file and the field that holds it.
struct Row {
    template <class Value>
    Row(const char* field, QByteArray line, const Value& value, int since = 1, const char* before = nullptr)
        : Field(field), Line(std::move(line)), InSet(Shown(value)), Since(since), Before(before),
          IsNumber(!std::is_same_v<Value, QString> && !std::is_same_v<Value, bool>)
    {
    }

    [[nodiscard]] QString Expected() const { return QString::fromLatin1(IsNumber ? Line.trimmed() : Line); }
    [[nodiscard]] bool IsSwitch() const { return Line == "True" || Line == "False"; }

    QByteArray Field;
    QByteArray Line;
    QString InSet;      ///< what the set holds, as the line would have it
    int Since;          ///< the first version that has the line
    const char* Before; ///< what older files give; null where they lack the whole section
    bool IsNumber;
};

using Rows = std::vector<Row>;

void AddFont(Rows& rows, const QByteArray& name, const FontSpec& font, int place, int since = 1)
{
    const QByteArray values[] = {"Lettering " + QByteArray::number(place),
                                 ' ' + QByteArray::number(place + 0.5) + ' ',
                                 place % 2 == 0 ? "True" : "False", place % 3 == 0 ? "True" : "False",
                                 ' ' + QByteArray::number(1000 + place) + ' '};
    rows.emplace_back(name + ".Name", values[0], font.Name, since);
    rows.emplace_back(name + ".Size", values[1], font.Size, since);
    rows.emplace_back(name + ".Bold", values[2], font.Bold, since);
    rows.emplace_back(name + ".Italic", values[3], font.Italic, since);
    rows.emplace_back(name + ".Color", values[4], font.Color, since);
}

void Append(Rows& rows, Rows&& more)
{
    rows.insert(rows.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

void AddHeader(Rows& rows, const SetHeader& header)
{
    Append(rows, {
                     {"SetName", "Golden set", header.SetName},
                     {"FileName", "/sets/golden.dkf", header.FileName},
                     {"SaveTo", "/images/", header.SaveTo},
                     {"Autonumber", "True", header.Autonumber},
                     {"Symbol", "symbol.bmp", header.Symbol},
                     {"FilenamePrefix", "prefix", header.FilenamePrefix},
                     {"FileNr", "True", header.FileNr},
                     {"NoBack", "False", header.NoBack},
                     {"SaveFormat", " 2 ", header.SaveFormat, 2, "0"},
                     {"ReplaceSpace", "True", header.ReplaceSpace, 5, "False"},
                     {"ArtistColor", " 7654321 ", header.ArtistColor, 8, "12632256"},
                 });
    AddFont(rows, "FontTitle", header.FontTitle, 1);
    AddFont(rows, "FontType", header.FontType, 2);
    AddFont(rows, "FontNumber", header.FontNumber, 3);
    AddFont(rows, "FontBold", header.FontBold, 4);
    AddFont(rows, "FontInformation", header.FontInformation, 5);
    AddFont(rows, "FontAutonumber", header.FontAutonumber, 6);
    AddFont(rows, "FontTitleLarge", header.FontTitleLarge, 7, 9);
    AddFont(rows, "FontInformationLarge", header.FontInformationLarge, 8, 9);
    AddFont(rows, "FontCharacter", header.FontCharacter, 9, 9);
    AddFont(rows, "FontSpecialTitle", header.FontSpecialTitle, 10, 9);
    AddFont(rows, "FontSpecial", header.FontSpecial, 11, 9);
    AddFont(rows, "FontAlignment", header.FontAlignment, 12, 9);
    AddFont(rows, "FontPlayingPiece", header.FontPlayingPiece, 13, 9);
}

void AddTables(Rows& rows, const CardSet& set, int version)
{
    const bool countsAll = version < FirstWithOwnRowsOnly;
    const CardType& type = set.CardTypes[set.CardTypes.Count()];
    const CardBack& own = set.CardBacks[set.CardBacks.Count()];
    const NewCardBack& back = set.NewCardBacks[set.NewCardBacks.Count()];
    Append(rows,
           {
               {"CardTypeCount", countsAll ? " 16 " : " 1 ", set.CardTypes.Count() - (countsAll ? 0 : 15)},
               {"type.Name", "own type", type.Name},
               {"type.SubName", "own second", type.SubName, 6, ""},
               {"type.ReversedName", "epyt nwo", type.ReversedName},
               {"type.ReversedSubName", "dnoces nwo", type.ReversedSubName, 6, ""},
               {"type.Number", " 9 ", type.Number},
               {"type.BuiltIn", "False", type.BuiltIn},
               {"CardBackCount", countsAll ? " 28 " : " 1 ", set.CardBacks.Count() - (countsAll ? 0 : 27)},
               {"own.Name", "own back", own.Name},
               {"own.Picture", "own.bmp", own.Picture},
               {"own.BuiltIn", "False", own.BuiltIn},
               {"NewCardBackCount", " 1 ", set.NewCardBacks.Count(), 10, "0"},
               {"back.BackText", "back text", back.BackText, 10},
               {"back.Filename", "back file", back.Filename, 10},
               {"back.FrameColor", " 301 ", back.FrameColor, 10},
               {"back.InnerColor", " 302 ", back.InnerColor, 10},
               {"back.Name", "back name", back.Name, 10},
               {"back.BackColor", " 303 ", back.BackColor, 10},
               {"back.Picture", "back.bmp", back.Picture, 10},
               {"back.UsePicture", "True", back.UsePicture, 10},
           });
    AddFont(rows, "back.Font", back.Font, 14, 10);
}

void AddCards(Rows& rows, const CardSet& set)
{
    const Card& card = set.Cards[set.Cards.Count()];
    const LargeCard& large = set.LargeCards[set.LargeCards.Count()];
    Append(rows, {
                     {"CardCount", " 1 ", set.Cards.Count()},
                     {"card.Title", " card title ", card.Title},
                     {"card.Copies", " 3 ", card.Copies, 3, "1"},
                     {"card.Type", "card type", card.Type},
                     {"card.SubType", "card second", card.SubType, 6, ""},
                     {"card.TypeReversed", "epyt drac", card.TypeReversed, 2, "card type"},
                     {"card.SubTypeReversed", "dnoces drac", card.SubTypeReversed, 6, ""},
                     {"card.OneLine", "True", card.OneLine, 2, "False"},
                     {"card.TypeIndex", "-1 ", card.TypeIndex},
                     {"card.Number", "card number", card.Number},
                     {"card.ShowPicture", "True", card.ShowPicture},
                     {"card.Picture", "card.bmp", card.Picture},
                     {"card.PictureTop", "-11.5 ", card.PictureTop},
                     {"card.FrameHeight", " 101 ", card.FrameHeight},
                     {"card.PictureLeft", " 12.25 ", card.PictureLeft},
                     {"card.Frame", "True", card.Frame},
                     {"card.Resize", "False", card.Resize},
                     {"card.Artist", "card artist", card.Artist, 8, ""},
                     {"card.BoldText", "\rcard\nbold", card.BoldText}, // neither alone ends a line
                     {"card.Info", "card info||third", card.Info},
                     {"card.Background", "ground.bmp", card.Background},
                     {"card.CardBack", " 17 ", card.CardBack},
                     {"card.Color", " 401 ", card.Color},
                     {"card.Filename", "card file", card.Filename},
                     {"LargeCardCount", " 1 ", set.LargeCards.Count(), 4, "0"},
                     {"large.Title", "large title", large.Title, 4},
                     {"large.Copies", " 4 ", large.Copies, 4},
                     {"large.ShowPicture", "True", large.ShowPicture, 4},
                     {"large.Picture", "large.bmp", large.Picture, 4},
                     {"large.PictureTop", " 21 ", large.PictureTop, 4},
                     {"large.PictureLeft", "-22 ", large.PictureLeft, 4},
                     {"large.FrameHeight", " 102 ", large.FrameHeight, 4},
                     {"large.Frame", "True", large.Frame, 4},
                     {"large.Resize", "False", large.Resize, 4},
                     {"large.Info", "large info|second", large.Info, 4},
                     {"large.Background", "large ground.bmp", large.Background, 4},
                     {"large.CardBack", "large back.bmp", large.CardBack, 4},
                     {"large.Color", " 402 ", large.Color, 4},
                     {"large.Filename", "large file", large.Filename, 4},
                 });
}

void AddCharacterAndEnd(Rows& rows, const CardSet& set)
{
    const Character& hero = set.Characters[set.Characters.Count()];
    Append(rows, {
                     {"CharacterCount", " 1 ", set.Characters.Count(), 6, "0"},
                     {"hero.Name", "hero name", hero.Name, 6},
                     {"hero.SpecialAbilities", "hero special|second", hero.SpecialAbilities, 6},
                     {"hero.Alignment", "hero alignment", hero.Alignment, 6},
                     {"hero.Background", "hero ground.bmp", hero.Background, 6},
                     {"hero.Craft", "5", hero.Craft, 6},
                     {"hero.Filename", "hero file", hero.Filename, 6},
                     {"hero.Gold", "6", hero.Gold, 6},
                     {"hero.Lives", "---", hero.Lives, 6},
                     {"hero.PictureLeft", " 31 ", hero.PictureLeft, 6},
                     {"hero.PictureTop", " 32 ", hero.PictureTop, 6},
                     {"hero.Picture", "hero.bmp", hero.Picture, 6},
                     {"hero.FrameHeight", " 103 ", hero.FrameHeight, 6},
                     {"hero.StartArea", "hero area", hero.StartArea, 6},
                     {"hero.Strength", "+7", hero.Strength, 6},
                     {"hero.Frame", "True", hero.Frame, 6},
                     {"hero.ShowPicture", "False", hero.ShowPicture, 6},
                     {"hero.CardBack", " 3 ", hero.CardBack, 6},
                     {"hero.CardBackPicture", "hero back.bmp", hero.CardBackPicture, 6},
                     {"hero.PlayingPiece", "piece.bmp", hero.PlayingPiece, 6},
                     {"hero.PlayingPieceLeft", " 41 ", hero.PlayingPieceLeft, 6},
                     {"hero.PlayingPieceTop", " 42 ", hero.PlayingPieceTop, 6},
                     {"LastCardBack", " 18 ", set.LastCardBack},
                     {"LastType", "last type", set.LastType},
                     {"LastTypeReversed", "epyt tsal", set.LastTypeReversed, 2, "last type"},
                     {"LastSubType", "last second", set.LastSubType, 7, ""},
                     {"LastSubTypeReversed", "dnoces tsal", set.LastSubTypeReversed, 7, ""},
                     {"LastNumber", " 8 ", set.LastNumber, 2, "2"},
                     {"LastBackground", "last ground.bmp", set.LastBackground},
                 });
}

/// All lines between the start and the end, with what the set has for each.
Rows RowsOf(const CardSet& set, int version = CurrentVersion)
{
    Rows rows;
    AddHeader(rows, set.Header);
    AddTables(rows, set, version);
    AddCards(rows, set);
    AddCharacterAndEnd(rows, set);
    return rows;
}

QByteArray FileOf(const Rows& rows, int version = CurrentVersion)
{
    QByteArray file = "Amber Gnome - Varnhelm Deck Foundry\r\nVersion " + QByteArray::number(version) +
                      "\r\n-- START --\r\n";
    for (const Row& row : rows) {
        if (row.Since <= version)
            file += row.Line + "\r\n";
    }
    return file + "-- END --\r\n";
}

} // namespace

class GoldenSetTest : public SetTest {
protected:
    void Read(const QByteArray& bytes)
    {
        ASSERT_TRUE(OpenSet(Set, Folder.Write("golden.dkf", bytes), User)) << User.LastTold().toStdString();
    }

    void ExpectWrittenLikeRead(const QByteArray& file)
    {
        ASSERT_TRUE(WriteSet(Set, Folder.Path("written.dkf"), User));
        const QList<QByteArray> expected = file.split('\n');
        const QList<QByteArray> written = Folder.Read("written.dkf").split('\n');
        EXPECT_EQ(written.size(), expected.size());
        for (qsizetype line = 0; line < std::min(written.size(), expected.size()); ++line)
            EXPECT_EQ(written[line], expected[line]) << "line " << line + 1;
    }

    const Rows Golden = RowsOf(CardSet());
};

TEST_F(GoldenSetTest, EachFieldIsReadFromItsOwnLineAndWrittenThere)
{
    Read(FileOf(Golden));
    for (const Row& row : RowsOf(Set))
        EXPECT_EQ(row.InSet, row.Expected()) << row.Field.constData();
    ExpectWrittenLikeRead(FileOf(Golden));
}

TEST_F(GoldenSetTest, EachSwitchHasALineOfItsOwn)
{
    for (std::size_t i = 0; i < Golden.size(); ++i) {
        if (!Golden[i].IsSwitch())
            continue;
        Rows flipped = Golden;
        flipped[i].Line = Golden[i].Line == "True" ? "False" : "True";
        SCOPED_TRACE(flipped[i].Field.constData());
        Read(FileOf(flipped));
        EXPECT_EQ(RowsOf(Set)[i].InSet, flipped[i].Expected());
        ExpectWrittenLikeRead(FileOf(flipped));
    }
}

TEST_F(GoldenSetTest, WhatAnOlderVersionLacksGetsItsDefault)
{
    for (int version = 1; version < CurrentVersion; ++version) {
        SCOPED_TRACE(version);
        Read(FileOf(Golden)); // so that no field has its default by chance
        Read(FileOf(RowsOf(CardSet(), version), version));
        for (const Row& row : RowsOf(Set, version)) {
            const bool isRead =
                row.Since <= version || row.Field.startsWith("Font"); // or kept from the set before
            if (isRead || row.Before != nullptr) {
                EXPECT_EQ(row.InSet, isRead ? row.Expected() : row.Before) << row.Field.constData();
            }
        }
    }
}

TEST_F(GoldenSetTest, TypesOfOldCardsAreTakenFromTheTable)
{
    const std::tuple<const char*, const char*, const char*, const char*, const char*> rows[] = {
        {"1", "typed", "depyt", "ENEMY-|Alien|-ENEMY|Alien", "the first built-in row"},
        {"6", "typed", "depyt", "ENEMY-|Spirit|-ENEMY|Spirit", "a row of two parts"},
        {"4", "typed", "depyt", "ENEMY-Fey||Fey-ENEMY|", "a row of one part"},
        {"15", "typed", "depyt", "ENEMY-Troll||Troll-ENEMY|", "the last built-in row"},
        {"16", "typed", "depyt", "typed||depyt|", "a row of the set's own keeps the text"},
        {"-1", "SPELL", "LLEPS", "SPELL||LLEPS|", "a type typed freely keeps the text"},
        {"0", "EVENT-Law", "waL", "EVENT||EVENT|", "the first row that occurs, not the longest"},
        {"0", "ENEMY-", "Dragon", "ENEMY-|Dragon|-ENEMY|Dragon", "parts from both texts"},
        {"0", "enemy-Dragon", "ENEMY", "enemy-Dragon||ENEMY|", "case counts"},
        {"0", "own", "type", "own type||epyt nwo|", "a row of the set's own, a blank between the texts"},
    };
    for (const auto& [index, type, reversed, expected, why] : rows) {
        for (const int version : {2, 5}) {
            SCOPED_TRACE(testing::Message() << why << ", version " << version);
            Rows old = RowsOf(CardSet(), version);
            for (Row& row : old) {
                if (row.Field == "card.TypeIndex")
                    row.Line = index;
                else if (row.Field == "card.Type")
                    row.Line = type;
                else if (row.Field == "card.TypeReversed")
                    row.Line = reversed;
            }
            Read(FileOf(old, version));
            const Card& card = FirstCard();
            EXPECT_EQ(
                QStringList({card.Type, card.SubType, card.TypeReversed, card.SubTypeReversed}).join('|'),
                expected);
            EXPECT_EQ(card.TypeIndex, QByteArray(index).toInt()) << "stays as read";
        }
    }
}

} // namespace deckforge
