// Wine's ADO asks the system for the type library "ADODB 1.0" and brings only 2.8 along. This writes a copy
// of that one with the older number and registers it, once in a prefix.
#include <windows.h>

#include <oleauto.h>

#include <cstdio>
#include <string>

namespace {

constexpr wchar_t ado[] = L"C:\\Program Files\\Common Files\\System\\ADO\\msado15.dll";
constexpr wchar_t copy[] = L"C:\\windows\\system32\\adodb10.tlb";

/// The type library inside a DLL; empty when there is none.
std::string type_library_of(const wchar_t* dll) {
    const HMODULE module = LoadLibraryExW(dll, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const HRSRC resource = module ? FindResourceW(module, MAKEINTRESOURCEW(1), L"TYPELIB") : nullptr;
    if (!resource) return {};
    const auto* bytes = static_cast<const char*>(LockResource(LoadResource(module, resource)));
    return {bytes, SizeofResource(module, resource)};
}

bool write(const wchar_t* path, const std::string& bytes) {
    const HANDLE file = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    return written == bytes.size();
}

HRESULT register_library(const wchar_t* path) {
    ITypeLib* library = nullptr;
    HRESULT outcome = LoadTypeLibEx(path, REGKIND_NONE, &library);
    if (FAILED(outcome)) return outcome;
    std::wstring name = path;
    outcome = RegisterTypeLib(library, name.data(), nullptr);
    library->Release();
    return outcome;
}

} // namespace

int main() {
    CoInitialize(nullptr);
    constexpr std::size_t version_in_header = 0x18; // the major number, then the minor one, each of 16 bits
    std::string library = type_library_of(ado);
    if (library.size() < version_in_header + 4) {
        std::fprintf(stderr, "register_ado: no type library\n");
        return 1;
    }
    library.replace(version_in_header, 4, std::string("\1\0\0\0", 4));
    const HRESULT outcome = write(copy, library) ? register_library(copy) : E_FAIL;
    if (FAILED(outcome)) std::fprintf(stderr, "register_ado: error %08lx\n", outcome);
    return FAILED(outcome) ? 1 : 0;
}
