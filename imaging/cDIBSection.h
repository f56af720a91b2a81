// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/PictureBox.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace deckforge {

/// Header of the pixels of a cDIBSection. A positive height means bottom-up rows.
struct BitmapInfoHeader {
    int32 biSize = 40;
    int32 biWidth = 0;
    int32 biHeight = 0;
    int16 biPlanes = 1;
    int16 biBitCount = 24;
    int32 biCompression = 0;
    int32 biSizeImage = 0;
};

/// Non-owning view of pixels to copy from and to: BGR bytes, rows counted from the top. The stride is
/// negative if memory is bottom-up. Empty if there are no pixels.
struct DrawingContext {
    std::uint8_t* TopLeft = nullptr;
    int Width = 0;
    int Height = 0;
    std::ptrdiff_t Stride = 0;

    [[nodiscard]] bool IsEmpty() const { return TopLeft == nullptr; }
    [[nodiscard]] std::uint8_t* Row(int y) const { return TopLeft + y * Stride; }
};

/// How copied pixels are combined with existing ones.
enum class RasterOperation { SrcCopy = 0xCC0020 };

/// A 24-bit bitmap that owns its memory: BGR, bottom-up rows padded to a multiple of four bytes.
///
/// Initially empty. All operations but Create, CreateFromPicture and ClearUp need a bitmap.
class cDIBSection {
public:
    /// Copies the bitmap to the clipboard. Returns false if there is no clipboard or no bitmap.
    bool CopyToClipboard() const;

    /// Allocates a black bitmap. False if there is no memory, or if a dimension is below 1.
    [[nodiscard]] bool CreateDIB(int32 width, int32 height);
    /// Takes the physical pixels of the picture; empty on failure.
    void CreateFromPicture(const Picture& picture);
    /// Discards the bitmap and creates a black one. False on failure.
    bool Create(int32 width, int32 height);

    [[nodiscard]] int32 BytesPerScanLine() const { return ScanLineBytes(m_bitmapHeader.biWidth); }
    [[nodiscard]] int32 Width() const { return m_bitmapHeader.biWidth; }
    [[nodiscard]] int32 Height() const { return m_bitmapHeader.biHeight; }

    /// Copies from a point of the source to the top left corner. A negative width or height means that of
    /// this bitmap.
    void LoadPictureBlt(const DrawingContext& source, int32 srcX = 0, int32 srcY = 0, int32 width = -1,
                        int32 height = -1, RasterOperation operation = RasterOperation::SrcCopy);
    /// Copies to a point of the target; width and height as above.
    void PaintPicture(const DrawingContext& target, int32 x = 0, int32 y = 0, int32 width = -1,
                      int32 height = -1, int32 srcX = 0, int32 srcY = 0,
                      RasterOperation operation = RasterOperation::SrcCopy) const;

    [[nodiscard]] DrawingContext hdc() const;
    [[nodiscard]] const std::vector<std::uint8_t>& hDib() const { return m_bits; }
    [[nodiscard]] const std::uint8_t* DIBSectionBitsPtr() const { return m_bits.data(); }

    /// Fills with a test pattern, a different one at each call: grey, or of green and red without blue.
    void RandomiseBits(bool gray);
    void ClearUp();

    /// A resized bitmap, bilinear, rounding between both passes; null on failure. Kept: the scale divides by
    /// the target's size, so the last row and column of the source never get full weight.
    [[nodiscard]] std::unique_ptr<cDIBSection> Resample(int32 newHeight, int32 newWidth) const;

    /// Bytes per row, padded to a multiple of four.
    [[nodiscard]] static int32 ScanLineBytes(int32 width) { return (width * 3 + 3) & ~3; }

private:
    void ResampleInto(cDIBSection& target) const;
    [[nodiscard]] std::uint8_t* MemoryRow(int row);
    [[nodiscard]] const std::uint8_t* MemoryRow(int row) const;

    BitmapInfoHeader m_bitmapHeader;
    std::vector<std::uint8_t> m_bits;
};

} // namespace deckforge
