#include "host/versions.h"

namespace ornavel::host {
namespace {

int kind_by_body_format(const MailItem& item) {
    int format = html_editor;
    attempt([&] { format = item.body_format(); });
    const bool is_known = format == plain_text_editor || format == rich_text_editor;
    return is_known ? format : html_editor;
}

} // namespace

int major_version(TextView version) {
    if (version.find_first_of(u"0123456789") != 0) return 0;
    return static_cast<int>(numeric_value(version.substr(0, 2)));
}

int major_version(const Application& application) noexcept {
    int major = 0;
    attempt([&] { major = major_version(application.version()); });
    return major;
}

int kind_of(const MailItem& item, const Application& application) {
    if (major_version(application) >= first_with_word_alone) return kind_by_body_format(item);
    return item.inspector().editor_type();
}

} // namespace ornavel::host
