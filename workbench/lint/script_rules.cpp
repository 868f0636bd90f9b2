#include "workbench/desk.h"
#include "workbench/lint/sheet.h"

namespace ornavel::workbench {
namespace {

bool is_handler(const Attribute& attribute) {
    return attribute.name.size() > 4 && attribute.name.starts_with(u"on") && !attribute.value.empty();
}

bool is_script_address(const Attribute& attribute) {
    Text value;
    for (const char16_t unit : lower_case(attribute.value))
        if (unit > u' ') value += unit;
    return value.starts_with(u"javascript:") || value.starts_with(u"vbscript:");
}

/// Whether Ornavel asks the user before this page goes out, found by composing with it.
bool is_asked_about(const Sheet& sheet) {
    if (sheet.role != Role::letterhead) return false;
    settings::MemoryStore store = sheet.ground.store;
    save(store, settings::admin::HTMFilesPath, folder_of(sheet.path));
    save(store, settings::user::Template, name_of_file(sheet.path));
    save(store, settings::user::Signature, u"none");
    Order order;
    order.letter.html_body = u"x";
    return dress(store, sheet.ground.files, sheet.ground.clock, order).asked_about_script;
}

} // namespace

void check_script(const Sheet& sheet) {
    std::optional<bool> asked;
    const auto tell = [&](std::size_t at, TextView what) {
        if (!asked) asked = is_asked_about(sheet);
        sheet.tell(at, "script",
                   Text(what) + (*asked ? u"; Ornavel asks before each message that it goes into"
                                        : u"; Ornavel does not ask about this spelling and lets it through"),
                   u"Take it out: mail programs remove or refuse script");
    };
    for (const Tag& tag : sheet.page.tags) {
        if (tag.closing) continue;
        if (tag.name == u"script") tell(tag.begin, u"This is script");
        for (const Attribute& attribute : tag.attributes)
            if (is_handler(attribute) || is_script_address(attribute))
                tell(attribute.value_at, u"The attribute " + attribute.name + u" holds script");
    }
}

} // namespace ornavel::workbench
