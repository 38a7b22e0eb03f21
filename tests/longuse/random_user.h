// SPDX-License-Identifier: MIT
// Somebody who works with a designer without aim: pointer, keys, commands, sheets, dialogs and files in any
// order. The same seed does the same on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/designer.h"
#include "support/template_generator.h"

namespace kev::test {

class CountingView;
class ScriptedHost;

// The action that is no change of its own.
inline constexpr std::string_view kUndoAndRedo = "undo and redo";

class RandomUser {
 public:
  // `folder` is where templates are saved and opened; native.
  RandomUser(ScriptedHost& host, CountingView& view, std::string folder, std::uint32_t seed);

  // Does one thing and gives its name.
  std::string_view Act(Designer& designer);
  // What exactly it was, for a message.
  const std::string& Detail() const { return detail_; }
  // Opens a template of so many labels that the table is almost full.
  void OpenFullTemplate(Designer& designer);

 private:
  struct Action {
    std::string_view name;
    int weight;
    void (RandomUser::*act)();
  };
  static const std::vector<Action>& Actions();

  int Below(int bound) { return static_cast<int>(random_() % static_cast<std::uint32_t>(bound)); }
  bool Chance(int percent) { return Below(100) < percent; }
  template <typename Items>
  const auto& OneOf(const Items& items) {
    return items[static_cast<std::size_t>(Below(static_cast<int>(std::size(items))))];
  }
  std::string SomeText();
  std::string SomePosition();
  int SomeRow();
  PointerInput SomePlace();

  void AnswerBoxes();
  void FillDialogs();
  void FillSubsection(SubsectionDialog& dialog, const std::function<bool()>& accept);
  void FillChart(ChartWizardRun& run);

  void Click();
  void DoubleClick();
  void Drag();
  void PressKey();
  void TypeInPlace();
  void RunCommand();
  void RunGroupCommand();
  void UseTool();
  void EditSheet();
  void PressSheetButton();
  void UseTextTools();
  void ChooseColumn();
  void ZoomAndFilter();
  void UndoAndRedo();
  void Quick();
  void SelectMany();
  void SaveSomewhere();
  void OpenSomething();
  void StartAnew();
  void TryIt();
  void GoToFinding();

  ScriptedHost& host_;
  CountingView& view_;
  std::string folder_;
  std::mt19937 random_;
  TemplateGenerator templates_;
  Designer* designer_ = nullptr;
  std::string detail_;
};

}  // namespace kev::test
