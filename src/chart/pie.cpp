// SPDX-License-Identifier: MIT
#include "chart/pie.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "chart/legend.h"
#include "chart/shades.h"

namespace kev {
namespace {

constexpr double kTop = -90;    // degrees; slices run clockwise from the top
constexpr double kReach = 14;   // from the pie to a text beside it
constexpr double kElbow = 7;    // the level part of a leader
constexpr double kTextGap = 4;  // between a leader and its text
constexpr double kLeastRadiusShare = 0.22;
constexpr double kBesideFrom = 1.15;  // a room that is so much wider than high has the legend at its right
constexpr double kSmallestPie = 3;
constexpr double kValueAt = 0.68;   // of the radius
constexpr double kReadable = 0.28;  // between the brightness of a text and of what is behind it
constexpr double kPieShare = 0.96;  // of the room
constexpr Rgb kEmptyGrey = 0xC8C8C8;
constexpr Rgb kLeaderGrey = 0x9A9A9A;

struct Slice {
  std::size_t Index = 0;
  double From = 0, To = 0;  // degrees
  Rgb Colour = 0;
  std::string Label, Value;
  bool ValueInside = false;

  double Middle() const { return (From + To) / 2; }
  bool IsRight() const { return std::cos(Middle() * std::numbers::pi / 180) >= 0; }
};

struct PiePlace {
  ChartPoint Centre;
  double Radius = 0;

  ChartPoint At(double degrees, double radius) const {
    const double angle = degrees * std::numbers::pi / 180;
    return {Centre.X + radius * std::cos(angle), Centre.Y + radius * std::sin(angle)};
  }
};

std::vector<Slice> SlicesOf(const ChartData& data) {
  const ChartSeries& series = data.Series.front();
  double largest = 0;
  for (const double value : series.Values)
    largest = std::max(largest, value);
  double sum = 0;
  for (const double value : series.Values)
    sum += largest > 0 ? std::max(value, 0.0) / largest : 0;
  std::vector<Slice> slices;
  double from = kTop;
  for (std::size_t n = 0; n < series.Values.size() && sum > 0; ++n) {
    if (series.Values[n] <= 0) continue;
    const double to = from + series.Values[n] / largest / sum * 360;
    slices.push_back({n, from, to, data.PieColours[n % data.PieColours.size()],
                      n < data.Labels.size() ? data.Labels[n] : std::string(), series.Shown[n]});
    from = to;
  }
  return slices;
}

std::vector<LegendEntry> EntriesOf(const ChartData& data) {
  std::vector<LegendEntry> entries;
  const std::size_t count = std::min(data.Labels.size(), data.Series.front().Values.size());
  for (std::size_t n = 0; n < count; ++n)
    entries.push_back({data.Labels[n], data.PieColours[n % data.PieColours.size()]});
  return entries;
}

void DrawSlices(const ChartWork& work, const PiePlace& place, const std::vector<Slice>& slices) {
  for (const Slice& slice : slices) {
    ChartPolygon shape{.Points = ArcPoints(place.Centre, place.Radius, place.Radius, slice.From, slice.To),
                       .Fill = Plain(slice.Colour)};
    if (slices.size() > 1) {
      shape.Points.push_back(place.Centre);
      shape.EdgeColour = kChartWhite;
      shape.EdgeWidth = std::min({1.4, place.Radius / 40, place.Radius * (slice.To - slice.From) / 400});
    }
    work.Shapes.push_back(std::move(shape));
  }
}

void DrawEmptyPie(const ChartWork& work, const PiePlace& place) {
  ChartPolygon ring = Ellipse(place.Centre, place.Radius, place.Radius, Plain(0xF2F3F5));
  ring.EdgeColour = kEmptyGrey;
  ring.EdgeWidth = 1;
  work.Shapes.push_back(std::move(ring));
}

// What stands beside a slice: its label where no legend names it, and its value.
struct Note {
  const Slice* slice = nullptr;
  std::vector<ChartText> Lines;
  double Width = 0, Height = 0;
  double Top = 0;
};

double Background(const ChartData& data) {
  double sum = 0;
  for (const int part : data.BackGround)
    sum += part;
  return sum / (255.0 * static_cast<double>(data.BackGround.size()));
}

// A value is easier to find on its slice, where it fits and can be read.
ChartText ValueOn(const ChartWork& work, const PiePlace& place, const Slice& slice) {
  ChartText text = work.Texts.Make(work.Data.ValueStyle, slice.Value);
  const ChartPoint middle = place.At(slice.Middle(), place.Radius * kValueAt);
  text.At = {middle.X - text.Width / 2, middle.Y - text.Height / 2};
  return text;
}

bool FitsOn(const PiePlace& place, const Slice& slice, const ChartText& text) {
  for (const ChartPoint& corner : CornersOf(text)) {
    const double x = corner.X - place.Centre.X, y = corner.Y - place.Centre.Y;
    if (std::hypot(x, y) > place.Radius * 0.96) return false;
    const double turn = std::remainder(std::atan2(y, x) * 180 / std::numbers::pi - slice.Middle(), 360);
    if (std::abs(turn) > (slice.To - slice.From) / 2) return false;
  }
  return true;
}

void ChooseValuesInside(const ChartWork& work, const PiePlace& place, std::vector<Slice>& slices) {
  const double bright = BrightnessOf(work.Data.ValueStyle.Colour);
  for (Slice& slice : slices) {
    slice.ValueInside = std::abs(bright - BrightnessOf(slice.Colour)) >= kReadable &&
                        FitsOn(place, slice, ValueOn(work, place, slice));
  }
}

std::vector<Note> NotesOf(const ChartWork& work, const std::vector<Slice>& slices, bool labels, double room) {
  const ChartData& data = work.Data;
  // A colour that was chosen for the slices may vanish beside them.
  ChartTextStyle beside = data.ValueStyle;
  if (std::abs(BrightnessOf(beside.Colour) - Background(data)) < kReadable)
    beside.Colour = data.LabelStyle.Colour;
  std::vector<Note> notes;
  for (const Slice& slice : slices) {
    Note note;
    note.slice = &slice;
    const auto add = [&](const ChartTextStyle& style, const std::string& text) {
      const std::string shown = work.Texts.Elided(style, text, room);
      if (shown.empty()) return;
      note.Lines.push_back(work.Texts.Make(style, shown));
      note.Width = std::max(note.Width, note.Lines.back().Width);
      note.Height += note.Lines.back().Height;
    };
    if (labels) add(data.LabelStyle, slice.Label);
    if (data.Series.front().ShowValues && !slice.ValueInside) add(beside, slice.Value);
    if (!note.Lines.empty()) notes.push_back(std::move(note));
  }
  return notes;
}

// Moves the notes of one side apart, top to bottom; the smallest slices lose theirs until the rest has room.
void SpreadOut(std::vector<Note>& notes, double top, double bottom) {
  const auto height = [&] {
    double sum = 0;
    for (const Note& note : notes)
      sum += note.Height;
    return sum;
  };
  const auto angle = [](const Note& note) { return note.slice->To - note.slice->From; };
  while (!notes.empty() && height() > bottom - top)
    notes.erase(std::min_element(notes.begin(), notes.end(),
                                 [&](const Note& a, const Note& b) { return angle(a) < angle(b); }));
  double next = top;
  for (Note& note : notes) {
    note.Top = std::max(note.Top, next);
    next = note.Top + note.Height;
  }
  double last = bottom;
  for (auto note = notes.rbegin(); note != notes.rend(); ++note) {
    note->Top = std::min(note->Top, last - note->Height);
    last = note->Top;
  }
}

void DrawNote(const ChartWork& work, const PiePlace& place, const Note& note) {
  const bool right = note.slice->IsRight();
  const double turn = right ? 1 : -1;
  const double middle = note.Top + note.Height / 2;
  const double end = place.Centre.X + turn * (place.Radius + kReach);
  double y = note.Top;
  bool placed = false;
  for (ChartText line : note.Lines) {
    line.At = {right ? end + kTextGap : end - kTextGap - line.Width, y};
    y += line.Height;
    placed = work.Texts.Place(std::move(line)) || placed;
  }
  if (!placed) return;
  work.Shapes.push_back(ChartPolyline{.Points = {place.At(note.slice->Middle(), place.Radius + 1),
                                                 {end - turn * kElbow, middle},
                                                 {end, middle}},
                                      .Colour = kLeaderGrey,
                                      .Width = 0.8});
}

void DrawNotes(const ChartWork& work, const PiePlace& place, const std::vector<Note>& notes,
               const ChartRect& room) {
  for (const bool right : {true, false}) {
    std::vector<Note> side;
    std::copy_if(notes.begin(), notes.end(), std::back_inserter(side),
                 [&](const Note& note) { return note.slice->IsRight() == right; });
    for (Note& note : side)
      note.Top = place.At(note.slice->Middle(), place.Radius + kReach / 2).Y - note.Height / 2;
    std::sort(side.begin(), side.end(), [](const Note& a, const Note& b) { return a.Top < b.Top; });
    SpreadOut(side, room.Top, room.Bottom);
    for (const Note& note : side)
      DrawNote(work, place, note);
  }
}

ChartRect DrawPieLegend(const ChartWork& work, const ChartRect& room) {
  if (!work.Data.ShowSeriesTitles || work.Data.Labels.empty()) return room;
  const bool beside = room.Width() >= room.Height() * kBesideFrom;
  return beside ? DrawLegendBeside(work, EntriesOf(work.Data), room)
                : DrawLegendBelow(work, EntriesOf(work.Data), room);
}

double WidestOf(const std::vector<Note>& notes) {
  double widest = 0;
  for (const Note& note : notes)
    widest = std::max(widest, note.Width);
  return widest;
}

PiePlace PlaceOf(const ChartRect& room, const std::vector<Note>& notes) {
  const double beside = notes.empty() ? 0 : WidestOf(notes) + kReach + kTextGap;
  const double above = notes.empty() ? 0 : notes.front().Height / 2;
  return {room.Centre(), std::min(room.Width() / 2 - beside, room.Height() / 2 - above) * kPieShare};
}

}  // namespace

void DrawPie(const ChartWork& work, ChartRect room) {
  const bool labels = !work.Data.ShowSeriesTitles;
  room = DrawPieLegend(work, room);
  std::vector<Slice> slices = SlicesOf(work.Data);
  const double side = std::min(room.Width(), room.Height());
  const double mostText = room.Width() / 2 - side * kLeastRadiusShare - kReach - kTextGap;
  PiePlace place = PlaceOf(room, {});
  std::vector<Note> notes;
  // Where values find room depends on the radius, and the radius on those that find none.
  for (int round = 0; round < 2; ++round) {
    ChooseValuesInside(work, place, slices);
    notes = NotesOf(work, slices, labels, mostText);
    place = PlaceOf(room, notes);
  }
  if (!(place.Radius >= kSmallestPie)) return;
  if (slices.empty()) return DrawEmptyPie(work, place);
  DrawSlices(work, place, slices);
  for (const Slice& slice : slices)
    if (work.Data.Series.front().ShowValues && slice.ValueInside)
      work.Texts.Place(ValueOn(work, place, slice));
  DrawNotes(work, place, notes, room);
}

}  // namespace kev
