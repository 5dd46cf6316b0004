// SPDX-License-Identifier: Apache-2.0

// Any command line, its arguments one a line: settings that are whole, or a sentence.

#include "FuzzSupport.h"
#include "cli/Arguments.h"
#include "text/PageSetup.h"

using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

void requireInOrder(const Arguments &arguments) {
    require(arguments.request != Request::Convert || !arguments.inputs.empty() ||
            !arguments.nameLists.empty());
    const ConversionOptions &options = arguments.options;
    require(!options.outputFolder.isNull() && !options.outputName.contains(u'/'));
    require(options.compressIndex >= 0 && options.compressIndex <= 3);
    require(!options.security.useUserPassword && !options.security.useOwnerPassword);
    const QSizeF page = getTextPageSize(options.textPage);
    require(checkTextPageSizeSettings(options.textPage) || !page.isEmpty());
    require(checkImagePageSizeSettings(options.imagePage) ||
            options.imagePage.sizeMode == ImagePageFollowsImage ||
            !getImagePageSize(options.imagePage).isEmpty());
}

} // namespace

FUZZ_TARGET(Arguments) {
    refuseMessages();
    const QList<QByteArray> lines = InputReader(bytes).rest().split('\n');
    const auto parsed = parseArguments(lines);
    if (const auto *arguments = std::get_if<Arguments>(&parsed)) {
        requireInOrder(*arguments);
    } else {
        require(!std::get<UsageError>(parsed).message.isEmpty());
    }
}
