// The window that lists what was odd about the open file.
#pragma once

#include <afxwin.h>

#include <vector>

/// A small window above the frame, with one message per line to read and to copy. Closing it hides it.
class MessagesWindow : public CWnd {
public:
    /// Created hidden; `owner` keeps it above itself and destroys it.
    BOOL CreateFor(CWnd* owner);

    void SetMessages(const CString& fileName, const std::vector<CString>& messages);

    /// Shows the window, at first near the owner's lower right corner.
    void Open();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    int OnCreate(LPCREATESTRUCT create);
    void OnSize(UINT type, int width, int height);
    void OnSetFocus(CWnd* old);
    void OnClose();
    LRESULT OnDpiChanged(WPARAM resolution, LPARAM suggested);
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    DECLARE_MESSAGE_MAP()

private:
    void Place();
    void UseDpi(int dpi);

    CEdit m_text;
    CFont m_font;
    bool m_placed = false;
};
