#pragma once

#include "ModeRecords.h"
#include "ModeRouting.h"
#include "RegionNames.h"
#include "RestingFocus.h"

#include <QList>
#include <QWidget>

#include <functional>

class AppState;
class ElidedLabel;
class ModeDialogs;
class ModeOption;
class PageScrollArea;
class QFrame;
class QVBoxLayout;
class SegmentedControl;
class Theme;
struct ThemePalette;

/// The page on which it is chosen how the connection is made and which traffic takes it:
/// the mode, global or split routing with its rules, and the local network.
///
/// Shows what the store says and never what was clicked. Whatever the user wants leaves
/// it as a signal. Lives on the GUI thread.
class ModePage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ModePage)

public:
    /// Both must outlive the page.
    ModePage(AppState &state, Theme &theme, QWidget *parent = nullptr);

    void applyThemePalette(const ThemePalette &palette);
    /// While the daemon is away its values stay readable; `reason` stands above them.
    void setDaemonAvailable(bool available, const QString &reason);

    /// A change of the mode, or of the local network, is on its way to the daemon, whoever
    /// asked for it.
    void setChangeInFlight(bool mode, bool localNetwork);
    /// Why the last change failed; stays until the next one. An empty message becomes
    /// "Mode operation failed".
    void showOperationError(const QString &message);

    /// The split rules were asked for and have not come yet.
    void setSplitRulesLoading(bool loading);
    /// Why the split rules could not be had.
    void showSplitRulesError(const QString &message);
    /// The answer to an import; an empty `error` means that it was taken.
    void finishSplitRulesImport(const QString &error);

    /// Calls `proceed` once nothing that the user typed here would be lost by leaving:
    /// at once, or after the user agreed to discard it. Never, when the user stays.
    void whenSafeToLeave(std::function<void()> proceed);
    /// Closes what is open without asking; the program is leaving.
    void closeDialogs();

Q_SIGNALS:
    void setModeRequested(const ModeInfo &mode);
    void setLocalNetworkRequested(const QString &value);
    void splitRulesRequested();
    void importSplitRulesRequested(const QString &kind, const QString &content);
    void openKillSwitchSettingsRequested();

protected:
    void hideEvent(QHideEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    /// A mode to choose: its row and, in two of them, what belongs to it.
    struct Choice
    {
        QString transport;
        ModeOption *option = nullptr;
        ModeRouting *routing = nullptr;
    };

    void buildContent();
    void buildHeading(QVBoxLayout &column);
    QFrame *buildSummary(QWidget *parent);
    void buildOptions(QVBoxLayout &column, QWidget *parent);
    void addOption(QVBoxLayout &column, QWidget *parent, QLatin1StringView transport,
                   const QString &name, const QString &text, const QString &description);
    void addRouting(ModeRouting::Kind kind);
    QFrame *buildLocalNetwork(QWidget *parent);
    void connectSignals();

    void render();
    void renderSummary();
    void renderChoice(const Choice &choice);
    void renderRouting(ModeRouting &routing, bool proxy);
    void renderLocalNetwork();
    void updateBlocking(const std::function<void()> &change);
    QString blockingReason() const;

    const ModeInfo &mode() const;
    SplitProfile profile(bool proxy) const;
    void chooseMode(const QString &transport);
    void chooseRouting(bool proxy, bool split);
    void chooseProfile(bool proxy, const SplitProfile &profile);
    void chooseRegions(bool proxy);
    void chooseLocalNetwork(const QString &value);
    void request(const ModeInfo &mode);
    void applyRegions(const QStringList &regions);
    void closeOutdatedRegions();
    void stepFocus(const ModeOption *from, int step);
    void updateRulesWanted();
    void requestRules();

    AppState &m_state;
    ModeDialogs *m_dialogs = nullptr;
    RegionNames m_regionNames;
    bool m_available = true;
    QString m_awayReason;
    bool m_changingMode = false;
    bool m_changingLocalNetwork = false;
    QString m_error;
    bool m_rulesLoading = false;
    bool m_rulesWanted = false; ///< The rules are on show, or would be if they were here.
    QString m_rulesError;
    bool m_regionsOfProxy = false; ///< What the region picker is open for.
    QString m_regionsRoute;
    RestingFocus m_focus;

    PageScrollArea *m_scroll = nullptr;
    ElidedLabel *m_summaryTitle = nullptr;
    ElidedLabel *m_status = nullptr;
    ElidedLabel *m_summaryDetail = nullptr;
    QList<Choice> m_choices;
    SegmentedControl *m_localNetwork = nullptr;
};
