// SPDX-License-Identifier: MIT
#include "platform/forms/recent_menu.h"

#include <QAction>
#include <QMenu>
#include <utility>

#include "app/recent_files.h"
#include "platform/fonts.h"

namespace kev {

RecentMenu::RecentMenu(QMenu& menu, std::function<void(std::size_t)> open) : QObject(&menu) {
  QAction* last = menu.actions().constLast();
  for (std::size_t entry = 0; entry < kRecentInMenu; ++entry) {
    auto* action = new QAction(&menu);
    action->setObjectName(QStringLiteral("archivo%1").arg(entry + 1));
    connect(action, &QAction::triggered, this, [open, entry] { open(entry); });
    menu.insertAction(last, action);
    entries_.push_back(action);
  }
  separator_ = menu.insertSeparator(last);
  Show({});
}

void RecentMenu::Show(const std::vector<std::string>& captions) {
  for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
    const bool shown = entry < captions.size();
    // The number is what the keyboard chooses the entry by; one that is hidden has nothing but it.
    entries_[entry]->setText(QLatin1Char('&') +
                             (shown ? FromNative(captions[entry]) : QString::number(entry + 1)));
    entries_[entry]->setVisible(shown);
  }
  separator_->setVisible(!captions.empty());
}

}  // namespace kev
