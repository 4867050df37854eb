<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>AccountPage</name>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>Verbleibende Tage: %1</translation>
    </message>
    <message>
        <source>Sign in to connect.</source>
        <translation>Melden Sie sich an, um sich zu verbinden.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Use your Vantu account to connect and sync available locations.</source>
        <translation>Melden Sie sich mit Ihrem Vantu-Konto an, um sich zu verbinden und die verfügbaren Standorte abzugleichen.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>E-Mail oder Benutzer-ID</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Remember this account</source>
        <translation>Dieses Konto merken</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <translation>Passwort vergessen?</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>Angemeldet</translation>
    </message>
    <message>
        <source>Renew</source>
        <translation>Verlängern</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <translation>Kontovorgang fehlgeschlagen</translation>
    </message>
    <message>
        <source>Enter account and password.</source>
        <translation>Geben Sie Konto und Passwort ein.</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>Benutzer-ID: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Tarif: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>Maximale Anzahl gleichzeitiger Geräte: %1</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Anmeldung läuft...</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <translation>Abmeldung läuft...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Wird geöffnet…</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Kostenlos</translation>
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
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Connected server</source>
        <translation>Verbundener Server</translation>
    </message>
    <message>
        <source>Contains connected server</source>
        <translation>Enthält den verbundenen Server</translation>
    </message>
    <message>
        <source>Selected server</source>
        <translation>Ausgewählter Server</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Vantu daemon is too old for Kill Switch modes. Update Vantu.</source>
        <translation>Der Vantu-Dienst ist zu alt für die Kill-Switch-Modi. Aktualisieren Sie Vantu.</translation>
    </message>
    <message>
        <source>Vantu daemon is not running.</source>
        <translation>Der Vantu-Dienst läuft nicht.</translation>
    </message>
    <message>
        <source>Vantu daemon access denied. Add this user to the vantucli group, then sign out and back in.</source>
        <translation>Zugriff auf den Vantu-Dienst verweigert. Fügen Sie diesen Benutzer der Gruppe „vantucli“ hinzu, melden Sie sich dann ab und wieder an.</translation>
    </message>
    <message>
        <source>Could not connect to Vantu daemon.</source>
        <translation>Keine Verbindung zum Vantu-Dienst möglich.</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Could not remove Vantu from login startup.</source>
        <translation>Vantu konnte nicht aus dem Autostart entfernt werden.</translation>
    </message>
    <message>
        <source>Could not resolve the Vantu executable for login startup.</source>
        <translation>Die Programmdatei von Vantu für den Autostart wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>Der Autostart-Ordner konnte nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>Could not update Vantu login startup.</source>
        <translation>Der Autostart von Vantu konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Could not secure Vantu login startup.</source>
        <translation>Der Autostart von Vantu konnte nicht abgesichert werden.</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>Kill Switch benötigt einen VPN-Modus</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Vantu Proxy. Switch to Auto (recommended), VantuVPN, or WireGuard to enable it.</source>
        <translation>Der Kill Switch funktioniert nicht mit Vantu Proxy. Wechseln Sie zu Automatisch (empfohlen), VantuVPN oder WireGuard, um ihn einzuschalten.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <translation>Zu Automatisch wechseln und einschalten</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>Zu Automatisch wechseln und den Kill Switch einschalten</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <translation>Modus wählen…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>Einen Modus für den Kill Switch wählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Vantu Proxy needs Kill Switch off</source>
        <translation>Vantu Proxy erfordert ausgeschalteten Kill Switch</translation>
    </message>
    <message>
        <source>Kill Switch blocks Vantu Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>Der Kill Switch blockiert Vantu Proxy. Schalten Sie ihn zuerst in den Einstellungen aus und wechseln Sie dann den Modus.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>Einstellungen öffnen, um den Kill Switch auszuschalten</translation>
    </message>
</context>
<context>
    <name>LocationsItemDelegate</name>
    <message>
        <source>Saving favorite...</source>
        <translation>Favorit wird gespeichert...</translation>
    </message>
    <message>
        <source>Remove from favorites</source>
        <translation>Aus Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Zu Favoriten hinzufügen</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>Clear search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Locations will appear after the catalog loads.</source>
        <translation>Die Standorte erscheinen, sobald der Katalog geladen ist.</translation>
    </message>
    <message>
        <source>No locations in cached catalog.</source>
        <translation>Keine Standorte im zwischengespeicherten Katalog.</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Standorte aktualisieren</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation>Vorgang fehlgeschlagen</translation>
    </message>
    <message>
        <source>Cached locations may be stale. Refresh to update.</source>
        <translation>Die zwischengespeicherten Standorte sind möglicherweise veraltet. Aktualisieren Sie die Liste.</translation>
    </message>
    <message>
        <source>Kinds of locations</source>
        <translation>Arten von Standorten</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Standorte</translation>
    </message>
    <message>
        <source>Show all matches</source>
        <translation>Alle Treffer anzeigen</translation>
    </message>
    <message>
        <source>No favorites yet.</source>
        <translation>Noch keine Favoriten.</translation>
    </message>
    <message>
        <source>No free locations available.</source>
        <translation>Keine kostenlosen Standorte verfügbar.</translation>
    </message>
    <message>
        <source>No VIP locations available.</source>
        <translation>Keine VIP-Standorte verfügbar.</translation>
    </message>
    <message>
        <source>No SVIP locations available.</source>
        <translation>Keine SVIP-Standorte verfügbar.</translation>
    </message>
    <message>
        <source>No nodes available.</source>
        <translation>Keine Knoten verfügbar.</translation>
    </message>
    <message>
        <source>No locations available.</source>
        <translation>Keine Standorte verfügbar.</translation>
    </message>
    <message>
        <source>No locations in %1.</source>
        <translation>Keine Standorte in %1.</translation>
    </message>
    <message>
        <source>No matching locations.</source>
        <translation>Keine passenden Standorte.</translation>
    </message>
    <message>
        <source>No matches in %1.</source>
        <translation>Keine Treffer in %1.</translation>
    </message>
    <message>
        <source>Collapse location groups</source>
        <translation>Standortgruppen einklappen</translation>
    </message>
    <message>
        <source>Expand location groups</source>
        <translation>Standortgruppen ausklappen</translation>
    </message>
    <message>
        <source>Refresh available in %1s</source>
        <translation>Aktualisieren in %1 s möglich</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>Standorte werden aktualisiert...</translation>
    </message>
    <message>
        <source>Connect selected location</source>
        <translation>Mit dem ausgewählten Standort verbinden</translation>
    </message>
    <message>
        <source>Connect auto-selected server</source>
        <translation>Mit automatisch gewähltem Server verbinden</translation>
    </message>
    <message>
        <source>Connect auto-selected server in %1</source>
        <translation>Mit automatisch gewähltem Server in %1 verbinden</translation>
    </message>
    <message>
        <source>Search locations or nodes</source>
        <translation>Standorte oder Knoten suchen</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
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
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Vantu</source>
        <translation>Vantu</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>No matching locations.</source>
        <translation>Keine passenden Standorte.</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Letzte Suchen</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>Letzte Verbindungen</translation>
    </message>
    <message>
        <source>Popular tags</source>
        <translation>Beliebte Tags</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>See all matches in Locations ›</source>
        <translation>Alle Treffer unter „Standorte“ ansehen ›</translation>
    </message>
    <message>
        <source>Browse in Locations</source>
        <translation>Standorte durchsuchen</translation>
    </message>
    <message>
        <source>The setting holds until Vantu quits; it could not be saved.</source>
        <translation>Die Einstellung gilt nur, bis Vantu beendet wird; sie konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Could not clear history</source>
        <translation>Verlauf konnte nicht geleert werden</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Mode operation failed</source>
        <translation>Moduswechsel fehlgeschlagen</translation>
    </message>
    <message>
        <source>Routing</source>
        <translation>Routing</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Split Rules</source>
        <translation>Split-Regeln</translation>
    </message>
    <message>
        <source>Routes</source>
        <translation>Routen</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>Standardroute</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regionen</translation>
    </message>
    <message>
        <source>Rule lists</source>
        <translation>Regellisten</translation>
    </message>
    <message>
        <source>GFWList routes via Proxy</source>
        <translation>GFWList über den Proxy leiten</translation>
    </message>
    <message>
        <source>GFWList routes via Tunnel</source>
        <translation>GFWList über den Tunnel leiten</translation>
    </message>
    <message>
        <source>Custom Rules</source>
        <translation>Eigene Regeln</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Vantu chooses the best available transport.</source>
        <translation>Vantu wählt die beste verfügbare Verbindungsart.</translation>
    </message>
    <message>
        <source>Standalone VPN transport.</source>
        <translation>Eigenständige VPN-Verbindung.</translation>
    </message>
    <message>
        <source>All non-LAN traffic uses the VPN tunnel. %1.</source>
        <translation>Der gesamte Datenverkehr außerhalb des LAN läuft durch den VPN-Tunnel. %1.</translation>
    </message>
    <message>
        <source>All traffic uses the local proxy.</source>
        <translation>Der gesamte Datenverkehr läuft über den lokalen Proxy.</translation>
    </message>
    <message>
        <source>Default route uses the local proxy. %1.</source>
        <translation>Die Standardroute führt über den lokalen Proxy. %1.</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Standard: %1</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>Regionen mit Route %1: %2</translation>
    </message>
    <message>
        <source>GFWList: %1</source>
        <translation>GFWList: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Custom rules: %1</source>
        <translation>Eigene Regeln: %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Rules unavailable</source>
        <translation>Regeln nicht verfügbar</translation>
    </message>
    <message>
        <source>Tunnel %1 · Direct %2 · Block %3</source>
        <translation>Tunnel %1 · Direkt %2 · Blockieren %3</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
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
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Daemon mode is not available.</source>
        <translation>Der Modus des Dienstes ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>Turn off Lockdown to change this mode.</source>
        <translation>Schalten Sie den Sperrmodus aus, um diesen Modus zu ändern.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Tunnel</translation>
    </message>
    <message>
        <source>Regions use %1</source>
        <translation>Regionen mit Route %1</translation>
    </message>
    <message>
        <source>Choose regions that should use %1.</source>
        <translation>Wählen Sie die Regionen, die die Route „%1“ verwenden sollen.</translation>
    </message>
    <message>
        <source>Search regions</source>
        <translation>Regionen suchen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Nothing has changed yet.</source>
        <translation>Es wurde noch nichts geändert.</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Alle abwählen</translation>
    </message>
    <message>
        <source>No regions selected</source>
        <translation>Keine Regionen ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%n region(s) selected</source>
        <translation>
            <numerusform>%n Region ausgewählt</numerusform>
            <numerusform>%n Regionen ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving rules...</source>
        <translation>Regeln werden gespeichert...</translation>
    </message>
    <message>
        <source>Loading rules...</source>
        <translation>Regeln werden geladen...</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>Eigene Split-Regeln</translation>
    </message>
    <message>
        <source>Custom rules apply only to VantuVPN split mode. Tunnel rules route matches through the VantuVPN tunnel. Apply replaces the selected list.</source>
        <translation>Eigene Regeln gelten nur im Split-Modus von VantuVPN. Tunnel-Regeln leiten Treffer durch den VantuVPN-Tunnel. „Anwenden“ ersetzt die gewählte Liste.</translation>
    </message>
    <message>
        <source>List to edit</source>
        <translation>Zu bearbeitende Liste</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blockieren</translation>
    </message>
    <message>
        <source>Rules, one per line</source>
        <translation>Regeln, eine pro Zeile</translation>
    </message>
    <message>
        <source>Enter one pattern per line. Blank lines and comments are ignored.</source>
        <translation>Geben Sie ein Muster pro Zeile ein. Leerzeilen und Kommentare werden ignoriert.</translation>
    </message>
    <message>
        <source>Bare domains such as `%1` are treated as suffix rules.</source>
        <translation>Reine Domains wie `%1` gelten als Regeln für eine Endung.</translation>
    </message>
    <message>
        <source>Use `domain:&lt;host&gt;` for exact host, `suffix:&lt;domain&gt;` for suffix, `keyword:&lt;text&gt;` for substring, `regexp:&lt;expr&gt;` for Go regexp, and `ip-cidr:&lt;cidr&gt;` or bare IP/CIDR for IP rules.</source>
        <translation>Verwenden Sie `domain:&lt;host&gt;` für einen genauen Host, `suffix:&lt;domain&gt;` für eine Endung, `keyword:&lt;text&gt;` für einen Teiltext, `regexp:&lt;expr&gt;` für einen regulären Ausdruck in Go-Syntax und `ip-cidr:&lt;cidr&gt;` oder eine reine IP/CIDR für IP-Regeln.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>Split-Regeln konnten nicht importiert werden</translation>
    </message>
    <message>
        <source>Discard changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>The current custom split rules have unsaved changes.</source>
        <translation>Die eigenen Split-Regeln enthalten nicht gespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>Discard your edits or keep editing?</source>
        <translation>Möchten Sie die Änderungen verwerfen oder weiter bearbeiten?</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
    <message>
        <source>The rules are not loaded yet.</source>
        <translation>Die Regeln sind noch nicht geladen.</translation>
    </message>
    <message>
        <source>This list is empty.</source>
        <translation>Diese Liste ist leer.</translation>
    </message>
    <message>
        <source>Updating local network...</source>
        <translation>Lokales Netzwerk wird geändert...</translation>
    </message>
    <message>
        <source>Switching mode...</source>
        <translation>Modus wird gewechselt...</translation>
    </message>
    <message>
        <source>Kill Switch blocks Vantu Proxy. Open Settings to turn it off.</source>
        <translation>Der Kill Switch blockiert Vantu Proxy. Schalten Sie ihn in den Einstellungen aus.</translation>
    </message>
    <message>
        <source>Turn off Lockdown to allow direct local network access.</source>
        <translation>Schalten Sie den Sperrmodus aus, um direkten Zugriff auf das lokale Netzwerk zu erlauben.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Verbindungsmodus</translation>
    </message>
    <message>
        <source>Choose how Vantu connects and routes traffic.</source>
        <translation>Legen Sie fest, wie Vantu sich verbindet und den Datenverkehr leitet.</translation>
    </message>
    <message>
        <source>Use VPN tunnel mode, with optional split routing.</source>
        <translation>VPN-Tunnel, auf Wunsch mit Split-Routing.</translation>
    </message>
    <message>
        <source>Use a local proxy with PAC split rules.</source>
        <translation>Lokaler Proxy mit PAC-Split-Regeln.</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Geschützt</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Standorte</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>NodeMenuModel</name>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>weniger als 1 min</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>Benachrichtigung: %1</translation>
    </message>
</context>
<context>
    <name>PickerList</name>
    <message>
        <source>No matches.</source>
        <translation>Keine Treffer.</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>What stands between the parts of a list, such as the names of several regions.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Sperrmodus</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Sperrmodus nicht verfügbar</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <translation>Die Einstellung konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Choose the interface and server content language.</source>
        <translation>Wählen Sie die Sprache für die Oberfläche und für Inhalte vom Server.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Sprachen suchen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Nothing has changed yet.</source>
        <translation>Es wurde noch nichts geändert.</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>Systemsprache verwenden</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Vantu is not available just now.</source>
        <translation>Vantu ist gerade nicht verfügbar.</translation>
    </message>
    <message>
        <source>Vantu has not reported this setting yet.</source>
        <translation>Vantu hat diese Einstellung noch nicht gemeldet.</translation>
    </message>
    <message>
        <source>Another change is still on its way.</source>
        <translation>Eine andere Änderung wird noch ausgeführt.</translation>
    </message>
    <message>
        <source>GUI Version: %1</source>
        <translation>GUI-Version: %1</translation>
    </message>
    <message>
        <source>CLI Version: %1</source>
        <translation>CLI-Version: %1</translation>
    </message>
    <message>
        <source>Version: unavailable</source>
        <translation>Version: nicht verfügbar</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Update verfügbar: %1</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Vantu GUI and daemon are incompatible</source>
        <translation>Vantu-Oberfläche und Dienst sind nicht kompatibel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>FAQ</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>Bitte warten...</translation>
    </message>
    <message>
        <source>Vantu is looking for a newer version.</source>
        <translation>Vantu sucht nach einer neueren Version.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>API-URL</translation>
    </message>
    <message>
        <source>Default API URL</source>
        <translation>Standard-API-URL</translation>
    </message>
    <message>
        <source>Where Vantu signs in and gets its locations.</source>
        <translation>Hier meldet sich Vantu an und bezieht die Standorte.</translation>
    </message>
    <message>
        <source>Apply API URL</source>
        <translation>API-URL anwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset API URL</source>
        <translation>API-URL zurücksetzen</translation>
    </message>
    <message>
        <source>API URL: default</source>
        <translation>API-URL: Standard</translation>
    </message>
    <message>
        <source>API URL: unavailable</source>
        <translation>API-URL: nicht verfügbar</translation>
    </message>
    <message>
        <source>API URL: %1</source>
        <translation>API-URL: %1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>System follows the look of your desktop.</source>
        <translation>„System“ folgt dem Erscheinungsbild Ihres Desktops.</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>Protokolle öffnen</translation>
    </message>
    <message>
        <source>Repair puts Kill Switch, proxy and VPN settings of this computer in order.</source>
        <translation>„Reparieren“ bringt die Einstellungen für Kill Switch, Proxy und VPN auf diesem Computer in Ordnung.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Log directory unavailable</source>
        <translation>Protokollordner nicht verfügbar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Connect when Vantu launches</source>
        <translation>Beim Start von Vantu verbinden</translation>
    </message>
    <message>
        <source>Launch Vantu at login</source>
        <translation>Vantu bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Show window when Vantu launches</source>
        <translation>Fenster beim Start von Vantu anzeigen</translation>
    </message>
    <message>
        <source>When off, Vantu starts in the tray only. Changing the interface language still reopens the window.</source>
        <translation>Wenn ausgeschaltet, startet Vantu nur im Infobereich. Nach einem Wechsel der Sprache öffnet sich das Fenster trotzdem wieder.</translation>
    </message>
    <message>
        <source>Kill Switch: unavailable</source>
        <translation>Kill Switch: nicht verfügbar</translation>
    </message>
    <message>
        <source>Kill Switch: %1. Vantu Proxy is unavailable while Kill Switch is on.</source>
        <translation>Kill Switch: %1. Vantu Proxy ist nicht verfügbar, solange der Kill Switch eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Kill Switch: %1. Not available in Vantu Proxy.</source>
        <translation>Kill Switch: %1. In Vantu Proxy nicht verfügbar.</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>Kill Switch: %1</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Block internet traffic whenever the VPN is not connected.</source>
        <translation>Internetverkehr blockieren, solange das VPN nicht verbunden ist.</translation>
    </message>
    <message>
        <source>Kill Switch Off</source>
        <translation>Kill Switch aus</translation>
    </message>
    <message>
        <source>Kill Switch On</source>
        <translation>Kill Switch ein</translation>
    </message>
    <message>
        <source>Kill Switch Lockdown</source>
        <translation>Kill Switch im Sperrmodus</translation>
    </message>
    <message>
        <source>Lockdown uses global VPN routing, protects the local network, and closes active VantuVPN Direct sessions. Essential Vantu and network setup traffic remains allowed.</source>
        <translation>Der Sperrmodus leitet alles durch das VPN, schützt das lokale Netzwerk und beendet aktive direkte Verbindungen von VantuVPN. Notwendiger Datenverkehr von Vantu und für die Netzwerkeinrichtung bleibt erlaubt.</translation>
    </message>
    <message>
        <source>Local network stays direct while Kill Switch is on.</source>
        <translation>Das lokale Netzwerk bleibt bei eingeschaltetem Kill Switch direkt erreichbar.</translation>
    </message>
    <message>
        <source>While VantuVPN Split is connected, traffic routed Direct by the split settings bypasses the VPN even with Kill Switch on; sites may see your network&apos;s exit IP.</source>
        <translation>Solange VantuVPN-Split verbunden ist, umgeht direkt geleiteter Datenverkehr das VPN auch bei eingeschaltetem Kill Switch; Websites können die IP-Adresse Ihres Netzwerks sehen.</translation>
    </message>
    <message>
        <source>Change in Mode</source>
        <translation>In „Modus“ ändern</translation>
    </message>
    <message>
        <source>Choose a VPN mode before enabling Lockdown.</source>
        <translation>Wählen Sie einen VPN-Modus, bevor Sie den Sperrmodus einschalten.</translation>
    </message>
    <message>
        <source>Enable Lockdown?</source>
        <translation>Sperrmodus einschalten?</translation>
    </message>
    <message>
        <source>VantuVPN Split will switch to Global, the local network will become Protected, and active VantuVPN Direct sessions will close.</source>
        <translation>VantuVPN wechselt von Split zu Global, das lokale Netzwerk wird geschützt und aktive direkte Verbindungen von VantuVPN werden beendet.</translation>
    </message>
    <message>
        <source>The local network will become Protected. Existing LAN connections may be interrupted.</source>
        <translation>Das lokale Netzwerk wird geschützt. Bestehende LAN-Verbindungen können unterbrochen werden.</translation>
    </message>
    <message>
        <source>Enable Lockdown</source>
        <translation>Sperrmodus einschalten</translation>
    </message>
    <message>
        <source>Turn Off Kill Switch?</source>
        <translation>Kill Switch ausschalten?</translation>
    </message>
    <message>
        <source>While Kill Switch is off, traffic may leave unprotected if the VPN disconnects.</source>
        <translation>Bei ausgeschaltetem Kill Switch kann Datenverkehr ungeschützt ins Netz gelangen, wenn die VPN-Verbindung abbricht.</translation>
    </message>
    <message>
        <source>Turn Kill Switch off only if you understand the risk.</source>
        <translation>Schalten Sie den Kill Switch nur aus, wenn Ihnen das Risiko bewusst ist.</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Turn Off Kill Switch</source>
        <translation>Kill Switch ausschalten</translation>
    </message>
    <message>
        <source>Keep On</source>
        <translation>Eingeschaltet lassen</translation>
    </message>
    <message>
        <source>Keep Kill Switch On</source>
        <translation>Kill Switch eingeschaltet lassen</translation>
    </message>
    <message>
        <source>Server content uses the same language.</source>
        <translation>Inhalte vom Server verwenden dieselbe Sprache.</translation>
    </message>
    <message>
        <source>Local proxy unavailable</source>
        <translation>Lokaler Proxy nicht verfügbar</translation>
    </message>
    <message>
        <source>PAC: %1</source>
        <translation>PAC: %1</translation>
    </message>
    <message>
        <source>LAN access unavailable</source>
        <translation>LAN-Zugriff nicht verfügbar</translation>
    </message>
    <message>
        <source>LAN access:
%1</source>
        <translation>LAN-Zugriff:
%1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Vantu starts the local proxy when connected. System Proxy controls whether the system uses it automatically.</source>
        <translation>Vantu startet den lokalen Proxy beim Verbinden. „Systemproxy“ legt fest, ob das System ihn automatisch verwendet.</translation>
    </message>
    <message>
        <source>On applies only in Vantu Proxy mode. Lock also clears system proxy while using VPN modes.</source>
        <translation>„Ein“ gilt nur im Modus Vantu Proxy. „Fixiert“ entfernt den Systemproxy außerdem in den VPN-Modi.</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>Systemproxy</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Fixiert</translation>
    </message>
    <message>
        <source>Listen Address</source>
        <translation>Lauschadresse</translation>
    </message>
    <message>
        <source>Use 0.0.0.0 to allow LAN devices to connect to Vantu&apos;s proxy.</source>
        <translation>Mit 0.0.0.0 können sich Geräte im LAN mit dem Proxy von Vantu verbinden.</translation>
    </message>
    <message>
        <source>Apply listen address</source>
        <translation>Lauschadresse anwenden</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>Systemproxy: %1</translation>
    </message>
    <message>
        <source>System Proxy: unavailable</source>
        <translation>Systemproxy: nicht verfügbar</translation>
    </message>
    <message>
        <source>Enter proxy listen address.</source>
        <translation>Geben Sie eine Lauschadresse für den Proxy ein.</translation>
    </message>
    <message>
        <source>The address must begin with https:// or http://.</source>
        <translation>Die Adresse muss mit https:// oder http:// beginnen.</translation>
    </message>
    <message>
        <source>Enter a web address, such as https://api.example.com.</source>
        <translation>Geben Sie eine Webadresse ein, zum Beispiel https://api.example.com.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address. Enter one such as 1.1.1.1.</source>
        <translation>„%1“ ist keine IP-Adresse. Geben Sie eine wie 1.1.1.1 ein.</translation>
    </message>
    <message>
        <source>Put an IPv6 address in brackets, as in [::1]:1080.</source>
        <translation>Setzen Sie eine IPv6-Adresse in eckige Klammern, wie in [::1]:1080.</translation>
    </message>
    <message>
        <source>Begin with an IP address or a host name, as in 127.0.0.1:1080.</source>
        <translation>Beginnen Sie mit einer IP-Adresse oder einem Hostnamen, wie in 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>Add a port at the end, as in 127.0.0.1:1080.</source>
        <translation>Fügen Sie am Ende einen Port hinzu, wie in 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
    <message>
        <source>Configured policy: unavailable</source>
        <translation>Konfigurierte Richtlinie: nicht verfügbar</translation>
    </message>
    <message>
        <source>Configured policy: default</source>
        <translation>Konfigurierte Richtlinie: Standard</translation>
    </message>
    <message>
        <source>Configured policy: %1</source>
        <translation>Konfigurierte Richtlinie: %1</translation>
    </message>
    <message>
        <source>Split DNS: unavailable</source>
        <translation>Split-DNS: nicht verfügbar</translation>
    </message>
    <message>
        <source>Effective policy: %1 (CN default)</source>
        <translation>Wirksame Richtlinie: %1 (Standard für CN)</translation>
    </message>
    <message>
        <source>Effective policy: %1</source>
        <translation>Wirksame Richtlinie: %1</translation>
    </message>
    <message>
        <source>Configured local DNS: unavailable</source>
        <translation>Konfiguriertes lokales DNS: nicht verfügbar</translation>
    </message>
    <message>
        <source>Configured local DNS: default</source>
        <translation>Konfiguriertes lokales DNS: Standard</translation>
    </message>
    <message>
        <source>Configured local DNS: %1</source>
        <translation>Konfiguriertes lokales DNS: %1</translation>
    </message>
    <message>
        <source>Effective local DNS: none</source>
        <translation>Wirksames lokales DNS: keines</translation>
    </message>
    <message>
        <source>Effective local DNS: none (%1)</source>
        <translation>Wirksames lokales DNS: keines (%1)</translation>
    </message>
    <message>
        <source>Effective local DNS: %1</source>
        <translation>Wirksames lokales DNS: %1</translation>
    </message>
    <message>
        <source>Effective local DNS: %1 (%2)</source>
        <translation>Wirksames lokales DNS: %1 (%2)</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>Split-DNS</translation>
    </message>
    <message>
        <source>Split DNS applies only in VantuVPN Split mode. Auto, WireGuard, and VantuVPN Global ignore this Local DNS setting and use tunnel DNS for VPN traffic.</source>
        <translation>Split-DNS gilt nur im Modus VantuVPN-Split. Automatisch, WireGuard und VantuVPN-Global ignorieren diese Einstellung für lokales DNS und nutzen für VPN-Verkehr das DNS des Tunnels.</translation>
    </message>
    <message>
        <source>Dual policies query both Local DNS and remote tunnel DNS for domains outside split tunnel lists, then choose the route from the result.</source>
        <translation>Die dualen Richtlinien fragen für Domains außerhalb der Tunnel-Listen sowohl das lokale DNS als auch das DNS des Tunnels ab und wählen die Route nach dem Ergebnis.</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>Richtlinie</translation>
    </message>
    <message>
        <source>Tunnel Only</source>
        <translation>Nur Tunnel</translation>
    </message>
    <message>
        <source>Dual Explicit</source>
        <translation>Dual explizit</translation>
    </message>
    <message>
        <source>Dual Auto</source>
        <translation>Dual automatisch</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>Lokales DNS</translation>
    </message>
    <message>
        <source>Local DNS, separated by commas</source>
        <translation>Lokale DNS-Server, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>IP addresses, each with a port if it is not 53.</source>
        <translation>IP-Adressen, jeweils mit Port, falls dieser nicht 53 ist.</translation>
    </message>
    <message>
        <source>Apply local DNS</source>
        <translation>Lokales DNS anwenden</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear local DNS</source>
        <translation>Lokales DNS leeren</translation>
    </message>
    <message>
        <source>Reset puts the policy and Local DNS back to the default.</source>
        <translation>„Zurücksetzen“ stellt Richtlinie und lokales DNS auf den Standard zurück.</translation>
    </message>
    <message>
        <source>Reset Split DNS</source>
        <translation>Split-DNS zurücksetzen</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>Verbleibende Tage: %1</translation>
    </message>
    <message>
        <source>Vantu: %1</source>
        <translation>Vantu: %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Standort: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>Standort: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>Aktuell: %1</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>Aktuell: %1 (veraltet)</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>Systemproxy: %1</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>Systemproxy geändert: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>Lokales Netzwerk: %1</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>Kill Switch: %1</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>Konto: %1</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 existiert nicht: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>%1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Vantu: connecting %1...</source>
        <translation>Vantu: Verbindung mit %1...</translation>
    </message>
    <message>
        <source>Vantu Proxy: Split (%1)</source>
        <translation>Vantu Proxy: Split (%1)</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>Standard %1</translation>
    </message>
    <message>
        <source>split default %1</source>
        <translation>Split-Standard %1</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>Regionen mit Route %1: %2</translation>
    </message>
    <message>
        <source>regions %1 %2</source>
        <translation>Regionen %1 %2</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Fixiert</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Geschützt</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Tunnel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>getrennt</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>wird verbunden</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>wird getrennt</translation>
    </message>
    <message>
        <source>Vantu</source>
        <translation>Vantu</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>Modus aktualisiert</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Abgemeldet</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>Kill Switch eingeschaltet</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>Kill Switch ausgeschaltet</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Sperrmodus</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Sperrmodus nicht verfügbar</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>Protokollordner</translation>
    </message>
    <message>
        <source>custom rules</source>
        <translation>eigene Regeln</translation>
    </message>
    <message>
        <source>custom rules off</source>
        <translation>eigene Regeln aus</translation>
    </message>
    <message>
        <source>gfwlist proxy</source>
        <translation>GFWList Proxy</translation>
    </message>
    <message>
        <source>gfwlist tunnel</source>
        <translation>GFWList Tunnel</translation>
    </message>
    <message>
        <source>Vantu Proxy: Global</source>
        <translation>Vantu Proxy: Global</translation>
    </message>
    <message>
        <source>Vantu: daemon unavailable</source>
        <translation>Vantu: Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>Vantu - daemon unavailable</source>
        <translation>Vantu - Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>Aktuell: wird geladen...</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>Konto: zwischengespeichert</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>Konto: angemeldet</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>Konto: nicht verfügbar</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>Konto: Anmeldung erforderlich</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>Konto: wird geprüft...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <translation>Vorgang fehlgeschlagen</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <translation>Kontovorgang fehlgeschlagen</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <translation>Moduswechsel fehlgeschlagen</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <translation>Kill-Switch-Vorgang fehlgeschlagen</translation>
    </message>
    <message>
        <source>Vantu: connect failed</source>
        <translation>Vantu: Verbindung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Vantu: disconnect failed</source>
        <translation>Vantu: Trennen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>Knoten konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>Knoten konnten nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>Knotengruppen konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>Knotengruppen konnten nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>Knoten werden geladen...</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>Knoten werden aktualisiert...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>Knoten nicht geladen</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>Keine zwischengespeicherten Knoten</translation>
    </message>
    <message>
        <source>All Nodes</source>
        <translation>Alle Knoten</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>Keine Knoten</translation>
    </message>
    <message>
        <source>Vantu: switching to auto...</source>
        <translation>Vantu: Wechsel zu Automatisch...</translation>
    </message>
    <message>
        <source>Vantu: switching to WireGuard...</source>
        <translation>Vantu: Wechsel zu WireGuard...</translation>
    </message>
    <message>
        <source>Vantu: switching to VantuVPN...</source>
        <translation>Vantu: Wechsel zu VantuVPN...</translation>
    </message>
    <message>
        <source>Vantu: switching VantuVPN split...</source>
        <translation>Vantu: Wechsel zu VantuVPN-Split...</translation>
    </message>
    <message>
        <source>Vantu: switching to Vantu Proxy...</source>
        <translation>Vantu: Wechsel zu Vantu Proxy...</translation>
    </message>
    <message>
        <source>Vantu: switching to Vantu Proxy Split...</source>
        <translation>Vantu: Wechsel zu Vantu Proxy Split...</translation>
    </message>
    <message>
        <source>Vantu: logging out...</source>
        <translation>Vantu: Abmeldung läuft...</translation>
    </message>
    <message>
        <source>Vantu: connecting...</source>
        <translation>Vantu: Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>Vantu: disconnecting...</source>
        <translation>Vantu: Verbindung wird getrennt...</translation>
    </message>
    <message>
        <source>Vantu: enabling kill switch...</source>
        <translation>Vantu: Kill Switch wird eingeschaltet...</translation>
    </message>
    <message>
        <source>Vantu: disabling kill switch...</source>
        <translation>Vantu: Kill Switch wird ausgeschaltet...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy Split...</source>
        <translation>Vantu: Vantu Proxy Split wird aktualisiert...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy regions...</source>
        <translation>Vantu: Regionen von Vantu Proxy werden aktualisiert...</translation>
    </message>
    <message>
        <source>Vantu: updating Vantu Proxy GFWList...</source>
        <translation>Vantu: GFWList von Vantu Proxy wird aktualisiert...</translation>
    </message>
    <message>
        <source>Vantu: updating local network routing...</source>
        <translation>Vantu: Routing des lokalen Netzwerks wird aktualisiert...</translation>
    </message>
    <message>
        <source>Vantu: updating system proxy...</source>
        <translation>Vantu: Systemproxy wird aktualisiert...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN split...</source>
        <translation>Vantu: VantuVPN-Split wird aktualisiert...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN regions...</source>
        <translation>Vantu: Regionen von VantuVPN werden aktualisiert...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN GFWList...</source>
        <translation>Vantu: GFWList von VantuVPN wird aktualisiert...</translation>
    </message>
    <message>
        <source>Vantu: updating VantuVPN custom rules...</source>
        <translation>Vantu: Eigene Regeln von VantuVPN werden aktualisiert...</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Canceling...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>Der Download-Link ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>Der Download-Link konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Vantu will not run the installer automatically.</source>
        <translation>Der Download-Link wurde im Browser geöffnet. Vantu startet das Installationsprogramm nicht automatisch.</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>Der Download gehört zu einer anderen Update-Version. Suchen Sie erneut nach Updates.</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>Download des Updates konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>Es ist unklar, ob der Download begonnen hat. Der Status wird geprüft...</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>Der Abbruch konnte nicht bestätigt werden. Neuer Versuch...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>Der Fortschritt konnte nicht gelesen werden. Neuer Versuch...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>Der Download war vor dem Abbruch bereits abgeschlossen. Das Installationsprogramm wurde nicht geöffnet.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>Das Update wurde heruntergeladen, das Installationsprogramm konnte aber nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>Es liegen keine Update-Informationen vor. Suchen Sie erneut nach Updates.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>Vor dem Download wird die laufende Update-Suche abgeschlossen...</translation>
    </message>
    <message>
        <source>Vantu Update</source>
        <translation>Vantu-Update</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Update wird heruntergeladen...</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <translation>Download-Link öffnen</translation>
    </message>
    <message>
        <source>Open the Vantu update download link</source>
        <translation>Download-Link des Vantu-Updates öffnen</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>Ein erforderliches Update ist verfügbar</translation>
    </message>
    <message>
        <source>A new Vantu update is available</source>
        <translation>Ein neues Vantu-Update ist verfügbar</translation>
    </message>
    <message>
        <source>Vantu must be updated before you can connect. Download the installer or exit Vantu.</source>
        <translation>Vantu muss aktualisiert werden, bevor Sie sich verbinden können. Laden Sie das Installationsprogramm herunter oder beenden Sie Vantu.</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>Laden Sie das neueste Installationsprogramm herunter, ohne Ihre Sitzung zu unterbrechen.</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>Aktuelle Version: %1
Verfügbare Version: %2</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Neueste</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>Versionshinweise sind nicht verfügbar.</translation>
    </message>
    <message>
        <source>Exit Vantu</source>
        <translation>Vantu beenden</translation>
    </message>
    <message>
        <source>Exit Vantu without updating</source>
        <translation>Vantu ohne Update beenden</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <translation>Im Hintergrund herunterladen</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>Dieses Fenster während des Downloads ausblenden</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <translation>Dieses Update ausblenden</translation>
    </message>
    <message>
        <source>Download Update</source>
        <translation>Update herunterladen</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <translation>Download abbrechen</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <translation>Download wiederholen</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <translation>Wird geöffnet...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>%1 von %2 heruntergeladen</translation>
    </message>
    <message>
        <source>Could not read the update download status.</source>
        <translation>Der Status des Downloads konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>Das Update konnte nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download abgebrochen.</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>Download wird vorbereitet...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>Download wird überprüft...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>Download wird abgebrochen...</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>Download abgeschlossen. Installationsprogramm wird geöffnet...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>Download des Updates abbrechen</translation>
    </message>
    <message>
        <source>Canceling the update download</source>
        <translation>Der Download des Updates wird abgebrochen</translation>
    </message>
    <message>
        <source>Opening the Vantu update installer</source>
        <translation>Das Installationsprogramm des Vantu-Updates wird geöffnet</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>Download des Updates wiederholen</translation>
    </message>
    <message>
        <source>Download and install the Vantu update</source>
        <translation>Das Vantu-Update herunterladen und installieren</translation>
    </message>
    <message>
        <source>The update is downloaded and ready to install.</source>
        <translation>Das Update ist heruntergeladen und kann installiert werden.</translation>
    </message>
</context>
<context>
    <name>VantuAppShell</name>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>Bitte warten Sie, bis der laufende Vorgang abgeschlossen ist</translation>
    </message>
    <message>
        <source>Could not sign in</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>Abmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>Konto konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>Standorte werden aktualisiert...</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>Standorte aktualisiert</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>Standorte konnten nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>Standortgruppen konnten nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>Verbindung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>Verbindung mit diesem Standort fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>Verbindung konnte nicht getrennt werden</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>Die Standorte werden bereits aktualisiert</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>Favorit konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Restarting Vantu to apply the interface language.</source>
        <translation>Vantu wird neu gestartet, um die Sprache der Oberfläche zu übernehmen.</translation>
    </message>
    <message>
        <source>Could not restart Vantu. Please restart the app manually.</source>
        <translation>Vantu konnte nicht neu gestartet werden. Bitte starten Sie die App von Hand neu.</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>Wählen Sie einen VPN-Modus, um den Kill Switch einzuschalten</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>Lokales Netzwerk konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>Systemproxy konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>Modus konnte nicht gewechselt werden</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>Kill Switch konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Checking Vantu service compatibility...</source>
        <translation>Kompatibilität des Vantu-Dienstes wird geprüft...</translation>
    </message>
    <message>
        <source>Vantu GUI and daemon are incompatible. Update Vantu before continuing.</source>
        <translation>Vantu-Oberfläche und Dienst sind nicht kompatibel. Aktualisieren Sie Vantu, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>Version konnte nicht ermittelt werden</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>Reparatur abgeschlossen</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>Automatisches Verbinden konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>Lauschadresse des Proxys konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>Lauschadresse des Proxys gespeichert, gilt ab der nächsten Verbindung</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>Lauschadresse des Proxys geändert</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>Split-DNS aktualisiert</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>Reparatur fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>Konfigurationspfade konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>Eigene Split-Regeln gespeichert, die Anzeige konnte aber nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>Split-Regeln konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>Split-Regeln konnten nicht importiert werden</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>Eigene Split-Regeln gespeichert (%n Regel)</numerusform>
            <numerusform>Eigene Split-Regeln gespeichert (%n Regeln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>Eigene Split-Regeln unverändert</translation>
    </message>
    <message>
        <source>A required Vantu update is being checked before connecting.</source>
        <translation>Vor dem Verbinden wird ein erforderliches Vantu-Update geprüft.</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>Verlängerungsseite konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>Sprache konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Suche nach Updates fehlgeschlagen</translation>
    </message>
    <message>
        <source>Vantu is up to date</source>
        <translation>Vantu ist auf dem neuesten Stand</translation>
    </message>
</context>
<context>
    <name>VantuTrayApp</name>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Vantu: starting...</source>
        <translation>Vantu: wird gestartet...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>Dienst: wird geprüft...</translation>
    </message>
    <message>
        <source>Open Vantu...</source>
        <translation>Vantu öffnen...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>Knoten / Standort</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>Knoten aktualisieren</translation>
    </message>
    <message>
        <source>Mode: VantuVPN</source>
        <translation>Modus: VantuVPN</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>Split-Optionen</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>Standard: Tunnel</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>Standard: Direkt</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regionen</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; Tunnel</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>Eigene Split-Regeln</translation>
    </message>
    <message>
        <source>Mode: Vantu Proxy</source>
        <translation>Modus: Vantu Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>Standard: Proxy</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; Proxy</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>Systemproxy</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>LAN-Zugriff</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>Status aktualisieren</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>Protokolle öffnen</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>Knoten aktualisieren (%1 s)</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Kostenlos</translation>
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
        <translation>Knoten</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Waiting for daemon status</source>
        <translation>Warten auf den Status des Dienstes</translation>
    </message>
    <message>
        <source>Daemon unavailable</source>
        <translation>Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Verbindung wird getrennt...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>Search locations or nodes</source>
        <translation>Standorte oder Knoten suchen</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Location, %1</source>
        <translation>Standort, %1</translation>
    </message>
    <message>
        <source>Mode, %1</source>
        <translation>Modus, %1</translation>
    </message>
    <message>
        <source>Kill Switch, %1</source>
        <translation>Kill Switch, %1</translation>
    </message>
    <message>
        <source>Local Network, %1</source>
        <translation>Lokales Netzwerk, %1</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Sperrmodus</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Sperrmodus nicht verfügbar</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>%1 · Not available in Vantu Proxy</source>
        <translation>%1 · In Vantu Proxy nicht verfügbar</translation>
    </message>
    <message>
        <source>Smart-select a server automatically</source>
        <translation>Server automatisch auswählen</translation>
    </message>
    <message>
        <source>Checking Vantu...</source>
        <translation>Vantu wird geprüft...</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Operation failed</source>
        <translation>Vorgang fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not open link</source>
        <translation>Link konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>Der Protokollordner ist nicht verfügbar</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>Der Protokollordner existiert nicht: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>Der Protokollordner konnte nicht geöffnet werden: %1</translation>
    </message>
</context>
</TS>
