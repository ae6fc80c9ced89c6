// Windows that show a million records of three items each: a name and two numbers.
#include "RecordContenders.h"

#include "BenchPicture.h"

#include <XTToolkitPro.h>

#include <commctrl.h>

#include <algorithm>
#include <cwchar>
#include <numeric>
#include <random>
#include <string>

namespace {

using benchpicture::RowHeight;
using benchpicture::ViewHeight;
using benchpicture::ViewWidth;

constexpr int ItemCount = 3;
constexpr const wchar_t* Captions[ItemCount] = {L"Name", L"Number", L"Group"};
constexpr int ColumnWidth = 200;

void Show(CWnd& window) {
    window.UpdateWindow();
    ::GdiFlush();
}

// --- The grid --------------------------------------------------------------------------------------------------------

class RecordGridWindow : public RecordGrid {
public:
    RecordGridWindow() {
        const CRect rc(0, 0, ViewWidth, ViewHeight);
        m_owner.CreateEx(0, AfxRegisterWndClass(0), _T("records"), WS_POPUP | WS_VISIBLE, rc, nullptr, 0);
        m_grid.Create(WS_CHILD | WS_VISIBLE, rc, &m_owner, 1);
        for (int i = 0; i < ItemCount; ++i)
            m_grid.AddColumn(new CXTPReportColumn(i, Captions[i], ColumnWidth, FALSE));
    }
    ~RecordGridWindow() override {
        m_grid.DestroyWindow();
        m_owner.DestroyWindow();
    }

    CXTPReportControl& Grid() override { return m_grid; }
    void Fill() override {
        for (int i = 0; i < benchrecords::Count; ++i) {
            auto* const record = new CXTPReportRecord;
            record->AddItem(new CXTPReportRecordItemText(benchrecords::NameOf(i)));
            record->AddItem(new CXTPReportRecordItemNumber(benchrecords::NumberOf(i), _T("%.1f")));
            record->AddItem(new CXTPReportRecordItemNumber(benchrecords::GroupOf(i), _T("%g")));
            m_grid.AddRecord(record);
        }
        m_grid.Populate();
        Show(m_grid);
    }
    void Sort(Key key) override {
        CXTPReportColumns* const columns = m_grid.GetColumns();
        if (key == Key::None)
            columns->ResetSortOrder();
        else
            columns->SetSortColumn(columns->GetAt(key == Key::Number ? 1 : 0), TRUE);
        m_grid.Populate();
        Show(m_grid);
    }
    void Clear() override { m_grid.ResetContent(); }

private:
    CWnd m_owner;
    CXTPReportControl m_grid;
};

// --- Records in a vector ---------------------------------------------------------------------------------------------

/// What the host of a virtual list keeps.
class HostRecords {
public:
    void Fill() {
        for (int i = 0; i < benchrecords::Count; ++i)
            m_records.push_back(
                {benchrecords::NameOf(i).GetString(), benchrecords::NumberOf(i), benchrecords::GroupOf(i)});
        m_order.resize(m_records.size());
        std::iota(m_order.begin(), m_order.end(), 0U);
    }
    void Sort(RecordContender::Key key) {
        switch (key) {
        case RecordContender::Key::None:
            std::iota(m_order.begin(), m_order.end(), 0U);
            break;
        case RecordContender::Key::Number:
            std::sort(m_order.begin(), m_order.end(),
                      [this](auto a, auto b) { return m_records[a].number < m_records[b].number; });
            break;
        case RecordContender::Key::Text:
            std::sort(m_order.begin(), m_order.end(), [this](auto a, auto b) {
                return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, m_records[a].name.c_str(), -1,
                                        m_records[b].name.c_str(), -1) == CSTR_LESS_THAN;
            });
            break;
        }
    }
    void Clear() {
        m_records = {};
        m_order = {};
    }
    /// Without what the heap adds to each block.
    double Bytes() const {
        double bytes =
            static_cast<double>(m_records.capacity() * sizeof(Record) + m_order.capacity() * sizeof(m_order[0]));
        const std::size_t small = std::wstring().capacity(); // a text of this length needs no block of its own
        for (const Record& record : m_records)
            bytes += record.name.capacity() > small
                         ? static_cast<double>((record.name.capacity() + 1) * sizeof(wchar_t))
                         : 0;
        return bytes;
    }

    int Count() const { return static_cast<int>(m_records.size()); }
    std::wstring Text(int row, int item) const {
        const Record& record = m_records[m_order[row]];
        if (item == 0)
            return record.name;
        wchar_t text[32];
        const int length =
            std::swprintf(text, std::size(text), item == 1 ? L"%.1f" : L"%g", item == 1 ? record.number : record.group);
        return std::wstring(text, length);
    }

private:
    struct Record {
        std::wstring name;
        double number;
        double group;
    };
    std::vector<Record> m_records;
    std::vector<std::uint32_t> m_order;
};

// --- The list view ---------------------------------------------------------------------------------------------------

class RecordListView : public RecordContender {
public:
    RecordListView() : m_owner(m_records) {
        INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_LISTVIEW_CLASSES};
        ::InitCommonControlsEx(&classes);
        m_owner.CreateEx(0, AfxRegisterWndClass(0), _T("list of records"), WS_POPUP | WS_VISIBLE,
                         CRect(0, 0, ViewWidth, ViewHeight), nullptr, 0);
        m_list.Attach(::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0, 0,
                                        ViewWidth, ViewHeight, m_owner.m_hWnd, nullptr, ::GetModuleHandle(nullptr),
                                        nullptr));
        m_list.SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_DOUBLEBUFFER, LVS_EX_DOUBLEBUFFER);
        for (int i = 0; i < ItemCount; ++i) {
            LVCOLUMNW column = {};
            column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
            column.cx = ColumnWidth;
            column.pszText = const_cast<wchar_t*>(Captions[i]);
            column.iSubItem = i;
            m_list.SendMessage(LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
        }
    }
    ~RecordListView() override {
        m_list.Detach();
        m_owner.DestroyWindow();
    }

    void Fill() override {
        m_records.Fill();
        m_list.SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(m_records.Count()));
        Show(m_list);
    }
    void Sort(Key key) override {
        m_records.Sort(key);
        m_list.Invalidate(FALSE);
        Show(m_list);
    }
    void Clear() override {
        m_list.SendMessage(LVM_SETITEMCOUNT, 0);
        m_records.Clear();
    }
    double HostBytes() const override { return m_records.Bytes(); }

private:
    /// The window above the list view, which answers its questions.
    class Owner : public CWnd {
    public:
        explicit Owner(const HostRecords& records) : m_records(records) {}

    protected:
        BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT*) override {
            if (reinterpret_cast<const NMHDR*>(lParam)->code != LVN_GETDISPINFOW)
                return FALSE;
            LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(lParam)->item;
            if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0 && item.iItem < m_records.Count())
                ::lstrcpynW(item.pszText, m_records.Text(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
            return TRUE;
        }

    private:
        const HostRecords& m_records;
    };

    HostRecords m_records;
    Owner m_owner;
    CWnd m_list;
};

// --- A bare loop -----------------------------------------------------------------------------------------------------

class BareRecords : public RecordContender {
public:
    BareRecords() : m_window(m_records) {
        m_window.CreateEx(0, AfxRegisterWndClass(0), _T("bare records"), WS_POPUP | WS_VISIBLE,
                          CRect(0, 0, ViewWidth, ViewHeight), nullptr, 0);
    }
    ~BareRecords() override { m_window.DestroyWindow(); }

    void Fill() override {
        m_records.Fill();
        m_window.Invalidate(FALSE);
        Show(m_window);
    }
    void Sort(Key key) override {
        m_records.Sort(key);
        m_window.Invalidate(FALSE);
        Show(m_window);
    }
    void Clear() override { m_records.Clear(); }
    double HostBytes() const override { return m_records.Bytes(); }

private:
    class Window : public CWnd {
    public:
        explicit Window(const HostRecords& records) : m_records(records) {}

    protected:
        void OnPaint() {
            CPaintDC dc(this);
            dc.FillSolidRect(0, 0, ViewWidth, ViewHeight, RGB(255, 255, 255));
            for (int row = 0; row < std::min(ViewHeight / RowHeight, m_records.Count()); ++row) {
                for (int item = 0; item < ItemCount; ++item) {
                    const std::wstring text = m_records.Text(row, item);
                    ::ExtTextOutW(dc, item * ColumnWidth, row * RowHeight, 0, nullptr, text.c_str(),
                                  static_cast<UINT>(text.size()), nullptr);
                }
            }
        }
        DECLARE_MESSAGE_MAP()

    private:
        const HostRecords& m_records;
    };

    HostRecords m_records;
    Window m_window;
};

BEGIN_MESSAGE_MAP(BareRecords::Window, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

} // namespace

namespace benchrecords {

const std::vector<std::uint32_t>& Mixed() {
    static const std::vector<std::uint32_t> mixed = [] {
        std::vector<std::uint32_t> numbers(Count);
        std::iota(numbers.begin(), numbers.end(), 0U);
        std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
        return numbers;
    }();
    return mixed;
}

CString NameOf(int record) {
    CString name;
    name.Format(_T("Row %06u"), Mixed()[record]);
    return name;
}

double NumberOf(int record) { return Mixed()[record] * 0.5; }

double GroupOf(int record) { return record % 1000; }

} // namespace benchrecords

std::unique_ptr<RecordGrid> MakeRecordGrid() { return std::make_unique<RecordGridWindow>(); }

std::unique_ptr<RecordContender> MakeRecordListView() { return std::make_unique<RecordListView>(); }

std::unique_ptr<RecordContender> MakeBareRecords() { return std::make_unique<BareRecords>(); }
