// SPDX-License-Identifier: MIT
// The status bar: what is selected, the last message, and how many findings there are.
#pragma once

#include <QStatusBar>

class QFrame;
class QLabel;
class QToolButton;

namespace kev {

class StatusPanels final : public QStatusBar {
  Q_OBJECT

 public:
  // `idleText` stands where there is no message.
  StatusPanels(const QString& idleText, const QString& findingsWord, QWidget* parent = nullptr);

  void ShowSelection(const QString& text);
  void ShowText(const QString& text);
  void ShowFindingCount(int count);

 Q_SIGNALS:
  void FindingsWanted();

 private:
  QString idleText_;
  QString findingsWord_;
  QLabel* selection_;
  QLabel* text_;
  QFrame* divider_;
  QToolButton* findings_;
};

}  // namespace kev
