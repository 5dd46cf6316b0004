// SPDX-License-Identifier: Apache-2.0

#include "pdf/DeflateBatches.h"
#include "support/TestUnit.h"

#include <QTest>

#include <stdexcept>

using namespace folioforge;

namespace {

struct Kept {
    int stream = 0;
    QByteArray content;
};

/// What a zlib stream holds, as Qt's reader has it.
QByteArray content(QByteArrayView compressed, qsizetype size) {
    QByteArray withSize(4, '\0');
    for (int i = 0; i < 4; ++i) {
        withSize[i] = static_cast<char>(size >> (24 - 8 * i));
    }
    return qUncompress(withSize.append(compressed));
}

QByteArray page(int number) {
    return QByteArray("Page " + QByteArray::number(number) + ' ').repeated(number % 300);
}

} // namespace

class DeflateBatchesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void storesEveryStreamInOrder_data() {
        QTest::addColumn<int>("count");
        QTest::newRow("none") << 0;
        QTest::newRow("one, which makes no batch") << 1;
        QTest::newRow("3.6 MB, which makes many") << 3000;
    }
    void storesEveryStreamInOrder() {
        QFETCH(const int, count);
        std::vector<Kept> kept;
        DeflateBatches batches([&](const QPDFObjGen &stream, QByteArrayView compressed) {
            const int number = stream.getObj();
            kept.push_back({number, content(compressed, page(number).size())});
        });
        for (int i = 1; i <= count; ++i) {
            batches.add(QPDFObjGen(i, 0), page(i));
        }
        batches.wait();
        QCOMPARE(kept.size(), static_cast<std::size_t>(count));
        for (int i = 1; i <= count; ++i) {
            QCOMPARE(kept[static_cast<std::size_t>(i - 1)].stream, i);
            QCOMPARE(kept[static_cast<std::size_t>(i - 1)].content, page(i));
        }
    }

    void tellsWhatCannotBeKeptBeforeItIsSettled() {
        DeflateBatches batches([](const QPDFObjGen & /*stream*/, QByteArrayView /*compressed*/) {
            throw std::runtime_error("full");
        });
        batches.add(QPDFObjGen(1, 0), page(1));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, batches.wait());
    }

    void forgetsWhatIsDropped() {
        std::vector<int> kept;
        DeflateBatches batches([&](const QPDFObjGen &stream, QByteArrayView /*compressed*/) {
            kept.push_back(stream.getObj());
        });
        batches.add(QPDFObjGen(1, 0), QByteArray(1 << 20, 'x')); // A batch by itself.
        batches.add(QPDFObjGen(2, 0), page(2));
        batches.drop();
        batches.add(QPDFObjGen(3, 0), page(3));
        batches.wait();
        QCOMPARE(kept, std::vector{3});
    }

    void mayGoAwayWhileABatchIsCompressed() {
        int kept = 0;
        {
            DeflateBatches batches(
                [&](const QPDFObjGen & /*stream*/, QByteArrayView /*compressed*/) { ++kept; });
            batches.add(QPDFObjGen(1, 0), QByteArray(1 << 20, 'x'));
        }
        QCOMPARE(kept, 0);
    }
};

FOLIOFORGE_TEST(DeflateBatchesTest)
#include "DeflateBatchesTest.moc"
