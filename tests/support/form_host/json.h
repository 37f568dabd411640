// The little of JSON that the line protocol needs: reading a line into values and writing values as a line.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace vellora::test {

class JsonError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A value of JSON; texts are UTF-8.
class Json {
public:
    using List = std::vector<Json>;
    using Object = std::map<std::string, Json>;

    Json() = default;
    Json(std::nullptr_t) {}
    Json(bool value) : value_(value) {}
    Json(int value) : value_(static_cast<double>(value)) {}
    Json(long value) : value_(static_cast<double>(value)) {}
    Json(double value) : value_(value) {}
    Json(const char* text) : value_(std::string(text)) {}
    Json(std::string text) : value_(std::move(text)) {}
    Json(List list) : value_(std::move(list)) {}
    Json(Object object) : value_(std::move(object)) {}

    static Json parse(const std::string& text);
    /// One line without a line end.
    std::string write() const;

    bool is_null() const { return std::holds_alternative<std::monostate>(value_); }
    bool is_bool() const { return std::holds_alternative<bool>(value_); }
    bool is_number() const { return std::holds_alternative<double>(value_); }
    bool is_text() const { return std::holds_alternative<std::string>(value_); }
    bool is_list() const { return std::holds_alternative<List>(value_); }
    bool is_object() const { return std::holds_alternative<Object>(value_); }

    /// Each throws JsonError when the value is of another kind.
    bool truth() const { return as<bool>("true or false"); }
    double number() const { return as<double>("a number"); }
    const std::string& text() const { return as<std::string>("a text"); }
    const List& list() const { return as<List>("a list"); }
    const Object& object() const { return as<Object>("an object"); }

    /// A member of an object; null when it is absent, JsonError when it must be there.
    const Json& get(const std::string& key) const;
    const Json& must(const std::string& key) const;

private:
    template <class Kind>
    const Kind& as(const char* expected) const {
        if (const Kind* value = std::get_if<Kind>(&value_))
            return *value;
        throw JsonError(std::string("expected ") + expected);
    }
    void write(std::string& out) const;

    std::variant<std::monostate, bool, double, std::string, List, Object> value_;
};

} // namespace vellora::test
