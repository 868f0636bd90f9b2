#include "win32/windows_files.h"

#include "win32/ansi_code_page.h"
#include "win32/handle.h"
#include "win32/wide.h"

#include <algorithm>

namespace ornavel::win32 {
namespace {

enum class PathKind { missing, file, folder };

PathKind kind_of(TextView path) {
    const DWORD attributes = GetFileAttributesW(wide(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return PathKind::missing;
    return attributes & FILE_ATTRIBUTE_DIRECTORY ? PathKind::folder : PathKind::file;
}

Handle open(TextView path, DWORD access, DWORD disposition) {
    Handle file(CreateFileW(wide(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) fail(path, GetLastError());
    return file;
}

void write_all(const Handle& file, TextView path, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
            fail(path, GetLastError());
        bytes.remove_prefix(written);
    }
}

/// The file, with the bytes at its end.
Handle appended(TextView path, std::string_view bytes) {
    // Opened for nothing but appending, so that each line goes behind what another session has just written;
    // and one at a time, because a share may look for the end before it writes there.
    Handle file = open(path, FILE_APPEND_DATA | FILE_READ_DATA, OPEN_ALWAYS);
    OVERLAPPED far_behind_the_end{};
    far_behind_the_end.OffsetHigh = 0x7FFFFFFF;
    LockFileEx(file.get(), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &far_behind_the_end);
    write_all(file, path, bytes);
    return file;
}

Text with_backslash(TextView folder) { return Text(folder) + (folder.ends_with(u'\\') ? u"" : u"\\"); }

/// The entries of a folder that are of this kind, in order.
std::vector<Text> names_in(TextView folder, PathKind wanted) {
    std::vector<Text> names;
    // Without this an empty name would list the root of the current drive.
    if (folder.empty()) return names;
    WIN32_FIND_DATAW found;
    const FindHandle search(FindFirstFileW(wide(with_backslash(folder) + u"*").c_str(), &found));
    if (!search) return names;
    do {
        const Text name = text_of(found.cFileName);
        const bool is_folder = found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        if (is_folder == (wanted == PathKind::folder) && name != u"." && name != u"..") names.push_back(name);
    } while (FindNextFileW(search.get(), &found));
    std::ranges::sort(names, name_before);
    return names;
}

/// The folder above, or an empty text for a drive and for a name without a folder.
Text parent_of(TextView path) {
    const auto slash = path.find_last_of(u"\\/");
    if (slash == TextView::npos || path.substr(0, slash).ends_with(u':')) return {};
    return Text(path.substr(0, slash));
}

} // namespace

bool WindowsFiles::file_exists(TextView path) const { return kind_of(path) == PathKind::file; }
bool WindowsFiles::folder_exists(TextView path) const { return kind_of(path) == PathKind::folder; }

std::vector<Text> WindowsFiles::list(TextView folder) const { return names_in(folder, PathKind::file); }
std::vector<Text> WindowsFiles::list_folders(TextView folder) const {
    return names_in(folder, PathKind::folder);
}

std::string WindowsFiles::read(TextView path) const {
    const Handle file = open(path, GENERIC_READ, OPEN_EXISTING);
    std::string bytes;
    char buffer[16384];
    DWORD count = 0;
    do {
        if (!ReadFile(file.get(), buffer, sizeof buffer, &count, nullptr)) fail(path, GetLastError());
        bytes.append(buffer, count);
    } while (count > 0);
    return bytes;
}

void WindowsFiles::write(TextView path, std::string_view bytes) {
    write_all(open(path, GENERIC_WRITE, CREATE_ALWAYS), path, bytes);
}

void WindowsFiles::append(TextView path, std::string_view bytes) { appended(path, bytes); }

void WindowsFiles::append_durably(TextView path, std::string_view bytes) {
    if (!FlushFileBuffers(appended(path, bytes).get())) fail(path, GetLastError());
}

void WindowsFiles::remove(TextView path) {
    if (!DeleteFileW(wide(path).c_str())) fail(path, GetLastError());
}

void WindowsFiles::create_folder(TextView path) {
    if (folder_exists(path)) return;
    const Text parent = parent_of(path);
    if (!parent.empty()) create_folder(parent);
    if (!CreateDirectoryW(wide(path).c_str(), nullptr) && !folder_exists(path)) fail(path, GetLastError());
}

void WindowsFiles::move(TextView from, TextView to) {
    if (!MoveFileExW(wide(from).c_str(), wide(to).c_str(), MOVEFILE_REPLACE_EXISTING))
        fail(to, GetLastError());
}

bool WindowsFiles::leads_elsewhere(TextView folder) const {
    const DWORD attributes = GetFileAttributesW(wide(folder).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

void WindowsFiles::remove_folder(TextView path) {
    if (!leads_elsewhere(path)) {
        for (const Text& name : list(path)) remove(with_backslash(path) + name);
        for (const Text& name : list_folders(path)) remove_folder(with_backslash(path) + name);
    }
    if (!RemoveDirectoryW(wide(path).c_str())) fail(path, GetLastError());
}

const CodePage& WindowsFiles::ansi() const { return ansi_code_page(); }

} // namespace ornavel::win32
