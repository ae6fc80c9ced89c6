// An MDI frame window with command bars.
#pragma once

#include "CXTPCommandBars.h"

#include <memory>

/// The frame owns its command bars; there are none until `InitCommandBars`.
class KY_TOOLKIT_API CXTPMDIFrameWnd : public CMDIFrameWnd {
    DECLARE_DYNCREATE(CXTPMDIFrameWnd)
public:
    CXTPMDIFrameWnd();
    ~CXTPMDIFrameWnd() override;

    BOOL InitCommandBars();
    CXTPCommandBars* GetCommandBars() const { return m_pCommandBars.get(); }

private:
    std::unique_ptr<CXTPCommandBars> m_pCommandBars;
};
