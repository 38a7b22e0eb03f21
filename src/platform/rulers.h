// SPDX-License-Identifier: MIT
// The ruler above the page (`rhor`) and the one beside it (`rverint`), which holds a part for each
// subsection. They show the same stretch of the page as the canvas, pixel by pixel.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

#include "platform/display_list.h"
#include "platform/page_canvas.h"
#include "surface/rulers.h"

namespace kev {

class Ruler final : public QWidget {
  Q_OBJECT

 public:
  // The fonts outlive the ruler. A canvas that ends before leaves it still.
  Ruler(Qt::Orientation orientation, PageCanvas& canvas, FontCache& fonts, QWidget* parent = nullptr);
  ~Ruler() override;

  // Nothing is painted anew where plan and mode are those shown.
  void ShowPlan(const RulerPlan& plan, int mode);
  // A line where the pointer is, in pixels along the ruler; nothing takes it away.
  void ShowMarker(std::optional<int> pixel);
  // How many primitives the lists hold: those near the view, however long the page is.
  std::size_t Count() const;

 Q_SIGNALS:
  // A double click with the left button: the next unit is wanted.
  void NextModeWanted();
  // The right button, with the place on the canvas (which lies outside of what it shows).
  void Pointer(const kev::PagePointer& event);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  struct Part;

  bool IsVertical() const { return orientation_ == Qt::Vertical; }
  double Along(const QPointF& point) const { return IsVertical() ? point.y() : point.x(); }
  int Length() const { return IsVertical() ? height() : width(); }
  // What the widget shows, canvas units of the page.
  RulerSpan Visible() const;
  void Follow();
  void FillWhereNeeded();
  void Fill(const RulerSpan& span);
  void AddPart(const RulerSpan& span, const RulerPart* part);
  QRect MarkerArea() const;
  void Tell(PagePointer::Action action, const QMouseEvent& event);

  Qt::Orientation orientation_;
  QPointer<PageCanvas> canvas_;
  FontCache& fonts_;
  ImageCache images_{[](std::string_view) { return std::string(); }};
  RulerPlan plan_;
  int mode_ = kFirstRulerMode;
  RulerSpan filled_{0, 0};
  std::vector<std::unique_ptr<Part>> parts_;
  double origin_ = 0;
  std::optional<int> marker_;
};

}  // namespace kev
