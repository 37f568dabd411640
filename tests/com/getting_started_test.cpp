// The code of docs/getting-started/cpp.md. What stands between a name in brackets and [end] is copied into the page by
// tools/reference.py.
#include "com/support/host_test.h"
#include "support/container/library.h"
#include "support/container/text.h"

#include <ocidl.h>

namespace vellora::test {
namespace {

// [fill]
void add_row(_Vellora* Vellora1, const wchar_t* code, const wchar_t* country) {
    SAFEARRAY* cells = SafeArrayCreateVector(VT_BSTR, 0, 2);
    BSTR* texts = nullptr;
    SafeArrayAccessData(cells, reinterpret_cast<void**>(&texts));
    texts[0] = SysAllocString(code);
    texts[1] = SysAllocString(country);
    SafeArrayUnaccessData(cells);
    VARIANT row;
    VariantInit(&row);
    row.vt = VT_ARRAY | VT_BSTR;
    row.parray = cells;
    Vellora1->AddItem(row, -1);
    VariantClear(&row);
}

void fill(_Vellora* Vellora1) {
    Vellora1->put_Columns(2);
    Vellora1->put_TextColumn(2);
    Vellora1->put_AutoSize(vlContents);
    add_row(Vellora1, L"CH", L"Switzerland");
    add_row(Vellora1, L"NZ", L"New Zealand");
    add_row(Vellora1, L"PE", L"Peru");
}
// [end]

// [events]
/// Lives at least as long as its connection, so it counts no references.
class Events final : public IDispatch {
public:
    int clicks = 0;

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        if (event == 2) // Click
            ++clicks;
        return S_OK;
    }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(__Vellora);
        *object = known ? static_cast<IDispatch*>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
};
// [end]

// [connect]
/// Listens until the connection point is told Unadvise(cookie).
ComPtr<IConnectionPoint> listen(_Vellora* Vellora1, Events& events, DWORD& cookie) {
    ComPtr<IConnectionPointContainer> points;
    ComPtr<IConnectionPoint> point;
    Vellora1->QueryInterface(IID_PPV_ARGS(&points));
    points->FindConnectionPoint(__uuidof(__Vellora), &point);
    point->Advise(&events, &cookie);
    return point;
}
// [end]

// [save]
HRESULT save(_Vellora* Vellora1, IStream* stream) {
    ComPtr<IPersistStreamInit> settings;
    const HRESULT result = Vellora1->QueryInterface(IID_PPV_ARGS(&settings));
    return FAILED(result) ? result : settings->Save(stream, TRUE);
}

HRESULT load(_Vellora* Vellora1, IStream* stream) {
    ComPtr<IPersistStreamInit> settings;
    const HRESULT result = Vellora1->QueryInterface(IID_PPV_ARGS(&settings));
    return FAILED(result) ? result : settings->Load(stream);
}
// [end]

class GettingStarted : public HostTest {
protected:
    void SetUp() override {
        control_ = vellora(place());
        fill(control_.Get());
    }

    ComPtr<_Vellora> control_;
};

TEST_F(GettingStarted, ThreeRowsAreThere) {
    long rows = 0;
    ASSERT_EQ(S_OK, control_->get_ListCount(&rows));
    EXPECT_EQ(3, rows);
}

TEST_F(GettingStarted, AChoiceIsHeardOfUntilTheEnd) {
    Events events;
    DWORD cookie = 0;
    const ComPtr<IConnectionPoint> point = listen(control_.Get(), events, cookie);
    ASSERT_EQ(S_OK, control_->put_ListIndex(1));
    EXPECT_EQ(1, events.clicks);
    Bstr text;
    ASSERT_EQ(S_OK, control_->get_Text(text.out()));
    EXPECT_EQ(L"New Zealand", text.text());
    ASSERT_EQ(S_OK, point->Unadvise(cookie));
    ASSERT_EQ(S_OK, control_->put_ListIndex(2));
    EXPECT_EQ(1, events.clicks);
}

TEST_F(GettingStarted, SettingsGoFromOneControlToAnother) {
    ComPtr<IStream> stream;
    ASSERT_EQ(S_OK, CreateStreamOnHGlobal(nullptr, TRUE, &stream));
    ASSERT_EQ(S_OK, save(control_.Get(), stream.Get()));
    ASSERT_EQ(S_OK, stream->Seek({}, STREAM_SEEK_SET, nullptr));
    ComPtr<IClassFactory> factory;
    ComPtr<_Vellora> other;
    ASSERT_EQ(S_OK, Library::instance().class_object(__uuidof(Vellora), IID_PPV_ARGS(&factory)));
    ASSERT_EQ(S_OK, factory->CreateInstance(nullptr, IID_PPV_ARGS(&other)));
    ASSERT_EQ(S_OK, load(other.Get(), stream.Get()));
    short columns = 0;
    ASSERT_EQ(S_OK, other->get_Columns(&columns));
    EXPECT_EQ(2, columns);
}

} // namespace
} // namespace vellora::test
