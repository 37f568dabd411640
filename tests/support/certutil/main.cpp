// Stands in for Windows' certutil where the platform has none that works: "certutil -hashfile FILE SHA256" alone.
// With VELLORA_CERTUTIL_SPACES set it writes the sum as Windows 7 does, with a space between the bytes.
#include <cstdio>
#include <windows.h>

#include <wincrypt.h>

namespace {

constexpr DWORD sum_bytes = 32;

bool sum_of(HANDLE file, BYTE (&sum)[sum_bytes]) {
    HCRYPTPROV provider = 0;
    HCRYPTHASH hash = 0;
    DWORD size = sum_bytes;
    bool good = CryptAcquireContextW(&provider, nullptr, nullptr, PROV_RSA_AES, CRYPT_VERIFYCONTEXT) &&
                CryptCreateHash(provider, CALG_SHA_256, 0, 0, &hash);
    static BYTE part[1 << 16];
    for (DWORD read = sizeof part; good && read;)
        good = ReadFile(file, part, sizeof part, &read, nullptr) && CryptHashData(hash, part, read, 0);
    return good && CryptGetHashParam(hash, HP_HASHVAL, sum, &size, 0);
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 4)
        return 1;
    HANDLE file = CreateFileW(arguments[2], GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    BYTE sum[sum_bytes] = {};
    if (file == INVALID_HANDLE_VALUE || !sum_of(file, sum)) {
        std::puts("CertUtil: -hashfile command FAILED");
        return 1;
    }
    const bool spaces = GetEnvironmentVariableW(L"VELLORA_CERTUTIL_SPACES", nullptr, 0) > 0;
    std::printf("SHA256 hash of %ls:\n", arguments[2]);
    for (DWORD i = 0; i < sum_bytes; ++i)
        std::printf("%s%02x", spaces && i ? " " : "", sum[i]);
    std::puts("\nCertUtil: -hashfile command completed successfully.");
    return 0;
}
