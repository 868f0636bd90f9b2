#include "workbench/places.h"

namespace ornavel::workbench {

Text at(TextView path, Place place, TextView what) {
    return Text(path) + u":" + to_text(static_cast<long long>(place.line)) + u":" +
           to_text(static_cast<long long>(place.column)) + u": " + Text(what);
}

} // namespace ornavel::workbench
