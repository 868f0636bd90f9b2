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
constexpr std::size_t largest_file = 4'000'000;

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

/// In bytes; nothing of a file that can't be read.
std::size_t size_of(const Files& files, const std::optional<Text>& path) {
    std::size_t size = 0;
    attempt([&] {
        if (path) size = files.read(*path).size();
    });
    return size;
}

/// What is too large to be shown; empty where nothing is.
TextView too_large(const Store& settings, const Files& files) {
    const Text signature =
        read(settings, admin::SignaturesPath) + u"\\" + trim(read(settings, user::Signature));
    if (size_of(files, template_in_use(files, read(settings, admin::HTMFilesPath),
                                       read(settings, user::Template))) > largest_file)
        return u"This template";
    return size_of(files, signature) > largest_file ? u"This signature" : TextView();
}

} // namespace

Text sample_letter(Store& settings, const Files& files, const Clock& clock) {
    if (const TextView what = too_large(settings, files); !what.empty())
        return u"<html><body><p>" + Text(what) +
               u" is too large to be shown here. Every message would carry all of it.</p></body></html>";
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
