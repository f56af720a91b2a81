// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/ImageWriters.h"

#include "imaging/GifWriter.h"
#include "imaging/mIntelJPEGLibrary.h"
#include "platform/Paths.h"

#include <QLockFile>

namespace deckforge {

namespace {

constexpr int32 JpegQuality = 90;

enum SaveFormat : int16 { Bmp = 0, Jpeg = 1, Gif = 2 };

/// What is painted at the right of the card.
enum class Beside { Back, Copy, None };

/// What differs between the final pictures of the kinds.
struct FinalPicture {
    PictureBox WorkSurfaces::*Source;
    int OutlineWidth; ///< of the card and of its companion, in pixels
    Beside Companion;
    const Box* (*Back)(const CardTemplates&); ///< null without Beside::Back
    const char* FailureTitle;
    const char* GifFailureTitle; ///< Kept: some name another kind of card
};

const FinalPicture& RowOf(FinalImage image)
{
    static constexpr FinalPicture rows[] = {
        {.Source = &WorkSurfaces::picACard,
         .OutlineWidth = CardSize.width(),
         .Companion = Beside::Back,
         .Back = [](const CardTemplates& t) { return &t.Standard.picBack; },
         .FailureTitle = "Saving the card",
         .GifFailureTitle = "Saving the card"},
        {.Source = &WorkSurfaces::picACard,
         .OutlineWidth = DoubleCardSize.width(),
         .Companion = Beside::Back,
         .Back = [](const CardTemplates& t) { return &t.Large.picBackLarge; },
         .FailureTitle = "Saving the large card",
         .GifFailureTitle = "Saving the large card"},
        {.Source = &WorkSurfaces::picACard,
         .OutlineWidth = DoubleCardSize.width(),
         .Companion = Beside::Back,
         .Back = [](const CardTemplates& t) { return &t.Character.picCharacterBack; },
         .FailureTitle = "Saving the character card",
         .GifFailureTitle = "Saving the large card"},
        {.Source = &WorkSurfaces::picACardPP,
         .OutlineWidth = CardSize.width(),
         .Companion = Beside::Copy,
         .Back = nullptr,
         .FailureTitle = "Saving the playing piece card",
         .GifFailureTitle = "Saving the large card"},
        {.Source = &WorkSurfaces::picACard,
         .OutlineWidth = CardSize.width(),
         .Companion = Beside::None,
         .Back = nullptr,
         .FailureTitle = "Saving the card",
         .GifFailureTitle = "Saving the card"}};
    return rows[static_cast<std::size_t>(image)];
}

constexpr int OutlineBottom = CardSize.height() - 1;

/// What is painted beside the card, if anything.
std::optional<Picture> CompanionOf(const Workshop& workshop, const FinalPicture& kind)
{
    switch (kind.Companion) {
    case Beside::Back:
        if (workshop.Set.Header.NoBack)
            break;
        return kind.Back(workshop.Templates)->Surface->GetPicture();
    case Beside::Copy:
        return (workshop.Surfaces.*kind.Source).Image();
    case Beside::None:
        break;
    }
    return std::nullopt;
}

/// The card and its companion, each inside its outline of one pixel.
Picture BuildFinalPicture(Workshop& workshop, const FinalPicture& kind)
{
    PictureBox& source = workshop.Surfaces.*kind.Source;
    PictureBox& picDone = workshop.Surfaces.picDone;
    const int width = source.Width();
    source.Freeze();
    const std::optional<Picture> companion = CompanionOf(workshop, kind);
    picDone.SetPicture({});
    picDone.SetSize({companion ? 2 * width : width, source.Height()});
    if (companion)
        picDone.PaintPicture(*companion, width + 1, 1);
    picDone.PaintPicture(source.Image(), 1, 1);
    picDone.ForeColor = Black;
    picDone.LineBox(0, 0, kind.OutlineWidth - 1, OutlineBottom);
    if (kind.Companion != Beside::None)
        picDone.LineBox(kind.OutlineWidth, 0, 2 * kind.OutlineWidth - 1, OutlineBottom);
    return picDone.Image();
}

/// Returns why the conversion failed, or nothing. Other failures are thrown.
std::optional<QString> WriteGif(const Picture& picture, const QString& path)
{
    const QString temporary = ProgramFolder() + QStringLiteral("qdwtemp.bmp");
    // All instances of the program share the temporary file.
    constexpr int milliseconds = 10000;
    QLockFile lock(temporary + QStringLiteral(".lock"));
    // If the lock fails for another reason, SavePicture fails as well and reports it.
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

Picture FinalPictureOf(Workshop& workshop, FinalImage image)
{
    return BuildFinalPicture(workshop, RowOf(image));
}

void WriteFinalPicture(Workshop& workshop, RunReport& report, FinalImage image, const FilePath& path)
{
    const FinalPicture& row = RowOf(image);
    WriteOrReport(workshop, report, path, row.FailureTitle, [&] {
        WriteInFormat(workshop, report, BuildFinalPicture(workshop, row), path, row.GifFailureTitle);
    });
}

void WriteOrReport(Workshop& workshop, RunReport& report, const FilePath& path, const char* failureTitle,
                   const std::function<void()>& step)
{
    try {
        WithMemoryAsFailure(step);
    } catch (const RunTimeError& error) {
        report.AddNotWritten(FixFileName(workshop.Set.Header, path.Full()), error.Description());
        report.ShowNotWritten(failureTitle, {});
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
            report.ShowNotWritten(gifFailureTitle, *failure);
        }
        return !failure;
    });
}

} // namespace deckforge
