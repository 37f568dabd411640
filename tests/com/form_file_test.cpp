// Form files on the disk: saving replaces both files or none, whatever happens on the way.
#include "com/support/form_folder.h"
#include "container/form_binary.h"
#include "support/container/text.h"

#include <gtest/gtest.h>

namespace vellora::test {
namespace {

using samples::Form;
using samples::read_form_file;
using samples::write_form_file;

/// A form that needs a companion file for its picture.
Form with_picture(const std::u16string& text) {
    const std::string content(text.begin(), text.end());
    return form_of({u"", {{u"Picture", samples::record_of(std::as_bytes(std::span(content)))}, {u"Text", text}}});
}

Form without_picture(const std::u16string& text) {
    return form_of({u"", {{u"Text", text}}});
}

class FormFileTest : public testing::Test {
protected:
    void save(const Form& form) { write_form_file(folder_.form(), form); }
    std::string save_error(const Form& form) {
        return form_error([&] { save(form); });
    }
    /// The text of the control on the form that is read, and whether its picture is its own.
    std::string loaded() {
        const Form form = read_form_file(folder_.form());
        const samples::FormObject& settings = form.controls.at(0).settings;
        const auto text = std::get<std::u16string>(samples::find_setting(settings, u"Text")->value);
        std::string result(text.begin(), text.end());
        if (const samples::FormSetting* const picture = samples::find_setting(settings, u"Picture")) {
            const auto& record = std::get<samples::FormBlob>(picture->value);
            const auto content = samples::content_of(record).value();
            result += std::ranges::equal(content, std::as_bytes(std::span(result))) ? " with its picture"
                                                                                    : " with another picture";
        }
        return result;
    }
    std::string shown(const std::filesystem::path& file) { return utf8(file.native()); }
    /// Nothing has changed, and nothing is left over.
    void expect_old_files() {
        EXPECT_EQ("old with its picture", loaded());
        EXPECT_TRUE(same_lines({"Form1.frm", "Form1.frx"}, folder_.names()));
    }

    FormFolder folder_;
};

TEST_F(FormFileTest, IsReadAsItWasWritten) {
    save(with_picture(u"old"));
    expect_old_files();
    save(with_picture(u"new"));
    EXPECT_EQ("new with its picture", loaded());
    EXPECT_TRUE(same_lines({"Form1.frm", "Form1.frx"}, folder_.names()));
}

TEST_F(FormFileTest, HasACompanionOnlyWhenItNeedsOne) {
    save(without_picture(u"first"));
    EXPECT_TRUE(same_lines({"Form1.frm"}, folder_.names()));
    save(with_picture(u"second"));
    save(without_picture(u"third"));
    EXPECT_EQ("third", loaded());
    EXPECT_TRUE(same_lines({"Form1.frm"}, folder_.names()));
}

TEST_F(FormFileTest, MayHaveAnyName) {
    const std::filesystem::path path = folder_.path(L"Z\u00FCrich \u20AC.form");
    write_form_file(path, with_picture(u"old"));
    EXPECT_NE(std::string::npos, FormFolder::content(path).find("\"Z\u00FCrich \u20AC.frx\":0000"));
    EXPECT_EQ(1U, read_form_file(path).controls.size());
}

TEST_F(FormFileTest, ThatIsNotThereIsNamed) {
    EXPECT_EQ(shown(folder_.form()) + " cannot be opened: there is no such file.", form_error([&] { loaded(); }));
    const auto elsewhere = folder_.path(L"nowhere") / L"Form1.frm";
    EXPECT_EQ(shown(elsewhere) + " cannot be opened: there is no such folder.",
              form_error([&] { read_form_file(elsewhere); }));
}

TEST_F(FormFileTest, WithTheNameOfADeviceIsNotRead) {
    EXPECT_EQ("\\\\.\\NUL cannot be read: no file can have this name.",
              form_error([] { read_form_file(L"\\\\.\\NUL"); }));
}

TEST_F(FormFileTest, WithoutItsCompanionIsNotRead) {
    save(with_picture(u"old"));
    std::filesystem::remove(folder_.companion());
    EXPECT_EQ("In line 12 of Form1.frm the companion file \"Form1.frx\" was expected beside the form, and it is not "
              "there.",
              form_error([&] { loaded(); }));
}

TEST_F(FormFileTest, ThatIsTooLargeIsNotRead) {
    save(with_picture(u"old"));
    std::filesystem::resize_file(folder_.companion(), samples::FormLimits::companion_bytes + 1);
    EXPECT_EQ(shown(folder_.companion()) + " has 67108865 bytes, and a companion file has at most 67108864.",
              form_error([&] { loaded(); }));
    FormFolder::fill(folder_.form(), std::string(samples::FormLimits::text_bytes + 1, '\n'));
    EXPECT_EQ(shown(folder_.form()) + " has 4194305 bytes, and a form file has at most 4194304.",
              form_error([&] { loaded(); }));
}

TEST_F(FormFileTest, ReadOnlyStaysAsItWas) {
    save(with_picture(u"old"));
    for (const auto& file : {folder_.form(), folder_.companion()}) {
        SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
        EXPECT_EQ(shown(file) + " cannot be written: it is read-only.", save_error(with_picture(u"new")));
        SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
        expect_old_files();
    }
}

TEST_F(FormFileTest, ThatAnotherProgramHasOpenStaysAsItWas) {
    save(with_picture(u"old"));
    for (const auto& file : {folder_.form(), folder_.companion()}) {
        const HANDLE open =
            CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(INVALID_HANDLE_VALUE, open);
        EXPECT_NE("", save_error(with_picture(u"new")));
        expect_old_files();
        CloseHandle(open);
    }
    save(with_picture(u"new"));
    EXPECT_EQ("new with its picture", loaded());
}

TEST_F(FormFileTest, WaitsUntilNobodyHoldsTheCompanionThatSteppedAside) {
    save(with_picture(u"old"));
    const auto aside = folder_.path(L"Form1.frm.~old.frx");
    FormFolder::fill(aside, "the companion file before that");
    const HANDLE open = CreateFileW(aside.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, open);
    EXPECT_EQ(shown(aside) + " is in the way: another program has it open.", save_error(with_picture(u"new")));
    EXPECT_EQ("old with its picture", loaded());
    CloseHandle(open);
    save(with_picture(u"old"));
    expect_old_files();
}

TEST_F(FormFileTest, WithoutAFolderIsNotWritten) {
    const auto elsewhere = folder_.path(L"nowhere") / L"Form1.frm";
    EXPECT_EQ(shown(elsewhere) + " cannot be written: there is no such folder.",
              form_error([&] { write_form_file(elsewhere, with_picture(u"new")); }));
    EXPECT_TRUE(folder_.names().empty());
}

TEST_F(FormFileTest, InPlaceOfAFolderIsNotWritten) {
    std::filesystem::create_directory(folder_.form());
    EXPECT_EQ(shown(folder_.form()) + " cannot be written: it is a folder.", save_error(with_picture(u"new")));
    EXPECT_TRUE(same_lines({"Form1.frm"}, folder_.names()));
    std::filesystem::remove(folder_.form());
}

TEST_F(FormFileTest, ThatCannotBeReadAgainIsNotWritten) {
    save(with_picture(u"old"));
    Form bad = with_picture(u"new");
    bad.controls[0].name = u"two words";
    EXPECT_EQ("A form file cannot hold the name \"two words\", as a name has neither blanks nor marks.",
              save_error(bad));
    expect_old_files();
}

TEST_F(FormFileTest, DoesNotTakeTheCompanionOfAnotherForm) {
    save(with_picture(u"old"));
    const std::filesystem::path other = folder_.path(L"Form1.txt");
    EXPECT_EQ(shown(other) + " cannot be written: its companion file " + shown(folder_.companion()) +
                  " belongs to another form. Choose another name.",
              form_error([&] { write_form_file(other, with_picture(u"new")); }));
    expect_old_files();
    write_form_file(other, without_picture(u"new"));
    EXPECT_EQ("old with its picture", loaded());
    EXPECT_NE("", form_error([&] { write_form_file(folder_.companion(), without_picture(u"new")); }));
    EXPECT_EQ("old with its picture", loaded());
}

/// A save that ended before its last step, by the files it left.
class InterruptedSave : public FormFileTest {
protected:
    void SetUp() override {
        save(with_picture(u"new"));
        new_form_ = FormFolder::content(folder_.form());
        new_companion_ = FormFolder::content(folder_.companion());
        save(with_picture(u"old"));
    }
    void move(const wchar_t* from, const wchar_t* to) { std::filesystem::rename(folder_.path(from), folder_.path(to)); }
    void expect(const std::string& text) {
        EXPECT_EQ(text, loaded());
        save(with_picture(u"later"));
        EXPECT_EQ("later with its picture", loaded());
        EXPECT_TRUE(same_lines({"Form1.frm", "Form1.frx"}, folder_.names()));
    }

    std::string new_form_, new_companion_;
};

TEST_F(InterruptedSave, WhileTheNewFilesAreWritten) {
    FormFolder::fill(folder_.path(L"Form1.frm.~new.frx"), new_companion_);
    FormFolder::fill(folder_.path(L"Form1.frm.~new"), new_form_.substr(0, new_form_.size() - 5));
    expect("old with its picture");
}

TEST_F(InterruptedSave, AfterTheOldCompanionSteppedAside) {
    FormFolder::fill(folder_.path(L"Form1.frm.~new"), new_form_);
    FormFolder::fill(folder_.path(L"Form1.frm.~new.frx"), new_companion_);
    move(L"Form1.frx", L"Form1.frm.~old.frx");
    expect("old with its picture");
}

TEST_F(InterruptedSave, BetweenTheTwoFiles) {
    FormFolder::fill(folder_.path(L"Form1.frm.~new"), new_form_);
    move(L"Form1.frx", L"Form1.frm.~old.frx");
    FormFolder::fill(folder_.companion(), new_companion_);
    expect("old with its picture");
}

TEST_F(InterruptedSave, BeforeTheOldCompanionIsRemoved) {
    move(L"Form1.frx", L"Form1.frm.~old.frx");
    FormFolder::fill(folder_.companion(), new_companion_);
    FormFolder::fill(folder_.form(), new_form_);
    expect("new with its picture");
}

TEST_F(InterruptedSave, OfAFormWithoutACompanionSoFar) {
    save(without_picture(u"old"));
    FormFolder::fill(folder_.path(L"Form1.frm.~new"), new_form_);
    FormFolder::fill(folder_.companion(), new_companion_);
    expect("old");
}

TEST_F(InterruptedSave, OfANewForm) {
    move(L"Form1.frm", L"Form1.frm.~new");
    EXPECT_EQ(shown(folder_.form()) + " cannot be opened: there is no such file.", form_error([&] { loaded(); }));
    save(without_picture(u"later"));
    EXPECT_TRUE(same_lines({"Form1.frm"}, folder_.names()));
}

TEST_F(InterruptedSave, OutlivesTheSaveOfAFormWithAnotherEnding) {
    FormFolder::fill(folder_.path(L"Form1.frm.~new"), new_form_);
    move(L"Form1.frx", L"Form1.frm.~old.frx");
    write_form_file(folder_.path(L"Form1.txt"), without_picture(u"other"));
    EXPECT_EQ("old with its picture", loaded());
}

TEST_F(InterruptedSave, ThatFailsAgainStillHasTheOldFiles) {
    FormFolder::fill(folder_.path(L"Form1.frm.~new"), new_form_);
    move(L"Form1.frx", L"Form1.frm.~old.frx");
    FormFolder::fill(folder_.companion(), new_companion_);
    SetFileAttributesW(folder_.form().c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_NE("", save_error(with_picture(u"later")));
    SetFileAttributesW(folder_.form().c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ("old with its picture", loaded());
}

} // namespace
} // namespace vellora::test
