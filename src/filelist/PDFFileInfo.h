// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "filelist/FileKind.h"
#include "filelist/TextSource.h"
#include "image/ImageHeader.h"
#include "pdf/PageChoice.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace folioforge {

/// States of an entry; the numbers are the state codes.
enum EntryState { Waiting = 1, Converting = 2, FinishedAsLink = 3, Finished = 4, Failed = 5 };

/// File metadata keys that an entry answers although they are no fields of its own.
inline constexpr QLatin1StringView kMDItemFSName{"kMDItemFSName"};
inline constexpr QLatin1StringView kMDItemFSSize{"kMDItemFSSize"};
inline constexpr QLatin1StringView kMDItemFSCreationDate{"kMDItemFSCreationDate"};
inline constexpr QLatin1StringView kMDItemFSContentChangeDate{"kMDItemFSContentChangeDate"};

/// A text with the look in which the list shows it.
struct RichText {
    QString text;
    bool underlined = false;
    std::optional<Qt::GlobalColor> color; ///< Nothing for the default text colour.

    bool operator==(const RichText &) const = default;
};

/// A source image known by its header; its pixels are decoded only when its page is written.
struct SourceImage {
    QString path;
    ImageHeader header;

    [[nodiscard]] QSizeF sizeInPoints() const { return header.sizeInPoints(); }
};

/// When the contents of a file are read: when it is listed, so that texts are held and the pages of
/// PDFs counted, or each time its pages are written.
enum class SourceReading { WhenListed, WhenWritten };

/// One row of the file list: an input file, what the list shows of it and where its output went.
class PDFFileInfo {
  public:
    PDFFileInfo() = default;
    explicit PDFFileInfo(const QString &path, SourceReading reading = SourceReading::WhenListed,
                         FurtherTypes further = {});

    [[nodiscard]] const QString &filePathName() const { return m_filePathName; }
    [[nodiscard]] const QString &fileName() const { return m_fileName; }
    [[nodiscard]] FileKind kind() const { return m_kind; }
    [[nodiscard]] const QString &destFilePathName() const { return m_destFilePathName; }
    [[nodiscard]] int pageCount() const { return m_pageCount; }
    /// Whether it is a PDF with structure elements, as was found when it was listed.
    [[nodiscard]] bool isTagged() const { return m_isTagged; }
    [[nodiscard]] const QString &fileSize() const { return m_fileSize; }
    [[nodiscard]] int index() const { return m_index; }
    [[nodiscard]] int stateIndex() const { return m_stateIndex; }
    /// Nothing until setStateIndex() or setState() is called, and for an unknown state code.
    [[nodiscard]] const std::optional<RichText> &state() const { return m_state; }
    /// Nothing for other kinds and for an image whose header cannot be read.
    [[nodiscard]] const std::optional<SourceImage> &getSrcImage() const { return m_srcImage; }
    /// The text of a text entry as it was listed, else as the file holds it now in `encoding`, as
    /// SourceText::open() takes it. Throws Error when it cannot be read now.
    [[nodiscard]] SourceText sourceText(SystemCalls &calls = SystemCalls::system(),
                                        const QString &encoding = {}) const;
    /// Why the source could not be read when it was listed; empty when it could.
    [[nodiscard]] const QString &readError() const { return m_readError; }
    /// What is to be said of the entry beside its state, sentences without a full stop: what was
    /// lost when it was listed, or what setRemarks() was given since.
    [[nodiscard]] QStringList remarks() const;

    /// Which pages of a PDF are taken; all where nothing was chosen.
    [[nodiscard]] const PageChoice &pageChoice() const { return m_pageChoice; }

    /// What a bookmark of the file is called: its name without the extension where no other was
    /// given.
    [[nodiscard]] QString bookmarkTitle() const;

    void setBookmarkTitle(const QString &title) { m_bookmarkTitle = title; }
    void setPageChoice(const PageChoice &choice) { m_pageChoice = choice; }
    void setPageCount(int count) { m_pageCount = count; }
    void setTagged(bool tagged) { m_isTagged = tagged; }
    void setFileSize(const QString &text) { m_fileSize = text; }
    void setIndex(int index) { m_index = index; }
    void setState(const RichText &state) { m_state = state; }
    void setRemarks(const QStringList &remarks) { m_remarks = remarks; }

    /// Sets the source path and the file name, and reads the file as far as the list needs it: a
    /// text's contents, an image's header and its size text ("0 × 0" when it cannot be read).
    void setFilePathName(const QString &path);
    /// Sets the destination path and its last component as the destination name.
    void setDestFilePathName(const QString &path);
    /// Stores the state code and rebuilds the state text.
    void setStateIndex(int code);

    /// The destination name, shortened in its middle for lists: whole up to 18 - `shrink`
    /// characters, else 8 - `shrink` characters (not below none), "..." and the last 10. A
    /// character is a UTF-16 unit.
    [[nodiscard]] QString getShortDestFileName(int shrink) const;
    /// Width of `name` in "Lucida Grande" at 11 points, truncated to whole points.
    [[nodiscard]] static float GetWidthOfName(const QString &name);
    /// The value of a file metadata key, the file's attributes read afresh: the lower-cased name
    /// (QString), the size in bytes (qint64), the two dates (QDateTime). An invalid variant for any
    /// other key, and for an attribute that the file or its file system lacks.
    [[nodiscard]] QVariant valueForUndefinedKey(const QString &key) const;

    // ---- Kept for callers alone: nothing in the program calls these --------------------------

    [[nodiscard]] const QString &destFileName() const { return m_destFileName; }
    /// The decoded text of a text entry; a null string when it could not be read as UTF-8.
    [[nodiscard]] const QString &getFileString() const { return m_fileString; }
    void setFileName(const QString &name) { m_fileName = name; }
    void setDestFileName(const QString &name) { m_destFileName = name; }

  private:
    void readSource(SourceReading reading);
    void readText();
    void readImage();
    [[nodiscard]] RichText linkText() const;

    QString m_filePathName = QStringLiteral("");
    FileKind m_kind = FileKind::Other;
    QString m_fileName;
    QString m_destFilePathName;
    QString m_destFileName;
    int m_pageCount = 0;
    bool m_isTagged = false;
    PageChoice m_pageChoice;
    QString m_bookmarkTitle;
    QString m_fileSize = QStringLiteral("");
    int m_index = 0;
    int m_stateIndex = Waiting;
    std::optional<RichText> m_state;
    std::optional<SourceImage> m_srcImage;
    QString m_fileString;
    bool m_textIsHeld = false; ///< m_fileString is what the file held when it was listed.
    QString m_readError;
    Warnings m_readWarnings;
    std::optional<QStringList> m_remarks; ///< Of a run; nothing before the first.
};

} // namespace folioforge
