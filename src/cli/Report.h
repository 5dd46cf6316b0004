// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/Run.h"
#include "image/PdfImage.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace folioforge {

/// How one input went.
struct InputResult {
    enum class State {
        Finished, ///< Its pages stand in `output`.
        Failed,   ///< It was accepted, but its pages or its PDF could not be written.
        Rejected  ///< It did not enter the list.
    };
    QString input;
    QString output; ///< Path of its PDF; empty where there is none.
    int pages = 0;
    State state = State::Finished;
    QString message; ///< The reason of a failure, or a warning.
    std::optional<EmbeddedAs> embedded;
    std::optional<CompressionOutcome> compression; ///< What the compression pass did to its PDF.

    /// The result of an input that did not enter the list for `reason`.
    static InputResult rejected(const QString &input, const QString &reason);
    /// The result of `input`, the entry at `index` of the PDF that `result` is about.
    static InputResult of(const QString &input, const RunResult &result, std::size_t index);
};

/// The result as one JSON object on one line, without a line ending.
QByteArray toJson(const InputResult &result);

/// What a compression pass saved, in words: bytes, images reduced, images left and why.
QString toWords(const CompressionOutcome &compression);

/// The message on standard error for a failure or a warning; empty when there is nothing to say.
QString toMessage(const InputResult &result);

} // namespace folioforge
