#include "forms/string_table.h"

#include <gtest/gtest.h>

#include <map>

namespace ornavel::forms {
namespace {

/// The table a second time, so that a slip in one of the two shows.
const std::map<int, TextView> expected{
    {1, u"Ornavel Send Options"},
    {1001, u"&Send"},
    {1002, u"Send &As Is"},
    {1003, u"&Preview"},
    {1004, u"&Options"},
    {1005, u"&Help!"},
    {1006, u"Cancel"},
    {1007, u"Choose a &Template"},
    {1008, u"Choose a S&ignature"},
    {1009, u"Attach a &vCard with this email"},
    {1010, u"Outlook Options for this Message"},
    {1011, u"I&mportance"},
    {1012, u"Se&nsitivity"},
    {1013, u"Request a &delivery receipt"},
    {1014, u"&Request a read receipt"},
    {1015, u"&Update Categories"},
    {1016, u"&Follow up note"},
    {1017, u"Save m&y last Outlook Option choices as my default"},
    {1018, u"Sho&w tips message box"},
    {1019, u"Internal mail goes out as it is"},
    {2001, u"Send with the template, the signature and the options chosen here"},
    {2002, u"Send without any changes (without a template)"},
    {2003, u"See how the message will look"},
    {2004, u"Show or hide the Outlook options"},
    {2005, u"Show the help page"},
    {2006, u"Click Cancel to return to the email item."},
    {2007, u"How important the message is"},
    {2008, u"How the message is to be treated"},
    {2009, u"Tell me when the message has arrived"},
    {2010, u"Tell me when the message has been read"},
    {2011, u"Give the message the categories named beside"},
    {2012, u"Names of categories, with commas between them"},
    {2013, u"Flag the message with the note beside"},
    {2014, u"What is to be done about the message"},
    {2015, u"Whether messages to colleagues go out as they are; your administrator decides this"},
    {2016, u"When clicked, your choices will be your defaults"},
    {2017, u"Show or hide the tips at the top of this window"},
    {2018, u"Tips: Double click on the tips text to see other tips"},
    {2019, u"Choose a Template"},
    {2020, u"Choose a Signature"},
    {2021, u"Attach a vCard with this email"},
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
