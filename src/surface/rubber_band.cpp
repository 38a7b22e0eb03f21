// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "surface/frame.h"
#include "surface/gesture.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr double kLeastBand = 300;  // at any zoom

bool Overlap(const CanvasArea& one, const CanvasArea& other) {
  return one.Left <= other.Right && one.Right >= other.Left && one.Top <= other.Bottom &&
         one.Bottom >= other.Top;
}

class RubberBand final : public Gesture {
 public:
  void Move(PageWork& work, CanvasPoint at) override {
    ShowFrame(work.surface, kBandFrame, AreaTo(work.pointer, at));
  }

  void End(PageWork& work, int) override {
    const CanvasArea band = AreaTo(work.pointer, work.pointer.LastPoint());
    Leave(work);
    wasClick_ = band.Width() < kLeastBand && band.Height() < kLeastBand;
    if (!wasClick_) Catch(work, band);
  }

  void Cancel(PageWork& work) override { Leave(work); }
  bool WasClick() const override { return wasClick_; }

 private:
  static CanvasArea AreaTo(const PointerState& pointer, CanvasPoint at) {
    return {std::min(pointer.BandX0, at.X), std::min(pointer.BandY0, at.Y), std::max(pointer.BandX0, at.X),
            std::max(pointer.BandY0, at.Y)};
  }

  static void Leave(PageWork& work) {
    work.pointer.BandActive = false;
    work.pointer.BandX0 = work.pointer.BandY0 = 0;
    HideFrame(work.surface, kBandFrame);
  }

  static std::vector<int> RowsIn(const PageWork& work, const CanvasArea& band) {
    const Document& document = work.document;
    std::vector<int> rows;
    for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
      const ObjectRecord& record = document.Objects[row];
      if (MayJoinGroup(work, row) && PassesFilter(record, work.filter) &&
          Overlap(AreaOf(record, document, work.ZoomFactor), band))
        rows.push_back(row);
    }
    return rows;
  }

  static void Catch(PageWork& work, const CanvasArea& band) {
    const std::vector<int> rows = RowsIn(work, band);
    // One alone is no group: it is selected as by a click.
    if (rows.size() <= 1) {
      SelectObject(work, rows.empty() ? 0 : rows.front());
    } else {
      EndGroup(work);
      work.document.Objects.CurrentObject = 0;
      for (const int row : rows)
        work.document.Objects[row].Selected = kTrue;
    }
    work.services.FullRepaint();
  }

  bool wasClick_ = false;
};

}  // namespace

std::unique_ptr<Gesture> BeginRubberBand(PageWork& work, CanvasPoint at) {
  PointerState& pointer = work.pointer;
  if (!pointer.BandAllowed || pointer.MultiSelected) return nullptr;
  pointer.BandActive = true;
  pointer.BandX0 = at.X;
  pointer.BandY0 = at.Y;
  return std::make_unique<RubberBand>();
}

}  // namespace kev
