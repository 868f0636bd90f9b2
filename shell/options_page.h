#pragma once

#include "shell/add_in.h"
#include "win32/page_control.h"

namespace ornavel::shell {

/// The page in the mail client's Options dialog. It belongs to the add-in that is connected, so that a
/// changed mode shows on the toolbar at once; where none is, to one of its own that never meets the mail
/// client.
class OptionsPage final : public win32::PageControl {
public:
    OptionsPage();
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* class_id) override;

private:
    ~OptionsPage() override { end_window(); }
    forms::Form& form() override { return page_->form(); }
    bool is_dirty() override { return page_->is_dirty(); }
    void apply() override { page_->apply(); }

    win32::ComPtr<AddIn> add_in_;
    std::unique_ptr<forms::frmPropPage> page_;
};

} // namespace ornavel::shell
