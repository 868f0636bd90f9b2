#include "programs/options_assistant/options_assistant.h"

#include "programs/windows/start.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return ornavel::programs::start(ornavel::programs::options_assistant);
}
