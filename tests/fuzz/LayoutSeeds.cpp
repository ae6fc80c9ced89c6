// Writes the layouts from which the fuzzer of saved layouts starts: layout_seeds FOLDER.
#include "report/LayoutStream.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

using namespace layoutstream;

namespace {

/// Column Profiler's grid as the program sets it up.
ReportLayout Profiler() {
    return {{{u"Name", 0, 190, true},
             {u"Type", 1, 72, true},
             {u"Count", 2, 72, true},
             {u"Missing", 3, 72, true},
             {u"Minimum", 4, 88, true},
             {u"Mean", 5, 88, true},
             {u"Maximum", 6, 88, true},
             {u"Plot", 7, 400, true},
             {u"Inside", 8, 84, true}},
            {},
            {}};
}

/// The same after its user has hidden columns, dragged some, sorted, grouped and frozen the first.
ReportLayout RearrangedProfiler() {
    ReportLayout layout = Profiler();
    std::swap(layout.columns[1], layout.columns[7]);
    layout.columns[2].visible = layout.columns[3].visible = false;
    layout.columns[1].width = 731;
    layout.sortOrder = {{5, false}, {0, true}};
    layout.groupsOrder = {{1, true}};
    layout.dpi = 144;
    layout.view = {1, true};
    return layout;
}

/// Columns of one name, without a name, gone columns and groups, for the columns that the fuzzer has.
ReportLayout Awkward() {
    return {{{u"Count", 2, 30, true},
             {u"", 3, 61, true},
             {u"Gone", 9, 10, false},
             {u"Count", 1, 3000, true},
             {u"Gr\u00F6\u00DFe \xD83D\xDE00", 7, -1, true},
             {u"Name", 0, 0, true}},
            {{3, true}, {0, false}, {2, true}},
            {{1, true}, {5, false}},
            96,
            ReportLayout::View{0x7FFFFFFF, false}};
}

ReportLayout Wide() {
    ReportLayout layout;
    for (int i = 0; i < 40; ++i)
        layout.columns.push_back({u"Column " + std::u16string(1, static_cast<char16_t>(u'A' + i)), i, 20 + i, true});
    layout.sortOrder = {{39, false}};
    return layout;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: layout_seeds FOLDER\n", stderr);
        return 1;
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    int number = 0;
    for (const ReportLayout& layout : {ReportLayout{}, Profiler(), RearrangedProfiler(), Awkward(), Wide()}) {
        const auto bytes = Encode(layout);
        std::ofstream file(folder / ("layout" + std::to_string(++number)), std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush()) {
            std::fprintf(stderr, "cannot write to %s\n", folder.c_str());
            return 1;
        }
    }
    return 0;
}
