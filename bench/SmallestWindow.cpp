// The least that Qt shows, beside which the start of the installer is measured.

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.show();
    return QApplication::exec();
}
