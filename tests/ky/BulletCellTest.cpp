// The plot cell of the documentation: its picture pixel by pixel, its drag, its order, its tool tip.
#include "PixelImage.h"
#include "PlotCellProbes.h"

#include "../../docs/examples/BulletCell.h"

#include <cstdlib>
#include <memory>

namespace {

constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Poor = RGB(176, 182, 190);
constexpr COLORREF Fair = RGB(204, 209, 215);
constexpr COLORREF Good = RGB(230, 233, 237);
constexpr COLORREF Measure = RGB(38, 84, 140);
constexpr COLORREF Target = RGB(200, 30, 40);

PixelImage Picture(BulletCell& cell, CXTPReportControl& grid) {
    const std::unique_ptr<void, decltype(&::GlobalFree)> block(cell.CreateDIB(grid, 200, 22), &::GlobalFree);
    if (!block)
        return PixelImage(0, 0, 0);
    const PixelImage image = PixelImage::FromPackedDib(::GlobalLock(block.get()));
    ::GlobalUnlock(block.get());
    return image;
}

/// The picture without its target. The plot is 198 x 20 pixels from (1, 1) on; value v of 0…300 stands at
/// 1 + floor(198 * (v / 300 * 0.96 + 0.02)): 0 at 4, 150 at 100, 225 at 147, 270 at 176, 300 at 195.
PixelImage ExpectedPictureWithoutTarget() {
    PixelImage image(200, 22, White);
    image.Fill(4, 3, 100, 18, Poor).Fill(100, 3, 147, 18, Fair).Fill(147, 3, 195, 18, Good);
    return image.Fill(4, 8, 176, 13, Measure);
}

TEST(BulletCell, DrawsBandsMeasureAndTarget) {
    PlotGridHost host;
    BulletCell* const cell = host.AddRow(new BulletCell(270, 250, 150, 225, 300));
    // The target, 250, stands at 1 + floor(198 * 0.82) = 163 and is three pixels wide.
    const PixelImage expected = ExpectedPictureWithoutTarget().Fill(162, 3, 165, 18, Target);
    const PixelImage actual = Picture(*cell, host.grid);
    EXPECT_TRUE(actual == expected) << PixelImage::Difference(actual, expected);
}

TEST(BulletCell, DrawsNoTargetWhenThereIsNone) {
    PlotGridHost host;
    BulletCell* const cell = host.AddRow(new BulletCell(270, KyMissingValue, 150, 225, 300));
    const PixelImage actual = Picture(*cell, host.grid);
    EXPECT_TRUE(actual == ExpectedPictureWithoutTarget())
        << PixelImage::Difference(actual, ExpectedPictureWithoutTarget());
}

TEST(BulletCell, TheMouseDragsTheTarget) {
    PlotGridHost host;
    BulletCell* const cell = host.AddRow(new BulletCell(40, 50, 30, 60, 100));
    const Reports reports(*cell);
    host.Show();
    const CRect plot = cell->GetItemRect();
    const auto place = [&plot](double value) {
        return MAKELPARAM(plot.left + static_cast<int>(plot.Width() * (value / 100 * 0.96 + 0.02)),
                          plot.CenterPoint().y);
    };
    host.grid.SendMessage(WM_MOUSEMOVE, 0, place(50));
    host.grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place(50));
    host.grid.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, place(80));
    EXPECT_TRUE(cell->IsCenterDragging());
    host.grid.SendMessage(WM_LBUTTONUP, 0, place(80));

    const double pixel = 100 / (plot.Width() * 0.96);
    EXPECT_NEAR(cell->GetTarget(), 80, pixel);
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_EQ(reports.all[0][0], -99.0f);
    EXPECT_NEAR(reports.all[0][1], 80, pixel);
    EXPECT_EQ(reports.all[0][2], -99.0f);
}

TEST(BulletCell, RowsSortByTheMeasure) {
    PlotGridHost host;
    const CXTPReportRecord* const large = host.AddRow(new BulletCell(9, 1, 3, 6, 10))->GetRecord();
    const CXTPReportRecord* const small = host.AddRow(new BulletCell(2, 8, 3, 6, 10))->GetRecord();
    host.grid.GetColumns()->SetSortColumn(host.grid.GetColumns()->GetAt(1), TRUE);
    host.grid.Populate();
    EXPECT_EQ(host.grid.GetRows()->GetAt(0)->GetRecord(), small);
    EXPECT_EQ(host.grid.GetRows()->GetAt(1)->GetRecord(), large);
}

TEST(BulletCell, TheGridShowsItsToolTip) {
    PlotGridHost host;
    host.AddRow(new BulletCell(4.7, 4.5, 3.5, 4.2, 5));
    host.Show();
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    EXPECT_NE(host.grid.OnToolHitTest(host.CellRect(0).CenterPoint(), &tool), -1);
    const CString text(tool.lpszText);
    std::free(tool.lpszText);
    EXPECT_EQ(text, _T("4.7 of 5, target 4.5"));
}

} // namespace
