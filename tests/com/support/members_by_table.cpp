// Members called through the table of _Vellora, as compiled hosts do.
#include "com/support/members.h"
#include "support/container/failure.h"
#include "support/container/text.h"

#include <utility>

namespace vellora::test {
namespace {

using Microsoft::WRL::ComPtr;

VARIANT_BOOL variant_bool(bool value) {
    return value ? VARIANT_TRUE : VARIANT_FALSE;
}

class ByTable final : public Members {
public:
    explicit ByTable(ComPtr<_Vellora> control) : control_(std::move(control)) {}

    std::wstring text() override { return text_of(&_Vellora::get_Text); }
    void set_text(const std::wstring& text) override { check(control_->put_Text(Bstr(text).get())); }
    HWND window() override { return handle(read<LONG>(&_Vellora::get_hWnd)); }
    HWND container_window() override { return handle(read<LONG>(&_Vellora::get_ContainerHwnd)); }
    void refresh() override { check(control_->Refresh()); }

    void add_item(const Variant& item, std::optional<short> index) override {
        check(control_->AddItem(item.get(), index.value_or(-1)));
    }
    Variant list(short row, std::optional<short> column) override {
        Variant result;
        check(control_->get_List(row, column.value_or(-1), result.out()));
        return result;
    }
    void set_list(short row, const Variant& value, std::optional<short> column) override {
        check(control_->put_List(row, column.value_or(-1), value.get()));
    }
    void remove_item(short row) override { check(control_->RemoveItem(&row)); }
    void clear() override { check(control_->Clear()); }
    void clear_all() override { check(control_->ClearAll()); }
    long list_count() override { return read<LONG>(&_Vellora::get_ListCount); }
    long new_index() override { return read<LONG>(&_Vellora::get_NewIndex); }
    long item_data(short row) override { return read_at<LONG>(&_Vellora::get_ItemData, row); }
    void set_item_data(short row, long value) override { check(control_->put_ItemData(row, value)); }
    bool show_item_tool_tips() override { return read<VARIANT_BOOL>(&_Vellora::get_ShowItemToolTips) != 0; }
    void set_show_item_tool_tips(bool show) override {
        check(control_->put_ShowItemToolTips(variant_bool(show)));
    }

    long list_index() override { return read<LONG>(&_Vellora::get_ListIndex); }
    void set_list_index(long row) override { check(control_->put_ListIndex(row)); }
    short text_column() override { return read<short>(&_Vellora::get_TextColumn); }
    void set_text_column(short column) override { check(control_->put_TextColumn(column)); }
    void set_sorted(bool sorted) override { check(control_->put_Sorted(variant_bool(sorted))); }

    short columns() override { return read<short>(&_Vellora::get_Columns); }
    void set_columns(short count) override { check(control_->put_Columns(count)); }
    std::wstring header(short column) override {
        Bstr result;
        check(control_->get_ColumnHeader(column, result.out()));
        return result.text();
    }
    void set_header(short column, const std::wstring& caption) override {
        check(control_->put_ColumnHeader(column, Bstr(caption).get()));
    }
    float width(short column) override { return read_at<float>(&_Vellora::get_ColumnWidth, column); }
    void set_width(short column, float twips) override { check(control_->put_ColumnWidth(column, twips)); }
    bool hidden(short column) override {
        return read_at<VARIANT_BOOL>(&_Vellora::get_ColumnHidden, column) != 0;
    }
    void set_hidden(short column, bool hidden) override {
        check(control_->put_ColumnHidden(column, variant_bool(hidden)));
    }
    bool locked(short column) override {
        return read_at<VARIANT_BOOL>(&_Vellora::get_ColumnLocked, column) != 0;
    }
    void set_locked(short column, bool locked) override {
        check(control_->put_ColumnLocked(column, variant_bool(locked)));
    }
    bool hide_headers() override { return read<VARIANT_BOOL>(&_Vellora::get_HideColumnHeaders) != 0; }
    void set_hide_headers(bool hide) override { check(control_->put_HideColumnHeaders(variant_bool(hide))); }
    long auto_size() override { return read<vlAutoSizeConstants>(&_Vellora::get_AutoSize); }
    void set_auto_size(long mode) override {
        check(control_->put_AutoSize(static_cast<vlAutoSizeConstants>(mode)));
    }
    void auto_size_now(long mode) override {
        check(control_->AutoSizeNow(static_cast<vlAutoSizeConstants>(mode)));
    }

    void show_list() override { check(control_->ShowList()); }
    void hide_list() override { check(control_->HideList()); }

private:
    template <class Value>
    using Getter = HRESULT (STDMETHODCALLTYPE _Vellora::*)(Value*);
    template <class Value>
    using IndexedGetter = HRESULT (STDMETHODCALLTYPE _Vellora::*)(short, Value*);

    void check(HRESULT result) {
        if (FAILED(result))
            throw CallFailed(failure_of(control_.Get(), __uuidof(_Vellora), result));
    }
    template <class Value>
    Value read(Getter<Value> get) {
        Value value{};
        check((control_.Get()->*get)(&value));
        return value;
    }
    template <class Value>
    Value read_at(IndexedGetter<Value> get, short index) {
        Value value{};
        check((control_.Get()->*get)(index, &value));
        return value;
    }
    std::wstring text_of(Getter<BSTR> get) {
        Bstr value;
        check((control_.Get()->*get)(value.out()));
        return value.text();
    }
    static HWND handle(LONG value) { return reinterpret_cast<HWND>(static_cast<LONG_PTR>(value)); }

    ComPtr<_Vellora> control_;
};

} // namespace

std::unique_ptr<Members> members_by_table(ComPtr<_Vellora> control) {
    return std::make_unique<ByTable>(std::move(control));
}

} // namespace vellora::test
