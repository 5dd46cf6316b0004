// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/PageChoice.h"
#include "text/PageSetup.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <exception>
#include <initializer_list>
#include <limits>
#include <optional>
#include <utility>

namespace folioforge {

/// What is wrong with an argument, as a sentence without a full stop; caught by
/// parseArguments() and runConversion().
class ArgumentFault : public std::exception {
  public:
    explicit ArgumentFault(QString text)
        : m_text(std::move(text)) {}
    [[nodiscard]] const QString &text() const { return m_text; }

  private:
    QString m_text;
};

/// `bytes` as text. Throws ArgumentFault when they are not valid UTF-8.
QString textOf(const QByteArray &bytes);

/// What the file `name` of `option` holds, "-" for standard input. Throws ArgumentFault, which
/// names the option, where it cannot be read or has more than `most` bytes.
QByteArray contentsOf(const QByteArray &name, QLatin1StringView option,
                      qint64 most = std::numeric_limits<qint64>::max());

/// The same as text. Throws ArgumentFault also where that is not valid UTF-8.
QString textContentsOf(const QByteArray &name, QLatin1StringView option);

/// The lines in `contents`, also such as Windows ends.
QByteArrayList linesIn(const QByteArray &contents);

/// The value of the word `text` among `words`. Throws ArgumentFault when it is none of them.
template<typename Value>
Value chosen(const QString &text,
             std::initializer_list<std::pair<QLatin1StringView, Value>> words) {
    QStringList known;
    for (const auto &[word, value] : words) {
        if (text == word) {
            return value;
        }
        known += word;
    }
    throw ArgumentFault(
        QStringLiteral("\"%1\" is none of %2").arg(text, known.join(QStringLiteral(", "))));
}

// Lengths are read by pointsOf() and become whole points; `rounded` takes a sentence for each that
// is not one, such as "25mm is 71 points".

/// Margins from one length for all sides, "T,R" for top and bottom and for the sides, "T,R,B" with
/// equal sides, or "T,R,B,L". Throws ArgumentFault.
PageMargins parseMargins(const QString &text, QStringList &rounded);

/// Puts a paper that paperSize() knows, or "WxH", into `setup`. Throws ArgumentFault.
void parseTextPageSize(const QString &text, PageSetup &setup, QStringList &rounded);

/// Puts "image", a paper that paperSize() knows, or "WxH" into `setup`. Throws ArgumentFault.
void parseImagePageSize(const QString &text, PageSetup &setup, QStringList &rounded);

/// The path of a folder. Throws ArgumentFault where it is empty.
QString parseFolder(const QString &text);

/// An extension that is recognised, such as "txt", in lower case. Throws ArgumentFault.
QByteArray parseInputType(const QString &text);

/// A range of pages, and a turn of some, as pageRange() and pageTurn() know them. Throw
/// ArgumentFault.
QByteArray parsePageRange(const QString &text);
PageTurn parsePageTurn(const QString &text);

/// A whole number from `least` to `most`. Throws ArgumentFault.
int parseWhole(const QString &text, int least, int most);

/// A number from `least` to `most`, with a point where it is no whole one. Throws ArgumentFault.
double parseNumber(const QString &text, double least, double most);

} // namespace folioforge
