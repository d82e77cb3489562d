// An empty window of Qt, as large as Ondara's: what a start is measured against.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setObjectName(QStringLiteral("empty"));
    window.resize(605, 560);
    window.show();
    return QApplication::exec();
}
