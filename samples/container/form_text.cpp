#include "form_text.h"

#include "form_binary.h"
#include "form_name.h"
#include "form_reader.h"

#include <algorithm>
#include <set>

namespace vellora::samples {

namespace {

auto place_of(auto& settings, std::u16string_view name) {
    return std::ranges::find_if(settings, [name](const FormSetting& setting) { return same_name(setting.name, name); });
}

/// The text without the mark of its encoding.
std::string_view utf8_of(const FormSource& source) {
    std::string_view text = source.text;
    if (text.size() > FormLimits::text_bytes)
        throw FormError(source.name + " has " + std::to_string(text.size()) + " bytes, and a form file has at most " +
                        std::to_string(FormLimits::text_bytes) + '.');
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"))
        throw FormError(source.name + " is saved as UTF-16, and a form file was expected to be saved as UTF-8.");
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    if (text.empty())
        throw FormError(source.name + " is empty, where a form was expected.");
    return text;
}

} // namespace

const FormSetting* find_setting(const FormObject& object, std::u16string_view name) {
    const auto found = place_of(object.settings, name);
    return found == object.settings.end() ? nullptr : &*found;
}

FormSetting* find_setting(FormObject& object, std::u16string_view name) {
    const auto found = place_of(object.settings, name);
    return found == object.settings.end() ? nullptr : &*found;
}

void add_missing(FormObject& object, const std::vector<FormSetting>& settings) {
    std::set<std::u16string> names;
    for (const FormSetting& setting : object.settings)
        names.insert(folded(setting.name));
    for (const FormSetting& setting : settings)
        if (setting.name.empty() || names.insert(folded(setting.name)).second)
            object.settings.push_back(setting);
}

Form read_form(const FormSource& source) {
    const std::string_view text = utf8_of(source);
    FormRecords records(source);
    const auto note = [&](const FormReference& reference, const FormPlace& place) {
        records.note(reference, place);
        return reference.is_text ? FormValue(std::u16string()) : FormValue(FormBlob());
    };
    Form form = FormReader(source.name, text, note).read();
    if (records.empty())
        return form;
    const auto follow = [&](const FormReference& reference, const FormPlace& place) {
        return records.value(reference, place);
    };
    return FormReader(source.name, text, follow).read();
}

} // namespace vellora::samples
