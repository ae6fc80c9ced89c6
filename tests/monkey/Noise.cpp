// Raw messages with random parameters, as a broken or hostile program might send them to our windows.
#include "Noise.h"

#include "Hands.h"
#include "Sentinel.h"

#include "common/KyMessages.h"
#include "resource.h"

#include <afxext.h>
#include <afxpriv.h>

#include <cstdio>
#include <cstring>

/// What a message points to lives here; the strings end, the structures are whole.
struct NoiseMemory {
    alignas(16) BYTE bytes[65536];
    wchar_t text[256];
    MINMAXINFO minMax;
    WINDOWPOS place;
    NCCALCSIZE_PARAMS calcSize;
    DRAWITEMSTRUCT draw;
    MEASUREITEMSTRUCT measure;
    DELETEITEMSTRUCT deleted;
    COMPAREITEMSTRUCT compare;
    STYLESTRUCT style;
    COPYDATASTRUCT copy;
    HELPINFO help;
    MDINEXTMENU nextMenu;
    MSG message;
    RECT rect;
    AFX_SIZEPARENTPARAMS sizeParent;
    CDC dc;
    CBitmap bitmap;
    CFont font;
};

namespace {

/// Not sent: what only the system may say because it is true then, and what would end the run rather than the window.
bool IsLeftOut(UINT message, bool isSystemControl) {
    switch (message) {
    case WM_NCCREATE: // a window is created once; these bring structures that outlive nothing
    case WM_CREATE:
    case WM_NCDESTROY:  // takes the object from a window that lives on
    case WM_QUIT:       // no message of windows; ends the loop
    case WM_ENDSESSION: // the program may end itself
    case WM_CTLCOLOR:   // the framework's own form of the messages about colours, with a structure of its own
    case WM_DROPFILES:  // its parameter is memory that the receiver frees; Hands sends whole ones
    case WM_IME_CONTROL:
    case WM_IME_REQUEST: // the input method's own memory
        return true;
    default:
        break;
    }
    if (message >= WM_REFLECT_BASE && message < 0xC000)
        return true; // never leave the object that reflects them
    // What the system's controls say to each other carries pointers, and none of it is handled by us.
    const bool isControlsOwn = (message >= 0x00B0 && message <= 0x00FF) || (message >= 0x0140 && message <= 0x01BF) ||
                               (message >= WM_MDICREATE && message <= WM_MDIREFRESHMENU) || message >= WM_USER;
    return isSystemControl && isControlsOwn;
}

} // namespace

Noise::Noise(Dice& dice, Zoo& zoo) : m_dice(dice), m_zoo(zoo), m_memory(std::make_unique<NoiseMemory>()) {
    m_memory->dc.CreateCompatibleDC(nullptr);
    m_memory->bitmap.CreateBitmap(200, 200, 1, 32, nullptr);
    ::SelectObject(m_memory->dc.m_hDC, m_memory->bitmap.GetSafeHandle());
    m_memory->font.CreatePointFont(90, _T("Tahoma"));
}

Noise::~Noise() { m_memory->dc.DeleteDC(); }

UINT Noise::ChooseMessage() {
    static constexpr UINT Handled[] = {
        WM_DESTROY,       WM_PAINT,          WM_PRINTCLIENT,      WM_ERASEBKGND,      WM_SIZE,
        WM_LBUTTONDOWN,   WM_LBUTTONUP,      WM_LBUTTONDBLCLK,    WM_RBUTTONDOWN,     WM_RBUTTONUP,
        WM_CONTEXTMENU,   WM_MOUSEMOVE,      WM_MOUSELEAVE,       WM_MOUSEWHEEL,      WM_MOUSEHWHEEL,
        WM_SETCURSOR,     WM_CAPTURECHANGED, WM_CANCELMODE,       WM_KEYDOWN,         WM_SYSKEYDOWN,
        WM_CHAR,          WM_SYSCHAR,        WM_GETDLGCODE,       WM_HSCROLL,         WM_VSCROLL,
        WM_TIMER,         WM_SETFOCUS,       WM_KILLFOCUS,        WM_ENABLE,          WM_SYSCOLORCHANGE,
        WM_SETTINGCHANGE, WM_SETFONT,        WM_GETFONT,          WM_COMMAND,         WM_NOTIFY,
        WM_INITMENUPOPUP, WM_MENUSELECT,     WM_ACTIVATE,         WM_CLOSE,           WM_SYSCOMMAND,
        WM_INITDIALOG,    WM_PARENTNOTIFY,   WM_WINDOWPOSCHANGED, WM_NCHITTEST,       WM_DRAWITEM,
        WM_MEASUREITEM,   WM_SIZEPARENT,     WM_SETMESSAGESTRING, WM_IDLEUPDATECMDUI, WM_INITIALUPDATE,
        WM_RECALCPARENT,  WM_KICKIDLE,       WM_POPMESSAGESTRING, WM_KYTHEMECHANGED,  WM_QUERYENDSESSION,
    };
    switch (m_dice.Below(10)) {
    case 0:
        return static_cast<UINT>(m_dice.Below(0x10000));
    case 1:
        return static_cast<UINT>(m_dice.Between(0x0360, 0x037F));
    case 2:
    case 3:
    case 4:
        return static_cast<UINT>(m_dice.Below(WM_USER));
    default:
        return m_dice.From(Handled);
    }
}

HWND Noise::RandomWindow() {
    if (m_dice.OneIn(3))
        return reinterpret_cast<HWND>(RandomWord());
    const std::vector<HWND> windows = m_zoo.Windows();
    return windows.empty() ? nullptr : m_dice.From(windows);
}

WPARAM Noise::RandomWord() {
    switch (m_dice.Below(6)) {
    case 0:
        return 0;
    case 1:
        return static_cast<WPARAM>(m_dice.Below(16));
    case 2:
        return static_cast<WPARAM>(m_dice.Below(0x10000));
    case 3:
        return MAKELONG(m_dice.Between(-200, 2000), m_dice.Between(-200, 2000));
    case 4:
        return static_cast<WPARAM>(static_cast<INT_PTR>(m_dice.Of({-1, INT_MIN, INT_MAX, 0x7FFF, -0x8000})));
    default:
        return m_dice.Bits();
    }
}

/// Messages that carry pointers and handles of drawing get valid ones, or none where that is allowed. Two things that
/// Wine's own edit control dies of in any program, by a double click that comes later, stay away from the system's
/// controls: texts of rare scripts, and a painting's device context that is none.
void Noise::FillPointers(UINT message, bool isSystemControl, WPARAM& wParam, LPARAM& lParam) {
    NoiseMemory& memory = *m_memory;
    const auto pointTo = [&lParam](auto& target) { lParam = reinterpret_cast<LPARAM>(&target); };
    const auto number = [this] { return m_dice.Of({0, 1, -1, 100, 3000, -3000, 32767, INT_MAX, INT_MIN}); };
    switch (message) {
    case WM_SETTEXT:
    case WM_SETTINGCHANGE:
    case WM_DEVMODECHANGE:
    case WM_SETMESSAGESTRING:
    case WM_POPMESSAGESTRING:
        for (wchar_t& each : memory.text)
            each = static_cast<wchar_t>(m_dice.Between(1, isSystemControl ? 0x024F : 0xD7FF));
        memory.text[m_dice.Below(256)] = L'\0';
        memory.text[255] = L'\0';
        lParam = m_dice.OneIn(4) ? 0 : reinterpret_cast<LPARAM>(memory.text);
        break;
    case WM_GETTEXT:
        wParam = static_cast<WPARAM>(m_dice.Below(sizeof(memory.bytes) / sizeof(wchar_t)));
        pointTo(memory.bytes);
        break;
    case WM_GETMINMAXINFO:
        memory.minMax = {{number(), number()}, {number(), number()}, {number(), number()}, {1, 1}, {9999, 9999}};
        pointTo(memory.minMax);
        break;
    case WM_WINDOWPOSCHANGING:
    case WM_WINDOWPOSCHANGED:
        memory.place = {RandomWindow(),
                        RandomWindow(),
                        number(),
                        number(),
                        number(),
                        number(),
                        static_cast<UINT>(m_dice.Below(0x10000))};
        pointTo(memory.place);
        break;
    case WM_NCCALCSIZE:
        memory.calcSize = {};
        memory.calcSize.rgrc[0] = {number(), number(), number(), number()};
        memory.calcSize.lppos = &memory.place;
        pointTo(memory.calcSize);
        break;
    case WM_NOTIFY: {
        // Behind the header is room for whatever the code promises, all null.
        std::memset(memory.bytes, 0, 1024);
        auto* header = reinterpret_cast<NMHDR*>(memory.bytes);
        header->hwndFrom = RandomWindow();
        header->idFrom = RandomWord();
        header->code = m_dice.Of<UINT>({NM_CLICK, NM_DBLCLK, NM_RCLICK, NM_RETURN, XTP_NM_REPORT_SELCHANGED,
                                        XTP_NM_REPORT_FOCUSCHANGED, XTP_NM_REPORT_SORTORDERCHANGED,
                                        static_cast<UINT>(m_dice.Below(4000)), 0U - 500U});
        pointTo(memory.bytes);
        break;
    }
    case WM_DRAWITEM:
        memory.draw = {};
        memory.draw.CtlType = static_cast<UINT>(m_dice.Below(7));
        memory.draw.CtlID = static_cast<UINT>(m_dice.Below(300));
        memory.draw.hwndItem = RandomWindow();
        memory.draw.hDC = memory.dc.m_hDC;
        memory.draw.rcItem = {0, 0, 100, 20};
        pointTo(memory.draw);
        break;
    case WM_MEASUREITEM:
        memory.measure = {};
        memory.measure.CtlType = static_cast<UINT>(m_dice.Below(7));
        memory.measure.CtlID = static_cast<UINT>(m_dice.Below(300));
        pointTo(memory.measure);
        break;
    case WM_DELETEITEM:
        memory.deleted = {};
        memory.deleted.hwndItem = RandomWindow();
        pointTo(memory.deleted);
        break;
    case WM_COMPAREITEM:
        memory.compare = {};
        memory.compare.hwndItem = RandomWindow();
        pointTo(memory.compare);
        break;
    case WM_STYLECHANGING:
    case WM_STYLECHANGED:
        memory.style = {static_cast<DWORD>(RandomWord()), static_cast<DWORD>(RandomWord())};
        pointTo(memory.style);
        break;
    case WM_COPYDATA:
        memory.copy = {RandomWord(), static_cast<DWORD>(m_dice.Below(1000)), memory.bytes};
        pointTo(memory.copy);
        break;
    case WM_HELP:
        memory.help = {sizeof(HELPINFO), HELPINFO_WINDOW, m_dice.Below(300), RandomWindow(), 0, {number(), number()}};
        pointTo(memory.help);
        break;
    case WM_NEXTMENU:
        memory.nextMenu = {};
        pointTo(memory.nextMenu);
        break;
    case WM_GETDLGCODE:
        memory.message = {RandomWindow(), WM_KEYDOWN, RandomWord(), 1, 0, {0, 0}};
        lParam = m_dice.OneIn(2) ? 0 : reinterpret_cast<LPARAM>(&memory.message);
        break;
    case WM_SIZING:
    case WM_MOVING:
    case 0x02E0: // WM_DPICHANGED
    case 0x02E4: // WM_GETDPISCALEDSIZE
        memory.rect = {number(), number(), number(), number()};
        pointTo(memory.rect);
        break;
    case WM_SIZEPARENT:
        memory.sizeParent = {};
        memory.sizeParent.rect = {number(), number(), number(), number()};
        pointTo(memory.sizeParent);
        break;
    case WM_SETFONT:
        wParam = m_dice.OneIn(2) ? reinterpret_cast<WPARAM>(memory.font.GetSafeHandle()) : RandomWord();
        break;
    case WM_PAINT:
        if (isSystemControl)
            wParam = m_dice.OneIn(3) ? 0 : reinterpret_cast<WPARAM>(memory.dc.m_hDC);
        break;
    case WM_ERASEBKGND:
    case WM_ICONERASEBKGND:
    case WM_PRINT:
    case WM_PRINTCLIENT:
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
        wParam = m_dice.OneIn(3) ? 0 : reinterpret_cast<WPARAM>(memory.dc.m_hDC);
        if (message != WM_PRINT && message != WM_PRINTCLIENT)
            lParam = reinterpret_cast<LPARAM>(RandomWindow());
        break;
    case WM_TIMER: // a callback is a pointer to code
    case WM_POWERBROADCAST:
    case WM_DEVICECHANGE:
    case WM_GETTITLEBARINFOEX:
        lParam = 0;
        if (message == WM_GETTITLEBARINFOEX) {
            std::memset(memory.bytes, 0, sizeof(TITLEBARINFOEX));
            reinterpret_cast<TITLEBARINFOEX*>(memory.bytes)->cbSize = sizeof(TITLEBARINFOEX);
            pointTo(memory.bytes);
        }
        break;
    case WM_MDICREATE:
        std::memset(memory.bytes, 0, sizeof(MDICREATESTRUCT));
        pointTo(memory.bytes);
        break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        wParam = reinterpret_cast<WPARAM>(RandomWindow());
        break;
    case WM_CAPTURECHANGED:
    case WM_ACTIVATE:
        lParam = reinterpret_cast<LPARAM>(RandomWindow());
        break;
    case WM_COMMAND:
        // Dialogs for files take a second each.
        if (LOWORD(wParam) == ID_FILE_OPEN && !m_dice.OneIn(20))
            wParam = ID_FILE_RELOAD;
        lParam = reinterpret_cast<LPARAM>(RandomWindow());
        break;
    default:
        break;
    }
}

void Noise::Act() {
    const std::vector<HWND> windows = m_zoo.Windows();
    if (windows.empty())
        return;
    const HWND window = m_dice.From(windows);
    const UINT message = ChooseMessage();
    WPARAM wParam = RandomWord();
    auto lParam = static_cast<LPARAM>(RandomWord());
    if (message == WM_COMMAND && m_dice.OneIn(2))
        wParam = static_cast<WPARAM>(m_dice.Between(0xE000, 0xE1FF));
    if (message == WM_SYSCOMMAND)
        wParam = static_cast<WPARAM>(0xF000 + 16 * m_dice.Below(25) + m_dice.Below(9));
    const bool isSystemControl = IsSystemControl(window);
    if (IsLeftOut(message, isSystemControl))
        return;
    FillPointers(message, isSystemControl, wParam, lParam);
    char text[256], name[64] = "";
    ::GetClassNameA(window, name, sizeof(name));
    std::snprintf(text, sizeof(text), "raw: %s 0x%04x 0x%llx 0x%llx", name, message,
                  static_cast<unsigned long long>(wParam), static_cast<unsigned long long>(lParam));
    sentinel::Note(text);
    // The loops of a pressed caption button and of the right button on a caption hear of the mouse alone, so no timer
    // can end them.
    if (message == WM_NCLBUTTONDOWN || message == WM_NCLBUTTONDBLCLK)
        ::PostMessage(window, WM_LBUTTONUP, 0, 0);
    else if (message == WM_NCRBUTTONDOWN)
        ::PostMessage(window, WM_RBUTTONUP, 0, 0);
    ::SendMessage(window, message, wParam, lParam);
    Pump();
    m_zoo.AwaitReading();
}
