// SPDX-License-Identifier: MIT
#include "platform/forms/group_flag_forms.h"

#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>
#include <vector>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/forms/dialog_parts.h"

namespace kev {

GroupFlagForm::GroupFlagForm(const char* name, GroupFlagRun& run, const LanguageTexts& texts,
                             const Words& words, QWidget* parent)
    : QDialog(parent), run_(run) {
  setObjectName(QString::fromLatin1(name));
  setWindowTitle(ToQString(texts.Text(words.caption)));
  setAccessibleName(windowTitle());
  Build(texts, words);
  (run_.State() ? Option1 : Option2)->setChecked(true);
  (run_.State() ? Option1 : Option2)->setFocus();
}

void GroupFlagForm::Build(const LanguageTexts& texts, const Words& words) {
  const std::vector<std::string> captions = WithMnemonics(
      {texts.Text(words.on), texts.Text(words.off), texts.Text(kTextOk), texts.Text(kTextCancel)});
  auto* grid = new QGridLayout(this);
  Option1 = CaptionedControl<QRadioButton>("Option1", captions[0], this);
  Option2 = CaptionedControl<QRadioButton>("Option2", captions[1], this);
  auto* ok = CaptionedControl<QPushButton>("Command1", captions[2], this);
  auto* cancel = CaptionedControl<QPushButton>("Command2", captions[3], this);
  ok->setDefault(true);
  grid->addWidget(Option1, 0, 0, 1, 2);
  grid->addWidget(Option2, 1, 0, 1, 2);
  grid->addWidget(ok, 2, 0);
  grid->addWidget(cancel, 2, 1);
  connect(ok, &QPushButton::clicked, this, [this] {
    run_.Accept(Option1->isChecked());
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

Modifyenduser::Modifyenduser(GroupFlagRun& run, const LanguageTexts& texts, QWidget* parent)
    : GroupFlagForm("Modifyenduser", run, texts,
                    {kTextMenuModifiable, kTextGroupModifiable, kTextGroupNotModifiable}, parent) {}

PrintNoPrintFrm::PrintNoPrintFrm(GroupFlagRun& run, const LanguageTexts& texts, QWidget* parent)
    : GroupFlagForm("PrintNoPrintFrm", run, texts, {kTextMenuPrintOrNot, kTextGroupPrint, kTextGroupNoPrint},
                    parent) {}

}  // namespace kev
