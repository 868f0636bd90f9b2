#include "workbench/machine_files.h"

#include "base/errors.h"
#include "workbench/drives.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace ornavel::workbench {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t largest_file = std::size_t{512} << 20;

/// The entry of the folder with that name in another case; the name itself where there is none.
fs::path in_any_case(const fs::path& folder, const fs::path& name) {
    std::error_code error;
    if (fs::exists(folder / name, error)) return name;
    for (const auto& entry : fs::directory_iterator(folder.empty() ? "." : folder, error))
        if (same_name(entry.path().filename().u16string(), name.u16string())) return entry.path().filename();
    return name;
}

/// Names on a disk of Windows compare without case, and so do they here.
fs::path native_path(TextView path) {
    Text slashed(path);
    std::ranges::replace(slashed, u'\\', u'/');
    std::error_code error;
    const fs::path wanted(to_utf8(slashed));
    if (fs::exists(wanted, error)) return wanted;
    fs::path found = wanted.root_path();
    for (const fs::path& part : wanted.relative_path()) found /= in_any_case(found, part);
    return found;
}

[[noreturn]] void fail(TextView path, std::string_view why) {
    throw Failure(Text(path) + u": " + from_utf8(why));
}

class NativeFiles final : public Files {
public:
    bool file_exists(TextView path) const override {
        std::error_code error;
        return fs::is_regular_file(native_path(path), error);
    }
    bool folder_exists(TextView path) const override {
        std::error_code error;
        return fs::is_directory(native_path(path), error);
    }
    std::vector<Text> list(TextView folder) const override {
        return names_in(folder, [](const fs::directory_entry& entry) { return entry.is_regular_file(); });
    }
    std::vector<Text> list_folders(TextView folder) const override {
        return names_in(folder, [](const fs::directory_entry& entry) { return entry.is_directory(); });
    }
    std::string read(TextView path) const override {
        const fs::path file = native_path(path);
        std::error_code error;
        const auto size = fs::file_size(file, error);
        if (error) fail(path, error.message());
        if (size > largest_file) fail(path, "is larger than 512 MB");
        std::ifstream stream(file, std::ios::binary);
        std::string bytes(size, '\0');
        if (!stream || !stream.read(bytes.data(), static_cast<std::streamsize>(size)))
            fail(path, "can't be read");
        return bytes;
    }
    void write(TextView path, std::string_view bytes) override { put(path, bytes, std::ios::trunc); }
    void append(TextView path, std::string_view bytes) override { put(path, bytes, std::ios::app); }
    void remove(TextView path) override {
        std::error_code error;
        if (!fs::remove(native_path(path), error)) fail(path, "can't be removed");
    }
    void create_folder(TextView path) override {
        std::error_code error;
        fs::create_directories(native_path(path), error);
        if (error) fail(path, error.message());
    }
    void remove_folder(TextView path) override {
        std::error_code error;
        fs::remove_all(native_path(path), error);
        if (error) fail(path, error.message());
    }
    void move(TextView from, TextView to) override {
        std::error_code error;
        fs::rename(native_path(from), native_path(to), error);
        if (error) fail(from, error.message());
    }
    bool leads_elsewhere(TextView folder) const override {
        std::error_code error;
        return fs::is_symlink(native_path(folder), error);
    }
    const CodePage& ansi() const override { return windows_1252(); }

private:
    template <class Wanted>
    static std::vector<Text> names_in(TextView folder, Wanted wanted) {
        std::vector<Text> names;
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(native_path(folder), error))
            if (wanted(entry)) names.push_back(from_utf8(entry.path().filename().string()));
        std::ranges::sort(names, name_before);
        return names;
    }
    /// The name is taken as it is: to look for it in another case would cost a walk of the folder for each
    /// file.
    static void put(TextView path, std::string_view bytes, std::ios::openmode how) {
        const fs::path target = native_path(folder_of(path)) / to_utf8(name_of_file(path));
        std::ofstream stream(target, std::ios::binary | how);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();
        if (!stream) fail(path, "can't be written");
    }
};

class NativeClock final : public Clock {
public:
    LocalTime now() const override {
        const std::time_t time = std::time(nullptr);
        const std::tm* local = std::localtime(&time);
        return {local->tm_year + 1900, local->tm_mon + 1, local->tm_mday,
                local->tm_hour,        local->tm_min,     local->tm_sec};
    }
};

} // namespace

Files& machine_files() {
    static NativeFiles files;
    return files;
}

const Clock& machine_clock() {
    static const NativeClock clock;
    return clock;
}

std::vector<std::string> words_of(int count, char** words) { return {words + 1, words + count}; }

} // namespace ornavel::workbench
