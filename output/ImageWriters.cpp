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

/// What differs between the final pictures of the kinds.
struct FinalPicture {
    int OutlineWidth; ///< of the card and of what is beside it, in pixels
    const Box* Back;  ///< null if there is none
    const char* FailureTitle;
    const char* GifFailureTitle; ///< Kept: some name another kind of card
};

FinalPicture RowOf(const CardTemplates& templates, FinalImage image)
{
    const FinalPicture rows[] = {{.OutlineWidth = CardSize.width(),
                                  .Back = &templates.Standard.picBack,
                                  .FailureTitle = "Saving the card",
                                  .GifFailureTitle = "Saving the card"},
                                 {.OutlineWidth = DoubleCardSize.width(),
                                  .Back = &templates.Large.picBackLarge,
                                  .FailureTitle = "Saving the large card",
                                  .GifFailureTitle = "Saving the large card"},
                                 {.OutlineWidth = DoubleCardSize.width(),
                                  .Back = &templates.Character.picCharacterBack,
                                  .FailureTitle = "Saving the character card",
                                  .GifFailureTitle = "Saving the large card"},
                                 {.OutlineWidth = CardSize.width(),
                                  .Back = nullptr,
                                  .FailureTitle = "Saving the card",
                                  .GifFailureTitle = "Saving the card"},
                                 {.OutlineWidth = CardSize.width(),
                                  .Back = nullptr,
                                  .FailureTitle = "Saving the playing piece card",
                                  .GifFailureTitle = "Saving the large card"}};
    return rows[static_cast<std::size_t>(image)];
}

constexpr int OutlineBottom = CardSize.height() - 1;

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
    const FinalPicture row = RowOf(workshop.Templates, image);
    const bool isPiece = image == FinalImage::PlayingPiece;
    PictureBox& source = isPiece ? workshop.Surfaces.picACardPP : workshop.Surfaces.picACard;
    PictureBox& picDone = workshop.Surfaces.picDone;
    const int width = source.Width();
    source.Freeze();
    std::optional<Picture> beside;
    if (isPiece)
        beside = source.Image();
    else if (row.Back && !workshop.Set.Header.NoBack)
        beside = row.Back->Surface->GetPicture();
    picDone.SetPicture({});
    picDone.SetSize({beside ? 2 * width : width, source.Height()});
    if (beside)
        picDone.PaintPicture(*beside, width + 1, 1);
    picDone.PaintPicture(source.Image(), 1, 1);
    picDone.ForeColor = Black;
    picDone.LineBox(0, 0, row.OutlineWidth - 1, OutlineBottom);
    if (isPiece || row.Back)
        picDone.LineBox(row.OutlineWidth, 0, 2 * row.OutlineWidth - 1, OutlineBottom);
    return picDone.Image();
}

void WriteFinalPicture(Workshop& workshop, RunReport& report, FinalImage image, const FilePath& path)
{
    const SetHeader& header = workshop.Set.Header;
    const FinalPicture row = RowOf(workshop.Templates, image);
    WriteOrReport(header, report, path, row.FailureTitle, [&] {
        WriteInFormat(header, report, FinalPictureOf(workshop, image), path, row.GifFailureTitle);
    });
}

void WriteOrReport(const SetHeader& header, RunReport& report, const FilePath& path, const char* failureTitle,
                   const std::function<void()>& step)
{
    try {
        WithMemoryAsFailure(step);
    } catch (const RunTimeError& error) {
        report.AddNotWritten(FixFileName(header, path.Full()), error.Description());
        report.ShowNotWritten(failureTitle, {});
    }
}

void WriteInFormat(const SetHeader& header, RunReport& report, const Picture& picture, const FilePath& path,
                   const char* gifFailureTitle)
{
    const int16 format = header.SaveFormat;
    const QString target = PathToWrite(header, path);
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
