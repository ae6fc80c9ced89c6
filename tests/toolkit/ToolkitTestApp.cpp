// The application object of the toolkit's tests, the entry point of the program, and what many tests need.
#include "ToolkitTestApp.h"

namespace {

CWinApp theApp(_T("ToolkitTest"));

} // namespace

std::vector<std::wstring> RowTexts(const CXTPReportControl& control, int itemIndex) {
    std::vector<std::wstring> texts;
    const CXTPReportRows* const rows = control.GetRows();
    for (int i = 0; i < rows->GetCount(); ++i) {
        CXTPReportRecordItem* const item = rows->GetAt(i)->GetRecord()->GetItem(itemIndex);
        texts.push_back(item ? item->GetCaption(nullptr).GetString() : L"(none)");
    }
    return texts;
}

CXTPReportRecord* AddTexts(CXTPReportControl& control, std::initializer_list<const wchar_t*> texts) {
    auto* const record = new CXTPReportRecord;
    for (const wchar_t* text : texts)
        record->AddItem(new CXTPReportRecordItemText(text));
    return control.AddRecord(record);
}

CXTPReportRecord* AddNumbers(CXTPReportControl& control, std::initializer_list<double> numbers) {
    auto* const record = new CXTPReportRecord;
    for (const double number : numbers)
        record->AddItem(new CXTPReportRecordItemNumber(number, _T("%g")));
    return control.AddRecord(record);
}

std::vector<int> SelectedIndices(const CXTPReportControl& control) {
    std::vector<int> indices;
    const CXTPReportSelectedRows* const selected = control.GetSelectedRows();
    for (int i = 0; i < selected->GetCount(); ++i)
        indices.push_back(selected->GetAt(i)->GetIndex());
    return indices;
}

ReportModelTest::ReportModelTest()
    : m_columnA(new CXTPReportColumn(0, _T("A"), 100)), m_columnB(new CXTPReportColumn(1, _T("B"), 80)) {
    m_control.AddColumn(m_columnA);
    m_control.AddColumn(m_columnB);
}

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    return RUN_ALL_TESTS();
}
