#include "catalogue.h"

#include "protocol28/carexview28.h"
#include "protocol29/carexview29.h"
#include "protocol30/carexview30.h"
#include "protocol31/carexview31.h"
#include "protocol32/carexview32.h"
#include "protocol33/carexview33.h"
#include "protocol34/carexview34.h"
#include "protocol35/carexview35.h"
#include "protocol36/carexview36.h"
#include "protocol37/carexview37.h"
#include "protocol40/carexview40.h"
#include "protocol42/carexview42.h"
#include "protocol43/carexview43.h"
#include "protocol45/carexview45.h"
#include "protocol48/carexview48.h"
#include "protocol49/carexview49.h"
#include "protocol56/carexview56.h"
#include "protocol60/carexview60.h"
#include "protocol64/carexview64.h"
#include "protocol65/carexview65.h"
#include "protocol66/carexview66.h"
#include "protocol67/carexview67.h"
#include "protocol68/carexview68.h"
#include "protocol69/carexview69.h"
#include "protocol70/carexview70.h"
#include "protocol71/carexview71.h"
#include "protocol72/carexview72.h"
#include "protocol74/carexview74.h"
#include "protocol78/carexview78.h"
#include "protocol79/carexview79.h"
#include "protocol80/carexview80.h"
#include "protocol81/carexview81.h"
#include "protocol82/carexview82.h"
#include "protocol84/carexview84.h"
#include "protocol86/carexview86.h"
#include "protocol87/carexview87.h"
#include "protocol88/carexview88.h"
#include "protocol93/carexview93.h"
#include "protocol94/carexview94.h"
#include "protocol96/carexview96.h"
#include "protocol97/carexview97.h"
#include "protocol98/carexview98.h"
#include "protocol99/carexview99.h"
#include "protocol102/carexview102.h"
#include "protocol103/carexview103.h"
#include "protocol105/carexview105.h"
#include "protocol122/carexview122.h"
#include "protocol123/carexview123.h"
#include "protocol124/carexview124.h"

namespace {

typedef CarExViewBase *(*StackFactory)(QWidget *parent);

template <class Stack>
CarExViewBase *makeStack(QWidget *parent)
{
    return new Stack(parent);
}

// The page stack of each family, by the family's number.
struct FamilyStack
{
    int family;
    StackFactory create;
};

const FamilyStack familyStacks[] = {
    {28, makeStack<CarExView28>},
    {29, makeStack<CarExView29>},
    {30, makeStack<CarExView30>},
    {31, makeStack<CarExView31>},
    {32, makeStack<CarExView32>},
    {33, makeStack<CarExView33>},
    {34, makeStack<CarExView34>},
    {35, makeStack<CarExView35>},
    {36, makeStack<CarExView36>},
    {37, makeStack<CarExView37>},
    {40, makeStack<CarExView40>},
    {42, makeStack<CarExView42>},
    {43, makeStack<CarExView43>},
    {45, makeStack<CarExView45>},
    {48, makeStack<CarExView48>},
    {49, makeStack<CarExView49>},
    {56, makeStack<CarExView56>},
    {60, makeStack<CarExView60>},
    {64, makeStack<CarExView64>},
    {65, makeStack<CarExView65>},
    {66, makeStack<CarExView66>},
    {67, makeStack<CarExView67>},
    {68, makeStack<CarExView68>},
    {69, makeStack<CarExView69>},
    {70, makeStack<CarExView70>},
    {71, makeStack<CarExView71>},
    {72, makeStack<CarExView72>},
    {74, makeStack<CarExView74>},
    {78, makeStack<CarExView78>},
    {79, makeStack<CarExView79>},
    {80, makeStack<CarExView80>},
    {81, makeStack<CarExView81>},
    {82, makeStack<CarExView82>},
    {84, makeStack<CarExView84>},
    {86, makeStack<CarExView86>},
    {87, makeStack<CarExView87>},
    {88, makeStack<CarExView88>},
    {93, makeStack<CarExView93>},
    {94, makeStack<CarExView94>},
    {96, makeStack<CarExView96>},
    {97, makeStack<CarExView97>},
    {98, makeStack<CarExView98>},
    {99, makeStack<CarExView99>},
    {102, makeStack<CarExView102>},
    {103, makeStack<CarExView103>},
    {105, makeStack<CarExView105>},
    {122, makeStack<CarExView122>},
    {123, makeStack<CarExView123>},
    {124, makeStack<CarExView124>},
};

} // namespace

CarExViewBase *createPageStack(int protocolId, QWidget *parent)
{
    const int family = Catalogue::familyOf(protocolId);
    for (FamilyStack const &stack : familyStacks) {
        if (stack.family == family)
            return stack.create(parent);
    }
    return 0;
}
