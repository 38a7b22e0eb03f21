// SPDX-License-Identifier: MIT
#include "surface/object_description.h"

#include <algorithm>
#include <array>
#include <utility>

#include "barcode/barcode_kinds.h"
#include "base/numbers.h"
#include "base/text_numbers.h"
#include "chart/slots.h"
#include "document/kind_defaults.h"

namespace kev {
namespace {

struct KindWord {
  ObjectKind kind;
  PageRole role;
  int text;
};

constexpr auto kKindWords = std::to_array<KindWord>({
    {ObjectKind::Section, PageRole::Band, kTextSubsectionSection},
    {ObjectKind::Subsection, PageRole::Band, kTextMenuSubsection},
    {ObjectKind::EndOfSubsection, PageRole::BandEnd, kTextEndOfSubsection},
    {ObjectKind::Command, PageRole::Command, kTextMenuExecuteCommand},
    {ObjectKind::Box, PageRole::Shape, kTextMenuBox},
    {ObjectKind::Chart, PageRole::Chart, kTextMenuChart},
    {ObjectKind::Line, PageRole::Shape, kTextMenuHorizontalLine},
    {ObjectKind::Circle, PageRole::Shape, kTextMenuCircle},
    {ObjectKind::AnyLine, PageRole::Shape, kTextMenuLine},
    {ObjectKind::Picture, PageRole::Picture, kTextMenuPicture},
    {ObjectKind::Barcode, PageRole::Code, kTextMenuBarcode},
    {ObjectKind::Qr, PageRole::Code, kTextMenuQrCode},
    {ObjectKind::Label, PageRole::Text, kTextMenuLabel},
    {ObjectKind::TextBox, PageRole::TextField, kTextMenuTextBox},
});

// Twips below the top of a body, and from the left margin.
constexpr double kInsideBody = 60;

const ObjectRecord& At(const PageWork& work, int row) {
  return std::as_const(work.document).Objects[row];
}

std::string WithKindOfCode(const ObjectRecord& record) {
  const std::string_view kind = KindName(Int32Of(record.BarcodeKind));
  if (kind.empty() || record.Content.empty()) return kind.empty() ? record.Content : std::string(kind);
  return std::string(kind) + " " + record.Content;
}

std::string ContentOf(const ObjectRecord& record) {
  switch (record.Kind) {
    case ObjectKind::Section:
    case ObjectKind::Subsection:
      return record.SectionTitle;
    case ObjectKind::EndOfSubsection:
      return record.OwnerName;
    case ObjectKind::Chart:
      return record.ChartValues.size() > slot::kTitle ? record.ChartValues[slot::kTitle] : std::string();
    case ObjectKind::Picture:
      return record.PictureFile.Text().substr(record.PictureFile.Text().find_last_of("/\\") + 1);
    case ObjectKind::Barcode:
      return WithKindOfCode(record);
    case ObjectKind::Command:
    case ObjectKind::Qr:
    case ObjectKind::Label:
    case ObjectKind::TextBox:
      return record.Content;
    case ObjectKind::None:
    case ObjectKind::Box:
    case ObjectKind::Line:
    case ObjectKind::Circle:
    case ObjectKind::AnyLine:
      return {};
  }
  return {};
}

struct Place {
  std::int32_t y;
  bool isEnd;
  double left;
  int row;

  auto operator<=>(const Place&) const = default;
};

}  // namespace

ObjectDescription DescribeObject(const PageWork& work, int row) {
  const ObjectRecord& record = At(work, row);
  if (record.Kind == ObjectKind::None) return {};
  const KindWord& word = kKindWords[static_cast<std::size_t>(record.Kind) - 1];
  const ObjectTable& objects = work.document.Objects;
  const bool inGroup = work.pointer.MultiSelected && record.Selected == kTrue;
  CanvasArea area = AreaOf(record, work.document, work.ZoomFactor);
  if (IsBand(record.Kind) && work.canvasWidth > 0) area.Right = std::min(area.Right, work.canvasWidth);
  return {word.role,
          word.text,
          ContentOf(record),
          record.CharSet,
          area,
          inGroup || (!work.pointer.MultiSelected && row != 0 && row == objects.CurrentObject)};
}

std::vector<int> ObjectsInReadingOrder(const PageWork& work) {
  std::vector<Place> places;
  const ObjectTable& objects = work.document.Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row) {
    const ObjectRecord& record = At(work, row);
    if (record.Kind == ObjectKind::None || !PassesFilter(record, work.filter)) continue;
    places.push_back(
        {record.AbsoluteY, record.Kind == ObjectKind::EndOfSubsection, LeftOf(record, work.document), row});
  }
  std::sort(places.begin(), places.end());
  std::vector<int> rows;
  for (const Place& place : places)
    rows.push_back(place.row);
  return rows;
}

int NeighbourInReadingOrder(const PageWork& work, int step) {
  std::vector<int> rows = ObjectsInReadingOrder(work);
  const int current = work.document.Objects.CurrentObject;
  std::erase_if(rows,
                [&](int row) { return row != current && At(work, row).Kind == ObjectKind::EndOfSubsection; });
  if (step < 0) std::reverse(rows.begin(), rows.end());
  if (rows.empty()) return 0;
  const auto found = std::find(rows.begin(), rows.end(), current);
  if (found == rows.end()) return rows.front();
  return std::next(found) == rows.end() ? 0 : *std::next(found);
}

CanvasPoint PointOnObject(const PageWork& work, int row) {
  const ObjectRecord& record = At(work, row);
  const double zoom = work.ZoomFactor;
  if (record.Kind == ObjectKind::Subsection) {
    const double below = std::min(kInsideBody, record.EndsAt / 2.0);
    return {kInsideBody * zoom, (record.AbsoluteY + kBarHeight + below) * zoom};
  }
  const CanvasArea area = DescribeObject(work, row).Area;
  return {(area.Left + area.Right) / 2, (area.Top + area.Bottom) / 2};
}

}  // namespace kev
