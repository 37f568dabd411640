#include "object_values.h"

#include "bstr.h"
#include "failure.h"

#include <algorithm>
#include <cwchar>
#include <olectl.h>
#include <vector>
#include <wrl/client.h>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

constexpr const wchar_t none[] = L"(none)";
constexpr LONGLONG points_unit = 10000; // a CURRENCY counts in ten-thousandths

std::wstring points_text(const CY& size) {
    std::wstring digits = std::to_wstring(size.int64 % points_unit + points_unit).substr(1);
    digits.resize(digits.find_last_not_of(L'0') + 1);
    return std::to_wstring(size.int64 / points_unit) + (digits.empty() ? L"" : L"." + digits);
}

std::wstring font_text(IFont& font) {
    Bstr name;
    CY size{};
    BOOL bold = FALSE, italic = FALSE, underline = FALSE, strikethrough = FALSE;
    font.get_Name(name.out());
    font.get_Size(&size);
    font.get_Bold(&bold);
    font.get_Italic(&italic);
    font.get_Underline(&underline);
    font.get_Strikethrough(&strikethrough);
    return name.text() + L", " + points_text(size) + (bold ? L", bold" : L"") + (italic ? L", italic" : L"") +
           (underline ? L", underline" : L"") + (strikethrough ? L", strikethrough" : L"");
}

std::wstring trimmed(const std::wstring& text) {
    const std::size_t first = text.find_first_not_of(L' ');
    return first == std::wstring::npos ? L"" : text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

std::vector<std::wstring> parts_of(const std::wstring& text) {
    std::vector<std::wstring> parts;
    std::size_t begin = 0;
    for (std::size_t comma = 0; comma != std::wstring::npos; begin = comma + 1) {
        comma = text.find(L',', begin);
        parts.push_back(trimmed(text.substr(begin, comma == std::wstring::npos ? comma : comma - begin)));
    }
    return parts;
}

void style(FONTDESC& font, const std::wstring& word) {
    if (word == L"bold")
        font.sWeight = FW_BOLD;
    else if (word == L"italic")
        font.fItalic = TRUE;
    else if (word == L"underline")
        font.fUnderline = TRUE;
    else if (word == L"strikethrough")
        font.fStrikethrough = TRUE;
    else
        throw Failure(L'"' + word + L"\" is not a style of a font: bold, italic, underline and strikethrough are.");
}

void set_object(Variant& value, ComPtr<IDispatch> object) {
    VARIANT* const out = value.out();
    out->vt = VT_DISPATCH;
    out->pdispVal = object.Detach();
}

Variant font_of(const std::wstring& text) {
    std::vector<std::wstring> parts = parts_of(text);
    const double size = parts.size() > 1 ? std::wcstod(parts[1].c_str(), nullptr) : 0;
    constexpr double largest = 400;
    if (parts[0].empty() || !(size >= 1 && size <= largest))
        throw Failure(L"A font is its name and its size in points: Tahoma, 8.25");
    FONTDESC font{};
    font.cbSizeofstruct = sizeof font;
    font.lpstrName = parts[0].data();
    font.cySize.int64 = static_cast<LONGLONG>(size * static_cast<double>(points_unit) + 0.5);
    font.sWeight = FW_NORMAL;
    font.sCharset = DEFAULT_CHARSET;
    for (std::size_t i = 2; i < parts.size(); ++i)
        style(font, parts[i]);
    ComPtr<IDispatch> object;
    check(OleCreateFontIndirect(&font, IID_PPV_ARGS(&object)), L"Making the font");
    Variant value;
    set_object(value, object);
    return value;
}

/// Global memory, which a stream over it frees.
HGLOBAL read_file(const std::wstring& path) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        throw Failure(L"The file " + path + L" cannot be read.");
    constexpr DWORD largest = 64 * 1024 * 1024;
    const DWORD size = GetFileSize(file, nullptr);
    const HGLOBAL memory = size <= largest ? GlobalAlloc(GMEM_MOVEABLE, size) : nullptr;
    DWORD read = 0;
    if (memory) {
        ReadFile(file, GlobalLock(memory), size, &read, nullptr);
        GlobalUnlock(memory);
    }
    CloseHandle(file);
    if (!memory || read != size) {
        GlobalFree(memory);
        throw Failure(L"The file " + path + L" is too large or cannot be read.");
    }
    return memory;
}

Variant picture_of(const std::wstring& path) {
    Variant value;
    ComPtr<IDispatch> picture;
    if (!path.empty() && path != none) {
        ComPtr<IStream> stream;
        check(CreateStreamOnHGlobal(read_file(path), TRUE, &stream), L"Reading the picture");
        if (FAILED(OleLoadPicture(stream.Get(), 0, FALSE, __uuidof(IDispatch),
                                  reinterpret_cast<void**>(picture.GetAddressOf()))))
            throw Failure(path + L" is not a picture: bitmaps, icons, GIF and JPEG are.");
    }
    set_object(value, picture);
    return value;
}

} // namespace

std::wstring text_of_object(PropertyKind kind, VARIANT& value) {
    if (!value.punkVal)
        return none;
    ComPtr<IFont> font;
    if (kind == PropertyKind::font && SUCCEEDED(value.punkVal->QueryInterface(IID_PPV_ARGS(&font))))
        return font_text(*font.Get());
    return kind == PropertyKind::picture ? L"(picture)" : L"(object)";
}

Variant object_of_text(PropertyKind kind, const std::wstring& text) {
    if (kind == PropertyKind::font)
        return font_of(text);
    if (kind == PropertyKind::picture)
        return picture_of(trimmed(text));
    throw Failure(L"This property is an object; it cannot be typed.");
}

} // namespace vellora::samples
