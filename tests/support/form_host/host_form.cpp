#include "support/form_host/host_form.h"

#include "support/container/call_by_name.h"
#include "support/container/control_windows.h"
#include "support/container/text.h"
#include "support/form_host/values.h"

#include <VelloraCTL.h>
#include <memory>
#include <utility>

namespace vellora::test {

using Microsoft::WRL::ComPtr;

void HostForm::create(const std::string& name, const RECT& place, const Json& bag, bool design) {
    if (bag.is_null()) {
        adopt(name, container_.add(__uuidof(Vellora), wide(name), place, design));
        return;
    }
    ComPtr<PropertyBag> settings(new PropertyBag);
    for (const auto& [key, value] : bag.object())
        settings->put(wide(key), to_variant(value));
    adopt(name, container_.load(__uuidof(Vellora), *settings.Get(), wide(name), place, design));
}

void HostForm::adopt(const std::string& name, Site& site) {
    controls_[name] = &site;
    site.events().on_every([this, name](const std::string& event, EventArguments& arguments) {
        if (event == "MouseMove")
            return;
        std::string text;
        for (std::size_t i = 0; i < arguments.count(); ++i)
            text += (i ? ", " : "") + arguments.get(i).describe();
        events_.push_back(name + '.' + event + '(' + text + ')');
    });
}

void HostForm::create_edit(const std::string& name, const RECT& place) {
    edits_[name] =
        CreateWindowExW(WS_EX_CLIENTEDGE, L"Edit", wide(name).c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                        place.left, place.top, place.right - place.left, place.bottom - place.top,
                        form().window(), nullptr, GetModuleHandleW(nullptr), nullptr);
}

Site& HostForm::control(const std::string& name) {
    const auto found = controls_.find(name);
    if (found == controls_.end() || !found->second->control())
        throw JsonError("there is no control \"" + name + '"');
    return *found->second;
}

HWND HostForm::edit(const std::string& name) {
    const auto found = edits_.find(name);
    if (found == edits_.end())
        throw JsonError("there is no edit \"" + name + '"');
    return found->second;
}

HWND HostForm::window(const std::string& name) {
    const Variant handle = get_property(control(name).as<IDispatch>().Get(), L"hWnd");
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle.number()));
}

void HostForm::destroy(const std::string& name) {
    control(name).destroy();
}
void HostForm::destroy_form() {
    container_.destroy_form();
}

std::string HostForm::owner_of(HWND asked) {
    for (const auto& [name, handle] : edits_)
        if (handle == asked)
            return name;
    for (const auto& [name, site] : controls_)
        if (site->control() && (window(name) == asked || IsChild(window(name), asked)))
            return name;
    return {};
}

std::vector<std::string> HostForm::take_events() {
    return std::exchange(events_, {});
}

void HostForm::react(const std::string& name, const std::string& event, Reaction reaction, int times) {
    // Every raising works on a copy of its handler, so that the count has to be theirs together.
    const auto left = std::make_shared<int>(times);
    control(name).events().on(event, [reaction, left](EventArguments& arguments) {
        if ((*left)-- > 0)
            reaction(arguments);
    });
}

} // namespace vellora::test
