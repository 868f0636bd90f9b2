#include "compose/composer.h"

#include "compose/composition.h"

namespace ornavel::compose {
namespace {

/// Whether the user's text is lost where the step doesn't get through.
enum class Failing { harmless, loses_text };

struct Step {
    void (*run)(Composition&);
    TrapName trap;
    Failing failing = Failing::harmless;
};

constexpr TrapName any_step{u"CreateHTMLBody", u"CreateHTM_Err"};
constexpr TrapName file_compare{u"CreateHTMLBody- error HTML File Compare", u"CompareFile_Err"};
constexpr TrapName font_control{u"CreateHTMLBody- error FontControl", u"FontControl_Err"};

constexpr Step steps[] = {
    {find_template, any_step},
    {write_before, file_compare},
    {stamp_date, any_step},
    {wipe_out_HTML, {u"CreateHTMLBody- error Wipeout HTML", u"WipeoutHTML_Err"}},
    {break_font_control, font_control},
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
    {cut_reply, any_step, Failing::loses_text}, // has a trap of its own, whose label tells the length
    {choose_signature, any_step},
    {append_signature, {u"CreateHTMLBody", u"Signature_Err"}},
    {read_template, {u"CreateHTMLBody- error in htm file", u"NoFile_Err"}},
    {ask_about_script, any_step},
    {find_marker, any_step},
    {insert_message, any_step, Failing::loses_text},
    {break_reply_tags, any_step},
    {shrink_reply_font, any_step},
    {insert_reply, any_step, Failing::loses_text},
    {fill_contact_fields, any_step},
    {log_usage, {u"CreateHTMLBody- eMarketing error", u"eMarketing_Err"}},
    {merge_fields, any_step}, // has a trap for each of its groups
};

} // namespace

void AskingErrors::take(TextView description, TrapName trap) noexcept {
    const auto report = errors_.log_error(description, trap);
    attempt([&] {
        if (report && boxes_.ask_risky(u"Error Report",
                                       u"Brevant has just experienced an error. Brevant has prepared a "
                                       u"desciption or the error.\r\nWould you like to send it now?"))
            errors_.mail_report(*report);
    });
}

Text path_or_first_of(const Composition& c, const Text& path, const settings::Key& folder) {
    if (c.services.files.file_exists(path)) return path;
    const auto first = first_html_file(c.services.files, c.read(folder));
    return first ? c.read(folder) + u"\\" + *first : path;
}

Composed CreateHTMLBody(const Services& services, Request request) noexcept {
    AskingErrors errors(services.errors, services.boxes);
    Composition composition{services, request, errors, std::move(request.source), request.template_path};
    composition.log_usage = services.start_up.usage_log.enabled;
    for (const Step& step : steps) {
        const bool through = trap(errors, step.trap, [&] { step.run(composition); });
        if (!through && step.failing == Failing::loses_text) return {Outcome::failed};
        // A question that could not be put has refused nothing.
        if (composition.refused) return {Outcome::refused, std::move(composition.result)};
    }
    return {Outcome::composed, std::move(composition.result)};
}

} // namespace ornavel::compose
