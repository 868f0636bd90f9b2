#pragma once

#include "win32/wide.h"

#include <gtest/gtest.h>

namespace ornavel::win32 {

/// The add-in's DLL, as built beside these tests.
class AddInDll {
public:
    AddInDll() : module_(LoadLibraryW(wide(path()).c_str())) {
        if (!module_) fail(path(), GetLastError());
    }
    ~AddInDll() { FreeLibrary(module_); }
    AddInDll(const AddInDll&) = delete;
    AddInDll& operator=(const AddInDll&) = delete;

    /// Calls an export that takes nothing.
    HRESULT call(const char* name) const {
        const auto function = reinterpret_cast<void*>(GetProcAddress(module_, name));
        return function ? reinterpret_cast<HRESULT(STDMETHODCALLTYPE*)()>(function)() : E_NOTIMPL;
    }
    HMODULE module() const { return module_; }

    static Text path() {
        const Text tests = path_of(nullptr);
        const Text folder = tests.substr(0, tests.find_last_of(u'\\'));
        return folder.substr(0, folder.find_last_of(u'\\')) + u"\\shell\\Ornavel.dll";
    }

private:
    HMODULE module_;
};

} // namespace ornavel::win32
