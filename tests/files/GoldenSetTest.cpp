// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/FileBytes.h"
#include "support/SetTest.h"

namespace deckforge {

namespace {

constexpr int CurrentVersion = 10;
constexpr int FirstWithOwnRowsOnly = 6; ///< older files count the built-in rows of the tables, too

/// A line of the golden file and its field.
struct Row {
    QByteArray Field;
    int Since;         ///< the first version that has the line
    QByteArray Before; ///< value for older files; "-" if they lack the whole section
    QByteArray Line;

    /// The value in the set, without the spaces of a number.
    [[nodiscard]] static QString Value(const QByteArray& line)
    {
        const bool isNumber = line.endsWith(' ') && line.trimmed().back() <= '9';
        return QString::fromLatin1(isNumber ? line.trimmed() : line);
    }
};

using Rows = std::vector<Row>;

Rows GoldenRows()
{
    Rows rows;
    for (const QByteArray& text : TestData("golden-set.txt").split('\n')) {
        const QList<QByteArray> quoted = text.split('"');
        const QList<QByteArray> words = quoted[0].split(' ');
        if (quoted.size() < 3 || words[0] == "#")
            continue;
        QByteArray line = quoted[quoted.size() - 2];
        rows.push_back({words[0], words[1].toInt(), words[2] == "-" ? words[2] : quoted[1],
                        line.replace("\\r", "\r").replace("\\n", "\n")});
    }
    return rows;
}

QByteArray FileOf(const Rows& rows, int version = CurrentVersion)
{
    QByteArray file = "Amber Gnome - Varnhelm Deck Foundry\r\nVersion " + QByteArray::number(version) +
                      "\r\n-- START --\r\n";
    for (const Row& row : rows) {
        const bool countsAll = version < FirstWithOwnRowsOnly;
        const QByteArray line = countsAll && row.Field == "CardTypeCount"   ? " 16 "
                                : countsAll && row.Field == "CardBackCount" ? " 28 "
                                                                            : row.Line;
        if (row.Since <= version)
            file += line + "\r\n";
    }
    return file + "-- END --\r\n";
}

/// Formats fields as in the file.
class Fields : public QStringList {
public:
    template <class... Values>
    void Add(const Values&... values)
    {
        (append(Shown(values)), ...);
    }

private:
    static QString Shown(const QString& text)
    {
        return QString(text).replace('|', "(bar)").replace("\r\n", "|");
    }
    static QString Shown(bool value) { return value ? "True" : "False"; }
    static QString Shown(int value) { return QString::number(value); }
    static QString Shown(double value) { return QString::number(value); }
    static QString Shown(const FontSpec& font)
    {
        Fields all;
        all.Add(font.Name, font.Size, font.Bold, font.Italic, font.Color);
        return all.join('\x1F');
    }
};

/// The value in the set for each row.
QStringList FieldsOf(const CardSet& set)
{
    Fields all;
    const SetHeader& s = set.Header;
    all.Add(s.SetName, s.FileName, s.SaveTo, s.Autonumber, s.Symbol, s.FilenamePrefix, s.FileNr, s.NoBack,
            s.SaveFormat, s.ReplaceSpace, s.ArtistColor);
    all.Add(s.FontTitle, s.FontType, s.FontNumber, s.FontBold, s.FontInformation, s.FontAutonumber,
            s.FontTitleLarge, s.FontInformationLarge, s.FontCharacter, s.FontSpecialTitle, s.FontSpecial,
            s.FontAlignment, s.FontPlayingPiece);
    const CardType& type = set.CardTypes[set.CardTypes.Count()];
    all.Add(set.CardTypes.Count() - 15, type.Name, type.SubName, type.ReversedName, type.ReversedSubName,
            type.Number, type.BuiltIn);
    const CardBack& own = set.CardBacks[set.CardBacks.Count()];
    all.Add(set.CardBacks.Count() - 27, own.Name, own.Picture, own.BuiltIn);
    const NewCardBack& back = set.NewCardBacks[set.NewCardBacks.Count()];
    all.Add(set.NewCardBacks.Count(), back.BackText, back.Filename, back.FrameColor, back.InnerColor,
            back.Name, back.BackColor, back.Picture, back.UsePicture, back.Font);
    const Card& card = set.Cards[set.Cards.Count()];
    all.Add(set.Cards.Count(), card.Title, card.Copies, card.Type, card.SubType, card.TypeReversed,
            card.SubTypeReversed, card.OneLine, card.TypeIndex, card.Number, card.ShowPicture, card.Picture,
            card.PictureTop, card.FrameHeight, card.PictureLeft, card.Frame, card.Resize, card.Artist,
            card.BoldText, card.Info, card.Background, card.CardBack, card.Color, card.Filename);
    const LargeCard& large = set.LargeCards[set.LargeCards.Count()];
    all.Add(set.LargeCards.Count(), large.Title, large.Copies, large.ShowPicture, large.Picture,
            large.PictureTop, large.PictureLeft, large.FrameHeight, large.Frame, large.Resize, large.Info,
            large.Background, large.CardBack, large.Color, large.Filename);
    const Character& hero = set.Characters[set.Characters.Count()];
    all.Add(set.Characters.Count(), hero.Name, hero.SpecialAbilities, hero.Alignment, hero.Background,
            hero.Craft, hero.Filename, hero.Gold, hero.Lives, hero.PictureLeft, hero.PictureTop, hero.Picture,
            hero.FrameHeight, hero.StartArea, hero.Strength, hero.Frame, hero.ShowPicture, hero.CardBack,
            hero.CardBackPicture, hero.PlayingPiece, hero.PlayingPieceLeft, hero.PlayingPieceTop);
    all.Add(set.LastCardBack, set.LastType, set.LastTypeReversed, set.LastSubType, set.LastSubTypeReversed,
            set.LastNumber, set.LastBackground);
    return all.join('\x1F').split('\x1F');
}

} // namespace

class GoldenSetTest : public SetTest {
protected:
    void Read(const QByteArray& bytes)
    {
        ASSERT_TRUE(OpenSet(Set, Folder.Write("golden.dkf", bytes), User))
            << User.LastMessageText().toStdString();
        ASSERT_EQ(FieldsOf(Set).size(), std::ssize(Golden));
    }

    void ExpectWrittenLikeRead(const QByteArray& file)
    {
        ASSERT_TRUE(WriteSet(Set, Folder.Path("written.dkf"), User));
        ExpectLines(Folder.Read("written.dkf"), file);
    }

    const Rows Golden = GoldenRows();
};

TEST_F(GoldenSetTest, EachFieldIsReadFromItsOwnLineAndWrittenThere)
{
    Read(FileOf(Golden));
    for (std::size_t i = 0; i < Golden.size(); ++i)
        EXPECT_EQ(FieldsOf(Set)[i], Row::Value(Golden[i].Line)) << Golden[i].Field.constData();
    ExpectWrittenLikeRead(FileOf(Golden));
}

TEST_F(GoldenSetTest, EachBooleanHasItsOwnLine)
{
    for (std::size_t i = 0; i < Golden.size(); ++i) {
        Rows flipped = Golden;
        flipped[i].Line = Golden[i].Line == "True" ? "False" : "True";
        if (Golden[i].Line != "True" && Golden[i].Line != "False")
            continue;
        SCOPED_TRACE(flipped[i].Field.constData());
        Read(FileOf(flipped));
        EXPECT_EQ(FieldsOf(Set)[i], flipped[i].Line);
        ExpectWrittenLikeRead(FileOf(flipped));
    }
}

TEST_F(GoldenSetTest, FieldsThatAnOlderVersionLacksGetTheirDefaults)
{
    for (int version = 1; version < CurrentVersion; ++version) {
        SCOPED_TRACE(version);
        Read(FileOf(Golden)); // so that no field already has its default; fonts are kept
        Read(FileOf(Golden, version));
        const QStringList fields = FieldsOf(Set);
        for (std::size_t i = 0; i < Golden.size(); ++i) {
            const QByteArray line = Golden[i].Since <= version ? Golden[i].Line : Golden[i].Before;
            EXPECT_TRUE(line == "-" || fields[i] == Row::Value(line))
                << Golden[i].Field.constData() << " is " << fields[i].toStdString();
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
            QByteArray old = FileOf(Golden, version);
            old.replace("\r\ncard type\r\nepyt drac\r\n",
                        QByteArray("\r\n") + type + "\r\n" + reversed + "\r\n");
            Read(old.replace("\r\n-1 \r\n", QByteArray("\r\n") + index + "\r\n"));
            const Card& card = FirstCard();
            EXPECT_EQ(
                QStringList({card.Type, card.SubType, card.TypeReversed, card.SubTypeReversed}).join('|'),
                expected);
            EXPECT_EQ(card.TypeIndex, QByteArray(index).toInt()) << "stays as read";
        }
    }
}

} // namespace deckforge
