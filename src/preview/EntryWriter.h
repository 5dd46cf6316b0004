// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"
#include "filelist/PDFFileInfo.h"
#include "files/TemporaryFolder.h"

#include <QObject>
#include <QString>

#include <optional>
#include <stop_token>
#include <thread>

namespace folioforge {

/// A PDF of one entry in a temporary folder.
struct WrittenEntry {
    QString path;     ///< Empty where the entry cannot be written.
    QString password; ///< Without one a document that is to be protected would lie open.
    int pages = 0;    ///< Of the PDF; at most as many as were asked for.
    QString reason;   ///< Why it cannot be written, a sentence without a full stop.
};

/// Writes single entries as a run would, on a thread of its own, into a temporary folder that goes
/// with this object. The last entry that is asked for counts; the others are dropped.
class EntryWriter : public QObject {
    Q_OBJECT

  public:
    /// `bundlePath` holds the filters of the compression pass.
    explicit EntryWriter(QString bundlePath);
    ~EntryWriter() override;

    /// Writes `entry` with `options`, of a text as many pages as they say. Output folder, name and
    /// passwords do not count. An entry under way is stopped.
    void write(PDFFileInfo entry, ConversionOptions options);
    /// Drops what was asked for.
    void stop();

  Q_SIGNALS:
    /// What was asked for last is done. The file stays until the next one is there.
    void written(const folioforge::WrittenEntry &entry);

  private:
    struct Job {
        PDFFileInfo entry;
        ConversionOptions options;
        QString password;
    };

    void begin(Job job);
    void take(const WrittenEntry &entry);

    QString m_bundlePath;
    TemporaryFolder m_folder;
    int m_number = 0; ///< Of the last file.
    QString m_file;   ///< The last one that was handed over.
    std::optional<Job> m_next;
    std::stop_source m_stop;
    bool m_isWorking = false;
    std::jthread m_worker; ///< The last member: it ends before anything else goes.
};

} // namespace folioforge
