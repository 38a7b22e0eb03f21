// SPDX-License-Identifier: MIT
#include "platform/qt_host.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <array>

#include "app/folders.h"
#include "base/files.h"
#include "platform/text_bridge.h"
#include "testrun/address_handler.h"

namespace kev {

namespace {

// Wide enough for the columns of the dialog that is made of widgets.
constexpr QSize kChooserSize(820, 520);

struct AnswerRow {
  BoxAnswer answer;
  QMessageBox::StandardButton button;
};

constexpr std::array kAnswers = {
    AnswerRow{BoxAnswer::Ok, QMessageBox::Ok}, AnswerRow{BoxAnswer::Yes, QMessageBox::Yes},
    AnswerRow{BoxAnswer::No, QMessageBox::No}, AnswerRow{BoxAnswer::Cancel, QMessageBox::Cancel},
    AnswerRow{BoxAnswer::YesToAll, QMessageBox::YesToAll}};

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok:
      return QMessageBox::Ok;
    case BoxButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxButtons::YesNoYesToAll:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::YesToAll;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Critical:
      return QMessageBox::Critical;
    case BoxIcon::Warning:
      return QMessageBox::Warning;
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::Question:
      return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

bool EndsWithNo(BoxButtons buttons) {
  return buttons == BoxButtons::YesNo || buttons == BoxButtons::YesNoYesToAll;
}

// A box without an answer (closed by its frame or Esc) changes nothing: Cancel, else No.
BoxAnswer AnswerOf(int button, BoxButtons buttons) {
  for (const AnswerRow& row : kAnswers) {
    if (row.button == button) return row.answer;
  }
  if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
  return EndsWithNo(buttons) ? BoxAnswer::No : BoxAnswer::Cancel;
}

QString FilterLine(const std::pair<std::string, std::string>& filter) {
  return ToQString(filter.first) + QStringLiteral(" (") + ToQString(filter.second) + QStringLiteral(")");
}

// "kev" of "*.kev *.KEV": what a typed name without an ending gets.
QString SuffixOf(const std::string& patterns) {
  const QString first = ToQString(patterns).section(QLatin1Char(' '), 0, 0);
  const QString suffix = first.section(QLatin1Char('.'), -1);
  return first.startsWith(QLatin1String("*.")) && suffix != QLatin1String("*") ? suffix : QString();
}

}  // namespace

QtHost::QtHost(QObject* parent) : QObject(parent) {
  connect(&processes_, &Processes::WaitsEnded, this, &QtHost::WaitsEnded);
}

BoxAnswer QtHost::ShowMessage(const MessageBox& asked) {
  QMessageBox box(window_);
  box.setObjectName(QStringLiteral("messagebox"));
  box.setWindowTitle(ToQString(asked.Title));
  box.setIcon(IconOf(asked.Icon));
  // A file name that looks like markup is shown as it is.
  box.setTextFormat(Qt::PlainText);
  box.setText(WithDetail(asked.Text, asked.Detail).remove(QLatin1Char('\r')));
  AddButtons(box, asked);
  return AnswerOf(box.exec(), asked.Buttons);
}

void QtHost::AddButtons(QMessageBox& box, const MessageBox& asked) const {
  box.setStandardButtons(ButtonsOf(asked.Buttons));
  for (const AnswerRow& row : kAnswers) {
    QAbstractButton* button = box.button(row.button);
    if (button != nullptr && !captions_.value(row.answer).isEmpty()) {
      button->setText(captions_.value(row.answer));
    }
  }
  if (asked.NoIsDefault) box.setDefaultButton(QMessageBox::No);
  if (EndsWithNo(asked.Buttons)) box.setEscapeButton(QMessageBox::No);
}

void QtHost::ShowStatus(std::string_view text, std::string_view detail) {
  Q_EMIT StatusChanged(WithDetail(text, detail));
}

void QtHost::ShowSelectionStatus(std::string_view text) {
  Q_EMIT SelectionStatusChanged(ToQString(text));
}

void QtHost::BeginProgress(std::string_view text, int maximum) {
  progressStopped_ = false;
  Q_EMIT ProgressBegun(ToQString(text), maximum);
}

void QtHost::StepProgress(int value, std::string_view text) {
  Q_EMIT ProgressStepped(value, ToQString(text));
}

void QtHost::EndProgress() {
  Q_EMIT ProgressEnded();
}

std::optional<std::string> QtHost::ChooseFileToOpen(const FileChoice& choice) {
  return Choose(choice, false);
}

std::optional<std::string> QtHost::ChooseFileToSave(const FileChoice& choice) {
  return Choose(choice, true);
}

std::optional<std::string> QtHost::Choose(const FileChoice& choice, bool save) {
  QFileDialog dialog(window_, ToQString(choice.Title), FromNative(choice.Folder));
  dialog.resize(kChooserSize);
  dialog.setObjectName(save ? QStringLiteral("savedialog") : QStringLiteral("opendialog"));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setOption(QFileDialog::DontUseNativeDialog, !nativeDialogs_);
  QStringList filters;
  for (const auto& filter : choice.Filters)
    filters << FilterLine(filter);
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  if (choice.Filter != nullptr) dialog.selectNameFilter(filters.value(*choice.Filter));
  if (!choice.DefaultEnding.empty())
    dialog.setDefaultSuffix(FromNative(choice.DefaultEnding));
  else if (save && !choice.Filters.empty())
    dialog.setDefaultSuffix(SuffixOf(choice.Filters.front().second));
  if (!choice.SuggestedName.empty()) dialog.selectFile(FromNative(choice.SuggestedName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  // A desktop's own dialog may tell of a kind that it was never given; what was offered holds then.
  const qsizetype kind = filters.indexOf(dialog.selectedNameFilter());
  if (choice.Filter != nullptr && kind >= 0) *choice.Filter = static_cast<int>(kind);
  return ToNative(dialog.selectedFiles().constFirst());
}

void QtHost::ShowCaption(std::string_view documentTitle, bool modified) {
  Q_EMIT CaptionChanged(FromNative(documentTitle), modified);
}

void QtHost::FetchPicture(std::string_view address, std::string_view file, std::function<void(bool)> done) {
  fetcher_.Fetch(QUrl(ToQString(address)), std::string(file), std::move(done));
}

std::optional<ProcessId> QtHost::StartProgram(const ProgramStart& start, std::function<void()> ended) {
  return ended ? processes_.Start(start, std::move(ended)) : processes_.StartDetached(start);
}

// Not by QDesktopServices or xdg-open: they make a url of the text, and what is registered gets another one.
bool QtHost::OpenAddress(std::string_view address) {
  const std::optional<ProgramStart> handler = HandlerOf(address, DesktopSettingsOf(ProcessEnvironment()));
  return handler && processes_.StartDetached(*handler);
}

bool QtHost::OpenWithDesktop(const std::string& path) {
  // Where the designer is installed the desktop opens a template in it, but who asks here wants to read the
  // text.
  if (FromNative(path).endsWith(QStringLiteral(".kev"), Qt::CaseInsensitive)) {
    const std::optional<ProgramStart> editor = TextHandlerOf(path, DesktopSettingsOf(ProcessEnvironment()));
    return editor && processes_.StartDetached(*editor);
  }
  return QDesktopServices::openUrl(QUrl::fromLocalFile(FromNative(path)));
}

}  // namespace kev
