// The page table's hot paths: the value text of every row, which the model
// makes anew at each paint, and the painting of a full screen of rows.

#include "listdata.h"
#include "listdelegate2.h"
#include "listmodel1.h"
#include "tableview.h"

#include <QHeaderView>
#include <QImage>
#include <QtTest>

namespace {

const int RowCount = 116;
const int RowHeight = 81;

// A long settings page: every kind of row, in turn, most of them adjustable.
QList<ListData> settingsRows()
{
    const QVariantList choices{"OFF", "ON", "Auto"};
    QList<ListData> rows;
    for (int i = 0; i < RowCount; ++i) {
        const int kind = i % 14;
        const QString title = QStringLiteral("Setting %1 with a title long enough to wrap").arg(i);
        QVariantList options;
        QVariant value = i % 3;
        switch (kind) {
        case ChoiceKind:
            options = choices;
            break;
        case TextKind:
            value = QStringLiteral("LFV2A21K6D4%1").arg(i);
            break;
        case TimeOfDayKind:
            options = {390, 30, 0, 11};
            break;
        case NumberKind:
            options = {0, "Left", "Right"};
            value = i - 50;
            break;
        default:
            options = {0, 0, 250};
            value = i * 7;
            break;
        }
        rows << ListData(i, kind, title, value, options, kind != TextKind, i % 2, 0.5);
    }
    return rows;
}

} // namespace

class BenchPageTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        model = new ListModel1(&view);
        model->setListData(settingsRows());
        view.setModel(model);
        view.setItemDelegate(new ListDelegate2(&view));
        view.verticalHeader()->setDefaultSectionSize(RowHeight);
        view.resize(1000, 6 * RowHeight);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
    }

    // What a paint asks of the model for each row on screen, for all rows.
    void valueTexts()
    {
        int characters = 0;
        QBENCHMARK {
            for (int row = 0; row < RowCount; ++row)
                characters += model->index(row, 0).data(DisplayValueRole).toString().size();
        }
        QVERIFY(characters > 0);
    }

    // A car's answer changes one value: the model takes it and the view
    // repaints that row.
    void valueChange()
    {
        int value = 0;
        QBENCHMARK {
            const QModelIndex index = model->index(RowCount / 2, 0);
            model->setData(index, ++value % 3, ValueRole);
        }
        QCOMPARE(model->index(RowCount / 2, 0).data(ValueRole).toInt(), value % 3);
    }

    // A full screen of rows, painted by the row painter.
    void paintScreen()
    {
        QImage image(view.size(), QImage::Format_RGB32);
        QBENCHMARK {
            view.render(&image);
        }
    }

private:
    TableView view;
    ListModel1 *model = nullptr;
};

QTEST_MAIN(BenchPageTable)
#include "bench_pagetable.moc"
