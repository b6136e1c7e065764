#ifndef PAGES67_H
#define PAGES67_H

#include "rowpage.h"

// The pages of the family of protocol 67, in the order of the stack.

class CarInfoItem67_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

// The pages of the family's own, each in its files.
#include "carinfoitem67_4.h"
#include "carinfoitem67_5.h"
#include "carinfoitem67_6.h"
#include "carinfoitem67_7.h"
#include "carinfoitem67_8.h"
#include "carinfoitem67_9.h"
#include "carinfoitem67_10.h"
#include "carinfoitem67_11.h"
#include "carinfoitem67_12.h"
#include "carinfoitem67_13.h"

#endif // PAGES67_H
