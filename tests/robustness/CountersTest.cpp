// Each counter of leaks catches one.
#include "Rig.h"

namespace {

/// Makes something through the libraries; the counter must see it, and see it go.
template <class Make, class End>
void ExpectCounted(const char* counter, Make make, End end) {
    const Counts before;
    auto made = make();
    EXPECT_EQ(Counts().Of(counter), before.Of(counter) + 1) << counter;
    end(made);
    EXPECT_EQ(Counts().ChangesSince(before), "") << counter;
}

TEST(Counters, CatchLeaksOfEveryKind) {
    BecomeIdle();
    const auto destroy = [](auto* object) { delete object; };
    // The first window of a thread brings one for input along, and tables are made at their first use.
    GridRig rig;
    {
        CMenu menu;
        menu.CreatePopupMenu();
    }
    ExpectCounted(
        "GDI object", [] { return new CPen(PS_SOLID, 1, RGB(1, 2, 3)); }, destroy);
    ExpectCounted(
        "framework's GDI object", [] { return new CBrush(RGB(1, 2, 3)); }, destroy);
    for (const char* counter : {"device context", "framework's device context"}) {
        ExpectCounted(
            counter,
            [] {
                auto* dc = new CDC;
                dc->CreateCompatibleDC(nullptr);
                return dc;
            },
            destroy);
    }
    ExpectCounted(
        "window's device context", [] { return new CClientDC(nullptr); }, destroy);
    ExpectCounted(
        "painting", [&rig] { return new CPaintDC(rig.grid); }, destroy);
    for (const char* counter : {"menu", "framework's menu"}) {
        ExpectCounted(
            counter,
            [] {
                auto* menu = new CMenu;
                menu->CreatePopupMenu();
                return menu;
            },
            destroy);
    }
    ExpectCounted(
        "framework's window",
        [&rig] {
            auto* window = new CWnd;
            window->Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 9, 9), rig.grid, 1);
            return window;
        },
        [](CWnd* window) {
            window->DestroyWindow();
            delete window;
        });
    ExpectCounted(
        "record item", [] { return new CXTPReportRecordItemText(L"x"); },
        [](CXTPReportRecordItem* item) { item->InternalRelease(); });
    ExpectCounted(
        "record", [] { return new CXTPReportRecord; }, [](CXTPReportRecord* record) { record->InternalRelease(); });
    ExpectCounted(
        "heap block", [] { return new char[100]; }, [](char* block) { delete[] block; });
    ExpectCounted(
        "heap byte", [] { return new char[1]; }, [](char* block) { delete[] block; });
    ExpectCounted(
        "window",
        [] { return ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr); },
        [](HWND window) { ::DestroyWindow(window); });
    wchar_t folder[MAX_PATH] = L"";
    ::GetTempPathW(MAX_PATH, folder);
    const CString path = CString(folder) + L"counted.tmp";
    ExpectCounted(
        "file", [&path] { return new CFile(path, CFile::modeCreate | CFile::modeWrite); }, destroy);
    ::DeleteFileW(path);
    ExpectCounted(
        "hook",
        [&rig] {
            AfxHookWindowCreate(rig.grid);
            return rig.grid;
        },
        [](CWnd*) { AfxUnhookWindowCreate(); });
    // The caller gives these back, and this program's own calls are not counted.
    const long blocks = Counts().Of("global block");
    ::GlobalFree(rig.Bar(0).CreateDIB(*rig.grid, 10, 10));
    EXPECT_EQ(Counts().Of("global block"), blocks + 1);
    const long keys = Counts().Of("registry key");
    ::RegCloseKey(AfxGetApp()->GetSectionKey(L"Counted"));
    EXPECT_EQ(Counts().Of("registry key"), keys + 1);
}

} // namespace
