#include "com/variant_result.h"

#include "com/bstr.h"
#include "com/safe_array.h"

namespace vellora::com {

namespace {

class VariantWriter {
public:
    explicit VariantWriter(VARIANT* out) : out_(out) {}

    void operator()(std::monostate) const {}

    void operator()(const std::u16string& text) const {
        V_BSTR(out_) = make_bstr(text);
        V_VT(out_) = VT_BSTR;
    }

    void operator()(const std::vector<std::u16string>& texts) const {
        SafeArrayOwner array = make_safe_array(VT_BSTR, {texts.size()});
        {
            const SafeArrayElements<BSTR> elements(array.get());
            for (std::size_t i = 0; i < texts.size(); ++i)
                elements[i] = make_bstr(texts[i]);
        }
        hand_over(array, VT_BSTR);
    }

    void operator()(const TextTable& table) const {
        const auto rows = static_cast<std::size_t>(table.first_extent);
        const auto columns = static_cast<std::size_t>(table.second_extent);
        SafeArrayOwner array = make_safe_array(VT_BSTR, {rows, columns});
        {
            const SafeArrayElements<BSTR> elements(array.get());
            for (std::size_t i = 0; i < rows; ++i)
                for (std::size_t j = 0; j < columns; ++j)
                    elements[j * rows + i] = make_bstr(table.cells[i * columns + j]);
        }
        hand_over(array, VT_BSTR);
    }

    void operator()(const std::vector<std::int16_t>& numbers) const {
        SafeArrayOwner array = make_safe_array(VT_I2, {numbers.size()});
        {
            const SafeArrayElements<std::int16_t> elements(array.get());
            for (std::size_t i = 0; i < numbers.size(); ++i)
                elements[i] = numbers[i];
        }
        hand_over(array, VT_I2);
    }

    void operator()(const std::vector<std::optional<std::int32_t>>& numbers) const {
        SafeArrayOwner array = make_safe_array(VT_VARIANT, {numbers.size()});
        {
            const SafeArrayElements<VARIANT> elements(array.get());
            for (std::size_t i = 0; i < numbers.size(); ++i)
                write_number(elements[i], numbers[i]);
        }
        hand_over(array, VT_VARIANT);
    }

private:
    static void write_number(VARIANT& element, std::optional<std::int32_t> number) {
        if (!number)
            return;
        V_VT(&element) = VT_I4;
        V_I4(&element) = *number;
    }

    void hand_over(SafeArrayOwner& array, VARTYPE type) const {
        V_VT(out_) = static_cast<VARTYPE>(VT_ARRAY | type);
        V_ARRAY(out_) = array.release();
    }

    VARIANT* out_;
};

} // namespace

void to_variant(const VariantResult& result, VARIANT* out) {
    need(out);
    VariantInit(out);
    std::visit(VariantWriter(out), result);
}

} // namespace vellora::com
