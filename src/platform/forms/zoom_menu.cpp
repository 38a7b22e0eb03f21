// SPDX-License-Identifier: MIT
#include "platform/forms/zoom_menu.h"

#include <QActionGroup>

#include "app/designer.h"
#include "platform/text_bridge.h"

namespace kev {

ZoomMenu::ZoomMenu(const QString& caption, QWidget* parent) : QMenu(caption, parent) {
  setObjectName(QStringLiteral("menzoom"));
  auto* group = new QActionGroup(this);
  group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
  for (const std::string_view entry : kZoomList) {
    QAction* action = addAction(ToQString(entry));
    action->setObjectName(QStringLiteral("zoom") + ToQString(entry));
    action->setCheckable(true);
    group->addAction(action);
    if (entry == "100%") action->setShortcut(QKeySequence(QStringLiteral("Ctrl+0")));
    // A chosen entry stays marked, also when it was the one in force.
    connect(action, &QAction::triggered, this, [this, action] {
      action->setChecked(true);
      Q_EMIT ZoomChosen(action->text());
    });
  }
}

void ZoomMenu::ShowZoom(const QString& text) {
  const QList<QAction*> entries = actions();
  for (QAction* action : entries)
    action->setChecked(action->text() == text);
}

}  // namespace kev
