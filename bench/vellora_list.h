// The control on a form, driven in the two ways a host has: through the table of its interface, and through
// IDispatch with identifiers that were looked up before.
#pragma once

#include "sample_rows.h"
#include "support/container/container.h"

#include <VelloraCTL.h>
#include <stdexcept>

#include <wrl/client.h>

namespace vellora::bench {

/// A call that should have succeeded.
void check(HRESULT result);

class VelloraList {
public:
    VelloraList(test::Container& container, const std::wstring& name, int top);

    void add(const SampleRows& rows, int count);
    void add(const VARIANT& row) { check(vellora_->AddItem(row, -1)); }
    void add_by_dispatch(const SampleRows& rows, int count);
    void clear() { check(vellora_->Clear()); }
    /// Reads each text of the first rows; the number of units read.
    std::size_t read(short count);
    std::size_t read_by_dispatch(short count);

    void write(short row, short column, const std::wstring& text);
    /// 1-based column, -1 for any.
    long find(const std::wstring& text, short column, bool partial);
    long new_index();
    long list_index();
    void select(long row) { check(vellora_->put_ListIndex(row)); }

    void complete(bool on) { check(vellora_->put_AutoComplete(on ? VARIANT_TRUE : VARIANT_FALSE)); }
    /// The edit window that is typed into.
    HWND field();
    void check_row(short row) { check(vellora_->put_Checked(row, VARIANT_TRUE)); }
    short checked_count();
    void checked_items();
    /// The native list inside the control.
    HWND list_window() const { return list_window_; }

    void auto_size(bool on) { check(vellora_->put_AutoSize(on ? vlContents : vlNone)); }
    /// Opens the list, lets it paint, and closes it.
    void open_and_close();

private:
    DISPID identifier(const wchar_t* member);

    test::Container& container_;
    Microsoft::WRL::ComPtr<_Vellora> vellora_;
    Microsoft::WRL::ComPtr<IDispatch> dispatch_;
    DISPID add_item_;
    DISPID list_;
    HWND list_window_;
};

} // namespace vellora::bench
