#pragma once

#include "SettingsSection.h"

class AppState;
class ElidedLabel;
class FactBlock;
class SegmentedControl;
class SettingsField;
struct SettingsSituation;

/// The system proxy and the local proxy: where it listens and how it is reached.
class ProxySection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProxySection)

public:
    explicit ProxySection(const AppState &state, QWidget *parent = nullptr);

    void render(const SettingsSituation &situation);
    /// The daemon refused the last change.
    void keepTyped();

Q_SIGNALS:
    void systemProxyRequested(const QString &value);
    void listenersRequested(const QString &socksAddress, const QString &httpAddress);
    /// An input that can't be sent, and why.
    void refused(const QString &message);

private:
    void buildSystemProxy();
    void buildListen();
    void applyListen();

    const AppState &m_state;
    ElidedLabel *m_summary = nullptr;
    SegmentedControl *m_systemProxy = nullptr;
    SettingsField *m_listen = nullptr;
    FactBlock *m_listeners = nullptr;
    FactBlock *m_access = nullptr;
};
