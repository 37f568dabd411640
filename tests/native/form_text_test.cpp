// Forms read from their text and written back.
#include "container/form_binary.h"
#include "native/form_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace vellora::test {

using namespace samples;
using namespace std::string_literals;

namespace {

/// The form after it was written and read again.
Form again(const Form& form) {
    return written(form).read();
}

Form form_with(FormValue value) {
    Form form{u"Form1", u""};
    form.settings.settings.push_back({u"Value", std::move(value)});
    return form;
}

template <typename Type>
Type value_after(const Type& value) {
    const Form form = again(form_with(value));
    return std::get<Type>(find_setting(form.settings, u"value")->value);
}

/// The form whose only setting is the line.
Form form_of(const std::string& line) {
    return FormFolder{lines({"VERSION 5.00", "Begin Form Form1", line, "End"})}.read();
}

template <typename Type>
Type value_of(const std::string& text) {
    return std::get<Type>(form_of("Value = " + text).settings.settings.at(0).value);
}

std::vector<std::string> sorted(std::vector<std::string> all) {
    for (std::string& line : all)
        line.resize(line.find_last_not_of(' ') + 1);
    std::ranges::sort(all);
    return all;
}

} // namespace

TEST(FormText, IsReadWithAllItHolds) {
    const Form form = complete_form().read();
    EXPECT_EQ(form.name, u"Form1");
    EXPECT_EQ(form.caption, u"Form1");
    EXPECT_EQ(form.client_width, 4680);
    EXPECT_EQ(form.client_height, 3195);
    ASSERT_EQ(form.controls.size(), 1U);
    const FormControl& control = form.controls[0];
    EXPECT_EQ(control.program_id, u"VelloraCTL.Vellora");
    EXPECT_EQ(control.name, u"Vellora1");
    EXPECT_EQ(control.left, 120);
    EXPECT_EQ(control.top, -120);
    EXPECT_EQ(control.width, 2415);
    EXPECT_EQ(control.height, 315);
    EXPECT_EQ(control.tab_index, 0);
    EXPECT_EQ(control.place_parts, unsigned{form_whole_place});
    const auto setting = [&](std::u16string_view name) { return find_setting(control.settings, name)->value; };
    EXPECT_EQ(std::get<std::int32_t>(setting(u"COLUMNS")), 3);
    EXPECT_EQ(std::get<std::int32_t>(setting(u"Locked")), -1);
    EXPECT_EQ(std::get<std::u16string>(setting(u"Text")), u"He said \"yes\"");
    EXPECT_EQ(std::get<double>(setting(u"DropDownWidthOffset")), 120.25);
    EXPECT_EQ(std::get<std::u16string>(setting(u"Hint")), u"Line 1\r\nLine 2");
    const FormBlob picture = std::get<FormBlob>(setting(u"Picture"));
    EXPECT_TRUE(std::ranges::equal(content_of(picture).value(), bytes("a picture")));
    const auto font = std::get<std::shared_ptr<FormObject>>(setting(u"Font"));
    EXPECT_EQ(font->class_id, u"{0BE35203-8F91-11CE-9DE3-00AA004BB851}");
    EXPECT_EQ(std::get<std::u16string>(find_setting(*font, u"Name")->value), u"Tahoma");
    EXPECT_EQ(std::get<double>(find_setting(*font, u"Size")->value), 8.25);
    EXPECT_EQ(find_setting(control.settings, u"Left"), nullptr);
}

TEST(FormText, IsWrittenAsItWasRead) {
    const FormFolder folder = complete_form();
    const FormFolder back = written(folder.read());
    EXPECT_EQ(split_lines(back.text), split_lines(folder.text));
    EXPECT_EQ(back.files, folder.files);
}

TEST(FormText, OfAnotherProgramLosesNothing) {
    const FormFolder foreign = foreign_form();
    const Form form = foreign.read();
    EXPECT_EQ(form.class_name, u"Host.MdiForm");
    EXPECT_EQ(form.controls.size(), 4U);
    EXPECT_EQ(form.controls[0].controls.size(), 2U);
    EXPECT_EQ(form.controls[1].place_parts, unsigned{form_left | form_top});
    EXPECT_EQ(form.controls[3].controls[0].place_parts, 0U);
    const FormFolder back = written(form);
    std::string expected = foreign.text;
    expected.replace(expected.find("\"Other.frx\":030A"), 16, "\"Form1.frx\":0000");
    EXPECT_EQ(sorted(split_lines(back.text)), sorted(split_lines(expected)));
    EXPECT_EQ(back.files.at(u"Form1.frx"), bytes("an icon of another program"));
    EXPECT_EQ(written(back.read()).text, back.text);
}

TEST(FormText, KeepsCodeByteForByte) {
    const std::string form = lines({"VERSION 5.00", "Begin Form Form1", "End"});
    for (const std::string& code : {""s, "\r\n"s, "Attribute Name = \"Form1\"\r\n"s,
                                    "\n\n' a comment\nSub A\n  End\nEnd Sub"s, "   "s, "x\0y"s}) {
        EXPECT_EQ(FormFolder{form + code}.read().code, code);
        EXPECT_EQ(written(FormFolder{form + code}.read()).text, form + code);
    }
}

TEST(FormText, HasAnyLineEndsAndAMark) {
    const std::string text = complete_form().text;
    for (const std::string end : {"\n", "\r"}) {
        FormFolder folder = complete_form();
        folder.text = "\xEF\xBB\xBF";
        for (const std::string& line : split_lines(text))
            folder.text += line + end;
        EXPECT_EQ(written(folder.read()).text, text);
    }
}

TEST(FormText, MayBeIndentedAndSpacedInAnyWay) {
    const Form form =
        FormFolder{"\n\t version 4.00\n\nOBJECT=\"x\"\nbegin  Form\tForm1 \n\n a=1\n\tB\t=\t\"x\"\t'c\nEND"}.read();
    EXPECT_EQ(form.version, u"4.00");
    EXPECT_EQ(form.libraries, std::vector<std::u16string>{u"OBJECT=\"x\""});
    EXPECT_EQ(std::get<std::int32_t>(form.settings.settings.at(0).value), 1);
    EXPECT_EQ(form.settings.settings.at(1).comment, u"c");
}

TEST(FormText, KeepsComments) {
    const std::vector<std::string> text{"VERSION 5.00",
                                        "Begin Form Form1",
                                        "   ' about the colour",
                                        "   BackColor       =   255  'Red: it's \"loud\"",
                                        "   Tag             =   \"it's\"  ' said",
                                        "End"};
    EXPECT_EQ(split_lines(written(FormFolder{lines(text)}.read()).text), text);
}

TEST(FormText, KeepsCommentsOfTheFormAndOfPlacesInLinesOfTheirOwn) {
    const std::vector<std::string> read{"VERSION 5.00",
                                        "Begin Form Form1",
                                        "Caption=\"A\" 'title",
                                        "ClientHeight=3 'tall",
                                        "ClientWidth=4 'wide",
                                        "Begin A.B C",
                                        "Left=5 'here",
                                        "Tag=6",
                                        "End",
                                        "End"};
    const std::vector<std::string> kept{"VERSION 5.00",
                                        "Begin Form Form1",
                                        "   Caption         =   \"A\"",
                                        "   ClientHeight    =   3",
                                        "   ClientWidth     =   4",
                                        "   'title",
                                        "   'tall",
                                        "   'wide",
                                        "   Begin A.B C",
                                        "      Left            =   5",
                                        "      'here",
                                        "      Tag             =   6",
                                        "   End",
                                        "End"};
    EXPECT_EQ(split_lines(written(FormFolder{lines(read)}.read()).text), kept);
}

TEST(FormText, KeepsAnEmptyCaptionAndNoSize) {
    const std::vector<std::string> text{"VERSION 5.00",
                                        "Begin Form Form1",
                                        "   Caption         =   \"\"",
                                        "   ClientHeight    =   0",
                                        "   ClientWidth     =   0",
                                        "End"};
    EXPECT_EQ(split_lines(written(FormFolder{lines(text)}.read()).text), text);
}

TEST(FormText, HoldsEveryText) {
    const std::u16string long_text(5000, u'\u20AC');
    for (const std::u16string& text :
         {std::u16string(), std::u16string(u"\""), std::u16string(u"\"\""), std::u16string(u" ' \t \" "),
          std::u16string(u"Z\u00FCrich \u20AC \U0001F600 \u05D0"), std::u16string(u"a\r\nb\n"),
          std::u16string(1, u'\0'), std::u16string(u"\xD83D"), std::u16string(u"\xDE00\xD83D"),
          std::u16string(u"\u0001"), long_text, std::u16string(254, u'a') + u'\n', std::u16string(255, u'a') + u'\n',
          std::u16string(65535, u'b') + u'\n', std::u16string(u"\uFEFF")}) {
        EXPECT_TRUE(value_after(text) == text) << text.size();
    }
}

TEST(FormText, HoldsEveryNumber) {
    using Long = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number : {0, 1, -1, 255, Long::max(), Long::min(), Long::min() + 15, Long::min() + 256})
        EXPECT_EQ(value_after(number), number);
    for (const double number : {0.5, -0.1, 8.25, 1e-300, 1.7976931348623157e308, 2147483648.0, 5e9, 123456789.125})
        EXPECT_EQ(value_after(number), number);
    EXPECT_EQ(std::get<std::int32_t>(again(form_with(12.0)).settings.settings[0].value), 12);
    EXPECT_THROW(written(form_with(std::numeric_limits<double>::infinity())), FormError);
}

TEST(FormText, ShowsFractionsAsUsersWriteThem) {
    const auto line = [](double number) { return split_lines(written(form_with(number)).text).at(2); };
    EXPECT_EQ(line(100000.0), "   Value           =   100000");
    EXPECT_EQ(line(-1200000.5), "   Value           =   -1200000.5");
    EXPECT_EQ(line(0.0001), "   Value           =   0.0001");
    EXPECT_EQ(line(3e9), "   Value           =   3000000000.0");
    EXPECT_EQ(line(1e20), "   Value           =   1e+20");
    EXPECT_EQ(line(1e-20), "   Value           =   1e-20");
}

TEST(FormText, ReadsNumbersOfOtherPrograms) {
    EXPECT_EQ(value_of<std::int32_t>("&H00C0FFFF&"), 0xC0FFFF);
    EXPECT_EQ(value_of<std::int32_t>("&h8000000f& 'Button face"), std::numeric_limits<std::int32_t>::min() + 15);
    EXPECT_EQ(value_of<std::int32_t>("&HFF"), 255);
    EXPECT_EQ(value_of<double>(".5"), 0.5);
    EXPECT_EQ(value_of<double>("1E3"), 1000.0);
    EXPECT_EQ(value_of<FormLiteral>("#1/2/1999# ").text, u"#1/2/1999#");
}

TEST(FormText, HoldsObjectsInObjects) {
    auto inner = std::make_shared<FormObject>(FormObject{u"", {{u"Key", std::u16string(u"k")}}});
    auto outer = std::make_shared<FormObject>(FormObject{u"{1}", {{u"Inner", inner}, {u"Count", std::int32_t{1}}}});
    const Form form = again(form_with(outer));
    const auto read = std::get<std::shared_ptr<FormObject>>(form.settings.settings.at(0).value);
    EXPECT_EQ(read->class_id, u"{1}");
    ASSERT_EQ(read->settings.size(), 2U);
    const auto read_inner = std::get<std::shared_ptr<FormObject>>(read->settings[0].value);
    EXPECT_EQ(read_inner->class_id, u"");
    EXPECT_EQ(std::get<std::u16string>(read_inner->settings.at(0).value), u"k");
}

TEST(FormText, HoldsRecordsOfAnyProgram) {
    Form form = form_with(bytes("foreign"));
    form.settings.settings.push_back({u"Own", record_of(bytes("own"))});
    form.settings.settings.push_back({u"Empty", record_of({})});
    const Form read = again(form);
    const auto record = [&](std::size_t at) { return std::get<FormBlob>(read.settings.settings.at(at).value); };
    EXPECT_EQ(record(0), bytes("foreign"));
    EXPECT_FALSE(content_of(record(0)).has_value());
    EXPECT_TRUE(std::ranges::equal(content_of(record(1)).value(), bytes("own")));
    EXPECT_TRUE(content_of(record(2)).value().empty());
}

TEST(FormText, HoldsTheTextsOfAnotherProgramsRecords) {
    FormFolder folder{lines({"VERSION 5.00", "Begin Form Form1", "Tag = $\"Form1.frx\":0000", "End"}),
                      {{u"Form1.frx", bytes("\x06Gr\xF6\xDF"
                                            "e\n and more")}}};
    EXPECT_EQ(std::get<std::u16string>(folder.read().settings.settings.at(0).value), u"Gr\u00F6\u00DFe\n");
}

TEST(FormText, WritesOnlyWhatIsThereOfAPlace) {
    Form form{u"Form1", u""};
    form.controls.push_back({u"A.B", u"C", 0, 5, 0, 0, 0, {}, form_left});
    EXPECT_EQ(written(form).text,
              lines({"VERSION 5.00", "Begin Form Form1", "   Begin A.B C", "      Left            =   0",
                     "      Top             =   5", "   End", "End"}));
}

TEST(FormText, AddsOnlyMissingSettings) {
    FormObject object{u"", {{u"A", std::int32_t{1}}}};
    add_missing(object, {{u"a", std::int32_t{2}}, {u"B", std::int32_t{3}}, {u"", std::int32_t{0}, u"note"}});
    ASSERT_EQ(object.settings.size(), 3U);
    EXPECT_EQ(std::get<std::int32_t>(object.settings[0].value), 1);
    EXPECT_EQ(object.settings[1].name, u"B");
    EXPECT_EQ(object.settings[2].comment, u"note");
}

TEST(FormText, IsNotWrittenWhenItCouldNotBeReadAgain) {
    const auto fails = [](const Form& form) { EXPECT_THROW(written(form), FormError); };
    fails({u"", u""});
    fails({u"Form 1", u""});
    fails({u"Form1\r\nEnd", u""});
    Form form{u"Form1", u""};
    form.controls = {{u"A.B", u"C"}, {u"A.B", u"c"}};
    fails(form);
    form.controls.assign(FormLimits::controls + 1, {u"A.B", u"C"});
    fails(form);
    form.controls = {{u"", u"C"}};
    fails(form);
    form.controls.clear();
    form.code = "End\r\n";
    fails(form);
    fails(form_with(FormLiteral{u"no literal"}));
    fails(form_with(FormLiteral{u"^A\r\nEnd"}));
    fails(form_with(FormBlob()));
    form = form_with(std::int32_t{1});
    form.settings.settings[0].name = u"a b";
    fails(form);
    form.settings.settings[0] = {u"A", std::int32_t{1}, u"two\nlines"};
    fails(form);
    auto round = std::make_shared<FormObject>();
    round->settings.push_back({u"Self", round});
    fails(form_with(round));
    round->settings.clear();
}

} // namespace vellora::test
