<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>ホストが見つかりません</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>ネットワークに到達できません</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>ソケット操作がタイムアウトしました</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>ファイルまたはディレクトリが見つかりません</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>デバイスに空き領域がありません</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>相手側が接続をリセットしました</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>ホストに到達できません</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>ネットワークのリセットにより接続が切断されました</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>ネットワーク操作がタイムアウトしました</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>ネットワークに到達できません</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>アドレスを使用できません</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>リモート ホストが接続を閉じました</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
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
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>ここにスクロール</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>1 ページ左へ</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>1 ページ右へ</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>1 ページ上へ</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>1 ページ下へ</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>右へスクロール</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>フォルダーが見つかりません</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>名前が正しい文字列ではありません</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>フォルダーの内容を一覧表示できません: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>新 PC ではフォルダーの区切りになるバックスラッシュがパスに含まれています</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>選択した別のフォルダーに同じ名前のファイルがあります</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>アクセスできません</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>ユーザー アカウントをスキャンしています...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>Windows のアカウントを列挙しています...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>インストール完了の通知が届く前に、%1 との接続が切れました</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>適用完了の通知が届く前に、%1 との接続が切れました</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>インストール完了の通知が届く前に、%1 が転送をキャンセルしました</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>適用完了の通知が届く前に、%1 が転送をキャンセルしました</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>インストール ファイルをコピーしています...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>AppData のファイルをコピーしています...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>レジストリをインポートしています...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>ショートカットを作成しています...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>インストールが完了しました</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>インストール ファイルをコピーできませんでした</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>中止しました: ファイル %2 個のうち %1 個をコピー</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>レジストリ キーとショートカットがすべてそろう前に中止しました</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>%1 のファイルのうち届かなかったもの: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>コピーできなかったファイル: %2 個中 %1 個 (%3: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>システム アプリ</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>アプリの情報を送信しています...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>ショートカットを送信しています...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>完了処理をしています...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>レジストリをエクスポートしています...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>インストール ファイルを送信しています...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>AppData Local を送信しています...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>AppData Roaming を送信しています...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>ProgramData を送信しています...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>インストール済みのアプリをスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>ユーザーがインストールしたアプリをスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>Program Files をスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>ユーザーのソフトウェア レジストリをスキャンしています...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>スキャンが完了しました</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>これで回答できる要求はありません。</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 はもう接続していません。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>この PC は他の PC を探しているだけです。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>フォルダー %1 がありません。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 はフォルダーではありません。</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>フォルダー %1 を読み取れません。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>アプリ %1 は移行できません。</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>この PC にアプリ %1 はありません。zandrove-cli scan を参照してください。</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>この PC に設定 %1 はありません。zandrove-cli scan を参照してください。</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>この PC には該当する転送対象がありません。zandrove-cli scan を参照してください。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 も見つかりましたが、こちらと同じ旧 PC になっています。どちらか一方で新 PC を選択してください</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 も見つかりましたが、こちらと同じ新 PC になっています。どちらか一方で旧 PC を選択してください</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>別のプログラム</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>ポート %1 は %2 が使用しています。この PC は他の PC を検出できません。そのプログラムを終了してから、もう一度始めてください。</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>ポート %1 は %2 が使用しています。他の PC はこの PC に接続できません。そのプログラムを終了してから、もう一度始めてください。</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>ポート %1 は %2 が使用しています。他の PC からこの PC に問い合わせることはできませんが、この PC から他の PC に問い合わせることはできます。</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>20 秒間探しましたが、%1 は見つかりませんでした。見つかった PC: %2。</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>新 PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>旧 PC</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>20 秒間探しましたが、PC は見つかりませんでした。可能性の高い順に、次の点を確認してください: もう一方の PC で Zandrove が %1 として実行されていること。両方の PC が同じネットワークにあるか、ケーブルでつながっていること。どちらの PC も VPN を使っていないこと。両方のファイアウォールが TCP ポート %2 と UDP ポート %3 の受信を許可していること。zandrove-cli diagnose で原因を調べられます。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 は 1 から %2 までの秒数ではありません。</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode は network または cable です。%1 は使えません。</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role は old または new です。%1 は使えません。</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to には確認コード、名前、またはアドレスが必要です。</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder にはフォルダーが必要です。</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>新 PC。画面に表示された 4 桁の数字、名前、またはアドレスを指定します。</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>移行するフォルダー。複数回指定できます。</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>接続を求めるすべての PC を、確認せずに許可します。</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>最初の転送の後で終了します。</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>S 秒以内に何も届き始めなければ、終了コード 3 で終了します。待機を始めるたびに数え直します。実行中の転送が打ち切られることはありません。</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>この PC の役割。旧 PC には新 PC が、新 PC には旧 PC が見えます。</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>N 秒間探します。指定しなければ Ctrl-C まで続けます。</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>PC どうしが互いを見つける方法。ブロードキャスト (既定)、または直接つないだケーブルです。ケーブルの場合は、この PC の前後のアドレスも試します。</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>標準入力のコマンドに従います (1 行に 1 つ): yes、no (要求への回答)、pause、resume、cancel、end。</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>標準入力のコマンドに従います (1 行に 1 つ): pause、resume、cancel、again [DIR] (同じ接続でもう一度転送)、end。この場合、転送後も end または標準入力の終わりまで接続を保ちます。</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>スクリプト用に、1 行に 1 つの JSON オブジェクトを出力します。</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>プログラムのログを標準エラーに出力します。</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>新 PC になります。確認コードを表示し、旧 PC を待ち、送られたものを受信します。</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>ネットワークに現れた PC と消えた PC を一覧表示します。</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>この PC から移行できるもの (アプリ、フォルダー、アカウント、設定) を一覧表示します。</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>この説明を表示します。コマンドの後では、そのコマンドの説明を表示します。</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>プログラムのバージョンを表示します。</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>不明なオプション %1。--help を参照してください。</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 に値は指定できません。</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 には値が必要です。</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send では、--to で新 PC の確認コード、名前、またはアドレスを指定してください。</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover には --role old または --role new が必要です。</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>余分な引数 %1。--help を参照してください。</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>不明なコマンド %1。--help を参照してください。</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>移行するアプリ。scan が表示する名前のとおりに指定します。複数回指定できます。</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>移行できるすべてのアプリを移行します。</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>移行する設定。scan が表示する ID で指定します。複数回指定できます。</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>この PC のすべての設定を移行します。</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>S 秒以内に新 PC が見つからないか、新 PC がこの PC を許可しなければ、終了コード 3 で終了します。探し始めてから数えます。転送そのものが打ち切られることはありません。</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>旧 PC になります。新 PC を探し、許可を待ち、フォルダー、アプリ、設定を送信します。</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli は、同じネットワーク上の旧 PC から新 PC へフォルダー、アプリ、設定を移行します。</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send には移行するもの (--folder、--app、--setting のいずれか) が必要です。</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>転送ごとにレポートを FILE に書き込み、前のレポートと置き換えます。読むためのページになり、名前が .json で終わる場合は JSON になります。</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>追加で接続を試す PC のアドレスまたはホスト名。</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>この PC の役割。検出した PC の役割と照らし合わせます。</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>N 秒間、他の PC を待ち受けます。指定しなければ 5 秒です。</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>もう一方の PC が見つからない原因を調べます。アダプター、ポート、ファイアウォール、VPN と、検出された PC や応答する PC を確認します。何も変更しません。</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>終了コード: 0 すべて移行または一覧表示した、1 接続または実行が失敗したか拒否された、2 使い方の誤り、3 タイムアウト、4 終了したが、失敗したものまたは既にあったものがある、または diagnose が妨げになっているものを見つけた、130 Ctrl-C でキャンセルした (もう一方の PC に通知します。もう一度 Ctrl-C を押すとすぐに終了します)。</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>receive、send、discover、diagnose、scan のいずれかを指定してください。--help を参照してください。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>%1 (%2) の接続を許可しますか？ [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>レポートを書き込めません: %1 はフォルダーです。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>ここでは確認に答えられる人がいません。--yes がなければ、すべての要求を拒否します。</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>この PC は %1 から受信中です。</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>ここでは確認に答えられる人がいません。すべての PC を許可するには --yes を付けて起動してください。</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>転送中に %1 との接続が切れました。</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>転送中に %1 がセッションを終了しました。</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>%1 秒以内に何も届き始めませんでした。</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>一部の設定はまだ適用中のため、レポートに含まれていません。</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>%1 からの転送が途中で切れました。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>この PC は %1 に送信中です。</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>%1 との接続が切れました。</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 がセッションを終了しました。</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>続ける元になる完了済みの転送がありません。</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%2 秒以内に %1 が見つかりませんでした。</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%2 秒以内に %1 から応答がありませんでした。</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 が転送を終了しました。</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>%1 に当てはまる PC が複数あります: %2。目的の PC をアドレスで指定してください。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>不明なコマンド: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>もう一方の PC がセッションを終了しませんでした。一部が届いていない可能性があります。</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1 から %2 秒間応答がありません</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 が再び応答しています</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>転送するデータは %1 ですが、%3 の空き領域は %2 しかないため、すべては収まりません。</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>すべてのインストール完了の通知が届く前に、%1 との接続が切れました。</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>すべてのインストールが終わる前に、%1 が転送をキャンセルしました。</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>この PC の確認コードは %1 です。旧 PC を待っています。</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>確認コード %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>%1 が見つかりました。接続の許可を待っています。</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>%1 を拒否しました。</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>%1 を拒否しました: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>%1 に接続しました。</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>%1 から切断されました。</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>受信中</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>送信中</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>%1 は移行できませんでした: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>一時停止しました。</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>%1 が一時停止しました。</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>再開しました。</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>%1 が再開しました。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>%1 がキャンセルしました。</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>ファイルの保存先:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>スキャン中 %1%  アプリ %2 個</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(移行できません)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>アプリ: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>フォルダー: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>アカウント: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>設定: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>アプリとフォルダーの合計は %1 です。</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>%1 で完了: %2、平均 %3。</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>%1 で完了: %2。</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>アプリ:</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>インストール済み</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>送信済み</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>設定:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>適用済み</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 が %2 をインストールしています...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 をインストール中</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>ファイル: 到着 %1、失敗 %2、既存 %3。</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>%1 を待っています: 相手の PC で「はい」を押してください</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>これ以降のものは、レポートに件数のみ記載されます。</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>妨げになっているものは見つかりませんでした。</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>妨げになっているもの: %1 件。</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>ファイル、アプリ、設定が正常に転送されました</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>ファイルの保存先:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>追加のファイルを待っています...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ 完了</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 さらにファイルを送信...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>さらにファイルを送信...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>受信したファイル</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>ファイル: 到着 %1、既存で内容が同じ %2、既存で内容が異なる %3、失敗または未確認 %4</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>アプリ %2 個のうち %1 個が届いていません</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>設定 %2 件のうち %1 件が届いていません</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>アプリと設定を送信しました。結果は %1 の画面で確認できます。</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>利用できるデバイス</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>%1 台のデバイスが見つかりました (オンライン %2 台)</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>%1 に接続しています...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>コードを確認しています...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>%1 からの接続要求...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>接続要求</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>「%1」がこの PC への接続を求めています。

許可しますか？</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>もう一方の PC は待機を終了しました</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ %1 に接続しました</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ 正常に接続しました</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ 接続に失敗しました: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>直接接続をスキャンしています... 0%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>直接接続をスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>直接接続をスキャンしています... %1% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>デバイスが見つかりません。もう一方の PC で Zandrove が実行されていることを確認してください</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>ネットワーク上のデバイスを探しています...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 最新の情報に更新</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>別の PC に接続</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>デバイスを選択するか、確認コードを入力してください</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 両方の PC を同じネットワークに接続し、Zandrove を実行してください</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>最新の情報に更新</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>スキャン済み: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>ネットワーク ケーブルが接続されていることを確認してください</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>この PC の確認コード</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>このコードをもう一方の PC で使います</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>または相手の確認コードを入力</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>相手の確認コード、%1 文字目</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>これはこの PC のアドレスです。</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>ここで使えるのは、192.168.1.23 のような IPv4 アドレスだけです。</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>アドレスは、192.168.1.23 のように 0 から 255 までの 4 つの数字でできています。</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>これは 1 台の PC を示すアドレスではありません。</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>これは PC のアドレスでも名前でもありません。</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>もう一方の PC のアドレスまたは名前</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>または相手のアドレスを入力</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>%1 を探しています...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>%1 という名前の PC は見つかりませんでした。アドレスを入力すると接続できることがあります。</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 には IPv4 アドレスがありません。</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>この PC のアドレス: %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>代わりに相手の確認コードを入力</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>代わりにアドレスを入力</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>%1 を待っています: 相手の PC で「はい」を押してください</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>%1 に接続できません: %2。</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>相手のアドレス: %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>もう一方の PC でも Zandrove を開き、このページを表示している。</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>ネットワーク ケーブルが両方の PC に差し込まれ、ランプが点灯している。</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>両方とも同じネットワークにあり、どちらもゲスト Wi-Fi や VPN に接続していない。</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>一方が旧 PC、もう一方が新 PC になっている。</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>両方の PC のファイアウォールが Zandrove の通信を許可している。</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>まだ PC が見つかりません。可能性の高い順に、次の点を確認してください:</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>もう一方の PC が見つかりませんか？</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>デバイス一覧に戻る</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>もう一度確認</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>この PC とネットワークを調べています。数秒かかります...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>この PC には、妨げになっているものは見つかりませんでした。もう一方の PC でも確認してください。</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>✗ の付いたものが妨げになっています。</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>別のプログラム (もう 1 つの Zandrove の可能性があります)</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>ポート %1 は %2 が使用しているため、他の PC はこの PC に接続できません。そのプログラムを終了してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>ポート %1 は %2 が使用しているため、この PC は他の PC を検出できません。そのプログラムを終了してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 も見つかりましたが、こちらと同じ旧 PC になっています。どちらか一方で新 PC を選択してください</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 も見つかりましたが、こちらと同じ新 PC になっています。どちらか一方で旧 PC を選択してください</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
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
        <translation>仮想</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>%1 has the address %2.</source>
        <translation>%1 のアドレスは %2 です。</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 のアドレスは %2 ですが、どこにも接続されていません。</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>ケーブルを差し込むか、このアダプターでネットワークに接続してください。</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 のアドレスは %2 ですが、ここからブロードキャストを送信できません: %3。</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>この PC に、Zandrove の送信を妨げているファイアウォールやセキュリティ ソフトがないか確認してください。</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 のアドレスは %2 で、ここからブロードキャストを送信できます。</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 は接続されていますが、まだアドレスがありません。</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>1 分ほどお待ちください。アドレスが割り当てられない場合は、ルーターの電源が入っているか確認してください。直接つないだケーブルの場合は、この接続をリンクローカル アドレスに設定してください。</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 はどこにも接続されていません。</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>この PC には、自分で割り当てたアドレス %1 しかありません。</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>直接つないだケーブルであれば、これで正常です。両方の PC でケーブル モードを選択してください。ネットワークの場合は、ルーターの電源が入っているか確認してください。</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>%3 のネットワーク %2 宛ての通信が、VPN %1 を通っています。</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>すべての移行が終わるまで VPN を切断してください。</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>ローカル ネットワーク以外への通信は、VPN %1 を通っています。</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>PC どうしが互いを見つけられない場合は、VPN を切断してください。多くの VPN は、PC をローカル ネットワークから切り離します。</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>この PC はネットワークに接続されていません。</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>ケーブルを差し込むか、Wi-Fi に接続してください。</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>新 PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>旧 PC</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>この PC 宛ての通信が VPN %1 を通っています。まず VPN を切断してください。</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>%1 でこの診断を実行してください。ポートが別のプログラムに使われているか、ファイアウォールが接続を拒否している可能性があります。</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>%1 のファイアウォールで Zandrove を許可してください: TCP ポート %2。</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1 (%2) は %3 として検出されましたが、TCP ポート %4 への接続を拒否しています。</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1 (%2) は %3 として検出されましたが、接続できません: %4。</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1 (%2) は %3 として検出されましたが、TCP ポート %4 で応答しません。</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>%1 も見つかりましたが、こちらと同じ %2 になっています。</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>どちらか一方で %1 を選択してください。</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1 (%2) は %3 として検出され、応答しています。</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>このネットワークでは、%1 という名前の PC が見つかりません。</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>代わりにアドレスを指定してください。アドレスは相手の PC の接続ページに表示されます。</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 はこの PC 自身です。</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>もう一方の PC のアドレスを指定してください。</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 は TCP ポート %2 で応答しますが、UDP ポート %3 では検出されません。</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>相手の PC で接続ページを開き、両方の PC のファイアウォールで UDP ポート %1 を許可してください。または、アドレスを使って接続してください。</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1 は見つかりましたが、TCP ポート %2 への接続を拒否しています。</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>相手の PC で Zandrove を開き、接続ページまで進んでください。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>%1 に接続できません: %2。</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>アドレスが正しいか、両方の PC が同じネットワークにあるか確認してください。</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 は TCP ポート %2 で応答せず、検出もされません。</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>アドレスが正しいか、相手の PC の電源が入っているか、そのファイアウォールが Zandrove を許可しているか確認してください。</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>この PC は、%1 で自分のブロードキャストを受信できません。</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>この PC に、UDP ポート %1 の受信を妨げているファイアウォールやセキュリティ ソフトがないか確認してください。</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>%1 では応答がなく、ルーターもありません。</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>もう一方の PC がこの先にあるはずなら、相手側のケーブルがつながっているか、ネットワークがオンになっているか確認してください。</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>%1 秒以内に他の PC は検出されませんでした。</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>もう一方の PC で Zandrove を開いて接続ページまで進み、両方の PC を同じネットワークに接続してください。</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>TCP ポート %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>UDP ポート %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 は空いています。</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>%1 は Zandrove が使用しています。これは正常です。</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>%1 は別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>%1 は %2 が使用しています。</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>どのプログラムかを調べて終了し、Zandrove を起動し直してください。</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>そのプログラムを終了し、Zandrove を起動し直してください。</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 と %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1 はオンで、両方のポートの受信を許可しています。</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1 はオンで、%2 の受信を遮断しています。</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>両方のポートの受信を許可するように設定してください。</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1 はオンです。両方のポートの受信を許可するかどうかは、送信元や、ここでは判断できない規則によって変わります。</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>%1 と %2 の受信が規則で許可されているか確認してください。</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>管理者権限がないため、%1 の状態を読み取れませんでした。</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1 から読み取れる応答がありませんでした。</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1 はオフです。</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>状態を確認できるファイアウォールは見つかりませんでした。</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>システムはネットワーク %1 をパブリックとして扱っています。</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>ご自身のネットワークであれば、ネットワーク設定でプライベートに変更してください。</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>クイック アクセス</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>転送するフォルダーを選択</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>マイ ドキュメント</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>ピクチャ</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>ミュージック</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>PC</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>ローカル ディスク (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> - 空き領域 %1/%2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>コピー中にファイルが小さくなりました</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>書き込みエラー</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>受信したファイル</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>ファイルを作成できませんでした</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>チェックサムが一致しません</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>送信中に変更されました</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>完全には届きませんでした</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>フォルダーのスキャンを開始しています...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>ファイルが見つかりません: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>ファイルを開けません: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>送信が終わる前にキャンセルされました</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>ファイルを読み取れません: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>送信中に変更されました</translation>
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
        <translation>影響する可能性あり</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>妨げになっている</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>管理者として実行</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>完了しました。もう一度確認してください。</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>実行できませんでした。</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 個のファイル、%2</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>構成エラー</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>ページのリンクを読み込めませんでした。

テクニカル サポートに問い合わせるか、ソフトウェアを再インストールしてください。</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>ブラウザーを開けません</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>既定のブラウザーを開けませんでした。

次のリンクをコピーして開いてください:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>もう一方の PC から %1 秒間応答がありません</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1 から %2 秒間応答がありません</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>%1 との接続が切れました。</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>もう一方の PC との接続が切れました。</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>接続に戻る</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>レポートを表示</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>次へ →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>PC 移行ツール</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>ファイル、アプリ、設定を PC 間で簡単に転送できます。</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. All rights reserved.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>Zandrove について</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>言語の変更</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>言語を変更しました。

アプリを再起動します。</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>登録</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>この Zandrove は登録されています。</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>この Zandrove は登録されていません。</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 戻る</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>届かなかったもの</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>一覧をコピー</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>レポートを保存…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>一覧をクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>レポートを保存</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>Web ページ (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>レポートを保存しました。</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>PC が見つかりません</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>次の確認コードのデバイスが見つかりません: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>%1 の PC</translation>
    </message>
</context>
<context>
    <name>Zandrove::PCListItem</name>
    <message>
        <source>Online</source>
        <translation>オンライン</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
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
        <translation>残り時間</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>/ %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>ステップ %1/%2</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>接続が切れました</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>インストールは %1 % で中止されました</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>同じ名前のフォルダーがその場所にあります</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>その場所にあるファイルは読み取り専用です</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>旧 PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>新 PC</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>所要時間</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>移行済み</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>未移行</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>アプリ</translation>
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
        <translation>合計</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>次にすること</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>ファイルの保存先</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>%1 での場所</translation>
    </message>
    <message>
        <source>App</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>アプリと設定</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>ja</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>%1 レポート</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>今回の転送</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>届かなかったファイル</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>内容の異なるものが既にあったファイル</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>レポート %1 を書き込めません: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>既存 (内容が同じ)</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>既存 (内容が異なる)</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>%1 個は既にあり、内容も同じでした。</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Zandrove レポート</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>旧 PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>新 PC</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>転送元 / 送信側</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>転送先 / 受信側</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>この PC の役割を選択</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>転送におけるこのコンピューターの役割を選択してください</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>どちらのコンピューターでも Zandrove をインストールして実行してください</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>送信中に変更されました</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 から理由の通知がありません</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>送信しましたが、%1 から到着の確認がありません</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>未移行: 順番が来る前に転送が終わりました</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>既にあります</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>既に同じものがあります</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>既に内容の異なるものがあります: 旧 PC のものは移行していません</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>ドライブ %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>ファイル %2 個のうち %1 個が届いていません</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>ファイル %2 個のうち %1 個が届きました。旧 PC からは何も削除されていません</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>転送をキャンセルしました</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>%1 が転送をキャンセルしました</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>%1 との接続が切れました</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>%1 が転送を終了しました</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>転送は終わっていません</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>転送は終了しましたが、%1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>転送は終了しましたが、移行されなかったものがあります</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>転送が完了しました</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>%2 (%1) に空き領域がありません: ファイル %3 個、%4 が収まりませんでした</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>移行済み</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>既にありました</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>既に内容の異なるものがありました</translation>
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
        <translation>まだ不明</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>旧 PC を手放す前に、%1 でファイルをいくつか開いて確認してください。旧 PC からは何も削除されていません。</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>%3 (%2) に %1 の空き領域を作るか、移行するものを減らしてください。</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>%1 には、内容の異なるファイルが以前からありました。2 つのバージョンを見比べてください。旧 PC のものが必要な場合は、%1 にあるファイルの名前を変更するか別の場所に移してから、同じフォルダーをもう一度移行してください。</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>2 台の PC をもう一度接続し、同じ転送を開始してください。届いているものはスキップされ、足りないものだけが移行されます。</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>足りないものがなくなるまで、旧 PC はそのままにしておいてください。旧 PC からは何も削除されていません。</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[アプリ] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[設定] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>ほか %1 件。</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>送信予定のファイル 1 個が届きませんでした。名前は %1 のレポートにあります。</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>送信予定のファイル %1 個が届きませんでした。名前は %2 のレポートにあります。</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>一覧で理由を確認してください。</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>%1 のレポートで理由を確認してください。</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>原因を取り除いたら、同じ転送をもう一度開始してください。届いているものはスキップされ、足りないものだけが移行されます。</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>転送できるアプリ、ファイル、設定を探しています...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>システムをスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>PC をスキャンしています</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>スキャンが完了しました</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>見つかった項目を転送できます</translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation>合計: %1</translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation>アプリ (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>ファイル (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>設定 (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>アカウントと設定</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>合計: 0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>転送する内容を選択</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>すべてのアプリを選択</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>ユーザー アカウント</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>システム設定</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>同名のファイル:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>上書き</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>既存のアプリ:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>ファイルが見つかりません: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>%1 のファイルのうち届かなかったもの: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>送信しました。結果は %1 のレポートにあります</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>送信しましたが、%1 から到着の確認がありません</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>エクスポートに失敗しました</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>設定を適用できませんでした</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>適用する前に中止されました</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>完全には届きませんでした</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>適用中に中止されました</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>システム設定をスキャンしています...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>デスクトップの背景</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>個人用設定</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>現在のデスクトップの背景画像</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>タスク バーの設定をスキャンしています...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>タスク バーの設定</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>タスク バーの位置、自動的に隠す設定、アイコンの設定</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>エクスプローラーの設定をスキャンしています...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>エクスプローラーの設定</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>隠しファイルと拡張子の表示、表示オプション</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>マウスの設定をスキャンしています...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>マウスの設定</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>ハードウェア</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>マウスの速度、ボタンの構成、スクロールの設定</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>キーボードの設定をスキャンしています...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>キーボードの設定</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>キーボードの表示の間隔と表示までの待ち時間</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>電源の設定をスキャンしています...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>電源の設定</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>現在の電源プランの設定</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>環境変数をスキャンしています...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>ユーザー環境変数</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>ユーザー定義の環境変数 (%1 個)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>ディスプレイの設定をスキャンしています...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>テーマとディスプレイの設定</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>ダーク/ライト モード、透明効果、色の設定</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>サウンドの設定をスキャンしています...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>サウンド設定</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>システムのサウンドと通知の設定</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>スキャンが完了しました</translation>
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
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>検証</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>ライセンス認証</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
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
        <translation>閉じる</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>登録</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>購入</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元のサイズに戻す</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>ネットワーク マネージャーが初期化されていません</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>デバイスの検索を開始しました。確認コード: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>ブロードキャストを再開しました。確認コード: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>次の確認コードの PC が見つかりません: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>確認コードが無効です</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1 に接続しました</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>切断されました</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>接続に失敗しました: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>転送は既に実行中です</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>転送を開始できません。接続と選択内容を確認してください。</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>転送を開始しました - %1 個の項目を選択</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>ファイルの受信を待っています...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>転送を一時停止しました</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>転送を再開しました</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>転送をキャンセルしました</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>失敗した項目を再試行しています...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>転送が完了しました - 成功率: %1%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>転送に失敗しました: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>エンジンをリセットしました</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>新しい接続の準備ができました</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>スキャンは既に実行中です</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>転送元の PC に接続していません</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>システムのスキャンを開始しています...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>スキャンをキャンセルしました</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>スキャン エラー: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>確認コード %1 を表示している PC が複数あります: %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>データを受信中</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>データを送信中</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>データを待っています...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>待機中...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>データを受信中 - %1%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>データを送信中 - %1%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>転送に失敗しました</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>受信を一時停止中</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>送信を一時停止中</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>転送のキャンセル</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>転送をキャンセルしますか？</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>はい、キャンセル</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>転送を続ける</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>送信側がキャンセルしました。待機中...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>データを転送中</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>現在のファイル</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ 再開</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ 一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 件失敗</translation>
    </message>
    <message>
        <source>received</source>
        <translation>受信済み</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>送信済み</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>接続が切れました</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>転送するデータは %1 ですが、%3 の空き領域は %2 しかないため、すべては収まりません。</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>%1 をインストール中 - %2 %</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1 がインストールしています...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Zandrove を閉じる</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>転送を実行中です。ウィンドウを閉じると転送はキャンセルされます。</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>キャンセルして閉じる</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>選択に戻る</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>届いたものは新 PC に残り、旧 PC からは何も削除されません。レポートがドキュメント フォルダーに保存されます。</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>これまでの進行状況は失われます。届いたファイルは残り、不完全なファイルは残りません。</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>確認コード</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>もう一方の PC で入力してください</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>ファイル、アプリ、設定を新しい PC に転送します</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>ネットワーク モード</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi / LAN (同じネットワーク)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>ケーブル モード</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>USB-C またはイーサネット ケーブル</translation>
    </message>
</context>
</TS>
