#include "imaging/mIntelJPEGLibrary.h"

#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <turbojpeg.h>

namespace deckforge {

namespace {

/// The encoder with the bytes that it gave.
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

    /// The bytes stay with the encoder.
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
    /// The encoder begins every file with a JFIF header without a density, and cannot be told one.
    void WriteDensity(int dotsPerInch)
    {
        constexpr int units = 13; // behind the markers, the length, "JFIF" and the version
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
        CheckWritable(fileName); // a file may be deleted from its folder though it may not be written
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
