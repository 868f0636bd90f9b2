#pragma once

#include "host/view.h"

namespace ornavel::host {

class Folder : public ViewOf<u"Folder"> {
public:
    using ViewOf::ViewOf;
    Text name() const { return as_text(get({u"Name"})); }
    Text entry_id() const { return as_text(get({u"EntryID"})); }
};

/// A person in the user's contacts.
class Contact : public ViewOf<u"ContactItem"> {
public:
    using ViewOf::ViewOf;
    Text full_name() const { return as_text(get({u"FullName"})); }
    Text company_name() const { return as_text(get({u"CompanyName"})); }
    Text entry_id() const { return as_text(get({u"EntryID"})); }
    Folder parent() const { return Folder(as_object(get({u"Parent"}))); }
    Text body() const { return as_text(get({u"Body"})); }
    void set_body(TextView body) const { put({u"Body"}, Text(body)); }
    void close_saving() const {
        constexpr std::int32_t save = 0;
        call({u"Close"}, {save});
    }
};

/// The contacts that an item was made for.
class Links : public ViewOf<u"Links"> {
public:
    using ViewOf::ViewOf;
    int count() const { return as_number(get({u"Count"})); }
    /// Counts from 1.
    Contact contact(int index) const {
        const Link link(as_object(call({u"Item"}, {static_cast<std::int32_t>(index)})));
        return Contact(as_object(link.target()));
    }

private:
    class Link : public ViewOf<u"Link"> {
    public:
        using ViewOf::ViewOf;
        Value target() const { return get({u"Item"}); }
    };
};

} // namespace ornavel::host
