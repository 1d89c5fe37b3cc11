<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>De verbinding is geweigerd</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Time-out van de verbinding</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>De host is niet gevonden</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Het netwerk is niet bereikbaar</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Time-out van een netwerkbewerking</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>Bestand of map niet gevonden</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Er is niet genoeg ruimte op de schijf</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Te veel geopende bestanden</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Onbekende fout</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Opnieuw &amp;uitvoeren</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;nippen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plakken</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>De verbinding is geweigerd</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>De andere kant heeft de verbinding verbroken</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Time-out van de verbinding</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>De host is niet bereikbaar</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>Het netwerk heeft de verbinding verbroken bij een reset</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>Time-out van een netwerkbewerking</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Het netwerk is niet bereikbaar</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>Het adres is niet beschikbaar</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>De andere kant heeft de verbinding gesloten</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Onbekende fout</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierheen schuiven</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linkerrand</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechterrand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Beneden</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina naar links</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina naar rechts</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina omhoog</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina omlaag</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Naar links schuiven</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Naar rechts schuiven</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Omhoog schuiven</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Omlaag schuiven</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>Map niet gevonden</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>De naam is geen geldige tekst</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>Kan de inhoud van de map niet lezen: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>Het pad bevat een backslash, die op de nieuwe pc mappen van elkaar scheidt</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>Een andere aangevinkte map bevat een bestand met deze naam</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Niet bereikbaar</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>Gebruikersaccounts zoeken...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>Windows-accounts opvragen...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>De verbinding met %1 is verbroken voordat de installatie daar werd bevestigd</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>De verbinding met %1 is verbroken voordat het toepassen daar werd bevestigd</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>%1 heeft de overdracht geannuleerd voordat de installatie werd bevestigd</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>%1 heeft de overdracht geannuleerd voordat het toepassen werd bevestigd</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>Installatiebestanden kopiëren...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>AppData-bestanden kopiëren...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>Register importeren...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>Snelkoppelingen maken...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Installatie voltooid</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>Kan de installatiebestanden niet kopiëren</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>Gestopt: %1 van %2 bestanden gekopieerd</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>Gestopt voordat alle bijbehorende sleutels en snelkoppelingen er waren</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Bestanden van %1 die niet zijn aangekomen: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>Bestanden die niet konden worden gekopieerd: %1 van %2 (%3: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>Systeem-app</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>App-gegevens verzenden...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>Snelkoppelingen verzenden...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>Voltooien...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>Register exporteren...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>Installatiebestanden verzenden...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>AppData Local verzenden...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>AppData Roaming verzenden...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>ProgramData verzenden...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>Geïnstalleerde apps zoeken...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>Door de gebruiker geïnstalleerde apps zoeken...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>Program Files scannen...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>Gebruikerssoftware in het register zoeken...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Scan voltooid</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>Er staat geen verzoek open dat hiermee beantwoord kan worden.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 is er niet meer.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>deze pc kijkt alleen rond.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>De map %1 bestaat niet.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 is geen map.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>De map %1 kan niet worden gelezen.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>De app %1 kan niet worden overgezet.</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>De app %1 staat niet op deze pc. Zie zandrove-cli scan.</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>De instelling %1 bestaat niet op deze pc. Zie zandrove-cli scan.</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>Daarvan is op deze pc niets om over te zetten. Zie zandrove-cli scan.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 is er ook, maar eveneens als oude pc: kies op een van de twee ‘Nieuwe pc’</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 is er ook, maar eveneens als nieuwe pc: kies op een van de twee ‘Oude pc’</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>een ander programma</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>Poort %1 is bezet door %2: deze pc hoort geen andere. Sluit dat programma af en begin opnieuw.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>Poort %1 is bezet door %2: geen andere pc kan deze bereiken. Sluit dat programma af en begin opnieuw.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>Poort %1 is bezet door %2: geen andere pc kan deze een verzoek sturen; deze kan dat bij andere nog wel.</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>%1 is 20 seconden lang niet gevonden. Binnen bereik: %2.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nieuwe pc</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Oude pc</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>Er is 20 seconden lang niemand gevonden. Wat u kunt nagaan, het meest waarschijnlijke eerst: Zandrove is actief op de andere pc, als ‘%1’; beide pc’s zitten in hetzelfde netwerk of zijn met een kabel verbonden; geen van beide gebruikt een VPN; hun firewalls laten TCP-poort %2 en UDP-poort %3 binnen. zandrove-cli diagnose zoekt naar de oorzaak.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 is geen aantal seconden van 1 tot en met %2.</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode is network of cable, niet %1.</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role is old of new, niet %1.</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to heeft een code, een naam of een adres nodig.</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder heeft een map nodig.</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>De nieuwe pc: de vier cijfers op zijn scherm, zijn naam of zijn adres.</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>Een map om over te zetten; mag meermaals worden opgegeven.</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>Elke pc die zich meldt toelaten, zonder vraag vooraf.</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>Stoppen na de eerste overdracht.</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>Stoppen met afsluitcode 3 als er binnen S seconden geen overdracht begint. De tijd gaat opnieuw in telkens als het programma begint te wachten; een lopende overdracht wordt nooit afgebroken.</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>Wat deze pc is. Een oude pc ziet de nieuwe pc’s, een nieuwe pc de oude.</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>N seconden lang zoeken; zonder deze optie tot Ctrl+C.</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>Hoe pc’s elkaar vinden: via broadcast (standaard), of over een directe kabel, waarbij ook de adressen rond het eigen adres worden geprobeerd.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>Opdrachten van de standaardinvoer uitvoeren, één per regel: yes, no (antwoord op een verzoek), pause, resume, cancel, end.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>Opdrachten van de standaardinvoer uitvoeren, één per regel: pause, resume, cancel, again [DIR] (nog een overdracht over dezelfde verbinding), end. De verbinding blijft dan na een overdracht bestaan, tot end of tot de standaardinvoer eindigt.</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>Eén JSON-object per regel weergeven, voor scripts.</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>Het logboek van het programma naar de standaardfoutuitvoer schrijven.</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>Als nieuwe pc een code tonen, op een oude pc wachten en ontvangen wat die verzendt.</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>De pc’s in het netwerk tonen zoals ze komen en gaan.</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>Tonen wat van deze pc kan worden overgezet: apps, mappen, accounts en instellingen.</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>Deze tekst; na een opdracht de Help van die opdracht.</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>De versie van het programma.</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>Onbekende optie %1. Zie --help.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>Bij %1 hoort geen waarde.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 heeft een waarde nodig.</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send heeft --to nodig met de code, de naam of het adres van de nieuwe pc.</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover heeft --role old of --role new nodig.</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>Onverwacht argument %1. Zie --help.</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>Onbekende opdracht %1. Zie --help.</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>Een app om over te zetten, met precies de naam die scan toont; mag meermaals worden opgegeven.</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>Alle apps overzetten waarbij dat mogelijk is.</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>Een instelling om over te zetten, met de id die scan toont; mag meermaals worden opgegeven.</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>Alle instellingen van deze pc overzetten.</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>Stoppen met afsluitcode 3 als de nieuwe pc niet binnen S seconden is gevonden en deze pc heeft toegelaten. De tijd gaat in bij het begin van het zoeken; de overdracht zelf wordt nooit afgebroken.</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>Als oude pc de nieuwe pc zoeken, op toestemming wachten en mappen, apps en instellingen verzenden.</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli zet mappen, apps en instellingen over van een oude pc naar een nieuwe pc in hetzelfde netwerk.</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send heeft iets nodig om over te zetten: een --folder, een --app of een --setting.</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>Het rapport van elke overdracht naar FILE schrijven, in plaats van het vorige: een pagina om te lezen of, bij een naam die op .json eindigt, JSON.</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>Het adres of de hostnaam van een pc die ook wordt geprobeerd.</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>Wat deze pc is, om te vergelijken met de pc’s die te horen zijn.</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>N seconden luisteren; zonder deze optie 5.</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>Nagaan waarom de andere pc niet wordt gevonden: adapters, poorten, firewalls en VPN’s bekijken, en wie te horen is en antwoordt. Wijzigt niets.</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>Afsluitcodes: 0 alles overgezet of getoond; 1 de verbinding of de overdracht is mislukt of geweigerd; 2 verkeerd gebruik; 3 time-out; 4 voltooid, maar er is iets mislukt of er was al iets aanwezig, of diagnose heeft een belemmering gevonden; 130 geannuleerd met Ctrl+C (de andere pc krijgt bericht; een tweede Ctrl+C stopt meteen).</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>Geef receive, send, discover, diagnose of scan op. Zie --help.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>Mag %1 (%2) verbinding maken? [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>Het rapport kan niet worden geschreven: %1 is een map.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>Hier kan niemand iets worden gevraagd: zonder --yes wordt elk verzoek geweigerd.</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>deze pc ontvangt al van %1.</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>hier kan niemand iets worden gevraagd. Start met --yes om elke pc toe te laten.</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>De verbinding met %1 is tijdens een overdracht verbroken.</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>%1 heeft de sessie tijdens een overdracht beëindigd.</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>Er is binnen %1&#xa0;s niets aangekomen.</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>Sommige instellingen worden nog toegepast; ze ontbreken in het rapport.</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>De overdracht van %1 is afgebroken.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>deze pc verzendt al naar %1.</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>De verbinding met %1 is verbroken.</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 heeft de sessie beëindigd.</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>Er is geen voltooide overdracht waarop een volgende kan aansluiten.</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%1 is niet binnen %2&#xa0;s gevonden.</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%1 heeft niet binnen %2&#xa0;s geantwoord.</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 heeft de overdracht beëindigd.</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>Er is meer dan één pc te vinden onder %1: %2. Geef het adres op van de pc die u bedoelt.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>Onbekende opdracht: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>De andere pc heeft de sessie niet beëindigd: mogelijk is niet alles aangekomen.</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>Al %2&#xa0;s geen antwoord van %1</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 antwoordt weer</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>Er is %1 onderweg, maar op %3 is maar %2 vrij: niet alles past.</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>De verbinding met %1 is verbroken voordat werd bevestigd dat alles is geïnstalleerd.</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>%1 heeft de overdracht geannuleerd voordat alles was geïnstalleerd.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>De code van deze pc is %1. Wachten op een oude pc.</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>code %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>%1 gevonden. Wachten tot die deze pc toelaat.</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>%1 is geweigerd.</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>%1 is geweigerd: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Verbonden met %1.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Verbinding met %1 verbroken.</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Ontvangen</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Verzenden</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>nog %1</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>%1 is niet overgezet: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Onderbroken.</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>Onderbroken door %1.</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>Hervat.</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>Hervat door %1.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Geannuleerd.</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>Geannuleerd door %1.</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>Opgeslagen bestanden:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>Scannen %1%  apps: %2</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(kan niet worden overgezet)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>Apps: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>bestanden: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Mappen: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>Accounts: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Instellingen: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>%1 in apps en mappen.</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>Klaar in %1: %2, gemiddeld %3.</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>Klaar in %1: %2.</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>Apps:</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>geïnstalleerd</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>verzonden</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Instellingen:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>toegepast</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 installeert %2...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 installeren</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>Bestanden: %1 aangekomen, %2 mislukt, %3 al aanwezig.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>tip</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>PROBLEEM</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>Wachten op %1: daar moet iemand op ‘Ja’ drukken</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>Verdere worden in het rapport meegeteld.</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>Er is niets gevonden dat in de weg staat.</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>Gevonden belemmeringen: %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>Uw bestanden, apps en instellingen zijn overgezet</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>Bestanden opgeslagen in:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>Wachten op meer bestanden...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ Gereed</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 Meer bestanden verzenden...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>Meer bestanden verzenden...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Ontvangen bestanden</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Bestanden: %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>Bestanden: %1 aangekomen, %2 al aanwezig en identiek, %3 al aanwezig maar anders, %4 mislukt of niet bevestigd</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>%1 van %2 apps niet aangekomen</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>%1 van %2 instellingen niet aangekomen</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>Apps en instellingen zijn verzonden. Het resultaat staat op de pagina van %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>Beschikbare apparaten</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>Gevonden apparaten: %1, waarvan online: %2</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Verbinding maken met %1...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>Code controleren...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>Verbindingsverzoek van %1...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>Verbindingsverzoek</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>‘%1’ wil verbinding maken met deze pc.

Wilt u dit toestaan?</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Verbinding geweigerd</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>De andere pc wacht niet meer</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbonden</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ Verbonden met %1</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ Verbinding gemaakt!</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ Verbinding mislukt: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>Directe verbinding scannen... 0%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>Directe verbinding scannen...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>Directe verbinding scannen... %1% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>Geen apparaat gevonden. Controleer of Zandrove op de andere pc actief is</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>Apparaten in uw netwerk zoeken...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 Vernieuwen</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>Verbinding maken met een andere pc</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>Selecteer een apparaat of voer een verificatiecode in</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 Beide pc’s moeten in hetzelfde netwerk zitten en Zandrove moet op beide actief zijn</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>Gescand: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>Controleer of de netwerkkabel is aangesloten</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>Uw verificatiecode</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>Voer deze code in op de andere pc</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>Of de code van de andere pc</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>Code van de andere pc, teken %1</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>Dit is het adres van deze pc.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>Alleen IPv4-adressen werken hier, bijvoorbeeld 192.168.1.23.</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>Een adres heeft vier getallen van 0 tot en met 255, bijvoorbeeld 192.168.1.23.</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>Dit is niet het adres van één pc.</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>Dit is geen adres en ook geen naam van een pc.</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>Adres of naam van de andere pc</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>Of het adres van de andere pc</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>%1 zoeken...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>Er is geen pc met de naam %1 gevonden. Misschien werkt het adres wel.</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 heeft geen IPv4-adres.</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>Adres van deze pc: %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>In plaats daarvan de code invoeren</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>In plaats daarvan een adres invoeren</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>Wachten op %1: daar moet iemand op ‘Ja’ drukken</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>Geen verbinding met %1: %2.</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>Het adres: %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>Zandrove is ook op de andere pc geopend en toont daar deze pagina.</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>De netwerkkabel is op beide pc’s aangesloten en de lampjes branden.</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>Beide zitten in hetzelfde netwerk, en geen van beide in een gasten-Wi-Fi of een VPN.</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>Een van de twee is de oude pc en de andere de nieuwe pc.</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>De firewalls van beide pc’s laten Zandrove door.</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>Nog niemand gevonden. Controleer het volgende, het meest waarschijnlijke eerst:</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>Kunt u de andere pc niet vinden?</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>Terug naar de apparaten</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Opnieuw controleren</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>Deze pc en het netwerk worden bekeken. Dit duurt enkele seconden...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>Hier is niets gevonden dat in de weg staat. Controleer ook de andere pc.</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>Wat met ✗ is gemarkeerd, staat in de weg.</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>een ander programma, misschien een tweede Zandrove</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>Poort %1 is bezet door %2, zodat geen andere pc verbinding met deze kan maken. Sluit dat programma en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>Poort %1 is bezet door %2, zodat deze pc geen andere pc’s hoort. Sluit dat programma en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 is er ook, maar eveneens als oude pc: kies op een van de twee ‘Nieuwe pc’</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 is er ook, maar eveneens als nieuwe pc: kies op een van de twee ‘Oude pc’</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Opnieuw proberen</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>bekabeld</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>virtueel</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>%1 has the address %2.</source>
        <translation>%1 heeft het adres %2.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 heeft het adres %2, maar is nergens mee verbonden.</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>Sluit de kabel aan of maak er verbinding met een netwerk mee.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 heeft het adres %2, maar kan geen broadcast verzenden: %3.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>Zoek op deze pc naar een firewall of beveiligingsprogramma dat Zandrove belet te verzenden.</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 heeft het adres %2 en verzendt broadcasts.</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 is verbonden, maar heeft nog geen adres.</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>Wacht een minuut. Komt er geen adres, controleer dan of de router aanstaat; bij een directe kabel stelt u deze verbinding in op link-local-adressen.</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 is nergens mee verbonden.</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>Deze pc heeft alleen een adres dat hij zichzelf heeft gegeven, %1.</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>Bij een directe kabel hoort dat zo: kies op beide pc’s de kabelmodus. Controleer in een netwerk of de router aanstaat.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>De VPN %1 vangt op wat voor het netwerk %2 van %3 is bestemd.</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>Verbreek de VPN-verbinding tot alles is overgezet.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>De VPN %1 vangt op wat niet voor een lokaal netwerk is bestemd.</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>Verbreek die verbinding als de pc’s elkaar niet vinden: veel VPN’s houden hun pc weg van het lokale netwerk.</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>Deze pc zit in geen enkel netwerk.</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>Sluit een kabel aan of maak verbinding met een Wi-Fi-netwerk.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nieuwe pc</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Oude pc</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>Wat voor deze pc is bestemd, gaat via de VPN %1 naar buiten: verbreek die verbinding eerst.</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>Voer deze diagnose uit op %1: misschien is de poort daar bezet of wijst de firewall verbindingen af.</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>Laat Zandrove door de firewall van %1: TCP-poort %2.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1 (%2) meldt zich als ‘%3’, maar weigert verbindingen op TCP-poort %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1 (%2) meldt zich als ‘%3’, maar er kan geen verbinding mee worden gemaakt: %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1 (%2) meldt zich als ‘%3’, maar antwoordt niet op TCP-poort %4.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>%1 is er ook, maar eveneens als ‘%2’.</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>Kies op een van de twee ‘%1’.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1 (%2) meldt zich als ‘%3’ en antwoordt.</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>Niemand hier kent een pc met de naam %1.</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>Geef in plaats daarvan het adres op; dat staat op de verbindingspagina van die pc.</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 is deze pc zelf.</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>Geef het adres van de andere pc op.</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 antwoordt op TCP-poort %2, maar is niet te horen op UDP-poort %3.</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>Open daar de verbindingspagina, en UDP-poort %1 in de firewalls van beide pc’s; of maak verbinding via het adres.</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1 is er, maar weigert verbindingen op TCP-poort %2.</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>Open daar Zandrove en ga door tot de verbindingspagina.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>Er kan geen verbinding met %1 worden gemaakt: %2.</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>Controleer of het adres klopt en beide pc’s in hetzelfde netwerk zitten.</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 antwoordt niet op TCP-poort %2 en is niet te horen.</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>Controleer of het adres klopt, of die pc aanstaat en of de firewall ervan Zandrove doorlaat.</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>Deze pc hoort zijn eigen broadcasts op %1 niet.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>Zoek op deze pc naar een firewall of beveiligingsprogramma dat UDP-poort %1 tegenhoudt.</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>Niemand heeft op %1 geantwoord, en er is daar geen router.</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>Hoort de andere pc daar te zijn, controleer dan of de kabel aan die kant is aangesloten of het netwerk daar aanstaat.</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>Binnen %1 s is geen andere pc gehoord.</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>Open Zandrove op de andere pc, ga door tot de verbindingspagina en zet beide pc’s in hetzelfde netwerk.</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>TCP-poort %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>UDP-poort %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 is vrij.</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>%1 is in gebruik door Zandrove, zoals het hoort.</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>%1 is bezet door een ander programma.</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>%1 is bezet door %2.</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>Zoek uit welk programma het is, sluit het en start Zandrove opnieuw.</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>Sluit dat programma en start Zandrove opnieuw.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1 staat aan en laat beide poorten binnen.</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1 staat aan en houdt %2 tegen.</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>Laat de firewall beide poorten toelaten.</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1 staat aan; of beide poorten worden binnengelaten, hangt af van de afzender of van regels die hier niet te beoordelen zijn.</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>Controleer of de regels %1 en %2 binnenlaten.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>%1 kon zonder beheerdersrechten niet worden gelezen.</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1 gaf geen leesbaar antwoord.</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1 staat uit.</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>Er is geen firewall gevonden die kan worden geraadpleegd.</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>Het systeem behandelt het netwerk %1 als openbaar.</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>Is het uw eigen netwerk, stel het dan in de netwerkinstellingen in op ‘Privé’.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>Snelle toegang</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Selectie wissen</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>Selecteer de mappen om over te zetten</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureaublad</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>Documenten</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video’s</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muziek</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>Deze pc</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>Lokale schijf (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> – %1 vrij van %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>intussen is het korter geworden</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>Schrijffout</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Ontvangen bestanden</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Kan het bestand niet maken</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>De controlesom klopt niet</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>gewijzigd tijdens het verzenden</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>Niet volledig aangekomen</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>De mappenscan wordt gestart...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>Bestand niet gevonden: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>Kan bestand niet openen: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>geen gewoon bestand</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>Geannuleerd voordat het volledig was verzonden</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Kan bestand niet lezen: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>gewijzigd tijdens het verzenden</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>In orde</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>Mogelijk van belang</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>Staat in de weg</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Gekopieerd</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>Als administrator uitvoeren</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>Klaar. Controleer opnieuw.</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>Dat is niet gelukt.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>Bestanden: %1, %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Configuratiefout</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>De koppeling naar de pagina kan niet worden geladen.

Neem contact op met de technische ondersteuning of installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Kan de browser niet openen</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>De standaardbrowser kan niet worden geopend.

Kopieer de koppeling en open deze zelf:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>Al %1&#xa0;s geen antwoord van de andere pc</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>Al %2&#xa0;s geen antwoord van %1</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>De verbinding met %1 is verbroken.</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>De verbinding met de andere pc is verbroken.</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>Terug naar verbindingen</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>Rapport weergeven</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Volgende →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>Hulpprogramma voor pc-migratie</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>Zet bestanden, apps en instellingen eenvoudig over van pc naar pc.</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. Alle rechten voorbehouden.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>Info over Zandrove</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Taal gewijzigd</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>De taal is gewijzigd.

De app wordt nu opnieuw gestart.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registreren</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>Dit exemplaar van Zandrove is geregistreerd.</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>Dit exemplaar van Zandrove is niet geregistreerd.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Terug</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>Niet aangekomen</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Reden</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>Lijst kopiëren</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Rapport opslaan…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>De lijst staat op het klembord.</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Rapport opslaan</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>Pagina (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>Het rapport is opgeslagen.</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>Pc niet gevonden</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>Geen apparaat gevonden met verificatiecode: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Onbekende fout</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Time-out van de verbinding</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Verbinding geweigerd</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>Pc op %1</translation>
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
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Resterend</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>van %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Stap %1 van %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>de verbinding is verbroken</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>de installatie is bij %1% gestopt</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>op die plaats staat een map met deze naam</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>het bestand dat daar staat, is alleen-lezen</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>Oude pc</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nieuwe pc</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Begin</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Einde</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Overgezet</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>Niet overgezet</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Totaal</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Wat u nu kunt doen</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>Waar de bestanden staan</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>Locatie op %1</translation>
    </message>
    <message>
        <source>App</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>Apps en instellingen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Reden</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>nl</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>%1-rapport</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>Deze overdracht</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>Bestanden die niet zijn aangekomen</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>Bestanden die al aanwezig waren, met andere inhoud</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>Het rapport %1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>het is geen gewoon bestand</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>Al aanwezig, identiek</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>Al aanwezig, maar anders</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>Al aanwezig, identiek: %1.</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Zandrove-rapport</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>Oude pc</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nieuwe pc</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>Bron / afzender</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>Doel / ontvanger</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>Selecteer de rol van deze pc</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>Kies welke rol deze pc bij de overdracht heeft</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>Zandrove moet op beide pc’s geïnstalleerd en actief zijn</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>gewijzigd tijdens het verzenden</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 geeft geen reden op</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>verzonden, maar %1 heeft de aankomst niet bevestigd</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>niet overgezet: de overdracht eindigde voordat dit aan de beurt was</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>al aanwezig</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>al aanwezig, identiek</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>al aanwezig, maar anders: dat van de oude pc is niet overgezet</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>station %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>%1 van %2 bestanden niet aangekomen</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>%1 van %2 bestanden aangekomen; op de oude pc is niets verwijderd</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Overdracht geannuleerd</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>Overdracht geannuleerd door %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>De verbinding met %1 is verbroken</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>Overdracht beëindigd door %1</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>Overdracht niet voltooid</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>Overdracht voltooid, %1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>Overdracht voltooid, maar niet alles is overgezet</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>Overdracht voltooid!</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>geen ruimte meer op %1 van %2; bestanden die niet pasten: %3 (%4)</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>overgezet</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>was al aanwezig</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>was al aanwezig, maar anders</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>mislukt</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>niet bevestigd</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>nog niet bekend</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>Open een paar bestanden op %1 voordat u de oude pc wegdoet. Daar is niets verwijderd.</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>Maak ruimte voor %1 op %2 van %3, of zet minder over.</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>Op %1 stonden al bestanden met andere inhoud. Vergelijk de twee versies. Wilt u de versie van de oude pc, wijzig dan de naam van de versie op %1 of verplaats die, en zet dezelfde map opnieuw over.</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Verbind de twee pc’s opnieuw en start dezelfde overdracht: wat is aangekomen, wordt overgeslagen en alleen wat ontbreekt, wordt overgezet.</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>Laat de oude pc zoals hij is tot er niets meer ontbreekt. Daar is niets verwijderd.</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[App] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[Instelling] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>En nog %1.</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>1 aangekondigd bestand is niet aangekomen. Het rapport van %1 noemt het.</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>%1 aangekondigde bestanden zijn niet aangekomen. Het rapport van %2 noemt ze.</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>Lees de redenen in de lijst.</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>Lees de redenen in het rapport van %1.</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Zijn die verholpen, start dan dezelfde overdracht opnieuw: wat is aangekomen, wordt overgeslagen en alleen wat ontbreekt, wordt overgezet.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>Apps, bestanden en instellingen zoeken om over te zetten...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>Systeem scannen...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>Uw pc wordt gescand</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Accounts</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>Scan voltooid!</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>De gevonden items kunnen worden overgezet</translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation>Totaal: %1</translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation>Apps (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>Bestanden (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>Instellingen (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>Accounts en instellingen</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>Totaal: 0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>Selecteer wat u wilt overzetten</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>Alle apps selecteren</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>Gebruikersaccounts</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Systeeminstellingen</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>Bestanden met dezelfde naam:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Overschrijven</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Naam wijzigen</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>Bestaande apps:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>Bestand niet gevonden: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Bestanden van %1 die niet zijn aangekomen: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>verzonden; het resultaat staat in het rapport van %1</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>verzonden, maar %1 heeft de aankomst niet bevestigd</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>Exporteren mislukt</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>Kan de instelling niet toepassen</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>gestopt voordat de instelling werd toegepast</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>niet volledig aangekomen</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>gestopt tijdens het toepassen</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>Systeeminstellingen zoeken...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>Bureaubladachtergrond</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>Persoonlijke instellingen</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>Huidige afbeelding van de bureaubladachtergrond</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>Taakbalkinstellingen zoeken...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>Taakbalkinstellingen</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>Positie, automatisch verbergen en pictogrammen van de taakbalk</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>Instellingen van Verkenner zoeken...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>Instellingen van Verkenner</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>Verborgen bestanden, bestandsextensies, weergaveopties</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>Muisinstellingen zoeken...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>Muisinstellingen</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>Aanwijzersnelheid, muisknoppen, schuiven</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>Toetsenbordinstellingen zoeken...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>Toetsenbordinstellingen</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>Herhaalsnelheid en herhaalvertraging van toetsen</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>Energie-instellingen zoeken...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Energie-instellingen</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>Instellingen van het huidige energiebeheerschema</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>Omgevingsvariabelen zoeken...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>Omgevingsvariabelen van gebruiker</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>Door de gebruiker gedefinieerde omgevingsvariabelen (%1)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>Beeldscherminstellingen zoeken...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>Thema- en beeldscherminstellingen</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>Donkere/lichte modus, transparantie, kleuren</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>Geluidsinstellingen zoeken...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>Geluidsschema</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>Systeemgeluiden en meldingsinstellingen</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Scan voltooid</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>Voorbereiden</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Controleren</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>Activeren</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximaliseren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registreren</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Kopen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Ondersteuning</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Vorig formaat</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>Het netwerk is niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>Zoeken gestart. Verificatiecode: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>Broadcast opnieuw gestart. Verificatiecode: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>Geen pc gevonden met verificatiecode: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Ongeldige verificatiecode</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Verbonden met %1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Verbinding verbroken</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Verbinding mislukt: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Time-out van de verbinding</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>Er wordt al een overdracht uitgevoerd</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>Kan de overdracht niet starten. Controleer de verbinding en de selectie.</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>Overdracht gestart – geselecteerde items: %1</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>Wachten op bestanden...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>Overdracht onderbroken</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>Overdracht hervat</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Overdracht geannuleerd</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>Mislukte items opnieuw overzetten...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>Overdracht voltooid – geslaagd: %1%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>Overdracht mislukt: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>Opnieuw ingesteld</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>Klaar voor een nieuwe verbinding</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>Er wordt al gescand</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>Niet verbonden met de bron-pc</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>De systeemscan wordt gestart...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>Scan geannuleerd</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>Scanfout: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>Meer dan één pc toont de code %1: %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>Gegevens ontvangen</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>Gegevens verzenden</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>Wachten op gegevens...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Wachten...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>Gegevens ontvangen – %1%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>Gegevens verzenden – %1%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>Overdracht mislukt</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>Ontvangen onderbroken</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>Verzenden onderbroken</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>Overdracht annuleren</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>Weet u zeker dat u de overdracht wilt annuleren?</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>Ja, annuleren</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>Geannuleerd door afzender. Wachten...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>Gegevens overzetten</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>Huidige bestanden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ Hervatten</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ Onderbreken</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Onderbreken</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 mislukt</translation>
    </message>
    <message>
        <source>received</source>
        <translation>ontvangen</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>verzonden</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Verbinding verbroken</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>Er is %1 onderweg, maar op %3 is maar %2 vrij: niet alles past.</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>%1 installeren – %2%</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1 is aan het installeren...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Zandrove sluiten</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>Er is een overdracht bezig. Als u het venster sluit, wordt die geannuleerd.</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>Annuleren en sluiten</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>Terug naar selectie</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>Wat is aangekomen, blijft op de nieuwe pc staan en op de oude pc wordt niets verwijderd. Er blijft een rapport achter in uw documenten.</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>Alle voortgang gaat verloren. Aangekomen bestanden blijven staan; er blijft niets onvolledigs achter.</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>Verificatiecode</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>Voer in op de andere pc</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>Zet bestanden, apps en instellingen over naar uw nieuwe pc</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>Netwerkmodus</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi / LAN (zelfde netwerk)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>Kabelmodus</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>USB-C- of ethernetkabel</translation>
    </message>
</context>
</TS>
