// SPDX-License-Identifier: MIT
#include "platform/forms/page_frame.h"

#include <QMouseEvent>
#include <QShortcut>
#include <algorithm>

#include "app/panel_width.h"
#include "base/text_numbers.h"
#include "platform/qt_measurer.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kDividerWidth = 5;
constexpr int kLeastPage = kLeastPanelWidth / kTwipsPerPixel;

int ToPixels(double units) {
  return static_cast<int>(units / kUnitsPerPixel);
}

}  // namespace

PageFrame::PageFrame(PageCanvas& canvas, FontCache& fonts, DesignerOptions& options,
                     const LanguageTexts& texts, QWidget* parent)
    : QWidget(parent),
      canvas_(&canvas),
      fonts_(fonts),
      options_(options),
      corner_(new QWidget(this)),
      rhor_(new Ruler(Qt::Horizontal, canvas, fonts, this)),
      rverint_(new Ruler(Qt::Vertical, canvas, fonts, this)),
      divider_(new PanelDivider(ToQString(texts.Text(kTextPanelDivider)), this)),
      dividerLine_(new QWidget(this)),
      properties_(new PropertyArea(ToQString(texts.Text(kTextMenuProperties)), this)) {
  setObjectName(QStringLiteral("pageframe"));
  corner_->setObjectName(QStringLiteral("rulercorner"));
  rhor_->setAccessibleName(ToQString(texts.Text(kTextRulerHorizontal)));
  rhor_->setToolTip(ToQString(texts.Text(kTextRulerNextUnit)));
  rverint_->setAccessibleName(ToQString(texts.Text(kTextRulerVertical)));
  dividerLine_->setObjectName(QStringLiteral("Picturedivisor2"));
  dividerLine_->setAutoFillBackground(true);
  dividerLine_->setBackgroundRole(QPalette::Highlight);
  dividerLine_->hide();
  canvas.setParent(this);
  connect(rhor_, &Ruler::NextModeWanted, this, &PageFrame::NextRulerModeWanted);
  connect(rhor_, &Ruler::Pointer, this, &PageFrame::RulerPointer);
  connect(properties_, &PropertyArea::Toggled, this, [this] {
    updateGeometry();
    FitWindow();
  });
  ConnectDivider();
  AddKeys();
  canvas.viewport()->installEventFilter(this);
}

void PageFrame::AddKeys() {
  const auto add = [this](const char* key, int steps) {
    auto* shortcut = new QShortcut(QKeySequence(QString::fromLatin1(key)), this);
    connect(shortcut, &QShortcut::activated, this, [this, steps] { Q_EMIT ZoomStepWanted(steps); });
  };
  add("Ctrl++", 1);
  // The same key without Shift, where the plus needs it.
  add("Ctrl+=", 1);
  add("Ctrl+-", -1);
  auto* nextUnit = new QShortcut(QKeySequence(QStringLiteral("Ctrl+R")), this);
  connect(nextUnit, &QShortcut::activated, this, &PageFrame::NextRulerModeWanted);
}

// --- Rulers ---

void PageFrame::ShowRulers(const Document& document, double zoom, int mode) {
  const RulerPlan plan = PlanRulers(document, zoom, QtMeasurer(fonts_));
  rhor_->setFixedHeight(std::max(1, ToPixels(plan.RowHeight)));
  rverint_->setFixedWidth(std::max(1, ToPixels(plan.ColumnWidth)));
  FitWindow();
  rhor_->ShowPlan(plan, mode);
  rverint_->ShowPlan(plan, mode);
}

bool PageFrame::IsOverRuler(const QPoint& global) const {
  return rhor_->rect().contains(rhor_->mapFromGlobal(global));
}

bool PageFrame::eventFilter(QObject* watched, QEvent* event) {
  if (!canvas_ || watched != canvas_->viewport()) return false;
  if (event->type() == QEvent::MouseMove)
    FollowPointer(static_cast<QMouseEvent*>(event)->position().toPoint());
  if (event->type() == QEvent::Leave) FollowPointer({-1, -1});
  return false;
}

void PageFrame::FollowPointer(const QPoint& viewportPoint) {
  const bool inside = canvas_->viewport()->rect().contains(viewportPoint);
  rhor_->ShowMarker(inside ? std::optional(viewportPoint.x()) : std::nullopt);
  rverint_->ShowMarker(inside ? std::optional(viewportPoint.y()) : std::nullopt);
}

// --- The panel ---

void PageFrame::ConnectDivider() {
  connect(divider_, &PanelDivider::Dragged, this, [this](int left) {
    dividerLine_->setGeometry(width() - PanelWidthAt(left) - kDividerWidth, 0, kDividerWidth, height());
    dividerLine_->raise();
    dividerLine_->show();
  });
  connect(divider_, &PanelDivider::Released, this, [this](int left) {
    dividerLine_->hide();
    options_.PropFixWidth = PanelWidthAt(left) * kTwipsPerPixel;
    FitWindow();
  });
  connect(divider_, &PanelDivider::Cancelled, dividerLine_, &QWidget::hide);
}

int PageFrame::PanelWidthFor(int wanted) const {
  const int room = std::max(0, width() - rverint_->width() - kDividerWidth);
  return PanelWidthWithin(wanted, room * kTwipsPerPixel) / kTwipsPerPixel;
}

int PageFrame::PanelWidthAt(int left) const {
  return PanelWidthFor((width() - left - kDividerWidth) * kTwipsPerPixel);
}

QSize PageFrame::minimumSizeHint() const {
  const int panel = properties_->IsShown() ? kDividerWidth + kLeastPage : 0;
  return {rverint_->width() + kLeastPage + panel, rhor_->height() + kLeastPage};
}

void PageFrame::FitWindow() {
  const bool panel = properties_->IsShown();
  const int panelWidth = panel ? PanelWidthFor(options_.PropFixWidth) : 0;
  const int pageRight = width() - panelWidth - (panel ? kDividerWidth : 0);
  const int left = rverint_->width();
  const int top = rhor_->height();
  corner_->setGeometry(0, 0, left, top);
  rhor_->setGeometry(left, 0, std::max(0, pageRight - left), top);
  rverint_->setGeometry(0, top, left, std::max(0, height() - top));
  if (canvas_) canvas_->setGeometry(left, top, rhor_->width(), rverint_->height());
  divider_->setVisible(panel);
  divider_->setGeometry(pageRight, 0, kDividerWidth, height());
  properties_->setGeometry(width() - panelWidth, 0, panelWidth, height());
}

void PageFrame::resizeEvent(QResizeEvent*) {
  FitWindow();
}

}  // namespace kev
