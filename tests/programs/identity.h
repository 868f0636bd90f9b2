#pragma once

#include "settings/modes.h"
#include "settings/store.h"

namespace ornavel::programs {

/// The settings of somebody who has told who they are, and whose messages are dressed.
inline void save_identity(settings::Store& store) {
    using namespace settings;
    save(store, admin::SigFullname, u"Jo Sender");
    save(store, admin::SigPosition, u"Partner");
    save(store, admin::SigOrganizationName, u"Marlow &amp; Hale");
    save(store, admin::SigEmail, u"jo@example.com");
    save(store, admin::SigWebsite, u"www.example.com");
    save(store, admin::SigTelephone, u"+44 20 7946 0000");
    save(store, user::SettingButtonBar, modes::automatic);
}

} // namespace ornavel::programs
