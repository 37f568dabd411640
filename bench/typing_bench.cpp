#include "typing_bench.h"

#include "key_strokes.h"
#include "stopwatch.h"

#include <algorithm>
#include <functional>
#include <string>

namespace vellora::bench {

namespace {

constexpr int many_rows = 100'000;
constexpr int few_rows = 10;
constexpr int runs = 25;
constexpr double microseconds = 1000;

/// How a field is given one more character.
using Type = std::function<void(HWND, wchar_t)>;

/// A field, the text it is given, and how.
struct Typing {
    HWND field;
    std::wstring text;
    Type type = bench::type;
};

/// How long the field takes for the character at this place, by its median in microseconds.
double key_time(const Typing& typing, std::size_t place) {
    return median_time(
               runs, [&] { be_about_to_type(typing.field, typing.text.substr(0, place)); },
               [&] { typing.type(typing.field, typing.text[place]); }) *
           microseconds;
}

/// The slowest key of each of two fields that are given texts of one length. Each key of one is measured beside the same
/// key of the other.
Pair slowest_keys(const Typing& first, const Typing& second) {
    Pair slowest{};
    for (std::size_t place = 0; place < first.text.size(); ++place) {
        slowest.first = std::max(slowest.first, key_time(first, place));
        slowest.second = std::max(slowest.second, key_time(second, place));
    }
    return slowest;
}

} // namespace

void measure_typing(Report& report, VelloraList& list, VelloraList& short_list) {
    const auto compare = [&](const std::string& what, const Typing& ours, const Typing& other,
                             std::optional<double> bound = {}) {
        const Pair keys = slowest_keys(ours, other);
        report.compare(what, keys.first, keys.second, "us", bound);
    };
    const NativeEdit edit(GetAncestor(list.field(), GA_ROOT));
    report.heading("A key without completion, slowest", "Vellora", "native edit");
    compare("typed text", {list.field(), L"Item 09"}, {edit.window(), L"Item 09"});

    list.add(SampleRows(many_rows), many_rows);
    short_list.add(SampleRows(few_rows), few_rows);
    list.complete(true);
    short_list.complete(true);
    const std::wstring last = L"Item 099999";
    report.heading("A key with completion, slowest", "Vellora", "edit, completed");
    compare("the match is the last row", {list.field(), last},
            {edit.window(), last, [&](HWND field, wchar_t letter) { type_and_complete(field, letter, last); }});
    const HWND few = short_list.field();
    report.heading("A key with completion, slowest", "100,000 rows", "10 rows");
    compare("the match is the last row", {list.field(), L"item 099999"}, {few, L"item 000009"}, 1.3);
    compare("no match, a common beginning", {list.field(), L"ITEM 0999999"}, {few, L"ITEM 0000099"}, 1.3);
    compare("no match at all", {list.field(), L"nothing"}, {few, L"nothing"}, 1.3);
    for (VelloraList* const each : {&list, &short_list}) {
        each->complete(false);
        each->clear();
    }
}

} // namespace vellora::bench
