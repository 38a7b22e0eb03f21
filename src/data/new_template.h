// SPDX-License-Identifier: MIT
// The new-template assistant: what it tells of a data file, and the first template that it makes of one. The
// window shows a NewTemplateDialog and the designer changes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/sample_records.h"
#include "data/sample_survey.h"

namespace kev {

// The three option buttons.
enum class TemplateStart : std::uint8_t { Nothing, Records, Variables };
SampleKind KindOfStart(TemplateStart start);
// Other stays at what was chosen.
TemplateStart StartOfFile(TemplateStart chosen, const std::string& path);

struct NewTemplateDialog {
  TemplateStart Start = TemplateStart::Nothing;
  std::string Text1;  // path of the data file, native
  // The last check of that file; nothing before it, and after a change of the path.
  std::optional<SampleSurvey> Survey;
  bool Checking = false;
  int Progress1 = 0;  // thousandths

  static constexpr int kProgressEnd = 1000;
};

// Which controls can be used.
bool CanChooseFile(const NewTemplateDialog& dialog);
bool CanEdit(const NewTemplateDialog& dialog);
bool CanReload(const NewTemplateDialog& dialog);
bool CanCreate(const NewTemplateDialog& dialog);

// A text of the language file with what stands behind it.
struct NumberedText {
  int Text = 0;
  std::string Words = {};
};
// The lines of StatusLabel: the result, and what the file holds. None before a check.
std::vector<NumberedText> StatusLines(const NewTemplateDialog& dialog);

// A box on what is wrong with a file: texts of the language file, parted by blanks, with the number of the
// line behind them. What is 0 or empty is left out.
struct SampleMessage {
  int Text = 0;
  int Behind = 0;  // the word for a line
  std::size_t Line = 0;
  int Hint = 0;             // what can be done about it, in a line of its own
  std::string Path = {};    // native, in a line of its own
  std::string Reason = {};  // the system's, in a line of its own
};
// Nothing for a good file and for one that was not read to its end.
std::optional<SampleMessage> MessageOn(const SampleCheck& check, const std::string& path);

// The head of a template that is made: bytes of its code page.
struct MadeTemplate {
  std::string Spacing;  // kept as written; a text that counts as 0 gives 200
  std::string SamplePath;
};

// Further variables would be more objects than a template holds.
inline constexpr std::size_t kMostVariables = 2000;

// One subsection for each record type, with its fields. `fieldWord` is the user's word for a field.
std::string RecordsTemplateText(const MadeTemplate& made, const std::vector<RecordType>& types,
                                const std::string& fieldWord);
// One label for each variable, side by side 500 twips apart, in rows that end behind 8000.
std::string VariablesTemplateText(const MadeTemplate& made, const std::vector<std::string>& variables);

}  // namespace kev
