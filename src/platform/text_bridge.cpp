// SPDX-License-Identifier: MIT
#include "platform/text_bridge.h"

#include <QFile>

namespace kev {

std::optional<std::string> FromQString(const QString& text, const CodePage& page, QString* refused) {
  std::string bytes;
  for (const char32_t codePoint : text.toUcs4()) {
    const std::optional<char> byte = page.FromUnicode(codePoint);
    if (!byte) {
      if (refused != nullptr) *refused = QString::fromUcs4(&codePoint, 1);
      return std::nullopt;
    }
    bytes.push_back(*byte);
  }
  return bytes;
}

QString OneLine(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  for (QChar& c : text)
    if (c.unicode() < 0x20 || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) c = QChar::Space;
  return text;
}

std::string ToNative(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

QString WithDetail(std::string_view text, std::string_view detail) {
  QString whole = ToQString(text);
  if (detail.empty()) return whole;
  if (!whole.isEmpty() && !whole.back().isSpace()) whole.append(QChar::Space);
  return whole + FromNative(detail);
}

}  // namespace kev
