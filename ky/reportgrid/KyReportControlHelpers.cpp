// What a report grid holds as HTML and on the clipboard.
#include "KyReportControlHelpers.h"

#include "../common/MissingValue.h"
#include "../plotcells/KyPlotRecordItem.h"
#include "ClipboardHtml.h"
#include "HtmlText.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace KyReportControlHelpers {
namespace {

constexpr int ImageWidth = 400;
constexpr int ImageHeight = 22;
constexpr std::string_view RowStart = "<tr height='22'>";

std::string ToUtf8(std::wstring_view text) {
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    return htmltext::ToUtf8({reinterpret_cast<const char16_t*>(text.data()), text.size()});
}

std::string ToUtf8(const CString& text) {
    return ToUtf8(std::wstring_view(text.GetString(), static_cast<std::size_t>(text.GetLength())));
}

/// Runs `work`; exceptions end here. False when there was one.
template <class Work>
bool WithoutExceptions(Work work) {
    try {
        work();
        return true;
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
    }
    return false;
}

/// What a record writes of itself, to be read item by item. One record is held at a time: all of them would take many
/// times the memory of the page.
class WrittenRecord {
public:
    /// Before anything else; false when records cannot be written.
    bool Begin() { return m_writer.OnBeforeExchange() && m_reader.OnBeforeExchange(); }

    void Write(CXTPReportRecord& record) {
        m_items.reset();
        m_writer.EmptySection(L"Record");
        {
            const CXTPPropExchangeEnumeratorPtr records(m_writer.GetEnumerator(L"Record"));
            POSITION place = records->GetPosition(1);
            const CXTPPropExchangeSection section(records->GetNext(place));
            record.DoPropExchange(&section);
        }
        const CXTPPropExchangeSection section(m_reader.GetSection(L"Record"));
        m_items.emplace(section->GetEnumerator(L"Item"));
        m_next = (*m_items)->GetPosition();
    }

    /// Goes on to the next item of the record; the caller owns the reference.
    CXTPPropExchange* NextItem() { return (*m_items)->GetNext(m_next); }

private:
    CXTPPropExchangeXMLNode m_writer{FALSE, nullptr, L"Settings"};
    CXTPPropExchangeXMLNode m_reader{TRUE, &m_writer, L"Settings"};
    std::optional<CXTPPropExchangeEnumeratorPtr> m_items;
    POSITION m_next = nullptr;
};

/// Intended: the format only tells a number; what is exported is the value in full precision.
std::string ItemText(CXTPPropExchange* section) {
    CString format;
    PX_String(section, L"Format", format, L"");
    if (format.IsEmpty()) {
        CString text;
        PX_String(section, L"Text", text, L"");
        return ToUtf8(text);
    }
    float value = 0;
    PX_Float(section, L"Value", value);
    return value == KyMissingValueF ? std::string() : htmltext::FloatText(value);
}

htmltext::TextCell ReadTextCell(CXTPPropExchange* section, const CXTPReportRecordItem& item) {
    htmltext::TextCell cell;
    DWORD background = htmltext::DefaultBackground, textColor = htmltext::DefaultTextColor;
    PX_DWord(section, L"BackgroundColor", background, htmltext::DefaultBackground);
    PX_DWord(section, L"TextColor", textColor, htmltext::DefaultTextColor);
    BOOL bold = FALSE;
    PX_Bool(section, L"BoldText", bold, FALSE);
    cell.background = background;
    cell.textColor = textColor;
    cell.isBold = bold != FALSE;
    cell.alignment = item.GetAlignment();
    cell.text = ItemText(section);
    return cell;
}

/// The table of one control, piece by piece.
class TableWriter {
public:
    TableWriter(CXTPReportControl& control, const wchar_t* imagePrefix)
        : m_control(control), m_imagePrefix(imagePrefix ? imagePrefix : L"") {}

    std::string Write() {
        m_html = "<table>";
        if (!m_written.Begin())
            return std::move(m_html);
        WriteHeader();
        const CXTPReportRecords& records = *m_control.GetRecords();
        for (int index = 0; index < records.GetCount(); ++index) {
            MakeRoom(index, records.GetCount());
            if (records.GetAt(index)->IsVisible())
                WriteRecord(*records.GetAt(index), index);
        }
        m_html += "</table>";
        return std::move(m_html);
    }

private:
    /// A large page gets room for all of it as soon as its size can be told from the records so far: growing by and by
    /// would take the size of the page once more.
    void MakeRoom(int written, int count) {
        constexpr std::size_t large = 1 << 20, reserve = 1 << 16;
        if (m_html.size() < large || m_html.capacity() - m_html.size() > reserve)
            return;
        const double whole = 1.02 * static_cast<double>(m_html.size()) * count / written;
        const auto most =
            static_cast<double>(64 * large + 4 * m_html.size()); // the first ones may be unlike the others
        m_html.reserve(static_cast<std::size_t>(std::min(whole, most)) + 2 * reserve);
    }

    void WriteHeader() {
        m_html += "   <tr>";
        const CXTPReportColumns& columns = *m_control.GetColumns();
        for (int index = 0; index < columns.GetCount(); ++index) {
            const CXTPReportColumn& column = *columns.GetAt(index);
            htmltext::AppendHeaderCell(m_html, ToUtf8(column.GetCaption()), column.GetHeaderAlignment());
        }
        m_html += "   </tr>";
    }

    void WriteRecord(CXTPReportRecord& record, int recordIndex) {
        m_written.Write(record);
        m_html += RowStart;
        if (record.GetItemCount() == 0)
            m_html += "<td>&nbsp;</td>";
        for (int index = 0; index < record.GetItemCount(); ++index) {
            CXTPReportRecordItem& item = *record.GetItem(index);
            const CXTPPropExchangeSection section(m_written.NextItem());
            if (auto* const plot = dynamic_cast<KyPlotRecordItem*>(&item))
                WritePlot(*plot, recordIndex, index);
            else
                htmltext::AppendTextCell(m_html, ReadTextCell(&section, item));
        }
        m_html += "</tr>";
        WriteChildren(record);
    }

    void WriteChildren(CXTPReportRecord& record) {
        if (!record.HasChildren())
            return;
        const CXTPReportRecords& children = *record.GetChilds();
        for (int index = 0; index < children.GetCount(); ++index)
            WriteChild(*children.GetAt(index));
    }

    void WriteChild(CXTPReportRecord& record) {
        m_html += RowStart;
        for (int index = 0; index < record.GetItemCount(); ++index) {
            CXTPReportRecordItem& item = *record.GetItem(index);
            htmltext::TextCell cell;
            cell.text = ToUtf8(item.GetCaption(nullptr));
            cell.isBold = item.IsBold() != FALSE;
            cell.alignment = item.GetAlignment();
            htmltext::AppendTextCell(m_html, cell);
        }
        m_html += "</tr>";
        WriteChildren(record);
    }

    void WritePlot(KyPlotRecordItem& plot, int recordIndex, int itemIndex) {
        const std::wstring file =
            m_imagePrefix + L"_" + std::to_wstring(recordIndex) + L"_" + std::to_wstring(itemIndex) + L".bmp";
        // A disk that is full costs the picture, not the page.
        WithoutExceptions([&] { plot.SaveAs(m_control, file.c_str(), ImageWidth, ImageHeight); });
        htmltext::AppendImageCell(m_html, ToUtf8(file), plot.GetBackgroundColor());
    }

    CXTPReportControl& m_control;
    std::wstring m_imagePrefix;
    WrittenRecord m_written;
    std::string m_html;
};

// --- Clipboard -------------------------------------------------------------------------------------------------------

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

UINT HtmlFormat() {
    static UINT format = 0;
    if (format == 0)
        format = ::RegisterClipboardFormat(L"HTML Format");
    return format;
}

/// A block of global memory with the text and a NUL; null when there is no memory.
HGLOBAL GlobalText(const std::string& text) {
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, text.size() + 4);
    if (block == nullptr)
        return nullptr;
    void* const data = ::GlobalLock(block);
    if (data == nullptr) {
        ::GlobalFree(block);
        return nullptr;
    }
    std::memcpy(data, text.c_str(), text.size() + 1);
    ::GlobalUnlock(block);
    return block;
}

void CopyRows(CXTPReportControl& control) {
    CXTPReportSelectedRows& selected = *control.GetSelectedRows();
    struct Deselection {
        CXTPReportSelectedRows& rows;
        ~Deselection() { rows.Clear(); }
    } const deselection{selected};
    // As a block: adding a million rows one by one would make a million row objects.
    selected.SelectBlock(0, control.GetRows()->GetCount() - 1);
    control.Copy();
}

void AddHtml(CXTPReportControl& control, const wchar_t* imagePrefix) {
    const OpenedClipboard clipboard(control.GetSafeHwnd());
    if (!clipboard.IsOpen())
        return;
    const std::string text = clipboardhtml::Envelope(clipboardhtml::Document(SaveAsHtml(control, imagePrefix)));
    const HGLOBAL block = text.empty() ? nullptr : GlobalText(text);
    // The clipboard owns what it has taken.
    if (block != nullptr && ::SetClipboardData(HtmlFormat(), block) == nullptr)
        ::GlobalFree(block);
}

} // namespace

std::string SaveAsHtml(CXTPReportControl& control, const wchar_t* imagePrefix) {
    std::string html;
    if (!WithoutExceptions([&] { html = TableWriter(control, imagePrefix).Write(); }))
        return "<table>";
    return html;
}

void CopyToClipboard(CXTPReportControl& control, const wchar_t* imagePrefix) {
    WithoutExceptions([&] { CopyRows(control); });
    WithoutExceptions([&] { AddHtml(control, imagePrefix); });
}

} // namespace KyReportControlHelpers
