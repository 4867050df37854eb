#pragma once

#include <QCoreApplication>

/// The texts of the shell and its concerns share one translation context:
/// `ShellText::tr("…")`.
class ShellText final
{
    Q_DECLARE_TR_FUNCTIONS(VantuAppShell)
};
