// SPDX-License-Identifier: Apache-2.0

#include "preview/PageProcess.h"

#include <QFileInfo>
#include <QProcess>

#include <utility>

namespace folioforge {

namespace {

QString reasonFor(const QProcess &process) {
    if (process.exitStatus() == QProcess::NormalExit) {
        switch (static_cast<DrawingFailure>(process.exitCode())) {
        case DrawingFailure::NeedsPassword:
            return PageProcess::tr("The PDF asks for a password");
        case DrawingFailure::NotReadable:
            return PageProcess::tr("The PDF cannot be read");
        default:
            break;
        }
    }
    return PageProcess::tr("The page cannot be shown");
}

} // namespace

PageProcess::PageProcess(QString program, std::chrono::milliseconds patience)
    : m_program(std::move(program)) {
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this,
            [this] { fail(tr("The page takes too long to be shown")); });
}

PageProcess::~PageProcess() {
    stop(); // Whoever listens may be gone by half.
    for (auto *process : findChildren<QProcess *>()) {
        process->kill();
        process->waitForFinished(); // Nothing but the end of its program is to be waited for.
    }
}

void PageProcess::draw(const PageRequest &request, const QString &password) {
    stop();
    m_room = request.room;
    m_process = new QProcess(this);
    m_process->setStandardErrorFile(QProcess::nullDevice());
    connect(m_process, &QProcess::readyReadStandardOutput, this, &PageProcess::read);
    connect(m_process, &QProcess::finished, this, &PageProcess::ended);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            fail(tr("The page cannot be shown"));
        }
    });
    m_patience.start();
    PageRequest absolute =
        request; // The program takes no path for an option, and starts elsewhere.
    absolute.file = QFileInfo(request.file).absoluteFilePath();
    m_process->start(m_program, toArguments(absolute));
    if (m_process != nullptr) {
        m_process->write(password.toUtf8());
        m_process->closeWriteChannel();
    }
}

/// A process that is ended is not waited for.
void PageProcess::stop() {
    m_patience.stop();
    m_answer.clear();
    QProcess *process = std::exchange(m_process, nullptr);
    if (process == nullptr) {
        return;
    }
    process->disconnect(this);
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater();
        return;
    }
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    process->kill();
}

void PageProcess::read() {
    m_answer += m_process->readAllStandardOutput();
    if (m_answer.size() > maxBytes(m_room)) {
        fail(tr("The page cannot be shown"));
    }
}

void PageProcess::ended() {
    m_answer += m_process->readAllStandardOutput();
    const bool isDone =
        m_process->exitStatus() == QProcess::NormalExit && m_process->exitCode() == 0;
    const auto page = isDone ? toDrawnPage(m_answer, m_room) : std::nullopt;
    if (!page) {
        fail(reasonFor(*m_process));
        return;
    }
    stop();
    Q_EMIT drawn(*page);
}

void PageProcess::fail(const QString &reason) {
    stop();
    Q_EMIT failed(reason);
}

} // namespace folioforge
