#pragma once

#include "TitleBarHook.h"

#include <QObject>

/// Keeps one dialog's title bar in the colours of its palette: calls the hook when
/// the dialog is shown and whenever its palette changes. A child of the dialog.
class TitleBarThemer final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TitleBarThemer)

public:
    TitleBarThemer(QWidget &dialog, TitleBarHook hook);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_dialog;
    TitleBarHook m_hook;
};
