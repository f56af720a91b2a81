#include "imaging/Picture.h"

#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QBuffer>

namespace deckforge {

namespace {

constexpr double InchesPerMetre = 1000 / 25.4;
constexpr int LogicalPixelsPerInch = 96;

} // namespace

Picture::Picture(QImage image, int scale) : m_image(std::move(image)), m_scale(scale) {}

void SavePicture(const Picture& picture, const QString& path)
{
    if (picture.IsEmpty())
        throw RunTimeError(ErrorNumber::InvalidPicture);
    QImage image = picture.Pixels();
    const int dotsPerMetre = qRound(LogicalPixelsPerInch * picture.Scale() * InchesPerMetre);
    if (image.dotsPerMeterX() != dotsPerMetre || image.dotsPerMeterY() != dotsPerMetre) {
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
    }
    QBuffer buffer;
    buffer.buffer().reserve(image.sizeInBytes());
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "BMP"))
        throw RunTimeError(ErrorNumber::InvalidPicture);
    OutputFile file(path);
    file.Write(buffer.data());
    file.Close();
}

} // namespace deckforge
