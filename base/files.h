#pragma once

#include "base/encoding.h"
#include "base/text.h"

#include <vector>

namespace ornavel {

/// The disk, by full Windows path. Names compare without case. What fails throws Failure.
class Files {
public:
    virtual ~Files() = default;

    virtual bool file_exists(TextView path) const = 0;
    virtual bool folder_exists(TextView path) const = 0;

    /// Names of the files of a folder, without their folder, in case-insensitive alphabetical order. A
    /// missing folder has none.
    virtual std::vector<Text> list(TextView folder) const = 0;
    /// The same for the folders in it.
    virtual std::vector<Text> list_folders(TextView folder) const = 0;

    virtual std::string read(TextView path) const = 0;
    /// Creates the file or replaces what it held.
    virtual void write(TextView path, std::string_view bytes) = 0;
    /// Creates the file when it is missing.
    virtual void append(TextView path, std::string_view bytes) = 0;
    /// The same, and what is written outlives a machine that loses its power right afterwards, where the disk
    /// keeps what it promises.
    virtual void append_durably(TextView path, std::string_view bytes) { append(path, bytes); }
    virtual void remove(TextView path) = 0;
    /// In one step: who looks at the new place sees what was there before, or all of the file. What was there
    /// is replaced. Both places are on one drive.
    virtual void move(TextView from, TextView to) = 0;

    /// Creates the folder and those above it that are missing.
    virtual void create_folder(TextView path) = 0;
    /// With everything in it. What a folder that leads elsewhere leads to stays.
    virtual void remove_folder(TextView path) = 0;
    /// Whether a folder is a name for another one.
    virtual bool leads_elsewhere(TextView folder) const = 0;

    /// The machine's ANSI code page.
    virtual const CodePage& ansi() const = 0;
};

/// A whole file as text; see decode() for how its bytes are understood.
Text read_text(const Files& files, TextView path);

/// The lines of a file, joined again with each followed by the given end.
Text read_lines(const Files& files, TextView path, TextView after_each_line);

/// Creates the file or replaces what it held, so that nobody ever sees half of it, and that what it held
/// stays where that can't be done: under a name of its own first, then moved.
void write_whole(Files& files, TextView path, std::string_view bytes);

/// The first file of the folder whose lower-cased name ends in ".htm" or ".html"; nothing when there is none.
std::optional<Text> first_html_file(const Files& files, TextView folder);

} // namespace ornavel
