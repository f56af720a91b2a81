#include "support/Failures.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <map>
#include <set>

namespace {

const QString Root = QStringLiteral(DECKFORGE_SOURCE_DIR "/");

/// A folder, and those whose headers it may include beside its own.
const std::map<QString, std::set<QString>>& Layers()
{
    static const std::map<QString, std::set<QString>> layers = [] {
        std::map<QString, std::set<QString>> allowed;
        allowed[QStringLiteral("platform")] = {};
        allowed[QStringLiteral("core")] = {QStringLiteral("platform")};
        allowed[QStringLiteral("files")] = {QStringLiteral("core"), QStringLiteral("platform")};
        allowed[QStringLiteral("imaging")] = {QStringLiteral("platform")};
        allowed[QStringLiteral("compose")] = {QStringLiteral("core"), QStringLiteral("imaging"),
                                              QStringLiteral("platform")};
        allowed[QStringLiteral("output")] = {QStringLiteral("compose"), QStringLiteral("core"),
                                             QStringLiteral("imaging"), QStringLiteral("platform")};
        allowed[QStringLiteral("dialogs")] = allowed[QStringLiteral("output")];
        allowed[QStringLiteral("dialogs")].insert({QStringLiteral("output"), QStringLiteral("files")});
        allowed[QStringLiteral("batch")] = allowed[QStringLiteral("dialogs")];
        allowed[QStringLiteral("editor")] = allowed[QStringLiteral("dialogs")];
        allowed[QStringLiteral("editor")].insert(QStringLiteral("dialogs"));
        return allowed;
    }();
    return layers;
}

struct Include {
    QString File;
    QString Header;
};

std::vector<Include> IncludesOf(const QString& folder)
{
    static const QRegularExpression line(QStringLiteral("^#include [<\"]([^>\"]+)[>\"]"),
                                         QRegularExpression::MultilineOption);
    std::vector<Include> includes;
    QDirIterator files(Root + folder, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const auto& match : line.globalMatch(QString::fromUtf8(file.readAll())))
            includes.push_back({file.fileName(), match.captured(1)});
    }
    return includes;
}

bool IsWidgetHeader(const QString& header)
{
    return QFile::exists(QStringLiteral(DECKFORGE_WIDGET_HEADERS "/") + header);
}

} // namespace

TEST(Layers, IncludeOnlyWhatLiesBelowThem)
{
    for (const auto& [folder, allowed] : Layers()) {
        const std::vector<Include> includes = IncludesOf(folder);
        EXPECT_FALSE(includes.empty()) << folder.toStdString();
        for (const Include& include : includes) {
            const QString used = include.Header.section(QLatin1Char('/'), 0, -2);
            const bool isLayer = Layers().count(used) > 0 || used == QLatin1String("app");
            EXPECT_TRUE(!isLayer || used == folder || allowed.count(used) > 0)
                << include.File.toStdString() << " uses " << used.toStdString();
        }
    }
}

TEST(Layers, NoWidgetsBelowTheDialogs)
{
    ASSERT_TRUE(IsWidgetHeader(QStringLiteral("QWidget"))) << "the test does not find the widgets";
    for (const char* folder : {"platform", "core", "files", "imaging", "compose", "output", "batch"}) {
        for (const Include& include : IncludesOf(QString::fromLatin1(folder)))
            EXPECT_FALSE(IsWidgetHeader(include.Header))
                << include.File.toStdString() << " uses " << include.Header.toStdString();
    }
}

TEST(Layers, OneFileAloneNamesTheDialogClasses)
{
    static const QRegularExpression dialogClass(QStringLiteral("^Q(MessageBox|\\w*Dialog)$"));
    for (const auto& [folder, allowed] : Layers()) {
        for (const Include& include : IncludesOf(folder)) {
            EXPECT_TRUE(!dialogClass.match(include.Header).hasMatch() ||
                        include.File.endsWith(QLatin1String("dialogs/QtUser.cpp")))
                << include.File.toStdString();
        }
    }
}
