#include "SettingsPage.h"

#include "AboutSection.h"
#include "AdvancedSection.h"
#include "Announce.h"
#include "AppState.h"
#include "AppearanceSection.h"
#include "DiagnosticsSection.h"
#include "FactBlock.h"
#include "GeneralSection.h"
#include "HandOnTheme.h"
#include "KillSwitchSection.h"
#include "LanguageSection.h"
#include "PageScrollArea.h"
#include "PlainText.h"
#include "ProxySection.h"
#include "SplitDNSSection.h"
#include "StyleProperty.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSectionGap = 16;
/// Longest message of the daemon that is shown.
constexpr qsizetype kMaxMessageLength = 500;

/// The column of sections. Its height follows from its width alone: the least heights of
/// its texts hold room for lines that they don't have.
class ScrollContent final : public QWidget
{
public:
    using QWidget::QWidget;

    QSize minimumSizeHint() const override { return {QWidget::minimumSizeHint().width(), 0}; }
};

} // namespace

SettingsPage::SettingsPage(AppState &state, GuiPreferences &preferences, Theme &theme,
                           QWidget *parent)
    : QWidget(parent)
{
    buildMessage();
    buildContent(state, preferences, theme);
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(kSectionGap);
    auto *top = new QVBoxLayout;
    top->setContentsMargins(PageScrollArea::kSideMargin, 0, PageScrollArea::kSideMargin, 0);
    top->addWidget(m_message);
    page->addLayout(top);
    page->addWidget(m_scroll, 1);
    connectState(state);
    connectSections();
    connectInputs();
    render();
}

void SettingsPage::buildMessage()
{
    // Above what scrolls, so that it is seen wherever the user is.
    m_message = new QLabel(this);
    m_message->setObjectName(u"VantuSettingsMessage"_s);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                            Qt::AlignVCenter);
    m_message->setMaximumWidth(PageScrollArea::kColumnWidth);
}

void SettingsPage::buildContent(AppState &state, GuiPreferences &preferences, Theme &theme)
{
    m_scroll = new PageScrollArea(this);
    m_scroll->setObjectName(u"VantuSettingsScrollArea"_s);

    auto *content = new ScrollContent;
    content->setObjectName(u"VantuSettingsScrollContent"_s);
    m_general = new GeneralSection(state, preferences, content);
    m_killSwitch = new KillSwitchSection(state, theme, content);
    m_proxy = new ProxySection(state, content);
    m_splitDNS = new SplitDNSSection(state, content);
    m_appearance = new AppearanceSection(preferences, content);
    m_language = new LanguageSection(state, preferences, theme, content);
    m_advanced = new AdvancedSection(state, content);
    m_diagnostics = new DiagnosticsSection(state, content);
    m_about = new AboutSection(state, content);

    QVBoxLayout *column = m_scroll->setContent(*content);
    column->setSpacing(kSectionGap);
    for (QWidget *section : std::initializer_list<QWidget *>{m_general, m_killSwitch, m_proxy,
                                                             m_splitDNS, m_appearance, m_language,
                                                             m_advanced, m_diagnostics, m_about}) {
        column->addWidget(section);
    }
    column->addStretch(1);
}

void SettingsPage::connectState(const AppState &state)
{
    connect(&state, &AppState::runtimeChanged, this, &SettingsPage::render);
    connect(&state, &AppState::killSwitchChanged, this, &SettingsPage::render);
    connect(&state, &AppState::configPathsChanged, this, &SettingsPage::render);
    connect(&state, &AppState::versionChanged, this, &SettingsPage::render);
    connect(&state, &AppState::apiURLConfigChanged, this, &SettingsPage::render);
    connect(&state, &AppState::languageConfigChanged, this, &SettingsPage::render);
    connect(&state, &AppState::updateChanged, this, &SettingsPage::render);
    connect(&state, &AppState::splitDNSChanged, this, &SettingsPage::render);
}

template<typename Section, typename... Arguments>
void SettingsPage::forward(Section *section, void (Section::*request)(Arguments...),
                           void (SettingsPage::*signal)(Arguments...))
{
    connect(section, request, this, &SettingsPage::clearError);
    connect(section, request, this, signal);
}

void SettingsPage::connectSections()
{
    using Page = SettingsPage;
    forward(m_general, &GeneralSection::autoConnectRequested, &Page::setAutoConnectRequested);
    forward(m_general, &GeneralSection::launchAtLoginRequested, &Page::launchAtLoginRequested);
    forward(m_general, &GeneralSection::showWindowOnLaunchRequested,
            &Page::showWindowOnLaunchRequested);

    using KillSwitch = KillSwitchSection;
    forward(m_killSwitch, &KillSwitch::enabledRequested, &Page::setKillSwitchEnabledRequested);
    forward(m_killSwitch, &KillSwitch::modeRequested, &Page::setKillSwitchModeRequested);
    forward(m_killSwitch, &KillSwitch::switchToAutoAndEnableRequested,
            &Page::switchToAutoAndEnableKillSwitchRequested);
    forward(m_killSwitch, &KillSwitch::chooseModeRequested,
            &Page::chooseModeForKillSwitchRequested);
    forward(m_killSwitch, &KillSwitch::routingModeRequested, &Page::openRoutingModeRequested);

    forward(m_appearance, &AppearanceSection::appearanceRequested,
            &Page::appearancePreferenceRequested);
    forward(m_language, &LanguageSection::languageRequested, &Page::setLanguageRequested);
    forward(m_diagnostics, &DiagnosticsSection::openLogsRequested, &Page::openLogsRequested);
    forward(m_diagnostics, &DiagnosticsSection::repairRequested, &Page::repairDiagnosticsRequested);
    forward(m_about, &AboutSection::checkUpdateRequested, &Page::checkUpdateRequested);
    forward(m_about, &AboutSection::linkRequested, &Page::openExternalURLRequested);
}

/// The sections with fields to type in.
void SettingsPage::connectInputs()
{
    using Page = SettingsPage;
    forward(m_proxy, &ProxySection::systemProxyRequested, &Page::setSystemProxyRequested);
    forward(m_proxy, &ProxySection::listenersRequested, &Page::setProxyListenersRequested);
    forward(m_splitDNS, &SplitDNSSection::localRequested, &Page::setSplitDNSLocalRequested);
    forward(m_splitDNS, &SplitDNSSection::policyRequested, &Page::setSplitDNSPolicyRequested);
    forward(m_splitDNS, &SplitDNSSection::clearLocalRequested, &Page::clearSplitDNSLocalRequested);
    forward(m_splitDNS, &SplitDNSSection::resetRequested, &Page::resetSplitDNSRequested);
    forward(m_advanced, &AdvancedSection::apiURLRequested, &Page::setAPIURLRequested);
    forward(m_advanced, &AdvancedSection::resetRequested, &Page::resetAPIURLRequested);
    connect(m_killSwitch, &KillSwitchSection::refused, this, &SettingsPage::showError);
    connect(m_proxy, &ProxySection::refused, this, &SettingsPage::showError);
}

void SettingsPage::applyThemePalette(const ThemePalette &palette)
{
    handOnTheme(*this, palette);
    for (FactBlock *block : findChildren<FactBlock *>()) {
        block->applyThemePalette(palette);
    }
}

void SettingsPage::setDaemonAvailable(bool available, const QString &reason)
{
    if (available && !m_situation.available) {
        m_error.clear(); // It was about the time before.
    } else if (!available && m_situation.available) {
        m_focus.rest(*m_scroll);
    }
    m_situation.available = available;
    m_situation.unavailableReason = reason;
    render();
    m_focus.giveBack();
}

void SettingsPage::setRequestInFlight(bool inFlight)
{
    if (m_situation.requestInFlight == inFlight) {
        return;
    }
    m_situation.requestInFlight = inFlight;
    if (inFlight) {
        clearError();
        m_focus.rest(*m_scroll);
    }
    render();
    m_focus.giveBack();
}

void SettingsPage::setUpdateCheckInFlight(bool inFlight)
{
    if (m_situation.updateCheckInFlight == inFlight) {
        return;
    }
    m_situation.updateCheckInFlight = inFlight;
    // One that begins by itself disturbs nobody who types elsewhere.
    if (inFlight && m_about->isAncestorOf(window()->focusWidget())) {
        m_focus.rest(*m_scroll);
    }
    render();
    m_focus.giveBack();
}

void SettingsPage::showOperationError(const QString &message)
{
    m_proxy->keepTyped();
    m_splitDNS->keepTyped();
    m_advanced->keepTyped();
    const QString text = plaintext::singleLine(message, kMaxMessageLength);
    showError(text.isEmpty() ? tr("Settings operation failed") : text);
}

void SettingsPage::showError(const QString &message)
{
    m_error = message;
    render();
    announce(*m_message);
}

void SettingsPage::clearError()
{
    m_error.clear();
    renderMessage();
}

void SettingsPage::redraw()
{
    render();
}

void SettingsPage::render()
{
    m_general->render();
    m_killSwitch->render(m_situation);
    m_proxy->render(m_situation);
    m_splitDNS->render(m_situation);
    m_appearance->render();
    m_language->render(m_situation);
    m_advanced->render(m_situation);
    m_diagnostics->render(m_situation);
    m_about->render(m_situation);
    renderMessage();
}

void SettingsPage::renderMessage()
{
    const bool isAway = !m_situation.available;
    const QString text =
        isAway ? plaintext::singleLine(m_situation.unavailableReason, kMaxMessageLength) : m_error;
    setStyleProperty(*m_message, "vantuRole", isAway ? u"muted"_s : u"error"_s);
    m_message->setText(text);

    // An error comes and goes while the user is at something, which must not move: it
    // covers what is uppermost.
    QScrollBar *bar = m_scroll->verticalScrollBar();
    const int scrolled = bar->value() - m_scroll->y();
    m_message->setVisible(!text.isEmpty());
    if (isVisible() && !isAway) {
        layout()->activate();
        bar->setValue(scrolled + m_scroll->y());
    }
}

void SettingsPage::showKillSwitch()
{
    m_killSwitch->focusChoice();
    // Once the page has its size, if it is only just being shown.
    QTimer::singleShot(0, this,
                       [this] { m_scroll->verticalScrollBar()->setValue(m_killSwitch->y()); });
}

void SettingsPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    render();
}
