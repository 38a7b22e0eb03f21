// SPDX-License-Identifier: MIT
// The designer's part in work on the page, without a window.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "document/sections.h"
#include "surface/page_work.h"
#include "surface/undo.h"

namespace kev::bench {

// Lays the page out as the designer does, and paints nothing.
class LayoutOnly : public PageServices {
 public:
  explicit LayoutOnly(Document& document) : document_(document) {}

  void PushUndo() override {}
  void MarkChanged() override {}
  void FullRepaint() override { benchmark::DoNotOptimize(DeriveGeometry(document_)); }
  void BandsChanged() override { FullRepaint(); }
  void BuildRulers() override {}
  void SelectionChanged() override {}
  void CommandsChanged() override {}
  const std::string& Text(int) const override { return text_; }
  // What is measured is never refused.
  BoxAnswer ShowBox(int, BoxIcon, BoxButtons) override { std::abort(); }
  void OpenContextMenu(ContextMenu) override {}
  void OpenProperties(int) override {}
  void ShowFieldScreen(const FieldScreenLook&) override {}
  void HideFieldScreen() override {}
  void StartAllowTimer(int, std::function<void()>) override {}
  void RunPendingTool() override {}

 protected:
  Document& document_;

 private:
  std::string text_;
};

// Keeps the levels of undo as well.
class LayoutAndLevels final : public LayoutOnly {
 public:
  using LayoutOnly::LayoutOnly;
  void PushUndo() override { levels_.Push(document_); }
  // The message behind a command.
  BoxAnswer ShowBox(int, BoxIcon, BoxButtons) override { return BoxAnswer::Ok; }

  UndoStore& Levels() { return levels_; }

 private:
  UndoStore levels_;
};

}  // namespace kev::bench
