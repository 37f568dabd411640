#include "com/page_model.h"

#include "com/guard.h"
#include "com/object_property.h"
#include "runtime/host_error.h"

#include <algorithm>

namespace vellora::com {

namespace {

ComPtr<IDispatch> dispatch_of(IUnknown* object) {
    need(object);
    ComPtr<IDispatch> dispatch;
    check(object->QueryInterface(IID_PPV_ARGS(&dispatch)));
    return dispatch;
}

std::vector<PageMember> members_of(IDispatch* object, const PageClass& page) {
    ComPtr<ITypeInfo> type;
    check(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type));
    const MemberTable table(type.Get());
    std::vector<PageMember> members;
    for (const DISPID id : page.properties)
        members.emplace_back(type.Get(), table, id, false);
    for (const DISPID id : page.numbered_properties)
        members.emplace_back(type.Get(), table, id, true);
    return members;
}

void write(IDispatch* object, const PageMember& member, std::int32_t number, const Variant& value) {
    const Variant index(number);
    put_property(object, member.id, value, member.numbered ? &index : nullptr);
}

/// Why the object does not take the value, in words; empty when it takes it.
std::optional<std::u16string> refusal(IDispatch* object, const PageMember& member, std::int32_t number,
                                      const Variant& value) {
    try {
        write(object, member, number, value);
        return std::nullopt;
    } catch (const HostError& error) {
        return error.description().empty() ? standard_description(error.number()) : error.description();
    } catch (const ComFailure& failure) {
        return standard_description(failure.result() == DISP_E_OVERFLOW ? error_number::overflow
                                                                        : error_number::type_mismatch);
    }
}

} // namespace

void PageModel::set_objects(std::span<IUnknown* const> objects) {
    std::vector<ComPtr<IDispatch>> given;
    std::ranges::transform(objects, std::back_inserter(given), dispatch_of);
    if (members_.empty() && !given.empty())
        members_ = members_of(given.front().Get(), page_);
    changes_.clear();
    objects_ = std::move(given);
}

std::int32_t PageModel::count() const {
    const auto counting = std::ranges::find(members_, page_.counted_by, &PageMember::id);
    if (counting == members_.end())
        return 0;
    Variant number;
    if (FAILED(convert(value(*counting, 0).get(), VT_I2, number)))
        return 0;
    return std::min<std::int32_t>(V_I2(&number.get()), page_.most_numbers);
}

Variant PageModel::value(const PageMember& member, std::int32_t number) const {
    if (const auto known = find(member, number); known != changes_.end())
        return Variant::copy_of(known->value.get());
    if (objects_.empty())
        return {};
    const Variant index(number);
    try {
        return get_property(objects_.front().Get(), member.id, member.numbered ? &index : nullptr);
    } catch (const std::exception&) {
        return {};
    }
}

void PageModel::change(const PageMember& member, std::int32_t number, Variant value) {
    const std::int32_t of = member.numbered ? number : 0;
    if (const auto known = find(member, of); known != changes_.end())
        changes_[static_cast<std::size_t>(known - changes_.begin())].value = std::move(value);
    else
        changes_.push_back({&member, of, std::move(value)});
}

std::optional<PageModel::Refusal> PageModel::apply() {
    const std::vector<ComPtr<IDispatch>> objects = objects_; // whoever hears of a change may give others
    drop_uncounted();
    while (!changes_.empty()) {
        Change next = std::move(changes_.front());
        changes_.erase(changes_.begin());
        for (const ComPtr<IDispatch>& object : objects)
            if (const auto reason = refusal(object.Get(), *next.member, next.number, next.value)) {
                const Refusal refused{next.member, next.number, *reason};
                changes_.insert(changes_.begin(), std::move(next));
                return refused;
            }
    }
    return std::nullopt;
}

PageModel::Changes::const_iterator PageModel::find(const PageMember& member, std::int32_t number) const {
    return std::ranges::find_if(changes_, [&](const Change& change) {
        return change.member == &member && (!member.numbered || change.number == number);
    });
}

// Not before they are applied: a number that is being typed is another one, or none at all, after every key.
void PageModel::drop_uncounted() {
    if (const std::int32_t last = count(); last > 0)
        std::erase_if(changes_, [last](const Change& change) { return change.number > last; });
}

} // namespace vellora::com
