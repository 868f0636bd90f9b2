#include "compose/composer.h"

#include "compose/composition.h"

namespace ornavel::compose {
namespace {

struct Step {
    void (*run)(Composition&);
    Place trap;
};

constexpr Place any_step{u"CreateHTMLBody", u"CreateHTM_Err"};
constexpr Place file_compare{u"CreateHTMLBody- error HTML File Compare", u"CompareFile_Err"};
constexpr Place font_control{u"CreateHTMLBody- error FontControl", u"FontControl_Err"};

constexpr Step steps[] = {
    {find_template, any_step},
    {write_before, file_compare},
    {stamp_date, any_step},
    {wipe_out_HTML, {u"CreateHTMLBody- error Wipeout HTML", u"WipeoutHTML_Err"}},
    {break_fonts, font_control},
    {remove_divisions, {u"CreateHTMLBody- error DivControl", u"DivControl_Err"}},
    {end_divisions, {u"CreateHTMLBody- error EndDIvControl", u"EndDivControl_Err"}},
    {break_block_quotes, font_control},
    {write_after, file_compare},
    {break_rules, font_control},
    {look_at_item, any_step},
    {read_Word_document, {u"CreateHTMLBody- error in Word htm file", u"WordFileOpen_Err"}},
    {link_addresses, any_step},
    {wrap_lines, {u"CreateHTMLBody- error SpanControl", u"SpanControl_Err"}},
    {replace_tabs, {u"CreateHTMLBody- error EndSpanControl", u"EndSpanControl_Err"}},
    {cut_reply, any_step}, // has a trap of its own, whose label tells the length
    {choose_signature, any_step},
    {append_signature, {u"CreateHTMLBody", u"Signature_Err"}},
    {read_template, {u"CreateHTMLBody- error in htm file", u"NoFile_Err"}},
    {ask_about_script, any_step},
    {find_marker, any_step},
    {insert_message, any_step},
    {break_reply_tags, any_step},
    {shrink_reply_font, any_step},
    {insert_reply, any_step},
    {fill_contact_fields, any_step},
    {log_usage, {u"CreateHTMLBody- eMarketing error", u"eMarketing_Err"}},
    {merge_fields, any_step}, // has a trap for each of its groups
};

} // namespace

void AskingErrors::Write_to_error_file(TextView description, TextView sub_function,
                                       TextView section) noexcept {
    const auto report = errors_.log_error(description, sub_function, section);
    attempt([&] {
        if (report &&
            boxes_.ask(u"Error Report", u"Brevant has just experienced an error. Brevant has prepared a "
                                        u"desciption or the error.\r\nWould you like to send it now?"))
            errors_.mail_report(*report);
    });
}

Text path_or_first_of(const Composition& c, const Text& path, const settings::Key& folder) {
    if (c.services.files.file_exists(path)) return path;
    const auto first = first_html_file(c.services.files, c.read(folder));
    return first ? c.read(folder) + u"\\" + *first : path;
}

void substitute(Text& text, TextView search, TextView replacement) {
    if (!search.empty() && contains(text, search)) text = replace_all(text, search, replacement);
}

Text CreateHTMLBody(Services services, Shared& shared, Text& body, Text& template_path) noexcept {
    AskingErrors errors(services.errors, services.boxes);
    Composition composition{services, shared, errors, body, template_path};
    shared.template_refused = false;
    composition.log_usage = shared.usage_log.enabled;
    for (const Step& step : steps) {
        trap(errors, step.trap, [&] { step.run(composition); });
        if (composition.refused) break;
    }
    // A question that could not be put has refused nothing.
    shared.template_refused = composition.refused;
    return std::move(composition.result);
}

} // namespace ornavel::compose
