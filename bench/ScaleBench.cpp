// What the grid does with all of a million records of five items, beside the plainest loop over a vector of the same
// data, and how the times grow from a hundred thousand records to a million. A program of its own, because both keep
// their records for all figures.
#include "BenchPicture.h"
#include "Measure.h"
#include "Results.h"

#include <XTToolkitPro.h>

#include <algorithm>
#include <cmath>
#include <cwctype>
#include <functional>
#include <numeric>
#include <random>
#include <string>
#include <unordered_map>

namespace {

constexpr Results::Unit Milliseconds{"ms", 1};
constexpr Results::Unit Ratio{"", 2};

constexpr int Few = 100'000, Many = 1'000'000;
constexpr int Groups = 100;
constexpr const wchar_t* Wanted = L"ra 12";

/// The data of a record, as a host without a grid keeps it.
struct Row {
    std::wstring name, group, place;
    double number, share;
};

std::vector<Row> MakeRows(int count) {
    std::mt19937 random(5);
    std::vector<std::uint32_t> mixed(static_cast<std::size_t>(count));
    std::iota(mixed.begin(), mixed.end(), 0U);
    std::shuffle(mixed.begin(), mixed.end(), random);
    std::vector<Row> rows;
    rows.reserve(mixed.size());
    for (const std::uint32_t n : mixed) {
        const int group = static_cast<int>(n % Groups);
        rows.push_back({L"Terra " + std::to_wstring(n), L"group " + std::to_wstring(group),
                        L"place " + std::to_wstring(n % 1009), n / 7.0, (n % 997) / 997.0});
    }
    return rows;
}

/// A control that allows everything.
class Grid : public CXTPReportControl {
public:
    BOOL CanCut() override { return TRUE; }
    BOOL CanPaste() override { return TRUE; }
};

/// The grid in its window with the records.
class Contestant {
public:
    explicit Contestant(const std::vector<Row>& rows) {
        const CRect rc(0, 0, benchpicture::ViewWidth, benchpicture::ViewHeight);
        m_owner.CreateEx(0, AfxRegisterWndClass(0), _T("scale"), WS_POPUP | WS_VISIBLE, rc, nullptr, 0);
        grid.Create(WS_CHILD | WS_VISIBLE, rc, &m_owner, 1);
        for (const wchar_t* const caption : {L"Name", L"Group", L"Place", L"Number", L"Share"})
            grid.AddColumn(new CXTPReportColumn(grid.GetColumns()->GetCount(), caption, 150, FALSE));
        for (const int number : {3, 4})
            Column(number)->SetFiltrable(FALSE); // the bare loop looks for texts as well
        for (const Row& row : rows) {
            auto* const record = new CXTPReportRecord;
            record->AddItem(new CXTPReportRecordItemText(row.name.c_str()));
            record->AddItem(new CXTPReportRecordItemText(row.group.c_str()));
            record->AddItem(new CXTPReportRecordItemText(row.place.c_str()));
            record->AddItem(new CXTPReportRecordItemNumber(row.number, _T("%.1f")));
            record->AddItem(new CXTPReportRecordItemNumber(row.share, _T("%.3f")));
            grid.AddRecord(record);
        }
        Show();
    }
    ~Contestant() {
        grid.DestroyWindow();
        m_owner.DestroyWindow();
    }

    CXTPReportColumn* Column(int index) { return grid.GetColumns()->GetAt(index); }
    void Show() {
        grid.Populate();
        Paint();
    }
    void Paint() {
        grid.UpdateWindow();
        ::GdiFlush();
    }

    Grid grid;

private:
    CWnd m_owner;
};

/// How fast a time may grow with the records.
enum class Growth { Linear, Sorting };

/// Something done by the grid and by a loop. `reset` puts the grid back, outside of the time.
struct Contest {
    const char* name;
    std::function<void(Contestant&)> grid;
    std::function<void(Contestant&)> reset;
    std::function<std::size_t(const std::vector<Row>&)> loop; ///< returns something that depends on all it does
    Growth growth;
};

std::size_t sink = 0; // what loops return, so that they are not left out

using Order = std::vector<std::uint32_t>;
Order AllOf(const std::vector<Row>& rows) {
    Order order(rows.size());
    std::iota(order.begin(), order.end(), 0U);
    return order;
}

std::size_t SortLoop(const std::vector<Row>& rows) {
    Order order = AllOf(rows);
    std::stable_sort(order.begin(), order.end(), [&rows](auto a, auto b) { return rows[a].number < rows[b].number; });
    return order[0];
}

std::size_t SortByTwoLoop(const std::vector<Row>& rows) {
    Order order = AllOf(rows);
    std::stable_sort(order.begin(), order.end(), [&rows](auto a, auto b) {
        if (rows[a].share != rows[b].share)
            return rows[a].share < rows[b].share;
        return rows[a].number < rows[b].number;
    });
    return order[0];
}

std::size_t GroupLoop(const std::vector<Row>& rows) {
    std::unordered_map<std::wstring, Order> groups;
    for (std::uint32_t i = 0; i < rows.size(); ++i)
        groups[rows[i].group].push_back(i);
    return groups.size();
}

bool Has(const std::wstring& text, const std::wstring& wanted) {
    return std::search(text.begin(), text.end(), wanted.begin(), wanted.end(),
                       [](wchar_t a, wchar_t b) { return std::towlower(a) == std::towlower(b); }) != text.end();
}

std::size_t FilterLoop(const std::vector<Row>& rows) {
    Order kept;
    const std::wstring words[] = {L"ra", L"12"};
    for (std::uint32_t i = 0; i < rows.size(); ++i)
        if (std::all_of(std::begin(words), std::end(words), [&](const std::wstring& word) {
                return Has(rows[i].name, word) || Has(rows[i].group, word) || Has(rows[i].place, word);
            }))
            kept.push_back(i);
    return kept.size();
}

/// The groups' members behind their heads.
std::size_t ExpandLoop(const std::vector<Row>& rows) {
    std::vector<Order> members(Groups);
    for (std::uint32_t i = 0; i < rows.size(); ++i)
        members[i % Groups].push_back(i);
    Order shown;
    for (std::uint32_t group = 0; group < Groups; ++group) {
        shown.push_back(group);
        shown.insert(shown.end(), members[group].begin(), members[group].end());
    }
    return shown.size();
}

std::size_t SelectLoop(const std::vector<Row>& rows) { return std::vector<bool>(rows.size(), true).size(); }

std::wstring TextOf(const std::vector<Row>& rows, std::size_t first, std::size_t count) {
    std::wstring text;
    wchar_t number[64];
    for (std::size_t i = first; i < first + count; ++i) {
        const Row& row = rows[i];
        text.append(row.name).append(L"\t").append(row.group).append(L"\t").append(row.place);
        text.append(number, static_cast<std::size_t>(
                                std::swprintf(number, std::size(number), L"\t%.1f\t%.3f\r\n", row.number, row.share)));
    }
    return text;
}

HWND clipboardOwner = nullptr; ///< a window, for the loops

void PutOnClipboard(const std::wstring& text) {
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(::GlobalLock(block)));
    ::GlobalUnlock(block);
    ::OpenClipboard(clipboardOwner);
    ::EmptyClipboard();
    ::SetClipboardData(CF_UNICODETEXT, block);
    ::CloseClipboard();
}

std::size_t CopyLoop(const std::vector<Row>& rows) {
    PutOnClipboard(TextOf(rows, 0, rows.size()));
    return 0;
}

/// A tenth of the rows leaves the middle and comes back as texts.
std::size_t CutLoop(const std::vector<Row>& rows) {
    static std::vector<Row> kept; // of one size after the other
    if (kept.size() != rows.size())
        kept = rows;
    const std::size_t first = kept.size() / 2, count = kept.size() / 10;
    PutOnClipboard(TextOf(kept, first, count));
    const std::vector<Row> cut(kept.begin() + static_cast<std::ptrdiff_t>(first),
                               kept.begin() + static_cast<std::ptrdiff_t>(first + count));
    kept.erase(kept.begin() + static_cast<std::ptrdiff_t>(first),
               kept.begin() + static_cast<std::ptrdiff_t>(first + count));
    kept.insert(kept.begin() + static_cast<std::ptrdiff_t>(first), cut.begin(), cut.end());
    return kept.size();
}

void Nothing(Contestant&) {}

std::vector<Contest> Contests() {
    const auto ungroup = [](Contestant& on) {
        on.grid.GetColumns()->GetGroupsOrder()->Clear();
        on.Show();
    };
    const auto unsort = [](Contestant& on) {
        on.grid.GetColumns()->ResetSortOrder();
        on.Show();
    };
    const auto group = [](Contestant& on) {
        CXTPReportColumnOrder& groups = *on.grid.GetColumns()->GetGroupsOrder();
        if (groups.GetCount() > 0)
            return;
        groups.Add(on.Column(1), TRUE);
        on.grid.Populate();
    };
    const auto cutTenth = [](Contestant& on) {
        const int count = on.grid.GetRows()->GetCount();
        on.grid.SetFocusedRow(on.grid.GetRows()->GetAt(count / 2));
        on.grid.GetSelectedRows()->SelectBlock(count / 2, count / 2 + count / 10 - 1, TRUE);
        on.grid.Cut();
        on.grid.Paste();
    };
    const auto selectAll = [](Contestant& on) {
        on.grid.GetSelectedRows()->SelectBlock(0, on.grid.GetRows()->GetCount() - 1, TRUE);
    };
    return {
        {"populated and shown", [](Contestant& on) { on.Show(); }, Nothing,
         [](const std::vector<Row>& rows) { return AllOf(rows).size(); }, Growth::Linear},
        {"sorted by a number and shown",
         [](Contestant& on) {
             on.grid.GetColumns()->SetSortColumn(on.Column(3), TRUE);
             on.Show();
         },
         unsort, SortLoop, Growth::Sorting},
        {"sorted by two numbers and shown",
         [](Contestant& on) {
             on.grid.GetColumns()->SetSortColumn(on.Column(4), TRUE);
             on.grid.GetColumns()->GetSortOrder()->Add(on.Column(3), TRUE);
             on.Show();
         },
         unsort, SortByTwoLoop, Growth::Sorting},
        {"grouped by a text of 100 values and shown",
         [](Contestant& on) {
             on.grid.GetColumns()->GetGroupsOrder()->Add(on.Column(1), TRUE);
             on.Show();
         },
         ungroup, GroupLoop, Growth::Linear},
        {"filtered by two words and shown",
         [](Contestant& on) {
             on.grid.SetFilterText(Wanted);
             on.Show();
         },
         [](Contestant& on) {
             on.grid.SetFilterText(_T(""));
             on.Show();
         },
         FilterLoop, Growth::Linear},
        {"all selected and shown",
         [selectAll](Contestant& on) {
             selectAll(on);
             on.Paint();
         },
         [](Contestant& on) { on.grid.GetSelectedRows()->Clear(); }, SelectLoop, Growth::Linear},
        {"all selected and copied",
         [selectAll](Contestant& on) {
             selectAll(on);
             on.grid.Copy();
         },
         [](Contestant& on) { on.grid.GetSelectedRows()->Clear(); }, CopyLoop, Growth::Linear},
        {"a tenth cut from the middle and pasted there", cutTenth,
         [](Contestant& on) { on.grid.GetSelectedRows()->Clear(); }, CutLoop, Growth::Linear},
        // The last two leave the grid grouped.
        {"the same among 100 groups", cutTenth,
         [group](Contestant& on) {
             group(on);
             on.grid.GetSelectedRows()->Clear();
         },
         CutLoop, Growth::Linear},
        {"100 groups, all of them expanded and shown",
         [](Contestant& on) {
             on.grid.ExpandAll();
             on.Paint();
         },
         [group](Contestant& on) {
             group(on);
             on.grid.CollapseAll();
             on.Paint();
         },
         ExpandLoop, Growth::Linear},
    };
}

struct Times {
    double grid, loop; ///< milliseconds, medians
};

Times Measure(const Contest& contest, Contestant& contestant, const std::vector<Row>& rows) {
    constexpr int rounds = 5;
    std::vector<double> grid, loop;
    contest.reset(contestant);
    // The two take turns, so that a passing load of the machine meets both.
    for (int round = 0; round < rounds; ++round) {
        grid.push_back(measure::Microseconds(1, [&](int) { contest.grid(contestant); }) / 1000);
        contest.reset(contestant);
        loop.push_back(measure::Microseconds(1, [&](int) { sink += contest.loop(rows); }) / 1000);
    }
    return {measure::Median(grid), measure::Median(loop)};
}

/// Milliseconds of a page down in the middle of the rows.
double PageTime(Contestant& contestant) {
    const int middle = contestant.grid.GetRows()->GetCount() / 2, page = contestant.grid.GetFullyVisibleRowCount();
    std::vector<double> times;
    for (int i = 0; i < 100; ++i)
        times.push_back(measure::Microseconds(1,
                                              [&](int) {
                                                  contestant.grid.SetTopRow(middle + i * page);
                                                  contestant.Paint();
                                              }) /
                        1000);
    return measure::Median(times);
}

/// What previews cost: reading the texts, and another width of the window.
void MeasurePreviews(Results& results, Contestant& contestant) {
    CXTPReportRecords& records = *contestant.grid.GetRecords();
    for (int i = 0; i < records.GetCount(); ++i) {
        CString text = _T("A preview of some words that say more than the cells above it, and which are wrapped into ");
        text.Append(records.GetAt(i)->GetItem(0)->GetCaption(nullptr));
        records.GetAt(i)->SetPreviewItem(new CXTPReportRecordItemPreview(text));
    }
    const double plain = measure::Microseconds(3, [&](int) { contestant.Show(); }) / 1000;
    contestant.grid.EnablePreviewMode(TRUE);
    const double read = measure::Microseconds(3, [&](int) { contestant.Show(); }) / 1000;
    std::vector<double> widths;
    for (int i = 0; i < 21; ++i)
        widths.push_back(measure::Microseconds(1,
                                               [&](int) {
                                                   contestant.grid.SetWindowPos(nullptr, 0, 0, 400 + 7 * i,
                                                                                benchpicture::ViewHeight,
                                                                                SWP_NOMOVE | SWP_NOZORDER);
                                                   contestant.Paint();
                                               }) /
                         1000);
    const double removed = measure::Microseconds(100, [&](int) { records.RemoveAt(records.GetCount() / 2); }) / 1000;
    contestant.grid.EnablePreviewMode(FALSE);
    const double removedPlain =
        measure::Microseconds(100, [&](int) { records.RemoveAt(records.GetCount() / 2); }) / 1000;
    results.Begin("A million previews", {"median", "figure", "at most", ""});
    results.Inform("populated and shown without them", plain, Milliseconds);
    results.Inform("populated and shown with them", read, Milliseconds);
    results.AtMost("another width of the window", measure::Median(widths), 50, Milliseconds);
    results.Inform("a record removed without previews", removedPlain, Milliseconds);
    results.AtMost("a record removed with them, times as long", removed / removedPlain, 2, Ratio);
}

} // namespace

int main() {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    ::SetConsoleOutputCP(CP_UTF8);
    Results results;
    const std::vector<Row> fewRows = MakeRows(Few), manyRows = MakeRows(Many);
    const auto few = std::make_unique<Contestant>(fewRows), many = std::make_unique<Contestant>(manyRows);
    clipboardOwner = few->grid.m_hWnd;

    results.Begin(
        "What is done with all records: 1,000,000 of five items",
        {"median", "our grid", "bare loop", "ours / loop", "from 100,000: times", "at most", "the loop: times", ""});
    for (const Contest& contest : Contests()) {
        const Times small = Measure(contest, *few, fewRows), large = Measure(contest, *many, manyRows);
        // Caches hold the small data and not the large one, whoever walks over it.
        constexpr double caches = 2.0;
        const double size = double{Many} / Few;
        const double allowed =
            caches * (contest.growth == Growth::Linear ? size : size * std::log(Many) / std::log(Few));
        // Below this, what does not depend on the records is most of it.
        constexpr double fixed = 5.0; // ms
        const double growth = large.grid / std::max(small.grid, fixed);
        constexpr double shortest = 0.05; // ms; what is shorter cannot be told from nothing
        const double loopGrowth = large.loop / std::max(small.loop, shortest);
        results.Line(contest.name,
                     {NumberText(large.grid, Milliseconds), NumberText(large.loop, Milliseconds),
                      NumberText(large.grid / large.loop, Ratio), NumberText(growth, Ratio), NumberText(allowed, Ratio),
                      NumberText(loopGrowth, Ratio)},
                     growth <= allowed);
    }
    few->grid.GetColumns()->GetGroupsOrder()->Clear();
    many->grid.GetColumns()->GetGroupsOrder()->Clear();
    few->Show();
    many->Show();
    results.Begin("Scrolling by a page", {"median", "figure", "at most", ""});
    const double fewPage = PageTime(*few), manyPage = PageTime(*many);
    results.Inform("in the middle of 100,000 records", fewPage, Milliseconds);
    results.Inform("in the middle of 1,000,000", manyPage, Milliseconds);
    results.AtMost("ratio of the two", manyPage / fewPage, 1.5, Ratio);
    MeasurePreviews(results, *many);
    results.Say(results.Verdict());
    return results.AllMet() && sink > 0 ? 0 : 1;
}
