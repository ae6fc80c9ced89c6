/// @file
/// A text that takes one pointer, for objects of which there are millions.
#pragma once

#include "../common/Export.h"

#include <afxwin.h>

/// Immutable characters that copies share; an empty text takes no memory at all. Texts of record items are kept so: a
/// `CString` would take four times the room. Ends at the first NUL.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CompactText {
public:
    CompactText() = default;
    /// Copies the characters; null is the empty text. Throws std::bad_alloc.
    explicit CompactText(LPCWSTR text);
    /// Shares the characters of the other one.
    CompactText(const CompactText& other) noexcept;
    /// Leaves the other one empty.
    CompactText(CompactText&& other) noexcept : m_block(other.m_block) { other.m_block = nullptr; }
    ~CompactText();
    CompactText& operator=(const CompactText& other) noexcept; ///< shares the characters of the other one
    CompactText& operator=(CompactText&& other) noexcept;      ///< leaves the other one empty
    /// Copies the characters; other texts that shared the former ones keep them. Null is the empty text.
    CompactText& operator=(LPCWSTR text);

    /// The text as one that all callers with the same characters share. For texts that many objects have in common,
    /// such as number formats.
    static CompactText Interned(LPCWSTR text);

    /// True for a text without characters, which is also what holds no memory.
    BOOL IsEmpty() const noexcept { return m_block == nullptr; }
    int GetLength() const noexcept; ///< UTF-16 units
    /// Never null; lives until the text is changed or destroyed.
    LPCWSTR GetString() const noexcept;
    /// A copy that lives on its own.
    operator CString() const { return CString(GetString(), GetLength()); }
    /// Gives up this text's share of the characters.
    void Empty() noexcept { *this = CompactText(); }

private:
    struct Block;
    bool IsOnlyOwner() const noexcept;
    void Release() noexcept;

    Block* m_block = nullptr;
};
