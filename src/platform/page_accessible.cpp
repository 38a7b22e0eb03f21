// SPDX-License-Identifier: MIT
#include "platform/page_accessible.h"

#include <QAccessibleWidget>
#include <algorithm>
#include <array>
#include <utility>

#include "app/designer.h"
#include "platform/layer_widget.h"
#include "platform/page_canvas.h"
#include "platform/text_bridge.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr auto kRoles = std::to_array<std::pair<PageRole, QAccessible::Role>>({
    {PageRole::Text, QAccessible::StaticText},
    {PageRole::TextField, QAccessible::Paragraph},
    {PageRole::Picture, QAccessible::Graphic},
    {PageRole::Shape, QAccessible::Graphic},
    {PageRole::Chart, QAccessible::Chart},
    {PageRole::Code, QAccessible::Graphic},
    {PageRole::Command, QAccessible::StaticText},
    {PageRole::Band, QAccessible::Heading},
    {PageRole::BandEnd, QAccessible::Separator},
});

QAccessible::Role RoleOf(PageRole role) {
  return std::find_if(kRoles.begin(), kRoles.end(), [role](const auto& row) { return row.first == role; })
      ->second;
}

// One object of the page. It is asked for by its row and knows nothing else, so it never is out of date; a
// row that is blank or hidden makes it invalid.
class ObjectElement final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  ObjectElement(PageAccessible& page, int row) : page_(page), row_(row) {}

  bool isValid() const override { return page_.Shows(row_); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return page_.Canvas().window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(page_.Canvas().viewport());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return page_.NameOf(row_);
    if (kind == QAccessible::Value) return page_.ContentOf(row_);
    return kind == QAccessible::Description ? page_.KindOf(row_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override { return page_.PlaceOf(row_); }
  QAccessible::Role role() const override { return RoleOf(page_.Describe(row_).Role); }
  QAccessible::State state() const override;

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& name) override {
    if (!actionNames().contains(name)) return;
    page_.Canvas().setFocus(Qt::OtherFocusReason);
    page_.Pick(row_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

  int Row() const { return row_; }

 private:
  PageAccessible& page_;
  int row_;
};

QAccessible::State ObjectElement::state() const {
  QAccessible::State state;
  state.selectable = state.focusable = true;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  state.selected = page_.Describe(row_).Selected;
  state.focused = page_.CurrentRow() == row_ && page_.Canvas().hasFocus();
  const QWidget& view = *page_.Canvas().viewport();
  const QRect shown(view.mapToGlobal(QPoint(0, 0)), view.size());
  state.offscreen = !shown.intersects(rect());
  return state;
}

const std::vector<int> kNoRows;

// The viewport: the objects, and the box in which a text is typed. The marks of the selected object are no
// elements of their own.
class PageElement final : public QAccessibleWidget {
 public:
  explicit PageElement(PageCanvas& canvas)
      : QAccessibleWidget(canvas.viewport(), QAccessible::Document), canvas_(canvas) {}

  int childCount() const override { return static_cast<int>(Windows().size() + qsizetype(Rows().size())); }
  QAccessibleInterface* child(int index) const override {
    const QList<QWidget*> windows = Windows();
    if (index < 0 || index >= childCount()) return nullptr;
    if (index < windows.size()) return QAccessible::queryAccessibleInterface(windows.at(index));
    return Page()->ElementOf(Rows()[static_cast<std::size_t>(index - windows.size())]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const QList<QWidget*> windows = Windows();
    if (auto* widget = qobject_cast<QWidget*>(child->object()))
      return static_cast<int>(windows.indexOf(widget));
    const auto* element = dynamic_cast<const ObjectElement*>(child);
    const auto found = std::find(Rows().begin(), Rows().end(), element != nullptr ? element->Row() : 0);
    return found == Rows().end() ? -1 : static_cast<int>(windows.size() + (found - Rows().begin()));
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (QWidget* window : Windows())
      if (window->rect().contains(window->mapFromGlobal(QPoint(x, y))))
        return QAccessible::queryAccessibleInterface(window);
    const int row = Page() != nullptr ? Page()->RowAt({x, y}) : 0;
    return row == 0 ? nullptr : Page()->ElementOf(row);
  }
  QAccessibleInterface* focusChild() const override {
    const int row = Page() != nullptr && canvas_.hasFocus() ? Page()->CurrentRow() : 0;
    return row != 0 ? Page()->ElementOf(row) : QAccessibleWidget::focusChild();
  }

 private:
  // Not there yet while the window is being built.
  PageAccessible* Page() const {
    return canvas_.findChild<PageAccessible*>(QString(), Qt::FindDirectChildrenOnly);
  }
  const std::vector<int>& Rows() const { return Page() != nullptr ? Page()->Rows() : kNoRows; }
  QList<QWidget*> Windows() const {
    QList<QWidget*> windows;
    for (QObject* child : widget()->children()) {
      auto* window = qobject_cast<QWidget*>(child);
      const bool isMark = dynamic_cast<const LayerWidget*>(child) != nullptr;
      if (window != nullptr && window->isVisible() && !isMark) windows << window;
    }
    return windows;
  }

  PageCanvas& canvas_;
};

// What stands on the canvas beside the viewport belongs to it as well, which is not so for other scrolled
// areas.
QAccessibleInterface* MakeElement(const QString&, QObject* object) {
  if (auto* canvas = qobject_cast<PageCanvas*>(object))
    return new QAccessibleWidget(canvas, QAccessible::Pane);
  auto* viewport = qobject_cast<QWidget*>(object);
  auto* canvas = viewport != nullptr ? qobject_cast<PageCanvas*>(viewport->parentWidget()) : nullptr;
  return canvas != nullptr && canvas->viewport() == viewport ? new PageElement(*canvas) : nullptr;
}

}  // namespace

void MakePageAccessible() {
  QAccessible::installFactory(MakeElement);
}

PageAccessible::PageAccessible(Designer& designer, PageCanvas& canvas)
    : QObject(&canvas), designer_(designer), canvas_(canvas) {}

PageAccessible::~PageAccessible() {
  DropElements();
}

// --- What has changed ---

void PageAccessible::PageShown() {
  const std::optional<std::vector<int>> before = std::exchange(rows_, std::nullopt);
  if (!QAccessible::isActive()) return;
  SelectionChanged();
  if (before && *before == Rows()) return;
  QAccessibleEvent reordered(canvas_.viewport(), QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&reordered);
}

void PageAccessible::DocumentReplaced() {
  rows_.reset();
  DropElements();
}

void PageAccessible::SelectionChanged() {
  if (!QAccessible::isActive()) return;
  const int row = CurrentRow();
  if (std::exchange(told_, row) == row || !Shows(row)) return;
  QAccessibleInterface* element = ElementOf(row);
  for (const QAccessible::Event type : {QAccessible::Selection, QAccessible::Focus}) {
    if (type == QAccessible::Focus && !canvas_.hasFocus()) continue;
    QAccessibleEvent event(element, type);
    QAccessible::updateAccessibility(&event);
  }
}

void PageAccessible::DropElements() {
  for (const auto& [row, id] : std::exchange(elements_, {}))
    QAccessible::deleteAccessibleInterface(id);
  told_ = 0;
}

// --- For the elements ---

const std::vector<int>& PageAccessible::Rows() const {
  if (!rows_) rows_ = ObjectsInReadingOrder(designer_.Surface().Work());
  return *rows_;
}

bool PageAccessible::Shows(int row) const {
  const ObjectRecord& record = std::as_const(designer_).OpenDocument().Objects[row];
  return row != 0 && record.Kind != ObjectKind::None && PassesFilter(record, designer_.Filter());
}

ObjectDescription PageAccessible::Describe(int row) const {
  return DescribeObject(designer_.Surface().Work(), row);
}

QString PageAccessible::KindOf(int row) const {
  const int text = Describe(row).KindText;
  return text == 0 ? QString() : ToQString(designer_.Text(text)).remove(QLatin1Char('&'));
}

QString PageAccessible::ContentOf(int row) const {
  const ObjectDescription object = Describe(row);
  const CodePage& page = PageOfCharSet(object.CharSet, *std::as_const(designer_).OpenDocument().Page);
  return ToQString(object.Content, page);
}

QString PageAccessible::NameOf(int row) const {
  const QString content = ContentOf(row);
  return content.isEmpty() ? KindOf(row) : KindOf(row) + QStringLiteral(": ") + content;
}

QRect PageAccessible::PlaceOf(int row) const {
  const CanvasArea area = Describe(row).Area;
  const QRectF place(canvas_.ToViewport({area.Left, area.Top}),
                     canvas_.ToViewport({area.Right, area.Bottom}));
  const QRect pixels = place.toAlignedRect();
  const QSize size = pixels.size().expandedTo({1, 1});
  return {canvas_.viewport()->mapToGlobal(pixels.topLeft()), size};
}

int PageAccessible::CurrentRow() const {
  return std::as_const(designer_).OpenDocument().Objects.CurrentObject;
}

int PageAccessible::RowAt(const QPoint& screen) const {
  const QPointF at = canvas_.ToCanvas(canvas_.viewport()->mapFromGlobal(screen));
  return HitTest(designer_.Surface().Work(), {at.x(), at.y()});
}

void PageAccessible::Pick(int row) {
  if (Shows(row)) designer_.Surface().PickObject(row);
}

QAccessibleInterface* PageAccessible::ElementOf(int row) {
  const auto known = elements_.find(row);
  if (known != elements_.end()) return QAccessible::accessibleInterface(known->second);
  auto* element = new ObjectElement(*this, row);
  elements_.emplace(row, QAccessible::registerAccessibleInterface(element));
  return element;
}

}  // namespace kev
