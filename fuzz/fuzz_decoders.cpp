#include "RecordDecoders.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

/// A decode ends with a record or with an error text beside a default record.
template<class Record>
void check(Record (*decode)(const QByteArray &, QString &), const QByteArray &body)
{
    QString error;
    const Record record = decode(body, error);
    QString errorAgain;
    if (!error.isEmpty() && record != Record{}) {
        std::abort();
    }
    if (decode(body, errorAgain) != record || errorAgain != error) {
        std::abort();
    }
}

} // namespace

/// Every decoder must survive any body.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray body = QByteArrayView(data, static_cast<qsizetype>(size)).toByteArray();
    check(decode::versionInfo, body);
    check(decode::apiURLConfigInfo, body);
    check(decode::autoConnectConfigInfo, body);
    check(decode::languageConfigInfo, body);
    check(decode::updateInfo, body);
    check(decode::guiUpdateDownloadInfo, body);
    check(decode::userInfo, body);
    check(decode::purchaseURLInfo, body);
    check(decode::nodesInfo, body);
    check(decode::nodeGroupsInfo, body);
    check(decode::configPaths, body);
    check(decode::killSwitchInfo, body);
    check(decode::modeInfo, body);
    check(decode::proxyListenResultInfo, body);
    check(decode::splitDNSInfo, body);
    check(decode::splitRulesInfo, body);
    check(decode::splitRuleMutationInfo, body);
    check(decode::repairStep, body);
    check(decode::runtimeInfo, body);
    return 0;
}
