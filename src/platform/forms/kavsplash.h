// SPDX-License-Identifier: MIT
// The splash form: stands while defaults and options are read, and closes by itself as soon as it was seen.
#pragma once

#include <QDialog>

namespace kev {

class kavsplash final : public QDialog {
  Q_OBJECT

 public:
  explicit kavsplash(const QString& programTitle, QWidget* parent = nullptr);

  // How long it stands where its picture is never asked for. A click or a key closes it at once.
  static constexpr int kMilliseconds = 700;

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString programTitle_;
};

}  // namespace kev
