// Writes the catalogue of vehicles as data and as a readable reference:
//
//     carcontrol-catalogue OUTPUT.json OUTPUT.md [TEXTS.cpp]
//
// and prints how many adjustable rows the simulator's decoder box answers.
// TEXTS.cpp, when given, receives the texts that the pages translate while
// they run, for lupdate (see pagetexts.h).

#include "catalogueexport.h"
#include "pagetexts.h"

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

bool save(QString const &path, QByteArray const &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        std::fprintf(stderr, "carcontrol-catalogue: can't write %s: %s\n", qPrintable(path),
                     qPrintable(file.errorString()));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    // The pages are built as widgets, never shown; a build machine may have
    // no runtime directory, and a private one keeps Qt from warning.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir runtime;
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3 && args.size() != 4) {
        std::fprintf(stderr, "usage: carcontrol-catalogue OUTPUT.json OUTPUT.md [TEXTS.cpp]\n");
        return 2;
    }
    // The pages' debug lines would drown the figures.
    qInstallMessageHandler([](QtMsgType type, QMessageLogContext const &, QString const &message) {
        if (type != QtDebugMsg && type != QtInfoMsg)
            std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    const QJsonObject catalogue = CatalogueExport::exportCatalogue();
    if (!save(args.at(1), QJsonDocument(catalogue).toJson(QJsonDocument::Compact))
        || !save(args.at(2), CatalogueExport::reference(catalogue).toUtf8())
        || (args.size() == 4 && !save(args.at(3), PageTexts::source())))
        return 1;
    std::printf("Catalogue: %d families; the decoder box answers %d of %d adjustable rows.\n",
                catalogue.value("families").toArray().size(), catalogue.value("answered").toInt(),
                catalogue.value("adjustable").toInt());
    return 0;
}
