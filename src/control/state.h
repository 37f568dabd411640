// The state of one instance: its settings and flags, in one record that every part of the control reads.
#pragma once

#include "runtime/geometry.h"
#include "widgets/font.h"
#include "widgets/image_list.h"
#include "widgets/list_rows.h"

#include <array>
#include <cstdint>
#include <string>

namespace vellora {

/// Most columns an instance can have; every per-column array is this long.
inline constexpr std::int16_t maximum_columns = 50;
/// Width of a column that has no width of its own.
inline constexpr float automatic_width = -1.0F;

/// Values of the library's enumerations, as the public interface names them.
enum vlSortOrder : std::int32_t { vlAscending = 0, vlDescending = 1 };
enum vlDropDownAlignmentConstants : std::int32_t { vlDDLeft = 0, vlDDRight = 1, vlDDCenter = 2 };
enum vlAutoSizeConstants : std::int32_t { vlNone = 0, vlContents = 1, vlIncludeHeaders = 2 };
enum vlButtonStyles : std::int32_t { vlNormal = 0, vlToggle = 1 };
enum vlFindOptions : std::int32_t { vlWholeWord = 0, vlPartialWord = 1 };

/// A record starts as zeros and empties; a new instance gets its defaults from ControlObject::InitProperties.
/// Enumerated values are kept as given, since their setters do not check them. Lengths are twips unless said
/// otherwise.
struct ControlState {
    // screen
    std::int16_t miTwipsPerPixelX = 0;
    std::int16_t miTwipsPerPixelY = 0;

    // flags of a moment
    bool mbIgnoreChange = false;      // the control itself writes the text field
    bool mbTerminating = false;       // the instance is being destroyed
    bool mbLoadingProperties = false; // set-up or loading: nothing is reported as changed
    bool mbListDirty = false;         // rows must be sorted before they are next shown
    bool mbIgnoreListClick = false;   // the next list click belongs to a check box
    bool mbDropButtonDown = false;    // the mouse is down on the drop button
    bool mbKeyTyped = false;          // a key that may change the text is down
    bool mbDeleteTyped = false;       // the next change comes from Backspace or Delete
    bool mbInResize = false;          // a layout pass runs
    bool mbSizedOnce = false;         // a layout pass has been completed

    // rows
    RowRef moNewItem;                 // the row added last
    std::int32_t mlListIndex = 0;     // 0-based, -1 for none
    std::int16_t miTextColumn = 0;    // 1-based
    std::int16_t miSortColumn = 0;    // 1-based
    std::int32_t mlSortOrder = 0;
    bool mbSorted = false;
    bool mbCheckBoxes = false;
    bool mbShowItemToolTips = false;

    // columns
    std::int16_t miColumns = 0;
    std::array<std::u16string, maximum_columns> masColumnHeader;
    std::array<float, maximum_columns> masngColumnWidth{};
    std::array<bool, maximum_columns> mabColumnHidden{};
    std::array<bool, maximum_columns> mabColumnLocked{};
    bool mbHideColumnHeaders = false;
    bool mbAllowColumnReorder = false;
    ImageListRef moHeaderIcons;
    std::int32_t mlAutoSize = 0;

    // drop-down
    WindowHandle mlStatic_hWnd = 0;   // the floating window while the list is open
    float msngDropDownHeight = 0;     // rows
    float msngDropDownWidthOffset = 0;
    std::int32_t mlDropDownAlignment = 0;
    bool mbAllowResize = false;

    // text field
    std::int32_t mlAlignment = 0;     // 0 left, 1 right, 2 centre: the live element of txtTextProperty
    std::int32_t mlMaxLength = 0;     // 0 for no limit
    std::int32_t mlLeftMargin = 0;    // pixels; 65535 for the margin of the font
    std::int32_t mlRightMargin = 0;   // pixels
    bool mbLocked = false;
    bool mbAutoComplete = false;

    // appearance
    bool mbEnabled = false;
    bool mbAutoHeight = false;
    bool mbGridLines = false;
    std::int32_t mlButtonStyle = 0;
    OleColor mlBackColor = 0;
    OleColor mlButtonForeColor = 0;
    OleColor mlButtonBackColor = 0;
    FontRef moFont;
};

/// Empties the caption and width of every column from FromColumn (1-based) to the last. A start below 1 counts
/// as 1 and is handed back as 1; one above the last column does nothing.
void subResetColumns(ControlState& state, std::int16_t& FromColumn);

} // namespace vellora
