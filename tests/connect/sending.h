#pragma once

#include "connect/connect.h"
#include "tests/connect/staged_platform.h"

#include <gtest/gtest.h>

#include <map>

namespace ornavel::connect {

/// Settings that an administrator, or another program, changes while the add-in reads them.
class ChangingStore final : public settings::Store {
public:
    explicit ChangingStore(settings::Store& stored) : stored_(stored) {}

    /// The next so many reads of the key still find what is stored; all reads after them find this value.
    void change_after(int reads, const settings::Key& key, TextView value) {
        changes_[{Text(key.section), Text(key.name)}] = {reads, Text(value)};
    }

    std::optional<Text> find(TextView section, TextView key) const noexcept override {
        const auto change = changes_.find({Text(section), Text(key)});
        if (change == changes_.end() || change->second.reads_left-- > 0) return stored_.find(section, key);
        change->second.reads_left = 0;
        return change->second.value;
    }
    bool save(TextView section, TextView key, TextView value) noexcept override {
        return stored_.save(section, key, value);
    }
    bool remove(TextView section, TextView key) noexcept override { return stored_.remove(section, key); }

private:
    struct Change {
        int reads_left = 0;
        Text value;
    };
    settings::Store& stored_;
    mutable std::map<std::pair<Text, Text>, Change> changes_;
};

/// The whole add-in, connected and started on a machine in memory, with one item to send.
class Sending : public testing::Test {
protected:
    Sending() {
        addin.OnConnection(stage.application(), Connect::at_startup);
        addin.OnStartupComplete();
    }
    ~Sending() override {
        addin.OnBeginShutdown();
        addin.OnDisconnection(0);
        EXPECT_EQ(stage.held(), 0u);
    }

    /// Whether the add-in cancelled it.
    bool send() { return stage.client.send(item()); }
    rehearsal::MailItemNode& item() { return *stage.client.items[0]; }
    void set(const settings::Key& key, TextView value) { settings::save(store, key, value); }

    rehearsal::Stage stage{R"({
        "settings": {"Admin Settings": {"SigEmail": "jo@example.com", "SigWebsite": "www.example.com",
                                        "StartupSetupWiz": "False", "HTM Files Path": "C:\\stationery",
                                        "ErrorFileLocation": "C:\\log.txt", "ApplicationPath": "C:\\app"},
                     "User Settings": {"SettingButtonBar": "auto", "Template": "letter.htm", "Signature": "none"}},
        "files": {"C:\\stationery\\letter.htm": "<[#Input your message here#]>[#SigFullname#]\r\n"},
        "folders": ["C:\\app"],
        "items": [{"Subject": "Hello", "Body": "Hello", "HTMLBody": "<p>Hello</p>"}],
        "do": []})"};
    ChangingStore store{stage.machine.addin_settings()};
    std::vector<Text> passed;
    Connect addin{platform()};

private:
    Platform platform() {
        Platform platform = platform_of(stage, {.settings = &store});
        platform.on_gate = [this](TextView gate, Verdict verdict) {
            if (verdict != Verdict::leave) passed.emplace_back(gate);
        };
        return platform;
    }
};

} // namespace ornavel::connect
