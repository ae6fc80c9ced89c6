// What the clipboard holds, and a clipboard that somebody else has open.
#include "ClipboardContent.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace ClipboardContent {
namespace {

/// The clipboard, opened by a window of its own: without one, what is put there has no owner.
class Opened {
public:
    Opened() {
        m_window = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        // The system's own clipboard manager opens it for moments.
        for (int i = 0; i < 100 && !(m_isOpen = ::OpenClipboard(m_window)); ++i)
            ::Sleep(10);
        EXPECT_TRUE(m_isOpen);
    }
    ~Opened() {
        if (m_isOpen)
            ::CloseClipboard();
        ::DestroyWindow(m_window);
    }

private:
    HWND m_window;
    BOOL m_isOpen;
};

/// All bytes of the format.
std::string All(UINT format) {
    const Opened opened;
    const HANDLE block = ::GetClipboardData(format);
    if (block == nullptr)
        return {};
    const std::string bytes(static_cast<const char*>(::GlobalLock(block)), ::GlobalSize(block));
    ::GlobalUnlock(block);
    return bytes;
}

struct Holder {
    HANDLE held, release;
};

DWORD WINAPI Hold(void* parameter) {
    const Holder holder = *static_cast<Holder*>(parameter);
    {
        const Opened opened;
        ::SetEvent(holder.held);
        ::WaitForSingleObject(holder.release, INFINITE);
    }
    return 0;
}

} // namespace

void Clear() {
    const Opened opened;
    ::EmptyClipboard();
}

void Put(UINT format, const std::string& bytes) {
    const Opened opened;
    ::EmptyClipboard();
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, std::max<std::size_t>(bytes.size(), 1));
    std::memcpy(::GlobalLock(block), bytes.data(), bytes.size());
    ::GlobalUnlock(block);
    ::SetClipboardData(format, block);
}

void Put(const std::wstring& text) {
    Put(CF_UNICODETEXT, std::string(reinterpret_cast<const char*>(text.c_str()), (text.size() + 1) * sizeof(wchar_t)));
}

std::wstring Text() {
    const std::string bytes = All(CF_UNICODETEXT);
    const std::wstring text(reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t));
    return text.substr(0, text.find(L'\0'));
}

std::string Bytes(UINT format) {
    const std::string bytes = All(format);
    return bytes.substr(0, bytes.find('\0'));
}

std::size_t Size(UINT format) { return All(format).size(); }

HeldByAnother::HeldByAnother()
    : m_held(::CreateEventW(nullptr, TRUE, FALSE, nullptr)), m_release(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    Holder holder{m_held, m_release};
    m_thread = ::CreateThread(nullptr, 0, &Hold, &holder, 0, nullptr);
    ::WaitForSingleObject(m_held, INFINITE); // `holder` was read before
}

HeldByAnother::~HeldByAnother() {
    ::SetEvent(m_release);
    ::WaitForSingleObject(m_thread, INFINITE);
    for (const HANDLE handle : {m_thread, m_release, m_held})
        ::CloseHandle(handle);
}

} // namespace ClipboardContent
