#include "CatalogTexts.h"

#include <QCoreApplication>

namespace catalogtexts {

// Both belong to the quick entry's texts, whose translations live with the main window.
QString latency(int milliseconds)
{
    return QCoreApplication::translate("MainWindow", "%1 ms").arg(milliseconds);
}

QString favorite()
{
    return QCoreApplication::translate("MainWindow", "Favorite");
}

} // namespace catalogtexts
