// What the package itself does when it goes: it finds the samples that nobody has changed. Windows Installer
// would take a changed file along with the others, so the samples are nobody's, and each has a row in
// RemoveFile whose folder is named by a property. Only for an unchanged file is that property set here; the
// installer passes over the other rows. The tables alone can't tell: a row of Signature knows a file's size,
// and a change may keep it.
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

enum Column : UINT { property = 1, name, folder, first_hash };

constexpr wchar_t samples[] =
    L"SELECT `RemoveFile`.`DirProperty`, `RemoveFile`.`FileName`, `Directory`.`DefaultDir`, "
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
    if (MsiGetPropertyW(installation, L"STATIONERY", path.text, &length) != ERROR_SUCCESS) return {};
    if (!append(path, long_name(words)) || !append(path, L"\\")) return {};
    return path;
}

bool is_unchanged(MSIHANDLE row, const wchar_t* path) {
    MSIFILEHASHINFO found{};
    found.dwFileHashInfoSize = sizeof found;
    if (MsiGetFileHashW(path, 0, &found) != ERROR_SUCCESS) return false;
    for (UINT part = 0; part < 4; ++part)
        if (found.dwData[part] != static_cast<ULONG>(MsiRecordGetInteger(row, first_hash + part)))
            return false;
    return true;
}

void look_at(MSIHANDLE installation, MSIHANDLE row) {
    const Words directory = folder_of(installation, row);
    const Words file = text_of(row, name);
    Words path = directory;
    if (append(path, long_name(file)) && is_unchanged(row, path.text))
        MsiSetPropertyW(installation, text_of(row, property).text, directory.text);
}

} // namespace

/// Never an error: a sample that can't be looked at stays.
extern "C" UINT __stdcall find_unchanged(MSIHANDLE installation) {
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
