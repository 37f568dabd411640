// The stored format: what is in the golden files, what may come from a newer library, and what a damaged or
// hostile file gets.
#include "host/settings_format.h"

#include "native/failing_allocation.h"
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/stored_settings.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

namespace vellora::test {

namespace {

constexpr std::int32_t damaged = error_number::stored_data_damaged;
constexpr std::int32_t too_new = error_number::stored_data_too_new;

std::string golden_text(const std::string& name) {
    std::ifstream file(VELLORA_TESTS_DIR "/golden/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

Bytes bytes_of(const std::string& text) {
    const auto first = reinterpret_cast<const std::byte*>(text.data());
    return {first, first + text.size()};
}

Bytes golden(const std::string& name) {
    return bytes_of(golden_text(name + ".bin"));
}

/// The bytes an explanation shows, without what it says about them.
Bytes explained(const std::string& name) {
    std::istringstream lines(golden_text(name + ".txt"));
    Bytes bytes;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream digits(line.substr(0, line.find(';')));
        for (unsigned byte = 0; digits >> std::hex >> byte;) {
            bytes.push_back(static_cast<std::byte>(byte));
        }
    }
    return bytes;
}

struct Describe {
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    std::string operator()(std::int16_t value) const { return "Integer " + std::to_string(value); }
    std::string operator()(std::int32_t value) const { return "Long " + std::to_string(value); }
    std::string operator()(float value) const { return "Single " + readable(value); }
    std::string operator()(const std::u16string& value) const { return '"' + readable(value) + '"'; }
    std::string operator()(const SettingObject& value) const {
        const std::string size = " of " + std::to_string(value.state.size()) + " bytes";
        if (value.is_nothing()) {
            return "Nothing";
        }
        return (value.class_id == standard_font      ? "font"
                : value.class_id == standard_picture ? "picture"
                                                     : "object") +
               size;
    }
};

Lines described(const Settings& settings) {
    Lines lines;
    for (const Setting& setting : settings.all()) {
        lines.push_back(readable(setting.name) + " = " + std::visit(Describe{}, setting.value));
    }
    return lines;
}

/// 0 when the bytes can be read.
std::int32_t error_of(const Bytes& bytes) {
    return failure_of([&] { decode_settings(bytes); }).number;
}

void put_number(Bytes& bytes, std::size_t at, std::uint32_t number) {
    for (std::size_t byte = 0; byte < 4 && at + byte < bytes.size(); ++byte) {
        bytes[at + byte] = static_cast<std::byte>(number >> (8 * byte));
    }
}

Bytes with_text(const Bytes& name_and_value) {
    Bytes bytes = encode_settings({});
    bytes.insert(bytes.end(), name_and_value.begin(), name_and_value.end());
    put_number(bytes, 8, static_cast<std::uint32_t>(name_and_value.size()));
    return bytes;
}

} // namespace

TEST(SettingsFormat, GoldenFileOfFormat1HasTheseValues) {
    EXPECT_EQ(described(decode_settings(golden("settings-1"))), (Lines{"Text = \"Z\\u00FCrich \\u20AC\"",
                                                                       "Columns = Integer 2",
                                                                       "ColumnHeader1 = \"Name\"",
                                                                       "ColumnLocked1 = True",
                                                                       "ColumnHeader2 = \"Stra\\u00DFe\"",
                                                                       "ColumnWidth2 = Single 615",
                                                                       "ColumnHidden2 = True",
                                                                       "BackColor = Long 12648447",
                                                                       "DropDownHeight = Single 2.5",
                                                                       "HideColumnHeaders = True",
                                                                       "Sorted = True",
                                                                       "SortOrder = Long 1",
                                                                       "TextColumn = Integer 2",
                                                                       "SortColumn = Integer 2",
                                                                       "Picture = picture of 78 bytes",
                                                                       "AutoComplete = True",
                                                                       "Enabled = False",
                                                                       "Locked = True",
                                                                       "AutoHeight = False",
                                                                       "Font = font of 17 bytes",
                                                                       "DropDownBackColor = Long 12648447",
                                                                       "DropDownForeColor = Long 8388608",
                                                                       "DropDownAlignment = Long 2",
                                                                       "DropDownWidthOffset = Single -15.5",
                                                                       "AutoSize = Long 2",
                                                                       "GridLines = True",
                                                                       "ButtonStyle = Long 1",
                                                                       "ButtonForeColor = Long 255",
                                                                       "ButtonBackColor = Long -2147483632",
                                                                       "CheckBoxes = True",
                                                                       "AllowResize = True",
                                                                       "AllowColumnReorder = True",
                                                                       "ShowItemToolTips = True",
                                                                       "ForeColor = Long 8388608",
                                                                       "Alignment = Long 2",
                                                                       "MaxLength = Long 20",
                                                                       "LeftMargin = Long 4",
                                                                       "RightMargin = Long 5"}));
}

TEST(SettingsFormat, WritesTheGoldenFileByteForByte) {
    const Bytes whole = golden("settings-1");
    EXPECT_EQ(encode_settings(decode_settings(whole)), whole);
    Settings settings;
    settings.put(u"Text", u"Ab");
    settings.put(u"LeftMargin", 65535);
    EXPECT_EQ(encode_settings(settings), golden("settings-1-example"));
}

TEST(SettingsFormat, GoldenFilesAreWhatTheirExplanationsSay) {
    for (const char* name : {"settings-1", "settings-1-example", "settings-1-future"}) {
        EXPECT_EQ(explained(name), golden(name)) << name;
    }
}

TEST(SettingsFormat, PassesOverWhatALaterLibraryAdded) {
    EXPECT_EQ(described(decode_settings(golden("settings-1-future"))),
              (Lines{"Text = \"later\"", "CornerRadius = Long 12", "DropDownHeight = Single 4", "HeaderIcons = Nothing",
                     "GridLines = True"}));
}

TEST(SettingsFormat, ALaterLibrarysSettingsGiveAControl) {
    HeadlessPropertyBag bag = bag_of(decode_settings(golden("settings-1-future")));
    HeadlessControl combo(Mode::run, Stage::created);
    combo.persistence().ReadProperties(bag);
    EXPECT_EQ(combo.object().Text(), u"later");
    EXPECT_EQ(combo.columns().Columns(), 1);
    EXPECT_EQ(combo.placement().DropDownHeight(), 4.0F);
    EXPECT_TRUE(combo.appearance().GridLines());
    EXPECT_EQ(combo.header_icons().Icons(), nullptr);
}

TEST(SettingsFormat, RefusesALaterMajorVersion) {
    Bytes whole = golden("settings-1-example");
    whole[4] = std::byte{2};
    EXPECT_EQ(error_of(whole), too_new);
    whole[4] = std::byte{0};
    EXPECT_EQ(error_of(whole), damaged);
}

TEST(SettingsFormat, RefusesWhatIsSomethingElse) {
    EXPECT_EQ(error_of({}), damaged);
    EXPECT_EQ(error_of(Bytes(100)), damaged);
    EXPECT_EQ(error_of(bytes_of("OCPT\1\0\0\0\0\0\0\0")), damaged);
}

TEST(SettingsFormat, LeavesAloneWhatFollows) {
    Bytes whole = golden("settings-1-example");
    whole.resize(whole.size() + 100, std::byte{0xAA});
    EXPECT_EQ(described(decode_settings(whole)), (Lines{"Text = \"Ab\"", "LeftMargin = Long 65535"}));
}

TEST(SettingsFormat, TheLaterValueOfANameStays) {
    Settings settings;
    settings.put(u"A", std::int16_t{1});
    settings.put(u"B", 2.0F);
    settings.put(u"A", true);
    EXPECT_EQ(described(settings), (Lines{"A = True", "B = Single 2"}));
    Bytes twice = encode_settings(settings);
    const Bytes more(twice.begin() + settings_head_size, twice.end());
    twice.insert(twice.end(), more.begin(), more.end());
    put_number(twice, 8, static_cast<std::uint32_t>(2 * more.size()));
    EXPECT_EQ(described(decode_settings(twice)), described(settings));
}

TEST(SettingsFormat, ValuesOfTheWrongLengthAreDamage) {
    // Name "A", then the type, the length and the value.
    for (const auto& [type, length] : std::initializer_list<std::pair<int, std::size_t>>{
             {2, 1}, {2, 3}, {3, 2}, {3, 8}, {4, 0}, {8, 3}, {11, 0}, {11, 2}, {13, 15}}) {
        std::string entry("\1\0A\0", 4);
        entry += {static_cast<char>(type), '\0', static_cast<char>(length), '\0', '\0', '\0'};
        entry.append(length, '\0');
        EXPECT_EQ(error_of(with_text(bytes_of(entry))), damaged) << type << ' ' << length;
    }
}

TEST(SettingsFormat, KeepsEveryBitOfANumber) {
    Settings settings;
    settings.put(u"Single", std::numeric_limits<float>::denorm_min());
    settings.put(u"Integer", std::int16_t{-32768});
    settings.put(u"Long", std::int32_t{-2147483647 - 1});
    settings.put(u"Text", std::u16string(u"\0\xD800 ", 3));
    settings.put(u"", u"");
    EXPECT_EQ(described(decode_settings(encode_settings(settings))), described(settings));
}

TEST(DamagedSettings, EveryShortenedFileIsRefused) {
    for (const char* name : {"settings-1", "settings-1-future"}) {
        const Bytes whole = golden(name);
        for (std::size_t length = 0; length < whole.size(); ++length) {
            Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
            EXPECT_EQ(error_of(cut), damaged) << name << ' ' << length;
        }
    }
}

TEST(DamagedSettings, EveryShorterContentIsRefusedUnlessAnEntryEndsThere) {
    const Bytes whole = golden("settings-1");
    std::size_t readable_ones = 0;
    for (std::size_t length = settings_head_size; length <= whole.size(); ++length) {
        Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        put_number(cut, 8, static_cast<std::uint32_t>(length - settings_head_size));
        readable_ones += error_of(cut) == 0 ? 1 : 0;
    }
    EXPECT_EQ(readable_ones, decode_settings(whole).all().size() + 1);
}

TEST(DamagedSettings, AFlippedBitIsRefusedOrReadAsWhatItSays) {
    const Bytes whole = golden("settings-1");
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        Bytes flipped = whole;
        flipped[bit / 8] ^= static_cast<std::byte>(1U << (bit % 8));
        const std::int32_t error = error_of(flipped);
        EXPECT_TRUE(error == 0 || error == damaged || error == too_new) << bit << ' ' << error;
        if (error == 0) {
            const Bytes again = encode_settings(decode_settings(flipped));
            EXPECT_EQ(encode_settings(decode_settings(again)), again) << bit;
        }
    }
}

TEST(DamagedSettings, OfAFlippedBitTheControlIsWholeOrStillLoading) {
    const Bytes whole = golden("settings-1");
    for (std::size_t byte = settings_head_size; byte < whole.size(); ++byte) {
        Bytes flipped = whole;
        flipped[byte] ^= static_cast<std::byte>(1U << (byte % 8));
        if (error_of(flipped) != 0) {
            continue;
        }
        HeadlessPropertyBag bag = bag_of(decode_settings(flipped));
        HeadlessControl combo(Mode::run, Stage::created);
        const Failure failure = failure_of([&] { combo.persistence().ReadProperties(bag); });
        EXPECT_EQ(combo.state().mbLoadingProperties, failure != no_failure) << byte << ' ' << failure;
    }
}

TEST(DamagedSettings, AnInventedLengthCostsNoMemory) {
    const Bytes whole = golden("settings-1");
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const std::uint32_t length : {0x03FFFFFFU, 0x04000001U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
            Bytes invented = whole;
            put_number(invented, at, length);
            forget_peak();
            const std::size_t before = bytes_in_use();
            error_of(invented);
            EXPECT_LT(peak_bytes() - before, 64U * 1024) << at << ' ' << length;
        }
    }
}

TEST(DamagedSettings, TooManyNamesAreRefused) {
    Settings many;
    for (int name = 0; name < 4096; ++name) {
        many.put(std::u16string(1, static_cast<char16_t>(name + 1)), true);
    }
    EXPECT_EQ(error_of(encode_settings(many)), 0);
    many.put(u"one more", true);
    EXPECT_EQ(error_of(encode_settings(many)), damaged);
}

TEST(DamagedSettings, TooManyEntriesOfOneNameAreRefused) {
    // Name "A", then the type, the length and the value.
    const std::string entry("\1\0A\0\13\0\1\0\0\0\1", 11);
    std::string many;
    for (int times = 0; times < 4096; ++times) {
        many += entry;
    }
    EXPECT_EQ(error_of(with_text(bytes_of(many))), 0);
    EXPECT_EQ(error_of(with_text(bytes_of(many + entry))), damaged);
}

TEST(DamagedSettings, MoreThan64MegabytesAreNotWritten) {
    Settings large;
    large.put(u"Text", std::u16string(32U * 1024 * 1024, u'x'));
    EXPECT_EQ(failure_of([&] { encode_settings(large); }).number, error_number::storage_full);
}

} // namespace vellora::test
