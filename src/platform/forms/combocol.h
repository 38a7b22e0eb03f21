// SPDX-License-Identifier: MIT
// The toolbar's list of columns. It can show a text that is none of its items: where a line is, or would be.
#pragma once

#include <QComboBox>

#include "base/code_page.h"
#include "surface/column_lines.h"

namespace kev {

class Combocol final : public QComboBox {
  Q_OBJECT

 public:
  explicit Combocol(const QString& accessibleName, QWidget* parent = nullptr);

  // `page` is that of the template's texts.
  void ShowList(const ColumnList& list, const CodePage& page);

 Q_SIGNALS:
  // The user chose an item, also the one that is shown; counted from 0.
  void ColumnChosen(int item);

 protected:
  // The wheel over the box belongs to nobody: it would move objects by accident.
  void wheelEvent(QWheelEvent* event) override;

 private:
  QStringList items_;
};

}  // namespace kev
