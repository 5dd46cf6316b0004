// SPDX-License-Identifier: Apache-2.0

// A filter file of any bytes, XML or binary: every value in its range, or a reason.

#include "FuzzSupport.h"
#include "compress/QuartzFilter.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::fuzz;

FUZZ_TARGET(QuartzFilter) {
    refuseMessages();
    const MemoryFile file(u"qfilter"_s, bytes);
    refuses([&] {
        const QuartzFilter filter = readQuartzFilter(file.path());
        require(filter.resolution > 0 && filter.tolerance >= 1 && filter.smallestImage >= 0);
        require(filter.jpegQuality >= 1 && filter.jpegQuality <= 100);
    });
}
