#pragma once

#include "host/view.h"

namespace ornavel::host {

/// The message as Word holds it while Word is the editor.
class WordDocument : public ViewOf<u"Document"> {
public:
    using ViewOf::ViewOf;
    void copy_content_to_clipboard() const { Range(as_object(get({u"Content"}))).copy(); }
    Text word_version() const { return WordApplication(as_object(get({u"Application"}))).version(); }
    /// The format is Word's own number.
    void save_as(TextView path, int format) const {
        call({u"SaveAs"}, {Text(path), static_cast<std::int32_t>(format)});
    }

private:
    class Range : public ViewOf<u"Range"> {
    public:
        using ViewOf::ViewOf;
        void copy() const { call({u"Copy"}); }
    };
    class WordApplication : public ViewOf<u"Word.Application"> {
    public:
        using ViewOf::ViewOf;
        Text version() const { return as_text(get({u"Version"})); }
    };
};

} // namespace ornavel::host
