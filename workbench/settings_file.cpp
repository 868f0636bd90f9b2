#include "workbench/settings_file.h"

#include "workbench/places.h"

#include <algorithm>

namespace ornavel::workbench {

Place SettingsFile::place_of(const settings::Key& key) const {
    const auto setting = std::ranges::find_if(settings, [&](const settings::FileSetting& one) {
        return same_name(one.section, key.section) && same_name(one.name, key.name);
    });
    return setting == settings.end() ? Place{} : setting->at;
}

settings::RegFile read_registry_file(const Files& files, TextView path) {
    try {
        return settings::read_reg_file(files.read(path), files.ansi());
    } catch (const FileError& error) {
        throw Failure(at(path, error.at(), error.description()));
    }
}

SettingsFile load_settings(const Files& files, TextView path) {
    auto file = read_registry_file(files, path);
    SettingsFile loaded{Text(path), {}, settings::settings_of(file), std::move(file.complaints)};
    for (const settings::FileSetting& setting : loaded.settings)
        loaded.store.save(setting.section, setting.name, setting.value);
    return loaded;
}

} // namespace ornavel::workbench
