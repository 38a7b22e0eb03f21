// SPDX-License-Identifier: MIT
// One widget above the page, by its name.
#pragma once

#include <QString>
#include <QWidget>
#include <string_view>

#include "platform/display_list.h"
#include "surface/pointer_tracker.h"

namespace kev {

enum class LayerLook : std::uint8_t { Panel, Grip, LineEnd, Stroke, Frame, Band, Column, Guide, Caption };

// What a name stands for. A name that is none of the table's gives a panel.
struct LayerRow {
  std::string_view prefix;
  LayerLook look;
  int level;             // higher stands above
  bool held;             // can be taken hold of
  PointerSource source;  // as what the pointer over it is told
};
const LayerRow& LayerRowOf(std::string_view name);
// The number in "dot_5" and "linecolumn(7)"; 0 when there is none.
int IndexInName(std::string_view name);

class LayerWidget final : public QWidget {
 public:
  LayerWidget(std::string_view name, FontCache& fonts, ImageCache& images, QWidget* parent);

  const LayerRow& Row() const { return row_; }
  int Index() const { return index_; }

  // Canvas units, also with negative sizes; the widget needs more room than its place.
  void SetPlace(const QRectF& place) { place_ = place; }
  const QRectF& Place() const { return place_; }
  QRectF Room() const;
  // Whether the pointer here has hold of it; canvas units.
  bool Holds(const QPointF& point) const;

  // Painting begins: what is painted is as if it stood where it stands now.
  SurfaceOps& BeginPainting();
  void SetText(const QString& text);
  const QString& Text() const { return text_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintPanel(QPainter& painter);
  void PaintGrip(QPainter& painter);
  void PaintStroke(QPainter& painter);
  void PaintColumn(QPainter& painter);
  void PaintCaption(QPainter& painter);

  const LayerRow& row_;
  int index_;
  QRectF place_;
  QRectF paintedAt_;
  DisplayList list_;
  QString text_;
};

}  // namespace kev
