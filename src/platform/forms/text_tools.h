// SPDX-License-Identifier: MIT
// The tools for text in the tool bar that are no plain buttons: font, size and colour.
#pragma once

#include <QComboBox>
#include <QToolButton>
#include <QWheelEvent>
#include <functional>
#include <optional>

#include "app/designer.h"

class QToolBar;

namespace kev {

// The families that are installed, and whatever else the current text names.
class ComboFont final : public QComboBox {
  Q_OBJECT

 public:
  explicit ComboFont(const QString& accessibleName, QWidget* parent = nullptr);

  void ShowFont(const QString& name);

 protected:
  // The wheel over the box belongs to nobody: it would change texts by accident.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

// The values on offer and any typed one.
class Combosize final : public QComboBox {
  Q_OBJECT

 public:
  explicit Combosize(const QString& accessibleName, QWidget* parent = nullptr);

  void ShowSize(const QString& size);

 Q_SIGNALS:
  // A value was chosen from the list, or a typed one was accepted by Enter or by leaving the box.
  void SizeChosen(const QString& size);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  void Offer();

  QString shown_;
};

// Shows the colour of the current text.
class PColor final : public QToolButton {
  Q_OBJECT

 public:
  explicit PColor(const QString& accessibleName, QWidget* parent = nullptr);

  // No colour where the tools can't be used.
  void ShowColour(const std::optional<Colour>& colour);
};

// Puts the three into the bar, beside the buttons for bold and left.
class TextTools final : public QObject {
  Q_OBJECT

 public:
  // `used` is called behind each use, when the keyboard can go back to the page. The designer outlives it.
  TextTools(QToolBar& bar, Designer& designer, std::function<void()> used);

  void Show(const FontTools& tools);

 private:
  void Connect();
  void ChooseFont(const QString& name);
  // The keyboard stays where the user has sent it.
  void Used(const QWidget& tool);

  Designer& designer_;
  std::function<void()> used_;
  ComboFont* font_;
  Combosize* size_;
  PColor* colour_;
};

}  // namespace kev
