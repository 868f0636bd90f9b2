// Stays alive for a Wine session. Its argument names a file that it writes as soon as Wine is ready.
#include <windows.h>

int main(int count, char** arguments) {
    if (count > 1) {
        const HANDLE file = CreateFileA(arguments[1], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        WriteFile(file, "ready\n", 6, &written, nullptr);
        CloseHandle(file);
    }
    Sleep(INFINITE);
}
