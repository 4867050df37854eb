#include "SimUpdate.h"

#include "SimFiles.h"

#include <QCryptographicHash>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kTrack = SimTimeline::Track::Download;
constexpr int kCheckingMs = 900;
constexpr int kPieceMs = 200;
constexpr int kPieces = 40;
constexpr int kVerifyingMs = 1200;
constexpr int kCancelingMs = 700;
constexpr qint64 kSize = qint64{24} * 1024 * 1024;
constexpr qint64 kNewNumber = 26112001;

const QString &newVersion()
{
    static const QString text = u"10.5.0+%1"_s.arg(kNewNumber);
    return text;
}

double versionNumber(const QString &version)
{
    return QStringView(version).mid(version.lastIndexOf(u'+') + 1).toDouble();
}

/// Sum of the file that a finished download leaves: nothing but zero bytes.
QString zeroesSum()
{
    static const QString sum = [] {
        QCryptographicHash hash(QCryptographicHash::Sha256);
        const QByteArray piece(qsizetype{1024} * 1024, '\0');
        for (qint64 done = 0; done < kSize; done += piece.size()) {
            hash.addData(piece);
        }
        return QString::fromLatin1(hash.result().toHex());
    }();
    return sum;
}

QJsonObject downloadLinks()
{
    const QString base = u"https://www.vantuvpn.com/download/linux/vantu-10.5.0-"_s;
    return {{u"recommended"_s, base + u"amd64.deb"_s},
            {u"universal_download_link"_s, base + u"universal.tar.gz"_s},
            {u"arm64_download_link"_s, base + u"arm64.deb"_s},
            {u"amd64_download_link"_s, base + u"amd64.deb"_s},
            {u"recommended_artifact"_s, QJsonObject{{u"url"_s, base + u"amd64.deb"_s},
                                                    {u"sha256"_s, zeroesSum()},
                                                    {u"size_bytes"_s, kSize}}}};
}

} // namespace

SimUpdate::SimUpdate(SimTimeline &timeline, const SimScenario &scenario, const SimFiles &files)
    : m_timeline(timeline)
    , m_scenario(&scenario)
    , m_files(files)
    , m_state(u"idle"_s)
{}

QJsonObject SimUpdate::checkJson(const QString &clientVersion) const
{
    QJsonObject latest{{u"version_code"_s, clientVersion},
                       {u"version_num"_s, versionNumber(clientVersion)},
                       {u"is_force_upgrade"_s, false},
                       {u"should_gray_release_upgrade"_s, false},
                       {u"change_log"_s, QJsonArray()}};
    if (m_scenario->updateAvailable) {
        latest = {
            {u"version_code"_s, newVersion()},
            {u"version_num"_s, kNewNumber},
            {u"is_force_upgrade"_s, m_scenario->updateForced},
            {u"should_gray_release_upgrade"_s, true},
            {u"change_log"_s,
             QJsonArray{u"Faster reconnects after sleep"_s, u"Locations can be searched by city"_s,
                        u"Split rules keep their order"_s, u"Many small corrections"_s}},
            {u"download"_s, downloadLinks()}};
    }
    return {{u"platform"_s, u"linux"_s},
            {u"current_version"_s, clientVersion},
            {u"current_version_num"_s, versionNumber(clientVersion)},
            {u"update_available"_s, m_scenario->updateAvailable},
            {u"checked_at"_s, m_timeline.wallTime().toString(Qt::ISODateWithMs)},
            {u"latest"_s, latest}};
}

bool SimUpdate::isRunning() const
{
    return m_state == "checking"_L1 || m_state == "downloading"_L1 || m_state == "verifying"_L1 ||
           m_state == "canceling"_L1;
}

void SimUpdate::enter(const QString &state)
{
    m_state = state;
    m_updatedAt = m_timeline.wallTime();
}

SimReply SimUpdate::start(const QString &clientVersion, qint64 expectedNumber)
{
    if (!m_scenario->updateAvailable) {
        return SimReply::error(409, u"no update is available"_s);
    }
    if (expectedNumber != kNewNumber) {
        return SimReply::error(409, u"the offered release has changed; check for updates again"_s);
    }
    if (!isRunning() && m_state != "ready"_L1) {
        m_clientVersion = clientVersion;
        m_received = 0;
        m_errorText.clear();
        m_startedAt = m_timeline.wallTime();
        enter(u"checking"_s);
        m_timeline.after(kCheckingMs, kTrack, [this] {
            enter(u"downloading"_s);
            m_timeline.after(kPieceMs, kTrack, [this] { receive(); });
        });
    }
    return SimReply::json(downloadJson());
}

void SimUpdate::receive()
{
    m_received = std::min(kSize, m_received + kSize / kPieces + 1);
    m_updatedAt = m_timeline.wallTime();
    if (m_received < kSize) {
        m_timeline.after(kPieceMs, kTrack, [this] { receive(); });
        return;
    }
    enter(u"verifying"_s);
    m_timeline.after(kVerifyingMs, kTrack, [this] {
        m_localPath = m_files.makeSparse(u"run/vantu-10.5.0-amd64.deb"_s, kSize);
        enter(u"ready"_s);
    });
}

void SimUpdate::cancel()
{
    if (isRunning() && m_state != "canceling"_L1) {
        m_timeline.cancel(kTrack);
        enter(u"canceling"_s);
        m_timeline.after(kCancelingMs, kTrack, [this] { enter(u"canceled"_s); });
    }
}

void SimUpdate::fail(const QString &text)
{
    if (isRunning()) {
        m_timeline.cancel(kTrack);
        m_errorText = text;
        enter(u"failed"_s);
    }
}

QJsonObject SimUpdate::downloadJson() const
{
    const bool begun = m_state != "idle"_L1;
    const bool failed = m_state == "failed"_L1;
    return {{u"state"_s, m_state},
            {u"current_version"_s, m_clientVersion},
            {u"version_code"_s, begun ? newVersion() : QString()},
            {u"version_num"_s, begun ? kNewNumber : 0},
            {u"bytes_downloaded"_s, m_received},
            {u"bytes_total"_s, begun && m_state != "checking"_L1 ? kSize : 0},
            {u"egress"_s, begun ? u"direct"_s : QString()},
            {u"local_path"_s, m_state == "ready"_L1 ? m_localPath : QString()},
            {u"error_code"_s, failed ? u"download_failed"_s : QString()},
            {u"error_message"_s, m_errorText},
            {u"started_at"_s, begun ? m_startedAt.toString(Qt::ISODateWithMs) : QString()},
            {u"updated_at"_s, begun ? m_updatedAt.toString(Qt::ISODateWithMs) : QString()}};
}
