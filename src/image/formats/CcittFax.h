// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace folioforge {

/// One-bit rows (each padded to whole bytes) as CCITT group 4 data (ITU-T T.6), 1 bits being the
/// black runs: the PDF's CCITTFaxDecode with K -1 and BlackIs1 true reads the same bits back.
/// Empty where the encoder fails.
QByteArray encodeGroup4(const QByteArray &rows, int width, int height);

/// The rows that encodeGroup4() gave `data` for. Throws Error where it did not.
QByteArray decodeGroup4(const QByteArray &data, int width, int height);

} // namespace folioforge
