#pragma once

#include "base/files.h"

#include <map>
#include <set>

namespace ornavel {

/// Files that are read where they are and written in memory only.
class ScratchDisk final : public Files {
public:
    explicit ScratchDisk(const Files& disk) : disk_(disk) {}

    /// The lines that were appended to any file.
    std::vector<Text> appended_lines() const { return lines_of(from_utf8(appended_)); }

    bool file_exists(TextView path) const override {
        return written_.contains(path) || (!removed_.contains(path) && disk_.file_exists(path));
    }
    bool folder_exists(TextView path) const override { return disk_.folder_exists(path); }
    std::vector<Text> list(TextView folder) const override { return disk_.list(folder); }
    std::vector<Text> list_folders(TextView folder) const override { return disk_.list_folders(folder); }
    std::string read(TextView path) const override {
        const auto written = written_.find(path);
        return written == written_.end() ? disk_.read(path) : written->second;
    }
    void write(TextView path, std::string_view bytes) override {
        written_.insert_or_assign(Text(path), bytes);
    }
    void append(TextView, std::string_view bytes) override { appended_ += bytes; }
    void remove(TextView path) override {
        written_.erase(Text(path));
        removed_.insert(Text(path));
    }
    void create_folder(TextView) override {}
    void remove_folder(TextView) override {}
    void move(TextView from, TextView to) override {
        write(to, read(from));
        remove(from);
    }
    bool leads_elsewhere(TextView folder) const override { return disk_.leads_elsewhere(folder); }
    const CodePage& ansi() const override { return disk_.ansi(); }

private:
    struct NameOrder {
        using is_transparent = void;
        bool operator()(TextView left, TextView right) const { return name_before(left, right); }
    };
    const Files& disk_;
    std::map<Text, std::string, NameOrder> written_;
    std::set<Text, NameOrder> removed_;
    std::string appended_;
};

} // namespace ornavel
