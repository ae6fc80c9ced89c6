// The colours that controls share, whatever they are.
#include "CXTPColorManager.h"

COLORREF CXTPColorManager::GetColor(int nIndex) const { return ::GetSysColor(nIndex); }

CXTPColorManager* XTPColorManager() {
    static CXTPColorManager manager;
    return &manager;
}
