// SPDX-License-Identifier: Apache-2.0

#include "cli/InputResult.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QString reasonOf(const CloseResult &close) {
    return close.status == CloseResult::Status::NameTaken
               ? u"The name of its PDF was taken meanwhile"_s
               : close.reason;
}

} // namespace

InputResult InputResult::rejected(const QString &input, const QString &reason) {
    InputResult rejected = failed(input, reason);
    rejected.state = State::Rejected;
    return rejected;
}

InputResult InputResult::failed(const QString &input, const QString &reason) {
    InputResult failed;
    failed.input = input;
    failed.state = State::Failed;
    failed.reason = reason;
    return failed;
}

InputResult InputResult::listed(const QString &folder, const Warnings &leftOut) {
    InputResult listed;
    listed.input = folder;
    listed.state = State::Listed;
    listed.warnings = leftOut;
    return listed;
}

InputResult InputResult::of(const QString &input, const RunResult &result, std::size_t index,
                            int pagesBefore) {
    const EntryOutcome &entry = result.outcome.entries.at(index);
    const CloseResult &close = result.outcome.close;
    InputResult own;
    own.input = input;
    own.reason = entry.reason;
    own.warnings = entry.warnings;
    own.verification = entry.verification;
    if (entry.written && close.status == CloseResult::Status::Written) {
        own.output = close.path;
        own.pages = entry.pages;
        own.firstPage = entry.pages > 0 ? 1 + pagesBefore : 0;
        own.seconds = entry.seconds;
        own.outputSeconds = result.seconds;
        own.pageSize = entry.pageSize;
        own.state = !entry.pageSize.isValid() ? State::Finished
                    : entry.verification      ? State::Verified
                                              : State::Planned;
        if (own.state == State::Verified) {
            own.pages = static_cast<int>(entry.verification->pages.size());
            own.firstPage = entry.verification->firstPage + 1;
        }
        own.archive = close.archive;
        own.embedded = entry.embeddedAs;
        own.parts = entry.parts;
        own.compression = result.compression;
        return own;
    }
    if (result.kept) {
        own.output = result.path;
        own.reason = close.reason;
        own.state = State::Kept;
        return own;
    }
    own.state = State::Failed;
    if (entry.written) {
        own.reason = reasonOf(close);
    }
    return own;
}

InputResult InputResult::enclosed(const QString &input, const EntryOutcome &entry, int firstPage) {
    InputResult own;
    own.input = input;
    own.state = entry.written ? State::Enclosed : State::Failed;
    own.pages = entry.pages;
    own.firstPage = entry.pages > 0 ? firstPage : 0;
    own.reason = entry.reason;
    own.warnings = entry.warnings;
    own.embedded = entry.embeddedAs;
    own.parts = entry.parts;
    return own;
}

QString InputResult::plan() const {
    if (state == State::Kept) {
        return input + u": "_s + reason;
    }
    if (pages == 0) {
        return input + u": no page"_s;
    }
    if (state == State::Verified) {
        const QString first = QString::number(firstPage);
        return pages == 1 ? u"%1: page %2 is its source"_s.arg(input, first)
                          : u"%1: pages %2 to %3 are their source"_s.arg(
                                input, first, QString::number(firstPage + pages - 1));
    }
    return u"%1: %2 of %3 x %4 points"_s.arg(
        input, pages == 1 ? u"1 page"_s : u"%1 pages, the first"_s.arg(pages),
        QString::number(pageSize.width()), QString::number(pageSize.height()));
}

QStringList toMessages(const InputResult &result) {
    QStringList messages;
    if (!result.reason.isEmpty() && result.state != InputResult::State::Kept) {
        messages += result.input + u": "_s + result.reason;
    }
    for (const Warning &warning : result.warnings) {
        messages += result.input + u": warning: "_s + warning.text;
    }
    return messages;
}

} // namespace folioforge
