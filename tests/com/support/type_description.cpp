#include "com/support/type_description.h"

#include "support/container/text.h"

#include <stdexcept>
#include <string_view>

namespace vellora::test {
namespace {

using Microsoft::WRL::ComPtr;

void require(HRESULT result, const char* what) {
    if (FAILED(result))
        throw std::runtime_error(std::string("type library: ") + what);
}

/// A description lent by the type, given back at the end of the scope.
template <class Description, void (STDMETHODCALLTYPE ITypeInfo::*give_back)(Description*)>
class Lent {
public:
    explicit Lent(ITypeInfo* type) : type_(type) {}
    ~Lent() {
        if (description_)
            (type_->*give_back)(description_);
    }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;
    Description** out() { return &description_; }
    Description* operator->() const { return description_; }

private:
    ITypeInfo* type_;
    Description* description_ = nullptr;
};
using LentType = Lent<TYPEATTR, &ITypeInfo::ReleaseTypeAttr>;
using LentFunction = Lent<FUNCDESC, &ITypeInfo::ReleaseFuncDesc>;
using LentVariable = Lent<VARDESC, &ITypeInfo::ReleaseVarDesc>;

std::string type_name(ITypeInfo* type, const TYPEDESC& described) {
    switch (described.vt) {
    case VT_PTR:
        return type_name(type, *described.lptdesc) + "*";
    case VT_USERDEFINED: {
        ComPtr<ITypeInfo> referred;
        require(type->GetRefTypeInfo(described.hreftype, &referred), "a type that is referred to");
        ComPtr<ITypeLib> library;
        UINT index = 0;
        require(referred->GetContainingTypeLib(&library, &index), "the library of a type");
        const std::string home = documentation(library.Get()).name;
        return (home == "VelloraCTL" ? "" : home + ".") + documentation(referred.Get()).name;
    }
    case VT_I2:
        return "short";
    case VT_I4:
        return "long";
    case VT_R4:
        return "float";
    case VT_BSTR:
        return "BSTR";
    case VT_BOOL:
        return "bool";
    case VT_VARIANT:
        return "VARIANT";
    case VT_DISPATCH:
        return "IDispatch*";
    case VT_VOID:
        return "void";
    default:
        return "VARTYPE " + std::to_string(described.vt);
    }
}

const char* kind(INVOKEKIND invoked) {
    switch (invoked) {
    case INVOKE_PROPERTYGET:
        return "get";
    case INVOKE_PROPERTYPUT:
        return "put";
    case INVOKE_PROPERTYPUTREF:
        return "putref";
    default:
        return "call";
    }
}

std::string default_value(const PARAMDESC& parameter) {
    if (!(parameter.wParamFlags & PARAMFLAG_FHASDEFAULT))
        return parameter.wParamFlags & PARAMFLAG_FOPT ? " optional" : "";
    const VARIANT& value = parameter.pparamdescex->varDefaultValue;
    return " = " + std::to_string(value.vt == VT_I2 ? value.iVal : value.lVal);
}

/// Those a form designer or a script engine goes by.
std::string attributes(WORD flags) {
    std::string words;
    const auto add = [&](WORD flag, const char* word) {
        if (flags & flag)
            words += (words.empty() ? "" : " ") + std::string(word);
    };
    add(FUNCFLAG_FBINDABLE, "bindable");
    add(FUNCFLAG_FREQUESTEDIT, "requestedit");
    add(FUNCFLAG_FDISPLAYBIND, "displaybind");
    add(FUNCFLAG_FDEFAULTBIND, "defaultbind");
    add(FUNCFLAG_FHIDDEN, "hidden");
    add(FUNCFLAG_FNONBROWSABLE, "nonbrowsable");
    return words.empty() ? "" : " [" + words + "]";
}

std::string parameters(ITypeInfo* type, const FUNCDESC& function, BSTR* names, UINT named) {
    std::string words;
    for (SHORT i = 0; i < function.cParams; ++i) {
        const ELEMDESC& parameter = function.lprgelemdescParam[i];
        words += (i ? ", " : "") + type_name(type, parameter.tdesc);
        // The value of a property put has no name.
        if (const UINT place = static_cast<UINT>(i) + 1; place < named)
            words += " " + utf8(names[place]);
        words += default_value(parameter.paramdesc);
    }
    return words;
}

std::string describe(ITypeInfo* type, const FUNCDESC& function) {
    constexpr UINT most_names = 8;
    BSTR names[most_names] = {};
    UINT named = 0;
    require(type->GetNames(function.memid, names, most_names, &named), "the names of a function");
    const std::string line = std::to_string(function.memid) + " " + kind(function.invkind) + " " +
                             utf8(names[0]) + "(" + parameters(type, function, names, named) + ") " +
                             type_name(type, function.elemdescFunc.tdesc) + attributes(function.wFuncFlags);
    for (UINT i = 0; i < named; ++i)
        SysFreeString(names[i]);
    return line;
}

} // namespace

TypeDescription::TypeDescription(const std::wstring& file) {
    require(LoadTypeLibEx(file.c_str(), REGKIND_NONE, &library_), "none in the file");
}

ComPtr<ITypeInfo> TypeDescription::type(const std::wstring& name) const {
    for (UINT i = 0; i < library_->GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> type;
        require(library_->GetTypeInfo(i, &type), "a type");
        if (documentation(type.Get()).name == utf8(name))
            return type;
    }
    throw std::runtime_error("type library: no type " + utf8(name));
}

std::vector<std::string> TypeDescription::functions(const std::wstring& type_name) const {
    const ComPtr<ITypeInfo> described = type(type_name);
    LentType type_attributes(described.Get());
    require(described->GetTypeAttr(type_attributes.out()), "the attributes of a type");
    std::vector<std::string> lines;
    for (UINT i = 0; i < type_attributes->cFuncs; ++i) {
        LentFunction function(described.Get());
        require(described->GetFuncDesc(i, function.out()), "a function");
        // IDispatch's own seven come first.
        if (!(function->wFuncFlags & FUNCFLAG_FRESTRICTED))
            lines.push_back(describe(described.Get(), *function.operator->()));
    }
    return lines;
}

std::string TypeDescription::function(const std::wstring& type_name, const std::string& accessor) const {
    for (const std::string& line : functions(type_name)) {
        if (line.find(" " + accessor + "(") != std::string::npos)
            return line;
    }
    return {};
}

std::vector<std::string> TypeDescription::values(const std::wstring& enumeration) const {
    const ComPtr<ITypeInfo> described = type(enumeration);
    LentType type_attributes(described.Get());
    require(described->GetTypeAttr(type_attributes.out()), "the attributes of an enumeration");
    std::vector<std::string> lines;
    for (UINT i = 0; i < type_attributes->cVars; ++i) {
        LentVariable variable(described.Get());
        require(described->GetVarDesc(i, variable.out()), "a value");
        Bstr name;
        require(described->GetDocumentation(variable->memid, name.out(), nullptr, nullptr, nullptr),
                "its name");
        lines.push_back(utf8(name.text()) + " = " + std::to_string(variable->lpvarValue->lVal));
    }
    return lines;
}

Documentation documentation(ITypeLib* library) {
    Bstr name, help;
    require(library->GetDocumentation(MEMBERID_NIL, name.out(), help.out(), nullptr, nullptr), "its name");
    return {utf8(name.text()), utf8(help.text())};
}

Documentation documentation(ITypeInfo* type) {
    Bstr name, help;
    require(type->GetDocumentation(MEMBERID_NIL, name.out(), help.out(), nullptr, nullptr),
            "the name of a type");
    return {utf8(name.text()), utf8(help.text())};
}

WORD type_flags(ITypeInfo* type) {
    LentType described(type);
    require(type->GetTypeAttr(described.out()), "the attributes of a type");
    return described->wTypeFlags;
}

} // namespace vellora::test
