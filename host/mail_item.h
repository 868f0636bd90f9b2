#pragma once

#include "host/contact.h"
#include "host/word.h"

#include <optional>

namespace ornavel::host {

/// A named value that an add-in keeps with an item.
class UserProperty : public ViewOf<u"UserProperty"> {
public:
    using ViewOf::ViewOf;
    void set_value(TextView value) const { put({u"Value"}, Text(value)); }
};

class UserProperties : public ViewOf<u"UserProperties"> {
public:
    using ViewOf::ViewOf;
    int count() const { return as_number(get({u"Count"})); }
    /// Adds a text property.
    UserProperty add(TextView name) const {
        constexpr std::int32_t ol_text = 1;
        return UserProperty(as_object(call({u"Add"}, {Text(name), ol_text})));
    }
};

class Attachment : public ViewOf<u"Attachment"> {
public:
    using ViewOf::ViewOf;
    Text file_name() const { return as_text(get({u"FileName"})); }
};

class Attachments : public ViewOf<u"Attachments"> {
public:
    using ViewOf::ViewOf;
    int count() const { return as_number(get({u"Count"})); }
    /// Counts from 1.
    Attachment item(int index) const {
        return Attachment(as_object(call({u"Item"}, {static_cast<std::int32_t>(index)})));
    }
    void add(TextView path) const { call({u"Add"}, {Text(path)}); }
};

class Recipient : public ViewOf<u"Recipient"> {
public:
    using ViewOf::ViewOf;
    Text address() const { return as_text(get({u"Address"})); }
    /// Looks the address up, as a mail needs before it can be sent.
    void resolve() const { call({u"Resolve"}); }
};

class Recipients : public ViewOf<u"Recipients"> {
public:
    using ViewOf::ViewOf;
    int count() const { return as_number(get({u"Count"})); }
    /// Counts from 1.
    Recipient item(int index) const {
        return Recipient(as_object(call({u"Item"}, {static_cast<std::int32_t>(index)})));
    }
    Recipient add(TextView address) const { return Recipient(as_object(call({u"Add"}, {Text(address)}))); }
};

/// What the editor of an item is, as the host numbers it; other numbers occur and count as HTML. The format
/// of its body has the first three numbers as well.
enum EditorType : int { plain_text_editor = 1, html_editor = 2, rich_text_editor = 3, word_editor = 4 };

class Inspector : public ViewOf<u"Inspector"> {
public:
    using ViewOf::ViewOf;
    int editor_type() const { return as_number(get({u"EditorType"})); }
    bool is_word_mail() const { return as_flag(get({u"IsWordMail"})); }
    WordDocument word_editor() const { return WordDocument(as_object(get({u"WordEditor"}))); }
};

/// An item being written or sent. A `Redemption.SafeMailItem` around one has the same members.
class MailItem : public ViewOf<u"MailItem"> {
public:
    using ViewOf::ViewOf;

    Text message_class() const { return as_text(get({u"MessageClass"})); }
    bool is_sent() const { return as_flag(get({u"Sent"})); }
    Folder parent() const { return Folder(as_object(get({u"Parent"}))); }

    void set_to(TextView addresses) const { put({u"To"}, Text(addresses)); }
    Text subject() const { return as_text(get({u"Subject"})); }
    void set_subject(TextView subject) const { put({u"Subject"}, Text(subject)); }
    Text body() const { return as_text(get({u"Body"})); }
    void set_body(Text body) const { put({u"Body"}, std::move(body)); }
    Text html_body() const { return as_text(get({u"HTMLBody"})); }
    void set_html_body(Text body) const { put({u"HTMLBody"}, std::move(body)); }

    /// What the body is: the numbers are those of its editor.
    int body_format() const { return as_number(get({u"BodyFormat"})); }

    Text billing_information() const { return as_text(get({u"BillingInformation"})); }
    void set_billing_information(TextView text) const { put({u"BillingInformation"}, Text(text)); }

    // An importance or sensitivity of nothing reaches the mail client as the empty value, to take or to
    // refuse.
    int importance() const { return as_number(get({u"Importance"})); }
    void set_importance(std::optional<int> number) const { put({u"Importance"}, number_or_empty(number)); }
    int sensitivity() const { return as_number(get({u"Sensitivity"})); }
    void set_sensitivity(std::optional<int> number) const { put({u"Sensitivity"}, number_or_empty(number)); }
    bool read_receipt_requested() const { return as_flag(get({u"ReadReceiptRequested"})); }
    void request_read_receipt(bool wanted) const { put({u"ReadReceiptRequested"}, wanted); }
    bool delivery_report_requested() const { return as_flag(get({u"OriginatorDeliveryReportRequested"})); }
    void request_delivery_report(bool wanted) const { put({u"OriginatorDeliveryReportRequested"}, wanted); }
    void set_categories(TextView names) const { put({u"Categories"}, Text(names)); }
    void set_flag_request(TextView note) const { put({u"FlagRequest"}, Text(note)); }

    void set_delete_after_submit(bool forget) const { put({u"DeleteAfterSubmit"}, forget); }

    UserProperties user_properties() const { return UserProperties(as_object(get({u"UserProperties"}))); }
    Recipients recipients() const { return Recipients(as_object(get({u"Recipients"}))); }
    Links links() const { return Links(as_object(get({u"Links"}))); }
    Attachments attachments() const { return Attachments(as_object(get({u"Attachments"}))); }
    Inspector inspector() const { return Inspector(as_object(get({u"GetInspector"}))); }

    void save() const { call({u"Save"}); }
    void send() const { call({u"Send"}); }

private:
    static Value number_or_empty(std::optional<int> number) {
        return number ? Value(static_cast<std::int32_t>(*number)) : Value();
    }
};

/// The outside wrapper that touches an item without the host's security prompts.
class SafeMailItem : public MailItem {
public:
    using MailItem::MailItem;
    static SafeMailItem around(Objects& objects, const MailItem& item);
};

} // namespace ornavel::host
