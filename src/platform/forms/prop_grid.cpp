// SPDX-License-Identifier: MIT
#include "platform/forms/prop_grid.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include "platform/forms/prop_grid_editors.h"
#include "platform/forms/prop_grid_model.h"

namespace kev {
namespace {

constexpr int kCaptionWidth = 127;  // 1900 twips

bool IsText(const QKeyEvent& event) {
  const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return (event.modifiers() & commands) == 0 && !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace

PropGrid::PropGrid(QWidget* parent) : QTableView(parent), model_(new PropGridModel(this)) {
  setObjectName(QStringLiteral("PropGrid1"));
  setModel(model_);
  auto* delegate = new PropGridDelegate(this);
  setItemDelegate(delegate);
  horizontalHeader()->hide();
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  horizontalHeader()->setStretchLastSection(true);
  setColumnWidth(PropGridModel::kCaption, kCaptionWidth);
  setShowGrid(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTabKeyNavigation(false);
  setFrameShape(QFrame::NoFrame);
  connect(model_, &PropGridModel::Edited, this, &PropGrid::Edited);
  connect(model_, &PropGridModel::Refused, this, &PropGrid::Refused);
  connect(
      delegate, &QAbstractItemDelegate::closeEditor, this, [this] { setFocus(Qt::OtherFocusReason); },
      Qt::QueuedConnection);
}

void PropGrid::Show(const std::vector<PropertyRow>& rows, const CodePage& page) {
  const int row = CurrentRow();
  model_->Show(rows, page);
  if (CurrentRow() == 0 && row > 0 && row <= model_->rowCount()) SetCurrentRow(row);
}

std::vector<std::string> PropGrid::Values() const {
  std::vector<std::string> values;
  for (const PropertyRow& row : model_->Rows())
    values.push_back(row.Value);
  return values;
}

int PropGrid::CurrentRow() const {
  return currentIndex().isValid() ? currentIndex().row() + 1 : 0;
}

void PropGrid::SetCurrentRow(int row) {
  if (row >= 1 && row <= model_->rowCount()) setCurrentIndex(model_->index(row - 1, PropGridModel::kValue));
}

bool PropGrid::CommitOpenCell() {
  if (state() != QAbstractItemView::EditingState) return true;
  QWidget* editor = indexWidget(currentIndex());
  if (editor == nullptr) return true;
  commitData(editor);
  closeEditor(editor, QAbstractItemDelegate::NoHint);
  return true;
}

void PropGrid::DiscardOpenCell() {
  if (QWidget* editor = indexWidget(currentIndex())) closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void PropGrid::Open(const QModelIndex& index, const QString& typed) {
  if (!index.isValid() || !model_->RowAt(index).Enabled) return;
  const QModelIndex cell = index.siblingAtColumn(PropGridModel::kValue);
  if (model_->RowAt(cell).Editor == EditorKind::Button) {
    Q_EMIT ButtonPressed(cell.row() + 1);
    return;
  }
  edit(cell);
  QWidget* editor = indexWidget(cell);
  if (typed.isEmpty() || editor == nullptr) return;
  if (auto* combo = qobject_cast<QComboBox*>(editor); combo != nullptr && !combo->isEditable()) {
    const int item = combo->findText(typed, Qt::MatchStartsWith);
    if (item >= 0) combo->setCurrentIndex(item);
  } else if (auto* line = editor->findChild<QLineEdit*>(); line != nullptr && !line->isReadOnly()) {
    line->setText(typed);
  } else if (auto* plain = qobject_cast<QLineEdit*>(editor)) {
    plain->setText(typed);
  }
}

// The arrows walk the rows; what types a character opens the cell with it.
void PropGrid::keyPressEvent(QKeyEvent* event) {
  const QModelIndex current = currentIndex();
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
    case Qt::Key_F4:
      return Open(current);
    case Qt::Key_Left:
    case Qt::Key_Right:
      return event->accept();
    case Qt::Key_Space:
      if (current.isValid() && model_->RowAt(current).Editor != EditorKind::Text) return Open(current);
      break;
    default:
      break;
  }
  if (current.isValid() && IsText(*event)) return Open(current, event->text());
  QTableView::keyPressEvent(event);
}

void PropGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (current.row() != previous.row()) Q_EMIT RowChanged(CurrentRow());
}

void PropGrid::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (!currentIndex().isValid()) SetCurrentRow(1);
  Q_EMIT FocusChanged(true);
}

void PropGrid::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  Q_EMIT FocusChanged(state() == QAbstractItemView::EditingState);
}

// A press on a value opens it at once; a list drops down with it.
void PropGrid::mousePressEvent(QMouseEvent* event) {
  QTableView::mousePressEvent(event);
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !index.isValid() || index.column() != PropGridModel::kValue)
    return;
  Open(index);
  if (auto* combo = qobject_cast<QComboBox*>(indexWidget(index)); combo != nullptr && !combo->isEditable())
    combo->showPopup();
}

}  // namespace kev
