#pragma once

#include "CatalogItemDelegate.h"
#include "CatalogTreeModel.h"
#include "MainWindow.h"
#include "ShellFixture.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;

/// Somebody in front of the window, who sees, points and types.
struct Person
{
    static constexpr auto kNodes =
        R"({"pingRunning":true,"nodes":[{"id":"t1","name":"Tokyo 1","tags":["x"]},
    {"id":"b1","name":"Berlin 1"}]})";

    Person()
    {
        desk.answer("GET /v1/nodes", kNodes);
        desk.answer("GET /v1/nodes/groups", R"({"tabs":[{"group_type":"Asia","node_ids":["t1"]},
            {"group_type":"Europe","node_ids":["b1"]}]})");
    }
    bool start() { return desk.start() && QTest::qWaitForWindowActive(desk.window()); }

    /// What nothing covers under this name, in any window and after scrolling to it; null
    /// when there is nothing.
    template<class Widget = QWidget>
    Widget *see(const QString &name) const
    {
        for (QWidget *widget : QApplication::allWidgets()) {
            auto *found = qobject_cast<Widget *>(widget);
            if (found && widget->objectName() == name && widget->isVisible() && isOnTop(widget)) {
                return found;
            }
        }
        return nullptr;
    }
    static bool isOnTop(QWidget *widget)
    {
        for (QWidget *each = widget->parentWidget(); each; each = each->parentWidget()) {
            if (auto *area = qobject_cast<QScrollArea *>(each)) {
                area->ensureWidgetVisible(widget);
            }
        }
        const QWidget *top = QApplication::widgetAt(widget->mapToGlobal(widget->rect().center()));
        return top == widget || widget->isAncestorOf(top);
    }
    bool press(const QString &name) const
    {
        QWidget *widget = see(name);
        const bool can = widget && widget->isEnabled();
        if (can) {
            QTest::mouseClick(widget, Qt::LeftButton);
        }
        return can;
    }
    /// Gives it the keyboard; a window that just came up has it a little later.
    static bool focus(QWidget *widget)
    {
        widget->setFocus();
        return QTest::qWaitFor([widget] { return QApplication::focusWidget() == widget; });
    }
    static void key(int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); }
    static void ctrl(int key)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), Qt::ControlModifier);
    }
    static void type(const char *text)
    {
        QTest::keyClicks(QApplication::focusWidget(), QLatin1StringView(text));
    }
    QString title() const { return desk.text(u"VantuCurrentPageTitle"_s); }
    bool reads(const QString &sentence) const
    {
        const QWidgetList all = QApplication::allWidgets();
        return std::any_of(all.begin(), all.end(), [&sentence](const QWidget *widget) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            return label && label->isVisible() && label->text() == sentence;
        });
    }
    /// A row of the list of places that is in sight.
    QModelIndex row(const char *text) const
    {
        for (auto *list : desk.window()->findChildren<QTreeView *>()) {
            for (const QModelIndex &index :
                 list->model()->match(list->model()->index(0, 0), Qt::DisplayRole,
                                      QLatin1StringView(text), -1, Qt::MatchRecursive)) {
                if (list->isVisible() && list->visualRect(index).isValid()) {
                    return index;
                }
            }
        }
        return {};
    }
    bool isStarred(const char *text) const
    {
        return row(text).data(CatalogTreeModel::FavoriteRole).toBool();
    }
    void pressStar(const char *text) const
    {
        const auto *list = see<QTreeView>(u"VantuLocationsTree"_s);
        const QRect star = CatalogItemDelegate::favoriteRect(list->visualRect(row(text)), {});
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, star.center());
    }
    /// Brings all places into sight.
    bool searchAll() const
    {
        ctrl(Qt::Key_2);
        ctrl(Qt::Key_F);
        type("1");
        return row("Tokyo 1").isValid() && row("Berlin 1").isValid();
    }

    ShellFixture desk;
};
