// SPDX-License-Identifier: MIT
// The rows of a property grid for the window system.
#pragma once

#include <QAbstractTableModel>
#include <array>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "properties/property_row.h"

namespace kev {

class PropGridModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  static constexpr int kCaption = 0;
  static constexpr int kValue = 1;

  // Whether the captions are other ones.
  bool Show(const std::vector<PropertyRow>& rows, const CodePage& page);
  const std::vector<PropertyRow>& Rows() const { return rows_; }
  const PropertyRow& RowAt(const QModelIndex& index) const {
    return rows_[static_cast<std::size_t>(index.row())];
  }
  QString TextAt(const QModelIndex& index) const;
  const CodePage& PageOf(const PropertyRow& row) const;
  // The cell's value as the cell shows it: a colour in a swatch and numbers, a font in words.
  QString Shown(const PropertyRow& row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return 2; }
  QVariant data(const QModelIndex& index, int role) const override;
  // The headers are not shown; assistive technology hears them.
  void NameColumns(const QString& caption, const QString& value) { columnNames_ = {caption, value}; }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  // False where the text is what it was, or holds a character that the page does not.
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 Q_SIGNALS:
  void Edited(int row);
  void Refused(const QString& character);

 private:
  std::vector<PropertyRow> rows_;
  std::array<QString, 2> columnNames_;
  const CodePage* page_ = &CodePage::Default();
};

}  // namespace kev
