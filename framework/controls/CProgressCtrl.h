/// @file
/// CProgressCtrl: a bar that fills as work goes on.
#pragma once

#include "../windows/CWnd.h"

#include <commctrl.h>

/// The system's progress bar. Its position is a number within its range, at first from 0 to 100. `<afxcmn.h>`.
/// @ingroup framework_controls
class KY_FRAMEWORK_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    using CWnd::Create;
    /// A progress bar, at `rect` in client coordinates of `pParentWnd`, which must not be null. Add WS_VISIBLE. FALSE
    /// on failure. `dwStyle` takes PBS_SMOOTH and PBS_VERTICAL as well.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// The positions at which the bar is empty and full. A position outside moves to the nearer one.
    void SetRange32(int nLower, int nUpper) { SendMessage(PBM_SETRANGE32, nLower, nUpper); }
    /// The positions at which the bar is empty and full.
    void GetRange(int& nLower, int& nUpper) const;
    /// The position that was set last, within the range.
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    /// A position beyond the range becomes its end. Returns the former position.
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, nPos)); }
};
