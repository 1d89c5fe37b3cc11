<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>Die Verbindung wurde verweigert</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung beim Verbinden</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>Der Host wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Das Netzwerk ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Zeitüberschreitung bei einem Netzwerkvorgang</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Nicht genügend Speicherplatz auf dem Datenträger</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele geöffnete Dateien</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>A&amp;usschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>Die Verbindung wurde verweigert</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Die Gegenstelle hat die Verbindung zurückgesetzt</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung beim Verbinden</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Der Host ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>Das Netzwerk hat die Verbindung beim Zurücksetzen getrennt</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>Zeitüberschreitung bei einem Netzwerkvorgang</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Das Netzwerk ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>Die Adresse ist nicht verfügbar</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>Die Gegenstelle hat die Verbindung geschlossen</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Bildlauf hierhin</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Seite nach links</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Seite nach rechts</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Seite nach oben</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Seite nach unten</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Bildlauf nach links</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Bildlauf nach rechts</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Bildlauf nach oben</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Bildlauf nach unten</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Der Name ist kein gültiger Text</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>Der Inhalt des Ordners kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>Der Pfad enthält einen umgekehrten Schrägstrich, der auf dem neuen PC Ordner voneinander trennt</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>Ein anderer ausgewählter Ordner enthält eine Datei mit diesem Namen</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Nicht erreichbar</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>Benutzerkonten werden gesucht...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>Windows-Konten werden aufgelistet...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>Die Verbindung zu %1 ging verloren, bevor die Installation dort bestätigt wurde</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>Die Verbindung zu %1 ging verloren, bevor die Anwendung der Einstellung dort bestätigt wurde</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>%1 hat die Übertragung abgebrochen, bevor die Installation bestätigt wurde</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>%1 hat die Übertragung abgebrochen, bevor die Anwendung der Einstellung bestätigt wurde</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>Installationsdateien werden kopiert...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>AppData-Dateien werden kopiert...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>Registrierung wird importiert...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>Verknüpfungen werden erstellt...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Installation abgeschlossen</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>Die Installationsdateien konnten nicht kopiert werden</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>Abgebrochen: %1 von %2 Dateien kopiert</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>Abgebrochen, bevor alle Registrierungsschlüssel und Verknüpfungen der App angelegt waren</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Nicht angekommene Dateien von %1: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>Nicht kopierte Dateien: %1 von %2 (%3: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>System-App</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>App-Informationen werden gesendet...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>Verknüpfungen werden gesendet...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>Wird abgeschlossen...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>Registrierung wird exportiert...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>Installationsdateien werden gesendet...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>AppData Local wird gesendet...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>AppData Roaming wird gesendet...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>ProgramData wird gesendet...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>Installierte Apps werden gesucht...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>Vom Benutzer installierte Apps werden gesucht...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>Program Files wird durchsucht...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>Registrierung wird nach Benutzersoftware durchsucht...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Suche abgeschlossen</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>Es ist keine Anfrage offen, die damit beantwortet werden könnte.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 ist nicht mehr da.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>dieser PC sieht sich nur um.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>Der Ordner %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>Der Ordner %1 kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>Die App %1 kann nicht übertragen werden.</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>Die App %1 gibt es auf diesem PC nicht. Siehe zandrove-cli scan.</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>Die Einstellung %1 gibt es auf diesem PC nicht. Siehe zandrove-cli scan.</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>Davon gibt es auf diesem PC nichts zu übertragen. Siehe zandrove-cli scan.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 ist auch da, aber ebenfalls als alter PC: Wählen Sie auf einem der beiden „Neuer PC“</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 ist auch da, aber ebenfalls als neuer PC: Wählen Sie auf einem der beiden „Alter PC“</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>Port %1 ist durch %2 belegt: Dieser PC hört keinen anderen. Beenden Sie dieses Programm, und beginnen Sie von vorn.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>Port %1 ist durch %2 belegt: Kein anderer PC kann diesen erreichen. Beenden Sie dieses Programm, und beginnen Sie von vorn.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>Port %1 ist durch %2 belegt: Kein anderer PC kann bei diesem anfragen; dieser kann aber weiterhin bei anderen anfragen.</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>%1 wurde 20 Sekunden lang nicht gefunden. In Reichweite sind: %2.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Neuer PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Alter PC</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>20 Sekunden lang wurde niemand gefunden. Was zu prüfen ist, das Wahrscheinlichste zuerst: Zandrove läuft auf dem anderen PC, und zwar als „%1“; beide PCs sind im selben Netzwerk oder durch ein Kabel verbunden; keiner der beiden benutzt ein VPN; ihre Firewalls lassen TCP-Port %2 und UDP-Port %3 herein. zandrove-cli diagnose sucht nach der Ursache.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 ist keine Sekundenzahl von 1 bis %2.</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode ist network oder cable, nicht %1.</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role ist old oder new, nicht %1.</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to braucht einen Code, einen Namen oder eine Adresse.</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder braucht einen Ordner.</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>Der neue PC: die vier Ziffern auf seinem Bildschirm, sein Name oder seine Adresse.</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>Ein Ordner, der übertragen werden soll; kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>Jeden anfragenden PC ohne Rückfrage zulassen.</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>Nach der ersten Übertragung beenden.</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>Mit Exitcode 3 beenden, wenn innerhalb von S Sekunden keine Übertragung beginnt. Zählt bei jedem neuen Warten von vorn; eine laufende Übertragung wird nie unterbrochen.</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>Was dieser PC ist. Ein alter PC sieht die neuen PCs, ein neuer PC die alten.</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>N Sekunden lang suchen; ohne Angabe bis Strg+C.</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>Wie die PCs einander finden: per Broadcast (Standard) oder über ein direktes Kabel, wobei auch die Adressen rund um die eigene versucht werden.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>Befehle von der Standardeingabe befolgen, einen je Zeile: yes, no (Antwort auf eine Anfrage), pause, resume, cancel, end.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>Befehle von der Standardeingabe befolgen, einen je Zeile: pause, resume, cancel, again [DIR] (eine weitere Übertragung über dieselbe Verbindung), end. Die Verbindung bleibt dann nach einer Übertragung bestehen, bis end kommt oder die Standardeingabe endet.</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>Je Zeile ein JSON-Objekt ausgeben, für Skripts.</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>Das Protokoll des Programms auf der Standardfehlerausgabe ausgeben.</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>Als neuer PC einen Code anzeigen, auf einen alten PC warten und empfangen, was er sendet.</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>Die PCs im Netzwerk auflisten, wie sie kommen und gehen.</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>Auflisten, was von diesem PC übertragen werden kann: Apps, Ordner, Konten und Einstellungen.</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>Dieser Text; nach einem Befehl die Hilfe zu diesem Befehl.</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>Die Version des Programms.</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>Unbekannte Option %1. Siehe --help.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 erwartet keinen Wert.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send braucht --to mit dem Code, dem Namen oder der Adresse des neuen PCs.</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover braucht --role old oder --role new.</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>Unerwartetes Argument %1. Siehe --help.</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>Unbekannter Befehl %1. Siehe --help.</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>Eine App, die übertragen werden soll, mit genau dem Namen, den scan auflistet; kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>Alle Apps übertragen, bei denen das möglich ist.</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>Eine Einstellung, die übertragen werden soll, mit der ID, die scan auflistet; kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>Alle Einstellungen dieses PCs übertragen.</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>Mit Exitcode 3 beenden, wenn der neue PC nicht innerhalb von S Sekunden gefunden wird und diesen PC zulässt. Zählt ab dem Beginn der Suche; die Übertragung selbst wird nie unterbrochen.</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>Als alter PC den neuen PC finden, auf dessen Zustimmung warten und Ordner, Apps und Einstellungen senden.</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli überträgt Ordner, Apps und Einstellungen von einem alten PC auf einen neuen PC im selben Netzwerk.</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send braucht etwas zum Übertragen: --folder, --app oder --setting.</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>Den Bericht jeder Übertragung in FILE schreiben, anstelle des vorherigen: als Seite zum Lesen oder, wenn der Name auf .json endet, als JSON.</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>Adresse oder Hostname eines PCs, der zusätzlich versucht wird.</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>Was dieser PC ist, zum Vergleich mit denen, die zu hören sind.</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>N Sekunden lang lauschen; ohne diese Angabe 5.</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>Herausfinden, warum der andere PC nicht gefunden wird: Adapter, Ports, Firewalls und VPNs prüfen, und wer zu hören ist und antwortet. Ändert nichts.</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>Exitcodes: 0 alles übertragen oder aufgelistet; 1 Verbindung oder Lauf fehlgeschlagen oder abgelehnt; 2 falscher Aufruf; 3 Zeitüberschreitung; 4 beendet, aber etwas ist fehlgeschlagen oder war schon vorhanden, oder diagnose hat ein Hindernis gefunden; 130 mit Strg+C abgebrochen (der andere PC erfährt davon; ein zweites Strg+C beendet sofort).</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>Geben Sie receive, send, discover, diagnose oder scan an. Siehe --help.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>Darf %1 (%2) sich verbinden? [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>Der Bericht kann nicht geschrieben werden: %1 ist ein Ordner.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>Hier kann niemand gefragt werden: Ohne --yes wird jede Anfrage abgelehnt.</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>dieser PC empfängt gerade von %1.</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>hier kann niemand gefragt werden. Mit --yes starten, um jeden PC zuzulassen.</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>Die Verbindung zu %1 ist während einer Übertragung abgebrochen.</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>%1 hat die Sitzung während einer Übertragung beendet.</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>Innerhalb von %1&#xa0;s ist nichts angekommen.</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>Einige Einstellungen werden noch angewendet; im Bericht fehlen sie.</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>Die Übertragung von %1 ist abgebrochen.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>dieser PC sendet gerade an %1.</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>Die Verbindung zu %1 ist abgebrochen.</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 hat die Sitzung beendet.</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>Es gibt keine beendete Übertragung, auf die eine weitere folgen könnte.</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%1 wurde innerhalb von %2&#xa0;s nicht gefunden.</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%1 hat innerhalb von %2&#xa0;s nicht geantwortet.</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 hat die Übertragung beendet.</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>Mehr als ein PC ist unter %1 zu finden: %2. Geben Sie den gewünschten mit seiner Adresse an.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>Unbekannter Befehl: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>Der andere PC hat die Sitzung nicht beendet: Möglicherweise ist nicht alles angekommen.</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>Keine Antwort von %1 seit %2&#xa0;s</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 antwortet wieder</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>%1 sind unterwegs, aber auf %3 sind nur %2 frei: Es wird nicht alles passen.</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>Die Verbindung zu %1 ging verloren, bevor bestätigt wurde, dass alles installiert ist.</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>%1 hat die Übertragung abgebrochen, bevor alles installiert war.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>Der Code dieses PCs ist %1. Warten auf einen alten PC.</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>Code %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>%1 gefunden. Warten, bis er diesen PC zulässt.</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>%1 wurde abgelehnt.</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>%1 wurde abgelehnt: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Mit %1 verbunden.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Verbindung zu %1 getrennt.</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>%1 wurde nicht übertragen: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Angehalten.</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>Von %1 angehalten.</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>Fortgesetzt.</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>Von %1 fortgesetzt.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>Von %1 abgebrochen.</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>Gespeicherte Dateien:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>Suche %1%  Apps: %2</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(kann nicht übertragen werden)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>Apps: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Ordner: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>Konten: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Einstellungen: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>%1 in Apps und Ordnern.</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>Fertig in %1: %2, durchschnittlich %3.</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>Fertig in %1: %2.</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>Apps:</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installiert</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>gesendet</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>angewendet</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 installiert %2...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 wird installiert</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>Dateien: %1 angekommen, %2 fehlgeschlagen, %3 schon vorhanden.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>PROBLEM</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>Warten auf %1: Dort muss jemand auf „Ja“ drücken</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>Weitere sind im Bericht mitgezählt.</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>Es wurde kein Hindernis gefunden.</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>Gefundene Hindernisse: %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>Ihre Dateien, Apps und Einstellungen wurden erfolgreich übertragen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>Dateien gespeichert unter:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>Warten auf weitere Dateien...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ Fertig</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 Weitere Dateien senden...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>Weitere Dateien senden...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Empfangene Dateien</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>Dateien: %1 angekommen, %2 schon vorhanden und identisch, %3 schon vorhanden und anders, %4 fehlgeschlagen oder nicht bestätigt</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>%1 von %2 Apps nicht angekommen</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>%1 von %2 Einstellungen nicht angekommen</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>Apps und Einstellungen wurden gesendet. Was daraus geworden ist, steht auf der Seite von %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>Verfügbare Geräte</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>Gefundene Geräte: %1, davon online: %2</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Verbindung mit %1 wird hergestellt...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>Code wird überprüft...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>Verbindungsanfrage von %1...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>Verbindungsanfrage</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>„%1“ möchte sich mit diesem PC verbinden.

Möchten Sie das zulassen?</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Verbindung abgelehnt</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>Der andere PC wartet nicht mehr</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ Mit %1 verbunden</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ Erfolgreich verbunden!</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ Verbindung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>Direktverbindung wird durchsucht... 0&#xa0;%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>Direktverbindung wird durchsucht...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>Direktverbindung wird durchsucht... %1&#xa0;% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>Kein Gerät gefunden. Stellen Sie sicher, dass Zandrove auf dem anderen PC läuft</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>Geräte in Ihrem Netzwerk werden gesucht...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 Aktualisieren</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>Mit einem anderen PC verbinden</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>Gerät auswählen oder Bestätigungscode eingeben</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 Auf beiden PCs muss Zandrove laufen, und beide müssen im selben Netzwerk sein</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>Durchsucht: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>Stellen Sie sicher, dass das Netzwerkkabel angeschlossen ist</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>Ihr Bestätigungscode</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>Diesen Code am anderen PC eingeben</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>Oder dessen Code eingeben</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>Code des anderen PCs, Zeichen %1</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>Das ist die Adresse dieses PCs.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>Hier funktionieren nur IPv4-Adressen, zum Beispiel 192.168.1.23.</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>Eine Adresse hat vier Zahlen von 0 bis 255, zum Beispiel 192.168.1.23.</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>Das ist nicht die Adresse eines einzelnen PCs.</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>Das ist weder eine Adresse noch der Name eines PCs.</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>Adresse oder Name des anderen PCs</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>Oder dessen Adresse eingeben</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>%1 wird gesucht...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>Es wurde kein PC mit dem Namen %1 gefunden. Vielleicht klappt es mit seiner Adresse.</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 hat keine IPv4-Adresse.</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>Adresse dieses PCs: %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>Stattdessen den Code eingeben</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>Stattdessen eine Adresse eingeben</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>Warten auf %1: Dort muss jemand auf „Ja“ drücken</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>Keine Verbindung zu %1: %2.</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>Seine Adresse: %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>Zandrove ist auch auf dem anderen PC geöffnet und zeigt dort diese Seite.</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>Das Netzwerkkabel steckt an beiden PCs, und die Lämpchen daran leuchten.</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>Beide sind im selben Netzwerk, und keiner ist in einem Gast-WLAN oder VPN.</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>Einer der beiden ist der alte PC, der andere der neue PC.</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>Die Firewalls beider PCs lassen Zandrove durch.</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>Noch niemand gefunden. Bitte prüfen Sie, das Wahrscheinlichste zuerst:</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>Sie finden den anderen PC nicht?</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>Zurück zu den Geräten</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>Dieser PC und sein Netzwerk werden geprüft. Das dauert einige Sekunden...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>Hier wurde kein Hindernis gefunden. Bitte prüfen Sie auch auf dem anderen PC.</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>Was mit ✗ markiert ist, steht im Weg.</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>ein anderes Programm, vielleicht ein zweites Zandrove</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>Port %1 ist durch %2 belegt. Deshalb kann sich kein anderer PC mit diesem verbinden. Bitte schließen Sie dieses Programm, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>Port %1 ist durch %2 belegt. Deshalb hört dieser PC keine anderen PCs. Bitte schließen Sie dieses Programm, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 ist auch da, aber ebenfalls als alter PC: Wählen Sie auf einem der beiden „Neuer PC“</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 ist auch da, aber ebenfalls als neuer PC: Wählen Sie auf einem der beiden „Alter PC“</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>virtuell</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>%1 has the address %2.</source>
        <translation>%1 hat die Adresse %2.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 hat die Adresse %2, ist aber mit nichts verbunden.</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>Stecken Sie das Kabel ein, oder verbinden Sie den Adapter mit einem Netzwerk.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 hat die Adresse %2, kann aber keinen Broadcast senden: %3.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>Suchen Sie auf diesem PC nach einer Firewall oder einem Sicherheitsprogramm, das Zandrove am Senden hindert.</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 hat die Adresse %2 und sendet Broadcasts.</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 ist verbunden, hat aber noch keine Adresse.</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>Warten Sie eine Minute. Wenn dann keine Adresse kommt, prüfen Sie, ob der Router eingeschaltet ist; bei einem direkten Kabel stellen Sie diese Verbindung auf Link-Local-Adressen ein.</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 ist mit nichts verbunden.</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>Dieser PC hat nur eine Adresse, die er sich selbst gegeben hat: %1.</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>Bei einem direkten Kabel ist das in Ordnung: Wählen Sie auf beiden PCs den Kabelmodus. In einem Netzwerk prüfen Sie, ob der Router eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>Das VPN %1 nimmt an sich, was für das Netzwerk %2 von %3 bestimmt ist.</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>Trennen Sie das VPN, bis alles übertragen ist.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>Das VPN %1 nimmt an sich, was nicht für ein lokales Netzwerk bestimmt ist.</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>Trennen Sie es, wenn die PCs einander nicht finden: Viele VPNs halten ihren PC vom lokalen Netzwerk fern.</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>Dieser PC ist in keinem Netzwerk.</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>Stecken Sie ein Kabel ein, oder verbinden Sie den PC mit einem WLAN.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Neuer PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Alter PC</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>Was für diesen PC bestimmt ist, geht über das VPN %1 hinaus: Trennen Sie es zuerst.</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>Führen Sie diese Diagnose auf %1 aus: Vielleicht ist dort der Port belegt, oder die Firewall weist Verbindungen ab.</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>Lassen Sie Zandrove durch die Firewall von %1: TCP-Port %2.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1 (%2) meldet sich als „%3“, lehnt aber Verbindungen an TCP-Port %4 ab.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1 (%2) meldet sich als „%3“, aber eine Verbindung ist nicht möglich: %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1 (%2) meldet sich als „%3“, antwortet aber nicht an TCP-Port %4.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>%1 ist auch da, aber ebenfalls als „%2“.</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>Wählen Sie auf einem der beiden „%1“.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1 (%2) meldet sich als „%3“ und antwortet.</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>Niemand hier kennt einen PC mit dem Namen %1.</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>Geben Sie stattdessen seine Adresse an; seine Verbindungsseite zeigt sie.</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 ist dieser PC selbst.</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>Geben Sie die Adresse des anderen PCs an.</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 antwortet an TCP-Port %2, ist aber an UDP-Port %3 nicht zu hören.</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>Öffnen Sie dort die Verbindungsseite und in den Firewalls beider PCs UDP-Port %1; oder stellen Sie die Verbindung über die Adresse her.</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1 ist da, lehnt aber Verbindungen an TCP-Port %2 ab.</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>Öffnen Sie dort Zandrove, und gehen Sie bis zur Verbindungsseite.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>Eine Verbindung zu %1 ist nicht möglich: %2.</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>Prüfen Sie, ob die Adresse stimmt und beide PCs im selben Netzwerk sind.</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 antwortet nicht an TCP-Port %2 und ist nicht zu hören.</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>Prüfen Sie, ob die Adresse stimmt, der PC eingeschaltet ist und seine Firewall Zandrove durchlässt.</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>Dieser PC hört seine eigenen Broadcasts auf %1 nicht.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>Suchen Sie auf diesem PC nach einer Firewall oder einem Sicherheitsprogramm, das UDP-Port %1 sperrt.</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>Auf %1 hat niemand geantwortet, und dort gibt es keinen Router.</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>Wenn der andere PC dort sein sollte, prüfen Sie, ob sein Ende des Kabels eingesteckt oder sein Netzwerk eingeschaltet ist.</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>Innerhalb von %1 s war kein anderer PC zu hören.</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>Öffnen Sie Zandrove auf dem anderen PC, gehen Sie bis zur Verbindungsseite, und verbinden Sie beide PCs mit demselben Netzwerk.</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>TCP-Port %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>UDP-Port %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 ist frei.</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>%1 wird von Zandrove benutzt, wie es sein soll.</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>%1 ist durch ein anderes Programm belegt.</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>%1 ist durch %2 belegt.</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>Finden Sie heraus, welches es ist, schließen Sie es, und starten Sie Zandrove neu.</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>Schließen Sie dieses Programm, und starten Sie Zandrove neu.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1 ist eingeschaltet und lässt beide Ports herein.</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1 ist eingeschaltet und sperrt %2.</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>Lassen Sie dort beide Ports zu.</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1 ist eingeschaltet; ob beide Ports hereingelassen werden, hängt vom Absender ab oder von Regeln, die sich hier nicht beurteilen lassen.</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>Prüfen Sie, ob die Regeln %1 und %2 hereinlassen.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>%1 konnte ohne Administratorrechte nicht abgefragt werden.</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1 gab keine lesbare Antwort.</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1 ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>Es wurde keine Firewall gefunden, die sich abfragen lässt.</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>Das System behandelt das Netzwerk %1 als öffentlich.</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>Wenn es Ihr eigenes ist, stellen Sie es in den Netzwerkeinstellungen auf „Privat“.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>Zu übertragende Ordner auswählen</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>Dieser PC</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>Lokaler Datenträger (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> – %1 frei von %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>sie ist inzwischen kürzer geworden</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>Schreibfehler</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Empfangene Dateien</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Die Datei konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>Die Prüfsumme stimmt nicht überein</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>während des Sendens geändert</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>Nicht vollständig angekommen</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>Suche nach Ordnern wird gestartet...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>Datei nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>Abgebrochen, bevor alles gesendet war</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>während des Sendens geändert</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>Kann eine Rolle spielen</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>Steht im Weg</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>Als Administrator ausführen</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>Erledigt. Bitte prüfen Sie erneut.</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>Das hat nicht funktioniert.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>Dateien: %1, %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Konfigurationsfehler</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Der Link zur Seite kann nicht geladen werden.

Wenden Sie sich an den technischen Support, oder installieren Sie die App neu.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Der Browser kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Der Standardbrowser kann nicht geöffnet werden.

Kopieren Sie den Link, und öffnen Sie ihn selbst:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>Keine Antwort vom anderen PC seit %1&#xa0;s</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>Keine Antwort von %1 seit %2&#xa0;s</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>Die Verbindung zu %1 ist verloren gegangen.</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>Die Verbindung zum anderen PC ist verloren gegangen.</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>Zurück zu den Verbindungen</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>Bericht anzeigen</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>Fertig stellen</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Weiter →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>Programm für den PC-Umzug</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>Dateien, Apps und Einstellungen einfach von PC zu PC übertragen.</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>Info zu Zandrove</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Sprache geändert</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Die Sprache wurde geändert.

Die App wird jetzt neu gestartet.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>Diese Kopie von Zandrove ist registriert.</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>Diese Kopie von Zandrove ist nicht registriert.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Zurück</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>Nicht angekommen</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>Liste kopieren</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Bericht speichern…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>Die Liste ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>Webseite (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>Der Bericht ist gespeichert.</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>PC nicht gefunden</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>Kein Gerät mit diesem Bestätigungscode gefunden: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Zeitüberschreitung beim Verbinden</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Verbindung abgelehnt</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>PC unter %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::PCListItem</name>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressCard</name>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Verbleibend</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>die Verbindung ging verloren</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>die Installation wurde bei %1 % abgebrochen</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>an dieser Stelle liegt ein Ordner mit diesem Namen</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>die dort vorhandene Datei ist schreibgeschützt</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>Alter PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Neuer PC</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Übertragen</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>Nicht übertragen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Was Sie als Nächstes tun können</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>Wo die Dateien liegen</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>Speicherort auf %1</translation>
    </message>
    <message>
        <source>App</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>Apps und Einstellungen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>%1-Bericht</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>Diese Übertragung</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>Nicht angekommene Dateien</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>Dateien, die schon mit anderem Inhalt vorhanden waren</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>Der Bericht %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>Schon vorhanden, identisch</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>Schon vorhanden, aber anders</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>Schon vorhanden, identisch: %1.</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Zandrove-Bericht</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>Alter PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Neuer PC</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>Quelle / Sender</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>Ziel / Empfänger</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>Rolle dieses PCs auswählen</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>Wählen Sie aus, welche Rolle dieser PC bei der Übertragung hat</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>Auf beiden PCs muss Zandrove installiert sein und laufen</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>während des Sendens geändert</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 nennt keinen Grund</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>gesendet, aber %1 hat die Ankunft nicht bestätigt</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>nicht übertragen: Die Übertragung endete vorher</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>schon vorhanden</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>schon vorhanden, identisch</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>schon vorhanden, aber anders: Die Version vom alten PC wurde nicht übertragen</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>Laufwerk %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>%1 von %2 Dateien nicht angekommen</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>%1 von %2 Dateien angekommen; auf dem alten PC wurde nichts gelöscht</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Übertragung abgebrochen</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>Übertragung durch %1 abgebrochen</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>Verbindung zu %1 verloren</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>Übertragung durch %1 beendet</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>Übertragung nicht beendet</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>Übertragung beendet, %1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>Übertragung beendet, aber es wurde nicht alles übertragen</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>Übertragung abgeschlossen!</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>kein Platz mehr auf %1 von %2: nicht untergebrachte Dateien: %3 (%4)</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>übertragen</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>war schon vorhanden</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>war schon vorhanden, aber anders</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>nicht bestätigt</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>noch nicht bekannt</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>Öffnen Sie einige der Dateien auf %1, bevor Sie sich vom alten PC trennen. Dort wurde nichts gelöscht.</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>Schaffen Sie auf %2 von %3 Platz für %1, oder übertragen Sie weniger.</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>Einige Dateien waren auf %1 schon mit anderem Inhalt vorhanden. Vergleichen Sie die beiden Versionen. Wenn Sie die vom alten PC haben möchten, benennen Sie die auf %1 um oder verschieben Sie sie, und übertragen Sie denselben Ordner noch einmal.</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Verbinden Sie die beiden PCs wieder, und starten Sie dieselbe Übertragung: Was angekommen ist, wird übersprungen, nur was fehlt, wird übertragen.</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>Lassen Sie den alten PC, wie er ist, bis nichts mehr fehlt. Dort wurde nichts gelöscht.</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[App] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[Einstellung] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>1 angekündigte Datei ist nicht angekommen. Der Bericht von %1 nennt sie.</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>%1 angekündigte Dateien sind nicht angekommen. Der Bericht von %2 nennt sie.</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>Lesen Sie die Gründe in der Liste.</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>Lesen Sie die Gründe im Bericht von %1.</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Sobald sie behoben sind, starten Sie dieselbe Übertragung noch einmal: Was angekommen ist, wird übersprungen, nur was fehlt, wird übertragen.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>Apps, Dateien und Einstellungen zum Übertragen werden gesucht...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>System wird durchsucht...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>Ihr PC wird durchsucht</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>Suche abgeschlossen!</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>Die gefundenen Elemente können übertragen werden</translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation>Gesamt: %1</translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation>Apps (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>Dateien (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>Einstellungen (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>Konten und Einstellungen</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>Gesamt: 0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>Inhalte zum Übertragen auswählen</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>Alle Apps auswählen</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>Benutzerkonten</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>Gleichnamige Dateien:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>Vorhandene Apps:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>Datei nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Nicht angekommene Dateien von %1: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>gesendet; das Ergebnis steht im Bericht von %1</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>gesendet, aber %1 hat die Ankunft nicht bestätigt</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>Der Export ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>Die Einstellung konnte nicht angewendet werden</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>abgebrochen, bevor die Einstellung angewendet wurde</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>nicht vollständig angekommen</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>abgebrochen, während die Einstellung angewendet wurde</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>Systemeinstellungen werden gesucht...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>Desktophintergrund</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>Personalisierung</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>Aktuelles Bild des Desktophintergrunds</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>Taskleisteneinstellungen werden gesucht...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>Taskleisteneinstellungen</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>Position, automatisches Ausblenden und Symbole der Taskleiste</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>Explorer-Einstellungen werden gesucht...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>Explorer-Einstellungen</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>Ausgeblendete Dateien, Dateinamenerweiterungen, Ansichtsoptionen</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>Mauseinstellungen werden gesucht...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>Mauseinstellungen</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>Zeigergeschwindigkeit, Tastenbelegung, Bildlauf</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>Tastatureinstellungen werden gesucht...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>Tastatureinstellungen</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>Wiederholrate und Verzögerung der Tastatur</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>Energieeinstellungen werden gesucht...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Energieeinstellungen</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>Einstellungen des aktuellen Energiesparplans</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>Umgebungsvariablen werden gesucht...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>Umgebungsvariablen des Benutzers</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>Vom Benutzer definierte Umgebungsvariablen (%1)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>Anzeigeeinstellungen werden gesucht...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>Design- und Anzeigeeinstellungen</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>Dunkler/heller Modus, Transparenz, Farben</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>Soundeinstellungen werden gesucht...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>Soundschema</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>Systemsounds und Benachrichtigungseinstellungen</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Suche abgeschlossen</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>Vorbereiten</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Kaufen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>Das Netzwerk ist nicht initialisiert</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>Suche gestartet. Bestätigungscode: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>Broadcast neu gestartet. Bestätigungscode: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>Kein PC mit diesem Bestätigungscode gefunden: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Ungültiger Bestätigungscode</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Mit %1 verbunden</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Verbindung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Zeitüberschreitung beim Verbinden</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>Es läuft bereits eine Übertragung</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>Die Übertragung kann nicht gestartet werden. Prüfen Sie die Verbindung und die Auswahl.</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>Übertragung gestartet – ausgewählte Elemente: %1</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>Warten auf Dateien...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>Übertragung angehalten</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>Übertragung fortgesetzt</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Übertragung abgebrochen</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>Fehlgeschlagene Elemente werden erneut übertragen...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>Übertragung abgeschlossen – Erfolgsquote: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>Übertragung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>Zurückgesetzt</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>Bereit für eine neue Verbindung</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>Die Suche läuft bereits</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>Nicht mit dem Quell-PC verbunden</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>Suche im System wird gestartet...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>Suche abgebrochen</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>Fehler bei der Suche: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>Mehr als ein PC zeigt den Code %1: %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>Daten werden empfangen</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>Daten werden gesendet</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>Warten auf Daten...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Warten...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>Daten werden empfangen – %1&#xa0;%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>Daten werden gesendet – %1&#xa0;%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>Übertragung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>Empfang angehalten</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>Senden angehalten</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>Übertragung abbrechen</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>Möchten Sie die Übertragung wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>Ja, abbrechen</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>Weiter übertragen</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>Vom Sender abgebrochen. Warten...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>Daten werden übertragen</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>Aktuelle Dateien</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ Fortsetzen</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>received</source>
        <translation>empfangen</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>gesendet</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Verbindung verloren</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>%1 sind unterwegs, aber auf %3 sind nur %2 frei: Es wird nicht alles passen.</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>%1 wird installiert – %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1 installiert...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Zandrove schließen</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>Es läuft eine Übertragung. Wenn Sie das Fenster schließen, wird sie abgebrochen.</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>Abbrechen und schließen</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>Zurück zur Auswahl</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>Was angekommen ist, bleibt auf dem neuen PC, und auf dem alten PC wird nichts gelöscht. Ein Bericht wird in Ihren Dokumenten abgelegt.</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>Der bisherige Fortschritt geht verloren. Angekommene Dateien bleiben erhalten; Unvollständiges bleibt nicht zurück.</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>Bestätigungscode</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>Am anderen PC eingeben</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>Dateien, Apps und Einstellungen auf&#xa0;Ihren&#xa0;neuen&#xa0;PC&#xa0;übertragen</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>Netzwerkmodus</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>WLAN / LAN (gleiches Netzwerk)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>Kabelmodus</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>USB-C- oder Ethernet-Kabel</translation>
    </message>
</context>
</TS>
