#pragma once

#include "base/files.h"
#include "host/object.h"
#include "rehearsal/scenario.h"

#include <map>
#include <set>

namespace ornavel::rehearsal {

/// The registry's and the disk's order: names without case.
struct NameOrder {
    using is_transparent = void;
    bool operator()(TextView left, TextView right) const { return name_before(left, right); }
};
template <class Value>
using ByName = std::map<Text, Value, NameOrder>;

/// Everything that an add-in can leave behind on a machine, at one moment.
struct Snapshot {
    ByName<ByName<SettingValue>> settings;
    ByName<std::string> files; ///< full path and bytes
    std::set<Text, NameOrder> folders;
    ByName<ByName<RegistryValue>> registry;
};

/// The registry, by full key.
class Registry {
public:
    virtual ~Registry() = default;
    virtual std::optional<RegistryValue> find(TextView key, TextView name) const = 0;
    /// Makes the key when it is missing.
    virtual void set(TextView key, TextView name, RegistryValue value) = 0;
    /// Deletes the key with its values. False when there is no such key, or when keys stand below it; it then
    /// stays.
    virtual bool remove_key(TextView key) = 0;
};

/// The machine that the add-in runs on during a rehearsal: in memory, or a real one. What fails throws
/// Failure; what the machine has no means for is Unusable.
class Machine {
public:
    virtual ~Machine() = default;

    /// Makes the scenario's world out of nothing.
    virtual void prepare(const Scenario& scenario) = 0;
    virtual Snapshot snapshot() const = 0;

    /// The files as the mail client itself uses them: such a use can't fail and is in no journal, as the
    /// add-in's can and is.
    virtual Files& files() = 0;
    virtual Registry& registry() = 0;
    /// With everything in it.
    virtual void remove_folder(TextView path) = 0;
    /// The mail client's editor keeps a file open, until it lets go of all: others can read it only.
    virtual void hold(TextView path) = 0;
    virtual void let_go() = 0;

    virtual void change_settings(const SettingsTree& settings) = 0;
    virtual void set_clock(const LocalTime& time) = 0;

    /// Does what the user does at the tray icon. False when no icon is shown, or when its menu lacks the
    /// entry that the act names.
    virtual bool tray(const Act& act) = 0;
    /// Shows the prompt form in that mode, as the add-in's own code would, and gives back what the user
    /// answered; nothing where the machine has no way to show that form by itself.
    virtual std::optional<Text> prompt(TextView mode) = 0;

    /// Runs one of the add-in's own programs to its end, with these objects, and gives its exit code; nothing
    /// where there is no such program.
    virtual std::optional<int> run(TextView program, TextView arguments, host::Objects& objects) = 0;

    /// Why the scripted user could not go on, when that is so.
    virtual std::optional<std::string> complaint() const = 0;

    /// What was started and shown, in order, as the outcome writes it.
    virtual Json launched() const = 0;
    virtual Json windows() const = 0;
    virtual Json tray_outcome() const = 0;
};

} // namespace ornavel::rehearsal
