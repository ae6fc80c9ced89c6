// What the clipboard holds, and a clipboard that somebody else has open.
#pragma once

#include <windows.h>

#include <string>

namespace ClipboardContent {

void Clear();
/// Only this text is on the clipboard then.
void Put(const std::wstring& text);
/// Only these bytes are on the clipboard then, in that format.
void Put(UINT format, const std::string& bytes);
/// The Unicode text, up to its NUL; empty when there is none.
std::wstring Text();
/// The bytes of the format, up to a NUL; empty when there are none.
std::string Bytes(UINT format);
/// The size of the format's memory; 0 when there is none.
std::size_t Size(UINT format);

/// As long as one lives, a window of another thread has the clipboard open.
class HeldByAnother {
public:
    HeldByAnother();
    ~HeldByAnother();
    HeldByAnother(const HeldByAnother&) = delete;
    HeldByAnother& operator=(const HeldByAnother&) = delete;

private:
    HANDLE m_held, m_release, m_thread;
};

} // namespace ClipboardContent
