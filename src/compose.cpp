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
    chain.add<frmStart>([](flow::Chain& c) { return std::make_unique<frmStart>(c); });
    chain.add<frmT1>([](flow::Chain& c) { return std::make_unique<frmT1>(c, c.get<frmStart>()); });
    chain.add<frmT2>([](flow::Chain& c) { return std::make_unique<frmT2>(c, c.get<frmStart>(), c.get<frmT1>()); });
    chain.add<frmT4>([](flow::Chain& c) { return std::make_unique<frmT4>(c, c.get<frmT1>(), c.get<frmT2>()); });
    chain.add<frmY>([](flow::Chain& c) { return std::make_unique<frmY>(c, c.get<frmStart>(), c.get<frmT1>()); });
    chain.add<frmM1>([](flow::Chain& c) { return std::make_unique<frmM1>(c, c.get<frmStart>(), c.get<frmT1>()); });
    chain.add<frmM2>(
        [](flow::Chain& c) { return std::make_unique<frmM2>(c, c.get<frmStart>(), c.get<frmT1>(), c.get<frmM1>()); });
    chain.add<frmS1>([](flow::Chain& c) { return std::make_unique<frmS1>(c, c.get<frmStart>(), c.get<frmT1>()); });
    chain.add<frmS2>(
        [](flow::Chain& c) { return std::make_unique<frmS2>(c, c.get<frmStart>(), c.get<frmT1>(), c.get<frmS1>()); });
    chain.add<frmSummary>([](flow::Chain& c) { return std::make_unique<frmSummary>(c); });
}
