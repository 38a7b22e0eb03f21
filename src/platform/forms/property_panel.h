// SPDX-License-Identifier: MIT
// `FrameProps`: title bar, grid, description and the page filters. The same panel stands beside the page and
// on the form FormPROPS.
#pragma once

#include <QWidget>

#include "app/designer.h"
#include "platform/forms/prop_grid.h"

class QLabel;
class QRadioButton;

namespace kev {

// A gradient with the sheet's title: a double click moves the panel off the page or back, the cross closes
// it.
class PanelTitle final : public QWidget {
  Q_OBJECT

 public:
  PanelTitle(const QString& closeName, QWidget* parent);
  void SetTitle(const QString& title);

 Q_SIGNALS:
  void SwitchWanted();
  void CloseWanted();
  // The left button drags it: the pointer on the screen since the press.
  void DragBegun(const QPoint& global);
  void Dragged(const QPoint& global);
  void DragEnded();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QString title_;
  bool dragging_ = false;
};

class PropertyPanel final : public QWidget {
  Q_OBJECT

 public:
  // The designer outlives it.
  explicit PropertyPanel(Designer& designer, QWidget* parent = nullptr);

  void ShowSheet(const Sheet& sheet, const std::string& title, int selectRow);
  void ShowFilter(DisplayFilter filter);
  void CommitOpenCell() { grid_->CommitOpenCell(); }
  void FocusGrid();
  PanelTitle& Title() { return *title_; }

 Q_SIGNALS:
  void FilterWanted(kev::DisplayFilter filter);

 private:
  void BuildFilters();
  void ConnectGrid();
  void Edited(int row);
  void ShowDescription(int row);

  Designer& designer_;
  PanelTitle* title_;
  PropGrid* grid_;
  QLabel* description_;
  std::vector<std::pair<DisplayFilter, QRadioButton*>> filters_;
  // What the grid's cells stand for.
  int object_ = 0;
  SheetSubject subject_ = SheetSubject::Document;
};

}  // namespace kev
