#include "connect/connect.h"

namespace ornavel::connect {

struct Connect::State {
    Platform platform;
    host::Application oHostApp;
};

Connect::Connect(Platform platform) : state_(std::make_unique<State>(State{std::move(platform), {}})) {}
Connect::~Connect() = default;

void Connect::OnConnection(host::Application application) noexcept { state_->oHostApp = std::move(application); }
void Connect::OnStartupComplete() noexcept {}
void Connect::OnAddInsUpdate() noexcept {}
void Connect::OnBeginShutdown() noexcept {}
void Connect::OnDisconnection(int) noexcept {}

} // namespace ornavel::connect
