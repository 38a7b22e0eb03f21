// SPDX-License-Identifier: MIT
// Which picture a PICTURE may be given, wherever the user names it.
#pragma once

#include <string_view>

#include "document/object_creation.h"
#include "document/settings.h"

namespace kev {

// Whether the path can stand in a template, and is empty, a value of the data, an address or a picture that
// can be read. `path` is in the code page of the document and without blanks around it.
bool MayShowPicture(std::string_view path, const DocumentSettings& settings, PictureSource& pictures);

// The PICTURE takes the file that its PicturePath names, and the picture's own size where it has no fixed
// one. A picture that can't be had now leaves it its size.
void TakePicture(ObjectRecord& record, PictureSource& pictures);

}  // namespace kev
