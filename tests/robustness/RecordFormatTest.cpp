// Copied records with errors in them: what pastes them takes what is left of them, or nothing, and goes on.
#include "Rig.h"

#include "../support/ClipboardContent.h"

#include <chrono>
#include <iostream>
#include <random>

namespace {

UINT RecordFormat() { return ::RegisterClipboardFormat(_T("XTP Report Records")); }

/// What `Copy` puts on the clipboard in its own format.
CString Written(CXTPReportRecords& records) {
    CXTPPropExchangeXMLNode exchange(FALSE, nullptr, _T("Records"));
    if (!exchange.OnBeforeExchange())
        return CString();
    records.DoPropExchange(&exchange);
    return exchange.GetXML();
}

/// What `Paste` does with that text. False when it is no text of records.
bool Read(const CString& text, CXTPReportRecords& records) {
    CXTPPropExchangeXMLNode exchange(TRUE, nullptr, _T("Records"));
    if (!exchange.LoadFromString(text) || !exchange.OnBeforeExchange())
        return false;
    records.DoPropExchange(&exchange);
    return true;
}

int CountAll(CXTPReportRecords& records) {
    int count = 0;
    for (int i = 0; i < records.GetCount(); ++i)
        count += 1 + (records.GetAt(i)->HasChildren() ? CountAll(*records.GetAt(i)->GetChilds()) : 0);
    return count;
}

class Mutator {
public:
    explicit Mutator(unsigned seed) : m_random(seed) {}

    std::wstring operator()(std::wstring text, const std::wstring& other) {
        for (std::size_t changes = Pick(3) + 1; changes > 0; --changes) {
            switch (Pick(8)) {
            case 0: // a character
                text[Pick(text.size())] = static_cast<wchar_t>(Pick(2) ? Pick(128) : Pick(0x10000));
                break;
            case 1:
                text.erase(Pick(text.size()), Pick(20));
                break;
            case 2:
                Put(text, Words[Pick(std::size(Words))]);
                break;
            case 3: // something of the other one
                Put(text, other.substr(Pick(other.size()), Pick(200)));
                break;
            case 4: // another value
            case 5:
                Replace(text, L'"', L'"', Words[Pick(std::size(Words))]);
                break;
            case 6: // an element within itself, or beside
                Put(text, text.substr(Pick(text.size()), Pick(400)));
                break;
            default:
                Nest(text);
            }
            if (text.empty() || text.size() > 20'000)
                text = other;
        }
        return text;
    }
    std::size_t Pick(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }

private:
    static constexpr const wchar_t* Words[] = {L"CObject",
                                               L"CCmdTarget",
                                               L"CWnd",
                                               L"CWinApp",
                                               L"CXTPReportControl",
                                               L"CXTPReportRecords",
                                               L"CXTPReportRecord",
                                               L"CXTPReportRecordItem",
                                               L"CXTPReportRecordItemText",
                                               L"CXTPReportRecordItemNumber",
                                               L"CXTPReportRecordItemPreview",
                                               L"CXTPReportColumn",
                                               L"KyPlotRecordItem",
                                               L"KyBarChartRecordItem",
                                               L"KyHistogramRecordItem",
                                               L"KyDragLineRecordItem",
                                               L"KyDragLineMinMaxRecordItem",
                                               L"KyReportRecordItemFloat",
                                               L"KyPlotRecordReportControl",
                                               L"<Record/>",
                                               L"<Record ClassName=\"CXTPReportRecord\"><Item Text=\"t\"/></Record>",
                                               L"<Item ClassName=\"KyPlotRecordItem\"/>",
                                               L"<Preview/>",
                                               L"<Preview ClassName=\"CWnd\" Text=\"a&#10;b\"/>",
                                               L" Visible=\"0\"",
                                               L" Expanded=\"1\"",
                                               L" Alignment=\"2147483648\"",
                                               L"<!-- -->",
                                               L"<![CDATA[",
                                               L"<?xml?>",
                                               L"&#0;",
                                               L"&#x10FFFF;",
                                               L"&amp;",
                                               L"\xD800",
                                               L"-1",
                                               L"2147483647",
                                               L"4294967295",
                                               L"99999999999999999999",
                                               L"1e308",
                                               L"1e-400",
                                               L"nan",
                                               L"-inf",
                                               L"0x1p4",
                                               L"%s%s%s%n",
                                               L"%999999999d",
                                               L"%*.*f",
                                               L"",
                                               L"<",
                                               L">",
                                               L"\"",
                                               L"/>"};

    void Put(std::wstring& text, const std::wstring& word) { text.insert(Pick(text.size() + 1), word); }
    void Replace(std::wstring& text, wchar_t open, wchar_t close, const wchar_t* word) {
        const std::size_t begin = text.find(open, Pick(text.size()));
        const std::size_t end = begin == text.npos ? begin : text.find(close, begin + 1);
        if (end != text.npos)
            text.replace(begin + 1, end - begin - 1, word);
    }
    /// Records below records, more of them than anybody has.
    void Nest(std::wstring& text) {
        const std::size_t levels = Pick(20) == 0 ? 400 + Pick(200) : Pick(10);
        const std::size_t at = text.find(L"<Record ");
        if (at == text.npos)
            return;
        std::wstring open, close;
        for (std::size_t i = 0; i < levels; ++i) {
            open += L"<Record>";
            close += L"</Record>";
        }
        text.insert(at, Pick(2) ? open + close : open);
    }

    std::mt19937 m_random;
};

TEST(RecordFormat, MutatedRecordsAreReadAsFarAsTheyAreOnes) {
    GridRig rig;
    CXTPReportRecords& source = *rig.grid->GetRecords();
    source.GetAt(1)->SetPreviewItem(new CXTPReportRecordItemPreview(_T("below\nthe cells")));
    source.GetAt(2)->GetItem(0)->SetTooltip(_T("a tip"));
    source.GetAt(2)->GetItem(1)->SetAlignment(DT_CENTER);
    auto* const child = source.GetAt(3)->GetChilds()->Add(new CXTPReportRecord);
    child->AddItem(new CXTPReportRecordItemText(_T("child")));
    child->GetChilds()->Add(new CXTPReportRecord)->SetVisible(FALSE);
    CXTPReportRecords few(nullptr);
    few.Add(new CXTPReportRecord)->AddItem(new CXTPReportRecordItemNumber(1.5, _T("%.3f")));
    std::vector<std::wstring> texts;
    for (CXTPReportRecords* const records : {&source, &few, source.GetAt(3)->GetChilds()})
        texts.emplace_back(Written(*records).GetString());

    Mutator mutate(20261121);
    const int count = Repetitions(1'000'000, 1500);
    int read = 0, most = 0;
    const auto began = std::chrono::steady_clock::now();
    const Counts before;
    for (int i = 0; i < count; ++i) {
        const std::wstring text = mutate(texts[mutate.Pick(4) == 0 ? 0 : 1 + mutate.Pick(2)], texts[mutate.Pick(3)]);
        CXTPReportRecords records(nullptr);
        if (!Read(text.c_str(), records))
            continue;
        ++read;
        const int found = CountAll(records);
        most = std::max(most, found);
        ASSERT_LE(static_cast<std::size_t>(found) * 9, text.size()) << "an element has nine characters at least";
        if (i % 16 != 0)
            continue;
        // What was read is as good as what was ever written.
        const CString again = Written(records);
        CXTPReportRecords second(nullptr);
        ASSERT_TRUE(Read(again, second)) << "text " << i;
        ASSERT_EQ(Written(second), again) << "text " << i;
    }
    // The formats of numbers and texts are kept for a while, for others to share.
    EXPECT_LT(Counts().Of("heap block") - before.Of("heap block"), 2000);
    EXPECT_LT(Counts().Of("heap byte") - before.Of("heap byte"), 200'000);
    EXPECT_EQ(Counts().Of("record"), before.Of("record"));
    EXPECT_EQ(Counts().Of("record item"), before.Of("record item"));
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    std::cout << "[ mutated  ] records: " << count << ", " << read << " read, at most " << most << " at once, "
              << seconds << " s" << std::endl;
    EXPECT_GT(read, count / 20);
    EXPECT_LT(read, count * 19 / 20);
}

/// A control that allows pasting.
class PastingGrid : public CXTPReportControl {
public:
    BOOL CanPaste() override { return TRUE; }
    BOOL CanCut() override { return TRUE; }
};

TEST(RecordFormat, PastingMutatedRecordsLeavesAGridThatCanBeUsed) {
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 400, 300), nullptr, 0);
    PastingGrid grid;
    grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 300), &owner, 1);
    grid.EnablePreviewMode(TRUE);
    for (int i = 0; i < 3; ++i)
        grid.AddColumn(new CXTPReportColumn(i, L"column", 80));
    grid.GetColumns()->GetAt(0)->SetTreeColumn(TRUE);
    GridRig rig;
    const std::wstring text(Written(*rig.grid->GetRecords()).GetString());
    Mutator mutate(7);
    for (int i = 0; i < Repetitions(5000, 60); ++i) {
        const std::wstring pasted = mutate(text, text);
        ClipboardContent::Put(RecordFormat(), std::string(reinterpret_cast<const char*>(pasted.c_str()),
                                                          (pasted.size() + 1) * sizeof(wchar_t)));
        if (mutate.Pick(4) == 0)
            grid.GetColumns()->SetSortColumn(grid.GetColumns()->GetAt(static_cast<int>(mutate.Pick(3))), TRUE);
        grid.Paste();
        grid.ExpandAll();
        grid.UpdateWindow();
        ASSERT_LE(grid.GetSelectedRows()->GetCount(), grid.GetRows()->GetCount());
        if (grid.GetRecords()->GetCount() > 200)
            grid.ResetContent();
    }
    grid.DestroyWindow();
    owner.DestroyWindow();
}

} // namespace
