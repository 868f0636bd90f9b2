#include "programs/site_assistant/site_assistant.h"

#include "programs/windows/start.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return ornavel::programs::start(ornavel::programs::site_assistant);
}
