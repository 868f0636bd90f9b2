#pragma once

#include "base/text.h"
#include "win32/handle.h"

#include <windows.h>

namespace ornavel::win32 {

/// The picture in a file (BMP, GIF or JPEG) as a bitmap of the colour of windows that holds it whole, in its
/// proportions and not enlarged, in the middle. Throws Failure when the file can't be read or is no picture.
Owned<&DeleteObject> load_picture(TextView path, SIZE pixels);

} // namespace ornavel::win32
