#include "core/SetTables.h"
#include "dialogs/ColourSwatch.h"
#include "editor/WindowTest.h"

#include <QApplication>
#include <QHeaderView>
#include <QListView>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>

namespace deckforge {

namespace {

/// The window and its dialogs.
class DialogsTest : public WindowTest {
protected:
    DialogsTest() { window.show(); }

    static QString Text(const char* text) { return QString::fromUtf8(text); }

    template <class Control>
    static Control& In(QWidget& parent, const char* name)
    {
        auto* const control = parent.findChild<Control*>(QString::fromLatin1(name));
        if (!control)
            throw std::runtime_error(name);
        return *control;
    }

    /// Runs a command, and the steps on the dialog that it opens; Esc then closes that.
    template <class Steps>
    void WithDialog(const char* opener, Steps&& steps)
    {
        bool wasOpen = false;
        QTimer::singleShot(0, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr) << opener;
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
            wasOpen = true;
            steps(*dialog);
            if (dialog->isVisible())
                QTest::keyClick(dialog, Qt::Key_Escape);
            EXPECT_FALSE(dialog->isVisible()) << "Esc closes it";
        });
        if (auto* const command = window.findChild<QAction*>(QString::fromLatin1(opener)))
            command->trigger();
        else
            Find<QPushButton>(opener).click();
        EXPECT_TRUE(wasOpen) << opener;
    }

    static void Click(QWidget& dialog, const char* name) { In<QAbstractButton>(dialog, name).click(); }
    static QString TextIn(QWidget& dialog, const char* name) { return In<QLineEdit>(dialog, name).text(); }

    static void Select(QAbstractItemView& list, int row)
    {
        const QRect place = list.visualRect(list.model()->index(row, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
    }

    static void DoubleClick(QAbstractItemView& list, int row)
    {
        const QRect place = list.visualRect(list.model()->index(row, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place.center());
    }

    /// Cards with these titles, typed in, the last one shown.
    void AddCards(const std::vector<const char*>& titles)
    {
        for (std::size_t i = 0; i < titles.size(); ++i) {
            if (i > 0)
                Find<QPushButton>("cmdCardAdd").click();
            Find<QLineEdit>("txtTitle").setText(Text(titles[i]));
        }
    }
};

TEST_F(DialogsTest, CheckedPicturesMoveToTheTypedFolder)
{
    AddCards({"One", "Two"});
    user.WillChoose(Text("/old/two.bmp"));
    Find<QAbstractButton>("cmdGetPic").click();
    WithDialog("changepicpath", [&](QWidget& dialog) {
        auto& list = In<QTreeView>(dialog, "lviewPath");
        const auto text = [&](int row, int column) {
            return list.model()->index(row, column).data().toString();
        };
        const auto checked = [&](int row) {
            return list.model()->index(row, 0).data(Qt::CheckStateRole).toInt();
        };
        EXPECT_EQ(list.model()->rowCount(), 2);
        EXPECT_EQ(text(1, 0) + text(1, 1), Text("Two/old/two.bmp"));
        Click(dialog, "cmdSelectAll");
        EXPECT_EQ(checked(0), Qt::Checked);
        Click(dialog, "optCard6");
        Click(dialog, "optCard0");
        EXPECT_EQ(checked(0), Qt::Unchecked) << "another choice drops the checks";
        Click(dialog, "cmdChange");
        EXPECT_EQ(text(1, 1), Text("/old/two.bmp")) << "no folder yet";
        list.setFocus();
        Select(list, 1);
        QTest::keyClick(&list, Qt::Key_Space);
        user.WillChoose(Text("/new/"));
        Click(dialog, "cmdBrowse");
        QTest::keyClick(&In<QLineEdit>(dialog, "txtNewPath"), Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "Enter takes the folder";
        EXPECT_EQ(text(0, 1) + text(1, 1), Text("/new/two.bmp"));
        EXPECT_EQ(checked(1), Qt::Unchecked);
        EXPECT_EQ(user.Pointers, (std::vector{Pointer::Hourglass, Pointer::Default}));
    });
    EXPECT_EQ(Find<QLineEdit>("txtPicture").toolTip(), Text("/new/two.bmp"));
}

TEST_F(DialogsTest, OwnBacksAreAddedRenamedAndDeletedAtOnce)
{
    WithDialog("setinfo", [&](QWidget& dialog) {
        auto& list = In<QListView>(dialog, "lstCB");
        Click(dialog, "cmdCBDelete"); // nothing is selected
        Click(dialog, "cmdCBAdd");
        EXPECT_EQ(user.BoxTexts(),
                  std::vector{Text("Missing information|You must give both a name and choose a file.")});
        EXPECT_EQ(user.LastBox().Style, BoxStyle::Exclamation);
        user.WillChoose(Text("/pics/caves.v2.bmp"));
        Click(dialog, "cmdCBPic");
        EXPECT_EQ(TextIn(dialog, "txtCBPicture") + TextIn(dialog, "txtCBName"), Text("/pics/caves.v2.bmp"));
        QTest::keyClicks(&In<QLineEdit>(dialog, "txtCBName"), Text("Caves"));
        QTest::keyClick(&In<QLineEdit>(dialog, "txtCBName"), Qt::Key_Return);
        EXPECT_EQ(Set().CardBackCount, 28);
        user.WillCancelDialog();
        Click(dialog, "cmdCBPic");
        EXPECT_EQ(user.OpenDialogs.back().FileName, Text("/pics/caves.v2.bmp"));
        EXPECT_EQ(user.OpenDialogs.back().FilterIndex, 2);
        Click(dialog, "cmdCBAdd"); // the same again
        user.WillTypeNothing();
        DoubleClick(list, 0);
        user.WillType(Text("Deep Caves"));
        DoubleClick(list, 0);
        EXPECT_EQ(user.TextDialogs.back(), Text("Rename cardback|New name:|Caves"));
        EXPECT_EQ(Set().CardBacks[28].Name, Text("Deep Caves"));
        Select(list, 1);
        EXPECT_EQ(TextIn(dialog, "txtCBName"), Text("Caves"));
        Click(dialog, "cmdCBDelete");
        Click(dialog, "cmdCBDelete"); // the next row is not selected
        EXPECT_EQ(Set().CardBackCount, 28);
        auto& cboCBDefault = In<QComboBox>(dialog, "cboCBDefault");
        EXPECT_EQ(cboCBDefault.count(), 28);
        cboCBDefault.setFocus();
        QTest::keyClick(&cboCBDefault, Qt::Key_End);
        EXPECT_EQ(Set().LastCardBack, 28);
    });
    const auto& cboCardBack = Find<QComboBox>("cboCardBack");
    EXPECT_EQ(cboCardBack.itemText(27) + cboCardBack.itemText(28), Text("Deep CavesUser defined"));
    EXPECT_EQ(cboCardBack.currentIndex(), 0) << "the card kept its back";
}

TEST_F(DialogsTest, ADefaultBackThatCannotBeShownIsNoWayOut)
{
    OpenChangedSet([](CardSet& set) {
        AddOwnBack(set, Text("Owls"), {});
        set.CardBacks[28].BuiltIn = true; // there is no such art
        set.LastCardBack = 28;
    });
    user.Boxes.clear();
    WithDialog("setinfo", [&](QWidget& dialog) {
        auto& cboCBDefault = In<QComboBox>(dialog, "cboCBDefault");
        EXPECT_EQ(cboCBDefault.currentText(), Text("Owls"));
        QWheelEvent turn({2, 2}, cboCBDefault.mapToGlobal(QPointF(2, 2)), {}, {0, 120}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&cboCBDefault, &turn);
        EXPECT_EQ(Set().LastCardBack, 28) << "the wheel turned it unseen";
    });
    EXPECT_TRUE(user.Boxes.empty());
}

TEST_F(DialogsTest, OwnTypesTakeTheirReversedNamesFromTheirNames)
{
    WithDialog("setinfo", [&](QWidget& dialog) {
        In<QTabWidget>(dialog, "tabSet").setCurrentIndex(1);
        Click(dialog, "cmdCTAdd");
        EXPECT_EQ(user.LastBox().Text, Text("You must give the type a name."));
        auto& txtCTName = In<QLineEdit>(dialog, "txtCTName");
        auto& txtCTNameRev = In<QLineEdit>(dialog, "txtCTNameRev");
        txtCTName.setFocus();
        QTest::keyClicks(&txtCTName, Text("OMEN-"));
        Click(dialog, "cmdCTAdd");
        EXPECT_EQ(user.LastBox().Text, Text("You must give the type a reversed name."));
        EXPECT_EQ(user.LastBox().Title, Text("Missing information"));
        QTest::keyClick(&txtCTName, Qt::Key_Tab);
        EXPECT_EQ(txtCTNameRev.text(), Text("OMEN-"));
        txtCTNameRev.clear();
        txtCTName.setFocus();
        QTest::keyClick(&txtCTName, Qt::Key_Tab);
        EXPECT_EQ(txtCTNameRev.text(), Text("OMEN-")) << "also where nothing was typed since";
        QTest::keyClicks(&txtCTNameRev, Text("-OMEN")); // it was selected
        In<QLineEdit>(dialog, "txtCTName2").setText(Text("Dark"));
        In<QLineEdit>(dialog, "txtCTNumber").setText(Text("no number"));
        Click(dialog, "cmdCTAdd");
        EXPECT_EQ(In<QListView>(dialog, "lstCT").model()->index(0, 0).data().toString(),
                  Text("OMEN-Dark ( )"));
        EXPECT_EQ(Set().CardTypes[16].ReversedName, Text("-OMEN"));
        In<QLineEdit>(dialog, "txtCTNumber").setText(Text("40000"));
        Click(dialog, "cmdCTAdd");
        EXPECT_EQ(user.LastBox().Text, Text("Run-time error '6':\r\n\r\nOverflow"));
        EXPECT_EQ(Set().CardTypeCount, 16);
        auto& cboCTDefault = In<QComboBox>(dialog, "cboCTDefault");
        EXPECT_EQ(cboCTDefault.currentText(), Text("ENEMY-Spirit")) << "the last of the name";
        cboCTDefault.setFocus();
        QTest::keyClick(&cboCTDefault, Qt::Key_End);
        EXPECT_EQ(Set().LastSubType, Text("Dark"));
    });
    EXPECT_EQ(Find<QComboBox>("cboType").itemText(15), Text("OMEN-Dark"));
    Find<QPushButton>("cmdCardAdd").click();
    EXPECT_EQ(Set().Cards[2].TypeReversed + Set().Cards[2].Number, Text("-OMEN-1"));
}

TEST_F(DialogsTest, BackgroundOfNewCardsIsChosen)
{
    WithDialog("setinfo", [&](QWidget& dialog) {
        In<QTabWidget>(dialog, "tabSet").setCurrentIndex(2);
        user.WillCancelDialog();
        Click(dialog, "cmdBGPic");
        EXPECT_EQ(Set().LastBackground, QString());
        user.WillChoose(Text("/pics/ground.bmp"));
        Click(dialog, "cmdBGPic");
        EXPECT_EQ(TextIn(dialog, "txtBackground"), Text("/pics/ground.bmp"));
    });
    EXPECT_EQ(Set().LastBackground, Text("/pics/ground.bmp"));
    EXPECT_EQ(Set().Cards[1].Background, QString());
}

TEST_F(DialogsTest, ListFindsACardByItsFirstLettersHoweverItIsSorted)
{
    AddCards({"Cave", "Troll", "Axe", "Cauldron"});
    WithDialog("cmdSort", [&](QWidget& dialog) {
        auto& list = In<QTreeView>(dialog, "lvCard");
        EXPECT_EQ(list.currentIndex().row(), 3) << "begins at the current card";
        list.header()->setSortIndicator(0, Qt::AscendingOrder);
        EXPECT_EQ(list.model()->index(0, 0).data().toString(), Text("Axe"));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(0, 2)).center());
        QTest::keyClicks(&list, Text("cav"));
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(Set().CurrentCard, 1);
    EXPECT_EQ(Find<QLineEdit>("txtTitle").text(), Text("Cave"));
    EXPECT_EQ(Find<QScrollBar>("hsbCard").value(), 1);
    EXPECT_EQ(Find<QLabel>("lblCurrentCard").text(), Text("1 (4)"));
    EXPECT_EQ(Set().Cards[3].Title, Text("Axe")) << "the set keeps its order";

    WithDialog("cmdSort", [&](QWidget& dialog) { DoubleClick(In<QTreeView>(dialog, "lvCard"), 2); });
    EXPECT_EQ(Set().CurrentCard, 3);
    WithDialog("cmdSort", [&](QWidget& dialog) { Select(In<QTreeView>(dialog, "lvCard"), 0); });
    EXPECT_EQ(Set().CurrentCard, 3) << "closed without a choice";
}

TEST_F(DialogsTest, ListOfLargeCardsGivesCharactersAndFailsPastTheLastCard)
{
    SelectTab(3);
    for (int i = 0; i < 2; ++i)
        Find<QPushButton>("cmdCharacterAdd").click();
    SelectTab(2);
    WithDialog("cmdSortLarge", [&](QWidget& dialog) {
        auto& list = In<QTreeView>(dialog, "lvCard");
        EXPECT_EQ(list.model()->index(2, 0).data().toString(), Text("CHARACTER 3"));
        DoubleClick(list, 2);
    });
    EXPECT_EQ(Set().CurrentLargeCard, 3);
    EXPECT_EQ(user.BoxTexts(),
              std::vector{Text("Varnhelm Deck Forge|Run-time error '9':\r\n\r\nSubscript out of range")});
}

TEST_F(DialogsTest, FontOptionsFollowTheSampleAndAStrayOneChangesTheAutonumber)
{
    const FontSpec tall = {.Name = Text("Arial"), .Size = 11};
    const SetHeader& header = Set().Header;
    WithDialog("choosefont", [&](QWidget& dialog) {
        auto& tbCard = In<QTabBar>(dialog, "tbCard");
        EXPECT_EQ(In<QRadioButton>(dialog, "optFPlace3").text(), Text("&Information text"));
        Click(dialog, "optFPlace4");
        tbCard.setCurrentIndex(1);
        EXPECT_FALSE(In<QRadioButton>(dialog, "optFPlace2").isVisible());
        user.WillPick(tall);
        Click(dialog, "cmdChangeFont");
        EXPECT_EQ(header.FontAutonumber, tall);
        tbCard.setCurrentIndex(3);
        Click(dialog, "cmdChangeFont"); // asks nothing
        tbCard.setCurrentIndex(2);
        EXPECT_EQ(In<QRadioButton>(dialog, "optFPlace1").text(), Text("&Information"));
        user.WillPick(tall);
        Click(dialog, "optFPlace1");
        QTest::mouseDClick(&In<QRadioButton>(dialog, "optFPlace1"), Qt::LeftButton);
        user.WillPickNoFont();
        Click(dialog, "optFPlace0");
        Click(dialog, "cmdChangeFont");
    });
    EXPECT_EQ(header.FontAlignment, tall);
    EXPECT_EQ(header.FontSpecial.Size, 7);
    EXPECT_EQ(header.FontCharacter.Color, White);
    EXPECT_EQ(window.Works().Templates.Character.lblStart.Font, tall);

    WithDialog("choosefont", [&](QWidget& dialog) {
        user.WillPick(0x0000FF);
        Click(dialog, "picArtistColor");
        Click(dialog, "cmdReset");
        EXPECT_EQ(In<ColourSwatch>(dialog, "picArtistColor").Colour(), QColor(Qt::red));
    });
    EXPECT_EQ(header.FontAlignment.Size, 6);
    EXPECT_EQ(header.FontAutonumber.Size, 5);
    EXPECT_EQ(header.ArtistColor, 0x0000FF);
    EXPECT_EQ(window.Works().Templates.Character.lblStart.Font.Size, 6);
}

TEST_F(DialogsTest, EachTabPrintsItsOwnCardAndTheBacksACharacter)
{
    user.PrinterFile = folder.Path(Text("page.pdf"));
    for (const int tab : {1, 2, 3, 4}) {
        SelectTab(tab);
        Find<QAction>("printcard").trigger();
    }
    EXPECT_EQ(user.PrintedDocuments,
              QStringList({Text("New set - CARD 1"), Text("New set - LARGE CARD 1"),
                           Text("New set - CHARACTER 1"), Text("New set - CHARACTER 1")}));
    EXPECT_EQ(user.Boxes.size(), 4U);
    user.PrinterFile.clear();
    Find<QAction>("printcard").trigger();
    EXPECT_EQ(user.LastBox().Text, Text("Run-time error '482':\r\n\r\nPrinter error"));
    EXPECT_EQ(user.Boxes.size(), 5U);
}

TEST_F(DialogsTest, AboutTellsVersionLinkAndContact)
{
    WithDialog("about", [&](QWidget& dialog) {
        EXPECT_EQ(In<QLabel>(dialog, "lblVersion").text(), Text("Version: 1.7 (Build 4)"));
        const QString link = In<QLabel>(dialog, "lblURL").text();
        EXPECT_TRUE(link.contains(Text("href=\"https://"))) << link.toStdString();
        EXPECT_TRUE(In<QLabel>(dialog, "lblContact").text().startsWith(Text("contact@")));
        EXPECT_FALSE(In<QLabel>(dialog, "Picture1").pixmap().isNull());
    });
}

} // namespace

} // namespace deckforge
