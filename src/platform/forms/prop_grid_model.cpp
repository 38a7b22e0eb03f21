// SPDX-License-Identifier: MIT
#include "platform/forms/prop_grid_model.h"

#include <QColor>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "platform/fonts.h"
#include "platform/forms/prop_grid_editors.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

bool SameCaptions(const std::vector<PropertyRow>& a, const std::vector<PropertyRow>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const PropertyRow& x, const PropertyRow& y) { return x.Caption == y.Caption; });
}

}  // namespace

// Where the rows are those of before, only values that differ are shown anew: the current row keeps its
// place, and what is being typed into a cell stays.
bool PropGridModel::Show(const std::vector<PropertyRow>& rows, const CodePage& page) {
  const bool samePage = page_ == &page;
  page_ = &page;
  if (!SameCaptions(rows, rows_)) {
    beginResetModel();
    rows_ = rows;
    endResetModel();
    return true;
  }
  const std::vector<PropertyRow> before = std::exchange(rows_, rows);
  for (int row = 0; row < rowCount(); ++row) {
    const auto i = static_cast<std::size_t>(row);
    if (!samePage || before[i] != rows_[i]) Q_EMIT dataChanged(index(row, 0), index(row, kValue));
  }
  return false;
}

QString PropGridModel::TextAt(const QModelIndex& index) const {
  return ToQString(RowAt(index).Value, PageOf(RowAt(index)));
}

const CodePage& PropGridModel::PageOf(const PropertyRow& row) const {
  return row.CharSet.empty() ? *page_ : PageOfCharSet(row.CharSet, *page_);
}

QString PropGridModel::Shown(const PropertyRow& row) const {
  if (row.Editor != EditorKind::Font) return ToQString(row.Value, PageOf(row));
  const std::optional<FontValue> font = ParseFontValue(row.Value);
  if (!font) return ToQString(row.Value, PageOf(row));
  QString words = ToQString(font->Name, *page_) + QStringLiteral(", %1").arg(font->Size);
  if (font->Bold) words += QStringLiteral(", bold");
  if (font->Italic) words += QStringLiteral(", italic");
  return words;
}

int PropGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant PropGridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const PropertyRow& row = RowAt(index);
  const bool caption = index.column() == kCaption;
  switch (role) {
    case Qt::DisplayRole:
      return caption ? ToQString(row.Caption) : Shown(row);
    case Qt::EditRole:
      return caption ? QVariant() : QVariant(TextAt(index));
    case Qt::ToolTipRole:
      return caption ? ToQString(row.Caption) : Shown(row);
    case Qt::AccessibleTextRole:
      return caption ? ToQString(row.Caption) : ToQString(row.Caption) + QStringLiteral(": ") + Shown(row);
    case Qt::DecorationRole:
      if (!caption && row.Editor == EditorKind::Colour) return Swatch(ColourOf(TextAt(index)));
      return {};
    default:
      return {};
  }
}

QVariant PropGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::AccessibleTextRole || section < 0) return {};
  const auto at = static_cast<std::size_t>(section);
  if (orientation == Qt::Horizontal) return at < columnNames_.size() ? columnNames_[at] : QVariant();
  return at < rows_.size() ? ToQString(rows_[at].Caption) : QVariant();
}

Qt::ItemFlags PropGridModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Qt::ItemFlags flags = Qt::ItemIsSelectable;
  if (RowAt(index).Enabled) flags |= Qt::ItemIsEnabled;
  if (index.column() == kValue && RowAt(index).Enabled) flags |= Qt::ItemIsEditable;
  return flags;
}

bool PropGridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid() || index.column() != kValue) return false;
  if (value.toString() == TextAt(index)) return false;
  QString refused;
  const std::optional<std::string> text = FromLine(value.toString(), PageOf(RowAt(index)), &refused);
  if (!text) {
    Q_EMIT Refused(refused);
    return false;
  }
  std::string& held = rows_[static_cast<std::size_t>(index.row())].Value;
  if (*text == held) return false;
  held = *text;
  Q_EMIT dataChanged(index, index);
  Q_EMIT Edited(index.row() + 1);
  return true;
}

}  // namespace kev
