#include "rehearsal/windows/disk_world.h"

#include "base/errors.h"
#include "win32/handle.h"
#include "win32/wide.h"
#include "win32/windows_files.h"

#include <cstring>

namespace ornavel::rehearsal {
namespace {

/// Made with a prefix of this project, so that a rehearsal never tidies up any other.
constexpr TextView prefix_sign = u"C:\\windows\\ornavel_prefix";
constexpr TextView list_of_own = u"C:\\windows\\ornavel_prefix\\own.txt";

struct Listing {
    ByName<std::string> files; ///< full path, with size and time
    std::vector<Text> folders; ///< each before what is in it
};

std::string stamp_of(const WIN32_FIND_DATAW& found) {
    const DWORD parts[] = {found.nFileSizeHigh, found.nFileSizeLow, found.ftLastWriteTime.dwHighDateTime,
                           found.ftLastWriteTime.dwLowDateTime};
    std::string stamp = "untouched";
    for (const DWORD part : parts) stamp += ' ' + std::to_string(part);
    return stamp;
}

void list_below(const Text& folder, Listing& listing) {
    WIN32_FIND_DATAW found;
    const win32::FindHandle search(FindFirstFileW(win32::wide(folder + u"\\*").c_str(), &found));
    if (!search) return;
    do {
        const Text name = win32::text_of(found.cFileName);
        const Text path = folder + u'\\' + name;
        const bool is_windows = same_name(path, u"C:\\windows");
        if (name == u"." || name == u".." || is_windows) continue;
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) {
            listing.files[path] = stamp_of(found);
            continue;
        }
        listing.folders.push_back(path);
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)) list_below(path, listing);
    } while (FindNextFileW(search.get(), &found));
}

Listing list_drive() {
    Listing listing;
    list_below(u"C:", listing);
    return listing;
}

/// One line for each folder, and for each file its path, a tab and its stamp.
std::string to_lines(const Listing& listing) {
    std::string lines;
    for (const auto& folder : listing.folders) lines += to_utf8(folder) + '\n';
    for (const auto& [path, stamp] : listing.files) lines += to_utf8(path) + '\t' + stamp + '\n';
    return lines;
}

} // namespace

DiskWorld::DiskWorld() {
    win32::WindowsFiles files;
    if (!files.folder_exists(prefix_sign)) throw Unusable("not in a Wine prefix of tools/wine/prepare");
    if (!files.file_exists(list_of_own)) files.write(list_of_own, to_lines(list_drive()));
    for (const Text& line : lines_of(from_utf8(files.read(list_of_own)))) {
        const auto parts = split(line, u"\t");
        if (parts.size() == 2)
            own_files_[parts[0]] = to_utf8(parts[1]);
        else
            own_folders_.insert(parts[0]);
    }
}

void DiskWorld::clear() const {
    const Listing now = list_drive();
    for (const auto& [path, stamp] : now.files)
        if (!own_files_.contains(path)) DeleteFileW(win32::wide(path).c_str());
    for (auto folder = now.folders.rbegin(); folder != now.folders.rend(); ++folder)
        if (!own_folders_.contains(*folder)) RemoveDirectoryW(win32::wide(*folder).c_str());
}

void DiskWorld::remove_folder(TextView path) const {
    Listing listing;
    list_below(Text(path), listing);
    for (const auto& [file, stamp] : listing.files) DeleteFileW(win32::wide(file).c_str());
    for (auto folder = listing.folders.rbegin(); folder != listing.folders.rend(); ++folder)
        RemoveDirectoryW(win32::wide(*folder).c_str());
    if (!RemoveDirectoryW(win32::wide(path).c_str())) throw Failure(u"Path not found");
}

void DiskWorld::add_to(Snapshot& snapshot) const {
    const Listing now = list_drive();
    const win32::WindowsFiles files;
    snapshot.folders.insert(now.folders.begin(), now.folders.end());
    for (const auto& [path, stamp] : now.files) {
        const auto own = own_files_.find(path);
        const bool untouched = own != own_files_.end() && own->second == stamp;
        std::string bytes = stamp;
        if (!untouched) attempt([&] { bytes = files.read(path); });
        snapshot.files[path] = bytes;
    }
}

} // namespace ornavel::rehearsal
