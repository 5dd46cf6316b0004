// A filter file of any bytes, XML or binary: every value in its range, or a reason.

#include "FuzzSupport.h"
#include "compress/QuartzFilter.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::fuzz;

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    refuseMessages();
    const MemoryFile file(u"qfilter"_s, {data, size});
    refuses([&] {
        const QuartzFilter filter = readQuartzFilter(file.path());
        require(filter.resolution > 0 && filter.tolerance >= 1 && filter.smallestImage >= 0);
        require(filter.jpegQuality >= 1 && filter.jpegQuality <= 100);
    });
    return 0;
}
