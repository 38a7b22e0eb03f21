// SPDX-License-Identifier: MIT
#include "platform/accessible_names.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>

namespace kev {
namespace {

// By name what the list is for, and by value what is chosen: the window system's own gives the value for
// both.
class ComboElement final : public QAccessibleWidget {
 public:
  explicit ComboElement(QComboBox* combo) : QAccessibleWidget(combo, QAccessible::ComboBox) {}

  int childCount() const override { return Combo().isEditable() ? 2 : 1; }
  QAccessibleInterface* child(int index) const override {
    if (index == 0) return QAccessible::queryAccessibleInterface(Combo().view());
    return index == 1 && Combo().isEditable() ? QAccessible::queryAccessibleInterface(Combo().lineEdit())
                                              : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    if (child->object() == Combo().view()) return 0;
    return Combo().isEditable() && child->object() == Combo().lineEdit() ? 1 : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    QWidget* edit = Combo().lineEdit();
    if (edit == nullptr || !edit->rect().contains(edit->mapFromGlobal(QPoint(x, y)))) return nullptr;
    return QAccessible::queryAccessibleInterface(edit);
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? Combo().currentText() : QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.hasPopup = true;
    state.expanded = Combo().view()->isVisible();
    state.editable = Combo().isEditable();
    return state;
  }
  QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
  void doAction(const QString& name) override {
    if (!actionNames().contains(name)) return;
    Combo().view()->isVisible() ? Combo().hidePopup() : Combo().showPopup();
  }

 private:
  QComboBox& Combo() const { return *static_cast<QComboBox*>(widget()); }
};

QAccessibleInterface* MakeElement(const QString& className, QObject* object) {
  if (auto* combo = qobject_cast<QComboBox*>(object)) return new ComboElement(combo);
  const bool isPlainFrame =
      className == QLatin1String("QFrame") && object->metaObject() == &QFrame::staticMetaObject;
  if (isPlainFrame) return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Client);
  return nullptr;
}

void NameAfter(QWidget& widget, const QWidget* owner) {
  if (owner != nullptr && !owner->accessibleName().isEmpty())
    widget.setAccessibleName(owner->accessibleName());
}

void NamePartsOf(QComboBox& combo) {
  NameAfter(*combo.view(), &combo);
  if (QLineEdit* edit = combo.lineEdit(); edit != nullptr && edit->accessibleName().isEmpty())
    NameAfter(*edit, &combo);
}

}  // namespace

void NamePart(QWidget& widget) {
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) return NamePartsOf(*combo);
  if (!widget.accessibleName().isEmpty()) return;
  QWidget* parent = widget.parentWidget();
  if (auto* menu = qobject_cast<QMenu*>(&widget))
    return menu->setAccessibleName(menu->title().remove(QLatin1Char('&')));
  if (parent == nullptr) return;
  if (qobject_cast<QScrollBar*>(&widget) != nullptr)
    return NameAfter(widget, qobject_cast<QAbstractScrollArea*>(parent->parentWidget()));
  const bool isToolOfPart =
      qobject_cast<QToolBar*>(parent) != nullptr || qobject_cast<QLineEdit*>(parent) != nullptr;
  if (auto* button = qobject_cast<QToolButton*>(&widget);
      button != nullptr && isToolOfPart && button->text().isEmpty())
    return NameAfter(widget, parent);
  if (auto* label = qobject_cast<QLabel*>(&widget);
      label != nullptr && !label->pixmap(Qt::ReturnByValue).isNull())
    widget.setAccessibleName(widget.window()->windowTitle());
}

AccessibleNames::AccessibleNames(QApplication& application) : QObject(&application) {
  QAccessible::installFactory(MakeElement);
  application.installEventFilter(this);
}

bool AccessibleNames::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Polish || !watched->isWidgetType()) return false;
  auto* widget = static_cast<QWidget*>(watched);
  NamePart(*widget);
  if (!widget->isWindow()) return false;
  for (QWidget* part : widget->findChildren<QWidget*>())
    NamePart(*part);
  return false;
}

}  // namespace kev
