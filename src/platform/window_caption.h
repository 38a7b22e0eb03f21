// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace kev {

// "NAME - Program [Modified]", in the form that QWidget::setWindowTitle takes.
QString WindowCaption(const QString& documentTitle, bool modified, const QString& modifiedWord,
                      const QString& programTitle);

}  // namespace kev
