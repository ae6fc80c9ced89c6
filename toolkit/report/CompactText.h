// A text that takes one pointer, for objects of which there are millions.
#pragma once

#include "../common/Export.h"

#include <afxwin.h>

/// Immutable characters that copies share; an empty text takes no memory at all. Texts of record items are kept so: a
/// `CString` would take four times the room. Ends at the first NUL.
class KY_TOOLKIT_API CompactText {
public:
    CompactText() = default;
    explicit CompactText(LPCWSTR text);
    CompactText(const CompactText& other) noexcept;
    CompactText(CompactText&& other) noexcept : m_block(other.m_block) { other.m_block = nullptr; }
    ~CompactText();
    CompactText& operator=(const CompactText& other) noexcept;
    CompactText& operator=(CompactText&& other) noexcept;
    CompactText& operator=(LPCWSTR text);

    /// The text as one that all callers with the same characters share. For texts that many objects have in common,
    /// such as number formats.
    static CompactText Interned(LPCWSTR text);

    BOOL IsEmpty() const noexcept { return m_block == nullptr; }
    int GetLength() const noexcept; ///< UTF-16 units
    /// Never null; lives until the text is changed or destroyed.
    LPCWSTR GetString() const noexcept;
    operator CString() const { return CString(GetString(), GetLength()); }
    void Empty() noexcept { *this = CompactText(); }

private:
    struct Block;
    bool IsOnlyOwner() const noexcept;
    void Release() noexcept;

    Block* m_block = nullptr;
};
