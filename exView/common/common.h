#ifndef COMMON_H
#define COMMON_H

// The page toolkit: rows and their models, the row painters and the page
// table view; the row editors and dialogs; the key-driven settings page.
#include "cdbutton.h"
#include "listdata.h"
#include "listdelegate0.h"
#include "listdelegate1.h"
#include "listdelegate2.h"
#include "listdialog.h"
#include "listmodel0.h"
#include "listmodel1.h"
#include "onoffbutton.h"
#include "optionsitem.h"
#include "setitem.h"
#include "setitembase.h"
#include "setitemsview.h"
#include "setonoffview.h"
#include "setpagewidget.h"
#include "setsliderview.h"
#include "slider.h"
#include "sliderviewimte.h"
#include "tableview.h"
#include "toolbutton.h"

#endif // COMMON_H
