#include "settings/reg_settings.h"
#include "win32/machine.h"
#include "win32/registry.h"
#include "win32/registry_store.h"
#include "win32/wide.h"
#include "win32/windows_files.h"

#include <gtest/gtest.h>

// Registry files are read as the registry editor of the system reads them.

namespace ornavel::settings {
namespace {

using win32::wide;

constexpr TextView area = u"Software\\VB and VBA Program Settings\\Ornavel\\";
constexpr TextView sections[] = {u"Admin Settings", u"User Settings", u"System Settings"};

const std::string in_area = "[HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Ornavel";
const std::string admin = in_area + "\\Admin Settings]\r\n", user = in_area + "\\User Settings]\r\n";
const std::string old = "REGEDIT4\r\n\r\n", young = "Windows Registry Editor Version 5.00\r\n\r\n";

std::string utf16(std::string_view ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char letter : ascii) bytes += {letter, '\0'};
    return bytes;
}

const std::string files[] = {
    old + admin +
        "\"SigFullname\"=\"Jo \\\"the\\\" Marl\xF6w\"\r\n; a comment\r\n\"HTM Files "
        "Path\"=\"C:\\\\Stationery\"\r\n",
    old + admin + "\"BrowserPath\"=hex(2):25,41,\\\r\n  25,5c,\\\r\n  e9,00\r\n\"SigCell\"=\"1\"\r\n",
    // Without the mark Wine takes such bytes for ANSI; Windows goes by the version.
    utf16(young + admin + "\"SigCell\"=hex(1):41,00,e9,00,ac,20,00,00\r\n" + user +
          "\"Template\"=\"a.htm\"\r\n"),
    utf16(young + user + "\"Template\"=\"b.htm\"\r\n\"BrowserLeft\"=\"15\"\r\n"),
    old + admin + "\"SigFax\"=\"1\"\r\n\"SigCell\"=\"1\"\r\n\"sigfax\"=\"2\"\r\n" + admin +
        "\"SigCell\"=-\r\n",
    old + admin + "\"SigFax\"=\"1\"\r\n" + user + "\"Template\"=\"c.htm\"\r\n" + "[-" + admin.substr(1),
    old + admin + "\"SigFax\"=dword:00000001\r\n\"SigEmail\"=hex:41,00\r\n@=\"unnamed\"\r\n",
    old + admin + "  \"SigEmail\"=\"indented\"\r\nnonsense\r\n\"SigCell\"=\"after nonsense\"\r\n",
    old + admin + "\"SigEmail\"=\"no line end\"",
    old + "; nothing\r\n",
};

using Named = std::map<Text, Text>;

Named as_read(const std::string& bytes) {
    Named all;
    for (const FileSetting& setting : settings_of(read_reg_file(bytes, windows_1252())))
        all[setting.section + u"/" + lower_case(setting.name)] = setting.value;
    return all;
}

void note_values(TextView section, Named& all) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, wide(Text(area) + Text(section)).c_str(), 0, KEY_READ, &key) != 0)
        return;
    wchar_t name[256];
    for (DWORD i = 0, length = ARRAYSIZE(name);
         RegEnumValueW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) == 0;
         ++i, length = ARRAYSIZE(name)) {
        const Text found = win32::text_of({name, length});
        const auto value = win32::RegistryStore().find(section, found);
        if (value) all[Text(section) + u"/" + lower_case(found)] = *value;
    }
    RegCloseKey(key);
}

Named as_imported(const std::string& bytes) {
    win32::remove_key(area.substr(0, area.size() - 1));
    win32::WindowsFiles disk;
    const Text path = u"C:\\windows\\temp\\reading.reg";
    disk.write(path, bytes);
    const auto progress = win32::ShellLauncher().run_windows_program(u"regedit.exe", u"/S " + path,
                                                                     WindowState::minimised, 30000);
    EXPECT_EQ(progress, Progress::ended);
    disk.remove(path);
    Named all;
    for (const TextView section : sections) note_values(section, all);
    win32::remove_key(area.substr(0, area.size() - 1));
    return all;
}

TEST(RegFiles, SayWhatTheRegistryEditorMakesOfThem) {
    for (const std::string& file : files) EXPECT_EQ(as_read(file), as_imported(file)) << file;
}

} // namespace
} // namespace ornavel::settings
