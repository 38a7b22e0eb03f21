// SPDX-License-Identifier: MIT
#include "platform/forms/command_menus.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "platform/text_bridge.h"

namespace kev {

CommandMenus::CommandMenus(QMenuBar& bar, const LanguageTexts& texts, std::function<void(Command)> run)
    : QObject(&bar), run_(std::move(run)) {
  AddMenus(bar, texts);
  for (const MenuRow& row : MenuRows())
    AddEntries(row.id, texts);
  // Commands of context menus alone are actions of the bar, which shows none of them.
  menus_[MenuId::None] = new QMenu(&bar);
  AddEntries(MenuId::None, texts);
}

void CommandMenus::AddMenus(QMenuBar& bar, const LanguageTexts& texts) {
  std::vector<std::string> captions;
  for (const MenuRow& row : MenuRows())
    captions.push_back(texts.Text(row.text));
  captions = WithMnemonics(std::move(captions));
  for (std::size_t i = 0; i < captions.size(); ++i) {
    const MenuRow& row = MenuRows()[i];
    QMenu* menu = bar.addMenu(ToQString(captions[i]));
    menu->setObjectName(ToQString(row.name));
    menus_[row.id] = menu;
  }
}

void CommandMenus::AddEntries(MenuId id, const LanguageTexts& texts) {
  std::vector<const CommandRow*> rows;
  std::vector<std::string> captions;
  for (const CommandRow& row : CommandRows()) {
    if (row.menu != id) continue;
    rows.push_back(&row);
    captions.push_back(CommandCaption(row, texts.Text(row.text)));
  }
  captions = WithMnemonics(std::move(captions));
  for (std::size_t i = 0; i < rows.size(); ++i)
    AddEntry(MenuOf(id), *rows[i], captions[i]);
}

void CommandMenus::AddEntry(QMenu& menu, const CommandRow& row, const std::string& caption) {
  if (row.separatorBefore && !menu.isEmpty()) menu.addSeparator();
  auto* action = new QAction(ToQString(caption), &menu);
  action->setObjectName(ToQString(row.name));
  action->setShortcut(QKeySequence(ToQString(row.shortcut), QKeySequence::PortableText));
  action->setCheckable(row.kind != CommandKind::Plain);
  if (row.kind == CommandKind::Exclusive) {
    auto* group = menu.findChild<QActionGroup*>();
    (group != nullptr ? group : new QActionGroup(&menu))->addAction(action);
  }
  connect(action, &QAction::triggered, this, [this, id = row.id] { run_(id); });
  menu.addAction(action);
  actions_[row.id] = action;
}

QMenu& CommandMenus::ContextMenuOf(ContextMenu menu) {
  QMenu*& made = contextMenus_[menu];
  if (made != nullptr) return *made;
  made = new QMenu(menus_.at(MenuId::None));
  for (const std::optional<Command>& row : ContextMenuRows(menu)) {
    if (row) {
      made->addAction(actions_.at(*row));
    } else {
      made->addSeparator();
    }
  }
  return *made;
}

void CommandMenus::ShowEnabled(const std::function<bool(Command)>& enabled) {
  for (const auto& [command, action] : actions_) {
    const bool can = enabled(command);
    action->setEnabled(can);
    if (command == Command::MoveUp || command == Command::MoveDown) action->setVisible(can);
  }
}

}  // namespace kev
