// SPDX-License-Identifier: MIT
#include "platform/forms/tool_bars.h"

#include <QMainWindow>
#include <QToolBar>
#include <QToolButton>
#include <string>
#include <utility>

#include "platform/app_style.h"
#include "platform/fonts.h"
#include "platform/svg_icon.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

constexpr QSize kIconSize(22, 22);

QString TooltipOf(const ToolButtonRow& row, const Designer& designer) {
  return ToQString(row.tooltip != 0 ? std::string_view(designer.Text(row.tooltip)) : row.fixedTooltip);
}

// A button without a tooltip is called by its command.
QString NameOf(const ToolButtonRow& row, const Designer& designer) {
  const QString tooltip = TooltipOf(row, designer);
  return tooltip.isEmpty() && row.command ? ToQString(designer.Text(RowOf(*row.command).text)) : tooltip;
}

QString ImageOf(const ToolButtonRow& row, const Designer& designer) {
  const std::string name =
      std::string(kButtonImages) + std::string(row.image) + std::string(kButtonImageEnding);
  return FromNative(InProgramFolder(designer.Folders(), name));
}

}  // namespace

ToolBars::ToolBars(QMainWindow& window, const Designer& designer, Actions actions)
    : QObject(&window), actions_(std::move(actions)) {
  first_ = NewBar(window, designer, "toolbar1", kTextTools);
  // One row does not hold both.
  window.addToolBarBreak();
  second_ = NewBar(window, designer, "toolbar2", kTextMenuInsert);
  for (const ToolButtonRow& row : kToolButtons)
    if (row.command || row.fontTool || !row.tool.empty()) AddButton(row, designer);
  ApplyToolbarColour(designer);
  LoadButtonImages(designer);
}

void ToolBars::ApplyToolbarColour(const Designer& designer) {
  for (QToolBar* bar : {first_, second_})
    ColourBar(*bar, designer.CurrentTheme().ToolbarColour());
}

void ToolBars::LoadButtonImages(const Designer& designer) {
  for (const auto& [row, button] : buttons_) {
    button->setIcon(SvgIcon(ImageOf(row, designer)));
    button->setToolTip(TooltipOf(row, designer));
    button->setIconSize(kIconSize);
  }
}

QToolBar* ToolBars::NewBar(QMainWindow& window, const Designer& designer, const char* name, int text) {
  auto* bar = new QToolBar(&window);
  bar->setObjectName(QLatin1String(name));
  bar->setAccessibleName(ToQString(designer.Text(text)));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  window.addToolBar(bar);
  return bar;
}

void ToolBars::AddButton(const ToolButtonRow& row, const Designer& designer) {
  QToolBar& bar = row.bar == ToolBarId::First ? *first_ : *second_;
  if (row.separatorBefore && !bar.actions().isEmpty()) bar.addSeparator();
  auto* button = new QToolButton(&bar);
  button->setObjectName(ToQString(row.name));
  button->setAccessibleName(NameOf(row, designer));
  // Shown where the image can't be had.
  button->setText(NameOf(row, designer));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  bar.addWidget(button);
  Connect(*button, row);
  buttons_.push_back({row, button});
}

void ToolBars::Connect(QToolButton& button, const ToolButtonRow& row) {
  if (row.command) {
    connect(&button, &QToolButton::clicked, this, [this, id = *row.command] { actions_.run(id); });
    return;
  }
  button.setCheckable(true);
  if (row.fontTool) {
    button.setEnabled(false);
    connect(&button, &QToolButton::clicked, this, [this, tool = *row.fontTool] {
      if (actions_.pressFontTool) actions_.pressFontTool(tool);
    });
    return;
  }
  connect(&button, &QToolButton::clicked, this, [this, tool = row.tool] { actions_.toggleTool(tool); });
}

void ToolBars::Show(const std::function<bool(Command)>& enabled, std::string_view pendingTool) {
  for (const auto& [row, button] : buttons_) {
    if (row.command) {
      button->setEnabled(enabled(*row.command));
    } else if (!row.fontTool) {
      button->setChecked(row.tool == pendingTool);
    }
  }
}

void ToolBars::ShowFontTools(const FontTools& tools) {
  for (const auto& [row, button] : buttons_) {
    if (!row.fontTool) continue;
    button->setEnabled(tools.CanUse(*row.fontTool));
    button->setChecked(tools.Enabled && tools.Checked(*row.fontTool));
  }
}

}  // namespace kev
