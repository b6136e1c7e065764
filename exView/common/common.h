#ifndef COMMON_H
#define COMMON_H

// The page toolkit: rows and their models, the row painters and the page
// table view; the row editors and dialogs.
#include "cdbutton.h"
#include "listdata.h"
#include "listdelegate0.h"
#include "listdelegate1.h"
#include "listdelegate2.h"
#include "listdialog.h"
#include "listmodel0.h"
#include "listmodel1.h"
#include "optionsitem.h"
#include "slider.h"
#include "sliderviewimte.h"
#include "tableview.h"

#endif // COMMON_H
