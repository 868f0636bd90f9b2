#pragma once

#include "compose/composer.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/prepared_objects.h"
#include "tests/fakes/recording_object.h"
#include "tests/fakes/recording_reports.h"
#include "tests/fakes/scripted_boxes.h"

#include <gtest/gtest.h>

namespace ornavel::compose {

/// A composer with everything around it in memory: an HTML item without recipients, and a template that
/// puts brackets around the message.
class Composing : public testing::Test {
protected:
    using Recorder = std::shared_ptr<RecordingObject>;

    Composing() {
        files.contents[u"C:\\stationery\\letter.htm"] = "[[#Input your message here#]]\r\n";
        item->values[u"HTMLBody"] = Text(u"<p>body</p>");
        item->values[u"Subject"] = Text(u"Subject");
        item->values[u"Body"] = Text(u"body");
        item->values[u"GetInspector"] = as(inspector);
        item->values[u"Links"] = as(links);
        item->values[u"Recipients"] = as(recipients);
        inspector->values[u"IsWordMail"] = false;
        recipients->values[u"Count"] = std::int32_t{1};
        recipients->values[u"Item"] = as(recipient);
        recipient->values[u"Address"] = Text(u"ann@example.com");
        links->values[u"Count"] = std::int32_t{0};
        start_up.application_path = u"C:\\add-in";
    }

    Recorder recorder(TextView name) { return std::make_shared<RecordingObject>(journal, name); }
    static host::Value as(const Recorder& object) { return host::ObjectPtr(object); }

    Text compose(Text source) {
        auto [ended, html] =
            CreateHTMLBody({store, files, clock, boxes, objects, reports, application, start_up, on_change},
                           {mail, std::move(source), path, reply, form_signature, purpose});
        outcome = ended;
        return std::move(html);
    }

    void set(const settings::Key& key, TextView value) { settings::save(store, key, value); }

    void expect_error(TextView sub_function, TextView section) {
        ASSERT_EQ(reports.entries.size(), 1U);
        EXPECT_EQ(reports.entries[0].sub_function, sub_function);
        EXPECT_EQ(reports.entries[0].section, section);
    }

    settings::MemoryStore store;
    MemoryFiles files;
    FixedClock clock;
    ScriptedBoxes boxes;
    PreparedObjects objects;
    RecordingReports reports;
    std::vector<Text> journal;
    Recorder item = recorder(u"item"), inspector = recorder(u"inspector"), links = recorder(u"links"),
             recipients = recorder(u"recipients"), recipient = recorder(u"recipient"),
             mapi = recorder(u"mapi"), host_application = recorder(u"application");
    host::Application application{host_application};
    host::MailItem mail{item};
    StartUpValues start_up;
    Text path = u"C:\\stationery\\letter.htm";
    compose::Reply reply;
    std::optional<Text> form_signature;
    Purpose purpose = Purpose::send;
    Outcome outcome = Outcome::composed; ///< of the last composition
    std::function<void(const StepChange&)> on_change;
};

} // namespace ornavel::compose
