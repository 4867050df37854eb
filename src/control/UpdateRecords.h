#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

/// What the daemon knows of a newer client. The wire nests this three levels
/// deep; the record is flat.
struct UpdateInfo
{
    QString platform;
    QString currentVersion;
    double currentVersionNum = 0.0;
    bool updateAvailable = false;
    QString checkedAt;

    QString versionCode;
    double versionNum = 0.0;
    bool isForceUpgrade = false;
    bool shouldGrayReleaseUpgrade = false;
    QStringList changeLog;

    QString recommended;
    QString universalDownloadLink;
    QString arm64DownloadLink;
    QString amd64DownloadLink;
    QString artifactURL;
    QString artifactSHA256;
    qint64 artifactSizeBytes = 0;
    bool known = false; ///< It was decoded, though an answer without a release may be bare.

    bool operator==(const UpdateInfo &) const = default;
};

/// Progress of a client download inside the daemon.
struct GUIUpdateDownloadInfo
{
    enum class State {
        Unknown, ///< The record was not decoded.
        Idle,
        Checking,
        Downloading,
        Verifying,
        Canceling,
        Ready,
        Failed,
        Canceled,
    };

    State state = State::Unknown;
    QString currentVersion;
    QString versionCode;
    qint64 versionNum = 0;
    qint64 bytesDownloaded = 0;
    qint64 bytesTotal = 0;
    QString egress;
    QString localPath;
    QString errorCode;
    QString errorMessage;
    QString startedAt;
    QString updatedAt;

    bool operator==(const GUIUpdateDownloadInfo &) const = default;
};

Q_DECLARE_METATYPE(UpdateInfo)
Q_DECLARE_METATYPE(GUIUpdateDownloadInfo)
