#pragma once

#include "rehearsal/player.h"
#include "rehearsal/windows/dispatch_server.h"
#include "rehearsal/windows/launch_recorder.h"
#include "win32/extensibility.h"

namespace ornavel::rehearsal {

/// Ornavel.dll in the add-in's folder, registered, for as long as this is kept.
class InstalledDll {
public:
    explicit InstalledDll(TextView folder);
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
    explicit DllAddIn(std::shared_ptr<Subscriptions> subscriptions);

    void connect(const host::ObjectPtr& application, int mode) override;
    void start() override;
    void update() override;
    void shutdown() override;
    void disconnect(int remove_mode) override;

private:
    std::shared_ptr<Subscriptions> subscriptions_;
    win32::ComPtr<win32::IDTExtensibility2> add_in_;
    bool was_connected_ = false;
};

} // namespace ornavel::rehearsal
