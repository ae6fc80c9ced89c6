// Feeds texts to the reader of tables that are pasted.
#include "report/TabText.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void Require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "tab text: %s\n", what);
        std::abort();
    }
}

std::wstring Written(const std::vector<tabtext::Row>& rows) {
    std::wstring text;
    for (const tabtext::Row& row : rows) {
        tabtext::RowWriter writer(text);
        for (const std::wstring& cell : row)
            writer.Add(cell);
        writer.End();
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Two bytes are one UTF-16 unit, as on Windows.
    std::wstring text;
    for (std::size_t i = 0; i + 1 < size; i += 2)
        text.push_back(static_cast<wchar_t>(data[i] | data[i + 1] << 8));

    const std::vector<tabtext::Row> rows = tabtext::Parse(text);
    Require(rows.empty() == text.empty(), "rows come of a text, and of nothing else");
    std::size_t characters = 0, cells = 0;
    for (const tabtext::Row& row : rows) {
        Require(!row.empty(), "a row without cells");
        cells += row.size();
        for (const std::wstring& cell : row)
            characters += cell.size();
    }
    Require(characters <= text.size(), "more characters than there were");
    Require(cells <= text.size() + 1, "more cells than there can be");
    Require(tabtext::Parse(Written(rows)) == rows, "written, it reads otherwise");
    return 0;
}
