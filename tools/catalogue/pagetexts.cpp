#include "pagetexts.h"

#include "carexviewbase.h"
#include "carinfoitem.h"
#include "catalogue.h"
#include "hostsim.h"
#include "row.h"
#include "rowpage.h"

#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QTranslator>

#include <algorithm>
#include <cstring>
#include <memory>

namespace PageTexts {

namespace {

typedef QMap<QByteArray, QSet<QByteArray>> Texts;

// Notes every text that the running code asks it to translate, and leaves
// it untranslated.
class Recorder : public QTranslator
{
public:
    explicit Recorder(Texts *texts) : m_texts(texts) {}

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override
    {
        Q_UNUSED(disambiguation)
        Q_UNUSED(n)
        // Qt's own classes translate in their own names.
        if (context && sourceText && *sourceText && context[0] != 'Q')
            (*m_texts)[context].insert(sourceText);
        return QString();
    }

private:
    Texts *m_texts;
};

void noteTable(Texts *texts, RowPage const *page)
{
    const QByteArray context = page->metaObject()->className();
    const QList<Row> table = page->currentRowTable();
    for (Row const &row : table) {
        if (row.title() && *row.title())
            (*texts)[context].insert(row.title());
        for (QVariant const &option : row.options()) {
            if (option.type() == QVariant::String && !option.toString().isEmpty())
                (*texts)[context].insert(option.toString().toUtf8());
        }
    }
}

// A text as a C++ string literal: the bytes of its UTF-8 as they are, but
// for the characters that a literal must escape.
QByteArray literal(QByteArray const &text)
{
    QByteArray out = "\"";
    for (char c : text) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\t': out += "\\t"; break;
        default: out += c;
        }
    }
    return out + '"';
}

} // namespace

QByteArray source()
{
    Texts texts;
    Recorder recorder(&texts);
    QCoreApplication::installTranslator(&recorder);
    const QList<int> ids = Catalogue::protocolIds();
    for (int id : ids) {
        HostSim::reset();
        HostSim::setProtocolId(id);
        std::unique_ptr<CarExViewBase> stack(createPageStack(id, nullptr));
        if (!stack)
            continue;
        for (int i = 0; i < stack->count(); ++i) {
            CarInfoItem *page = qobject_cast<CarInfoItem *>(stack->widget(i));
            if (!page)
                continue;
            page->createView();
            RowPage const *rowPage = qobject_cast<RowPage *>(page);
            if (!rowPage)
                continue;
            DataBuffer buffer = HostSim::buffer(rowPage->dataBufferId());
            for (int fill = 0; fill < 256; ++fill) {
                std::memset(buffer.data(), fill, size_t(HostSim::bufferSize()));
                noteTable(&texts, rowPage);
            }
        }
    }
    HostSim::reset();
    QCoreApplication::removeTranslator(&recorder);

    QByteArray out = "// The texts that the pages translate while they run, in their contexts,\n"
                     "// for lupdate. Written by carcontrol-catalogue; not compiled.\n\n";
    for (auto it = texts.constBegin(); it != texts.constEnd(); ++it) {
        QList<QByteArray> sorted = it.value().values();
        std::sort(sorted.begin(), sorted.end());
        for (QByteArray const &text : sorted)
            out += "QT_TRANSLATE_NOOP(" + literal(it.key()) + ", " + literal(text) + ");\n";
    }
    return out;
}

} // namespace PageTexts
