#include "SimScenario.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const QList<SimScenario> &SimScenario::all()
{
    static const QList<SimScenario> table{
        {.name = u"normal"_s, .summary = u"signed in, disconnected, everything works"_s},
        {.name = u"signed-out"_s,
         .summary = u"nobody is signed in; connects are refused"_s,
         .authState = u"logged_out"_s},
        {.name = u"slow-connect"_s,
         .summary = u"a connect takes about 15 seconds"_s,
         .queuedMs = 3000,
         .connectingMs = 12000},
        {.name = u"connect-fails"_s,
         .summary = u"a connect retries once, then fails"_s,
         .connectFails = true},
        {.name = u"flapping"_s,
         .summary = u"the tunnel is lost and found again every few seconds"_s,
         .uptimeMs = 8000},
        {.name = u"incompatible"_s,
         .summary = u"speaks another control version; answers 409 to everything"_s,
         .incompatible = true},
        {.name = u"old-daemon"_s,
         .summary = u"does not know the kill switch's modes (plain 404)"_s,
         .oldDaemon = true},
        {.name = u"stale-catalogue"_s,
         .summary = u"account and locations come from cache until a refresh"_s,
         .authState = u"cached"_s,
         .staleCatalog = true},
        {.name = u"empty-catalogue"_s, .summary = u"no locations at all"_s, .nodes = 0},
        {.name = u"big-catalogue"_s,
         .summary = u"5000 nodes in more than 200 groups"_s,
         .nodes = 5000},
        {.name = u"lockdown"_s,
         .summary = u"the kill switch is in Lockdown"_s,
         .transport = u"vantuvpn"_s,
         .policy = u"global"_s,
         .killSwitch = u"lockdown"_s},
        {.name = u"proxy-mode"_s,
         .summary = u"Vantu Proxy with split rules"_s,
         .transport = u"proxy"_s,
         .policy = u"split"_s},
        {.name = u"update"_s, .summary = u"a newer client is offered"_s, .updateAvailable = true},
        {.name = u"forced-update"_s,
         .summary = u"a newer client is required"_s,
         .updateAvailable = true,
         .updateForced = true},
        {.name = u"other-language"_s,
         .summary = u"the daemon is set to German"_s,
         .language = u"de"_s},
        {.name = u"hostile-names"_s,
         .summary = u"texts with markup, line breaks, bidi marks and 100 kB names"_s,
         .hostileNames = true},
    };
    return table;
}

const SimScenario *SimScenario::find(const QString &name)
{
    const auto found = std::find_if(all().cbegin(), all().cend(),
                                    [&name](const SimScenario &each) { return each.name == name; });
    return found == all().cend() ? nullptr : &*found;
}
