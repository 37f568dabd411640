#include "runtime/plain_text_compare.h"

#include <gtest/gtest.h>

#include <set>

namespace vellora::test {

TEST(PlainTextCompare, FoldsLettersOfTheScriptsItKnows) {
    const PlainTextCompare compare;
    EXPECT_EQ(compare.fold(u"AZaz09[@"), u"azaz09[@");
    EXPECT_EQ(compare.fold(u"\u00C0\u00D6\u00D7\u00D8\u00DE\u00DF"), u"\u00E0\u00F6\u00D7\u00F8\u00FE\u00DF");
    EXPECT_EQ(compare.fold(u"\u0100\u0101\u0139\u0176\u0178\u017D"), u"\u0101\u0101\u013A\u0177\u00FF\u017E");
    EXPECT_EQ(compare.fold(u"\u0130\u0131\u0138\u0149\u017F"), u"\u0130\u0131\u0138\u0149\u017F");
    EXPECT_EQ(compare.fold(u"\u0386\u0388\u038C\u038F\u0391\u03A9\u03A2"),
              u"\u03AC\u03AD\u03CC\u03CE\u03B1\u03C9\u03A2");
    EXPECT_EQ(compare.fold(u"\u0401\u0410\u042F\u0460\u04C0\u04C1"), u"\u0451\u0430\u044F\u0461\u04CF\u04C2");
    EXPECT_EQ(compare.fold(u"\u4E00\U0001F600"), u"\u4E00\U0001F600");
}

TEST(PlainTextCompare, FoldingKeepsTheLengthAndIsDoneOnce) {
    const PlainTextCompare compare;
    std::u16string every;
    for (unsigned unit = 0; unit < 0x10000; ++unit)
        every.push_back(static_cast<char16_t>(unit));
    const std::u16string folded = compare.fold(every);
    EXPECT_EQ(folded.size(), every.size());
    EXPECT_EQ(compare.fold(folded), folded);
}

TEST(PlainTextCompare, NoTwoCapitalsShareASmallLetter) {
    const PlainTextCompare compare;
    std::set<char16_t> small_letters;
    for (unsigned unit = 0; unit < 0x10000; ++unit) {
        const auto letter = static_cast<char16_t>(unit);
        const char16_t folded = compare.fold(std::u16string(1, letter))[0];
        if (folded != letter) {
            EXPECT_TRUE(small_letters.insert(folded).second) << std::hex << unit;
        }
    }
}

TEST(PlainTextCompare, KeysOrderWithoutRegardToCase) {
    const PlainTextCompare compare;
    EXPECT_LT(compare.sort_key(u"apple"), compare.sort_key(u"Banana"));
    EXPECT_EQ(compare.sort_key(u"APPLE"), compare.sort_key(u"apple"));
    EXPECT_LT(compare.sort_key(u""), compare.sort_key(u"a"));
}

} // namespace vellora::test
