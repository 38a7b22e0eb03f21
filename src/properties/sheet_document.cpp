// SPDX-License-Identifier: MIT
// The sheet of the document. What is typed passes the same normalisation as what is read from a template.
#include <array>
#include <utility>

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "data/sample_check.h"
#include "data/sample_progress.h"
#include "document/papers.h"
#include "properties/row_editors.h"
#include "properties/row_values.h"

namespace kev {
namespace {

using enum Setting;

constexpr RowEditor kOrientationList = ClosedList("|1 - Portrait|2 - Landscape");
constexpr RowEditor kSampleFile = FileButton("|Kev Data Files!*.kex;*.ked|");
constexpr RowEditor kPaperList = {EditorKind::OpenList, "|", ListSource::Papers};
constexpr RowEditor kNoneList = OpenList("|none|");
constexpr RowEditor kYesNoTyped = OpenList("|Yes|No|");
constexpr RowEditor kAllowedList = OpenList("|Yes|No");
constexpr RowEditor kDecimalList = OpenList("|.|,");
constexpr RowEditor kPreviewList = ClosedList("|25%|50%|75%|100%|120%|150%|180%|200%|");

constexpr double kSmallestPage = 100, kLargestPage = 50000;  // twips
constexpr std::string_view kReservedInBlocks = "[];,=$@+-\\#";

DocumentSettings& SettingsOf(const SheetWork& work) {
  return work.page.document.Settings;
}

// --- Orientation, preview ---

std::string ShowOrientation(const std::string& value) {
  return value.starts_with('1') ? "1 - Portrait" : "2 - Landscape";
}

Verdict CheckOrientation(const SheetWork&, std::string_view text) {
  const std::string_view code = CodeOfItem(text);
  return code == "1" || code == "2" ? Verdict() : Refusal();
}

void StoreOrientation(const SheetWork& work, std::string_view text) {
  SettingsOf(work)[Orientation] = CodeOfItem(text);
}

std::string ShowPercent(const std::string& value) {
  const bool isNumber = !value.empty() && value.find_first_not_of("0123456789.") == std::string::npos;
  return isNumber ? value + "%" : value;
}

// --- Sample file ---

// Texts of the document are in its code page, and names on disk may be either.
std::optional<std::string> FindSample(const SheetWork& work, std::string_view name) {
  const std::string native = work.page.document.Page->ToUtf8(name);
  const bool absolute = name.starts_with('/') || name.starts_with('\\');
  if (work.templateFolder.empty() && !absolute) return std::nullopt;
  if (auto found = FindFile(native, work.templateFolder)) return found;
  return FindFile(name, work.templateFolder);
}

Refusal RefusedWithWords(int text, std::string words) {
  return {.Text = text, .Words = std::move(words)};
}

Verdict RefusalOf(const SheetWork& work, const SampleCheck& check) {
  const std::string line = std::to_string(check.Line);
  switch (check.Fault) {
    case SampleFault::None:
      return std::nullopt;
    case SampleFault::WrongName:
      return RefusedWith(kTextSampleFileExtension);
    case SampleFault::NoHead:
      if (!check.UnicodeMark) return RefusedWith(kTextSampleFileHead);
      return RefusedWithWords(kTextSampleFileHead, "\n" + work.page.services.Text(kTextUnicodeMark));
    case SampleFault::BadLine:
      return RefusedWithWords(kTextKexLineBad, "\nLine: " + line);
    case SampleFault::TooLong:
      return RefusedWithWords(kTextRecordTooLong, " " + line);
    case SampleFault::BadVariable:
      return RefusedWith(kTextKedLineBad);
    case SampleFault::NotReadable:
      return Refusal{.Text = kTextSampleFileNotOpened, .Detail = check.Reason};
    case SampleFault::Stopped:
      return Refusal{};
  }
  return std::nullopt;
}

Verdict CheckSample(const SheetWork& work, std::string_view text) {
  const std::string_view name = Trim(text);
  if (name.empty()) return std::nullopt;
  const std::optional<std::string> file = FindSample(work, name);
  if (!file) return RefusedWith(kTextSampleFileMissing);
  SampleProgress progress(work.host, work.page.services.Text(kTextReadingSample));
  return RefusalOf(work, CheckSampleFile(*file, [&progress](std::uint64_t done, std::uint64_t size) {
                     return progress.Go(done, size);
                   }));
}

// --- Paper ---

void StorePaper(const SheetWork& work, std::string_view text) {
  DocumentSettings& settings = SettingsOf(work);
  const std::string_view name = Trim(text);
  settings[PAPERSIZE] = name.empty() ? kCustomPaper : name;
  if (const auto paper = LookupPaper(name)) {
    settings[PAGEWIDTH] = FormatNumber(paper->Width);
    settings[PAGELENGHT] = FormatNumber(paper->Length);
  }
}

// Shows no box: the row is selected, with its old value.
Verdict CheckPageSize(const SheetWork&, std::string_view text) {
  const double size = NumericPrefix(text);
  if (size >= kSmallestPage && size <= kLargestPage) return std::nullopt;
  return Refusal{.SelectsRow = true};
}

template <Setting Id>
void StorePageSize(const SheetWork& work, std::string_view text) {
  SettingsOf(work)[Id] = NormaliseSetting(Id, text, *work.page.document.Page);
  SettingsOf(work)[PAPERSIZE] = kCustomPaper;
}

// --- Block characters ---

bool IsLetter(char c, const CodePage& page) {
  const std::string one(1, c);
  return page.Upper(one) != one || page.Lower(one) != one;
}

// A character with a meaning of its own would be lost, or would end what it stands in.
Verdict CheckBlockCharacter(const SheetWork& work, std::string_view text) {
  const std::string_view value = Trim(text);
  bool good = value.size() == 1;
  if (good) {
    const char c = value.front();
    const bool control = static_cast<unsigned char>(c) < static_cast<unsigned char>(kBlank);
    good = !control && !(c >= '0' && c <= '9') && !IsLetter(c, *work.page.document.Page) &&
           kReservedInBlocks.find(c) == std::string_view::npos;
  }
  return good ? Verdict() : RefusedWith(kTextBlockCharacterRefused, BoxIcon::Warning);
}

// --- Numbers ---

void StoreCopies(const SheetWork& work, std::string_view text) {
  const double copies = NumericPrefix(text);
  SettingsOf(work)[Copies] = copies < 1 ? "1" : FormatNumber(copies);
}

void StoreSpacing(const SheetWork& work, std::string_view text) {
  const bool positive = Int32Of(text) > 0;
  SettingsOf(work)[Spacing] = NormaliseSetting(Spacing, positive ? Trim(text) : "0");
}

constexpr bool kRedraws = true;

constexpr auto kRows = std::to_array<DocumentRow>({
    {"Report_title", kPlainText, Report_Title, kTextDescribeReportTitle},
    {"Orientation", kOrientationList, Orientation, kTextDescribeOrientation, ShowOrientation,
     CheckOrientation, StoreOrientation, kRedraws},
    {"Sample Kex/Ked file", kSampleFile, Sample_Kex_file, kTextDescribeSampleFile, nullptr, CheckSample},
    {"Papersize", kPaperList, PAPERSIZE, kTextDescribePaperSize, nullptr, nullptr, StorePaper, kRedraws},
    {"Send Paper to Printer", kNoneList, SENDPAPERTOPRINTER, kTextDescribeSendPaper},
    {"Always fit to paper", kYesNoTyped, ALWAYSFIT, kTextDescribeFitToPaper},
    {"Top margin", kPlainText, TM, kTextDescribeTopMargin},
    {"Left margin", kPlainText, LM, kTextDescribeLeftMargin, nullptr, nullptr, nullptr, kRedraws},
    {"Printed top margin", kPlainText, PTM, kTextDescribePrintedTopMargin},
    {"Printed left margin", kPlainText, PLM, kTextDescribePrintedLeftMargin},
    {"Maxy", kPlainText, MAXY, kTextDescribeMaxY},
    {"Decimal point", kDecimalList, DecimalPoint, kTextDescribeDecimalPoint},
    {"Conversion", kPlainText, Conversion, kTextDescribeConversion},
    {"Data conversion", kPlainText, DataConversion, kTextDescribeDataConversion},
    {"Save allowed", kAllowedList, Save_Allowed, kTextDescribeSaveAllowed},
    {"Print allowed", kAllowedList, Print_Allowed, kTextDescribePrintAllowed},
    {"Export allowed", kAllowedList, Export_Allowed, kTextDescribeExportAllowed},
    {"Link tips", kAllowedList, Linktips, kTextDescribeLinkTips},
    {"Open", kPlainText, Open, kTextDescribeOpen, nullptr, CheckBlockCharacter},
    {"Close", kPlainText, Close, kTextDescribeClose, nullptr, CheckBlockCharacter},
    {"MailTo", kPlainText, MAILTO, kTextDescribeMailTo},
    {"PageLenght", kPlainText, PAGELENGHT, kTextDescribePageLength, nullptr, CheckPageSize,
     StorePageSize<PAGELENGHT>, kRedraws},
    {"PageWidth", kPlainText, PAGEWIDTH, kTextDescribePageWidth, nullptr, CheckPageSize,
     StorePageSize<PAGEWIDTH>, kRedraws},
    {"Copies", kPlainText, Copies, kTextDescribeCopies, nullptr, nullptr, StoreCopies},
    {"Spacing", kPlainText, Spacing, kTextDescribeSpacing, nullptr, nullptr, StoreSpacing, kRedraws},
    {"PagAux", kPlainText, PAGAUX, kTextDescribePagAux},
    {"ZoomToPrint", kPlainText, ZoomToPrint, kTextDescribeZoomToPrint},
    {"Viewer options", kPlainText, ViewerOptions, kTextDescribeViewerOptions},
    {"Printer", kPlainText, PRINTER, kTextDescribePrinter},
    {"Preview on print server", kYesNoOpenEnd, OPEN_VIEW, kTextDescribePreviewOnServer},
    {"Preview at", kPreviewList, ZoomToOpen, kTextDescribePreviewAt, ShowPercent},
    {"PDF from Print Server", kYesNo, PDFFROMPS, kTextDescribePdfFromServer},
    {"PDF filename from Print Server", kPlainText, PDFNAME, kTextDescribePdfName},
});

}  // namespace

std::span<const DocumentRow> DocumentRows() {
  return kRows;
}

void SeparateBlockCharacters(const SheetWork& work) {
  DocumentSettings& settings = SettingsOf(work);
  if (settings[Open] != settings[Close]) return;
  ShowRefusal(work, RefusedWith(kTextBlockCharactersEqual));
  settings[Open] = RowOf(Open).defaultValue;
  settings[Close] = RowOf(Close).defaultValue;
}

}  // namespace kev
