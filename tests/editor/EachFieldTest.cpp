#include "dialogs/ColourSwatch.h"
#include "editor/WindowTest.h"
#include "support/EveryKind.h"

namespace deckforge {

namespace {

QString Shown(const QString& text)
{
    return text;
}

template <class Number>
QString Shown(Number value)
{
    return QString::number(value);
}

/// What a control shows; of a path the name of the file.
QString ShownBy(const QWidget& control)
{
    if (const auto* check = qobject_cast<const QCheckBox*>(&control))
        return Shown(check->isChecked());
    if (const auto* count = qobject_cast<const QSpinBox*>(&control))
        return Shown(count->value());
    if (const auto* swatch = dynamic_cast<const ColourSwatch*>(&control))
        return Shown(FromRgb(swatch->Colour().rgb()));
    if (const auto* page = qobject_cast<const QPlainTextEdit*>(&control))
        return page->toPlainText();
    return control.property(control.inherits("QComboBox") ? "currentText" : "text").toString();
}

} // namespace

/// A set in which no two fields hold the same, but for those that can only be yes or no.
class EachFieldTest : public WindowTest {
protected:
    struct Row {
        template <class Value>
        Row(int tab, const char* control, const Value& field)
            : Tab(tab), Control(control), InSet([&field] { return Shown(field); })
        {
        }

        int Tab; ///< 0 for what stands beside the tabs
        const char* Control;
        std::function<QString()> InSet;
    };

    EachFieldTest()
    {
        const QString picture = folder.WritePicture("back.bmp");
        OpenChangedSet([&](CardSet& set) {
            AddOneOfEachKind(set);
            SetHeader& header = set.Header;
            header.SetName = "set";
            header.FilenamePrefix = "prefix";
            header.SaveTo = "images";
            header.Symbol = folder.WritePicture("symbol.bmp");
            Card& card = set.Cards[1];
            card = {};
            card.Title = "title";
            card.Copies = 2;
            card.Type = "type";
            card.Number = "number";
            card.Picture = "card.bmp";
            card.FrameHeight = 80;
            card.Artist = "artist";
            card.BoldText = "bold";
            card.Info = "info";
            card.Background = "ground.bmp";
            card.CardBack = 4;
            card.Color = 0x010203;
            LargeCard& large = set.LargeCards[1];
            large = {};
            large.Title = "large";
            large.Copies = 3;
            large.Picture = "large.bmp";
            large.FrameHeight = 90;
            large.Info = "large info";
            large.Background = "wide.bmp";
            large.CardBack = "rear.bmp";
            large.Color = 0x040506;
            Character& hero = set.Characters[1];
            hero = {};
            hero.Name = "hero";
            hero.StartArea = "area";
            hero.Alignment = "alignment";
            hero.Strength = "1";
            hero.Craft = "2";
            hero.Gold = "3";
            hero.Lives = "4";
            hero.SpecialAbilities = "special";
            hero.Picture = "hero.bmp";
            hero.FrameHeight = 70;
            hero.Background = "panel.bmp";
            hero.PlayingPiece = "piece.bmp";
            NewCardBack& back = set.NewCardBacks[1];
            back.Name = "back";
            back.BackText = "back text";
            back.InnerColor = 0x111111;
            back.FrameColor = 0x222222;
            back.BackColor = 0x333333;
            back.Font.Color = 0x444444;
            back.Picture = picture;
        });
    }

    std::vector<Row> Rows() const
    {
        const SetHeader& header = Set().Header;
        const Card& card = FirstCard();
        const LargeCard& large = Set().LargeCards[1];
        return {{0, "txtSetname", header.SetName},
                {0, "txtFilenamePrefix", header.FilenamePrefix},
                {0, "txtSaveTo", header.SaveTo},
                {0, "txtSymbol", header.Symbol},
                {0, "chkAutonumber", header.Autonumber},
                {0, "chkFileNr", header.FileNr},
                {0, "chkNoBack", header.NoBack},
                {0, "chkReplaceSpace", header.ReplaceSpace},
                {1, "txtTitle", card.Title},
                {1, "cboNumber", card.Number},
                {1, "txtBold", card.BoldText},
                {1, "txtInfo", card.Info},
                {1, "txtArtist", card.Artist},
                {1, "chkOneLine", card.OneLine},
                {1, "chkShowPicture", card.ShowPicture},
                {1, "chkFrame", card.Frame},
                {1, "chkResize", card.Resize},
                {1, "udCopy", card.Copies},
                {1, "txtPicture", card.Picture},
                {1, "txtBackground", card.Background},
                {1, "picColour", card.Color},
                {2, "txtTitleLarge", large.Title},
                {2, "txtInfoLarge", large.Info},
                {2, "chkShowPictureLarge", large.ShowPicture},
                {2, "chkFrameLarge", large.Frame},
                {2, "chkResizeLarge", large.Resize},
                {2, "udCopyLarge", large.Copies},
                {2, "txtPictureLarge", large.Picture},
                {2, "txtBackgroundLarge", large.Background},
                {2, "txtCardbackLarge", large.CardBack},
                {2, "picColourLarge", large.Color},
                {3, "txtCharName", Hero().Name},
                {3, "cboStartArea", Hero().StartArea},
                {3, "cboAlignment", Hero().Alignment},
                {3, "cboCharAttr0", Hero().Strength},
                {3, "cboCharAttr1", Hero().Craft},
                {3, "cboCharAttr2", Hero().Gold},
                {3, "cboCharAttr3", Hero().Lives},
                {3, "txtSpecialAbilities", Hero().SpecialAbilities},
                {3, "chkShowPictureCharacter", Hero().ShowPicture},
                {3, "chkFrameCharacter", Hero().Frame},
                {3, "txtPictureCharacter", Hero().Picture},
                {3, "txtBackgroundCharacter", Hero().Background},
                {3, "txtPlayingPiece", Hero().PlayingPiece},
                {4, "txtNewCardBackName", Back().Name},
                {4, "txtBackText", Back().BackText},
                {4, "chkNewBackPicture", Back().UsePicture},
                {4, "txtNewBackPicture", Back().Picture},
                {4, "picInnerColor", Back().InnerColor},
                {4, "picFrameColor", Back().FrameColor},
                {4, "picNewBackColor", Back().BackColor},
                {4, "picFontColor", Back().Font.Color}};
    }

    QWidget& ControlOf(const Row& row)
    {
        if (row.Tab > 0)
            SelectTab(row.Tab);
        return Find<QWidget>(row.Control);
    }

    /// Gives the control another value as a user does; gives what the field then should hold, or nothing for
    /// a control that only shows.
    std::optional<QString> Edit(const Row& row)
    {
        QWidget& control = ControlOf(row);
        if (auto* const check = qobject_cast<QCheckBox*>(&control)) {
            const bool isChecked = check->isChecked();
            check->click();
            return Shown(!isChecked);
        }
        if (auto* const count = qobject_cast<QSpinBox*>(&control)) {
            count->setValue(17);
            return "17";
        }
        if (auto* const swatch = dynamic_cast<ColourSwatch*>(&control)) {
            user.WillPick(0x0A0B0C);
            swatch->click();
            return Shown(0x0A0B0C);
        }
        if (auto* const page = qobject_cast<QPlainTextEdit*>(&control)) {
            page->selectAll();
            QTest::keyClicks(page, "edited");
            return "edited";
        }
        if (Line(row.Control).isReadOnly())
            return std::nullopt;
        Type(row.Control, "edited");
        return "edited";
    }
};

TEST_F(EachFieldTest, IsShownByItsOwnControl)
{
    for (const Row& row : Rows())
        EXPECT_EQ(ShownBy(ControlOf(row)), row.InSet().section('/', -1)) << row.Control;
    SelectTab(1);
    EXPECT_EQ(Text("cboType"), "type");
    EXPECT_EQ(Find<QComboBox>("cboCardBack").currentIndex(), 4 - 1);
}

TEST_F(EachFieldTest, TakesTheValueOfItsOwnControlAlone)
{
    const std::vector<Row> rows = Rows();
    const auto values = [&] {
        QStringList all;
        for (const Row& row : rows)
            all += row.InSet();
        return all;
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        QStringList expected = values();
        if (const std::optional<QString> edited = Edit(rows[i]))
            expected[static_cast<qsizetype>(i)] = *edited;
        EXPECT_EQ(values().join('|'), expected.join('|')) << rows[i].Control;
    }
}

TEST_F(EachFieldTest, AnAttributeIsDrawnAnewInItsOwnStrip)
{
    SelectTab(3);
    const auto strips = [&] {
        std::vector<QImage> images;
        for (const Box& strip : Boxes().Character.picCharAttrDisp)
            images.push_back(strip.Surface->Image().Pixels());
        return images;
    };
    const char* const lists[] = {"cboCharAttr0", "cboCharAttr1", "cboCharAttr2", "cboCharAttr3"};
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        const std::vector<QImage> before = strips();
        Type(lists[i], "88");
        const std::vector<QImage> after = strips();
        for (std::size_t strip = 0; strip < after.size(); ++strip)
            EXPECT_EQ(after[strip] != before[strip], strip == i) << lists[i] << ", strip " << strip;
    }
}

} // namespace deckforge
