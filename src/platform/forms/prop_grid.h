// SPDX-License-Identifier: MIT
// A grid of captions and values, each value with the editor that its row asks for. It can be worked with the
// keyboard alone: arrows walk the rows, Enter, F2 or typing opens a cell, Enter or leaving it commits, Esc
// puts the old value back. It stores nothing: what was typed is told, and the rows are then shown anew.
#pragma once

#include <QTableView>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "properties/property_row.h"

namespace kev {

class PropGridModel;

class PropGrid final : public QTableView {
  Q_OBJECT

 public:
  explicit PropGrid(QWidget* parent = nullptr);
  ~PropGrid() override;

  // The values are bytes of the page. The current row stays where the captions are the same.
  void Show(const std::vector<PropertyRow>& rows, const CodePage& page);
  // For assistive technology: the headers are not shown.
  void NameColumns(const QString& caption, const QString& value);
  // Where the chooser of files begins with a relative name.
  void SetFolder(const QString& folder) { folder_ = folder; }
  // Gives the colour that the user chooses in place of this one; an invalid one gives up. Without it the
  // button of a colour does nothing.
  using ColourChooser = std::function<QColor(const QColor& now)>;
  void SetColourChooser(ColourChooser chooser) { chooseColour_ = std::move(chooser); }
  // What the cells hold, row by row.
  std::vector<std::string> Values() const;
  // Rows count from 1; 0 is none.
  int CurrentRow() const;
  void SetCurrentRow(int row);
  // An open cell is committed as if it had been left.
  void CommitOpenCell();
  // An open cell is closed with nothing told.
  void DiscardOpenCell();

 Q_SIGNALS:
  // The cell of the row, counted from 1, now holds another value.
  void Edited(int row);
  void RowChanged(int row);
  void ButtonPressed(int row);
  void RowDoubleClicked(int row);
  // A character that the page does not hold was typed; the old value is back.
  void Refused(const QString& character);
  // The grid, or a cell of it, has the keyboard.
  void FocusChanged(bool has);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void commitData(QWidget* editor) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  QSize sizeHint() const override { return {260, 400}; }

 private:
  // With a text, that stands in place of the value.
  void Open(const QModelIndex& index, const std::optional<QString>& typed = {});
  void Choose(const QModelIndex& index);
  QString ChosenFor(const QModelIndex& cell);
  bool TakeClipboardKey(const QKeyEvent& event);
  void KeyInOpenCell(QKeyEvent* event);
  bool HasOpenCell() const { return state() == QAbstractItemView::EditingState; }
  bool Holds(const QWidget* widget) const;
  void TellFocus(const QWidget* now);
  void FitRows();

  PropGridModel* model_;
  QString folder_;
  ColourChooser chooseColour_;
  bool committing_ = false;
  bool focused_ = false;
};

}  // namespace kev
