#pragma once

#include "SettingsSection.h"

#include <QUrl>

class AppState;
class FactBlock;
class FlowLayout;
class QPushButton;
struct SettingsSituation;

/// Which program this is, whether there is a newer one, and the vendor's pages.
class AboutSection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AboutSection)

public:
    explicit AboutSection(const AppState &state, QWidget *parent = nullptr);

    void render(const SettingsSituation &situation);

Q_SIGNALS:
    void checkUpdateRequested();
    void linkRequested(const QUrl &url);

private:
    void addLink(FlowLayout &links, const QString &text, const QString &objectName,
                 QLatin1StringView path);

    const AppState &m_state;
    FactBlock *m_versions = nullptr;
    QPushButton *m_checkUpdate = nullptr;
};
