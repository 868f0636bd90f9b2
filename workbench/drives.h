#pragma once

#include "base/files.h"

#include <map>

namespace ornavel::workbench {

/// The machine's disks, with folders that stand in for drives, so that what was written for Windows can be
/// looked at anywhere.
class Drives final : public Files {
public:
    explicit Drives(Files& machine) : machine_(machine) {}

    /// "C=FOLDER". Throws Failure for anything else.
    void stand_in(TextView drive_and_folder);
    /// Whether something may be looked for there: not on a share, and not on a drive that this machine lacks.
    bool can_tell(TextView path) const;
    /// The path on this machine.
    Text real_path(TextView path) const;

    bool file_exists(TextView path) const override { return machine_.file_exists(mapped(path)); }
    bool folder_exists(TextView path) const override { return machine_.folder_exists(mapped(path)); }
    std::vector<Text> list(TextView folder) const override { return machine_.list(mapped(folder)); }
    std::vector<Text> list_folders(TextView folder) const override {
        return machine_.list_folders(mapped(folder));
    }
    std::string read(TextView path) const override { return machine_.read(mapped(path)); }
    void write(TextView path, std::string_view bytes) override { machine_.write(mapped(path), bytes); }
    void append(TextView path, std::string_view bytes) override { machine_.append(mapped(path), bytes); }
    void remove(TextView path) override { machine_.remove(mapped(path)); }
    void create_folder(TextView path) override { machine_.create_folder(mapped(path)); }
    void remove_folder(TextView path) override { machine_.remove_folder(mapped(path)); }
    void move(TextView from, TextView to) override { machine_.move(mapped(from), mapped(to)); }
    bool leads_elsewhere(TextView folder) const override { return machine_.leads_elsewhere(mapped(folder)); }
    const CodePage& ansi() const override { return machine_.ansi(); }

private:
    Text mapped(TextView path) const { return real_path(path); }

    Files& machine_;
    std::map<char16_t, Text> folders_; ///< by the drive's letter, in upper case
};

/// The folder of a file, and the file's name without it; with "/" and "\" alike.
Text folder_of(TextView path);
Text name_of_file(TextView path);

} // namespace ornavel::workbench
