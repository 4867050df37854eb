#pragma once

#include "ColorScheme.h"

#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QObject>
#include <QPalette>
#include <QSortFilterProxyModel>
#include <QStyleHints>

/// What differs between the supported releases of Qt's user interface modules: the
/// only place of the look that asks for Qt's version.
namespace qtcompat {

#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
/// The desktop's colour scheme as Qt tells it; Unknown where it can't.
inline ColorScheme colorSchemeHint()
{
    switch (QGuiApplication::styleHints()->colorScheme()) {
    case Qt::ColorScheme::Dark:
        return ColorScheme::Dark;
    case Qt::ColorScheme::Light:
        return ColorScheme::Light;
    case Qt::ColorScheme::Unknown:
        break;
    }
    return ColorScheme::Unknown;
}

/// Calls `slot`, a member of `receiver`, after each change of colorSchemeHint().
template<typename Receiver>
void onColorSchemeHintChanged(Receiver *receiver, void (Receiver::*slot)())
{
    QObject::connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, receiver,
                     slot);
}
#else
inline ColorScheme colorSchemeHint()
{
    return ColorScheme::Unknown;
}

template<typename Receiver>
void onColorSchemeHintChanged(Receiver *, void (Receiver::*)())
{}
#endif

/// Sets the palette's accent role, which older releases of Qt don't have.
inline void setAccent([[maybe_unused]] QPalette &palette,
                      [[maybe_unused]] QPalette::ColorGroup group,
                      [[maybe_unused]] const QColor &color)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    palette.setColor(group, QPalette::Accent, color);
#endif
}

/// Gives all digits the same width where the font and Qt can, so that a number that
/// changes doesn't dance. Most fonts of desktops have such digits anyway.
inline void setTabularFigures([[maybe_unused]] QFont &font)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    font.setFeature(QFont::Tag("tnum"), 1);
#endif
}

/// A proxy model whose choice of rows changes as a whole.
class RowFilterProxyModel : public QSortFilterProxyModel
{
protected:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// Runs `change`, after which filterAcceptsRow() answers differently, and lets the
    /// views know.
    template<typename Change>
    void changeRowsFilter(Change change)
    {
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
        beginFilterChange();
        change();
        endFilterChange(QSortFilterProxyModel::Direction::Rows);
#else
        // As one change of the layout: told row by row, as invalidateRowsFilter() does,
        // each run of rows costs a walk over all indexes that the views remember.
        change();
        invalidate();
#endif
    }
};

} // namespace qtcompat
