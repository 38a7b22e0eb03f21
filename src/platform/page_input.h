// SPDX-License-Identifier: MIT
// What the user does on the page in the window, told to the design surface: pointer, keys, the text box over
// a label, the cursor, and the scrolling of the view while something is dragged past its edge.
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>
#include <functional>
#include <optional>

#include "platform/page_canvas.h"
#include "platform/upper_layer.h"
#include "surface/page_work.h"

namespace kev {

class Designer;
class FieldScreen;

class PageInput final : public QObject {
  Q_OBJECT

 public:
  // All outlive it.
  PageInput(Designer& designer, PageCanvas& canvas, UpperLayer& layer, FontCache& fonts);

  // Tells whether a point of the screen lies on the horizontal ruler, which is beside the canvas.
  void SetRulerTest(std::function<bool(const QPoint&)> overRuler) { overRuler_ = std::move(overRuler); }

  void ShowFieldScreen(const FieldScreenLook& look);
  void HideFieldScreen();
  void StartAllowTimer(int milliseconds, std::function<void()> done);
  // Where a context menu opens: below the object when a key has asked for it, else at the pointer.
  QPoint TakeMenuPlace();
  // The shape may be another without the pointer having moved.
  void RefreshCursor();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void OnPointer(const PagePointer& event);
  void Release(const PagePointer& event, const PointerInput& input);
  bool OnKey(const QKeyEvent& event);
  void OpenMenuByKey();
  void OnTyped(const QString& text);
  // A character that the template's code page does not hold.
  void TellRefused(const QString& character);
  void FollowCanvas();
  void ScrollAtEdge();
  void ShowCursor(const PointerInput& input);
  const CodePage& PageOfKeys() const;
  PointerInput InputAt(const PagePointer& event) const;

  Designer& designer_;
  PageCanvas& canvas_;
  UpperLayer& layer_;
  FieldScreen* field_;
  const CodePage* fieldPage_ = &CodePage::Default();
  QTimer allowTimer_;
  std::function<void()> allowed_;
  QTimer edgeTimer_;
  PagePointer last_;
  PointerInput press_;
  bool doubleClicked_ = false;
  std::function<bool(const QPoint&)> overRuler_;
  double followed_ = 0;
  std::optional<QPoint> menuPlace_;
};

}  // namespace kev
