#include "output/modCapture.h"

#include "compose/Attempt.h"
#include "compose/StandardCard.h"
#include "imaging/GifWriter.h"
#include "imaging/mIntelJPEGLibrary.h"
#include "output/ImageNames.h"
#include "platform/Paths.h"

#include <QLockFile>

namespace deckforge {

namespace {

constexpr int32 JpegQuality = 90;

enum SaveFormat : int16 { Bmp = 0, Jpeg = 1, Gif = 2 };

/// The boxes of black that stand round a card and round its back.
void OutlineCards(PictureBox& picDone)
{
    picDone.ForeColor = Black;
    picDone.LineBox(0, 0, 151, 255);
    picDone.LineBox(152, 0, 303, 255);
}

/// The card and at its right its back, each shifted by a pixel into its outline.
Picture BuildCardPicture(Workshop& workshop)
{
    const PictureBox& picACard = workshop.Surfaces.picACard;
    PictureBox& picDone = workshop.Surfaces.picDone;
    const bool hasBack = !workshop.Set.Header.NoBack;
    const int width = picACard.Width();
    picDone.SetPicture({});
    picDone.SetSize({hasBack ? 2 * width : width, picACard.Height()});
    if (hasBack)
        picDone.PaintPicture(workshop.Templates.Standard.picBack.Surface->GetPicture(), width + 1, 1);
    picDone.PaintPicture(picACard.Image(), 1, 1);
    OutlineCards(picDone);
    return picDone.Image();
}

void TellWriteFailure(UserPort& user, const char* title, const QString& reason = {})
{
    user.ShowMessage({.Text = QStringLiteral("Something went wrong.") +
                              (reason.isEmpty() ? QString() : QStringLiteral("\r\n\r\n") + reason),
                      .Title = QString::fromLatin1(title),
                      .Style = BoxStyle::Critical});
}

void WriteGif(UserPort& user, const Picture& picture, const QString& path, const char* failureTitle)
{
    const QString temporary = ProgramFolder() + QStringLiteral("qdwtemp.bmp");
    // All runs of the program share the file; another one waits until the picture in it is converted.
    QLockFile lock(temporary + QStringLiteral(".lock"));
    lock.lock();
    SavePicture(picture, temporary);
    if (const auto failure = ConvertBmpToGif(temporary, path))
        TellWriteFailure(user, failureTitle, *failure);
}

void WriteJpeg(const Picture& picture, const QString& path)
{
    cDIBSection surface;
    surface.CreateFromPicture(picture);
    SaveJPG(surface, path, JpegQuality);
}

void WriteFormat(Workshop& workshop, const Picture& picture, const ImagePath& path,
                 const char* gifFailureTitle)
{
    const SetHeader& header = workshop.Set.Header;
    const QString target = FixFileName(path, header.ReplaceSpace);
    switch (header.SaveFormat) {
    case SaveFormat::Bmp:
        SavePicture(picture, target);
        break;
    case SaveFormat::Jpeg:
        WriteJpeg(picture, target);
        break;
    case SaveFormat::Gif:
        WriteGif(workshop.User, picture, target, gifFailureTitle);
        break;
    default: // a format that there is not writes nothing
        break;
    }
}

/// What the save dialogs of the kinds differ in.
struct SaveTexts {
    const char* DialogTitle;
    const char* BoxTitle;
    const char* Saved;
};

constexpr SaveTexts CardTexts = {"Save Card", "Save card", "The card is saved to the filename:"};

FileDialogRequest ImageDialog(const SaveTexts& texts, const QString& title, const QString& extension)
{
    return {.Title = QString::fromLatin1(texts.DialogTitle),
            .FileName = title + QLatin1Char('.') + extension,
            .Filter = QStringLiteral("All files(*.*)|*.*|Picture (*.%1)|*.%1").arg(extension),
            .FilterIndex = 2,
            .DefaultExtension = extension,
            .Folder = {}};
}

/// The folder that the image goes to; the card's file name is set on the way. Nothing on a cancel.
std::optional<QString> ChooseFolder(Workshop& workshop, const SaveTexts& texts, const QString& title,
                                    QString& fileName, Ask ask, Tell tell)
{
    const SetHeader& header = workshop.Set.Header;
    if (ask == Ask::No && (!fileName.isEmpty() || tell == Tell::No)) {
        if (fileName.isEmpty())
            fileName = title;
        return header.SaveTo;
    }
    const auto chosen =
        workshop.User.AskSaveFile(ImageDialog(texts, title, ImageExtension(header.SaveFormat)));
    if (!chosen)
        return std::nullopt;
    fileName = NamePart(*chosen).section(QLatin1Char('.'), 0, 0);
    return FolderPart(*chosen);
}

void TellSaved(UserPort& user, const SaveTexts& texts, const ImagePath& path)
{
    user.ShowMessage({.Text = QLatin1String(texts.Saved) + QStringLiteral("\r\n\r\n") + path.Full(),
                      .Title = QString::fromLatin1(texts.BoxTitle),
                      .Style = BoxStyle::Information});
}

} // namespace

QString FixFileName(const ImagePath& path, bool replaceSpace)
{
    if (HoldsSeparator(path.Name))
        throw RunTimeError(ErrorNumber::BadFileName);
    ImagePath fixed = path;
    if (replaceSpace)
        fixed.Name.replace(QLatin1Char(' '), QLatin1Char('_'));
    return fixed.Full();
}

void WriteCard(Workshop& workshop, const ImagePath& path)
{
    constexpr char failureTitle[] = "Saving the card";
    try {
        WithMemoryAsFailure([&] {
            workshop.Surfaces.picACard.Freeze();
            WriteFormat(workshop, BuildCardPicture(workshop), path, failureTitle);
        });
    } catch (const RunTimeError&) {
        TellWriteFailure(workshop.User, failureTitle);
    }
}

void SaveCard(Workshop& workshop, int16 index, Ask ask, Tell tell)
{
    // A failure in naming ends it without a word; the writer tells its own.
    Attempt([&] {
        CardSet& set = workshop.Set;
        Card& card = set.Cards[index];
        const auto folder = ChooseFolder(workshop, CardTexts, card.Title, card.Filename, ask, tell);
        if (!folder)
            return;
        const ImagePath path = {*folder, ImageName(set.Header, {}, card.Filename, index, set.CardCount)};
        WriteCard(workshop, path);
        if (tell == Tell::Yes)
            TellSaved(workshop.User, CardTexts, path);
    });
}

void CreateCards(Workshop& workshop)
{
    CardSet& set = workshop.Set;
    {
        const HourglassScope hourglass(workshop.User);
        const int16 remembered = set.CurrentCard;
        for (int i = 1; i <= set.CardCount; ++i) {
            set.CurrentCard = static_cast<int16>(i);
            ShowCard(workshop, set.CurrentCard);
            SaveCard(workshop, set.CurrentCard, Ask::No, Tell::No);
            workshop.User.ShowProgress(i, set.CardCount);
        }
        set.CurrentCard = remembered;
        ShowCard(workshop, remembered);
    }
    workshop.User.ShowMessage({.Text = QString::number(set.CardCount) +
                                       (set.CardCount == 1 ? QStringLiteral(" card is created.")
                                                           : QStringLiteral(" cards are created.")),
                               .Title = QStringLiteral("Create cards"),
                               .Style = BoxStyle::Information});
}

} // namespace deckforge
