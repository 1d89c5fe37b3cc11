<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>連線遭拒</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>連線逾時</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>找不到主機</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>無法連上網路</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>通訊端作業逾時</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>找不到該檔案或目錄</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>裝置上沒有剩餘空間</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>存取被拒</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開啟的檔案過多</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知的錯誤</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>取消復原(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪下(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼上(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>連線遭拒</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>連線被對方重設</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>連線逾時</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>無法連上主機</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>網路重設時中斷了連線</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>網路作業逾時</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>無法連上網路</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>存取被拒</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>位址無法使用</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>遠端主機已關閉連線</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知的錯誤</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>捲動到這裡</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>最左邊</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>最右邊</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>頂端</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底端</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>向左一頁</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>向右一頁</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>向上一頁</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>向下一頁</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左捲動</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右捲動</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上捲動</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下捲動</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>找不到資料夾</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>名稱不是有效的文字</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>無法列出資料夾的內容：%1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>路徑含有反斜線，而反斜線在新電腦上是資料夾的分隔符號</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>另一個勾選的資料夾中有同名檔案</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>無法存取</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>正在掃描使用者帳戶...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>正在列出 Windows 帳戶...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>%1 尚未回報安裝完成，連線就已中斷</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>%1 尚未回報套用完成，連線就已中斷</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>%1 尚未回報安裝完成，就取消了傳輸</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>%1 尚未回報套用完成，就取消了傳輸</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>正在複製安裝檔案...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>正在複製 AppData 檔案...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>正在匯入登錄...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>正在建立捷徑...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>安裝完成</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>無法複製安裝檔案</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>已停止：%2 個檔案中已複製 %1 個</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>登錄機碼和捷徑尚未全部建立即已停止</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>%1 未送達的檔案：%2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>無法複製的檔案：%2 個中有 %1 個（%3：%4）</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>系統應用程式</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>正在傳送應用程式資訊...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>正在傳送捷徑...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>正在完成...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>正在匯出登錄...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>正在傳送安裝檔案...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>正在傳送 AppData Local...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>正在傳送 AppData Roaming...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>正在傳送 ProgramData...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>正在掃描已安裝的應用程式...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>正在掃描使用者安裝的應用程式...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>正在掃描 Program Files...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>正在掃描使用者軟體的登錄...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>掃描完成</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>目前沒有可以回應的要求。</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 已經離開。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>這部電腦只是在尋找其他電腦。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>沒有資料夾 %1。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 不是資料夾。</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>無法讀取資料夾 %1。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>應用程式 %1 無法搬移。</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>這部電腦上沒有應用程式 %1。請參閱 zandrove-cli scan。</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>這部電腦上沒有設定 %1。請參閱 zandrove-cli scan。</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>這部電腦上沒有可傳輸的此類項目。請參閱 zandrove-cli scan。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>也找到了 %1，但它同樣是舊電腦：請在其中一部選擇新電腦</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>也找到了 %1，但它同樣是新電腦：請在其中一部選擇舊電腦</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>另一個程式</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>連接埠 %1 已被 %2 佔用：這部電腦偵測不到其他電腦。請結束該程式，然後重新開始。</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>連接埠 %1 已被 %2 佔用：其他電腦無法連線到這部電腦。請結束該程式，然後重新開始。</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>連接埠 %1 已被 %2 佔用：其他電腦無法向這部電腦提出要求，但這部電腦仍可向其他電腦提出要求。</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>已尋找 20 秒，仍找不到 %1。已找到的電腦：%2。</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>新電腦</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>舊電腦</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>已尋找 20 秒，仍找不到任何電腦。請依可能性由高到低檢查：另一部電腦正在以%1的角色執行 Zandrove；兩部電腦位於同一網路，或以纜線相連；兩部電腦都沒有使用 VPN；兩部電腦的防火牆都允許 TCP 連接埠 %2 和 UDP 連接埠 %3 的連入連線。zandrove-cli diagnose 可協助找出原因。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 不是 1 到 %2 之間的秒數。</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode 只能是 network 或 cable，不能是 %1。</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role 只能是 old 或 new，不能是 %1。</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to 需要驗證碼、名稱或位址。</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder 需要一個資料夾。</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>新電腦：其畫面上的四位數字、名稱或位址。</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>要搬移的資料夾；可重複指定。</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>允許每部要求連線的電腦，不再詢問。</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>第一次傳輸後結束。</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>S 秒內沒有開始收到任何資料時，以結束代碼 3 結束。程式每次開始等候時重新計時；進行中的傳輸不會被中斷。</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>這部電腦的角色。舊電腦會看到新電腦，新電腦會看到舊電腦。</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>尋找 N 秒；未指定時，直到按下 Ctrl-C。</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>電腦尋找彼此的方式：透過廣播（預設），或透過直接連接的纜線；使用纜線時也會嘗試與這部電腦相鄰的位址。</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>接受標準輸入的命令，每行一個：yes、no（回答要求）、pause、resume、cancel、end。</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>接受標準輸入的命令，每行一個：pause、resume、cancel、again [DIR]（在同一連線上再傳輸一次）、end。傳輸後連線會保持，直到 end 或標準輸入結束。</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>每行輸出一個 JSON 物件，供指令碼使用。</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>將程式的記錄輸出到標準錯誤。</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>作為新電腦：顯示驗證碼，等候舊電腦，接收它傳送的內容。</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>列出網路上出現和離開的電腦。</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>列出這部電腦上可搬移的項目：應用程式、資料夾、帳戶和設定。</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>顯示本說明；用在命令之後則顯示該命令的說明。</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>程式的版本。</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>未知的選項 %1。請參閱 --help。</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 不接受值。</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 需要一個值。</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send 需要以 --to 指定新電腦的驗證碼、名稱或位址。</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover 需要 --role old 或 --role new。</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>多餘的引數 %1。請參閱 --help。</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>未知的命令 %1。請參閱 --help。</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>要搬移的應用程式，以 scan 列出的完整名稱指定；可重複指定。</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>搬移所有可搬移的應用程式。</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>要搬移的設定，以 scan 列出的識別碼指定；可重複指定。</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>搬移這部電腦的所有設定。</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>S 秒內找不到新電腦，或新電腦未允許這部電腦連線時，以結束代碼 3 結束。從開始尋找時計時；傳輸本身不會被中斷。</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>作為舊電腦：尋找新電腦，等候其同意，傳送資料夾、應用程式和設定。</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli 將資料夾、應用程式和設定從舊電腦搬移到同一網路上的新電腦。</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send 需要要搬移的項目：--folder、--app 或 --setting。</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>將每次傳輸的報告寫入 FILE，取代前一份：格式為可閱讀的網頁；名稱以 .json 結尾時則為 JSON。</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>要另外嘗試連線的電腦位址或主機名稱。</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>這部電腦的角色，用來與偵測到的電腦比對。</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>偵測其他電腦 N 秒；未指定時為 5 秒。</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>找出找不到另一部電腦的原因：檢查介面卡、連接埠、防火牆和 VPN，以及偵測到哪些電腦、哪些電腦有回應。不會變更任何內容。</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>結束代碼：0 全部已搬移或列出；1 連線或執行失敗，或遭拒絕；2 用法錯誤；3 逾時；4 已完成，但有項目失敗或原已存在，或 diagnose 找到了造成阻礙的問題；130 以 Ctrl-C 取消（會通知另一部電腦；再按一次 Ctrl-C 立即結束）。</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>請指定 receive、send、discover、diagnose 或 scan。請參閱 --help。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>允許 %1 (%2) 連線嗎？ [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>無法寫入報告：%1 是資料夾。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>這裡沒有人可以回答：若未使用 --yes，所有要求都會被拒絕。</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>這部電腦正在接收 %1 的資料。</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>這裡沒有人可以回答。以 --yes 啟動即可允許每部電腦連線。</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>傳輸時與 %1 的連線中斷。</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>%1 在傳輸時結束了工作階段。</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>%1 秒內沒有開始收到任何資料。</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>部分設定仍在套用中，未列入報告。</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>來自 %1 的傳輸中途中斷。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>這部電腦正在傳送資料到 %1。</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>與 %1 的連線中斷。</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 結束了工作階段。</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>目前沒有已完成的傳輸可接續。</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%2 秒內找不到 %1。</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%1 在 %2 秒內沒有回應。</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 結束了傳輸。</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>有多部電腦符合 %1：%2。請以位址指定要使用的電腦。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>未知的命令：%1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>另一部電腦沒有結束工作階段：可能有資料尚未送達。</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1 已有 %2 秒沒有回應</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 已恢復回應</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>要傳輸的資料有 %1，但 %3 只有 %2 可用：無法全部放入。</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>%1 尚未回報全部安裝完成，連線就已中斷。</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>全部安裝完成之前，%1 取消了傳輸。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>這部電腦的驗證碼是 %1。正在等候舊電腦。</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>驗證碼 %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>已找到 %1。正在等候它允許這部電腦連線。</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>已拒絕 %1。</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>已拒絕 %1：%2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>已連線到 %1。</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>已中斷與 %1 的連線。</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>正在接收</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>正在傳送</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩餘 %1</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>%1 未搬移：%2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>已暫停。</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>%1 已暫停。</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>已繼續。</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>%1 已繼續。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>%1 已取消。</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>檔案已儲存到：</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>正在掃描 %1%  %2 個應用程式</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>（無法搬移）</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>應用程式：%1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>檔案：%1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>資料夾：%1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>帳戶：%1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>設定：%1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>應用程式和資料夾共 %1。</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>已完成，耗時 %1：%2，平均 %3。</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>已完成，耗時 %1：%2。</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>應用程式：</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>已安裝</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>已傳送</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>設定：</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>已套用</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 正在安裝 %2...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>正在安裝 %1</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>檔案：已送達 %1，失敗 %2，原已存在 %3。</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>正在等候 %1：需要有人在該電腦上按「是」</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>其餘項目只在報告中列出數量。</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>沒有找到造成阻礙的問題。</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>找到造成阻礙的問題：%1 個。</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>您的檔案、應用程式和設定已成功傳輸</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>檔案已儲存到：</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>正在等候更多檔案...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ 完成</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 傳送更多檔案...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>傳送更多檔案...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>收到的檔案</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 個檔案</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>檔案：已送達 %1，已存在且內容相同 %2，已存在但內容不同 %3，失敗或未確認 %4</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>%2 個應用程式中有 %1 個未送達</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>%2 項設定中有 %1 項未送達</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>應用程式和設定已傳送。結果請見 %1 的畫面。</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>可用的裝置</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>找到 %1 部裝置，%2 部在線上</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>正在連線到 %1...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>正在確認驗證碼...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>%1 要求連線...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>連線要求</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>「%1」想要連線到這部電腦。

您要接受嗎？</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>連線遭拒</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>另一部電腦已不再等候</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ 已連線到 %1</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ 連線成功！</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ 連線失敗：%1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>正在掃描直接連線... 0%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>正在掃描直接連線...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>正在掃描直接連線... %1% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>找不到裝置。請確認另一部電腦正在執行 Zandrove</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>正在尋找網路上的裝置...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 重新整理</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>連線到另一部電腦</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>選取裝置或輸入驗證碼</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 兩部電腦必須在同一網路上，並且都正在執行 Zandrove</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>已掃描：0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>請確認已接上網路線</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>您的驗證碼</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>請在另一部電腦上使用此驗證碼</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>或輸入對方的驗證碼</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>對方的驗證碼，第 %1 個字元</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>這是這部電腦自己的位址。</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>這裡只能使用 IPv4 位址，例如 192.168.1.23。</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>位址由四個 0 到 255 的數字組成，例如 192.168.1.23。</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>這不是單一電腦的位址。</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>這既不是電腦的位址，也不是電腦的名稱。</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>另一部電腦的位址或名稱</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>或輸入對方的位址</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>正在尋找 %1...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>找不到名為 %1 的電腦。改用位址或許可以連線。</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 沒有 IPv4 位址。</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>這部電腦的位址：%1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>改為輸入對方的驗證碼</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>改為輸入位址</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>正在等候 %1：需要有人在該電腦上按「是」</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>無法連線到 %1：%2。</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>對方的位址：%1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>另一部電腦也已開啟 Zandrove，並顯示此頁面。</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>兩部電腦都已接上網路線，而且指示燈亮起。</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>兩部電腦位於同一網路，而且都沒有連線到訪客 Wi-Fi 或 VPN。</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>其中一部是舊電腦，另一部是新電腦。</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>兩部電腦的防火牆都允許 Zandrove 通過。</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>尚未找到任何電腦。請依可能性由高到低檢查：</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>找不到另一部電腦嗎？</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>返回裝置清單</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>重新檢查</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>正在檢查這部電腦及其網路，需要幾秒鐘...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>這裡沒有找到造成阻礙的問題。請在另一部電腦上也檢查一次。</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>標有 ✗ 的項目會造成阻礙。</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>另一個程式（可能是另一個 Zandrove）</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>連接埠 %1 已被 %2 佔用，因此其他電腦無法連線到這部電腦。請關閉該程式，然後再試一次。</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>連接埠 %1 已被 %2 佔用，因此這部電腦偵測不到其他電腦。請關閉該程式，然後再試一次。</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>也找到了 %1，但它同樣是舊電腦：請在其中一部選擇新電腦</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>也找到了 %1，但它同樣是新電腦：請在其中一部選擇舊電腦</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試一次</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>有線</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>虛擬</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>%1 has the address %2.</source>
        <translation>%1 的位址是 %2。</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 的位址是 %2，但沒有連線到任何裝置。</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>請接上它的纜線，或使用它連線到網路。</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 的位址是 %2，但無法由此送出廣播：%3。</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>請檢查這部電腦上是否有防火牆或安全性程式阻擋 Zandrove 傳送資料。</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 的位址是 %2，且可由此送出廣播。</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 已連線，但還沒有位址。</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>請稍候一分鐘。如果仍未取得位址，請檢查路由器是否已開啟；若以纜線直接連接，請將此連線設為使用連結本機位址。</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 沒有連線到任何裝置。</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>這部電腦只有自行指派的位址 %1。</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>若以纜線直接連接，這是正常的：請在兩部電腦上選擇纜線模式。若在網路中，請檢查路由器是否已開啟。</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>要傳往 %3 的網路 %2 的資料，改由 VPN %1 送出。</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>在全部搬移完成之前，請先中斷 VPN 連線。</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>要傳往區域網路以外的資料，會由 VPN %1 送出。</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>如果兩部電腦找不到彼此，請中斷 VPN 連線：許多 VPN 會將電腦與區域網路隔開。</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>這部電腦沒有連線到任何網路。</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>請接上纜線，或連線到 Wi-Fi。</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>新電腦</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>舊電腦</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>要傳往該電腦的資料由 VPN %1 送出：請先中斷該 VPN 連線。</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>請在 %1 上執行此診斷：該電腦的連接埠可能已被佔用，或防火牆拒絕連線。</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>請在 %1 的防火牆中允許 Zandrove 通過：TCP 連接埠 %2。</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>已偵測到 %1（%2），其角色為%3，但它拒絕 TCP 連接埠 %4 上的連線。</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>已偵測到 %1（%2），其角色為%3，但無法連線：%4。</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>已偵測到 %1（%2），其角色為%3，但它在 TCP 連接埠 %4 上沒有回應。</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>也找到了 %1，但它同樣是%2。</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>請在其中一部電腦上選擇%1。</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>已偵測到 %1（%2），其角色為%3，而且有回應。</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>在這個網路上找不到名為 %1 的電腦。</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>請改為指定位址；該電腦的連線頁面會顯示其位址。</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 就是這部電腦。</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>請指定另一部電腦的位址。</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 在 TCP 連接埠 %2 上有回應，但在 UDP 連接埠 %3 上偵測不到。</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>請在該電腦上開啟連線頁面，並在兩部電腦的防火牆中開放 UDP 連接埠 %1；或改用位址連線。</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>已找到 %1，但它拒絕 TCP 連接埠 %2 上的連線。</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>請在該電腦上開啟 Zandrove，並進入連線頁面。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>無法連線到 %1：%2。</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>請檢查位址是否正確，以及兩部電腦是否位於同一網路。</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 在 TCP 連接埠 %2 上沒有回應，也偵測不到。</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>請檢查位址是否正確、該電腦是否已開機，以及其防火牆是否允許 Zandrove 通過。</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>這部電腦在 %1 上收不到自己的廣播。</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>請檢查這部電腦上是否有防火牆或安全性程式阻擋 UDP 連接埠 %1 的連入連線。</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>%1 上沒有任何回應，也沒有路由器。</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>如果另一部電腦應該在這個連線上，請檢查纜線的另一端是否已接好，或該電腦的網路是否已開啟。</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>在 %1 秒內沒有偵測到其他電腦。</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>請在另一部電腦上開啟 Zandrove 並進入連線頁面，並讓兩部電腦連線到同一網路。</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>TCP 連接埠 %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>UDP 連接埠 %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 可以使用。</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>%1 由 Zandrove 使用中，這是正常的。</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>%1 已被另一個程式佔用。</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>%1 已被 %2 佔用。</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>請找出是哪個程式並將其關閉，然後重新啟動 Zandrove。</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>請關閉該程式，然後重新啟動 Zandrove。</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1 已開啟，並允許兩個連接埠的連入連線。</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1 已開啟，並阻擋 %2 的連入連線。</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>請設定為允許兩個連接埠的連入連線。</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1 已開啟；是否允許兩個連接埠的連入連線，取決於傳送端，或無法在此判斷的規則。</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>請檢查其規則是否允許 %1 和 %2 的連入連線。</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>沒有系統管理員權限，無法讀取 %1 的狀態。</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1 沒有傳回可讀取的回應。</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1 已關閉。</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>沒有找到可查詢狀態的防火牆。</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>系統將網路 %1 視為公用網路。</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>如果這是您自己的網路，請在網路設定中改為私人。</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>快速存取</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>選取要傳輸的資料夾</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>我的文件</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音樂</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>本機</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>本機磁碟 (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> - 可用 %1，共 %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>檔案在複製期間變小了</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>寫入錯誤</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>收到的檔案</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>無法建立檔案</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>總和檢查碼不符</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>在傳送期間已變更</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>未完整送達</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>開始掃描資料夾...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>找不到檔案：%1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>無法開啟檔案：%1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>不是一般檔案</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>尚未傳送完畢即已取消</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>無法讀取檔案：%1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>在傳送期間已變更</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>可能有影響</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>造成阻礙</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已複製</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>以系統管理員身分執行</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>已完成。請重新檢查。</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>未能成功執行。</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 個檔案，%2</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>設定錯誤</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>無法載入網頁連結。

請聯絡技術支援或重新安裝軟體。</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>無法開啟瀏覽器</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>無法開啟預設瀏覽器。

請自行複製連結並開啟：
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>另一部電腦已有 %1 秒沒有回應</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1 已有 %2 秒沒有回應</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>與 %1 的連線已中斷。</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>與另一部電腦的連線已中斷。</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>返回連線</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>顯示報告</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>下一步 →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>電腦移轉工具</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>輕鬆在電腦之間傳輸檔案、應用程式和設定。</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1。保留一切權利。</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>關於 Zandrove</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>已變更語言</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>語言已變更。

應用程式現在將重新啟動。</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>註冊</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>這份 Zandrove 已註冊。</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>這份 Zandrove 尚未註冊。</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 上一步</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>未送達</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>複製清單</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>儲存報告…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>清單已複製到剪貼簿。</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>儲存報告</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>網頁 (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>報告已儲存。</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>找不到電腦</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>找不到使用此驗證碼的裝置：%1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知的錯誤</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>連線逾時</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>連線遭拒</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>位於 %1 的電腦</translation>
    </message>
</context>
<context>
    <name>Zandrove::PCListItem</name>
    <message>
        <source>Online</source>
        <translation>線上</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>離線</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressCard</name>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>剩餘時間</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>共 %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>步驟 %1，共 %2 步</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>連線已中斷</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>安裝在 %1 % 時停止</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>該位置已有同名資料夾</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>該位置的檔案是唯讀檔案</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>舊電腦</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>新電腦</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>結束時間</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>耗時</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>已搬移</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>未搬移</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>All</source>
        <translation>總計</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>接下來的步驟</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>檔案儲存位置</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>在 %1 上的位置</translation>
    </message>
    <message>
        <source>App</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>應用程式和設定</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>zh-TW</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>%1 報告</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>這次傳輸</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>未送達的檔案</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>原已存在但內容不同的檔案</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>無法寫入報告 %1：%2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>不是一般檔案</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>已存在，內容相同</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>已存在，內容不同</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>%1 個原已存在，內容相同。</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Zandrove 報告</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>舊電腦</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>新電腦</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>來源／傳送端</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>目標／接收端</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>選取這部電腦的角色</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>選擇這部電腦在傳輸中擔任的角色</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>兩部電腦都必須安裝並執行 Zandrove</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>在傳送期間已變更</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 未說明原因</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>已傳送，但 %1 尚未確認送達</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>未搬移：輪到它之前傳輸就已結束</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>已存在</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>已存在，內容相同</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>已存在但內容不同：未搬移舊電腦上的版本</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>磁碟機 %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>%2 個檔案中有 %1 個未送達</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>%2 個檔案中有 %1 個已送達；舊電腦上沒有刪除任何內容</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>傳輸已取消</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>%1 取消了傳輸</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>與 %1 的連線已中斷</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>%1 結束了傳輸</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>傳輸尚未結束</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>傳輸已結束，%1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>傳輸已結束，但並未全部搬移</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>傳輸完成！</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>%2（%1）沒有剩餘空間：%3 個檔案放不下，共 %4</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>已搬移</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>原已存在</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>原已存在但內容不同</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚未得知</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>在處理掉舊電腦之前，請先在 %1 上開啟幾個檔案看看。舊電腦上沒有刪除任何內容。</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>請在 %3（%2）上騰出 %1 的空間，或減少要搬移的內容。</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>有些檔案原已存在於 %1，但內容不同。請比較這兩個版本。若要取得舊電腦上的版本，請將 %1 上的檔案重新命名或移到別處，再搬移同一個資料夾一次。</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>請重新連線兩部電腦，並開始同樣的傳輸：已送達的項目會略過，只搬移缺少的項目。</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>在所有項目都送達之前，請讓舊電腦保持原狀。舊電腦上沒有刪除任何內容。</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[應用程式] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[設定] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>另有 %1 項。</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>有 1 個預定傳送的檔案未送達。檔案名稱請見 %1 的報告。</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>有 %1 個預定傳送的檔案未送達。檔案名稱請見 %2 的報告。</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>請查看清單中的原因。</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>請查看 %1 的報告中的原因。</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>排除原因後，再次開始同樣的傳輸：已送達的項目會略過，只搬移缺少的項目。</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>正在尋找可傳輸的應用程式、檔案和設定...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>正在掃描系統...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>正在掃描您的電腦</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>帳戶</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>掃描完成！</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>找到的項目已可傳輸</translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation>總計：%1</translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation>應用程式 (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>檔案 (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>設定 (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>帳戶與設定</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>總計：0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>選取要傳輸的內容</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>選取所有應用程式</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>使用者帳戶</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>系統設定</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>同名檔案：</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>略過</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>覆寫</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>已有的應用程式：</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>找不到檔案：%1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>%1 未送達的檔案：%2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>已傳送；結果請見 %1 的報告</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>已傳送，但 %1 尚未確認送達</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>匯出失敗</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>無法套用設定</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>在套用前已停止</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>未完整送達</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>在套用期間已停止</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>正在掃描系統設定...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>桌面背景</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>個人化</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>目前的桌面背景圖片</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>正在掃描工作列設定...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>工作列設定</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>工作列的位置、自動隱藏和圖示設定</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>正在掃描檔案總管設定...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>檔案總管設定</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系統</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>顯示隱藏檔案、副檔名、檢視選項</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>正在掃描滑鼠設定...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>滑鼠設定</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>硬體</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>滑鼠速度、按鈕設定、捲動設定</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>正在掃描鍵盤設定...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>鍵盤設定</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>鍵盤的重複速度和延遲</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>正在掃描電源設定...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>電源設定</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>目前電源計劃的設定</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>正在掃描環境變數...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>使用者環境變數</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>使用者定義的環境變數（%1 個變數）</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>正在掃描顯示設定...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>佈景主題與顯示設定</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>深色／淺色模式、透明度、色彩設定</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>正在掃描音效設定...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>音效配置</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>系統音效和通知設定</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>掃描完成</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>準備</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>驗證</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>啟用</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>功能表</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>註冊</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>購買</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>支援</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>網路管理員尚未初始化</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>已開始尋找裝置。驗證碼：%1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>已重新開始廣播。驗證碼：%1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>找不到使用此驗證碼的電腦：%1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>驗證碼無效</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>已連線到 %1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>已中斷連線</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>連線失敗：%1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>連線逾時</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>傳輸已在進行中</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>無法開始傳輸。請檢查連線和選取的項目。</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>已開始傳輸 - 選取了 %1 個項目</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>正在等候接收檔案...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>傳輸已暫停</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>傳輸已繼續</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>傳輸已取消</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>正在重試失敗的項目...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>傳輸完成 - 成功率：%1%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>傳輸失敗：%1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>引擎已重設</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>已可建立新的連線</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>掃描已在進行中</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>未連線到來源電腦</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>開始掃描系統...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>掃描已取消</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>掃描錯誤：%1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>有多部電腦顯示驗證碼 %1：%2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>正在接收資料</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>正在傳送資料</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>正在等候資料...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>正在等候...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>正在接收資料 - %1%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>正在傳送資料 - %1%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>傳輸失敗</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>接收已暫停</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>傳送已暫停</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>取消傳輸</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>您確定要取消傳輸嗎？</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>是，取消</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>繼續傳輸</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>傳送端已取消。正在等候...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>正在傳輸資料</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>目前的檔案</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ 繼續</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ 暫停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 個失敗</translation>
    </message>
    <message>
        <source>received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>已傳送</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>連線已中斷</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>要傳輸的資料有 %1，但 %3 只有 %2 可用：無法全部放入。</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>正在安裝 %1 - %2 %</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1 正在安裝...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>關閉 Zandrove</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>傳輸正在進行中。關閉視窗會取消傳輸。</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>取消並關閉</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>返回選取項目</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>已送達的內容會保留在新電腦上，舊電腦上也不會刪除任何內容。報告會存放在您的文件資料夾中。</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>所有進度都會遺失。已送達的檔案會保留，不會留下不完整的檔案。</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>驗證碼</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>請在另一部電腦上輸入</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>將檔案、應用程式和設定傳輸到您的新電腦</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>網路模式</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi／區域網路（同一網路）</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>纜線模式</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>USB-C 或乙太網路纜線</translation>
    </message>
</context>
</TS>
