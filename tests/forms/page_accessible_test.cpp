// SPDX-License-Identifier: MIT
#include "platform/page_accessible.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <chrono>

#include "base/text_numbers.h"
#include "forms/form_walk.h"
#include "platform/page_canvas.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

class PageAccessibleTest : public testing::Test {
 protected:
  PageCanvas& Canvas() { return *walk.Window().findChild<PageCanvas*>(); }
  QAccessibleInterface& Page() { return *QAccessible::queryAccessibleInterface(Canvas().viewport()); }
  QAccessibleInterface* Named(const QString& name) {
    for (int i = 0; i < Page().childCount(); ++i)
      if (Page().child(i)->text(QAccessible::Name) == name) return Page().child(i);
    return nullptr;
  }
  Document& Doc() { return walk.TheDesigner().OpenDocument(); }

  test::FormWalk walk{'E'};
};

TEST_F(PageAccessibleTest, ThePageIsADocumentOfItsObjects) {
  EXPECT_EQ(Page().role(), QAccessible::Document);
  EXPECT_FALSE(Page().text(QAccessible::Name).isEmpty());
  ASSERT_GE(Page().childCount(), 14);
  for (int i = 0; i < Page().childCount(); ++i) {
    QAccessibleInterface* child = Page().child(i);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(Page().indexOfChild(child), i);
    EXPECT_EQ(child->parent(), &Page());
    EXPECT_FALSE(child->text(QAccessible::Name).isEmpty()) << i;
    EXPECT_NE(child->role(), QAccessible::NoRole) << i;
    EXPECT_FALSE(child->rect().isEmpty()) << i;
  }
  EXPECT_EQ(Page().child(Page().childCount()), nullptr);
  EXPECT_EQ(Page().child(-1), nullptr);
}

TEST_F(PageAccessibleTest, AnObjectTellsKindTextAndPlace) {
  QAccessibleInterface* label = Named(QStringLiteral("Label: @name"));
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->role(), QAccessible::StaticText);
  EXPECT_EQ(label->text(QAccessible::Value), QStringLiteral("@name"));
  const QRect before = label->rect();
  EXPECT_EQ(Page().childAt(before.center().x(), before.center().y()), label);
  ASSERT_TRUE(walk.TheDesigner().SetZoom("200"));
  EXPECT_NEAR(label->rect().width(), 2 * before.width(), 3);
}

TEST_F(PageAccessibleTest, ItsActionSelectsAnObject) {
  QAccessibleInterface* label = Named(QStringLiteral("Label: @name2"));
  ASSERT_NE(label, nullptr);
  EXPECT_FALSE(label->state().selected);
  label->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(label->state().selected);
  EXPECT_EQ(Doc().Objects[Doc().Objects.CurrentObject].Content, "@name2");
  label->actionInterface()->doAction(QStringLiteral("no such action"));
  EXPECT_TRUE(label->state().selected);
}

TEST_F(PageAccessibleTest, AnObjectThatIsGoneIsNoElementAnyMore) {
  QAccessibleInterface* label = Named(QStringLiteral("Label: @name2"));
  ASSERT_NE(label, nullptr);
  const int before = Page().childCount();
  label->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  walk.Window().Run(Command::DeleteObject);
  EXPECT_EQ(Page().childCount(), before - 1);
  EXPECT_FALSE(label->isValid());
  EXPECT_TRUE(label->state().invalid);
  EXPECT_EQ(Named(QStringLiteral("Label: @name2")), nullptr);
}

TEST_F(PageAccessibleTest, AnObjectOutOfSightSaysSo) {
  QAccessibleInterface* label = Named(QStringLiteral("Label: @name"));
  ASSERT_NE(label, nullptr);
  EXPECT_FALSE(label->state().offscreen);
  ASSERT_TRUE(walk.TheDesigner().SetZoom("800"));
  Canvas().ScrollTo({0, 0}, {-5000, -5000});
  EXPECT_TRUE(label->state().offscreen);
}

// Nobody listens: a page of all rows that there are is painted and selected as fast as before.
TEST_F(PageAccessibleTest, NothingIsComputedWhileNobodyListens) {
  QAccessible::setActive(false);
  auto* page = Canvas().findChild<PageAccessible*>();
  ASSERT_NE(page, nullptr);
  const auto began = std::chrono::steady_clock::now();
  for (int i = 0; i < 100000; ++i) {
    page->PageShown();
    page->SelectionChanged();
  }
  EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(1));
}

}  // namespace
}  // namespace kev
