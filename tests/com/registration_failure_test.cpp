// Registration that is not allowed, or that fails half-way, leaves the registry as it was.
#include "com/support/registration_test.h"

namespace vellora::test {
namespace {

constexpr wchar_t classes[] = L"Software\\Classes\\";
constexpr wchar_t program_id[] = L"VelloraCTL.Vellora.1";

using FailingRegistration = UnregisteredTest;

/// A key nothing lasting can be put below, as long as the object lives.
class VolatileKey {
public:
    explicit VolatileKey(HKEY root, const std::wstring& path = program_id) : root_(root), path_(classes + path) {
        HKEY key = nullptr;
        EXPECT_EQ(ERROR_SUCCESS, RegCreateKeyExW(root_, path_.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS,
                                                 nullptr, &key, nullptr));
        RegCloseKey(key);
    }
    VolatileKey(const VolatileKey&) = delete;
    VolatileKey& operator=(const VolatileKey&) = delete;
    ~VolatileKey() { RegDeleteTreeW(root_, path_.c_str()); }

private:
    HKEY root_;
    std::wstring path_;
};

/// Lets everybody read the key and nobody write it, as long as the object lives.
class ReadOnlyKey {
public:
    ReadOnlyKey(HKEY root, const std::wstring& path) {
        EXPECT_EQ(ERROR_SUCCESS, RegOpenKeyExW(root, (classes + path).c_str(), 0, KEY_ALL_ACCESS, &key_));
        allow(KEY_READ | WRITE_DAC);
    }
    ReadOnlyKey(const ReadOnlyKey&) = delete;
    ReadOnlyKey& operator=(const ReadOnlyKey&) = delete;
    ~ReadOnlyKey() {
        allow(KEY_ALL_ACCESS);
        RegCloseKey(key_);
    }

private:
    void allow(DWORD access) {
        SID everyone = {SID_REVISION, 1, SECURITY_WORLD_SID_AUTHORITY, {SECURITY_WORLD_RID}};
        alignas(ACL) BYTE room[128] = {};
        auto* const list = reinterpret_cast<ACL*>(room);
        EXPECT_TRUE(InitializeAcl(list, sizeof room, ACL_REVISION));
        EXPECT_TRUE(AddAccessAllowedAce(list, ACL_REVISION, access, &everyone));
        SECURITY_DESCRIPTOR descriptor = {};
        EXPECT_TRUE(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION));
        EXPECT_TRUE(SetSecurityDescriptorDacl(&descriptor, TRUE, list, FALSE));
        EXPECT_EQ(ERROR_SUCCESS, RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION, &descriptor));
    }

    HKEY key_ = nullptr;
};

TEST_F(FailingRegistration, TakesBackWhatWasWritten) {
    {
        const VolatileKey obstacle(HKEY_CURRENT_USER);
        EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE), Registrar::of_library().install(TRUE, L"user"));
        EXPECT_FALSE(has_key(HKEY_CURRENT_USER, class_key()));
    }
    {
        const VolatileKey obstacle(HKEY_LOCAL_MACHINE);
        EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE), Registrar::of_library().register_it());
        EXPECT_FALSE(has_key(HKEY_LOCAL_MACHINE, class_key()));
    }
    EXPECT_TRUE(same_lines({}, traces()));
}

// Half of one copy and half of another would be nobody's to take back.
TEST_F(FailingRegistration, TakesBackAllOfAClassThatAnotherCopyHad) {
    const LibraryCopy other(L"other");
    ASSERT_EQ(S_OK, other.registrar().register_it());
    const std::wstring key = class_key() + L"\\MiscStatus";
    remove_key(HKEY_LOCAL_MACHINE, key);
    {
        const VolatileKey obstacle(HKEY_LOCAL_MACHINE, key);
        EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE), Registrar::of_library().register_it());
        EXPECT_FALSE(has_key(HKEY_LOCAL_MACHINE, class_key()));
    }
    EXPECT_EQ(S_OK, other.registrar().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

TEST_F(FailingRegistration, WithoutTheRightsChangesNothing) {
    ASSERT_EQ(S_OK, Registrar::of_library().register_it());
    const ClassesSnapshot before = registered();
    {
        const ReadOnlyKey denied(HKEY_LOCAL_MACHINE, class_key());
        EXPECT_EQ(E_ACCESSDENIED, Registrar::of_library().register_it());
        EXPECT_TRUE(same_lines({}, difference(before, registered())));
    }
    EXPECT_EQ(S_OK, Registrar::of_library().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

} // namespace
} // namespace vellora::test
