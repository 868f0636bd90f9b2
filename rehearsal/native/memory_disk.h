#pragma once

#include "rehearsal/failures.h"
#include "rehearsal/journal.h"
#include "rehearsal/machine.h"

namespace ornavel::rehearsal {

/// The path with single backslashes between its parts, as the system itself reads one with slashes or with
/// doubled backslashes.
Text plain_path(TextView path);

/// A disk in memory: names compare without case and keep the case in which they were first written.
class MemoryDisk final : public Files {
public:
    bool file_exists(TextView path) const override { return files_.contains(plain_path(path)); }
    bool folder_exists(TextView path) const override;
    std::vector<Text> list(TextView folder) const override;
    std::vector<Text> list_folders(TextView folder) const override;
    std::string read(TextView path) const override;
    void write(TextView path, std::string_view bytes) override;
    void append(TextView path, std::string_view bytes) override;
    void remove(TextView path) override;
    void move(TextView from, TextView to) override;
    void create_folder(TextView path) override;
    void remove_folder(TextView path) override;
    bool leads_elsewhere(TextView folder) const override { return links_.contains(plain_path(folder)); }
    const CodePage& ansi() const override { return windows_1252(); }

    /// The folder is a name for another one from now on.
    void make_link(TextView folder) { links_.insert(plain_path(folder)); }
    /// Another program keeps a file open, until all are let go: it can be read, and neither written nor
    /// removed.
    void hold(TextView path) { held_.insert(plain_path(path)); }
    void let_go() { held_.clear(); }

    const ByName<std::string>& files() const { return files_; }
    const std::set<Text, NameOrder>& folders() const { return folders_; }

private:
    [[noreturn]] void fail_to_find(TextView path) const;
    void require_free(TextView path) const;
    std::string& open_for_writing(TextView path);

    ByName<std::string> files_;
    std::set<Text, NameOrder> folders_, links_, held_;
};

/// The disk as the add-in sees it: each use is noted, and fails where the scenario says so.
class RehearsedDisk final : public Files {
public:
    RehearsedDisk(MemoryDisk& disk, Failures& failures, Journal& journal)
        : disk_(disk), failures_(failures), journal_(journal) {}

    bool file_exists(TextView path) const override;
    bool folder_exists(TextView path) const override;
    std::vector<Text> list(TextView folder) const override;
    std::vector<Text> list_folders(TextView folder) const override;
    std::string read(TextView path) const override;
    void write(TextView path, std::string_view bytes) override;
    void append(TextView path, std::string_view bytes) override;
    void remove(TextView path) override;
    void move(TextView from, TextView to) override;
    void create_folder(TextView path) override;
    void remove_folder(TextView path) override;
    bool leads_elsewhere(TextView folder) const override { return disk_.leads_elsewhere(folder); }
    const CodePage& ansi() const override { return disk_.ansi(); }

private:
    MemoryDisk& disk_;
    Failures& failures_;
    Journal& journal_;
};

} // namespace ornavel::rehearsal
