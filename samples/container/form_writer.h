// A form as the lines of its file.
#pragma once

#include "form_binary.h"
#include "form_text.h"

namespace vellora::samples {

class FormWriter {
public:
    explicit FormWriter(std::u16string_view companion_name) : records_(companion_name) {}

    /// Once. Throws a FormError for what no line can say.
    FormText write(const Form& form);

private:
    void line(const std::string& text);
    void begin(std::u16string_view class_name, std::u16string_view name);
    void end(const char* keyword);
    void go_deeper();
    void control(const FormControl& control);
    void place(const FormControl& control);
    void settings(const FormObject& object);
    void setting(const FormSetting& setting);
    void setting(std::u16string_view name, const std::string& value, std::u16string_view comment = {});
    void object(std::u16string_view name, const FormObject& object);
    std::string text_value(std::u16string_view text);
    std::string value_text(const FormValue& value);

    FormRecordWriter records_;
    std::string text_;
    std::size_t depth_ = 0;
};

} // namespace vellora::samples
