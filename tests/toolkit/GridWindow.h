// A report control in a window, driven by messages, and what it tells its owner; the ground of the tests of the view.
#pragma once

#include <XTToolkitPro.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "../framework/DibCanvas.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A cell that remembers what happened to it.
class ProbeItem : public CXTPReportRecordItemText {
public:
    explicit ProbeItem(LPCTSTR text) : CXTPReportRecordItemText(text) {}

    void Draw(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs) override;
    BOOL OnLButtonDown(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs) override;
    BOOL OnLButtonUp(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs) override;
    void OnClick(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs) override;
    void OnDblClick(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs) override;
    void OnMouseMove(UINT nFlags, CPoint point, CXTPReportControl* pReportControl) override;
    void OnEditChanged(XTP_REPORTRECORDITEM_ARGS* pItemArgs, LPCTSTR szText) override;

    int drawn = 0;
    CRect drawnAt;   ///< rcItem of the last drawing
    CRect clickedAt; ///< rcItem of the last press
    int presses = 0, releases = 0, clicks = 0, doubleClicks = 0;
    std::vector<CPoint> moves;
    bool takesPress = false;
    std::function<void()> onClick;
    std::function<void()> onEditChanged; ///< after the text was taken
};

/// A control that counts its selection changes.
class ProbeGrid : public CXTPReportControl {
public:
    void OnSelectionChanged() override;
    int selectionChanges = 0;
    std::function<void()> onSelectionChanged;
};

/// A header that remembers where a menu was asked for.
class ProbeHeader : public CXTPReportHeader {
public:
    using CXTPReportHeader::CXTPReportHeader;
    void OnContextMenu(CPoint ptPoint) override;
    std::vector<CPoint> menus;
};

/// The window above the control: collects the control's notifications.
class OwnerWindow : public CWnd {
public:
    struct Notification {
        UINT code;
        int rowIndex;
        CXTPReportRecordItem* item;
        CXTPReportColumn* column;
    };
    std::vector<Notification> notifications;
    std::function<void(UINT code)> onNotify;
    LRESULT answer = 0;
    bool refusesEdit = false;
    int contextMenus = 0;

    int Count(UINT code) const;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    void OnContextMenu(CWnd* pWnd, CPoint point);
    DECLARE_MESSAGE_MAP()
};

/// Keys that are down as long as this lives, as GetKeyState tells them.
class KeysDown {
public:
    explicit KeysDown(std::initializer_list<int> keys);
    ~KeysDown();

private:
    BYTE m_former[256];
};

/// A visible grid of three columns ("A", "B", "C", of 100, 80 and 60 pixels) and as many records as the test adds.
/// Its client area is 300 pixels wide, without scroll bars, and has room for the header and ten rows.
class GridTest : public ::testing::Test {
protected:
    static constexpr int Width = 300;
    static constexpr int VisibleRows = 10;

    GridTest();
    ~GridTest() override;

    /// Records whose texts are the column's letter and the record's number: "A0", "B0", "C0", …
    void AddRecords(int count);
    ProbeItem* Item(int rowIndex, int itemIndex) const;
    /// The middle of a cell, client coordinates.
    CPoint Cell(int rowIndex, int visibleColumn = 0) const;
    CPoint HeaderOf(int columnIndex) const;
    /// A point on the right divider of the column.
    CPoint DividerOf(int columnIndex) const;

    void Press(CPoint point, UINT flags = 0);
    void Move(CPoint point, UINT flags = MK_LBUTTON);
    void Release(CPoint point, UINT flags = 0);
    void Click(CPoint point, UINT flags = 0);
    void DoubleClick(CPoint point);
    void Key(UINT key);
    void Wheel(int delta, UINT flags = 0);
    /// Moves the real pointer, whose place the system tells at its own time.
    void PutCursor(CPoint point);
    /// Dispatches what is in the queue for that long, as a message loop with PreTranslateMessage does.
    void Pump(int milliseconds = 0);
    /// Everything that is to be painted is painted; the cells' counts begin anew.
    void Settle();
    int CellsDrawn() const;
    std::vector<int> Selected() const;
    std::vector<std::wstring> Texts(int itemIndex = 0) const;

    /// What the control draws on demand, and what stands on the screen.
    std::unique_ptr<DibCanvas> Printed();
    std::unique_ptr<DibCanvas> OnScreen();
    /// The number of pixels in which two pictures of the client area differ.
    int Difference(const DibCanvas& a, const DibCanvas& b) const;
    /// Letters have one colour from now on, without smooth edges.
    void UsePlainLetters();
    int RowHeight() const { return m_grid.GetPaintManager()->GetRowHeight(); }
    int HeaderHeight() const { return m_grid.GetPaintManager()->GetHeaderHeight(); }

    OwnerWindow m_owner;
    ProbeGrid m_grid;
    ProbeHeader* m_header;
    CXTPReportColumn* m_columns[3];
};
