// SPDX-License-Identifier: MIT
#include "platform/forms/property_panel.h"

#include <QButtonGroup>
#include <QLabel>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "base/text_numbers.h"
#include "platform/forms/show_colors.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr int kTitleHeight = 26;
constexpr int kDescriptionLines = 4;
constexpr int kSideMargin = 8;

struct FilterRow {
  DisplayFilter filter;
  int text;
  const char* name;
};
constexpr std::array kFilters = {FilterRow{DisplayFilter::All, kTextFilterAll, "seeall"},
                                 FilterRow{DisplayFilter::Ebeu, kTextFilterEndUser, "see_ebeu"},
                                 FilterRow{DisplayFilter::Print, kTextFilterPrint, "see_printnoprint"}};

// As narrow as the panel; a caption that has no room is told by its tip.
class ElidedRadio final : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;
  QSize minimumSizeHint() const override { return {40, QRadioButton::minimumSizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = Fitting(option);
    painter.drawControl(QStyle::CE_RadioButton, option);
  }
  void resizeEvent(QResizeEvent* event) override {
    QRadioButton::resizeEvent(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    setToolTip(Fitting(option) == text() ? QString() : text());
  }

 private:
  QString Fitting(const QStyleOptionButton& option) const {
    const QRect room = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
    return fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
  }
};

}  // namespace

// --- The title bar ---

PanelTitle::PanelTitle(const QString& closeName, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("bartitle1"));
  setFixedHeight(kTitleHeight);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 2, 0);
  layout->addStretch();
  auto* close = new QToolButton(this);
  close->setObjectName(QStringLiteral("CloseProperties"));
  close->setAccessibleName(closeName);
  close->setToolTip(closeName);
  close->setText(QStringLiteral("\u00D7"));
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::NoFocus);
  layout->addWidget(close);
  connect(close, &QToolButton::clicked, this, &PanelTitle::CloseWanted);
}

void PanelTitle::SetTitle(const QString& title) {
  if (title == title_) return;
  title_ = title;
  setAccessibleName(title);
  update();
}

void PanelTitle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QLinearGradient gradient(0, 0, width(), 0);
  gradient.setColorAt(0, QColor(0xDC, 0xE6, 0xF2));
  gradient.setColorAt(1, QColor(0xF2, 0xF5, 0xF9));
  painter.fillRect(rect(), gradient);
  QFont words(QStringLiteral("Arial"));
  words.setPixelSize(13);
  words.setBold(true);
  painter.setFont(words);
  painter.setPen(QColor(0x22, 0x2A, 0x35));
  const QRect room = rect().adjusted(8, 0, -28, 0);
  painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                   painter.fontMetrics().elidedText(title_, Qt::ElideRight, room.width()));
}

void PanelTitle::mouseDoubleClickEvent(QMouseEvent* event) {
  dragging_ = false;
  if (event->button() == Qt::LeftButton) Q_EMIT SwitchWanted();
}

void PanelTitle::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragging_ = true;
  Q_EMIT DragBegun(event->globalPosition().toPoint());
}

void PanelTitle::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) Q_EMIT Dragged(event->globalPosition().toPoint());
}

void PanelTitle::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(dragging_, false)) return;
  Q_EMIT DragEnded();
}

// --- The panel ---

PropertyPanel::PropertyPanel(Designer& designer, QWidget* parent)
    : QWidget(parent),
      designer_(designer),
      title_(new PanelTitle(ToQString(designer.Text(kTextClosePanel)), this)),
      grid_(new PropGrid(this)),
      description_(new QLabel(this)) {
  setObjectName(QStringLiteral("FrameProps"));
  grid_->setAccessibleName(ToQString(designer.Text(kTextMenuProperties)));
  grid_->NameColumns(ToQString(designer.Text(kTextSubsectionName)), grid_->accessibleName());
  description_->setObjectName(QStringLiteral("descriptionlabel"));
  description_->setWordWrap(true);
  description_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  description_->setContentsMargins(kSideMargin, 6, kSideMargin, 6);
  description_->setFixedHeight(fontMetrics().lineSpacing() * kDescriptionLines + 12);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(title_);
  layout->addWidget(grid_, 1);
  layout->addWidget(description_);
  BuildFilters();
  ConnectGrid();
  connect(title_, &PanelTitle::SwitchWanted, this, [this] { designer_.Sheets().SwitchPlace(); });
  connect(title_, &PanelTitle::CloseWanted, this, [this] { designer_.Sheets().CloseProperties(); });
}

void PropertyPanel::ConnectGrid() {
  connect(grid_, &PropGrid::Edited, this, &PropertyPanel::Edited);
  connect(grid_, &PropGrid::RowChanged, this, &PropertyPanel::ShowDescription);
  connect(grid_, &PropGrid::ButtonPressed, this,
          [this](int row) { designer_.GuardedView([&] { designer_.Sheets().PressButton(row); }); });
  connect(grid_, &PropGrid::RowDoubleClicked, this,
          [this] { designer_.GuardedView([&] { designer_.Sheets().DoubleClicked(); }); });
  connect(grid_, &PropGrid::Refused, this, [this](const QString& character) {
    designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, ToNative(character));
  });
  grid_->SetColourChooser([this](const QColor& now) {
    const std::optional<Rgb> chosen = ShowColors::Choose(now.rgb() & 0xFFFFFFU, designer_.Texts(), window());
    return chosen ? QColor::fromRgb(*chosen) : QColor();
  });
  connect(grid_, &PropGrid::FocusChanged, this,
          [this](bool has) { designer_.GuardedView([&] { designer_.Sheets().SetGridFocus(has); }); });
}

void PropertyPanel::BuildFilters() {
  auto* group = new QButtonGroup(this);
  auto* rows = new QVBoxLayout;
  rows->setContentsMargins(kSideMargin, 4, kSideMargin, 8);
  rows->setSpacing(2);
  for (const FilterRow& row : kFilters) {
    auto* button = new ElidedRadio(ToQString(designer_.Text(row.text)), this);
    button->setObjectName(QString::fromLatin1(row.name));
    group->addButton(button);
    rows->addWidget(button);
    filters_.emplace_back(row.filter, button);
    connect(button, &QRadioButton::clicked, this,
            [this, filter = row.filter] { Q_EMIT FilterWanted(filter); });
  }
  static_cast<QVBoxLayout*>(layout())->addLayout(rows);
  ShowFilter(designer_.Filter());
}

// Off the page it stands in a window of its own.
void PropertyPanel::FocusGrid() {
  window()->activateWindow();
  grid_->setFocus(Qt::OtherFocusReason);
}

void PropertyPanel::ShowFilter(DisplayFilter filter) {
  for (const auto& [shown, button] : filters_)
    button->setChecked(shown == filter);
}

void PropertyPanel::ShowSheet(const Sheet& sheet, const std::string& title, int selectRow) {
  // What was typed for something else has no place any more.
  if (sheet.Object != object_ || sheet.Subject != subject_) grid_->DiscardOpenCell();
  object_ = sheet.Object;
  subject_ = sheet.Subject;
  title_->SetTitle(ToQString(title));
  grid_->SetFolder(FromNative(designer_.TemplateFolder()));
  grid_->setEnabled(sheet.Enabled);
  grid_->Show(sheet.Rows, *designer_.OpenDocument().Page);
  if (selectRow != 0) grid_->SetCurrentRow(selectRow);
  if (sheet.Rows.empty()) description_->clear();
}

// The rows are shown anew while the cell is still being closed.
void PropertyPanel::Edited(int row) {
  const std::string text = grid_->Values()[static_cast<std::size_t>(row - 1)];
  designer_.Sheets().Edited(row, text);
}

void PropertyPanel::ShowDescription(int row) {
  if (row == 0) return;
  const std::optional<std::string> text = designer_.Sheets().Description(row);
  if (!text) return;
  description_->setText(ToQString(*text));
  // In a narrow panel a long text has not room enough.
  description_->setToolTip(ToQString(*text));
}

}  // namespace kev
