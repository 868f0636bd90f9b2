#include "programs/site_assistant/sample_letter.h"

#include "base/scratch_disk.h"
#include "compose/composer.h"
#include "compose/insertions.h"
#include "host/paper_mail.h"
#include "programs/site_assistant/checks.h"

namespace ornavel::programs {
namespace {

using namespace settings;

constexpr TextView message = u"<html><body><p>Dear Ann,</p><p>this is how your messages will look: the "
                             u"letterhead around the text, and your signature below it.</p><p>Kind "
                             u"regards</p></body></html>";

/// In bytes. Nobody sends so much with each message.
constexpr std::size_t largest_template = 4'000'000;

/// A sample has nobody to ask and nothing to log.
class Nobody final : public MessageBoxes, public diagnostics::ErrorReports, public host::Objects {
public:
    Answer show(TextView, TextView, Buttons buttons) override {
        return buttons == Buttons::ok ? Answer::ok : Answer::no;
    }
    void take(TextView, TrapName) noexcept override {}
    std::optional<diagnostics::ErrorReport> log_error(TextView, TrapName) noexcept override { return {}; }
    void mail_report(const diagnostics::ErrorReport&) noexcept override {}
    host::ObjectPtr create(TextView prog_id) override {
        throw host::Error(u"ActiveX component can't create object", Text(prog_id));
    }
    host::ObjectPtr get(TextView moniker) override { return create(moniker); }
};

bool is_too_large(const Store& settings, const Files& files) {
    std::size_t size = 0;
    attempt([&] {
        const auto path =
            template_in_use(files, read(settings, admin::HTMFilesPath), read(settings, user::Template));
        if (path) size = files.read(*path).size();
    });
    return size > largest_template;
}

} // namespace

Text sample_letter(Store& settings, const Files& files, const Clock& clock) {
    if (is_too_large(settings, files))
        return u"<html><body><p>This template is too large to be shown here. Every message would carry all "
               u"of it.</p></body></html>";
    ScratchDisk disk(files);
    Nobody nobody;
    host::Letter letter;
    letter.html_body = message;
    const host::Application application = host::paper_application(letter);
    const host::MailItem item = host::paper_item(letter);
    const compose::StartUpValues start_up;
    if (is_on(settings, user::SendQuote)) compose::GetNextQuote(settings, disk, nobody);
    const compose::Services services{settings, disk, clock, nobody, nobody, nobody, application, start_up};
    return compose::CreateHTMLBody(services, {.item = item,
                                              .source = letter.html_body,
                                              .template_path = read(settings, admin::HTMFilesPath) + u"\\" +
                                                               trim(read(settings, user::Template)),
                                              .purpose = compose::Purpose::preview})
        .html;
}

} // namespace ornavel::programs
