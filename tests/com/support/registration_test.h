// Fixture: the registry without the library in it; afterwards the library is registered again.
#pragma once

#include "com/support/host_test.h"
#include "com/support/library_copy.h"
#include "com/support/registry.h"
#include "support/container/library.h"
#include "support/container/text.h"

namespace vellora::test {

class UnregisteredTest : public testing::Test {
protected:
    UnregisteredTest() {
        EXPECT_EQ(S_OK, Registrar::of_library().install(FALSE, L"user"));
        EXPECT_EQ(S_OK, Registrar::of_library().unregister_it());
    }
    ~UnregisteredTest() override {
        Registrar::of_library().install(FALSE, L"user");
        EXPECT_EQ(S_OK, Registrar::of_library().register_it());
    }

    static std::wstring class_key() { return L"CLSID\\" + guid_text(__uuidof(Vellora)); }
    static std::wstring server_key() { return class_key() + L"\\InprocServer32"; }
    static std::wstring type_library_key() { return L"TypeLib\\" + guid_text(LIBID_VelloraCTL) + L"\\1.0"; }
    static std::wstring own_type_library() {
        return type_library_key() + (sizeof(void*) == 8 ? L"\\0\\win64" : L"\\0\\win32");
    }
    static std::wstring other_type_library() {
        return type_library_key() + (sizeof(void*) == 8 ? L"\\0\\win32" : L"\\0\\win64");
    }
    static std::wstring interface_key() { return L"Interface\\" + guid_text(__uuidof(_Vellora)); }

    /// All the registry has about the library.
    static ClassesSnapshot registered() {
        return snapshot_of({class_key(), L"TypeLib\\" + guid_text(LIBID_VelloraCTL), interface_key(),
                            L"Interface\\" + guid_text(DIID___Vellora), L"VelloraCTL.Vellora",
                            L"VelloraCTL.Vellora.1"});
    }
    static Lines traces() { return lines_of(registered()); }
};

} // namespace vellora::test
