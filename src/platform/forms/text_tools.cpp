// SPDX-License-Identifier: MIT
#include "platform/forms/text_tools.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolBar>
#include <array>
#include <utility>

#include "base/text_numbers.h"
#include "platform/forms/line_redo_key.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr int kShownItems = 20;
constexpr int kFontCharacters = 14;
constexpr int kSizeCharacters = 3;
constexpr QSize kSwatchSize(22, 22);
constexpr int kSharpest = 3;  // device pixels in one logical one

// The names that templates use everywhere, whether or not they are installed.
constexpr auto kUsualFonts = std::to_array<const char*>({"Arial", "Courier New", "Times New Roman"});
constexpr auto kUsualSizes =
    std::to_array<int>({6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72});

QStringList Families() {
  QStringList families;
  for (const char* name : kUsualFonts)
    families << QString::fromLatin1(name);
  for (const QString& family : QFontDatabase::families())
    if (!QFontDatabase::isPrivateFamily(family)) families << family;
  families.removeDuplicates();
  families.sort(Qt::CaseInsensitive);
  return families;
}

QIcon Swatch(const QColor& colour) {
  QPixmap pixmap(kSwatchSize * kSharpest);
  pixmap.setDevicePixelRatio(kSharpest);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setPen(QColor(0x80, 0x86, 0x8E));
  painter.setBrush(colour);
  painter.drawRect(QRectF(3.5, 3.5, 14, 14));
  return QIcon(pixmap);
}

// The entry of the bar that shows the child of this name; null where there is none.
QAction* EntryOf(QToolBar& bar, const QString& name) {
  for (QAction* action : bar.actions())
    if (const QWidget* widget = bar.widgetForAction(action); widget && widget->objectName() == name)
      return action;
  return nullptr;
}

void Name(QWidget& tool, const char* name, const QString& accessibleName) {
  tool.setObjectName(QString::fromLatin1(name));
  tool.setAccessibleName(accessibleName);
  tool.setToolTip(accessibleName);
}

}  // namespace

// --- Font ---

ComboFont::ComboFont(const QString& accessibleName, QWidget* parent) : QComboBox(parent) {
  Name(*this, "ComboFont", accessibleName);
  addItems(Families());
  setMaxVisibleItems(kShownItems);
  setMinimumContentsLength(kFontCharacters);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setCurrentIndex(-1);
  setEnabled(false);
}

void ComboFont::ShowFont(const QString& name) {
  if (!name.isEmpty() && findText(name, Qt::MatchExactly) < 0) insertItem(0, name);
  setCurrentIndex(name.isEmpty() ? -1 : findText(name, Qt::MatchExactly));
}

// --- Size ---

Combosize::Combosize(const QString& accessibleName, QWidget* parent) : QComboBox(parent) {
  Name(*this, "Combosize", accessibleName);
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  // "1" is the beginning of a number here, not of "10".
  setCompleter(nullptr);
  setMaxVisibleItems(kShownItems);
  setMinimumContentsLength(kSizeCharacters);
  for (const int size : kUsualSizes)
    addItem(QString::number(size));
  ShowSize({});
  setEnabled(false);
  lineEdit()->setAccessibleName(accessibleName);
  TakeRedoKey(*this, *lineEdit());
  connect(lineEdit(), &QLineEdit::editingFinished, this, &Combosize::Offer);
  connect(this, &QComboBox::textActivated, this, &Combosize::Offer);
}

void Combosize::ShowSize(const QString& size) {
  shown_ = size;
  setCurrentIndex(findText(size, Qt::MatchExactly));
  setEditText(size);
}

void Combosize::Offer() {
  // Enter and the leaving that follows it offer the same text; the second time it is no news.
  if (currentText() == shown_) return;
  shown_ = currentText();
  Q_EMIT SizeChosen(shown_);
}

void Combosize::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    ShowSize(QString(shown_));
    lineEdit()->selectAll();
    return;
  }
  QComboBox::keyPressEvent(event);
}

// --- Colour ---

PColor::PColor(const QString& accessibleName, QWidget* parent) : QToolButton(parent) {
  Name(*this, "PColor", accessibleName);
  setIconSize(kSwatchSize);
  setAutoRaise(true);
  setFocusPolicy(Qt::TabFocus);
  ShowColour({});
}

void PColor::ShowColour(const std::optional<Colour>& colour) {
  setEnabled(colour.has_value());
  setIcon(Swatch(colour ? QColor(colour->Red, colour->Green, colour->Blue) : QColor(Qt::transparent)));
}

// --- All ---

TextTools::TextTools(QToolBar& bar, Designer& designer, std::function<void()> used)
    : QObject(&bar),
      designer_(designer),
      used_(std::move(used)),
      font_(new ComboFont(ToQString(designer.Text(kTextToolFont)), &bar)),
      size_(new Combosize(ToQString(designer.Text(kTextToolFontSize)), &bar)),
      colour_(new PColor(ToQString(designer.Text(kTextToolFontColor)), &bar)) {
  QAction* bold = EntryOf(bar, QStringLiteral("ImgButton10"));
  bar.insertWidget(bold, font_);
  bar.insertWidget(bold, size_);
  // Behind underline, where the group of the styles ends.
  QAction* left = EntryOf(bar, QStringLiteral("ImgButton13"));
  const qsizetype at = bar.actions().indexOf(left);
  bar.insertWidget(at > 0 ? bar.actions().at(at - 1) : left, colour_);
  Connect();
}

void TextTools::Connect() {
  connect(font_, &QComboBox::textActivated, this, &TextTools::ChooseFont);
  connect(size_, &Combosize::SizeChosen, this, [this](const QString& size) {
    designer_.Surface().ChooseFontSize(size.toStdString());
    Used(*size_);
  });
  connect(size_->lineEdit(), &QLineEdit::returnPressed, this, [this] { Used(*size_); });
  connect(colour_, &QToolButton::clicked, this, [this] {
    designer_.Surface().ChooseTextColour();
    used_();
  });
}

void TextTools::ChooseFont(const QString& name) {
  QString refused;
  if (const auto bytes = FromQString(name, *designer_.OpenDocument().Page, &refused)) {
    designer_.Surface().ChooseFont(*bytes);
  } else {
    designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, refused.toStdString());
    designer_.Surface().SelectionChanged();
  }
  Used(*font_);
}

void TextTools::Used(const QWidget& tool) {
  const QWidget* focus = tool.window()->focusWidget();
  if (focus == &tool || (focus != nullptr && tool.isAncestorOf(focus))) used_();
}

void TextTools::Show(const FontTools& tools) {
  const QSignalBlocker fontQuiet(font_);
  const QSignalBlocker sizeQuiet(size_);
  font_->ShowFont(ToQString(tools.ComboFont, *designer_.OpenDocument().Page));
  font_->setEnabled(tools.Enabled);
  size_->ShowSize(ToQString(tools.Combosize));
  size_->setEnabled(tools.Enabled);
  colour_->ShowColour(tools.Enabled ? std::optional(tools.PColor) : std::nullopt);
}

}  // namespace kev
