// SPDX-License-Identifier: MIT
#include "platform/fonts.h"

#include <QFontDatabase>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/numbers.h"

namespace kev {
namespace {

constexpr int kUnitsPerEm = 2048;
// The window system rounds the sizes of its fonts, so texts are printed at this one and scaled by the
// painter.
constexpr int kPrintPixels = 128;
constexpr double kPixelsPerInch = 96;  // 15 twips of 1440 to the inch are one pixel
constexpr double kPixelsPerPoint = kPixelsPerInch / 72;
constexpr double kSmallestPoints = 0.5;
constexpr double kLargestPoints = 6000;  // above 720 points at the largest zoom

struct CharSetPage {
  int charSet;
  std::string_view page;
};

constexpr auto kCharSetPages = std::to_array<CharSetPage>({
    {161, "windows-1253"},
    {162, "windows-1254"},
    {163, "windows-1258"},
    {177, "windows-1255"},
    {178, "windows-1256"},
    {186, "windows-1257"},
    {204, "windows-1251"},
    {222, "windows-874"},
    {238, "windows-1250"},
});

struct FamilyStandIn {
  std::string_view name;
  const char16_t* family;
};

// Families of the same advance widths, so that a page keeps its look where the named one is not installed.
constexpr auto kStandIns = std::to_array<FamilyStandIn>({
    {"Arial", u"Liberation Sans"},
    {"Helvetica", u"Liberation Sans"},
    {"Times New Roman", u"Liberation Serif"},
    {"Times", u"Liberation Serif"},
    {"Courier New", u"Liberation Mono"},
    {"Courier", u"Liberation Mono"},
});

QFont StyledFont(const FontSpec& spec) {
  QFont font(InstalledFamily(spec.Name.empty() ? "Arial" : spec.Name));
  font.setBold(spec.Bold);
  font.setItalic(spec.Italic);
  font.setUnderline(spec.Underline);
  font.setStrikeOut(spec.Strikethrough);
  // Widths must not depend on the zoom or on neighbours: no grid fitting, no kerning, no ligatures.
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setKerning(false);
  font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::PreferNoShaping));
  return font;
}

double SanePoints(double points) {
  return std::isfinite(points) ? std::clamp(points, kSmallestPoints, kLargestPoints) : kSmallestPoints;
}

// Scripts that join or reorder their letters, and marks that stand above them.
bool NeedsShaping(char16_t c) {
  return (c >= 0x0300 && c <= 0x036F) || (c >= 0x0590 && c <= 0x08FF) || (c >= 0x0E31 && c <= 0x0E4E) ||
         c >= 0xFB1D;
}

QFont AtDesignGrid(QFont font) {
  font.setPixelSize(kUnitsPerEm);
  return font;
}

void AppendLines(std::string& key, const FontSpec& spec) {
  key += spec.Underline ? 'u' : ' ';
  key += spec.Strikethrough ? 's' : ' ';
}

void AppendFace(std::string& key, const FontSpec& spec) {
  key.assign(spec.Name);
  key += '\n';
  key += static_cast<char>('0' + (spec.Bold ? 1 : 0) + (spec.Italic ? 2 : 0));
}

}  // namespace

const CodePage& PageOfCharSet(std::string_view charSet, const CodePage& documentPage) {
  const int number = Int32Of(charSet);
  for (const CharSetPage& row : kCharSetPages) {
    if (row.charSet != number) continue;
    const CodePage* page = CodePage::Find(row.page);
    return page ? *page : documentPage;
  }
  return documentPage;
}

QString ToQString(std::string_view text, const CodePage& page) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  std::transform(text.begin(), text.end(), result.begin(), [&](char c) { return QChar(page.ToUnicode(c)); });
  return result;
}

QString InstalledFamily(std::string_view name) {
  const QString family = ToQString(name, CodePage::Default());
  if (QFontDatabase::hasFamily(family)) return family;
  for (const FamilyStandIn& row : kStandIns)
    if (CodePage::Default().EqualsIgnoringCase(name, row.name)) return QString::fromUtf16(row.family);
  return family;
}

FaceMetrics::FaceMetrics(QFont face, const CodePage& page)
    : design_(AtDesignGrid(std::move(face))),
      metrics_(design_),
      page_(page),
      ascent_(metrics_.ascent() / kUnitsPerEm),
      height_(ascent_ + metrics_.descent() / kUnitsPerEm) {}

FaceMetrics::Byte FaceMetrics::Measured(char c) const {
  const char16_t character = page_.ToUnicode(c);
  // Control characters print nothing.
  const bool prints = character >= 32 && character != 127;
  return {prints ? metrics_.horizontalAdvance(QChar(character)) / kUnitsPerEm : 0, NeedsShaping(character)};
}

double FaceMetrics::Advance(const QString& whole) const {
  return metrics_.horizontalAdvance(whole) / kUnitsPerEm;
}

const QFont& FontCache::Font(const FontSpec& spec, int dpi) {
  AppendFace(key_, spec);
  AppendLines(key_, spec);
  key_ += FormatNumber(spec.Size);
  key_ += '\n';
  key_ += std::to_string(dpi);
  const auto found = fonts_.find(key_);
  if (found != fonts_.end()) return found->second;
  QFont font = StyledFont(spec);
  font.setPointSizeF(SanePoints(spec.Size) * kPixelsPerInch / std::max(dpi, 1));
  return fonts_.emplace(key_, std::move(font)).first->second;
}

const QFont& FontCache::PrintFont(const FontSpec& spec) {
  AppendFace(key_, spec);
  AppendLines(key_, spec);
  const auto found = fonts_.find(key_);
  if (found != fonts_.end()) return found->second;
  QFont font = StyledFont(spec);
  font.setPixelSize(kPrintPixels);
  return fonts_.emplace(key_, std::move(font)).first->second;
}

void FontCache::Print(QPainter& painter, const FontSpec& spec, const QPointF& at, std::string_view text) {
  const double pixels = SanePoints(spec.Size) * kPixelsPerPoint;
  const double scale = pixels / kPrintPixels;
  const QTransform kept = painter.worldTransform();
  const QTransform place(scale, 0, 0, scale, at.x(), at.y() + Face(spec).Ascent() * pixels);
  painter.setWorldTransform(place * kept);
  painter.setFont(PrintFont(spec));
  painter.drawText(QPointF(0, 0), Text(spec, text));
  // Keeping the whole state of the painter would cost about as much as a short text.
  painter.setWorldTransform(kept);
}

FaceMetrics& FontCache::Face(const FontSpec& spec) {
  const CodePage& page = PageOfCharSet(spec.CharSet, page_());
  AppendFace(key_, spec);
  key_ += page.Name();
  auto& face = faces_[key_];
  if (!face) face = std::make_unique<FaceMetrics>(StyledFont(spec), page);
  return *face;
}

QString FontCache::Text(const FontSpec& spec, std::string_view text) const {
  return ToQString(text, PageOfCharSet(spec.CharSet, page_()));
}

void FontCache::SetPage(const CodePage& page) {
  page_ = [&page]() -> const CodePage& { return page; };
}

}  // namespace kev
