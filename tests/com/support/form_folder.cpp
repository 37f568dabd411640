#include "com/support/form_folder.h"

#include "support/container/text.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace vellora::test {

Lines FormFolder::names() const {
    Lines names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
        names.push_back(utf8(entry.path().filename().native()));
    std::ranges::sort(names);
    return names;
}

std::string FormFolder::content(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void FormFolder::fill(const std::filesystem::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

samples::Form form_of(samples::FormObject settings) {
    samples::Form form{u"Form1", u"Form1", 4680, 3195};
    form.controls.push_back({u"VelloraCTL.Vellora", u"Vellora1", 120, 120, 2415, 315, 0, std::move(settings)});
    return form;
}

} // namespace vellora::test
