// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace folioforge {

struct Claims;
struct DocumentInfo;

/// A well-formed packet brought into line: it says of title, author, subject, keywords, programs
/// and dates what `info` says, with its creation date valid, and claims what `claims` says. All
/// else stays.
QByteArray rewrittenXmp(const QString &packet, const DocumentInfo &info, const Claims &claims);

/// A packet without any property, for a document that has none.
QString emptyXmp();

} // namespace folioforge
