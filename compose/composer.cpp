#include "compose/composer.h"

#include <iterator>

namespace ornavel::compose {
namespace {

using namespace settings;

constexpr TextView insertion_marker = u"[#Input your message here#]";

/// One message on its way: the texts that the steps work on.
struct Composition {
    Services services;
    Shared& shared;
    Text& message;
    Text& template_path;
    Text signature_name;
    Text signature;
    Text result;
};

bool file_exists(const Composition& c, TextView path) { return c.services.files.file_exists(path); }

/// The path itself, or the first HTML file of the folder when there is no such file; an empty folder leaves
/// the path.
Text path_or_first_of(const Composition& c, const Text& path, const Key& folder_setting) {
    if (file_exists(c, path)) return path;
    const Text folder = read(c.services.settings, folder_setting);
    const auto first = first_html_file(c.services.files, folder);
    return first ? folder + u"\\" + *first : path;
}

void find_template(Composition& c) {
    c.template_path = path_or_first_of(c, c.template_path, admin::HTMFilesPath);
}

void choose_signature(Composition& c) {
    c.signature_name = c.shared.signature_from_settings
                           ? trim(read(c.services.settings, user::Signature, u"none"))
                           : trim(c.shared.form_signature);
}

void append_signature(Composition& c) {
    if (c.signature_name.empty() || c.signature_name == u"none") return;
    const Text path = read(c.services.settings, admin::SignaturesPath) + u"\\" + c.signature_name;
    const Text text =
        read_lines(c.services.files, path_or_first_of(c, path, admin::SignaturesPath), line_end);
    c.message += u"<P>" + text;
}

void read_template(Composition& c) {
    // Until the template is read, the message stands for the result: a template that fails loses nothing.
    c.result = c.message;
    c.result = read_lines(c.services.files, c.template_path, line_end);
}

void insert_message(Composition& c) {
    const auto marker = c.result.find(insertion_marker);
    if (marker != Text::npos) c.result.replace(marker, insertion_marker.size(), c.message);
}

void merge_signature_fields(Composition& c) {
    const Store& store = c.services.settings;
    c.result = replace_all(c.result, u"[#SigFullname#]", read(store, admin::SigFullname));
    c.result = replace_all(c.result, u"[#SigEmail#]", read(store, admin::SigEmail));
}

void fill_background_colour(Composition& c) {
    c.result = replace_all(c.result, u"[#SigBGColor#]", read(c.services.settings, admin::SigBGColor));
}

struct Step {
    void (*run)(Composition&);
    Place trap;
};

constexpr Place any_step{u"CreateHTMLBody", u"CreateHTM_Err"};

constexpr Step steps[] = {
    {find_template, any_step},
    {choose_signature, any_step},
    {append_signature, {u"CreateHTMLBody", u"Signature_Err"}},
    {read_template, {u"CreateHTMLBody- error in htm file", u"NoFile_Err"}},
    {insert_message, any_step},
    {merge_signature_fields, any_step},
    {fill_background_colour, any_step},
};

} // namespace

Text CreateHTMLBody(Services services, Shared& shared, Text& body, Text& template_path) noexcept {
    Composition composition{services, shared, body, template_path, {}, {}, {}};
    for (const Step& step : steps) trap(services.errors, step.trap, [&] { step.run(composition); });
    return std::move(composition.result);
}

} // namespace ornavel::compose
