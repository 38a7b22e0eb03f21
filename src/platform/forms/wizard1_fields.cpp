// SPDX-License-Identifier: MIT
#include "platform/forms/wizard1_fields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QSignalBlocker>
#include <utility>

#include "base/text_numbers.h"
#include "platform/forms/colour_widgets.h"
#include "platform/forms/select_all_edit.h"
#include "platform/forms/show_colors.h"
#include "platform/svg_icon.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr QSize kIconSize(20, 20);
constexpr QRgb kHoverGround = 0xFFE6EAEF, kDownGround = 0xFFD8E6F7, kDownEdge = 0xFF1B6AC9;
constexpr double kCorner = 4;

}  // namespace

// --- ImgToggle ---

ImgToggle::ImgToggle(const QString& imageFile, const QString& caption, QWidget* parent)
    : QAbstractButton(parent) {
  setCheckable(true);
  setText(caption);
  setToolTip(caption);
  setIcon(SvgIcon(imageFile));
  setIconSize(kIconSize);
  setFocusPolicy(Qt::StrongFocus);
  setFixedSize(sizeHint());
}

void ImgToggle::ClearHover() {
  if (std::exchange(hovered_, false)) update();
}

void ImgToggle::enterEvent(QEnterEvent*) {
  hovered_ = true;
  Q_EMIT Hovered();
  update();
}

void ImgToggle::leaveEvent(QEvent*) {
  ClearHover();
}

void ImgToggle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  if (isChecked() || hovered_ || hasFocus()) {
    const bool edge = isChecked() || hasFocus();
    painter.setPen(edge ? QPen(QColor(kDownEdge), hasFocus() ? 1.6 : 1) : QPen(Qt::NoPen));
    painter.setBrush(isChecked() ? QColor(kDownGround) : hovered_ ? QColor(kHoverGround) : QColor(Qt::white));
    painter.drawRoundedRect(area, kCorner, kCorner);
  }
  // Without its image the button carries the first letter of its word.
  if (icon().isNull()) {
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignCenter, text().left(1));
    return;
  }
  QRect place(QPoint(), iconSize());
  place.moveCenter(rect().center());
  icon().paint(&painter, place);
}

// --- Wizard1Fields ---

Wizard1Fields::Wizard1Fields(ChartWizardRun& run, const LanguageTexts& texts, QWidget* dialog)
    : QObject(dialog), run_(run), texts_(texts), dialog_(dialog) {}

QString Wizard1Fields::Word(int text) const {
  return ToQString(texts_.Text(text));
}

void Wizard1Fields::Prepare(QWidget* control, const QString& name, const QString& label) {
  control->setObjectName(name);
  control->setAccessibleName(label);
}

QLineEdit* Wizard1Fields::Text(const QString& name, const QString& label) {
  auto* edit = new SelectAllEdit(dialog_);
  Prepare(edit, name, label);
  const std::string key = name.toStdString();
  const WizardText& control = WizardTextOf(key);
  connect(edit, &QLineEdit::textEdited, this, [this, key](const QString& text) { Type(key, text); });
  connect(edit, &QLineEdit::editingFinished, this, [this, key] { Leave(key); });
  if (control.Rule == WizardRule::Colour || control.Rule == WizardRule::Background)
    edit->installEventFilter(this);
  shown_.push_back([this, edit, &control] {
    const QString text = ToQString(control.Text.In(run_.Wizard().Now), run_.Page());
    if (edit->text() == text) return;
    edit->setText(text);
    if (!edit->hasFocus()) edit->setCursorPosition(0);
  });
  return edit;
}

QComboBox* Wizard1Fields::OpenList(const QString& name, const QString& label,
                                   const std::vector<std::string>& items) {
  auto* list = new QComboBox(dialog_);
  list->setLineEdit(new SelectAllEdit(list));
  list->setEditable(true);
  list->setInsertPolicy(QComboBox::NoInsert);
  list->setCompleter(nullptr);
  list->setMinimumContentsLength(1);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  Prepare(list, name, label);
  list->lineEdit()->setAccessibleName(label);
  for (const std::string& item : items)
    list->addItem(ToQString(item, run_.Page()));
  const std::string key = name.toStdString();
  const WizardText& control = WizardTextOf(key);
  connect(list, &QComboBox::editTextChanged, this, [this, key](const QString& text) { Type(key, text); });
  shown_.push_back([this, list, &control] {
    const QString text = ToQString(control.Text.In(run_.Wizard().Now), run_.Page());
    if (list->currentText() == text) return;
    const QSignalBlocker quiet(list);
    list->setCurrentIndex(list->findText(text));
    list->setEditText(text);
  });
  return list;
}

QComboBox* Wizard1Fields::ClosedList(const QString& name, const QString& label,
                                     const std::vector<std::string>& items) {
  auto* list = new QComboBox(dialog_);
  Prepare(list, name, label);
  for (const std::string& item : items)
    list->addItem(ToQString(item));
  const std::string key = name.toStdString();
  const WizardText& control = WizardTextOf(key);
  list->setPlaceholderText(ToQString(run_.Wizard().Values[control.Slot], run_.Page()));
  connect(list, &QComboBox::currentIndexChanged, this, [this, list, key] { Type(key, list->currentText()); });
  shown_.push_back([this, list, &control] {
    const QSignalBlocker quiet(list);
    list->setCurrentIndex(list->findText(ToQString(control.Text.In(run_.Wizard().Now))));
  });
  return list;
}

ColourSwatch* Wizard1Fields::Swatch(const QString& name, const QString& label) {
  auto* swatch = new ColourSwatch(dialog_);
  Prepare(swatch, name, Word(kTextChartChooseColor) + QStringLiteral(": ") + label);
  swatch->setToolTip(Word(kTextChartChooseColor));
  const std::string key = name.toStdString();
  connect(swatch, &ColourSwatch::clicked, this, [this, key] { PickColour(key); });
  shown_.push_back([this, swatch, key] { swatch->SetColour(SampleColour(run_.Wizard().Now, key)); });
  return swatch;
}

ColourField Wizard1Fields::Colour(const QString& name, const QString& label) {
  QLineEdit* edit = Text(name, label);
  return {edit, Swatch(ToQString(WizardTextOf(name.toStdString()).SampleName), label)};
}

QCheckBox* Wizard1Fields::Check(const QString& name, const QString& caption, const QString& label) {
  auto* check = new QCheckBox(caption, dialog_);
  Prepare(check, name, label);
  const std::string key = name.toStdString();
  const WizardFlag& control = WizardFlagOf(key);
  connect(check, &QCheckBox::toggled, this, [this, key](bool set) {
    SetFlag(run_.Wizard(), key, set);
    Refresh();
  });
  shown_.push_back([this, check, &control] {
    const QSignalBlocker quiet(check);
    check->setChecked(control.Flag.In(run_.Wizard().Now));
  });
  return check;
}

ImgToggle* Wizard1Fields::Toggle(const QString& name, std::string_view image, const QString& caption) {
  auto* toggle = new ImgToggle(FromNative(run_.ButtonImage(image)), caption, dialog_);
  Prepare(toggle, name, caption);
  const std::string key = name.toStdString();
  const WizardFlag& control = WizardFlagOf(key);
  connect(toggle, &ImgToggle::toggled, this, [this, key](bool set) {
    SetFlag(run_.Wizard(), key, set);
    Refresh();
  });
  connect(toggle, &ImgToggle::Hovered, this, [this, toggle] {
    for (ImgToggle* other : toggles_)
      if (other != toggle) other->ClearHover();
  });
  toggles_.push_back(toggle);
  shown_.push_back([this, toggle, &control] {
    const QSignalBlocker quiet(toggle);
    toggle->setChecked(control.Flag.In(run_.Wizard().Now));
    toggle->update();
  });
  return toggle;
}

// A type that has no option leaves them all clear, which an exclusive group would not allow.
QRadioButton* Wizard1Fields::Option(const QString& name, const QString& caption,
                                    std::function<bool(const Wizard1State&)> on) {
  auto* option = new QRadioButton(caption, dialog_);
  Prepare(option, name, caption);
  option->setAutoExclusive(false);
  const std::string key = name.toStdString();
  connect(option, &QRadioButton::clicked, this, [this, key] {
    ChooseOption(run_.Wizard(), key);
    Refresh();
  });
  shown_.push_back([this, option, on = std::move(on)] { option->setChecked(on(run_.Wizard().Now)); });
  return option;
}

std::vector<std::string> Wizard1Fields::Families() const {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    if (QFontDatabase::isPrivateFamily(family)) continue;
    if (std::optional<std::string> name = FromQString(family, run_.Page())) names.push_back(std::move(*name));
  }
  return names;
}

void Wizard1Fields::Refresh() {
  for (const std::function<void()>& show : shown_)
    show();
  Q_EMIT Changed();
}

// Enter takes a colour over, as leaving its field does, and is not the dialog's.
bool Wizard1Fields::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return QObject::eventFilter(watched, event);
  Leave(watched->objectName().toStdString());
  if (auto* edit = qobject_cast<QLineEdit*>(watched)) edit->selectAll();
  return true;
}

void Wizard1Fields::Type(const std::string& name, const QString& text) {
  QString refused;
  if (std::optional<std::string> typed = FromLine(text, run_.Page(), &refused))
    TypeText(run_.Wizard(), name, std::move(*typed));
  else
    run_.RefuseCharacter(refused.toStdString());
  Refresh();
}

void Wizard1Fields::Leave(const std::string& name) {
  LeaveText(run_.Wizard(), name);
  Refresh();
}

void Wizard1Fields::PickColour(const std::string& sample) {
  const Rgb now = SampleColour(run_.Wizard().Now, sample);
  if (const std::optional<Rgb> chosen = ShowColors::Choose(now, texts_, dialog_->window()))
    kev::PickColour(run_.Wizard(), sample, *chosen);
  Refresh();
}

}  // namespace kev
