#include "connect/connect.h"

#include "connect/environment.h"
#include "connect/message_windows.h"
#include "connect/ribbon.h"
#include "connect/scratch_files.h"
#include "connect/send_pipeline.h"
#include "connect/session.h"
#include "connect/setup_program.h"
#include "connect/system_test.h"
#include "connect/toolbar.h"
#include "connect/tray.h"
#include "connect/user_folder.h"

namespace ornavel::connect {
namespace {

using namespace settings;

/// The explorers that are open; nothing when the host is released or can't say.
std::optional<int> explorer_count(const Session& session) noexcept {
    std::optional<int> count;
    if (session.host.oHostApp) attempt([&] { count = session.host.oHostApp.explorers().count(); });
    return count;
}

/// Another explorer than the one that closes, which still counts and is usually still the active one; nothing
/// where there is none.
host::Explorer another_than(const host::Explorer& closing, const host::Application& application) {
    const host::Explorers explorers = application.explorers();
    const int count = explorers.count();
    for (int index = 1; index <= count; ++index)
        if (host::Explorer explorer = explorers.item(index); !explorer.is_same(closing)) return explorer;
    return {};
}

} // namespace

Connect::Connect(Platform platform) : session_(std::make_unique<Session>(std::move(platform))) {}

Connect::~Connect() = default;

void Connect::OnConnection(host::Application application, int mode) noexcept {
    Session& session = *session_;
    session.started = session.released = false;
    make_user_folders(session); // before the first record goes into its log
    record(session, u"Fired", u"", u"On Connection");
    session.host.oHostApp = std::move(application);
    subscribe();
    attempt([&] { hook_first_explorer(); });
    if (is_on(session.platform.settings, admin::SysTray)) show_tray_icon(session);
    start_setup_program_when_due(session);
    offer_system_test(session);
    if (mode != at_startup) start_up();
    record(session, u"Exiting sub", u"", u"Bottom");
}

/// Without its events the add-in is dead: the log tells, and nobody is asked.
void Connect::subscribe() noexcept {
    Session& session = *session_;
    trap(session.quiet_errors, {u"OnConnection", u"Error hooking the mail client's events"}, [&] {
        session.host.application_events = session.host.oHostApp.on_events(
            {.item_send =
                 [this](const host::MailItem& item, bool& cancel) {
                     const auto kept = session_->platform.kept();
                     ol_ItemSend(*session_, item, cancel);
                 },
             .options_pages_add = [this](const host::PropertyPages& pages) { OptionsPagesAdd(pages); }});
    });
}

void Connect::OnStartupComplete() noexcept {
    if (!session_->started) start_up();
}

void Connect::start_up() noexcept {
    Session& session = *session_;
    session.started = true;
    prepare_environment(session);
    // Behind the imports, which may set them.
    attempt([&] { read_working_folders(session); });
    add_buttons(session);
    watch_message_windows(session);
    record(session, u"Calling Get_Marketing_Info", u"", u"On StartupComplete");
    attempt([&] { session.start_up.usage_log = compose::Get_Marketing_Info(session.platform.settings); });
    session.dialog_answer = true;
    session.language = u"English";
    refresh_ribbon(session); // the imports may have set what it shows
}

void Connect::OnAddInsUpdate() noexcept {
    record(*session_, u"Fired", u"Top- no code here", u"OnAddInsUpdate");
}

void Connect::OnBeginShutdown() noexcept {
    record(*session_, u"Fired", u"", u"OnBeginShutdown");
    record(*session_, u"Calling VarCleanup", u"", u"OnBeginShutdown");
    VarCleanup();
    record(*session_, u"Exiting Sub", u"", u"Bottom");
}

void Connect::OnDisconnection(int remove_mode) noexcept {
    Session& session = *session_;
    record(session, u"Fired", u"", u"OnDisconnection");
    if (remove_mode != 0) remove_buttons(session);
    if (is_on(session.platform.settings, admin::SysTray)) record(session, u"True", u"", u"Systray");
    remove_tray_icon(session);

    // Counted before the first clean-up lets the application go.
    const bool explorers_left = explorer_count(session).value_or(0) > 0;
    record(session, u"Calling VarCleanup", u"", u"OnDisconnection");
    VarCleanup();
    if (explorers_left) {
        record(session, u"Explorer count > 0", u"", u"Calling VarCleanup");
        VarCleanup();
    }
    remove_scratch_files(session);
    record(session, u"exiting sub", u"", u"Bottom");
}

void Connect::OptionsPagesAdd(const host::PropertyPages& pages) noexcept {
    attempt([&] {
        if (!is_on(session_->platform.settings, admin::ShowOptionsPage)) return;
        pages.add(host::create_options_page(session_->platform.objects), u"Ornavel");
    });
}

Text Connect::GetCustomUI(TextView ribbon_id) noexcept {
    Text markup;
    attempt([&] { markup = connect::GetCustomUI(ribbon_id); });
    return markup;
}

std::optional<int> Connect::find_ribbon_callback(TextView name) noexcept {
    std::optional<int> number;
    attempt([&] { number = connect::find_ribbon_callback(name); });
    return number;
}

host::Value Connect::run_ribbon_callback(int callback, const host::ObjectPtr& argument) noexcept {
    return connect::run_ribbon_callback(*session_, callback, argument);
}

std::unique_ptr<forms::frmPropPage> Connect::make_options_page(std::function<void()> on_status_change) {
    const Platform& platform = session_->platform;
    return std::make_unique<forms::frmPropPage>(forms::frmPropPage::Needs{
        platform.settings, platform.files, platform.windows, platform.launcher, platform.addin_folder,
        [this](TextView before, TextView now) { connect::change_mode(*session_, before, now); },
        std::move(on_status_change)});
}

/// The active one; where the mail client was opened without any, the first that it opens.
void Connect::hook_first_explorer() {
    HostReferences& host = session_->host;
    if (host::Explorer active = host.oHostApp.active_explorer()) return hook(std::move(active));
    host.explorers_events =
        host.oHostApp.explorers().on_new([this](const host::Explorer& explorer) { NewExplorer(explorer); });
}

void Connect::hook(host::Explorer explorer) {
    HostReferences& host = session_->host;
    host.explorer_events.reset();
    host.myActiveExplorer = std::move(explorer);
    if (!host.myActiveExplorer) return;
    trap(session_->quiet_errors, {u"OnConnection", u"Error hooking the explorer"}, [&] {
        host.explorer_events = host.myActiveExplorer.on_close([this] {
            const auto kept = session_->platform.kept();
            myActiveExplorer_Close();
        });
    });
}

void Connect::NewExplorer(const host::Explorer& explorer) noexcept {
    Session& session = *session_;
    const auto kept = session.platform.kept();
    session.host.explorers_events.reset();
    attempt([&] { hook(explorer); });
    if (session.started) add_buttons(session);
}

void Connect::myActiveExplorer_Close() noexcept {
    Session& session = *session_;
    record(session, u"Fired", u"", u"MyActiveExplorer sub");
    const auto count = explorer_count(session);
    if (count && *count < 2) {
        attempt([&] {
            record(session, u"Calling Varcleanup", u"", u"Explorer count <= 1 (Count is " + to_text(*count));
        });
        VarCleanup();
    } else {
        attempt([&] { hook(another_than(session.host.myActiveExplorer, session.host.oHostApp)); });
    }
    if (session.host.myActiveExplorer) record(session, u"Not Nothing", u"", u"MyActiveExplorer sub");
    record(session, u"Exited", u"", u"Bottom");
}

void Connect::VarCleanup() noexcept {
    Session& session = *session_;
    HostReferences& host = session.host;
    host.application_events.reset();
    host.explorers_events.reset();
    host.explorer_events.reset();
    host.mode_button_events.reset();
    host.setup_button_events.reset();
    forget_message_windows(session);
    forget_ribbon(session);
    session.released = true;
    host.myActiveExplorer.release();

    const std::pair<TextView, host::View*> members[] = {
        {u"oHostApp", &host.oHostApp},
        {u"oCommandBars", &host.oCommandBars},
        {u"oStandardBar", &host.oStandardBar},
        {u"myButtonSetting", &host.myButtonSetting},
        {u"MyButtonConfigWiz", &host.MyButtonConfigWiz},
        {u"MyMessItem", &host.MyMessItem},
    };
    for (const auto& [name, member] : members) {
        if (!*member) continue;
        member->release();
        record(session, name, u"Not Nothing", u"VarCleanup");
    }
}

} // namespace ornavel::connect
