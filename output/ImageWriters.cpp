#include "output/ImageWriters.h"

#include "imaging/GifWriter.h"
#include "imaging/mIntelJPEGLibrary.h"
#include "platform/Paths.h"

#include <QLockFile>

namespace deckforge {

namespace {

constexpr int32 JpegQuality = 90;

enum SaveFormat : int16 { Bmp = 0, Jpeg = 1, Gif = 2 };

/// What stands at the right of a card.
enum class Beside { Back, SameAgain, Nothing };

/// What the final pictures of the kinds differ in.
struct FinalPicture {
    PictureBox WorkSurfaces::*Source;
    int OutlineWidth; ///< of the box round the card, in pixels; the one beside it is as wide
    Beside Companion;
    const Box* (*Back)(const CardTemplates&); ///< null where no back stands beside
    const char* FailureTitle;
    const char* GifFailureTitle; ///< mixed as they are
};

constexpr FinalPicture StandardPicture = {&WorkSurfaces::picACard,
                                          CardSize.width(),
                                          Beside::Back,
                                          [](const CardTemplates& t) { return &t.Standard.picBack; },
                                          "Saving the card",
                                          "Saving the card"};
constexpr FinalPicture LargePicture = {&WorkSurfaces::picACard,
                                       DoubleCardSize.width(),
                                       Beside::Back,
                                       [](const CardTemplates& t) { return &t.Large.picBackLarge; },
                                       "Saving the large card",
                                       "Saving the large card"};
constexpr FinalPicture CharacterPicture = {
    &WorkSurfaces::picACard,
    DoubleCardSize.width(),
    Beside::Back,
    [](const CardTemplates& t) { return &t.Character.picCharacterBack; },
    "Saving the character card",
    "Saving the large card"};
constexpr FinalPicture PiecePicture = {
    &WorkSurfaces::picACardPP,       CardSize.width(),       Beside::SameAgain, nullptr,
    "Saving the playing piece card", "Saving the large card"};
constexpr FinalPicture NewBackPicture = {&WorkSurfaces::picACard, CardSize.width(), Beside::Nothing, nullptr,
                                         "Saving the card",       "Saving the card"};

constexpr int OutlineBottom = CardSize.height() - 1;

/// What is painted beside the card; the empty picture for nothing.
Picture CompanionOf(const Workshop& workshop, const FinalPicture& kind)
{
    switch (kind.Companion) {
    case Beside::Back:
        return kind.Back(workshop.Templates)->Surface->GetPicture();
    case Beside::SameAgain:
        return (workshop.Surfaces.*kind.Source).Image();
    case Beside::Nothing:
        break;
    }
    return {};
}

bool HasCompanion(const Workshop& workshop, const FinalPicture& kind)
{
    return kind.Companion == Beside::SameAgain ||
           (kind.Companion == Beside::Back && !workshop.Set.Header.NoBack);
}

/// The card and what stands at its right, each shifted by a pixel into its outline.
Picture BuildFinalPicture(Workshop& workshop, const FinalPicture& kind)
{
    PictureBox& source = workshop.Surfaces.*kind.Source;
    PictureBox& picDone = workshop.Surfaces.picDone;
    const bool hasCompanion = HasCompanion(workshop, kind);
    const int width = source.Width();
    source.Freeze();
    picDone.SetPicture({});
    picDone.SetSize({hasCompanion ? 2 * width : width, source.Height()});
    if (hasCompanion)
        picDone.PaintPicture(CompanionOf(workshop, kind), width + 1, 1);
    picDone.PaintPicture(source.Image(), 1, 1);
    picDone.ForeColor = Black;
    picDone.LineBox(0, 0, kind.OutlineWidth - 1, OutlineBottom);
    if (kind.Companion != Beside::Nothing)
        picDone.LineBox(kind.OutlineWidth, 0, 2 * kind.OutlineWidth - 1, OutlineBottom);
    return picDone.Image();
}

void WriteFinalPicture(Workshop& workshop, RunReport& report, const FinalPicture& kind, const FilePath& path)
{
    WriteOrTell(workshop, report, path, kind.FailureTitle, [&] {
        WriteInFormat(workshop, report, BuildFinalPicture(workshop, kind), path, kind.GifFailureTitle);
    });
}

/// Tells that an image could not be written.
void TellWriteFailure(UserPort& user, const char* title, const QString& reason = {})
{
    user.ShowMessage({.Text = QStringLiteral("Something went wrong.") +
                              (reason.isEmpty() ? QString() : QStringLiteral("\r\n\r\n") + reason),
                      .Title = QString::fromLatin1(title),
                      .Style = BoxStyle::Critical});
}

/// Gives why the picture could not be converted; other failures are thrown.
std::optional<QString> WriteGif(const Picture& picture, const QString& path)
{
    const QString temporary = ProgramFolder() + QStringLiteral("qdwtemp.bmp");
    // All runs of the program share the file; another one waits until the picture in it is converted.
    constexpr int milliseconds = 10000;
    QLockFile lock(temporary + QStringLiteral(".lock"));
    // Without a lock for another reason the file cannot be written either, and the writing tells why.
    if (!lock.tryLock(milliseconds) && lock.error() == QLockFile::LockFailedError)
        throw RunTimeError(ErrorNumber::PermissionDenied);
    SavePicture(picture, temporary);
    return ConvertBmpToGif(temporary, path);
}

void WriteJpeg(const Picture& picture, const QString& path)
{
    cDIBSection surface;
    surface.CreateFromPicture(picture);
    SaveJPG(surface, path, JpegQuality, LogicalPixelsPerInch * picture.Scale());
}

} // namespace

Picture FinalCard(Workshop& workshop)
{
    return BuildFinalPicture(workshop, StandardPicture);
}

Picture FinalLargeCard(Workshop& workshop)
{
    return BuildFinalPicture(workshop, LargePicture);
}

Picture FinalCharacter(Workshop& workshop)
{
    return BuildFinalPicture(workshop, CharacterPicture);
}

Picture FinalPlayingPiece(Workshop& workshop)
{
    return BuildFinalPicture(workshop, PiecePicture);
}

void WriteCard(Workshop& workshop, RunReport& report, const FilePath& path)
{
    WriteFinalPicture(workshop, report, StandardPicture, path);
}

void WriteLargeCard(Workshop& workshop, RunReport& report, const FilePath& path)
{
    WriteFinalPicture(workshop, report, LargePicture, path);
}

void WriteCharacter(Workshop& workshop, RunReport& report, const FilePath& path)
{
    WriteFinalPicture(workshop, report, CharacterPicture, path);
}

void WritePlayingPiece(Workshop& workshop, RunReport& report, const FilePath& path)
{
    WriteFinalPicture(workshop, report, PiecePicture, path);
}

void WriteNewCardBack(Workshop& workshop, RunReport& report, const FilePath& path)
{
    WriteFinalPicture(workshop, report, NewBackPicture, path);
}

void WriteOrTell(Workshop& workshop, RunReport& report, const FilePath& path, const char* failureTitle,
                 const std::function<void()>& step)
{
    try {
        WithMemoryAsFailure(step);
    } catch (const RunTimeError& error) {
        report.AddNotWritten(FixFileName(workshop.Set.Header, path.Full()), error.Description());
        TellWriteFailure(workshop.User, failureTitle);
    }
}

void WriteInFormat(Workshop& workshop, RunReport& report, const Picture& picture, const FilePath& path,
                   const char* gifFailureTitle)
{
    const int16 format = workshop.Set.Header.SaveFormat;
    const QString target = PathToWrite(workshop.Set.Header, path);
    if (ImageExtension(format).isEmpty()) {
        report.Add(target, QStringLiteral("There is no save format %1").arg(format));
        return;
    }
    report.WriteFile(target, [&] {
        std::optional<QString> failure;
        if (format == SaveFormat::Bmp)
            SavePicture(picture, target);
        else if (format == SaveFormat::Jpeg)
            WriteJpeg(picture, target);
        else
            failure = WriteGif(picture, target);
        if (failure) {
            report.AddNotWritten(target, *failure);
            TellWriteFailure(workshop.User, gifFailureTitle, *failure);
        }
        return !failure;
    });
}

} // namespace deckforge
