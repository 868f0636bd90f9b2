#include "rehearsal/native/memory_disk.h"

#include "base/encoding.h"
#include "base/errors.h"
#include "rehearsal/turn.h"

namespace ornavel::rehearsal {
namespace {

Text without_end(TextView path) {
    Text folder = plain_path(path);
    if (folder.ends_with(u'\\')) folder.pop_back();
    return folder;
}

TextView parent_of(TextView path) {
    const auto end = path.find_last_of(u'\\');
    return end == TextView::npos ? TextView() : path.substr(0, end);
}

bool is_below(TextView path, TextView folder) {
    return path.size() > folder.size() && path[folder.size()] == u'\\' &&
           same_name(path.substr(0, folder.size()), folder);
}

[[noreturn]] void fail(TextView path, TextView words) { throw Failure(Text(path) + u": " + Text(words)); }

bool is_drive(TextView path) { return path.size() == 2 && path[1] == u':'; }

} // namespace

Text plain_path(TextView path) {
    Text plain;
    for (char16_t unit : path) {
        if (unit == u'/') unit = u'\\';
        const bool doubled = unit == u'\\' && plain.size() > 1 && plain.back() == u'\\';
        if (!doubled) plain += unit;
    }
    return plain;
}

bool MemoryDisk::folder_exists(TextView path) const {
    const Text folder = without_end(path);
    return is_drive(folder) || folders_.contains(folder);
}

std::vector<Text> MemoryDisk::list(TextView folder) const {
    std::vector<Text> names;
    const Text wanted = without_end(folder);
    for (const auto& [path, bytes] : files_)
        if (same_name(parent_of(path), wanted)) names.push_back(path.substr(parent_of(path).size() + 1));
    return names;
}

std::vector<Text> MemoryDisk::list_folders(TextView folder) const {
    std::vector<Text> names;
    const Text wanted = without_end(folder);
    for (const auto& path : folders_)
        if (same_name(parent_of(path), wanted)) names.push_back(path.substr(parent_of(path).size() + 1));
    return names;
}

/// In the words that the system has for it, too.
void MemoryDisk::fail_to_find(TextView path) const {
    fail(path, folder_exists(parent_of(plain_path(path))) ? u"File not found." : u"Path not found.");
}

std::string MemoryDisk::read(TextView path) const {
    const auto file = files_.find(plain_path(path));
    if (file == files_.end()) fail_to_find(path);
    return file->second;
}

void MemoryDisk::require_free(TextView path) const {
    if (held_.contains(plain_path(path))) fail(path, u"Sharing violation.");
}

std::string& MemoryDisk::open_for_writing(TextView path) {
    const Text plain = plain_path(path);
    require_free(path);
    if (folder_exists(plain)) fail(path, u"Access denied.");
    if (!folder_exists(parent_of(plain))) fail(path, u"Path not found.");
    return files_.try_emplace(plain).first->second;
}

void MemoryDisk::write(TextView path, std::string_view bytes) { open_for_writing(path) = bytes; }

void MemoryDisk::append(TextView path, std::string_view bytes) { open_for_writing(path) += bytes; }

void MemoryDisk::remove(TextView path) {
    const auto file = files_.find(plain_path(path));
    if (file == files_.end()) fail_to_find(path);
    require_free(path);
    files_.erase(file);
}

void MemoryDisk::move(TextView from, TextView to) {
    write(to, read(from));
    remove(from);
}

void MemoryDisk::create_folder(TextView path) {
    const Text folder = without_end(path);
    if (folder.empty() || folder_exists(folder)) return;
    if (file_exists(folder)) fail(path, u"Access denied.");
    create_folder(parent_of(folder));
    folders_.emplace(folder);
}

void MemoryDisk::remove_folder(TextView path) {
    const Text folder = without_end(path);
    if (!folders_.contains(folder)) fail(path, u"Path not found.");
    for (const auto& file : held_)
        if (is_below(file, folder)) require_free(file);
    std::erase_if(files_, [&](const auto& file) { return is_below(file.first, folder); });
    std::erase_if(folders_,
                  [&](const auto& other) { return same_name(other, folder) || is_below(other, folder); });
}

namespace {

/// As much as the journal may show.
Text beginning(std::string_view bytes) { return from_utf8(bytes.substr(0, 2000)); }

} // namespace

bool RehearsedDisk::file_exists(TextView path) const {
    const MachinesTurn turn;
    return disk_.file_exists(path);
}

bool RehearsedDisk::folder_exists(TextView path) const {
    const MachinesTurn turn;
    return disk_.folder_exists(path);
}

std::vector<Text> RehearsedDisk::list(TextView folder) const {
    const MachinesTurn turn;
    return disk_.list(folder);
}

std::vector<Text> RehearsedDisk::list_folders(TextView folder) const {
    const MachinesTurn turn;
    return disk_.list_folders(folder);
}

void RehearsedDisk::create_folder(TextView path) {
    const MachinesTurn turn;
    disk_.create_folder(path);
}

std::string RehearsedDisk::read(TextView path) const {
    const MachinesTurn turn;
    return journal_.note_use(Deed::read_file, Text(path), {}, [&] {
        failures_.use(Failing::Kind::read_file, plain_path(path));
        return failures_.given(disk_.read(path));
    });
}

void RehearsedDisk::write(TextView path, std::string_view bytes) {
    const MachinesTurn turn;
    journal_.note_use(Deed::write_file, Text(path), beginning(bytes), [&] {
        failures_.use(Failing::Kind::write_file, plain_path(path));
        disk_.write(path, bytes);
    });
}

void RehearsedDisk::append(TextView path, std::string_view bytes) {
    const MachinesTurn turn;
    journal_.note_use(Deed::write_file, Text(path), beginning(bytes), [&] {
        failures_.use(Failing::Kind::write_file, plain_path(path));
        disk_.append(path, bytes);
    });
}

void RehearsedDisk::remove(TextView path) {
    const MachinesTurn turn;
    journal_.note_use(Deed::delete_file, Text(path), {}, [&] {
        failures_.use(Failing::Kind::delete_file, plain_path(path));
        disk_.remove(path);
    });
}

/// What is put in place counts as a file that is written there.
void RehearsedDisk::move(TextView from, TextView to) {
    const MachinesTurn turn;
    journal_.note(Deed::write_file, Text(to));
    failures_.use(Failing::Kind::write_file, plain_path(to));
    disk_.move(from, to);
}

void RehearsedDisk::remove_folder(TextView path) {
    const MachinesTurn turn;
    journal_.note_use(Deed::delete_file, Text(path), {}, [&] {
        failures_.use(Failing::Kind::delete_file, plain_path(path));
        disk_.remove_folder(path);
    });
}

} // namespace ornavel::rehearsal
