// vantu-tour: walks through the demonstration by itself and judges what it sees.

#include "Tour.h"

#include <QFileInfo>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    QString pictures = u"shots/tour"_s;
    if (const qsizetype at = arguments.indexOf("--pictures"_L1);
        at >= 0 && at + 1 < arguments.size()) {
        pictures = arguments.takeAt(at + 1);
        arguments.removeAt(at);
    }
    Tour tour(QCoreApplication::applicationDirPath(), QFileInfo(pictures).absoluteFilePath());
    return tour.run(arguments) ? 0 : 1;
}
