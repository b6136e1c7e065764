#ifndef CARDOORDIALOGBASE_H
#define CARDOORDIALOGBASE_H

#include "carbodydata.h"
#include "cardoordata.h"
#include "dialogbase.h"

// What any door and body overlay needs: the last door record.
class CardoorDialogBase : public DialogBase
{
    Q_OBJECT
public:
    explicit CardoorDialogBase(QWidget *parent = 0);

    // The drive side; stored only.
    virtual void setRightDriver(bool right);
    // Keeps a copy of the record.
    virtual void setData(CardoorData const &door);
    // Does nothing here; an overlay that shows body warnings takes them.
    virtual void setCarbodyData(CarbodyData const &body);

    CardoorData const &getData() const;

protected:
    bool rightDriver;
    CardoorData cardoorData;
};

#endif // CARDOORDIALOGBASE_H
