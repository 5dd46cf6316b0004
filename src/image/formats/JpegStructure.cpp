// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegStructure.h"

#include "error/Error.h"
#include "image/formats/JpegCheck.h"

namespace folioforge {

namespace {

/// Photos are large and mostly whole, and a cut one lacks its end: reading all bytes once more
/// would take a third of the time in which they are written.
bool isWorthWalking(const FileView &file) {
    constexpr qint64 kLarge = 1 << 20;
    return file.size() <= kLarge || file.read(file.size() - 2, 2) != "\xFF\xD9";
}

/// Walks to the marker that ends the file. Where that is known to stand at `thriftyEnd`, an only
/// scan is not passed; 0 where it is not known.
void passAll(const FileView &file, JpegSegments &segments, qint64 thriftyEnd,
             JpegStructure &structure) {
    JpegCheck check(thriftyEnd > 0);
    // A file may be taken for a JPEG by its name alone.
    if (file.read(0, 2) != "\xFF\xD8") {
        return;
    }
    while (auto segment = segments.next()) {
        if (segment->marker == Eoi) {
            structure.isWhole = check.isComplete();
            structure.isDoubtful = check.isDoubtful();
            return;
        }
        if (segment->marker == Sos) {
            if (thriftyEnd > 0 && check.isOnlyScan(*segment)) {
                segments.probeCodedData(*segment, thriftyEnd, check.hasRestarts());
                structure.isWhole = check.accept(*segment);
                structure.isDoubtful = check.isDoubtful();
                return;
            }
            segments.passCodedData(*segment);
        }
        if (!check.accept(*segment)) {
            return;
        }
        if (isJpegMetadata(*segment)) {
            structure.metadata.push_back({segment->at, segment->end - segment->at});
        }
    }
    structure.lacksEnd = check.isComplete();
}

} // namespace

JpegStructure readJpegStructure(const FileView &file, JpegSegments &segments, JpegWalk walk) {
    JpegStructure structure;
    segments.restart();
    try {
        const bool isThrifty = walk == JpegWalk::Thrifty && !isWorthWalking(file);
        passAll(file, segments, isThrifty ? file.size() - 2 : 0, structure);
    } catch (const Error &) {
        // A segment is too short: the file is not whole.
    }
    structure.strays = segments.strays();
    if (walk == JpegWalk::Whole && segments.position() < file.size()) {
        structure.metadata.push_back({segments.position(), file.size() - segments.position()});
    }
    return structure;
}

} // namespace folioforge
