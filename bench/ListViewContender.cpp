// The system's list view, which draws the same plots in custom draw.
#include "Contender.h"

#include <commctrl.h>

#include <cwchar>

namespace {

using benchpicture::RowHeight;
using benchpicture::ViewHeight;
using benchpicture::ViewWidth;

/// The window above the list view, which answers its questions.
class ListOwner : public CWnd {
public:
    explicit ListOwner(const benchpicture::Picture& picture) : m_picture(picture) {}

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        const UINT code = reinterpret_cast<const NMHDR*>(lParam)->code;
        *result = 0;
        if (code == LVN_GETDISPINFOW)
            TellText(reinterpret_cast<NMLVDISPINFOW*>(lParam)->item);
        else if (code == NM_CUSTOMDRAW)
            *result = Draw(*reinterpret_cast<const NMLVCUSTOMDRAW*>(lParam));
        return TRUE;
    }

private:
    static void TellText(LVITEMW& item) {
        if (!(item.mask & LVIF_TEXT) || item.cchTextMax <= 0)
            return;
        std::wstring text;
        if (item.iSubItem == 0)
            text = benchpicture::NameOf(item.iItem);
        else if (item.iSubItem == 1)
            text = benchpicture::NumberText(item.iItem);
        std::wcsncpy(item.pszText, text.c_str(), static_cast<std::size_t>(item.cchTextMax));
        item.pszText[item.cchTextMax - 1] = L'\0';
    }

    benchpicture::Picture m_picture;

    LRESULT Draw(const NMLVCUSTOMDRAW& draw) const {
        switch (draw.nmcd.dwDrawStage) {
        case CDDS_PREPAINT:
            return CDRF_NOTIFYITEMDRAW;
        case CDDS_ITEMPREPAINT:
            return CDRF_NOTIFYSUBITEMDRAW;
        case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
            break;
        default:
            return CDRF_DODEFAULT;
        }
        if (draw.iSubItem < 2)
            return CDRF_DODEFAULT;
        const int row = static_cast<int>(draw.nmcd.dwItemSpec);
        CRect rc;
        rc.left = LVIR_BOUNDS;
        rc.top = draw.iSubItem;
        ::SendMessage(draw.nmcd.hdr.hwndFrom, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row),
                      reinterpret_cast<LPARAM>(&rc));
        benchpicture::DrawPlot(draw.nmcd.hdc, CRect(rc.left, rc.top, rc.right - 1, rc.bottom - 1), m_picture, row,
                               draw.iSubItem - 2);
        return CDRF_SKIPDEFAULT;
    }
};

class ListViewContender : public Contender {
public:
    ListViewContender(int rows, const benchpicture::Picture& picture) : m_owner(picture) {
        INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_LISTVIEW_CLASSES};
        ::InitCommonControlsEx(&classes);
        const CRect rc(0, 0, ViewWidth, ViewHeight);
        m_owner.CreateEx(0, AfxRegisterWndClass(0), _T("list view"), WS_POPUP | WS_VISIBLE, rc, nullptr, 0);
        const HWND list = ::CreateWindowExW(
            0, WC_LISTVIEWW, L"",
            WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_NOSORTHEADER | LVS_SHOWSELALWAYS, 0, 0, ViewWidth,
            ViewHeight, m_owner.m_hWnd, nullptr, ::GetModuleHandle(nullptr), nullptr);
        m_list.Attach(list);
        constexpr DWORD style = LVS_EX_DOUBLEBUFFER | LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT;
        m_list.SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, style, style);
        SetFont();
        AddColumns();
        m_list.SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(rows), LVSICF_NOINVALIDATEALL);
        FitRowHeight();
    }
    ~ListViewContender() override {
        m_list.Detach();
        m_owner.DestroyWindow();
    }

    CWnd& Window() override { return m_list; }
    void GoToRow(int row) override {
        // From above, a row that is made visible stands at the lower edge.
        m_list.SendMessage(LVM_ENSUREVISIBLE, 0, FALSE);
        const LRESULT page = m_list.SendMessage(LVM_GETCOUNTPERPAGE);
        m_list.SendMessage(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row + page - 1), FALSE);
        Show();
    }
    void PageDown() override {
        m_list.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
        Show();
        Pump();
    }
    void MoveOfDrag(int) override {
        const LRESULT row = m_list.SendMessage(LVM_GETTOPINDEX) + DragRow;
        m_list.SendMessage(LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
        Show();
    }
    void HitTest(CPoint point) override {
        LVHITTESTINFO hit = {};
        hit.pt = point;
        m_list.SendMessage(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    }
    void BestFit() override {
        m_list.SendMessage(LVM_SETCOLUMNWIDTH, 0, LVSCW_AUTOSIZE);
        m_list.SendMessage(LVM_SETCOLUMNWIDTH, 0, benchpicture::ColumnWidths[0]);
    }
    void Update(int n) override {
        const int row = n % RecordRows;
        m_list.SendMessage(LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
    }
    CRect BarRect(int visibleRow, int bar) override {
        const LRESULT row = m_list.SendMessage(LVM_GETTOPINDEX) + visibleRow;
        CRect rc;
        rc.left = LVIR_BOUNDS;
        rc.top = 2 + bar;
        m_list.SendMessage(LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rc));
        return CRect(rc.left, rc.top, rc.right - 1, rc.bottom - 1);
    }

private:
    void SetFont() {
        NONCLIENTMETRICS metrics = {};
        metrics.cbSize = sizeof(metrics);
        ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
        m_font.CreateFontIndirect(&metrics.lfMessageFont);
        m_list.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(m_font.GetSafeHandle()), FALSE);
    }
    void AddColumns() {
        for (int i = 0; i < benchpicture::ColumnCount; ++i) {
            LVCOLUMNW column = {};
            column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
            column.fmt = i == 1 ? LVCFMT_RIGHT : LVCFMT_LEFT;
            column.cx = benchpicture::ColumnWidths[i];
            column.pszText = const_cast<wchar_t*>(benchpicture::Captions[i]);
            column.iSubItem = i;
            m_list.SendMessage(LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
        }
    }
    /// A list view takes the height of its rows from its image list.
    void FitRowHeight() {
        for (int height = RowHeight; height > 0 && CurrentRowHeight() != RowHeight; --height) {
            const HIMAGELIST images = ::ImageList_Create(1, height, ILC_COLOR32, 1, 1);
            const LRESULT former = m_list.SendMessage(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images));
            if (former != 0)
                ::ImageList_Destroy(reinterpret_cast<HIMAGELIST>(former));
        }
    }
    int CurrentRowHeight() {
        CRect rc;
        rc.left = LVIR_BOUNDS;
        m_list.SendMessage(LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&rc));
        return rc.Height();
    }

    ListOwner m_owner;
    CWnd m_list;
    CFont m_font;
};

} // namespace

std::unique_ptr<Contender> MakeListViewContender(int rows, const benchpicture::Picture& picture) {
    return std::make_unique<ListViewContender>(rows, picture);
}
