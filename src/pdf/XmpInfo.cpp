// SPDX-License-Identifier: Apache-2.0

#include "pdf/XmpInfo.h"

#include "image/XmpNames.h"
#include "image/XmpProperties.h"
#include "pdf/DocumentInfo.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {

bool isOfInfo(QStringView space, QStringView name) {
    static constexpr std::array<std::pair<QLatin1StringView, QLatin1StringView>, 10> kProperties{
        {{kDc, "title"_L1},
         {kDc, "creator"_L1},
         {kDc, "description"_L1},
         {kDc, "subject"_L1},
         {kPdf, "Keywords"_L1},
         {kPdf, "Producer"_L1},
         {kXmp, "CreatorTool"_L1},
         {kXmp, "CreateDate"_L1},
         {kXmp, "ModifyDate"_L1},
         {kXmp, "MetadataDate"_L1}}};
    return std::ranges::any_of(kProperties, [&](const auto &property) {
        return space == property.first && name == property.second;
    });
}

DocumentInfo infoInXmp(const QString &packet) {
    DocumentInfo info;
    info.creator = QString();
    forEachXmpProperty(packet, [&](QStringView space, QStringView name, const QStringList &texts) {
        if (space == kDc && name == "title"_L1) {
            info.title = texts.first();
        } else if (space == kDc && name == "creator"_L1) {
            info.author = texts.join(u", ");
        } else if (space == kDc && name == "description"_L1) {
            info.subject = texts.first();
        } else if (space == kPdf && name == "Keywords"_L1) {
            info.keywords = texts.first();
        } else if (space == kXmp && name == "CreatorTool"_L1) {
            info.creator = texts.first();
        }
    });
    return info;
}

} // namespace folioforge
