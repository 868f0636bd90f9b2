#pragma once

#include "tests/win32/add_in_dll.h"
#include "win32/com.h"
#include "win32/extensibility.h"

#include <objbase.h>

namespace ornavel::win32 {

/// The add-in as the mail client gets it: registered, and made by its programmatic identifier.
class MadeAddIn : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(AddInDll().call("DllRegisterServer"), S_OK);
        CLSID class_id{};
        ASSERT_EQ(CLSIDFromProgID(L"Ornavel.Connect", &class_id), S_OK);
        ASSERT_EQ(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, IID_IDTExtensibility2,
                                   add_in.out_untyped()),
                  S_OK);
    }
    void TearDown() override {
        add_in = {};
        EXPECT_EQ(AddInDll().call("DllCanUnloadNow"), S_OK);
        EXPECT_EQ(AddInDll().call("DllUnregisterServer"), S_OK);
    }

    ComPtr<IDTExtensibility2> add_in;
};

} // namespace ornavel::win32
