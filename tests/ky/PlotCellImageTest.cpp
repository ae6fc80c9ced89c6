// Plot cells as bitmaps and .bmp files.
#include "PixelImage.h"
#include "PlotCellProbes.h"

#include "../../framework/core/HandleCounts.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

/// Frees the packed bitmap that `CreateDIB` gave.
class PackedDib {
public:
    explicit PackedDib(void* block) : m_block(block), m_data(block ? ::GlobalLock(block) : nullptr) {}
    ~PackedDib() {
        if (m_block != nullptr) {
            ::GlobalUnlock(m_block);
            ::GlobalFree(m_block);
        }
    }
    PackedDib(const PackedDib&) = delete;
    PackedDib& operator=(const PackedDib&) = delete;

    explicit operator bool() const { return m_block != nullptr; }
    SIZE_T Size() const { return ::GlobalSize(m_block); }
    const BITMAPINFOHEADER& Header() const { return *static_cast<const BITMAPINFOHEADER*>(m_data); }
    PixelImage Image() const { return PixelImage::FromPackedDib(m_data); }

private:
    HGLOBAL m_block;
    void* m_data;
};

std::vector<std::uint8_t> ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::uint32_t Number(const std::vector<std::uint8_t>& bytes, std::size_t offset, int size) {
    std::uint32_t number = 0;
    for (int i = size - 1; i >= 0; --i)
        number = number << 8 | bytes.at(offset + i);
    return number;
}

/// Where the tests leave pictures for other programs to read.
fs::path OutputFolder() {
    const wchar_t* const folder = ::_wgetenv(L"KY_TEST_OUTPUT");
    const fs::path path = folder != nullptr ? fs::path(folder) : fs::temp_directory_path() / L"ky_tests";
    fs::create_directories(path);
    return path;
}

int ScreenDepth() {
    CClientDC screen(nullptr);
    return screen.GetDeviceCaps(BITSPIXEL) * screen.GetDeviceCaps(PLANES);
}

class PlotCellImageTest : public ::testing::Test {
protected:
    void SetUp() override { bar.SetError(5, 0, 10, 3, 7, -99, -99, -99, -99); }

    PlotGridHost host;
    KyBarChartRecordItem bar;
};

} // namespace

TEST_F(PlotCellImageTest, ThePackedBitmapHasAPlainHeaderAtTheScreensDepth) {
    const PackedDib dib(bar.CreateDIB(host.grid, 400, 22));
    ASSERT_TRUE(dib);
    const BITMAPINFOHEADER& header = dib.Header();
    EXPECT_EQ(header.biSize, 40u);
    EXPECT_EQ(header.biWidth, 400);
    EXPECT_EQ(header.biHeight, 22);
    EXPECT_EQ(header.biPlanes, 1u);
    EXPECT_EQ(header.biBitCount, ScreenDepth());
    EXPECT_EQ(header.biCompression, static_cast<DWORD>(BI_RGB));
    EXPECT_EQ(header.biSizeImage, 400u * 22 * ScreenDepth() / 8);
    EXPECT_EQ(header.biXPelsPerMeter, 0);
    EXPECT_EQ(header.biYPelsPerMeter, 0);
    EXPECT_EQ(header.biClrUsed, 0u);
    EXPECT_EQ(header.biClrImportant, 0u);
    EXPECT_GE(dib.Size(), 40 + header.biSizeImage);
}

TEST_F(PlotCellImageTest, TheCellIsDrawnWithoutRowColumnAndMetrics) {
    ProbeCell cell;
    cell.SetBackgroundColor(RGB(10, 20, 30));
    const PackedDib dib(cell.CreateDIB(host.grid, 60, 12));
    ASSERT_TRUE(dib);
    EXPECT_EQ(cell.drawings, 1);
    EXPECT_EQ(cell.lastArgs.pControl, &host.grid);
    EXPECT_EQ(cell.lastArgs.pRow, nullptr);
    EXPECT_EQ(cell.lastArgs.pColumn, nullptr);
    EXPECT_EQ(cell.lastArgs.pItem, &cell);
    EXPECT_EQ(cell.lastArgs.rcItem, CRect(0, 0, 60, 12));
    EXPECT_EQ(cell.GetItemRect(), CRect(1, 1, 59, 11));
    const PixelImage expected(60, 12, RGB(10, 20, 30));
    EXPECT_EQ(PixelImage::Difference(dib.Image(), expected), "");
}

TEST_F(PlotCellImageTest, AControlWithoutAWindowStillGivesABitmap) {
    CXTPReportControl control;
    const PackedDib dib(bar.CreateDIB(control, 40, 10));
    ASSERT_TRUE(dib);
    EXPECT_EQ(dib.Header().biWidth, 40);
}

TEST_F(PlotCellImageTest, ThereIsNoBitmapWithoutASize) {
    EXPECT_EQ(bar.CreateDIB(host.grid, 0, 22), nullptr);
    EXPECT_EQ(bar.CreateDIB(host.grid, 400, 0), nullptr);
    EXPECT_EQ(bar.CreateDIB(host.grid, -400, 22), nullptr);
}

TEST_F(PlotCellImageTest, ABitmapTooLargeForTheSystemIsNone) {
    EXPECT_EQ(bar.CreateDIB(host.grid, 0x7FFFFFFF, 0x7FFFFFFF), nullptr);
}

TEST_F(PlotCellImageTest, TheFileIsTheFileHeaderAndThePackedBitmap) {
    const fs::path path = OutputFolder() / L"bar.BMP";
    ASSERT_TRUE(bar.SaveAs(host.grid, path.c_str(), 400, 22));
    const auto bytes = ReadFile(path);
    ASSERT_GT(bytes.size(), 54u);
    EXPECT_EQ(bytes[0], 'B');
    EXPECT_EQ(bytes[1], 'M');
    EXPECT_EQ(Number(bytes, 2, 4), bytes.size());
    EXPECT_EQ(Number(bytes, 6, 4), 0u);
    EXPECT_EQ(Number(bytes, 10, 4), 54u);
    EXPECT_EQ(Number(bytes, 14, 4), 40u);

    const PackedDib dib(bar.CreateDIB(host.grid, 400, 22));
    ASSERT_TRUE(dib);
    EXPECT_EQ(bytes.size(), dib.Size() + 14);
    EXPECT_EQ(std::memcmp(bytes.data() + 14, &dib.Header(), 40 + dib.Header().biSizeImage), 0);

    // Painted here as the picture is expected; another program compares the two files.
    PixelImage expected(400, 22, RGB(255, 255, 255));
    expected.Fill(144, 1, 255, 21, RGB(89, 114, 207));
    expected.Fill(59, 1, 61, 21, RGB(255, 0, 0)).Fill(338, 1, 340, 21, RGB(255, 0, 0));
    expected.Fill(199, 1, 201, 21, RGB(255, 215, 0));
    EXPECT_EQ(PixelImage::Difference(PixelImage::FromPackedDib(bytes.data() + 14), expected), "");
    std::ofstream(OutputFolder() / L"bar.ppm", std::ios::binary) << expected.ToPpm();
}

TEST_F(PlotCellImageTest, AnOldFileIsOverwrittenWhole) {
    const fs::path path = OutputFolder() / L"again.bmp";
    ASSERT_TRUE(bar.SaveAs(host.grid, path.c_str(), 400, 22));
    const auto before = fs::file_size(path);
    ASSERT_TRUE(bar.SaveAs(host.grid, path.c_str(), 20, 5));
    EXPECT_LT(fs::file_size(path), before);
    EXPECT_EQ(Number(ReadFile(path), 2, 4), fs::file_size(path));
}

TEST_F(PlotCellImageTest, OnlyTheExtensionBmpIsAccepted) {
    for (const wchar_t* name : {L"plot.png", L"plot", L"plot.bmp.txt", L"bmp", L"plot.bm", L"plot.bmpx"}) {
        const fs::path path = OutputFolder() / name;
        EXPECT_FALSE(bar.SaveAs(host.grid, path.c_str(), 400, 22)) << path;
        EXPECT_FALSE(fs::exists(path)) << path;
    }
    EXPECT_FALSE(bar.SaveAs(host.grid, nullptr, 400, 22));
}

TEST_F(PlotCellImageTest, TheAnswerIsAboutTheExtensionEvenWhenThereIsNoFile) {
    const fs::path nowhere = OutputFolder() / L"no such folder" / L"plot.bmp";
    EXPECT_TRUE(bar.SaveAs(host.grid, nowhere.c_str(), 400, 22));
    EXPECT_FALSE(fs::exists(nowhere));
    const fs::path empty = OutputFolder() / L"empty.bmp";
    EXPECT_TRUE(bar.SaveAs(host.grid, empty.c_str(), 0, 0));
    EXPECT_FALSE(fs::exists(empty));
}

TEST_F(PlotCellImageTest, NoDrawingLeavesAHandleBehind) {
    bar.SetError(5, 0, 10, 3, 7, 2, 8, 1, 9);
    bar.SetDistribution(KyBarChartRecordItem::DistributionTarget, true);
    const long objects = handlecounts::Live(handlecounts::Kind::GdiObject);
    const long contexts = handlecounts::Live(handlecounts::Kind::DeviceContext);
    for (int i = 0; i < 100; ++i) {
        const PackedDib dib(bar.CreateDIB(host.grid, 60, 22));
        ASSERT_TRUE(dib) << "image " << i;
    }
    const fs::path path = OutputFolder() / L"leak.bmp";
    ASSERT_TRUE(bar.SaveAs(host.grid, path.c_str(), 60, 22));
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::GdiObject), objects);
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::DeviceContext), contexts);
}
