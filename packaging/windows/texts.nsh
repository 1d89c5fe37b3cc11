; What the installer says beside the texts that it has by itself. It speaks the language of Windows; in one that is not
; here, that of the same family, else English, which is the first.

!macro texts language running windows10 program shortcutName shortcut firewallName firewall
    !insertmacro MUI_LANGUAGE ${language}
    LangString TextRunning ${LANG_${language}} "${running}"
    LangString TextWindows10 ${LANG_${language}} "${windows10}"
    LangString TextProgram ${LANG_${language}} "${program}"
    LangString NameShortcut ${LANG_${language}} "${shortcutName}"
    LangString TextShortcut ${LANG_${language}} "${shortcut}"
    LangString NameFirewall ${LANG_${language}} "${firewallName}"
    LangString TextFirewall ${LANG_${language}} "${firewall} (TCP ${TCP_PORT}, UDP ${UDP_PORT})"
!macroend

!insertmacro texts English \
    "Zandrove is running. Close it, then choose Retry." \
    "Zandrove needs Windows 10 or later." \
    "The program with everything that it needs." \
    "Start menu entry" \
    "Moves your files, applications and settings to a new PC" \
    "Firewall rules" \
    "Lets the other PC on your network reach Zandrove"
!insertmacro texts TradChinese \
    "Zandrove 正在執行。請將它關閉，然後選擇「重試」。" \
    "Zandrove 需要 Windows 10 或更新版本。" \
    "程式及其所需的一切。" \
    "開始功能表項目" \
    "將您的檔案、應用程式和設定移轉到新電腦" \
    "防火牆規則" \
    "讓您網路上的另一部電腦能連線至 Zandrove"
!insertmacro texts French \
    "Zandrove est en cours d’exécution. Fermez-le, puis choisissez Réessayer." \
    "Zandrove nécessite Windows 10 ou une version ultérieure." \
    "Le programme et tout ce dont il a besoin." \
    "Entrée du menu Démarrer" \
    "Transfère vos fichiers, applications et paramètres vers un nouveau PC" \
    "Règles de pare-feu" \
    "Permet à l’autre PC de votre réseau de joindre Zandrove"
!insertmacro texts German \
    "Zandrove wird gerade ausgeführt. Schließen Sie es, und wählen Sie dann „Wiederholen“." \
    "Zandrove benötigt Windows 10 oder höher." \
    "Das Programm mit allem, was es braucht." \
    "Eintrag im Startmenü" \
    "Überträgt Ihre Dateien, Anwendungen und Einstellungen auf einen neuen PC" \
    "Firewallregeln" \
    "Lässt den anderen PC in Ihrem Netzwerk Zandrove erreichen"
!insertmacro texts Japanese \
    "Zandrove が実行中です。終了してから [再試行] を選択してください。" \
    "Zandrove には Windows 10 以降が必要です。" \
    "プログラム本体と、その動作に必要なすべてのファイルです。" \
    "スタート メニューの項目" \
    "ファイル、アプリケーション、設定を新しい PC へ移行します" \
    "ファイアウォールの規則" \
    "ネットワーク上のもう一方の PC が Zandrove に接続できるようにします"
!insertmacro texts Spanish \
    "Zandrove se está ejecutando. Ciérrelo y, a continuación, elija Reintentar." \
    "Zandrove necesita Windows 10 o posterior." \
    "El programa con todo lo que necesita." \
    "Entrada en el menú Inicio" \
    "Traslada sus archivos, aplicaciones y configuración a un PC nuevo" \
    "Reglas de firewall" \
    "Permite que el otro PC de su red se comunique con Zandrove"
!insertmacro texts Korean \
    "Zandrove가 실행 중입니다. 닫은 다음 [다시 시도]를 선택하십시오." \
    "Zandrove를 사용하려면 Windows 10 이상이 필요합니다." \
    "프로그램과 프로그램에 필요한 모든 파일입니다." \
    "시작 메뉴 항목" \
    "파일, 애플리케이션, 설정을 새 PC로 옮깁니다" \
    "방화벽 규칙" \
    "네트워크의 다른 PC가 Zandrove에 연결할 수 있게 합니다"
!insertmacro texts Dutch \
    "Zandrove is actief. Sluit het en kies daarna Opnieuw." \
    "Zandrove vereist Windows 10 of hoger." \
    "Het programma met alles wat het nodig heeft." \
    "Vermelding in het menu Start" \
    "Verplaatst uw bestanden, toepassingen en instellingen naar een nieuwe pc" \
    "Firewallregels" \
    "Zorgt dat de andere pc in uw netwerk Zandrove kan bereiken"
!insertmacro texts Portuguese \
    "O Zandrove está em execução. Feche-o e, em seguida, escolha Repetir." \
    "O Zandrove requer o Windows 10 ou posterior." \
    "O programa com tudo o que é necessário." \
    "Entrada no menu Iniciar" \
    "Move os seus ficheiros, aplicações e definições para um novo PC" \
    "Regras da firewall" \
    "Permite que o outro PC da sua rede contacte o Zandrove"
!insertmacro texts Italian \
    "Zandrove è in esecuzione. Chiuderlo, quindi scegliere Riprova." \
    "Zandrove richiede Windows 10 o versioni successive." \
    "Il programma con tutto ciò che gli serve." \
    "Voce nel menu Start" \
    "Trasferisce file, applicazioni e impostazioni a un nuovo PC" \
    "Regole del firewall" \
    "Consente all’altro PC della rete di raggiungere Zandrove"
