// SPDX-License-Identifier: MIT
// How the whole program looks: one style, one neutral palette with one accent colour, one icon.
#pragma once

#include <QColor>
#include <QIcon>
#include <optional>

#include "surface/surface_ops.h"

class QApplication;
class QWidget;

namespace kev {

void ApplyStyle(QApplication& application);

QIcon ProgramIcon();

// The theme's colour for a bar, with a text colour that can be read on it. Nothing leaves the style's own.
void ColourBar(QWidget& bar, std::optional<Rgb> colour);

// Black or white, whichever stands out more.
QColor TextColourOn(const QColor& background);

}  // namespace kev
