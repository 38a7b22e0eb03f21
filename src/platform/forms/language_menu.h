// SPDX-License-Identifier: MIT
// The languages of the program by their own names. A choice takes effect at the next start.
#pragma once

#include <QMenu>

namespace kev {

class LanguageMenu final : public QMenu {
  Q_OBJECT

 public:
  // `active` is the letter of the language in force, which is marked.
  LanguageMenu(const QString& caption, char active, QWidget* parent = nullptr);

 Q_SIGNALS:
  void LanguageChosen(char letter);
};

}  // namespace kev
