#pragma once

#include "ModeRecords.h"

#include <QFrame>
#include <QString>

class ElidedLabel;
class QPushButton;
class QVBoxLayout;
class SegmentedControl;
class ToggleSwitch;

/// What a ModeRouting shows. A reason that isn't empty disables what it is for and
/// becomes its tool tip, so that it must be fit for one.
struct RoutingView
{
    bool split = false;
    SplitProfile profile;
    QString customRules;        ///< How many there are; not shown for the proxy.
    QString customRulesProblem; ///< Why that isn't known; may be empty.
    QString blocked;            ///< Why nothing can be changed.
    QString splitBlocked;       ///< Why traffic can't be divided.
};

/// What belongs to the VantuVPN or proxy mode: global or split routing and, in split,
/// the default route, the regions and the rule lists. Lies right below the mode's
/// ModeOption and looks like one piece with it.
///
/// Shows what is, not what was clicked; clicks only report wishes.
class ModeRouting final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ModeRouting)

public:
    enum class Kind { VantuVPN, Proxy };

    explicit ModeRouting(Kind kind, QWidget *parent = nullptr);

    void render(const RoutingView &view);

Q_SIGNALS:
    void splitChosen(bool split);
    /// The shown profile with one member changed.
    void profileChosen(const SplitProfile &profile);
    void regionsRequested();
    void editRulesRequested();

private:
    QString name(const QString &part) const;
    void buildRouting(QVBoxLayout &column);
    void buildSplit(QVBoxLayout &column);
    void buildRegions(QVBoxLayout &column);
    void buildRuleLists(QVBoxLayout &column);
    void buildCustomRules(QVBoxLayout &column);
    void renderProfile();

    const bool m_proxy;
    RoutingView m_view;
    SegmentedControl *m_routing = nullptr;
    QWidget *m_splitOptions = nullptr;
    SegmentedControl *m_defaultRoute = nullptr;
    QPushButton *m_regions = nullptr;
    ElidedLabel *m_regionCount = nullptr;
    ToggleSwitch *m_gfwList = nullptr;
    // The proxy has no custom rules.
    ToggleSwitch *m_customRules = nullptr;
    QPushButton *m_editRules = nullptr;
    ElidedLabel *m_rulesSummary = nullptr;
};
