#include "cli/Report.h"

#include <QJsonDocument>
#include <QJsonObject>

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
    if (result.bytesBefore) {
        object.insert(QStringLiteral("bytesBefore"), *result.bytesBefore);
    }
    if (result.bytesAfter) {
        object.insert(QStringLiteral("bytesAfter"), *result.bytesAfter);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
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
