// SPDX-License-Identifier: MIT
// What small dialogs are made of: controls with the names of the system, captions with letters to reach them.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <string>

#include "platform/text_bridge.h"

namespace kev {

template <typename Control>
Control* NamedControl(const char* name, QWidget* parent) {
  auto* control = new Control(parent);
  control->setObjectName(QString::fromLatin1(name));
  return control;
}

// A label, a button or a box, with its caption and what is read aloud of it.
template <typename Control>
Control* CaptionedControl(const char* name, const std::string& caption, QWidget* parent) {
  auto* control = NamedControl<Control>(name, parent);
  control->setText(ToQString(caption));
  control->setAccessibleName(control->text().remove(QLatin1Char('&')));
  return control;
}

// The label of a field, which is called by it.
inline QLabel* FieldLabel(const char* name, const std::string& caption, QWidget* field) {
  auto* label = CaptionedControl<QLabel>(name, caption, field->parentWidget());
  label->setBuddy(field);
  field->setAccessibleName(label->accessibleName());
  return label;
}

}  // namespace kev
