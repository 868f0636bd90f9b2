#pragma once

#include "rehearsal/model/mail_client.h"

namespace ornavel::rehearsal {

/// The add-in as the mail client sees it: in this program, or in a DLL. What it throws has reached the host.
class AddIn : public RibbonAddIn {
public:
    /// The mail client makes the add-in's object, to connect it.
    virtual void make() = 0;
    virtual void connect(const host::ObjectPtr& application, int mode) = 0;
    virtual void start() = 0;
    virtual void update() = 0;
    virtual void shutdown() = 0;
    virtual void disconnect(int remove_mode) = 0;
    /// Does what the user does in the Options dialog with the page that the add-in gave it.
    virtual void show_page(const host::ObjectPtr& page, const Act& act) = 0;
};

/// Plays a scenario's acts, one by one, to the end or to the first exception that reaches the host.
class Player {
public:
    Player(const Scenario& scenario, std::string source, MailClient& client, Machine& machine, AddIn& addin);

    /// Throws Unusable for an act that there is no means for.
    void play();

    const Json& acts() const { return acts_; }
    /// Null, or what reached the host.
    const Json& error() const { return error_; }

private:
    void play_act(const Act& act, Json& record);
    void connect(int mode);
    void disconnect(int remove_mode);
    void send(int item, Json& record);
    void dress(const Act& act, Json& record);
    void run(const Act& act, Json& record);
    void click(const Act& act);
    void page(const Act& act);
    [[noreturn]] void refuse(const Act& act, const std::string& reason) const;

    const Scenario& scenario_;
    std::string source_;
    MailClient& client_;
    Machine& machine_;
    AddIn& addin_;
    bool connected_ = false;
    Json acts_ = Json::array();
    Json error_;
};

} // namespace ornavel::rehearsal
