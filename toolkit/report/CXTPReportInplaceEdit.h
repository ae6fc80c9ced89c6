/// @file
/// The edit control in which the text of a cell is typed.
#pragma once

#include "XTPReportDefines.h"

#include <afxcmn.h>

#include <memory>

/// An edit control over a cell, with the cell's font and alignment. The report control has one and opens it as the user
/// asks; an item may bring one of its own and open it with `Create`. Either way the control knows it while it is open:
/// a control has one open editor at most, and closes it before its cell goes (see `CXTPReportControl`).
///
/// Keys. Enter ends the editing, up, down and page keys do and then move in the grid, tab and shift+tab go on with the
/// next and the previous cell that can be edited. Escape ends it without effect. Ctrl+A selects the text. Accelerators
/// of the main window do not get the keys of an editor.
///
/// Made with `new`. The object outlives its windows: each `Create` makes one, the end of the editing destroys it.
/// Reference counted: who deletes it while a handler of it may be running releases it instead.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportInplaceEdit : public CEdit {
    DECLARE_DYNCREATE(CXTPReportInplaceEdit)
public:
    CXTPReportInplaceEdit();
    /// An editing under way ends without effect, and without a word to anybody.
    ~CXTPReportInplaceEdit() override;

    using CEdit::Create;
    /// Opens the editor over `pItemArgs->rcItem` with the text that the cell shows, all of it selected, and gives it
    /// the keyboard. Control, row, column and item have to be there. An editing that is under way in the control takes
    /// effect first, which may run hooks. FALSE when there is no window to be had, or the cell has gone meanwhile.
    virtual BOOL Create(XTP_REPORTRECORDITEM_ARGS* pItemArgs);
    /// Ends the editing: calls `OnValidateEdit` of the item, or `OnEditCanceled` without `bApply`; then the window is
    /// destroyed, and the control has the keyboard again unless somebody else has taken it. Runs hooks, so that the
    /// control may be gone afterwards. Nothing happens while nothing is being edited, nor from within those calls.
    void EndEdit(BOOL bApply);

    BOOL IsEditing() const;                ///< from `Create` until the window is destroyed
    CXTPReportControl* GetControl() const; ///< null while nothing is being edited; as the three that follow
    CXTPReportRow* GetRow() const;         ///< may have left the control, after a `Populate` in a hook
    CXTPReportColumn* GetColumn() const;   ///< whose cell is edited
    CXTPReportRecordItem* GetItem() const; ///< the item that is edited
    /// The text that the editing began with: the cell's, or the one that SetWindowText gave since. Empty while nothing
    /// is being edited.
    CString GetStartText() const;

    /// Lets the editor have its keys before accelerators and dialogs look at them.
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// For the control: the cell has moved, or looks different. An editor over a part of a cell moves with it.
    void FollowCell();

protected:
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);              ///< the keys that end the editing
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);                 ///< drops the characters of those keys
    void OnKillFocus(CWnd* pNewWnd);                                    ///< the editing takes effect
    UINT OnGetDlgCode();                                                ///< every key
    void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp); ///< the text in the middle of the cell's height
    void OnNcPaint();                                                   ///< what is above and below it, and the frame
    HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);                          ///< the theme's colours
    LRESULT OnSetText(WPARAM wParam, LPARAM lParam);                    ///< the text counts as that of the beginning
    void OnDestroy();                                                   ///< an editing that is under way takes effect
    DECLARE_MESSAGE_MAP()

private:
    friend class CXTPReportControl;
    struct Session;
    void ForgetControl();
    void Close(const std::shared_ptr<Session>& session);
    void TakeLook();
    CRect PlaceInControl() const;

    std::shared_ptr<Session> m_session; ///< null while nothing is being edited
};
