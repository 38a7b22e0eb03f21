// SPDX-License-Identifier: MIT
#include "document/settings.h"

#include "base/numbers.h"
#include "base/text.h"
#include "document/papers.h"

namespace kev {
namespace {

using enum Setting;

constexpr std::array<SettingRow, kSettingCount> kRows = {{
    {Open, "Open", "{", Normalise::OneCharacter, Print::NotDefault, Form::Value},
    {Close, "Close", "}", Normalise::OneCharacter, Print::NotDefault, Form::Value},
    {EBEU, "EBEU", "N", Normalise::YesLetter, Print::IsYesLetter, Form::FixedY},
    {EBEUBY, "EBEUBY", "", Normalise::AsRead, Print::NotEmpty, Form::Value},
    {FILEFORMAT, "FILEFORMAT", "1", Normalise::FileFormat, Print::NumberNot, Form::Value},
    {Sample_Kex_file, "Sample_Kex_file", "", Normalise::AsRead, Print::NotEmpty, Form::Value},
    {Spacing, "Spacing", "200", Normalise::SpacingStep, Print::NumberNot, Form::Value},
    {PAGAUX, "PAGAUX", "0", Normalise::Number, Print::NumberNot, Form::Trimmed},
    {Orientation, "Orientation", "1", Normalise::AsRead, Print::NotPortrait, Form::FixedTwo},
    {Report_Title, "Report_Title", "No title", Normalise::AsRead, Print::NotEmpty, Form::Value},
    {PDFFROMPS, "PDFFROMPS", "No", Normalise::YesWord, Print::IsYes, Form::FixedY},
    {PDFNAME, "PDFNAME", "", Normalise::AsRead, Print::WithPdf, Form::Value},
    {MAXY, "MAXY", "0", Normalise::AsRead, Print::NumberNot, Form::Number},
    {DecimalPoint, "DecimalPoint", "", Normalise::AsRead, Print::NotEmpty, Form::Value},
    {PAPERSIZE, "PAPERSIZE", "A4", Normalise::AsRead, Print::PaperName, Form::Value},
    {PAGELENGHT, "PAGELENGHT", "0", Normalise::Number, Print::PaperNumber, Form::Trimmed},
    {PAGEWIDTH, "PAGEWIDTH", "0", Normalise::Number, Print::PaperNumber, Form::Trimmed},
    {LM, "LM", "0", Normalise::Number, Print::NumberNot, Form::Value},
    {TM, "TM", "0", Normalise::Number, Print::NumberNot, Form::Value},
    {PLM, "PLM", "0", Normalise::Number, Print::NumberNot, Form::Value},
    {PTM, "PTM", "0", Normalise::Number, Print::NumberNot, Form::Value},
    {Conversion, "Conversion", "", Normalise::AsRead, Print::NotEmpty, Form::Value},
    {DataConversion, "DataConversion", "", Normalise::AsRead, Print::NotEmpty, Form::Value},
    {ZoomToPrint, "ZoomToPrint", "100", Normalise::ZoomPercent, Print::NumberNot, Form::Value},
    {ZoomToOpen, "ZoomToOpen", "100", Normalise::ZoomPercent, Print::PercentNot100, Form::Value},
    {ViewerOptions, "ViewerOptions", "", Normalise::AsRead, Print::NotBlank, Form::Value},
    {PRINTER, "PRINTER", "", Normalise::AsRead, Print::NotEmpty, Form::Value},
    {Copies, "Copies", "1", Normalise::AsRead, Print::NumberNot, Form::Value},
    {MAILTO, "MAILTO", "", Normalise::AsRead, Print::NotBlank, Form::Value},
    {SENDPAPERTOPRINTER, "SENDPAPERTOPRINTER", "none", Normalise::AsRead, Print::NotNone, Form::Value},
    {ALWAYSFIT, "ALWAYSFIT", "No", Normalise::AsRead, Print::NotNo, Form::Value},
    {KEXVER, "KEXVER", "", Normalise::AsRead, Print::Always, Form::Value},
    {Save_Allowed, "Save_Allowed", "Yes", Normalise::YesOrNo, Print::IsNo, Form::FixedN},
    {Print_Allowed, "Print_Allowed", "Yes", Normalise::YesOrNo, Print::IsNo, Form::FixedN},
    {Export_Allowed, "Export_Allowed", "Yes", Normalise::YesOrNo, Print::IsNo, Form::FixedN},
    {OPEN_VIEW, "OPEN_VIEW", "No", Normalise::YesOrNo, Print::IsYes, Form::FixedY},
    {Linktips, "Linktips", "Yes", Normalise::YesOrNoLetter, Print::IsNo, Form::FixedN},
}};

constexpr std::array<Setting, kSettingCount> kWriteOrder = {Report_Title,
                                                            Sample_Kex_file,
                                                            Orientation,
                                                            Copies,
                                                            Spacing,
                                                            DecimalPoint,
                                                            Conversion,
                                                            DataConversion,
                                                            ViewerOptions,
                                                            ZoomToPrint,
                                                            ZoomToOpen,
                                                            Open,
                                                            Close,
                                                            Print_Allowed,
                                                            Export_Allowed,
                                                            Save_Allowed,
                                                            Linktips,
                                                            MAILTO,
                                                            SENDPAPERTOPRINTER,
                                                            ALWAYSFIT,
                                                            MAXY,
                                                            LM,
                                                            TM,
                                                            PLM,
                                                            PTM,
                                                            PRINTER,
                                                            PAPERSIZE,
                                                            PAGELENGHT,
                                                            PAGEWIDTH,
                                                            PAGAUX,
                                                            KEXVER,
                                                            OPEN_VIEW,
                                                            PDFFROMPS,
                                                            PDFNAME,
                                                            EBEU,
                                                            EBEUBY,
                                                            FILEFORMAT};

std::string YesOrNoValue(std::string_view text, const std::string& capitals, bool oneIsYes) {
  if (capitals.starts_with('N')) return "No";
  if (capitals.starts_with('Y') || (oneIsYes && capitals.starts_with('1'))) return "Yes";
  return std::string(text);
}

// A percentage of 0 is what the reader takes for a missing one; the writer leaves out both that and the
// default.
bool NumberDiffers(const DocumentSettings& settings, const SettingRow& row) {
  const double number = settings.Number(row.id);
  if (row.id == ZoomToPrint && number == 0) return false;
  return number != NumericPrefix(row.defaultValue);
}

bool IsCustomPaper(const DocumentSettings& settings, const CodePage& page) {
  return settings[PAPERSIZE].empty() || page.EqualsIgnoringCase(settings[PAPERSIZE], kCustomPaper);
}

bool PaperNumberIsPrinted(const DocumentSettings& settings, Setting id) {
  return settings.Number(id) != 0 && !LookupPaper(settings[PAPERSIZE]);
}

void ReadPaper(DocumentSettings& settings, const KeyFile& keys, std::string_view defaultPaper) {
  const auto takeSize = [&settings](const Paper& paper) {
    settings[PAGEWIDTH] = FormatNumber(paper.Width);
    settings[PAGELENGHT] = FormatNumber(paper.Length);
  };
  std::string& name = settings[PAPERSIZE];
  name = keys.Value(RowOf(PAPERSIZE).key);
  if (const auto paper = LookupPaper(name)) return takeSize(*paper);
  settings[PAGELENGHT] = NormaliseSetting(PAGELENGHT, keys.Value(RowOf(PAGELENGHT).key));
  settings[PAGEWIDTH] = NormaliseSetting(PAGEWIDTH, keys.Value(RowOf(PAGEWIDTH).key));
  if (settings.Number(PAGELENGHT) != 0 || settings.Number(PAGEWIDTH) != 0) {
    if (name.empty()) name = kCustomPaper;
    return;
  }
  name = defaultPaper;
  if (const auto paper = LookupPaper(name)) takeSize(*paper);
}

}  // namespace

std::span<const SettingRow, kSettingCount> SettingRows() {
  return kRows;
}
std::span<const Setting, kSettingCount> SettingWriteOrder() {
  return kWriteOrder;
}

DocumentSettings::DocumentSettings() {
  for (const SettingRow& row : kRows)
    (*this)[row.id] = row.defaultValue;
}

double DocumentSettings::Number(Setting id) const {
  return NumericPrefix((*this)[id]);
}

std::int32_t DocumentSettings::SpacingTwips() const {
  const std::int32_t spacing = ToInt32(Number(Spacing));
  return spacing == 0 ? 200 : spacing;
}

std::string NormaliseSetting(Setting id, std::string_view text, const CodePage& page) {
  const SettingRow& row = RowOf(id);
  const std::string capitals = page.Upper(text);
  std::string value(text);
  switch (row.normalise) {
    case Normalise::AsRead:
      break;
    case Normalise::OneCharacter:
      if (text.size() != 1) value.clear();
      break;
    case Normalise::YesLetter:
      value = capitals.starts_with('Y') || capitals == "1" ? "Y" : "N";
      break;
    case Normalise::FileFormat:
      if (NumericPrefix(text) == 0) value.clear();
      break;
    case Normalise::SpacingStep:
      if (Int32Of(text) == 0) value.clear();
      break;
    case Normalise::Number:
      value = FormatNumber(NumericPrefix(text));
      break;
    case Normalise::YesWord:
      if (capitals == "1" || capitals == "Y" || capitals == "YES") value = "Yes";
      break;
    case Normalise::YesOrNo:
      value = YesOrNoValue(text, capitals, true);
      break;
    case Normalise::YesOrNoLetter:
      value = YesOrNoValue(text, capitals, false);
      break;
    case Normalise::ZoomPercent:
      if (text == "0" || text == "0%") value.clear();
      break;
  }
  return value.empty() ? std::string(row.defaultValue) : value;
}

DocumentSettings ReadSettings(const KeyFile& keys, std::string_view defaultPaper, const CodePage& page) {
  DocumentSettings settings;
  for (const SettingRow& row : kRows)
    settings[row.id] = NormaliseSetting(row.id, keys.Value(row.key), page);
  ReadPaper(settings, keys, defaultPaper);
  return settings;
}

bool SettingIsPrinted(const DocumentSettings& settings, Setting id, const CodePage& page) {
  const SettingRow& row = RowOf(id);
  const std::string& value = settings[id];
  const std::string capitals = page.Upper(value);
  switch (row.print) {
    case Print::Always:
      return true;
    case Print::NotEmpty:
      return !value.empty();
    case Print::NotBlank:
      return !Trim(value).empty();
    case Print::NotDefault:
      return value != row.defaultValue;
    case Print::IsYesLetter:
      return value == "Y";
    case Print::IsNo:
      return value == "No";
    case Print::IsYes:
      return capitals == "YES";
    case Print::NumberNot:
      return NumberDiffers(settings, row);
    case Print::NotPortrait:
      return !value.starts_with('1');
    case Print::PercentNot100:
      return std::string_view(value).substr(0, value.size() - (value.ends_with('%') ? 1 : 0)) != "100";
    case Print::WithPdf:
      return SettingIsPrinted(settings, PDFFROMPS, page) && !value.empty();
    case Print::PaperName:
      return !IsCustomPaper(settings, page);
    case Print::PaperNumber:
      return PaperNumberIsPrinted(settings, id);
    case Print::NotNone:
      return !value.empty() && capitals != "NONE";
    case Print::NotNo:
      return !value.empty() && !capitals.starts_with('N');
  }
  return false;
}

std::string PrintedValue(const DocumentSettings& settings, Setting id) {
  switch (RowOf(id).form) {
    case Form::Value:
      return settings[id];
    case Form::Trimmed:
      return std::string(Trim(settings[id]));
    case Form::Number:
      return FormatNumber(settings.Number(id));
    case Form::FixedY:
      return "Y";
    case Form::FixedN:
      return "N";
    case Form::FixedTwo:
      return "2";
  }
  return {};
}

}  // namespace kev
