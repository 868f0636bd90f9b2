// Loads the DLL that its argument names, as a mail client does, says so, and keeps it until its input ends.
#include <windows.h>

#include <cstdio>

int main(int count, char** arguments) {
    if (count != 2 || !LoadLibraryA(arguments[1])) return 1;
    std::puts("loaded");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}
