#ifndef CARINFOITEM28_2_H
#define CARINFOITEM28_2_H

#include "rowpage.h"

class CarInfoItem28_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_2(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();

public slots:
    // Part of the page's interface; nothing reaches them.
    void onLeftBtClicked(QModelIndex index);
    void onRightBtClicked(QModelIndex index);

protected:
    QList<Row> rowTable() const;
};

#endif // CARINFOITEM28_2_H
