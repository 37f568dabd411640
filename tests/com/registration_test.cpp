// Registration for one user, which needs no rights and touches nothing of the machine's.
#include "com/support/host_test.h"
#include "support/container/library.h"
#include "support/container/text.h"

namespace vellora::test {
namespace {

constexpr wchar_t classes[] = L"Software\\Classes\\";

class Registration : public testing::Test {
protected:
    ~Registration() override {
        install(FALSE, L"user");
        // Wine keeps one registration of the type library for all users: where the library is registered for
        // the machine, it is so again afterwards.
        if (exists(HKEY_LOCAL_MACHINE, class_key()))
            install(TRUE, nullptr);
    }

    static HRESULT install(BOOL on, const wchar_t* command_line) {
        using Install = HRESULT(WINAPI*)(BOOL, LPCWSTR);
        const HMODULE library = GetModuleHandleW(Library::instance().path().c_str());
        const auto entry =
            reinterpret_cast<Install>(reinterpret_cast<void*>(GetProcAddress(library, "DllInstall")));
        return entry ? entry(on, command_line) : E_NOINTERFACE;
    }
    static std::wstring class_key() { return L"CLSID\\" + guid_text(__uuidof(Vellora)); }
    static std::wstring guid_text(REFGUID id) {
        wchar_t text[39] = {};
        StringFromGUID2(id, text, 39);
        return text;
    }
    static bool exists(const std::wstring& key) { return exists(HKEY_CURRENT_USER, key); }
    static bool exists(HKEY root, const std::wstring& key) {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(root, (classes + key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
            return false;
        RegCloseKey(opened);
        return true;
    }
    static std::wstring value(const std::wstring& key, const wchar_t* name = nullptr) {
        wchar_t text[1024] = {};
        DWORD size = sizeof text;
        const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, (classes + key).c_str(), name, RRF_RT_REG_SZ,
                                            nullptr, text, &size);
        return status == ERROR_SUCCESS ? text : L"absent";
    }
    static void put(const std::wstring& key, const std::wstring& text) {
        const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        EXPECT_EQ(ERROR_SUCCESS, RegSetKeyValueW(HKEY_CURRENT_USER, (classes + key).c_str(), nullptr, REG_SZ,
                                                 text.c_str(), bytes));
    }
};

TEST_F(Registration, TellsHostsWhatTheyAskFor) {
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    const std::wstring key = class_key();
    const std::wstring file = value(key + L"\\InprocServer32");
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(file.c_str()));
    EXPECT_EQ(L"Apartment", value(key + L"\\InprocServer32", L"ThreadingModel"));
    EXPECT_EQ(L"VelloraCTL.Vellora.1", value(key + L"\\ProgID"));
    EXPECT_EQ(L"VelloraCTL.Vellora", value(key + L"\\VersionIndependentProgID"));
    EXPECT_EQ(guid_text(LIBID_VelloraCTL), value(key + L"\\TypeLib"));
    EXPECT_EQ(L"1.0", value(key + L"\\Version"));
    EXPECT_EQ(L"131473", value(key + L"\\MiscStatus\\1"));
    EXPECT_EQ(file + L", 1", value(key + L"\\ToolboxBitmap32"));
    EXPECT_TRUE(exists(key + L"\\Control"));
    EXPECT_FALSE(exists(key + L"\\Insertable"));
    EXPECT_TRUE(exists(key + L"\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}"));
    EXPECT_EQ(guid_text(__uuidof(Vellora)), value(L"VelloraCTL.Vellora\\CLSID"));
    EXPECT_EQ(L"VelloraCTL.Vellora.1", value(L"VelloraCTL.Vellora\\CurVer"));
    ComPtr<ITypeLib> library;
    EXPECT_EQ(S_OK, LoadRegTypeLib(LIBID_VelloraCTL, 1, 0, LOCALE_NEUTRAL, &library));
}

TEST_F(Registration, LeavesNothingBehind) {
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_FALSE(exists(class_key()));
    EXPECT_FALSE(exists(L"VelloraCTL.Vellora"));
    EXPECT_FALSE(exists(L"VelloraCTL.Vellora.1"));
    EXPECT_EQ(S_OK, install(FALSE, L"user"));
}

TEST_F(Registration, LeavesTheNameToALaterVersion) {
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    put(L"VelloraCTL.Vellora\\CurVer", L"VelloraCTL.Vellora.2");
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_TRUE(exists(L"VelloraCTL.Vellora"));
    EXPECT_FALSE(exists(L"VelloraCTL.Vellora.1"));
    RegDeleteTreeW(HKEY_CURRENT_USER, (std::wstring(classes) + L"VelloraCTL.Vellora").c_str());
}

TEST_F(Registration, LeavesTheClassToAnotherFileThatTookIt) {
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    const std::wstring server = class_key() + L"\\InprocServer32";
    wchar_t other[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, other, MAX_PATH);
    put(server, other);
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_TRUE(exists(class_key()));
    put(server, L"C:\\gone\\VelloraCTL.ocx");
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_FALSE(exists(class_key()));
}

TEST_F(Registration, KnowsNoOtherWords) {
    EXPECT_EQ(E_INVALIDARG, install(TRUE, L"everybody"));
    EXPECT_FALSE(exists(class_key()));
}

} // namespace
} // namespace vellora::test
