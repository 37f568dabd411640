// One record of everything that leaves the control while a test runs: events, property-changed notices and
// calls on the window system, as readable lines in the order in which they happened.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vellora::test {

using Lines = std::vector<std::string>;

class Journal {
public:
    enum class Kind { event, notice, system };

    void add(Kind kind, std::string line);
    /// All lines so far, whatever their kind. Empties the journal.
    Lines take_all();
    /// The lines of one kind. Drops these and keeps the others.
    Lines take(Kind kind);
    Lines take_events() { return take(Kind::event); }
    Lines take_notices() { return take(Kind::notice); }
    Lines take_system() { return take(Kind::system); }

private:
    struct Entry {
        Kind kind;
        std::string line;
    };
    std::vector<Entry> entries_;
};

/// A text for a line or a message: characters beyond ASCII as \uXXXX.
std::string readable(std::u16string_view text);
/// A number without needless digits: 15, 2.5, -1.
std::string readable(double number);

} // namespace vellora::test
