// Writes the table that the benchmark of Column Profiler reads: profiler_data ROWS MISSING >FILE.csv
// Ten columns, the same bytes at every call. MISSING is the text of a cell without a value, which may be empty.
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>
#include <string>

namespace {

/// Only whole numbers are drawn and added up, so that every machine writes the same.
class Cells {
public:
    explicit Cells(std::string missing) : m_missing(std::move(missing)) {}

    void Row(std::int64_t row, std::string& line) {
        AppendInteger(line, row + 1);
        AppendDate(line, row);
        line += ',';
        line += Towns[m_engine() % std::size(Towns)];
        AppendFixed(line, Uniform(100'000'000), 4);                   // evenly spread
        AppendFixed(line, Bell(2'000'000'000), 6);                    // bell-shaped
        AppendFixed(line, Bell(900'000'000) - 450'000'000, 6);        // around zero
        AppendFixed(line, Skewed(), 3);                               // many small, a few large
        AppendFixed(line, 1'000'000'000'000 + Uniform(1'000'000), 4); // a large offset
        AppendSometimes(line, Uniform(1'000'000'000), 5, 20);         // one in twenty missing
        AppendSometimes(line, Uniform(40'000) - 20'000, 1, 2);        // every second one missing, many ties
        line += '\n';
    }

private:
    static constexpr const char* Towns[] = {"Bergen", "Kyoto", "La Paz", "Lyon", "Oslo", "Quito", "Riga", "Turin"};

    std::int64_t Uniform(std::int64_t end) { return static_cast<std::int64_t>(m_engine() % std::uint64_t(end)); }
    std::int64_t Bell(std::int64_t end) {
        std::int64_t sum = 0;
        for (int i = 0; i < 8; ++i)
            sum += Uniform(end / 8);
        return sum;
    }
    std::int64_t Skewed() {
        const std::int64_t part = Uniform(100'000);
        return part * part / 10'000 * part / 1000;
    }

    static void AppendInteger(std::string& line, std::int64_t value) {
        char text[24];
        line.append(text, std::to_chars(text, text + sizeof text, value).ptr);
    }
    static void AppendPadded(std::string& line, std::int64_t value, int digits) {
        char text[24];
        const auto length = std::to_chars(text, text + sizeof text, value).ptr - text;
        line.append(static_cast<std::size_t>(std::max<std::ptrdiff_t>(digits - length, 0)), '0');
        line.append(text, static_cast<std::size_t>(length));
    }
    /// A field with `value` / 10^`decimals`.
    static void AppendFixed(std::string& line, std::int64_t value, int decimals) {
        line += ',';
        if (value < 0)
            line += '-';
        std::int64_t unit = 1;
        for (int i = 0; i < decimals; ++i)
            unit *= 10;
        AppendInteger(line, std::abs(value) / unit);
        line += '.';
        AppendPadded(line, std::abs(value) % unit, decimals);
    }
    void AppendSometimes(std::string& line, std::int64_t value, int decimals, std::uint64_t oneIn) {
        if (m_engine() % oneIn != 0)
            return AppendFixed(line, value, decimals);
        line += ',';
        line += m_missing;
    }
    static void AppendDate(std::string& line, std::int64_t row) {
        const std::int64_t day = row / 400; // months of 28 days
        line += ',';
        AppendPadded(line, 2010 + day / 336, 4);
        line += '-';
        AppendPadded(line, day / 28 % 12 + 1, 2);
        line += '-';
        AppendPadded(line, day % 28 + 1, 2);
    }

    std::string m_missing;
    std::mt19937_64 m_engine{1};
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: profiler_data ROWS MISSING >FILE.csv\n", stderr);
        return 2;
    }
    const std::int64_t rows = std::atoll(argv[1]);
    Cells cells(argv[2]);
    std::string block = "id,day,town,even,bell,balanced,skewed,offset,gaps,ties\n";
    for (std::int64_t row = 0; row < rows; ++row) {
        cells.Row(row, block);
        if (block.size() > 1'000'000 || row + 1 == rows) {
            if (std::fwrite(block.data(), 1, block.size(), stdout) != block.size())
                return 1;
            block.clear();
        }
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}
