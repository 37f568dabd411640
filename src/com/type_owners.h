// Owners of the descriptions that type information lends out.
#pragma once

#include "com/guard.h"
#include "com/ole.h"

namespace vellora::com {

class TypeAttributes {
public:
    explicit TypeAttributes(ITypeInfo* type) : type_(type) { check(type->GetTypeAttr(&attributes_)); }
    TypeAttributes(const TypeAttributes&) = delete;
    TypeAttributes& operator=(const TypeAttributes&) = delete;
    ~TypeAttributes() { type_->ReleaseTypeAttr(attributes_); }
    const TYPEATTR* operator->() const noexcept { return attributes_; }

private:
    ITypeInfo* type_;
    TYPEATTR* attributes_ = nullptr;
};

class FunctionDescription {
public:
    FunctionDescription(ITypeInfo* type, UINT index) : type_(type) {
        check(type->GetFuncDesc(index, &function_));
    }
    FunctionDescription(const FunctionDescription&) = delete;
    FunctionDescription& operator=(const FunctionDescription&) = delete;
    ~FunctionDescription() { type_->ReleaseFuncDesc(function_); }
    const FUNCDESC& operator*() const noexcept { return *function_; }

private:
    ITypeInfo* type_;
    FUNCDESC* function_ = nullptr;
};

class VariableDescription {
public:
    VariableDescription(ITypeInfo* type, UINT index) : type_(type) {
        check(type->GetVarDesc(index, &variable_));
    }
    VariableDescription(const VariableDescription&) = delete;
    VariableDescription& operator=(const VariableDescription&) = delete;
    ~VariableDescription() { type_->ReleaseVarDesc(variable_); }
    const VARDESC* operator->() const noexcept { return variable_; }

private:
    ITypeInfo* type_;
    VARDESC* variable_ = nullptr;
};

} // namespace vellora::com
