// vantu-a11y: reads the client's window over the accessibility bus, as a screen reader
// does, prints it as a tree and judges whether everything in it can be understood.

#include "AccessibleTour.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    AccessibleTour tour(QCoreApplication::applicationDirPath() + u"/vantu-demo"_s);
    return tour.run(QCoreApplication::arguments().mid(1)) ? 0 : 1;
}
