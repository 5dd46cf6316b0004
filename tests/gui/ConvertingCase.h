// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "gui/TestWindow.h"
#include "support/Files.h"
#include "support/PdfProbe.h"

#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QRandomGenerator>

namespace folioforge::test {

/// Four megapixels of noise at 600 per inch.
inline QString photo(const TestWindow &w, const QString &name) {
    constexpr int kSide = 2000;
    QImage image(kSide, kSide, QImage::Format_RGB32);
    auto random = QRandomGenerator(7);
    for (int y = 0; y < kSide; ++y) {
        random.fillRange(reinterpret_cast<quint32 *>(image.scanLine(y)), kSide);
    }
    constexpr int kDotsPerMeter = 23622;
    image.setDotsPerMeterX(kDotsPerMeter);
    image.setDotsPerMeterY(kDotsPerMeter);
    image.save(w.path(name), "JPG", 95);
    return w.path(name);
}

inline void addTexts(TestWindow &w, int count) {
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        paths += w.file(QStringLiteral("%1.txt").arg(i, 3, 10, QLatin1Char('0')),
                        QByteArray("number ") + QByteArray::number(i) + "\n");
    }
    w.ctrl.addFiles(paths, -1);
}

inline void waitForTheEnd(const TestWindow &w) {
    QTRY_VERIFY_WITH_TIMEOUT(!w.ctrl.isConverting(), 60'000);
}

/// Presses Create and waits for the end of the run.
inline void run(TestWindow &w) {
    w.press("m_btnCreate");
    waitForTheEnd(w);
}

/// Shows the text settings and clicks the box "Readable layout" in them.
inline void tickReadable(TestWindow &w) {
    w.press("m_btnExpand");
    w.press("m_btnTxtSetting");
    auto *box = w.control<QCheckBox>("m_btnReadable");
    QTRY_VERIFY(box->isVisible());
    tick(*box);
}

inline void mergeInto(TestWindow &w, const QString &name) {
    w.control<QCheckBox>("m_btnMerge")->setChecked(true);
    w.control<QLineEdit>("m_tfOutputName")->setText(name);
}

inline QString outPath(const TestWindow &w, const QString &name) {
    return w.path(QStringLiteral("out/") + name);
}

/// Everything in the output folder, hidden files too.
inline QString outNames(const TestWindow &w) {
    return QDir(w.path(QStringLiteral("out")))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name)
        .join(u' ');
}

inline QString textOf(const TestWindow &w, const QString &name) {
    return PdfProbe(outPath(w, name)).text().simplified();
}

} // namespace folioforge::test
