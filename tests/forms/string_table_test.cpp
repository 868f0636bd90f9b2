#include "forms/string_table.h"

#include <gtest/gtest.h>

#include <map>

namespace ornavel::forms {
namespace {

/// The table a second time, so that a slip in one of the two shows.
const std::map<int, TextView> expected{
    {1, u"Ornavel Send Options"},
    {2002, u"Send without any changes (without a template)"},
    {2006, u"Click Cancel to return to the email item."},
    {2016, u"When clicked, your choices will be your defaults"},
    {5013, u"Yes. Use a template."},
    {5014, u"OK"},
    {5015, u"No. Send 'as is'"}, // without the final point that the dialog's own caption has
    {5016, u"This is a reply. Do you wish to use a Template?"},
    {5017, u"Do not show this again"},
    {5018, u"You have chosen 'auto' mode but there is no default Template file."},
    {5019, u"Ornavel Template warning"},
    {5020, u"There is script is this Template. Some users will not be able to see your Template. "
           u"Continue anyway?"},
    {5021, u"Yes. Send it with script."},
    {5022, u"No. Cancel this."},
    {5023, u"Ornavel security warning"},
    {5024, u"This is not a valid Ornavel Template. Please examine it or get help."},
    {5025, u"Ornavel Template failure"},
    {5026, u"You have not chosen a Template. Please select one..."},
    {5027, u"Ornavel Template choice"},
    {5028, u"You have not chosen a signature. Please select one..."},
    {5029, u"Ornavel signature choice"},
    {5030, u"Your Outlook Mail Format should be HTML or Outlook Rich Text (Word as editor is optional). "
           u"Check your Outlook Options. Some formatting may be lost."},
    {5031, u"Ornavel Oulook Mail Format warning"},
    {5032, u"An error has been trapped and logged. Brevant support will be notified by email. OK?"},
    {5033, u"Ornavel error - notify Brevant support"},
    {5065, u"Close Admininstrator"},
    {5066, u"About Brevant Ornavel"},
    {5067, u"Visit our site"},
    {5068, u"System Info"},
    {5069, u"Run the Advanced Config Wiz"},
    {5070, u"Hide Administrator"},
    {5071, u"Ornavel Off"},
    {5072, u"Ornavel On"},
    {5083, u"You are using Outlook personal Stationery."},
    {5084, u"Please cancel this email and create a new email message."},
    {5085, u"Ornavel will automatically remove the personal Outlook stationery"},
    {5086, u"This email cannot be sent."},
    {5101, u"Ornavel Setup"},
};

TEST(StringTable, HoldsExactlyTheNumberedTexts) {
    std::map<int, Text> found;
    for (int id = 0; id <= 6000; ++id)
        if (auto text = built_in_strings().find(id)) found[id] = *text;
    EXPECT_EQ(found, (std::map<int, Text>(expected.begin(), expected.end())));
}

TEST(StringTable, ANumberThatItLacksReadsAsEmpty) {
    EXPECT_EQ(built_in_strings().find(5105), std::nullopt);
    EXPECT_EQ(load_text(built_in_strings(), 5105), u"");
    EXPECT_EQ(load_text(built_in_strings(), 5072), u"Ornavel On");
}

} // namespace
} // namespace ornavel::forms
