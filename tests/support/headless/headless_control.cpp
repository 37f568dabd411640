// Putting headless constituents and a control together.
#include "support/headless/headless_control.h"

#include <utility>

namespace vellora::test {

HeadlessControl::HeadlessControl(Mode mode, Stage stage)
    : HeadlessControl(std::make_unique<World>(), nullptr, mode, {}, stage) {}

HeadlessControl::HeadlessControl(World& world, Mode mode, const std::string& prefix, Stage stage)
    : HeadlessControl(nullptr, &world, mode, prefix, stage) {}

HeadlessControl::HeadlessControl(std::unique_ptr<World> own, World* world, Mode mode,
                                 const std::string& prefix, Stage stage)
    : own_world_(std::move(own)), world_(world != nullptr ? *world : *own_world_), user32(world_.user32),
      site(world_.journal, prefix), surface(world_.desktop, world_.screen, world_.form, prefix + "surface"),
      list_view(world_.desktop, world_.screen, surface.window(), prefix + "list"),
      frame(world_.desktop, world_.screen, surface.window(), prefix + "frame"),
      events(world_.journal, prefix) {
    for (std::size_t element = 0; element < text_boxes_.size(); ++element) {
        text_boxes_[element] = std::make_unique<HeadlessTextBox>(
            world_.desktop, world_.screen, surface.window(), prefix + "text " + std::to_string(element));
        text_boxes_[element]->set_visible(element == 0);
    }
    for (std::size_t element = 0; element < buttons_.size(); ++element) {
        buttons_[element] = std::make_unique<HeadlessCheckButton>(
            world_.desktop, world_.screen, surface.window(), prefix + "button " + std::to_string(element),
            static_cast<int>(element));
    }
    list_view.set_visible(false);
    surface.place(100, 200);
    surface.is_ours = [this](WindowHandle window) {
        return world_.desktop.is_inside(window, list_view.window());
    };
    surface.tab_stop = [this] { return focusable_text_box(); };
    site.run_mode = mode == Mode::run;
    site.container = world_.form;
    site.form = world_.form;
    site.holder = [this] { return control_; };
    if (stage >= Stage::created) {
        create();
    }
    if (stage >= Stage::initialised) {
        object().InitProperties();
    }
    if (stage >= Stage::sized) {
        size();
    }
    world_.desktop.set_focus(world_.other);
    journal().take_all();
}

HeadlessControl::~HeadlessControl() {
    control_.reset();
    surface.tab_stop = nullptr; // its text boxes go before it
}

WindowHandle HeadlessControl::focusable_text_box() const {
    for (const auto& text_box : text_boxes_) {
        if (text_box->visible() && text_box->enabled()) {
            return text_box->window();
        }
    }
    return 0;
}

void HeadlessControl::create() {
    control_ = std::make_shared<Control>(
        ControlEnvironment{{{text_boxes_[0].get(), text_boxes_[1].get(), text_boxes_[2].get()},
                            {buttons_[0].get(), buttons_[1].get()},
                            list_view,
                            frame,
                            left_line,
                            right_line,
                            bottom_line,
                            {&grip[0], &grip[1]}},
                           surface,
                           site,
                           events,
                           user32,
                           form_watch,
                           world_.message_module,
                           library});
}

void HeadlessControl::add_rows(int count) {
    for (int index = 0; index < count; ++index) {
        const std::string text = "row " + std::to_string(index);
        items().AddItem(TestVariant(std::u16string(text.begin(), text.end())), -1);
    }
}

std::u16string HeadlessControl::list(std::int16_t row, std::int16_t column) {
    return std::get<std::u16string>(items().List(row, column));
}

std::vector<std::u16string> HeadlessControl::row(std::int16_t index) {
    return std::get<std::vector<std::u16string>>(items().List(index, -2));
}

} // namespace vellora::test
