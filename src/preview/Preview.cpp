// SPDX-License-Identifier: Apache-2.0

#include "preview/Preview.h"

#include "preview/PageView.h"

#include <QFile>
#include <QImage>

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr std::chrono::milliseconds kCalm(150);
constexpr std::chrono::milliseconds kPatience(500); ///< What comes sooner needs no words.
/// Of a long text so many pages are written at first: more than most texts have, and fast.
constexpr int kFirstPages = 64;
constexpr int kAllPages = std::numeric_limits<int>::max() - 1;

} // namespace

QString Preview::programIn(const QString &bundlePath) {
    return bundlePath + u"/Contents/MacOS/folioforge-page"_s;
}

Preview::Preview(const QString &bundlePath, Ask ask)
    : m_ask(std::move(ask))
    , m_panel(new PreviewPanel)
    , m_writer(bundlePath)
    , m_process(programIn(bundlePath)) {
    m_panel->hide();
    for (QTimer *timer : {&m_calm, &m_resize, &m_patience}) {
        timer->setSingleShot(true);
        timer->setInterval(kCalm);
    }
    m_patience.setInterval(kPatience);
    connect(&m_calm, &QTimer::timeout, this, &Preview::follow);
    connect(&m_resize, &QTimer::timeout, this, &Preview::draw);
    connect(&m_panel->view(), &PageView::resized, &m_resize, qOverload<>(&QTimer::start));
    connect(m_panel, &PreviewPanel::pageAsked, this, &Preview::turnTo);
    connect(&m_writer, &EntryWriter::written, this,
            qOverload<const WrittenEntry &>(&Preview::show));
    connect(&m_process, &PageProcess::drawn, this, qOverload<const DrawnPage &>(&Preview::show));
    connect(&m_process, &PageProcess::failed, this, &Preview::showFailure);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        if (m_panel->view().isEmpty() || !isPageWritten()) {
            m_panel->showWords(tr("Drawing the page…"), {m_page, 0, false});
        }
    });
}

Preview::~Preview() = default;

void Preview::open() {
    m_panel->show();
    m_panel->setFocus();
    follow();
}

void Preview::close() {
    m_panel->hide();
    m_calm.stop();
    m_resize.stop();
    m_patience.stop();
    m_writer.stop();
    m_process.stop();
}

void Preview::refresh() {
    if (isOpen()) {
        m_calm.start();
    }
}

/// What is shown stays until the new page is there, unless it is of another file.
void Preview::follow() {
    m_subject = m_ask();
    m_writer.stop();
    m_process.stop();
    if (const QString &source = m_subject.entry.filePathName();
        std::exchange(m_source, source) != source) {
        m_panel->setFile(m_subject.entry.fileName());
        m_page = 0;
        m_pages = 0;
        m_document.clear();
        m_countedPages = kFirstPages;
        m_patience.start();
    }
    if (!m_subject.problem.isEmpty()) {
        m_document.clear();
        m_panel->showWords(m_subject.problem, {});
    } else if (!m_subject.document.isEmpty()) {
        m_document = m_subject.document;
        m_password = m_subject.password;
        m_hasMore = false;
        draw();
    } else {
        write();
    }
}

void Preview::write() {
    ConversionOptions options = m_subject.options;
    options.maxTextPages = m_countedPages + 1; // One more tells that there are more.
    m_writer.write(m_subject.entry, std::move(options));
}

void Preview::show(const WrittenEntry &entry) {
    m_document = entry.path;
    m_password = entry.password;
    m_hasMore = entry.pages > m_countedPages;
    m_pages = m_hasMore ? m_countedPages : entry.pages;
    if (m_document.isEmpty()) {
        m_panel->showWords(entry.reason, {});
    } else {
        draw();
    }
}

bool Preview::isPageWritten() const {
    return !m_hasMore || m_page < m_pages;
}

void Preview::draw() {
    if (isOpen() && !m_document.isEmpty() && isPageWritten()) {
        m_process.draw({m_document, m_page, m_panel->view().room()}, m_password);
    }
}

void Preview::show(const DrawnPage &page) {
    m_page = page.page;
    m_pages = m_hasMore ? m_pages : page.pages;
    const QImage picture(reinterpret_cast<const uchar *>(page.pixels.constData()),
                         page.size.width(), page.size.height(), QImage::Format_RGB32);
    m_panel->showPage(picture.copy(), {m_page, m_pages, m_hasMore});
}

/// Of a page that cannot be drawn one can turn to the others, as long as there is a document.
void Preview::showFailure(const QString &reason) {
    if (!QFile::exists(m_document)) {
        m_pages = 0;
        m_panel->showWords(tr("The PDF is no longer there"), {});
        return;
    }
    m_page = std::clamp(m_page, 0, std::max(m_pages - 1, 0));
    m_panel->showWords(reason, {m_page, m_pages, m_hasMore});
}

/// A page of a text that is not written yet is written with all before it, and some behind it: the
/// next one of twice as many, one that is far away of all.
void Preview::turnTo(int page) {
    if (m_document.isEmpty()) {
        return;
    }
    m_page = std::max(page, 0);
    if (!isPageWritten() && m_page >= m_countedPages) {
        m_countedPages = m_page < 2 * m_countedPages ? 2 * m_countedPages : kAllPages;
        m_process.stop(); // It would come back with the page before.
        m_patience.start();
        write();
    }
    draw();
}

} // namespace folioforge
