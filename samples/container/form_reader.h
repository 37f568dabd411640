// The lines of a form file put together: libraries, the form, the controls on it, and the code behind it.
#pragma once

#include "form_line.h"
#include "form_lines.h"

#include <set>
#include <utility>

namespace vellora::samples {

class FormReader {
public:
    /// What a reference stands for.
    using Follow = std::function<FormValue(const FormReference& reference, const FormPlace& place)>;

    FormReader(const std::string& file, std::string_view text, Follow follow)
        : lines_(file, text), follow_(std::move(follow)) {}

    /// Once. Throws a FormError.
    Form read();

private:
    /// A control or the form itself, or an object of it, whose end is still to come.
    struct Open {
        FormControl control;
        /// Null for a control.
        std::shared_ptr<FormObject> object;
        std::size_t line;
    };

    void read_version();
    void read_libraries();
    void read_line();
    void read_code();
    void begin_control(FormLine&& line);
    void begin_object(FormLine&& line);
    Open& open(std::u16string&& name);
    Open ended(const char* keyword, bool is_object);
    void end_control(FormControl&& control);
    void end_object(Open&& object);
    void set(FormLine&& line);
    bool set_form(const FormLine& line);
    bool set_size(const FormLine& line);
    bool set_place(FormControl& control, const FormLine& line);
    void check_unique(const FormControl& control);
    /// Fails for one more than a form can have.
    void count(std::size_t& sum, std::size_t most, const char* what) const;
    static FormObject& settings_of(Open& open);
    static const char* keyword_of(const Open& open);
    [[noreturn]] void ends_too_early() const;

    FormLines lines_;
    Follow follow_;
    Form form_;
    std::vector<Open> open_;
    std::set<std::pair<std::u16string, std::optional<std::int32_t>>> names_;
    std::size_t controls_ = 0;
    std::size_t settings_ = 0;
};

} // namespace vellora::samples
