// SPDX-License-Identifier: MIT
#include "platform/ui_language.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "base/text_numbers.h"
#include "platform/qt_host.h"
#include "platform/text_bridge.h"

namespace kev {

namespace {

QLocale LocaleOf(char letter) {
  switch (letter) {
    case 'S':
      return QLocale(QLocale::Spanish);
    case 'I':
      return QLocale(QLocale::Italian);
    case 'P':
      return QLocale(QLocale::Portuguese, QLocale::Brazil);
    default:
      return QLocale(QLocale::English);
  }
}

}  // namespace

void ApplyUiLanguage(QApplication& application, char letter) {
  auto* translator = new QTranslator(&application);
  if (translator->load(LocaleOf(letter), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(translator);
  }
}

void SetButtonCaptions(QtHost& host, const LanguageTexts& texts) {
  host.SetButtonCaption(BoxAnswer::Ok, ToQString(texts.Text(kTextOk)));
  host.SetButtonCaption(BoxAnswer::Yes, ToQString(texts.Text(kTextGridYes)));
  host.SetButtonCaption(BoxAnswer::No, ToQString(texts.Text(kTextGridNo)));
  host.SetButtonCaption(BoxAnswer::Cancel, ToQString(texts.Text(kTextCancel)));
  host.SetButtonCaption(BoxAnswer::YesToAll, ToQString(texts.Text(kTextYesToAll)));
}

}  // namespace kev
