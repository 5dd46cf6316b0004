// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLatin1StringView>

namespace folioforge {

// Namespaces of XMP (ISO 16684-1).
inline constexpr QLatin1StringView kRdf("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
inline constexpr QLatin1StringView kDc("http://purl.org/dc/elements/1.1/");
inline constexpr QLatin1StringView kPdf("http://ns.adobe.com/pdf/1.3/");
inline constexpr QLatin1StringView kXmp("http://ns.adobe.com/xap/1.0/");

} // namespace folioforge
