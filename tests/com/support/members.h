// The public members that the tests use, callable in both ways a host has: through the interface's own table,
// and by name through IDispatch. A failing call throws CallFailed with number, source and description.
#pragma once

#include "support/container/variant.h"

#include <VelloraCTL.h>
#include <memory>
#include <optional>
#include <string>

#include <wrl/client.h>

namespace vellora::test {

class Members {
public:
    virtual ~Members() = default;

    virtual std::wstring text() = 0;
    virtual void set_text(const std::wstring& text) = 0;
    virtual HWND window() = 0;
    virtual HWND container_window() = 0;
    virtual void refresh() = 0;

    virtual void add_item(const Variant& item, std::optional<short> index = {}) = 0;
    virtual Variant list(short row, std::optional<short> column = {}) = 0;
    virtual void set_list(short row, const Variant& value, std::optional<short> column = {}) = 0;
    virtual void remove_item(short row) = 0;
    virtual void clear() = 0;
    virtual void clear_all() = 0;
    virtual long list_count() = 0;
    virtual long new_index() = 0;
    virtual long item_data(short row) = 0;
    virtual void set_item_data(short row, long value) = 0;
    virtual bool show_item_tool_tips() = 0;
    virtual void set_show_item_tool_tips(bool show) = 0;

    virtual long list_index() = 0;
    virtual void set_list_index(long row) = 0;
    virtual short text_column() = 0;
    virtual void set_text_column(short column) = 0;
    virtual void set_sorted(bool sorted) = 0;

    virtual short columns() = 0;
    virtual void set_columns(short count) = 0;
    virtual std::wstring header(short column) = 0;
    virtual void set_header(short column, const std::wstring& caption) = 0;
    virtual float width(short column) = 0;
    virtual void set_width(short column, float twips) = 0;
    virtual bool hidden(short column) = 0;
    virtual void set_hidden(short column, bool hidden) = 0;
    virtual bool locked(short column) = 0;
    virtual void set_locked(short column, bool locked) = 0;
    virtual bool hide_headers() = 0;
    virtual void set_hide_headers(bool hide) = 0;
    virtual long auto_size() = 0;
    virtual void set_auto_size(long mode) = 0;
    virtual void auto_size_now(long mode) = 0;

    virtual void show_list() = 0;
    virtual void hide_list() = 0;
};

std::unique_ptr<Members> members_by_table(Microsoft::WRL::ComPtr<_Vellora> control);
std::unique_ptr<Members> members_by_name(Microsoft::WRL::ComPtr<IDispatch> control);

} // namespace vellora::test
