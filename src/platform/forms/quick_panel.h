// SPDX-License-Identifier: MIT
// The small panel over the page. It follows what is selected and never takes the keyboard by itself.
#pragma once

#include <QFrame>
#include <optional>

#include "app/designer.h"
#include "app/quick_place.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace kev {

class HintList;
class PageCanvas;

// `BarTitle02`: the left button drags it.
class QuickBar final : public QWidget {
  Q_OBJECT

 public:
  QuickBar(const QString& closeName, QWidget* parent);
  void SetTitle(const QString& title);

 Q_SIGNALS:
  void Dragged(const QPoint& global, const QPoint& grip);
  void CloseWanted();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QLabel* title_;
  std::optional<QPoint> grip_;
};

class QuickPanelForm final : public QFrame {
  Q_OBJECT

 public:
  // Both outlive it; it is a child of the canvas.
  QuickPanelForm(Designer& designer, PageCanvas& canvas);

  void ShowPanel(const QuickPanel& panel, const QString& title);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QFrame* BuildLabelPage();
  QFrame* BuildShapePage();
  QListWidget* AddList(const char* name, const char* captionName, int text, int column);
  QPushButton* AddButton(QWidget* parent, const char* name, int text);
  QCheckBox* BuildCheck(const char* name, QWidget* parent);
  void Connect();

  void FillLists();
  void ShowContent();
  void ShowValues(int item);
  void AddChoice(const QListWidget& list);
  void Apply();
  void Leave();
  void FitAndPlace();
  void DragTo(const QPoint& global, const QPoint& grip);
  std::optional<QuickArea> ObjectArea() const;
  const CodePage& PageOfText() const;
  bool HasFocus() const;

  Designer& designer_;
  PageCanvas& canvas_;
  QuickPanel shown_;
  QuickBar* bar_;
  QFrame* labelPage_ = nullptr;
  QFrame* shapePage_ = nullptr;
  QLineEdit* value_ = nullptr;
  QListWidget* variables_ = nullptr;
  QListWidget* functions_ = nullptr;
  HintList* values_ = nullptr;
  QLabel* records_ = nullptr;
  QPushButton* apply_ = nullptr;
  QPushButton* addField_ = nullptr;
  QPushButton* addFunction_ = nullptr;
  QCheckBox* check1_ = nullptr;
  QCheckBox* check2_ = nullptr;
};

}  // namespace kev
