#include "tests/bench/Median.h"
#include "mainwindow/ColorList.h"
#include "platform/Utf16.h"
#include "platform/Win32TextCollation.h"
#include "tests/fakes/FakeMainView.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <windows.h>

// Measures the list with one group of many colors: what a click on a column header takes, beside
// plain sorts of the same texts in the same run and in turn, and the list's other work:
//
//     sort_bench.exe [COLORS] [REPETITIONS]
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kNameColumn = 1;
constexpr int kRedColumn = 2;

struct Row {
    const char* name;
    std::vector<double> times; // milliseconds, one for each repetition
};

void Time(Row& row, const std::function<void()>& work) {
    const auto begin = Clock::now();
    work();
    row.times.push_back(Milliseconds(Clock::now() - begin).count());
}

void Print(const Row& row) {
    const auto [least, most] = std::minmax_element(row.times.begin(), row.times.end());
    std::printf("| %s | %.1f | %.1f - %.1f |\n", row.name, Median(row.times), *least, *most);
}

// A program's library and list with one group, its names in no order.
struct BigGroup {
    explicit BigGroup(int colors) {
        library.NewMainNode("Library");
        group = library.NewGroupNode("0D", "group");
        std::mt19937 random(1);
        const char* const hues[] = {"Signal red", "ocean blue", "Moss green", "\xC3\x84gyptisch"};
        for (int color = 1; color <= colors; ++color) {
            const std::string name = hues[random() % 4] + (" " + std::to_string(random() % 100000));
            const auto red = static_cast<std::int16_t>(random() % 256);
            library.Colors().Append({name,
                                     group + "E" + std::to_string(color),
                                     group,
                                     false,
                                     {red, 1, 2, 3, 4, 5, 6, 7, 8},
                                     name});
        }
        list.Fill(group);
    }

    FakeMainView view;
    Win32TextCollation collation;
    ColorLibrary library;
    ColorList list{library, view, collation};
    std::string group;
};

std::vector<std::wstring> TextsOf(const BigGroup& big, int column) {
    std::vector<std::wstring> texts;
    for (const int index : big.library.GetColorIndexInGroup(big.group)) {
        const ColorRecord color = big.library.Colors().At(index);
        texts.push_back(
            ToUtf16(column == kNameColumn ? color.name : std::to_string(color.values[0])));
    }
    return texts;
}

bool ComesBefore(const std::wstring& left, const std::wstring& right) {
    return CompareStringEx(LOCALE_NAME_USER_DEFAULT, NORM_IGNORECASE, left.c_str(),
                           static_cast<int>(left.size()), right.c_str(),
                           static_cast<int>(right.size()), nullptr, nullptr, 0) == CSTR_LESS_THAN;
}

// Whether the list shows the texts in the order of the plain sort (its own, or turned round).
bool IsSorted(const BigGroup& big, int column) {
    std::vector<std::wstring> shown;
    for (int row = 0; row < big.list.RowCount(); ++row)
        shown.push_back(ToUtf16(big.list.CellText(row, column)));
    return std::ranges::is_sorted(shown, ComesBefore) ||
           std::is_sorted(shown.rbegin(), shown.rend(), ComesBefore);
}

bool MeasureColumn(const char* title, int column, int colors, int repetitions) {
    Row plain{"plain sort of the texts, CompareStringEx", {}};
    Row stable{"plain stable sort of the texts, CompareStringEx", {}};
    Row click{"click on the header", {}};
    bool isRight = true;
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        BigGroup big(colors);
        auto texts = TextsOf(big, column);
        auto sameTexts = texts;
        Time(plain, [&] { std::ranges::sort(texts, ComesBefore); });
        Time(stable, [&] { std::ranges::stable_sort(sameTexts, ComesBefore); });
        Time(click, [&] { big.list.SortByColumn(column); });
        isRight = isRight && IsSorted(big, column);
    }
    std::printf("\n| %s | median, ms | least - most, ms |\n| --- | --- | --- |\n", title);
    for (const Row* row : {&plain, &stable, &click})
        Print(*row);
    std::printf("\nClick / plain sort: %.2f\n", Median(click.times) / Median(plain.times));
    return isRight;
}

void MeasureTheRest(int colors, int repetitions) {
    Row fill{"filling the list", {}};
    Row paint{"texts of 50 rows", {}};
    Row search{"search for a name that is not there", {}};
    BigGroup big(colors);
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        Time(fill, [&] { big.list.Fill(big.group); });
        Time(paint, [&] {
            for (int row = colors / 2; row < colors / 2 + 50; ++row)
                for (int column = 1; column <= 10; ++column)
                    (void)big.list.CellText(row, column);
        });
        Time(search, [&] { (void)big.list.FindRow("no such name", colors / 2); });
    }
    std::printf("\n| other work | median, ms | least - most, ms |\n| --- | --- | --- |\n");
    for (const Row* row : {&fill, &paint, &search})
        Print(*row);
}

} // namespace

int main(int count, char** arguments) {
    const int colors = count > 1 ? std::atoi(arguments[1]) : 100000;
    const int repetitions = count > 2 ? std::atoi(arguments[2]) : 7;
    if (colors < 100 || repetitions < 1) {
        std::printf("usage: sort_bench [COLORS] [REPETITIONS]\n");
        return 2;
    }
    const bool isRight = MeasureColumn("names", kNameColumn, colors, repetitions) &&
                         MeasureColumn("red values", kRedColumn, colors, repetitions);
    MeasureTheRest(colors, repetitions);
    if (!isRight)
        std::printf("The list's order is not that of the plain sort\n");
    return isRight ? 0 : 1;
}
