// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/PdfImage.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace folioforge {

/// Marker codes (ITU-T T.81, table B.1).
enum JpegMarker : uchar {
    Tem = 0x01,
    Sof0 = 0xC0,
    Sof2 = 0xC2,
    Dht = 0xC4,
    JpgReserved = 0xC8,
    Sof9 = 0xC9,
    Sof10 = 0xCA,
    Dac = 0xCC,
    Sof15 = 0xCF,
    Rst0 = 0xD0,
    Rst7 = 0xD7,
    Soi = 0xD8,
    Eoi = 0xD9,
    Sos = 0xDA,
    Dqt = 0xDB,
    Dri = 0xDD,
    App0 = 0xE0,
    App1 = 0xE1,
    App2 = 0xE2,
    App14 = 0xEE,
    App15 = 0xEF,
    Com = 0xFE,
};

/// A marker with what belongs to it.
struct JpegSegment {
    uchar marker = 0;
    qint64 at = 0;          ///< Where its 0xFF stands.
    qint64 end = 0;         ///< The byte after it, for a scan after its coded data.
    QByteArrayView content; ///< Behind the length; valid until the next segment is read.
    qint64 codedBytes = 0;  ///< Of a scan.
    int restarts = 0;       ///< Restart markers of a scan.
    bool restartsInOrder = true;
    int lastRestart = -1;  ///< The number of the last one, from 0 to 7; -1 where it is not known.
    bool hasZeros = false; ///< A stretch of its coded data is nothing but zeros.
};

/// Walks through the markers of a JPEG file. Bytes between segments that belong to none are passed
/// over, as decoders do.
class JpegSegments {
  public:
    explicit JpegSegments(const FileView &file)
        : m_file(file) {}

    /// Begins with the first segment again; what was read last is not read anew.
    void restart();
    /// The next segment up to the end of its header; nothing where the file ends within or before
    /// it.
    std::optional<JpegSegment> next();
    /// Walks on over the coded data of `scan`, which next() has just given, and tells it of them.
    void passCodedData(JpegSegment &scan);
    /// Looks at the coded data of `scan`, which end before `end`, here and there instead.
    void probeCodedData(JpegSegment &scan, qint64 end, bool hasRestarts);
    /// Where the next segment is looked for.
    [[nodiscard]] qint64 position() const { return m_at; }
    /// What was passed over between the segments so far.
    [[nodiscard]] const std::vector<FileSlice> &strays() const { return m_strays; }

  private:
    QByteArrayView bytes(qint64 at, qint64 length);
    bool findMarker();

    static constexpr qint64 kFirst = 2; ///< Behind the marker that begins the file.

    const FileView &m_file;
    qint64 m_at = kFirst;
    qint64 m_start = 0;
    QByteArray m_window; ///< Many small segments take one read.
    std::vector<FileSlice> m_strays;
};

/// A component of a frame.
struct JpegComponent {
    uchar id = 0;
    int horizontalSampling = 1;
    int verticalSampling = 1;
    int quantization = 0; ///< The number of its table.
};

/// A frame header (ITU-T T.81, B.2.2).
struct JpegFrame {
    uchar process = 0; ///< Its marker; 0 before one is read.
    int precision = 0; ///< Bits per sample.
    int width = 0;
    int height = 0;
    std::vector<JpegComponent> components;
};

/// Whether the components are named R, G and B.
bool isNamedRgb(const JpegFrame &frame);
/// Whether the marker begins a frame header.
bool isFrameHeader(uchar marker);
/// Whether no decoder needs the segment to show the picture: Exif, XMP, comments, thumbnails.
bool isJpegMetadata(const JpegSegment &segment);
/// The frame header of this segment. Throws Error where it is too short.
JpegFrame readJpegFrame(const JpegSegment &segment);

} // namespace folioforge
