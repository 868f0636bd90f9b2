#include "workbench/desk.h"
#include "workbench/lint/sheet.h"

namespace ornavel::workbench {
namespace {

using namespace settings;

constexpr std::size_t large_message = 100'000;

bool is_zero(const Attribute* attribute) {
    return attribute && !attribute->value.empty() &&
           attribute->value.find_first_not_of(u"0px ") == Text::npos;
}

bool style_has_no_margin(const Attribute* style) {
    if (!style) return false;
    Text text;
    for (const char16_t unit : lower_case(style->value))
        if (unit != u' ') text += unit;
    for (const TextView margin : {u"margin:0", u"margin-left:0"}) {
        const auto at = text.find(margin);
        if (at == Text::npos) continue;
        const TextView rest = TextView(text).substr(at + margin.size());
        if (rest.empty() || rest.starts_with(u";") || rest.starts_with(u"px")) return true;
    }
    return false;
}

void check_margin(const Sheet& sheet) {
    const Tag* body = sheet.page.first(u"body");
    if (!body) return;
    const bool none =
        is_zero(body->attribute(u"leftmargin")) || style_has_no_margin(body->attribute(u"style"));
    if (none)
        sheet.tell(body->begin, "quoted-at-edge",
                   u"The body has no left margin, and the quoted part of a reply follows the letterhead",
                   u"Give it one, such as LEFTMARGIN=\"16\"");
}

void check_table(const Sheet& sheet) {
    const Tag* table = sheet.page.first(u"table");
    if (table && sheet.ground.is_on(admin::WipeoutSignatureTable))
        sheet.tell(table->begin, "signature-table",
                   u"WipeoutSignatureTable is on, so in replies this table ends the letterhead's own",
                   u"Set WipeoutSignatureTable to \"False\", or write the signature without a table");
}

void check_size(const Sheet& sheet) {
    MemoryStore store = sheet.ground.store;
    save(store, admin::HTMFilesPath, folder_of(sheet.path));
    save(store, user::Template, name_of_file(sheet.path));
    Order order;
    order.letter.html_body = u"x";
    const std::size_t size =
        encode_html(dress(store, sheet.ground.files, sheet.ground.clock, order).html).size();
    if (size > large_message)
        sheet.tell(0, "size",
                   u"An empty message with this letterhead has " +
                       to_text(static_cast<long long>(size / 1000)) + u" KB",
                   u"Make the letterhead smaller");
}

} // namespace

void check_layout(const Sheet& sheet) {
    if (sheet.role == Role::letterhead) {
        check_margin(sheet);
        check_size(sheet);
    }
    if (sheet.role == Role::signature) check_table(sheet);
}

} // namespace ornavel::workbench
