// A program that has the registered library in use: it prints "held" and goes on until its input ends. It also
// keeps the file open, because there are platforms on which a loaded file can be written all the same.
#include <VelloraCTL.h>
#include <cstdio>
#include <windows.h>

#include <objbase.h>

int main(int count, char** arguments) {
    IUnknown* control = nullptr;
    if (count != 2 || FAILED(OleInitialize(nullptr)) ||
        FAILED(CoCreateInstance(__uuidof(Vellora), nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                reinterpret_cast<void**>(&control))))
        return 1;
    const HANDLE file =
        CreateFileA(arguments[1], GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    std::puts(file == INVALID_HANDLE_VALUE ? "not held" : "held");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    CloseHandle(file);
    control->Release();
    OleUninitialize();
    return 0;
}
