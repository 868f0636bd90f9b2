#pragma once

#include "connect/platform.h"
#include "host/application.h"

#include <memory>

namespace ornavel::connect {

struct Session;

/// The add-in's connection class: the mail client's calls and events arrive here, and every reference to a
/// host object is kept and released here. No handler throws.
class Connect {
public:
    explicit Connect(Platform platform);
    ~Connect();
    Connect(const Connect&) = delete;
    Connect& operator=(const Connect&) = delete;

    void OnConnection(host::Application application) noexcept;
    void OnStartupComplete() noexcept;
    void OnAddInsUpdate() noexcept;
    void OnBeginShutdown() noexcept;
    /// remove_mode: 0 when the mail client closes, another number when the user unloads the add-in.
    void OnDisconnection(int remove_mode) noexcept;

private:
    void OptionsPagesAdd(const host::PropertyPages& pages) noexcept;
    void hook_active_explorer();
    void myActiveExplorer_Close() noexcept;
    void VarCleanup() noexcept;

    std::unique_ptr<Session> session_;
};

} // namespace ornavel::connect
