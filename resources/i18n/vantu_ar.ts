<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en_US">
<context>
    <name>AccountPage</name>
    <message>
        <source>Unavailable</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>الأيام المتبقية: %1</translation>
    </message>
    <message>
        <source>Sign in to connect.</source>
        <translation>سجّل الدخول للاتصال.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Use your Vantu account to connect and sync available locations.</source>
        <translation>استخدم حساب Vantu للاتصال ومزامنة المواقع المتاحة.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>البريد الإلكتروني أو معرّف المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Remember this account</source>
        <translation>تذكّر هذا الحساب</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <translation>إنشاء حساب</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <translation>هل نسيت كلمة المرور؟</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>تم تسجيل الدخول</translation>
    </message>
    <message>
        <source>Renew</source>
        <translation>تجديد</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>تسجيل الخروج</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <translation>تعذّرت عملية الحساب</translation>
    </message>
    <message>
        <source>Enter account and password.</source>
        <translation>أدخل الحساب وكلمة المرور.</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>معرّف المستخدم: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>الباقة: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>الحد الأقصى للأجهزة المتزامنة: %1</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>جارٍ تسجيل الدخول...</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <translation>جارٍ تسجيل الخروج...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>جارٍ الفتح…</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Favorites</source>
        <translation>المفضلة</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>مجاني</translation>
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
        <translation>العُقد</translation>
    </message>
    <message>
        <source>Connected server</source>
        <translation>الخادم المتصل</translation>
    </message>
    <message>
        <source>Contains connected server</source>
        <translation>تضم الخادم المتصل</translation>
    </message>
    <message>
        <source>Selected server</source>
        <translation>الخادم المحدد</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Vantu daemon is too old for Kill Switch modes. Update Vantu.</source>
        <translation>خدمة Vantu قديمة ولا تدعم أوضاع مفتاح الإيقاف. حدّث Vantu.</translation>
    </message>
    <message>
        <source>Vantu daemon is not running.</source>
        <translation>خدمة Vantu لا تعمل.</translation>
    </message>
    <message>
        <source>Vantu daemon access denied. Add this user to the vantucli group, then sign out and back in.</source>
        <translation>رُفض الوصول إلى خدمة Vantu. أضف هذا المستخدم إلى المجموعة vantucli، ثم سجّل الخروج من النظام وادخل مجددًا.</translation>
    </message>
    <message>
        <source>Could not connect to Vantu daemon.</source>
        <translation>تعذّر الاتصال بخدمة Vantu.</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Could not remove Vantu from login startup.</source>
        <translation>تعذّرت إزالة Vantu من بدء التشغيل عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Could not resolve the Vantu executable for login startup.</source>
        <translation>تعذّر العثور على ملف برنامج Vantu لبدء التشغيل عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>تعذّر إعداد مجلد بدء التشغيل عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Could not update Vantu login startup.</source>
        <translation>تعذّر تحديث بدء تشغيل Vantu عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Could not secure Vantu login startup.</source>
        <translation>تعذّر تأمين بدء تشغيل Vantu عند تسجيل الدخول.</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>مفتاح الإيقاف يتطلب وضع VPN</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Vantu Proxy. Switch to Auto (recommended), VantuVPN, or WireGuard to enable it.</source>
        <translation>لا يعمل مفتاح الإيقاف مع Vantu Proxy. بدّل إلى الوضع التلقائي (موصى به) أو VantuVPN أو WireGuard لتفعيله.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <translation>التبديل إلى التلقائي والتفعيل</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>التبديل إلى الوضع التلقائي وتفعيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <translation>اختيار الوضع…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>اختيار وضع لمفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Vantu Proxy needs Kill Switch off</source>
        <translation>يتطلب Vantu Proxy تعطيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Kill Switch blocks Vantu Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>يحظر مفتاح الإيقاف Vantu Proxy. عطّله أولًا من الإعدادات ثم بدّل الوضع.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>فتح الإعدادات</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>فتح الإعدادات لتعطيل مفتاح الإيقاف</translation>
    </message>
</context>
<context>
    <name>LocationsItemDelegate</name>
    <message>
        <source>Saving favorite...</source>
        <translation>جارٍ حفظ المفضلة...</translation>
    </message>
    <message>
        <source>Remove from favorites</source>
        <translation>إزالة من المفضلة</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>إضافة إلى المفضلة</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>Clear search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Locations will appear after the catalog loads.</source>
        <translation>ستظهر المواقع بعد تحميل القائمة.</translation>
    </message>
    <message>
        <source>No locations in cached catalog.</source>
        <translation>لا مواقع في القائمة المخزّنة.</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>تحديث المواقع</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation>تعذّر تنفيذ العملية</translation>
    </message>
    <message>
        <source>Cached locations may be stale. Refresh to update.</source>
        <translation>قد تكون المواقع المخزّنة قديمة. حدّث القائمة.</translation>
    </message>
    <message>
        <source>Kinds of locations</source>
        <translation>أنواع المواقع</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>المواقع</translation>
    </message>
    <message>
        <source>Show all matches</source>
        <translation>عرض كل النتائج</translation>
    </message>
    <message>
        <source>No favorites yet.</source>
        <translation>لا مفضلة بعد.</translation>
    </message>
    <message>
        <source>No free locations available.</source>
        <translation>لا تتوفر مواقع مجانية.</translation>
    </message>
    <message>
        <source>No VIP locations available.</source>
        <translation>لا تتوفر مواقع VIP.</translation>
    </message>
    <message>
        <source>No SVIP locations available.</source>
        <translation>لا تتوفر مواقع SVIP.</translation>
    </message>
    <message>
        <source>No nodes available.</source>
        <translation>لا تتوفر عُقد.</translation>
    </message>
    <message>
        <source>No locations available.</source>
        <translation>لا تتوفر مواقع.</translation>
    </message>
    <message>
        <source>No locations in %1.</source>
        <translation>لا مواقع في %1.</translation>
    </message>
    <message>
        <source>No matching locations.</source>
        <translation>لا مواقع مطابقة.</translation>
    </message>
    <message>
        <source>No matches in %1.</source>
        <translation>لا نتائج في %1.</translation>
    </message>
    <message>
        <source>Collapse location groups</source>
        <translation>طيّ مجموعات المواقع</translation>
    </message>
    <message>
        <source>Expand location groups</source>
        <translation>توسيع مجموعات المواقع</translation>
    </message>
    <message>
        <source>Refresh available in %1s</source>
        <translation>يمكن التحديث بعد %1 ث</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>جارٍ تحديث المواقع...</translation>
    </message>
    <message>
        <source>Connect selected location</source>
        <translation>الاتصال بالموقع المحدد</translation>
    </message>
    <message>
        <source>Connect auto-selected server</source>
        <translation>الاتصال بخادم مختار تلقائيًا</translation>
    </message>
    <message>
        <source>Connect auto-selected server in %1</source>
        <translation>الاتصال بخادم مختار تلقائيًا في %1</translation>
    </message>
    <message>
        <source>Search locations or nodes</source>
        <translation>ابحث عن مواقع أو عُقد</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
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
        <translation>مفضّل</translation>
    </message>
    <message>
        <source>Vantu</source>
        <translation>Vantu</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>نتائج البحث</translation>
    </message>
    <message>
        <source>No matching locations.</source>
        <translation>لا مواقع مطابقة.</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>عمليات البحث الأخيرة</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>الاتصالات الأخيرة</translation>
    </message>
    <message>
        <source>Popular tags</source>
        <translation>الوسوم الشائعة</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>See all matches in Locations ›</source>
        <translation>عرض كل النتائج في المواقع ›</translation>
    </message>
    <message>
        <source>Browse in Locations</source>
        <translation>تصفّح في المواقع</translation>
    </message>
    <message>
        <source>The setting holds until Vantu quits; it could not be saved.</source>
        <translation>يسري الإعداد حتى إنهاء Vantu فقط؛ تعذّر حفظه.</translation>
    </message>
    <message>
        <source>Could not clear history</source>
        <translation>تعذّر مسح السجل</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Mode operation failed</source>
        <translation>تعذّر تبديل الوضع</translation>
    </message>
    <message>
        <source>Routing</source>
        <translation>التوجيه</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>شامل</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>مقسّم</translation>
    </message>
    <message>
        <source>Split Rules</source>
        <translation>قواعد التقسيم</translation>
    </message>
    <message>
        <source>Routes</source>
        <translation>المسارات</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>المسار الافتراضي</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>المناطق</translation>
    </message>
    <message>
        <source>Rule lists</source>
        <translation>قوائم القواعد</translation>
    </message>
    <message>
        <source>GFWList routes via Proxy</source>
        <translation>توجيه GFWList عبر الوكيل</translation>
    </message>
    <message>
        <source>GFWList routes via Tunnel</source>
        <translation>توجيه GFWList عبر النفق</translation>
    </message>
    <message>
        <source>Custom Rules</source>
        <translation>القواعد المخصصة</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Vantu chooses the best available transport.</source>
        <translation>يختار Vantu أفضل وسيلة نقل متاحة.</translation>
    </message>
    <message>
        <source>Standalone VPN transport.</source>
        <translation>وسيلة نقل VPN مستقلة.</translation>
    </message>
    <message>
        <source>All non-LAN traffic uses the VPN tunnel. %1.</source>
        <translation>تمر كل حركة البيانات خارج الشبكة المحلية عبر نفق VPN. %1.</translation>
    </message>
    <message>
        <source>All traffic uses the local proxy.</source>
        <translation>تمر كل حركة البيانات عبر الوكيل المحلي.</translation>
    </message>
    <message>
        <source>Default route uses the local proxy. %1.</source>
        <translation>يستخدم المسار الافتراضي الوكيل المحلي. %1.</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>الافتراضي: %1</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>المناطق بمسار %1: %2</translation>
    </message>
    <message>
        <source>GFWList: %1</source>
        <translation>‏GFWList: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Custom rules: %1</source>
        <translation>القواعد المخصصة: %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>Rules unavailable</source>
        <translation>القواعد غير متاحة</translation>
    </message>
    <message>
        <source>Tunnel %1 · Direct %2 · Block %3</source>
        <translation>النفق %1 · مباشر %2 · حظر %3</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
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
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Daemon mode is not available.</source>
        <translation>وضع الخدمة غير متاح.</translation>
    </message>
    <message>
        <source>Turn off Lockdown to change this mode.</source>
        <translation>عطّل الحظر التام لتغيير هذا الوضع.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>الوكيل</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>النفق</translation>
    </message>
    <message>
        <source>Regions use %1</source>
        <translation>المناطق بمسار %1</translation>
    </message>
    <message>
        <source>Choose regions that should use %1.</source>
        <translation>اختر المناطق التي تستخدم مسار «%1».</translation>
    </message>
    <message>
        <source>Search regions</source>
        <translation>ابحث عن مناطق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Nothing has changed yet.</source>
        <translation>لم يتغير شيء بعد.</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>مسح الكل</translation>
    </message>
    <message>
        <source>No regions selected</source>
        <translation>لم تُحدَّد أي منطقة</translation>
    </message>
    <message numerus="yes">
        <source>%n region(s) selected</source>
        <translation>
            <numerusform>لم تُحدَّد أي منطقة</numerusform>
            <numerusform>منطقة واحدة محددة</numerusform>
            <numerusform>منطقتان محددتان</numerusform>
            <numerusform>%n مناطق محددة</numerusform>
            <numerusform>%n منطقة محددة</numerusform>
            <numerusform>%n منطقة محددة</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving rules...</source>
        <translation>جارٍ حفظ القواعد...</translation>
    </message>
    <message>
        <source>Loading rules...</source>
        <translation>جارٍ تحميل القواعد...</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>قواعد التقسيم المخصصة</translation>
    </message>
    <message>
        <source>Custom rules apply only to VantuVPN split mode. Tunnel rules route matches through the VantuVPN tunnel. Apply replaces the selected list.</source>
        <translation>تسري القواعد المخصصة على وضع VantuVPN المقسّم فقط. توجّه قواعد النفق ما يطابقها عبر نفق VantuVPN. يستبدل زر «تطبيق» القائمة المحددة.</translation>
    </message>
    <message>
        <source>List to edit</source>
        <translation>القائمة المراد تحريرها</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>حظر</translation>
    </message>
    <message>
        <source>Rules, one per line</source>
        <translation>القواعد، واحدة في كل سطر</translation>
    </message>
    <message>
        <source>Enter one pattern per line. Blank lines and comments are ignored.</source>
        <translation>أدخل نمطًا واحدًا في كل سطر. يتم تجاهل الأسطر الفارغة والتعليقات.</translation>
    </message>
    <message>
        <source>Bare domains such as `%1` are treated as suffix rules.</source>
        <translation>تُعامل النطاقات المجردة مثل ⁦`%1`⁩ كقواعد لاحقة.</translation>
    </message>
    <message>
        <source>Use `domain:&lt;host&gt;` for exact host, `suffix:&lt;domain&gt;` for suffix, `keyword:&lt;text&gt;` for substring, `regexp:&lt;expr&gt;` for Go regexp, and `ip-cidr:&lt;cidr&gt;` or bare IP/CIDR for IP rules.</source>
        <translation>استخدم ⁦`domain:&lt;host&gt;`⁩ لمضيف محدد، و⁦`suffix:&lt;domain&gt;`⁩ للاحقة، و⁦`keyword:&lt;text&gt;`⁩ لجزء من النص، و⁦`regexp:&lt;expr&gt;`⁩ لتعبير نمطي بصيغة Go، و⁦`ip-cidr:&lt;cidr&gt;`⁩ أو عنوان IP/CIDR مجردًا لقواعد IP.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>تعذّر استيراد قواعد التقسيم</translation>
    </message>
    <message>
        <source>Discard changes?</source>
        <translation>هل تريد تجاهل التغييرات؟</translation>
    </message>
    <message>
        <source>The current custom split rules have unsaved changes.</source>
        <translation>تحتوي قواعد التقسيم المخصصة الحالية على تغييرات غير محفوظة.</translation>
    </message>
    <message>
        <source>Discard your edits or keep editing?</source>
        <translation>هل تريد تجاهل تعديلاتك أم متابعة التحرير؟</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>تجاهل التغييرات</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>متابعة التحرير</translation>
    </message>
    <message>
        <source>The rules are not loaded yet.</source>
        <translation>لم تُحمَّل القواعد بعد.</translation>
    </message>
    <message>
        <source>This list is empty.</source>
        <translation>هذه القائمة فارغة.</translation>
    </message>
    <message>
        <source>Updating local network...</source>
        <translation>جارٍ تحديث الشبكة المحلية...</translation>
    </message>
    <message>
        <source>Switching mode...</source>
        <translation>جارٍ تبديل الوضع...</translation>
    </message>
    <message>
        <source>Kill Switch blocks Vantu Proxy. Open Settings to turn it off.</source>
        <translation>يحظر مفتاح الإيقاف Vantu Proxy. افتح الإعدادات لتعطيله.</translation>
    </message>
    <message>
        <source>Turn off Lockdown to allow direct local network access.</source>
        <translation>عطّل الحظر التام للسماح بالوصول المباشر إلى الشبكة المحلية.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>وضع الاتصال</translation>
    </message>
    <message>
        <source>Choose how Vantu connects and routes traffic.</source>
        <translation>اختر كيف يتصل Vantu ويوجّه حركة البيانات.</translation>
    </message>
    <message>
        <source>Use VPN tunnel mode, with optional split routing.</source>
        <translation>استخدام نفق VPN مع إمكانية تقسيم التوجيه.</translation>
    </message>
    <message>
        <source>Use a local proxy with PAC split rules.</source>
        <translation>استخدام وكيل محلي مع قواعد تقسيم PAC.</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>الشبكة المحلية</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>محمية</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Mode</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>المواقع</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>الحساب</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>NodeMenuModel</name>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>أقل من دقيقة</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>إشعار: %1</translation>
    </message>
</context>
<context>
    <name>PickerList</name>
    <message>
        <source>No matches.</source>
        <translation>لا نتائج.</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>What stands between the parts of a list, such as the names of several regions.</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Unavailable</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>حظر تام</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>الحظر التام غير متاح</translation>
    </message>
    <message>
        <source>On</source>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <translation>تعذّر تغيير الإعداد</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>نسخ %1</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Choose the interface and server content language.</source>
        <translation>اختر لغة الواجهة ومحتوى الخادم.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>ابحث عن لغات</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Nothing has changed yet.</source>
        <translation>لم يتغير شيء بعد.</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>استخدام لغة النظام</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Vantu is not available just now.</source>
        <translation>‏Vantu غير متاح حاليًا.</translation>
    </message>
    <message>
        <source>Vantu has not reported this setting yet.</source>
        <translation>لم يُبلغ Vantu عن هذا الإعداد بعد.</translation>
    </message>
    <message>
        <source>Another change is still on its way.</source>
        <translation>لا يزال تغيير آخر قيد التنفيذ.</translation>
    </message>
    <message>
        <source>GUI Version: %1</source>
        <translation>إصدار الواجهة: ⁦%1⁩</translation>
    </message>
    <message>
        <source>CLI Version: %1</source>
        <translation>إصدار CLI: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Version: unavailable</source>
        <translation>الإصدار: غير متاح</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>تحديث متاح: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>محدّث</translation>
    </message>
    <message>
        <source>Vantu GUI and daemon are incompatible</source>
        <translation>واجهة Vantu والخدمة غير متوافقتين</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>التحقق من التحديثات</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>فتح صفحة التنزيل</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>الأسئلة الشائعة</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>الخصوصية</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>الشروط</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>جارٍ العمل...</translation>
    </message>
    <message>
        <source>Vantu is looking for a newer version.</source>
        <translation>يبحث Vantu عن إصدار أحدث.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>متقدم</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>عنوان API</translation>
    </message>
    <message>
        <source>Default API URL</source>
        <translation>عنوان API الافتراضي</translation>
    </message>
    <message>
        <source>Where Vantu signs in and gets its locations.</source>
        <translation>العنوان الذي يسجّل Vantu الدخول عبره ويجلب منه المواقع.</translation>
    </message>
    <message>
        <source>Apply API URL</source>
        <translation>تطبيق عنوان API</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>إعادة الضبط</translation>
    </message>
    <message>
        <source>Reset API URL</source>
        <translation>إعادة ضبط عنوان API</translation>
    </message>
    <message>
        <source>API URL: default</source>
        <translation>عنوان API: الافتراضي</translation>
    </message>
    <message>
        <source>API URL: unavailable</source>
        <translation>عنوان API: غير متاح</translation>
    </message>
    <message>
        <source>API URL: %1</source>
        <translation>عنوان API: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>System follows the look of your desktop.</source>
        <translation>يتبع «النظام» مظهر سطح المكتب.</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>التشخيص</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>السجلات</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>فتح السجلات</translation>
    </message>
    <message>
        <source>Repair puts Kill Switch, proxy and VPN settings of this computer in order.</source>
        <translation>يصحّح «إصلاح» إعدادات مفتاح الإيقاف والوكيل وVPN على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>إصلاح</translation>
    </message>
    <message>
        <source>Log directory unavailable</source>
        <translation>مجلد السجلات غير متاح</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Connect when Vantu launches</source>
        <translation>الاتصال عند تشغيل Vantu</translation>
    </message>
    <message>
        <source>Launch Vantu at login</source>
        <translation>تشغيل Vantu عند تسجيل الدخول إلى النظام</translation>
    </message>
    <message>
        <source>Show window when Vantu launches</source>
        <translation>إظهار النافذة عند تشغيل Vantu</translation>
    </message>
    <message>
        <source>When off, Vantu starts in the tray only. Changing the interface language still reopens the window.</source>
        <translation>عند التعطيل، يبدأ Vantu في شريط النظام فقط. ويُعاد فتح النافذة رغم ذلك بعد تغيير لغة الواجهة.</translation>
    </message>
    <message>
        <source>Kill Switch: unavailable</source>
        <translation>مفتاح الإيقاف: غير متاح</translation>
    </message>
    <message>
        <source>Kill Switch: %1. Vantu Proxy is unavailable while Kill Switch is on.</source>
        <translation>مفتاح الإيقاف: %1. لا يتوفر Vantu Proxy أثناء تفعيل مفتاح الإيقاف.</translation>
    </message>
    <message>
        <source>Kill Switch: %1. Not available in Vantu Proxy.</source>
        <translation>مفتاح الإيقاف: %1. غير متاح في Vantu Proxy.</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>مفتاح الإيقاف: %1</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Block internet traffic whenever the VPN is not connected.</source>
        <translation>حظر حركة الإنترنت كلما كان VPN غير متصل.</translation>
    </message>
    <message>
        <source>Kill Switch Off</source>
        <translation>مفتاح الإيقاف معطّل</translation>
    </message>
    <message>
        <source>Kill Switch On</source>
        <translation>مفتاح الإيقاف مفعّل</translation>
    </message>
    <message>
        <source>Kill Switch Lockdown</source>
        <translation>مفتاح الإيقاف: حظر تام</translation>
    </message>
    <message>
        <source>Lockdown uses global VPN routing, protects the local network, and closes active VantuVPN Direct sessions. Essential Vantu and network setup traffic remains allowed.</source>
        <translation>يستخدم الحظر التام توجيه VPN الشامل ويحمي الشبكة المحلية ويغلق جلسات VantuVPN المباشرة النشطة. ويبقى المرور الضروري لـ Vantu ولإعداد الشبكة مسموحًا.</translation>
    </message>
    <message>
        <source>Local network stays direct while Kill Switch is on.</source>
        <translation>تبقى الشبكة المحلية مباشرة أثناء تفعيل مفتاح الإيقاف.</translation>
    </message>
    <message>
        <source>While VantuVPN Split is connected, traffic routed Direct by the split settings bypasses the VPN even with Kill Switch on; sites may see your network&apos;s exit IP.</source>
        <translation>أثناء اتصال VantuVPN المقسّم، تتجاوز حركة البيانات المباشرة وفق إعدادات التقسيم VPN حتى مع تفعيل مفتاح الإيقاف؛ وقد ترى المواقع عنوان IP الخارجي لشبكتك.</translation>
    </message>
    <message>
        <source>Change in Mode</source>
        <translation>التغيير في صفحة الوضع</translation>
    </message>
    <message>
        <source>Choose a VPN mode before enabling Lockdown.</source>
        <translation>اختر وضع VPN قبل تفعيل الحظر التام.</translation>
    </message>
    <message>
        <source>Enable Lockdown?</source>
        <translation>هل تريد تفعيل الحظر التام؟</translation>
    </message>
    <message>
        <source>VantuVPN Split will switch to Global, the local network will become Protected, and active VantuVPN Direct sessions will close.</source>
        <translation>سيتحول VantuVPN من مقسّم إلى شامل، وستصبح الشبكة المحلية محمية، وستُغلق جلسات VantuVPN المباشرة النشطة.</translation>
    </message>
    <message>
        <source>The local network will become Protected. Existing LAN connections may be interrupted.</source>
        <translation>ستصبح الشبكة المحلية محمية. وقد تنقطع الاتصالات المحلية القائمة.</translation>
    </message>
    <message>
        <source>Enable Lockdown</source>
        <translation>تفعيل الحظر التام</translation>
    </message>
    <message>
        <source>Turn Off Kill Switch?</source>
        <translation>هل تريد تعطيل مفتاح الإيقاف؟</translation>
    </message>
    <message>
        <source>While Kill Switch is off, traffic may leave unprotected if the VPN disconnects.</source>
        <translation>عند تعطيل مفتاح الإيقاف، قد تخرج حركة البيانات دون حماية إذا انقطع اتصال VPN.</translation>
    </message>
    <message>
        <source>Turn Kill Switch off only if you understand the risk.</source>
        <translation>عطّل مفتاح الإيقاف فقط إذا كنت تدرك الخطر.</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>تعطيل</translation>
    </message>
    <message>
        <source>Turn Off Kill Switch</source>
        <translation>تعطيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Keep On</source>
        <translation>إبقاؤه مفعّلًا</translation>
    </message>
    <message>
        <source>Keep Kill Switch On</source>
        <translation>إبقاء مفتاح الإيقاف مفعّلًا</translation>
    </message>
    <message>
        <source>Server content uses the same language.</source>
        <translation>يستخدم محتوى الخادم اللغة نفسها.</translation>
    </message>
    <message>
        <source>Local proxy unavailable</source>
        <translation>الوكيل المحلي غير متاح</translation>
    </message>
    <message>
        <source>PAC: %1</source>
        <translation>PAC: %1</translation>
    </message>
    <message>
        <source>LAN access unavailable</source>
        <translation>الوصول من الشبكة المحلية غير متاح</translation>
    </message>
    <message>
        <source>LAN access:
%1</source>
        <translation>الوصول من الشبكة المحلية:
%1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>الوكيل</translation>
    </message>
    <message>
        <source>Vantu starts the local proxy when connected. System Proxy controls whether the system uses it automatically.</source>
        <translation>يشغّل Vantu الوكيل المحلي عند الاتصال. ويحدد «وكيل النظام» ما إذا كان النظام يستخدمه تلقائيًا.</translation>
    </message>
    <message>
        <source>On applies only in Vantu Proxy mode. Lock also clears system proxy while using VPN modes.</source>
        <translation>يسري «مفعّل» في وضع Vantu Proxy فقط. ويزيل «مقفل» وكيل النظام أيضًا أثناء استخدام أوضاع VPN.</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>وكيل النظام</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>مقفل</translation>
    </message>
    <message>
        <source>Listen Address</source>
        <translation>عنوان الاستماع</translation>
    </message>
    <message>
        <source>Use 0.0.0.0 to allow LAN devices to connect to Vantu&apos;s proxy.</source>
        <translation>استخدم 0.0.0.0 للسماح لأجهزة الشبكة المحلية بالاتصال بوكيل Vantu.</translation>
    </message>
    <message>
        <source>Apply listen address</source>
        <translation>تطبيق عنوان الاستماع</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>وكيل النظام: %1</translation>
    </message>
    <message>
        <source>System Proxy: unavailable</source>
        <translation>وكيل النظام: غير متاح</translation>
    </message>
    <message>
        <source>Enter proxy listen address.</source>
        <translation>أدخل عنوان استماع الوكيل.</translation>
    </message>
    <message>
        <source>The address must begin with https:// or http://.</source>
        <translation>يجب أن يبدأ العنوان بـ ⁦https://⁩ أو ⁦http://⁩.</translation>
    </message>
    <message>
        <source>Enter a web address, such as https://api.example.com.</source>
        <translation>أدخل عنوان ويب، مثل ⁦https://api.example.com⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address. Enter one such as 1.1.1.1.</source>
        <translation>«%1» ليس عنوان IP. أدخل عنوانًا مثل ⁦1.1.1.1⁩.</translation>
    </message>
    <message>
        <source>Put an IPv6 address in brackets, as in [::1]:1080.</source>
        <translation>ضع عنوان IPv6 بين قوسين مربعين، مثل ⁦[::1]:1080⁩.</translation>
    </message>
    <message>
        <source>Begin with an IP address or a host name, as in 127.0.0.1:1080.</source>
        <translation>ابدأ بعنوان IP أو اسم مضيف، مثل ⁦127.0.0.1:1080⁩.</translation>
    </message>
    <message>
        <source>Add a port at the end, as in 127.0.0.1:1080.</source>
        <translation>أضف منفذًا في النهاية، مثل ⁦127.0.0.1:1080⁩.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>يجب أن يكون المنفذ رقمًا من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>Configured policy: unavailable</source>
        <translation>السياسة المضبوطة: غير متاحة</translation>
    </message>
    <message>
        <source>Configured policy: default</source>
        <translation>السياسة المضبوطة: الافتراضية</translation>
    </message>
    <message>
        <source>Configured policy: %1</source>
        <translation>السياسة المضبوطة: %1</translation>
    </message>
    <message>
        <source>Split DNS: unavailable</source>
        <translation>‏DNS المقسّم: غير متاح</translation>
    </message>
    <message>
        <source>Effective policy: %1 (CN default)</source>
        <translation>السياسة السارية: %1 (افتراضي CN)</translation>
    </message>
    <message>
        <source>Effective policy: %1</source>
        <translation>السياسة السارية: %1</translation>
    </message>
    <message>
        <source>Configured local DNS: unavailable</source>
        <translation>‏DNS المحلي المضبوط: غير متاح</translation>
    </message>
    <message>
        <source>Configured local DNS: default</source>
        <translation>‏DNS المحلي المضبوط: الافتراضي</translation>
    </message>
    <message>
        <source>Configured local DNS: %1</source>
        <translation>‏DNS المحلي المضبوط: %1</translation>
    </message>
    <message>
        <source>Effective local DNS: none</source>
        <translation>‏DNS المحلي الساري: لا شيء</translation>
    </message>
    <message>
        <source>Effective local DNS: none (%1)</source>
        <translation>‏DNS المحلي الساري: لا شيء (%1)</translation>
    </message>
    <message>
        <source>Effective local DNS: %1</source>
        <translation>‏DNS المحلي الساري: %1</translation>
    </message>
    <message>
        <source>Effective local DNS: %1 (%2)</source>
        <translation>‏DNS المحلي الساري: %1 (%2)</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>‏DNS المقسّم</translation>
    </message>
    <message>
        <source>Split DNS applies only in VantuVPN Split mode. Auto, WireGuard, and VantuVPN Global ignore this Local DNS setting and use tunnel DNS for VPN traffic.</source>
        <translation>يسري DNS المقسّم في وضع VantuVPN المقسّم فقط. تتجاهل الأوضاع التلقائي وWireGuard وVantuVPN الشامل إعداد DNS المحلي هذا وتستخدم DNS النفق لحركة VPN.</translation>
    </message>
    <message>
        <source>Dual policies query both Local DNS and remote tunnel DNS for domains outside split tunnel lists, then choose the route from the result.</source>
        <translation>تستعلم السياسات المزدوجة من DNS المحلي وDNS النفق البعيد معًا عن النطاقات خارج قوائم النفق، ثم تختار المسار وفق النتيجة.</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>السياسة</translation>
    </message>
    <message>
        <source>Tunnel Only</source>
        <translation>النفق فقط</translation>
    </message>
    <message>
        <source>Dual Explicit</source>
        <translation>مزدوجة صريحة</translation>
    </message>
    <message>
        <source>Dual Auto</source>
        <translation>مزدوجة تلقائية</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>‏DNS المحلي</translation>
    </message>
    <message>
        <source>Local DNS, separated by commas</source>
        <translation>خوادم DNS المحلية، مفصولة بفواصل</translation>
    </message>
    <message>
        <source>IP addresses, each with a port if it is not 53.</source>
        <translation>عناوين IP، مع المنفذ لكل منها إن لم يكن 53.</translation>
    </message>
    <message>
        <source>Apply local DNS</source>
        <translation>تطبيق DNS المحلي</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Clear local DNS</source>
        <translation>مسح DNS المحلي</translation>
    </message>
    <message>
        <source>Reset puts the policy and Local DNS back to the default.</source>
        <translation>تعيد «إعادة الضبط» السياسة وDNS المحلي إلى الوضع الافتراضي.</translation>
    </message>
    <message>
        <source>Reset Split DNS</source>
        <translation>إعادة ضبط DNS المقسّم</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Unavailable</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>الأيام المتبقية: %1</translation>
    </message>
    <message>
        <source>Vantu: %1</source>
        <translation>‏Vantu: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>الموقع: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>الموقع: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>الحالي: %1</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>الحالي: %1 (قديم)</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>وكيل النظام: %1</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>تم ضبط وكيل النظام: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>الشبكة المحلية: %1</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>مفتاح الإيقاف: %1</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>الحساب: %1</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>خطأ: %1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1 مفقود</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 غير موجود: ⁦%2⁩</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>تعذّر فتح %1: ⁦%2⁩</translation>
    </message>
    <message>
        <source>Vantu: connecting %1...</source>
        <translation>‏Vantu: جارٍ الاتصال بـ %1...</translation>
    </message>
    <message>
        <source>Vantu Proxy: Split (%1)</source>
        <translation>‏Vantu Proxy: مقسّم (%1)</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>الافتراضي %1</translation>
    </message>
    <message>
        <source>split default %1</source>
        <translation>افتراضي التقسيم %1</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>المناطق بمسار %1: %2</translation>
    </message>
    <message>
        <source>regions %1 %2</source>
        <translation>المناطق بمسار %1 %2</translation>
    </message>
    <message>
        <source>On</source>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>مقفل</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>محمية</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>النفق</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>الوكيل</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>جارٍ قطع الاتصال</translation>
    </message>
    <message>
        <source>Vantu</source>
        <translation>Vantu</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>تم التحديث</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>تم تحديث الوضع</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>تم تسجيل الخروج</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>تم تفعيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>تم تعطيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>حظر تام</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>الحظر التام غير متاح</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>مجلد السجلات</translation>
    </message>
    <message>
        <source>custom rules</source>
        <translation>قواعد مخصصة</translation>
    </message>
    <message>
        <source>custom rules off</source>
        <translation>القواعد المخصصة معطّلة</translation>
    </message>
    <message>
        <source>gfwlist proxy</source>
        <translation>‏GFWList عبر الوكيل</translation>
    </message>
    <message>
        <source>gfwlist tunnel</source>
        <translation>‏GFWList عبر النفق</translation>
    </message>
    <message>
        <source>Vantu Proxy: Global</source>
        <translation>‏Vantu Proxy: شامل</translation>
    </message>
    <message>
        <source>Vantu: daemon unavailable</source>
        <translation>‏Vantu: الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>Vantu - daemon unavailable</source>
        <translation>‏Vantu - الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>الحالي: جارٍ التحميل...</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>الحساب: مخزّن</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>الحساب: تم تسجيل الدخول</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>الحساب: غير متاح</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>الحساب: يلزم تسجيل الدخول</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>الحساب: جارٍ التحقق...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <translation>تعذّر تنفيذ العملية</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <translation>تعذّرت عملية الحساب</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <translation>تعذّر تبديل الوضع</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <translation>تعذّر تغيير مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Vantu: connect failed</source>
        <translation>‏Vantu: تعذّر الاتصال</translation>
    </message>
    <message>
        <source>Vantu: disconnect failed</source>
        <translation>‏Vantu: تعذّر قطع الاتصال</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>تعذّر تحميل العُقد</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>تعذّر تحديث العُقد</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>تعذّر تحميل مجموعات العُقد</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>تعذّر تحديث مجموعات العُقد</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>جارٍ تحميل العُقد...</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>جارٍ تحديث العُقد...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>لم يتم تحميل العُقد</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>لا عُقد مخزّنة</translation>
    </message>
    <message>
        <source>All Nodes</source>
        <translation>كل العُقد</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>لا عُقد</translation>
    </message>
    <message>
        <source>Vantu: switching to auto...</source>
        <translation>‏Vantu: جارٍ التبديل إلى التلقائي...</translation>
    </message>
    <message>
        <source>Vantu: switching to WireGuard...</source>
        <translation>‏Vantu: جارٍ التبديل إلى WireGuard...</translation>
    </message>
    <message>
        <source>Vantu: switching to VantuVPN...</source>
        <translation>‏Vantu: جارٍ التبديل إلى VantuVPN...</translation>
    </message>
    <message>
        <source>Vantu: switching VantuVPN split...</source>
        <translation>‏Vantu: جارٍ التبديل إلى تقسيم VantuVPN...</translation>
    </message>
    <message>
        <source>Vantu: switching to Vantu Proxy...</source>
        <translation>‏Vantu: جارٍ التبديل إلى Vantu Proxy...</translation>
    </message>
    <message>
        <source>Vantu: switching to Vantu Proxy Split...</source>
        <translation>‏Vantu: جارٍ التبديل إلى تقسيم Vantu Proxy...</translation>
    </message>
    <message>
        <source>Vantu: logging out...</source>
        <translation>‏Vantu: جارٍ تسجيل الخروج...</translation>
    </message>
    <message>
        <source>Vantu: connecting...</source>
        <translation>‏Vantu: جارٍ الاتصال...</translation>
    </message>
    <message>
        <source>Vantu: disconnecting...</source>
        <translation>‏Vantu: جارٍ قطع الاتصال...</translation>
    </message>
    <message>
        <source>Vantu: enabling kill switch...</source>
        <translation>‏Vantu: جارٍ تفعيل مفتاح الإيقاف...</translation>
    </message>
    <message>
        <source>Vantu: disabling kill switch...</source>
        <translation>‏Vantu: جارٍ تعطيل مفتاح الإيقاف...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy Split...</source>
        <translation>‏Vantu: جارٍ تحديث تقسيم Vantu Proxy...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy regions...</source>
        <translation>‏Vantu: جارٍ تحديث مناطق Vantu Proxy...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy GFWList...</source>
        <translation>‏Vantu: جارٍ تحديث GFWList في Vantu Proxy...</translation>
    </message>
    <message>
        <source>Vantu: updating local network routing...</source>
        <translation>‏Vantu: جارٍ تحديث توجيه الشبكة المحلية...</translation>
    </message>
    <message>
        <source>Vantu: updating system proxy...</source>
        <translation>‏Vantu: جارٍ تحديث وكيل النظام...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN split...</source>
        <translation>‏Vantu: جارٍ تحديث تقسيم VantuVPN...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN regions...</source>
        <translation>‏Vantu: جارٍ تحديث مناطق VantuVPN...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN GFWList...</source>
        <translation>‏Vantu: جارٍ تحديث GFWList في VantuVPN...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN custom rules...</source>
        <translation>‏Vantu: جارٍ تحديث قواعد VantuVPN المخصصة...</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Canceling...</source>
        <translation>جارٍ الإلغاء...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>رابط التنزيل غير متاح.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>تعذّر فتح رابط تنزيل التحديث.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Vantu will not run the installer automatically.</source>
        <translation>فُتح رابط التنزيل في متصفحك. لن يشغّل Vantu برنامج التثبيت تلقائيًا.</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>ينتمي التنزيل إلى إصدار تحديث مختلف. تحقق من التحديثات مجددًا.</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>تعذّر بدء تنزيل التحديث</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>تعذّر التأكد من بدء التنزيل. جارٍ التحقق من حالته...</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>تعذّر تأكيد الإلغاء. جارٍ إعادة المحاولة...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>تعذّرت قراءة تقدم التنزيل. جارٍ إعادة المحاولة...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>اكتمل التنزيل قبل إلغائه. لم يُفتح برنامج التثبيت.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>تم تنزيل التحديث، لكن تعذّر فتح برنامج التثبيت.</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>معلومات التحديث غير متاحة. تحقق من التحديثات مجددًا.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>جارٍ إنهاء آخر تحقق من التحديثات قبل بدء التنزيل...</translation>
    </message>
    <message>
        <source>Vantu Update</source>
        <translation>تحديث Vantu</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>ما الجديد</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>جارٍ تنزيل التحديث...</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <translation>فتح رابط التنزيل</translation>
    </message>
    <message>
        <source>Open the Vantu update download link</source>
        <translation>فتح رابط تنزيل تحديث Vantu</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>يتوفر تحديث مطلوب</translation>
    </message>
    <message>
        <source>A new Vantu update is available</source>
        <translation>يتوفر تحديث جديد لـ Vantu</translation>
    </message>
    <message>
        <source>Vantu must be updated before you can connect. Download the installer or exit Vantu.</source>
        <translation>يجب تحديث Vantu قبل أن تتمكن من الاتصال. نزّل برنامج التثبيت أو أنهِ Vantu.</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>نزّل أحدث برنامج تثبيت دون مقاطعة جلستك الحالية.</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>الإصدار الحالي: %1
الإصدار المتاح: %2</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>الأحدث</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>ملاحظات الإصدار غير متاحة.</translation>
    </message>
    <message>
        <source>Exit Vantu</source>
        <translation>إنهاء Vantu</translation>
    </message>
    <message>
        <source>Exit Vantu without updating</source>
        <translation>إنهاء Vantu دون تحديث</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <translation>التنزيل في الخلفية</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>إخفاء هذه النافذة أثناء تنزيل التحديث</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <translation>إخفاء هذا التحديث</translation>
    </message>
    <message>
        <source>Download Update</source>
        <translation>تنزيل التحديث</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <translation>إلغاء التنزيل</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <translation>إعادة محاولة التنزيل</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <translation>جارٍ فتح برنامج التثبيت...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>تم تنزيل %1 من %2</translation>
    </message>
    <message>
        <source>Could not read the update download status.</source>
        <translation>تعذّرت قراءة حالة تنزيل التحديث.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>تعذّر تنزيل التحديث.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>أُلغي التنزيل.</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>جارٍ إعداد التنزيل...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>جارٍ التحقق من التنزيل...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>جارٍ إلغاء التنزيل...</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>اكتمل التنزيل. جارٍ فتح برنامج التثبيت...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>إلغاء تنزيل التحديث</translation>
    </message>
    <message>
        <source>Canceling the update download</source>
        <translation>جارٍ إلغاء تنزيل التحديث</translation>
    </message>
    <message>
        <source>Opening the Vantu update installer</source>
        <translation>جارٍ فتح برنامج تثبيت تحديث Vantu</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>إعادة محاولة تنزيل التحديث</translation>
    </message>
    <message>
        <source>Download and install the Vantu update</source>
        <translation>تنزيل تحديث Vantu وتثبيته</translation>
    </message>
    <message>
        <source>The update is downloaded and ready to install.</source>
        <translation>تم تنزيل التحديث وهو جاهز للتثبيت.</translation>
    </message>
</context>
<context>
    <name>VantuAppShell</name>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>يُرجى الانتظار حتى تنتهي العملية الحالية</translation>
    </message>
    <message>
        <source>Could not sign in</source>
        <translation>تعذّر تسجيل الدخول</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>تعذّر تسجيل الخروج</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>تعذّر تحميل الحساب</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>جارٍ تحديث المواقع...</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>تم تحديث المواقع</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>تعذّر تحديث المواقع</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>تعذّر تحديث مجموعات المواقع</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>تعذّر الاتصال</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>تعذّر الاتصال بهذا الموقع</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>تعذّر قطع الاتصال</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>تحديث المواقع قيد التنفيذ بالفعل</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>تعذّر تحديث المفضلة</translation>
    </message>
    <message>
        <source>Restarting Vantu to apply the interface language.</source>
        <translation>جارٍ إعادة تشغيل Vantu لتطبيق لغة الواجهة.</translation>
    </message>
    <message>
        <source>Could not restart Vantu. Please restart the app manually.</source>
        <translation>تعذّرت إعادة تشغيل Vantu. يُرجى إعادة تشغيل التطبيق يدويًا.</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>اختر وضع VPN لتفعيل مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>تعذّر تحديث الشبكة المحلية</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>تعذّر تحديث وكيل النظام</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>تعذّر تبديل الوضع</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>تعذّر تحديث مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Checking Vantu service compatibility...</source>
        <translation>جارٍ التحقق من توافق خدمة Vantu...</translation>
    </message>
    <message>
        <source>Vantu GUI and daemon are incompatible. Update Vantu before continuing.</source>
        <translation>واجهة Vantu والخدمة غير متوافقتين. حدّث Vantu قبل المتابعة.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>تعذّر تحميل معلومات الإصدار</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>الوكيل</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>اكتمل الإصلاح</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>تعذّر تحديث الاتصال التلقائي</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>تعذّر تحديث عنوان استماع الوكيل</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>حُفظ عنوان استماع الوكيل وسيسري عند إعادة الاتصال</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>تم تحديث عنوان استماع الوكيل</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>تم تحديث DNS المقسّم</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>تعذّر الإصلاح</translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>تعذّر تحميل مسارات الإعدادات</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>تم تحديث قواعد التقسيم المخصصة، لكن تعذّر تحديث عرضها</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>تعذّر تحميل قواعد التقسيم</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>تعذّر استيراد قواعد التقسيم</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (لا قواعد)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (قاعدة واحدة)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (قاعدتان)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (%n قواعد)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (%n قاعدة)</numerusform>
            <numerusform>تم تحديث قواعد التقسيم المخصصة (%n قاعدة)</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>لم تتغير قواعد التقسيم المخصصة</translation>
    </message>
    <message>
        <source>A required Vantu update is being checked before connecting.</source>
        <translation>يجري التحقق من تحديث مطلوب لـ Vantu قبل الاتصال.</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>تعذّر فتح صفحة التجديد</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>تعذّر تحديث اللغة</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>تعذّر التحقق من وجود تحديثات</translation>
    </message>
    <message>
        <source>Vantu is up to date</source>
        <translation>‏Vantu محدّث</translation>
    </message>
</context>
<context>
    <name>VantuTrayApp</name>
    <message>
        <source>Split</source>
        <translation>مقسّم</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>شامل</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Vantu: starting...</source>
        <translation>‏Vantu: جارٍ بدء التشغيل...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>الخدمة: جارٍ التحقق...</translation>
    </message>
    <message>
        <source>Open Vantu...</source>
        <translation>فتح Vantu...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>قطع الاتصال</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>العُقدة / الموقع</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>تحديث العُقد</translation>
    </message>
    <message>
        <source>Mode: VantuVPN</source>
        <translation>الوضع: VantuVPN</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>خيارات التقسيم</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>الافتراضي: النفق</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>الافتراضي: مباشر</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>المناطق</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>‏GFWList -&gt; النفق</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>قواعد التقسيم المخصصة</translation>
    </message>
    <message>
        <source>Mode: Vantu Proxy</source>
        <translation>الوضع: Vantu Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>الافتراضي: الوكيل</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>‏GFWList -&gt; الوكيل</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>وكيل النظام</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>الوصول إلى الشبكة المحلية</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>الشبكة المحلية</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>تحديث الحالة</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>فتح السجلات</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>تسجيل الخروج</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>تحديث العُقد (%1 ث)</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>المفضلة</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>مجاني</translation>
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
        <translation>العُقد</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Waiting for daemon status</source>
        <translation>في انتظار حالة الخدمة</translation>
    </message>
    <message>
        <source>Daemon unavailable</source>
        <translation>الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>قطع الاتصال</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>جارٍ قطع الاتصال...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>جارٍ الاتصال...</translation>
    </message>
    <message>
        <source>Search locations or nodes</source>
        <translation>ابحث عن مواقع أو عُقد</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>مفتاح الإيقاف</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>الشبكة المحلية</translation>
    </message>
    <message>
        <source>Location, %1</source>
        <translation>الموقع، %1</translation>
    </message>
    <message>
        <source>Mode, %1</source>
        <translation>الوضع، %1</translation>
    </message>
    <message>
        <source>Kill Switch, %1</source>
        <translation>مفتاح الإيقاف، %1</translation>
    </message>
    <message>
        <source>Local Network, %1</source>
        <translation>الشبكة المحلية، %1</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>حظر تام</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>الحظر التام غير متاح</translation>
    </message>
    <message>
        <source>On</source>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>%1 · Not available in Vantu Proxy</source>
        <translation>%1 · غير متاح في Vantu Proxy</translation>
    </message>
    <message>
        <source>Smart-select a server automatically</source>
        <translation>اختيار أفضل خادم تلقائيًا</translation>
    </message>
    <message>
        <source>Checking Vantu...</source>
        <translation>جارٍ التحقق من Vantu...</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Operation failed</source>
        <translation>تعذّر تنفيذ العملية</translation>
    </message>
    <message>
        <source>Could not open link</source>
        <translation>تعذّر فتح الرابط</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>مجلد السجلات غير متاح</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>مجلد السجلات غير موجود: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>تعذّر فتح مجلد السجلات: ⁦%1⁩</translation>
    </message>
</context>
</TS>
