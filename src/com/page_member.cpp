#include "com/page_member.h"

#include "com/bstr.h"

#include <cwchar>
#include <cwctype>

namespace vellora::com {

namespace {

constexpr VARTYPE color_type = VT_UI4; // what OLE_COLOR stands for

PageEntry entry_of(const Member& setter, bool has_choices) {
    if (has_choices)
        return PageEntry::choice;
    switch (setter.parameters.back().type) {
    case VT_BOOL:
        return PageEntry::flag;
    case color_type:
        return PageEntry::color;
    default:
        return PageEntry::text;
    }
}

} // namespace

PageMember::PageMember(ITypeInfo* type, const MemberTable& members, DISPID member_id, bool has_number)
    : id(member_id), name(member_name(type, member_id)), numbered(has_number) {
    if (const Member* const getter = members.find(id, DISPATCH_PROPERTYGET))
        choices = choices_of(getter->enumeration.Get());
    const Member* const setter = members.find(id, DISPATCH_PROPERTYPUT);
    if (setter && !setter->parameters.empty())
        entry = entry_of(*setter, !choices.empty());
}

std::u16string color_text(std::uint32_t color) {
    wchar_t text[16] = {};
    wsprintfW(text, L"&H%08lX&", static_cast<unsigned long>(color));
    return std::u16string(narrow_view(text));
}

Variant color_value(const std::u16string& text) {
    if (text.size() > 2 && text[0] == u'&' && (text[1] == u'H' || text[1] == u'h') && std::iswxdigit(text[2])) {
        wchar_t* end = nullptr;
        const unsigned long color = std::wcstoul(wide(text.c_str()) + 2, &end, 16);
        if (*end == L'\0' || (*end == L'&' && end[1] == L'\0'))
            return Variant(static_cast<std::int32_t>(color));
    }
    return Variant(text);
}

} // namespace vellora::com
