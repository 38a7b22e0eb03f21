// SPDX-License-Identifier: MIT
// The panel `findings`: what the last read or save noticed.
#pragma once

#include <QDockWidget>
#include <span>

#include "app/language.h"
#include "base/code_page.h"
#include "base/finding.h"

class QTreeWidget;
class QLabel;
class QStackedWidget;

namespace kev {

class FindingsDock final : public QDockWidget {
  Q_OBJECT

 public:
  // The texts outlive the panel.
  explicit FindingsDock(const LanguageTexts& texts, QWidget* parent = nullptr);

  // `page` is the one of the texts that the findings quote.
  void Show(std::span<const Finding> findings, const CodePage& page);

 Q_SIGNALS:
  // A finding that concerns an object was chosen.
  void ObjectWanted(int row);

 private:
  void NameCloseButton(const QString& name);

  const LanguageTexts& texts_;
  QStackedWidget* pages_;
  QTreeWidget* list_;
  QLabel* nothing_;
};

}  // namespace kev
