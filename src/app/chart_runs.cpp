// SPDX-License-Identifier: MIT
#include "app/chart_runs.h"

#include <optional>
#include <set>
#include <utility>

#include "app/designer.h"
#include "app/toolbar_table.h"
#include "base/text_numbers.h"
#include "surface/chart_dialog.h"

namespace kev {
namespace {

constexpr std::string_view kPictureViewer = "\\viewpics";
constexpr std::string_view kImageTitle = "Image", kImageFilter = "Image file", kImageEnding = "bmp";
// Not every system's dialog takes both cases for one.
constexpr std::string_view kImagePatterns = "*.bmp *.jpg *.gif *.BMP *.JPG *.GIF";

bool IsObject(const ObjectRecord& record) {
  return record.Kind != ObjectKind::None && !IsBand(record.Kind);
}

}  // namespace

ChartWizardRun::ChartWizardRun(Designer& designer, int row)
    : designer_(designer),
      wizard_(OpenedChartWizard(std::as_const(designer).OpenDocument().Objects[row], row)) {}

const CodePage& ChartWizardRun::Page() const {
  return *designer_.OpenDocument().Page;
}

std::vector<std::string> ChartWizardRun::Columns() const {
  const ColumnTable& columns = designer_.OpenDocument().Columns;
  std::vector<std::string> names;
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    if (!columns[slot].Name.empty()) names.push_back(columns[slot].Name);
  return names;
}

std::vector<std::string> ChartWizardRun::Heights() const {
  const ObjectTable& objects = std::as_const(designer_).OpenDocument().Objects;
  const std::string& owner = objects[wizard_.Row].OwnerName;
  std::set<std::int32_t> heights;
  for (int row = 1; row <= objects.LastScanned(); ++row)
    if (row != wizard_.Row && IsObject(objects[row]) && objects[row].OwnerName == owner)
      heights.insert(objects[row].Y);
  std::vector<std::string> texts;
  for (const std::int32_t height : heights)
    texts.push_back(std::to_string(height));
  return texts;
}

std::string ChartWizardRun::ButtonImage(std::string_view name) const {
  const std::string file = std::string(kButtonImages) + std::string(name) + std::string(kButtonImageEnding);
  return InProgramFolder(designer_.Folders(), file);
}

std::string ChartWizardRun::PictureOnDisk() const {
  const std::string& picture = wizard_.Now.Background_picture;
  if (picture.empty()) return {};
  const std::optional<std::string> file = designer_.PictureFileOnDisk(picture);
  return file ? *file : Page().ToUtf8(picture);
}

bool ChartWizardRun::Accept() {
  // Where the field was not left before.
  LeaveText(wizard_, "graph_background");
  bool accepted = false;
  const bool done = designer_.Guarded([&] {
    PageWork work = designer_.Surface().Work();
    accepted = ApplyChartWizard(work, wizard_, [this] { designer_.Charts().SaveChartImage(); });
  });
  return done && accepted;
}

void ChartWizardRun::BrowsePicture() {
  const FileChoice choice{.Title = std::string(kImageTitle),
                          .Folder = designer_.TemplateFolder(),
                          .SuggestedName = {},
                          .Filters = {{std::string(kImageFilter), std::string(kImagePatterns)}},
                          .DefaultEnding = std::string(kImageEnding)};
  const std::optional<std::string> chosen = designer_.TheHost().ChooseFileToOpen(choice);
  if (!chosen || chosen->empty()) return;
  std::string missing;
  if (std::optional<std::string> path = Page().FromUtf8(*chosen, &missing))
    TypeText(wizard_, "Background_picture", std::move(*path));
  else
    RefuseCharacter(missing);
}

void ChartWizardRun::ShowPicture() {
  const std::string picture = PictureOnDisk();
  if (picture.empty()) return;
  const ProgramStart viewer{InProgramFolder(designer_.Folders(), kPictureViewer), {picture}};
  if (!designer_.TheHost().StartProgram(viewer))
    designer_.ShowText(kTextProgramNotStarted, BoxIcon::Critical, viewer.Program);
}

void ChartWizardRun::RefuseCharacter(const std::string& character) {
  designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, character);
}

}  // namespace kev
