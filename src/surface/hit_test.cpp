// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <limits>

#include "document/position.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr double kLineReach = 50;  // twips
constexpr double kFlatReach = 45;  // canvas units
constexpr double kNothing = std::numeric_limits<double>::infinity();

bool Within(double value, double one, double other) {
  return value >= std::min(one, other) && value <= std::max(one, other);
}

bool Holds(const CanvasArea& area, CanvasPoint at) {
  return Within(at.X, area.Left, area.Right) && Within(at.Y, area.Top, area.Bottom);
}

// To find the left edge an expression must be read; most rows are passed over by their height alone.
bool ReachesLevel(const ObjectRecord& record, double zoom, double y, double reach) {
  const double top = record.AbsoluteY * zoom;
  const double bottom = top + (IsVerticalBarcode(record) ? record.Width : record.Height) * zoom;
  return Within(y, std::min(top, bottom) - reach, std::max(top, bottom) + reach);
}

template <class Visit>
void ForEachShown(const PageWork& work, Visit visit) {
  const ObjectTable& objects = work.document.Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& record = objects[row];
    if (record.Kind != ObjectKind::None && PassesFilter(record, work.filter)) visit(row, record);
  }
}

int SmallestUnder(const PageWork& work, CanvasPoint at) {
  int winner = 0;
  double best = kNothing;
  ForEachShown(work, [&](int row, const ObjectRecord& record) {
    if (!ReachesLevel(record, work.ZoomFactor, at.Y, 0)) return;
    if (!Holds(AreaOf(record, work.document, work.ZoomFactor), at)) return;
    const double size = std::abs(static_cast<double>(record.Height) * record.Width) * work.ZoomFactor;
    if (size >= best) return;
    best = size;
    winner = row;
  });
  return winner;
}

bool MayBeThin(ObjectKind kind) {
  return kind == ObjectKind::Box || kind == ObjectKind::Line || kind == ObjectKind::AnyLine ||
         kind == ObjectKind::Picture;
}

// The places of the document are held against the pointer as they are, without the zoom: the reach is that of
// the page at 100 %.
bool IsThinLineAt(const ObjectRecord& record, double x, CanvasPoint at) {
  const double y = record.AbsoluteY;
  const bool level =
      record.Height == 0 && Within(at.Y, y - kLineReach, y + kLineReach) && Within(at.X, x, x + record.Width);
  const bool upright =
      record.Width == 0 && Within(at.X, x - kLineReach, x + kLineReach) && Within(at.Y, y, y + record.Height);
  return level || upright;
}

int ThinLineUnder(const PageWork& work, CanvasPoint at) {
  const Document& document = work.document;
  int first = 0;
  ForEachShown(work, [&](int row, const ObjectRecord& record) {
    if (first != 0 || !MayBeThin(record.Kind) || (record.Height != 0 && record.Width != 0)) return;
    const double x = PositionOrZero(record.XValue, document.Columns, *document.Page);
    if (IsThinLineAt(record, x, at)) first = row;
  });
  return first;
}

double DistanceTo(const CanvasArea& area, CanvasPoint at) {
  const double across = std::max({area.Left - at.X, 0.0, at.X - area.Right});
  const double down = std::max({area.Top - at.Y, 0.0, at.Y - area.Bottom});
  return std::hypot(across, down);
}

// Without it an empty label or a line at a small zoom could never be taken hold of again.
int FlatRowNear(const PageWork& work, CanvasPoint at) {
  int nearest = 0;
  double best = kNothing;
  ForEachShown(work, [&](int row, const ObjectRecord& record) {
    if (!ReachesLevel(record, work.ZoomFactor, at.Y, kFlatReach)) return;
    const CanvasArea area = AreaOf(record, work.document, work.ZoomFactor);
    if (area.Width() >= kFlatReach && area.Height() >= kFlatReach) return;
    const double distance = DistanceTo(area, at);
    if (distance > kFlatReach || distance >= best) return;
    best = distance;
    nearest = row;
  });
  return nearest;
}

}  // namespace

int HitTest(const PageWork& work, CanvasPoint at) {
  if (const int row = SmallestUnder(work, at)) return row;
  if (const int row = ThinLineUnder(work, at)) return row;
  return FlatRowNear(work, at);
}

}  // namespace kev
