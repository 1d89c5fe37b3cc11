<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>Connection refused</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Connection timed out</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>Host not found</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Network unreachable</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Socket operation timed out</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>No such file or directory</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No space left on device</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Too many open files</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>Connection refused</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Connection reset by peer</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Connection timed out</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Host unreachable</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>Network dropped connection on reset</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>Network operation timed out</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Network unreachable</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>The address is not available</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>The remote host closed the connection</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
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
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
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
        <translation>Scroll here</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Left edge</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Right edge</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page left</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page right</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page down</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scroll right</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>Folder not found</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Its name is not valid text</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>Cannot list folder: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>Its path contains a backslash, which separates folders on the New PC</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>Another ticked folder has a file of this name</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Cannot be reached</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>Scanning user accounts...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>Enumerating Windows accounts...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>%1 was lost before it said that this is installed</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>%1 was lost before it said that this is applied</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>%1 called the transfer off before it said that this is installed</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>%1 called the transfer off before it said that this is applied</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>Copying install files...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>Copying AppData files...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>Importing registry...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>Creating shortcuts...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Installation complete</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>Failed to copy install files</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>Stopped: %1 of %2 files copied</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>Stopped before all of its keys and shortcuts were there</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Files of %1 that did not arrive: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>Files that could not be copied: %1 of %2 (%3: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>System App</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>Sending app info...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>Sending shortcuts...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>Completing...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>Exporting registry...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>Sending install files...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>Sending AppData Local...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>Sending AppData Roaming...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>Sending ProgramData...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>Scanning installed applications...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>Scanning user installed applications...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>Scanning Program Files...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>Scanning user software registry...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Scan complete</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>No request is open that this could answer.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 is not there any more.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>this PC is only looking around.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>There is no folder %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 is not a folder.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>The folder %1 can&apos;t be read.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>The application %1 cannot be moved.</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>There is no application %1 on this PC. See zandrove-cli scan.</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>There is no setting %1 on this PC. See zandrove-cli scan.</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>This PC has nothing of that to move. See zandrove-cli scan.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 is here too, but also as Old PC: choose New PC on one of the two</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 is here too, but also as New PC: choose Old PC on one of the two</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>another program</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>%1 was not found for 20 seconds. In reach are: %2.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>New PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Old PC</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 is not a number of seconds from 1 to %2.</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode is network or cable, not %1.</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role is old or new, not %1.</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to needs a code, a name or an address.</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder needs a folder.</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>The New PC: the four digits on its screen, its name or its address.</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>A folder to move; may be given several times.</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>Let every PC in that asks, without a question.</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>End after the first transfer.</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>Look for N seconds; without it, until Ctrl-C.</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>Print one JSON object a line, for scripts.</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>Print the program&apos;s log on standard error.</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>Be the New PC: show a code, wait for an Old PC, receive what it sends.</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>List the PCs on the network as they come and go.</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>List what can be moved from this PC: applications, folders, accounts and settings.</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>This text; after a command, the help of that command.</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>The version of the program.</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>Unknown option %1. See --help.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 takes no value.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 needs a value.</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send needs --to with the New PC&apos;s code, name or address.</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover needs --role old or --role new.</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>Unexpected argument %1. See --help.</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>Unknown command %1. See --help.</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>An application to move, by the exact name that scan lists; may be given several times.</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>Move every application that can be moved.</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>A setting to move, by the id that scan lists; may be given several times.</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>Move every setting that this PC has.</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send needs something to move: a --folder, an --app or a --setting.</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>The address or host name of a PC that is tried as well.</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>What this PC is, to be compared with those that are heard.</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>Listen for N seconds; without it, for 5.</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>Say receive, send, discover, diagnose or scan. See --help.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>Allow %1 (%2) to connect? [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>The report can&apos;t be written: %1 is a folder.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>Nobody can be asked here: every request will be refused without --yes.</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>this PC is receiving from %1.</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>nobody can be asked here. Start with --yes to let every PC in.</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>The link to %1 broke during a transfer.</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>%1 ended the session during a transfer.</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>Nothing began to arrive within %1 seconds.</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>Some settings are still being applied; the report is without them.</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>The transfer from %1 broke off.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>this PC is sending to %1.</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>The link to %1 broke.</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 ended the session.</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>There is no finished transfer to follow.</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%1 was not found within %2 seconds.</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%1 did not answer within %2 seconds.</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 ended the transfer.</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>More than one PC goes by %1: %2. Name the one that is meant by its address.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>Unknown command: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>The other PC did not end the session: not everything may have arrived.</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>No answer from %1 for %2 s</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 answers again</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>%1 are on their way, but only %2 are free on %3. Not everything will fit.</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>%1 was lost before it said that everything is installed.</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>%1 called the transfer off before everything was installed.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>The code of this PC is %1. Waiting for an Old PC.</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>code %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>Found %1. Waiting for it to let this PC in.</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>%1 was refused.</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>%1 was refused: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Connected to %1.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Disconnected from %1.</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Receiving</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Sending</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 left</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>%1 was not moved: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Paused.</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>Paused by %1.</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>Resumed.</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>Resumed by %1.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>Cancelled by %1.</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>Files saved:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>Scanning %1%  %2 applications</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(cannot be moved)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>Applications: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>files: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Folders: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>Accounts: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Settings: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>%1 in applications and folders.</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>Done in %1: %2, %3 on average.</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>Done in %1: %2.</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>Applications:</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installed</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>sent</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Settings:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>applied</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 is installing %2...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Installing %1</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>Files: %1 arrived, %2 failed, %3 were there before.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>hint</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>PROBLEM</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>Waiting for %1: somebody has to press Yes there</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>Further ones are counted in the report.</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>Nothing was found that stands in the way.</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>Found in the way: %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>Your files, apps and settings have been successfully transferred</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>Files saved to:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>Waiting for more files...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ Finished</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Finished</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 Send More Files...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>Send More Files...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Received Files</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 files</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>%1 of %2 apps did not arrive</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>%1 of %2 settings did not arrive</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>Apps and settings were sent. What became of them stands on the page of %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>Available Devices</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>%1 device(s) found, %2 online</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Connecting to %1...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>Verifying code...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>Connection request from %1...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>Connection Request</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Connection rejected</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>The other PC is no longer waiting</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ Connected to %1</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ Connected successfully!</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ Connection failed: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>Scanning direct connection... 0%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>Scanning Direct Connection...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>Scanning direct connection... %1% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>No device found. Please ensure the other PC has Zandrove running</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>Looking for devices on your network...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 Refresh</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>Connect to Another PC</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>Select a device or enter verification code</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 Both PCs must be on the same network with Zandrove running</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>Scanned: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>Please ensure the network cable is connected</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>Your Verification Code</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>Show this code to the other PC</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>Or Enter Their Code</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>Their code, character %1</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>This is the address of this PC.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>Only IPv4 addresses work here, such as 192.168.1.23.</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>An address has four numbers from 0 to 255, such as 192.168.1.23.</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>This is not the address of one PC.</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>This is neither an address nor the name of a PC.</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>Address or name of the other PC</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>Or Enter Their Address</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>Looking for %1...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>No PC named %1 was found. Its address may work instead.</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 has no IPv4 address.</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>Address of this PC: %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>Enter their code instead</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>Enter an address instead</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>Waiting for %1: somebody has to press Yes there</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>No connection to %1: %2.</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>Its address: %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>Zandrove is open on the other PC too, and shows this page there.</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>The network cable is plugged in on both PCs, and its lights are on.</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>One of the two is the Old PC, and the other one the New PC.</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>The firewalls of both PCs let Zandrove through.</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>Nobody found yet. Please check, the likeliest first:</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>Can&apos;t find the other PC?</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>Back to the devices</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Check again</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>Looking at this PC and its network. This takes some seconds...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>Nothing was found here that stands in the way. Please check on the other PC as well.</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>What is marked with ✗ stands in the way.</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>another program, maybe a second Zandrove</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 is here too, but also as Old PC: choose New PC on one of the two</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 is here too, but also as New PC: choose Old PC on one of the two</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>wired</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>virtual</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>%1 has the address %2.</source>
        <translation>%1 has the address %2.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 has the address %2, but is connected to nothing.</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>Plug in its cable, or join a network with it.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 has the address %2, but no broadcast can leave by it: %3.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>Look for a firewall or security program on this PC that keeps Zandrove from sending.</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 has the address %2, and broadcasts leave by it.</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 is connected, but has no address yet.</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 is connected to nothing.</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>This PC has only an address that it gave itself, %1.</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>The VPN %1 takes what is meant for the network %2 of %3.</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>Disconnect the VPN until everything has moved.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>The VPN %1 takes what is not for a local network.</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>This PC is in no network.</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>Plug in a cable, or join a Wi-Fi.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>New PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>Old PC</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>What is meant for it leaves by the VPN %1: disconnect that first.</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>Let Zandrove through the firewall of %1: TCP port %2.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1 (%2) is heard as %3, but does not answer on TCP port %4.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>%1 is here too, but also as %2.</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>Choose %1 on one of the two.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1 (%2) is heard as %3, and answers.</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>Nobody here knows a PC by the name %1.</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>Give its address instead; its page of connections shows it.</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 is this PC itself.</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>Give the address of the other PC.</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 answers on TCP port %2, but is not heard on UDP port %3.</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1 is there, but refuses connections on TCP port %2.</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>Open Zandrove there, up to its page of connections.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>%1 can&apos;t be connected to: %2.</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>See whether the address is right, and both PCs are in the same network.</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 does not answer on TCP port %2, and is not heard.</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>See whether the address is right, that PC on, and its firewall open for Zandrove.</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>This PC doesn&apos;t hear its own broadcasts on %1.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>Look for a firewall or security program on this PC that keeps out UDP port %1.</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>Nobody has answered on %1, and it has no router.</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>If the other PC should be there, see whether its end of the cable, or its network, is on.</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>No other PC was heard within %1 s.</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>TCP port %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>UDP port %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 is free.</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>%1 is held by Zandrove, as it should be.</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>%1 is taken by another program.</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>%1 is taken by %2.</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>Find out which one it is, close it, and start Zandrove anew.</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>Close that program, and start Zandrove anew.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1 is on, and lets both ports in.</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1 is on, and keeps out %2.</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>Have it let both ports in.</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>See whether its rules let in %1 and %2.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>%1 couldn&apos;t be read without administrator rights.</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1 gave no answer that could be read.</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1 is off.</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>No firewall was found of those that can be asked.</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>The system treats the network %1 as public.</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>If it is your own, set it to private in the network settings.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>Quick Access</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>Select folders to transfer</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>My Documents</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>This PC</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>Local Disk (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> - %1 free of %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>it became shorter meanwhile</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>Write error</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Received Files</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Failed to create file</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>Checksum mismatch</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>changed while it was sent</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>It did not arrive whole</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>Starting folder scan...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>File not found: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>Cannot open file: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>not a regular file</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>Cancelled before it was sent whole</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>changed while it was sent</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>As it should be</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>May matter</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>In the way</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copied</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>Run as administrator</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>Done. Please check again.</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>That did not work.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 files, %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Configuration error</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>The link to the page could not be loaded.

Please contact technical support or install the program again.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Cannot open the browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>The default browser could not be opened.

Please copy the link and open it yourself:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>No answer from the other PC for %1 s</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>No answer from %1 for %2 s</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>The connection to %1 is lost.</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>The connection to the other PC is lost.</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>Back to connections</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>Show report</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Next →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>PC Migration Tool</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>Transfer files, apps, and settings between PCs easily.</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. All rights reserved.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>About Zandrove</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Language Changed</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Language has been changed.

The application will restart now.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>This copy of Zandrove is registered.</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>This copy of Zandrove is not registered.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Back</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>Did not arrive</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>Copy list</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Save report…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>The list is on the clipboard.</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Save report</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>Page (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>The report is saved.</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>PC not found</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>No device found with verification code: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Connection timeout</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Connection rejected</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>PC at %1</translation>
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
        <translation>Speed</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Remaining</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>of %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Step %1 of %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>the link was lost</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>its installation was stopped at %1 %</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>a folder of this name stands in its place</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>the file that stands there is read-only</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>Old PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>New PC</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Began</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ended</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>Took</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Moved</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>Not moved</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>What to do next</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>Where the files lie</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>Place on %1</translation>
    </message>
    <message>
        <source>App</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Setting</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>Apps and settings</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>What became of it</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>en</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>%1 report</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>This transfer</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>Files that did not arrive</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>Files that were there already, with other content</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>The report %1 can&apos;t be written: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>it is no ordinary file</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>There already, identical</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>There already, and different</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>%1 were there already, identical.</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Zandrove report</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>Old PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>New PC</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>Source / Sender</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>Target / Receiver</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>Select This PC&apos;s Role</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>Choose what role this computer plays in the transfer</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>Both computers need Zandrove installed and running</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>changed while it was sent</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 does not say why</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>sent, but %1 has not confirmed that it arrived</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>not moved: the transfer ended before its turn</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>there already</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>there already, identical</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>there already, and different: the one from the Old PC was not moved</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>drive %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>%1 of %2 files did not arrive</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>%1 of %2 files arrived; nothing was deleted on the Old PC</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Transfer cancelled</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>Transfer cancelled by %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>The connection to %1 was lost</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>Transfer ended by %1</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>Transfer not finished</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>Transfer finished, %1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>Transfer finished, but not everything was moved</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>Transfer Complete!</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>no space left on %1 of %2: %3 files, %4 did not fit</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>moved</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>was there already</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>was there already, and different</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>failed</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>not confirmed</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>not known yet</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>Make room for %1 on %2 of %3, or move less.</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[App] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[Setting] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>And %1 more.</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>1 announced file did not come. The report of %1 names it.</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>%1 announced files did not come. The report of %2 names them.</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>Read the reasons in the list.</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>Read the reasons in the report of %1.</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>Finding apps, files and settings to transfer...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>Scanning system...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>Scanning Your PC</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Accounts</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>Scan complete!</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>Found items ready to transfer</translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation>Total: %1</translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation>Applications (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>Files (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>Settings (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>Accounts &amp; Settings</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>Total: 0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>Select Content to Transfer</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>Select All Applications</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>User Accounts</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>System Settings</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>Same-name files:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Overwrite</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>Existing apps:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>File not found: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Files of %1 that did not arrive: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>sent; what became of it stands in the report of %1</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>sent, but %1 has not confirmed that it arrived</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>Export failed</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>Failed to apply setting</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>stopped before it was applied</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>it did not arrive whole</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>stopped while it was being applied</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>Scanning system settings...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>Desktop Wallpaper</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>Personalization</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>Current desktop background image</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>Scanning taskbar settings...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>Taskbar Settings</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>Taskbar position, auto-hide, and icon settings</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>Scanning file explorer settings...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>File Explorer Settings</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>Show hidden files, file extensions, view options</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>Scanning mouse settings...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>Mouse Settings</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>Mouse speed, button configuration, scroll settings</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>Scanning keyboard settings...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>Keyboard Settings</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>Keyboard repeat rate and delay</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>Scanning power settings...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Power Settings</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>Current power plan settings</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>Scanning environment variables...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>User Environment Variables</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>User-defined environment variables (%1 variables)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>Scanning display settings...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>Theme &amp; Display Settings</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>Dark/Light mode, transparency, color settings</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>Scanning sound settings...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>Sound Scheme</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>System sounds and notification settings</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Scan complete</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>Prepare</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verify</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>Activate</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Purchase</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>Network manager not initialized</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>Discovery started. Verification code: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>Broadcast restarted. Verification code: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>No PC found with verification code: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Invalid verification code</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connected to %1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Disconnected</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Connection failed: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Connection timeout</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>Transfer already in progress</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>Cannot start transfer. Check connection and selection.</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>Transfer started - %1 items selected</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>Waiting to receive files...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>Transfer paused</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>Transfer resumed</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Transfer cancelled</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>Retrying failed items...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>Transfer completed - Success rate: %1%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>Transfer failed: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>Engine reset</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>Ready for new connection</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>Scan already in progress</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>Not connected to source PC</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>Starting system scan...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>Scan cancelled</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>Scan error: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>More than one PC shows the code %1: %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>Receiving Data</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>Sending Data</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>Waiting for Data...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Waiting...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>Receiving Data - %1%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>Sending Data - %1%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>Transfer Failed</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>Receiving Paused</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>Sending Paused</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>Cancel Transfer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>Are you sure you want to cancel the transfer?</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>Yes, Cancel</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>Continue Transfer</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>Sender cancelled. Waiting...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>Transferring Data</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>Current Files</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ Resume</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 failed</translation>
    </message>
    <message>
        <source>received</source>
        <translation>received</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>sent</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Connection lost</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>%1 are on their way, but only %2 are free on %3. Not everything will fit.</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>Installing %1 - %2 %</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1 is installing...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Close Zandrove</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>A transfer is running. Closing the window cancels it.</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>Cancel and Close</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>Back to selection</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>Verification Code</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>Enter on the other PC</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>Transfer files, apps and settings to your new PC</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>Network Mode</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi / LAN (Same Network)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>Cable Mode</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>USB-C or Ethernet Cable</translation>
    </message>
</context>
</TS>
