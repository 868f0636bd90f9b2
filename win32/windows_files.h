#pragma once

#include "base/files.h"

namespace ornavel::win32 {

/// The machine's disks. A Failure brings the path and the system's own message.
class WindowsFiles final : public Files {
public:
    bool file_exists(TextView path) const override;
    bool folder_exists(TextView path) const override;
    std::vector<Text> list(TextView folder) const override;
    std::vector<Text> list_folders(TextView folder) const override;
    std::string read(TextView path) const override;
    void write(TextView path, std::string_view bytes) override;
    void append(TextView path, std::string_view bytes) override;
    void append_durably(TextView path, std::string_view bytes) override;
    void remove(TextView path) override;
    void move(TextView from, TextView to) override;
    void create_folder(TextView path) override;
    void remove_folder(TextView path) override;
    bool leads_elsewhere(TextView folder) const override;
    const CodePage& ansi() const override;
};

} // namespace ornavel::win32
