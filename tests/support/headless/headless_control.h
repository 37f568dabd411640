// A whole control on headless constituents, at the stage of its life a test wants it in.
#pragma once

#include "control/control.h"
#include "support/headless/check_button.h"
#include "support/headless/event_recorder.h"
#include "support/headless/form_watch.h"
#include "support/headless/frame.h"
#include "support/headless/library.h"
#include "support/headless/list_view.h"
#include "support/headless/site.h"
#include "support/headless/surface.h"
#include "support/headless/text_box.h"
#include "support/headless/variant.h"
#include "support/headless/world.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace vellora::test {

/// Several arguments of the host's Integer type.
using Integers = std::initializer_list<std::int16_t>;

enum class Mode { design, run };

/// Constituents only; with a control on them; with the defaults of a new instance; sized by its container.
enum class Stage { parts, created, initialised, sized };

/// Starts with an empty journal and the focus on the form's other window, whatever the stage. A sized control
/// is 3000 twips wide and 315 high: one line of 195 twips and four pixels of 15 above and below.
class HeadlessControl {
public:
    explicit HeadlessControl(Mode mode = Mode::run, Stage stage = Stage::sized);
    /// One of several in a world. `prefix` begins its lines in the journal and the names of its windows.
    HeadlessControl(World& world, Mode mode, const std::string& prefix = {}, Stage stage = Stage::sized);
    ~HeadlessControl();
    HeadlessControl(const HeadlessControl&) = delete;
    HeadlessControl& operator=(const HeadlessControl&) = delete;

    void create();
    void size() { surface.resize(3000, 315); }
    /// What the container does when the form closes: it lets go of the control.
    void release() { control_.reset(); }
    /// Keeps the control, as the caller of a public member does for as long as the call lasts.
    std::shared_ptr<Control> hold() const { return control_; }

    ControlState& state() { return control_->state(); }
    ControlObject& object() { return control_->object(); }
    Layout& layout() { return control_->layout(); }
    Appearance& appearance() { return control_->appearance(); }
    ItemStore& items() { return control_->items(); }
    Selection& selection() { return control_->selection(); }
    CheckBoxes& check_boxes() { return control_->check_boxes(); }
    SortAndSearch& sort_and_search() { return control_->sort_and_search(); }
    ColumnSet& columns() { return control_->columns(); }
    ColumnAutoSize& auto_size() { return control_->column_sizes(); }
    ColumnOrder& column_order() { return control_->column_order(); }
    HeaderIcons& header_icons() { return control_->header_icons(); }
    Placement& placement() { return control_->placement(); }
    DropDown& drop_down() { return control_->drop_down(); }
    ResizeGrip& resize_grip() { return control_->resize_grip(); }
    Persistence& persistence() { return control_->persistence(); }
    Accessibility& accessibility() { return control_->accessibility(); }
    TextField& text_field() { return control_->text_field(); }
    TextProperties& text_properties() { return control_->text_properties(); }
    About& about() { return control_->about(); }

    Journal& journal() { return world_.journal; }
    Desktop& desktop() { return world_.desktop; }
    World& world() { return world_; }
    HeadlessTextBox& text_box(std::size_t element) { return *text_boxes_[element]; }
    HeadlessCheckButton& button(std::size_t element) { return *buttons_[element]; }

    void add(const TestVariant& item, std::int16_t index = -1) { items().AddItem(item, index); }
    void write(std::int16_t row, std::int16_t column, const TestVariant& value) {
        items().put_List(row, column, value);
    }
    /// Rows "row 0", "row 1" ... in the first column.
    void add_rows(int count);
    std::u16string list(std::int16_t row, std::int16_t column = -1);
    std::vector<std::u16string> row(std::int16_t index);

private:
    std::unique_ptr<World> own_world_;
    World& world_;

public:
    HeadlessUser32& user32;
    HeadlessSite site;
    HeadlessSurface surface;
    HeadlessListView list_view;
    HeadlessFrame frame;
    HeadlessLine left_line;
    HeadlessLine right_line;
    HeadlessLine bottom_line;
    std::array<HeadlessLabel, 2> grip;
    EventRecorder events;
    HeadlessFormWatch form_watch;
    HeadlessLibrary library;

private:
    HeadlessControl(std::unique_ptr<World> own, World* world, Mode mode, const std::string& prefix,
                    Stage stage);

    WindowHandle focusable_text_box() const;

    std::array<std::unique_ptr<HeadlessTextBox>, 3> text_boxes_;
    std::array<std::unique_ptr<HeadlessCheckButton>, 2> buttons_;
    std::shared_ptr<Control> control_;
};

} // namespace vellora::test
