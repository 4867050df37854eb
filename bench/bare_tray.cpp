// The yardstick: a QApplication, a menu with one entry, and a tray icon.

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QPixmap picture(64, 64);
    picture.fill(Qt::darkGreen);
    QMenu menu;
    QObject::connect(menu.addAction(u"Quit"_s), &QAction::triggered, &application,
                     &QCoreApplication::quit);
    QSystemTrayIcon icon{QIcon(picture)};
    icon.setContextMenu(&menu);
    icon.show();
    return QApplication::exec();
}
