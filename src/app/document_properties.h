// SPDX-License-Identifier: MIT
// What the form `docpropertiesfrm` shows and stores: facts about the open document, and the two settings that
// tell who may edit it. Texts are bytes of the template's code page unless a line says otherwise.
#pragma once

#include <string>
#include <string_view>

#include "base/code_page.h"
#include "document/document.h"

namespace kev {

class Designer;

struct DocumentFacts {
  std::string ReportTitle;
  std::string File;        // native bytes; the title of a document without a file
  int Objects = 0;         // without the bands
  int Subsections = 0;     // other than [HEADER], [DATA] and [FOOTER]
  std::string FileFormat;  // the setting
  std::string Editable;    // "Y" or "N"
  std::string EditableBy;
};

DocumentFacts FactsOf(const Document& document);

class DocumentPropertiesRun {
 public:
  explicit DocumentPropertiesRun(Designer& designer);

  const DocumentFacts& Facts() const { return facts_; }
  // Number of the text that says what the format is.
  int FormatText() const;
  const CodePage& Page() const;

  // `Command1`: stores the two fields; fields that are as they were change nothing. False when it could not
  // be done: the message was shown.
  bool Accept(std::string_view editable, std::string_view editableBy);
  // Tells of a typed character (UTF-8) that the template can't hold.
  void RefuseCharacter(const std::string& character);

 private:
  Designer& designer_;
  DocumentFacts facts_;
};

}  // namespace kev
