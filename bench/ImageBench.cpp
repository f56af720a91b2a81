#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "imaging/GifWriter.h"
#include "imaging/mIntelJPEGLibrary.h"
#include "output/modCapture.h"
#include "platform/SilentUser.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cmath>

// Composing a card and writing its image beside the limit: the encoder alone on the bitmap of the same card,
// with its file.

namespace deckforge {

namespace {

constexpr int16 Bmp = 0;
constexpr int16 Jpeg = 1;
constexpr int16 Gif = 2;

/// A picture with soft colours and grain, as photographs and scans have.
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

/// A set of one card with a picture, a background, a credit and a text, in a folder of its own.
struct OneCard {
    explicit OneCard(int16 format) : Shop(User)
    {
        InitForm(Shop);
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
        ShowCard(Shop, 1);
        SaveCard(Shop, 1, Ask::No, Tell::No);
    }

    /// The bitmap that the encoder has to take.
    [[nodiscard]] Picture Bitmap()
    {
        Shop.Set.Header.SaveFormat = Bmp;
        Write();
        return DecodePicture(Folder.filePath(QStringLiteral("CARD 1.bmp")));
    }

    QTemporaryDir Folder;
    SilentUser User;
    Workshop Shop;
};

void CardImage(benchmark::State& state, int16 format)
{
    OneCard card(format);
    for (auto _ : state)
        card.Write();
}

/// A card that is only shown, its pictures already decoded.
void CardShown(benchmark::State& state)
{
    OneCard card(Bmp);
    for (auto _ : state)
        ShowCard(card.Shop, 1);
}

void BmpEncoder(benchmark::State& state)
{
    OneCard card(Bmp);
    const QImage bitmap = card.Bitmap().Pixels();
    const QString target = card.Folder.filePath(QStringLiteral("alone.bmp"));
    for (auto _ : state)
        bitmap.save(target, "BMP");
}

void JpegEncoder(benchmark::State& state)
{
    OneCard card(Jpeg);
    cDIBSection surface;
    surface.CreateFromPicture(card.Bitmap());
    const QString target = card.Folder.filePath(QStringLiteral("alone.jpg"));
    for (auto _ : state)
        SaveJPG(surface, target, 90);
}

void GifEncoder(benchmark::State& state)
{
    OneCard card(Gif);
    const QString source = card.Folder.filePath(QStringLiteral("alone.bmp"));
    SavePicture(card.Bitmap(), source);
    const QString target = card.Folder.filePath(QStringLiteral("alone.gif"));
    for (auto _ : state)
        benchmark::DoNotOptimize(ConvertBmpToGif(source, target));
}

BENCHMARK(CardShown)->Unit(benchmark::kMicrosecond);
BENCHMARK(BmpEncoder)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(CardImage, Bmp, Bmp)->Unit(benchmark::kMicrosecond);
BENCHMARK(JpegEncoder)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(CardImage, Jpeg, Jpeg)->Unit(benchmark::kMicrosecond);
BENCHMARK(GifEncoder)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(CardImage, Gif, Gif)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace deckforge
