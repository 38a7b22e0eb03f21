// SPDX-License-Identifier: MIT
// The controls of the chart wizard by their names, each bound to the field of the same name: what is typed
// goes there at once, and what stands there is shown.
#pragma once

#include <QAbstractButton>
#include <QIcon>
#include <QObject>
#include <QString>
#include <functional>
#include <vector>

#include "app/chart_runs.h"
#include "app/language.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;

namespace kev {

class ColourSwatch;

// A button with an image that stays down. It alone of its group shows that the pointer is over it.
class ImgToggle final : public QAbstractButton {
  Q_OBJECT

 public:
  ImgToggle(const QString& imageFile, const QString& caption, QWidget* parent);

  bool IsHovered() const { return hovered_; }
  void ClearHover();
  QSize sizeHint() const override { return {30, 28}; }

 Q_SIGNALS:
  void Hovered();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  bool hovered_ = false;
};

struct ColourField {
  QLineEdit* Text = nullptr;
  ColourSwatch* Swatch = nullptr;
};

class Wizard1Fields final : public QObject {
  Q_OBJECT

 public:
  // Both outlive the fields. The controls are children of `dialog`.
  Wizard1Fields(ChartWizardRun& run, const LanguageTexts& texts, QWidget* dialog);

  // `label` is the accessible name.
  QLineEdit* Text(const QString& name, const QString& label);
  // One of the items, or any text.
  QComboBox* OpenList(const QString& name, const QString& label, const std::vector<std::string>& items);
  // What the list does not hold is shown in grey and is no item.
  QComboBox* ClosedList(const QString& name, const QString& label, const std::vector<std::string>& items);
  ColourField Colour(const QString& name, const QString& label);
  // A swatch without a field of its own.
  ColourSwatch* Swatch(const QString& name, const QString& label);
  QCheckBox* Check(const QString& name, const QString& caption, const QString& label);
  ImgToggle* Toggle(const QString& name, std::string_view image, const QString& caption);
  QRadioButton* Option(const QString& name, const QString& caption,
                       std::function<bool(const Wizard1State&)> on);

  // Installed font families, as the template can name them.
  std::vector<std::string> Families() const;
  QString Word(int text) const;
  const LanguageTexts& Texts() const { return texts_; }
  ChartWizardRun& Run() { return run_; }
  // Shows what each field holds now, and tells of it.
  void Refresh();

 Q_SIGNALS:
  void Changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Prepare(QWidget* control, const QString& name, const QString& label);
  void Type(const std::string& name, const QString& text);
  void Leave(const std::string& name);
  void PickColour(const std::string& sample);

  ChartWizardRun& run_;
  const LanguageTexts& texts_;
  QWidget* dialog_;
  std::vector<std::function<void()>> shown_;
  std::vector<ImgToggle*> toggles_;
};

}  // namespace kev
