#pragma once

#include "error/Error.h"

#include <qpdf/QPDFExc.hh>

#include <stdexcept>

namespace folioforge {

/// Runs `work`; what libqpdf throws comes out as Error: the one place where its exceptions end.
template<typename Work> auto atQpdfBorder(Work &&work) -> decltype(work()) {
    try {
        return work();
    } catch (const Error &) {
        throw;
    } catch (const QPDFExc &error) {
        throw Error(QString::fromStdString(error.getMessageDetail()));
    } catch (const std::bad_alloc &) {
        throw Error(QStringLiteral("There is not enough memory"));
    } catch (const std::exception &error) {
        throw Error(QString::fromUtf8(error.what()));
    }
}

} // namespace folioforge
