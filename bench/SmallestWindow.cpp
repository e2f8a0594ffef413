// The baseline for the start of the installer: an empty window of Qt, or one with a line of text.
//
//     smallestwindow [TEXT]

#include <QApplication>
#include <QLabel>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QWidget empty;
    QLabel line(argc > 1 ? argv[1] : "");
    (argc > 1 ? line : empty).show();
    return QApplication::exec();
}
