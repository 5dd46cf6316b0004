#include "cli/Report.h"

#include "files/Printable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

#include <algorithm>
#include <map>
#include <vector>

namespace folioforge {
namespace {

QString nameOf(InputResult::State state) {
    switch (state) {
    case InputResult::State::Finished:
        return QStringLiteral("finished");
    case InputResult::State::Failed:
        return QStringLiteral("failed");
    case InputResult::State::Rejected:
        break;
    }
    return QStringLiteral("rejected");
}

QString nameOf(EmbeddedAs embedded) {
    return embedded == EmbeddedAs::OwnBytes ? QStringLiteral("own bytes")
                                            : QStringLiteral("recompressed");
}

void addTo(QJsonObject &object, const CompressionOutcome &compression) {
    QJsonArray left;
    for (const KeptImage &image : compression.imagesKept) {
        left.append(QJsonObject{{QStringLiteral("page"), image.page},
                                {QStringLiteral("object"), image.object},
                                {QStringLiteral("reason"), image.reason}});
    }
    object.insert(QStringLiteral("bytesBefore"), compression.bytesBefore);
    object.insert(QStringLiteral("bytesAfter"), compression.bytesAfter);
    object.insert(QStringLiteral("imagesReduced"), compression.imagesReduced);
    object.insert(QStringLiteral("imagesLeft"), left);
}

QByteArray escapedUnits(const QString &text) {
    QByteArray result;
    for (const QChar unit : text) {
        constexpr int kDigits = 4;
        constexpr int kHexadecimal = 16;
        const QByteArray digits = QByteArray::number(unit.unicode(), kHexadecimal);
        result += "\\u" + digits.rightJustified(kDigits, '0');
    }
    return result;
}

/// What a terminal could take for a command is escaped, though JSON allows most of it in strings.
QByteArray escaped(const QString &json) {
    QByteArray result;
    const auto characters = json.toUcs4();
    for (const char32_t character : characters) {
        const QString text = QString::fromUcs4(&character, 1);
        result += isPrintable(character) ? text.toUtf8() : escapedUnits(text);
    }
    return result;
}

/// The pages, each once, and no more than a line has room for.
QString pagesInWords(std::vector<int> pages) {
    constexpr std::size_t kMost = 10;
    std::sort(pages.begin(), pages.end());
    pages.erase(std::unique(pages.begin(), pages.end()), pages.end());
    QStringList numbers;
    for (std::size_t i = 0; i < std::min(pages.size(), kMost); ++i) {
        numbers += QString::number(pages[i]);
    }
    if (pages.size() > kMost) {
        numbers += QStringLiteral("...");
    }
    return (pages.size() == 1 ? QStringLiteral("page ") : QStringLiteral("pages ")) +
           numbers.join(QStringLiteral(", "));
}

} // namespace

QByteArray toJson(const InputResult &result) {
    QJsonObject object{{QStringLiteral("input"), result.input},
                       {QStringLiteral("output"),
                        result.output.isEmpty() ? QJsonValue() : QJsonValue(result.output)},
                       {QStringLiteral("pages"), result.pages},
                       {QStringLiteral("state"), nameOf(result.state)}};
    if (!result.message.isEmpty()) {
        object.insert(QStringLiteral("message"), result.message);
    }
    if (result.embedded) {
        object.insert(QStringLiteral("embedded"), nameOf(*result.embedded));
    }
    if (result.compression && result.compression->error.isEmpty()) {
        addTo(object, *result.compression);
    } else if (result.compression) {
        object.insert(QStringLiteral("notCompressed"), result.compression->error);
    }
    return escaped(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

QString toWords(const CompressionOutcome &compression) {
    QString words = QStringLiteral("%1 -> %2 bytes, images reduced: %3")
                        .arg(compression.bytesBefore)
                        .arg(compression.bytesAfter)
                        .arg(compression.imagesReduced);
    std::map<QString, std::vector<int>> pagesByReason;
    for (const KeptImage &image : compression.imagesKept) {
        pagesByReason[image.reason].push_back(image.page);
    }
    for (const auto &[reason, pages] : pagesByReason) {
        words += QStringLiteral(", left: %1 (%2; %3)")
                     .arg(pages.size())
                     .arg(reason, pagesInWords(pages));
    }
    return words;
}

QString toMessage(const InputResult &result) {
    if (result.message.isEmpty()) {
        return {};
    }
    const bool warning = result.state == InputResult::State::Finished;
    return result.input + (warning ? QStringLiteral(": warning: ") : QStringLiteral(": ")) +
           result.message;
}

} // namespace folioforge
