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

  // The language that is in force at the next start.
  void Mark(char letter);

 Q_SIGNALS:
  // Another one than the marked. The mark stays where it is until Mark.
  void LanguageChosen(char letter);

 private:
  void Choose(char letter);

  char marked_;
};

}  // namespace kev
