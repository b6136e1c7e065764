#ifndef COLUMNFIT_H
#define COLUMNFIT_H

#include <QObject>

class QTableView;

// Gives the last column of a list the viewport's width as soon as the
// viewport has its size, before the list's first paint. Left to the header's
// stretch, the width arrives a turn of the event loop later, through the
// view's column-resize timer, and repaints the whole list a second time.
class ColumnFit : public QObject
{
    Q_OBJECT
public:
    // Fits view's last column from now on; the fit belongs to the view.
    static void install(QTableView *view);

protected:
    bool eventFilter(QObject *watched, QEvent *event);

private:
    explicit ColumnFit(QTableView *view);

    QTableView *m_view;
};

#endif // COLUMNFIT_H
