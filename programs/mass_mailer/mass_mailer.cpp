#include "programs/mass_mailer/mass_mailer.h"

#include "diagnostics/error_log.h"
#include "programs/mass_mailer/frmMassMailer.h"

namespace ornavel::programs {
namespace {

using namespace settings;

/// Errors of which the user hears nothing else.
class LoggedErrors final : public ErrorSink {
public:
    explicit LoggedErrors(const Platform& platform)
        : log_(platform.settings, platform.files, platform.clock, platform.folder) {}
    void take(TextView description, TrapName name) noexcept override {
        attempt([&] { log_.append_error(description, name); });
    }

private:
    diagnostics::ErrorLog log_;
};

/// Where the preview window left the message.
Text page_path(const Platform& platform) {
    Text folder = read(platform.settings, admin::BrowserPath);
    if (folder.empty()) folder = read(platform.settings, admin::ApplicationPath, platform.folder);
    return folder + u"\\myTestHtmlFile.html";
}

int send_to_many(const Platform& platform) {
    Text page;
    try {
        page = read_text(platform.files, page_path(platform));
    } catch (const Failure& failure) {
        throw Failure(u"There is no message to send. Press Send to Many in the preview of a message.\r\n" +
                      failure.description());
    }
    LoggedErrors errors(platform);
    ornavel::mass_mailer::frmMassMailer window(platform, errors, std::move(page));
    platform.windows.show_modal(window.form());
    return ended;
}

} // namespace

const Program mass_mailer{u"MassMailer.exe", ornavel::mass_mailer::window_title, send_to_many};

} // namespace ornavel::programs
