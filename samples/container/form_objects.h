// Objects of a control, such as fonts and pictures, between life and a form.
#pragma once

#include "form_text.h"

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

/// A font by name, written here, as not every platform's font does that itself; null for any other object.
std::shared_ptr<FormObject> saved_font(IUnknown* object);
/// The record of an object that saves itself as a whole. Throws a FormValueError for one that does not.
FormBlob saved_record(IUnknown* object);

/// The class of an object that saves itself by name, to begin with.
FormObject object_of(IPersistPropertyBag* object);

/// Throws a FormValueError for a record of another program, or a class that is not there.
Microsoft::WRL::ComPtr<IUnknown> loaded_record(const FormBlob& record);
/// Fills an object of the class from `settings`. Throws a FormValueError.
Microsoft::WRL::ComPtr<IUnknown> loaded_object(const FormObject& object, IPropertyBag* settings, IErrorLog* log);

} // namespace vellora::samples
