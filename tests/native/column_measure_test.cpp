// The widest text of a column, and how few texts are measured to know it.
#include "widgets/column_measure.h"

#include "runtime/plain_text_compare.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace vellora::test {

namespace {

/// A font in which digits are 6 pixels, "W" 11, "i" 3 and all else 5 wide; "AV" is set one pixel closer, and
/// of several Arabic letters all but the first are 2 pixels narrower.
class FakeMeasurer final : public TextMeasurer {
public:
    std::int32_t width(std::u16string_view text) const override {
        ++texts_measured;
        units_measured += text.size();
        std::int32_t width = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            width += (i > 0 && is_arabic(text[i]) && is_arabic(text[i - 1])) ? 3 : scale * plain(text[i]);
            width -= (i > 0 && text[i - 1] == u'A' && text[i] == u'V') ? 1 : 0;
        }
        return width;
    }
    std::int32_t character_width(char16_t unit) const override {
        ++characters_asked;
        return scale * plain(unit);
    }

    std::int32_t scale = 1;
    mutable int texts_measured = 0;
    mutable int characters_asked = 0;
    mutable std::size_t units_measured = 0;

private:
    static bool is_arabic(char16_t unit) { return unit >= 0x600 && unit < 0x700; }
    static std::int32_t plain(char16_t unit) {
        if (unit >= u'0' && unit <= u'9')
            return 6;
        return unit == u'W' ? 11 : unit == u'i' ? 3 : 5;
    }
};

class ColumnMeasureTest : public testing::Test {
protected:
    void add(std::u16string_view text) {
        rows_.append();
        rows_.set_text(rows_.count() - 1, 0, text);
    }
    void add_numbers(int count) {
        for (int i = 0; i < count; ++i)
            add(std::u16string(6, static_cast<char16_t>(u'0' + i % 10)));
    }
    std::int32_t widest(std::int32_t column = 0) { return measure_.widest(column, measurer_); }
    int texts_measured() { return std::exchange(measurer_.texts_measured, 0); }

    PlainTextCompare compare_;
    ListRows rows_{compare_};
    FakeMeasurer measurer_;
    ColumnMeasure measure_{rows_};
};

} // namespace

TEST_F(ColumnMeasureTest, NoRowsHaveNoWidth) {
    EXPECT_EQ(widest(), 0);
    add(u"");
    EXPECT_EQ(widest(), 0);
    EXPECT_EQ(widest(7), 0);
}

TEST_F(ColumnMeasureTest, TheWidestTextCountsNotTheLongest) {
    add(u"iiiii");
    add(u"WW");
    add(u"abc");
    EXPECT_EQ(widest(), 22);
}

TEST_F(ColumnMeasureTest, EachColumnForItself) {
    add(u"abc");
    rows_.add_sub_item(0, u"W");
    add(u"a");
    rows_.add_sub_item(1, u"12");
    rows_.add_sub_item(1, u"iii");
    EXPECT_EQ(widest(0), 15);
    EXPECT_EQ(widest(1), 12);
    EXPECT_EQ(widest(2), 9);
}

TEST_F(ColumnMeasureTest, KerningDecidesBetweenNeighbours) {
    add(u"AVAVAV");
    add(u"AAVVAA");
    add(u"bbbbbb");
    EXPECT_EQ(widest(), 30);
    rows_.set_text(2, 0, u"");
    EXPECT_EQ(widest(), 29);
}

TEST_F(ColumnMeasureTest, ShapedTextsDoNotHideThePlainOnes) {
    for (int i = 0; i < 500; ++i)
        add(std::u16string(12, u'\u0628'));
    add(u"plane text");
    EXPECT_EQ(widest(), 50);
    add(u"\u0628 \u0628 \u0628 \u0628 \u0628 \u0628");
    EXPECT_EQ(widest(), 55);
}

TEST_F(ColumnMeasureTest, ATextEndsAtItsFirstZero) {
    add(std::u16string_view(u"ab\0WWWWWW", 9));
    EXPECT_EQ(widest(), 10);
}

TEST_F(ColumnMeasureTest, AHugeTextIsNotMeasuredToItsEnd) {
    add(std::u16string(5'000'000, u'W'));
    EXPECT_EQ(widest(), 32767);
    add(u"abc");
    EXPECT_EQ(widest(), 32767);
    EXPECT_LT(measurer_.units_measured, 200'000U);
}

TEST_F(ColumnMeasureTest, MeasuresFewOfManyTexts) {
    add_numbers(10000);
    EXPECT_EQ(widest(), 36);
    EXPECT_LE(texts_measured(), 16);
    EXPECT_EQ(measurer_.characters_asked, 10);
}

TEST_F(ColumnMeasureTest, MeasuresNothingAgain) {
    add_numbers(100);
    widest();
    texts_measured();
    EXPECT_EQ(widest(), 36);
    rows_.set_tag(0, 1);
    rows_.set_checked(0, true);
    rows_.select(4);
    EXPECT_EQ(widest(), 36);
    EXPECT_EQ(texts_measured(), 0);
}

TEST_F(ColumnMeasureTest, AppendedRowsCostOnlyThemselves) {
    add_numbers(10000);
    widest();
    texts_measured();
    add(u"1234567");
    EXPECT_EQ(widest(), 42);
    EXPECT_LE(texts_measured(), 2);
}

TEST_F(ColumnMeasureTest, RowsThatAreNoWiderAreNotMeasured) {
    add_numbers(10000);
    widest();
    texts_measured();
    add_numbers(10000);
    EXPECT_EQ(widest(), 36);
    EXPECT_EQ(texts_measured(), 1); // whether the widest row still stands
}

TEST_F(ColumnMeasureTest, FollowsInsertedChangedAndSortedRows) {
    add_numbers(1000);
    widest();
    rows_.insert(0);
    rows_.set_text(0, 0, u"WWWW");
    EXPECT_EQ(widest(), 44);
    rows_.set_text(500, 0, u"WWWWi");
    EXPECT_EQ(widest(), 47);
    rows_.set_sorted(true);
    EXPECT_EQ(widest(), 47);
    rows_.add_sub_item(3, u"W");
    EXPECT_EQ(widest(1), 11);
}

TEST_F(ColumnMeasureTest, NoticesWhenTheWidestRowGoesOrShrinks) {
    add_numbers(1000);
    add(u"WWWW");
    EXPECT_EQ(widest(), 44);
    rows_.remove(1000);
    EXPECT_EQ(widest(), 36);
    add(u"WWWW");
    EXPECT_EQ(widest(), 44);
    rows_.set_text(1000, 0, u"i");
    EXPECT_EQ(widest(), 36);
    rows_.clear();
    EXPECT_EQ(widest(), 0);
    add(u"i");
    EXPECT_EQ(widest(), 3);
}

TEST_F(ColumnMeasureTest, ASlotTakenByANarrowerRowIsNoticed) {
    add(u"a");
    add(u"WWWW");
    EXPECT_EQ(widest(), 44);
    rows_.remove(1);
    add(u"i");
    EXPECT_EQ(widest(), 5);
}

TEST_F(ColumnMeasureTest, AnotherFontIsMeasuredAnew) {
    add(u"abc");
    EXPECT_EQ(widest(), 15);
    measurer_.scale = 3;
    EXPECT_EQ(widest(), 15);
    measure_.invalidate();
    EXPECT_EQ(widest(), 45);
}

} // namespace vellora::test
