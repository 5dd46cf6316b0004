// SPDX-License-Identifier: Apache-2.0

#include "preview/EntryWriter.h"

#include "convert/Run.h"

#include <QFile>
#include <QUuid>

#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Keeps how the one PDF went.
class ResultKeeper : public RunObserver {
  public:
    void progressChanged(float /*value*/) override {}
    void entryDone(std::size_t /*index*/, bool /*written*/) override {}
    void pdfBegins(std::size_t /*firstEntry*/) override {}
    void pdfDone(const RunResult &result) override { outcome = result.outcome; }

    PDFOutcome outcome;
};

/// Why there is no PDF: what its entry says, else what the file system does.
QString reasonOf(const PDFOutcome &outcome) {
    const bool entrySays = !outcome.entries.empty() && !outcome.entries.front().reason.isEmpty();
    return entrySays ? outcome.entries.front().reason : outcome.close.reason;
}

/// Protects the PDF with `password` where it is to be protected at all.
void protect(SecuritySettings &security, const QString &password) {
    security = {};
    security.useUserPassword = !password.isEmpty();
    security.userPassword = password;
}

} // namespace

EntryWriter::EntryWriter(QString bundlePath)
    : m_bundlePath(std::move(bundlePath)) {}

EntryWriter::~EntryWriter() {
    m_stop.request_stop();
}

void EntryWriter::write(PDFFileInfo entry, ConversionOptions options) {
    const bool isProtected = options.security.useUserPassword || options.security.useOwnerPassword;
    QString password = isProtected ? QUuid::createUuid().toString(QUuid::Id128) : QString();
    protect(options.security, password);
    options.merge = true; // The name is chosen here.
    options.flush = Flush::Never;
    options.verify = false; // Nobody deletes an original for what is shown.
    stop();
    m_next = Job{std::move(entry), std::move(options), std::move(password)};
    if (!m_isWorking) {
        begin(*std::exchange(m_next, std::nullopt));
    }
}

void EntryWriter::stop() {
    m_next.reset();
    m_stop.request_stop();
}

void EntryWriter::begin(Job job) {
    job.options.outputFolder = m_folder.path();
    job.options.outputName = QString::number(++m_number);
    m_stop = std::stop_source();
    m_isWorking = true;
    const auto work = [this, job = std::move(job), stop = m_stop.get_token()] {
        ResultKeeper keeper;
        Run run({job.entry}, job.options, m_bundlePath, stop);
        run.convertAll(m_folder, keeper);
        WrittenEntry entry;
        if (keeper.outcome.isWritten()) {
            entry = {keeper.outcome.close.path, job.password, keeper.outcome.pages(), {}};
        } else {
            entry.reason = reasonOf(keeper.outcome);
        }
        QMetaObject::invokeMethod(
            this, [this, entry] { take(entry); }, Qt::QueuedConnection);
    };
    try {
        m_worker = std::jthread(work);
    } catch (const std::system_error &) {
        work(); // Without a thread the window waits for the work.
    }
}

void EntryWriter::take(const WrittenEntry &entry) {
    m_isWorking = false;
    const bool isWanted = !m_stop.stop_requested();
    const QString old = isWanted ? std::exchange(m_file, entry.path) : entry.path;
    if (!old.isEmpty()) {
        QFile::remove(old);
    }
    if (isWanted) {
        Q_EMIT written(entry);
    } else if (m_next) {
        begin(*std::exchange(m_next, std::nullopt));
    }
}

} // namespace folioforge
