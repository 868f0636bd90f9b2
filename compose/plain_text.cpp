#include "compose/plain_text.h"

#include "base/splice.h"
#include "compose/signatures.h"

namespace ornavel::compose {
namespace {

using namespace settings;

Text with_html_breaks(TextView plain) {
    Text text(plain);
    for (const TextView line_break : {line_end, TextView(u"\n"), TextView(u"\r")})
        substitute(text, line_break, u"<br>");
    return text;
}

Text disclaimer(const Services& services) {
    const Files& files = services.files;
    const Text path = services.start_up.application_path + u"\\DisclaimerText.txt";
    return files.file_exists(path) ? read_lines(files, path, u"<br>") : Text();
}

Text closing(const Services& services) {
    const Store& store = services.settings;
    Text result;
    if (trim(read(store, user::Signature)) != u"none") result += u"<p>" + text_signature(store);
    const Text small_print = disclaimer(services);
    return small_print.empty() ? result : result + u"<P>" + small_print;
}

} // namespace

Text plain_text_as_html(const Services& services, const Text& body, TextView reply_marker) {
    constexpr TextView begin = u"<span> <font face='Courier new' size=2>", end = u"</font></span>";
    const auto marker = reply_marker.empty() ? Text::npos : body.find(reply_marker);
    if (marker == Text::npos) return Text(begin) + with_html_breaks(body) + Text(end) + closing(services);
    return Text(begin) + with_html_breaks(TextView(body).substr(0, marker)) + closing(services) +
           with_html_breaks(TextView(body).substr(marker)) + Text(end);
}

} // namespace ornavel::compose
