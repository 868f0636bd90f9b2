#include <gtest/gtest.h>

#include <objbase.h>

/// The tests run in a single-threaded apartment, as the mail client's add-ins do.
int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (FAILED(CoInitialize(nullptr))) return 2;
    const int result = RUN_ALL_TESTS();
    CoUninitialize();
    return result;
}
