#include "programs/mass_mailer/mass_mailer.h"

#include "programs/windows/start.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return ornavel::programs::start(ornavel::programs::mass_mailer);
}
