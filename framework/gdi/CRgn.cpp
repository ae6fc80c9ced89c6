// CRgn.cpp - regions.
#include "gdi/CRgn.h"

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

int CRgn::CombineRgn(const CRgn* first, const CRgn* second, int mode) {
    return ::CombineRgn(*this, first ? static_cast<HRGN>(*first) : nullptr,
                        second ? static_cast<HRGN>(*second) : nullptr, mode);
}

int CRgn::CopyRgn(const CRgn* source) { return CombineRgn(source, nullptr, RGN_COPY); }
