// SPDX-License-Identifier: Apache-2.0

#include "support/TestUnit.h"
#include "text/readable/LineBreaks.h"
#include "text/readable/TextDirections.h"

#include <QFile>

#include <unicode/uchar.h>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// A line of one of Unicode's files of tests.
struct UnicodeCase {
    QByteArray line;
    QString text;
    std::vector<qsizetype> firstUnits; ///< Of its characters.

    void add(QByteArrayView code) {
        constexpr int kHexadecimal = 16;
        firstUnits.push_back(text.size());
        text += QChar::fromUcs4(code.toByteArray().toUInt(nullptr, kHexadecimal));
    }
};

/// A file of the package of Unicode's data, where Debian or Fedora puts it.
QByteArray unicodeFile(const QString &name) {
    for (const QString &folder : {u"/usr/share/unicode/"_s, u"/usr/share/unicode/ucd/"_s}) {
        if (QFile file(folder + name); file.open(QIODevice::ReadOnly)) {
            return file.readAll();
        }
    }
    return {};
}

/// The lines of such a file without what is said about them.
QByteArrayList linesOfUnicode(const QString &name) {
    QByteArrayList lines;
    for (const QByteArray &whole : unicodeFile(name).split('\n')) {
        const QByteArray line = whole.split('#').first().trimmed();
        if (!line.isEmpty()) {
            lines += line;
        }
    }
    return lines;
}

/// Whether the data, whose first line is such as "# LineBreak-15.0.0.txt", and ICU are of the same
/// version of Unicode.
bool isDataOfIcu() {
    UVersionInfo version{};
    u_getUnicodeVersion(version);
    return unicodeFile(u"LineBreak.txt"_s)
        .startsWith("# LineBreak-" + QByteArray::number(version[0]) + '.' +
                    QByteArray::number(version[1]) + '.');
}

/// Where the data and ICU are of two versions of Unicode that differ in how a character breaks.
class ChangedCharacters {
  public:
    ChangedCharacters() {
        for (const QByteArray &line : linesOfUnicode(u"LineBreak.txt"_s)) {
            constexpr int kHexadecimal = 16;
            const QByteArrayList range = line.split(';').first().trimmed().split('.');
            const QByteArray name = line.split(';').last().trimmed();
            const int known = u_getPropertyValueEnum(UCHAR_LINE_BREAK, name.constData());
            const uint last = range.last().toUInt(nullptr, kHexadecimal);
            for (uint c = range.first().toUInt(nullptr, kHexadecimal); c <= last; ++c) {
                if (u_getIntPropertyValue(static_cast<UChar32>(c), UCHAR_LINE_BREAK) != known) {
                    m_characters.insert(c);
                }
            }
        }
    }
    [[nodiscard]] bool standIn(const QString &text) const {
        return std::ranges::any_of(text.toUcs4(),
                                   [this](uint c) { return m_characters.contains(c); });
    }

  private:
    std::set<uint> m_characters;
};

/// Whether a hyphen stands between Hebrew letters: of versions about 16.0 some let a line break
/// behind it and some do not (rule LB21a).
bool hasHebrewHyphen(const QString &text) {
    const QList<uint> characters = text.toUcs4();
    const auto kindAt = [&](qsizetype at) {
        return u_getIntPropertyValue(static_cast<UChar32>(characters[at]), UCHAR_LINE_BREAK);
    };
    for (qsizetype at = 2; at < characters.size(); ++at) {
        if (kindAt(at - 2) == U_LB_HEBREW_LETTER && kindAt(at) == U_LB_HEBREW_LETTER &&
            (kindAt(at - 1) == U_LB_HYPHEN || kindAt(at - 1) == U_LB_BREAK_AFTER)) {
            return true;
        }
    }
    return false;
}

/// What failed of many cases, the first few in words.
class Failures {
  public:
    void add(const QByteArray &line, const QString &got) {
        constexpr int kNamed = 5;
        if (++m_count <= kNamed) {
            m_words += u"\n%1 gives %2"_s.arg(QString::fromUtf8(line), got);
        }
    }
    [[nodiscard]] bool none() const { return m_count == 0; }
    [[nodiscard]] QByteArray words() const {
        return QByteArray::number(m_count) + " fail:" + m_words.toUtf8();
    }

  private:
    int m_count = 0;
    QString m_words;
};

QString listed(const std::vector<qsizetype> &numbers) {
    QStringList words;
    for (const qsizetype number : numbers) {
        words += QString::number(number);
    }
    return words.join(u' ');
}

/// Where the breaks of a line such as "× 0023 × 0020 ÷ 0023 ÷" stand, in units, but the last.
std::vector<qsizetype> breaksOf(UnicodeCase &test) {
    std::vector<qsizetype> breaks;
    for (const QByteArray &word : test.line.split(' ')) {
        if (word == "÷") {
            breaks.push_back(test.text.size());
        } else if (word != "×") {
            test.add(word);
        }
    }
    breaks.pop_back();
    return breaks;
}

/// `breaks` as ICU has them, which is ahead of a file of Unicode 15.0: none behind a hyphen that
/// begins a word, as in "-x" (now rule LB20a), none behind a point or a comma before a digit, as in
/// "a.2" (LB25), but one before a point that begins a number, as in " .3" (LB15c).
std::vector<qsizetype> asIcuHasThem(std::vector<qsizetype> breaks, const QString &text) {
    const auto isPoint = [](QChar unit) { return unit == u'.' || unit == u','; };
    std::erase_if(breaks, [&](qsizetype at) {
        qsizetype before = at - 1;
        while (before > 0 && text[before].isMark()) {
            --before;
        }
        const bool isHyphen = before == 0 && (text[0] == u'-' || text[0] == u'\u2010');
        return isHyphen || (isPoint(text[before]) && text[at].isDigit());
    });
    for (qsizetype at = 1; at + 1 < text.size(); ++at) {
        if (text[at - 1] == u' ' && isPoint(text[at]) && text[at + 1].isDigit()) {
            breaks.push_back(at);
        }
    }
    std::ranges::sort(breaks);
    return breaks;
}

/// A line such as "05D0 0028;2;1;1 1;1 0": the text, the direction that is asked for, the level of
/// the paragraph, those of the characters, and the characters from left to right.
struct BidiCase : UnicodeCase {
    bool isRightToLeft = false;
    QByteArrayList levels;
    std::vector<qsizetype> order;

    explicit BidiCase(const QByteArray &of) {
        line = of;
        const QByteArrayList fields = of.split(';');
        // A mark of a direction before the text gives its paragraph that direction, and does to
        // what follows what the beginning of such a paragraph does.
        const QByteArray &asked = fields[1];
        const bool hasMark = asked != "2";
        if (hasMark) {
            add(asked == "1" ? "200F" : "200E");
            levels += fields[2];
        }
        for (const QByteArray &code : fields[0].split(' ')) {
            add(code);
        }
        isRightToLeft = fields[2] == "1";
        levels += fields[3].split(' ');
        for (const QByteArray &place : fields[4].split(' ')) {
            if (!place.isEmpty()) {
                order.push_back(place.toLongLong() + (hasMark ? 1 : 0));
            }
        }
        if (hasMark) {
            order.insert(isRightToLeft ? order.end() : order.begin(), 0);
        }
    }

    /// The characters of the row from left to right, without those that the algorithm removes;
    /// nothing where one is not read in the direction of its level.
    [[nodiscard]] std::vector<qsizetype> orderBy(const TextDirections &directions) const {
        std::vector<qsizetype> found;
        for (const DirectedRun &run : directions.visualRuns(0, text.size())) {
            std::vector<qsizetype> part;
            for (std::size_t i = 0; i < firstUnits.size(); ++i) {
                const QByteArray &level = levels[static_cast<qsizetype>(i)];
                if (firstUnits[i] < run.first || firstUnits[i] >= run.end || level == "x") {
                    continue;
                }
                if ((level.toInt() % 2 == 1) != run.rightToLeft) {
                    return {};
                }
                part.push_back(static_cast<qsizetype>(i));
            }
            if (run.rightToLeft) {
                std::ranges::reverse(part);
            }
            found.insert(found.end(), part.begin(), part.end());
        }
        return found;
    }
};

} // namespace

/// Whether a case has what ICU treats otherwise where brackets or isolates are concerned:
/// embeddings and overrides, marks, and brackets nested more deeply than it looks.
bool mayBeOtherwiseByIcu(const BidiCase &test) {
    constexpr qsizetype kDepth = 63;
    return test.text.count(u'(') > kDepth || std::ranges::any_of(test.text, [](QChar unit) {
               return unit.isMark() || (unit >= u'\u202A' && unit <= u'\u202E');
           });
}

/// Unicode's own tests of what readable text needs.
class UnicodeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void linesBreakAsUnicodeSays() {
        const QByteArrayList lines = linesOfUnicode(u"auxiliary/LineBreakTest.txt"_s);
        QVERIFY2(lines.size() > 7000, "The package unicode-data is missing");
        const bool isOfIcu = isDataOfIcu();
        const ChangedCharacters changed;
        LineBreaks breaks;
        Failures failures;
        int byIcu = 0;
        qsizetype leftOut = 0;
        for (const QByteArray &line : lines) {
            UnicodeCase test{line, {}, {}};
            const std::vector<qsizetype> wanted = breaksOf(test);
            if (changed.standIn(test.text) || (!isOfIcu && hasHebrewHyphen(test.text))) {
                ++leftOut;
                continue;
            }
            breaks.setText(test.text);
            std::set<qsizetype> found;
            for (qsizetype unit = 1; unit < test.text.size(); ++unit) {
                found.insert(breaks.lastAtOrBefore(unit));
            }
            found.erase(0);
            const std::vector<qsizetype> got(found.begin(), found.end());
            if (got != wanted) {
                if (got == asIcuHasThem(wanted, test.text)) {
                    ++byIcu;
                } else {
                    failures.add(line, listed(got));
                }
            }
        }
        QVERIFY2(failures.none(), failures.words());
        QVERIFY2(byIcu <= 22, QByteArray::number(byIcu));
        QVERIFY2(leftOut < lines.size() / 20, QByteArray::number(leftOut));
        if (isOfIcu) {
            QCOMPARE(leftOut, qsizetype{0});
        }
    }

    void rowsAreOrderedAsUnicodeSays() {
        const QByteArrayList lines = linesOfUnicode(u"BidiCharacterTest.txt"_s);
        QVERIFY2(lines.size() > 90'000, "The package unicode-data is missing");
        Failures failures;
        int byIcu = 0;
        for (const QByteArray &line : lines) {
            const BidiCase test(line);
            const TextDirections directions(test.text);
            const std::vector<qsizetype> order = test.orderBy(directions);
            if (order != test.order || directions.isRightToLeft() != test.isRightToLeft) {
                if (mayBeOtherwiseByIcu(test)) {
                    ++byIcu;
                } else {
                    failures.add(line, listed(order));
                }
            }
        }
        QVERIFY2(failures.none(), failures.words());
        QVERIFY2(byIcu <= 31, QByteArray::number(byIcu));
    }
};

FOLIOFORGE_TEST(UnicodeTest)
#include "UnicodeTest.moc"
