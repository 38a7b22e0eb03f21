// SPDX-License-Identifier: MIT
// The dialog of a subsection, opened on the page and taken over into the document.
#include "app/design_surface.h"
#include "app/designer.h"
#include "base/text_numbers.h"
#include "surface/subsection_dialog.h"

namespace kev {

void DesignSurface::OpenSubsection(int row) {
  DesignerView* view = designer_.View();
  const Document& document = designer_.OpenDocument();
  if (view == nullptr || (row != 0 && !CanOpenSubsection(document, row))) return;
  const std::vector<RecordType> types = ReadRecordTypes(designer_.SampleDataPath(), *document.Page);
  const std::string& word = Text(kTextFieldWord);
  SubsectionDialog dialog =
      row == 0
          ? OpenNewSubsection(document, types, word, SectionOfRow(document, document.Objects.CurrentObject))
          : kev::OpenSubsection(document, row, types, word);
  view->OpenSubsectionDialog(dialog, [&] {
    bool accepted = false;
    designer_.Guarded([&] {
      PageWork work = Work();
      accepted = AcceptSubsection(work, dialog);
    });
    return accepted;
  });
  if (dialog.NewRow != 0) GoToObject(dialog.NewRow);
}

}  // namespace kev
