#include "workbench/drives.h"

#include "base/errors.h"
#include "base/file_address.h"

namespace ornavel::workbench {
namespace {

char16_t upper(char16_t unit) { return upper_case(TextView(&unit, 1)).front(); }

} // namespace

void Drives::stand_in(TextView drive_and_folder) {
    const bool drive = drive_and_folder.size() > 2 && drive_and_folder[1] == u'=' &&
                       names_drive(Text{drive_and_folder[0], u':'});
    if (!drive) throw Failure(u"--drive takes a letter and a folder, such as C=/home/jo/drive-c");
    const TextView folder = drive_and_folder.substr(2);
    if (!machine_.folder_exists(folder)) throw Failure(Text(folder) + u": there is no such folder");
    folders_[upper(drive_and_folder[0])] = folder;
}

bool Drives::can_tell(TextView path) const {
    if (path.starts_with(u"\\\\") || path.starts_with(u"//")) return false;
    if (!names_drive(path) || folders_.contains(upper(path[0]))) return true;
    return machine_.folder_exists(Text(path.substr(0, 2)) + u"\\");
}

Text Drives::real_path(TextView path) const {
    if (!names_drive(path)) return Text(path);
    const auto folder = folders_.find(upper(path[0]));
    return folder == folders_.end() ? Text(path) : folder->second + u"/" + Text(path.substr(2));
}

Text folder_of(TextView path) {
    const auto end = path.find_last_of(u"\\/");
    return end == TextView::npos ? Text(u".") : Text(path.substr(0, end));
}

Text name_of_file(TextView path) {
    const auto end = path.find_last_of(u"\\/");
    return Text(end == TextView::npos ? path : path.substr(end + 1));
}

} // namespace ornavel::workbench
