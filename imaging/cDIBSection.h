#pragma once

#include "imaging/PictureBox.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace deckforge {

/// The header that describes the bits of a cDIBSection. A positive height means rows that run bottom-up.
struct BitmapInfoHeader {
    int32 biSize = 40;
    int32 biWidth = 0;
    int32 biHeight = 0;
    int16 biPlanes = 1;
    int16 biBitCount = 24;
    int32 biCompression = 0;
    int32 biSizeImage = 0;
};

/// Pixels that can be copied from and to: blue, green, red bytes in rows counted from the top. The stride is
/// negative where memory runs bottom-up. It owns nothing; empty when there are no bits.
struct DrawingContext {
    std::uint8_t* TopLeft = nullptr;
    int Width = 0;
    int Height = 0;
    std::ptrdiff_t Stride = 0;

    [[nodiscard]] bool IsEmpty() const { return TopLeft == nullptr; }
    [[nodiscard]] std::uint8_t* Row(int y) const { return TopLeft + y * Stride; }
};

/// How copied pixels meet those that are there.
enum class RasterOperation { SrcCopy = 0xCC0020 };

/// A bitmap of 24 bits a pixel that owns its memory: three bytes a pixel in the order blue, green, red, row 0
/// the bottom row of the picture, each row filled up to a multiple of four bytes.
///
/// It starts empty. Operations but Create, CreateFromPicture and ClearUp need a bitmap.
class cDIBSection {
public:
    /// Copies the surface to the clipboard. False where there is no clipboard or no bitmap.
    bool CopyToClipboard() const;

    /// Takes memory for the size, all black. False when there is none, or when a measure is below 1.
    [[nodiscard]] bool CreateDIB(int32 width, int32 height);
    /// A surface of the picture's memory size with its pixels; empty when the picture cannot be taken.
    void CreateFromPicture(const Picture& picture);
    /// Gives up what was there, and makes an empty surface of the size. False on failure.
    bool Create(int32 width, int32 height);

    [[nodiscard]] int32 BytesPerScanLine() const { return ScanLineBytes(m_bitmapHeader.biWidth); }
    [[nodiscard]] int32 Width() const { return m_bitmapHeader.biWidth; }
    [[nodiscard]] int32 Height() const { return m_bitmapHeader.biHeight; }

    /// Copies from a point of the source to the top left corner. A negative extent stands for this surface's.
    void LoadPictureBlt(const DrawingContext& source, int32 srcX = 0, int32 srcY = 0, int32 width = -1,
                        int32 height = -1, RasterOperation operation = RasterOperation::SrcCopy);
    /// Copies to a point of the target, with the same rule for extents.
    void PaintPicture(const DrawingContext& target, int32 x = 0, int32 y = 0, int32 width = -1,
                      int32 height = -1, int32 srcX = 0, int32 srcY = 0,
                      RasterOperation operation = RasterOperation::SrcCopy) const;

    [[nodiscard]] DrawingContext hdc() const;
    [[nodiscard]] const std::vector<std::uint8_t>& hDib() const { return m_bits; }
    [[nodiscard]] const std::uint8_t* DIBSectionBitsPtr() const { return m_bits.data(); }

    /// A test pattern, another one at each call: grey, or of green and red without any blue.
    void RandomiseBits(bool gray);
    void ClearUp();

    /// A new surface of another size, bilinear with rounding to integers between the two passes; nothing when
    /// it cannot be made. The scale divides by the target's size, so the last source row and column are never
    /// reached at full weight.
    [[nodiscard]] std::unique_ptr<cDIBSection> Resample(int32 newHeight, int32 newWidth) const;

    /// (width x 3 + 3) without its two low bits.
    [[nodiscard]] static int32 ScanLineBytes(int32 width) { return (width * 3 + 3) & ~3; }

private:
    void ResampleInto(cDIBSection& target) const;
    [[nodiscard]] std::uint8_t* MemoryRow(int row);
    [[nodiscard]] const std::uint8_t* MemoryRow(int row) const;

    BitmapInfoHeader m_bitmapHeader;
    std::vector<std::uint8_t> m_bits;
};

} // namespace deckforge
