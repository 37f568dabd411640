// Watches a form by subclassing it and the windows around it.
#pragma once

#include "widgets/form_watch.h"

#include <windows.h>

#include <vector>

namespace vellora::win32 {

class FormWatchPeer final : public FormWatch {
public:
    FormWatchPeer() = default;
    ~FormWatchPeer() override { stop(); }
    FormWatchPeer(const FormWatchPeer&) = delete;
    FormWatchPeer& operator=(const FormWatchPeer&) = delete;

    void listen(FormWatchListener* listener) override { listener_ = listener; }
    void watch(WindowHandle form) override;
    void stop() override;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                      DWORD_PTR watch) noexcept;
    UINT_PTR id() const { return reinterpret_cast<UINT_PTR>(this); }
    void tell() const;

    std::vector<HWND> windows_;
    FormWatchListener* listener_ = nullptr;
};

} // namespace vellora::win32
