#include "support/form_host/json.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace vellora::test {
namespace {

class Reader {
public:
    explicit Reader(const std::string& text) : text_(text) {}

    Json whole() {
        Json value = read();
        skip_blanks();
        if (at_ != text_.size())
            fail("something follows the value");
        return value;
    }

private:
    [[noreturn]] void fail(const char* what) const {
        throw JsonError(std::string(what) + " at " + std::to_string(at_));
    }
    void skip_blanks() { at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size()); }
    char next() {
        skip_blanks();
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    void expect(char c) {
        if (next() != c)
            fail("unexpected character");
        ++at_;
    }
    bool word(const char* letters) {
        const std::string wanted = letters;
        if (text_.compare(at_, wanted.size(), wanted) != 0)
            return false;
        at_ += wanted.size();
        return true;
    }

    Json read() {
        switch (next()) {
        case '{':
            return object();
        case '[':
            return list();
        case '"':
            return text();
        default:
            break;
        }
        if (word("true"))
            return true;
        if (word("false"))
            return false;
        if (word("null"))
            return nullptr;
        return number();
    }
    Json number() {
        const char* start = text_.c_str() + at_;
        char* end = nullptr;
        const double value = std::strtod(start, &end);
        if (end == start)
            fail("unexpected character");
        at_ += static_cast<std::size_t>(end - start);
        return value;
    }
    Json list() {
        Json::List result;
        expect('[');
        while (next() != ']') {
            result.push_back(read());
            if (next() != ']')
                expect(',');
        }
        ++at_;
        return result;
    }
    Json object() {
        Json::Object result;
        expect('{');
        while (next() != '}') {
            std::string key = text();
            expect(':');
            result[std::move(key)] = read();
            if (next() != '}')
                expect(',');
        }
        ++at_;
        return result;
    }
    std::string text() {
        std::string result;
        expect('"');
        while (at_ < text_.size() && text_[at_] != '"')
            text_[at_] == '\\' ? escaped(result) : result.push_back(text_[at_++]);
        if (at_ == text_.size())
            fail("a text does not end");
        ++at_;
        return result;
    }
    void escaped(std::string& result) {
        static constexpr char letters[] = "\"\\/bfnrt";
        static constexpr char values[] = "\"\\/\b\f\n\r\t";
        const char c = at_ + 1 < text_.size() ? text_[at_ + 1] : '\0';
        at_ += 2;
        for (std::size_t i = 0; letters[i]; ++i)
            if (letters[i] == c)
                return result.push_back(values[i]);
        if (c != 'u')
            fail("unknown escape");
        result += code_point(code_unit());
    }
    unsigned code_unit() {
        const std::string digits = text_.substr(at_, 4);
        at_ += 4;
        return static_cast<unsigned>(std::strtoul(digits.c_str(), nullptr, 16));
    }
    std::string code_point(unsigned value) {
        if (value >= 0xD800 && value < 0xDC00 && word("\\u"))
            value = 0x10000 + ((value - 0xD800) << 10) + (code_unit() - 0xDC00);
        const auto byte = [](unsigned bits) { return static_cast<char>(bits); };
        if (value < 0x80)
            return {byte(value)};
        if (value < 0x800)
            return {byte(0xC0 | value >> 6), byte(0x80 | (value & 63))};
        if (value < 0x10000)
            return {byte(0xE0 | value >> 12), byte(0x80 | (value >> 6 & 63)), byte(0x80 | (value & 63))};
        return {byte(0xF0 | value >> 18), byte(0x80 | (value >> 12 & 63)), byte(0x80 | (value >> 6 & 63)),
                byte(0x80 | (value & 63))};
    }

    const std::string& text_;
    std::size_t at_ = 0;
};

void write_text(std::string& out, const std::string& text) {
    out += '"';
    for (char c : text) {
        if (c == '"' || c == '\\') {
            (out += '\\') += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x",
                          static_cast<unsigned>(static_cast<unsigned char>(c)));
            out += escape;
        } else {
            out += c;
        }
    }
    out += '"';
}

std::string number_text(double value) {
    char buffer[40];
    const bool whole = std::nearbyint(value) == value && std::fabs(value) < 1e15;
    std::snprintf(buffer, sizeof buffer, whole ? "%.0f" : "%.9g", value);
    return buffer;
}

} // namespace

Json Json::parse(const std::string& text) {
    return Reader(text).whole();
}

std::string Json::write() const {
    std::string out;
    write(out);
    return out;
}

void Json::write(std::string& out) const {
    if (is_null())
        out += "null";
    else if (is_bool())
        out += truth() ? "true" : "false";
    else if (is_number())
        out += number_text(number());
    else if (is_text())
        write_text(out, text());
    else if (is_list()) {
        out += '[';
        for (const Json& item : list()) {
            if (&item != &list().front())
                out += ',';
            item.write(out);
        }
        out += ']';
    } else {
        out += '{';
        for (const auto& [key, value] : object()) {
            if (out.back() != '{')
                out += ',';
            write_text(out, key);
            out += ':';
            value.write(out);
        }
        out += '}';
    }
}

const Json& Json::get(const std::string& key) const {
    static const Json nothing;
    const auto found = object().find(key);
    return found == object().end() ? nothing : found->second;
}

const Json& Json::must(const std::string& key) const {
    const auto found = object().find(key);
    if (found == object().end())
        throw JsonError("\"" + key + "\" is missing");
    return found->second;
}

} // namespace vellora::test
