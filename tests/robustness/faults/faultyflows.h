#ifndef XMLHELPER_TESTS_FAULTYFLOWS_H
#define XMLHELPER_TESTS_FAULTYFLOWS_H

#include <vector>

#include "flows.h"

/// Flows that each make one mistake when an allocation fails, as the library must not: they follow the null pointer,
/// free memory twice, do that while an exception goes through the parser, change what comes of the next run, and leave
/// a file that is not the whole one but looks so.
const std::vector<Flow>& faultyFlows();

#endif
