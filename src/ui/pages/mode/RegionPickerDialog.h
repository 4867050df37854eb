#pragma once

#include "PickerDialog.h"

#include <QList>
#include <QStringList>

class ElidedLabel;
class QPushButton;
class Theme;

/// A region that can be chosen: its code as the daemon spells it, and its name in the
/// interface's language.
struct RegionChoice
{
    QString code;
    QString name;
};

/// Lets the user tick the regions that use a route. Use open(); `applied` brings the
/// result. Lives on the GUI thread.
class RegionPickerDialog final : public PickerDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegionPickerDialog)

public:
    /// `route` is the translated name of the route; `chosen` are codes, compared without
    /// regard to case. Chosen codes that are no region of the list are put at its end.
    RegionPickerDialog(const QString &route, const QList<RegionChoice> &regions,
                       const QStringList &chosen, Theme &theme, QWidget *parent = nullptr);

    /// "No regions selected", or how many.
    static QString countText(int count);

Q_SIGNALS:
    /// The chosen codes, in the order of the list; codes that were chosen before keep
    /// their spelling.
    void applied(const QStringList &regions);

protected:
    void report(const QStringList &chosen) override;

private:
    void showCount();

    ElidedLabel *m_count = nullptr;
    QPushButton *m_clear = nullptr;
};
