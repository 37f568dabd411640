#include "widgets/win32/list_message_guard.h"

#include "widgets/win32/list_cell_text.h"

#include <algorithm>
#include <array>

namespace vellora::win32 {

namespace {

constexpr std::array structure_messages{
    LVM_GETITEMRECT, LVM_GETITEMPOSITION,   LVM_GETSTRINGWIDTHA,     LVM_GETSTRINGWIDTHW,
    LVM_HITTEST,     LVM_SUBITEMHITTEST,    LVM_CREATEDRAGIMAGE,     LVM_GETVIEWRECT,
    LVM_GETORIGIN,   LVM_GETSUBITEMRECT,    LVM_GETCOLUMNORDERARRAY, LVM_SETIMAGELIST,
    LVM_GETBKIMAGEA, LVM_SETITEMPOSITION32, LVM_GETBKIMAGEW,         LVM_SETINFOTIP,
};

constexpr std::array foreign_messages{
    LVM_SETWORKAREAS, LVM_GETWORKAREAS, LVM_GETNUMBEROFWORKAREAS, LVM_SETBKIMAGEA, LVM_SETBKIMAGEW,
    LVM_SETVIEW,      LVM_GETGROUPRECT, LVM_EDITLABELA,           LVM_EDITLABELW,
};

struct MessageRange {
    UINT first;
    UINT last;
};
// Groups, tiles and insertion marks; texts of an empty list, footers, and rows named by group.
constexpr std::array foreign_ranges{
    MessageRange{LVM_INSERTGROUP, LVM_GETINSERTMARKRECT},
    MessageRange{LVM_GETEMPTYTEXT, LVM_GETNEXTITEMINDEX},
};

template <typename List>
bool contains(const List& list, UINT message) {
    return std::find(list.begin(), list.end(), message) != list.end();
}

bool is_foreign(UINT message) {
    return contains(foreign_messages, message) ||
           std::any_of(foreign_ranges.begin(), foreign_ranges.end(), [message](const MessageRange& range) {
               return message >= range.first && message <= range.last;
           });
}

// Without a buffer this one only counts.
bool asks_typed_text(UINT message) {
    return message == LVM_GETISEARCHSTRINGA || message == LVM_GETISEARCHSTRINGW;
}

} // namespace

bool is_refused(const WindowMessage& message) {
    if (is_foreign(message.id))
        return true;
    const bool has_structure = structure_at<const void>(message.lparam) != nullptr;
    if (asks_typed_text(message.id))
        return message.lparam != 0 && !has_structure;
    return contains(structure_messages, message.id) && !has_structure;
}

} // namespace vellora::win32
