#include "support/container/clipboard.h"

#include <windows.h>

#include <cstring>
#include <stdexcept>

namespace vellora::test {
namespace {

class OpenedClipboard {
public:
    OpenedClipboard() {
        if (!OpenClipboard(nullptr))
            throw std::runtime_error("somebody else has the clipboard open");
    }
    ~OpenedClipboard() { CloseClipboard(); }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

} // namespace

std::wstring clipboard_text() {
    const OpenedClipboard opened;
    const HANDLE handle = GetClipboardData(CF_UNICODETEXT);
    const auto* text = static_cast<const wchar_t*>(handle ? GlobalLock(handle) : nullptr);
    const std::wstring result = text ? text : L"";
    if (text)
        GlobalUnlock(handle);
    return result;
}

void set_clipboard_text(const std::wstring& text) {
    const OpenedClipboard opened;
    EmptyClipboard();
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(GlobalLock(memory), text.c_str(), bytes);
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory); // which owns the memory from here on
}

} // namespace vellora::test
