// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/mIntelJPEGLibrary.h"

#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <turbojpeg.h>

namespace deckforge {

namespace {

/// A TurboJPEG compressor with its output.
class Encoder {
public:
    Encoder() : m_handle(tjInitCompress())
    {
        if (m_handle == nullptr)
            throw Failure("Failed to initialise the IJL library: ");
    }
    ~Encoder()
    {
        tjFree(m_bytes);
        tjDestroy(m_handle);
    }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    /// The bytes are owned by the encoder.
    [[nodiscard]] QByteArrayView Encode(const cDIBSection& surface, int quality, int dotsPerInch)
    {
        const int result =
            tjCompress2(m_handle, surface.DIBSectionBitsPtr(), surface.Width(), surface.BytesPerScanLine(),
                        surface.Height(), TJPF_BGR, &m_bytes, &m_size, TJSAMP_420, quality, TJFLAG_BOTTOMUP);
        if (result != 0)
            throw Failure("Failed to save to JPG ");
        WriteDensity(dotsPerInch);
        return {m_bytes, static_cast<qsizetype>(m_size)};
    }

private:
    /// The encoder always writes a JFIF header without a density.
    void WriteDensity(int dotsPerInch)
    {
        constexpr int units = 13; // after the markers, the length, "JFIF" and the version
        constexpr unsigned char dots = 1;
        m_bytes[units] = dots;
        for (const int at : {units + 1, units + 3}) {
            m_bytes[at] = static_cast<unsigned char>(dotsPerInch >> 8);
            m_bytes[at + 1] = static_cast<unsigned char>(dotsPerInch & 0xFF);
        }
    }

    [[nodiscard]] RunTimeError Failure(const char* what) const
    {
        return {ErrorNumber::JpegLibrary, QLatin1String(what) + QString::number(tjGetErrorCode(m_handle))};
    }

    tjhandle m_handle;
    unsigned char* m_bytes = nullptr;
    unsigned long m_size = 0;
};

} // namespace

bool SaveJPG(const cDIBSection& surface, const QString& fileName, int32 quality, int dotsPerInch)
{
    Encoder encoder;
    const std::optional<FileAttributes> replaced = AttributesOf(fileName);
    if (replaced) {
        CheckWritable(fileName); // removing a file does not need write permission on it
        RemoveFile(fileName);
    }
    const QByteArrayView bytes = encoder.Encode(surface, quality, dotsPerInch);
    OutputFile file(fileName);
    file.Write(bytes);
    if (replaced)
        file.TakeTimesAndPermissions(*replaced);
    file.Close();
    return true;
}

} // namespace deckforge
