// form_gallery MODE...: shows the prompt dialog in each of these modes, one after the other, and prints the
// answers.
#include "base/encoding.h"
#include "forms/frmMessage.h"
#include "win32/machine.h"

#include <cstdio>

int main(int count, char** arguments) {
    using namespace ornavel;
    win32::DesktopWindows windows;
    forms::PromptDialog prompt(windows, forms::built_in_strings());
    for (int i = 1; i < count; ++i) {
        prompt.ask(from_utf8(arguments[i]));
        std::printf("%s: %s\n", arguments[i], to_utf8(prompt.values().answer).c_str());
    }
}
