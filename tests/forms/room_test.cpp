// SPDX-License-Identifier: MIT
// Nothing that a form says is cut off: in no language, with no size of the system's font, and with no size
// that the form can be given.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QTabBar>
#include <QTest>
#include <set>

#include "forms/form_walk.h"
#include "platform/forms/quick_panel.h"

namespace kev {
namespace {

// The font that the system would give, larger, for as long as it lives.
class FontScale {
 public:
  explicit FontScale(double scale) : before_(QApplication::font()) {
    QFont larger = before_;
    larger.setPointSizeF(before_.pointSizeF() * scale);
    QApplication::setFont(larger);
  }
  ~FontScale() { QApplication::setFont(before_); }
  FontScale(const FontScale&) = delete;
  FontScale& operator=(const FontScale&) = delete;

 private:
  QFont before_;
};

bool LabelFits(const QLabel& label) {
  if (label.text().isEmpty()) return true;
  const QMargins margins = label.contentsMargins();
  if (label.wordWrap()) return label.heightForWidth(label.width()) <= label.height() + 1;
  const int room = label.width() - margins.left() - margins.right();
  QString shown = label.text();
  if (label.buddy() != nullptr) shown.remove(QLatin1Char('&'));
  return label.fontMetrics().horizontalAdvance(shown) <= room + 1 &&
         label.fontMetrics().height() <= label.height() + 1;
}

// The style gives more than the text needs at its sides.
bool ButtonFits(const QAbstractButton& button) {
  const QSize wanted = button.sizeHint();
  return button.text().isEmpty() ||
         (wanted.width() <= button.width() + 1 && wanted.height() <= button.height() + 1);
}

bool HeaderFits(const QHeaderView& header) {
  if (header.orientation() != Qt::Horizontal || header.model() == nullptr) return true;
  for (int section = 0; section < header.count(); ++section) {
    const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
    if (!header.isSectionHidden(section) &&
        header.fontMetrics().horizontalAdvance(text) > header.sectionSize(section))
      return false;
  }
  return true;
}

bool TabsFit(const QTabBar& bar) {
  for (int tab = 0; tab < bar.count(); ++tab) {
    QString text = bar.tabText(tab);
    text.remove(QLatin1Char('&'));
    if (bar.fontMetrics().horizontalAdvance(text) > bar.tabRect(tab).width()) return false;
  }
  return true;
}

bool Fits(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return LabelFits(*label);
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return ButtonFits(*button);
  if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) return HeaderFits(*header);
  if (const auto* bar = qobject_cast<const QTabBar*>(&widget)) return TabsFit(*bar);
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
    return box->fontMetrics().horizontalAdvance(box->title()) <= box->width();
  return true;
}

// A path may be longer than any form, and the panel is as narrow as its user wants it: its captions are
// shortened, and their tips tell all of them.
bool MayBeShort(const QWidget& widget) {
  // The quick panel is never larger than the page that it stands on.
  for (const QWidget* part = &widget; part != nullptr; part = part->parentWidget())
    if (dynamic_cast<const QuickPanelForm*>(part) != nullptr && part->width() < part->sizeHint().width())
      return true;
  static const std::set<QString> paths = {QStringLiteral("statustext"), QStringLiteral("statusselection"),
                                          QStringLiteral("FileNameLbl")};
  if (paths.count(widget.objectName()) != 0) return true;
  const auto* label = qobject_cast<const QLabel*>(&widget);
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  const QString text = label != nullptr ? label->text() : button != nullptr ? button->text() : QString();
  // A sign and no word.
  if (text.size() == 1) return true;
  return !text.isEmpty() && widget.toolTip() == text &&
         (label != nullptr || widget.height() >= widget.sizeHint().height());
}

QString TextOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  return {};
}

void HoldRoom(std::set<std::string>& cut, const std::string& name, const QWidget& form) {
  for (const QWidget* child : form.findChildren<QWidget*>()) {
    if (!child->isVisibleTo(&form) || child->window() != &form || MayBeShort(*child) || Fits(*child))
      continue;
    cut.insert(name + ": " + child->metaObject()->className() + " " + child->objectName().toStdString() +
               " \"" + TextOf(*child).toStdString() + "\" has " + std::to_string(child->width()) + "x" +
               std::to_string(child->height()) + " of " + std::to_string(child->sizeHint().width()) + "x" +
               std::to_string(child->sizeHint().height()));
  }
}

class RoomTest : public testing::TestWithParam<std::tuple<char, double>> {};

TEST_P(RoomTest, NothingIsCutOff) {
  const auto [language, scale] = GetParam();
  const FontScale font(scale);
  std::set<std::string> cut;
  test::FormWalk walk(language);
  walk.Run([&](const std::string& name, QWidget& form) {
    HoldRoom(cut, name, form);
    if (name.starts_with("KavEdit01")) return;
    form.resize(form.minimumSizeHint().expandedTo(form.minimumSize()));
    QCoreApplication::processEvents();
    HoldRoom(cut, name + " at its smallest", form);
  });
  for (const std::string& text : cut)
    ADD_FAILURE() << text;
}

INSTANTIATE_TEST_SUITE_P(Languages, RoomTest,
                         testing::Combine(testing::Values('E', 'S', 'I', 'P'), testing::Values(1.0, 1.5)),
                         [](const auto& shown) {
                           return std::string(1, std::get<0>(shown.param)) +
                                  std::to_string(static_cast<int>(std::get<1>(shown.param) * 100));
                         });

}  // namespace
}  // namespace kev
