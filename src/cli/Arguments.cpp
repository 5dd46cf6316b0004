// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"

#include "cli/OptionTable.h"
#include "cli/OptionValues.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Takes arguments one by one off the front.
class ArgumentReader {
  public:
    explicit ArgumentReader(std::span<const QByteArray> arguments)
        : m_rest(arguments) {}

    Arguments read() {
        while (!m_rest.empty()) {
            const QByteArray argument = take();
            if (argument == "--") {
                m_result.inputs.insert(m_result.inputs.end(), m_rest.begin(), m_rest.end());
                break;
            }
            if (argument.startsWith('-') && argument.size() > 1) {
                applyOption(argument);
            } else {
                m_result.inputs.push_back(argument);
            }
        }
        completeOutput();
        requireUse();
        return std::move(m_result);
    }

  private:
    QByteArray take() {
        QByteArray argument = m_rest.front();
        m_rest = m_rest.subspan(1);
        return argument;
    }

    /// An option that follows is no value: most likely that was forgotten.
    QByteArray takeValueOf(const QByteArray &name) {
        QByteArray value = take();
        if (isOption(value)) {
            throw ArgumentFault(
                u"The option \"%1\" needs a value; is \"%2\" one, write \"%1=%2\""_s.arg(
                    QString::fromUtf8(name), QString::fromUtf8(value)));
        }
        return value;
    }

    void applyOption(const QByteArray &argument) {
        const qsizetype equals = argument.indexOf('=');
        const QByteArray name = equals < 0 ? argument : argument.first(equals);
        const Option &option = findOption(name);
        if (option.kind == Option::Switch ? equals >= 0 : equals < 0 && m_rest.empty()) {
            throw ArgumentFault((option.kind == Option::Switch
                                     ? u"The option \"%1\" takes no value"_s
                                     : u"The option \"%1\" needs a value"_s)
                                    .arg(QString::fromUtf8(name)));
        }
        const QByteArray value = option.kind == Option::Switch ? QByteArray()
                                 : equals < 0                  ? takeValueOf(name)
                                                               : argument.sliced(equals + 1);
        m_result.given +=
            QString::fromUtf8(option.kind == Option::Switch ? name : name + '=' + value);
        const qsizetype rounded = m_result.rounded.size();
        try {
            option.apply(m_result, value);
        } catch (const ArgumentFault &fault) {
            throw ArgumentFault(QString::fromUtf8(name) + u": "_s + fault.text());
        }
        for (qsizetype i = rounded; i < m_result.rounded.size(); ++i) {
            m_result.rounded[i].prepend(QString::fromUtf8(name) + u": "_s);
        }
        m_folderGiven |= name == "--output-folder";
    }

    /// The two ways of naming the output exclude each other; with neither it is the current folder.
    void completeOutput() {
        ConversionOptions &options = m_result.options;
        if (m_folderGiven && options.merge) {
            throw ArgumentFault(u"--output-folder and --merge cannot be used together"_s);
        }
        m_result.mayReplaceManifest = options.overwrite != Overwrite::Never;
        if (!options.verifyOnly.isEmpty()) {
            completeVerified();
        }
        if (!m_folderGiven && options.outputFolder.isEmpty()) {
            options.outputFolder = u"."_s;
        }
    }

    /// To hold a PDF against inputs is a dry run of their merge.
    void completeVerified() {
        ConversionOptions &options = m_result.options;
        if (m_folderGiven || options.merge || options.verify) {
            throw ArgumentFault(u"--verify-only writes no PDF: it goes with none of --merge, "
                                "--output-folder and --verify"_s);
        }
        options.merge = true;
        options.dryRun = true;
        options.overwrite = Overwrite::Never; // What may be replaced is the manifest.
    }

    /// Throws ArgumentFault where options do not go together, or have nothing to do.
    void requireUse() const {
        const ConversionOptions &options = m_result.options;
        if (m_result.toStandardOutput && m_result.json) {
            throw ArgumentFault(
                u"--json and \"--merge -\" would both write to standard output; merge into a file"_s);
        }
        if (m_result.toStandardOutput && options.dryRun) {
            throw ArgumentFault(u"--dry-run writes no PDF to standard output; merge into a file"_s);
        }
        if (!m_result.manifest.isEmpty() && (m_result.toStandardOutput || options.isTrial())) {
            throw ArgumentFault(
                u"--manifest tells of PDFs in files: it goes with neither \"--merge -\" "
                "nor --dry-run"_s);
        }
        if (m_result.bookmarkTitleFile && !hasThoseOfFiles(options.bookmarks)) {
            throw ArgumentFault(u"--bookmark-titles needs --bookmarks files or both"_s);
        }
        if (options.compressGrey && !options.compresses()) {
            throw ArgumentFault(u"--compress-grey needs --compress"_s);
        }
        if (options.imagePage.sizeMode == ImagePageFollowsImage) {
            if (options.imageLayout.orientation != PageOrientation::AsGiven) {
                throw ArgumentFault(u"--image-orientation needs a page, --image-page-size"_s);
            }
            if (options.imageLayout.fit != ImageFit::Within) {
                throw ArgumentFault(u"--image-fit needs a page, --image-page-size"_s);
            }
        }
        if (m_result.listsEndInNull && m_result.nameLists.empty()) {
            throw ArgumentFault(u"-0 and --null say how names end in a list of --files-from"_s);
        }
        if (std::ranges::find(m_result.inputs, QByteArray()) != m_result.inputs.end()) {
            throw ArgumentFault(u"\"\" is no file"_s);
        }
        if (m_result.request == Request::Convert && m_result.inputs.empty() &&
            m_result.nameLists.empty()) {
            throw ArgumentFault(u"There is no file to convert"_s);
        }
    }

    std::span<const QByteArray> m_rest;
    Arguments m_result;
    bool m_folderGiven = false;
};

} // namespace

std::variant<Arguments, UsageError> parseArguments(std::span<const QByteArray> arguments) {
    try {
        return ArgumentReader(arguments).read();
    } catch (const ArgumentFault &fault) {
        return UsageError{fault.text()};
    }
}

} // namespace folioforge
