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
  QMenu& ContextMenuOf(ContextMenu menu);
  // Enables what can be used; commands that belong to one kind of object alone are hidden for the others.
  void ShowEnabled(const std::function<bool(Command)>& enabled);

 private:
  void AddMenus(QMenuBar& bar, const LanguageTexts& texts);
  void AddEntries(MenuId id, const LanguageTexts& texts);
  void AddEntry(QMenu& menu, const CommandRow& row, const std::string& caption);

  std::function<void(Command)> run_;
  std::map<MenuId, QMenu*> menus_;
  std::map<Command, QAction*> actions_;
  std::map<ContextMenu, QMenu*> contextMenus_;
};

}  // namespace kev
