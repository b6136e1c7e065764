#ifndef PAGES42_H
#define PAGES42_H

#include "rowpage.h"

// The pages of the family of protocol 42, in the order of the stack.

// The tyre page: its reset row opens the tyre panel.
class CarInfoItem42_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;

signals:
    void TirePressure();

protected:
    void middlePressed(int row);
};

#endif // PAGES42_H
