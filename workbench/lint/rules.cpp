#include "workbench/lint/rules.h"

#include "base/encoding.h"
#include "settings/reg_settings.h"

namespace ornavel::workbench {
namespace {

using enum Severity;
using enum Role;

// What settings need so that none of the other rules has something to say about them.
#define REPLIES                                                                                              \
    "[System Settings]\n\"MyReplySearchString\"=\"-----Original\"\n"                                         \
    "\"Office2003SearchString\"=\"<HR tabIndex=-1>\"\n"
#define PERSON                                                                                               \
    "[Admin Settings]\n\"SigEmail\"=\"jo@example.com\"\n\"SigWebsite\"=\"www.example.com\"\n"                \
    "\"EmailErrorNotify\"=\"False\"\n"
#define MARKER "[#Input your message here#]"

constexpr Rule all_rules[] = {
    {"marker-missing",
     error,
     u"a template without \"[#Input your message here#]\": the user's text is lost",
     letterhead,
     {"<body>Dear all</body>"},
     {"<body>" MARKER "</body>"}},
    {"marker-repeated",
     warning,
     u"the marker twice",
     letterhead,
     {"<p>" MARKER "</p><p>" MARKER "</p>"},
     {"<p>" MARKER "</p>"}},
    {"marker-hidden",
     error,
     u"the marker inside an attribute, a comment, a <style> or a <script>",
     letterhead,
     {"<p title=\"" MARKER "\">"},
     {"<p>" MARKER}},
    {"field-unknown",
     error,
     u"a field that no merge fills, with the nearest known one",
     signature,
     {"[#SigFulname#]"},
     {"[#SigFullname#]"}},
    {"field-case",
     error,
     u"a known field in another case",
     signature,
     {"[#sigfullname#]"},
     {"[#SigFullname#]"}},
    {"field-open",
     error,
     u"\"[#\" without \"#]\"",
     signature,
     {"[#SigFullname<br>"},
     {"[#SigFullname#]<br>"}},
    {"field-rest",
     warning,
     u"a line that stays when its value is empty, found by running the merge with the value empty",
     signature,
     {"Telefax: [#SigFax#]<br>"},
     {"Fax: [#SigFax#]<br>"}},
    {"value-is-pattern",
     warning,
     u"a value or user code that is replaced again by a later pass, found by running the merge",
     settings,
     {"", "[Admin Settings]\n\"SigFullname\"=\"Jo [#SigCell#]\"\n\"SigCell\"=\"1\"\n"},
     {"", "[Admin Settings]\n\"SigFullname\"=\"Jo\"\n\"SigCell\"=\"1\"\n"}},
    {"value-markup",
     warning,
     u"an \"&\" that begins no entity, \"<\" or \">\" in a value that goes into HTML as it stands; \"'\" in "
     u"one that "
     u"goes into the usage log",
     settings,
     {"", "[Admin Settings]\n\"SigOrganizationName\"=\"Marlow & Hale\"\n"},
     {"", "[Admin Settings]\n\"SigOrganizationName\"=\"Marlow &amp; Hale\"\n"}},
    {"script",
     error,
     u"script in any spelling, and whether Ornavel asks about it",
     letterhead,
     {MARKER "<ScRiPt>go()</ScRiPt>"},
     {MARKER "<p>manuscript</p>"}},
    {"image-local",
     warning,
     u"a picture on a drive or share outside the stationery's folders: other senders' machines may not have "
     u"it, and "
     u"recipients would not see it",
     letterhead,
     {MARKER "<img src=\"file:///D:/mine/logo.gif\" alt=\"\">",
      "[Admin Settings]\n\"HTM Files Path\"=\"C:\\\\Stationery\\\\Templates\"\n"},
     {MARKER "<img src=\"file:///C:/Stationery/Pictures/logo.gif\" alt=\"\">",
      "[Admin Settings]\n\"HTM Files Path\"=\"C:\\\\Stationery\\\\Templates\"\n"}},
    {"image-missing",
     error,
     u"a picture file that is not there",
     letterhead,
     {MARKER "<img src=\"file:///C:/Stationery/Pictures/lgoo.gif\" alt=\"\">"},
     {MARKER "<img src=\"file:///C:/Stationery/Pictures/logo.gif\" alt=\"\">"}},
    {"image-alt",
     hint,
     u"an image without alt",
     letterhead,
     {MARKER "<img src=\"http://example.com/logo.gif\">"},
     {MARKER "<img src=\"http://example.com/logo.gif\" alt=\"Example\">"}},
    {"clean-up",
     warning,
     u"what a switch that is on does to this template or signature, found by running the filter",
     signature,
     {"<BLOCKQUOTE>Yours</BLOCKQUOTE>"},
     {"<blockquote>Yours</blockquote>"}},
    {"signature-table",
     warning,
     u"a signature with a table while WipeoutSignatureTable is on: it ends the letterhead's own table in "
     u"replies",
     signature,
     {"<table><tr><td>Jo</table>"},
     {"<table><tr><td>Jo</table>", "[Admin Settings]\n\"WipeoutSignatureTable\"=\"False\"\n"}},
    {"quoted-at-edge",
     hint,
     u"a body without left margin: the quoted part of a reply touches the window's edge",
     letterhead,
     {"<body leftmargin=0>" MARKER "</body>"},
     {"<body leftmargin=16>" MARKER "</body>"}},
    {"charset",
     warning,
     u"bytes that are not what the meta says; characters that the ANSI code page can't hold",
     letterhead,
     {"<meta http-equiv=Content-Type content=\"text/html; charset=utf-8\">caf\xE9" MARKER},
     {"<meta http-equiv=Content-Type content=\"text/html; charset=utf-8\">caf\xC3\xA9" MARKER}},
    {"size",
     hint,
     u"a finished message above 100 KB, a picture above 200 KB",
     letterhead,
     {MARKER "<img src=\"file:///C:/Stationery/Pictures/large.gif\" alt=\"\">"},
     {MARKER "<img src=\"file:///C:/Stationery/Pictures/logo.gif\" alt=\"\">"}},
    {"switch-value",
     error,
     u"a switch that is not exactly \"True\" or \"False\"",
     settings,
     {"", "[Admin Settings]\n\"AutoPreview\"=\"true\"\n"},
     {"", "[Admin Settings]\n\"AutoPreview\"=\"True\"\n"}},
    {"skip-internal",
     warning,
     u"SkipInternal as \"True\": it looks on and is off (only \"1\" is on)",
     settings,
     {"", "[Admin Settings]\n\"SkipInternal\"=\"True\"\n"},
     {"", "[Admin Settings]\n\"SkipInternal\"=\"1\"\n"}},
    {"path-missing",
     error,
     u"a folder or file named by a setting that is not there",
     settings,
     {"", "[Admin Settings]\n\"HTM Files Path\"=\"C:\\\\Stationry\"\n"},
     {"", "[Admin Settings]\n\"HTM Files Path\"=\"C:\\\\Stationery\\\\Templates\"\n"}},
    {"setting-unknown",
     warning,
     u"a key that the catalogue doesn't know, with the nearest known one; a key in another section",
     settings,
     {"", "[Admin Settings]\n\"SigFulname\"=\"Jo\"\n"},
     {"", "[Admin Settings]\n\"SigFullname\"=\"Jo\"\n"}},
    {"reply-marker",
     error,
     u"no reply marker for a version: signatures land below the quoted mail; \"-----Original Message-----\" "
     u"(HTML wraps "
     u"it); \"<DIV class=OutlookMessageHeader\" (repeated on the user's own paragraphs)",
     settings,
     {"", PERSON "[System Settings]\n\"MyReplySearchString\"=\"-----Original Message-----\"\n"},
     {"", PERSON REPLIES}},
    {"first-start",
     error,
     u"SigEmail or SigWebsite empty: the setup program starts at every connection",
     settings,
     {"", "[Admin Settings]\n\"SigEmail\"=\"jo@example.com\"\n"},
     {"", PERSON}},
    {"reports-on",
     hint,
     u"EmailErrorNotify on (its default) with the support address left as it is",
     settings,
     {"", "[Admin Settings]\n\"SigEmail\"=\"jo@example.com\"\n"},
     {"", PERSON}},
};

} // namespace

std::span<const Rule> rules() { return all_rules; }

std::string_view name_of(Severity severity) {
    constexpr std::string_view names[] = {"hint", "warning", "error"};
    return names[static_cast<std::size_t>(severity)];
}

std::string registry_file(std::string_view settings) {
    const std::string area = to_utf8(settings::registry_area);
    std::string file = "REGEDIT4\n";
    for (const char unit : settings) {
        file += unit;
        if (unit == '[' && (file.size() < 2 || file[file.size() - 2] == '\n')) file += area + "\\";
    }
    return file;
}

} // namespace ornavel::workbench
