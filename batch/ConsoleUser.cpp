#include "batch/ConsoleUser.h"

#include <QPagedPaintDevice>
#include <cstdio>
#include <unistd.h>

namespace deckforge {

Answer ConsoleUser::ShowMessage(const MessageBoxRequest& request)
{
    if (request.Style == BoxStyle::Critical)
        m_toldOfFailure = true;
    QString text = request.Text;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(request.Title), qUtf8Printable(text));
    return request.Buttons == BoxButtons::Ok ? deckforge::Answer::Ok : deckforge::Answer::No;
}

std::optional<QString> ConsoleUser::AskOpenFile(const FileDialogRequest& /*request*/)
{
    return std::nullopt;
}

std::optional<QString> ConsoleUser::AskSaveFile(const FileDialogRequest& /*request*/)
{
    return std::nullopt;
}

std::optional<QString> ConsoleUser::BrowseForFolder()
{
    return std::nullopt;
}

std::optional<Colour> ConsoleUser::AskColour(const QString& /*title*/, Colour /*colour*/)
{
    return std::nullopt;
}

std::optional<FontSpec> ConsoleUser::AskFont(const QString& /*title*/, const FontSpec& /*font*/)
{
    return std::nullopt;
}

std::optional<QString> ConsoleUser::AskText(const QString& /*prompt*/, const QString& /*title*/,
                                            const QString& /*text*/)
{
    return std::nullopt;
}

std::unique_ptr<QPagedPaintDevice> ConsoleUser::OpenPrinter(const QString& /*document*/)
{
    return nullptr;
}

void ConsoleUser::SetPointer(Pointer /*pointer*/) {}

void ConsoleUser::ShowProgress(int done, int total)
{
    if (isatty(STDERR_FILENO) == 0)
        return;
    std::fprintf(stderr, "\r%d of %d%s", done, total, done == total ? "\n" : "");
}

} // namespace deckforge
