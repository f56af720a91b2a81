// SPDX-License-Identifier: GPL-3.0-or-later

#include "commands/SetCommands.h"
#include "editor/WindowTest.h"
#include "platform/Paths.h"
#include "support/EveryKind.h"

#include <QScopeGuard>
#include <QStatusBar>
#include <unistd.h>

namespace deckforge {

class ClosingTest : public WindowTest {
protected:
    ClosingTest() { RemoveRescued(); }
    ~ClosingTest() override { RemoveRescued(); }

    static void RemoveRescued()
    {
        QDir folder(ProgramFolder());
        for (const QString& file : folder.entryList({"rescued*"}, QDir::Files))
            folder.remove(file);
    }
    static QString RescuedPath(int age = 0)
    {
        return ProgramFolder() + (age == 0 ? QString("rescued.dkf") : QString("rescued-%1.dkf").arg(age));
    }
    static bool IsRescued() { return QFile::exists(RescuedPath()); }
    /// The title of the first card; empty if there is no rescued set.
    static QString RescuedTitle(int age = 0)
    {
        ScriptedUser reader;
        CardSet rescued;
        InitSet(rescued);
        return OpenSet(rescued, RescuedPath(age), reader) ? rescued.Cards[1].Title : QString();
    }
    QString Note() { return window.statusBar()->currentMessage(); }

    /// A set with one card of this title.
    QString WriteSet(const QString& file, const QString& title)
    {
        CardSet set;
        InitSet(set);
        set.Cards[1].Title = title;
        WriteDKF(set, folder.Path(file));
        return folder.Path(file);
    }
    void Open(const QString& path)
    {
        user.WillChoose(path);
        Run("open");
    }
    void RunAndAnswer(const char* command, Answer answer)
    {
        user.WillAnswer(answer);
        if (answer == Answer::Yes)
            user.WillCancelDialog();
        Run(command);
    }
};

TEST_F(ClosingTest, UnsavedWorkIsRescuedHoweverTheSetIsClosed)
{
    const QString other = WriteSet("other.dkf", "Other");
    QByteArray half = folder.Read("other.dkf");
    half.truncate(half.indexOf("Other") + 20);
    folder.Write("half.dkf", half);
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"the close box", [&] { window.close(); }},
        {"Exit, Yes, and Esc in the dialog", [&] { RunAndAnswer("exit", Answer::Yes); }},
        {"Exit, No", [&] { RunAndAnswer("exit", Answer::No); }},
        {"New, Yes, and Esc in the dialog", [&] { RunAndAnswer("new", Answer::Yes); }},
        {"New, No", [&] { RunAndAnswer("new", Answer::No); }},
        {"Open", [&] { Open(other); }},
        {"a drop, No", [&] { user.WillAnswer(Answer::No), Drop(other); }},
        {"a set that ends in the middle", [&] { Open(folder.Path("half.dkf")); }},
    };
    int lost = 0;
    for (const auto& [way, leave] : ways) {
        SCOPED_TRACE(way);
        const QString title = QStringLiteral("Bear %1").arg(++lost);
        window.show();
        Type("txtTitle", title);
        leave();
        EXPECT_EQ(RescuedTitle(), title);
        EXPECT_TRUE(!window.isVisible() || Note().contains(RescuedPath())) << Note().toStdString();
    }
    EXPECT_EQ(RescuedTitle(lost - 1), "Bear 1") << "none has pushed another out";
}

TEST_F(ClosingTest, TheWindowStaysWithASetThatCannotBeRescued)
{
    Type("txtTitle", QStringLiteral("Bear"));
    const QByteArray before = qgetenv("TMPDIR");
    const auto restore = qScopeGuard([&] { qputenv("TMPDIR", before); });
    qputenv("TMPDIR", folder.Path().toUtf8());
    folder.Write(QStringLiteral("varnhelm-deck-forge-%1").arg(::getuid()), "in the way");
    const QString programFolder = ProgramFolder().chopped(1);
    ASSERT_TRUE(QDir().rename(programFolder, programFolder + "-away"));
    ASSERT_TRUE(QFile(programFolder).open(QIODevice::WriteOnly));
    const QString other = WriteSet("other.dkf", "Other");
    window.show();
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(user.LastBox().Text.contains(QStringLiteral("75, Path/File access error")));
    RunAndAnswer("exit", Answer::Yes);
    EXPECT_TRUE(window.isVisible()) << "the user wants to keep it";
    RunAndAnswer("new", Answer::No);
    Open(other);
    EXPECT_EQ(FirstCard().Title, "Bear");
    Line("txtTitle").setText("медведь"); // cannot be encoded in a set file
    RunAndAnswer("exit", Answer::No);
    EXPECT_FALSE(window.isVisible()) << "the user was asked";
    window.show();
    ASSERT_TRUE(QFile::remove(programFolder));
    ASSERT_TRUE(QDir().rename(programFolder + "-away", programFolder));
    Line("txtTitle").setText("гризли");
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(IsRescued());
}

TEST_F(ClosingTest, SavedWorkIsNotRescued)
{
    OpenChangedSet(AddOneOfEachKind);
    for (int tab = 1; tab <= 4; ++tab)
        SelectTab(tab);
    window.close();
    EXPECT_FALSE(IsRescued()) << "a set that was only looked at";
    Type("txtSetname", "Saved");
    user.WillChoose(folder.Path("saved.dkf"));
    Run("save");
    window.close();
    EXPECT_FALSE(IsRescued());
}

TEST_F(ClosingTest, ChangesRenewTheRescuedSetUntilTheyAreSaved)
{
    frmQDW eager(user, {});
    root = &eager;
    Slide("hsbCard", 1);
    EXPECT_FALSE(IsRescued());
    for (const char* title : {"Bear", "Bears"}) {
        Type("txtTitle", title);
        EXPECT_EQ(RescuedTitle(), title);
    }
    folder.Write("none.dkf", "no set");
    Open(folder.Path("none.dkf"));
    Type("txtTitle", "Bear");
    EXPECT_EQ(RescuedTitle(), "Bear");
    EXPECT_EQ(RescuedTitle(1), QString()) << "a set that was not read has replaced none";
    user.WillChoose(folder.Path("saved.dkf"));
    Run("save");
    EXPECT_FALSE(IsRescued());
}

TEST_F(ClosingTest, TheStartShowsARescuedSet)
{
    window.Start({});
    EXPECT_EQ(Note(), QString());
    QFile::copy(WriteSet("lost.dkf", "Lost"), RescuedPath(3));
    window.Start({});
    const QString day = QDate::currentDate().toString(Qt::ISODate);
    EXPECT_TRUE(Note().contains(RescuedPath(3))) << Note().toStdString();
    EXPECT_TRUE(Note().contains(day)) << Note().toStdString();
}

TEST_F(ClosingTest, TheHintAboutUnsavableTextStaysUntilItIsChanged)
{
    window.show();
    const auto& hint = Find<QLabel>("hint");
    Line("txtTitle").setText("медведь");
    EXPECT_TRUE(hint.text().isEmpty()) << "any letter can be saved";
    Line("txtTitle").setText(QString(1 << 17, 'x'));
    const QString text = hint.text();
    EXPECT_FALSE(text.isEmpty());
    Type("txtArtist", "A. Painter");
    Click("cmdCardAdd");
    window.statusBar()->showMessage("The work of another.");
    EXPECT_TRUE(hint.isVisible());
    EXPECT_EQ(hint.text(), text);
    Slide("hsbCard", 1);
    Line("txtTitle").setText("Bear");
    EXPECT_FALSE(hint.isVisible());
}

} // namespace deckforge
