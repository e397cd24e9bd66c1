// What a start of the game window is measured by: a Qt main window with a menu and nothing else.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu("&File")->addAction("E&xit", &window, &QWidget::close);
    window.resize(1016, 718);
    window.show();
    return QApplication::exec();
}
