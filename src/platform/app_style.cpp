// SPDX-License-Identifier: MIT
#include "platform/app_style.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QWidget>
#include <cmath>

#include "platform/accessible_names.h"

namespace kev {

namespace {

constexpr QRgb kWindow = 0xFFF4F5F7;
constexpr QRgb kBase = 0xFFFFFFFF;
constexpr QRgb kStripe = 0xFFF8F9FB;
constexpr QRgb kButton = 0xFFFAFBFC;
constexpr QRgb kText = 0xFF1F2328;
constexpr QRgb kFaint = 0xFF646C76;
constexpr QRgb kDisabled = 0xFFA3ABB4;
constexpr QRgb kAccent = 0xFF1B6AC9;
constexpr QRgb kTip = 0xFF2B3138;

// Buttons of boxes and dialogs carry their words alone.
class PlainButtons final : public QProxyStyle {
 public:
  PlainButtons() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

QPalette NeutralPalette() {
  QPalette palette{QColor(kButton), QColor(kWindow)};
  palette.setColor(QPalette::Window, QColor(kWindow));
  palette.setColor(QPalette::WindowText, QColor(kText));
  palette.setColor(QPalette::Base, QColor(kBase));
  palette.setColor(QPalette::AlternateBase, QColor(kStripe));
  palette.setColor(QPalette::Text, QColor(kText));
  palette.setColor(QPalette::PlaceholderText, QColor(kFaint));
  palette.setColor(QPalette::Button, QColor(kButton));
  palette.setColor(QPalette::ButtonText, QColor(kText));
  palette.setColor(QPalette::Highlight, QColor(kAccent));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(kAccent));
  palette.setColor(QPalette::ToolTipBase, QColor(kTip));
  palette.setColor(QPalette::ToolTipText, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(kDisabled));
  }
  return palette;
}

// The light of a channel, 0 to 1.
double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// Margins and lines that the style does not give by itself. Colours agree with the palette above.
constexpr const char* kSheet = R"(
QMenuBar { background: #ffffff; border-bottom: 1px solid #e3e6ea; padding: 2px 6px; }
QMenuBar::item { padding: 5px 10px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: #e8eef7; color: #1f2328; }
QMenu { background: #ffffff; border: 1px solid #cfd5dc; padding: 5px; }
QMenu::item { padding: 6px 28px 6px 26px; border-radius: 4px; }
QMenu::item:selected { background: #1b6ac9; color: #ffffff; }
QMenu::item:disabled { color: #a3abb4; }
QMenu::separator { height: 1px; background: #e3e6ea; margin: 5px 8px; }
QMenu::indicator { left: 7px; width: 13px; height: 13px; }
QStatusBar { background: #ffffff; border-top: 1px solid #e3e6ea; }
QStatusBar::item { border: none; }
QDockWidget::title { background: #ffffff; padding: 7px 10px; border-bottom: 1px solid #e3e6ea; }
QToolTip { padding: 4px 6px; border: none; }
#progresswindow { background: #ffffff; border: 1px solid #cfd5dc; border-radius: 8px; }
#progressbar { border: none; border-radius: 3px; background: #e3e6ea; max-height: 6px; min-height: 6px; }
#progressbar::chunk { border-radius: 3px; background: #1b6ac9; }
)";

}  // namespace

void ApplyStyle(QApplication& application) {
  QApplication::setStyle(new PlainButtons);
  QApplication::setPalette(NeutralPalette());
  application.setStyleSheet(QString::fromLatin1(kSheet));
  QApplication::setWindowIcon(ProgramIcon());
  new AccessibleNames(application);
}

QIcon ProgramIcon() {
  return QIcon(QStringLiteral(":/kev/icons/kev.svg"));
}

QColor TextColourOn(const QColor& background) {
  // As bright to the eye as it is far from white and from black.
  constexpr double kMiddle = 0.179;
  const double brightness = 0.2126 * Linear(background.redF()) + 0.7152 * Linear(background.greenF()) +
                            0.0722 * Linear(background.blueF());
  return brightness >= kMiddle ? QColor(Qt::black) : QColor(Qt::white);
}

void ColourBar(QWidget& bar, std::optional<Rgb> colour) {
  if (!colour) return;
  const QColor background = QColor::fromRgb(*colour);
  QPalette palette = bar.palette();
  palette.setColor(QPalette::Window, background);
  palette.setColor(QPalette::WindowText, TextColourOn(background));
  bar.setPalette(palette);
  bar.setAutoFillBackground(true);
}

}  // namespace kev
