<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was skipped; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say receive, send, discover or scan. See --help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 to connect? [y/N] </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>code %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files: %1 received, %2 failed, %3 skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files: %1 sent, %2 failed, %3 skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Transfer Complete!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next →</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>← Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::MigrationManager</name>
    <message>
        <source>[App] %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::PCListItem</name>
    <message>
        <source>Online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressCard</name>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verify</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All progress will be lost and incomplete files may remain on the destination.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
