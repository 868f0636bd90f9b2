#pragma once

#include "host/view.h"

namespace ornavel::host {

/// The scripting host's way to the disk, which the add-in uses for files that belong to the mail client and
/// to the installer.
class FileSystem : public ViewOf<u"FileSystemObject"> {
public:
    using ViewOf::ViewOf;
    static FileSystem create(Objects& objects) {
        return FileSystem(objects.create(u"Scripting.FileSystemObject"));
    }
    void create_folder(TextView path) const { call({u"CreateFolder"}, {Text(path)}); }
    /// With everything in it.
    void delete_folder(TextView path) const { call({u"DeleteFolder"}, {Text(path)}); }
    /// Replaces what stood at the target.
    void copy_file(TextView path, TextView target) const {
        File(as_object(call({u"GetFile"}, {Text(path)}))).copy_to(target);
    }

private:
    class File : public ViewOf<u"File"> {
    public:
        using ViewOf::ViewOf;
        void copy_to(TextView target) const { call({u"Copy"}, {Text(target), true}); }
    };
};

} // namespace ornavel::host
