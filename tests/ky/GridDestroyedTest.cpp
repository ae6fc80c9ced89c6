// Hosts that destroy the grid in code that the grid runs.
#include "PlotCellProbes.h"

#include <cstdlib>
#include <cstring>
#include <functional>
#include <vector>

namespace {

/// A grid whose memory is overwritten when it is deleted, and kept until the test ends: whoever still reads its members
/// then finds pointers that lead nowhere.
class MortalGrid : public KyPlotRecordReportControl {
public:
    static void operator delete(void* memory, std::size_t size) {
        std::memset(memory, 0xEE, size);
        Graveyard().push_back(memory);
    }
    static std::vector<void*>& Graveyard() {
        static std::vector<void*> memory;
        return memory;
    }
    using KyReportControl::OnColumnHeaderRClick;
    std::function<void()> onCancelled;

protected:
    void OnPlotRecordItemDragCancelled() override {
        if (onCancelled)
            onCancelled();
    }
};

/// The host of such a grid, which deletes it when it is told of `fatal`.
class Host : public CWnd {
public:
    UINT fatal = 0;
    MortalGrid* grid = nullptr;
    void Kill() {
        delete grid;
        grid = nullptr;
    }

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        if (fatal != 0 && reinterpret_cast<const NMHDR*>(lParam)->code == fatal)
            Kill();
        *result = 0;
        return TRUE;
    }
};

class GridDestroyedTest : public ::testing::Test {
protected:
    GridDestroyedTest() {
        host.CreateEx(0, AfxRegisterWndClass(0), _T("host"), WS_POPUP | WS_VISIBLE, CRect(20, 30, 660, 430), nullptr,
                      0);
        host.grid = new MortalGrid;
        host.grid->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 640, 400), &host, 100);
        host.grid->AddColumn(new CXTPReportColumn(0, _T("Plot"), 402, FALSE));
        for (auto*& cell : cells) {
            auto* record = new CXTPReportRecord;
            cell = new ProbeCell;
            cell->SetValues(30, 50, 70);
            record->AddItem(cell);
            host.grid->AddRecord(record);
        }
        host.grid->Populate();
        host.grid->UpdateWindow();
        window = host.grid->m_hWnd;
    }
    ~GridDestroyedTest() override {
        EXPECT_EQ(host.grid, nullptr) << "the grid was not destroyed at all";
        host.Kill();
        host.DestroyWindow();
        for (void* memory : MortalGrid::Graveyard())
            std::free(memory);
        MortalGrid::Graveyard().clear();
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(ProbeCell::Alive(), 0);
    }
    CPoint At(int row, double value) const {
        CRect rect = host.grid->GetRows()->GetAt(row)->GetItemRect(cells[row]);
        rect.InflateRect(-1, -1);
        return CPoint(rect.left + static_cast<int>(rect.Width() * value / 100.0 + 0.5), rect.CenterPoint().y);
    }
    /// The parameters are taken first: afterwards there may be no grid.
    void Send(UINT message, WPARAM keys, CPoint point) {
        ::SendMessage(window, message, keys, MAKELPARAM(point.x, point.y));
    }
    void DieOnValue(ProbeCell& cell) {
        cell.m_valueChanged.connect([this](float, float, float) { host.Kill(); });
    }

    Host host;
    HWND window;
    ProbeCell* cells[2] = {};
};

} // namespace

TEST_F(GridDestroyedTest, WhileAPressFocusesTheRow) {
    host.fatal = XTP_NM_REPORT_FOCUSCHANGED;
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(1, 50));
}

TEST_F(GridDestroyedTest, WhileAPressSelectsTheRow) {
    host.fatal = XTP_NM_REPORT_SELCHANGED;
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(1, 50));
}

TEST_F(GridDestroyedTest, WhileAClickIsTold) {
    const CPoint beside = At(1, 10);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, beside);
    host.fatal = NM_CLICK;
    Send(WM_LBUTTONUP, 0, beside);
}

TEST_F(GridDestroyedTest, InASlotOfTheReleasedCell) {
    DieOnValue(*cells[1]);
    const CPoint end = At(1, 60);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(1, 50));
    Send(WM_MOUSEMOVE, MK_LBUTTON, end);
    Send(WM_LBUTTONUP, 0, end);
}

TEST_F(GridDestroyedTest, InASlotOfACellThatThePointerLeaves) {
    DieOnValue(*cells[1]);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(1, 50));
    Send(WM_MOUSELEAVE, 0, CPoint());
}

TEST_F(GridDestroyedTest, WhileADragIsCancelled) {
    host.grid->onCancelled = [this] { host.Kill(); };
    Send(WM_LBUTTONDOWN, MK_LBUTTON, At(1, 50));
    MSG escape = {window, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    EXPECT_TRUE(host.grid->PreTranslateMessage(&escape)) << "there is no window left to send it to";
}

TEST_F(GridDestroyedTest, WhileTheColumnChooserIsOpen) {
    static Host* owner;
    owner = &host;
    host.grid->EnableShowHideColumns({});
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) {
        GUITHREADINFO info = {};
        info.cbSize = sizeof(info);
        ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
        if (info.flags & GUI_INMENUMODE) {
            owner->Kill();
            ::EndMenu();
        }
    });
    host.grid->OnColumnHeaderRClick(host.grid->GetColumns()->GetAt(0)->GetRect().CenterPoint());
    ::KillTimer(nullptr, timer);
}
