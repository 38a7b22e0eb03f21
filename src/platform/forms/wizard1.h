// SPDX-License-Identifier: MIT
// The chart wizard: four pages of fields, and the chart beside them as it will look.
#pragma once

#include <QDialog>
#include <array>

#include "app/chart_runs.h"
#include "app/language.h"

class QPushButton;
class QStackedWidget;
class QWidget;

namespace kev {

class FontCache;
class ImageCache;
class KevGraph;
class Wizard1Fields;
class Wizard1Page;

class Wizard1 final : public QDialog {
  Q_OBJECT

 public:
  // All of them outlive the dialog.
  struct Services {
    const LanguageTexts& Texts;
    FontCache& Fonts;
    ImageCache& Images;
  };
  Wizard1(ChartWizardRun& run, const Services& services, QWidget* parent = nullptr);
  ~Wizard1() override;

  void accept() override;

 private:
  QWidget* BuildLinks();
  QWidget* BuildPages();
  QWidget* BuildPreview(const Services& services);
  QWidget* BuildButtons();
  void MarkLetters();
  void ShowPage(int page);
  void ShowChart();

  ChartWizardRun& run_;
  const LanguageTexts& texts_;
  Wizard1Fields* fields_;
  KevGraph* preview_ = nullptr;
  QStackedWidget* frames_ = nullptr;
  std::array<Wizard1Page*, 4> pages_{};
  std::array<QPushButton*, 4> links_{};
  QPushButton *accept_ = nullptr, *cancel_ = nullptr;
};

}  // namespace kev
