// SPDX-License-Identifier: MIT
// The menus of the main window, made from the table of commands.
#pragma once

#include <QObject>
#include <functional>
#include <map>

#include "app/commands.h"
#include "app/language.h"

class QAction;
class QMenu;
class QMenuBar;

namespace kev {

class CommandMenus final : public QObject {
  Q_OBJECT

 public:
  // The texts are needed while it is made; `run` is called for each command that the user gives.
  CommandMenus(QMenuBar& bar, const LanguageTexts& texts, std::function<void(Command)> run);

  QAction& ActionOf(Command id) const { return *actions_.at(id); }
  QMenu& MenuOf(MenuId id) const { return *menus_.at(id); }

 private:
  void AddMenus(QMenuBar& bar, const LanguageTexts& texts);
  void AddEntries(MenuId id, const LanguageTexts& texts);
  void AddEntry(QMenu& menu, const CommandRow& row, const std::string& caption);

  std::function<void(Command)> run_;
  std::map<MenuId, QMenu*> menus_;
  std::map<Command, QAction*> actions_;
};

}  // namespace kev
