// The control in a program that brings the library along: nothing is registered, the shipped manifest says it all.
#include "com/support/registration_test.h"

#include <cstdio>
#include <thread>

namespace vellora::test {
namespace {

/// What the calling thread's program is made of, as its manifest has it.
class ActivationContext {
public:
    explicit ActivationContext(const std::wstring& manifest) {
        ACTCTXW wanted = {};
        wanted.cbSize = sizeof wanted;
        wanted.lpSource = manifest.c_str();
        handle_ = CreateActCtxW(&wanted);
        EXPECT_NE(INVALID_HANDLE_VALUE, handle_) << GetLastError();
    }
    ActivationContext(const ActivationContext&) = delete;
    ActivationContext& operator=(const ActivationContext&) = delete;
    ~ActivationContext() { ReleaseActCtx(handle_); }

    HANDLE handle() const noexcept { return handle_; }

private:
    HANDLE handle_;
};

class ActivatedContext {
public:
    explicit ActivatedContext(const ActivationContext& context) {
        EXPECT_TRUE(ActivateActCtx(context.handle(), &cookie_)) << GetLastError();
    }
    ActivatedContext(const ActivatedContext&) = delete;
    ActivatedContext& operator=(const ActivatedContext&) = delete;
    ~ActivatedContext() { DeactivateActCtx(0, cookie_); }

private:
    ULONG_PTR cookie_ = 0;
};

constexpr char program_manifest[] = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <dependency>
    <dependentAssembly>
      <assemblyIdentity type="win32" name="VelloraCTL" version="%s" processorArchitecture="%s"/>
    </dependentAssembly>
  </dependency>
</assembly>
)";

/// A program's folder with the library in it, and what the program's own manifest says about it.
class ProgramFolder {
public:
    ProgramFolder() {
        const std::wstring shipped = Library::instance().path();
        library_ = folder_.take(shipped);
        folder_.take(shipped.substr(0, shipped.rfind(L'.')) + L".manifest");
        manifest_ = folder_.path() + L"\\program.exe.manifest";
        FILE* const file = _wfopen(manifest_.c_str(), L"wb");
        std::fprintf(file, program_manifest, VELLORA_VERSION ".0", sizeof(void*) == 8 ? "amd64" : "x86");
        std::fclose(file);
    }
    const std::wstring& library() const noexcept { return library_; }
    const std::wstring& manifest() const noexcept { return manifest_; }

private:
    TemporaryFolder folder_{L"program"};
    std::wstring library_;
    std::wstring manifest_;
};

class WithoutRegistration : public UnregisteredTest {
protected:
    void expect_library_from_folder() const { EXPECT_NE(nullptr, GetModuleHandleW(program_.library().c_str())); }

    // In this order: what is active ends before its folder goes.
    ProgramFolder program_;
    ActivationContext context_{program_.manifest()};
    ActivatedContext active_{context_};
};

TEST_F(WithoutRegistration, TheClassIsFoundByItsNames) {
    for (const wchar_t* name : {L"VelloraCTL.Vellora", L"VelloraCTL.Vellora.1"}) {
        CLSID found = {};
        // The class may have another identifier inside the context.
        EXPECT_EQ(S_OK, CLSIDFromProgID(name, &found)) << utf8(name);
        ComPtr<_Vellora> control;
        EXPECT_EQ(S_OK, CoCreateInstance(found, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control)));
    }
    expect_library_from_folder();
    wchar_t* name = nullptr;
    EXPECT_EQ(S_OK, ProgIDFromCLSID(__uuidof(Vellora), &name));
    EXPECT_STREQ(L"VelloraCTL.Vellora.1", name);
    CoTaskMemFree(name);
    EXPECT_TRUE(same_lines({}, traces()));
}

TEST_F(WithoutRegistration, ContainersLearnHowToTreatTheControl) {
    const ComPtr<IUnknown> control = create_registered(__uuidof(Vellora));
    ComPtr<IOleObject> object;
    ASSERT_EQ(S_OK, control.As(&object));
    DWORD answered = 0;
    DWORD written = 0;
    EXPECT_EQ(S_OK, object->GetMiscStatus(DVASPECT_CONTENT, &answered));
    EXPECT_EQ(S_OK, OleRegGetMiscStatus(__uuidof(Vellora), DVASPECT_CONTENT, &written));
    EXPECT_EQ(answered, written);
}

TEST_F(WithoutRegistration, TheTypeLibraryIsFound) {
    Bstr path;
    EXPECT_EQ(S_OK, QueryPathOfRegTypeLib(LIBID_VelloraCTL, 1, 0, LOCALE_NEUTRAL, path.out()));
    EXPECT_EQ(program_.library(), path.text().substr(0, path.text().find(L'\0')));
    ComPtr<ITypeLib> library;
    EXPECT_EQ(S_OK, LoadRegTypeLib(LIBID_VelloraCTL, 1, 0, LOCALE_NEUTRAL, &library));
}

TEST_F(WithoutRegistration, TheControlStandsOnAFormAndRaisesEvents) {
    Container container(bare_form());
    Site& site = container.add_site(L"Vellora1", {20, 20, 220, 44});
    site.take(create_registered(__uuidof(Vellora)));
    expect_library_from_folder();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.init_new());
    site.set_extent();
    ASSERT_EQ(S_OK, site.listen());
    ASSERT_EQ(S_OK, site.activate());
    const auto control = site.as<_Vellora>();
    ASSERT_EQ(S_OK, control->put_Text(Bstr(L"Basel").get()));
    EXPECT_EQ(1, site.events().count("Change"));
    Bstr text;
    EXPECT_EQ(S_OK, control->get_Text(text.out()));
    EXPECT_EQ(L"Basel", text.text());
}

/// Handles messages, so calls from other threads too, until the object is signalled.
void pump_until(HANDLE object) {
    while (MsgWaitForMultipleObjects(1, &object, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
        MSG message = {};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
    }
}

TEST_F(WithoutRegistration, OtherThreadsReachTheControl) {
    ComPtr<_Vellora> control;
    ASSERT_EQ(S_OK, CoCreateInstance(__uuidof(Vellora), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control)));
    short here = 0;
    ASSERT_EQ(S_OK, control->get_Columns(&here));
    ComPtr<IStream> stream;
    ASSERT_EQ(S_OK, CoMarshalInterThreadInterfaceInStream(__uuidof(_Vellora), control.Get(), &stream));
    const HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HRESULT reached = E_FAIL;
    HRESULT called = E_FAIL;
    short there = -1;
    std::thread other([&] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        {
            const ActivatedContext active(context_);
            ComPtr<_Vellora> proxy;
            reached = CoGetInterfaceAndReleaseStream(stream.Detach(), IID_PPV_ARGS(&proxy));
            if (SUCCEEDED(reached))
                called = proxy->get_Columns(&there);
        }
        CoUninitialize();
        SetEvent(done);
    });
    pump_until(done);
    other.join();
    CloseHandle(done);
    EXPECT_EQ(S_OK, reached);
    EXPECT_EQ(S_OK, called);
    EXPECT_EQ(here, there);
}

} // namespace
} // namespace vellora::test
