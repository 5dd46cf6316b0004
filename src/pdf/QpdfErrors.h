// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"
#include "error/Reasons.h"
#include "files/SourceReader.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>

#include <QString>

#include <stdexcept>
#include <vector>

namespace folioforge {

/// What is wrong, such as "an object is not well formed (object 7)": a part of a sentence.
QString inWords(const QPDFExc &error);

/// Whether `fault` tells of a lack of memory: libqpdf wraps it, and what zlib says, into the words
/// of a damaged file.
bool isLackOfMemory(const std::exception &fault);

/// Runs `work` and turns what libqpdf throws into Error. No other place handles its exceptions.
template<typename Work> auto translateQpdfErrors(Work &&work) -> decltype(work()) {
    try {
        return work();
    } catch (const Error &) {
        throw;
    } catch (const QPDFExc &error) {
        throw isLackOfMemory(error)
            ? notEnoughMemory()
            : Error(Reasons::tr("The document is damaged: %1").arg(inWords(error)));
    } catch (const std::exception &fault) {
        throw isLackOfMemory(fault) ? notEnoughMemory()
                                    : Error(Reasons::tr("The document is damaged"));
    }
}

/// The bytes of a stream as its /Length says; 0 when that is no number.
inline qsizetype statedLength(QPDFObjectHandle length) {
    return length.isInteger() ? length.getIntValue() : 0;
}

/// Makes `document` one without pages, and silent.
void makeEmpty(QPDF &document);

/// What libqpdf has noticed in the document so far.
std::vector<QPDFExc> faultsOf(QPDF &document);

/// Whether `warning` tells of a fault rather than of what libqpdf does about the one before.
bool isFault(const QPDFExc &warning);

/// Throws std::bad_alloc where a warning of the document tells of a lack of memory.
void requireMemory(QPDF &document);

/// Throws when a read has failed or a warning of the document tells of a lack of memory.
void requireAllObjects(QPDF &document, const SourceReader &reader);

/// Runs `work` over `document`, which is read through `reader`. When memory is short or the file
/// cannot be read, the library only warns and puts null in an object's place. The result is then
/// not the document, and this throws.
template<typename Work>
auto withAllObjects(QPDF &document, const SourceReader &reader, Work &&work) -> decltype(work()) {
    // The result may own the document, so that what throws behind it must not look again.
    auto result = [&] {
        try {
            return work();
        } catch (const std::exception &fault) {
            if (isLackOfMemory(fault)) {
                throw std::bad_alloc();
            }
            requireAllObjects(document, reader);
            throw;
        }
    }();
    requireAllObjects(document, reader);
    return result;
}

} // namespace folioforge
