#include "pdf/Password.h"

#include "error/Error.h"

#include <stringprep.h>
#include <sys/resource.h>

#include <cstdlib>
#include <memory>
#include <variant>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

struct FreeDeleter {
    void operator()(char *text) const { std::free(text); }
};

std::variant<QByteArray, QString> prepare(const QString &password) {
    if (!password.isValidUtf16()) {
        return u"The password contains half a character"_s;
    }
    if (password.contains(QChar(u'\0'))) {
        return u"The password contains a character that passwords cannot have"_s;
    }
    char *raw = nullptr;
    // Characters newer than the profile's Unicode 3.2 pass as they are, or no recent one could be
    // typed.
    const int status = stringprep_profile(password.toUtf8().constData(), &raw, "SASLprep", {});
    const std::unique_ptr<char, FreeDeleter> prepared(raw);
    if (status == STRINGPREP_BIDI_BOTH_L_AND_RAL || status == STRINGPREP_BIDI_LEADTRAIL_NOT_RAL) {
        return u"The password mixes characters written from right to left with others "
               "in a way that passwords cannot have"_s;
    }
    if (status != STRINGPREP_OK) {
        return u"The password contains a character that passwords cannot have"_s;
    }
    QByteArray bytes(prepared.get());
    if (bytes.isEmpty() && !password.isEmpty()) {
        return u"The password contains no visible character"_s;
    }
    if (bytes.size() > kMaxPasswordBytes) {
        return u"The password is longer than %1 bytes"_s.arg(kMaxPasswordBytes);
    }
    return bytes;
}

} // namespace

std::optional<QString> passwordProblem(const QString &password) {
    const auto result = prepare(password);
    const auto *problem = std::get_if<QString>(&result);
    return problem ? std::optional(*problem) : std::nullopt;
}

QByteArray preparedPassword(const QString &password) {
    auto result = prepare(password);
    if (const auto *problem = std::get_if<QString>(&result)) {
        throw Error(*problem);
    }
    return std::get<QByteArray>(result);
}

void forbidCoreDumps() {
    rlimit limit{};
    if (::getrlimit(RLIMIT_CORE, &limit) == 0) {
        limit.rlim_cur = 0;
        ::setrlimit(RLIMIT_CORE, &limit);
    }
}

} // namespace folioforge
