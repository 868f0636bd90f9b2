#include "shell/options_page.h"

#include "shell/registration.h"

namespace ornavel::shell {
namespace {

win32::ComPtr<AddIn> add_in_for_a_page() {
    if (AddIn* const connected = AddIn::connected()) return win32::ComPtr<AddIn>(connected);
    return win32::ComPtr<AddIn>::adopt(new AddIn);
}

} // namespace

OptionsPage::OptionsPage()
    : add_in_(add_in_for_a_page()),
      page_(add_in_->connection().make_options_page([this] { tell_change(); })) {
    page_->form().load();
}

HRESULT OptionsPage::GetClassID(CLSID* class_id) {
    if (!class_id) return E_POINTER;
    *class_id = CLSID_PropPage;
    return S_OK;
}

} // namespace ornavel::shell
