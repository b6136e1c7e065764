#include "translation.h"

#include "carlog.h"
#include "imagepaths.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

namespace {

bool loadTranslation(QTranslator *translator, QLocale const &locale)
{
    return translator->load(locale, QStringLiteral("carcontrol"), QStringLiteral("_"), translationsPath());
}

// Qt's lookup tries each of the locale's UI languages, from the whole name
// down to the language alone: zh_TW finds carcontrol_zh_TW.qm, but zh_HK
// and zh_SG find no file of their own. Chinese is written in one of two
// scripts, and a locale's script says which file it reads: the locale of
// each UI language is tried once more with its language and script alone,
// which Qt completes with the script's main country (Simplified: China,
// Traditional: Taiwan). zh_SG and zh_Hans_* read zh_CN, zh_HK, zh_MO and
// zh_Hant_* read zh_TW.
bool loadTranslationOfScript(QTranslator *translator, QLocale const &locale)
{
    const QStringList languages = locale.uiLanguages();
    for (QString const &name : languages) {
        const QLocale language(name);
        if (language.language() == QLocale::C || language.script() == QLocale::AnyScript)
            continue;
        const QLocale script(language.language(), language.script(), QLocale::AnyCountry);
        if (script.name() != language.name() && loadTranslation(translator, script))
            return true;
    }
    return false;
}

} // namespace

void followLocale()
{
    // Owned by the application, so that it lives as long as the texts it
    // translates.
    static QPointer<QTranslator> translator;
    static QString loadedLanguages;
    const QLocale locale;
    // A locale is looked up by its UI languages: zh_Hans_HK and zh_Hant_HK
    // share the name zh_HK, C and en_US the BCP 47 name en.
    const QString languages = locale.uiLanguages().join(QLatin1Char(','));
    if (translator && languages == loadedLanguages)
        return;
    if (!translator)
        translator = new QTranslator(QCoreApplication::instance());
    else
        QCoreApplication::removeTranslator(translator);
    loadedLanguages = languages;
    const QString named = locale.name() + QStringLiteral(" (") + languages + QLatin1Char(')');
    if (loadTranslation(translator, locale) || loadTranslationOfScript(translator, locale)) {
        QCoreApplication::installTranslator(translator);
        CAR_LOG("Translation") << "texts for" << qPrintable(named);
    } else {
        CAR_LOG("Translation") << "no translation for" << qPrintable(named) << "in" << qPrintable(translationsPath())
                               << "- source texts";
    }
}
