// SPDX-License-Identifier: MIT
// The middle of the main window: the page with its rulers, and the docked panel at its right.
#pragma once

#include <QPointer>
#include <QWidget>

#include "app/language.h"
#include "app/options.h"
#include "platform/forms/property_area.h"
#include "platform/page_canvas.h"
#include "platform/rulers.h"

namespace kev {

class PageFrame final : public QWidget {
  Q_OBJECT

 public:
  // Takes the canvas in as a child; whoever owns it may end it first. The fonts and options outlive the
  // frame, the texts are needed while it is made.
  PageFrame(PageCanvas& canvas, FontCache& fonts, DesignerOptions& options, const LanguageTexts& texts,
            QWidget* parent = nullptr);

  // Rulers of the unit `mode` for the document at this zoom, see surface/rulers.h.
  void ShowRulers(const Document& document, double zoom, int mode);
  PropertyArea& Properties() { return *properties_; }
  // Whether a point of the screen lies on the horizontal ruler.
  bool IsOverRuler(const QPoint& global) const;

  QSize minimumSizeHint() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void NextRulerModeWanted();
  // The right button on the horizontal ruler.
  void RulerPointer(const kev::PagePointer& event);
  // From the keyboard: steps up are above 0.
  void ZoomStepWanted(int steps);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddKeys();
  void ConnectDivider();
  void FitWindow();
  // Pixels of the panel when the divider's left edge is there.
  int PanelWidthAt(int left) const;
  int PanelWidthFor(int wanted) const;
  void FollowPointer(const QPoint& viewportPoint);

  QPointer<PageCanvas> canvas_;
  FontCache& fonts_;
  DesignerOptions& options_;
  QWidget* corner_;
  Ruler* rhor_;
  Ruler* rverint_;
  PanelDivider* divider_;
  QWidget* dividerLine_;
  PropertyArea* properties_;
};

}  // namespace kev
