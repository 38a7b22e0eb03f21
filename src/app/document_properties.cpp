// SPDX-License-Identifier: MIT
#include "app/document_properties.h"

#include <algorithm>
#include <array>

#include "app/designer.h"
#include "base/text.h"
#include "base/text_numbers.h"

namespace kev {
namespace {

constexpr std::array<std::string_view, 3> kSectionsOfAll = {"[HEADER]", "[DATA]", "[FOOTER]"};

// The configuration counts: not every template has it.
bool IsSubsectionOfItsOwn(const ObjectRecord& record, const CodePage& page) {
  if (record.Kind != ObjectKind::Subsection) return false;
  return std::none_of(kSectionsOfAll.begin(), kSectionsOfAll.end(), [&](std::string_view name) {
    return page.EqualsIgnoringCase(Trim(record.SectionTitle), name);
  });
}

}  // namespace

DocumentFacts FactsOf(const Document& document) {
  DocumentFacts facts;
  const DocumentSettings& settings = document.Settings;
  facts.ReportTitle = settings[Setting::Report_Title];
  facts.FileFormat = settings[Setting::FILEFORMAT];
  facts.Editable = settings[Setting::EBEU];
  facts.EditableBy = settings[Setting::EBEUBY];
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind == ObjectKind::None) continue;
    if (!IsBand(record.Kind)) ++facts.Objects;
    if (IsSubsectionOfItsOwn(record, *document.Page)) ++facts.Subsections;
  }
  return facts;
}

DocumentPropertiesRun::DocumentPropertiesRun(Designer& designer)
    : designer_(designer), facts_(FactsOf(designer.OpenDocument())) {
  facts_.File = designer.DocumentPath().empty() ? designer.DocumentTitle() : designer.DocumentPath();
}

int DocumentPropertiesRun::FormatText() const {
  return designer_.OpenDocument().Settings.Number(Setting::FILEFORMAT) == 1 ? kTextFilesPlain
                                                                            : kTextFilesEncoded;
}

const CodePage& DocumentPropertiesRun::Page() const {
  return *designer_.OpenDocument().Page;
}

bool DocumentPropertiesRun::Accept(std::string_view editable, std::string_view editableBy) {
  const std::string flag = NormaliseSetting(Setting::EBEU, editable, Page());
  const std::string who(Trim(editableBy));
  if (flag == facts_.Editable && who == facts_.EditableBy) return true;
  return designer_.Guarded([&] {
    designer_.Surface().PushUndo();
    DocumentSettings& settings = designer_.OpenDocument().Settings;
    settings[Setting::EBEU] = flag;
    settings[Setting::EBEUBY] = who;
  });
}

void DocumentPropertiesRun::RefuseCharacter(const std::string& character) {
  designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, character);
}

}  // namespace kev
