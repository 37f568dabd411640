#include "form_font.h"

#include "failure.h"
#include "screen.h"

#include <cstdlib>
#include <olectl.h>

namespace vellora::samples {

namespace {

LOGFONTW message_font() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics.lfMessageFont;
}

} // namespace

FormFont::FormFont() : look_(message_font()), handle_(CreateFontIndirectW(&look_)) {}

Microsoft::WRL::ComPtr<IFontDisp> FormFont::object() const {
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<wchar_t*>(look_.lfFaceName);
    // Ten-thousandths of a point; an inch has 72 points.
    description.cySize.int64 = 10000LL * 72 * std::abs(look_.lfHeight) / resolution();
    description.sWeight = static_cast<SHORT>(look_.lfWeight);
    description.sCharset = look_.lfCharSet;
    Microsoft::WRL::ComPtr<IFontDisp> font;
    check(OleCreateFontIndirect(&description, IID_PPV_ARGS(&font)), L"Making the form's font");
    return font;
}

int FormFont::height() const {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, handle_);
    TEXTMETRICW metrics{};
    GetTextMetricsW(screen, &metrics);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return metrics.tmHeight;
}

} // namespace vellora::samples
