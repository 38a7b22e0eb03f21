// SPDX-License-Identifier: MIT
#include "platform/forms/findings_dock.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QStackedWidget>
#include <QTreeWidget>

#include "app/message_texts.h"
#include "base/text_numbers.h"
#include "platform/text_bridge.h"

namespace kev {

namespace {

enum FindingColumn { kPlace, kKind, kText, kColumns };

QString PlaceOf(const Finding& finding, const QString& lineWord) {
  if (finding.Line == 0) return QString();
  QString place = lineWord + QLatin1Char(' ') + QString::number(finding.Line);
  if (finding.Column != 0) place += QLatin1Char(':') + QString::number(finding.Column);
  return place;
}

// Control characters of a quoted text would break the line of the list.
QString Quoted(const Finding& finding, const CodePage& page) {
  QString text = ToQString(finding.Text, page);
  for (QChar& c : text) {
    if (c.category() == QChar::Other_Control) c = QChar::Space;
  }
  return text;
}

}  // namespace

// The window system names it in its own language.
void FindingsDock::NameCloseButton(const QString& name) {
  auto* button = findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton"));
  if (button == nullptr) return;
  button->setAccessibleName(name);
  button->setAccessibleDescription(QString());
  button->setToolTip(name);
}

FindingsDock::FindingsDock(const LanguageTexts& texts, QWidget* parent)
    : QDockWidget(ToQString(texts.Text(kTextMenuFindings)), parent),
      texts_(texts),
      pages_(new QStackedWidget(this)),
      list_(new QTreeWidget(pages_)),
      nothing_(new QLabel(ToQString(texts.Text(kTextNoFindings)), pages_)) {
  setObjectName(QStringLiteral("findings"));
  setAccessibleName(windowTitle());
  setFeatures(DockWidgetClosable | DockWidgetMovable);
  NameCloseButton(ToQString(texts.Text(kTextClosePanel)));
  setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea);
  list_->setObjectName(QStringLiteral("findingslist"));
  list_->setAccessibleName(windowTitle());
  list_->setColumnCount(kColumns);
  list_->setHeaderHidden(true);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAlternatingRowColors(true);
  list_->setFrameShape(QFrame::NoFrame);
  list_->setStyleSheet(QStringLiteral("QTreeWidget::item { padding: 2px 8px; }"));
  list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  nothing_->setObjectName(QStringLiteral("nofindings"));
  nothing_->setAlignment(Qt::AlignCenter);
  nothing_->setEnabled(false);
  pages_->addWidget(nothing_);
  pages_->addWidget(list_);
  setWidget(pages_);
  const auto want = [this](QTreeWidgetItem* item) {
    const int row = item->data(kPlace, Qt::UserRole).toInt();
    if (row > 0) Q_EMIT ObjectWanted(row);
  };
  connect(list_, &QTreeWidget::itemClicked, this, want);
  connect(list_, &QTreeWidget::itemActivated, this, want);
}

void FindingsDock::Show(std::span<const Finding> findings, const CodePage& page) {
  list_->clear();
  const QString lineWord = ToQString(texts_.Text(kTextLineWord));
  QList<QTreeWidgetItem*> items;
  for (const Finding& finding : findings) {
    auto* item =
        new QTreeWidgetItem({PlaceOf(finding, lineWord),
                             ToQString(texts_.Text(FindingTextNumber(finding.Kind))), Quoted(finding, page)});
    item->setData(kPlace, Qt::UserRole, finding.Row);
    item->setToolTip(kText, item->text(kText));
    items.append(item);
  }
  list_->addTopLevelItems(items);
  pages_->setCurrentWidget(findings.empty() ? static_cast<QWidget*>(nothing_) : list_);
}

}  // namespace kev
