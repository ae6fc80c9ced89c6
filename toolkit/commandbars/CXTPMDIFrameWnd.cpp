// An MDI frame window with command bars.
#include "CXTPMDIFrameWnd.h"

IMPLEMENT_DYNCREATE(CXTPMDIFrameWnd, CMDIFrameWnd)

CXTPMDIFrameWnd::CXTPMDIFrameWnd() = default;
CXTPMDIFrameWnd::~CXTPMDIFrameWnd() = default;

BOOL CXTPMDIFrameWnd::InitCommandBars() {
    if (!m_pCommandBars)
        m_pCommandBars = std::make_unique<CXTPCommandBars>(this);
    return TRUE;
}
