// SPDX-License-Identifier: MIT
// The editors of a property grid's cells and the delegate that makes them.
#pragma once

#include <QAbstractSpinBox>
#include <QColor>
#include <QComboBox>
#include <QIcon>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QWheelEvent>

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

// A list whose keys only walk its items: an item counts as picked when it was chosen with the pointer or in
// the list that dropped down.
class ListEdit final : public QComboBox {
  Q_OBJECT

 public:
  explicit ListEdit(QWidget* parent);

 Q_SIGNALS:
  void Picked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  // The wheel scrolls the grid.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  bool inKey_ = false;
};

// A text with a button in it.
class ButtonEdit final : public QLineEdit {
  Q_OBJECT

 public:
  ButtonEdit(const QString& buttonName, bool readOnly, QWidget* parent);

 Q_SIGNALS:
  void Pressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QToolButton* button_;
};

class PropGridDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // What the window system's own chooser gives for the present text of a row; an empty text when the user
  // gives up. A relative file name begins at `folder`.
  static QString Choose(QWidget* parent, const PropertyRow& row, const QString& text, const QString& folder);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 Q_SIGNALS:
  // The button of an open cell was pressed.
  void ChooserWanted(const QModelIndex& cell);

 private:
  QWidget* MakeList(QWidget* parent, const PropertyRow& row, const QModelIndex& index, bool open) const;
  QWidget* MakeChooser(QWidget* parent, const PropertyRow& row, const QModelIndex& index) const;
  PropGridDelegate& Self() const { return const_cast<PropGridDelegate&>(*this); }
};

}  // namespace kev
