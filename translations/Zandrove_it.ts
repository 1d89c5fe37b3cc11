<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Timeout della connessione</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>Computer non trovato</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Rete non raggiungibile</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Timeout della rete</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>File o cartella inesistente</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Spazio su disco insufficiente</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accesso negato</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Troppi file aperti</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Errore sconosciuto</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Connessione interrotta dall’altro computer</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Timeout della connessione</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Computer non raggiungibile</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>Connessione persa per il ripristino della rete</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>Timeout della rete</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Rete non raggiungibile</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accesso negato</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>L’indirizzo non è disponibile</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>Il computer remoto ha chiuso la connessione</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Errore sconosciuto</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scorri fino a qui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bordo sinistro</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bordo destro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina a sinistra</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina a destra</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina giù</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scorri verso sinistra</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scorri verso destra</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scorri verso l’alto</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scorri verso il basso</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>Cartella non trovata</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Il nome non è un testo valido</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>Impossibile leggere il contenuto della cartella: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>Il percorso contiene una barra rovesciata, che nel Nuovo PC separa le cartelle</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>Un’altra cartella selezionata contiene un file con questo nome</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Non raggiungibile</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>Analisi degli account utente...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>Lettura degli account di Windows...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>La connessione a %1 si è interrotta prima che ne confermasse l’installazione</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>La connessione a %1 si è interrotta prima che ne confermasse l’applicazione</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>%1 ha annullato il trasferimento prima di confermarne l’installazione</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>%1 ha annullato il trasferimento prima di confermarne l’applicazione</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>Copia dei file di installazione...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>Copia dei file di AppData...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>Importazione nel Registro di sistema...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>Creazione dei collegamenti...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Installazione completata</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>Impossibile copiare i file di installazione</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>Installazione interrotta – file copiati: %1 su %2</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>Installazione interrotta prima che ci fossero tutte le sue chiavi e tutti i suoi collegamenti</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>File di %1 non arrivati: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>File che non è stato possibile copiare: %1 su %2 (%3: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>App di sistema</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>Invio delle informazioni sull’app...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>Invio dei collegamenti...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>Completamento...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>Esportazione del Registro di sistema...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>Invio dei file di installazione...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>Invio di AppData Local...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>Invio di AppData Roaming...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>Invio di ProgramData...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>Analisi delle app installate...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>Analisi delle app installate dall’utente...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>Analisi di Program Files...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>Analisi del software dell’utente nel Registro di sistema...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Analisi completata</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>Non c’è nessuna richiesta aperta a cui rispondere.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 non è più disponibile.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>questo PC sta solo cercando altri PC.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>La cartella %1 non esiste.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 non è una cartella.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>Impossibile leggere la cartella %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>L’app %1 non può essere trasferita.</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>In questo PC non c’è un’app %1. Vedi zandrove-cli scan.</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>In questo PC non c’è un’impostazione %1. Vedi zandrove-cli scan.</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>In questo PC non c’è nulla di tutto ciò da trasferire. Vedi zandrove-cli scan.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>C’è anche %1, ma anch’esso come Vecchio PC: scegli “Nuovo PC” su uno dei due</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>C’è anche %1, ma anch’esso come Nuovo PC: scegli “Vecchio PC” su uno dei due</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>un altro programma</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>La porta %1 è occupata da %2: questo PC non rileva nessun altro PC. Chiudi quel programma e ricomincia.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>La porta %1 è occupata da %2: nessun altro PC può raggiungere questo. Chiudi quel programma e ricomincia.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>La porta %1 è occupata da %2: nessun altro PC può inviare richieste a questo, che può comunque inviarle ad altri.</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>%1 non è stato trovato in 20 secondi. PC raggiungibili: %2.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nuovo PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Vecchio PC</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>In 20 secondi non è stato trovato nessuno. Che cosa controllare, a partire dal caso più probabile: Zandrove è aperto sull’altro PC, come “%1”; i due PC sono nella stessa rete o collegati da un cavo; nessuno dei due usa una VPN; i loro firewall lasciano entrare la porta TCP %2 e la porta UDP %3. zandrove-cli diagnose cerca la causa.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 non è un numero di secondi compreso tra 1 e %2.</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode accetta network o cable, non %1.</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role accetta old o new, non %1.</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to richiede un codice, un nome o un indirizzo.</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder richiede una cartella.</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>Il Nuovo PC: le quattro cifre sul suo schermo, il suo nome o il suo indirizzo.</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>Una cartella da trasferire; si può indicare più volte.</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>Accetta ogni PC che chiede di connettersi, senza domande.</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>Termina dopo il primo trasferimento.</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>Termina con il codice di uscita 3 se entro S secondi non ha iniziato ad arrivare nulla. Il conteggio riparte ogni volta che il programma si mette in attesa; un trasferimento in corso non viene mai interrotto.</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>Il ruolo di questo PC. Un Vecchio PC vede i Nuovi PC, un Nuovo PC vede i Vecchi PC.</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>Cerca per N secondi; senza questa opzione, fino a Ctrl-C.</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>Come si trovano i PC: tramite broadcast (predefinito) o un cavo diretto, nel qual caso vengono provati anche gli indirizzi vicini a quello di questo PC.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>Esegui i comandi ricevuti dallo standard input, uno per riga: yes, no (risposta a una richiesta), pause, resume, cancel, end.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>Esegui i comandi ricevuti dallo standard input, uno per riga: pause, resume, cancel, again [DIR] (un altro trasferimento sulla stessa connessione), end. Dopo un trasferimento la connessione resta così attiva fino al comando end o fino alla fine dello standard input.</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>Mostra un oggetto JSON per riga, per gli script.</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>Mostra il log del programma sullo standard error.</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>Usa questo PC come Nuovo PC: mostra un codice, attendi un Vecchio PC e ricevi ciò che invia.</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>Elenca i PC della rete man mano che compaiono e scompaiono.</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>Elenca ciò che si può trasferire da questo PC: app, cartelle, account e impostazioni.</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>Questo testo; dopo un comando, la guida di quel comando.</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>La versione del programma.</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>Opzione sconosciuta: %1. Vedi --help.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 non accetta valori.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 richiede un valore.</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send richiede --to con il codice, il nome o l’indirizzo del Nuovo PC.</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover richiede --role old o --role new.</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>Argomento imprevisto: %1. Vedi --help.</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>Comando sconosciuto: %1. Vedi --help.</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>Un’app da trasferire, con il nome esatto elencato da scan; si può indicare più volte.</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>Trasferisci tutte le app trasferibili.</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>Un’impostazione da trasferire, con l’ID elencato da scan; si può indicare più volte.</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>Trasferisci tutte le impostazioni di questo PC.</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>Termina con il codice di uscita 3 se entro S secondi il Nuovo PC non è stato trovato o non ha accettato questo PC. Il conteggio parte dall’inizio della ricerca; il trasferimento vero e proprio non viene mai interrotto.</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>Usa questo PC come Vecchio PC: trova il Nuovo PC, attendi il suo consenso e invia cartelle, app e impostazioni.</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli trasferisce cartelle, app e impostazioni da un Vecchio PC a un Nuovo PC nella stessa rete.</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send richiede qualcosa da trasferire: --folder, --app o --setting.</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>Scrivi il report di ogni trasferimento in FILE, al posto di quello precedente: una pagina da leggere oppure, se il nome termina con .json, JSON.</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>L’indirizzo o il nome host di un PC da provare in aggiunta.</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>Il ruolo di questo PC, da confrontare con quello dei PC rilevati.</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>Resta in ascolto per N secondi; se non indicato, per 5.</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>Scopri perché l’altro PC non viene trovato: esamina schede di rete, porte, firewall e VPN, e quali PC vengono rilevati e rispondono. Non modifica nulla.</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>Codici di uscita: 0 tutto è stato trasferito o elencato; 1 la connessione o l’esecuzione non è riuscita o è stata rifiutata; 2 uso errato; 3 tempo scaduto; 4 terminato, ma qualcosa non è riuscito o era già presente, oppure diagnose ha trovato un ostacolo; 130 annullato con Ctrl-C (l’altro PC viene avvisato; un secondo Ctrl-C termina subito).</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>Indica receive, send, discover, diagnose o scan. Vedi --help.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>Consentire a %1 (%2) di connettersi? [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>Impossibile scrivere il report: %1 è una cartella.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>Qui non c’è nessuno che possa rispondere: senza --yes ogni richiesta verrà rifiutata.</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>questo PC sta ricevendo dati da %1.</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>qui non c’è nessuno che possa rispondere. Avvia il programma con --yes per accettare ogni PC.</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>La connessione a %1 si è interrotta durante un trasferimento.</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>%1 ha terminato la sessione durante un trasferimento.</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>Non ha iniziato ad arrivare nulla entro %1&#xa0;s.</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>Alcune impostazioni sono ancora in corso di applicazione; mancano nel report.</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>Il trasferimento da %1 si è interrotto.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>questo PC sta inviando dati a %1.</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>La connessione a %1 si è interrotta.</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 ha terminato la sessione.</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>Nessun trasferimento concluso a cui farne seguire un altro.</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%1 non è stato trovato entro %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%1 non ha risposto entro %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 ha terminato il trasferimento.</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>%1 corrisponde a più di un PC: %2. Indica l’indirizzo di quello desiderato.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>Comando sconosciuto: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>L’altro PC non ha terminato la sessione: è possibile che non sia arrivato tutto.</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1 non risponde da %2 s</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 risponde di nuovo</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>In arrivo %1, ma lo spazio disponibile su %3 è solo %2: non ci sarà posto per tutto.</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>La connessione a %1 si è interrotta prima che confermasse l’installazione di tutto.</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>%1 ha annullato il trasferimento prima che tutto fosse installato.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>Il codice di questo PC è %1. In attesa di un Vecchio PC.</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>codice %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>Trovato %1. In attesa che accetti questo PC.</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>%1 è stato rifiutato.</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>%1 è stato rifiutato: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Connesso a %1.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Disconnesso da %1.</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Ricezione</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>mancano %1</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>%1 non è stato trasferito: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Trasferimento sospeso.</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>Trasferimento sospeso da %1.</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>Trasferimento ripreso.</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>Trasferimento ripreso da %1.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Trasferimento annullato.</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>Trasferimento annullato da %1.</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>File salvati:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>Analisi %1%  App: %2</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(non trasferibile)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>App: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>file: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Cartelle: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>Account: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Impostazioni: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>%1 in app e cartelle.</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>Completato in %1: %2, in media %3.</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>Completato in %1: %2.</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>App:</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installata</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>inviata</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Impostazioni:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>applicata</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 sta installando %2...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Installazione di %1</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>File arrivati: %1, non riusciti: %2, già presenti: %3.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>avviso</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>PROBLEMA</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>In attesa di %1: qualcuno deve premere “Sì” su quel PC</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>Gli altri sono conteggiati nel report.</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>Non è stato trovato alcun ostacolo.</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>Ostacoli trovati: %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>File, app e impostazioni sono stati trasferiti correttamente</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>File salvati in:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>In attesa di altri file...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ Fine</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 Invia altri file...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>Invia altri file...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>File ricevuti</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>File arrivati: %1, già presenti e identici: %2, già presenti ma diversi: %3, non riusciti o non confermati: %4</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>App non arrivate: %1 su %2</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>Impostazioni non arrivate: %1 su %2</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>Le app e le impostazioni sono state inviate. L’esito è indicato sullo schermo di %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>Dispositivi disponibili</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>Dispositivi trovati: %1, online: %2</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Connessione a %1...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>Verifica del codice...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>Richiesta di connessione da %1...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>Richiesta di connessione</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>“%1” chiede di connettersi a questo PC.

Vuoi accettare la richiesta?</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>L’altro PC non è più in attesa</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ Connesso a %1</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ Connessione stabilita!</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ Connessione non riuscita: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>Ricerca sulla connessione diretta... 0%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>Ricerca sulla connessione diretta...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>Ricerca sulla connessione diretta... %1% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>Nessun dispositivo trovato. Verifica che Zandrove sia aperto nell’altro PC</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>Ricerca di dispositivi nella rete...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 Aggiorna</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>Connettiti a un altro PC</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>Seleziona un dispositivo o inserisci un codice di verifica</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 I due PC devono essere nella stessa rete, con Zandrove aperto</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>Indirizzi provati: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>Verifica che il cavo di rete sia collegato</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>Il tuo codice di verifica</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>Inserisci questo codice nell’altro PC</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>O inserisci il codice dell’altro PC</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>Codice dell’altro PC, carattere %1</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>Questo è l’indirizzo di questo PC.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>Qui funzionano solo gli indirizzi IPv4, ad esempio 192.168.1.23.</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>Un indirizzo è composto da quattro numeri da 0 a 255, ad esempio 192.168.1.23.</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>Questo non è l’indirizzo di un singolo PC.</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>Questo non è né un indirizzo né il nome di un PC.</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>Indirizzo o nome dell’altro PC</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>O inserisci l’indirizzo dell’altro PC</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>Ricerca di %1...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>Nessun PC trovato con il nome %1. Prova con il suo indirizzo.</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 non ha un indirizzo IPv4.</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>Indirizzo di questo PC: %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>Inserisci invece il codice dell’altro PC</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>Inserisci invece un indirizzo</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>In attesa di %1: qualcuno deve premere “Sì” su quel PC</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>Nessuna connessione a %1: %2.</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>Il suo indirizzo: %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>Zandrove è aperto anche sull’altro PC e vi mostra questa pagina.</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>Il cavo di rete è collegato a entrambi i PC e le sue spie sono accese.</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>Entrambi sono nella stessa rete e nessuno dei due è in una rete Wi-Fi per ospiti o in una VPN.</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>Uno dei due è il Vecchio PC e l’altro il Nuovo PC.</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>I firewall di entrambi i PC lasciano passare Zandrove.</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>Non è stato ancora trovato nessuno. Verifica quanto segue, a partire dal caso più probabile:</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>Non trovi l’altro PC?</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>Torna ai dispositivi</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Controlla di nuovo</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>Analisi di questo PC e della sua rete. Ci vorrà qualche secondo...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>Qui non è stato trovato alcun ostacolo. Controlla anche sull’altro PC.</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>Ciò che è contrassegnato con ✗ impedisce la connessione.</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>un altro programma, forse un secondo Zandrove</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>La porta %1 è occupata da %2, quindi nessun altro PC può connettersi a questo. Chiudi quel programma e riprova.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>La porta %1 è occupata da %2, quindi questo PC non rileva altri PC. Chiudi quel programma e riprova.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>C’è anche %1, ma anch’esso come Vecchio PC: scegli “Nuovo PC” su uno dei due</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>C’è anche %1, ma anch’esso come Nuovo PC: scegli “Vecchio PC” su uno dei due</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>via cavo</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>virtuale</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>%1 has the address %2.</source>
        <translation>%1 ha l’indirizzo %2.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 ha l’indirizzo %2, ma non è connessa a nulla.</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>Collega il suo cavo o connettila a una rete.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 ha l’indirizzo %2, ma non può inviare broadcast: %3.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>Cerca su questo PC un firewall o un programma di sicurezza che impedisce a Zandrove di inviare.</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 ha l’indirizzo %2 e invia broadcast.</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 è connessa, ma non ha ancora un indirizzo.</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>Attendi un minuto. Se non ne arriva uno, controlla che il router sia acceso; con un cavo diretto, imposta questa connessione sugli indirizzi link-local.</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 non è connessa a nulla.</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>Questo PC ha solo un indirizzo che si è assegnato da sé, %1.</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>Con un cavo diretto è normale: scegli “Modalità cavo” su entrambi i PC. In una rete, controlla che il router sia acceso.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>La VPN %1 intercetta ciò che è destinato alla rete %2 di %3.</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>Disconnetti la VPN finché tutto non è stato trasferito.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>La VPN %1 intercetta ciò che non è destinato a una rete locale.</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>Disconnettila se i PC non si trovano: molte VPN isolano il PC dalla rete locale.</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>Questo PC non è in alcuna rete.</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>Collega un cavo o connettiti a una rete Wi-Fi.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nuovo PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Vecchio PC</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>Ciò che è destinato a quel PC esce attraverso la VPN %1: prima disconnettila.</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>Esegui questa diagnosi su %1: forse lì la porta è occupata o il firewall respinge le connessioni.</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>Consenti il passaggio a Zandrove nel firewall di %1: porta TCP %2.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1 (%2) si annuncia come “%3”, ma rifiuta le connessioni sulla porta TCP %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1 (%2) si annuncia come “%3”, ma non è possibile connettersi: %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1 (%2) si annuncia come “%3”, ma non risponde sulla porta TCP %4.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>C’è anche %1, ma anch’esso come “%2”.</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>Scegli “%1” su uno dei due.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1 (%2) si annuncia come “%3” e risponde.</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>Qui nessuno conosce un PC con il nome %1.</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>Indica invece il suo indirizzo; è mostrato nella sua pagina di connessione.</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 è proprio questo PC.</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>Indica l’indirizzo dell’altro PC.</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 risponde sulla porta TCP %2, ma non viene rilevato sulla porta UDP %3.</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>Apri su quel PC la pagina di connessione, e la porta UDP %1 nei firewall di entrambi i PC; oppure connettiti tramite l’indirizzo.</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1 c’è, ma rifiuta le connessioni sulla porta TCP %2.</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>Apri Zandrove su quel PC, fino alla pagina di connessione.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>Impossibile connettersi a %1: %2.</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>Controlla che l’indirizzo sia corretto e che i due PC siano nella stessa rete.</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 non risponde sulla porta TCP %2 e non viene rilevato.</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>Controlla che l’indirizzo sia corretto, che quel PC sia acceso e che il suo firewall lasci passare Zandrove.</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>Questo PC non riceve i propri broadcast su %1.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>Cerca su questo PC un firewall o un programma di sicurezza che blocca la porta UDP %1.</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>Nessuno ha risposto su %1, che non ha un router.</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>Se l’altro PC dovrebbe trovarsi lì, controlla che la sua estremità del cavo, o la sua rete, sia attiva.</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>Nessun altro PC rilevato entro %1 s.</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>Apri Zandrove sull’altro PC, fino alla pagina di connessione, e connetti i due PC alla stessa rete.</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>porta TCP %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>porta UDP %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>La %1 è libera.</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>La %1 è in uso da parte di Zandrove, come previsto.</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>La %1 è occupata da un altro programma.</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>La %1 è occupata da %2.</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>Scopri qual è, chiudilo e riavvia Zandrove.</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>Chiudi quel programma e riavvia Zandrove.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e la %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1 è attivo e lascia entrare entrambe le porte.</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1 è attivo e blocca la %2.</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>Impostalo in modo che lasci entrare entrambe le porte.</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1 è attivo; se lascia entrare entrambe le porte dipende dal mittente o da regole che qui non si possono valutare.</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>Controlla che le sue regole lascino entrare la %1 e la %2.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>Impossibile leggere %1 senza diritti di amministratore.</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1 non ha dato alcuna risposta leggibile.</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1 è disattivato.</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>Non è stato trovato nessuno dei firewall che si possono interrogare.</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>Il sistema considera pubblica la rete %1.</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>Se è la tua, impostala come privata nelle impostazioni di rete.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>Accesso rapido</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>Seleziona le cartelle da trasferire</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musica</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>Questo PC</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>Disco locale (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> – %1 disponibili su %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>nel frattempo si è accorciato</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>Errore di scrittura</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>File ricevuti</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Impossibile creare il file</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>Il checksum non corrisponde</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>modificato durante l’invio</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>Non è arrivato per intero</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>Avvio dell’analisi delle cartelle...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>File non trovato: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>Impossibile aprire il file: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>Annullato prima dell’invio completo</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Impossibile leggere il file: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>modificato durante l’invio</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>Tutto a posto</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>Può influire</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>Impedisce la connessione</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiato</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>Esegui come amministratore</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>Fatto. Controlla di nuovo.</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>Non ha funzionato.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>File: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Errore di configurazione</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Impossibile caricare il collegamento alla pagina.

Contatta il supporto tecnico o reinstalla il software.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Impossibile aprire il browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Impossibile aprire il browser predefinito.

Copia il collegamento e aprilo manualmente:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>L’altro PC non risponde da %1 s</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1 non risponde da %2 s</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>La connessione a %1 si è interrotta.</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>La connessione all’altro PC si è interrotta.</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>Torna alle connessioni</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>Mostra report</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Avanti →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>Strumento di migrazione tra PC</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>Trasferisci facilmente file, app e impostazioni da un PC all’altro.</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. Tutti i diritti riservati.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>Informazioni su Zandrove</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Lingua modificata</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>La lingua è stata modificata.

L’app verrà ora riavviata.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registra il prodotto</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>Questa copia di Zandrove è registrata.</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>Questa copia di Zandrove non è registrata.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Indietro</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>Non arrivati</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>Copia elenco</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Salva report…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>L’elenco è stato copiato negli Appunti.</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Salva report</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>Pagina (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>Il report è stato salvato.</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>PC non trovato</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>Nessun dispositivo trovato con il codice di verifica: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Errore sconosciuto</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Timeout della connessione</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>PC all’indirizzo %1</translation>
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
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Tempo rimanente</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>di %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Passaggio %1 di %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>la connessione si è interrotta</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>la sua installazione si è interrotta al %1%</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>al suo posto c’è una cartella con questo nome</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>il file già presente è di sola lettura</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>Vecchio PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nuovo PC</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Trasferiti</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>Non trasferiti</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riusciti</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Che cosa fare ora</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>Dove si trovano i file</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>Posizione su %1</translation>
    </message>
    <message>
        <source>App</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>App e impostazioni</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>Esito</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>it</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>Report di %1</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>Questo trasferimento</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>File non arrivati</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>File già presenti con un contenuto diverso</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>Impossibile scrivere il report %1: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>Già presenti, identici</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>Già presenti, ma diversi</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>Già presenti, identici: %1.</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Report di Zandrove</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>Vecchio PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nuovo PC</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>Origine / Mittente</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>Destinazione / Destinatario</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>Seleziona il ruolo di questo PC</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>Scegli il ruolo di questo computer nel trasferimento</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>Zandrove deve essere installato e aperto in entrambi i computer</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>modificato durante l’invio</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 non ne indica il motivo</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>inviato, ma %1 non ne ha confermato l’arrivo</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>ancora da trasferire: il trasferimento è terminato prima del suo turno</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>già presente</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>già presente, identico</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>già presente, ma diverso: quello del Vecchio PC non è stato trasferito</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>unità %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>%1 file su %2 ancora da trasferire</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>%1 file su %2 a destinazione; nel Vecchio PC non è stato eliminato nulla</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Trasferimento annullato</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>Trasferimento annullato da %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>La connessione a %1 si è interrotta</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>Trasferimento terminato da %1</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>Trasferimento non terminato</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>Trasferimento terminato, %1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>Trasferimento terminato, ma non tutto è stato trasferito</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>Trasferimento completato!</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>spazio esaurito (%1 di %2): non c’era posto per %3 file, %4</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>a destinazione</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>c’era già</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>c’era già, in una versione diversa</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>non riuscita</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>senza conferma</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>esito non ancora noto</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>Apri alcuni file su %1 prima di separarti dal Vecchio PC. Lì non è stato eliminato nulla.</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>Fai spazio per %1 (%2 di %3) o trasferisci meno dati.</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>Su %1 c’erano già dei file con un contenuto diverso. Confronta le due versioni. Per avere quella del Vecchio PC, rinomina o sposta quella che si trova su %1 e trasferisci di nuovo la stessa cartella.</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Connetti di nuovo i due PC e avvia lo stesso trasferimento: ciò che è già arrivato viene ignorato, si trasferisce solo ciò che manca.</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>Lascia il Vecchio PC così com’è finché non manca più nulla. Lì non è stato eliminato nulla.</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[App] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[Impostazione] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>E ancora %1.</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>1 file annunciato non è arrivato. Il nome è indicato nel report di %1.</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>%1 file annunciati non sono arrivati. I nomi sono indicati nel report di %2.</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>Leggi i motivi nell’elenco.</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>Leggi i motivi nel report di %1.</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Quando non ci sono più, avvia di nuovo lo stesso trasferimento: ciò che è già arrivato viene ignorato, si trasferisce solo ciò che manca.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>Ricerca di app, file e impostazioni da trasferire...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>Analisi del sistema...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>Analisi del PC</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>Analisi completata!</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>Elementi pronti per il trasferimento</translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation>Totale: %1</translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation>App (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>File (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>Impostazioni (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>Account e impostazioni</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>Totale: 0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>Seleziona il contenuto da trasferire</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>Seleziona tutte le app</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>Account utente</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Impostazioni di sistema</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>File con lo stesso nome:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>App già presenti:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>File non trovato: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>File di %1 non arrivati: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>inviata; l’esito è indicato nel report di %1</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>inviato, ma %1 non ne ha confermato l’arrivo</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>Esportazione non riuscita</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>Impossibile applicare l’impostazione</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>interrotta prima di essere applicata</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>non è arrivata per intero</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>interrotta durante l’applicazione</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>Analisi delle impostazioni di sistema...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>Sfondo del desktop</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>Personalizzazione</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>Immagine di sfondo attuale del desktop</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>Analisi delle impostazioni della barra delle applicazioni...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>Impostazioni della barra delle applicazioni</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>Posizione, icone e scomparsa automatica della barra delle applicazioni</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>Analisi delle opzioni di Esplora file...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>Opzioni di Esplora file</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>File nascosti, estensioni dei file, opzioni di visualizzazione</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>Analisi delle impostazioni del mouse...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>Impostazioni del mouse</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>Velocità, pulsanti e scorrimento del mouse</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>Analisi delle impostazioni della tastiera...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>Impostazioni della tastiera</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>Velocità e ritardo di ripetizione della tastiera</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>Analisi delle opzioni risparmio energia...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Opzioni risparmio energia</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>Combinazione per il risparmio di energia attuale</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>Analisi delle variabili di ambiente...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>Variabili di ambiente dell’utente</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>Variabili di ambiente definite dall’utente (%1)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>Analisi delle impostazioni dello schermo...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>Impostazioni di tema e schermo</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>Modalità scura o chiara, trasparenza, colori</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>Analisi delle impostazioni audio...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>Combinazione suoni</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>Suoni di sistema e notifiche</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Analisi completata</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>Preparazione</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifica</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registra il prodotto</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Acquista</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Supporto</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>Gestione della rete non inizializzata</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>Ricerca avviata. Codice di verifica: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>Broadcast riavviato. Codice di verifica: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>Nessun PC trovato con il codice di verifica: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Codice di verifica non valido</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connesso a %1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Disconnesso</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Connessione non riuscita: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Timeout della connessione</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>Un trasferimento è già in corso</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>Impossibile avviare il trasferimento. Verifica la connessione e la selezione.</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>Trasferimento avviato – elementi selezionati: %1</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>In attesa di file...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>Trasferimento sospeso</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>Trasferimento ripreso</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Trasferimento annullato</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>Nuovo tentativo per gli elementi non riusciti...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>Trasferimento completato – percentuale di riuscita: %1%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>Trasferimento non riuscito: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>Motore reimpostato</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>Pronto per una nuova connessione</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>Un’analisi è già in corso</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>Non connesso al PC di origine</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>Avvio dell’analisi del sistema...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>Analisi annullata</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>Errore di analisi: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>Più di un PC mostra il codice %1: %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>Ricezione dei dati</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>Invio dei dati</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>In attesa di dati...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>In attesa...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>Ricezione dei dati – %1%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>Invio dei dati – %1%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>Trasferimento non riuscito</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>Ricezione sospesa</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>Invio sospeso</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>Annulla trasferimento</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>Vuoi annullare il trasferimento?</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>Sì, annulla</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>Continua il trasferimento</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>Annullato dal mittente. In attesa...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>Trasferimento dei dati</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>File in corso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ Riprendi</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ Sospendi</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>Non riusciti: %1</translation>
    </message>
    <message>
        <source>received</source>
        <translation>ricevuto</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>inviata</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Connessione interrotta</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>In arrivo %1, ma lo spazio disponibile su %3 è solo %2: non ci sarà posto per tutto.</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>Installazione di %1 – %2%</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1 sta installando...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Chiudi Zandrove</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>È in corso un trasferimento. Se chiudi la finestra, viene annullato.</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>Annulla e chiudi</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>Torna alla selezione</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>Ciò che è arrivato rimane nel Nuovo PC e nel Vecchio PC non viene eliminato nulla. Un report viene salvato nei tuoi documenti.</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>L’avanzamento andrà perso. I file arrivati restano; non rimane nulla di incompleto.</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>Codice di verifica</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>Da inserire nell’altro PC</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>Trasferisci file, app e impostazioni nel nuovo PC</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>Modalità rete</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi / LAN (stessa rete)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>Modalità cavo</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>Cavo USB-C o Ethernet</translation>
    </message>
</context>
</TS>
