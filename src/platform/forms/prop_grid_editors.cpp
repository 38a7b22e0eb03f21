// SPDX-License-Identifier: MIT
#include "platform/forms/prop_grid_editors.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "platform/forms/prop_grid_model.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr int kRowRoom = 8;  // pixels above and below a row's text together
constexpr int kSwatchSide = 12;

const PropGridModel& ModelOf(const QModelIndex& index) {
  return *static_cast<const PropGridModel*>(index.model());
}

QString TextOfEditor(const QWidget* editor) {
  if (const auto* combo = qobject_cast<const QComboBox*>(editor)) return combo->currentText();
  if (const auto* arrows = qobject_cast<const ArrowEdit*>(editor)) return arrows->Text();
  if (const auto* chooser = qobject_cast<const ButtonEdit*>(editor)) return chooser->Line().text();
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

// --- Editors
// ------------------------------------------------------------------------------------------------------

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

ButtonEdit::ButtonEdit(const QString& buttonName, bool readOnly, QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(this)), button_(new QToolButton(this)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(line_);
  layout->addWidget(button_);
  line_->setFrame(false);
  line_->setReadOnly(readOnly);
  line_->setAccessibleName(buttonName);
  button_->setText(QStringLiteral("\u2026"));
  button_->setAccessibleName(buttonName);
  button_->setFocusPolicy(Qt::NoFocus);
  button_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  setFocusProxy(line_);
  setAutoFillBackground(true);
  connect(button_, &QToolButton::clicked, this, &ButtonEdit::Pressed);
}

// F4 and Alt+Down open what a list would drop down.
void ButtonEdit::keyPressEvent(QKeyEvent* event) {
  const bool down = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
  if (event->key() == Qt::Key_F4 || down || event->key() == Qt::Key_Space) return button_->click();
  QWidget::keyPressEvent(event);
}

// --- Choosers
// -----------------------------------------------------------------------------------------------------

QString PropGridDelegate::ChooseFile(QWidget* parent, const QString& text, const std::string& tail) {
  const FileFilter filter = FilterOf(tail);
  QString patterns = ToQString(filter.Patterns);
  patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
  const QString shown = ToQString(filter.Title) + QStringLiteral(" (") + patterns + QStringLiteral(")");
  return QFileDialog::getOpenFileName(parent, ToQString(filter.Title), text, shown);
}

QString PropGridDelegate::ChooseColour(QWidget* parent, const QString& text) {
  const QColor chosen = QColorDialog::getColor(ColourOf(text), parent);
  return chosen.isValid() ? TextOfColour(chosen) : QString();
}

QString PropGridDelegate::ChooseFont(QWidget* parent, const QString& text) {
  const FontValue now =
      ParseFontValue(FromQString(text, CodePage::Default()).value_or(std::string())).value_or(FontValue{});
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

// --- The delegate
// -------------------------------------------------------------------------------------------------

void PropGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyleOptionViewItem plain = option;
  // The caption carries the mark of the current row; the value stays easy to read.
  if (index.column() == PropGridModel::kValue) plain.state &= ~QStyle::State_Selected;
  QStyledItemDelegate::paint(painter, plain, index);
  painter->setPen(QColor(0xE1, 0xE4, 0xE8));
  painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  if (index.column() != PropGridModel::kValue) return;
  painter->drawLine(option.rect.topLeft(), option.rect.bottomLeft());
  const PropertyRow& row = ModelOf(index).RowAt(index);
  const bool drops = row.Editor == EditorKind::ClosedList || row.Editor == EditorKind::OpenList;
  if (!drops || !row.Enabled) return;
  QStyleOption arrow;
  arrow.rect = QRect(option.rect.right() - 15, option.rect.center().y() - 4, 9, 9);
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
  auto* combo = new QComboBox(parent);
  combo->setEditable(open);
  combo->setFrame(false);
  for (const std::string& item : row.Items)
    combo->addItem(ToQString(item, ModelOf(index).Page()));
  if (open) {
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    combo->lineEdit()->setAccessibleName(ToQString(row.Caption));
  }
  connect(combo, &QComboBox::textActivated, this, [this, combo] {
    auto* self = const_cast<PropGridDelegate*>(this);
    Q_EMIT self->commitData(combo);
    Q_EMIT self->closeEditor(combo);
  });
  return combo;
}

QWidget* PropGridDelegate::MakeChooser(QWidget* parent, const PropertyRow& row,
                                       const QModelIndex& index) const {
  auto* edit = new ButtonEdit(ToQString(row.Caption), row.Editor == EditorKind::Font, parent);
  connect(edit, &ButtonEdit::Pressed, this, [this, edit, index = QPersistentModelIndex(index)] {
    if (!index.isValid()) return;
    const PropertyRow now = ModelOf(index).RowAt(index);
    const QPointer<ButtonEdit> alive(edit);
    QString chosen;
    if (now.Editor == EditorKind::File) chosen = ChooseFile(edit, edit->Line().text(), now.Tail);
    if (now.Editor == EditorKind::Colour) chosen = ChooseColour(edit, edit->Line().text());
    if (now.Editor == EditorKind::Font) chosen = ChooseFont(edit, ModelOf(index).TextAt(index));
    if (chosen.isEmpty()) return;
    if (!index.isValid()) return;
    if (alive) {
      auto* self = const_cast<PropGridDelegate*>(this);
      if (now.Editor != EditorKind::Font) edit->Line().setText(chosen);
      edit->setProperty("chosen", chosen);
      Q_EMIT self->commitData(edit);
      Q_EMIT self->closeEditor(edit);
    }
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
  if (auto* chooser = qobject_cast<ButtonEdit*>(editor)) {
    chooser->Line().setText(model.Shown(model.RowAt(index)));
    return chooser->Line().selectAll();
  }
  auto* line = qobject_cast<QLineEdit*>(editor);
  line->setText(text);
  line->selectAll();
}

void PropGridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
  const PropertyRow& row = ModelOf(index).RowAt(index);
  if (row.Editor == EditorKind::Font) {
    const QString chosen = editor->property("chosen").toString();
    if (!chosen.isEmpty()) model->setData(index, chosen);
    return;
  }
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
