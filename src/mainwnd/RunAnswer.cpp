// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/RunAnswer.h"

#include "files/Printable.h"

#include <QAccessible>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

// English has a text of its own for one, as it has no translator that would know of plurals.

/// "book.pdf made, 210 pages, 3.4 MB".
QString onePdf(const RunSummary &summary) {
    const QFileInfo file(summary.lastPath);
    const QString words = summary.pages == 1
                              ? RunAnswer::tr("%1 made, 1 page, %2")
                              : RunAnswer::tr("%1 made, %n pages, %2", nullptr, summary.pages);
    return words.arg(printable(file.fileName()),
                     QLocale().formattedDataSize(file.size(), 1, QLocale::DataSizeSIFormat));
}

QString severalPdfs(int count) {
    return count == 1 ? RunAnswer::tr("1 PDF made") : RunAnswer::tr("%n PDFs made", nullptr, count);
}

/// How many PDFs, or how many files of a merged one, are missing.
QString failuresOf(const RunSummary &summary) {
    if (summary.failedEntries > 0) {
        const int files = summary.failedEntries;
        return files == 1 ? RunAnswer::tr("1 file could not be added")
                          : RunAnswer::tr("%n files could not be added", nullptr, files);
    }
    const int pdfs = summary.failedPDFs;
    return pdfs == 1 ? RunAnswer::tr("1 could not be", "PDF, made")
                     : RunAnswer::tr("%n could not be", "PDFs, made", pdfs);
}

QString inWords(const RunSummary &summary) {
    if (summary.madePDFs == 0) {
        return summary.failedPDFs == 1 ? RunAnswer::tr("The PDF could not be made")
                                       : RunAnswer::tr("No PDF could be made");
    }
    const bool isOne = summary.madePDFs + summary.failedPDFs == 1;
    const QString count = isOne ? onePdf(summary) : severalPdfs(summary.madePDFs);
    const QString made =
        summary.areVerified ? RunAnswer::tr("%1, every page checked").arg(count) : count;
    return summary.hasFailures() ? RunAnswer::tr("%1, %2", "what was made, what was not")
                                       .arg(made, failuresOf(summary))
                                 : made;
}

} // namespace

RunAnswer::RunAnswer(QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel) {
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setObjectName(u"answerText"_s);
    row->addWidget(m_label);
    m_open = addButton(tr("Open"), tr("Open the PDF"));
    m_folder = addButton(tr("Show in folder"), tr("Open the folder of the PDF documents"));
    m_failures = addButton(tr("Show"), tr("Select the files that are in no PDF"));
    row->addStretch();
    connect(m_open, &QPushButton::clicked, this, [this] { Q_EMIT openAsked(m_path); });
    connect(m_folder, &QPushButton::clicked, this,
            [this] { Q_EMIT folderAsked(QFileInfo(m_path).path()); });
    connect(m_failures, &QPushButton::clicked, this, &RunAnswer::failuresAsked);
    // Its room stays free, so that nothing moves when it comes.
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    setSizePolicy(policy);
    hide();
}

QPushButton *RunAnswer::addButton(const QString &label, const QString &toolTip) {
    auto *button = new QPushButton(label);
    button->setToolTip(toolTip);
    button->setAccessibleName(label);
    layout()->addWidget(button);
    return button;
}

void RunAnswer::show(const RunSummary &summary) {
    m_text = inWords(summary);
    m_path = summary.lastPath;
    const bool isOne = summary.madePDFs == 1;
    m_open->setVisible(isOne);
    m_folder->setVisible(summary.madePDFs > 0);
    m_failures->setVisible(summary.hasFailures());
    m_label->setToolTip(m_text);
    setVisible(true);
    elide();
    m_label->setAccessibleName(m_text);
    QAccessibleEvent event(m_label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

QString RunAnswer::text() const {
    return isHidden() ? QString() : m_text;
}

void RunAnswer::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    elide();
}

/// The buttons keep their room; a long name gives way.
void RunAnswer::elide() {
    int room = width();
    for (const QPushButton *button : {m_open, m_folder, m_failures}) {
        room -= button->isHidden() ? 0 : button->sizeHint().width() + layout()->spacing();
    }
    m_label->setText(m_label->fontMetrics().elidedText(m_text, Qt::ElideMiddle, room));
}

} // namespace folioforge
