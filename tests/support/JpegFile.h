// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QSize>

#include <cstdio>
#include <functional>
#include <vector>

#include <jpeglib.h>

namespace folioforge::test {

/// A JPEG file of `size` pixels. Its rows are in `space`, of `components` samples a pixel, which
/// `appendRow` gives for each row from the top; `configure` sets all else, over libjpeg's defaults.
QByteArray jpegFile(QSize size, int components, J_COLOR_SPACE space,
                    const std::function<void(jpeg_compress_struct &)> &configure,
                    const std::function<void(int y, std::vector<JSAMPLE> &row)> &appendRow);

} // namespace folioforge::test
