// SPDX-License-Identifier: MIT
#include "platform/forms/prop_grid.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "platform/focus_edges.h"
#include "platform/forms/prop_grid_editors.h"
#include "platform/forms/prop_grid_model.h"

namespace kev {
namespace {

constexpr int kCaptionWidth = 127;  // 1900 twips
constexpr int kLeastValueWidth = 24;

bool IsText(const QKeyEvent& event) {
  const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return (event.modifiers() & commands) == 0 && !event.text().isEmpty() && event.text().at(0).isPrint();
}

bool IsRedo(const QKeyEvent& event) {
  return event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
}

// Keys that the grid has a use for though the menus have one as well.
bool IsOwnKey(const QKeyEvent& event, bool openCell) {
  if (event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut) ||
      event.matches(QKeySequence::Paste))
    return true;
  const bool plain = event.modifiers() == Qt::NoModifier;
  if (plain && (event.key() == Qt::Key_Delete || event.key() == Qt::Key_F4)) return true;
  return openCell && IsRedo(event);
}

// The line in which an editor's text is typed; null for a closed list.
QLineEdit* LineOf(QWidget* editor) {
  if (auto* line = qobject_cast<QLineEdit*>(editor)) return line;
  return editor == nullptr ? nullptr : editor->findChild<QLineEdit*>();
}

void TypeInto(QWidget* editor, const QString& typed) {
  if (auto* list = qobject_cast<QComboBox*>(editor); list != nullptr && !list->isEditable()) {
    const int item = typed.isEmpty() ? -1 : list->findText(typed, Qt::MatchStartsWith);
    if (item >= 0) list->setCurrentIndex(item);
    return;
  }
  QLineEdit* line = LineOf(editor);
  if (line == nullptr || line->isReadOnly()) return;
  line->selectAll();
  line->insert(typed);
}

}  // namespace

PropGrid::PropGrid(QWidget* parent) : QTableView(parent), model_(new PropGridModel(this)) {
  setObjectName(QStringLiteral("PropGrid1"));
  new FocusEdges(*this);
  setModel(model_);
  auto* delegate = new PropGridDelegate(this);
  setItemDelegate(delegate);
  horizontalHeader()->hide();
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  horizontalHeader()->setMinimumSectionSize(kLeastValueWidth);
  horizontalHeader()->setSectionResizeMode(PropGridModel::kCaption, QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(PropGridModel::kValue, QHeaderView::Stretch);
  setColumnWidth(PropGridModel::kCaption, kCaptionWidth);
  setShowGrid(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Captions stay in sight, however narrow the grid is.
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, this,
          [this] { horizontalScrollBar()->setValue(0); });
  setTabKeyNavigation(false);
  setFrameShape(QFrame::NoFrame);
  connect(model_, &PropGridModel::Edited, this, &PropGrid::Edited);
  connect(model_, &PropGridModel::Refused, this, &PropGrid::Refused);
  connect(delegate, &PropGridDelegate::ChooserWanted, this, &PropGrid::Choose);
  // The row keeps the keyboard, unless it was given to something else.
  connect(
      delegate, &QAbstractItemDelegate::closeEditor, this,
      [this] {
        if (HasOpenCell()) return;
        const QWidget* now = window()->focusWidget();
        if (now == nullptr || Holds(now)) setFocus(Qt::OtherFocusReason);
      },
      Qt::QueuedConnection);
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget*, const QWidget* now) { TellFocus(now); });
}

PropGrid::~PropGrid() {
  disconnect(qApp, nullptr, this, nullptr);
}

// Other rows close every cell; its focus would go to the next control.
void PropGrid::NameColumns(const QString& caption, const QString& value) {
  model_->NameColumns(caption, value);
}

void PropGrid::Show(const std::vector<PropertyRow>& rows, const CodePage& page) {
  const int row = CurrentRow();
  const bool keepFocus = committing_ && Holds(window()->focusWidget());
  if (model_->Show(rows, page)) FitRows();
  if (keepFocus && !HasOpenCell()) setFocus(Qt::OtherFocusReason);
  if (CurrentRow() == 0 && (row > 0 || hasFocus()))
    SetCurrentRow(row > 0 && row <= model_->rowCount() ? row : 1);
}

// A caption that is too long for its column takes a second line.
void PropGrid::FitRows() {
  const int room = kCaptionWidth - 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
  const int line = verticalHeader()->defaultSectionSize();
  for (int row = 0; row < model_->rowCount(); ++row) {
    const QString caption = model_->index(row, PropGridModel::kCaption).data().toString();
    const QRect text = fontMetrics().boundingRect({0, 0, room, 1000}, Qt::TextWordWrap, caption);
    verticalHeader()->resizeSection(row, line + text.height() - fontMetrics().height());
  }
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

// --- Cells ---

void PropGrid::CommitOpenCell() {
  if (!HasOpenCell() || committing_) return;
  QWidget* editor = indexWidget(currentIndex());
  if (editor == nullptr) return;
  commitData(editor);
  if (indexWidget(currentIndex()) == editor) closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void PropGrid::DiscardOpenCell() {
  if (!HasOpenCell() || committing_) return;
  if (QWidget* editor = indexWidget(currentIndex())) closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void PropGrid::commitData(QWidget* editor) {
  const QScopedValueRollback<bool> committing(committing_, true);
  QTableView::commitData(editor);
}

// Other rows may have closed the cell while it was committed.
void PropGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  if (editor == nullptr || !editor->isHidden()) QTableView::closeEditor(editor, hint);
}

void PropGrid::Open(const QModelIndex& index, const std::optional<QString>& typed) {
  if (!index.isValid() || HasOpenCell() || !model_->RowAt(index).Enabled) return;
  const QModelIndex cell = index.siblingAtColumn(PropGridModel::kValue);
  setCurrentIndex(cell);
  if (model_->RowAt(cell).Editor == EditorKind::Button) {
    if (!typed) Q_EMIT ButtonPressed(cell.row() + 1);
    return;
  }
  edit(cell);
  if (typed) TypeInto(indexWidget(cell), *typed);
}

// What was typed before the chooser opens is stored first; the cell would be left anyway.
void PropGrid::Choose(const QModelIndex& index) {
  const QPersistentModelIndex cell(index);
  CommitOpenCell();
  if (!cell.isValid()) return;
  const QString chosen = ChosenFor(cell);
  if (!chosen.isEmpty() && cell.isValid()) model_->setData(cell, chosen, Qt::EditRole);
  setFocus(Qt::OtherFocusReason);
}

QString PropGrid::ChosenFor(const QModelIndex& cell) {
  const QString text = model_->TextAt(cell);
  if (model_->RowAt(cell).Editor != EditorKind::Colour)
    return PropGridDelegate::Choose(this, model_->RowAt(cell), text, folder_);
  const QColor chosen = chooseColour_ ? chooseColour_(ColourOf(text)) : QColor();
  return chosen.isValid() ? TextOfColour(chosen) : QString();
}

// --- Keys ---

// The menus would take these keys before the grid sees them.
bool PropGrid::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsOwnKey(*static_cast<QKeyEvent*>(event), HasOpenCell())) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

bool PropGrid::TakeClipboardKey(const QKeyEvent& event) {
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return false;
  const bool cuts = event.matches(QKeySequence::Cut);
  if (cuts || event.matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(model_->Shown(model_->RowAt(current)));
    if (cuts) Open(current, QString());
    return true;
  }
  if (!event.matches(QKeySequence::Paste)) return false;
  Open(current, QApplication::clipboard()->text());
  return true;
}

// What an open cell has no use for: the rows are walked all the same.
void PropGrid::KeyInOpenCell(QKeyEvent* event) {
  QWidget* editor = indexWidget(currentIndex());
  if (QLineEdit* line = LineOf(editor); IsRedo(*event) && line != nullptr) return line->redo();
  const bool walks = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down ||
                     event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
  if (walks && qobject_cast<QComboBox*>(editor) == nullptr) QTableView::keyPressEvent(event);
}

// The arrows walk the rows; what types a character opens the cell with it.
void PropGrid::keyPressEvent(QKeyEvent* event) {
  if (HasOpenCell()) return KeyInOpenCell(event);
  const QModelIndex current = currentIndex();
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
    case Qt::Key_F4:
      return Open(current);
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
      return Open(current, QString());
    case Qt::Key_Left:
    case Qt::Key_Right:
      return event->accept();
    case Qt::Key_Space:
      if (current.isValid() && model_->RowAt(current).Editor != EditorKind::Text) return Open(current);
      break;
    default:
      break;
  }
  if (TakeClipboardKey(*event)) return;
  if (current.isValid() && IsText(*event)) return Open(current, event->text());
  QTableView::keyPressEvent(event);
}

// --- Current row, focus, pointer ---

void PropGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (current.row() != previous.row()) Q_EMIT RowChanged(CurrentRow());
}

void PropGrid::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (!currentIndex().isValid()) SetCurrentRow(1);
}

// The list that drops down from a cell is a window of its own.
bool PropGrid::Holds(const QWidget* widget) const {
  while (widget != nullptr && widget != this)
    widget = widget->parentWidget();
  return widget != nullptr;
}

void PropGrid::TellFocus(const QWidget* now) {
  const bool has = Holds(now);
  if (has == std::exchange(focused_, has)) return;
  Q_EMIT FocusChanged(has);
}

// A press on a value opens it at once; a list takes the press as its own and drops down.
void PropGrid::mousePressEvent(QMouseEvent* event) {
  QTableView::mousePressEvent(event);
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !index.isValid() || index.column() != PropGridModel::kValue)
    return;
  Open(index);
  auto* list = qobject_cast<QComboBox*>(indexWidget(index));
  if (list == nullptr) return;
  QMouseEvent press(QEvent::MouseButtonPress, event->position() - list->pos(), event->globalPosition(),
                    event->button(), event->buttons(), event->modifiers());
  QCoreApplication::sendEvent(list, &press);
}

void PropGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  QTableView::mouseDoubleClickEvent(event);
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && index.isValid()) Q_EMIT RowDoubleClicked(index.row() + 1);
}

}  // namespace kev
