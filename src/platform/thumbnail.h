// SPDX-License-Identifier: MIT
// A small picture of the open document's page.
#pragma once

#include <string>

#include "app/designer.h"
#include "app/recent_files.h"
#include "platform/fonts.h"
#include "platform/images.h"

namespace kev {

// The bytes of a bitmap file: what `look` names, without selection and grid, whatever zoom and filter the
// window has. The document is left alone, and no picture of a QR code or chart is made that is not there.
// Empty where it can't be painted.
std::string ThumbnailOf(Designer& designer, FontCache& fonts, ImageCache& images, const ThumbnailLook& look);

}  // namespace kev
