#pragma once

#include "SimReply.h"
#include "SimScenario.h"

#include <QJsonObject>
#include <QString>

/// API address, auto-connect and language. Not thread-safe.
class SimSettings final
{
public:
    explicit SimSettings(const SimScenario &scenario);

    /// An address must be a plain http or https URL. A host below ".invalid" counts
    /// as one that cannot be reached.
    SimRefusal setApiUrl(const QString &url);
    void resetApiUrl() { m_apiUrl.clear(); }
    SimRefusal setAutoConnect(const QString &value);

    /// With a condition, nothing changes unless it is the current source.
    SimRefusal setLanguage(const QString &source, const QString &language, const QString &ifSource);

    QString language() const { return m_language; }

    QJsonObject apiUrlJson() const;
    QJsonObject autoConnectJson(const QString &nodeId) const;
    QJsonObject languageJson() const;
    void addToStatus(QJsonObject &status) const;

private:
    QString m_apiUrl;
    QString m_autoConnect;
    QString m_source;
    QString m_language;
};
