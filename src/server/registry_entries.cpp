#include "server/registry_entries.h"

#include "com/ole.h"
#include "com/type_library.h"
#include "server/module.h"

namespace vellora::server {

namespace {

std::wstring text_of(REFGUID id) {
    wchar_t text[39] = {};
    StringFromGUID2(id, text, 39);
    return text;
}

std::wstring version() {
    return std::to_wstring(module().major) + L"." + std::to_wstring(module().minor);
}

constexpr GUID category_control = {
    0x40FC6ED4, 0x2438, 0x11CF, {0xA3, 0xDB, 0x08, 0x00, 0x36, 0xF1, 0x25, 0x02}};
constexpr GUID category_programmable = {
    0x40FC6ED5, 0x2438, 0x11CF, {0xA3, 0xDB, 0x08, 0x00, 0x36, 0xF1, 0x25, 0x02}};
constexpr GUID category_property_bag = {
    0x0DE86A57, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}};
constexpr GUID category_stream_init = {
    0x0DE86A53, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}};

} // namespace

std::wstring class_key() {
    return L"CLSID\\" + text_of(module().control.class_id);
}

std::vector<RegistryEntry> class_entries() {
    const std::wstring key = class_key();
    const std::wstring server = key + L"\\InprocServer32";
    const std::wstring path = com::module_path();
    std::vector<RegistryEntry> entries = {
        {key, L"", module().control.user_type},
        {server, L"", path},
        {server, L"ThreadingModel", L"Apartment"},
        {key + L"\\ProgID", L"", module().versioned_program_id},
        {key + L"\\VersionIndependentProgID", L"", module().program_id},
        {key + L"\\TypeLib", L"", text_of(module().type_library)},
        {key + L"\\Version", L"", version()},
        {key + L"\\MiscStatus", L"", L"0"},
        {key + L"\\MiscStatus\\1", L"", std::to_wstring(com::misc_status)},
        {key + L"\\ToolboxBitmap32", L"", path + L", " + std::to_wstring(module().toolbox_bitmap)},
        {key + L"\\Control", L"", L""},
        {key + L"\\Programmable", L"", L""},
    };
    for (const GUID& category :
         {category_control, category_programmable, category_property_bag, category_stream_init})
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
