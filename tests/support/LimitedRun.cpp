// SPDX-License-Identifier: Apache-2.0

#include "support/LimitedRun.h"

#include "support/Sanitizer.h"

#include <QFile>
#include <QTemporaryFile>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace folioforge::test {

namespace {

void limit(int resource, qint64 amount) {
    if (amount > 0) {
        const rlimit both{static_cast<rlim_t>(amount), static_cast<rlim_t>(amount)};
        ::setrlimit(resource, &both);
    }
}

void apply(const Limits &limits) {
    limit(RLIMIT_AS, isSanitized() ? 0 : limits.addressSpace);
    limit(RLIMIT_NOFILE, limits.descriptors);
    limit(RLIMIT_CPU, limits.processorSeconds);
    limit(RLIMIT_FSIZE, limits.fileSize);
}

/// Becomes the program; only calls that are safe between fork() and execv().
[[noreturn]] void become(const std::vector<char *> &words, const Limits &limits, int out, int err) {
    constexpr int kCannotRun = 127;
    ::dup2(out, STDOUT_FILENO);
    ::dup2(err, STDERR_FILENO);
    apply(limits);
    ::execv(words.front(), words.data());
    ::_exit(kCannotRun);
}

/// The most memory that the running `program` had so far. What wait4() tells counts the memory of
/// this process too, which the program began as a copy of.
qint64 peakOf(pid_t program) {
    QFile status(u"/proc/%1/status"_s.arg(program));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    const auto found = text.indexOf("VmHWM:");
    return found < 0 ? 0
                     : text.mid(found + 6, 15).simplified().split(' ').first().toLongLong() << 10;
}

double secondsOf(const timeval &time) {
    constexpr double kMicrosecond = 1e-6;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * kMicrosecond;
}

/// Waits for the end of `program`, looking at its memory every now and then.
bool waitFor(pid_t program, LimitedRun &run) {
    constexpr useconds_t kBetweenLooks = 2000;
    int status = 0;
    rusage usage{};
    pid_t ended = 0;
    while ((ended = ::wait4(program, &status, WNOHANG, &usage)) == 0) {
        // The last look counts: the first may still see a copy of this process.
        if (const qint64 peak = peakOf(program); peak > 0) {
            run.peakBytes = peak;
        }
        ::usleep(kBetweenLooks);
    }
    if (ended != program) {
        return false;
    }
    run.processorSeconds = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return true;
}

QByteArray contentOf(QTemporaryFile &file) {
    file.seek(0);
    return file.readAll();
}

} // namespace

LimitedRun runLimited(const QString &program, const QStringList &arguments, const Limits &limits) {
    QList<QByteArray> texts{QFile::encodeName(program)};
    for (const QString &argument : arguments) {
        texts += QFile::encodeName(argument);
    }
    std::vector<char *> words;
    for (QByteArray &text : texts) {
        words.push_back(text.data());
    }
    words.push_back(nullptr);
    QTemporaryFile out;
    QTemporaryFile err;
    LimitedRun run;
    if (!out.open() || !err.open()) {
        return run;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        become(words, limits, out.handle(), err.handle());
    }
    if (child < 0 || !waitFor(child, run)) {
        return run;
    }
    run.out = contentOf(out);
    run.err = contentOf(err);
    return run;
}

} // namespace folioforge::test
