#pragma once

#include <QMetaType>
#include <QString>

/// The signed-in account.
struct UserInfo
{
    QString email;
    QString userNumber;
    QString role;
    bool emailChecked = false;
    int leftDays = 0;
    int maxDeviceCount = 0;

    bool operator==(const UserInfo &) const = default;
};

/// Link to the renewal page. It carries an access token: it may be opened, but
/// never shown, stored or logged.
struct PurchaseURLInfo
{
    QString url;

    bool operator==(const PurchaseURLInfo &) const = default;
};

Q_DECLARE_METATYPE(UserInfo)
Q_DECLARE_METATYPE(PurchaseURLInfo)
