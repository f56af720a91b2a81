// SPDX-License-Identifier: GPL-3.0-or-later

#include "BuildPaths.h"
#include "support/Failures.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <map>

namespace {

/// For each folder the others whose headers it may include, as the build declares them.
std::map<QString, QStringList> Layers()
{
    QFile file(DECKFORGE_LAYERS);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::map<QString, QStringList> layers;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts))
        layers[line.section(':', 0, 0)] = line.section(':', 1).split(' ', Qt::SkipEmptyParts);
    return layers;
}

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

} // namespace

/// Folders include only layers below them. Only dialogs and above use widgets.
TEST(Layers, IncludeOnlyLayersBelowThem)
{
    const auto isWidgetHeader = [](const QString& header) {
        return QFile::exists(DECKFORGE_WIDGET_HEADERS "/" + header);
    };
    ASSERT_TRUE(isWidgetHeader("QWidget")) << "the test does not find the widgets";
    static const QRegularExpression dialogClass("^Q(MessageBox|\\w*Dialog)$");
    const auto layers = Layers();
    ASSERT_TRUE(layers.count("platform") > 0 && layers.count("editor") > 0);
    for (const auto& [folder, allowed] : layers) {
        const bool mayHaveWidgets = folder == "dialogs" || folder == "editor";
        int included = 0;
        for (QDirIterator files(DECKFORGE_SOURCE_DIR "/" + folder, {"*.h", "*.cpp"}, QDir::Files);
             files.hasNext();) {
            const QString file = files.next();
            for (const QString& header : IncludesOf(file)) {
                SCOPED_TRACE((file + " includes " + header).toStdString());
                const QString used = header.section('/', 0, -2);
                const bool isLayer = layers.count(used) > 0 || used == "app";
                EXPECT_TRUE(!isLayer || used == folder || allowed.contains(used));
                EXPECT_TRUE(mayHaveWidgets || !isWidgetHeader(header));
                EXPECT_TRUE(!dialogClass.match(header).hasMatch() || file.endsWith("dialogs/QtUser.cpp"));
                ++included;
            }
        }
        EXPECT_GT(included, 0) << folder.toStdString();
    }
}
