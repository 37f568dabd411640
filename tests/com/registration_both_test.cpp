// The 32-bit and the 64-bit library registered beside each other, on a platform that runs both.
#include "com/support/registration_test.h"

#ifdef _WIN64

namespace vellora::test {
namespace {

constexpr wchar_t narrow_regsvr32[] = L"C:\\windows\\syswow64\\regsvr32.exe";

bool exists(const std::wstring& file) {
    return GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES;
}

class BothBitnesses : public UnregisteredTest {
protected:
    void SetUp() override {
        if (!possible())
            GTEST_SKIP() << "there is no 32-bit half of the platform, or no 32-bit library in dist/x86";
    }
    ~BothBitnesses() override {
        if (possible())
            run_narrow(L"/u ");
    }

    static bool possible() { return exists(narrow_regsvr32) && exists(narrow()); }
    static std::wstring narrow() {
        std::wstring path = Library::instance().path();
        const std::size_t folder = path.rfind(L"\\x64\\");
        return path.replace(folder, 5, L"\\x86\\");
    }
    /// regsvr32's exit code.
    static DWORD run_narrow(const std::wstring& options) {
        return run_program(std::wstring(narrow_regsvr32) + L" /s " + options + L"\"" + narrow() + L"\"");
    }
    static std::wstring narrow_server() { return value_of(HKEY_LOCAL_MACHINE, L"Wow6432Node\\" + server_key()); }
    static std::wstring value(const std::wstring& key) { return value_of(HKEY_LOCAL_MACHINE, key); }
    static bool has(const std::wstring& key) { return has_key(HKEY_LOCAL_MACHINE, key); }
};

TEST_F(BothBitnesses, StandBesideEachOther) {
    ASSERT_EQ(0U, run_narrow(L""));
    ASSERT_EQ(S_OK, Registrar::of_library().register_it());
    EXPECT_EQ(narrow(), narrow_server());
    EXPECT_EQ(narrow(), value(other_type_library()));
    EXPECT_EQ(Library::instance().path(), value(server_key()));
    EXPECT_EQ(Library::instance().path(), value(own_type_library()));
    EXPECT_NO_THROW(create_registered(__uuidof(Vellora)));
}

TEST_F(BothBitnesses, The64BitOneLeavesTheOtherWhatItNeeds) {
    ASSERT_EQ(0U, run_narrow(L""));
    ASSERT_EQ(S_OK, Registrar::of_library().register_it());
    ASSERT_EQ(S_OK, Registrar::of_library().unregister_it());
    EXPECT_FALSE(has(class_key()));
    EXPECT_FALSE(has(own_type_library()));
    EXPECT_EQ(narrow(), narrow_server());
    EXPECT_EQ(narrow(), value(other_type_library()));
    EXPECT_TRUE(has(L"Wow6432Node\\" + interface_key()));
    EXPECT_TRUE(has(L"VelloraCTL.Vellora"));
    ASSERT_EQ(0U, run_narrow(L"/u "));
    EXPECT_TRUE(same_lines({}, traces()));
}

TEST_F(BothBitnesses, The32BitOneLeavesTheOtherWhatItNeeds) {
    ASSERT_EQ(S_OK, Registrar::of_library().register_it());
    ASSERT_EQ(0U, run_narrow(L""));
    ASSERT_EQ(0U, run_narrow(L"/u "));
    EXPECT_FALSE(has(L"Wow6432Node\\" + class_key()));
    EXPECT_FALSE(has(other_type_library()));
    EXPECT_EQ(Library::instance().path(), value(own_type_library()));
    EXPECT_TRUE(has(interface_key()));
    EXPECT_TRUE(has(L"VelloraCTL.Vellora"));
    EXPECT_NO_THROW(create_registered(__uuidof(Vellora)));
    ASSERT_EQ(S_OK, Registrar::of_library().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

} // namespace
} // namespace vellora::test

#endif
