// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/RunReport.h"

#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>

namespace deckforge {

namespace {

QString ElementName(const QString& kind, const QString& name)
{
    return kind + QStringLiteral(" \"") + name + QLatin1Char('"');
}

/// Removes line breaks and terminal control characters, which titles and paths may contain.
QString OnOneLine(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = QLatin1Char(' ');
    }
    return text;
}

QString NoFolder(const QString& path)
{
    return OnOneLine(FolderPart(path) + QStringLiteral(": The folder is missing and cannot be made"));
}

} // namespace

void RunReport::Begin(const CardSet& set, CardKind kind, int16 index)
{
    static constexpr const char* words[] = {"card ", "large card ", "character ", "card back "};
    const char* const word = words[static_cast<std::size_t>(kind)];
    m_element = ElementName(QLatin1String(word) + QString::number(index), NameOf(set, kind, index));
}

void RunReport::Add(const QString& file, const QString& reason)
{
    AddLine(m_element + (file.isEmpty() ? file : QStringLiteral(": ") + file) + QStringLiteral(": ") +
            reason);
}

void RunReport::AddPictures(std::vector<PictureProblem>& problems, PictureLoader& pictures,
                            const SetHeader& header)
{
    for (const PictureProblem& problem : std::exchange(problems, {}))
        Add(problem.Path, problem.Reason);
    if (std::exchange(m_isSymbolChecked, true))
        return;
    try {
        WithMemoryAsFailure([&] { (void)pictures.LoadPicture(header.Symbol); });
    } catch (const RunTimeError& error) {
        AddForSet(header, header.Symbol, error.Description());
    }
}

void RunReport::AddForSet(const SetHeader& header, const QString& file, const QString& reason)
{
    const QString element = std::exchange(m_element, ElementName(QStringLiteral("set"), header.SetName));
    Add(file, reason);
    m_element = element;
}

void RunReport::AddNotWritten(const QString& path, const QString& reason)
{
    if (!m_reported.contains(NoFolder(path)))
        Add(path, reason);
}

/// Only absolute paths: "C:\cards" of another system must not be created in the current folder.
void RunReport::MakeFolderOf(const QString& path)
{
    const QString folder = PathToOpen(FolderPart(path));
    if (folder.isEmpty() || QFileInfo(folder).isDir())
        return;
    if (!QDir::isAbsolutePath(folder) || !QDir().mkpath(folder))
        AddLine(NoFolder(path));
}

QString RunReport::TakeWriter(const QString& path)
{
    const auto before = AttributesOf(path);
    const auto writer = before ? m_writers.extract(before->Id) : decltype(m_writers)::node_type();
    return writer ? writer.mapped() : QString();
}

void RunReport::RecordWritten(const QString& path, const QString& replaced)
{
    if (!replaced.isEmpty())
        Add(path, QStringLiteral("Replaces the file of ") + replaced);
    if (const auto file = AttributesOf(path))
        m_writers[file->Id] = m_element;
}

void RunReport::AddLine(const QString& line)
{
    const QString shown = OnOneLine(line);
    if (!m_reported.contains(shown))
        m_problems.append(*m_reported.insert(shown));
}

} // namespace deckforge
