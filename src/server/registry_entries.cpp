#include "server/registry_entries.h"

#include "com/bstr.h"
#include "com/type_library.h"
#include "runtime/decimal.h"
#include "server/module.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vellora::server {

namespace {

std::wstring text_of(REFGUID id) {
    wchar_t text[39] = {};
    StringFromGUID2(id, text, 39);
    return text;
}

std::wstring text_of(std::intptr_t number) {
    return com::wide(to_decimal(number));
}

std::wstring version() {
    return text_of(module().major) + L"." + text_of(module().minor);
}

constexpr GUID category_control = {0x40FC6ED4, 0x2438, 0x11CF, {0xA3, 0xDB, 0x08, 0x00, 0x36, 0xF1, 0x25, 0x02}};
constexpr GUID category_programmable = {0x40FC6ED5, 0x2438, 0x11CF, {0xA3, 0xDB, 0x08, 0x00, 0x36, 0xF1, 0x25, 0x02}};
constexpr GUID category_property_bag = {0x0DE86A57, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}};
constexpr GUID category_memory = {0x0DE86A55, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}};
constexpr GUID category_storage = {0x0DE86A52, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}};
constexpr GUID category_stream_init = {0x0DE86A53, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}};

std::wstring key_of(const CLSID& class_id) {
    return L"CLSID\\" + text_of(class_id);
}

/// What every class has.
std::vector<RegistryEntry> server_entries(const std::wstring& key, const std::wstring& name) {
    const std::wstring server = key + L"\\InprocServer32";
    return {{key, L"", name}, {server, L"", com::module_path()}, {server, L"ThreadingModel", L"Apartment"}};
}

std::wstring page_name(const com::PageClass& page) {
    return module().control.user_type + std::wstring(L" property page ") + page.title;
}

} // namespace

std::wstring class_key() {
    return key_of(module().control.class_id);
}

std::vector<std::wstring> page_keys() {
    std::vector<std::wstring> keys;
    for (const com::PageClass& page : module().control.pages)
        keys.push_back(key_of(page.class_id));
    return keys;
}

std::vector<RegistryEntry> page_entries() {
    std::vector<RegistryEntry> entries;
    for (const com::PageClass& page : module().control.pages)
        std::ranges::move(server_entries(key_of(page.class_id), page_name(page)), std::back_inserter(entries));
    return entries;
}

std::wstring server_key() {
    return class_key() + L"\\InprocServer32";
}

std::wstring type_library_key() {
    // The platform writes these two in hexadecimal.
    wchar_t numbers[16] = {};
    wsprintfW(numbers, L"\\%x.%x", module().major, module().minor);
    return L"TypeLib\\" + text_of(module().type_library) + numbers;
}

std::vector<RegistryEntry> class_entries() {
    const std::wstring key = class_key();
    // The file comes before the rest: it tells whose the class is, and who may take the rest back.
    std::vector<RegistryEntry> entries = server_entries(key, module().control.user_type);
    const std::pair<const wchar_t*, std::wstring> description[] = {
        {L"ProgID", module().versioned_program_id},
        {L"VersionIndependentProgID", module().program_id},
        {L"TypeLib", text_of(module().type_library)},
        {L"Version", version()},
        {L"MiscStatus", L"0"},
        {L"MiscStatus\\1", text_of(com::misc_status)},
        {L"ToolboxBitmap32", com::module_path() + L", " + text_of(module().toolbox_bitmap)},
        {L"Control", L""},
        {L"Programmable", L""},
    };
    for (const auto& [name, value] : description)
        entries.push_back({key + L"\\" + name, L"", value});
    for (const GUID& category : {category_control, category_programmable, category_property_bag, category_memory,
                                 category_storage, category_stream_init})
        entries.push_back({key + L"\\Implemented Categories\\" + text_of(category), L"", L""});
    return entries;
}

std::vector<RegistryEntry> program_id_entries() {
    const std::wstring name = module().control.user_type;
    const std::wstring class_id = text_of(module().control.class_id);
    const std::wstring general = module().program_id;
    const std::wstring versioned = module().versioned_program_id;
    return {
        {versioned, L"", name},
        {versioned + L"\\CLSID", L"", class_id},
        {general, L"", name},
        {general + L"\\CLSID", L"", class_id},
        {general + L"\\CurVer", L"", versioned},
    };
}

} // namespace vellora::server
