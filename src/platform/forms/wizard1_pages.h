// SPDX-License-Identifier: MIT
// The four pages of the chart wizard.
#pragma once

#include <QFrame>
#include <QString>
#include <initializer_list>
#include <utility>
#include <vector>

#include "platform/forms/wizard1_fields.h"

class QGridLayout;
class QLabel;

namespace kev {

// A page: headings, and lines of a label with its fields. All pages have their fields at the same place.
class Wizard1Page final : public QFrame {
  Q_OBJECT

 public:
  Wizard1Page(const char* name, Wizard1Fields& fields, QWidget* parent);

  Wizard1Fields& Fields() { return fields_; }
  QString Word(int text) const { return fields_.Word(text); }
  void Heading(int text);
  // The label belongs to the first field. Fields stand side by side; the last one takes what room is left
  // where `wide` is set.
  void Row(int label, std::initializer_list<QWidget*> fields, bool wide = false);
  // Without a label of its own: under the fields of the rows above.
  void FieldRow(std::initializer_list<QWidget*> fields);
  // A heading's own control over the whole width.
  void Across(QWidget* control);
  // A caption inside a row.
  QLabel* Caption(int text, QWidget* field);
  // A check box with its own caption.
  QCheckBox* Check(const char* name, int text);
  QLineEdit* Text(const char* name, int label, int width);
  // A colour's two controls.
  std::pair<QWidget*, QWidget*> Colour(const char* name, int heading, int label);
  void End();

  // Its captions have their letters marked beside those that are marked already.
  void MarkLetters(const std::vector<std::string>& taken);

 private:
  Wizard1Fields& fields_;
  QGridLayout* grid_;
  int row_ = 0;
  std::vector<std::pair<QWidget*, int>> captions_;
};

Wizard1Page* GeneralPage(Wizard1Fields& fields, QWidget* parent);
Wizard1Page* SeriesPage(Wizard1Fields& fields, QWidget* parent);
Wizard1Page* TextsPage(Wizard1Fields& fields, QWidget* parent);
Wizard1Page* BackgroundPage(Wizard1Fields& fields, QWidget* parent);

}  // namespace kev
