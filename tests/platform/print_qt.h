// SPDX-License-Identifier: MIT
// Lets GoogleTest print Qt's texts.
#pragma once

#include <QString>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* stream) {
  *stream << '"' << text.toStdString() << '"';
}
