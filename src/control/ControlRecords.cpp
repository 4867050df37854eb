#include "ControlRecords.h"

void registerControlRecords()
{
    qRegisterMetaType<RuntimeInfo>("RuntimeInfo");
    qRegisterMetaType<VersionInfo>("VersionInfo");
    qRegisterMetaType<APIURLConfigInfo>("APIURLConfigInfo");
    qRegisterMetaType<AutoConnectConfigInfo>("AutoConnectConfigInfo");
    qRegisterMetaType<LanguageConfigInfo>("LanguageConfigInfo");
    qRegisterMetaType<UpdateInfo>("UpdateInfo");
    qRegisterMetaType<GUIUpdateDownloadInfo>("GUIUpdateDownloadInfo");
    qRegisterMetaType<UserInfo>("UserInfo");
    qRegisterMetaType<PurchaseURLInfo>("PurchaseURLInfo");
    qRegisterMetaType<NodesInfo>("NodesInfo");
    qRegisterMetaType<NodeGroupsInfo>("NodeGroupsInfo");
    qRegisterMetaType<ConfigPaths>("ConfigPaths");
    qRegisterMetaType<KillSwitchInfo>("KillSwitchInfo");
    qRegisterMetaType<ModeInfo>("ModeInfo");
    qRegisterMetaType<ProxyListenResultInfo>("ProxyListenResultInfo");
    qRegisterMetaType<SplitDNSInfo>("SplitDNSInfo");
    qRegisterMetaType<SplitRulesInfo>("SplitRulesInfo");
    qRegisterMetaType<SplitRuleMutationInfo>("SplitRuleMutationInfo");
    qRegisterMetaType<RepairResultInfo>("RepairResultInfo");
}
