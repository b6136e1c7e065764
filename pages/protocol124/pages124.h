#ifndef PAGES124_H
#define PAGES124_H

#include "carinfoitem124_3.h"
#include "rowpage.h"

// The pages of the family of protocol 124, in the order of the stack.

// The car's basic state and the decoder box's audio source; nothing to set.
class CarInfoItem124_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem124_1(QString const &title, QWidget *parent) : RowPage(title, parent) {}

protected:
    QList<Row> rowTable() const;
};

// The car's settings. A step tells the car and the row waits for its answer.
class CarInfoItem124_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem124_2(QString const &title, QWidget *parent) : RowPage(title, parent) {}

protected:
    QList<Row> rowTable() const;
};

#endif // PAGES124_H
