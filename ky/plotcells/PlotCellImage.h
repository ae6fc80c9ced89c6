// Turning a bitmap into a packed device-independent one and writing it as a .bmp file. Internal to the library.
#pragma once

#include <afxwin.h>

#include <memory>

namespace plotcellimage {

struct GlobalFreeDeleter {
    void operator()(void* block) const { ::GlobalFree(block); }
};
/// Owns a block of global memory.
using GlobalBlock = std::unique_ptr<void, GlobalFreeDeleter>;

/// Header, colour table and bottom-up rows of the bitmap in one block, uncompressed, at the bitmap's own colour depth.
/// The bitmap must not be selected into a device context. Null when there is no memory or the bitmap cannot be read.
GlobalBlock Pack(const CBitmap& bitmap);

/// Creates or overwrites the file with the packed bitmap. A file that cannot be opened is left alone; a failure while
/// writing is the file class's exception.
void WriteFile(const wchar_t* path, HGLOBAL packed);

} // namespace plotcellimage
