// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDF.hh>

#include <QString>

#include <memory>

namespace folioforge::test {

/// A document read back with the PDF library alone.
inline std::unique_ptr<QPDF> opened(const QString &path) {
    auto document = std::make_unique<QPDF>();
    document->processFile(path.toLocal8Bit().constData());
    return document;
}

} // namespace folioforge::test
