#pragma once

#include "connect/platform.h"
#include "forms/frmPropPage.h"
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

    /// How the mail client loads the add-in: only at its own start does it call OnStartupComplete later.
    enum ConnectMode : int { after_startup = 0, at_startup = 1 };

    void OnConnection(host::Application application, int mode) noexcept;
    void OnStartupComplete() noexcept;
    void OnAddInsUpdate() noexcept;
    void OnBeginShutdown() noexcept;
    /// remove_mode: 0 when the mail client closes, another number when the user unloads the add-in.
    void OnDisconnection(int remove_mode) noexcept;

    /// What the add-in puts on the ribbon, and its callbacks: see connect/ribbon.h. The markup is empty where
    /// there is no memory for it.
    static Text GetCustomUI(TextView ribbon_id) noexcept;
    static std::optional<int> find_ribbon_callback(TextView name) noexcept;
    host::Value run_ribbon_callback(int callback, const host::ObjectPtr& argument) noexcept;

    /// The page for the mail client's Options dialog. on_status_change is told each change that the user
    /// makes on it. This outlives the page.
    std::unique_ptr<forms::frmPropPage> make_options_page(std::function<void()> on_status_change);

private:
    void OptionsPagesAdd(const host::PropertyPages& pages) noexcept;
    void subscribe() noexcept;
    void start_up() noexcept;
    void hook_first_explorer();
    void hook(host::Explorer explorer);
    void NewExplorer(const host::Explorer& explorer) noexcept;
    void myActiveExplorer_Close() noexcept;
    void VarCleanup() noexcept;

    std::unique_ptr<Session> session_;
};

} // namespace ornavel::connect
