/// @file
/// An MDI frame window with command bars.
#pragma once

#include "CXTPCommandBars.h"

#include <memory>

/// The frame owns its command bars; there are none until `InitCommandBars`.
/// @ingroup toolkit_commandbars
class KY_TOOLKIT_API CXTPMDIFrameWnd : public CMDIFrameWnd {
    DECLARE_DYNCREATE(CXTPMDIFrameWnd)
public:
    CXTPMDIFrameWnd();
    ~CXTPMDIFrameWnd() override;

    /// Makes the command bars when there are none; a second call changes nothing. Always TRUE. To be called when the
    /// frame has its window, usually in `OnCreate`.
    BOOL InitCommandBars();
    /// Null before `InitCommandBars`; owned by the frame.
    CXTPCommandBars* GetCommandBars() const { return m_pCommandBars.get(); }

private:
    std::unique_ptr<CXTPCommandBars> m_pCommandBars;
};
