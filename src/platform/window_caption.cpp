// SPDX-License-Identifier: MIT
#include "platform/window_caption.h"

namespace kev {

QString WindowCaption(const QString& documentTitle, bool modified, const QString& modifiedWord,
                      const QString& programTitle) {
  QString caption = documentTitle + QStringLiteral(" - ") + programTitle;
  if (modified) caption += QStringLiteral(" [") + modifiedWord + QStringLiteral("]");
  // "[*]" is a mark of the window system; doubled, it stands for itself.
  return caption.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

}  // namespace kev
