// SPDX-License-Identifier: MIT
// The new-template assistant at work: what its form calls, each in a guard of its own.
#pragma once

#include <functional>
#include <string>

#include "data/new_template.h"

namespace kev {

class Designer;

class NewTemplateRun {
 public:
  // A path (native, may be empty) is the data file to begin with; it is not checked yet.
  explicit NewTemplateRun(Designer& designer, const std::string& path = {});

  // What the form shows, after each call and whenever `OnProgress` is called.
  const NewTemplateDialog& State() const { return state_; }
  // In the code page of the language file; the lines of StatusLabel.
  std::string StatusText() const;
  // While a file is checked, many times a second; the form shows how far it is, and may call Stop.
  std::function<void()> OnProgress;

  void ChooseStart(TemplateStart start);
  void Browse();
  // A typed path; native.
  void TypePath(const std::string& path);
  // Tells what is wrong with the file; the result stands in StatusLabel.
  void Check();
  void Stop() { stopped_ = true; }
  void Edit();
  // False when the assistant stays open: the data file is no longer good, the user gave up, or the template
  // could not be written. The open document is then what it was.
  bool Create();

 private:
  std::string DataFile() const;
  void TakePath(const std::string& path);
  void Survey();
  void Tell(const SampleMessage& message) const;
  bool CreateFromData();
  bool MakeText(const std::string& file, std::string& text) const;
  bool MakeVariables(const MadeTemplate& made, const std::string& file, std::string& text) const;
  bool WriteAndOpen(const std::string& text) const;

  Designer& designer_;
  NewTemplateDialog state_;
  bool stopped_ = false;
};

}  // namespace kev
