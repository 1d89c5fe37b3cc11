<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>Ordinateur introuvable</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Réseau inaccessible</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Délai d’attente du réseau dépassé</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>Fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Espace disque insuffisant</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Sélectionner tout</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Connexion réinitialisée par l’autre ordinateur</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Ordinateur inaccessible</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>Connexion perdue lors d’une réinitialisation du réseau</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>Délai d’attente du réseau dépassé</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Réseau inaccessible</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>L’adresse n’est pas disponible</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>L’ordinateur distant a fermé la connexion</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Défiler jusqu’ici</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bord droit</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page de gauche</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page de droite</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Défiler vers la gauche</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Défiler vers la droite</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Défiler vers le bas</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>Dossier introuvable</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Son nom n’est pas un texte valide</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>Impossible de lire le contenu du dossier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>Son chemin contient une barre oblique inverse, qui sépare les dossiers sur le Nouveau PC</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>Un autre dossier coché contient un fichier de ce nom</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Inaccessible</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>Analyse des comptes d’utilisateurs...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>Recensement des comptes Windows...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>La connexion avec %1 a été perdue avant la confirmation de l’installation</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>La connexion avec %1 a été perdue avant la confirmation de l’application du paramètre</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>%1 a annulé le transfert avant de confirmer l’installation</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>%1 a annulé le transfert avant de confirmer l’application du paramètre</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>Copie des fichiers d’installation...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>Copie des fichiers AppData...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>Importation dans le Registre...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>Création des raccourcis...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Installation terminée</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>Impossible de copier les fichiers d’installation</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>Installation interrompue, fichiers copiés&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>Installation interrompue avant que toutes les clés de Registre et tous les raccourcis soient en place</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Fichiers de %1 qui ne sont pas arrivés&#xa0;: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>Fichiers qui n’ont pas pu être copiés&#xa0;: %1 sur %2 (%3&#xa0;: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>Application système</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>Envoi des informations sur l’application...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>Envoi des raccourcis...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>Finalisation...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>Exportation du Registre...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>Envoi des fichiers d’installation...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>Envoi d’AppData Local...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>Envoi d’AppData Roaming...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>Envoi de ProgramData...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>Analyse des applications installées...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>Analyse des applications installées par l’utilisateur...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>Analyse de Program Files...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>Analyse des logiciels de l’utilisateur dans le Registre...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Analyse terminée</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>Aucune demande en attente à laquelle cela pourrait répondre.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 n’est plus là.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>ce PC se contente de rechercher les autres.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>Le dossier %1 n’existe pas.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>Impossible de lire le dossier %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>L’application %1 ne peut pas être transférée.</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>Ce PC n’a pas d’application %1. Voir zandrove-cli scan.</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>Ce PC n’a pas de paramètre %1. Voir zandrove-cli scan.</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>Ce PC n’a rien de cela à transférer. Voir zandrove-cli scan.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 est là aussi, mais également comme Ancien PC : choisissez Nouveau PC sur l’un des deux</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 est là aussi, mais également comme Nouveau PC : choisissez Ancien PC sur l’un des deux</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>un autre programme</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>Le port %1 est occupé par %2 : ce PC n’entend aucun autre PC. Fermez ce programme, puis recommencez.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>Le port %1 est occupé par %2 : aucun autre PC ne peut joindre celui-ci. Fermez ce programme, puis recommencez.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>Le port %1 est occupé par %2 : aucun autre PC ne peut adresser de demande à celui-ci, qui peut encore en adresser aux autres.</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>%1 est resté introuvable pendant 20 secondes. À portée : %2.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nouveau PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Ancien PC</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>Personne n’a été trouvé en 20 secondes. À vérifier, en commençant par le plus probable : Zandrove est ouvert sur l’autre PC, comme %1 ; les deux PC sont sur le même réseau ou reliés par un câble ; aucun des deux n’utilise de VPN ; leurs pare-feu laissent entrer le port TCP %2 et le port UDP %3. zandrove-cli diagnose recherche la cause.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 n’est pas un nombre de secondes compris entre 1 et %2.</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode vaut network ou cable, et non %1.</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role vaut old ou new, et non %1.</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to demande un code, un nom ou une adresse.</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder demande un dossier.</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>Le Nouveau PC&#xa0;: les quatre chiffres affichés à son écran, son nom ou son adresse.</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>Un dossier à transférer&#xa0;; peut être indiqué plusieurs fois.</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>Accepter tout PC qui demande à se connecter, sans poser de question.</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>S’arrêter après le premier transfert.</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>S’arrêter avec le code de sortie 3 si rien n’a commencé à arriver au bout de S secondes. Le décompte reprend à zéro chaque fois que le programme se met en attente&#xa0;; un transfert en cours n’est jamais interrompu.</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>Le rôle de ce PC. Un Ancien PC voit les Nouveaux PC, un Nouveau PC voit les Anciens PC.</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>Rechercher pendant N secondes&#xa0;; sans cette option, jusqu’à Ctrl-C.</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>La façon dont les PC se trouvent&#xa0;: par diffusion sur le réseau (par défaut) ou par un câble direct, auquel cas les adresses voisines de celle de ce PC sont aussi essayées.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>Exécuter les commandes reçues sur l’entrée standard, une par ligne&#xa0;: yes, no (réponse à une demande), pause, resume, cancel, end.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>Exécuter les commandes reçues sur l’entrée standard, une par ligne&#xa0;: pause, resume, cancel, again [DIR] (un nouveau transfert sur la même liaison), end. Après un transfert, la liaison est alors maintenue jusqu’à la commande end ou jusqu’à la fin de l’entrée standard.</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>Afficher un objet JSON par ligne, pour les scripts.</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>Afficher le journal du programme sur la sortie d’erreur standard.</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>Utiliser ce PC comme Nouveau PC&#xa0;: afficher un code, attendre un Ancien PC et recevoir ce qu’il envoie.</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>Afficher les PC du réseau à mesure qu’ils apparaissent et disparaissent.</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>Afficher ce qui peut être transféré de ce PC&#xa0;: applications, dossiers, comptes et paramètres.</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>Ce texte&#xa0;; après une commande, l’aide de cette commande.</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>La version du programme.</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>Option inconnue&#xa0;: %1. Voir --help.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 n’accepte pas de valeur.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 demande une valeur.</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send demande --to avec le code, le nom ou l’adresse du Nouveau PC.</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover demande --role old ou --role new.</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>Argument inattendu&#xa0;: %1. Voir --help.</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>Commande inconnue&#xa0;: %1. Voir --help.</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>Une application à transférer, sous le nom exact qu’affiche scan&#xa0;; peut être indiquée plusieurs fois.</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>Transférer toutes les applications qui peuvent l’être.</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>Un paramètre à transférer, sous l’identifiant qu’affiche scan&#xa0;; peut être indiqué plusieurs fois.</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>Transférer tous les paramètres de ce PC.</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>S’arrêter avec le code de sortie 3 si, au bout de S secondes, le Nouveau PC n’a pas été trouvé ou n’a pas accepté ce PC. Le décompte commence avec la recherche&#xa0;; le transfert lui-même n’est jamais interrompu.</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>Utiliser ce PC comme Ancien PC&#xa0;: trouver le Nouveau PC, attendre son accord, puis envoyer dossiers, applications et paramètres.</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli transfère des dossiers, des applications et des paramètres d’un Ancien PC vers un Nouveau PC du même réseau.</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send demande quelque chose à transférer&#xa0;: --folder, --app ou --setting.</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>Écrire le rapport de chaque transfert dans FILE, à la place du précédent&#xa0;: une page à lire ou, si le nom se termine par .json, du JSON.</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>L’adresse ou le nom d’hôte d’un PC à essayer également.</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>Le rôle de ce PC, à comparer avec celui des PC entendus.</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>Écouter pendant N secondes ; sans cette option, pendant 5.</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>Chercher pourquoi l’autre PC est introuvable : examiner les cartes réseau, les ports, les pare-feu et les VPN, et voir quels PC sont entendus et répondent. Ne modifie rien.</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>Codes de sortie : 0 tout a été transféré ou affiché ; 1 la connexion ou l’exécution a échoué ou a été refusée ; 2 utilisation incorrecte ; 3 délai dépassé ; 4 terminé, mais des éléments ont échoué ou existaient déjà, ou diagnose a trouvé un obstacle ; 130 annulé par Ctrl-C (l’autre PC en est informé ; un second Ctrl-C arrête immédiatement).</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>Indiquez receive, send, discover, diagnose ou scan. Voir --help.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>Autoriser %1 (%2) à se connecter&#xa0;? [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>Impossible d’écrire le rapport&#xa0;: %1 est un dossier.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>Personne ne peut répondre ici&#xa0;: sans --yes, toutes les demandes seront refusées.</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>ce PC est en train de recevoir les données de %1.</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>personne ne peut répondre ici. Lancez le programme avec --yes pour accepter tous les PC.</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>La liaison avec %1 a été coupée pendant un transfert.</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>%1 a mis fin à la session pendant un transfert.</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>Rien n’a commencé à arriver en %1&#xa0;s.</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>Certains paramètres sont encore en cours d’application&#xa0;; ils manquent dans le rapport.</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>Le transfert depuis %1 a été interrompu.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>ce PC est en train d’envoyer des données à %1.</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>La liaison avec %1 a été coupée.</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 a mis fin à la session.</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>Aucun transfert terminé auquel donner suite.</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%1 n’a pas été trouvé en %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%1 n’a pas répondu en %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 a mis fin au transfert.</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>Plusieurs PC répondent à %1 : %2. Désignez celui que vous voulez par son adresse.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>Commande inconnue&#xa0;: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>L’autre PC n’a pas mis fin à la session&#xa0;: il se peut que tout ne soit pas arrivé.</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>Aucune réponse de %1 depuis %2&#xa0;s</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 répond à nouveau</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>Le transfert compte %1, mais il n’y a que %2 de libre sur %3 : tout ne tiendra pas.</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>La connexion avec %1 a été perdue avant la confirmation que tout est installé.</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>%1 a annulé le transfert avant que tout soit installé.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>Le code de ce PC est %1. En attente d’un Ancien PC.</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>code %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>%1 trouvé. En attente de son accord.</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>%1 a été refusé.</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>%1 a été refusé&#xa0;: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Connecté à %1.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Déconnecté de %1.</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Réception</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>%1 n’a pas été transféré&#xa0;: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Transfert suspendu.</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>Transfert suspendu par %1.</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>Transfert repris.</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>Transfert repris par %1.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Transfert annulé.</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>Transfert annulé par %1.</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>Fichiers enregistrés&#xa0;:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>Analyse %1&#xa0;%  Applications&#xa0;: %2</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(non transférable)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>Applications&#xa0;: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Dossiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>Comptes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Paramètres&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>%1 dans les applications et les dossiers.</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>Terminé en %1&#xa0;: %2, %3 en moyenne.</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>Terminé en %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>Applications&#xa0;:</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installée</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>envoi effectué</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Paramètres&#xa0;:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>appliqué</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 installe %2...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Installation de %1</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>Fichiers arrivés&#xa0;: %1, en échec&#xa0;: %2, existant déjà&#xa0;: %3.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>conseil</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>PROBLÈME</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>En attente de %1 : quelqu’un doit y appuyer sur Oui</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>Les suivants sont comptés dans le rapport.</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>Aucun obstacle trouvé.</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>Obstacles trouvés : %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>Vos fichiers, applications et paramètres ont bien été transférés</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>Fichiers enregistrés dans&#xa0;:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>En attente d’autres fichiers...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ Terminer</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 Envoyer d’autres fichiers...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>Envoyer d’autres fichiers...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Fichiers reçus</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>Fichiers arrivés&#xa0;: %1, existant déjà à l’identique&#xa0;: %2, existant déjà avec un autre contenu&#xa0;: %3, en échec ou non confirmés&#xa0;: %4</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>Applications non arrivées&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>Paramètres non arrivés&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>Les applications et les paramètres ont été envoyés. Le résultat figure sur la page de %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>Appareils disponibles</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>Appareils trouvés&#xa0;: %1, en ligne&#xa0;: %2</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Connexion à %1...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>Vérification du code...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>Demande de connexion de %1...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>Demande de connexion</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>«&#xa0;%1&#xa0;» souhaite se connecter à ce PC.

Voulez-vous accepter cette demande&#xa0;?</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>L’autre PC n’attend plus</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ Connecté à %1</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ Connexion établie&#xa0;!</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ Échec de la connexion&#xa0;: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>Recherche sur la connexion directe... 0&#xa0;%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>Recherche sur la connexion directe...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>Recherche sur la connexion directe... %1&#xa0;% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>Aucun appareil trouvé. Vérifiez que Zandrove est ouvert sur l’autre PC</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>Recherche d’appareils sur votre réseau...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 Actualiser</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>Connectez-vous à un autre PC</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>Sélectionnez un appareil ou saisissez un code de vérification</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 Les deux PC doivent être sur le même réseau, avec Zandrove ouvert</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>Adresses testées&#xa0;: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>Vérifiez que le câble réseau est branché</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>Votre code de vérification</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>Ce code est à saisir sur l’autre PC</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>Ou saisissez le code de l’autre PC</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>Code de l’autre PC, caractère %1</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>C’est l’adresse de ce PC.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>Seules les adresses IPv4 fonctionnent ici, par exemple 192.168.1.23.</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>Une adresse comporte quatre nombres de 0 à 255, par exemple 192.168.1.23.</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>Ce n’est pas l’adresse d’un PC en particulier.</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>Ce n’est ni une adresse ni le nom d’un PC.</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>Adresse ou nom de l’autre PC</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>Ou saisissez l’adresse de l’autre PC</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>Recherche de %1...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>Aucun PC nommé %1 n’a été trouvé. Essayez plutôt son adresse.</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 n’a pas d’adresse IPv4.</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>Adresse de ce PC : %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>Saisir plutôt le code</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>Saisir plutôt une adresse</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>En attente de %1 : quelqu’un doit y appuyer sur Oui</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>Pas de connexion avec %1 : %2.</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>Son adresse : %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>Zandrove est ouvert aussi sur l’autre PC et y affiche cette page.</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>Le câble réseau est branché sur les deux PC, et ses voyants sont allumés.</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>Les deux PC sont sur le même réseau, et aucun n’est sur un Wi-Fi invité ni sur un VPN.</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>L’un des deux est l’Ancien PC, l’autre le Nouveau PC.</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>Les pare-feu des deux PC laissent passer Zandrove.</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>Personne pour l’instant. Vérifiez, en commençant par le plus probable :</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>L’autre PC est introuvable ?</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>Retour aux appareils</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>Examen de ce PC et de son réseau. Cela prend quelques secondes...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>Aucun obstacle trouvé ici. Vérifiez aussi sur l’autre PC.</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>Ce qui est marqué d’un ✗ fait obstacle.</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>un autre programme, peut-être un second Zandrove</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>Le port %1 est occupé par %2 : aucun autre PC ne peut donc se connecter à celui-ci. Fermez ce programme, puis réessayez.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>Le port %1 est occupé par %2 : ce PC n’entend donc pas les autres. Fermez ce programme, puis réessayez.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 est là aussi, mais également comme Ancien PC : choisissez Nouveau PC sur l’un des deux</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 est là aussi, mais également comme Nouveau PC : choisissez Ancien PC sur l’un des deux</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>filaire</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>virtuel</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>%1 has the address %2.</source>
        <translation>%1 a l’adresse %2.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 a l’adresse %2, mais n’est relié à rien.</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>Branchez son câble, ou connectez-le à un réseau.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 a l’adresse %2, mais aucune diffusion ne peut en sortir : %3.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>Cherchez sur ce PC un pare-feu ou un logiciel de sécurité qui empêche Zandrove d’émettre.</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 a l’adresse %2, et les diffusions en sortent.</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 est connecté, mais n’a pas encore d’adresse.</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>Attendez une minute. Si aucune adresse n’arrive, vérifiez que le routeur est allumé ; avec un câble direct, réglez cette connexion sur des adresses de liaison locale.</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 n’est relié à rien.</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>Ce PC n’a qu’une adresse qu’il s’est donnée lui-même, %1.</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>Avec un câble direct, c’est normal : choisissez Mode câble sur les deux PC. Sur un réseau, vérifiez que le routeur est allumé.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>Le VPN %1 capte ce qui est destiné au réseau %2 de %3.</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>Déconnectez le VPN jusqu’à ce que tout soit transféré.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>Le VPN %1 capte ce qui n’est pas destiné à un réseau local.</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>Déconnectez-le si les PC ne se trouvent pas : bien des VPN tiennent leur PC à l’écart du réseau local.</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>Ce PC n’est sur aucun réseau.</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>Branchez un câble, ou connectez-vous à un réseau Wi-Fi.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nouveau PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Ancien PC</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>Ce qui lui est destiné sort par le VPN %1 : déconnectez-le d’abord.</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>Lancez ce diagnostic sur %1 : son port y est peut-être occupé, ou son pare-feu rejette les connexions.</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>Autorisez Zandrove dans le pare-feu de %1 : port TCP %2.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1 (%2) s’annonce comme %3, mais refuse les connexions sur le port TCP %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1 (%2) s’annonce comme %3, mais la connexion est impossible : %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1 (%2) s’annonce comme %3, mais ne répond pas sur le port TCP %4.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>%1 est là aussi, mais également comme %2.</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>Choisissez %1 sur l’un des deux.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1 (%2) s’annonce comme %3, et répond.</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>Personne ici ne connaît de PC du nom de %1.</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>Indiquez plutôt son adresse ; sa page des connexions l’affiche.</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 est ce PC lui-même.</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>Indiquez l’adresse de l’autre PC.</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 répond sur le port TCP %2, mais n’est pas entendu sur le port UDP %3.</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>Ouvrez-y la page des connexions, et ouvrez le port UDP %1 dans les pare-feu des deux PC ; ou connectez-vous par l’adresse.</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1 est là, mais refuse les connexions sur le port TCP %2.</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>Ouvrez-y Zandrove, et allez jusqu’à la page des connexions.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>Impossible de se connecter à %1 : %2.</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>Vérifiez que l’adresse est correcte et que les deux PC sont sur le même réseau.</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 ne répond pas sur le port TCP %2, et n’est pas entendu.</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>Vérifiez que l’adresse est correcte, que ce PC est allumé et que son pare-feu laisse passer Zandrove.</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>Ce PC n’entend pas ses propres diffusions sur %1.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>Cherchez sur ce PC un pare-feu ou un logiciel de sécurité qui bloque le port UDP %1.</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>Personne n’a répondu sur %1, et il n’y a pas de routeur de ce côté.</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>Si l’autre PC devrait s’y trouver, vérifiez que le câble est branché de son côté, ou que son réseau est activé.</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>Aucun autre PC n’a été entendu en %1 s.</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>Ouvrez Zandrove sur l’autre PC, allez jusqu’à la page des connexions, et mettez les deux PC sur le même réseau.</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>port TCP %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>port UDP %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>Aucun programme n’occupe le %1.</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>Zandrove utilise le %1, comme il se doit.</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>Un autre programme occupe le %1.</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>Le %1 est occupé par %2.</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>Cherchez lequel, fermez-le, puis redémarrez Zandrove.</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>Fermez ce programme, puis redémarrez Zandrove.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et le %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>Le pare-feu %1 est activé et laisse entrer les deux ports.</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>Le pare-feu %1 est activé et bloque le %2.</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>Faites-lui laisser entrer les deux ports.</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>Le pare-feu %1 est activé ; qu’il laisse entrer les deux ports dépend de l’expéditeur ou de règles impossibles à évaluer ici.</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>Vérifiez que ses règles laissent entrer le %1 et le %2.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>Impossible de lire le pare-feu %1 sans droits d’administrateur.</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>Le pare-feu %1 n’a donné aucune réponse lisible.</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>Le pare-feu %1 est désactivé.</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>Aucun pare-feu pouvant être interrogé n’a été trouvé.</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>Le système considère le réseau %1 comme public.</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>Si c’est le vôtre, définissez-le comme privé dans les paramètres réseau.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>Accès rapide</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>Sélectionnez les dossiers à transférer</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Téléchargements</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>Ce PC</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>Disque local (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> – %1 libres sur %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>il est devenu plus court entre-temps</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>Erreur d’écriture</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Fichiers reçus</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Impossible de créer le fichier</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>Somme de contrôle incorrecte</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>modifié pendant l’envoi</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>Arrivée incomplète</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>Démarrage de l’analyse des dossiers...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>Fichier introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>Impossible d’ouvrir le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>Annulation avant la fin de l’envoi</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Impossible de lire le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>modifié pendant l’envoi</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>Peut avoir une incidence</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>Fait obstacle</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>Exécuter en tant qu’administrateur</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>C’est fait. Vérifiez à nouveau.</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>Cela n’a pas fonctionné.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>Fichiers&#xa0;: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Erreur de configuration</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Impossible de charger le lien de la page.

Contactez l’assistance technique ou réinstallez le logiciel.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Impossible d’ouvrir le navigateur</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Impossible d’ouvrir le navigateur par défaut.

Copiez le lien et ouvrez-le manuellement&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>Aucune réponse de l’autre PC depuis %1&#xa0;s</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>Aucune réponse de %1 depuis %2&#xa0;s</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>La connexion avec %1 est perdue.</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>La connexion avec l’autre PC est perdue.</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>Retour aux connexions</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>Afficher le rapport</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Suivant →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>Outil de migration de PC</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>Transférez facilement fichiers, applications et paramètres d’un PC à l’autre.</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. Tous droits réservés.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>À propos de Zandrove</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Langue modifiée</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>La langue a été modifiée.

L’application va maintenant redémarrer.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>Cette copie de Zandrove est enregistrée.</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>Cette copie de Zandrove n’est pas enregistrée.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Précédent</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>Éléments non arrivés</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>Copier la liste</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Enregistrer le rapport…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>La liste est dans le Presse-papiers.</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>Page web (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>Le rapport est enregistré.</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>PC introuvable</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>Aucun appareil trouvé avec le code de vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>PC à l’adresse %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::PCListItem</name>
    <message>
        <source>Online</source>
        <translation>En ligne</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors connexion</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressCard</name>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>sur %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>la connexion a été perdue</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>son installation a été interrompue à %1 %</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>un dossier de ce nom se trouve à cet emplacement</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>le fichier qui s’y trouve est en lecture seule</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>Ancien PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nouveau PC</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Transférés</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>Non transférés</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échecs</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Que faire ensuite</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>Où se trouvent les fichiers</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>Emplacement sur %1</translation>
    </message>
    <message>
        <source>App</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>Applications et paramètres</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>Rapport %1</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>Ce transfert</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>Fichiers non arrivés</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>Fichiers qui existaient déjà, avec un autre contenu</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>Impossible d’écrire le rapport %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>Existaient déjà, à l’identique</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>Existaient déjà, mais différents</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>Existaient déjà, à l’identique : %1.</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Rapport Zandrove</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>Ancien PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>Nouveau PC</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>Source / Expéditeur</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>Cible / Destinataire</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>Sélectionnez le rôle de ce PC</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>Choisissez le rôle de cet ordinateur dans le transfert</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>Zandrove doit être installé et ouvert sur les deux ordinateurs</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>modifié pendant l’envoi</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 n’indique pas la raison</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>envoi effectué, mais %1 n’en a pas confirmé l’arrivée</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>transfert non effectué&#xa0;: l’opération s’est terminée avant son tour</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>existait déjà</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>existait déjà, à l’identique</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>existait déjà, mais différent&#xa0;: la version de l’Ancien PC n’a pas été transférée</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>le lecteur %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>Fichiers non arrivés (%1 sur %2)</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>Fichiers arrivés&#xa0;: %1 sur %2&#xa0;; rien n’a été supprimé sur l’Ancien PC</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Transfert annulé</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>Transfert annulé par %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>Connexion avec %1 perdue</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>Transfert arrêté par %1</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>Transfert non terminé</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>Transfert terminé. %1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>Transfert terminé, mais tout n’a pas été transféré</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>Transfert terminé&#xa0;!</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>plus de place sur %1 de %2, fichiers restés sans place&#xa0;: %3 (%4)</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>transfert effectué</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>existait déjà</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>existait déjà, avec un autre contenu</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>sans confirmation</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>résultat pas encore connu</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>Ouvrez quelques fichiers sur %1 avant de vous séparer de l’Ancien PC. Rien n’y a été supprimé.</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>Libérez %1 sur %2 de %3, ou transférez moins de données.</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>Certains fichiers existaient déjà sur %1, avec un autre contenu. Comparez les deux versions. Pour obtenir celle de l’Ancien PC, renommez ou déplacez celle qui se trouve sur %1, puis transférez de nouveau le même dossier.</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Reconnectez les deux PC et lancez le même transfert&#xa0;: ce qui est arrivé est ignoré, seul ce qui manque est transféré.</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>Conservez l’Ancien PC tel quel jusqu’à ce qu’il ne manque plus rien. Rien n’y a été supprimé.</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[Application] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[Paramètre] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Et %1 de plus.</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>1 fichier annoncé n’est pas arrivé. Le rapport de %1 indique lequel.</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>%1 fichiers annoncés ne sont pas arrivés. Le rapport de %2 indique lesquels.</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>Lisez les raisons dans la liste.</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>Lisez les raisons dans le rapport de %1.</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Une fois les problèmes résolus, relancez le même transfert : ce qui est arrivé est ignoré, seul ce qui manque est transféré.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>Recherche des applications, fichiers et paramètres à transférer...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>Analyse du système...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>Analyse de votre PC</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>Analyse terminée&#xa0;!</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>Des éléments sont prêts à être transférés</translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation>Total&#xa0;: %1</translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation>Applications (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>Fichiers (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>Paramètres (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>Comptes et paramètres</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>Total&#xa0;: 0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>Sélectionnez le contenu à transférer</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>Sélectionner toutes les applications</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>Comptes d’utilisateurs</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Paramètres système</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>Fichiers de même nom&#xa0;:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>Applications existantes&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>Fichier introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Fichiers de %1 qui ne sont pas arrivés&#xa0;: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>envoi effectué&#xa0;; le résultat figure dans le rapport de %1</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>envoi effectué, mais %1 n’en a pas confirmé l’arrivée</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>Échec de l’exportation</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>Impossible d’appliquer le paramètre</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>interruption avant l’application du paramètre</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>arrivée incomplète</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>interruption pendant l’application du paramètre</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>Analyse des paramètres système...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>Arrière-plan du Bureau</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>Personnalisation</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>Image d’arrière-plan actuelle du Bureau</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>Analyse des paramètres de la barre des tâches...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>Paramètres de la barre des tâches</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>Position, masquage automatique et icônes de la barre des tâches</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>Analyse des options de l’Explorateur de fichiers...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>Options de l’Explorateur de fichiers</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>Fichiers masqués, extensions de fichiers, options d’affichage</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>Analyse des paramètres de la souris...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>Paramètres de la souris</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>Vitesse, boutons et défilement de la souris</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>Analyse des paramètres du clavier...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>Paramètres du clavier</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>Fréquence et délai de répétition du clavier</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>Analyse des options d’alimentation...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Options d’alimentation</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>Mode de gestion de l’alimentation actuel</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>Analyse des variables d’environnement...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>Variables d’environnement de l’utilisateur</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>Variables d’environnement définies par l’utilisateur (%1)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>Analyse des paramètres d’affichage...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>Paramètres de thème et d’affichage</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>Mode sombre ou clair, transparence, couleurs</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>Analyse des paramètres de son...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>Modèle de sons</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>Sons système et notifications</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Analyse terminée</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérification</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Acheter</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>Gestionnaire réseau non initialisé</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>Recherche lancée. Code de vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>Diffusion relancée. Code de vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>Aucun PC trouvé avec le code de vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Code de vérification non valide</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connecté à %1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Échec de la connexion&#xa0;: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>Un transfert est déjà en cours</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>Impossible de démarrer le transfert. Vérifiez la connexion et la sélection.</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>Transfert démarré – éléments sélectionnés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>En attente de fichiers...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>Transfert suspendu</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>Transfert repris</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Transfert annulé</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>Nouvelle tentative pour les éléments en échec...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>Transfert terminé – taux de réussite&#xa0;: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>Échec du transfert&#xa0;: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>Moteur réinitialisé</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>Prêt pour une nouvelle connexion</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>Une analyse est déjà en cours</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>Non connecté au PC source</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>Démarrage de l’analyse du système...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>Analyse annulée</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>Erreur d’analyse&#xa0;: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>Plusieurs PC affichent le code %1 : %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>Réception des données</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>Envoi des données</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>En attente de données...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>En attente...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>Réception des données – %1&#xa0;%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>Envoi des données – %1&#xa0;%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>Échec du transfert</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>Réception suspendue</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>Envoi suspendu</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>Annuler le transfert</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>Voulez-vous vraiment annuler le transfert&#xa0;?</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>Oui, annuler</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>Continuer le transfert</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>Annulé par l’expéditeur. En attente...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>Transfert des données</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>Fichiers en cours</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ Reprendre</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ Suspendre</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>Échecs&#xa0;: %1</translation>
    </message>
    <message>
        <source>received</source>
        <translation>reçu</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>envoi effectué</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Connexion perdue</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>Le transfert compte %1, mais il n’y a que %2 de libre sur %3&#xa0;: tout ne tiendra pas.</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>Installation de %1 – %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>Installation en cours sur %1...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Fermer Zandrove</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>Un transfert est en cours. Fermer la fenêtre l’annule.</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>Annuler et fermer</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>Retour à la sélection</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>Ce qui est arrivé reste sur le Nouveau PC, et rien n’est supprimé sur l’Ancien PC. Un rapport est enregistré dans vos documents.</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>La progression sera perdue. Les fichiers arrivés restent ; rien d’incomplet ne subsiste.</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>Code de vérification</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>À saisir sur l’autre PC</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>Vos fichiers, applications et paramètres sur votre nouveau PC</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>Mode réseau</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi / LAN (même réseau)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>Mode câble</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>Câble USB-C ou Ethernet</translation>
    </message>
</context>
</TS>
