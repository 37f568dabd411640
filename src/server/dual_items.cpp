#include "server/dual.h"

#include "com/variant_view.h"
#include "control/control.h"

namespace vellora::server {

STDMETHODIMP DualVellora::AddItem(VARIANT Item, short Index) noexcept {
    return run([&] { control_.items().AddItem(com::VariantView(Item), Index); });
}

STDMETHODIMP DualVellora::get_List(short ItemIndex, short TextCol, VARIANT* result) noexcept {
    return answer(result, [&] { return control_.items().List(ItemIndex, TextCol); });
}

STDMETHODIMP DualVellora::put_List(short ItemIndex, short TextCol, VARIANT value) noexcept {
    return run([&] { control_.items().put_List(ItemIndex, TextCol, com::VariantView(value)); });
}

STDMETHODIMP DualVellora::RemoveItem(short* ItemIndex) noexcept {
    return run([&] {
        com::need(ItemIndex);
        control_.items().RemoveItem(*ItemIndex);
    });
}

STDMETHODIMP DualVellora::Clear() noexcept {
    return run([&] { control_.items().Clear(); });
}

STDMETHODIMP DualVellora::ClearAll() noexcept {
    return run([&] { control_.items().ClearAll(); });
}

STDMETHODIMP DualVellora::get_ListCount(long* result) noexcept {
    return answer(result, [&] { return control_.items().ListCount(); });
}

STDMETHODIMP DualVellora::get_NewIndex(long* result) noexcept {
    return answer(result, [&] { return control_.items().NewIndex(); });
}

STDMETHODIMP DualVellora::get_ItemData(short ItemIndex, long* result) noexcept {
    return answer(result, [&] { return control_.items().ItemData(ItemIndex); });
}

STDMETHODIMP DualVellora::put_ItemData(short ItemIndex, long value) noexcept {
    return run([&] { control_.items().put_ItemData(ItemIndex, value); });
}

STDMETHODIMP DualVellora::get_ShowItemToolTips(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.items().ShowItemToolTips(); });
}

STDMETHODIMP DualVellora::put_ShowItemToolTips(VARIANT_BOOL value) noexcept {
    return run([&] { control_.items().put_ShowItemToolTips(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_ListIndex(long* result) noexcept {
    return answer(result, [&] { return control_.selection().ListIndex(); });
}

STDMETHODIMP DualVellora::put_ListIndex(long value) noexcept {
    return run([&] { control_.selection().put_ListIndex(value); });
}

STDMETHODIMP DualVellora::get_TextColumn(short* result) noexcept {
    return answer(result, [&] { return control_.selection().TextColumn(); });
}

STDMETHODIMP DualVellora::put_TextColumn(short value) noexcept {
    return run([&] { control_.selection().put_TextColumn(value); });
}

STDMETHODIMP DualVellora::get_CheckBoxes(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.check_boxes().ShowsCheckBoxes(); });
}

STDMETHODIMP DualVellora::put_CheckBoxes(VARIANT_BOOL value) noexcept {
    return run([&] { control_.check_boxes().put_CheckBoxes(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_Checked(short ItemIndex, VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.check_boxes().Checked(ItemIndex); });
}

STDMETHODIMP DualVellora::put_Checked(short ItemIndex, VARIANT_BOOL value) noexcept {
    return run([&] { control_.check_boxes().put_Checked(ItemIndex, value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_CheckedCount(short* result) noexcept {
    return answer(result, [&] { return control_.check_boxes().CheckedCount(); });
}

STDMETHODIMP DualVellora::CheckedItems(VARIANT* result) noexcept {
    return answer(result, [&] { return control_.check_boxes().CheckedItems(); });
}

STDMETHODIMP DualVellora::get_Sorted(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.sort_and_search().Sorted(); });
}

STDMETHODIMP DualVellora::put_Sorted(VARIANT_BOOL value) noexcept {
    return run([&] { control_.sort_and_search().put_Sorted(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_SortOrder(::vlSortOrder* result) noexcept {
    return answer(result, [&] { return control_.sort_and_search().SortOrder(); });
}

STDMETHODIMP DualVellora::put_SortOrder(::vlSortOrder value) noexcept {
    return run([&] { control_.sort_and_search().put_SortOrder(value); });
}

STDMETHODIMP DualVellora::get_SortColumn(short* result) noexcept {
    return answer(result, [&] { return control_.sort_and_search().SortColumn(); });
}

STDMETHODIMP DualVellora::put_SortColumn(short value) noexcept {
    return run([&] { control_.sort_and_search().put_SortColumn(value); });
}

STDMETHODIMP DualVellora::FindItem(VARIANT Target, short SearchColumn, long StartIndex,
                                   ::vlFindOptions FindOptions, long* result) noexcept {
    return answer(result, [&] {
        return control_.sort_and_search().FindItem(com::VariantView(Target), SearchColumn, StartIndex,
                                                   FindOptions);
    });
}

} // namespace vellora::server
