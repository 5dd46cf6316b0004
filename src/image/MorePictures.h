// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Reasons.h"
#include "error/Warning.h"

namespace folioforge {

/// What is said of further pictures of a kind.
struct FurtherPictures {
    const char *one;     ///< Of one.
    const char *several; ///< Of %n.
};
inline constexpr FurtherPictures kFurtherPages{
    QT_TRANSLATE_NOOP("Reasons", "1 further page is left out"),
    QT_TRANSLATE_N_NOOP("Reasons", "%n further pages are left out")};
inline constexpr FurtherPictures kFurtherFrames{
    QT_TRANSLATE_NOOP("Reasons", "1 further frame is left out"),
    QT_TRANSLATE_N_NOOP("Reasons", "%n further frames are left out")};
inline constexpr FurtherPictures kFurtherParts{
    QT_TRANSLATE_NOOP("Reasons", "1 further part is left out"),
    QT_TRANSLATE_N_NOOP("Reasons", "%n further parts are left out")};
inline constexpr FurtherPictures kFurtherPictures{
    QT_TRANSLATE_NOOP("Reasons", "1 further picture is left out"),
    QT_TRANSLATE_N_NOOP("Reasons", "%n further pictures are left out")};

/// Adds that `count` more of a kind stand in the file beside the one that was taken; nothing where
/// there are none.
inline void addMorePictures(Warnings &warnings, qint64 count, const FurtherPictures &words) {
    if (count > 0) {
        warnings.push_back({WarningCode::MorePictures,
                            count == 1
                                ? Reasons::tr(words.one)
                                : Reasons::tr(words.several, nullptr, static_cast<int>(count))});
    }
}

} // namespace folioforge
