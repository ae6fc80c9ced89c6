// Turning a bitmap into a packed device-independent one and writing it as a .bmp file.
#include "PlotCellImage.h"

#include "PackedDib.h"

#include <limits>

namespace plotcellimage {
namespace {

/// A memory context for the screen that reads bitmaps of one colour depth, with the default palette in force.
class ReadingContext {
public:
    explicit ReadingContext(UINT bitsPerPixel) {
        if (!m_dc.CreateCompatibleDC(nullptr))
            return;
        if (m_bitmap.CreateBitmap(1, 1, 1, bitsPerPixel, nullptr))
            m_formerBitmap = ::SelectObject(m_dc, m_bitmap);
        m_formerPalette = ::SelectPalette(m_dc, static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE)), FALSE);
        ::RealizePalette(m_dc);
    }
    ~ReadingContext() {
        if (m_formerPalette != nullptr)
            ::SelectPalette(m_dc, m_formerPalette, FALSE);
        if (m_formerBitmap != nullptr)
            ::SelectObject(m_dc, m_formerBitmap);
    }
    ReadingContext(const ReadingContext&) = delete;
    ReadingContext& operator=(const ReadingContext&) = delete;

    bool IsValid() const { return m_dc.GetSafeHdc() != nullptr; }

    /// Reads all rows, or only the image size when `bits` is null.
    bool Read(const CBitmap& bitmap, UINT rows, void* bits, BITMAPINFO* info) const {
        return ::GetDIBits(m_dc, bitmap, 0, rows, bits, info, DIB_RGB_COLORS) != 0;
    }

private:
    CBitmap m_bitmap; // outlives the context that it is selected into
    CDC m_dc;
    HGDIOBJ m_formerBitmap = nullptr;
    HPALETTE m_formerPalette = nullptr;
};

/// Access to the memory of a global block for the length of a scope.
class LockedBlock {
public:
    explicit LockedBlock(HGLOBAL block) : m_block(block), m_data(static_cast<std::byte*>(::GlobalLock(block))) {}
    ~LockedBlock() {
        if (m_data != nullptr)
            ::GlobalUnlock(m_block);
    }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;

    std::byte* Data() const { return m_data; }
    BITMAPINFO* Info() const { return reinterpret_cast<BITMAPINFO*>(m_data); }

private:
    HGLOBAL m_block;
    std::byte* m_data;
};

BITMAPINFOHEADER HeaderOf(const BITMAP& bitmap) {
    BITMAPINFOHEADER header{};
    header.biSize = packeddib::InfoHeaderSize;
    header.biWidth = bitmap.bmWidth;
    header.biHeight = bitmap.bmHeight;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(bitmap.bmPlanes * bitmap.bmBitsPixel);
    header.biCompression = BI_RGB;
    return header;
}

} // namespace

GlobalBlock Pack(const CBitmap& bitmap) {
    BITMAP shape{};
    if (::GetObjectW(bitmap, sizeof(shape), &shape) == 0)
        return nullptr;
    const BITMAPINFOHEADER header = HeaderOf(shape);
    const auto rows = static_cast<UINT>(header.biHeight);
    const SIZE_T headSize =
        packeddib::InfoHeaderSize + packeddib::ColorTableEntrySize * packeddib::ColorTableEntries(header.biBitCount);

    const ReadingContext context(header.biBitCount);
    GlobalBlock block(::GlobalAlloc(GPTR, headSize));
    if (!context.IsValid() || !block)
        return nullptr;

    std::uint64_t imageSize = 0;
    {
        const LockedBlock locked(block.get());
        if (locked.Data() == nullptr)
            return nullptr;
        locked.Info()->bmiHeader = header;
        if (!context.Read(bitmap, rows, nullptr, locked.Info()))
            return nullptr;
        if (locked.Info()->bmiHeader.biSizeImage == 0) {
            const auto width = static_cast<std::uint32_t>(header.biWidth);
            imageSize = packeddib::ImageSize(width, rows, header.biBitCount);
            if (imageSize > std::numeric_limits<DWORD>::max())
                return nullptr;
            locked.Info()->bmiHeader.biSizeImage = static_cast<DWORD>(imageSize);
        }
        imageSize = locked.Info()->bmiHeader.biSizeImage;
    }

    const HGLOBAL grown = ::GlobalReAlloc(block.get(), headSize + imageSize, GMEM_MOVEABLE);
    if (grown == nullptr)
        return nullptr;
    (void)block.release(); // the old handle went into the new one
    block.reset(grown);

    const LockedBlock locked(block.get());
    if (locked.Data() == nullptr || !context.Read(bitmap, rows, locked.Data() + headSize, locked.Info()))
        return nullptr;
    return block;
}

void WriteFile(const wchar_t* path, HGLOBAL packed) {
    const LockedBlock locked(packed);
    CFile file;
    if (locked.Data() == nullptr || !file.Open(path, CFile::modeCreate | CFile::modeWrite))
        return;
    const SIZE_T size = ::GlobalSize(packed);
    const auto fileHeader = packeddib::FileHeader(size, locked.Info()->bmiHeader.biBitCount);
    try {
        file.Write(fileHeader.data(), static_cast<UINT>(fileHeader.size()));
        file.Write(locked.Data(), static_cast<UINT>(size));
    } catch (...) {
        file.Abort();
        ::DeleteFileW(path); // no file rather than half a bitmap
        throw;
    }
}

} // namespace plotcellimage
