// SPDX-License-Identifier: MIT
// The two tool bars of the main window, made from the table of their buttons.
#pragma once

#include <QObject>
#include <functional>
#include <string_view>
#include <vector>

#include "app/designer.h"
#include "app/toolbar_table.h"

class QMainWindow;
class QToolBar;
class QToolButton;

namespace kev {

class ToolBars final : public QObject {
  Q_OBJECT

 public:
  struct Actions {
    std::function<void(Command)> run;
    std::function<void(std::string_view)> toggleTool;
    std::function<void(FontTool)> pressFontTool = {};
  };

  // Puts both bars into the window, which owns them. The designer is needed while it is made.
  ToolBars(QMainWindow& window, const Designer& designer, Actions actions);

  QToolBar& First() const { return *first_; }
  QToolBar& Second() const { return *second_; }
  // Enables what can be used, and presses the button of the tool that waits for a click.
  void Show(const std::function<bool(Command)>& enabled, std::string_view pendingTool);
  // Enables the buttons for text and presses those that the text of now is.
  void ShowFontTools(const FontTools& tools);

 private:
  static QToolBar* NewBar(QMainWindow& window, const Designer& designer, const char* name, int text);
  // The theme's colour behind both bars; without one the desktop's.
  void ApplyToolbarColour(const Designer& designer);
  // Image, tooltip and size of each button, in the order of the table.
  void LoadButtonImages(const Designer& designer);
  void AddButton(const ToolButtonRow& row, const Designer& designer);
  void Connect(QToolButton& button, const ToolButtonRow& row);

  struct Made {
    const ToolButtonRow& row;
    QToolButton* button;
  };

  Actions actions_;
  QToolBar* first_ = nullptr;
  QToolBar* second_ = nullptr;
  std::vector<Made> buttons_;
};

}  // namespace kev
