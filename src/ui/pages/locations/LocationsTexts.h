#pragma once

#include <QCoreApplication>
#include <QString>

/// The Locations page's texts that depend on something, in the page's translation
/// context. Labels are put in as they are.
class LocationsTexts final
{
    Q_DECLARE_TR_FUNCTIONS(LocationsPage)

public:
    /// Why a tab shows nothing; `code` is its key in upper case.
    static QString emptyTab(const QString &code, const QString &label);
    /// Why a search shows nothing; `label` names the tab that it is limited to.
    static QString noMatches(const QString &label);

    static QString toggleGroups(bool anyExpanded);
    static QString refresh(int cooldownSeconds, bool refreshing);
    static QString connectNode();
    /// `label` may be empty.
    static QString connectSmart(const QString &label);
};
