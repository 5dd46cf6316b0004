// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLatin1StringView>

namespace folioforge {

// Namespaces of XMP (ISO 16684-1).
inline constexpr QLatin1StringView kXml("http://www.w3.org/XML/1998/namespace");
inline constexpr QLatin1StringView kRdf("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
inline constexpr QLatin1StringView kDc("http://purl.org/dc/elements/1.1/");
inline constexpr QLatin1StringView kPdf("http://ns.adobe.com/pdf/1.3/");
inline constexpr QLatin1StringView kXmp("http://ns.adobe.com/xap/1.0/");
inline constexpr QLatin1StringView kPdfA("http://www.aiim.org/pdfa/ns/id/");
inline constexpr QLatin1StringView kPdfUA("http://www.aiim.org/pdfua/ns/id/");

} // namespace folioforge
