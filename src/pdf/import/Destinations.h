// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <optional>
#include <string>

class QPDF;

namespace folioforge {

/// The named destinations of a source document (ISO 32000-1, 12.3.2.3), read at first use.
class Destinations {
  public:
    explicit Destinations(QPDF &source);

    /// The explicit destination, an array, of `destination`: a name, a string, a dictionary with /D
    /// or the array itself. Null when there is none.
    QPDFObjectHandle resolve(const QPDFObjectHandle &destination);

  private:
    QPDFObjectHandle find(const std::string &name);
    void readNames();

    QPDF &m_source;
    std::optional<std::map<std::string, QPDFObjectHandle>> m_names;
};

} // namespace folioforge
