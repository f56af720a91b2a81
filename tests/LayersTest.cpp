#include "support/Failures.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <map>

namespace {

/// The folders, each with those whose headers it may include beside its own.
const std::map<QString, QStringList> Layers = {
    {"platform", {}},
    {"core", {"platform"}},
    {"files", {"core", "platform"}},
    {"imaging", {"platform"}},
    {"compose", {"core", "imaging", "platform"}},
    {"output", {"compose", "core", "imaging", "platform"}},
    {"batch", {"compose", "core", "files", "imaging", "output", "platform"}},
    {"dialogs", {"compose", "core", "files", "imaging", "output", "platform"}},
    {"editor", {"compose", "core", "dialogs", "files", "imaging", "output", "platform"}}};

/// The headers that a file includes.
QStringList IncludesOf(const QString& path)
{
    static const QRegularExpression line("^#include [<\"]([^>\"]+)[>\"]",
                                         QRegularExpression::MultilineOption);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList headers;
    for (const auto& match : line.globalMatch(file.readAll()))
        headers.append(match.captured(1));
    return headers;
}

bool IsWidgetHeader(const QString& header)
{
    return QFile::exists(DECKFORGE_WIDGET_HEADERS "/" + header);
}

} // namespace

/// Each includes only what lies below it; widgets begin with the dialogs, and one file names their classes.
TEST(Layers, IncludeOnlyWhatLiesBelowThem)
{
    ASSERT_TRUE(IsWidgetHeader("QWidget")) << "the test does not find the widgets";
    static const QRegularExpression dialogClass("^Q(MessageBox|\\w*Dialog)$");
    for (const auto& [folder, allowed] : Layers) {
        const bool mayHaveWidgets = folder == "dialogs" || folder == "editor";
        int included = 0;
        for (QDirIterator files(DECKFORGE_SOURCE_DIR "/" + folder, {"*.h", "*.cpp"}, QDir::Files);
             files.hasNext();) {
            const QString file = files.next();
            for (const QString& header : IncludesOf(file)) {
                SCOPED_TRACE((file + " includes " + header).toStdString());
                const QString used = header.section('/', 0, -2);
                const bool isLayer = Layers.count(used) > 0 || used == "app";
                EXPECT_TRUE(!isLayer || used == folder || allowed.contains(used));
                EXPECT_TRUE(mayHaveWidgets || !IsWidgetHeader(header));
                EXPECT_TRUE(!dialogClass.match(header).hasMatch() || file.endsWith("dialogs/QtUser.cpp"));
                ++included;
            }
        }
        EXPECT_GT(included, 0) << folder.toStdString();
    }
}
