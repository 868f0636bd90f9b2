#include "compose/composer.h"

#include "compose/composition.h"
#include "compose/insertions.h"
#include "compose/merge.h"
#include "compose/signature_files.h"

namespace ornavel::compose {
namespace {

/// Whether the user's text is lost where the step doesn't get through.
enum class Failing { harmless, loses_text };

struct Step {
    TextView name;
    void (*run)(Composition&);
    TrapName trap;
    Failing failing = Failing::harmless;

    constexpr TrapName own_trap() const { return {trap.sub_function, trap.section, name}; }
};

constexpr TrapName file_compare{u"CreateHTMLBody- error HTML File Compare", u"CompareFile_Err"};
constexpr TrapName font_control{u"CreateHTMLBody- error FontControl", u"FontControl_Err"};

constexpr Step steps[] = {
    {u"find the template", find_template, any_step},
    {u"write the text before", write_before, file_compare},
    {u"stamp the date", stamp_date, any_step},
    {u"wipe out HTML", wipe_out_HTML, {u"CreateHTMLBody- error Wipeout HTML", u"WipeoutHTML_Err"}},
    {u"break fonts", break_font_control, font_control},
    {u"remove divisions", remove_divisions, {u"CreateHTMLBody- error DivControl", u"DivControl_Err"}},
    {u"end divisions", end_divisions, {u"CreateHTMLBody- error EndDIvControl", u"EndDivControl_Err"}},
    {u"break block quotes", break_block_quotes, font_control},
    {u"write the text after", write_after, file_compare},
    {u"break rules", break_rules, font_control},
    {u"look at the item", look_at_item, any_step},
    {u"read Word's document",
     read_Word_document,
     {u"CreateHTMLBody- error in Word htm file", u"WordFileOpen_Err"}},
    {u"link addresses", link_addresses, any_step},
    {u"wrap lines", wrap_lines, {u"CreateHTMLBody- error SpanControl", u"SpanControl_Err"}},
    {u"replace tabs", replace_tabs, {u"CreateHTMLBody- error EndSpanControl", u"EndSpanControl_Err"}},
    // Has a trap of its own, whose label tells the length.
    {u"cut the reply", cut_reply, any_step, Failing::loses_text},
    {u"choose the signature", choose_signature, any_step},
    {u"append the signature", append_signature, {u"CreateHTMLBody", u"Signature_Err"}},
    {u"read the template", read_template, {u"CreateHTMLBody- error in htm file", u"NoFile_Err"}},
    {u"ask about a script", ask_about_script, any_step},
    {u"find the marker", find_marker, any_step},
    {u"insert the message", insert_message, any_step, Failing::loses_text},
    {u"break the reply's tags", break_reply_tags, any_step},
    {u"shrink the reply's font", shrink_reply_font, any_step},
    {u"insert the reply", insert_reply, any_step, Failing::loses_text},
    {u"fill contact fields", fill_contact_fields, any_step},
    {u"log usage", log_usage, {u"CreateHTMLBody- eMarketing error", u"eMarketing_Err"}},
    {u"merge fields", merge_fields, any_step}, // has a trap for each of its groups
};

/// The texts as they stood before a step, kept only for somebody who watches.
class Watch {
public:
    explicit Watch(const Composition& c) : c_(c) {
        if (!c.services.on_change) return;
        for (const auto& [name, text] : texts) before_.push_back(c.*text);
    }

    void tell(TextView step) const {
        for (std::size_t i = 0; i < before_.size(); ++i) {
            const Text& now = c_.*texts[i].text;
            if (now != before_[i])
                c_.services.on_change({step, texts[i].name, before_[i].size(), now.size()});
        }
    }

private:
    struct Named {
        TextView name;
        Text Composition::*text;
    };
    static constexpr Named texts[] = {{u"message", &Composition::message},
                                      {u"new text", &Composition::new_text},
                                      {u"quoted part", &Composition::quoted},
                                      {u"letterhead", &Composition::template_text},
                                      {u"result", &Composition::result}};
    const Composition& c_;
    std::vector<Text> before_;
};

Composed compose(const Services& services, Request request) {
    AskingErrors errors(services.errors, services.boxes);
    Composition composition{services, request, errors, std::move(request.source),
                            std::move(request.template_path)};
    composition.log_usage = services.start_up.usage_log.enabled;
    for (const Step& step : steps) {
        const Watch watch(composition);
        const bool through = trap(errors, step.own_trap(), [&] { step.run(composition); });
        watch.tell(step.name);
        if (!through && step.failing == Failing::loses_text) return {Outcome::failed};
        // A question that could not be put has refused nothing.
        if (composition.refused) return {Outcome::refused, std::move(composition.result)};
    }
    return {Outcome::composed, std::move(composition.result)};
}

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

Text path_or_first_of(const Composition& c, const Text& path, const settings::PathKey& folder) {
    if (c.services.files.file_exists(path)) return path;
    const auto first = first_html_file(c.services.files, c.read(folder));
    return first ? c.read(folder) + u"\\" + *first : path;
}

Composed CreateHTMLBody(const Services& services, Request request) noexcept {
    Composed composed{Outcome::failed};
    attempt([&] { composed = compose(services, std::move(request)); });
    return composed;
}

std::vector<TrapName> traps() {
    std::vector<TrapName> all;
    for (const Step& step : steps) all.push_back(step.own_trap());
    for (const TextView place : {reply_cut, merge_group})
        all.push_back({any_step.sub_function, any_step.section, place});
    for (const TrapName& other :
         {next_appointment_trap, next_quote_trap, next_tip_trap, boilerplate_trap, signature_file_trap,
          signature_folder_trap, one_signature_trap, text_signature_trap})
        all.push_back(other);
    return all;
}

} // namespace ornavel::compose
