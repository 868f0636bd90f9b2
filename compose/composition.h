#pragma once

#include "compose/composer.h"

namespace ornavel::compose {

inline constexpr TextView insertion_marker = u"[#Input your message here#]";

/// Logs an error, and asks the user whether to mail the report where it may be mailed.
class AskingErrors final : public ErrorSink {
public:
    AskingErrors(diagnostics::ErrorReports& errors, MessageBoxes& boxes) : errors_(errors), boxes_(boxes) {}
    void take(TextView description, TrapName trap) noexcept override;

private:
    diagnostics::ErrorReports& errors_;
    MessageBoxes& boxes_;
};

/// One message on its way: what was asked for, and the texts that the steps work on.
struct Composition {
    const Services& services;
    const Request& request;
    AskingErrors& errors;
    Text message;       ///< what the user wrote, until it is poured into the template
    Text template_path; ///< as it was asked for, then of the template that is there

    bool is_html = true; ///< the item has an HTML body
    bool is_word_mail = false;
    Text html_with_marker{};  ///< the item's HTML body, kept where only it may hold the reply marker
    Text beginning{};         ///< of the message: what stands for the company of a message without a contact
    Text new_text{};          ///< on a reply: what the user wrote
    Text quoted{};            ///< on a reply: the earlier message
    bool small_quote = false; ///< the earlier message stands in small letters
    Text signature_name{};
    Text template_text{insertion_marker}; ///< one that can't be read loses nothing: the message stands alone
    std::size_t marker = 0;               ///< where the message goes in the template
    Text result{};
    bool refused = false; ///< the template's script was: nothing else runs
    bool log_usage = false;

    const settings::Store& settings() const { return services.settings; }
    bool is_on(const settings::SwitchKey& key) const { return settings::is_on(services.settings, key); }
    Text read(const auto& key) const { return settings::read(services.settings, key); }
    bool is_reply() const { return request.reply.found; }
    bool for_preview() const { return request.purpose == Purpose::preview; }
    /// What goes into the template: the user's text, on a reply without the earlier message.
    Text& body() { return is_reply() ? new_text : message; }
    bool takes_message() const { return marker != Text::npos; }
    void keep_beginning() { beginning = message.substr(0, 50); }
};

/// The path itself, or the first HTML file of the folder when there is no such file; an empty folder leaves
/// the path.
Text path_or_first_of(const Composition& c, const Text& path, const settings::PathKey& folder);

/// The trap of a step that has no name of its own, and the places of two that stand inside steps.
inline constexpr TrapName any_step{u"CreateHTMLBody", u"CreateHTM_Err"};
inline constexpr TextView reply_cut = u"cut at the reply's marker", merge_group = u"a group of the merge";

// clean_up_steps.cpp
void find_template(Composition& c);
void write_before(Composition& c);
void stamp_date(Composition& c);
void wipe_out_HTML(Composition& c);
void break_font_control(Composition& c);
void remove_divisions(Composition& c);
void end_divisions(Composition& c);
void break_block_quotes(Composition& c);
void write_after(Composition& c);
void break_rules(Composition& c);

// source_steps.cpp
void look_at_item(Composition& c);
void read_Word_document(Composition& c);
void link_addresses(Composition& c);
void wrap_lines(Composition& c);
void replace_tabs(Composition& c);
void cut_reply(Composition& c);

// layout_steps.cpp
void choose_signature(Composition& c);
void append_signature(Composition& c);
void read_template(Composition& c);
void ask_about_script(Composition& c);
void find_marker(Composition& c);
void insert_message(Composition& c);
void break_reply_tags(Composition& c);
void shrink_reply_font(Composition& c);
void insert_reply(Composition& c);

// field_steps.cpp
void fill_contact_fields(Composition& c);
void log_usage(Composition& c);
void merge_fields(Composition& c);

} // namespace ornavel::compose
