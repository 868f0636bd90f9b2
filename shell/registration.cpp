#include "shell/registration.h"

#include "base/errors.h"
#include "win32/registry.h"

namespace ornavel::shell {
namespace {

#define CLASS_ID u"{01F2687D-003D-4805-8744-2B3921019DBC}"
#define CLASS_KEY u"Software\\Classes\\CLSID\\" CLASS_ID
#define PROGRAM_KEY u"Software\\Classes\\Ornavel.Connect"
#define PAGE_ID u"{7B4C9A52-6E1D-4F0B-9D37-5A28C1E6F493}"
#define PAGE_CLASS_KEY u"Software\\Classes\\CLSID\\" PAGE_ID
#define PAGE_KEY u"Software\\Classes\\BrevantPage.PropPage"
#define HOST_KEY u"Software\\Microsoft\\Office\\Outlook\\Addins\\Ornavel.Connect"

constexpr TextView dll = u"<the path of the DLL>";

struct TextRow {
    TextView key;
    TextView name;
    TextView text;
};

constexpr TextRow texts[] = {
    {CLASS_KEY, u"", u"Ornavel"},
    {CLASS_KEY u"\\InprocServer32", u"", dll},
    {CLASS_KEY u"\\InprocServer32", u"ThreadingModel", u"Apartment"},
    {CLASS_KEY u"\\ProgID", u"", u"Ornavel.Connect"},
    {PROGRAM_KEY, u"", u"Ornavel"},
    {PROGRAM_KEY u"\\CLSID", u"", CLASS_ID},
    {PAGE_CLASS_KEY, u"", u"Ornavel options page"},
    {PAGE_CLASS_KEY u"\\InprocServer32", u"", dll},
    {PAGE_CLASS_KEY u"\\InprocServer32", u"ThreadingModel", u"Apartment"},
    {PAGE_CLASS_KEY u"\\ProgID", u"", u"BrevantPage.PropPage"},
    {PAGE_CLASS_KEY u"\\Control", u"", u""},
    {PAGE_CLASS_KEY u"\\MiscStatus", u"", u"0"},
    {PAGE_CLASS_KEY u"\\MiscStatus\\1", u"", u"131473"}, // what the control says of itself
    {PAGE_KEY, u"", u"Ornavel options page"},
    {PAGE_KEY u"\\CLSID", u"", PAGE_ID},
    {HOST_KEY, u"FriendlyName", u"Ornavel"},
    {HOST_KEY, u"Description", u"Dresses outgoing messages in your stationery"},
};

struct NumberRow {
    TextView key;
    TextView name;
    DWORD number;
};

constexpr NumberRow numbers[] = {
    {HOST_KEY, u"LoadBehavior", 3}, // loaded, at start-up
    {HOST_KEY, u"CommandLineSafe", 0},
};

constexpr TextView own_keys[] = {HOST_KEY, PAGE_KEY, PAGE_CLASS_KEY, PROGRAM_KEY, CLASS_KEY};

/// Made by the registration where they were missing; the innermost comes first.
constexpr TextView parent_keys[] = {
    u"Software\\Microsoft\\Office\\Outlook\\Addins",
    u"Software\\Microsoft\\Office\\Outlook",
    u"Software\\Microsoft\\Office",
    u"Software\\Classes\\CLSID",
};

void write_rows(TextView dll_path) {
    for (const auto& row : texts)
        win32::RegistryKey::create(row.key).set(row.name, row.text == dll ? dll_path : row.text);
    for (const auto& row : numbers) win32::RegistryKey::create(row.key).set(row.name, row.number);
}

} // namespace

void register_add_in(TextView dll_path) {
    try {
        write_rows(dll_path);
    } catch (...) {
        attempt(unregister_add_in);
        throw;
    }
}

void unregister_add_in() {
    for (const TextView key : own_keys) win32::remove_key(key);
    for (const TextView key : parent_keys) win32::remove_empty_key(key);
}

} // namespace ornavel::shell
