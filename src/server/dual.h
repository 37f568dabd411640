// The public interface as the host calls it. Each member converts its arguments, calls the behaviour and
// converts what comes back; the bodies stand by subsystem in dual_control, dual_items, dual_columns,
// dual_dropdown and dual_textfield.
#pragma once

#include "com/control_host.h"
#include "com/dispatch.h"
#include "com/guard.h"
#include "com/ole.h"
#include "server/caller_form.h"

#include "VelloraCTL.h"

namespace vellora {
class Control;
}

namespace vellora::server {

/// The meaning of each member is told with the behaviour it calls. Errors reach the caller as HRESULT and
/// error object; a missing place for a result is E_POINTER.
class DualVellora final : public com::Dispatch<::_Vellora> {
public:
    /// Both outlive this part of the object.
    DualVellora(com::ControlHost& host, Control& control)
        : com::Dispatch<::_Vellora>(host.controlling(), host.types()), host_(host), control_(control) {}
    ~DualVellora() = default;

    // The control: dual_control.cpp
    STDMETHODIMP get_Text(BSTR* result) noexcept override;
    STDMETHODIMP put_Text(BSTR value) noexcept override;
    STDMETHODIMP get_hWnd(long* result) noexcept override;
    STDMETHODIMP get_ContainerHwnd(long* result) noexcept override;
    STDMETHODIMP Refresh() noexcept override;
    STDMETHODIMP get_AutoHeight(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_AutoHeight(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_Enabled(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_Enabled(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_Font(IFontDisp** result) noexcept override;
    STDMETHODIMP putref_Font(IFontDisp* value) noexcept override;
    STDMETHODIMP get_ForeColor(OLE_COLOR* result) noexcept override;
    STDMETHODIMP put_ForeColor(OLE_COLOR value) noexcept override;
    STDMETHODIMP get_BackColor(OLE_COLOR* result) noexcept override;
    STDMETHODIMP put_BackColor(OLE_COLOR value) noexcept override;
    STDMETHODIMP get_ButtonForeColor(OLE_COLOR* result) noexcept override;
    STDMETHODIMP put_ButtonForeColor(OLE_COLOR value) noexcept override;
    STDMETHODIMP get_ButtonBackColor(OLE_COLOR* result) noexcept override;
    STDMETHODIMP put_ButtonBackColor(OLE_COLOR value) noexcept override;
    STDMETHODIMP get_ButtonStyle(::vlButtonStyles* result) noexcept override;
    STDMETHODIMP put_ButtonStyle(::vlButtonStyles value) noexcept override;
    STDMETHODIMP get_Picture(IPictureDisp** result) noexcept override;
    STDMETHODIMP putref_Picture(IPictureDisp* value) noexcept override;
    STDMETHODIMP get_GridLines(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_GridLines(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_Version(BSTR* result) noexcept override;
    STDMETHODIMP About() noexcept override;

    // Items: dual_items.cpp
    STDMETHODIMP AddItem(VARIANT Item, short Index) noexcept override;
    STDMETHODIMP get_List(short ItemIndex, short TextCol, VARIANT* result) noexcept override;
    STDMETHODIMP put_List(short ItemIndex, short TextCol, VARIANT value) noexcept override;
    STDMETHODIMP RemoveItem(short* ItemIndex) noexcept override;
    STDMETHODIMP Clear() noexcept override;
    STDMETHODIMP ClearAll() noexcept override;
    STDMETHODIMP get_ListCount(long* result) noexcept override;
    STDMETHODIMP get_NewIndex(long* result) noexcept override;
    STDMETHODIMP get_ItemData(short ItemIndex, long* result) noexcept override;
    STDMETHODIMP put_ItemData(short ItemIndex, long value) noexcept override;
    STDMETHODIMP get_ShowItemToolTips(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_ShowItemToolTips(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_ListIndex(long* result) noexcept override;
    STDMETHODIMP put_ListIndex(long value) noexcept override;
    STDMETHODIMP get_TextColumn(short* result) noexcept override;
    STDMETHODIMP put_TextColumn(short value) noexcept override;
    STDMETHODIMP get_CheckBoxes(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_CheckBoxes(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_Checked(short ItemIndex, VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_Checked(short ItemIndex, VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_CheckedCount(short* result) noexcept override;
    STDMETHODIMP CheckedItems(VARIANT* result) noexcept override;
    STDMETHODIMP get_Sorted(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_Sorted(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_SortOrder(::vlSortOrder* result) noexcept override;
    STDMETHODIMP put_SortOrder(::vlSortOrder value) noexcept override;
    STDMETHODIMP get_SortColumn(short* result) noexcept override;
    STDMETHODIMP put_SortColumn(short value) noexcept override;
    STDMETHODIMP FindItem(VARIANT Target, short SearchColumn, long StartIndex, ::vlFindOptions FindOptions,
                          long* result) noexcept override;

    // Columns: dual_columns.cpp
    STDMETHODIMP get_Columns(short* result) noexcept override;
    STDMETHODIMP put_Columns(short value) noexcept override;
    STDMETHODIMP get_ColumnHeader(short ColumnIndex, BSTR* result) noexcept override;
    STDMETHODIMP put_ColumnHeader(short ColumnIndex, BSTR value) noexcept override;
    STDMETHODIMP get_ColumnWidth(short ColumnIndex, float* result) noexcept override;
    STDMETHODIMP put_ColumnWidth(short ColumnIndex, float value) noexcept override;
    STDMETHODIMP get_ColumnHidden(short ColumnIndex, VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_ColumnHidden(short ColumnIndex, VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_ColumnLocked(short ColumnIndex, VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_ColumnLocked(short ColumnIndex, VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_HideColumnHeaders(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_HideColumnHeaders(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_AutoSize(::vlAutoSizeConstants* result) noexcept override;
    STDMETHODIMP put_AutoSize(::vlAutoSizeConstants value) noexcept override;
    STDMETHODIMP AutoSizeNow(::vlAutoSizeConstants Setting) noexcept override;
    STDMETHODIMP get_ColumnOrder(VARIANT* result) noexcept override;
    STDMETHODIMP put_ColumnOrder(VARIANT value) noexcept override;
    STDMETHODIMP get_AllowColumnReorder(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_AllowColumnReorder(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_HeaderIcons(IDispatch** result) noexcept override;
    STDMETHODIMP putref_HeaderIcons(IDispatch* value) noexcept override;
    STDMETHODIMP get_HeaderIcon(short ColumnIndex, BSTR* result) noexcept override;
    STDMETHODIMP put_HeaderIcon(short ColumnIndex, BSTR value) noexcept override;

    // The drop-down window: dual_dropdown.cpp
    STDMETHODIMP ShowList() noexcept override;
    STDMETHODIMP HideList() noexcept override;
    STDMETHODIMP get_DropDownHeight(float* result) noexcept override;
    STDMETHODIMP put_DropDownHeight(float value) noexcept override;
    STDMETHODIMP get_DropDownBackColor(OLE_COLOR* result) noexcept override;
    STDMETHODIMP put_DropDownBackColor(OLE_COLOR value) noexcept override;
    STDMETHODIMP get_DropDownForeColor(OLE_COLOR* result) noexcept override;
    STDMETHODIMP put_DropDownForeColor(OLE_COLOR value) noexcept override;
    STDMETHODIMP get_DropDownAlignment(::vlDropDownAlignmentConstants* result) noexcept override;
    STDMETHODIMP put_DropDownAlignment(::vlDropDownAlignmentConstants value) noexcept override;
    STDMETHODIMP get_DropDownWidthOffset(float* result) noexcept override;
    STDMETHODIMP put_DropDownWidthOffset(float value) noexcept override;
    STDMETHODIMP get_AllowResize(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_AllowResize(VARIANT_BOOL value) noexcept override;

    // The text field: dual_textfield.cpp
    STDMETHODIMP get_AutoComplete(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_AutoComplete(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_Locked(VARIANT_BOOL* result) noexcept override;
    STDMETHODIMP put_Locked(VARIANT_BOOL value) noexcept override;
    STDMETHODIMP get_MaxLength(long* result) noexcept override;
    STDMETHODIMP put_MaxLength(long value) noexcept override;
    STDMETHODIMP get_Alignment(long* result) noexcept override;
    STDMETHODIMP put_Alignment(long value) noexcept override;
    STDMETHODIMP get_LeftMargin(long* result) noexcept override;
    STDMETHODIMP put_LeftMargin(long value) noexcept override;
    STDMETHODIMP get_RightMargin(long* result) noexcept override;
    STDMETHODIMP put_RightMargin(long value) noexcept override;
    STDMETHODIMP get_SelText(BSTR* result) noexcept override;
    STDMETHODIMP put_SelText(BSTR value) noexcept override;
    STDMETHODIMP get_SelStart(long* result) noexcept override;
    STDMETHODIMP put_SelStart(long value) noexcept override;
    STDMETHODIMP get_SelLength(long* result) noexcept override;
    STDMETHODIMP put_SelLength(long value) noexcept override;

private:
    /// Runs a member. A handler may let go of the control in the middle of it, so the object is held
    /// meanwhile. Programs may use a control that no container has set up; it has its defaults then.
    template <class Body>
    HRESULT run(Body&& body) noexcept {
        const com::Hold held = host_.hold();
        return com::guard(__uuidof(::_Vellora), [&] {
            host_.persistence().ensure_initialised(host_.client());
            return body();
        });
    }

    /// Runs a member and hands its result to the caller. Nothing is left there when it fails.
    template <class Out, class Body>
    HRESULT answer(Out* out, Body&& body) noexcept {
        return run([&] {
            com::need(out);
            clear(out);
            hand_out(body(), out);
        });
    }

    com::ControlHost& host_;
    Control& control_;
};

} // namespace vellora::server
