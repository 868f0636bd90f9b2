#pragma once

#include "connect/platform.h"
#include "host/application.h"

#include <memory>

namespace ornavel::connect {

/// How the mail client disconnects an add-in: 0 when it closes, another number when the user unloads it.
enum class RemoveMode : int { host_shutdown = 0, user_closed = 1 };

/// The add-in's connection class: the mail client's calls arrive here, and every reference to a host object
/// is kept and released here. No handler throws.
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
    void OnDisconnection(int remove_mode) noexcept;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace ornavel::connect
