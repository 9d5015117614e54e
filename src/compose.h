#pragma once

namespace flow {
class Chain;
}

/// The screens of Crewmark in their order, the first one being where the user starts.
void compose(flow::Chain& chain);
