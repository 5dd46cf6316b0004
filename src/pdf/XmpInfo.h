// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringView>

namespace folioforge {

struct DocumentInfo;

/// Whether the document information says what this property of a packet says.
bool isOfInfo(QStringView space, QStringView name);

/// Title, author, subject, keywords and creator by an XMP packet; null where it does not say. Of a
/// title in several languages it is the one for all of them; several authors stand behind each
/// other. Of a damaged packet it is what stands before the damage.
DocumentInfo infoInXmp(const QString &packet);

} // namespace folioforge
