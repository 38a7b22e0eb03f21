// SPDX-License-Identifier: MIT
// The one-line box in which a label's text is typed on the page.
#pragma once

#include <QLineEdit>

#include "platform/fonts.h"
#include "platform/page_canvas.h"
#include "surface/page_work.h"

namespace kev {

class FieldScreen final : public QLineEdit {
  Q_OBJECT

 public:
  FieldScreen(PageCanvas& canvas, FontCache& fonts);

  // Shown once more it is only moved and sized, and takes a text that is not its own. `page` is that of the
  // label's character set.
  void Show(const FieldScreenLook& look, const CodePage& page);

 Q_SIGNALS:
  // Enter, or the focus goes elsewhere in this window.
  void Accepted();
  void GivenUp();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  PageCanvas& canvas_;
  FontCache& fonts_;
};

}  // namespace kev
