// What registration tells hosts, here for one user, which needs no rights and touches nothing of the machine's.
#include "com/support/registration_test.h"

namespace vellora::test {
namespace {

class Registration : public UnregisteredTest {
protected:
    static HRESULT install(BOOL on, const wchar_t* command_line) {
        return Registrar::of_library().install(on, command_line);
    }
    static bool exists(const std::wstring& key) { return has_key(HKEY_CURRENT_USER, key); }
    static std::wstring value(const std::wstring& key, const wchar_t* name = nullptr) {
        return value_of(HKEY_CURRENT_USER, key, name);
    }
    static void put(const std::wstring& key, const std::wstring& text) { put_value(HKEY_CURRENT_USER, key, text); }
};

TEST_F(Registration, TellsHostsWhatTheyAskFor) {
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    const std::wstring key = class_key();
    const std::wstring file = value(server_key());
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(file.c_str()));
    EXPECT_EQ(L"Vellora", value(key));
    EXPECT_EQ(L"Apartment", value(server_key(), L"ThreadingModel"));
    EXPECT_EQ(L"VelloraCTL.Vellora.1", value(key + L"\\ProgID"));
    EXPECT_EQ(L"VelloraCTL.Vellora", value(key + L"\\VersionIndependentProgID"));
    EXPECT_EQ(guid_text(LIBID_VelloraCTL), value(key + L"\\TypeLib"));
    EXPECT_EQ(L"1.0", value(key + L"\\Version"));
    EXPECT_EQ(L"0", value(key + L"\\MiscStatus"));
    EXPECT_EQ(L"131473", value(key + L"\\MiscStatus\\1"));
    EXPECT_EQ(file + L", 1", value(key + L"\\ToolboxBitmap32"));
    EXPECT_TRUE(exists(key + L"\\Control"));
    EXPECT_TRUE(exists(key + L"\\Programmable"));
    EXPECT_FALSE(exists(key + L"\\Insertable"));
    EXPECT_EQ(guid_text(__uuidof(Vellora)), value(L"VelloraCTL.Vellora\\CLSID"));
    EXPECT_EQ(guid_text(__uuidof(Vellora)), value(L"VelloraCTL.Vellora.1\\CLSID"));
    EXPECT_EQ(L"VelloraCTL.Vellora.1", value(L"VelloraCTL.Vellora\\CurVer"));
    EXPECT_FALSE(exists(L"VelloraCTL.Vellora\\Insertable"));
    EXPECT_FALSE(exists(L"VelloraCTL.Vellora.1\\Insertable"));
    ComPtr<ITypeLib> library;
    EXPECT_EQ(S_OK, LoadRegTypeLib(LIBID_VelloraCTL, 1, 0, LOCALE_NEUTRAL, &library));
}

TEST_F(Registration, NamesTheBitmapToolBoxesShow) {
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    const std::wstring place = value(class_key() + L"\\ToolboxBitmap32");
    const std::size_t comma = place.rfind(L", ");
    const HMODULE file = LoadLibraryExW(place.substr(0, comma).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(nullptr, file);
    const HANDLE picture =
        LoadImageW(file, MAKEINTRESOURCEW(std::stoi(place.substr(comma + 2))), IMAGE_BITMAP, 0, 0, 0);
    BITMAP size = {};
    EXPECT_NE(0, GetObjectW(picture, sizeof size, &size));
    EXPECT_EQ(16, size.bmWidth);
    EXPECT_EQ(16, size.bmHeight);
    DeleteObject(picture);
    FreeLibrary(file);
}

/// A category of the platform's, and what a control has to answer to be in it.
struct Category {
    const wchar_t* id;
    IID interface_id;
};

TEST_F(Registration, NamesTheCategoriesTheControlIsIn) {
    const Category categories[] = {
        {L"{40FC6ED4-2438-11CF-A3DB-080036F12502}", IID_IOleControl},
        {L"{40FC6ED5-2438-11CF-A3DB-080036F12502}", IID_IDispatch},
        {L"{0DE86A52-2BAA-11CF-A229-00AA003D7352}", IID_IPersistStorage},
        {L"{0DE86A53-2BAA-11CF-A229-00AA003D7352}", IID_IPersistStreamInit},
        {L"{0DE86A55-2BAA-11CF-A229-00AA003D7352}", IID_IPersistMemory},
        {L"{0DE86A56-2BAA-11CF-A229-00AA003D7352}", IID_IPersistFile},
        {L"{0DE86A57-2BAA-11CF-A229-00AA003D7352}", IID_IPersistPropertyBag},
    };
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    const ComPtr<IUnknown> control = Library::instance().create(__uuidof(Vellora));
    for (const Category& category : categories) {
        ComPtr<IUnknown> answer;
        const bool offered =
            SUCCEEDED(control->QueryInterface(category.interface_id, reinterpret_cast<void**>(answer.GetAddressOf())));
        EXPECT_EQ(offered, exists(class_key() + L"\\Implemented Categories\\" + category.id)) << utf8(category.id);
    }
}

TEST_F(Registration, LeavesNothingBehind) {
    EXPECT_TRUE(same_lines({}, traces()));
    const ClassesSnapshot before = classes_snapshot();
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_EQ(S_OK, install(FALSE, L"user"));
    // The key of the user's classes is one of the platform's own.
    ClassesSnapshot after = classes_snapshot();
    if (!before.count(L"user"))
        after.erase(L"user");
    EXPECT_TRUE(same_lines({}, difference(before, after)));
}

TEST_F(Registration, LeavesTheMachinesAlone) {
    ASSERT_EQ(S_OK, Registrar::of_library().register_it());
    const ClassesSnapshot before = registered();
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_TRUE(same_lines({}, difference(before, registered())));
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_TRUE(same_lines({}, difference(before, registered())));
}

TEST_F(Registration, LeavesTheNameToALaterVersion) {
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    put(L"VelloraCTL.Vellora\\CurVer", L"VelloraCTL.Vellora.2");
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_TRUE(exists(L"VelloraCTL.Vellora"));
    EXPECT_FALSE(exists(L"VelloraCTL.Vellora.1"));
    remove_key(HKEY_CURRENT_USER, L"VelloraCTL.Vellora");
}

TEST_F(Registration, LeavesTheClassToAnotherFileThatTookIt) {
    ASSERT_EQ(S_OK, install(TRUE, L"user"));
    wchar_t other[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, other, MAX_PATH);
    put(server_key(), other);
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_TRUE(exists(class_key()));
    put(server_key(), L"C:\\gone\\VelloraCTL.ocx");
    ASSERT_EQ(S_OK, install(FALSE, L"user"));
    EXPECT_FALSE(exists(class_key()));
}

TEST_F(Registration, KnowsNoOtherWords) {
    EXPECT_EQ(E_INVALIDARG, install(TRUE, L"everybody"));
    EXPECT_TRUE(same_lines({}, traces()));
}

} // namespace
} // namespace vellora::test
