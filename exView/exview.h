#ifndef EXVIEW_H
#define EXVIEW_H

#include <QModelIndex>
#include <QVariant>
#include <QWidget>

class BaseBar;
class CarExViewBase;
class ListModel0;
class ListView;
class TirePressure;

// The screen of vehicle information and settings: the list of the
// protocol's page titles and, once a title is chosen, the page stack with
// that page, under a base bar. The screen lives for one visit: leaving it
// deletes it, and the next visit builds it anew for the then selected
// vehicle.
class ExView : public QWidget
{
    Q_OBJECT
public:
    explicit ExView(QWidget *parent = 0);
    ~ExView();

    // Passed on to the page stack, where they make the current page refresh.
    void setData(QVariant const &data);
    void refresh();

public slots:
    // The tyre panel: brought up by a page, and left after its reset.
    void TirePressureSolte();
    void TirePressureChanged();

protected:
    void keyPressEvent(QKeyEvent *event);
    void keyReleaseEvent(QKeyEvent *event);
    void paintEvent(QPaintEvent *event);
    void showEvent(QShowEvent *event);

private slots:
    void BTclicked();
    void onBaseBarClicked(QString id);
    void onCanDataChanged();
    void onItemClicked(QModelIndex index);

private:
    // Takes the tyre panel away and shows what lay under it.
    void closeTirePressure();
    // Ends the visit: the screen deletes itself.
    void leave();

    BaseBar *baseBar;
    CarExViewBase *stack;
    ListView *listView;
    ListModel0 *listModel;
    TirePressure *tirePressure;
    // Compared by BTclicked(); nothing assigns them.
    QObject *backButton;
    QObject *saverButton;
};

#endif // EXVIEW_H
