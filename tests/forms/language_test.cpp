// SPDX-License-Identifier: MIT
// Whatever a form says comes from the language file: the program runs with one in which each text is marked,
// and a text without the mark is one that nobody can translate.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabBar>
#include <fstream>
#include <set>
#include <sstream>

#include "forms/form_walk.h"
#include "platform/forms/prop_grid.h"
#include "platform/layer_widget.h"
#include "support/run_tool.h"

namespace kev {
namespace {

// Stands in no text of the program or of the sample.
const QChar kMark(0x00A4);

std::string MarkedSource() {
  std::ifstream source(KEV_LANGUAGE_SOURCE);
  std::ostringstream marked;
  for (std::string line; std::getline(source, line);) {
    const bool isText =
        line.size() > 2 && line[1] == ' ' && std::string("ESIP").find(line[0]) != std::string::npos;
    marked << (isText ? line.substr(0, 2) + "\u00A4" + line.substr(2) : line) << '\n';
  }
  return marked.str();
}

// Words that are the same in all languages: list items and captions of the sheets, first contents, names of
// the symbologies and units, and what the sample itself holds.
const std::set<QString>& FixedWords() {
  static const std::set<QString> words = {
      QStringLiteral("Kev Visual Editor"), QStringLiteral("form.kev"),     QStringLiteral("No title"),
      QStringLiteral("English"),           QStringLiteral("Espa\u00F1ol"), QStringLiteral("Italiano"),
      QStringLiteral("Portugu\u00EAs"),    QStringLiteral("Font Italic"),  QStringLiteral("Insert section"),
      QStringLiteral("insert a textbox"),  QStringLiteral("$Col_01"),      QStringLiteral("1K")};
  return words;
}

bool HasLetters(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

class Texts {
 public:
  explicit Texts(std::string form) : form_(std::move(form)) {}

  void Hold(const QObject& owner, const QString& text) {
    // A name of a file or of a column is the user's own.
    if (text.contains(QStringLiteral("/form.kev")) || text.startsWith(QStringLiteral("$Col_"))) return;
    if (!HasLetters(text) || text.contains(kMark) || FixedWords().count(text) != 0) return;
    found_.insert(form_ + ": " + owner.metaObject()->className() + " " + owner.objectName().toStdString() +
                  " says \"" + text.toStdString() + "\"");
  }
  const std::set<std::string>& Found() const { return found_; }

 private:
  std::string form_;
  std::set<std::string> found_;
};

void HoldHeader(Texts& texts, const QAbstractItemView& view) {
  const QAbstractItemModel* model = view.model();
  const auto* header = view.findChild<QHeaderView*>();
  if (model == nullptr || header == nullptr || header->isHidden() ||
      qobject_cast<const PropGrid*>(&view) != nullptr)
    return;
  for (int column = 0; column < model->columnCount(); ++column)
    texts.Hold(view, model->headerData(column, Qt::Horizontal).toString());
}

void HoldWidget(Texts& texts, const QWidget& widget) {
  texts.Hold(widget, widget.toolTip());
  texts.Hold(widget, widget.accessibleName());
  texts.Hold(widget, widget.accessibleDescription());
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) texts.Hold(widget, label->text());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) texts.Hold(widget, button->text());
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) texts.Hold(widget, box->title());
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) texts.Hold(widget, edit->placeholderText());
  if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) HoldHeader(texts, *view);
  if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
    for (int tab = 0; tab < tabs->count(); ++tab)
      texts.Hold(widget, tabs->tabText(tab));
  if (widget.isWindow() || qobject_cast<const QDockWidget*>(&widget) != nullptr)
    texts.Hold(widget, widget.windowTitle().remove(QStringLiteral("form.kev - ")));
}

// The marks of the selected object bear the names of the system and are shown to nobody.
bool IsHeard(const QWidget& widget) {
  // The findings stay docked.
  if (widget.objectName() == QStringLiteral("qt_dockwidget_floatbutton")) return false;
  return dynamic_cast<const LayerWidget*>(&widget) == nullptr;
}

std::set<std::string> UnmarkedTextsOf(const std::string& name, const QWidget& form) {
  Texts texts(name);
  HoldWidget(texts, form);
  for (const QWidget* child : form.findChildren<QWidget*>())
    if (IsHeard(*child) && (child->window() == &form || qobject_cast<const QMenu*>(child) != nullptr))
      HoldWidget(texts, *child);
  for (const QAction* action : form.findChildren<QAction*>())
    if (!action->isSeparator() && action->isVisible()) texts.Hold(*action, action->text());
  return texts.Found();
}

TEST(Languages, EveryTextOfEveryFormComesFromTheLanguageFile) {
  const test::TemporaryFolder folder;
  test::WriteBytes(folder / "kev.lang", MarkedSource());
  const test::ToolResult made = test::RunTool("kevlang", {folder / "kev.lang", folder / "Kev.lng"}, folder);
  ASSERT_EQ(made.ExitCode, 0) << made.Errors.substr(0, 2000);
  for (const char language : {'E', 'S', 'I', 'P'}) {
    std::set<std::string> unmarked;
    test::FormWalk walk(language, folder / "Kev.lng");
    walk.Run([&](const std::string& name, QWidget& form) { unmarked.merge(UnmarkedTextsOf(name, form)); });
    EXPECT_TRUE(walk.Missed().empty()) << walk.Missed().front();
    for (const std::string& text : unmarked)
      ADD_FAILURE() << language << ' ' << text;
  }
}

}  // namespace
}  // namespace kev
