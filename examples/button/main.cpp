// Shows a screen with the report button. Each press writes a report into the directory.
//
// usage: button SCHEMA.xsd DIRECTORY

#include <QApplication>

#include "screen.h"

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    Screen screen(arguments.value(1), arguments.value(2));
    screen.show();
    return QApplication::exec();
}
