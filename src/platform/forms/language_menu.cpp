// SPDX-License-Identifier: MIT
#include "platform/forms/language_menu.h"

#include <QActionGroup>
#include <array>

namespace kev {

namespace {

struct LanguageRow {
  char letter;
  const char* name;  // UTF-8
};

constexpr std::array kLanguages = {LanguageRow{'E', "English"}, LanguageRow{'S', "Espa\xC3\xB1ol"},
                                   LanguageRow{'I', "Italiano"}, LanguageRow{'P', "Portugu\xC3\xAAs"}};

}  // namespace

LanguageMenu::LanguageMenu(const QString& caption, char active, QWidget* parent)
    : QMenu(caption, parent), marked_(active) {
  setObjectName(QStringLiteral("menlanguage"));
  auto* group = new QActionGroup(this);
  for (const LanguageRow& row : kLanguages) {
    QAction* action = addAction(QString::fromUtf8(row.name));
    action->setObjectName(QStringLiteral("language") + QLatin1Char(row.letter));
    action->setCheckable(true);
    action->setChecked(row.letter == active);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, &row] { Choose(row.letter); });
  }
}

void LanguageMenu::Mark(char letter) {
  marked_ = letter;
  auto* action = findChild<QAction*>(QStringLiteral("language") + QLatin1Char(letter));
  if (action != nullptr) action->setChecked(true);
}

void LanguageMenu::Choose(char letter) {
  if (letter == marked_) return;
  // The click has moved the mark already.
  Mark(marked_);
  Q_EMIT LanguageChosen(letter);
}

}  // namespace kev
