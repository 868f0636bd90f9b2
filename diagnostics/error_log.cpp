#include "diagnostics/error_log.h"

namespace ornavel::diagnostics {
namespace {

using namespace settings;

Text two_digits(int number) { return (number < 10 ? u"0" : u"") + to_text(number); }

} // namespace

void ErrorLog::Write_to_error_file(TextView description, TextView sub_function, TextView section) noexcept {
    attempt([&] {
        const Text what(description), routine(sub_function), step(section);
        if (is_on(settings_, admin::ErrorFileSuppressEmail)) {
            write_note(what + u" - " + routine + u" - " + step);
            return;
        }
        if (contains(read(settings_, admin::ErrorFileExceptions), what)) return;
        append_line(location(), u"Date: " + date() + u", " + routine + u", " + step + u", " + what);
    });
}

void ErrorLog::SystemCheck(TextView first, TextView second, TextView third) noexcept {
    attempt([&] {
        const Text path = read(settings_, admin::ErrorFileLocation);
        if (path.empty()) return;
        append_line(path, u"System Check: " + date() + u", " + Text(first) + u", " + Text(second) + u", " +
                              Text(third));
    });
}

void ErrorLog::write_note(TextView text) noexcept {
    attempt([&] { append_line(location(), u"Date: " + date() + u", " + Text(text)); });
}

Text ErrorLog::Create_Error_Log_File() {
    const Text folder = addin_folder_ + u"\\Support\\";
    files_.create_folder(folder);
    files_.write(folder + u"SupportLog.txt", {});
    return folder + u"SupportLog.txt";
}

Text ErrorLog::location() {
    Text path = read(settings_, admin::ErrorFileLocation);
    if (!path.empty()) return path;
    path = Create_Error_Log_File();
    save(settings_, admin::ErrorFileLocation, path);
    return path;
}

Text ErrorLog::date() const {
    const LocalTime now = clock_.now();
    return two_digits(now.month) + u"-" + two_digits(now.day) + u"-" + to_text(now.year) + u" " +
           two_digits(now.hour) + u":" + two_digits(now.minute) + u":" + two_digits(now.second);
}

void ErrorLog::append_line(TextView path, TextView line) {
    files_.append(path, to_utf8(Text(line) + Text(line_end)));
}

} // namespace ornavel::diagnostics
