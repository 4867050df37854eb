#pragma once

#include <QFrame>
#include <QString>

/// A frame around buttons of which one is chosen. Assistive technology gets to know it as
/// a group with a name, and the checkable buttons right inside as radio buttons.
class ChoiceGroup : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChoiceGroup)

public:
    /// `accessibleName` says what is chosen here.
    explicit ChoiceGroup(const QString &accessibleName, QWidget *parent = nullptr);
};
