// A form with any number of controls on it, as an ordinary host puts them there.
#pragma once

#include "support/container/form.h"
#include "support/container/site.h"

#include <string>
#include <vector>

namespace vellora::test {

class Container {
public:
    Container() : Container(Form::Look{}) {}
    explicit Container(const Form::Look& look);
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;
    ~Container();

    Form& form() noexcept { return form_; }

    /// An empty site, for tests that take the steps themselves. Place in pixels.
    Site& add_site(const std::wstring& name, const RECT& place);
    /// A new control of the class, placed and active. `design` shows it to a form designer.
    Site& add(REFCLSID class_id, const std::wstring& name = L"Vellora1",
              const RECT& place = {20, 20, 220, 44}, bool design = false);
    /// The same for a control whose settings were saved.
    Site& load(REFCLSID class_id, PropertyBag& bag, const std::wstring& name = L"Vellora1",
               const RECT& place = {20, 20, 220, 44}, bool design = false);
    const std::vector<Microsoft::WRL::ComPtr<Site>>& sites() const noexcept { return sites_; }

    /// Ends the form while its controls live on.
    void destroy_form();
    void pump() { form_.pump(); }

private:
    Site& prepare(REFCLSID class_id, const std::wstring& name, const RECT& place, bool design);
    void show(Site& site);

    Form form_;
    std::vector<Microsoft::WRL::ComPtr<Site>> sites_;
};

} // namespace vellora::test
