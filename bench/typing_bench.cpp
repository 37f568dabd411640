#include "typing_bench.h"

#include "key_strokes.h"
#include "stopwatch.h"

#include <algorithm>
#include <string>

namespace vellora::bench {

namespace {

constexpr int many_rows = 100'000;
constexpr int few_rows = 10;
constexpr int runs = 25;
constexpr double microseconds = 1000;

/// The texts two fields are given, equally long; each key of one is measured beside the same key of the other.
struct Texts {
    std::wstring first;
    std::wstring second;
};

/// The slowest key of each, by its median, in microseconds.
Pair slowest_keys(HWND first, HWND second, const Texts& texts) {
    Pair slowest{};
    for (std::size_t length = 1; length <= texts.first.size(); ++length) {
        const auto key = [&](HWND field, const std::wstring& text) {
            return median_time(
                runs, [&] { be_about_to_type(field, text.substr(0, length - 1)); },
                [&] { type(field, text[length - 1]); });
        };
        slowest.first = std::max(slowest.first, key(first, texts.first) * microseconds);
        slowest.second = std::max(slowest.second, key(second, texts.second) * microseconds);
    }
    return slowest;
}

} // namespace

void measure_typing(Report& report, VelloraList& list, VelloraList& short_list) {
    const auto compare = [&](const std::string& what, HWND other, const Texts& texts, std::optional<double> bound) {
        const Pair keys = slowest_keys(list.field(), other, texts);
        report.compare(what, keys.first, keys.second, "us", bound);
    };
    report.heading("A key without completion, slowest", "Vellora", "native edit");
    const NativeEdit edit(GetAncestor(list.field(), GA_ROOT));
    compare("typed text", edit.window(), {L"Item 09", L"Item 09"}, std::nullopt);

    list.add(SampleRows(many_rows), many_rows);
    short_list.add(SampleRows(few_rows), few_rows);
    list.complete(true);
    short_list.complete(true);
    report.heading("A key with completion, slowest", "100,000 rows", "10 rows");
    compare("the match is the last row", short_list.field(), {L"item 099999", L"item 000009"}, 1.3);
    compare("no match, a common beginning", short_list.field(), {L"ITEM 0999999", L"ITEM 0000099"}, 1.3);
    compare("no match at all", short_list.field(), {L"nothing", L"nothing"}, 1.3);
    for (VelloraList* const each : {&list, &short_list}) {
        each->complete(false);
        each->clear();
    }
}

} // namespace vellora::bench
