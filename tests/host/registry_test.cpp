#include "host/registry.h"

#include "tests/fakes/prepared_objects.h"
#include "tests/fakes/recording_object.h"

#include <gtest/gtest.h>

namespace ornavel::host {
namespace {

TEST(RegistryProvider, IsThatOfTheComputerWithTheRightsOfWhoeverAsks) {
    std::vector<Text> journal;
    PreparedObjects objects;
    objects.prepared[u"winmgmts:{impersonationLevel=impersonate}!\\\\.\\root\\default:StdRegProv"] =
        std::make_shared<RecordingObject>(journal, u"provider");
    const auto provider = RegistryProvider::of(objects, u".");
    provider.delete_class_key(u"Key");
    provider.set_user_number(u"Key", u"Name", 7);
    provider.set_user_string(u"Key", u"Name", u"value");
    EXPECT_EQ(journal, (std::vector<Text>{u"provider.DeleteKey -2147483648 Key",
                                          u"provider.SetDWORDValue -2147483647 Key Name 7",
                                          u"provider.SetStringValue -2147483647 Key Name value"}));
}

} // namespace
} // namespace ornavel::host
