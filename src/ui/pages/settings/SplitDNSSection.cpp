#include "SplitDNSSection.h"

#include "AppState.h"
#include "ElidedLabel.h"
#include "PlainText.h"
#include "SegmentedControl.h"
#include "SettingsField.h"
#include "SettingsInput.h"
#include "SettingsRow.h"
#include "SettingsSituation.h"
#include "SettingsTexts.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kTunnelOnly{"tunnel-only"};
constexpr QLatin1StringView kDualExplicit{"dual-explicit"};
constexpr QLatin1StringView kDualAuto{"dual-auto"};

QString serverList(const QStringList &servers)
{
    return plaintext::singleLine(servers.join(", "_L1));
}

QString configuredPolicyText(const SplitDNSInfo &dns, const QString &name)
{
    if (!dns.known) {
        return SettingsTexts::tr("Configured policy: unavailable");
    }
    return name.isEmpty() ? SettingsTexts::tr("Configured policy: default")
                          : SettingsTexts::tr("Configured policy: %1").arg(name);
}

QString effectivePolicyText(const SplitDNSInfo &dns, const QString &name)
{
    if (name.isEmpty()) {
        return SettingsTexts::tr("Split DNS: unavailable");
    }
    return dns.autoCNDefault ? SettingsTexts::tr("Effective policy: %1 (CN default)").arg(name)
                             : SettingsTexts::tr("Effective policy: %1").arg(name);
}

QString configuredLocalText(const SplitDNSInfo &dns)
{
    if (!dns.known) {
        return SettingsTexts::tr("Configured local DNS: unavailable");
    }
    const QString servers = serverList(dns.configLocalDirectDNS);
    return servers.isEmpty() ? SettingsTexts::tr("Configured local DNS: default")
                             : SettingsTexts::tr("Configured local DNS: %1").arg(servers);
}

QString effectiveLocalText(const SplitDNSInfo &dns)
{
    const QString servers = serverList(dns.effectiveLocalDirectDNS);
    const QString source = plaintext::singleLine(dns.localDNSSource);
    if (servers.isEmpty()) {
        return source.isEmpty() ? SettingsTexts::tr("Effective local DNS: none")
                                : SettingsTexts::tr("Effective local DNS: none (%1)").arg(source);
    }
    return source.isEmpty()
               ? SettingsTexts::tr("Effective local DNS: %1").arg(servers)
               : SettingsTexts::tr("Effective local DNS: %1 (%2)").arg(servers, source);
}

} // namespace

SplitDNSSection::SplitDNSSection(const AppState &state, QWidget *parent)
    : SettingsSection(SettingsTexts::tr("Split DNS"), {}, parent)
    , m_state(state)
{
    addRow()->addNote(
        SettingsTexts::tr("Split DNS applies only in VantuVPN Split mode. Auto, WireGuard, and "
                          "VantuVPN Global ignore this Local DNS setting and use tunnel DNS for "
                          "VPN traffic.") +
            u'\n' +
            SettingsTexts::tr("Dual policies query both Local DNS and remote tunnel DNS for "
                              "domains outside split tunnel lists, then choose the route from the "
                              "result."),
        u"VantuSettingsSplitDNSSummary"_s);
    buildPolicy();
    buildLocal();
    buildReset();
}

void SplitDNSSection::buildPolicy()
{
    SettingsRow *row = addRow();
    const QString name = SettingsTexts::tr("Policy");
    row->addLine(name);
    m_configuredPolicy = row->addNote({}, u"VantuSettingsSplitDNSConfiguredPolicy"_s);
    m_effectivePolicy = row->addNote({}, u"VantuSettingsSplitDNSEffectivePolicy"_s);
    m_policy = row->setChoices(name, {{kTunnelOnly,
                                       SettingsTexts::tr("Tunnel Only"),
                                       u"VantuSettingsSplitDNSPolicyTunnelOnly"_s,
                                       {}},
                                      {kDualExplicit,
                                       SettingsTexts::tr("Dual Explicit"),
                                       u"VantuSettingsSplitDNSPolicyDualExplicit"_s,
                                       {}},
                                      {kDualAuto,
                                       SettingsTexts::tr("Dual Auto"),
                                       u"VantuSettingsSplitDNSPolicyDualAuto"_s,
                                       {}}});
    connect(m_policy, &SegmentedControl::chosen, this, &SplitDNSSection::policyRequested);
}

void SplitDNSSection::buildLocal()
{
    SettingsRow *row = addRow();
    const QString name = SettingsTexts::tr("Local DNS");
    row->addLine(name);
    m_configuredLocal = row->addNote({}, u"VantuSettingsSplitDNSConfiguredLocal"_s);
    m_effectiveLocal = row->addNote({}, u"VantuSettingsSplitDNSEffectiveLocal"_s);
    m_local = new SettingsField(
        {name, u"VantuSettingsSplitDNSLocal"_s, SettingsTexts::tr("Local DNS, separated by commas"),
         SettingsTexts::tr("IP addresses, each with a port if it is not 53.")},
        &settingsinput::dnsProblem, row);
    QPushButton *apply =
        m_local->addButton(SettingsTexts::tr("Apply"), SettingsTexts::tr("Apply local DNS"),
                           u"VantuSettingsSplitDNSApply"_s);
    QPushButton *clear =
        m_local->addButton(SettingsTexts::tr("Clear"), SettingsTexts::tr("Clear local DNS"),
                           u"VantuSettingsSplitDNSClear"_s);
    row->addBelow(m_local);
    connect(apply, &QPushButton::clicked, this, &SplitDNSSection::applyLocal);
    connect(m_local, &SettingsField::submitted, this, &SplitDNSSection::applyLocal);
    connect(clear, &QPushButton::clicked, this, &SplitDNSSection::clearLocal);
}

void SplitDNSSection::buildReset()
{
    SettingsRow *row = addRow();
    row->addNote(SettingsTexts::tr("Reset puts the policy and Local DNS back to the default."));
    m_reset = makeButton(SettingsTexts::tr("Reset"), u"VantuSettingsSplitDNSReset"_s);
    m_reset->setAccessibleName(SettingsTexts::tr("Reset Split DNS"));
    row->setControl(m_reset);
    connect(m_reset, &QPushButton::clicked, this, &SplitDNSSection::reset);
}

QString SplitDNSSection::policyName(const QString &policy) const
{
    const QPushButton *segment = m_policy->segment(policy.trimmed());
    return segment ? segment->text() : plaintext::singleLine(policy);
}

void SplitDNSSection::render(const SettingsSituation &situation)
{
    const SplitDNSInfo &dns = m_state.splitDNS();
    m_configuredPolicy->setText(configuredPolicyText(dns, policyName(dns.configPolicy)));
    m_effectivePolicy->setText(effectivePolicyText(dns, policyName(dns.effectivePolicy)));
    m_configuredLocal->setText(configuredLocalText(dns));
    m_effectiveLocal->setText(effectiveLocalText(dns));
    m_policy->setValue(dns.configPolicy.trimmed());
    m_local->setStored(dns.configLocalDirectDNS.join(", "_L1));

    const QString reason = situation.blockReason(dns.known);
    allowUnless(reason, *m_policy);
    m_local->setBlocked(reason);
    allowUnless(reason, *m_reset);
}

void SplitDNSSection::applyLocal()
{
    m_local->markSent();
    Q_EMIT localRequested(settingsinput::dnsServers(m_local->text()));
}

void SplitDNSSection::clearLocal()
{
    m_local->revert();
    Q_EMIT clearLocalRequested();
}

void SplitDNSSection::reset()
{
    m_local->revert();
    Q_EMIT resetRequested();
}

void SplitDNSSection::keepTyped()
{
    m_local->markRefused();
}
