/// @file
/// Message maps: the table types, the macros that fill them, and the unpackers that turn a message's WPARAM and LPARAM
/// into the arguments of its handler. Comes with `<afxwin.h>`.
///
/// Every entry macro expands to a captureless lambda that names the handler as a member pointer of the exact documented
/// type, so a handler with another signature does not compile. The lambda is made inside a member function of the
/// class, so handlers may be protected or private.
#pragma once

#include "../core/Geometry.h"

class CCmdTarget;
class CCmdUI;
class CDC;
class CMenu;
class CScrollBar;
class CWnd;
struct AFX_MSGMAP_ENTRY;

/// One message, command or notification on its way to a handler.
/// @ingroup framework_messages
struct AFX_MESSAGE {
    UINT message = 0;      ///< The message; WM_COMMAND for commands.
    WPARAM wParam = 0;     ///< As Windows sent it; 0 for commands.
    LPARAM lParam = 0;     ///< As Windows sent it; 0 for commands.
    LRESULT result = 0;    ///< What the handler answers.
    UINT id = 0;           ///< Command or control id, of commands and notifications.
    void* extra = nullptr; ///< CCmdUI* of update commands, AFX_NOTIFY* of WM_NOTIFY.
};

/// Calls one handler. False: the handler passes the command or notification on along its route.
/// @ingroup framework_messages
using AFX_THUNK = bool (*)(CCmdTarget* target, AFX_MESSAGE& message);

/// One line of a message map: which message it is for, and the typed thunk that calls the handler.
/// @ingroup framework_messages
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;      ///< The message; WM_COMMAND for commands; zero ends the table.
    UINT nCode;         ///< Notification code (16 bits), CN_COMMAND or CN_UPDATE_COMMAND_UI; zero for plain messages.
    UINT nID;           ///< First id of commands and notifications.
    UINT nLastID;       ///< Last id.
    AFX_THUNK pfnThunk; ///< Unpacks the message and calls the handler.
    const UINT* pnRegistered; ///< Where the number of a registered message stands, else null.
};

/// A class's table and the way to its base class's map. The base is a function, because the address of another DLL's
/// table is not a constant.
/// @ingroup framework_messages
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< Null at the root.
    const AFX_MSGMAP_ENTRY* lpEntries;    ///< Ends with an entry for message 0.
};

/// What OnCmdMsg carries as pExtra for WM_NOTIFY.
/// @ingroup framework_messages
struct AFX_NOTIFY {
    LRESULT* pResult; ///< What the handler answers; never null.
    NMHDR* pNMHDR;    ///< The notification, which belongs to the sender.
};

/// What the internal colour message WM_CTLCOLOR carries in lParam.
/// @ingroup framework_messages
struct AFX_CTLCOLOR {
    HWND hWnd;     ///< The control.
    HDC hDC;       ///< Where its colours are set.
    UINT nCtlType; ///< CTLCOLOR_BTN and so on.
};

/// Filled by OnCmdMsg instead of calling the handler when the caller only wants to know whether there is one.
/// @ingroup framework_messages
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget; ///< The object whose map has the entry.
    AFX_THUNK pfnThunk;  ///< Calls the handler for that object.
};

#ifndef WM_CTLCOLOR
/// One message for what Windows tells as several, WM_CTLCOLORBTN and so on: the colours of a control. lParam:
/// AFX_CTLCOLOR*.
#define WM_CTLCOLOR 0x0019
#endif
/// Added to the number of a message that a parent hands back to the control that it is about.
#define WM_REFLECT_BASE 0xBC00

/// For CCmdTarget::OnCmdMsg: a command is to be carried out.
constexpr int CN_COMMAND = 0;
/// For CCmdTarget::OnCmdMsg: a command's user interface is to be brought up to date.
constexpr int CN_UPDATE_COMMAND_UI = -1;
/// Numbers from this one on are those of registered messages; it marks their entries in the maps.
constexpr UINT AFX_REGISTERED_MESSAGE = 0xC000;

/// @cond
// The unpackers, named after the arguments that they produce. `Owner` is the class whose map holds the entry; it is
// named by the caller, so that a member of a base class converts and one of another type is refused.
namespace afxmsg {

inline CPoint PointOf(LPARAM lParam) {
    return CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
}

KY_FRAMEWORK_API CWnd* WindowOf(HWND hWnd);
KY_FRAMEWORK_API CScrollBar* ScrollBarOf(HWND hWnd);
KY_FRAMEWORK_API CMenu* MenuOf(HMENU hMenu);

/// The device context that a message carries, as a temporary object.
KY_FRAMEWORK_API CDC* DeviceContextOf(WPARAM wParam);

inline WPARAM DeviceContextHandle(const AFX_CTLCOLOR& color) { return reinterpret_cast<WPARAM>(color.hDC); }

template <class Owner>
void Nothing(Owner* object, void (Owner::*handler)(), AFX_MESSAGE&) {
    (object->*handler)();
}
template <class Owner>
void AnswerNothing(Owner* object, LRESULT (Owner::*handler)(), AFX_MESSAGE& m) {
    m.result = (object->*handler)();
}
template <class Owner>
void AnswerUint(Owner* object, UINT (Owner::*handler)(), AFX_MESSAGE& m) {
    m.result = (object->*handler)();
}
template <class Owner>
void AnswerCursor(Owner* object, HCURSOR (Owner::*handler)(), AFX_MESSAGE& m) {
    m.result = reinterpret_cast<LRESULT>((object->*handler)());
}
template <class Owner>
void Raw(Owner* object, LRESULT (Owner::*handler)(WPARAM, LPARAM), AFX_MESSAGE& m) {
    m.result = (object->*handler)(m.wParam, m.lParam);
}
template <class Owner>
void Create(Owner* object, int (Owner::*handler)(LPCREATESTRUCT), AFX_MESSAGE& m) {
    m.result = (object->*handler)(reinterpret_cast<LPCREATESTRUCT>(m.lParam));
}
template <class Owner>
void NcCreate(Owner* object, BOOL (Owner::*handler)(LPCREATESTRUCT), AFX_MESSAGE& m) {
    m.result = (object->*handler)(reinterpret_cast<LPCREATESTRUCT>(m.lParam));
}
template <class Owner>
void Size(Owner* object, void (Owner::*handler)(UINT, int, int), AFX_MESSAGE& m) {
    const CPoint size = PointOf(m.lParam);
    (object->*handler)(static_cast<UINT>(m.wParam), size.x, size.y);
}
template <class Owner>
void Move(Owner* object, void (Owner::*handler)(int, int), AFX_MESSAGE& m) {
    const CPoint origin = PointOf(m.lParam);
    (object->*handler)(origin.x, origin.y);
}
template <class Owner>
void Flag(Owner* object, void (Owner::*handler)(BOOL), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<BOOL>(m.wParam));
}
template <class Owner>
void AnswerFlag(Owner* object, BOOL (Owner::*handler)(BOOL), AFX_MESSAGE& m) {
    m.result = (object->*handler)(static_cast<BOOL>(m.wParam));
}
template <class Owner>
void FlagAndStatus(Owner* object, void (Owner::*handler)(BOOL, UINT), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<BOOL>(m.wParam), static_cast<UINT>(m.lParam));
}
template <class Owner>
void Activate(Owner* object, void (Owner::*handler)(UINT, CWnd*, BOOL), AFX_MESSAGE& m) {
    CWnd* other = WindowOf(reinterpret_cast<HWND>(m.lParam));
    (object->*handler)(LOWORD(m.wParam), other, static_cast<BOOL>(HIWORD(m.wParam)));
}
template <class Owner>
void MouseActivate(Owner* object, int (Owner::*handler)(CWnd*, UINT, UINT), AFX_MESSAGE& m) {
    CWnd* top = WindowOf(reinterpret_cast<HWND>(m.wParam));
    m.result = (object->*handler)(top, LOWORD(m.lParam), HIWORD(m.lParam));
}
template <class Owner>
void SetCursor(Owner* object, BOOL (Owner::*handler)(CWnd*, UINT, UINT), AFX_MESSAGE& m) {
    CWnd* under = WindowOf(reinterpret_cast<HWND>(m.wParam));
    m.result = (object->*handler)(under, LOWORD(m.lParam), HIWORD(m.lParam));
}
/// The window stands in wParam: focus messages.
template <class Owner>
void FromWindow(Owner* object, void (Owner::*handler)(CWnd*), AFX_MESSAGE& m) {
    (object->*handler)(WindowOf(reinterpret_cast<HWND>(m.wParam)));
}
/// The window stands in lParam: the loss of capture.
template <class Owner>
void ToWindow(Owner* object, void (Owner::*handler)(CWnd*), AFX_MESSAGE& m) {
    (object->*handler)(WindowOf(reinterpret_cast<HWND>(m.lParam)));
}
template <class Owner>
void ContextMenu(Owner* object, void (Owner::*handler)(CWnd*, CPoint), AFX_MESSAGE& m) {
    (object->*handler)(WindowOf(reinterpret_cast<HWND>(m.wParam)), PointOf(m.lParam));
}
template <class Owner>
void Mouse(Owner* object, void (Owner::*handler)(UINT, CPoint), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<UINT>(m.wParam), PointOf(m.lParam));
}
template <class Owner>
void Wheel(Owner* object, BOOL (Owner::*handler)(UINT, short, CPoint), AFX_MESSAGE& m) {
    m.result = (object->*handler)(LOWORD(m.wParam), static_cast<short>(HIWORD(m.wParam)), PointOf(m.lParam));
}
template <class Owner>
void HWheel(Owner* object, void (Owner::*handler)(UINT, short, CPoint), AFX_MESSAGE& m) {
    (object->*handler)(LOWORD(m.wParam), static_cast<short>(HIWORD(m.wParam)), PointOf(m.lParam));
}
template <class Owner>
void Key(Owner* object, void (Owner::*handler)(UINT, UINT, UINT), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<UINT>(m.wParam), LOWORD(m.lParam), HIWORD(m.lParam));
}
template <class Owner>
void Scroll(Owner* object, void (Owner::*handler)(UINT, UINT, CScrollBar*), AFX_MESSAGE& m) {
    CScrollBar* bar = ScrollBarOf(reinterpret_cast<HWND>(m.lParam));
    (object->*handler)(LOWORD(m.wParam), HIWORD(m.wParam), bar);
}
template <class Owner>
void ReflectedScroll(Owner* object, void (Owner::*handler)(UINT, UINT), AFX_MESSAGE& m) {
    (object->*handler)(LOWORD(m.wParam), HIWORD(m.wParam));
}
template <class Owner>
void Timer(Owner* object, void (Owner::*handler)(UINT_PTR), AFX_MESSAGE& m) {
    (object->*handler)(m.wParam);
}
template <class Owner>
void InitMenuPopup(Owner* object, void (Owner::*handler)(CMenu*, UINT, BOOL), AFX_MESSAGE& m) {
    CMenu* menu = MenuOf(reinterpret_cast<HMENU>(m.wParam));
    (object->*handler)(menu, LOWORD(m.lParam), static_cast<BOOL>(HIWORD(m.lParam)));
}
template <class Owner>
void MenuSelect(Owner* object, void (Owner::*handler)(UINT, UINT, HMENU), AFX_MESSAGE& m) {
    (object->*handler)(LOWORD(m.wParam), HIWORD(m.wParam), reinterpret_cast<HMENU>(m.lParam));
}
template <class Owner>
void MenuChar(Owner* object, LRESULT (Owner::*handler)(UINT, UINT, CMenu*), AFX_MESSAGE& m) {
    CMenu* menu = MenuOf(reinterpret_cast<HMENU>(m.lParam));
    m.result = (object->*handler)(LOWORD(m.wParam), HIWORD(m.wParam), menu);
}
template <class Owner>
void DropFiles(Owner* object, void (Owner::*handler)(HDROP), AFX_MESSAGE& m) {
    (object->*handler)(reinterpret_cast<HDROP>(m.wParam));
}
template <class Owner>
void NcCalcSize(Owner* object, void (Owner::*handler)(BOOL, NCCALCSIZE_PARAMS*), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<BOOL>(m.wParam), reinterpret_cast<NCCALCSIZE_PARAMS*>(m.lParam));
}
template <class Owner>
void HitTest(Owner* object, LRESULT (Owner::*handler)(CPoint), AFX_MESSAGE& m) {
    m.result = (object->*handler)(PointOf(m.lParam));
}
template <class Owner>
void EraseBackground(Owner* object, BOOL (Owner::*handler)(CDC*), AFX_MESSAGE& m) {
    m.result = (object->*handler)(DeviceContextOf(m.wParam));
}
template <class Owner>
void PrintClient(Owner* object, LRESULT (Owner::*handler)(CDC*, UINT), AFX_MESSAGE& m) {
    m.result = (object->*handler)(DeviceContextOf(m.wParam), static_cast<UINT>(m.lParam));
}
template <class Owner>
void ControlColor(Owner* object, HBRUSH (Owner::*handler)(CDC*, CWnd*, UINT), AFX_MESSAGE& m) {
    const auto& color = *reinterpret_cast<const AFX_CTLCOLOR*>(m.lParam);
    CDC* dc = DeviceContextOf(DeviceContextHandle(color));
    m.result = reinterpret_cast<LRESULT>((object->*handler)(dc, WindowOf(color.hWnd), color.nCtlType));
}
template <class Owner>
void ReflectedColor(Owner* object, HBRUSH (Owner::*handler)(CDC*, UINT), AFX_MESSAGE& m) {
    const auto& color = *reinterpret_cast<const AFX_CTLCOLOR*>(m.lParam);
    m.result =
        reinterpret_cast<LRESULT>((object->*handler)(DeviceContextOf(DeviceContextHandle(color)), color.nCtlType));
}
template <class Owner>
void DrawItem(Owner* object, void (Owner::*handler)(int, LPDRAWITEMSTRUCT), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<int>(m.wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(m.lParam));
}
template <class Owner>
void MeasureItem(Owner* object, void (Owner::*handler)(int, LPMEASUREITEMSTRUCT), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<int>(m.wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(m.lParam));
}
template <class Owner>
void DeleteItem(Owner* object, void (Owner::*handler)(int, LPDELETEITEMSTRUCT), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<int>(m.wParam), reinterpret_cast<LPDELETEITEMSTRUCT>(m.lParam));
}
template <class Owner>
void CompareItem(Owner* object, int (Owner::*handler)(int, LPCOMPAREITEMSTRUCT), AFX_MESSAGE& m) {
    m.result = (object->*handler)(static_cast<int>(m.wParam), reinterpret_cast<LPCOMPAREITEMSTRUCT>(m.lParam));
}
template <class Owner>
void ReflectedDrawItem(Owner* object, void (Owner::*handler)(LPDRAWITEMSTRUCT), AFX_MESSAGE& m) {
    (object->*handler)(reinterpret_cast<LPDRAWITEMSTRUCT>(m.lParam));
}
template <class Owner>
void ReflectedMeasureItem(Owner* object, void (Owner::*handler)(LPMEASUREITEMSTRUCT), AFX_MESSAGE& m) {
    (object->*handler)(reinterpret_cast<LPMEASUREITEMSTRUCT>(m.lParam));
}
template <class Owner>
void WindowPosition(Owner* object, void (Owner::*handler)(WINDOWPOS*), AFX_MESSAGE& m) {
    (object->*handler)(reinterpret_cast<WINDOWPOS*>(m.lParam));
}
template <class Owner>
void MinMaxInfo(Owner* object, void (Owner::*handler)(MINMAXINFO*), AFX_MESSAGE& m) {
    (object->*handler)(reinterpret_cast<MINMAXINFO*>(m.lParam));
}
template <class Owner>
void SideAndRectangle(Owner* object, void (Owner::*handler)(UINT, LPRECT), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<UINT>(m.wParam), reinterpret_cast<LPRECT>(m.lParam));
}
template <class Owner>
void SettingChange(Owner* object, void (Owner::*handler)(UINT, LPCTSTR), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<UINT>(m.wParam), reinterpret_cast<LPCTSTR>(m.lParam));
}
template <class Owner>
void StyleChange(Owner* object, void (Owner::*handler)(int, LPSTYLESTRUCT), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<int>(m.wParam), reinterpret_cast<LPSTYLESTRUCT>(m.lParam));
}
template <class Owner>
void Notice(Owner* object, void (Owner::*handler)(UINT, LPARAM), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<UINT>(m.wParam), m.lParam);
}
template <class Owner>
void InitMenu(Owner* object, void (Owner::*handler)(CMenu*), AFX_MESSAGE& m) {
    (object->*handler)(MenuOf(reinterpret_cast<HMENU>(m.wParam)));
}
template <class Owner>
void SystemCommand(Owner* object, void (Owner::*handler)(UINT, LPARAM), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<UINT>(m.wParam), m.lParam);
}
template <class Owner>
void EnterIdle(Owner* object, void (Owner::*handler)(UINT, CWnd*), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<UINT>(m.wParam), WindowOf(reinterpret_cast<HWND>(m.lParam)));
}

// Commands and notifications.
template <class Owner>
bool Command(Owner* object, void (Owner::*handler)(), AFX_MESSAGE&) {
    (object->*handler)();
    return true;
}
template <class Owner>
bool CommandId(Owner* object, void (Owner::*handler)(UINT), AFX_MESSAGE& m) {
    (object->*handler)(m.id);
    return true;
}
template <class Owner>
bool CommandEx(Owner* object, BOOL (Owner::*handler)(UINT), AFX_MESSAGE& m) {
    return (object->*handler)(m.id) != FALSE;
}
template <class Owner>
bool UpdateCommand(Owner* object, void (Owner::*handler)(CCmdUI*), AFX_MESSAGE& m) {
    (object->*handler)(static_cast<CCmdUI*>(m.extra));
    return true;
}
template <class Owner>
bool ReflectedControlEx(Owner* object, BOOL (Owner::*handler)(), AFX_MESSAGE&) {
    return (object->*handler)() != FALSE;
}
template <class Owner>
bool Notify(Owner* object, void (Owner::*handler)(NMHDR*, LRESULT*), AFX_MESSAGE& m) {
    const auto& notify = *static_cast<AFX_NOTIFY*>(m.extra);
    (object->*handler)(notify.pNMHDR, notify.pResult);
    return true;
}
template <class Owner>
bool ReflectedNotifyEx(Owner* object, BOOL (Owner::*handler)(NMHDR*, LRESULT*), AFX_MESSAGE& m) {
    const auto& notify = *static_cast<AFX_NOTIFY*>(m.extra);
    return (object->*handler)(notify.pNMHDR, notify.pResult) != FALSE;
}
template <class Owner>
bool NotifyId(Owner* object, void (Owner::*handler)(UINT, NMHDR*, LRESULT*), AFX_MESSAGE& m) {
    const auto& notify = *static_cast<AFX_NOTIFY*>(m.extra);
    (object->*handler)(m.id, notify.pNMHDR, notify.pResult);
    return true;
}
template <class Owner>
bool NotifyEx(Owner* object, BOOL (Owner::*handler)(UINT, NMHDR*, LRESULT*), AFX_MESSAGE& m) {
    const auto& notify = *static_cast<AFX_NOTIFY*>(m.extra);
    return (object->*handler)(m.id, notify.pNMHDR, notify.pResult) != FALSE;
}

} // namespace afxmsg
/// @endcond

/// In a class derived from CCmdTarget: it has a message map. BEGIN_MESSAGE_MAP belongs beside the class's code. What
/// follows it in the class is protected.
/// @ingroup framework_messages
#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

/// In one source file: begins the message map of a class. Entries follow, one per line, then END_MESSAGE_MAP. Messages
/// without an entry go to the map of the base class.
/// @ingroup framework_messages
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                                                                  \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY entries[] = {

/// Ends what BEGIN_MESSAGE_MAP began.
/// @ingroup framework_messages
#define END_MESSAGE_MAP()                                                                                              \
    { 0, 0, 0, 0, nullptr, nullptr }                                                                                   \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                                         \
    return &map;                                                                                                       \
    }

/// @cond
// A plain message is handled once its handler was called; a command's unpacker says whether it was.
#define AFX_MESSAGE_THUNK(unpack, member)                                                                              \
    [](CCmdTarget* target, AFX_MESSAGE& message) -> bool {                                                             \
        afxmsg::unpack<ThisClass>(static_cast<ThisClass*>(target), member, message);                                   \
        return true;                                                                                                   \
    }
#define AFX_COMMAND_THUNK(unpack, member)                                                                              \
    [](CCmdTarget* target, AFX_MESSAGE& message) -> bool {                                                             \
        return afxmsg::unpack<ThisClass>(static_cast<ThisClass*>(target), member, message);                            \
    }
#define AFX_MESSAGE_ENTRY(message, unpack, member) {message, 0, 0, 0, AFX_MESSAGE_THUNK(unpack, member), nullptr},
#define AFX_COMMAND_ENTRY(message, code, first, last, unpack, member)                                                  \
    {message,                                                                                                          \
     static_cast<WORD>(code),                                                                                          \
     static_cast<WORD>(first),                                                                                         \
     static_cast<WORD>(last),                                                                                          \
     AFX_COMMAND_THUNK(unpack, member),                                                                                \
     nullptr},

/// @endcond

// Commands.
/// A command from a menu, accelerator or button: `void OnX()`.
/// @ingroup framework_messages
#define ON_COMMAND(id, member) AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, id, Command, member)
/// Commands `first` to `last`: `void OnX(UINT id)`.
/// @ingroup framework_messages
#define ON_COMMAND_RANGE(first, last, member) AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, first, last, CommandId, member)
/// A command: `BOOL OnX(UINT id)`; FALSE passes it on along its route.
/// @ingroup framework_messages
#define ON_COMMAND_EX(id, member) AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, id, CommandEx, member)
/// Commands `first` to `last`: `BOOL OnX(UINT id)`; FALSE passes the command on along its route.
/// @ingroup framework_messages
#define ON_COMMAND_EX_RANGE(first, last, member)                                                                       \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, first, last, CommandEx, member)
/// The user interface of a command: `void OnUpdateX(CCmdUI* pCmdUI)`, called before a menu shows and at idle time.
/// @ingroup framework_messages
#define ON_UPDATE_COMMAND_UI(id, member)                                                                               \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, UpdateCommand, member)
/// The user interface of commands `first` to `last`: `void OnUpdateX(CCmdUI* pCmdUI)`; m_nID says which.
/// @ingroup framework_messages
#define ON_UPDATE_COMMAND_UI_RANGE(first, last, member)                                                                \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, first, last, UpdateCommand, member)
/// In a control's own class, its own user interface: `void OnUpdate(CCmdUI* pCmdUI)`.
/// @ingroup framework_messages
#define ON_UPDATE_COMMAND_UI_REFLECT(member)                                                                           \
    AFX_COMMAND_ENTRY(WM_COMMAND + WM_REFLECT_BASE, CN_UPDATE_COMMAND_UI, 0, 0, UpdateCommand, member)

// Notifications of child controls, and those that come back to the control itself.
/// A notification of the child `id` by WM_COMMAND: `void OnX()`.
/// @ingroup framework_messages
#define ON_CONTROL(code, id, member) AFX_COMMAND_ENTRY(WM_COMMAND, code, id, id, Command, member)
/// A notification of the children `first` to `last` by WM_COMMAND: `void OnX(UINT id)`.
/// @ingroup framework_messages
#define ON_CONTROL_RANGE(code, first, last, member) AFX_COMMAND_ENTRY(WM_COMMAND, code, first, last, CommandId, member)
/// In a control's own class, its own notification by WM_COMMAND: `void OnX()`. The parent does not see it.
/// @ingroup framework_messages
#define ON_CONTROL_REFLECT(code, member) AFX_COMMAND_ENTRY(WM_COMMAND + WM_REFLECT_BASE, code, 0, 0, Command, member)
/// As ON_CONTROL_REFLECT with `BOOL OnX()`; FALSE lets the parent see it as well.
/// @ingroup framework_messages
#define ON_CONTROL_REFLECT_EX(code, member)                                                                            \
    AFX_COMMAND_ENTRY(WM_COMMAND + WM_REFLECT_BASE, code, 0, 0, ReflectedControlEx, member)
/// A notification of the child `id` by WM_NOTIFY: `void OnX(NMHDR* pNMHDR, LRESULT* pResult)`.
/// @ingroup framework_messages
#define ON_NOTIFY(code, id, member) AFX_COMMAND_ENTRY(WM_NOTIFY, code, id, id, Notify, member)
/// As ON_NOTIFY with `BOOL OnX(UINT id, NMHDR* pNMHDR, LRESULT* pResult)`; FALSE passes it on along its route.
/// @ingroup framework_messages
#define ON_NOTIFY_EX(code, id, member) AFX_COMMAND_ENTRY(WM_NOTIFY, code, id, id, NotifyEx, member)
/// A notification of the children `first` to `last` by WM_NOTIFY: `void OnX(UINT id, NMHDR* pNMHDR, LRESULT* pResult)`.
/// @ingroup framework_messages
#define ON_NOTIFY_RANGE(code, first, last, member) AFX_COMMAND_ENTRY(WM_NOTIFY, code, first, last, NotifyId, member)
/// In a control's own class, its own notification by WM_NOTIFY: `void OnX(NMHDR* pNMHDR, LRESULT* pResult)`. The parent
/// does not see it.
/// @ingroup framework_messages
#define ON_NOTIFY_REFLECT(code, member) AFX_COMMAND_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, code, 0, 0, Notify, member)
/// As ON_NOTIFY_REFLECT with `BOOL OnX(NMHDR* pNMHDR, LRESULT* pResult)`; FALSE lets the parent see it as well.
/// @ingroup framework_messages
#define ON_NOTIFY_REFLECT_EX(code, member)                                                                             \
    AFX_COMMAND_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, code, 0, 0, ReflectedNotifyEx, member)

/** @{ */
/// The notification of that name of the child `id`: `void OnX()`.
#define ON_BN_CLICKED(id, member) ON_CONTROL(BN_CLICKED, id, member)
#define ON_BN_DOUBLECLICKED(id, member) ON_CONTROL(BN_DOUBLECLICKED, id, member)
#define ON_EN_CHANGE(id, member) ON_CONTROL(EN_CHANGE, id, member)
#define ON_EN_UPDATE(id, member) ON_CONTROL(EN_UPDATE, id, member)
#define ON_EN_SETFOCUS(id, member) ON_CONTROL(EN_SETFOCUS, id, member)
#define ON_EN_KILLFOCUS(id, member) ON_CONTROL(EN_KILLFOCUS, id, member)
#define ON_LBN_SELCHANGE(id, member) ON_CONTROL(LBN_SELCHANGE, id, member)
#define ON_LBN_DBLCLK(id, member) ON_CONTROL(LBN_DBLCLK, id, member)
#define ON_CBN_SELCHANGE(id, member) ON_CONTROL(CBN_SELCHANGE, id, member)
#define ON_CBN_SELENDOK(id, member) ON_CONTROL(CBN_SELENDOK, id, member)
#define ON_CBN_EDITCHANGE(id, member) ON_CONTROL(CBN_EDITCHANGE, id, member)
#define ON_CBN_DROPDOWN(id, member) ON_CONTROL(CBN_DROPDOWN, id, member)
#define ON_CBN_CLOSEUP(id, member) ON_CONTROL(CBN_CLOSEUP, id, member)
#define ON_STN_CLICKED(id, member) ON_CONTROL(STN_CLICKED, id, member)
/** @} */

// Any message, by its number or by the variable that holds a registered one.
/// Any message by its number: `LRESULT OnX(WPARAM wParam, LPARAM lParam)`. The answer is the message's result.
/// @ingroup framework_messages
#define ON_MESSAGE(message, member) AFX_MESSAGE_ENTRY(message, Raw, member)
/// A message of RegisterWindowMessage by the variable of static storage that holds its number; the handler is as that
/// of ON_MESSAGE.
/// @ingroup framework_messages
#define ON_REGISTERED_MESSAGE(variable, member)                                                                        \
    {AFX_REGISTERED_MESSAGE, 0, 0, 0, AFX_MESSAGE_THUNK(Raw, member), &(variable)},

/** @{ */
/// The message of that name: calls the member of the class that has name and signature of CWnd's handler for it,
/// ON_WM_LBUTTONDOWN for example `void OnLButtonDown(UINT nFlags, CPoint point)`.
// Windows: life, size, focus, activation.
#define ON_WM_CREATE() AFX_MESSAGE_ENTRY(WM_CREATE, Create, &ThisClass::OnCreate)
#define ON_WM_NCCREATE() AFX_MESSAGE_ENTRY(WM_NCCREATE, NcCreate, &ThisClass::OnNcCreate)
#define ON_WM_DESTROY() AFX_MESSAGE_ENTRY(WM_DESTROY, Nothing, &ThisClass::OnDestroy)
#define ON_WM_NCDESTROY() AFX_MESSAGE_ENTRY(WM_NCDESTROY, Nothing, &ThisClass::OnNcDestroy)
#define ON_WM_CLOSE() AFX_MESSAGE_ENTRY(WM_CLOSE, Nothing, &ThisClass::OnClose)
#define ON_WM_SIZE() AFX_MESSAGE_ENTRY(WM_SIZE, Size, &ThisClass::OnSize)
#define ON_WM_MOVE() AFX_MESSAGE_ENTRY(WM_MOVE, Move, &ThisClass::OnMove)
#define ON_WM_SIZING() AFX_MESSAGE_ENTRY(WM_SIZING, SideAndRectangle, &ThisClass::OnSizing)
#define ON_WM_MOVING() AFX_MESSAGE_ENTRY(WM_MOVING, SideAndRectangle, &ThisClass::OnMoving)
#define ON_WM_ENTERSIZEMOVE() AFX_MESSAGE_ENTRY(WM_ENTERSIZEMOVE, Nothing, &ThisClass::OnEnterSizeMove)
#define ON_WM_EXITSIZEMOVE() AFX_MESSAGE_ENTRY(WM_EXITSIZEMOVE, Nothing, &ThisClass::OnExitSizeMove)
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    AFX_MESSAGE_ENTRY(WM_WINDOWPOSCHANGING, WindowPosition, &ThisClass::OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED() AFX_MESSAGE_ENTRY(WM_WINDOWPOSCHANGED, WindowPosition, &ThisClass::OnWindowPosChanged)
#define ON_WM_GETMINMAXINFO() AFX_MESSAGE_ENTRY(WM_GETMINMAXINFO, MinMaxInfo, &ThisClass::OnGetMinMaxInfo)
#define ON_WM_SHOWWINDOW() AFX_MESSAGE_ENTRY(WM_SHOWWINDOW, FlagAndStatus, &ThisClass::OnShowWindow)
#define ON_WM_ENABLE() AFX_MESSAGE_ENTRY(WM_ENABLE, Flag, &ThisClass::OnEnable)
#define ON_WM_SETFOCUS() AFX_MESSAGE_ENTRY(WM_SETFOCUS, FromWindow, &ThisClass::OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_MESSAGE_ENTRY(WM_KILLFOCUS, FromWindow, &ThisClass::OnKillFocus)
#define ON_WM_ACTIVATE() AFX_MESSAGE_ENTRY(WM_ACTIVATE, Activate, &ThisClass::OnActivate)
#define ON_WM_MOUSEACTIVATE() AFX_MESSAGE_ENTRY(WM_MOUSEACTIVATE, MouseActivate, &ThisClass::OnMouseActivate)
#define ON_WM_CHILDACTIVATE() AFX_MESSAGE_ENTRY(WM_CHILDACTIVATE, Nothing, &ThisClass::OnChildActivate)
#define ON_WM_CANCELMODE() AFX_MESSAGE_ENTRY(WM_CANCELMODE, Nothing, &ThisClass::OnCancelMode)
#define ON_WM_PARENTNOTIFY() AFX_MESSAGE_ENTRY(WM_PARENTNOTIFY, Notice, &ThisClass::OnParentNotify)
#define ON_WM_STYLECHANGED() AFX_MESSAGE_ENTRY(WM_STYLECHANGED, StyleChange, &ThisClass::OnStyleChanged)

// Drawing and colours.
#define ON_WM_PAINT() AFX_MESSAGE_ENTRY(WM_PAINT, Nothing, &ThisClass::OnPaint)
#define ON_WM_ERASEBKGND() AFX_MESSAGE_ENTRY(WM_ERASEBKGND, EraseBackground, &ThisClass::OnEraseBkgnd)
#define ON_WM_PRINTCLIENT() AFX_MESSAGE_ENTRY(WM_PRINTCLIENT, PrintClient, &ThisClass::OnPrintClient)
#define ON_WM_NCPAINT() AFX_MESSAGE_ENTRY(WM_NCPAINT, Nothing, &ThisClass::OnNcPaint)
#define ON_WM_NCCALCSIZE() AFX_MESSAGE_ENTRY(WM_NCCALCSIZE, NcCalcSize, &ThisClass::OnNcCalcSize)
#define ON_WM_NCHITTEST() AFX_MESSAGE_ENTRY(WM_NCHITTEST, HitTest, &ThisClass::OnNcHitTest)
#define ON_WM_NCACTIVATE() AFX_MESSAGE_ENTRY(WM_NCACTIVATE, AnswerFlag, &ThisClass::OnNcActivate)
#define ON_WM_CTLCOLOR() AFX_MESSAGE_ENTRY(WM_CTLCOLOR, ControlColor, &ThisClass::OnCtlColor)
#define ON_WM_DRAWITEM() AFX_MESSAGE_ENTRY(WM_DRAWITEM, DrawItem, &ThisClass::OnDrawItem)
#define ON_WM_MEASUREITEM() AFX_MESSAGE_ENTRY(WM_MEASUREITEM, MeasureItem, &ThisClass::OnMeasureItem)
#define ON_WM_DELETEITEM() AFX_MESSAGE_ENTRY(WM_DELETEITEM, DeleteItem, &ThisClass::OnDeleteItem)
#define ON_WM_COMPAREITEM() AFX_MESSAGE_ENTRY(WM_COMPAREITEM, CompareItem, &ThisClass::OnCompareItem)
#define ON_WM_SYSCOLORCHANGE() AFX_MESSAGE_ENTRY(WM_SYSCOLORCHANGE, Nothing, &ThisClass::OnSysColorChange)
#define ON_WM_THEMECHANGED() AFX_MESSAGE_ENTRY(WM_THEMECHANGED, AnswerNothing, &ThisClass::OnThemeChanged)
#define ON_WM_SETTINGCHANGE() AFX_MESSAGE_ENTRY(WM_SETTINGCHANGE, SettingChange, &ThisClass::OnSettingChange)
#define ON_WM_QUERYDRAGICON() AFX_MESSAGE_ENTRY(WM_QUERYDRAGICON, AnswerCursor, &ThisClass::OnQueryDragIcon)

// Mouse.
#define ON_WM_MOUSEMOVE() AFX_MESSAGE_ENTRY(WM_MOUSEMOVE, Mouse, &ThisClass::OnMouseMove)
#define ON_WM_MOUSEWHEEL() AFX_MESSAGE_ENTRY(WM_MOUSEWHEEL, Wheel, &ThisClass::OnMouseWheel)
#define ON_WM_MOUSEHWHEEL() AFX_MESSAGE_ENTRY(WM_MOUSEHWHEEL, HWheel, &ThisClass::OnMouseHWheel)
#define ON_WM_MOUSELEAVE() AFX_MESSAGE_ENTRY(WM_MOUSELEAVE, Nothing, &ThisClass::OnMouseLeave)
#define ON_WM_LBUTTONDOWN() AFX_MESSAGE_ENTRY(WM_LBUTTONDOWN, Mouse, &ThisClass::OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MESSAGE_ENTRY(WM_LBUTTONUP, Mouse, &ThisClass::OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_MESSAGE_ENTRY(WM_LBUTTONDBLCLK, Mouse, &ThisClass::OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_MESSAGE_ENTRY(WM_RBUTTONDOWN, Mouse, &ThisClass::OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_MESSAGE_ENTRY(WM_RBUTTONUP, Mouse, &ThisClass::OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_MESSAGE_ENTRY(WM_RBUTTONDBLCLK, Mouse, &ThisClass::OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_MESSAGE_ENTRY(WM_MBUTTONDOWN, Mouse, &ThisClass::OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_MESSAGE_ENTRY(WM_MBUTTONUP, Mouse, &ThisClass::OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() AFX_MESSAGE_ENTRY(WM_MBUTTONDBLCLK, Mouse, &ThisClass::OnMButtonDblClk)
#define ON_WM_NCMOUSEMOVE() AFX_MESSAGE_ENTRY(WM_NCMOUSEMOVE, Mouse, &ThisClass::OnNcMouseMove)
#define ON_WM_NCLBUTTONDOWN() AFX_MESSAGE_ENTRY(WM_NCLBUTTONDOWN, Mouse, &ThisClass::OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFX_MESSAGE_ENTRY(WM_NCLBUTTONUP, Mouse, &ThisClass::OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() AFX_MESSAGE_ENTRY(WM_NCLBUTTONDBLCLK, Mouse, &ThisClass::OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() AFX_MESSAGE_ENTRY(WM_NCRBUTTONDOWN, Mouse, &ThisClass::OnNcRButtonDown)
#define ON_WM_SETCURSOR() AFX_MESSAGE_ENTRY(WM_SETCURSOR, SetCursor, &ThisClass::OnSetCursor)
#define ON_WM_CAPTURECHANGED() AFX_MESSAGE_ENTRY(WM_CAPTURECHANGED, ToWindow, &ThisClass::OnCaptureChanged)
#define ON_WM_CONTEXTMENU() AFX_MESSAGE_ENTRY(WM_CONTEXTMENU, ContextMenu, &ThisClass::OnContextMenu)
#define ON_WM_DROPFILES() AFX_MESSAGE_ENTRY(WM_DROPFILES, DropFiles, &ThisClass::OnDropFiles)

// Keyboard, scroll bars, timers.
#define ON_WM_KEYDOWN() AFX_MESSAGE_ENTRY(WM_KEYDOWN, Key, &ThisClass::OnKeyDown)
#define ON_WM_KEYUP() AFX_MESSAGE_ENTRY(WM_KEYUP, Key, &ThisClass::OnKeyUp)
#define ON_WM_CHAR() AFX_MESSAGE_ENTRY(WM_CHAR, Key, &ThisClass::OnChar)
#define ON_WM_SYSKEYDOWN() AFX_MESSAGE_ENTRY(WM_SYSKEYDOWN, Key, &ThisClass::OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_MESSAGE_ENTRY(WM_SYSKEYUP, Key, &ThisClass::OnSysKeyUp)
#define ON_WM_SYSCHAR() AFX_MESSAGE_ENTRY(WM_SYSCHAR, Key, &ThisClass::OnSysChar)
#define ON_WM_GETDLGCODE() AFX_MESSAGE_ENTRY(WM_GETDLGCODE, AnswerUint, &ThisClass::OnGetDlgCode)
#define ON_WM_HSCROLL() AFX_MESSAGE_ENTRY(WM_HSCROLL, Scroll, &ThisClass::OnHScroll)
#define ON_WM_VSCROLL() AFX_MESSAGE_ENTRY(WM_VSCROLL, Scroll, &ThisClass::OnVScroll)
#define ON_WM_TIMER() AFX_MESSAGE_ENTRY(WM_TIMER, Timer, &ThisClass::OnTimer)

// Menus.
#define ON_WM_INITMENU() AFX_MESSAGE_ENTRY(WM_INITMENU, InitMenu, &ThisClass::OnInitMenu)
#define ON_WM_INITMENUPOPUP() AFX_MESSAGE_ENTRY(WM_INITMENUPOPUP, InitMenuPopup, &ThisClass::OnInitMenuPopup)
#define ON_WM_MENUSELECT() AFX_MESSAGE_ENTRY(WM_MENUSELECT, MenuSelect, &ThisClass::OnMenuSelect)
#define ON_WM_MENUCHAR() AFX_MESSAGE_ENTRY(WM_MENUCHAR, MenuChar, &ThisClass::OnMenuChar)
#define ON_WM_ENTERIDLE() AFX_MESSAGE_ENTRY(WM_ENTERIDLE, EnterIdle, &ThisClass::OnEnterIdle)
#define ON_WM_ENTERMENULOOP() AFX_MESSAGE_ENTRY(WM_ENTERMENULOOP, Flag, &ThisClass::OnEnterMenuLoop)
#define ON_WM_EXITMENULOOP() AFX_MESSAGE_ENTRY(WM_EXITMENULOOP, Flag, &ThisClass::OnExitMenuLoop)
#define ON_WM_SYSCOMMAND() AFX_MESSAGE_ENTRY(WM_SYSCOMMAND, SystemCommand, &ThisClass::OnSysCommand)

/** @} */

// Messages that the parent hands back to the control that caused them.
/// In a control's own class, its own colours: `HBRUSH CtlColor(CDC* pDC, UINT nCtlColor)`. Null leaves them to the
/// parent.
/// @ingroup framework_messages
#define ON_WM_CTLCOLOR_REFLECT() AFX_MESSAGE_ENTRY(WM_CTLCOLOR + WM_REFLECT_BASE, ReflectedColor, &ThisClass::CtlColor)
/// In a control's own class, one of its items has to be drawn: `void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)`.
/// @ingroup framework_messages
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    AFX_MESSAGE_ENTRY(WM_DRAWITEM + WM_REFLECT_BASE, ReflectedDrawItem, &ThisClass::DrawItem)
/// In a control's own class, the size of its items: `void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)`.
/// @ingroup framework_messages
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    AFX_MESSAGE_ENTRY(WM_MEASUREITEM + WM_REFLECT_BASE, ReflectedMeasureItem, &ThisClass::MeasureItem)
/// In a horizontal scroll bar's own class: `void HScroll(UINT nSBCode, UINT nPos)`.
/// @ingroup framework_messages
#define ON_WM_HSCROLL_REFLECT() AFX_MESSAGE_ENTRY(WM_HSCROLL + WM_REFLECT_BASE, ReflectedScroll, &ThisClass::HScroll)
/// In a vertical scroll bar's own class: `void VScroll(UINT nSBCode, UINT nPos)`.
/// @ingroup framework_messages
#define ON_WM_VSCROLL_REFLECT() AFX_MESSAGE_ENTRY(WM_VSCROLL + WM_REFLECT_BASE, ReflectedScroll, &ThisClass::VScroll)
