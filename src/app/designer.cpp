// SPDX-License-Identifier: MIT
#include "app/designer.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <new>
#include <utility>

#include "app/image_size.h"
#include "app/message_texts.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text_numbers.h"
#include "document/sections.h"

namespace kev {
namespace {

// Where each row stands, to see whether something moved.
std::vector<std::int32_t> Places(const ObjectTable& objects) {
  std::vector<std::int32_t> places;
  places.reserve(static_cast<std::size_t>(objects.LastScanned()));
  for (int row = 1; row <= objects.LastScanned(); ++row)
    places.push_back(objects[row].AbsoluteY);
  return places;
}

// Why the work failed; nothing when it did not.
std::optional<std::string> FailureOf(const std::function<void()>& work) {
  try {
    work();
    return std::nullopt;
  } catch (const std::bad_alloc&) {
    return "out of memory";
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

}  // namespace

struct Designer::Kept {
  Kept(const Document& document, UndoStore levels)
      : undo(std::move(levels)),
        count(document.Objects.ObjectCount),
        current(document.Objects.CurrentObject),
        focus(document.Objects.FocusObject),
        selected(document.Objects.SelectionCount),
        columns(document.Columns),
        settings(document.Settings) {
    const int last = document.Objects.LastScanned();
    rows.reserve(static_cast<std::size_t>(last) + 1);
    for (int row = 0; row <= last; ++row)
      rows.push_back(document.Objects[row]);
  }

  UndoStore undo;
  int count, current, focus, selected;
  std::vector<ObjectRecord> rows;
  ColumnTable columns;
  DocumentSettings settings;
};

Designer::Designer(Host& host, const TextMeasurer& measurer, StartInput input)
    : host_(host),
      measurer_(measurer),
      input_(std::move(input)),
      pictures_(host, folders_),
      qrImages_(host, folders_, document_) {
  pictures_.OnArrival([this](const std::string& pictureFile, bool there) {
    arrivals_.emplace_back(pictureFile, there);
    TakeArrivals();
  });
  qrImages_.OnMade([this] {
    imagesMade_ = true;
    TakeArrivals();
  });
}

std::string Designer::TemplateFolder() const {
  return documentPath_.empty() ? folders_.TempFolder : FolderOf(documentPath_);
}

std::optional<std::string> Designer::PictureFileOnDisk(std::string_view pictureFile) const {
  return ResolvePictureFile(pictureFile, folders_, TemplateFolder(), *document_.Page);
}

void Designer::ShowText(int number, BoxIcon icon, std::string detail) {
  std::string text = Text(number);
  if (!detail.empty()) text += ' ';
  host_.ShowMessage({Text(kTextProgramTitle), std::move(text), std::move(detail), icon});
}

ReadServices Designer::Services(ReadProgress* progress) {
  return {measurer_, pictures_, settings_.DefaultPaperSize, document_.Page, progress};
}

void Designer::DeriveGeometryAndRedraw() {
  DeriveGeometry(document_);
  surface_.Redraw();
  const std::vector<std::int32_t> painted = Places(document_.Objects);
  DeriveGeometry(document_);
  // What painting measured can move what was painted before it.
  if (Places(document_.Objects) != painted) surface_.Redraw();
}

bool Designer::Guarded(const GuardedWork& work, const std::function<void()>& body) {
  const HeldArrivals held(*this);
  const Changing changing(changes_);
  std::optional<Kept> kept;
  const int generation = generation_;
  const std::optional<std::string> failure = FailureOf([&] {
    kept.emplace(document_, surface_.Undo());
    body();
  });
  if (!failure) return true;
  // While a program was waited for, another document may have been opened.
  if (kept && generation == generation_) PutBack(std::move(*kept));
  TellFailure(work, *failure);
  return false;
}

bool Designer::GuardedView(const GuardedWork& work, const std::function<void()>& body,
                           const std::function<void()>& takeBack) {
  const HeldArrivals held(*this);
  const std::optional<std::string> failure = FailureOf(body);
  if (!failure) return true;
  // The first failure is the one to be told.
  if (takeBack) static_cast<void>(FailureOf(takeBack));
  TellFailure(work, *failure);
  return false;
}

// Moves only, so that it works where memory is short.
void Designer::PutBack(Kept kept) noexcept {
  ObjectTable& objects = document_.Objects;
  objects.Restart();
  for (std::size_t row = 0; row < kept.rows.size(); ++row)
    objects[static_cast<int>(row)] = std::move(kept.rows[row]);
  objects.ObjectCount = kept.count;
  objects.CurrentObject = kept.current;
  objects.FocusObject = kept.focus;
  objects.SelectionCount = kept.selected;
  document_.Columns = std::move(kept.columns);
  document_.Settings = std::move(kept.settings);
  surface_.PutBackLevels(std::move(kept.undo));
}

void Designer::TellFailure(const GuardedWork& work, const std::string& reason) {
  try {
    surface_.FullRepaint();
  } catch (const std::exception&) {
    // Painting may be what failed; the message below is about that then.
  }
  try {
    const std::string said = ReasonInLanguage(texts_, reason);
    if (work.Message == kTextReadFailed) return TellReadFailure(work.Path, reason);
    ShowText(work.Message == 0 ? kTextOperationFailed : work.Message, BoxIcon::Critical,
             work.Path.empty() ? said : work.Path + "\r\n" + said);
  } catch (const std::exception&) {
    // Not even a box could be had.
    std::cerr << "kev: " << reason << '\n';
  }
}

void Designer::MarkModified() {
  modified_ = true;
  ShowCaption();
}

void Designer::ShowCaption() {
  host_.ShowCaption(documentTitle_, modified_);
}

bool Designer::SetZoom(std::string_view text) {
  // The text box would stay behind at the place and in the size of the old zoom.
  surface_.CommitOpenEdits();
  const double percent = NumericPrefix(text);
  const double before = zoomPercent_;
  const bool good = percent >= kSmallestZoom && percent <= kLargestZoom;
  const auto show = [this] {
    if (view_ != nullptr) view_->ShowZoom(FormatNumber(zoomPercent_) + "%");
  };
  const auto change = [&] {
    if (good) zoomPercent_ = percent;
    show();
    if (zoomPercent_ != before) surface_.ZoomChanged(before / 100);
  };
  return GuardedView(change,
                     [&] {
                       zoomPercent_ = before;
                       show();
                     }) &&
         good;
}

bool Designer::SetFilter(DisplayFilter filter) {
  surface_.CommitOpenEdits();
  const DisplayFilter before = std::exchange(filter_, filter);
  return GuardedView([this] { surface_.FilterChanged(); }, [&] { filter_ = before; });
}

void Designer::PageShown() {
  if (view_ != nullptr) view_->PageShown();
}

void Designer::ShowRulers() {
  if (view_ != nullptr) view_->ShowRulers();
}

void Designer::ShowArea(const CanvasArea& area) {
  if (view_ != nullptr) view_->ShowArea(area);
}

void Designer::CommandsChanged() {
  if (view_ != nullptr) view_->CommandsChanged();
}

void Designer::PaintFindingsChanged() {
  SetFindings(std::move(findings_));
}

void Designer::AddFindings(const std::vector<Finding>& more) {
  if (more.empty()) return;
  std::vector<Finding> all = findings_;
  all.insert(all.end(), more.begin(), more.end());
  SetFindings(std::move(all));
}

// What the page could not show stands behind the others.
void Designer::SetFindings(std::vector<Finding> findings) {
  std::erase_if(findings, [](const Finding& old) { return old.Kind == FindingKind::PaintingStops; });
  for (const int row : surface_.StoppedRows())
    findings.push_back(
        {0, 0, FindingKind::PaintingStops, std::as_const(document_).Objects[row].Content, row});
  findings_ = std::move(findings);
  if (view_ != nullptr) view_->FindingsChanged();
}

// Runs behind work of any kind, also behind one that failed.
void Designer::TakeArrivals() noexcept {
  while (holds_ == 0 && !arrivals_.empty() && !surface_.Busy()) {
    const auto [pictureFile, there] = std::move(arrivals_.front());
    arrivals_.erase(arrivals_.begin());
    PictureArrived(pictureFile, there);
  }
  // A gesture that is under way ends in a guard, and this is asked again.
  if (holds_ == 0 && imagesMade_ && !surface_.Busy()) ShowMadePictures();
}

void Designer::ShowMadePictures() {
  imagesMade_ = false;
  GuardedView([this] { surface_.ShowMadePictures(); });
}

void Designer::PictureArrived(const std::string& pictureFile, bool there) {
  Guarded([&] {
    const std::optional<std::string> file = there ? PictureFileOnDisk(pictureFile) : std::nullopt;
    const TextExtent own = file ? ImageSizeOfFile(*file).value_or(TextExtent{}) : TextExtent{};
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
      ObjectRecord& record = document_.Objects[row];
      if (record.Kind != ObjectKind::Picture || record.PictureFile != pictureFile) continue;
      if (!file) record.PictureFile = kMissingPicture;
      if (own.Width > 0 && own.Height > 0) FitPicture(record, own);
    }
    surface_.FullRepaint();
  });
}

}  // namespace kev
