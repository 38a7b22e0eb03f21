// SPDX-License-Identifier: MIT
#include "platform/forms/sub_section_propert.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QVBoxLayout>
#include <utility>

#include "app/commands.h"
#include "base/text_numbers.h"
#include "platform/text_bridge.h"
#include "surface/subsection_dialog.h"

namespace kev {

namespace {

constexpr QSize kSize(720, 500);
constexpr int kSmallWidth = 460;
constexpr int kListWidth = 230;
constexpr int kMargin = 16;
constexpr int kStartWidth = 110;
constexpr int kRowHeight = 26;
constexpr int kEntrySpacing = 2;

QString Joined(const std::vector<std::string>& fields, const CodePage& page, const QString& separator) {
  QStringList parts;
  for (const std::string& field : fields)
    parts << ToQString(field, page);
  return parts.join(separator);
}

}  // namespace

SubSectionpropert::SubSectionpropert(SubsectionDialog& dialog, Services services, QWidget* parent)
    : QDialog(parent), dialog_(dialog), services_(std::move(services)) {
  setObjectName(QStringLiteral("SubSectionpropert"));
  setWindowTitle(Word(dialog_.Row == 0 ? kTextSubsectionInsert : kTextSubsectionDialog));
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kMargin);
  if (!dialog_.ShortForm) columns->addWidget(BuildList());
  columns->addWidget(BuildFields(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  layout->addLayout(columns, 1);
  layout->addWidget(BuildButtons());
  MarkLetters();
  Connect();
  ShowStart();
  if (dialog_.ShortForm) {
    resize(kSmallWidth, sizeHint().height());
    atCurrent_->setFocus();
  } else {
    ShowEntries();
    ShowRecordTypes();
    ShowNameAndFields();
    resize(kSize);
    name_->setFocus();
  }
}

void SubSectionpropert::accept() {
  if (services_.Accept()) QDialog::accept();
}

// --- Building ---------------------------------------------------------------------------------------------

QString SubSectionpropert::Word(int text) const {
  return ToQString(services_.Texts.Text(text));
}

QLabel* SubSectionpropert::Caption(int text, QWidget* buddy) {
  auto* label = new QLabel(Word(text), this);
  label->setBuddy(buddy);
  captions_ << label;
  return label;
}

void SubSectionpropert::Name(QWidget& control, const char* name, int text) {
  control.setObjectName(QString::fromLatin1(name));
  control.setAccessibleName(Word(text));
}

QWidget* SubSectionpropert::BuildList() {
  auto* column = new QWidget(this);
  entries_ = new QListWidget(column);
  Name(*entries_, "combo_subsect_name", kTextSubsectionExisting);
  entries_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  entries_->setTextElideMode(Qt::ElideRight);
  entries_->setSpacing(kEntrySpacing);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(Caption(kTextSubsectionExisting, entries_));
  layout->addWidget(entries_, 1);
  column->setFixedWidth(kListWidth);
  return column;
}

QWidget* SubSectionpropert::BuildFields() {
  auto* column = new QWidget(this);
  auto* form = new QFormLayout(column);
  form->setContentsMargins(0, 0, 0, 0);
  form->setSpacing(10);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  section_ = new QComboBox(column);
  Name(*section_, "combo_section", kTextSubsectionSection);
  form->addRow(Caption(kTextSubsectionSection, section_), section_);
  ShowSections();
  if (!dialog_.ShortForm) {
    name_ = new QLineEdit(column);
    Name(*name_, "subsect_name", kTextSubsectionName);
    form->addRow(Caption(kTextSubsectionName, name_), name_);
    QWidget* types = BuildRecordTypes();
    form->addRow(Caption(kTextSubsectionRecordTypes, types_), types);
    fields_ = new QPlainTextEdit(column);
    Name(*fields_, "subsect_fields", kTextSubsectionFields);
    fields_->setTabChangesFocus(true);
    form->addRow(Caption(kTextSubsectionFields, fields_), fields_);
  }
  QWidget* start = BuildStart();
  form->addRow(Caption(kTextSubsectionStartsAt, atCurrent_), start);
  return column;
}

QWidget* SubSectionpropert::BuildRecordTypes() {
  auto* pages = new QStackedWidget(this);
  types_ = new QTableWidget(0, 2, pages);
  Name(*types_, "Grid1", kTextSubsectionRecordTypes);
  types_->horizontalHeader()->hide();
  types_->verticalHeader()->hide();
  types_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  types_->horizontalHeader()->setStretchLastSection(true);
  types_->verticalHeader()->setDefaultSectionSize(kRowHeight);
  types_->setWordWrap(false);
  types_->setShowGrid(false);
  types_->setAlternatingRowColors(true);
  types_->setTabKeyNavigation(false);
  types_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  types_->setSelectionBehavior(QAbstractItemView::SelectRows);
  types_->setSelectionMode(QAbstractItemView::SingleSelection);
  auto* none = new QLabel(Word(kTextSubsectionNoRecordTypes), pages);
  none->setObjectName(QStringLiteral("norecordtypes"));
  none->setWordWrap(true);
  none->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  none->setForegroundRole(QPalette::PlaceholderText);
  pages->addWidget(types_);
  pages->addWidget(none);
  pages->setCurrentIndex(dialog_.RecordTypes.empty() ? 1 : 0);
  if (dialog_.RecordTypes.empty()) pages->setMaximumHeight(none->heightForWidth(kSmallWidth - kListWidth));
  return pages;
}

QWidget* SubSectionpropert::BuildStart() {
  auto* line = new QWidget(this);
  atCurrent_ = new QCheckBox(Word(kTextSubsectionAtCurrent), line);
  Name(*atCurrent_, "start_current", kTextSubsectionAtCurrent);
  start_ = new QLineEdit(line);
  Name(*start_, "subsect_start", kTextSubsectionStartsAt);
  start_->setFixedWidth(kStartWidth);
  start_->setAlignment(Qt::AlignRight);
  auto* layout = new QHBoxLayout(line);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(atCurrent_);
  layout->addStretch(1);
  layout->addWidget(start_);
  return line;
}

QWidget* SubSectionpropert::BuildButtons() {
  auto* buttons = new QDialogButtonBox(this);
  ok_ = buttons->addButton(Word(kTextOk), QDialogButtonBox::AcceptRole);
  Name(*ok_, "Command4", kTextOk);
  ok_->setDefault(true);
  cancel_ = buttons->addButton(Word(kTextCancel), QDialogButtonBox::RejectRole);
  Name(*cancel_, "Command5", kTextCancel);
  return buttons;
}

// One letter for each caption, the same one never twice.
void SubSectionpropert::MarkLetters() {
  std::vector<std::string> words;
  for (const QLabel* caption : captions_)
    words.push_back(*FromQString(caption->text(), CodePage::Default()));
  words = WithMnemonics(std::move(words));
  for (qsizetype i = 0; i < captions_.size(); ++i)
    captions_[i]->setText(ToQString(words[static_cast<std::size_t>(i)]));
}

// --- Showing ----------------------------------------------------------------------------------------------

void SubSectionpropert::ShowEntries() {
  const QSignalBlocker quiet(entries_);
  entries_->clear();
  for (const SubsectionEntry& entry : ListedEntries(dialog_)) {
    const bool isNew = entry.What == SubsectionEntry::Type::New;
    const QString text = isNew ? Word(kTextSubsectionInsert) : ToQString(entry.Text, services_.Page);
    const bool isBase = entry.What == SubsectionEntry::Type::Base;
    auto* item = new QListWidgetItem(isBase ? text : QStringLiteral("    ") + text, entries_);
    item->setToolTip(text);
    item->setData(Qt::UserRole, static_cast<int>(entry.Section));
    QFont font = entries_->font();
    font.setBold(isBase);
    item->setFont(font);
    if (entry.Section == BaseSection::Configuration) item->setFlags(Qt::NoItemFlags);
    if (isNew || (entry.Row != 0 && entry.Row == dialog_.Row)) entries_->setCurrentItem(item);
  }
}

void SubSectionpropert::ShowSections() {
  auto* model = new QStandardItemModel(section_);
  for (const BaseSectionRow& row : kBaseSections) {
    auto* item = new QStandardItem(ToQString(row.caption));
    if (row.id == BaseSection::Configuration) item->setFlags(Qt::NoItemFlags);
    model->appendRow(item);
  }
  section_->setModel(model);
  section_->setCurrentIndex(static_cast<int>(dialog_.Section));
  section_->setEnabled(dialog_.Row == 0);
}

void SubSectionpropert::ShowRecordTypes() {
  const QSignalBlocker quiet(types_);
  types_->setRowCount(static_cast<int>(dialog_.RecordTypes.size()));
  int row = 0;
  for (const RecordTypeChoice& type : dialog_.RecordTypes) {
    auto* item = new QTableWidgetItem(ToQString(type.Name, services_.Page));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(type.Ticked ? Qt::Checked : Qt::Unchecked);
    types_->setItem(row, 0, item);
    auto* fields = new QTableWidgetItem(Joined(type.Fields, services_.Page, QStringLiteral(", ")));
    fields->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    fields->setToolTip(fields->text());
    types_->setItem(row++, 1, fields);
  }
}

void SubSectionpropert::ShowNameAndFields() {
  const QSignalBlocker quietName(name_);
  const QSignalBlocker quietFields(fields_);
  name_->setText(ToQString(dialog_.Name, services_.Page));
  fields_->setPlainText(Joined(dialog_.Fields, services_.Page, QStringLiteral("\n")));
}

void SubSectionpropert::ShowStart() {
  const QSignalBlocker quiet(start_);
  atCurrent_->setChecked(dialog_.AtCurrentPosition);
  start_->setEnabled(!dialog_.AtCurrentPosition);
  start_->setText(ToQString(dialog_.Start, services_.Page));
}

// --- What the user does -----------------------------------------------------------------------------------

void SubSectionpropert::Connect() {
  connect(ok_, &QPushButton::clicked, this, &SubSectionpropert::accept);
  connect(cancel_, &QPushButton::clicked, this, &SubSectionpropert::reject);
  connect(atCurrent_, &QCheckBox::clicked, this, [this](bool checked) {
    dialog_.AtCurrentPosition = checked;
    ShowStart();
    if (!checked) start_->setFocus();
  });
  connect(start_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (const auto bytes = Bytes(OneLine(text))) dialog_.Start = *bytes;
    ShowStart();
  });
  if (dialog_.ShortForm) return;
  ConnectSections();
  ConnectNameAndFields();
}

void SubSectionpropert::ConnectSections() {
  connect(section_, &QComboBox::activated, this, &SubSectionpropert::Choose);
  // The list is filled anew, which must not happen while it is still telling of the change.
  connect(
      entries_, &QListWidget::currentRowChanged, this,
      [this] {
        if (const QListWidgetItem* item = entries_->currentItem()) ChooseEntry(*item);
      },
      Qt::QueuedConnection);
}

void SubSectionpropert::Choose(int section) {
  ChooseSection(dialog_, static_cast<BaseSection>(section));
  section_->setCurrentIndex(static_cast<int>(dialog_.Section));
  ShowEntries();
}

// Within the section of the new one the arrow keys go on; at its ends they take the new one along.
void SubSectionpropert::ChooseEntry(const QListWidgetItem& item) {
  const int section = item.data(Qt::UserRole).toInt();
  if (dialog_.Row != 0 || section != static_cast<int>(dialog_.Section)) Choose(section);
}

void SubSectionpropert::ConnectNameAndFields() {
  connect(name_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (const auto bytes = Bytes(OneLine(text)))
      dialog_.Name = *bytes;
    else
      name_->setText(ToQString(dialog_.Name, services_.Page));
  });
  connect(fields_, &QPlainTextEdit::textChanged, this, [this] {
    if (const auto bytes = Bytes(fields_->toPlainText()))
      TypeFields(dialog_, *bytes);
    else
      ShowNameAndFields();
  });
  connect(types_, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
    TickRecordType(dialog_, static_cast<std::size_t>(item->row()), item->checkState() == Qt::Checked);
    ShowNameAndFields();
  });
}

std::optional<std::string> SubSectionpropert::Bytes(const QString& text) {
  QString refused;
  std::optional<std::string> bytes = FromQString(text, services_.Page, &refused);
  if (!bytes) {
    services_.TheHost.ShowMessage({services_.Texts.Text(kTextProgramTitle),
                                   services_.Texts.Text(kTextCharacterNotInPage) + " ", refused.toStdString(),
                                   BoxIcon::Critical, BoxButtons::Ok});
  }
  return bytes;
}

}  // namespace kev
