// The least window that Qt shows: what the toolkit itself takes to start.

#include <QApplication>
#include <QLabel>

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QLabel label(QStringLiteral("A window with a label"));
    label.resize(1000, 720);
    label.show();
    return QApplication::exec();
}
