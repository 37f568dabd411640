// A form as hosts with property bags keep it in a text file: its controls by class, each with its settings by name.
// What the text cannot hold lies in a companion file, as records that the text names by their place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vellora::samples {

struct FormObject;

/// A record of the companion file as it stands there. See form_binary.h for what is in the records of this program;
/// those of other programs are kept as they are.
using FormBlob = std::vector<std::byte>;

/// A value of another kind, say a shortcut key: kept as it is written.
struct FormLiteral {
    std::u16string text;
};

/// Whole numbers are read as numbers without a fraction, truth values as -1 and 0. An object is never null.
using FormValue =
    std::variant<std::int32_t, double, std::u16string, FormBlob, std::shared_ptr<FormObject>, FormLiteral>;

/// One line of a form, or an object with its lines. A line that is only a comment has no name; nor has a comment that
/// stood beside a number or a text with a member of its own.
struct FormSetting {
    std::u16string name;
    FormValue value;
    std::u16string comment = {};
};

/// BeginProperty: the class and the settings of an object, in the order of the file. The class may be missing.
struct FormObject {
    std::u16string class_id = {};
    std::vector<FormSetting> settings = {};
};

/// Which numbers of a control's place its file gives: menus have none, and timers have no size.
enum FormPlacePart : unsigned {
    form_left = 1,
    form_top = 2,
    form_width = 4,
    form_height = 8,
    form_tab_index = 16,
    form_whole_place = 31
};

/// Coordinates are twips, within the form or the control around it.
struct FormControl {
    std::u16string program_id, name;
    std::int32_t left = 0, top = 0, width = 0, height = 0, tab_index = 0;
    /// All others, known to the control's class or not.
    FormObject settings = {};
    /// FormPlacePart; a number that is not 0 is written in any case.
    unsigned place_parts = form_whole_place;
    /// What lies on the control or hangs on the menu.
    std::vector<FormControl> controls = {};
};

/// Which of its caption and size the file of a form gives.
enum FormPart : unsigned { form_caption = 1, form_client_width = 2, form_client_height = 4 };

struct Form {
    std::u16string name, caption;
    /// Twips.
    std::int32_t client_width = 0, client_height = 0;
    std::vector<FormControl> controls = {};
    /// All settings of the form but those above.
    FormObject settings = {};
    std::u16string class_name = u"Form";
    std::u16string version = u"5.00";
    /// The lines before the form that name the libraries of its controls.
    std::vector<std::u16string> libraries = {};
    /// What follows the form in its file, byte for byte: a program's code.
    std::string code = {};
    /// FormPart; a caption that is not empty and a number that is not 0 are written in any case.
    unsigned parts = 0;
};

/// What is wrong with a form or its file.
class FormError : public std::runtime_error {
public:
    /// A sentence for the user, in UTF-8.
    explicit FormError(const std::string& sentence) : std::runtime_error(sentence) {}
};

/// What a form file may have at most; larger ones are refused before they take memory and time.
struct FormLimits {
    static constexpr std::size_t text_bytes = 4 * 1024 * 1024;
    static constexpr std::size_t companion_bytes = 64 * 1024 * 1024;
    static constexpr std::size_t line_bytes = 64 * 1024;
    static constexpr std::size_t controls = 2000;
    /// All settings of all controls and objects.
    static constexpr std::size_t settings = 100000;
    /// Controls on controls and objects in objects.
    static constexpr std::size_t depth = 32;
};

/// The setting of that name, capital letters or not; null when there is none.
const FormSetting* find_setting(const FormObject& object, std::u16string_view name);
FormSetting* find_setting(FormObject& object, std::u16string_view name);
/// Adds the settings whose names the object does not have, and the comments.
void add_missing(FormObject& object, const std::vector<FormSetting>& settings);

/// A form file in memory.
struct FormSource {
    /// How the file is called in messages, in UTF-8.
    std::string name;
    std::string_view text;
    /// The content of a companion file of the form's folder; nothing when there is no such file.
    std::function<std::optional<FormBlob>(const std::u16string& name)> companion;
};

/// Throws a FormError that names the file, the line and what was expected there.
Form read_form(const FormSource& source);

struct FormText {
    std::string text;
    /// Empty when the text says everything.
    FormBlob companion;
};

/// `companion_name` is how the text names the companion file. Throws a FormError for what no file can hold, say
/// a name with blanks.
FormText write_form(const Form& form, std::u16string_view companion_name);

} // namespace vellora::samples
