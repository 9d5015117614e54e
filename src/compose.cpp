#include "compose.h"

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "screens/flow/chain.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

void compose(flow::Chain& chain)
{
    chain.add<frmStart>();
    chain.add<frmT1, frmStart>();
    chain.add<frmT2, frmStart, frmT1>();
    chain.add<frmT4, frmT1, frmT2>();
    chain.add<frmY, frmStart, frmT1>();
    chain.add<frmM1, frmStart, frmT1>();
    chain.add<frmM2, frmStart, frmT1, frmM1>();
    chain.add<frmS1, frmStart, frmT1>();
    chain.add<frmS2, frmStart, frmT1, frmS1>();
    chain.add<frmSummary>();
}
