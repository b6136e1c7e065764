#include "translation.h"

#include "carlog.h"
#include "imagepaths.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

void followLocale()
{
    // Owned by the application, so that it lives as long as the texts it
    // translates.
    static QPointer<QTranslator> translator;
    static QString loadedLocale;
    const QLocale locale;
    if (translator && locale.name() == loadedLocale)
        return;
    if (!translator)
        translator = new QTranslator(QCoreApplication::instance());
    else
        QCoreApplication::removeTranslator(translator);
    loadedLocale = locale.name();
    if (translator->load(locale, QStringLiteral("carcontrol"), QStringLiteral("_"), translationsPath())) {
        QCoreApplication::installTranslator(translator);
        CAR_LOG("Translation") << "texts in" << loadedLocale;
    }
}
