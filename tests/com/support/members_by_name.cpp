// Members called by name through IDispatch, as scripts do; optional arguments are left out there.
#include "com/support/members.h"
#include "support/container/call_by_name.h"

#include <utility>

namespace vellora::test {
namespace {

using Microsoft::WRL::ComPtr;

class ByName final : public Members {
public:
    explicit ByName(ComPtr<IDispatch> control) : control_(std::move(control)) {}

    std::wstring text() override { return get(L"Text").text(); }
    void set_text(const std::wstring& text) override { put(L"Text", text); }
    HWND window() override { return handle(get(L"hWnd")); }
    HWND container_window() override { return handle(get(L"ContainerHwnd")); }
    void refresh() override { call(L"Refresh"); }

    void add_item(const Variant& item, std::optional<short> index) override {
        call(L"AddItem", with_optional(item, index));
    }
    Variant list(short row, std::optional<short> column) override {
        return get(L"List", with_optional(row, column));
    }
    void set_list(short row, const Variant& value, std::optional<short> column) override {
        put(L"List", value, with_optional(row, column));
    }
    void remove_item(short row) override { call(L"RemoveItem", {row}); }
    void clear() override { call(L"Clear"); }
    void clear_all() override { call(L"ClearAll"); }
    long list_count() override { return get(L"ListCount").number(); }
    long new_index() override { return get(L"NewIndex").number(); }
    long item_data(short row) override { return get(L"ItemData", {row}).number(); }
    void set_item_data(short row, long value) override { put(L"ItemData", value, {row}); }
    bool show_item_tool_tips() override { return get(L"ShowItemToolTips").truth(); }
    void set_show_item_tool_tips(bool show) override { put(L"ShowItemToolTips", show); }

    long list_index() override { return get(L"ListIndex").number(); }
    void set_list_index(long row) override { put(L"ListIndex", row); }
    short text_column() override { return small(get(L"TextColumn")); }
    void set_text_column(short column) override { put(L"TextColumn", column); }
    void set_sorted(bool sorted) override { put(L"Sorted", sorted); }

    short columns() override { return small(get(L"Columns")); }
    void set_columns(short count) override { put(L"Columns", count); }
    std::wstring header(short column) override { return get(L"ColumnHeader", {column}).text(); }
    void set_header(short column, const std::wstring& caption) override {
        put(L"ColumnHeader", caption, {column});
    }
    float width(short column) override { return static_cast<float>(get(L"ColumnWidth", {column}).real()); }
    void set_width(short column, float twips) override { put(L"ColumnWidth", twips, {column}); }
    bool hidden(short column) override { return get(L"ColumnHidden", {column}).truth(); }
    void set_hidden(short column, bool hidden) override { put(L"ColumnHidden", hidden, {column}); }
    bool locked(short column) override { return get(L"ColumnLocked", {column}).truth(); }
    void set_locked(short column, bool locked) override { put(L"ColumnLocked", locked, {column}); }
    bool hide_headers() override { return get(L"HideColumnHeaders").truth(); }
    void set_hide_headers(bool hide) override { put(L"HideColumnHeaders", hide); }
    long auto_size() override { return get(L"AutoSize").number(); }
    void set_auto_size(long mode) override { put(L"AutoSize", mode); }
    void auto_size_now(long mode) override { call(L"AutoSizeNow", {mode}); }

    void show_list() override { call(L"ShowList"); }
    void hide_list() override { call(L"HideList"); }

private:
    using Arguments = std::vector<Variant>;

    Variant get(const wchar_t* name, Arguments arguments = {}) {
        return get_property(control_.Get(), name, std::move(arguments));
    }
    void put(const wchar_t* name, Variant value, Arguments arguments = {}) {
        put_property(control_.Get(), name, std::move(value), std::move(arguments));
    }
    void call(const wchar_t* name, Arguments arguments = {}) {
        call_method(control_.Get(), name, std::move(arguments));
    }
    static Arguments with_optional(const Variant& first, std::optional<short> second) {
        return second ? Arguments{first, *second} : Arguments{first};
    }
    static HWND handle(const Variant& value) {
        return reinterpret_cast<HWND>(static_cast<LONG_PTR>(value.number()));
    }
    static short small(const Variant& value) { return static_cast<short>(value.number()); }

    ComPtr<IDispatch> control_;
};

} // namespace

std::unique_ptr<Members> members_by_name(ComPtr<IDispatch> control) {
    return std::make_unique<ByName>(std::move(control));
}

} // namespace vellora::test
