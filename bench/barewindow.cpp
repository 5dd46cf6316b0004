// SPDX-License-Identifier: Apache-2.0

// The least window that Qt shows: what the toolkit itself takes to start.

#include <QApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QLabel label(u"A window with a label"_s);
    label.resize(1000, 720);
    label.show();
    return QApplication::exec();
}
