#include "diagnostics/error_log.h"

namespace ornavel::diagnostics {

using namespace settings;

Text log_date(const LocalTime& time) {
    return two_digits(time.month) + u"-" + two_digits(time.day) + u"-" + to_text(time.year) + u" " +
           two_digits(time.hour) + u":" + two_digits(time.minute) + u":" + two_digits(time.second);
}

void ErrorLog::append_error(TextView description, TrapName trap) {
    append_line(location(), u"Date: " + date() + u", " + Text(trap.sub_function) + u", " +
                                Text(trap.section) + u", " + Text(description));
}

void ErrorLog::write_note(TextView text) noexcept {
    attempt([&] { append_line(location(), u"Date: " + date() + u", " + Text(text)); });
}

void ErrorLog::SystemCheck(TextView first, TextView second, TextView third) noexcept {
    attempt([&] {
        const Text path = read(settings_, admin::ErrorFileLocation);
        if (path.empty()) return;
        append_line(path, u"System Check: " + date() + u", " + Text(first) + u", " + Text(second) + u", " +
                              Text(third));
    });
}

Text ErrorLog::Create_Error_Log_File() {
    const Text folder = addin_folder_ + u"\\Support";
    files_.create_folder(folder);
    const Text path = folder + u"\\SupportLog.txt";
    files_.write(path, {});
    return path;
}

Text ErrorLog::location() {
    Text path = read(settings_, admin::ErrorFileLocation);
    if (!path.empty()) return path;
    path = Create_Error_Log_File();
    save(settings_, admin::ErrorFileLocation, path);
    return path;
}

void ErrorLog::append_line(TextView path, TextView line) {
    files_.append(path, to_utf8(Text(line) + Text(line_end)));
}

} // namespace ornavel::diagnostics
