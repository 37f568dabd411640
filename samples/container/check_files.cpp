// Saving and opening forms: whole ones, damaged ones, foreign ones; and nothing is lost without a question.
#include "check.h"

#include "commands.h"
#include "form_disk.h"
#include "hosting/failure.h"

namespace vellora::samples {

namespace {

/// Answers as the step wants, and remembers what it was told.
class Answers final : public Questions {
public:
    Answer answer = Answer::cancel;
    std::filesystem::path file;
    std::wstring asked, told;

    Answer save_changes(const std::wstring& form) override {
        asked = form;
        return answer;
    }
    std::optional<std::filesystem::path> file_to_open() override { return file; }
    std::optional<std::filesystem::path> file_to_save(const std::wstring&) override { return file; }
    void tell(const std::wstring& problem) override { told = problem; }
};

/// A folder that goes with its files.
class Folder {
public:
    Folder() : path_(std::filesystem::temp_directory_path() / (L"container" + std::to_wstring(GetCurrentProcessId()))) {
        std::filesystem::create_directory(path_);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    std::filesystem::path file(const wchar_t* name, const std::string& text) const {
        const std::filesystem::path path = path_ / name;
        write_file(path, std::as_bytes(std::span(text)), path);
        return path;
    }
    std::filesystem::path file(const wchar_t* name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

std::string text_in(const std::filesystem::path& path) {
    constexpr std::size_t enough = 1024 * 1024;
    const FormBlob bytes = read_file(path, enough, "A form").value_or(FormBlob());
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

constexpr char foreign_form[] = "VERSION 5.00\r\n"
                                "Begin VB.Form Strange\r\n"
                                "   Caption         =   \"Strange\"\r\n"
                                "   ClientHeight    =   2000\r\n"
                                "   ClientWidth     =   3000\r\n"
                                "   StartUpPosition =   3\r\n"
                                "   Begin Nowhere.Gauge Gauge1 \r\n"
                                "      Height          =   495\r\n"
                                "      Left            =   240\r\n"
                                "      TabIndex        =   0\r\n"
                                "      Top             =   240\r\n"
                                "      Width           =   1215\r\n"
                                "      Needle          =   \"red\"\r\n"
                                "      Begin VelloraCTL.Vellora VELLORA1\r\n"
                                "         TabIndex        =   2\r\n"
                                "      End\r\n"
                                "   End\r\n"
                                "   Begin VelloraCTL.Vellora Box\r\n"
                                "      Height          =   315\r\n"
                                "      Left            =   240\r\n"
                                "      TabIndex        =   1\r\n"
                                "      Top             =   960\r\n"
                                "      Width           =   1215\r\n"
                                "      Columns         =   2\r\n"
                                "      Wheel           =   7\r\n"
                                "   End\r\n"
                                "End\r\n";

void save_and_open(ContainerWindow& container, Answers& answers, const Folder& folder, Steps& steps) {
    answers.file = folder.file(L"first.frm");
    container.command(ID_FILE_SAVE);
    steps.expect(L"a saved form has nothing to save", !container.document().changed());
    steps.expect_same(L"and is called as its file", L"first.frm", container.document().title());
    container.command(ID_EDIT_INSERT);
    answers.answer = Questions::Answer::cancel;
    container.command(ID_FILE_NEW);
    steps.expect_same(L"a changed form is asked about", L"first.frm", answers.asked);
    steps.expect_same(L"and stays when that is cancelled", 2, static_cast<long>(container.surface().controls().size()));
    answers.answer = Questions::Answer::no;
    container.command(ID_FILE_NEW);
    steps.expect_same(L"a new form is empty", 0, static_cast<long>(container.surface().controls().size()));
    container.command(ID_FILE_OPEN);
    steps.expect_same(L"the saved form comes back", 1, static_cast<long>(container.surface().controls().size()));
    container.surface().choose_next(false);
    steps.expect_same(L"with the settings of its control", L"1 - vlToggle",
                      container.grid().shown_value(L"ButtonStyle"));
    steps.expect_same(L"and its font", L"Tahoma, 12, bold", container.grid().shown_value(L"Font"));
}

void open_damaged(ContainerWindow& container, Answers& answers, const Folder& folder, Steps& steps) {
    const struct {
        const wchar_t* step;
        std::string text;
    } damaged[] = {
        {L"a file that is no form is refused", "This is a letter.\r\n"},
        {L"an empty file as well", ""},
        {L"and one that ends in the middle", std::string(foreign_form, 200)},
        {L"and one of zeros", std::string(5000, '\0')},
        {L"and one that never stops opening", "VERSION 5.00\r\nBegin VB.Form F\r\n" +
                                                  [] {
                                                      std::string text;
                                                      for (int i = 0; i < 5000; ++i)
                                                          text += "Begin A.B C\r\n";
                                                      return text;
                                                  }()},
    };
    for (const auto& [step, text] : damaged) {
        answers.told.clear();
        answers.file = folder.file(L"damaged.frm", text);
        container.command(ID_FILE_OPEN);
        steps.expect(step, says(answers.told, L"damaged.frm"));
    }
    answers.told.clear();
    answers.file = folder.file(L"nowhere.frm");
    container.command(ID_FILE_OPEN);
    steps.expect(L"a file that is not there is told of", !answers.told.empty());
    steps.expect_same(L"the form being edited is still there", 1,
                      static_cast<long>(container.surface().controls().size()));
    steps.expect_same(L"under its own name", L"first.frm", container.document().title());
}

void open_foreign(ContainerWindow& container, Answers& answers, const Folder& folder, Steps& steps) {
    answers.file = folder.file(L"strange.frm", foreign_form);
    container.command(ID_FILE_OPEN);
    steps.expect_same(L"a form with a control that is not registered opens", 2,
                      static_cast<long>(container.surface().controls().size()));
    steps.expect(L"a frame stands for that control", container.surface().controls().front()->window() != nullptr);
    steps.expect(L"which the container says", says(container.said(), L"One control cannot be had here"));
    steps.expect(L"with the reason", says(container.said(), L"Gauge1: Nowhere.Gauge is not registered."));
    container.surface().choose_next(false);
    container.grid().choose(L"Left");
    container.grid().edit();
    container.grid().editor().set_text(L"480");
    container.grid().accept();
    answers.file = folder.file(L"copy.frm");
    container.command(ID_FILE_SAVE_AS);
    const std::string copy = text_in(answers.file);
    for (const char* const kept : {"StartUpPosition =   3", "Nowhere.Gauge Gauge1", "Needle          =   \"red\"",
                                   "Wheel           =   7", "Left            =   480"})
        steps.expect((L"a copy has " + std::wstring(kept, kept + std::char_traits<char>::length(kept))).c_str(),
                     copy.find(kept) != std::string::npos);
}

void close_while_typing(ContainerWindow& container, Answers& answers, Steps& steps) {
    container.surface().choose_next(false);
    container.grid().choose(L"Left");
    container.grid().edit();
    container.grid().editor().set_text(L"600");
    answers.asked.clear();
    answers.answer = Questions::Answer::cancel;
    for (const UINT message : {WM_CLOSE, WM_QUERYENDSESSION}) {
        const LRESULT answer = SendMessageW(container.window(), message, 0, 0);
        steps.expect(L"neither the window nor the session ends without a question", answer == 0);
    }
    steps.expect(L"and what was being typed counts", container.document().changed() && !answers.asked.empty());
}

void fail_to_save(ContainerWindow& container, Answers& answers, const Folder& folder, Steps& steps) {
    container.command(ID_EDIT_INSERT);
    steps.expect_same(L"a new control has a name of its own among all of the form", L"Vellora2",
                      container.surface().chosen()->name());
    answers.told.clear();
    answers.file = folder.file(L"no such folder") / L"form.frm";
    container.command(ID_FILE_SAVE_AS);
    steps.expect(L"a form that cannot be written is told of", !answers.told.empty());
    steps.expect(L"and is still to be saved", container.document().changed());
    answers.answer = Questions::Answer::cancel;
    steps.expect(L"so the window asks before it closes",
                 SendMessageW(container.window(), WM_CLOSE, 0, 0) == 0 && IsWindow(container.window()));
}

} // namespace

void check_files(ContainerWindow& container, Steps& steps) {
    const Folder folder;
    Answers answers;
    container.ask(answers);
    container.document().touch();
    save_and_open(container, answers, folder, steps);
    open_damaged(container, answers, folder, steps);
    open_foreign(container, answers, folder, steps);
    close_while_typing(container, answers, steps);
    fail_to_save(container, answers, folder, steps);
}

void check_container(ContainerWindow& container, Steps& steps) {
    const User user(container);
    check_design(container, user, steps);
    check_values(container, user, steps);
    check_calls(container, steps);
    check_run(container, user, steps);
    check_files(container, steps);
}

} // namespace vellora::samples
