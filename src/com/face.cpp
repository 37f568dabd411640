#include "com/face.h"

#include "com/control_host.h"

#include <memory>
#include <new>
#include <type_traits>

namespace vellora::com {

namespace {

/// Puts a device context back as it was found.
class SavedContext {
public:
    explicit SavedContext(HDC dc) : dc_(dc), level_(SaveDC(dc)) {}
    SavedContext(const SavedContext&) = delete;
    SavedContext& operator=(const SavedContext&) = delete;
    ~SavedContext() { RestoreDC(dc_, level_); }

private:
    HDC dc_;
    int level_;
};

struct MetafileDeleter {
    void operator()(HMETAFILE metafile) const noexcept { DeleteMetaFile(metafile); }
};
using MetafileOwner = std::unique_ptr<std::remove_pointer_t<HMETAFILE>, MetafileDeleter>;

bool records(HDC dc) {
    const DWORD type = GetObjectType(dc);
    return type == OBJ_METADC || type == OBJ_ENHMETADC;
}

void use_pixels(HDC dc, RECT& bounds) {
    LPtoDP(dc, reinterpret_cast<POINT*>(&bounds), 2);
    SetMapMode(dc, MM_TEXT);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    SetViewportOrgEx(dc, 0, 0, nullptr);
}

/// In a metafile one unit is a pixel of the control, whatever size it is played at.
void use_control_pixels(HDC dc, const SIZE& size) {
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    SetWindowExtEx(dc, size.cx, size.cy, nullptr);
}

MetafileOwner record_metafile(ControlHost& host, const SIZE& size) {
    const HDC dc = CreateMetaFileW(nullptr);
    if (!dc)
        throw std::bad_alloc();
    use_control_pixels(dc, size);
    const HRESULT drawn = guard([&] { host.client().draw(dc, {0, 0, size.cx, size.cy}); });
    MetafileOwner metafile(CloseMetaFile(dc));
    check(drawn);
    return metafile;
}

} // namespace

void draw_face(ControlHost& host, HDC dc, const RECT& bounds) {
    host.ensure_initialised();
    const SavedContext saved(dc);
    RECT place = bounds;
    if (!records(dc))
        use_pixels(dc, place);
    host.client().draw(dc, place);
}

HENHMETAFILE make_enhanced_metafile(ControlHost& host) {
    const SIZEL extent = host.extent().himetric();
    const RECT frame = {0, 0, extent.cx, extent.cy};
    const HDC dc = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
    if (!dc)
        throw std::bad_alloc();
    const SIZE size = host.extent().pixels();
    const HRESULT drawn = guard([&] { host.client().draw(dc, {0, 0, size.cx, size.cy}); });
    const HENHMETAFILE metafile = CloseEnhMetaFile(dc);
    if (FAILED(drawn))
        DeleteEnhMetaFile(metafile);
    check(drawn);
    return metafile;
}

HGLOBAL make_metafile_picture(ControlHost& host) {
    MetafileOwner metafile = record_metafile(host, host.extent().pixels());
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT));
    const auto picture = memory ? static_cast<METAFILEPICT*>(GlobalLock(memory)) : nullptr;
    if (!picture)
        throw std::bad_alloc();
    const SIZEL extent = host.extent().himetric();
    *picture = {MM_ANISOTROPIC, extent.cx, extent.cy, metafile.release()};
    GlobalUnlock(memory);
    return memory;
}

} // namespace vellora::com
