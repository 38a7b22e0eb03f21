// SPDX-License-Identifier: MIT
// The editors of a property grid's cells and the delegate that makes them.
#pragma once

#include <QAbstractSpinBox>
#include <QColor>
#include <QIcon>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QToolButton>

#include "properties/property_row.h"

namespace kev {

// "255,128,0"; what is missing or no number counts as 0.
QColor ColourOf(const QString& text);
QString TextOfColour(const QColor& colour);
QIcon Swatch(const QColor& colour);

// A number with arrows. The bounds hold the arrows alone; any text may be typed.
class ArrowEdit final : public QAbstractSpinBox {
  Q_OBJECT

 public:
  ArrowEdit(const ArrowBounds& bounds, QWidget* parent);

  void stepBy(int steps) override;
  QString Text() const { return lineEdit()->text(); }
  void SetText(const QString& text) { lineEdit()->setText(text); }
  void SelectAll() { lineEdit()->selectAll(); }

 protected:
  StepEnabled stepEnabled() const override;

 private:
  ArrowBounds bounds_;
};

// A text with a button beside it.
class ButtonEdit final : public QWidget {
  Q_OBJECT

 public:
  ButtonEdit(const QString& buttonName, bool readOnly, QWidget* parent);

  QLineEdit& Line() { return *line_; }
  const QLineEdit& Line() const { return *line_; }

 Q_SIGNALS:
  void Pressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLineEdit* line_;
  QToolButton* button_;
};

class PropGridDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // What a button's chooser gives for the present text; an empty text when the user gives up. The defaults
  // are the window system's own choosers.
  static QString ChooseFile(QWidget* parent, const QString& text, const std::string& tail);
  static QString ChooseColour(QWidget* parent, const QString& text);
  static QString ChooseFont(QWidget* parent, const QString& text);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 private:
  QWidget* MakeList(QWidget* parent, const PropertyRow& row, const QModelIndex& index, bool open) const;
  QWidget* MakeChooser(QWidget* parent, const PropertyRow& row, const QModelIndex& index) const;
};

}  // namespace kev
