// CProgressCtrl: a bar that fills as work goes on.
#pragma once

#include <commctrl.h>

#include "../windows/CWnd.h"

/// The system's progress bar. Its position is a number within its range, at first from 0 to 100.
class KY_FRAMEWORK_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    using CWnd::Create;
    /// `dwStyle` takes PBS_SMOOTH and PBS_VERTICAL as well.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange32(int nLower, int nUpper) { SendMessage(PBM_SETRANGE32, nLower, nUpper); }
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    /// A position beyond the range becomes its end. Returns the former position.
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, nPos)); }
};
