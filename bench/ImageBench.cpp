// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/Ratio.h"
#include "commands/OutputCommands.h"
#include "compose/NewBack.h"
#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "core/modInfo.h"
#include "imaging/GifWriter.h"
#include "imaging/mIntelJPEGLibrary.h"
#include "output/frmCardSheet.h"
#include "output/modCapture.h"
#include "platform/UserPort.h"

#include <QTemporaryDir>
#include <cmath>
#include <fcntl.h>
#include <sys/stat.h>

// Composing a card and writing its image, compared with encoding and writing the bitmap of the same card.

namespace deckforge {

namespace {

constexpr int16 Bmp = 0;
constexpr int16 Jpeg = 1;
constexpr int16 Gif = 2;

/// A picture with smooth colours and grain, like photographs and scans.
QImage Scene(QSize size, double phase)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const auto wave = [&](double period) {
                return qRound(110 + 90 * std::sin(phase + (x + 0.7 * y) / period));
            };
            const int grain = (x * 7919 + y * 104729) % 17;
            image.setPixel(x, y, qRgb(wave(23) + grain, wave(31) + grain, wave(17) + grain));
        }
    }
    return image;
}

/// A set of one card with a picture, a background, a credit and a text, in a temporary folder.
struct OneCard {
    explicit OneCard(int16 format)
    {
        (void)InitForm(Shop);
        const QString picture = Folder.filePath(QStringLiteral("picture.jpg"));
        const QString background = Folder.filePath(QStringLiteral("background.bmp"));
        Scene({200, 160}, 1).save(picture);
        Scene({150, 254}, 2).save(background);
        SetHeader& header = Shop.Set.Header;
        header.SaveTo = Folder.path() + QLatin1Char('/');
        header.SaveFormat = format;
        header.Autonumber = true;
        Card& card = Shop.Set.Cards[1];
        card.Picture = picture;
        card.Background = background;
        card.Artist = QStringLiteral("Ada Brushwood");
        card.BoldText = QStringLiteral("STRENGTH 7");
        card.Info =
            QStringLiteral("The dragon sleeps on a hoard older than the hills. Roll one die: on a 1 it wakes "
                           "and you must fight it at once. On any other roll you may take one Object.");
        Write();
    }

    void Write()
    {
        (void)ShowCard(Shop, 1);
        SaveImage(Shop, TheRun, CardKind::Standard, 1);
    }

    /// The bitmap that the encoder gets.
    [[nodiscard]] Picture Bitmap()
    {
        Shop.Set.Header.SaveFormat = Bmp;
        Write();
        return DecodePicture(Folder.filePath(QStringLiteral("CARD 1.bmp")));
    }

    QTemporaryDir Folder;
    UserPort User;
    Workshop Shop;
    ShownRun TheRun{User};
};

void CardBmp(benchmark::State& state)
{
    OneCard card(Bmp);
    const QImage bitmap = card.Bitmap().Pixels();
    const QString target = card.Folder.filePath(QStringLiteral("alone.bmp"));
    MeasureBeside(
        state, [&] { card.Write(); }, [&] { bitmap.save(target, "BMP"); });
}

void CardJpeg(benchmark::State& state)
{
    OneCard card(Jpeg);
    cDIBSection surface;
    surface.CreateFromPicture(card.Bitmap());
    card.Shop.Set.Header.SaveFormat = Jpeg;
    const QString target = card.Folder.filePath(QStringLiteral("alone.jpg"));
    MeasureBeside(
        state, [&] { card.Write(); }, [&] { SaveJPG(surface, target, 90, 96); });
}

void CardGif(benchmark::State& state)
{
    OneCard card(Gif);
    const QString source = card.Folder.filePath(QStringLiteral("alone.bmp"));
    SavePicture(card.Bitmap(), source);
    card.Shop.Set.Header.SaveFormat = Gif;
    const QString target = card.Folder.filePath(QStringLiteral("alone.gif"));
    MeasureBeside(
        state, [&] { card.Write(); }, [&] { benchmark::DoNotOptimize(ConvertBmpToGif(source, target)); });
}

/// Shows a card whose pictures are cached or have just changed on the disk.
void CardWarm(benchmark::State& state)
{
    OneCard card(Bmp);
    MeasureBesideFrame(state, [&] { (void)ShowCard(card.Shop, 1); });
}

void CardCold(benchmark::State& state)
{
    OneCard card(Bmp);
    const Card& record = card.Shop.Set.Cards[1];
    const auto touch = [&] {
        for (const QString& path : {record.Picture, record.Background})
            ::utimensat(AT_FDCWD, path.toUtf8().constData(), nullptr, 0);
    };
    MeasureBesideFrame(
        state, [&] { (void)ShowCard(card.Shop, 1); }, touch);
}

/// The same, compared with decoding its pictures.
void CardColdBesideDecoders(benchmark::State& state)
{
    OneCard card(Bmp);
    const Card& record = card.Shop.Set.Cards[1];
    MeasureBeside(
        state, [&] { (void)ShowCard(card.Shop, 1); },
        [&] {
            for (const QString& path : {record.Picture, record.Background}) {
                benchmark::DoNotOptimize(DecodePicture(path));
                ::utimensat(AT_FDCWD, path.toUtf8().constData(), nullptr, 0);
            }
        });
}

/// Shows and composes a card back, whose template is filled with colours.
void NewBack(benchmark::State& state)
{
    OneCard card(Bmp);
    AddElement<NewCardBack>(card.Shop.Set);
    card.Shop.Set.NewCardBacks[1].BackText = QStringLiteral("DUNGEON");
    MeasureBesideFrame(state, [&] { DrawNewCardBack(card.Shop, 1); });
}

/// A sheet of 6 x 8, compared with showing its 48 cards and encoding its bitmap. Each run needs a new
/// workshop, since the flag of the last card stays set.
void Sheet(benchmark::State& state)
{
    constexpr SheetGrid grid = {SheetGrid::MaxCols, SheetGrid::MaxRows};
    constexpr int16 cards = grid.Cols * grid.Rows;
    OneCard card(Jpeg);
    cDIBSection sheet;
    const QString target = card.Folder.filePath(QStringLiteral("alone.jpg"));
    const auto make = [&] {
        card.Shop.Sheet = {};
        CreateSheets(card.Shop, card.TheRun, CardKind::Standard, grid);
    };
    card.Shop.Set.Cards[1].Copies = cards;
    make();
    sheet.CreateFromPicture(DecodePicture(card.Folder.filePath(QStringLiteral("New set Sheet 1.jpg"))));
    MeasureBeside(state, make, [&] {
        for (int i = 0; i < cards; ++i)
            (void)ShowCard(card.Shop, 1);
        SaveJPG(sheet, target, 90, 96);
    });
}

BENCHMARK(CardBmp)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(CardJpeg)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(CardGif)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(CardWarm)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(CardCold)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(CardColdBesideDecoders)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(NewBack)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(Sheet)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace

} // namespace deckforge
