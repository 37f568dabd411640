// What this library is made of: the one control it offers, and who makes it.
#include "server/module.h"
#include "server/property_pages.h"
#include "server/vellora_client.h"

namespace vellora::server {

namespace {

std::unique_ptr<com::ControlClient> make_vellora(com::ControlHost& host) {
    return std::make_unique<VelloraClient>(host);
}

constexpr int toolbox_bitmap = 1;

} // namespace

const Module& module() noexcept {
    static const Module vellora{u"VelloraCTL",
                                LIBID_VelloraCTL,
                                1,
                                0,
                                {CLSID_Vellora, IID__Vellora, DIID___Vellora, L"Vellora", property_pages()},
                                L"VelloraCTL.Vellora",
                                L"VelloraCTL.Vellora.1",
                                toolbox_bitmap,
                                make_vellora};
    return vellora;
}

} // namespace vellora::server
