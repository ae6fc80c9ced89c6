// Many repetitions leave everything where it was: handles, windows, record items and heap.
#include "Rig.h"

#include "window/ProfilerFrame.h"

#include <reportgrid/KyReportControlHelpers.h>

#include <iostream>

namespace {

/// Repeats what `once` does; everything must be where it was after the first few times.
template <class Once>
void ExpectNoGrowth(const char* what, int repetitions, Once once) {
    constexpr int warmUp = 5; // caches fill, tables grow
    for (int i = 0; i < warmUp; ++i) {
        once(i);
        BecomeIdle();
    }
    const Counts before;
    for (int i = 0; i < repetitions; ++i) {
        once(i);
        BecomeIdle();
    }
    EXPECT_EQ(Counts().ChangesSince(before), "") << what;
    std::cout << "[ repeated ] " << what << ": " << repetitions << std::endl;
}

TEST(Leaks, DrawingEveryCell) {
    GridRig rig;
    ExpectNoGrowth("draws of every cell", Repetitions(10000, 200), [&rig](int) { rig.Paint(); });
}

TEST(Leaks, DrawingCellsThatChange) {
    GridRig rig;
    ExpectNoGrowth("draws of cells that change", Repetitions(10000, 200), [&rig](int i) {
        rig.Bar(i % 8).SetColors(RGB(i % 256, 0, 160), RGB(220, 235, i % 256));
        rig.grid->SetFocusedRow(rig.grid->GetRows()->GetAt(i % 8));
        rig.Paint();
    });
}

TEST(Leaks, SavingBitmaps) {
    GridRig rig;
    wchar_t folder[MAX_PATH] = L"";
    ::GetTempPathW(MAX_PATH, folder);
    const CString path = CString(folder) + L"robustness.bmp";
    ExpectNoGrowth("bitmaps saved", Repetitions(2000, 30),
                   [&](int i) { rig.Bar(i % 8).SaveAs(*rig.grid, path, 400, 22); });
    ::DeleteFileW(path);
}

TEST(Leaks, ExportingAndCopying) {
    GridRig rig;
    wchar_t folder[MAX_PATH] = L"";
    ::GetTempPathW(MAX_PATH, folder);
    const CString prefix = CString(folder) + L"robustness";
    ExpectNoGrowth("exports and copies", Repetitions(500, 10), [&](int) {
        KyReportControlHelpers::SaveAsHtml(*rig.grid, prefix);
        KyReportControlHelpers::CopyToClipboard(*rig.grid, prefix);
    });
    RemovePictures(prefix.GetString());
}

TEST(Leaks, LifetimesOfAGrid) {
    GridRig rig;
    rig.Destroy();
    ExpectNoGrowth("lifetimes of a grid", Repetitions(1000, 15), [&rig](int) {
        rig.Create();
        rig.grid->AutoLoadReportState(L"Lifetimes");
        rig.Mouse(WM_LBUTTONDOWN, rig.HeaderOf(1));
        rig.Mouse(WM_LBUTTONUP, rig.HeaderOf(1));
        rig.Paint();
        rig.Destroy();
    });
}

TEST(Leaks, EditorsOpenedAndClosed) {
    GridRig rig;
    rig.grid->AllowEdit(TRUE);
    ExpectNoGrowth("editors opened and closed", Repetitions(2000, 40), [&rig](int i) {
        XTP_REPORTRECORDITEM_ARGS args;
        args.pRow = rig.grid->GetRows()->GetAt(i % 8);
        args.pColumn = rig.grid->GetColumns()->GetAt(i % 2);
        rig.grid->EditItem(&args);
        ASSERT_NE(rig.grid->GetActiveItem(), nullptr);
        if (i % 3 == 0)
            rig.grid->GetInplaceEdit()->ReplaceSel(L"12");
        if (i % 4 == 0)
            rig.grid->GetInplaceEdit()->EndEdit(FALSE);
        rig.grid->EditItem(nullptr);
    });
}

TEST(Leaks, LifetimesOfTheProgramsMainWindow) {
    const GridRig rig; // the thread's input window lives as long as there is another one
    const std::wstring file = std::wstring(L"" PROFILER_DATA_DIR) + L"/penguins.csv";
    ExpectNoGrowth("lifetimes of the program's main window", Repetitions(1000, 10), [&file](int) {
        auto* const frame = new ProfilerFrame; // deleted with its window
        RobustnessApp::Get().m_pMainWnd = frame;
        ASSERT_TRUE(frame->CreateFrame());
        frame->ShowWindow(SW_SHOWNORMAL);
        frame->OpenPath(file.c_str());
        frame->UpdateWindow();
        frame->SendMessage(WM_CLOSE);
        RobustnessApp::Get().m_pMainWnd = nullptr;
    });
}

TEST(Leaks, EveryThemeAfterEveryOther) {
    GridRig rig;
    const auto change = [&rig](int theme) {
        rig.grid->OnThemeChanged(static_cast<WPARAM>(theme), 0);
        rig.Paint();
    };
    ExpectNoGrowth("changes between two themes, of 144", Repetitions(10, 1), [&](int) {
        for (int from = 0; from < 12; ++from) {
            for (int to = 0; to < 12; ++to) {
                change(from);
                change(to);
            }
        }
        change(11);
    });
}

} // namespace
