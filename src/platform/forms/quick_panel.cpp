// SPDX-License-Identifier: MIT
#include "platform/forms/quick_panel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLinearGradient>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <utility>

#include "base/text_numbers.h"
#include "platform/forms/line_redo_key.h"
#include "platform/page_canvas.h"
#include "platform/text_bridge.h"
#include "surface/object_area.h"

namespace kev {
namespace {

constexpr int kBarHeight = 24;
constexpr int kListHeight = 118;
constexpr int kListWidth = 116;
constexpr int kMargin = 8;
const QColor kEdge(0xB8, 0xC4, 0xD3);
const QColor kGround(0xF4, 0xF5, 0xF7);

QuickSize SizeOf(const QSize& size) {
  return {size.width(), size.height()};
}

}  // namespace

// An empty list that says why it is empty.
class HintList final : public QListWidget {
 public:
  using QListWidget::QListWidget;

  QSize sizeHint() const override { return {kListWidth, kListHeight}; }
  QSize minimumSizeHint() const override { return {kListWidth / 2, kListHeight / 3}; }

  void SetHint(const QString& hint) {
    hint_ = hint;
    viewport()->update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QListWidget::paintEvent(event);
    if (count() > 0 || hint_.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(6, 6, -6, -6), Qt::TextWordWrap, hint_);
  }

 private:
  QString hint_;
};

// --- The bar ----------------------------------------------------------------------------------------------

QuickBar::QuickBar(const QString& closeName, QWidget* parent) : QWidget(parent), title_(new QLabel(this)) {
  setObjectName(QStringLiteral("BarTitle02"));
  setFixedHeight(kBarHeight);
  setCursor(Qt::SizeAllCursor);
  title_->setObjectName(QStringLiteral("frame_label"));
  title_->setAttribute(Qt::WA_TransparentForMouseEvents);
  title_->setTextFormat(Qt::PlainText);
  QFont words(QStringLiteral("Arial"));
  words.setPixelSize(12);
  words.setBold(true);
  title_->setFont(words);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kMargin, 0, 2, 0);
  layout->addWidget(title_, 1);
  auto* close = new QToolButton(this);
  close->setObjectName(QStringLiteral("CloseQuickProps"));
  close->setAccessibleName(closeName);
  close->setToolTip(closeName);
  close->setText(QStringLiteral("\u00D7"));
  close->setAutoRaise(true);
  close->setCursor(Qt::ArrowCursor);
  close->setFocusPolicy(Qt::TabFocus);
  layout->addWidget(close);
  connect(close, &QToolButton::clicked, this, &QuickBar::CloseWanted);
}

void QuickBar::SetTitle(const QString& title) {
  title_->setText(title);
  setAccessibleName(title);
}

void QuickBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QLinearGradient gradient(0, 0, width(), 0);
  gradient.setColorAt(0, QColor(0xDC, 0xE6, 0xF2));
  gradient.setColorAt(1, QColor(0xF2, 0xF5, 0xF9));
  painter.fillRect(rect(), gradient);
}

void QuickBar::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) grip_ = event->position().toPoint();
}

void QuickBar::mouseMoveEvent(QMouseEvent* event) {
  if (grip_) Q_EMIT Dragged(event->globalPosition().toPoint(), *grip_);
}

void QuickBar::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) grip_.reset();
}

// --- Building ---------------------------------------------------------------------------------------------

QuickPanelForm::QuickPanelForm(Designer& designer, PageCanvas& canvas)
    : QFrame(&canvas),
      designer_(designer),
      canvas_(canvas),
      bar_(new QuickBar(ToQString(designer.Text(kTextClosePanel)), this)) {
  setObjectName(QStringLiteral("quickprops"));
  setAccessibleName(ToQString(designer.Text(kTextQuickPanel)));
  setAutoFillBackground(true);
  setFrameShape(QFrame::Box);
  setStyleSheet(QStringLiteral("#quickprops { border: 1px solid #b8c4d3; background: #f4f5f7; }"));
  // What changes on the page below is nothing to it.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::ArrowCursor);
  labelPage_ = BuildLabelPage();
  shapePage_ = BuildShapePage();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->setSpacing(0);
  for (QWidget* part :
       {static_cast<QWidget*>(bar_), static_cast<QWidget*>(labelPage_), static_cast<QWidget*>(shapePage_)})
    layout->addWidget(part);
  Connect();
  canvas.viewport()->installEventFilter(this);
  hide();
}

QFrame* QuickPanelForm::BuildLabelPage() {
  auto* page = new QFrame(this);
  page->setObjectName(QStringLiteral("Frame1"));
  auto* grid = new QGridLayout(page);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  value_ = new QLineEdit(page);
  value_->setObjectName(QStringLiteral("Label_Value"));
  TakeRedoKey(*value_, *value_);
  value_->setAccessibleName(ToQString(designer_.Text(kTextQuickContent)));
  grid->addWidget(value_, 0, 0, 1, 2);
  labelPage_ = page;
  apply_ = AddButton(page, "Command1", kTextQuickApply);
  variables_ = AddList("ListVariables", "varstoadd", kTextQuickFields, 0);
  addField_ = AddButton(page, "Command2", kTextQuickAddField);
  functions_ = AddList("ListFunctions", "exprtoadd", kTextQuickFunctions, 1);
  addFunction_ = AddButton(page, "Command3", kTextQuickAddFunction);
  values_ = static_cast<HintList*>(AddList("ListValues", "samplevalues", kTextQuickSampleValues, 2));
  records_ = new QLabel(page);
  records_->setObjectName(QStringLiteral("recordsshown"));
  // The panel keeps its width when the text comes.
  const SampleValues most{{}, kMostValuesShown};
  records_->setMinimumWidth(
      records_->fontMetrics().horizontalAdvance(ToQString(designer_.Quick().RecordsShown(most))));
  check1_ = BuildCheck("Check1", page);
  grid->addWidget(apply_, 0, 2);
  grid->addWidget(addField_, 3, 0);
  grid->addWidget(addFunction_, 3, 1);
  grid->addWidget(records_, 3, 2);
  grid->addWidget(check1_, 4, 0, 1, 3);
  for (const std::string_view name : kQuickFunctions)
    functions_->addItem(ToQString(name));
  return page;
}

QFrame* QuickPanelForm::BuildShapePage() {
  auto* page = new QFrame(this);
  page->setObjectName(QStringLiteral("Frame2"));
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  check2_ = BuildCheck("Check2", page);
  layout->addWidget(check2_);
  return page;
}

QListWidget* QuickPanelForm::AddList(const char* name, const char* captionName, int text, int column) {
  auto* grid = static_cast<QGridLayout*>(labelPage_->layout());
  const QString words = ToQString(designer_.Text(text));
  auto* caption = new QLabel(words, labelPage_);
  caption->setObjectName(QString::fromLatin1(captionName));
  auto* list = new HintList(labelPage_);
  list->setObjectName(QString::fromLatin1(name));
  list->setAccessibleName(words);
  list->setUniformItemSizes(true);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setTextElideMode(Qt::ElideRight);
  list->installEventFilter(this);
  caption->setBuddy(list);
  grid->addWidget(caption, 1, column);
  grid->addWidget(list, 2, column);
  return list;
}

QPushButton* QuickPanelForm::AddButton(QWidget* parent, const char* name, int text) {
  auto* button = new QPushButton(ToQString(designer_.Text(text)), parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAccessibleName(button->text());
  button->setAutoDefault(false);
  return button;
}

QCheckBox* QuickPanelForm::BuildCheck(const char* name, QWidget* parent) {
  auto* check = new QCheckBox(ToQString(designer_.Text(kTextMenuAlignToGrid)), parent);
  check->setObjectName(QString::fromLatin1(name));
  check->setAccessibleName(check->text());
  connect(check, &QCheckBox::clicked, this,
          [this](bool on) { designer_.GuardedView([&] { designer_.Quick().SetAlignToGrid(on); }); });
  return check;
}

void QuickPanelForm::Connect() {
  connect(bar_, &QuickBar::CloseWanted, this, [this] { designer_.Quick().CloseQuickProps(); });
  connect(bar_, &QuickBar::Dragged, this, &QuickPanelForm::DragTo);
  connect(apply_, &QPushButton::clicked, this, &QuickPanelForm::Apply);
  connect(value_, &QLineEdit::returnPressed, this, &QuickPanelForm::Apply);
  connect(variables_, &QListWidget::currentRowChanged, this, &QuickPanelForm::ShowValues);
  connect(addField_, &QPushButton::clicked, this, [this] { AddChoice(*variables_); });
  connect(addFunction_, &QPushButton::clicked, this, [this] { AddChoice(*functions_); });
  connect(variables_, &QListWidget::itemDoubleClicked, this, [this] { AddChoice(*variables_); });
  connect(functions_, &QListWidget::itemDoubleClicked, this, [this] { AddChoice(*functions_); });
}

// --- What is shown ----------------------------------------------------------------------------------------

// What is typed and chosen stays while it is about the same object.
void QuickPanelForm::ShowPanel(const QuickPanel& panel, const QString& title) {
  const QuickPanel before = std::exchange(shown_, panel);
  bar_->SetTitle(title);
  if (panel.Page == QuickPage::Hidden) {
    const bool focused = HasFocus();
    hide();
    if (focused) canvas_.setFocus(Qt::OtherFocusReason);
    return;
  }
  labelPage_->setVisible(panel.Page == QuickPage::Label);
  shapePage_->setVisible(panel.Page == QuickPage::Shape);
  const bool other = panel.Page != before.Page || panel.Object != before.Object;
  if (panel.Page == QuickPage::Label) {
    if (other || panel.Content != before.Content || panel.CharSet != before.CharSet) ShowContent();
    if (other || panel.Fields != before.Fields || panel.SampleFile != before.SampleFile) FillLists();
  }
  // Set by the program, a check does nothing.
  check1_->setChecked(panel.AlignToGrid);
  check2_->setChecked(panel.AlignToGrid);
  FitAndPlace();
  if (isHidden()) show();
  // Also where it stands on top already, raising it would paint it anew.
  if (canvas_.children().constLast() != this) raise();
}

void QuickPanelForm::FillLists() {
  const QSignalBlocker quiet(variables_);
  variables_->clear();
  const CodePage& page = *designer_.OpenDocument().Page;
  for (const QuickField& field : shown_.Fields) {
    auto* item = new QListWidgetItem(ToQString(field.Name, page), variables_);
    item->setToolTip(item->text());
  }
  functions_->setCurrentRow(-1);
  values_->clear();
  values_->SetHint({});
  records_->clear();
}

void QuickPanelForm::ShowContent() {
  value_->setText(ToQString(shown_.Content, PageOfText()));
}

void QuickPanelForm::ShowValues(int item) {
  values_->clear();
  if (item < 0) return;
  designer_.GuardedView([&] {
    const SampleValues values = designer_.Quick().ValuesOf(static_cast<std::size_t>(item));
    const CodePage& page = *designer_.OpenDocument().Page;
    for (const std::string& value : values.Items) {
      auto* row = new QListWidgetItem(ToQString(value, page), values_);
      row->setToolTip(row->text().left(400));
    }
    values_->SetHint(values.FileMissing ? ToQString(designer_.Text(kTextQuickNoDataFile)) : QString());
    records_->setText(ToQString(designer_.Quick().RecordsShown(values)));
  });
}

const CodePage& QuickPanelForm::PageOfText() const {
  return PageOfCharSet(shown_.CharSet, *designer_.OpenDocument().Page);
}

// --- What is done -----------------------------------------------------------------------------------------

void QuickPanelForm::AddChoice(const QListWidget& list) {
  const QListWidgetItem* item = list.currentItem();
  // In UTF-8, in which the field names and the label's own character set agree.
  const std::string choice = item != nullptr ? item->text().toStdString() : std::string();
  value_->setText(value_->text() + QString::fromStdString(AddedToLabel(choice)));
}

void QuickPanelForm::Apply() {
  QString refused;
  const std::optional<std::string> text = FromLine(value_->text(), PageOfText(), &refused);
  if (!text) return designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, ToNative(refused));
  designer_.GuardedView([&] { designer_.Quick().StoreText(*text); });
  // Also behind a refusal: the label's own text stands there again.
  if (shown_.Page == QuickPage::Label) ShowContent();
}

void QuickPanelForm::Leave() {
  if (shown_.Page == QuickPage::Label) ShowContent();
  canvas_.setFocus(Qt::OtherFocusReason);
}

bool QuickPanelForm::HasFocus() const {
  const QWidget* focus = focusWidget();
  return focus != nullptr && focus->hasFocus();
}

void QuickPanelForm::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), kEdge);
  painter.fillRect(rect().adjusted(1, 1, -1, -1), kGround);
}

// Nothing that is typed here reaches the page below.
void QuickPanelForm::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) Leave();
  event->accept();
}

// Delete is a shortcut of the menu, which would delete the object that the panel is about.
bool QuickPanelForm::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete)) {
    event->accept();
    return true;
  }
  return QFrame::event(event);
}

bool QuickPanelForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched == canvas_.viewport() && event->type() == QEvent::Resize && isVisible()) FitAndPlace();
  if ((watched == variables_ || watched == functions_) && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      AddChoice(*static_cast<QListWidget*>(watched));
      return true;
    }
  }
  return QFrame::eventFilter(watched, event);
}

// --- Where it stands --------------------------------------------------------------------------------------

void QuickPanelForm::FitAndPlace() {
  const QWidget& room = *canvas_.viewport();
  // What has changed inside tells its new size only in a later event.
  for (QWidget* part :
       {static_cast<QWidget*>(bar_), static_cast<QWidget*>(labelPage_), static_cast<QWidget*>(shapePage_)})
    part->layout()->activate();
  layout()->activate();
  resize(sizeHint().boundedTo(room.size()));
  const DesignerOptions& options = designer_.Options();
  const std::optional<QuickPlace> now =
      isHidden() ? std::nullopt : std::optional(QuickPlace{x() - room.x(), y() - room.y()});
  const bool put = options.QuickPropsX && options.QuickPropsY;
  const QuickPlace place = put ? PlaceInside({static_cast<int>(*options.QuickPropsX / kUnitsPerPixel),
                                              static_cast<int>(*options.QuickPropsY / kUnitsPerPixel)},
                                             SizeOf(size()), SizeOf(room.size()))
                               : PlaceBeside(ObjectArea(), now, SizeOf(size()), SizeOf(room.size()));
  move(room.x() + place.Left, room.y() + place.Top);
}

void QuickPanelForm::DragTo(const QPoint& global, const QPoint& grip) {
  const QWidget& room = *canvas_.viewport();
  const QPoint wanted = room.mapFromGlobal(global) - grip - bar_->pos();
  const QuickPlace place = PlaceInside({wanted.x(), wanted.y()}, SizeOf(size()), SizeOf(room.size()));
  move(room.x() + place.Left, room.y() + place.Top);
  designer_.Quick().Moved(static_cast<std::int32_t>(place.Left * kUnitsPerPixel),
                          static_cast<std::int32_t>(place.Top * kUnitsPerPixel));
}

// In pixels of the viewport; nothing for a group.
std::optional<QuickArea> QuickPanelForm::ObjectArea() const {
  if (shown_.Object == 0) return std::nullopt;
  const Document& document = designer_.OpenDocument();
  const CanvasArea area = AreaOf(document.Objects[shown_.Object], document, designer_.ZoomFactor());
  const QPointF from = canvas_.ToViewport({area.Left, area.Top});
  const QPointF to = canvas_.ToViewport({area.Right, area.Bottom});
  return QuickArea{qFloor(from.x()), qFloor(from.y()), qCeil(to.x()), qCeil(to.y())};
}

}  // namespace kev
