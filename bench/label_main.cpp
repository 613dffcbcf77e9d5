// The least that a windowed program can show: the peer of the start-up benchmark.

#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("0"));
    label.resize(480, 588);
    label.show();
    return QApplication::exec();
}
