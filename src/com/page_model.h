// What a property page shows and what was changed on it, apart from its window: values of the objects the page was
// given, and changes that wait for being applied.
#pragma once

#include "com/page_class.h"
#include "com/page_member.h"

#include <optional>
#include <string>
#include <vector>

namespace vellora::com {

class PageModel {
public:
    explicit PageModel(const PageClass& page) : page_(page) {}

    /// Forgets the changes. Throws, and then leaves everything as it was, for objects without properties.
    void set_objects(std::span<IUnknown* const> objects);
    bool has_objects() const noexcept { return !objects_.empty(); }

    const PageClass& page() const noexcept { return page_; }
    /// Stay where they are as long as the model lives; none before the first objects.
    const std::vector<PageMember>& members() const noexcept { return members_; }
    /// How many numbers the numbered members have, no more than they can have; 0 without any.
    std::int32_t count() const;
    /// The changed value, otherwise that of the first object; a value that cannot be read is empty. `number` counts
    /// from 1 and is of no interest to a member without numbers.
    Variant value(const PageMember& member, std::int32_t number) const;

    void change(const PageMember& member, std::int32_t number, Variant value);
    bool changed() const noexcept { return !changes_.empty(); }

    struct Refusal {
        const PageMember* member;
        std::int32_t number;
        std::u16string reason;
    };
    /// Gives the changes to all objects, in the order they were made, up to the first one that an object refuses.
    /// Changes of numbers beyond the count are forgotten.
    std::optional<Refusal> apply();

private:
    struct Change {
        const PageMember* member;
        std::int32_t number;
        Variant value;
    };

    using Changes = std::vector<Change>;

    Changes::const_iterator find(const PageMember& member, std::int32_t number) const;
    void drop_uncounted();

    const PageClass& page_;
    std::vector<ComPtr<IDispatch>> objects_;
    std::vector<PageMember> members_;
    Changes changes_;
};

} // namespace vellora::com
