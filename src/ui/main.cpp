#include <QApplication>

// Placeholder until the main window lands.
int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    return 0;
}
