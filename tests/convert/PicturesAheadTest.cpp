// SPDX-License-Identifier: Apache-2.0

#include "convert/PicturesAhead.h"

#include "ConversionCase.h"
#include "files/SystemCalls.h"
#include "support/TestUnit.h"

#include <QImage>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <string_view>
#include <thread>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

std::string nameIn(const char *path) {
    const std::string_view whole(path);
    return std::string(whole.substr(whole.rfind('/') + 1));
}

/// Lets the first file wait until the second one is opened, too.
class WaitingCalls final : public SystemCalls {
  public:
    int open(const char *path, int flags, mode_t mode) override {
        std::unique_lock lock(m_mutex);
        m_opened.insert(nameIn(path));
        m_changed.notify_all();
        if (nameIn(path) == "0.bmp") {
            hasMet = m_changed.wait_for(lock, std::chrono::seconds(10),
                                        [this] { return m_opened.contains("1.bmp"); });
        }
        return SystemCalls::open(path, flags, mode);
    }

    bool hasMet = false;

  private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::set<std::string> m_opened;
};

/// Has no memory to open the second file, once.
class ScarceCalls final : public SystemCalls {
  public:
    int open(const char *path, int flags, mode_t mode) override {
        const std::lock_guard lock(m_mutex);
        if (nameIn(path) == "1.bmp" && !hasFailed) {
            hasFailed = true;
            errno = ENOMEM;
            return -1;
        }
        return SystemCalls::open(path, flags, mode);
    }

    bool hasFailed = false;

  private:
    std::mutex m_mutex;
};

} // namespace

/// Pictures that are read before their turn, several at once.
class PicturesAheadTest : public QObject, protected test::ConversionCase {
    Q_OBJECT

    /// Pictures 0.bmp and on of those widths, as pixels and as points.
    void addPictures(const std::vector<int> &widths) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            QImage image(widths[i], 100, QImage::Format_RGB32);
            image.fill(Qt::darkCyan);
            image.setDotsPerMeterX(2835);
            image.setDotsPerMeterY(2835);
            const QString file = path(qPrintable(u"%1.bmp"_s.arg(i)));
            QVERIFY(image.save(file));
            addFile(file);
        }
    }

    /// Those of the pages, in points.
    static std::vector<int> widthsOf(const QString &pdf) {
        const test::PdfProbe probe(pdf);
        std::vector<int> widths;
        for (int page = 1; page <= probe.pageCount(); ++page) {
            widths.push_back(qRound(probe.box(u"MediaBox"_s, page).width()));
        }
        return widths;
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void pagesStandInTheOrderOfTheList() {
        const std::vector<int> widths{3000, 20,   2000,
                                      40,   1000, 60}; // The small ones are done first.
        addPictures(widths);
        QCOMPARE(widthsOf(converted("out/all.pdf")), widths);
    }

    void aPictureIsReadWhileTheOneBeforeItIs() {
        addPictures({30, 20});
        WaitingCalls calls;
        m_options.calls = calls;
        converted("out/all.pdf");
        QCOMPARE(calls.hasMet, std::thread::hardware_concurrency() > 1);
    }

    void whatFailsBesideOthersIsTriedAgainAlone() {
        addPictures({30, 20, 10});
        ScarceCalls calls;
        m_options.calls = calls;
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QVERIFY(calls.hasFailed);
        QCOMPARE(outcome.entries.at(1).reason, QString());
        QCOMPARE(outcome.pages(), 3);
    }

    void aStopEndsWhatIsReadAhead() {
        addPictures(std::vector<int>(40, 900));
        test::Stopper stopper;
        const PDFOutcome outcome =
            convertTo(path("out/all.pdf"), &stopper, stopper.source.get_token());
        QCOMPARE(outcome.entries.size(), 1);
        QVERIFY(outputs().isEmpty());
    }

    void aPictureThatCannotBeReadLeavesTheOthersInTheirOrder() {
        addPictures({30, 20, 10});
        test::writeFile(path("1.bmp"), "BM, and no picture");
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QVERIFY(!outcome.entries.at(1).reason.isEmpty());
        QCOMPARE(widthsOf(outcome.close.path), (std::vector<int>{30, 10}));
    }

    void anEntryThatFailsBeforeItHasAPictureGivesItToNoOther() {
        addPictures({30, 20, 10});
        QVERIFY(QFile::remove(path("0.bmp")));
        m_options.tagged = true; // For which the file is looked at first.
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QVERIFY(!outcome.entries.at(0).reason.isEmpty());
        QCOMPARE(widthsOf(outcome.close.path), (std::vector<int>{20, 10}));
    }
};

FOLIOFORGE_TEST(PicturesAheadTest)
#include "PicturesAheadTest.moc"
