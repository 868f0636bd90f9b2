// What the package itself does before anything is decided: it looks at each sample, whether it is as a
// package put it there. Windows Installer would take a changed file along with the others, so the samples are
// nobody's, and each has a row in RemoveFile whose folder is named by a property. Only for an unchanged
// sample is that property set here; the installer passes over the other rows. A changed one gets a property
// that keeps its component from being installed. The tables alone can't tell: a row of Signature knows a
// file's size, and a change may keep it; and what is never overwritten is decided on before an older package
// takes its samples away, so that nothing would come in their place.
#include <windows.h>

#include <msi.h>
#include <msiquery.h>

namespace {

/// A handle of Windows Installer, closed at the end.
class Handle {
public:
    Handle() = default;
    explicit Handle(MSIHANDLE handle) : handle_(handle) {}
    ~Handle() {
        if (handle_) MsiCloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    MSIHANDLE get() const { return handle_; }
    MSIHANDLE* out() { return &handle_; }

private:
    MSIHANDLE handle_ = 0;
};

constexpr DWORD longest = 1024;

/// A path or a name; empty when it is longer than any that the installer writes.
struct Words {
    wchar_t text[longest] = {};
};

struct Hash {
    ULONG parts[4] = {};
};

enum Column : UINT { key = 1, name, folder, first_hash };

constexpr wchar_t samples[] =
    L"SELECT `File`.`File`, `File`.`FileName`, `Directory`.`DefaultDir`, "
    L"`MsiFileHash`.`HashPart1`, `MsiFileHash`.`HashPart2`, `MsiFileHash`.`HashPart3`, "
    L"`MsiFileHash`.`HashPart4` "
    L"FROM `RemoveFile`, `File`, `Component`, `Directory`, `MsiFileHash` "
    L"WHERE `RemoveFile`.`FileKey` = `File`.`File` AND `MsiFileHash`.`File_` = `File`.`File` "
    L"AND `File`.`Component_` = `Component`.`Component` AND `Component`.`Directory_` = "
    L"`Directory`.`Directory`";

/// Whether it fitted.
bool append(Words& path, const wchar_t* more) {
    if (lstrlenW(path.text) + lstrlenW(more) >= static_cast<int>(longest)) return false;
    lstrcatW(path.text, more);
    return true;
}

Words text_of(MSIHANDLE row, Column column) {
    Words words;
    DWORD length = longest;
    if (MsiRecordGetStringW(row, column, words.text, &length) != ERROR_SUCCESS) return {};
    return words;
}

/// A name in the installer's tables is "short|long", or one for both.
const wchar_t* long_name(const Words& words) {
    const wchar_t* start = words.text;
    for (const wchar_t* at = start; *at; ++at)
        if (*at == L'|') start = at + 1;
    return start;
}

/// The folder of a sample. Before the costing the installer itself can't say it, and after it a property that
/// names a folder may be too late.
Words folder_of(MSIHANDLE installation, MSIHANDLE row) {
    Words path;
    DWORD length = longest;
    const Words words = text_of(row, folder);
    if (MsiGetPropertyW(installation, L"stationery", path.text, &length) != ERROR_SUCCESS) return {};
    if (!append(path, long_name(words)) || !append(path, L"\\")) return {};
    return path;
}

bool equal(const Hash& one, const Hash& other) {
    for (int part = 0; part < 4; ++part)
        if (one.parts[part] != other.parts[part]) return false;
    return true;
}

/// Of the sample that this package holds.
Hash own_hash(MSIHANDLE row) {
    Hash hash;
    for (UINT part = 0; part < 4; ++part)
        hash.parts[part] = static_cast<ULONG>(MsiRecordGetInteger(row, first_hash + part));
    return hash;
}

/// Of the sample as the installed package put it there: each package notes it. The one that takes another's
/// place asks for it before that one goes.
bool is_noted(const wchar_t* file, const Hash& found) {
    Hash hash;
    DWORD size = sizeof hash;
    HKEY notes = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Brevant\\Ornavel\\Samples", 0, KEY_READ, &notes))
        return false;
    const LSTATUS status =
        RegQueryValueExW(notes, file, nullptr, nullptr, reinterpret_cast<BYTE*>(hash.parts), &size);
    RegCloseKey(notes);
    return status == ERROR_SUCCESS && size == sizeof hash && equal(hash, found);
}

bool is_unchanged(MSIHANDLE row, const wchar_t* file, const wchar_t* path) {
    MSIFILEHASHINFO found{};
    found.dwFileHashInfoSize = sizeof found;
    if (MsiGetFileHashW(path, 0, &found) != ERROR_SUCCESS) return false;
    Hash hash;
    for (int part = 0; part < 4; ++part) hash.parts[part] = found.dwData[part];
    return equal(hash, own_hash(row)) || is_noted(file, hash);
}

void say(MSIHANDLE installation, const wchar_t* what, MSIHANDLE row, const wchar_t* value) {
    Words property;
    if (append(property, what) && append(property, text_of(row, key).text))
        MsiSetPropertyW(installation, property.text, value);
}

void look_at(MSIHANDLE installation, MSIHANDLE row) {
    const Words directory = folder_of(installation, row);
    const Words names = text_of(row, name);
    const wchar_t* file = long_name(names);
    Words path = directory;
    if (!append(path, file) || GetFileAttributesW(path.text) == INVALID_FILE_ATTRIBUTES) return;
    if (is_unchanged(row, file, path.text)) return say(installation, L"unchanged_", row, directory.text);
    say(installation, L"changed_", row, L"1");
}

} // namespace

/// Never an error: a sample that can't be looked at stays.
extern "C" UINT __stdcall look_at_samples(MSIHANDLE installation) {
    const Handle database(MsiGetActiveDatabase(installation));
    Handle view;
    if (MsiDatabaseOpenViewW(database.get(), samples, view.out()) != ERROR_SUCCESS) return ERROR_SUCCESS;
    if (MsiViewExecute(view.get(), 0) != ERROR_SUCCESS) return ERROR_SUCCESS;
    for (;;) {
        Handle row;
        if (MsiViewFetch(view.get(), row.out()) != ERROR_SUCCESS) return ERROR_SUCCESS;
        look_at(installation, row.get());
    }
}
