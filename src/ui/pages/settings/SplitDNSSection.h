#pragma once

#include "SettingsSection.h"

#include <QStringList>

class AppState;
class ElidedLabel;
class QPushButton;
class SegmentedControl;
class SettingsField;
struct SettingsSituation;

/// How names are resolved while VantuVPN divides traffic.
class SplitDNSSection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SplitDNSSection)

public:
    explicit SplitDNSSection(const AppState &state, QWidget *parent = nullptr);

    void render(const SettingsSituation &situation);
    /// The daemon refused the last change.
    void keepTyped();

Q_SIGNALS:
    void localRequested(const QStringList &servers);
    void policyRequested(const QString &policy);
    void clearLocalRequested();
    void resetRequested();

private:
    void buildPolicy();
    void buildLocal();
    void buildReset();
    void applyLocal();
    void clearLocal();
    void reset();
    QString policyName(const QString &policy) const;

    const AppState &m_state;
    ElidedLabel *m_configuredPolicy = nullptr;
    ElidedLabel *m_effectivePolicy = nullptr;
    SegmentedControl *m_policy = nullptr;
    ElidedLabel *m_configuredLocal = nullptr;
    ElidedLabel *m_effectiveLocal = nullptr;
    SettingsField *m_local = nullptr;
    QPushButton *m_reset = nullptr;
};
