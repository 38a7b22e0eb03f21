// SPDX-License-Identifier: MIT
// Shows every form of the program once, as its user gets to see it: the window with each kind of object
// selected, and each dialog as its command opens it.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/designer.h"
#include "platform/forms/kav_edit01.h"
#include "platform/qt_measurer.h"
#include "platform/temp_home.h"

namespace kev::test {

// `name` tells the form and what it shows; the form is on the screen.
using FormVisit = std::function<void(const std::string& name, QWidget& form)>;

class FormWalk {
 public:
  // A language of the program's own language file, or of the file given.
  explicit FormWalk(char language, const std::string& languageFile = KEV_PROGRAM_DIR "/Kev.lng");
  ~FormWalk();

  void Run(FormVisit visit);
  // Each is a part of Run.
  void VisitWindow(const FormVisit& visit);
  void VisitDialogs(const FormVisit& visit);

  KavEdit01& Window() { return *window_; }
  Designer& TheDesigner() { return *designer_; }
  // Dialogs that something else came in place of.
  const std::vector<std::string>& Missed() const { return missed_; }

 private:
  void InstallProgram(const std::string& languageFile, char language);
  void OpenSample();
  void VisitSheets(const FormVisit& visit);
  void VisitModal(const FormVisit& visit, const char* form, const std::function<void()>& open);
  void VisitGroupDialogs(const FormVisit& visit);
  void VisitRecovery(const FormVisit& visit);
  void VisitBoxes(const FormVisit& visit);

  TempHome home_;
  QtHost host_;
  FontCache fonts_;
  ImageCache images_{{}};
  QtMeasurer measurer_{fonts_};
  std::unique_ptr<Designer> designer_;
  std::unique_ptr<KavEdit01> window_;
  std::vector<std::string> missed_;
};

}  // namespace kev::test
