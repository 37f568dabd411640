// The host's image list object. Hosts have different ones, so it is asked by name: `hImageList` for the
// handle, `ListImages` for the collection whose items have a place and a key.
#pragma once

#include "com/ole.h"
#include "widgets/win32/native_image_list.h"

namespace vellora::server {

/// An object that fails to answer has no images at the moment.
class HostImageList final : public win32::NativeImageList {
public:
    explicit HostImageList(com::ComPtr<IDispatch> object) : object_(std::move(object)) {}

    com::ComPtr<IDispatch> dispatch() const { return object_; }

    bool is_image_list() const override;
    std::optional<std::int32_t> image(std::u16string_view key) const override;
    HIMAGELIST handle() const override;

private:
    com::ComPtr<IDispatch> object_;
};

} // namespace vellora::server
