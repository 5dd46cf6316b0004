#pragma once

#include "error/Error.h"
#include "files/SourceReader.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>

#include <QByteArray>

#include <algorithm>
#include <stdexcept>

namespace folioforge {

/// Runs `work`; what libqpdf throws comes out as Error: the one place where its exceptions end.
template<typename Work> auto translateQpdfErrors(Work &&work) -> decltype(work()) {
    try {
        return work();
    } catch (const Error &) {
        throw;
    } catch (const QPDFExc &error) {
        throw Error(QString::fromStdString(error.getMessageDetail()));
    } catch (const std::bad_alloc &) {
        throw notEnoughMemory();
    } catch (const std::exception &error) {
        throw Error(QString::fromUtf8(error.what()));
    }
}

/// Throws std::bad_alloc where there is no memory for the library to write a stream of `bytes`. It
/// takes a copy of its growing buffer at the stream's end, in a destructor: to run out of memory
/// there ends the program.
inline void requireRoomForStream(qsizetype bytes) {
    // The buffer, up to twice as long as the stream, with what it grew from or with the copy; and
    // what stands between blocks, which are kept up to some size, and a piece of the source.
    constexpr qsizetype kCopies = 3;
    constexpr qsizetype kMaxBetween = 32 << 20;
    constexpr qsizetype kRest = 1 << 20;
    const qsizetype between = std::min(2 * bytes, kMaxBetween);
    static_cast<void>(QByteArray(kCopies * bytes + between + kRest, Qt::Uninitialized));
}

/// The bytes of a stream by the value of its /Length; 0 where that is no number.
inline qsizetype statedLength(QPDFObjectHandle length) {
    return length.isInteger() ? length.getIntValue() : 0;
}

/// Throws where a read failed or the document's warnings tell of a lack of memory.
inline void requireAllObjects(QPDF &document, const SourceReader &reader) {
    reader.requireNoFailure();
    for (const QPDFExc &warning : document.getWarnings()) {
        if (warning.getMessageDetail().find(std::bad_alloc().what()) != std::string::npos) {
            throw std::bad_alloc();
        }
    }
}

/// Runs `work` over `document`, which is read through `reader`. Where memory is short or the file
/// cannot be read, the library only warns and goes on with null in an object's place: whatever
/// comes of that is not the document.
template<typename Work>
auto withAllObjects(QPDF &document, const SourceReader &reader, Work &&work) -> decltype(work()) {
    try {
        auto result = work();
        requireAllObjects(document, reader);
        return result;
    } catch (const std::exception &) {
        requireAllObjects(document, reader);
        throw;
    }
}

} // namespace folioforge
