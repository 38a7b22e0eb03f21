// SPDX-License-Identifier: MIT
// What a template says about itself in its head: paper, margins, title, permissions. Every value is kept as text,
// also where it is compared as a number. One table of rows says for each how it is read and
// when it is written, and the reader, the writer and the sheets walk that table.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "base/key_file.h"

namespace kev {

// In the order in which they are read.
enum class Setting : std::uint8_t {
  Open,
  Close,
  EBEU,
  EBEUBY,
  FILEFORMAT,
  Sample_Kex_file,
  Spacing,
  PAGAUX,
  Orientation,
  Report_Title,
  PDFFROMPS,
  PDFNAME,
  MAXY,
  DecimalPoint,
  PAPERSIZE,
  PAGELENGHT,
  PAGEWIDTH,
  LM,
  TM,
  PLM,
  PTM,
  Conversion,
  DataConversion,
  ZoomToPrint,
  ZoomToOpen,
  ViewerOptions,
  PRINTER,
  Copies,
  MAILTO,
  SENDPAPERTOPRINTER,
  ALWAYSFIT,
  KEXVER,
  Save_Allowed,
  Print_Allowed,
  Export_Allowed,
  OPEN_VIEW,
  Linktips
};
inline constexpr std::size_t kSettingCount = 37;

// How a value is brought into form when it is read or typed.
enum class Normalise : std::uint8_t {
  AsRead,
  OneCharacter,   // anything but one character counts as empty
  YesLetter,      // "YES", "1" or a first letter "Y" give "Y", else "N"
  FileFormat,     // 0 gives "1"
  SpacingStep,    // what rounds to 0 gives "200"
  Number,         // a number, printed back
  YesWord,        // "1", "Y", "YES" give "Yes"
  YesOrNo,        // a first letter "N" gives "No"; "Y" or "1" give "Yes"
  YesOrNoLetter,  // the same without the "1"
  ZoomPercent     // "0" and "0%" count as empty
};

// When a setting is written.
enum class Print : std::uint8_t {
  Always,
  NotEmpty,
  NotBlank,       // not empty after trimming
  NotDefault,     // differs from the table's default
  IsYesLetter,    // "Y"
  IsNo,           // "No"
  IsYes,          // "YES" in any case
  NumberNot,      // as a number it is not the number of the default, nor one that the row names
  NotPortrait,    // the first character is not "1"
  PercentNot100,  // without a trailing "%" not "100"
  WithPdf,        // when PDFFROMPS is written and this is not empty
  PaperName,      // a name other than "(custom)"
  PaperNumber,    // when the paper's name does not tell the size
  NotNone,        // not empty and not "NONE"
  NotNo           // not empty, not "NO", and the first letter is not "N"
};

// What stands behind the "=".
enum class Form : std::uint8_t { Value, Trimmed, Number, FixedY, FixedN, FixedTwo };

struct SettingRow {
  Setting id;
  std::string_view key;  // as it is written; read in any case
  std::string_view defaultValue;
  Normalise normalise;
  Print print;
  Form form;
};

// In reading order.
std::span<const SettingRow, kSettingCount> SettingRows();
inline const SettingRow& RowOf(Setting id) {
  return SettingRows()[static_cast<std::size_t>(id)];
}
// The same settings in the order in which they are written. The column lines stand behind Spacing.
std::span<const Setting, kSettingCount> SettingWriteOrder();

// A paper without a name: its size is PAGEWIDTH and PAGELENGHT.
inline constexpr std::string_view kCustomPaper = "(custom)";

class DocumentSettings {
 public:
  // The values of a fresh document.
  DocumentSettings();

  const std::string& operator[](Setting id) const { return values_[static_cast<std::size_t>(id)]; }
  std::string& operator[](Setting id) { return values_[static_cast<std::size_t>(id)]; }

  double Number(Setting id) const;
  // The normal line step in whole twips; never 0.
  std::int32_t SpacingTwips() const;
  char OpenCharacter() const { return (*this)[Setting::Open].front(); }
  char CloseCharacter() const { return (*this)[Setting::Close].front(); }
  bool HasOwnDelimiters() const { return OpenCharacter() != '{' || CloseCharacter() != '}'; }

  bool operator==(const DocumentSettings&) const = default;

 private:
  std::array<std::string, kSettingCount> values_;
};

// The value as it is kept, for a text that was read or typed; an empty text gives the default.
std::string NormaliseSetting(Setting id, std::string_view text, const CodePage& page = CodePage::Default());

// All settings from the keys of a template's head. `defaultPaper` is the paper of a template that names
// neither a paper nor a size.
DocumentSettings ReadSettings(const KeyFile& keys, std::string_view defaultPaper,
                              const CodePage& page = CodePage::Default());

// Whether the writer prints the setting, and the text that it prints behind the "=".
bool SettingIsPrinted(const DocumentSettings& settings, Setting id,
                      const CodePage& page = CodePage::Default());
std::string PrintedValue(const DocumentSettings& settings, Setting id);

}  // namespace kev
