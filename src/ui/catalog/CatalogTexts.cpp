#include "CatalogTexts.h"

#include "PlainText.h"

#include <QCoreApplication>
#include <QStringList>

namespace catalogtexts {

// These two belong to the quick entry, whose translations live with the main window.
QString latency(int milliseconds)
{
    return QCoreApplication::translate("MainWindow", "%1 ms").arg(milliseconds);
}

QString favorite()
{
    return QCoreApplication::translate("MainWindow", "Favorite");
}

QString connectedServer()
{
    return QCoreApplication::translate("CatalogTreeModel", "Connected server");
}

QString spoken(const Place &place)
{
    QStringList parts{place.name, place.group};
    if (place.latency >= 0) {
        parts += latency(place.latency);
    }
    if (place.favorite) {
        parts += favorite();
    }
    parts += place.state;
    parts.removeAll(QString());
    return plaintext::list(parts);
}

} // namespace catalogtexts
