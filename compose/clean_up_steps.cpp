#include "base/splice.h"
#include "compose/composition.h"
#include "compose/dates.h"
#include "compose/filters.h"

// From the template's path to the last clean-up filter: what is done to the message as HTML.

namespace ornavel::compose {
namespace {

using namespace settings;

void write_for_compare(Composition& c, TextView name) {
    if (!c.is_on(admin::WipeOutFileCompare)) return;
    c.services.files.write(c.services.start_up.application_path + u"\\" + Text(name), encode_html(c.message));
}

Text date_to_stamp(const Composition& c) {
    const LocalTime now = c.services.clock.now();
    Text date = c.read(user::InsertDateFormat) == u"Long" ? long_date(now) : short_date(now);
    const Text before = c.read(user::InsertStringBeforeDate);
    if (!before.empty()) date = before + u" " + date;
    if (c.is_on(user::InsertTime)) date += u" [" + clock_time(now) + u"]";
    return date;
}

} // namespace

void find_template(Composition& c) {
    c.template_path = path_or_first_of(c, c.template_path, admin::HTMFilesPath);
}

void write_before(Composition& c) { write_for_compare(c, u"beforetext.txt"); }
void write_after(Composition& c) { write_for_compare(c, u"aftertext.txt"); }

void stamp_date(Composition& c) {
    if (!c.is_on(user::InsertDate)) return;
    Text date = date_to_stamp(c), fixed = c.read(user::InsertString);
    const Text font = c.read(user::InsertFontControl);
    if (!font.empty()) {
        date = font + date + u"</font>";
        fixed = font + fixed + u"</font>";
    }
    const Text order = c.read(user::InsertOrder);
    const bool date_first = order.empty() || order == u"DateString";
    c.message.insert(0, date_first ? date + u"<br>" + fixed + u"<p>" : fixed + u"<br>" + date + u"<br><p>");
}

void wipe_out_HTML(Composition& c) {
    if (!c.is_on(admin::WipeoutHTML)) return;
    const auto body = bare_body_tag(c.message);
    const auto style = empty_style_block(c.message);
    if (!style) return;
    try {
        c.message = without_images(c.message);
    } catch (...) {
        put_back(c.message, *style);
        if (body) put_back(c.message, *body);
        throw;
    }
}

void break_font_control(Composition& c) {
    if (c.is_on(admin::WipeOutFontControl)) break_fonts(c.message);
}

void remove_divisions(Composition& c) {
    if (c.is_on(user::WipeoutDivTag)) substitute(c.message, u"<div>", u"");
}

void end_divisions(Composition& c) {
    if (c.is_on(user::WipeoutDivTag)) substitute(c.message, u"</div>", u"<br>");
}

void break_block_quotes(Composition& c) {
    if (c.is_on(admin::WipeoutBlockquote)) substitute(c.message, u"BLOCKQUOTE", u"xBLOCKQUOTE");
}

void break_rules(Composition& c) {
    if (c.is_on(admin::WipeoutHardRule)) substitute(c.message, u"<hr", u"<xhr");
}

} // namespace ornavel::compose
