#pragma once

#include <QCoreApplication>

/// The translation context of the Settings page, for the classes that it is made of.
class SettingsTexts final
{
    Q_DECLARE_TR_FUNCTIONS(SettingsPage)
};
