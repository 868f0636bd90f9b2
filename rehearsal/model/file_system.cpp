#include "rehearsal/model/file_system.h"

#include "rehearsal/model/mail_client.h"

namespace ornavel::rehearsal {
namespace {

using host::Value;

Text folder_of(const Text& path) { return path.substr(0, path.find_last_of(u'\\')); }
Text name_of(const Text& path) { return path.substr(path.find_last_of(u'\\') + 1); }

/// Runs what the disk does; its failures are the scripting host's own errors.
template <class Body>
auto on_disk(const Call& call, Body body) {
    try {
        return body(call.client.machine().files());
    } catch (const host::Error&) {
        throw;
    } catch (const Failure& failure) {
        throw host::Error(failure.description());
    }
}

void must_exist(const Files& files, const Text& path) {
    if (!files.file_exists(path)) throw host::Error(u"File not found");
}

/// A target that ends in a backslash, or is a folder, takes the file's own name.
void copy(Files& files, const Text& source, Text target, bool overwrite) {
    must_exist(files, source);
    if (target.ends_with(u'\\'))
        target += name_of(source);
    else if (files.folder_exists(target))
        target += u'\\' + name_of(source);
    if (!overwrite && files.file_exists(target)) throw host::Error(u"File already exists");
    files.write(target, files.read(source));
}

/// The files that a path names, whose last part may be "*.*" or "*".
std::vector<Text> matching(const Files& files, const Text& path) {
    const Text name = name_of(path);
    if (name.find_first_of(u"*?") == Text::npos) {
        must_exist(files, path);
        return {path};
    }
    if (name != u"*.*" && name != u"*") throw host::Error(u"Bad file name or number");
    std::vector<Text> paths;
    for (const auto& found : files.list(folder_of(path))) paths.push_back(folder_of(path) + u'\\' + found);
    if (paths.empty()) throw host::Error(u"File not found");
    return paths;
}

bool overwrites(const Call& call, std::size_t argument) {
    return !call.given(argument) || call.flag(argument);
}

Value delete_file(const Call& call) {
    return on_disk(call, [&](Files& files) -> Value {
        for (const auto& path : matching(files, call.text(0))) files.remove(path);
        return {};
    });
}

Value create_folder(const Call& call) {
    return on_disk(call, [&](Files& files) -> Value {
        if (files.folder_exists(call.text(0))) throw host::Error(u"File already exists");
        if (!files.folder_exists(folder_of(call.text(0)))) throw host::Error(u"Path not found");
        files.create_folder(call.text(0));
        return {};
    });
}

Value delete_folder(const Call& call) {
    return on_disk(call, [&](Files& files) -> Value {
        if (!files.folder_exists(call.text(0))) throw host::Error(u"Path not found");
        call.client.machine().remove_folder(call.text(0));
        return {};
    });
}

Value get_file(const Call& call) {
    return on_disk(call, [&](Files& files) -> Value {
        must_exist(files, call.text(0));
        return call.client.hand_out(std::make_shared<FileNode>(call.text(0)));
    });
}

Value copy_file(const Call& call) {
    return on_disk(call, [&](Files& files) -> Value {
        copy(files, call.text(0), call.text(1), overwrites(call, 2));
        return {};
    });
}

constexpr MemberRow file_system_members[] = {
    method(
        u"FileExists",
        [](const Call& call) -> Value { return call.client.machine().files().file_exists(call.text(0)); }, 1,
        1),
    method(
        u"FolderExists",
        [](const Call& call) -> Value { return call.client.machine().files().folder_exists(call.text(0)); },
        1, 1),
    method(u"CreateFolder", create_folder, 1, 1),
    method(u"DeleteFolder", delete_folder, 1, 2),
    method(u"DeleteFile", delete_file, 1, 2),
    method(u"CopyFile", copy_file, 2, 3),
    method(u"GetFile", get_file, 1, 1),
};

Value copy_this(const Call& call) {
    return on_disk(call, [&](Files& files) -> Value {
        copy(files, call.as<FileNode>().path, call.text(0), overwrites(call, 1));
        return {};
    });
}

Value delete_this(const Call& call) {
    return on_disk(call, [&](Files& files) -> Value {
        files.remove(call.as<FileNode>().path);
        return {};
    });
}

constexpr MemberRow file_members[] = {
    method(u"Copy", copy_this, 1, 2),
    method(u"Delete", delete_this, 0, 1),
    method(u"Name", [](const Call& call) -> Value { return name_of(call.as<FileNode>().path); }),
    read_only<FileNode, &FileNode::path>(u"Path"),
};

} // namespace

const Class& FileSystemNode::what() const {
    static constexpr Class table{u"FileSystemObject", file_system_members};
    return table;
}
const Class& FileNode::what() const {
    static constexpr Class table{u"File", file_members};
    return table;
}

} // namespace ornavel::rehearsal
