#include "form_objects.h"

#include "form_binary.h"
#include "form_value.h"
#include "hosting/bstr.h"

#include <cstring>
#include <olectl.h>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

// The platform's standard font and picture.
constexpr CLSID standard_font = {0x0BE35203, 0x8F91, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};
constexpr CLSID standard_picture = {0x0BE35204, 0x8F91, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};

std::u16string text_of(const CLSID& class_id) {
    wchar_t text[40];
    const int length = StringFromGUID2(class_id, text, ARRAYSIZE(text));
    return std::u16string(reinterpret_cast<const char16_t*>(text), static_cast<std::size_t>(length - 1));
}

CLSID class_of(std::u16string_view text) {
    CLSID class_id{};
    const std::wstring name(reinterpret_cast<const wchar_t*>(text.data()), text.size());
    check_value(CLSIDFromString(name.c_str(), &class_id));
    return class_id;
}

/// The standard picture is not always a class of its own.
ComPtr<IUnknown> make(const CLSID& class_id) {
    ComPtr<IUnknown> object;
    if (IsEqualCLSID(class_id, standard_picture))
        check_value(OleCreatePictureIndirect(nullptr, IID_IUnknown, TRUE, &object));
    else
        check_value(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object)));
    return object;
}

/// One vtable serves both interfaces up to Save.
ComPtr<IPersistStream> storable(IUnknown* object) {
    ComPtr<IPersistStream> found;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&found))))
        check_value(object->QueryInterface(IID_IPersistStreamInit, &found));
    return found;
}

ComPtr<IStream> stream_of(std::span<const std::byte> bytes) {
    ComPtr<IStream> stream;
    check_value(CreateStreamOnHGlobal(nullptr, TRUE, &stream));
    check_value(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    check_value(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    return stream;
}

FormBlob bytes_of(IStream* stream) {
    STATSTG statistics{};
    check_value(stream->Stat(&statistics, STATFLAG_NONAME));
    check_value(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    FormBlob bytes(static_cast<std::size_t>(statistics.cbSize.QuadPart));
    ULONG read = 0;
    check_value(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read));
    bytes.resize(read);
    return bytes;
}

/// One property of a font by its name.
template <typename Number, typename Passed>
void add(FormObject& font, const char16_t* name, IFont* object, HRESULT (STDMETHODCALLTYPE IFont::*get)(Passed*)) {
    Passed value{};
    check_value((object->*get)(&value));
    font.settings.push_back({name, static_cast<Number>(value)});
}

void add_truth(FormObject& font, const char16_t* name, IFont* object, HRESULT (STDMETHODCALLTYPE IFont::*get)(BOOL*)) {
    BOOL value = FALSE;
    check_value((object->*get)(&value));
    font.settings.push_back({name, std::int32_t{value ? -1 : 0}, value ? u"True" : u"False"});
}

void add_name_and_size(FormObject& font, IFont* object) {
    Bstr name;
    CY size{};
    check_value(object->get_Name(name.out()));
    check_value(object->get_Size(&size));
    const std::wstring text = name.text();
    font.settings.push_back({u"Name", std::u16string(text.begin(), text.end())});
    font.settings.push_back({u"Size", static_cast<double>(size.int64) / 10000});
}

} // namespace

std::shared_ptr<FormObject> saved_font(IUnknown* object) {
    ComPtr<IFont> font;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&font))))
        return nullptr;
    auto saved = std::make_shared<FormObject>(FormObject{text_of(standard_font)});
    add_name_and_size(*saved, font.Get());
    add<std::int32_t>(*saved, u"Charset", font.Get(), &IFont::get_Charset);
    add<std::int32_t>(*saved, u"Weight", font.Get(), &IFont::get_Weight);
    add_truth(*saved, u"Underline", font.Get(), &IFont::get_Underline);
    add_truth(*saved, u"Italic", font.Get(), &IFont::get_Italic);
    add_truth(*saved, u"Strikethrough", font.Get(), &IFont::get_Strikethrough);
    return saved;
}

FormBlob saved_record(IUnknown* object) {
    const ComPtr<IPersistStream> persist = storable(object);
    CLSID class_id{};
    check_value(persist->GetClassID(&class_id));
    const ComPtr<IStream> stream = stream_of({});
    check_value(WriteClassStm(stream.Get(), class_id));
    check_value(persist->Save(stream.Get(), FALSE));
    return record_of(bytes_of(stream.Get()));
}

FormObject object_of(IPersistPropertyBag* object) {
    CLSID class_id{};
    check_value(object->GetClassID(&class_id));
    return {text_of(class_id)};
}

ComPtr<IUnknown> loaded_record(const FormBlob& record) {
    const auto content = content_of(record);
    if (!content)
        throw FormValueError{STG_E_DOCFILECORRUPT};
    const ComPtr<IStream> stream = stream_of(*content);
    CLSID class_id{};
    check_value(ReadClassStm(stream.Get(), &class_id));
    const ComPtr<IUnknown> object = make(class_id);
    check_value(storable(object.Get())->Load(stream.Get()));
    return object;
}

ComPtr<IUnknown> loaded_object(const FormObject& object, IPropertyBag* settings, IErrorLog* log) {
    const ComPtr<IUnknown> made = make(class_of(object.class_id));
    ComPtr<IPersistPropertyBag> persist;
    check_value(made.As(&persist));
    check_value(persist->Load(settings, log));
    return made;
}

} // namespace vellora::samples
