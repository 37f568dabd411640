#include "time_zones.h"

#include "coordinates.h"
#include "record_file.h"

#include <algorithm>
#include <map>

namespace vellora::samples {

namespace {

using Countries = std::map<std::string, std::wstring, std::less<>>;

constexpr RecordSource countries_source{L"VELLORA_ZONEINFO", L"iso3166.tab", L"tzdata", '\t', 2};
constexpr RecordSource zones_source{L"VELLORA_ZONEINFO", L"zone1970.tab", L"tzdata", '\t', 3};

Countries read_countries() {
    Countries countries;
    RecordFile(countries_source).for_each([&](const RecordFile::Fields& fields) {
        return decode(fields[1], countries[std::string(fields[0])]);
    });
    return countries;
}

/// The first country's name and how many more have the same time. A code without a name stands for itself.
std::wstring country_text(std::string_view codes, const Countries& countries) {
    const std::string_view first = codes.substr(0, codes.find(','));
    const auto found = countries.find(first);
    std::wstring text = found == countries.end() ? std::wstring(first.begin(), first.end()) : found->second;
    if (const auto others = std::count(codes.begin(), codes.end(), ','))
        text += L" and " + std::to_wstring(others) + L" more";
    return text;
}

} // namespace

TextRows read_time_zones() {
    const Countries countries = read_countries();
    TextRows rows;
    RecordFile(zones_source).for_each([&](const RecordFile::Fields& fields) {
        const auto coordinates = readable_coordinates(fields[1]);
        TextRow row{country_text(fields[0], countries), L"", coordinates.value_or(L""), L""};
        const bool understood =
            coordinates && decode(fields[2], row[1]) && (fields.size() < 4 || decode(fields[3], row[3]));
        rows.push_back(std::move(row));
        return understood;
    });
    return rows;
}

} // namespace vellora::samples
