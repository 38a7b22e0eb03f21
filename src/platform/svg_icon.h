// SPDX-License-Identifier: MIT
// Icons from SVG drawings, sharp at every size and on every screen.
#pragma once

#include <QIcon>
#include <QString>

namespace kev {

// A null icon where the file can't be read as a drawing.
QIcon SvgIcon(const QString& file);

}  // namespace kev
