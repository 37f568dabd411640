// Thousands of forms changed in a few places, the same ones in every run: each is read as some form or refused, and
// what was read can be written and is then the same for ever.
#include "native/form_files.h"

#include <gtest/gtest.h>

#include <random>

namespace vellora::test {

using namespace samples;

namespace {

class Mutation {
public:
    explicit Mutation(unsigned seed) : random_(seed) {}

    void change(std::string& text) {
        for (std::size_t times = 1 + below(4); times > 0; --times)
            change_once(text);
    }

private:
    std::size_t below(std::size_t limit) { return random_() % limit; }

    void change_once(std::string& text) {
        const std::size_t at = below(text.size() + 1);
        const std::size_t length = below(40);
        switch (below(4)) {
        case 0:
            text.insert(at, 1, static_cast<char>(below(256)));
            break;
        case 1:
            text.erase(at, length);
            break;
        case 2:
            text.insert(at, text.substr(below(text.size() + 1), length));
            break;
        default:
            text.insert(at, pieces[below(std::size(pieces))]);
        }
    }

    static constexpr const char* pieces[] = {"\r\n",
                                             "\r\nEnd",
                                             "\r\nBegin A.B C\r\n",
                                             "\r\nBeginProperty P\r\n",
                                             "\r\nEndProperty\r\n",
                                             "\"",
                                             "'",
                                             "&H",
                                             "=",
                                             "\r\nA = 1",
                                             "\r\nB = \"Form1.frx\":0003",
                                             "$",
                                             "1E999",
                                             ".",
                                             "-1",
                                             "{x}",
                                             "\xEF\xBB\xBF",
                                             "\xED\xA0\x80",
                                             "\xF0\x9F\x98\x80",
                                             "\t",
                                             "\r\n'",
                                             "^",
                                             "\r\nLeft = 3 'c",
                                             "\r\nIndex = 1",
                                             "Object = 1\r\n",
                                             "VERSION 1",
                                             " ",
                                             "\r\n\r\n"};

    std::mt19937 random_;
};

/// Whether it was a form at all.
bool holds(const FormFolder& folder) {
    if (!folder.error().empty())
        return false;
    const FormFolder first = written(folder.read());
    const FormFolder second = written(first.read());
    EXPECT_EQ(first.text, second.text);
    EXPECT_EQ(first.files, second.files);
    return true;
}

} // namespace

TEST(FormMutation, IsReadOrRefused) {
    Mutation mutation(20);
    int forms = 0;
    for (int time = 0; time < 6000; ++time) {
        FormFolder folder = time % 2 == 0 ? complete_form() : foreign_form();
        mutation.change(folder.text);
        forms += holds(folder) ? 1 : 0;
        if (HasFailure())
            return;
    }
    // Neither all nor none.
    EXPECT_GT(forms, 300);
    EXPECT_LT(forms, 5700);
}

TEST(FormMutation, OfTheCompanionIsReadOrRefused) {
    Mutation mutation(21);
    int forms = 0;
    for (int time = 0; time < 2000; ++time) {
        FormFolder folder = complete_form();
        FormBlob& companion = folder.files[u"Form1.frx"];
        std::string content(reinterpret_cast<const char*>(companion.data()), companion.size());
        mutation.change(content);
        companion = bytes(content);
        forms += holds(folder) ? 1 : 0;
        if (HasFailure())
            return;
    }
    EXPECT_GT(forms, 100);
    EXPECT_LT(forms, 1900);
}

} // namespace vellora::test
