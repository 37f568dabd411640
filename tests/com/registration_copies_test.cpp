// Registration for the machine: it leaves nothing, and copies of the library beside each other are safe.
#include "com/support/registration_test.h"

namespace vellora::test {
namespace {

class RegistrationForTheMachine : public UnregisteredTest {
protected:
    static std::wstring value(const std::wstring& key) { return value_of(HKEY_LOCAL_MACHINE, key); }
    static bool exists(const std::wstring& key) { return has_key(HKEY_LOCAL_MACHINE, key); }
    static const Registrar library() { return Registrar::of_library(); }
};

TEST_F(RegistrationForTheMachine, LeavesNothingBehind) {
    EXPECT_TRUE(same_lines({}, traces()));
    const ClassesSnapshot before = classes_snapshot();
    ASSERT_EQ(S_OK, library().register_it());
    EXPECT_EQ(value(own_type_library()), value(server_key()));
    EXPECT_TRUE(exists(interface_key()));
    ASSERT_EQ(S_OK, library().unregister_it());
    EXPECT_TRUE(same_lines({}, difference(before, classes_snapshot())));
}

TEST_F(RegistrationForTheMachine, ChangesNothingTheSecondTime) {
    ASSERT_EQ(S_OK, library().register_it());
    const ClassesSnapshot before = registered();
    ASSERT_EQ(S_OK, library().register_it());
    EXPECT_TRUE(same_lines({}, difference(before, registered())));
    ASSERT_EQ(S_OK, library().unregister_it());
    ASSERT_EQ(S_OK, library().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

TEST_F(RegistrationForTheMachine, BelongsToTheCopyRegisteredLast) {
    const LibraryCopy first(L"first");
    const LibraryCopy second(L"second");
    ASSERT_EQ(S_OK, first.registrar().register_it());
    ASSERT_EQ(S_OK, second.registrar().register_it());
    EXPECT_EQ(second.path(), value(server_key()));
    EXPECT_EQ(second.path(), value(own_type_library()));
    const ClassesSnapshot before = registered();
    EXPECT_EQ(S_OK, first.registrar().unregister_it());
    EXPECT_TRUE(same_lines({}, difference(before, registered())));
    EXPECT_EQ(S_OK, second.registrar().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

TEST_F(RegistrationForTheMachine, KeepsTheTypeLibraryThatALaterCopyRegistered) {
    const LibraryCopy other(L"other");
    ASSERT_EQ(S_OK, library().register_it());
    put_value(HKEY_LOCAL_MACHINE, own_type_library(), other.path());
    EXPECT_EQ(S_OK, library().unregister_it());
    EXPECT_FALSE(exists(class_key()));
    EXPECT_EQ(other.path(), value(own_type_library()));
    EXPECT_TRUE(exists(interface_key()));
    EXPECT_EQ(S_OK, other.registrar().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

// Whoever deletes the folder of a library without unregistering it can register and unregister another copy.
TEST_F(RegistrationForTheMachine, OfADeletedCopyIsForgottenByAnotherOne) {
    {
        const LibraryCopy deleted(L"deleted");
        ASSERT_EQ(S_OK, deleted.registrar().register_it());
    }
    EXPECT_EQ(S_OK, library().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

TEST_F(RegistrationForTheMachine, OfACopyThatCannotBeReachedIsForgottenByAnotherOne) {
    for (const wchar_t* path : {L"Q:\\VelloraCTL\\VelloraCTL.ocx", L"\\\\nobody.invalid\\share\\VelloraCTL.ocx"}) {
        ASSERT_EQ(S_OK, library().register_it());
        put_value(HKEY_LOCAL_MACHINE, server_key(), path);
        put_value(HKEY_LOCAL_MACHINE, own_type_library(), path);
        EXPECT_EQ(S_OK, library().unregister_it());
        EXPECT_TRUE(same_lines({}, traces()));
    }
}

TEST_F(RegistrationForTheMachine, KnowsTheFileByItsShortNameToo) {
    const LibraryCopy copy(L"a folder with a long name");
    wchar_t short_path[MAX_PATH] = {};
    ASSERT_NE(0U, GetShortPathNameW(copy.path().c_str(), short_path, MAX_PATH));
    ASSERT_NE(copy.path(), short_path);
    ASSERT_EQ(S_OK, copy.registrar().register_it());
    put_value(HKEY_LOCAL_MACHINE, server_key(), short_path);
    put_value(HKEY_LOCAL_MACHINE, own_type_library(), short_path);
    EXPECT_EQ(S_OK, copy.registrar().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

TEST_F(RegistrationForTheMachine, KnowsTheFileByAVeryLongPathToo) {
    const LibraryCopy other(L"other");
    const std::size_t name = other.path().rfind(L'\\');
    std::wstring path = other.path().substr(0, name);
    while (path.size() < 2000)
        path += L"\\.";
    path += other.path().substr(name);
    ASSERT_EQ(S_OK, other.registrar().register_it());
    put_value(HKEY_LOCAL_MACHINE, server_key(), path);
    put_value(HKEY_LOCAL_MACHINE, own_type_library(), path);
    const ClassesSnapshot before = registered();
    EXPECT_EQ(S_OK, library().unregister_it());
    EXPECT_TRUE(same_lines({}, difference(before, registered())));
    EXPECT_EQ(S_OK, other.registrar().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

TEST_F(RegistrationForTheMachine, WorksInAnyFolder) {
    const LibraryCopy copy(L"Umlaute äöü, Ελληνικά & 名前");
    EXPECT_EQ(0U, run_program(L"regsvr32 /s \"" + copy.path() + L"\""));
    EXPECT_EQ(copy.path(), value(server_key()));
    EXPECT_EQ(copy.path(), value(own_type_library()));
    EXPECT_NO_THROW(create_registered(__uuidof(Vellora)));
    EXPECT_EQ(0U, run_program(L"regsvr32 /s /u \"" + copy.path() + L"\""));
    EXPECT_TRUE(same_lines({}, traces()));
}

// The two bitnesses share the type library's key, and the platform forgets the interfaces for both.
TEST_F(RegistrationForTheMachine, KeepsWhatTheOtherBitnessNeeds) {
    ASSERT_EQ(S_OK, library().register_it());
    put_value(HKEY_LOCAL_MACHINE, other_type_library(), L"C:\\other\\VelloraCTL.ocx");
    ASSERT_EQ(S_OK, library().register_it());
    EXPECT_EQ(L"C:\\other\\VelloraCTL.ocx", value(other_type_library()));
    EXPECT_EQ(S_OK, library().unregister_it());
    EXPECT_FALSE(exists(own_type_library()));
    EXPECT_EQ(L"C:\\other\\VelloraCTL.ocx", value(other_type_library()));
    EXPECT_TRUE(exists(interface_key()));
    remove_key(HKEY_LOCAL_MACHINE, other_type_library());
    ASSERT_EQ(S_OK, library().register_it());
    EXPECT_EQ(S_OK, library().unregister_it());
    EXPECT_TRUE(same_lines({}, traces()));
}

} // namespace
} // namespace vellora::test
