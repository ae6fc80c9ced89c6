// Copy, cut and paste in a report control.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRecordItemText.h"
#include "CellText.h"
#include "StoredClass.h"
#include "TabText.h"

#include "../common/CXTPPropExchangeXMLNode.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace {

/// More records would take more memory than anybody who pastes them has.
constexpr std::size_t MostRecords = 50'000;
constexpr LPCTSTR RecordSection = _T("Records");

/// The toolkit's own format: an XML document as UTF-16, with a NUL.
UINT RecordFormat() {
    static UINT format = 0;
    if (format == 0)
        format = ::RegisterClipboardFormat(_T("XTP Report Records"));
    return format;
}

/// Has the clipboard open as long as it lives. Programs that listen to the clipboard open it for moments whenever it
/// changes, so that it is worth while to ask again.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) {
        constexpr int tries = 6;
        constexpr DWORD pause = 20; // ms
        for (int i = 0; i < tries && !m_isOpen; ++i) {
            if (i > 0)
                ::Sleep(pause);
            m_isOpen = ::OpenClipboard(owner) != FALSE;
        }
    }
    ~OpenedClipboard() {
        if (m_isOpen)
            ::CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    bool IsOpen() const { return m_isOpen; }

private:
    bool m_isOpen = false;
};

/// Global memory, until the clipboard takes it.
class GlobalText {
public:
    /// The text and a NUL; null when there is no memory.
    explicit GlobalText(std::wstring_view text)
        : m_block(::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t))) {
        auto* const data = m_block ? static_cast<wchar_t*>(::GlobalLock(m_block)) : nullptr;
        if (!data) {
            Free();
            return;
        }
        *std::copy(text.begin(), text.end(), data) = L'\0';
        ::GlobalUnlock(m_block);
    }
    ~GlobalText() { Free(); }
    GlobalText(const GlobalText&) = delete;
    GlobalText& operator=(const GlobalText&) = delete;
    bool IsNull() const { return m_block == nullptr; }

    void GiveToClipboard(UINT format) {
        if (m_block && ::SetClipboardData(format, m_block))
            m_block = nullptr; // the clipboard's from now on
    }

private:
    void Free() {
        if (m_block)
            ::GlobalFree(m_block);
        m_block = nullptr;
    }
    HGLOBAL m_block;
};

/// The text that the open clipboard holds in the format, up to its NUL; empty when there is none.
CString ClipboardText(UINT format) {
    const HANDLE block = ::GetClipboardData(format);
    const auto* const data = block ? static_cast<const wchar_t*>(::GlobalLock(block)) : nullptr;
    if (!data)
        return CString();
    const std::size_t room = ::GlobalSize(block) / sizeof(wchar_t);
    struct Unlocking {
        HANDLE block;
        ~Unlocking() { ::GlobalUnlock(block); }
    } const unlocking{block};
    return CString(data, static_cast<int>(std::find(data, data + room, L'\0') - data));
}

/// Takes the records out of a collection of none; who calls it owns them.
std::vector<CXTPReportRecord*> TakeAll(CXTPReportRecords& from) {
    std::vector<CXTPReportRecord*> taken = from.GetRecords();
    for (auto it = taken.rbegin(); it != taken.rend(); ++it) {
        (*it)->InternalAddRef();
        from.RemoveRecord(*it);
    }
    return taken;
}

/// False when the text is not that of records.
bool ReadRecords(const CString& strXML, CXTPReportRecords& records) {
    CXTPPropExchangeXMLNode exchange(TRUE, nullptr, RecordSection);
    if (strXML.IsEmpty() || !exchange.LoadFromString(strXML) || !exchange.OnBeforeExchange())
        return false;
    records.DoPropExchange(&exchange);
    return records.GetCount() > 0;
}

/// The cells of a line go to the items that the visible columns show.
void ReadLines(const CString& strText, const CXTPReportColumns& columns, CXTPReportRecords& records) {
    const std::wstring_view text(strText.GetString(), static_cast<std::size_t>(strText.GetLength()));
    for (const tabtext::Row& line : tabtext::Parse(text)) {
        std::vector<CString> texts;
        for (std::size_t cell = 0; cell < line.size(); ++cell) {
            const CXTPReportColumn* const column = columns.GetVisibleAt(static_cast<int>(cell));
            if (!column || column->GetItemIndex() < 0)
                continue;
            const auto item = static_cast<std::size_t>(column->GetItemIndex());
            texts.resize(std::max(texts.size(), item + 1));
            texts[item] = line[cell].c_str();
        }
        CXTPReportRecord* const record = records.Add(new CXTPReportRecord);
        for (const CString& item : texts)
            record->AddItem(new CXTPReportRecordItemText(item));
    }
}

} // namespace

// --- Copy -----------------------------------------------------------------------------------------------------------

std::wstring CXTPReportControl::Impl::SelectedText() const {
    std::vector<CXTPReportColumn*> shown;
    for (int i = 0; CXTPReportColumn* const column = columns->GetVisibleAt(i); ++i)
        shown.push_back(column);
    const bool isVirtual = control.IsVirtualMode() != FALSE;
    std::wstring text;
    for (const RowSelection::Range& range : selectedRows->GetRanges().Ranges()) {
        for (int row = range.first; row <= range.last; ++row) {
            const CXTPReportRecord* const record = rows->GetRecordAt(row);
            if (!record)
                continue; // a group
            tabtext::RowWriter writer(text);
            for (CXTPReportColumn* const column : shown) {
                CXTPReportRecordItem* const item = record->GetItem(column);
                CString cell;
                if (item && isVirtual) // the item stands for all rows and answers for one in its metrics
                    cell = CellMetrics(control, rows->GetAt(row), column, item).strText;
                else if (item)
                    cell = item->GetCaption(column);
                writer.Add({cell.GetString(), static_cast<std::size_t>(cell.GetLength())});
            }
            writer.End();
        }
    }
    return text;
}

/// Those below another one that is selected go along with it, and are not listed.
std::vector<CXTPReportRecord*> CXTPReportControl::Impl::SelectedRecordList() const {
    std::vector<CXTPReportRecord*> selected;
    int branchEnd = 0;
    for (const RowSelection::Range& range : selectedRows->GetRanges().Ranges()) {
        for (int row = std::max(range.first, branchEnd); row <= range.last; ++row) {
            CXTPReportRecord* const record = rows->GetRecordAt(row);
            if (!record)
                continue; // a group
            selected.push_back(record);
            branchEnd = rows->GetBranchEnd(row);
            row = branchEnd - 1;
        }
    }
    return selected;
}

/// The records as a document; empty when they are no records of their own, or too many.
CString CXTPReportControl::Impl::SelectedRecords() const {
    if (control.IsVirtualMode() || selectedRows->GetCount() > static_cast<int>(MostRecords))
        return CString();
    CXTPPropExchangeXMLNode exchange(FALSE, nullptr, RecordSection);
    if (!exchange.OnBeforeExchange())
        return CString();
    const std::vector<CXTPReportRecord*> selected = SelectedRecordList();
    const CXTPPropExchangeEnumeratorPtr sections(exchange.GetEnumerator(_T("Record")));
    POSITION pos = sections->GetPosition(static_cast<DWORD>(selected.size()));
    for (CXTPReportRecord* const record : selected) {
        const CXTPPropExchangeSection section(sections->GetNext(pos));
        storedclass::Write(&section, *record);
        record->DoPropExchange(&section);
    }
    return exchange.GetXML();
}

void CXTPReportControl::Copy() {
    if (!m_hWnd || !m_impl->FinishEdit() || !CanCopy())
        return;
    // Everything is ready before the clipboard loses what it holds.
    GlobalText text(m_impl->SelectedText());
    const CString strRecords = m_impl->SelectedRecords();
    GlobalText records({strRecords.GetString(), static_cast<std::size_t>(strRecords.GetLength())});
    if (text.IsNull())
        return;
    const OpenedClipboard clipboard(m_hWnd);
    if (!clipboard.IsOpen() || !::EmptyClipboard())
        return;
    text.GiveToClipboard(CF_UNICODETEXT);
    if (!strRecords.IsEmpty())
        records.GiveToClipboard(RecordFormat());
}

// --- Cut and paste --------------------------------------------------------------------------------------------------

void CXTPReportControl::Cut() {
    if (!CanCut() || !CanCopy() || IsVirtualMode() || !m_impl->FinishEdit())
        return;
    const DWORD former = ::GetClipboardSequenceNumber();
    Copy();
    // What the clipboard did not take stays.
    if (::GetClipboardSequenceNumber() == former || ::GetClipboardOwner() != m_hWnd)
        return;
    m_impl->CancelGesture();
    m_impl->ChangeSelection([this] {
        std::vector<CXTPReportRecord*> selected = m_impl->SelectedRecordList();
        // Those of one collection go together. The hooks of the host may delete others, so all are held meanwhile.
        const std::vector<boost::intrusive_ptr<CXTPReportRecord>> alive(selected.begin(), selected.end());
        std::stable_sort(selected.begin(), selected.end(), [](const CXTPReportRecord* a, const CXTPReportRecord* b) {
            return std::less<>()(a->GetRecords(), b->GetRecords());
        });
        for (auto begin = selected.begin(); begin != selected.end();) {
            CXTPReportRecords* const collection = (*begin)->GetRecords();
            const auto end = std::find_if(begin, selected.end(), [collection](const CXTPReportRecord* record) {
                return record->GetRecords() != collection;
            });
            if (collection)
                collection->RemoveRecords({begin, end});
            begin = end;
        }
    });
}

void CXTPReportControl::Paste() {
    if (!m_hWnd || !CanPaste() || IsVirtualMode())
        return;
    CString strRecords, strText;
    {
        const OpenedClipboard clipboard(m_hWnd);
        if (!clipboard.IsOpen())
            return;
        strRecords = ClipboardText(RecordFormat());
        strText = ClipboardText(CF_UNICODETEXT);
    }
    CXTPReportRecords pasted(nullptr);
    if (!ReadRecords(strRecords, pasted))
        ReadLines(strText, *m_impl->columns, pasted);
    if (pasted.GetCount() > 0)
        m_impl->InsertRecords(pasted);
}

void CXTPReportControl::Impl::InsertRecords(CXTPReportRecords& pasted) {
    CancelGesture();
    const CXTPReportRecord* const below = rows->GetRecordAt(focusedRow);
    CXTPReportRecords* const target = below ? below->GetRecords() : records.get();
    const int place = below ? below->GetIndex() : records->GetCount();
    const std::vector<CXTPReportRecord*> inserted = TakeAll(pasted);
    target->InsertAt(place, inserted);

    const WindowGuard guard(control);
    control.Populate();
    if (guard.IsGone())
        return;
    std::vector<int> shown;
    for (const CXTPReportRecord* const record : inserted)
        if (const int row = rows->IndexOf(record); row >= 0)
            shown.push_back(row);
    std::sort(shown.begin(), shown.end());
    RowSelection places;
    for (const int row : shown)
        places.Add(row, row);
    const int first = places.RowAt(0);
    if (first < 0)
        return; // none of them is visible
    SetFocus(first);
    if (guard.IsGone())
        return;
    ShowRow(first);
    if (!isMultipleSelection) {
        places.Clear();
        places.Add(first, first);
    }
    ChangeSelection([&] { selectedRows->SetRanges(places); });
}
