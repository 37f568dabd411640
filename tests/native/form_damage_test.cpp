// Form files that are damaged, too large or no form files at all: what the user is told, and that nothing worse
// happens.
#include "container/form_binary.h"
#include "native/form_files.h"

#include <gtest/gtest.h>

namespace vellora::test {

using namespace samples;

namespace {

std::string error_of_text(const std::string& text) {
    return FormFolder{text}.error();
}

/// Of a form whose third line it is.
std::string error_of_line(const std::string& line) {
    return error_of_text(lines({"VERSION 5.00", "Begin Form Form1", line, "End"}));
}

std::string in_line_3(const std::string& wrong) {
    return "In line 3 of Form1.frm " + wrong + ".";
}

std::string form_around(const std::string& inside) {
    return "VERSION 5.00\nBegin Form Form1\n" + inside + "End\n";
}

std::string repeated(const std::string& text, std::size_t times) {
    std::string all;
    for (std::size_t time = 0; time < times; ++time)
        all += text;
    return all;
}

bool starts_with(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

} // namespace

TEST(DamagedForm, CutOffAnywhereIsAnError) {
    for (const FormFolder& whole : {complete_form(), foreign_form()}) {
        const std::size_t end = whole.text.find("\r\nEnd") + 5;
        for (std::size_t size = 0; size < end; ++size) {
            FormFolder cut = whole;
            cut.text.resize(size);
            EXPECT_NE(cut.error(), "") << size;
        }
        for (std::size_t size = end; size <= whole.text.size(); ++size) {
            FormFolder cut = whole;
            cut.text.resize(size);
            EXPECT_EQ(cut.error(), "") << size;
        }
    }
}

TEST(DamagedForm, WithALineEndingTooManyOrTooFewIsAnError) {
    for (const FormFolder& whole : {complete_form(), foreign_form()}) {
        const std::string form = whole.text.substr(0, whole.text.find("\r\nEnd") + 5);
        const std::vector<std::string> all = split_lines(form);
        for (std::size_t at = 0; at < all.size(); ++at) {
            for (const char* surplus : {"End", "EndProperty", "BeginProperty A", "Begin A B"}) {
                FormFolder damaged = whole;
                std::vector<std::string> more = all;
                more.insert(more.begin() + static_cast<std::ptrdiff_t>(at) + 1, surplus);
                damaged.text = lines(more);
                EXPECT_NE(damaged.error(), "") << at << surplus;
            }
            const std::size_t word = all[at].find_first_not_of(' ');
            if (all[at].compare(word, 3, "End") != 0 && all[at].compare(word, 5, "Begin") != 0)
                continue;
            FormFolder damaged = whole;
            std::vector<std::string> less = all;
            less.erase(less.begin() + static_cast<std::ptrdiff_t>(at));
            damaged.text = lines(less);
            EXPECT_NE(damaged.error(), "") << at;
        }
    }
}

TEST(DamagedForm, WithoutOneOfItsQuotationMarksIsAnError) {
    const FormFolder whole = complete_form();
    for (std::size_t mark = whole.text.find('"'); mark != std::string::npos; mark = whole.text.find('"', mark + 1)) {
        FormFolder damaged = whole;
        damaged.text.erase(mark, 1);
        EXPECT_NE(damaged.error(), "") << mark;
    }
}

TEST(DamagedForm, NamesTheLineAndWhatWasExpected) {
    EXPECT_EQ(error_of_line("A = \"x"), in_line_3("a closing quotation mark was expected at the end"));
    EXPECT_EQ(error_of_line("A = \"x\" y"), in_line_3("the end of the line was expected, not \"y\""));
    EXPECT_EQ(error_of_line("A ="), in_line_3("a number or a text in quotation marks was expected at the end"));
    EXPECT_EQ(error_of_line("A = True"), in_line_3("a number or a text in quotation marks was expected, not \"True\""));
    EXPECT_EQ(error_of_line("A = 3x"), in_line_3("a number was expected, not \"3x\""));
    EXPECT_EQ(error_of_line("A = 1 2"), in_line_3("the end of the line was expected, not \"2\""));
    EXPECT_EQ(error_of_line("A = -"), in_line_3("a number was expected, not \"-\""));
    EXPECT_EQ(error_of_line("A = 1.2.3"), in_line_3("a number was expected, not \"1.2.3\""));
    EXPECT_EQ(error_of_line("A = 2147483648"),
              in_line_3("a number from -2147483648 to 2147483647 was expected, not \"2147483648\""));
    EXPECT_EQ(error_of_line("A = 99999999999999999999"),
              in_line_3("a number from -2147483648 to 2147483647 was expected, not \"99999999999999999999\""));
    EXPECT_EQ(error_of_line("A = 1E400"),
              in_line_3("a number of a size that a control can have was expected, not \"1E400\""));
    EXPECT_EQ(error_of_line("A = &H123456789&"),
              in_line_3("a number such as &H8000000F& was expected, not \"&H123456789&\""));
    EXPECT_EQ(error_of_line("A = &"), in_line_3("a number such as &H8000000F& was expected, not \"&\""));
    EXPECT_EQ(error_of_line("nonsense here"), in_line_3("a setting, Begin or End was expected, not \"nonsense here\""));
    EXPECT_EQ(error_of_line("= 3"), in_line_3("a setting, Begin or End was expected, not \"= 3\""));
    EXPECT_EQ(error_of_line("Begin"), in_line_3("the class of a control was expected at the end"));
    EXPECT_EQ(error_of_line("Begin A.B"), in_line_3("the name of a control was expected at the end"));
    EXPECT_EQ(error_of_line("Begin A.B C D"), in_line_3("the end of the line was expected, not \"D\""));
    EXPECT_EQ(error_of_line("BeginProperty"), in_line_3("the name of a property was expected at the end"));
    EXPECT_EQ(error_of_line("ClientWidth = \"wide\""),
              in_line_3("a number without a fraction was expected for \"ClientWidth\""));
    EXPECT_EQ(error_of_line("EndProperty"),
              in_line_3("End was expected for \"Form1\", which begins in line 2, not EndProperty"));
    EXPECT_EQ(error_of_line("A = " + std::string(100, 'a')),
              in_line_3("a number or a text in quotation marks was expected, not \"" + std::string(40, 'a') + "...\""));
}

TEST(DamagedForm, NamesWhatLacksItsEnd) {
    EXPECT_EQ(error_of_text("VERSION 5.00\nBegin Form Form1\n Begin A.B C\n"),
              "In line 3 of Form1.frm the file ends, where End was expected for \"C\", which begins in line 3.");
    EXPECT_EQ(error_of_text("VERSION 5.00\nBegin Form Form1\nBeginProperty Font\nEnd\n"),
              "In line 4 of Form1.frm EndProperty was expected for \"Font\", which begins in line 3, not End.");
    EXPECT_EQ(error_of_text("VERSION 5.00\nBegin Form Form1\nBeginProperty Font\nBegin A.B C\n"),
              "In line 4 of Form1.frm a setting or EndProperty was expected, not \"Begin\".");
    EXPECT_EQ(error_of_text("VERSION 5.00\nBegin Form Form1\nEnd\n\nEnd\n"),
              "In line 5 of Form1.frm code, as the form ended in line 3, was expected, not \"End\".");
    EXPECT_EQ(error_of_text("VERSION 5.00\nBegin Form Form1\nEnd\n   Width = 5\n"),
              "In line 4 of Form1.frm code, as the form ended in line 3, was expected, not \"   Width = 5\".");
}

TEST(DamagedForm, ThatIsNoFormIsToldApart) {
    EXPECT_EQ(error_of_text(""), "Form1.frm is empty, where a form was expected.");
    EXPECT_EQ(error_of_text("\xEF\xBB\xBF"), "Form1.frm is empty, where a form was expected.");
    EXPECT_EQ(error_of_text("MZ\x90"), "In line 1 of Form1.frm characters stand that are not UTF-8, in which a form "
                                       "file was expected to be saved.");
    EXPECT_EQ(error_of_text(std::string("M\0", 2)),
              "In line 1 of Form1.frm a zero character stands, where only text was expected.");
    EXPECT_EQ(error_of_text("\xFF\xFEV"),
              "Form1.frm is saved as UTF-16, and a form file was expected to be saved as UTF-8.");
    EXPECT_EQ(error_of_text("<html>"), "In line 1 of Form1.frm the word VERSION, with which every form file begins, "
                                       "was expected, not \"<html>\".");
    EXPECT_EQ(error_of_text("VERSION 5.00\n"),
              "In line 1 of Form1.frm a line with Begin and the class of the form was expected at the end.");
    EXPECT_EQ(error_of_text("VERSION 5.00\nA = 1\n"),
              "In line 2 of Form1.frm a line with Begin and the class of the form was expected, not \"A = 1\".");
    EXPECT_EQ(error_of_line("A = \"Z\xFCrich\""), in_line_3("characters stand that are not UTF-8, in which a form file "
                                                            "was expected to be saved"));
    for (const char* wrong :
         {"\xC0\x80", "\xE0\x80\x80", "\xF4\x90\x80\x80", "\xED\xA0\x80", "\xF8\x88\x80\x80\x80", "\xE2\x82", "\x80"})
        EXPECT_NE(error_of_line("A = \"" + std::string(wrong) + "\""), "");
}

TEST(DamagedForm, WithOneNameTwiceIsAnError) {
    EXPECT_EQ(error_of_text(form_around("Begin A.B C\nEnd\nBegin A.B D\nBegin X.Y c\nEnd\nEnd\n")),
              "In line 7 of Form1.frm a second control called \"c\" ends, where every name was expected only once.");
    EXPECT_NE(error_of_text(form_around("Begin A.B C\nIndex=1\nEnd\nBegin A.B C\nIndex=1\nEnd\n")), "");
    EXPECT_EQ(error_of_text(form_around("Begin A.B C\nIndex=0\nEnd\nBegin A.B C\nIndex=1\nEnd\n")), "");
}

TEST(HugeForm, IsRefused) {
    const std::string megabyte(1024 * 1024, '\n');
    EXPECT_EQ(error_of_text(form_around("") + repeated(megabyte, 4)),
              "Form1.frm has " + std::to_string(4 * megabyte.size() + form_around("").size()) +
                  " bytes, and a form file has at most 4194304.");
    EXPECT_EQ(error_of_line("A = \"" + std::string(FormLimits::line_bytes - 6, 'x') + '"'), "");
    EXPECT_EQ(error_of_line("A = \"" + std::string(FormLimits::line_bytes - 5, 'x') + '"'),
              in_line_3("more than the 65536 bytes stand that a line can have"));
    const auto deep = [](std::size_t levels) {
        return form_around(repeated("BeginProperty A\n", levels - 1) + repeated("EndProperty\n", levels - 1));
    };
    EXPECT_EQ(error_of_text(deep(FormLimits::depth)), "");
    EXPECT_EQ(error_of_text(deep(FormLimits::depth + 1)),
              "In line 34 of Form1.frm controls and objects go deeper than the 32 levels that a form can have.");
    const auto many = [](std::size_t count) {
        std::string all;
        for (std::size_t control = 0; control < count; ++control)
            all += "Begin A.B C" + std::to_string(control) + "\nEnd\n";
        return form_around(all);
    };
    EXPECT_EQ(error_of_text(many(FormLimits::controls)), "");
    EXPECT_EQ(error_of_text(many(FormLimits::controls + 1)),
              "In line 4004 of Form1.frm the form has more than the 2000 controls that a form can have.");
}

TEST(HugeForm, WithTooManySettingsIsRefused) {
    EXPECT_EQ(error_of_text(form_around(repeated("A=1\n", FormLimits::settings))), "");
    EXPECT_EQ(error_of_text(form_around(repeated("A=1\n", FormLimits::settings + 1))),
              "In line 100003 of Form1.frm the form has more than the 100000 settings that a form can have.");
}

TEST(DamagedCompanion, IsNamed) {
    const auto error = [](const std::string& value, const FormBlob& companion) {
        return FormFolder{lines({"VERSION 5.00", "Begin Form Form1", "Picture = " + value, "End"}),
                          {{u"Form1.frx", companion}}}
            .error();
    };
    const FormBlob record = record_of(bytes("a picture"));
    EXPECT_EQ(error("\"Form1.frx\":0000", record), "");
    EXPECT_EQ(error("\"Form2.frx\":0000", record),
              in_line_3("the companion file \"Form2.frx\" was expected beside the form, and it is not there"));
    EXPECT_EQ(error("\"Form1.frx\":0011", record),
              in_line_3("the place 0011 was expected to be in the companion file \"Form1.frx\", which ends at 0011"));
    EXPECT_EQ(
        error("\"Form1.frx\":FFFFFFFF", record),
        in_line_3("the place FFFFFFFF was expected to be in the companion file \"Form1.frx\", which ends at 0011"));
    EXPECT_EQ(error("\"Form1.frx\":0000", {}),
              in_line_3("the place 0000 was expected to be in the companion file \"Form1.frx\", which ends at 0000"));
    EXPECT_EQ(error("\"Form1.frx\":x", record),
              in_line_3("the place in the companion file, a number to base 16, was expected, not \"x\""));
    EXPECT_EQ(error("$\"Form1.frx\"", record),
              in_line_3("a colon and the place in the companion file was expected at the end"));
    EXPECT_EQ(error("$Form1", record), in_line_3("the name of the companion file was expected, not \"Form1\""));
    for (const char* elsewhere : {"..\\Form1.frx", "../Form1.frx", "C:Form1.frx"})
        EXPECT_EQ(error('"' + std::string(elsewhere) + "\":0000", record),
                  in_line_3("a companion file in the folder of the form was expected, not \"" + std::string(elsewhere) +
                            '"'));
}

TEST(DamagedCompanion, CutOffAnywhereIsAnError) {
    const FormFolder whole = complete_form();
    const FormBlob& companion = whole.files.at(u"Form1.frx");
    for (std::size_t size = 0; size < companion.size(); ++size) {
        FormFolder cut = whole;
        cut.files[u"Form1.frx"].resize(size);
        EXPECT_TRUE(starts_with(cut.error(), "In line 2")) << size << cut.error();
    }
    for (std::size_t size = 0; size < 17; ++size) {
        FormFolder record = whole;
        record.text = lines({"VERSION 5.00", "Begin Form Form1", "Picture = \"Form1.frx\":0000", "End"});
        record.files[u"Form1.frx"].resize(size);
        EXPECT_NE(record.error(), "") << size;
    }
}

TEST(DamagedCompanion, OfHostileFormsTakesLittleMemory) {
    FormFolder folder{form_around(repeated("A = \"Form1.frx\":0000\n", 1000))};
    folder.files[u"Form1.frx"] = FormBlob(1024 * 1024);
    EXPECT_EQ(
        folder.error(),
        "In line 130 of Form1.frm the records of the form take more than the 128 megabytes that a form can have.");
}

} // namespace vellora::test
