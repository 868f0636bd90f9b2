#pragma once

#include "base/errors.h"
#include "base/files.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace ornavel {

/// A disk in memory. A path in `refused` can't be read, written or removed. `at_look` is told each path that
/// is asked after or read.
class MemoryFiles final : public Files {
public:
    struct NameOrder {
        bool operator()(const Text& left, const Text& right) const { return name_before(left, right); }
    };
    std::map<Text, std::string, NameOrder> contents;
    std::set<Text, NameOrder> folders;
    std::set<Text, NameOrder> refused;
    std::set<Text, NameOrder> links; ///< folders that lead elsewhere
    std::function<void(TextView path)> at_look = [](TextView) {};

    bool file_exists(TextView path) const override {
        at_look(path);
        return contents.count(Text(path)) != 0;
    }
    bool folder_exists(TextView path) const override {
        at_look(path);
        return folders.count(Text(path)) != 0;
    }

    std::vector<Text> list(TextView folder) const override {
        at_look(folder);
        std::vector<Text> names;
        const Text prefix = Text(folder) + u"\\";
        for (const auto& [path, bytes] : contents)
            if (same_name(TextView(path).substr(0, prefix.size()), prefix) &&
                path.find(u'\\', prefix.size()) == Text::npos)
                names.push_back(path.substr(prefix.size()));
        return names;
    }

    std::vector<Text> list_folders(TextView folder) const override {
        std::vector<Text> names;
        const Text prefix = Text(folder) + u"\\";
        for (const auto& path : folders)
            if (same_name(TextView(path).substr(0, prefix.size()), prefix))
                names.push_back(path.substr(prefix.size()));
        return names;
    }

    std::string read(TextView path) const override {
        at_look(path);
        require_access(path);
        const auto found = contents.find(Text(path));
        if (found == contents.end()) throw Failure(u"File not found");
        return found->second;
    }
    void write(TextView path, std::string_view bytes) override {
        require_access(path);
        contents[Text(path)] = bytes;
    }
    void append(TextView path, std::string_view bytes) override {
        require_access(path);
        contents[Text(path)] += bytes;
    }
    void remove(TextView path) override {
        require_access(path);
        if (contents.erase(Text(path)) == 0) throw Failure(u"File not found");
    }
    void move(TextView from, TextView to) override {
        require_access(to);
        write(to, read(from));
        remove(from);
    }
    void create_folder(TextView path) override {
        require_access(path);
        folders.insert(Text(path));
    }
    void remove_folder(TextView path) override {
        require_access(path);
        if (folders.erase(Text(path)) == 0) throw Failure(u"Path not found");
        const Text prefix = Text(path) + u"\\";
        std::erase_if(contents, [&](const auto& file) { return file.first.starts_with(prefix); });
    }
    bool leads_elsewhere(TextView folder) const override { return links.count(Text(folder)) != 0; }
    const CodePage& ansi() const override { return windows_1252(); }

private:
    void require_access(TextView path) const {
        if (path.empty() || refused.count(Text(path))) throw Failure(u"Path/File access error");
    }
};

} // namespace ornavel
