<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hans" sourcelanguage="en_US">
<context>
    <name>AccountPage</name>
    <message>
        <source>Unavailable</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>剩余天数：%1</translation>
    </message>
    <message>
        <source>Sign in to connect.</source>
        <translation>请先登录再连接。</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Use your Vantu account to connect and sync available locations.</source>
        <translation>使用您的 Vantu 账户进行连接并同步可用位置。</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>邮箱或用户 ID</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Remember this account</source>
        <translation>记住此账户</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <translation>注册</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <translation>忘记密码？</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>已登录</translation>
    </message>
    <message>
        <source>Renew</source>
        <translation>续费</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <translation>账户操作失败</translation>
    </message>
    <message>
        <source>Enter account and password.</source>
        <translation>请输入账户和密码。</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>用户 ID：%1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>套餐：%1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>最多同时在线设备数：%1</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>正在登录...</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <translation>正在退出登录...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>正在打开…</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Favorites</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>免费</translation>
    </message>
    <message>
        <source>VIP</source>
        <translation>VIP</translation>
    </message>
    <message>
        <source>SVIP</source>
        <translation>SVIP</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Connected server</source>
        <translation>已连接的服务器</translation>
    </message>
    <message>
        <source>Contains connected server</source>
        <translation>包含已连接的服务器</translation>
    </message>
    <message>
        <source>Selected server</source>
        <translation>已选择的服务器</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Vantu daemon is too old for Kill Switch modes. Update Vantu.</source>
        <translation>Vantu 服务版本过旧，不支持断网保护模式。请更新 Vantu。</translation>
    </message>
    <message>
        <source>Vantu daemon is not running.</source>
        <translation>Vantu 服务未运行。</translation>
    </message>
    <message>
        <source>Vantu daemon access denied. Add this user to the vantucli group, then sign out and back in.</source>
        <translation>无权访问 Vantu 服务。请将此用户加入 vantucli 用户组，然后注销并重新登录系统。</translation>
    </message>
    <message>
        <source>Could not connect to Vantu daemon.</source>
        <translation>无法连接到 Vantu 服务。</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Could not remove Vantu from login startup.</source>
        <translation>无法将 Vantu 从登录启动项中移除。</translation>
    </message>
    <message>
        <source>Could not resolve the Vantu executable for login startup.</source>
        <translation>无法找到用于登录启动的 Vantu 程序文件。</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>无法准备登录启动目录。</translation>
    </message>
    <message>
        <source>Could not update Vantu login startup.</source>
        <translation>无法更新 Vantu 的登录启动设置。</translation>
    </message>
    <message>
        <source>Could not secure Vantu login startup.</source>
        <translation>无法设置 Vantu 登录启动文件的权限。</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>断网保护需要 VPN 模式</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Vantu Proxy. Switch to Auto (recommended), VantuVPN, or WireGuard to enable it.</source>
        <translation>断网保护无法在 Vantu Proxy 模式下运行。请切换到自动（推荐）、VantuVPN 或 WireGuard 后再启用。</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <translation>切换到自动并启用</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>切换到自动并启用断网保护</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <translation>选择模式…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>为断网保护选择模式</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Vantu Proxy needs Kill Switch off</source>
        <translation>使用 Vantu Proxy 需关闭断网保护</translation>
    </message>
    <message>
        <source>Kill Switch blocks Vantu Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>断网保护会阻止 Vantu Proxy。请先在设置中关闭断网保护，再切换模式。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>打开设置以关闭断网保护</translation>
    </message>
</context>
<context>
    <name>LocationsItemDelegate</name>
    <message>
        <source>Saving favorite...</source>
        <translation>正在保存收藏...</translation>
    </message>
    <message>
        <source>Remove from favorites</source>
        <translation>取消收藏</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>添加到收藏</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Locations will appear after the catalog loads.</source>
        <translation>目录加载完成后将显示位置。</translation>
    </message>
    <message>
        <source>No locations in cached catalog.</source>
        <translation>缓存的目录中没有位置。</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>刷新位置</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation>操作失败</translation>
    </message>
    <message>
        <source>Cached locations may be stale. Refresh to update.</source>
        <translation>缓存的位置可能已过时，请刷新。</translation>
    </message>
    <message>
        <source>Kinds of locations</source>
        <translation>位置类型</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Show all matches</source>
        <translation>显示所有匹配项</translation>
    </message>
    <message>
        <source>No favorites yet.</source>
        <translation>暂无收藏。</translation>
    </message>
    <message>
        <source>No free locations available.</source>
        <translation>没有可用的免费位置。</translation>
    </message>
    <message>
        <source>No VIP locations available.</source>
        <translation>没有可用的 VIP 位置。</translation>
    </message>
    <message>
        <source>No SVIP locations available.</source>
        <translation>没有可用的 SVIP 位置。</translation>
    </message>
    <message>
        <source>No nodes available.</source>
        <translation>没有可用的节点。</translation>
    </message>
    <message>
        <source>No locations available.</source>
        <translation>没有可用的位置。</translation>
    </message>
    <message>
        <source>No locations in %1.</source>
        <translation>%1 中没有位置。</translation>
    </message>
    <message>
        <source>No matching locations.</source>
        <translation>没有匹配的位置。</translation>
    </message>
    <message>
        <source>No matches in %1.</source>
        <translation>%1 中没有匹配项。</translation>
    </message>
    <message>
        <source>Collapse location groups</source>
        <translation>折叠位置分组</translation>
    </message>
    <message>
        <source>Expand location groups</source>
        <translation>展开位置分组</translation>
    </message>
    <message>
        <source>Refresh available in %1s</source>
        <translation>%1 秒后可刷新</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>正在刷新位置...</translation>
    </message>
    <message>
        <source>Connect selected location</source>
        <translation>连接所选位置</translation>
    </message>
    <message>
        <source>Connect auto-selected server</source>
        <translation>连接自动选择的服务器</translation>
    </message>
    <message>
        <source>Connect auto-selected server in %1</source>
        <translation>连接 %1 中自动选择的服务器</translation>
    </message>
    <message>
        <source>Search locations or nodes</source>
        <translation>搜索位置或节点</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Vantu</source>
        <translation>Vantu</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>搜索结果</translation>
    </message>
    <message>
        <source>No matching locations.</source>
        <translation>没有匹配的位置。</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>最近搜索</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>最近连接</translation>
    </message>
    <message>
        <source>Popular tags</source>
        <translation>热门标签</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>See all matches in Locations ›</source>
        <translation>在“位置”中查看所有匹配项 ›</translation>
    </message>
    <message>
        <source>Browse in Locations</source>
        <translation>在“位置”中浏览</translation>
    </message>
    <message>
        <source>The setting holds until Vantu quits; it could not be saved.</source>
        <translation>设置无法保存，仅在 Vantu 退出前有效。</translation>
    </message>
    <message>
        <source>Could not clear history</source>
        <translation>无法清除历史记录</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Mode operation failed</source>
        <translation>模式操作失败</translation>
    </message>
    <message>
        <source>Routing</source>
        <translation>路由方式</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分流</translation>
    </message>
    <message>
        <source>Split Rules</source>
        <translation>分流规则</translation>
    </message>
    <message>
        <source>Routes</source>
        <translation>路由</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>默认路由</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>地区</translation>
    </message>
    <message>
        <source>Rule lists</source>
        <translation>规则列表</translation>
    </message>
    <message>
        <source>GFWList routes via Proxy</source>
        <translation>GFWList 走代理</translation>
    </message>
    <message>
        <source>GFWList routes via Tunnel</source>
        <translation>GFWList 走隧道</translation>
    </message>
    <message>
        <source>Custom Rules</source>
        <translation>自定义规则</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Vantu chooses the best available transport.</source>
        <translation>Vantu 会选择最佳的可用传输方式。</translation>
    </message>
    <message>
        <source>Standalone VPN transport.</source>
        <translation>独立的 VPN 传输方式。</translation>
    </message>
    <message>
        <source>All non-LAN traffic uses the VPN tunnel. %1.</source>
        <translation>除局域网外的所有流量均走 VPN 隧道。%1。</translation>
    </message>
    <message>
        <source>All traffic uses the local proxy.</source>
        <translation>所有流量均走本地代理。</translation>
    </message>
    <message>
        <source>Default route uses the local proxy. %1.</source>
        <translation>默认路由走本地代理。%1。</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>默认：%1</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>使用%1的地区：%2</translation>
    </message>
    <message>
        <source>GFWList: %1</source>
        <translation>GFWList：%1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Custom rules: %1</source>
        <translation>自定义规则：%1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Rules unavailable</source>
        <translation>规则不可用</translation>
    </message>
    <message>
        <source>Tunnel %1 · Direct %2 · Block %3</source>
        <translation>隧道 %1 · 直连 %2 · 阻止 %3</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>VantuVPN</source>
        <translation>VantuVPN</translation>
    </message>
    <message>
        <source>Vantu Proxy</source>
        <translation>Vantu Proxy</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>直连</translation>
    </message>
    <message>
        <source>Daemon mode is not available.</source>
        <translation>无法获取服务的模式。</translation>
    </message>
    <message>
        <source>Turn off Lockdown to change this mode.</source>
        <translation>请先关闭锁定模式再更改此模式。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>隧道</translation>
    </message>
    <message>
        <source>Regions use %1</source>
        <translation>使用%1的地区</translation>
    </message>
    <message>
        <source>Choose regions that should use %1.</source>
        <translation>选择应使用%1的地区。</translation>
    </message>
    <message>
        <source>Search regions</source>
        <translation>搜索地区</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Nothing has changed yet.</source>
        <translation>尚无更改。</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>No regions selected</source>
        <translation>未选择地区</translation>
    </message>
    <message numerus="yes">
        <source>%n region(s) selected</source>
        <translation>
            <numerusform>已选择 %n 个地区</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving rules...</source>
        <translation>正在保存规则...</translation>
    </message>
    <message>
        <source>Loading rules...</source>
        <translation>正在加载规则...</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>自定义分流规则</translation>
    </message>
    <message>
        <source>Custom rules apply only to VantuVPN split mode. Tunnel rules route matches through the VantuVPN tunnel. Apply replaces the selected list.</source>
        <translation>自定义规则仅适用于 VantuVPN 分流模式。隧道规则会让匹配的流量走 VantuVPN 隧道。点击“应用”将替换所选列表。</translation>
    </message>
    <message>
        <source>List to edit</source>
        <translation>要编辑的列表</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>阻止</translation>
    </message>
    <message>
        <source>Rules, one per line</source>
        <translation>规则，每行一条</translation>
    </message>
    <message>
        <source>Enter one pattern per line. Blank lines and comments are ignored.</source>
        <translation>每行输入一条规则。空行和注释将被忽略。</translation>
    </message>
    <message>
        <source>Bare domains such as `%1` are treated as suffix rules.</source>
        <translation>`%1` 这样的裸域名按后缀规则处理。</translation>
    </message>
    <message>
        <source>Use `domain:&lt;host&gt;` for exact host, `suffix:&lt;domain&gt;` for suffix, `keyword:&lt;text&gt;` for substring, `regexp:&lt;expr&gt;` for Go regexp, and `ip-cidr:&lt;cidr&gt;` or bare IP/CIDR for IP rules.</source>
        <translation>使用 `domain:&lt;host&gt;` 匹配完整主机名，`suffix:&lt;domain&gt;` 匹配后缀，`keyword:&lt;text&gt;` 匹配部分文本，`regexp:&lt;expr&gt;` 匹配 Go 正则表达式，`ip-cidr:&lt;cidr&gt;` 或直接填写 IP/CIDR 作为 IP 规则。</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>无法导入分流规则</translation>
    </message>
    <message>
        <source>Discard changes?</source>
        <translation>放弃更改？</translation>
    </message>
    <message>
        <source>The current custom split rules have unsaved changes.</source>
        <translation>当前自定义分流规则有未保存的更改。</translation>
    </message>
    <message>
        <source>Discard your edits or keep editing?</source>
        <translation>放弃更改还是继续编辑？</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>继续编辑</translation>
    </message>
    <message>
        <source>The rules are not loaded yet.</source>
        <translation>规则尚未加载。</translation>
    </message>
    <message>
        <source>This list is empty.</source>
        <translation>此列表为空。</translation>
    </message>
    <message>
        <source>Updating local network...</source>
        <translation>正在更新本地网络...</translation>
    </message>
    <message>
        <source>Switching mode...</source>
        <translation>正在切换模式...</translation>
    </message>
    <message>
        <source>Kill Switch blocks Vantu Proxy. Open Settings to turn it off.</source>
        <translation>断网保护会阻止 Vantu Proxy。请在设置中将其关闭。</translation>
    </message>
    <message>
        <source>Turn off Lockdown to allow direct local network access.</source>
        <translation>请先关闭锁定模式再允许直连本地网络。</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>连接模式</translation>
    </message>
    <message>
        <source>Choose how Vantu connects and routes traffic.</source>
        <translation>选择 Vantu 的连接方式和流量路由方式。</translation>
    </message>
    <message>
        <source>Use VPN tunnel mode, with optional split routing.</source>
        <translation>使用 VPN 隧道模式，可选分流。</translation>
    </message>
    <message>
        <source>Use a local proxy with PAC split rules.</source>
        <translation>使用本地代理和 PAC 分流规则。</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>本地网络</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>受保护</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>NodeMenuModel</name>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>不到 1 分钟</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>通知：%1</translation>
    </message>
</context>
<context>
    <name>PickerList</name>
    <message>
        <source>No matches.</source>
        <translation>没有匹配项。</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>What stands between the parts of a list, such as the names of several regions.</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Unavailable</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>锁定模式</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>锁定模式不可用</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <translation>设置操作失败</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>复制 %1</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Choose the interface and server content language.</source>
        <translation>选择界面和服务器内容的语言。</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>搜索语言</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Nothing has changed yet.</source>
        <translation>尚无更改。</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>使用系统语言</translation>
    </message>
    <message>
        <source>System</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Vantu is not available just now.</source>
        <translation>Vantu 暂时不可用。</translation>
    </message>
    <message>
        <source>Vantu has not reported this setting yet.</source>
        <translation>Vantu 尚未报告此设置。</translation>
    </message>
    <message>
        <source>Another change is still on its way.</source>
        <translation>另一项更改仍在进行中。</translation>
    </message>
    <message>
        <source>GUI Version: %1</source>
        <translation>GUI 版本：%1</translation>
    </message>
    <message>
        <source>CLI Version: %1</source>
        <translation>CLI 版本：%1</translation>
    </message>
    <message>
        <source>Version: unavailable</source>
        <translation>版本：不可用</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>有可用更新：%1</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>Vantu GUI and daemon are incompatible</source>
        <translation>Vantu 界面与服务不兼容</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>打开下载页面</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>常见问题</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>隐私</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>条款</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>正在处理...</translation>
    </message>
    <message>
        <source>Vantu is looking for a newer version.</source>
        <translation>Vantu 正在检查新版本。</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>API URL</translation>
    </message>
    <message>
        <source>Default API URL</source>
        <translation>默认 API URL</translation>
    </message>
    <message>
        <source>Where Vantu signs in and gets its locations.</source>
        <translation>Vantu 登录并获取位置的地址。</translation>
    </message>
    <message>
        <source>Apply API URL</source>
        <translation>应用 API URL</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Reset API URL</source>
        <translation>重置 API URL</translation>
    </message>
    <message>
        <source>API URL: default</source>
        <translation>API URL：默认</translation>
    </message>
    <message>
        <source>API URL: unavailable</source>
        <translation>API URL：不可用</translation>
    </message>
    <message>
        <source>API URL: %1</source>
        <translation>API URL：%1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>System follows the look of your desktop.</source>
        <translation>“跟随系统”会采用桌面的外观。</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>诊断</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>打开日志</translation>
    </message>
    <message>
        <source>Repair puts Kill Switch, proxy and VPN settings of this computer in order.</source>
        <translation>“修复”会整理此计算机上的断网保护、代理和 VPN 设置。</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修复</translation>
    </message>
    <message>
        <source>Log directory unavailable</source>
        <translation>日志目录不可用</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Connect when Vantu launches</source>
        <translation>Vantu 启动时自动连接</translation>
    </message>
    <message>
        <source>Launch Vantu at login</source>
        <translation>登录系统时启动 Vantu</translation>
    </message>
    <message>
        <source>Show window when Vantu launches</source>
        <translation>Vantu 启动时显示窗口</translation>
    </message>
    <message>
        <source>When off, Vantu starts in the tray only. Changing the interface language still reopens the window.</source>
        <translation>关闭后，Vantu 启动时仅显示在托盘中。更改界面语言后仍会重新打开窗口。</translation>
    </message>
    <message>
        <source>Kill Switch: unavailable</source>
        <translation>断网保护：不可用</translation>
    </message>
    <message>
        <source>Kill Switch: %1. Vantu Proxy is unavailable while Kill Switch is on.</source>
        <translation>断网保护：%1。断网保护开启时 Vantu Proxy 不可用。</translation>
    </message>
    <message>
        <source>Kill Switch: %1. Not available in Vantu Proxy.</source>
        <translation>断网保护：%1。在 Vantu Proxy 模式下不可用。</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>断网保护：%1</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>断网保护</translation>
    </message>
    <message>
        <source>Block internet traffic whenever the VPN is not connected.</source>
        <translation>VPN 未连接时阻止所有互联网流量。</translation>
    </message>
    <message>
        <source>Kill Switch Off</source>
        <translation>断网保护关闭</translation>
    </message>
    <message>
        <source>Kill Switch On</source>
        <translation>断网保护开启</translation>
    </message>
    <message>
        <source>Kill Switch Lockdown</source>
        <translation>断网保护锁定模式</translation>
    </message>
    <message>
        <source>Lockdown uses global VPN routing, protects the local network, and closes active VantuVPN Direct sessions. Essential Vantu and network setup traffic remains allowed.</source>
        <translation>锁定模式使用全局 VPN 路由，保护本地网络，并关闭活动的 VantuVPN 直连会话。Vantu 和网络设置所必需的流量仍被允许。</translation>
    </message>
    <message>
        <source>Local network stays direct while Kill Switch is on.</source>
        <translation>断网保护开启时，本地网络仍为直连。</translation>
    </message>
    <message>
        <source>While VantuVPN Split is connected, traffic routed Direct by the split settings bypasses the VPN even with Kill Switch on; sites may see your network&apos;s exit IP.</source>
        <translation>VantuVPN 分流连接期间，即使断网保护已开启，按分流设置直连的流量也会绕过 VPN；网站可能会看到您网络的出口 IP。</translation>
    </message>
    <message>
        <source>Change in Mode</source>
        <translation>在“模式”中更改</translation>
    </message>
    <message>
        <source>Choose a VPN mode before enabling Lockdown.</source>
        <translation>启用锁定模式前请先选择一种 VPN 模式。</translation>
    </message>
    <message>
        <source>Enable Lockdown?</source>
        <translation>启用锁定模式？</translation>
    </message>
    <message>
        <source>VantuVPN Split will switch to Global, the local network will become Protected, and active VantuVPN Direct sessions will close.</source>
        <translation>VantuVPN 将从分流切换为全局，本地网络将变为受保护，活动的 VantuVPN 直连会话将被关闭。</translation>
    </message>
    <message>
        <source>The local network will become Protected. Existing LAN connections may be interrupted.</source>
        <translation>本地网络将变为受保护。现有的局域网连接可能会中断。</translation>
    </message>
    <message>
        <source>Enable Lockdown</source>
        <translation>启用锁定模式</translation>
    </message>
    <message>
        <source>Turn Off Kill Switch?</source>
        <translation>关闭断网保护？</translation>
    </message>
    <message>
        <source>While Kill Switch is off, traffic may leave unprotected if the VPN disconnects.</source>
        <translation>断网保护关闭时，如果 VPN 断开，流量可能会在没有保护的情况下传出。</translation>
    </message>
    <message>
        <source>Turn Kill Switch off only if you understand the risk.</source>
        <translation>仅在了解风险的情况下才关闭断网保护。</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Turn Off Kill Switch</source>
        <translation>关闭断网保护</translation>
    </message>
    <message>
        <source>Keep On</source>
        <translation>保持开启</translation>
    </message>
    <message>
        <source>Keep Kill Switch On</source>
        <translation>保持断网保护开启</translation>
    </message>
    <message>
        <source>Server content uses the same language.</source>
        <translation>服务器内容使用相同的语言。</translation>
    </message>
    <message>
        <source>Local proxy unavailable</source>
        <translation>本地代理不可用</translation>
    </message>
    <message>
        <source>PAC: %1</source>
        <translation>PAC：%1</translation>
    </message>
    <message>
        <source>LAN access unavailable</source>
        <translation>局域网访问不可用</translation>
    </message>
    <message>
        <source>LAN access:
%1</source>
        <translation>局域网访问：
%1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Vantu starts the local proxy when connected. System Proxy controls whether the system uses it automatically.</source>
        <translation>连接后 Vantu 会启动本地代理。“系统代理”决定系统是否自动使用它。</translation>
    </message>
    <message>
        <source>On applies only in Vantu Proxy mode. Lock also clears system proxy while using VPN modes.</source>
        <translation>“开启”仅在 Vantu Proxy 模式下生效。“锁定”还会在使用 VPN 模式时清除系统代理。</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>系统代理</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Listen Address</source>
        <translation>监听地址</translation>
    </message>
    <message>
        <source>Use 0.0.0.0 to allow LAN devices to connect to Vantu&apos;s proxy.</source>
        <translation>使用 0.0.0.0 可允许局域网设备连接到 Vantu 的代理。</translation>
    </message>
    <message>
        <source>Apply listen address</source>
        <translation>应用监听地址</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>系统代理：%1</translation>
    </message>
    <message>
        <source>System Proxy: unavailable</source>
        <translation>系统代理：不可用</translation>
    </message>
    <message>
        <source>Enter proxy listen address.</source>
        <translation>请输入代理监听地址。</translation>
    </message>
    <message>
        <source>The address must begin with https:// or http://.</source>
        <translation>地址必须以 https:// 或 http:// 开头。</translation>
    </message>
    <message>
        <source>Enter a web address, such as https://api.example.com.</source>
        <translation>请输入网址，例如 https://api.example.com。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address. Enter one such as 1.1.1.1.</source>
        <translation>“%1”不是 IP 地址。请输入 1.1.1.1 这样的地址。</translation>
    </message>
    <message>
        <source>Put an IPv6 address in brackets, as in [::1]:1080.</source>
        <translation>请将 IPv6 地址放在方括号中，例如 [::1]:1080。</translation>
    </message>
    <message>
        <source>Begin with an IP address or a host name, as in 127.0.0.1:1080.</source>
        <translation>请以 IP 地址或主机名开头，例如 127.0.0.1:1080。</translation>
    </message>
    <message>
        <source>Add a port at the end, as in 127.0.0.1:1080.</source>
        <translation>请在末尾加上端口，例如 127.0.0.1:1080。</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>端口必须是 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Configured policy: unavailable</source>
        <translation>已配置的策略：不可用</translation>
    </message>
    <message>
        <source>Configured policy: default</source>
        <translation>已配置的策略：默认</translation>
    </message>
    <message>
        <source>Configured policy: %1</source>
        <translation>已配置的策略：%1</translation>
    </message>
    <message>
        <source>Split DNS: unavailable</source>
        <translation>分流 DNS：不可用</translation>
    </message>
    <message>
        <source>Effective policy: %1 (CN default)</source>
        <translation>生效的策略：%1（CN 默认）</translation>
    </message>
    <message>
        <source>Effective policy: %1</source>
        <translation>生效的策略：%1</translation>
    </message>
    <message>
        <source>Configured local DNS: unavailable</source>
        <translation>已配置的本地 DNS：不可用</translation>
    </message>
    <message>
        <source>Configured local DNS: default</source>
        <translation>已配置的本地 DNS：默认</translation>
    </message>
    <message>
        <source>Configured local DNS: %1</source>
        <translation>已配置的本地 DNS：%1</translation>
    </message>
    <message>
        <source>Effective local DNS: none</source>
        <translation>生效的本地 DNS：无</translation>
    </message>
    <message>
        <source>Effective local DNS: none (%1)</source>
        <translation>生效的本地 DNS：无（%1）</translation>
    </message>
    <message>
        <source>Effective local DNS: %1</source>
        <translation>生效的本地 DNS：%1</translation>
    </message>
    <message>
        <source>Effective local DNS: %1 (%2)</source>
        <translation>生效的本地 DNS：%1（%2）</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>分流 DNS</translation>
    </message>
    <message>
        <source>Split DNS applies only in VantuVPN Split mode. Auto, WireGuard, and VantuVPN Global ignore this Local DNS setting and use tunnel DNS for VPN traffic.</source>
        <translation>分流 DNS 仅在 VantuVPN 分流模式下生效。自动、WireGuard 和 VantuVPN 全局模式会忽略此本地 DNS 设置，VPN 流量使用隧道 DNS。</translation>
    </message>
    <message>
        <source>Dual policies query both Local DNS and remote tunnel DNS for domains outside split tunnel lists, then choose the route from the result.</source>
        <translation>双重策略会对隧道列表之外的域名同时查询本地 DNS 和远程隧道 DNS，再根据结果选择路由。</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>策略</translation>
    </message>
    <message>
        <source>Tunnel Only</source>
        <translation>仅隧道</translation>
    </message>
    <message>
        <source>Dual Explicit</source>
        <translation>双重（显式）</translation>
    </message>
    <message>
        <source>Dual Auto</source>
        <translation>双重（自动）</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>本地 DNS</translation>
    </message>
    <message>
        <source>Local DNS, separated by commas</source>
        <translation>本地 DNS，以逗号分隔</translation>
    </message>
    <message>
        <source>IP addresses, each with a port if it is not 53.</source>
        <translation>IP 地址；如果端口不是 53，请一并填写端口。</translation>
    </message>
    <message>
        <source>Apply local DNS</source>
        <translation>应用本地 DNS</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear local DNS</source>
        <translation>清除本地 DNS</translation>
    </message>
    <message>
        <source>Reset puts the policy and Local DNS back to the default.</source>
        <translation>“重置”会将策略和本地 DNS 恢复为默认值。</translation>
    </message>
    <message>
        <source>Reset Split DNS</source>
        <translation>重置分流 DNS</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Unavailable</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>剩余天数：%1</translation>
    </message>
    <message>
        <source>Vantu: %1</source>
        <translation>Vantu：%1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>位置：%1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>位置：%1 · %2</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>当前：%1</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>当前：%1（可能已过时）</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>系统代理：%1</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>系统代理已设为：%1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>本地网络：%1</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>断网保护：%1</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>账户：%1</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>错误：%1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>缺少%1</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1不存在：%2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>无法打开%1：%2</translation>
    </message>
    <message>
        <source>Vantu: connecting %1...</source>
        <translation>Vantu：正在连接 %1...</translation>
    </message>
    <message>
        <source>Vantu Proxy: Split (%1)</source>
        <translation>Vantu Proxy：分流（%1）</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>默认%1</translation>
    </message>
    <message>
        <source>split default %1</source>
        <translation>分流默认%1</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>使用%1的地区：%2</translation>
    </message>
    <message>
        <source>regions %1 %2</source>
        <translation>地区%1 %2</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>直连</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>受保护</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>隧道</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>已断开</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>正在断开</translation>
    </message>
    <message>
        <source>Vantu</source>
        <translation>Vantu</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>断网保护</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>已更新</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>模式已更新</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>已退出登录</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>断网保护已启用</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>断网保护已关闭</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>锁定模式</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>锁定模式不可用</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>服务不可用</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>日志目录</translation>
    </message>
    <message>
        <source>custom rules</source>
        <translation>自定义规则</translation>
    </message>
    <message>
        <source>custom rules off</source>
        <translation>自定义规则关闭</translation>
    </message>
    <message>
        <source>gfwlist proxy</source>
        <translation>GFWList 代理</translation>
    </message>
    <message>
        <source>gfwlist tunnel</source>
        <translation>GFWList 隧道</translation>
    </message>
    <message>
        <source>Vantu Proxy: Global</source>
        <translation>Vantu Proxy：全局</translation>
    </message>
    <message>
        <source>Vantu: daemon unavailable</source>
        <translation>Vantu：服务不可用</translation>
    </message>
    <message>
        <source>Vantu - daemon unavailable</source>
        <translation>Vantu - 服务不可用</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>当前：正在加载...</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>账户：已缓存</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>账户：已登录</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>账户：不可用</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>账户：需要登录</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>账户：正在检查...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <translation>操作失败</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <translation>账户操作失败</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <translation>模式操作失败</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <translation>断网保护操作失败</translation>
    </message>
    <message>
        <source>Vantu: connect failed</source>
        <translation>Vantu：连接失败</translation>
    </message>
    <message>
        <source>Vantu: disconnect failed</source>
        <translation>Vantu：断开失败</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>无法加载节点</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>无法刷新节点</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>无法加载节点分组</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>无法刷新节点分组</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>正在加载节点...</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>正在刷新节点...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>节点未加载</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>没有缓存的节点</translation>
    </message>
    <message>
        <source>All Nodes</source>
        <translation>所有节点</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>没有节点</translation>
    </message>
    <message>
        <source>Vantu: switching to auto...</source>
        <translation>Vantu：正在切换到自动模式...</translation>
    </message>
    <message>
        <source>Vantu: switching to WireGuard...</source>
        <translation>Vantu：正在切换到 WireGuard...</translation>
    </message>
    <message>
        <source>Vantu: switching to VantuVPN...</source>
        <translation>Vantu：正在切换到 VantuVPN...</translation>
    </message>
    <message>
        <source>Vantu: switching VantuVPN split...</source>
        <translation>Vantu：正在切换到 VantuVPN 分流...</translation>
    </message>
    <message>
        <source>Vantu: switching to Vantu Proxy...</source>
        <translation>Vantu：正在切换到 Vantu Proxy...</translation>
    </message>
    <message>
        <source>Vantu: switching to Vantu Proxy Split...</source>
        <translation>Vantu：正在切换到 Vantu Proxy 分流...</translation>
    </message>
    <message>
        <source>Vantu: logging out...</source>
        <translation>Vantu：正在退出登录...</translation>
    </message>
    <message>
        <source>Vantu: connecting...</source>
        <translation>Vantu：正在连接...</translation>
    </message>
    <message>
        <source>Vantu: disconnecting...</source>
        <translation>Vantu：正在断开连接...</translation>
    </message>
    <message>
        <source>Vantu: enabling kill switch...</source>
        <translation>Vantu：正在启用断网保护...</translation>
    </message>
    <message>
        <source>Vantu: disabling kill switch...</source>
        <translation>Vantu：正在关闭断网保护...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy Split...</source>
        <translation>Vantu：正在更新 Vantu Proxy 分流...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy regions...</source>
        <translation>Vantu：正在更新 Vantu Proxy 地区...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy GFWList...</source>
        <translation>Vantu：正在更新 Vantu Proxy 的 GFWList...</translation>
    </message>
    <message>
        <source>Vantu: updating local network routing...</source>
        <translation>Vantu：正在更新本地网络路由...</translation>
    </message>
    <message>
        <source>Vantu: updating system proxy...</source>
        <translation>Vantu：正在更新系统代理...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN split...</source>
        <translation>Vantu：正在更新 VantuVPN 分流...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN regions...</source>
        <translation>Vantu：正在更新 VantuVPN 地区...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN GFWList...</source>
        <translation>Vantu：正在更新 VantuVPN 的 GFWList...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN custom rules...</source>
        <translation>Vantu：正在更新 VantuVPN 自定义规则...</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Canceling...</source>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>下载链接不可用。</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>无法打开更新下载链接。</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Vantu will not run the installer automatically.</source>
        <translation>已在浏览器中打开下载链接。Vantu 不会自动运行安装程序。</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>该下载属于另一个更新版本。请重新检查更新。</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>无法开始下载更新</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>无法确认下载是否已开始。正在检查状态...</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>无法确认取消。正在重试...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>无法读取下载进度。正在重试...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>取消前下载已完成。安装程序未打开。</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>更新已下载，但无法打开安装程序。</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>更新信息不可用。请重新检查更新。</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>正在完成最新的更新检查，然后开始下载...</translation>
    </message>
    <message>
        <source>Vantu Update</source>
        <translation>Vantu 更新</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>新增功能</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>正在下载更新...</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <translation>打开下载链接</translation>
    </message>
    <message>
        <source>Open the Vantu update download link</source>
        <translation>打开 Vantu 更新的下载链接</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>有必需的更新可用</translation>
    </message>
    <message>
        <source>A new Vantu update is available</source>
        <translation>有新的 Vantu 更新可用</translation>
    </message>
    <message>
        <source>Vantu must be updated before you can connect. Download the installer or exit Vantu.</source>
        <translation>必须先更新 Vantu 才能连接。请下载安装程序或退出 Vantu。</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>下载最新的安装程序，不会中断当前会话。</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>当前版本：%1
可用版本：%2</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>最新</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>暂无更新说明。</translation>
    </message>
    <message>
        <source>Exit Vantu</source>
        <translation>退出 Vantu</translation>
    </message>
    <message>
        <source>Exit Vantu without updating</source>
        <translation>不更新并退出 Vantu</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <translation>后台下载</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>下载更新时隐藏此窗口</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>暂不更新</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <translation>隐藏此更新</translation>
    </message>
    <message>
        <source>Download Update</source>
        <translation>下载更新</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <translation>取消下载</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <translation>重试下载</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <translation>正在打开安装程序...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>已下载 %1 / %2</translation>
    </message>
    <message>
        <source>Could not read the update download status.</source>
        <translation>无法读取更新下载状态。</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>无法下载更新。</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>正在准备下载...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>正在验证下载...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>正在取消下载...</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>下载完成。正在打开安装程序...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>取消下载更新</translation>
    </message>
    <message>
        <source>Canceling the update download</source>
        <translation>正在取消下载更新</translation>
    </message>
    <message>
        <source>Opening the Vantu update installer</source>
        <translation>正在打开 Vantu 更新安装程序</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>重试下载更新</translation>
    </message>
    <message>
        <source>Download and install the Vantu update</source>
        <translation>下载并安装 Vantu 更新</translation>
    </message>
    <message>
        <source>The update is downloaded and ready to install.</source>
        <translation>更新已下载，可以安装。</translation>
    </message>
</context>
<context>
    <name>VantuAppShell</name>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>请等待当前操作完成</translation>
    </message>
    <message>
        <source>Could not sign in</source>
        <translation>登录失败</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>退出登录失败</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>无法加载账户</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>正在刷新位置...</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>位置已更新</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>无法刷新位置</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>无法刷新位置分组</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>连接失败</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>无法连接到此位置</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>无法断开连接</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>位置正在更新中</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>无法更新收藏</translation>
    </message>
    <message>
        <source>Restarting Vantu to apply the interface language.</source>
        <translation>正在重新启动 Vantu 以应用界面语言。</translation>
    </message>
    <message>
        <source>Could not restart Vantu. Please restart the app manually.</source>
        <translation>无法重新启动 Vantu。请手动重启应用。</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>请选择一种 VPN 模式以开启断网保护</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>无法更新本地网络设置</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>无法更新系统代理</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>无法切换模式</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>无法更新断网保护</translation>
    </message>
    <message>
        <source>Checking Vantu service compatibility...</source>
        <translation>正在检查 Vantu 服务的兼容性...</translation>
    </message>
    <message>
        <source>Vantu GUI and daemon are incompatible. Update Vantu before continuing.</source>
        <translation>Vantu 界面与服务不兼容。请先更新 Vantu 再继续。</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>无法获取版本信息</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>断网保护</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>修复完成</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>无法更新自动连接设置</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>无法更新代理监听地址</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>代理监听地址已保存，重新连接后生效</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>代理监听地址已更新</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>分流 DNS 已更新</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>修复失败</translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>无法加载配置路径</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>自定义分流规则已更新，但无法刷新规则</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>无法加载分流规则</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>无法导入分流规则</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>自定义分流规则已更新（%n 条规则）</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>自定义分流规则未更改</translation>
    </message>
    <message>
        <source>A required Vantu update is being checked before connecting.</source>
        <translation>连接前正在检查必需的 Vantu 更新。</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>无法打开续费页面</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>无法更新语言</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>无法检查更新</translation>
    </message>
    <message>
        <source>Vantu is up to date</source>
        <translation>Vantu 已是最新版本</translation>
    </message>
</context>
<context>
    <name>VantuTrayApp</name>
    <message>
        <source>Split</source>
        <translation>分流</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Vantu: starting...</source>
        <translation>Vantu：正在启动...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>服务：正在检查...</translation>
    </message>
    <message>
        <source>Open Vantu...</source>
        <translation>打开 Vantu...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>节点 / 位置</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>刷新节点</translation>
    </message>
    <message>
        <source>Mode: VantuVPN</source>
        <translation>模式：VantuVPN</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>分流选项</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>默认：隧道</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>默认：直连</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>地区</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; 隧道</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>自定义分流规则</translation>
    </message>
    <message>
        <source>Mode: Vantu Proxy</source>
        <translation>模式：Vantu Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>默认：代理</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; 代理</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>系统代理</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>局域网访问</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>本地网络</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>刷新状态</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>打开日志</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>刷新节点（%1 秒）</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>免费</translation>
    </message>
    <message>
        <source>VIP</source>
        <translation>VIP</translation>
    </message>
    <message>
        <source>SVIP</source>
        <translation>SVIP</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>节点</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Waiting for daemon status</source>
        <translation>正在等待服务状态</translation>
    </message>
    <message>
        <source>Daemon unavailable</source>
        <translation>服务不可用</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>正在断开连接...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Search locations or nodes</source>
        <translation>搜索位置或节点</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>断网保护</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>本地网络</translation>
    </message>
    <message>
        <source>Location, %1</source>
        <translation>位置，%1</translation>
    </message>
    <message>
        <source>Mode, %1</source>
        <translation>模式，%1</translation>
    </message>
    <message>
        <source>Kill Switch, %1</source>
        <translation>断网保护，%1</translation>
    </message>
    <message>
        <source>Local Network, %1</source>
        <translation>本地网络，%1</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>锁定模式</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>锁定模式不可用</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1 · Not available in Vantu Proxy</source>
        <translation>%1 · 在 Vantu Proxy 模式下不可用</translation>
    </message>
    <message>
        <source>Smart-select a server automatically</source>
        <translation>自动智能选择服务器</translation>
    </message>
    <message>
        <source>Checking Vantu...</source>
        <translation>正在检查 Vantu...</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Operation failed</source>
        <translation>操作失败</translation>
    </message>
    <message>
        <source>Could not open link</source>
        <translation>无法打开链接</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>日志目录不可用</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>日志目录不存在：%1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>无法打开日志目录：%1</translation>
    </message>
</context>
</TS>
