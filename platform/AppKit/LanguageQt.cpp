#include "LanguageQt.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <clocale>

// LANGUAGE takes precedence over all other variables unless the locale is "C".
void chooseLanguage()
{
    std::setlocale(LC_ALL, "");
    const QByteArray locale = std::setlocale(LC_MESSAGES, nullptr);
    const QByteArray wanted = qgetenv("LANGUAGE");
    const auto languages = (locale == "C" || wanted.isEmpty() ? locale : wanted).split(':') << "en";
    const auto chosen = std::ranges::find_if(languages, [](const QByteArray& language) {
        return language.startsWith("en") || QTranslator().load(":/i18n/" + language);
    });
    qputenv("LANGUAGE", *chosen);
}

void installTranslations()
{
    const QString language = qEnvironmentVariable("LANGUAGE");
    const QString toolkitTexts = QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_";
    for (const QString& catalogue : { ":/i18n/" + language, toolkitTexts + language }) {
        auto* const translator = new QTranslator(qApp);
        if (translator->load(catalogue)) QCoreApplication::installTranslator(translator);
    }
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}
