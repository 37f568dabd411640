// A host's image list object, reached by name only: `hImageList` for the handle and `ListImages` for a
// collection whose items are found by key or by place and have `Index` and `Key`.
#pragma once

#include "support/container/named_dispatch.h"

#include <functional>
#include <string>
#include <vector>
#include <windows.h>

#include <commctrl.h>
#include <wrl/client.h>

namespace vellora::test {

class ImageListObject {
public:
    /// Squares of `size` pixels with a border; `colors` gives one image each, `keys` their keys.
    ImageListObject(int size, std::vector<std::wstring> keys, const std::vector<COLORREF>& colors);
    /// Takes images that are there, and owns them from now on.
    ImageListObject(HIMAGELIST images, std::vector<std::wstring> keys);
    ~ImageListObject();
    ImageListObject(const ImageListObject&) = delete;
    ImageListObject& operator=(const ImageListObject&) = delete;

    Microsoft::WRL::ComPtr<IDispatch> object() const { return object_; }
    HIMAGELIST images() const { return images_; }
    /// The last reference of the test's own goes; whoever else holds the object keeps it.
    void release() { object_.Reset(); }

    /// What the properties answer instead of the truth, while it is set.
    std::function<Variant()> handle;
    std::function<Variant()> collection;
    std::function<Variant(const Variant& key)> item;
    std::vector<std::wstring> keys;

    /// Ends the image list under everybody's hands.
    void destroy_images();
    void replace_images(int size, const std::vector<COLORREF>& colors);

private:
    Variant find(const Variant& key) const;
    Variant item_at(std::size_t place) const;

    HIMAGELIST images_ = nullptr;
    Microsoft::WRL::ComPtr<NamedDispatch> list_images_{new NamedDispatch};
    Microsoft::WRL::ComPtr<IDispatch> object_;
};

} // namespace vellora::test
