// The global paint manager: which theme the toolkit's components follow.
#include "CXTPPaintManager.h"

#include <utility>

CXTPPaintManager* CXTPPaintManager::s_pInstance = nullptr;

CXTPPaintManager::~CXTPPaintManager() = default;

void CXTPPaintManager::SetTheme(XTPPaintTheme theme) {
    CXTPPaintManager* const pFormer = std::exchange(s_pInstance, new CXTPPaintManager(theme));
    if (pFormer)
        pFormer->InternalRelease();
}

CXTPPaintManager* XTPPaintManager() {
    if (!CXTPPaintManager::s_pInstance)
        CXTPPaintManager::SetTheme(xtpThemeOffice2000);
    return CXTPPaintManager::s_pInstance;
}
