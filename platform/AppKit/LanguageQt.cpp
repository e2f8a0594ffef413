#include "LanguageQt.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <clocale>
#include <libintl.h>

// For whoever has a locale, LANGUAGE comes before all other variables.
void chooseLanguage()
{
    std::setlocale(LC_ALL, "");
    bind_textdomain_codeset("libc", "UTF-8"); // whatever the locale's encoding
    const QByteArray locale = std::setlocale(LC_MESSAGES, nullptr);
    const QByteArray wishes = qgetenv("LANGUAGE");
    const auto languages = (locale == "C" || wishes.isEmpty() ? locale : wishes).split(':') << "en";
    const auto chosen = std::ranges::find_if(languages, [](const QByteArray& language) {
        return language.startsWith("en") || QTranslator().load(":/i18n/" + language);
    });
    qputenv("LANGUAGE", *chosen);
}

void speakChosenLanguage()
{
    const QString language = qEnvironmentVariable("LANGUAGE");
    const QString toolkits = QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_";
    for (const QString& catalogue : { ":/i18n/" + language, toolkits + language }) {
        auto* const translator = new QTranslator(qApp);
        if (translator->load(catalogue)) QCoreApplication::installTranslator(translator);
    }
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}
