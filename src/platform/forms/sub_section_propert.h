// SPDX-License-Identifier: MIT
// The dialog of a subsection: where a new one goes, its name, its fields, and where it starts. It shows and
// edits the values of a SubsectionDialog and decides nothing.
#pragma once

#include <QDialog>
#include <QList>
#include <functional>
#include <optional>
#include <string>

#include "app/language.h"
#include "base/code_page.h"
#include "base/host.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace kev {

struct SubsectionDialog;

class SubSectionpropert final : public QDialog {
  Q_OBJECT

 public:
  struct Services {
    const LanguageTexts& Texts;
    const CodePage& Page;  // of the document
    Host& TheHost;
    std::function<bool()> Accept;  // OK; false keeps the dialog open
  };
  // All outlive the form.
  SubSectionpropert(SubsectionDialog& dialog, Services services, QWidget* parent = nullptr);

  void accept() override;

 private:
  QString Word(int text) const;
  QLabel* Caption(int text, QWidget* buddy);
  void Name(QWidget& control, const char* name, int text);

  QWidget* BuildList();
  QWidget* BuildFields();
  QWidget* BuildRecordTypes();
  QWidget* BuildStart();
  QWidget* BuildButtons();
  void MarkLetters();

  void ShowEntries();
  void ShowSections();
  void ShowRecordTypes();
  void ShowNameAndFields();
  void ShowStart();
  void Connect();
  void ConnectSections();
  void ConnectNameAndFields();
  void Choose(int section);
  void ChooseEntry(const QListWidgetItem& item);
  // Nothing, and the message, when the document can't hold a character of the text.
  std::optional<std::string> Bytes(const QString& text);

  SubsectionDialog& dialog_;
  Services services_;
  QListWidget* entries_ = nullptr;
  QComboBox* section_ = nullptr;
  QLineEdit* name_ = nullptr;
  QTableWidget* types_ = nullptr;
  QPlainTextEdit* fields_ = nullptr;
  QLineEdit* start_ = nullptr;
  QCheckBox* atCurrent_ = nullptr;
  QPushButton* ok_ = nullptr;
  QPushButton* cancel_ = nullptr;
  QList<QLabel*> captions_;
};

}  // namespace kev
