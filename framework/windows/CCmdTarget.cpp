// CCmdTarget.cpp - finds the handler of a command in the message maps of an object's class and its bases.
#include <afxwin.h>

#include "WindowState.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY none{};
    static const AFX_MSGMAP map = {nullptr, &none};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

namespace {

const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id) {
    for (; map != nullptr; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nMessage != 0; ++entry) {
            if (entry->nMessage == message && entry->nCode == code && id >= entry->nID && id <= entry->nLastID)
                return entry;
        }
    }
    return nullptr;
}

} // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    UINT kind = nCode == CN_UPDATE_COMMAND_UI ? 0 : HIWORD(nCode);
    if (kind == 0)
        kind = WM_COMMAND;
    const UINT code = LOWORD(nCode);
    const AFX_MSGMAP_ENTRY* const entry = FindEntry(GetMessageMap(), kind, code, nID);
    if (entry == nullptr)
        return FALSE;
    if (pHandlerInfo != nullptr) {
        *pHandlerInfo = {this, entry->pfnThunk};
        return TRUE;
    }

    AFX_MESSAGE message;
    message.message = kind;
    message.id = nID;
    message.extra = pExtra;
    const bool isCommand = kind == WM_COMMAND || kind == WM_COMMAND + WM_REFLECT_BASE;
    const bool isUpdate = isCommand && code == static_cast<WORD>(CN_UPDATE_COMMAND_UI);
    if (!isUpdate)
        return entry->pfnThunk(this, message);
    auto& item = *static_cast<CCmdUI*>(pExtra);
    item.m_bContinueRouting = FALSE;
    entry->pfnThunk(this, message);
    return !std::exchange(item.m_bContinueRouting, FALSE);
}

void CCmdTarget::BeginWaitCursor() {
    WindowState& state = WindowState::Current();
    const HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    if (state.waitCursors++ == 0)
        state.cursorBeforeWait = before;
}

void CCmdTarget::EndWaitCursor() {
    WindowState& state = WindowState::Current();
    if (state.waitCursors > 0 && --state.waitCursors == 0)
        ::SetCursor(state.cursorBeforeWait);
}

void CCmdTarget::RestoreWaitCursor() {
    if (WindowState::Current().waitCursors > 0)
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
}

namespace {

// Somebody to ask when the program has no application object.
class CWaitCursorTarget : public CCmdTarget {};

CCmdTarget& WaitCursorTarget() {
    static CWaitCursorTarget target;
    return target;
}

} // namespace

CWaitCursor::CWaitCursor() { WaitCursorTarget().BeginWaitCursor(); }
CWaitCursor::~CWaitCursor() { WaitCursorTarget().EndWaitCursor(); }
void CWaitCursor::Restore() { WaitCursorTarget().RestoreWaitCursor(); }
