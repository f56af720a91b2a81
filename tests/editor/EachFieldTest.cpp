// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/ColourSwatch.h"
#include "editor/WindowTest.h"
#include "support/EveryKind.h"
#include "support/EveryText.h"

namespace deckforge {

/// A set in which all fields except booleans have different values.
class EachFieldTest : public WindowTest {
protected:
    struct Row {
        int Tab; ///< 0 for controls outside the tabs
        const char* Control;
        std::function<QString()> InSet;
    };

    EachFieldTest()
    {
        OpenChangedSet([&](CardSet& set) {
            AddOneOfEachKind(set);
            AddOwnBack(set, {}, {});
            set.Cards[1] = {};
            int place = 0;
            SetEveryText(set, [&] { return QString("text %1").arg(++place); });
            set.Cards[1].CardBack = 4;
            set.Cards[1].Copies = 2;
            set.LargeCards[1].Copies = 3;
            NewCardBack& back = set.NewCardBacks[1];
            for (Colour* colour : {&set.Cards[1].Color, &set.LargeCards[1].Color, &back.InnerColor,
                                   &back.FrameColor, &back.BackColor, &back.Font.Color})
                *colour = 0x010203 * ++place;
            set.Header.Symbol = folder.WritePicture("symbol.bmp");
            back.Picture = folder.WritePicture("back.bmp");
        });
    }

    template <class Value>
    static QString Shown(const Value& value)
    {
        if constexpr (std::is_same_v<Value, QString>)
            return value;
        else
            return QString::number(value);
    }

    /// Adds rows for controls of a tab, each followed by its field.
    template <class Value, class... More>
    void Add(int tab, const char* control, const Value& field, const More&... more)
    {
        rows.push_back({tab, control, [&field] { return Shown(field); }});
        if constexpr (sizeof...(more) > 0)
            Add(tab, more...);
    }

    void AddRows()
    {
        const SetHeader& set = Set().Header;
        const Card& card = FirstCard();
        const LargeCard& large = Set().LargeCards[1];
        const Character& hero = Hero();
        const NewCardBack& back = Back();
        Add(0, "txtSetname", set.SetName, "txtFilenamePrefix", set.FilenamePrefix, "txtSaveTo", set.SaveTo,
            "txtSymbol", set.Symbol, "chkAutonumber", set.Autonumber, "chkFileNr", set.FileNr, "chkNoBack",
            set.NoBack, "chkReplaceSpace", set.ReplaceSpace);
        Add(1, "txtTitle", card.Title, "cboNumber", card.Number, "txtBold", card.BoldText, "txtInfo",
            card.Info, "txtArtist", card.Artist, "chkOneLine", card.OneLine, "chkShowPicture",
            card.ShowPicture, "chkFrame", card.Frame, "chkResize", card.Resize, "udCopy", card.Copies,
            "txtPicture", card.Picture, "txtBackground", card.Background, "picColour", card.Color);
        Add(2, "txtTitleLarge", large.Title, "txtInfoLarge", large.Info, "chkShowPictureLarge",
            large.ShowPicture, "chkFrameLarge", large.Frame, "chkResizeLarge", large.Resize, "udCopyLarge",
            large.Copies, "txtPictureLarge", large.Picture, "txtBackgroundLarge", large.Background,
            "txtCardbackLarge", large.CardBack, "picColourLarge", large.Color);
        Add(3, "txtCharName", hero.Name, "cboStartArea", hero.StartArea, "cboAlignment", hero.Alignment,
            "cboCharAttr0", hero.Strength, "cboCharAttr1", hero.Craft, "cboCharAttr2", hero.Gold,
            "cboCharAttr3", hero.Lives, "txtSpecialAbilities", hero.SpecialAbilities,
            "chkShowPictureCharacter", hero.ShowPicture, "chkFrameCharacter", hero.Frame,
            "txtPictureCharacter", hero.Picture, "txtBackgroundCharacter", hero.Background, "txtPlayingPiece",
            hero.PlayingPiece);
        Add(4, "txtNewCardBackName", back.Name, "txtBackText", back.BackText, "chkNewBackPicture",
            back.UsePicture, "txtNewBackPicture", back.Picture, "picInnerColor", back.InnerColor,
            "picFrameColor", back.FrameColor, "picNewBackColor", back.BackColor, "picFontColor",
            back.Font.Color);
    }

    QWidget& ControlOf(const Row& row)
    {
        if (row.Tab > 0)
            SelectTab(row.Tab);
        return Find<QWidget>(row.Control);
    }

    /// The contents of the control; for a path, the file name.
    QString ShownBy(const Row& row)
    {
        QWidget& control = ControlOf(row);
        if (const auto* swatch = dynamic_cast<const ColourSwatch*>(&control))
            return Shown(FromRgb(swatch->Colour().rgb()));
        for (const char* property : {"currentText", "plainText", "checked", "value", "text"}) {
            const QVariant value = control.property(property);
            if (value.isValid())
                return value.typeId() == QMetaType::Bool ? Shown(value.toBool()) : value.toString();
        }
        return {};
    }

    /// Changes the control as a user would, and returns the expected value of the field, or nothing for a
    /// read-only control.
    std::optional<QString> Edit(const Row& row)
    {
        QWidget& control = ControlOf(row);
        if (auto* const check = qobject_cast<QCheckBox*>(&control)) {
            check->click();
            return Shown(check->isChecked());
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

    std::vector<Row> rows = {};
};

TEST_F(EachFieldTest, IsShownByItsOwnControl)
{
    AddRows();
    for (const Row& row : rows)
        EXPECT_EQ(ShownBy(row), row.InSet().section('/', -1)) << row.Control;
    SelectTab(1);
    EXPECT_EQ(Text("cboType"), FirstCard().Type + FirstCard().SubType);
    EXPECT_EQ(Find<QComboBox>("cboCardBack").currentIndex(), 4 - 1);
}

TEST_F(EachFieldTest, IsChangedByItsOwnControlOnly)
{
    AddRows();
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

TEST_F(EachFieldTest, AnAttributeIsRedrawnInItsOwnStrip)
{
    SelectTab(3);
    const auto& strips = Boxes().Character.picCharAttrDisp;
    const char* const lists[] = {"cboCharAttr0", "cboCharAttr1", "cboCharAttr2", "cboCharAttr3"};
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        std::vector<QImage> before;
        for (const Box& strip : strips)
            before.push_back(strip.Surface->Image().Pixels());
        Type(lists[i], "88");
        for (std::size_t strip = 0; strip < before.size(); ++strip)
            EXPECT_EQ(strips[strip].Surface->Image().Pixels() != before[strip], strip == i)
                << lists[i] << strip;
    }
}

} // namespace deckforge
