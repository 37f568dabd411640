#include "questions.h"

#include <commdlg.h>

namespace vellora::samples {

namespace {

constexpr wchar_t title[] = L"Vellora test container";

std::optional<std::filesystem::path> ask_for_file(HWND owner, const std::wstring& proposal, DWORD flags,
                                                  BOOL(WINAPI* ask)(OPENFILENAMEW*)) {
    wchar_t path[1024] = L"";
    proposal.copy(path, ARRAYSIZE(path) - 1);
    OPENFILENAMEW file{};
    file.lStructSize = sizeof file;
    file.hwndOwner = owner;
    file.lpstrFilter = L"Forms (*.frm)\0*.frm\0All files\0*.*\0";
    file.lpstrFile = path;
    file.nMaxFile = ARRAYSIZE(path);
    file.lpstrDefExt = L"frm";
    file.Flags = flags | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
    if (!ask(&file))
        return std::nullopt;
    return std::filesystem::path(path);
}

} // namespace

Questions::Answer DialogQuestions::save_changes(const std::wstring& form) {
    const std::wstring question = L"Save the changes to " + form + L'?';
    switch (MessageBoxW(owner_, question.c_str(), title, MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES:
        return Answer::yes;
    case IDNO:
        return Answer::no;
    default:
        return Answer::cancel;
    }
}

std::optional<std::filesystem::path> DialogQuestions::file_to_open() {
    return ask_for_file(owner_, L"", OFN_FILEMUSTEXIST, GetOpenFileNameW);
}

std::optional<std::filesystem::path> DialogQuestions::file_to_save(const std::wstring& proposal) {
    return ask_for_file(owner_, proposal, OFN_OVERWRITEPROMPT, GetSaveFileNameW);
}

void DialogQuestions::tell(const std::wstring& problem) {
    MessageBoxW(owner_, problem.c_str(), title, MB_OK | MB_ICONWARNING);
}

} // namespace vellora::samples
