// SPDX-License-Identifier: MIT
#include "platform/forms/align_to_grid_frm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <vector>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/forms/dialog_parts.h"

namespace kev {

namespace {
// In the order of the list.
constexpr int kYesItem = 0;
}  // namespace

AlignToGridFrm::AlignToGridFrm(AlignToGridRun& run, const LanguageTexts& texts, QWidget* parent)
    : QDialog(parent), run_(run) {
  setObjectName(QStringLiteral("AlignToGridFrm"));
  setWindowTitle(ToQString(texts.Text(kTextMenuAlignToGrid)));
  setAccessibleName(windowTitle());
  Build(texts);
  Show();
}

void AlignToGridFrm::Build(const LanguageTexts& texts) {
  const std::vector<std::string> captions =
      WithMnemonics({texts.Text(kTextGridSnapNow), texts.Text(kTextGridSetProperty), texts.Text(kTextOk),
                     texts.Text(kTextCancel)});
  auto* grid = new QGridLayout(this);
  Check1 = CaptionedControl<QCheckBox>("Check1", captions[0], this);
  Check2 = CaptionedControl<QCheckBox>("Check2", captions[1], this);
  Combo1 = NamedControl<QComboBox>("Combo1", this);
  Combo1->addItems({ToQString(texts.Text(kTextGridYes)), ToQString(texts.Text(kTextGridNo))});
  Combo1->setAccessibleName(Check2->accessibleName());
  auto* ok = CaptionedControl<QPushButton>("Command1", captions[2], this);
  auto* cancel = CaptionedControl<QPushButton>("Command2", captions[3], this);
  ok->setDefault(true);
  grid->addWidget(Check1, 0, 0, 1, 3);
  grid->addWidget(Check2, 1, 0);
  grid->addWidget(Combo1, 1, 1, 1, 2);
  grid->addWidget(ok, 2, 1);
  grid->addWidget(cancel, 2, 2);
  connect(ok, &QPushButton::clicked, this, &AlignToGridFrm::Accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void AlignToGridFrm::Show() {
  const AlignToGrid& state = run_.State();
  Check1->setChecked(state.Check1);
  Check2->setChecked(state.Check2);
  Combo1->setCurrentIndex(state.Combo1 ? kYesItem : kYesItem + 1);
}

void AlignToGridFrm::Accept() {
  run_.Accept({Check1->isChecked(), Check2->isChecked(), Combo1->currentIndex() == kYesItem});
  accept();
}

}  // namespace kev
