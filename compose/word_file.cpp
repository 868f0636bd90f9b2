#include "compose/word_file.h"

#include "base/errors.h"

namespace ornavel::compose {
namespace {

constexpr TextView name = u"GetMyHtml";

/// Office names the folder in its own language: "_files", "-Dateien", "_fichiers", ".files".
bool is_folder_of_pictures(TextView folder) {
    return folder.size() > name.size() && same_name(folder.substr(0, name.size()), name) &&
           contains(u"_-.", folder.substr(name.size(), 1));
}

} // namespace

Text word_file(TextView application_path) { return Text(application_path) + u"\\" + Text(name) + u".htm"; }

void remove_word_file(Files& files, TextView application_path) noexcept {
    attempt([&] {
        const Text path = word_file(application_path);
        if (files.file_exists(path)) files.remove(path);
    });
    attempt([&] {
        for (const Text& folder : files.list_folders(application_path))
            if (is_folder_of_pictures(folder)) files.remove_folder(Text(application_path) + u"\\" + folder);
    });
}

} // namespace ornavel::compose
