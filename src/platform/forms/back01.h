// SPDX-License-Identifier: MIT
// The background composer of the chart wizard.
#pragma once

#include <QDialog>
#include <array>
#include <optional>
#include <string_view>

#include "app/language.h"
#include "chart/colour_dialogs.h"
#include "platform/forms/slider_row.h"

class QVBoxLayout;

namespace kev {

class GradientPicture;

class Back01 final : public QDialog {
  Q_OBJECT

 public:
  // Opens with these six numbers. The texts outlive the dialog.
  Back01(std::string_view ends, const LanguageTexts& texts, QWidget* parent = nullptr);
  ~Back01() override;

  // Also takes what stands in a box that was not left.
  void accept() override;
  const std::array<int, 6>& Result() const { return state_.Sliders; }
  // Shows the dialog; nothing when the user gives up.
  static std::optional<std::array<int, 6>> Choose(std::string_view ends, const LanguageTexts& texts,
                                                  QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Build();
  void BuildColour(QVBoxLayout& column, int heading, std::size_t first);
  void Connect();
  void Leave(std::size_t slider);
  void Show();
  QString Text(int number) const;

  const LanguageTexts& texts_;
  Back01State state_;
  std::array<SliderRow, 6> rows_;
  GradientPicture* g1;
};

}  // namespace kev
