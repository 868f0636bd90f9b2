#include "rehearsal/native/native_play.h"

#include "connect/connect.h"
#include "rehearsal/native/apart.h"
#include "rehearsal/native/form_player.h"
#include "rehearsal/native/memory_machine.h"
#include "rehearsal/native/watching.h"
#include "rehearsal/options_dialog.h"
#include "rehearsal/outcome.h"
#include "rehearsal/turn.h"

#include <fstream>
#include <iostream>

namespace ornavel::rehearsal {
namespace {

/// The page of the add-in in this program; nothing that fails in it gets out, as in the DLL.
class NativePage final : public HostedPage {
public:
    explicit NativePage(forms::frmPropPage& page) : page_(page) {}
    void take(const Step& step) override { take_one_step(step, page_.form()); }
    bool is_dirty() override {
        const AddInsTurn turn;
        bool dirty = false;
        attempt([&] { dirty = page_.is_dirty(); });
        return dirty;
    }
    void apply() override {
        const AddInsTurn turn;
        attempt([&] { page_.apply(); });
    }

private:
    forms::frmPropPage& page_;
};

/// A disconnected add-in stays until the end, or until the next connection, so that what it failed to
/// release is seen.
class NativeAddIn final : public AddIn {
public:
    NativeAddIn(connect::Platform platform, MemoryMachine& machine)
        : platform_(std::move(platform)), machine_(machine),
          connect_(std::make_unique<connect::Connect>(platform_)) {}

    void make() override {
        if (was_connected_) connect_ = std::make_unique<connect::Connect>(platform_);
        was_connected_ = true;
    }
    void connect(const host::ObjectPtr& application, int mode) override {
        const AddInsTurn turn;
        connect_->OnConnection(host::Application(application), mode);
    }
    void start() override {
        const AddInsTurn turn;
        connect_->OnStartupComplete();
    }
    void update() override {
        const AddInsTurn turn;
        connect_->OnAddInsUpdate();
    }
    void shutdown() override {
        const AddInsTurn turn;
        connect_->OnBeginShutdown();
    }
    void disconnect(int remove_mode) override {
        const AddInsTurn turn;
        connect_->OnDisconnection(remove_mode);
    }
    Text custom_ui(TextView ribbon_id) override {
        const AddInsTurn turn;
        return connect::Connect::GetCustomUI(ribbon_id);
    }
    host::Value run_callback(const Text& name, const host::ObjectPtr& argument) override {
        const AddInsTurn turn;
        const auto number = connect::Connect::find_ribbon_callback(name);
        if (!number) throw host::Error(u"Object doesn't support this property or method");
        return connect_->run_ribbon_callback(*number, argument);
    }
    void show_page(const host::ObjectPtr&, const Act& act) override {
        OptionsDialog dialog;
        std::unique_ptr<forms::frmPropPage> page;
        attempt([&] {
            const AddInsTurn turn;
            page = connect_->make_options_page([&] { dialog.status_changed(); });
            page->form().load();
        });
        if (!page) return;
        NativePage hosted(*page);
        machine_.show_page(page->form(), act, [&] { dialog.play(hosted, act.page); });
    }

private:
    connect::Platform platform_;
    MemoryMachine& machine_;
    std::unique_ptr<connect::Connect> connect_;
    bool was_connected_ = false;
};

constexpr int played = 0, unusable = 2;

int play_into(const std::string& file, const Scenario& scenario, const std::string& source) {
    std::ofstream stream(file, std::ios::binary);
    Journal journal;
    try {
        stream << to_json_text(play_here(scenario, source, journal));
    } catch (const Unusable& error) {
        stream << error.what();
        return unusable;
    }
    return played;
}

} // namespace

Json play_here(const Scenario& scenario, const std::string& source, Journal& journal) {
    Failures failures(scenario.fail);
    return play_here(scenario, source, journal, failures);
}

Json play_here(const Scenario& scenario, const std::string& source, Journal& journal, Failures& failures) {
    MemoryMachine machine(scenario, source, failures, journal);
    machine.prepare(scenario);
    const Snapshot before = machine.snapshot();
    MailClient client(scenario, machine, failures, journal);
    const WatchedStrings strings(journal);
    const auto on_gate = [&](TextView gate, connect::Verdict verdict) {
        const MachinesTurn turn;
        journal.note(Deed::gate, Text(gate), name_of(verdict));
    };
    const auto on_trap = [&](TrapName trap) {
        const MachinesTurn turn;
        journal.note(Deed::trap, name_of(trap), as_logged(trap));
    };
    NativeAddIn addin(
        connect::Platform{.settings = machine.addin_settings(),
                          .files = machine.addin_files(),
                          .clock = machine.addin_clock(),
                          .launcher = machine.addin_launcher(),
                          .objects = client,
                          .windows = machine.addin_windows(),
                          .strings = strings,
                          .machine = machine.addin_machine(),
                          .addin_folder = scenario.computer.addin_folder,
                          .application_data = application_data(scenario.computer),
                          .user_folder = application_data(scenario.computer) + u"\\Brevant\\Ornavel",
                          .on_gate = on_gate,
                          .on_trap = on_trap,
                          .tray = &machine.addin_tray()},
        machine);
    Player player(scenario, source, client, machine, addin);
    player.play();
    return write_outcome(scenario, player, client, machine, before);
}

Json play_natively(const Scenario& scenario, const std::string& source) {
    const ScratchFolder scratch;
    const std::string out = scratch / "outcome.json";
    std::cout.flush();
    const int code = run_apart([&] { return play_into(out, scenario, source); });
    return collect_outcome(code, out, scenario, source);
}

} // namespace ornavel::rehearsal
