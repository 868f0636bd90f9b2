#include "compose/composition.h"
#include "workbench/desk.h"
#include "workbench/lint/known_fields.h"
#include "workbench/lint/sheet.h"

#include <algorithm>

// What the switches that are on do to a template or signature: the composer's own steps run over it, as they
// do when a message that carries it is answered and quoted.

namespace ornavel::workbench {
namespace {

using namespace settings;

struct CleanUp {
    const SwitchKey& key;
    void (*step)(compose::Composition&);
    Text compose::Composition::*text;
};

constexpr CleanUp clean_ups[] = {
    {admin::WipeoutHTML, compose::wipe_out_HTML, &compose::Composition::message},
    {admin::WipeOutFontControl, compose::break_font_control, &compose::Composition::message},
    {user::WipeoutDivTag, compose::remove_divisions, &compose::Composition::message},
    {user::WipeoutDivTag, compose::end_divisions, &compose::Composition::message},
    {admin::WipeoutBlockquote, compose::break_block_quotes, &compose::Composition::message},
    {admin::WipeoutHardRule, compose::break_rules, &compose::Composition::message},
    {admin::RemoveReplyTags, compose::break_reply_tags, &compose::Composition::quoted},
};

Text cleaned(const Sheet& sheet, const CleanUp& clean_up) {
    Desk desk(sheet.ground.store, sheet.ground.files, sheet.ground.clock);
    compose::AskingErrors errors(desk.services().errors, desk.services().boxes);
    const host::MailItem item = host::paper_item({});
    const compose::Request request{.item = item, .source = {}, .template_path = {}, .reply = {.found = true}};
    compose::Composition composition{desk.services(), request, errors, {}, {}};
    composition.*clean_up.text = sheet.page.text;
    clean_up.step(composition);
    return composition.*clean_up.text;
}

Text around(TextView text, std::size_t at) {
    const std::size_t begin = at < 8 ? 0 : at - 8;
    return shown(text.substr(begin, 32));
}

void tell_difference(const Sheet& sheet, const Key& key, TextView after, TextView when) {
    const Text& before = sheet.page.text;
    const auto [one, other] = std::ranges::mismatch(before, after);
    if (one == before.end() && other == after.end()) return;
    const auto at = static_cast<std::size_t>(one - before.begin());
    sheet.tell(std::min(at, before.size()), "clean-up",
               Text(key.name) + u" is on: " + Text(when) + u", " + around(before, at) + u" becomes " +
                   around(after, at),
               u"Switch it off, or write this in another way");
}

/// What the merge does with the switch and would not do without it.
void check_merge(const Sheet& sheet, const SwitchKey& key) {
    if (!sheet.ground.is_on(key)) return;
    MemoryStore without = sheet.ground.store;
    save(without, key, off);
    const Text with_switch = merged(sheet.page.text, sheet.ground.store),
               plain = merged(sheet.page.text, without);
    const auto at =
        static_cast<std::size_t>(std::ranges::mismatch(with_switch, plain).in1 - with_switch.begin());
    if (with_switch == plain) return;
    sheet.tell(0, "clean-up",
               Text(key.name) + u" is on: in every message, " + around(plain, at) + u" becomes " +
                   around(with_switch, at),
               u"Switch it off, or write this in another way");
}

} // namespace

void check_clean_up(const Sheet& sheet) {
    for (const CleanUp& clean_up : clean_ups)
        if (sheet.ground.is_on(clean_up.key))
            tell_difference(sheet, clean_up.key, cleaned(sheet, clean_up), u"where it is quoted in a reply");
    check_merge(sheet, user::RTFOnly);
    check_merge(sheet, admin::WipeoutRemoveConvertedBR);
}

} // namespace ornavel::workbench
