// SPDX-License-Identifier: MIT
#include "platform/page_input.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <cmath>

#include "app/designer.h"
#include "base/text_numbers.h"
#include "platform/forms/field_screen.h"
#include "platform/text_bridge.h"
#include "surface/object_description.h"
#include "surface/page_keys.h"
#include "surface/press_rules.h"

namespace kev {
namespace {

constexpr int kEdgeInterval = 30;  // milliseconds
constexpr int kMostPerStep = 24;   // pixels
constexpr int kSignKey = 186;

constexpr std::array kKeys = {
    std::pair(Qt::Key_Shift, 16),    std::pair(Qt::Key_Control, 17), std::pair(Qt::Key_Alt, 18),
    std::pair(Qt::Key_Escape, 27),   std::pair(Qt::Key_Meta, 91),    std::pair(Qt::Key_CapsLock, 20),
    std::pair(Qt::Key_Left, 37),     std::pair(Qt::Key_Up, 38),      std::pair(Qt::Key_Right, 39),
    std::pair(Qt::Key_Down, 40),     std::pair(Qt::Key_Delete, 46),  std::pair(Qt::Key_ScrollLock, 145),
    std::pair(Qt::Key_Pause, 19),    std::pair(Qt::Key_Return, 13),  std::pair(Qt::Key_Enter, 13),
    std::pair(Qt::Key_Backspace, 8), std::pair(Qt::Key_Home, 36),    std::pair(Qt::Key_End, 35),
    std::pair(Qt::Key_Tab, 9),       std::pair(Qt::Key_Backtab, 9),  std::pair(Qt::Key_PageUp, 33),
    std::pair(Qt::Key_PageDown, 34), std::pair(Qt::Key_Insert, 45),  std::pair(Qt::Key_NumLock, 144)};

constexpr std::array kCursors = {std::pair(CursorShape::Arrow, Qt::ArrowCursor),
                                 std::pair(CursorShape::Cross, Qt::CrossCursor),
                                 std::pair(CursorShape::Move, Qt::SizeAllCursor),
                                 std::pair(CursorShape::SizeWidth, Qt::SizeHorCursor),
                                 std::pair(CursorShape::SizeHeight, Qt::SizeVerCursor),
                                 std::pair(CursorShape::SizeBoth, Qt::SizeFDiagCursor),
                                 std::pair(CursorShape::Beam, Qt::IBeamCursor)};

// The system's number of a key; 0 for one that has none here.
int KeyCode(const QKeyEvent& event) {
  for (const auto& [key, code] : kKeys)
    if (event.key() == key) return code;
  if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35) return 112 + event.key() - Qt::Key_F1;
  const bool plain = event.key() == Qt::Key_Space || (event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9) ||
                     (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z);
  if (plain) return event.key();
  // The codes of signs are those of other keys in the system's count: they all count as one sign.
  return event.text().isEmpty() || !event.text().at(0).isPrint() ? 0 : kSignKey;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
  int state = 0;
  if (modifiers.testFlag(Qt::ShiftModifier)) state |= kShiftKey;
  if (modifiers.testFlag(Qt::ControlModifier)) state |= kCtrlKey;
  if (modifiers.testFlag(Qt::AltModifier)) state |= kAltKey;
  return state;
}

PointerButton ButtonOf(const PagePointer& event) {
  if (event.action == PagePointer::Action::Move) {
    if (event.buttons.testFlag(Qt::LeftButton)) return PointerButton::Left;
    return event.buttons.testFlag(Qt::RightButton) ? PointerButton::Right : PointerButton::None;
  }
  if (event.button == Qt::LeftButton) return PointerButton::Left;
  return event.button == Qt::RightButton ? PointerButton::Right : PointerButton::None;
}

// How far to scroll for a pointer that is this far past an edge.
int StepPast(double at, double size) {
  const double past = at < 0 ? at : std::max(0.0, at - size);
  return std::clamp(static_cast<int>(past / 2), -kMostPerStep, kMostPerStep);
}

}  // namespace

PageInput::PageInput(Designer& designer, PageCanvas& canvas, UpperLayer& layer, FontCache& fonts)
    : designer_(designer), canvas_(canvas), layer_(layer), field_(new FieldScreen(canvas, fonts)) {
  field_->setAccessibleName(ToQString(designer.Text(kTextMenuLabel)));
  connect(&canvas_, &PageCanvas::Pointer, this, &PageInput::OnPointer);
  canvas_.installEventFilter(this);
  canvas_.viewport()->installEventFilter(this);
  allowTimer_.setSingleShot(true);
  connect(&allowTimer_, &QTimer::timeout, this, [this] {
    if (const auto done = std::exchange(allowed_, nullptr)) done();
  });
  edgeTimer_.setInterval(kEdgeInterval);
  connect(&edgeTimer_, &QTimer::timeout, this, &PageInput::ScrollAtEdge);
  connect(field_, &QLineEdit::textEdited, this, [this](const QString& text) { OnTyped(text); });
  connect(field_, &FieldScreen::Accepted, this, [this] { designer_.Surface().EndFieldScreen(true); });
  connect(field_, &FieldScreen::GivenUp, this, [this] { designer_.Surface().EndFieldScreen(false); });
}

// --- Pointer ---

PointerInput PageInput::InputAt(const PagePointer& event) const {
  // Whole units: the page lies between pixels where its margin does, and a place on an edge must be on it.
  const QPointF at(std::round(event.canvas.x()), std::round(event.canvas.y()));
  const PageWork work = designer_.Surface().Work();
  PointerInput input = layer_.At(at, [&](const PointerInput& hit) { return TakesPointer(work, hit); });
  input.Button = ButtonOf(event);
  input.Shift = ShiftState(event.modifiers);
  if (overRuler_ && overRuler_(canvas_.viewport()->mapToGlobal(canvas_.ToViewport(event.canvas).toPoint())))
    input.Source = PointerSource::Ruler;
  return input;
}

void PageInput::OnPointer(const PagePointer& event) {
  DesignSurface& surface = designer_.Surface();
  const PointerInput input = InputAt(event);
  const bool known = event.button == Qt::LeftButton || event.button == Qt::RightButton;
  last_ = event;
  switch (event.action) {
    case PagePointer::Action::Press:
      if (!known) return;
      doubleClicked_ = false;
      followed_ = canvas_.ListHeight();
      if (event.button == Qt::LeftButton) press_ = input;
      surface.PointerPress(input);
      edgeTimer_.start();
      break;
    case PagePointer::Action::Move:
      surface.PointerMove(input);
      FollowCanvas();
      break;
    case PagePointer::Action::DoubleClick:
      doubleClicked_ = event.button == Qt::LeftButton;
      if (!doubleClicked_ && known) surface.PointerPress(input);
      return;
    case PagePointer::Action::Release:
      if (known) Release(event, input);
      break;
  }
  ShowCursor(input);
}

// What a double click opens waits for the button to come up, so that no gesture is left half begun.
void PageInput::Release(const PagePointer& event, const PointerInput& input) {
  if (event.button == Qt::LeftButton) edgeTimer_.stop();
  if (event.button == Qt::LeftButton && std::exchange(doubleClicked_, false)) {
    designer_.Surface().DoubleClick(input);
  } else {
    designer_.Surface().PointerRelease(input);
  }
}

// A drag may make the page longer.
void PageInput::FollowCanvas() {
  const double height = designer_.Surface().Busy() ? canvas_.ListHeight() : 0;
  if (height != 0 && height != std::exchange(followed_, height)) canvas_.ShowList();
}

void PageInput::ScrollAtEdge() {
  if (!designer_.Surface().Busy()) return edgeTimer_.stop();
  const QPointF at = canvas_.ToViewport(last_.canvas);
  const QSize view = canvas_.viewport()->size();
  const int x = StepPast(at.x(), view.width());
  const int y = StepPast(at.y(), view.height());
  if (x == 0 && y == 0) return;
  canvas_.horizontalScrollBar()->setValue(canvas_.horizontalScrollBar()->value() + x);
  canvas_.verticalScrollBar()->setValue(canvas_.verticalScrollBar()->value() + y);
  last_.canvas = canvas_.ToCanvas(at);
  last_.action = PagePointer::Action::Move;
  designer_.Surface().PointerMove(InputAt(last_));
  FollowCanvas();
}

// What is being sized keeps its shape, however far the pointer gets from it.
void PageInput::ShowCursor(const PointerInput& input) {
  const PointerState& pointer = designer_.Surface().Pointer();
  const bool sizing = pointer.ResizeDrag || pointer.LineEndDrag;
  const CursorShape shape = designer_.Surface().Cursor(sizing ? press_ : input);
  for (const auto& [known, cursor] : kCursors)
    if (known == shape && canvas_.viewport()->cursor().shape() != cursor)
      canvas_.viewport()->setCursor(cursor);
}

void PageInput::RefreshCursor() {
  if (canvas_.viewport()->underMouse()) ShowCursor(InputAt(last_));
}

// --- Keys and windows ---

bool PageInput::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (watched == &canvas_) return OnKey(*static_cast<QKeyEvent*>(event));
      break;
    case QEvent::WindowDeactivate:
    case QEvent::UngrabMouse:
      if (designer_.Surface().Busy()) designer_.Surface().CancelGesture();
      break;
    case QEvent::ContextMenu:
      if (watched != &canvas_ ||
          static_cast<QContextMenuEvent*>(event)->reason() != QContextMenuEvent::Keyboard)
        break;
      OpenMenuByKey();
      return true;
    case QEvent::ToolTip: {
      const auto& help = *static_cast<QHelpEvent*>(event);
      const QString tip = layer_.TipAt(canvas_.ToCanvas(help.pos()));
      if (watched != canvas_.viewport() || tip.isEmpty()) break;
      QToolTip::showText(help.globalPos(), tip, canvas_.viewport());
      return true;
    }
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

bool PageInput::OnKey(const QKeyEvent& event) {
  const int code = KeyCode(event);
  if (code == 0 && event.text().isEmpty()) return false;
  const bool types = !event.text().isEmpty() && event.text().at(0).isPrint();
  QString refused;
  const std::optional<std::string> text =
      types ? FromQString(event.text(), PageOfKeys(), &refused) : std::string();
  if (!text) {
    const PageWork work = designer_.Surface().Work();
    const bool wanted = EffectOfKey(work, code, ShiftState(event.modifiers())) == KeyEffect::EditText;
    if (wanted) TellRefused(refused);
    return wanted;
  }
  const bool wasOpen = !field_->isHidden();
  const bool taken = designer_.Surface().KeyDown(code, ShiftState(event.modifiers()), *text);
  // The box that a key has opened gets the key as well.
  if (!wasOpen && !field_->isHidden() && (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Home)) {
    QKeyEvent key(QEvent::KeyPress, event.key(), event.modifiers());
    QCoreApplication::sendEvent(field_, &key);
  }
  RefreshCursor();
  return taken;
}

// Below the object, or at the corner of the view.
void PageInput::OpenMenuByKey() {
  const PageWork work = designer_.Surface().Work();
  const int row = work.document.Objects.CurrentObject;
  QPoint at(0, 0);
  if (row != 0) {
    const CanvasArea area = DescribeObject(work, row).Area;
    at = canvas_.ToViewport({area.Left, area.Bottom}).toPoint();
  }
  const QRect view = canvas_.viewport()->rect();
  menuPlace_ = canvas_.viewport()->mapToGlobal(
      QPoint(std::clamp(at.x(), 0, view.right()), std::clamp(at.y(), 0, view.bottom())));
  designer_.Surface().OpenMenuByKey();
  menuPlace_.reset();
}

QPoint PageInput::TakeMenuPlace() {
  return std::exchange(menuPlace_, std::nullopt).value_or(QCursor::pos());
}

// What is typed goes into the current label.
const CodePage& PageInput::PageOfKeys() const {
  const Document& document = designer_.OpenDocument();
  return PageOfCharSet(document.Objects[document.Objects.CurrentObject].CharSet, *document.Page);
}

void PageInput::OnTyped(const QString& text) {
  QString refused;
  const std::optional<std::string> typed = FromLine(text, *fieldPage_, &refused);
  if (typed) return designer_.Surface().FieldTextChanged(*typed);
  const QString before = ToQString(designer_.Surface().Edit().Text, *fieldPage_);
  const int cursor = field_->cursorPosition() - static_cast<int>(text.size() - before.size());
  field_->setText(before);
  field_->setCursorPosition(std::max(0, cursor));
  TellRefused(refused);
}

void PageInput::TellRefused(const QString& character) {
  designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, ToNative(character));
}

// --- The text box and the timer ---

void PageInput::ShowFieldScreen(const FieldScreenLook& look) {
  fieldPage_ = &PageOfCharSet(look.Font.CharSet, *designer_.OpenDocument().Page);
  field_->Show(look, *fieldPage_);
}

void PageInput::HideFieldScreen() {
  if (field_->isHidden()) return;
  field_->hide();
  canvas_.setFocus(Qt::OtherFocusReason);
}

void PageInput::StartAllowTimer(int milliseconds, std::function<void()> done) {
  allowed_ = std::move(done);
  allowTimer_.start(milliseconds);
}

}  // namespace kev
