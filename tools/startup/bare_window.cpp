// What any window of the toolkit costs to start: the measure for tools/startup_time.py.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("A label")));
    window.resize(640, 480);
    window.show();
    return QApplication::exec();
}
