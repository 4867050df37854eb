#include "ProxySection.h"

#include "AppState.h"
#include "ControlProtocol.h"
#include "ElidedLabel.h"
#include "FactBlock.h"
#include "PlainText.h"
#include "ProxyFacts.h"
#include "SegmentedControl.h"
#include "SettingsField.h"
#include "SettingsInput.h"
#include "SettingsRow.h"
#include "SettingsSituation.h"
#include "SettingsTexts.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// The choice that stands for what the daemon reports.
QString systemProxyChoice(const ModeInfo &mode)
{
    const QString value = mode.systemProxy.trimmed();
    return value == wire::kSystemProxyLockOn ? QString(wire::kSystemProxyLock) : value;
}

QList<Fact> listenerFacts(const RuntimeInfo &runtime)
{
    QList<Fact> facts;
    for (const ProxyListener &listener : runtime.proxyListeners) {
        const QString address = plaintext::singleLine(listener.address);
        const QString protocol = plaintext::singleLine(listener.scheme).toUpper();
        facts.append({u"%1: %2"_s.arg(protocol, address), address});
    }
    if (facts.isEmpty()) {
        return {{SettingsTexts::tr("Local proxy unavailable"), {}}};
    }
    if (const QString pac = proxyfacts::pacAddress(runtime); !pac.isEmpty()) {
        facts.append({SettingsTexts::tr("PAC: %1").arg(pac), pac});
    }
    return facts;
}

QList<Fact> accessFacts(const RuntimeInfo &runtime)
{
    const QStringList addresses = proxyfacts::lanAddresses(runtime, proxyfacts::ownAddresses());
    if (addresses.isEmpty()) {
        return {{SettingsTexts::tr("LAN access unavailable"), {}}};
    }
    QList<Fact> facts;
    const QString text = SettingsTexts::tr("LAN access:\n%1").arg(addresses.join(u'\n'));
    for (const QString &line : text.split(u'\n')) {
        facts.append({line, addresses.contains(line) ? line : QString()});
    }
    return facts;
}

} // namespace

ProxySection::ProxySection(const AppState &state, QWidget *parent)
    : SettingsSection(SettingsTexts::tr("Proxy"), u"VantuSettingsProxySection"_s, parent)
    , m_state(state)
{
    buildSystemProxy();
    buildListen();
    m_listeners = new FactBlock(u"VantuSettingsProxyListeners"_s, this);
    m_access = new FactBlock(u"VantuSettingsProxyAccess"_s, this);
    SettingsRow *facts = addRow();
    facts->addBelow(m_listeners);
    facts->addBelow(m_access);
}

void ProxySection::buildSystemProxy()
{
    addRow()->addNote(SettingsTexts::tr("Vantu starts the local proxy when connected. System "
                                        "Proxy controls whether the system uses it "
                                        "automatically."));
    SettingsRow *row = addRow();
    m_summary = row->addLine({}, u"VantuSettingsSystemProxySummary"_s);
    row->addNote(SettingsTexts::tr("On applies only in Vantu Proxy mode. Lock also clears system "
                                   "proxy while using VPN modes."));
    m_systemProxy = row->setChoices(
        SettingsTexts::tr("System Proxy"),
        {{wire::kOff, SettingsTexts::tr("Off"), u"VantuSettingsSystemProxyOff"_s, {}},
         {wire::kOn, SettingsTexts::tr("On"), u"VantuSettingsSystemProxyOn"_s, {}},
         {wire::kSystemProxyLock,
          SettingsTexts::tr("Lock"),
          u"VantuSettingsSystemProxyLock"_s,
          {}}});
    connect(m_systemProxy, &SegmentedControl::chosen, this, &ProxySection::systemProxyRequested);
}

void ProxySection::buildListen()
{
    SettingsRow *row = addRow();
    const QString name = SettingsTexts::tr("Listen Address");
    row->addLine(name);
    m_listen = new SettingsField({name, u"VantuSettingsProxyListen"_s, u"127.0.0.1:1080"_s,
                                  SettingsTexts::tr("Use 0.0.0.0 to allow LAN devices to connect "
                                                    "to Vantu's proxy.")},
                                 &settingsinput::listenAddressProblem, row);
    QPushButton *apply =
        m_listen->addButton(SettingsTexts::tr("Apply"), SettingsTexts::tr("Apply listen address"),
                            u"VantuSettingsProxyListenApply"_s);
    row->addBelow(m_listen);
    connect(apply, &QPushButton::clicked, this, &ProxySection::applyListen);
    connect(m_listen, &SettingsField::submitted, this, &ProxySection::applyListen);
}

void ProxySection::render(const SettingsSituation &situation)
{
    const QString choice = systemProxyChoice(m_state.runtime().mode);
    const QPushButton *segment = m_systemProxy->segment(choice);
    m_summary->setText(segment ? SettingsTexts::tr("System Proxy: %1").arg(segment->text())
                               : SettingsTexts::tr("System Proxy: unavailable"));
    m_systemProxy->setValue(choice);
    allowUnless(situation.absenceReason(!choice.isEmpty()), *m_systemProxy);

    m_listen->setStored(proxyfacts::listenAddress(m_state.runtime()));
    m_listen->setBlocked(situation.blockReason());
    m_listeners->setFacts(listenerFacts(m_state.runtime()));
    m_access->setFacts(accessFacts(m_state.runtime()));
}

void ProxySection::applyListen()
{
    const QString address = m_listen->text().trimmed();
    if (address.isEmpty()) {
        Q_EMIT refused(SettingsTexts::tr("Enter proxy listen address."));
        return;
    }
    m_listen->setText(address);
    if (!proxyfacts::listensAt(m_state.runtime(), address)) {
        m_listen->markSent();
        Q_EMIT listenersRequested(address, address);
    }
}

void ProxySection::keepTyped()
{
    m_listen->markRefused();
}
