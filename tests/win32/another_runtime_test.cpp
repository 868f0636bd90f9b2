#include "tests/win32/add_in_dll.h"
#include "win32/com.h"
#include "win32/extensibility.h"

#include <objbase.h>

namespace ornavel::win32 {
namespace {

/// The compiler's shared runtime, as another add-in brings it into the mail client.
class AnotherRuntime : public testing::Test {
protected:
    void SetUp() override {
        CoFreeUnusedLibrariesEx(0, 0);
        ASSERT_FALSE(GetModuleHandleW(L"Ornavel.dll")) << "the add-in must find the runtime when it comes";
        runtime_ = LoadLibraryW(L"" ORNAVEL_SHARED_RUNTIME_PATH);
        ASSERT_TRUE(runtime_) << ORNAVEL_SHARED_RUNTIME_PATH;
        ASSERT_TRUE(GetModuleHandleW(L"" ORNAVEL_SHARED_RUNTIME)) << "the name that start-up code asks for";
    }
    void TearDown() override {
        if (runtime_) FreeLibrary(runtime_);
    }

    /// A connection without a mail client: every statement of it throws, and is caught.
    static void expect_to_catch(const AddInDll& dll) {
        CLSID id{};
        ASSERT_EQ(dll.call("DllRegisterServer"), S_OK);
        ASSERT_EQ(CLSIDFromProgID(L"Ornavel.Connect", &id), S_OK);
        ComPtr<IDTExtensibility2> add_in;
        ASSERT_EQ(
            CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDTExtensibility2, add_in.out_untyped()),
            S_OK);
        EXPECT_EQ(add_in->OnConnection(nullptr, 0, nullptr, nullptr), S_OK);
        EXPECT_EQ(add_in->OnBeginShutdown(nullptr), S_OK);
        add_in = {};
        EXPECT_EQ(dll.call("DllUnregisterServer"), S_OK);
        CoFreeUnusedLibrariesEx(0, 0);
    }

private:
    HMODULE runtime_ = nullptr;
};

TEST_F(AnotherRuntime, LoadedFirstLeavesTheAddInItsOwnExceptions) {
    for (int time = 0; time < 3; ++time) {
        expect_to_catch(AddInDll());
        ASSERT_FALSE(GetModuleHandleW(L"Ornavel.dll")) << "each time it comes anew";
    }
}

} // namespace
} // namespace ornavel::win32
