// Forms as anybody may write them: refused with an error, or read, written and read again without a difference.
#include "fuzz/form_target.h"

#include "container/form_text.h"

#include <algorithm>
#include <span>

namespace vellora::fuzz {

namespace {

using namespace samples;

Form read(const std::string& text, const FormBlob& companion) {
    return read_form({"Form1.frm", text, [&](const std::u16string&) { return companion; }});
}

Input word(std::string_view text) {
    return {text.begin(), text.end()};
}

void run(const Input& input) {
    const auto end = std::find(input.begin(), input.end(), 0);
    const auto behind = std::as_bytes(std::span(end, input.end()));
    const FormBlob companion(behind.begin(), behind.end());
    Form form;
    try {
        form = read({input.begin(), end}, companion);
    } catch (const FormError&) {
        return;
    }
    const FormText first = write_form(form, u"Form1.frx");
    const FormText second = write_form(read(first.text, first.companion), u"Form1.frx");
    require(first.text == second.text && first.companion == second.companion, "a form is not what was written");
}

} // namespace

Target form_target() {
    return {"form",
            run,
            {word("\r\nEnd\r\n"), word("\r\nBegin A.B C\r\n"), word("\r\nBeginProperty P\r\n"),
             word("\r\nEndProperty\r\n"), word("\r\nA = 1"), word("\""), word("&H80000005&"), word("1E9"),
             word("\r\nA = \"Form1.frx\":0001"), word("$\"Form1.frx\":0001"), word("\r\nIndex = 1")}};
}

} // namespace vellora::fuzz
