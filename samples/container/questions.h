// What the container asks the person in front of the screen while it opens and saves forms.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <windows.h>

namespace vellora::samples {

class Questions {
public:
    enum class Answer { yes, no, cancel };

    virtual ~Questions() = default;
    /// Whether the changes of a form are to be saved before it goes.
    virtual Answer save_changes(const std::wstring& form) = 0;
    /// Nothing when the person thought better of it.
    virtual std::optional<std::filesystem::path> file_to_open() = 0;
    virtual std::optional<std::filesystem::path> file_to_save(const std::wstring& proposal) = 0;
    virtual void tell(const std::wstring& problem) = 0;
};

/// Asks in the system's own windows.
class DialogQuestions final : public Questions {
public:
    explicit DialogQuestions(HWND owner) : owner_(owner) {}

    Answer save_changes(const std::wstring& form) override;
    std::optional<std::filesystem::path> file_to_open() override;
    std::optional<std::filesystem::path> file_to_save(const std::wstring& proposal) override;
    void tell(const std::wstring& problem) override;

private:
    HWND owner_;
};

} // namespace vellora::samples
