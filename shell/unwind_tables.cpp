// Exceptions of this module stay its own business, whatever runtime another add-in has brought along.
//
// The compiler's start-up code gives a module's unwind tables to the shared runtime, libgcc_s_dw2-1.dll,
// where that is loaded already. This module has an unwinder of its own, which would then know no function
// here: the first throw would abort the mail client (measured: exit code 3 at the first connection).
//
// So the tables are registered here, with our own unwinder, and only where the start-up code has not done so:
// it runs before every constructor, and the unwinder is asked for a function of this module. What was
// measured on the linked DLL: the section begins with the entries of the start-up object, runs without a gap
// or a zero length up to the one that ends it, and every entry points into the code, with --gc-sections, too.
// The unwinder keeps a sorted copy of the table, so a DLL that goes takes its tables back.
//
// A program needs this less: its own start-up code asks before it can load anything, and finds a shared
// runtime only where the system puts a stranger's DLL into every process. It may link this file all the same.
#include <windows.h>

#include <string_view>

// The linker's own name for the start of this module.
extern "C" const IMAGE_DOS_HEADER __ImageBase;

// Of the unwinder; no header declares them. The object is the unwinder's to keep notes in, seven words today.
extern "C" {
void __register_frame_info(const void* tables, void* object);
void* __deregister_frame_info(const void* tables);
const void* _Unwind_Find_FDE(void* address, void* bases);
}

namespace {

bool is_known(void (*function)()) {
    void* bases[3];
    return _Unwind_Find_FDE(reinterpret_cast<void*>(function), bases) != nullptr;
}

/// An image has room for eight letters of a section's name; one with symbols names it by its place among the
/// longer names, where it is the first.
bool is_name_of_tables(const BYTE* name) {
    const std::string_view letters(reinterpret_cast<const char*>(name), IMAGE_SIZEOF_SHORT_NAME);
    return letters == ".eh_fram" || letters == std::string_view("/4\0\0\0\0\0\0", IMAGE_SIZEOF_SHORT_NAME);
}

const void* tables_of_this_module() {
    const auto* image = reinterpret_cast<const BYTE*>(&__ImageBase);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(image + __ImageBase.e_lfanew);
    const auto* section = reinterpret_cast<const IMAGE_SECTION_HEADER*>(
        reinterpret_cast<const BYTE*>(&headers->OptionalHeader) + headers->FileHeader.SizeOfOptionalHeader);
    for (WORD i = 0; i < headers->FileHeader.NumberOfSections; ++i, ++section)
        if (is_name_of_tables(section->Name)) return image + section->VirtualAddress;
    return nullptr;
}

class UnwindTables {
public:
    UnwindTables() : registered_(is_known(marker) ? nullptr : tables_of_this_module()) {
        if (registered_) __register_frame_info(registered_, object_);
    }
    ~UnwindTables() {
        // The unwinder aborts when it is asked to forget what it doesn't know.
        if (registered_) __deregister_frame_info(registered_);
    }
    UnwindTables(const UnwindTables&) = delete;
    UnwindTables& operator=(const UnwindTables&) = delete;

private:
    static void marker() {}

    const void* registered_;
    void* object_[16]{};
};

/// Before every other object of this module, and after them at its end.
__attribute__((init_priority(101))) UnwindTables own_tables;

} // namespace
