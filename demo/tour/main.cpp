// vantu-tour: walks through the demonstration by itself and judges what it sees.

#include "Tour.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    QString pictures = u"shots/tour"_s;
    if (const qsizetype at = arguments.indexOf("--pictures"_L1); at >= 0) {
        if (arguments.value(at + 1).isEmpty()) {
            std::fputs("vantu-tour: --pictures needs a folder\n", stderr);
            return 1;
        }
        pictures = arguments.takeAt(at + 1);
        arguments.removeAt(at);
    }
    Tour tour(QCoreApplication::applicationDirPath(), QFileInfo(pictures).absoluteFilePath());
    return tour.run(arguments) ? 0 : 1;
}
