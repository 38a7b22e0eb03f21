// SPDX-License-Identifier: MIT
// The page as assistive technology sees it: below the canvas a document, and in that one element for each
// object, with its kind, text, place and state. Nothing is computed while no client asks.
#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>
#include <map>
#include <optional>
#include <vector>

#include "surface/object_description.h"

namespace kev {

class Designer;
class PageCanvas;

// Before anybody can ask for the canvas: what is once asked for stays as it was made.
void MakePageAccessible();

class PageAccessible final : public QObject {
  Q_OBJECT

 public:
  // Both outlive it. It becomes a child of the canvas.
  PageAccessible(Designer& designer, PageCanvas& canvas);
  ~PageAccessible() override;

  // The page was painted anew.
  void PageShown();
  // Another document: no element stands for what it stood for.
  void DocumentReplaced();
  // Another object is selected, or perhaps so.
  void SelectionChanged();

  // --- For the elements ---
  const std::vector<int>& Rows() const;
  // Whether the row is an object that the page shows.
  bool Shows(int row) const;
  ObjectDescription Describe(int row) const;
  QString NameOf(int row) const;
  QString KindOf(int row) const;
  QString ContentOf(int row) const;
  // Pixels of the screen.
  QRect PlaceOf(int row) const;
  int CurrentRow() const;
  int RowAt(const QPoint& screen) const;
  void Pick(int row);
  QAccessibleInterface* ElementOf(int row);
  PageCanvas& Canvas() const { return canvas_; }

 private:
  void DropElements();

  Designer& designer_;
  PageCanvas& canvas_;
  // Until the next painting.
  mutable std::optional<std::vector<int>> rows_;
  std::map<int, QAccessible::Id> elements_;
  int told_ = 0;
};

}  // namespace kev
