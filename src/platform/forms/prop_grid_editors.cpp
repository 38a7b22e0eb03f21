// SPDX-License-Identifier: MIT
#include "platform/forms/prop_grid_editors.h"

#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "platform/forms/prop_grid_model.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr int kRowRoom = 8;  // pixels above and below a row's text together
constexpr int kArrowRoom = 13;
constexpr int kSwatchSide = 12;
constexpr int kButtonWidth = 22;

const PropGridModel& ModelOf(const QModelIndex& index) {
  return *static_cast<const PropGridModel*>(index.model());
}

QString TextOfEditor(const QWidget* editor) {
  if (const auto* combo = qobject_cast<const QComboBox*>(editor)) return combo->currentText();
  if (const auto* arrows = qobject_cast<const ArrowEdit*>(editor)) return arrows->Text();
  if (const auto* line = qobject_cast<const QLineEdit*>(editor)) return line->text();
  return {};
}

// A value that is no item of a closed list is shown as it stands and is no item.
void ShowInList(QComboBox& combo, const QString& text) {
  const int item = combo.findText(text);
  combo.setCurrentIndex(item);
  if (combo.isEditable()) {
    combo.setEditText(text);
    combo.lineEdit()->selectAll();
  } else if (item < 0) {
    combo.setPlaceholderText(text);
  }
}

}  // namespace

QColor ColourOf(const QString& text) {
  const QStringList parts = text.split(QLatin1Char(','));
  const auto part = [&](int i) {
    return i < parts.size() ? std::clamp(parts[i].trimmed().toInt(), 0, 255) : 0;
  };
  return {part(0), part(1), part(2)};
}

QString TextOfColour(const QColor& colour) {
  return QStringLiteral("%1,%2,%3").arg(colour.red()).arg(colour.green()).arg(colour.blue());
}

QIcon Swatch(const QColor& colour) {
  QPixmap pixmap(kSwatchSide, kSwatchSide);
  pixmap.fill(colour);
  QPainter painter(&pixmap);
  painter.setPen(QColor(0x80, 0x86, 0x8E));
  painter.drawRect(0, 0, kSwatchSide - 1, kSwatchSide - 1);
  return pixmap;
}

// --- Editors ---

ArrowEdit::ArrowEdit(const ArrowBounds& bounds, QWidget* parent) : QAbstractSpinBox(parent), bounds_(bounds) {
  setFrame(false);
}

void ArrowEdit::stepBy(int steps) {
  const double now = NumericPrefix(FromQString(Text(), CodePage::Default()).value_or(std::string()));
  const double next = std::clamp(now + static_cast<double>(steps) * bounds_.Step,
                                 static_cast<double>(bounds_.Minimum), static_cast<double>(bounds_.Maximum));
  SetText(ToQString(FormatNumber(next)));
  SelectAll();
}

QAbstractSpinBox::StepEnabled ArrowEdit::stepEnabled() const {
  return StepUpEnabled | StepDownEnabled;
}

ListEdit::ListEdit(QWidget* parent) : QComboBox(parent) {
  setFrame(false);
  connect(this, &QComboBox::textActivated, this, [this] {
    if (!inKey_) Q_EMIT Picked();
  });
}

void ListEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F4) return showPopup();
  const QScopedValueRollback<bool> inKey(inKey_, true);
  QComboBox::keyPressEvent(event);
}

ButtonEdit::ButtonEdit(const QString& buttonName, bool readOnly, QWidget* parent)
    : QLineEdit(parent), button_(new QToolButton(this)) {
  setFrame(false);
  setReadOnly(readOnly);
  setTextMargins(0, 0, kButtonWidth, 0);
  button_->setObjectName(QStringLiteral("cellbutton"));
  button_->setText(QStringLiteral("\u2026"));
  button_->setAccessibleName(buttonName);
  button_->setFocusPolicy(Qt::NoFocus);
  button_->setCursor(Qt::ArrowCursor);
  connect(button_, &QToolButton::clicked, this, &ButtonEdit::Pressed);
}

void ButtonEdit::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  button_->setGeometry(width() - kButtonWidth, 0, kButtonWidth, height());
}

// F4 and Alt+Down open what a list would drop down.
void ButtonEdit::keyPressEvent(QKeyEvent* event) {
  const bool down = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
  const bool space = event->key() == Qt::Key_Space && isReadOnly();
  if (event->key() == Qt::Key_F4 || down || space) return button_->click();
  QLineEdit::keyPressEvent(event);
}

// --- Choosers ---

namespace {

// "*.kex *.KEX *.ked *.KED": not every system's dialog takes both cases for one.
QString PatternsOf(const FileFilter& filter) {
  QStringList patterns;
  for (const QString& pattern : ToQString(filter.Patterns).split(QLatin1Char(';')))
    patterns << pattern << pattern.toUpper();
  return patterns.join(QLatin1Char(' '));
}

QString ChooseFile(QWidget* parent, const PropertyRow& row, const QString& text, const QString& folder) {
  const FileFilter filter = FilterOf(row.Tail);
  const QString title = ToQString(filter.Title);
  QString name = text;
  name.replace(QLatin1Char('\\'), QLatin1Char('/'));
  const QString start = folder.isEmpty() ? name : QDir(folder).filePath(name);
  return QFileDialog::getOpenFileName(parent, title, start,
                                      title + QStringLiteral(" (") + PatternsOf(filter) + QLatin1Char(')'));
}

// The row keeps its name where the chosen one can't be written.
QString ChooseFont(QWidget* parent, const PropertyRow& row) {
  const FontValue now = ParseFontValue(row.Value).value_or(FontValue{});
  QFont font(ToQString(now.Name), std::max(1, static_cast<int>(now.Size)));
  font.setBold(now.Bold);
  font.setItalic(now.Italic);
  bool accepted = false;
  const QFont chosen = QFontDialog::getFont(&accepted, font, parent);
  if (!accepted) return {};
  const std::string name = FromQString(chosen.family(), CodePage::Default()).value_or(now.Name);
  return ToQString(FontValueText(
      {name, static_cast<std::int32_t>(std::lround(chosen.pointSizeF())), chosen.bold(), chosen.italic()}));
}

}  // namespace

QString PropGridDelegate::Choose(QWidget* parent, const PropertyRow& row, const QString& text,
                                 const QString& folder) {
  switch (row.Editor) {
    case EditorKind::File:
      return ChooseFile(parent, row, text, folder);
    case EditorKind::Font:
      return ChooseFont(parent, row);
    default:
      return {};
  }
}

// --- The delegate ---

namespace {

void PaintButton(QPainter& painter, const QStyleOptionViewItem& option, bool enabled) {
  QStyleOptionButton button;
  button.rect = option.rect.adjusted(2, 1, -2, -2);
  button.palette = option.palette;
  button.state = QStyle::State_Raised | (enabled ? QStyle::State_Enabled : QStyle::State_None);
  button.text = QStringLiteral("\u2026");
  option.widget->style()->drawControl(QStyle::CE_PushButton, &button, &painter, option.widget);
}

}  // namespace

void PropGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyleOptionViewItem plain = option;
  // The caption carries the mark of the current row; the value stays easy to read: on one line, which is cut at
  // a letter, where a caption is parted at a blank.
  if (index.column() == PropGridModel::kValue) {
    plain.state &= ~QStyle::State_Selected;
    plain.features &= ~QStyleOptionViewItem::WrapText;
    painter->fillRect(option.rect, option.palette.base());
  }
  const PropertyRow& row = ModelOf(index).RowAt(index);
  const bool drops = row.Editor == EditorKind::ClosedList || row.Editor == EditorKind::OpenList;
  const bool arrowed = drops && row.Enabled && index.column() == PropGridModel::kValue;
  if (arrowed) {
    // The cell's ground below the arrow, then the text beside it.
    QStyleOptionViewItem ground = plain;
    ground.features = QStyleOptionViewItem::None;
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);
    plain.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
    plain.rect.setRight(plain.rect.right() - kArrowRoom);
  }
  QStyledItemDelegate::paint(painter, plain, index);
  painter->setPen(QColor(0xE1, 0xE4, 0xE8));
  painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  if (index.column() != PropGridModel::kValue) return;
  painter->drawLine(option.rect.topLeft(), option.rect.bottomLeft());
  if (row.Editor == EditorKind::Button) return PaintButton(*painter, option, row.Enabled);
  if (!arrowed) return;
  QStyleOption arrow;
  arrow.rect = QRect(option.rect.right() - 12, option.rect.center().y() - 4, 9, 9);
  arrow.palette = option.palette;
  arrow.state = QStyle::State_Enabled;
  option.widget->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, option.widget);
}

QSize PropGridDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {80, option.fontMetrics.height() + kRowRoom};
}

QWidget* PropGridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const {
  const PropertyRow& row = ModelOf(index).RowAt(index);
  QWidget* editor = nullptr;
  switch (row.Editor) {
    case EditorKind::ClosedList:
      editor = MakeList(parent, row, index, false);
      break;
    case EditorKind::OpenList:
      editor = MakeList(parent, row, index, true);
      break;
    case EditorKind::Number:
      editor = new ArrowEdit(BoundsOf(row.Tail), parent);
      break;
    case EditorKind::File:
    case EditorKind::Colour:
    case EditorKind::Font:
      editor = MakeChooser(parent, row, index);
      break;
    case EditorKind::Button:
      return nullptr;
    case EditorKind::Text: {
      auto* line = new QLineEdit(parent);
      line->setFrame(false);
      editor = line;
      break;
    }
  }
  editor->setObjectName(QStringLiteral("cell"));
  editor->setAccessibleName(ToQString(row.Caption));
  return editor;
}

QWidget* PropGridDelegate::MakeList(QWidget* parent, const PropertyRow& row, const QModelIndex& index,
                                    bool open) const {
  auto* list = new ListEdit(parent);
  list->setEditable(open);
  for (const std::string& item : row.Items)
    list->addItem(ToQString(item, ModelOf(index).PageOf(ModelOf(index).RowAt(index))));
  if (open) {
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setCompleter(nullptr);
    list->lineEdit()->setAccessibleName(ToQString(row.Caption));
  }
  connect(list, &ListEdit::Picked, this, [this, list] {
    Q_EMIT Self().commitData(list);
    Q_EMIT Self().closeEditor(list);
  });
  return list;
}

QWidget* PropGridDelegate::MakeChooser(QWidget* parent, const PropertyRow& row,
                                       const QModelIndex& index) const {
  auto* edit = new ButtonEdit(ToQString(row.Caption), row.Editor == EditorKind::Font, parent);
  connect(edit, &ButtonEdit::Pressed, this, [this, cell = QPersistentModelIndex(index)] {
    if (cell.isValid()) Q_EMIT Self().ChooserWanted(cell);
  });
  return edit;
}

void PropGridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const PropGridModel& model = ModelOf(index);
  const QString text = model.TextAt(index);
  if (auto* combo = qobject_cast<QComboBox*>(editor)) return ShowInList(*combo, text);
  if (auto* arrows = qobject_cast<ArrowEdit*>(editor)) {
    arrows->SetText(text);
    return arrows->SelectAll();
  }
  auto* line = qobject_cast<QLineEdit*>(editor);
  line->setText(model.Shown(model.RowAt(index)));
  line->selectAll();
}

void PropGridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
  // A font comes from its chooser alone.
  if (ModelOf(index).RowAt(index).Editor == EditorKind::Font) return;
  // Nothing was picked of a closed list that does not hold the value.
  const auto* combo = qobject_cast<QComboBox*>(editor);
  if (combo != nullptr && !combo->isEditable() && combo->currentIndex() < 0) return;
  model->setData(index, TextOfEditor(editor));
}

void PropGridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex&) const {
  editor->setGeometry(option.rect.adjusted(1, 0, 0, -1));
}

}  // namespace kev
