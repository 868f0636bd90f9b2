#pragma once

#include "rehearsal/player.h"
#include "rehearsal/windows/dispatch_server.h"
#include "rehearsal/windows/windows_machine.h"
#include "win32/extensibility.h"
#include "win32/ribbon_extensibility.h"

namespace ornavel::rehearsal {

/// Ornavel.dll in the add-in's folder, registered, for as long as this is kept.
class InstalledDll {
public:
    explicit InstalledDll(TextView folder);
    /// The page's class can no longer be made by its name.
    static void forget_page();
    ~InstalledDll();
    InstalledDll(const InstalledDll&) = delete;
    InstalledDll& operator=(const InstalledDll&) = delete;
    HMODULE module() const { return module_; }

private:
    Text path_;
    HMODULE module_;
};

/// The add-in in its DLL, made by its programmatic identifier. A disconnected add-in stays until the end, or
/// until the next connection, so that what it failed to release is seen.
class DllAddIn final : public AddIn {
public:
    DllAddIn(std::shared_ptr<Subscriptions> subscriptions, WindowsMachine& machine);

    void make() override;
    void connect(const host::ObjectPtr& application, int mode) override;
    void start() override;
    void update() override;
    void shutdown() override;
    void disconnect(int remove_mode) override;
    Text custom_ui(TextView ribbon_id) override;
    host::Value run_callback(const Text& name, const host::ObjectPtr& argument) override;
    void show_page(const host::ObjectPtr& page, const Act& act) override { machine_.show_page(page, act); }

private:
    std::shared_ptr<Subscriptions> subscriptions_;
    WindowsMachine& machine_;
    win32::ComPtr<win32::IDTExtensibility2> add_in_;
    win32::ComPtr<win32::IRibbonExtensibility> ribbon_;
    bool was_connected_ = false;
};

} // namespace ornavel::rehearsal
