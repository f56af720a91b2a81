// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/WindowTest.h"
#include "files/SetFileFormat.h"
#include "support/EveryKind.h"

#include <QDir>
#include <QFileInfo>
#include <QtEndian>
#include <array>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace deckforge {

namespace {

enum class Failure { None, Shown };

/// Untrusted sets with two elements of every kind, of which the first is changed.
class HostileSetTest : public WindowTest {
protected:
    /// Opens the set, shows every record, and creates all images and sheets.
    void Try(const char* what, const std::function<void(CardSet&)>& change, Failure mayFail = Failure::None)
    {
        SCOPED_TRACE(what);
        OpenChangedSet([&](CardSet& set) {
            set = {};
            InitSet(set);
            for (int i = 0; i < 2; ++i) {
                AddElement<Card>(set);
                AddOneOfEachKind(set);
            }
            set.Header.SaveTo = folder.WithSeparator();
            change(set);
        });
        ASSERT_FALSE(user.Boxes.empty());
        ASSERT_EQ(user.Boxes.front().Text, "The card set is loaded.");
        EXPECT_TRUE(user.Boxes.size() == 1 || mayFail == Failure::Shown) << user.LastBox().Text.toStdString();
        for (int tab = 1; tab <= 4; ++tab) {
            SelectTab(tab);
            View().grab();
            Run("createall");
        }
        SelectTab(1);
        Slide("hsbCard", 2);
        window.close();
        // Without this back there are still those of the two other cards.
        EXPECT_TRUE(folder.Has("CARD 2.bmp"));
        QFile::remove(folder.Path("CARD 2.bmp"));
        user.Boxes.clear();
    }
};

/// Changes the first element of each kind with a picture in the same way.
template <class Change>
void ChangeEach(CardSet& set, Change&& change)
{
    change(set.Cards[1]);
    change(set.LargeCards[1]);
    change(set.Characters[1]);
}

void SetFonts(CardSet& set, const FontSpec& font)
{
    for (FontSpec SetHeader::*const of : setFile::Fonts)
        set.Header.*of = font;
    set.NewCardBacks[1].Font = font;
}

} // namespace

TEST_F(HostileSetTest, NumbersOutsideTheirTablesAreAccepted)
{
    for (const int16 number : std::array<int16, 6>{-32768, -5, -1, 0, 28, 32767}) {
        Try("numbers", [&](CardSet& set) {
            set.Cards[1].CardBack = set.Cards[1].TypeIndex = set.Cards[1].Copies = number;
            set.Characters[1].CardBack = set.LastCardBack = set.LastNumber = number;
        });
        Try("extents",
            [&](CardSet& set) { ChangeEach(set, [&](auto& element) { element.FrameHeight = number; }); });
        Try("colours", [&](CardSet& set) {
            const Colour colour = number * 65536;
            NewCardBack& back = set.NewCardBacks[1];
            set.Cards[1].Color = set.LargeCards[1].Color = set.Header.ArtistColor = colour;
            back.BackColor = back.InnerColor = back.FrameColor = colour;
            SetFonts(set, SmallFont(7, false, colour));
        });
    }
    Try("as many types and backs as there can be", [](CardSet& set) {
        set.CardTypes.Resize(std::numeric_limits<int16>::max());
        set.CardBacks.Resize(std::numeric_limits<int16>::max());
    });
    for (const double offset :
         {1e300, -1e300, 32768.0 * 15, 0.5, std::numeric_limits<double>::denorm_min()}) {
        Try("offsets", [&](CardSet& set) {
            const QString picture = folder.WritePicture("a.bmp");
            ChangeEach(set, [&](auto& element) {
                element.Picture = picture;
                element.PictureLeft = offset;
                element.PictureTop = -offset;
            });
            set.Characters[1].PlayingPiece = picture;
            set.Characters[1].PlayingPieceLeft = set.Characters[1].PlayingPieceTop = offset;
            set.Cards[1].Resize = set.LargeCards[1].Resize = true;
        });
    }
}

TEST_F(HostileSetTest, UnknownFontsAreAccepted)
{
    for (const double size : {0.0, -7.0, 0.01, 2160.0, 10000.0, 1e300})
        Try("a size", [&](CardSet& set) { SetFonts(set, SmallFont(size)); });
    for (const QString& name : QStringList{QString(), QString(60000, 'x'), "\x01,\x02"})
        Try("a name", [&](CardSet& set) { SetFonts(set, {.Name = name, .Size = 7}); });
}

TEST_F(HostileSetTest, OverlongTextsAreAccepted)
{
    for (const QString& text :
         {QString(1 << 16, 'x'), QString(1 << 12, QChar(u'\0')), QStringLiteral("|\r|\n ").repeated(2000),
          QString(20000, '/'), QStringLiteral("<b>&amp;%1%n</b>").repeated(1000),
          QString(QChar(0x9D)) + '\t'}) {
        Try("a text", [&](CardSet& set) {
            set.Cards[1].Title = set.Cards[1].Type = set.Cards[1].SubType = set.Cards[1].Number = text;
            set.Cards[1].Artist = set.Cards[1].BoldText = set.Cards[1].Info = text;
            set.LargeCards[1].Title = set.LargeCards[1].Info = text;
            Character& character = set.Characters[1];
            character.Name = character.SpecialAbilities = character.Alignment = character.Strength =
                character.StartArea = text;
            set.NewCardBacks[1].BackText = text.left(1 << 15);
            set.Header.SetName = text;
        });
    }
}

TEST_F(HostileSetTest, InvalidPicturesAreReportedForEveryField)
{
    const QString fifo = folder.Path("fifo.bmp");
    ASSERT_EQ(::mkfifo(fifo.toUtf8().constData(), 0600), 0);
    const QString circle = folder.Path("circle.bmp");
    ASSERT_EQ(::symlink(circle.toUtf8().constData(), circle.toUtf8().constData()), 0);
    QDir(folder.Path()).mkdir("folder.bmp");
    folder.WritePicture("whole.bmp", PictureOfPlaces({100, 80}));
    const QByteArray bytes = folder.Read("whole.bmp");
    QByteArray huge = bytes;
    qToLittleEndian<qint32>(30000, huge.data() + 18);
    qToLittleEndian<qint32>(30000, huge.data() + 22);

    for (const QString& picture : QStringList{
             fifo, circle, folder.Path("folder.bmp"), "/dev/zero", "/dev/tty", "/proc/self/mem",
             "none/none.bmp", QString(5000, 'x'), QString(QChar(u'\0')),
             folder.Write("half.bmp", bytes.first(bytes.size() / 2)), folder.Write("huge.bmp", huge)}) {
        Try(
            qPrintable(picture.left(100)),
            [&](CardSet& set) {
                ChangeEach(set, [&](auto& element) { element.Picture = element.Background = picture; });
                set.LargeCards[1].CardBack = picture;
                set.Characters[1].CardBack = 3;
                set.Characters[1].CardBackPicture = set.Characters[1].PlayingPiece = picture;
                set.NewCardBacks[1].Picture = picture;
                set.NewCardBacks[1].UsePicture = true;
                set.Header.Symbol = picture;
                AddOwnBack(set, {}, picture);
                set.Cards[1].CardBack = 28;
            },
            Failure::Shown);
    }
}

} // namespace deckforge
