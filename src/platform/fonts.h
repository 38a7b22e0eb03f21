// SPDX-License-Identifier: MIT
// From the fonts and bytes of the document to those of the window system.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPointF>
#include <QString>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "base/code_page.h"
#include "document/text_measurer.h"

class QPainter;

namespace kev {

// The page through which a text with this charset number is read. Charsets 0 and 1, an empty number and one
// that is not known mean the page of the document.
const CodePage& PageOfCharSet(std::string_view charSet, const CodePage& documentPage);

// Bytes of the page as the window system's text.
QString ToQString(std::string_view text, const CodePage& page);
// A native path or another UTF-8 text.
inline QString FromNative(std::string_view path) {
  return QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size()));
}

// The installed family that stands for a name: the family itself, or the one of equal metrics.
QString InstalledFamily(std::string_view name);

// One family and style, measured once at the size of its design grid. Widths and heights follow from it at
// every size, so that a text is as wide at 50 % as at 200 %. Lengths are ems.
class FaceMetrics {
 public:
  FaceMetrics(QFont face, const CodePage& page);

  double Ascent() const { return ascent_; }
  double Height() const { return height_; }
  struct Byte {
    double advance;
    bool shaped;  // its width depends on its neighbours
  };
  const Byte& Of(char c) {
    std::optional<Byte>& known = bytes_[static_cast<unsigned char>(c)];
    if (!known) known = Measured(c);
    return *known;
  }
  double Advance(const QString& whole) const;

 private:
  Byte Measured(char c) const;

  QFont design_;
  QFontMetricsF metrics_;
  const CodePage& page_;
  double ascent_, height_;
  // Only those that were asked for: for a character that the font lacks, the window system loads one font
  // after the other.
  std::array<std::optional<Byte>, 256> bytes_;
};

// Fonts by what a record says, made once. Not for use by more than one thread.
class FontCache {
 public:
  explicit FontCache(const CodePage& page = CodePage::Default()) { SetPage(page); }

  // For widgets. 1 point is 20 twips, and 15 twips are one logical pixel: a font of `spec.Size` points for a
  // device whose logical resolution is `dpi`. The window system rounds it to whole pixels.
  const QFont& Font(const FontSpec& spec, int dpi);
  FaceMetrics& Face(const FontSpec& spec);
  // Prints with the top of the text at `at`, in the painter's pen and unit (the logical pixel), exactly as
  // wide as it measures at any size.
  void Print(QPainter& painter, const FontSpec& spec, const QPointF& at, std::string_view text);
  QString Text(const FontSpec& spec, std::string_view text) const;

  // The page of the open document. Changes how bytes above 127 are read.
  void SetPage(const CodePage& page);
  // The same, asked anew for each text: the page may change before the first text of a document is measured.
  void FollowPage(std::function<const CodePage&()> page) { page_ = std::move(page); }

 private:
  const QFont& PrintFont(const FontSpec& spec);

  std::function<const CodePage&()> page_;
  std::unordered_map<std::string, QFont> fonts_;
  std::unordered_map<std::string, std::unique_ptr<FaceMetrics>> faces_;
  std::string key_;
};

}  // namespace kev
