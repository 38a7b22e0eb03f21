// SPDX-License-Identifier: MIT
// What the window shows of the page, and a view above and below it, kept as pixels: strips of the whole width
// of the page, painted ahead while nothing else is to be done. Scrolling, and whatever moves above the page,
// then copies pixels instead of painting.
//
// Lengths are logical pixels from the page's corner, the top left of the list's canvas.
#pragma once

#include <QImage>
#include <QRect>
#include <QTimer>
#include <functional>
#include <map>
#include <vector>

#include "platform/display_list.h"

namespace kev {

// A length in canvas units as pixels, none of which is cut off.
int WholePixels(double units);

class PageStrips {
 public:
  static constexpr int kHeight = 256;
  static constexpr qint64 kMostBytes = 64 * 1024 * 1024;

  // The list outlives the strips.
  explicit PageStrips(const DisplayList& list) : list_(list) {}

  // The list was filled anew, or what it shows has changed.
  void Forget() { strips_.clear(); }
  // The whole page, in whole pixels.
  QSize PageSize() const;
  // Paints that part of the page, from strips where they are there. The painter's origin stands for the
  // page's corner.
  void Paint(QPainter& painter, const QRect& part) const;
  // Paints one strip that a view of `seen` or the ones beside it would need, for a window of this device
  // pixel ratio. False when all are there, or when none can be had.
  bool PaintAhead(const QRect& seen, double ratio);
  // Whether PaintAhead would find nothing to do.
  bool IsAhead(const QRect& seen, double ratio) const;
  std::size_t Count() const { return strips_.size(); }

 private:
  // Strips are made of the list as it is now, for this ratio.
  bool Fit(double ratio) const { return ratio == ratio_ && list_.Canvas() == canvas_; }
  // Those that are worth having, in the order in which they are needed.
  std::vector<int> Wanted(const QRect& seen, double ratio) const;
  void PaintFromList(QPainter& painter, const QRect& part) const;
  void PaintStrip(QPainter& painter, int strip, const QRect& part) const;
  QImage MakeStrip(int strip) const;

  const DisplayList& list_;
  QRectF canvas_;
  double ratio_ = 1;
  std::map<int, QImage> strips_;  // by their place from the top of the page
};

// The strips of a canvas, and when they are painted: once nothing has been painted for a moment, one strip
// after the other, each behind whatever has happened meanwhile.
class StripsAhead {
 public:
  // What the viewport shows, from the page's corner, is asked when it is needed. List and viewport outlive it.
  StripsAhead(const DisplayList& list, const QWidget& viewport, std::function<QRect()> seen);

  const PageStrips& Strips() const { return strips_; }
  void Forget();
  // See PageStrips. What is missing is painted ahead soon.
  void Paint(QPainter& painter, const QRect& part);
  // Whether what scrolling by a view shows is painted already.
  bool IsDone() const;

 private:
  void PaintNext();

  PageStrips strips_;
  const QWidget& viewport_;
  std::function<QRect()> seen_;
  QTimer quiet_;
};

}  // namespace kev
