// SPDX-License-Identifier: MIT
// What the logic asks of the window system, answered with Qt. What only concerns the window is passed on as
// signals; the window connects them.
#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "base/host.h"
#include "platform/picture_fetcher.h"
#include "platform/processes.h"

class QAbstractButton;
class QFileDialog;
class QMessageBox;

namespace kev {

class QtHost final : public QObject, public Host {
  Q_OBJECT

 public:
  explicit QtHost(QObject* parent = nullptr);

  // Boxes and choosers stand above it.
  void SetWindow(QWidget* window) { window_ = window; }
  // Captions of the buttons of boxes, from the language file; without them the system's own.
  void SetButtonCaption(BoxAnswer answer, const QString& caption) { captions_[answer] = caption; }
  // The desktop's own file dialog, or the one made of widgets.
  void UseNativeDialogs(bool native) { nativeDialogs_ = native; }

  BoxAnswer ShowMessage(const MessageBox& box) override;
  void ShowStatus(std::string_view text, std::string_view detail) override;
  void ShowSelectionStatus(std::string_view text) override;
  void BeginProgress(std::string_view text, int maximum) override;
  void StepProgress(int value, std::string_view text) override;
  void EndProgress() override;
  std::optional<std::string> ChooseFileToOpen(const FileChoice& choice) override;
  std::optional<std::string> ChooseFileToSave(const FileChoice& choice) override;
  void ShowCaption(std::string_view documentTitle, bool modified) override;
  void OfferStop() override { Q_EMIT StopOffered(); }
  bool ProgressStopped() override { return progressStopped_; }
  void FetchPicture(std::string_view address, std::string_view file, std::function<void(bool)> done) override;
  std::optional<ProcessId> StartProgram(const ProgramStart& start, std::function<void()> ended) override;
  void WaitForProcess(ProcessId process) override { processes_.Wait(process); }
  void StopProgram(ProcessId process) override { processes_.Stop(process); }
  bool OpenAddress(std::string_view address) override;
  bool OpenWithDesktop(const std::string& path) override;

  // Whether a program is waited for.
  bool Waiting() const { return processes_.Waiting(); }
  void KillWaitedFor() { processes_.KillWaitedFor(); }
  // The user has had enough of what is under way.
  void StopProgress() { progressStopped_ = true; }

 Q_SIGNALS:
  void StatusChanged(const QString& text);
  void SelectionStatusChanged(const QString& text);
  void CaptionChanged(const QString& documentTitle, bool modified);
  void ProgressBegun(const QString& text, int maximum);
  void ProgressStepped(int value, const QString& text);
  void ProgressEnded();
  void WaitsEnded();
  void StopOffered();

 private:
  void AddButtons(QMessageBox& box, const MessageBox& asked) const;
  std::optional<std::string> Choose(const FileChoice& choice, bool save);

  QPointer<QWidget> window_;
  QHash<BoxAnswer, QString> captions_;
  bool nativeDialogs_ = true;
  PictureFetcher fetcher_;
  Processes processes_;
  bool progressStopped_ = false;
};

}  // namespace kev
