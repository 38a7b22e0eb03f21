// SPDX-License-Identifier: MIT
// The docked panel's place beside the page: the container `propertyarea`, and the divider `Picturedivisor` by
// which its width is chosen.
#pragma once

#include <QWidget>

namespace kev {

// Empty and hidden until it is given something to show.
class PropertyArea final : public QWidget {
  Q_OBJECT

 public:
  explicit PropertyArea(const QString& accessibleName, QWidget* parent = nullptr);

  // Takes the widget in; one that was there before is deleted. Shows nothing by itself.
  void SetContent(QWidget* content);
  QWidget* Content() const { return content_; }
  // The widget is the caller's again.
  void ReleaseContent();
  // Without content it stays hidden.
  void ShowArea(bool visible);
  bool IsShown() const { return shown_; }

 Q_SIGNALS:
  // It was shown or hidden: the page gets another width.
  void Toggled();

 private:
  QWidget* content_ = nullptr;
  bool shown_ = false;
};

// Tells how far it is dragged and where it is let go; it does not move itself. Pixels, in its parent's place.
class PanelDivider final : public QWidget {
  Q_OBJECT

 public:
  explicit PanelDivider(const QString& accessibleName, QWidget* parent = nullptr);

 Q_SIGNALS:
  // The left edge that is wanted.
  void Dragged(int left);
  void Released(int left);
  // Escape, or another window: the width stays.
  void Cancelled();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  int LeftFor(const QMouseEvent& event) const;
  void End();
  void Cancel();

  bool dragging_ = false;
  int grip_ = 0;  // where in the divider it is held
};

}  // namespace kev
