<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>연결이 거부되었습니다</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>연결 시간이 초과되었습니다</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>호스트를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>네트워크에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>소켓 작업 시간이 초과되었습니다</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>파일 또는 디렉터리가 없습니다</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>장치에 남은 공간이 없습니다</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>액세스가 거부되었습니다</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>열려 있는 파일이 너무 많습니다</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>알 수 없는 오류</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>연결이 거부되었습니다</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>상대방이 연결을 다시 설정했습니다</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>연결 시간이 초과되었습니다</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>호스트에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>네트워크가 다시 설정되어 연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>네트워크 작업 시간이 초과되었습니다</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>네트워크에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>액세스가 거부되었습니다</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>주소를 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>원격 호스트가 연결을 닫았습니다</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>알 수 없는 오류</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>여기로 스크롤</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>왼쪽 끝</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>오른쪽 끝</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>맨 위</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>맨 아래</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>한 페이지 왼쪽으로</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>한 페이지 오른쪽으로</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>한 페이지 위로</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>한 페이지 아래로</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>왼쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>오른쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>위로 스크롤</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>아래로 스크롤</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>폴더를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>이름이 올바른 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>폴더의 내용을 나열할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>새 PC에서 폴더를 구분하는 백슬래시가 경로에 들어 있습니다</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>선택한 다른 폴더에 이름이 같은 파일이 있습니다</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>접근할 수 없음</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>사용자 계정을 검색하는 중...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>Windows 계정을 열거하는 중...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>설치되었다는 알림이 오기 전에 %1과(와)의 연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>적용되었다는 알림이 오기 전에 %1과(와)의 연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>설치되었다는 알림이 오기 전에 %1에서 전송을 취소했습니다</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>적용되었다는 알림이 오기 전에 %1에서 전송을 취소했습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>설치 파일을 복사하는 중...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>AppData 파일을 복사하는 중...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>레지스트리를 가져오는 중...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>바로 가기를 만드는 중...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>설치 완료</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>설치 파일을 복사하지 못했습니다</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>중지됨: 파일 %2개 중 %1개 복사</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>레지스트리 키와 바로 가기를 모두 만들기 전에 중지되었습니다</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>%1의 파일 중 도착하지 않은 것: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>복사하지 못한 파일: %2개 중 %1개(%3: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>시스템 앱</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>앱 정보를 보내는 중...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>바로 가기를 보내는 중...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>완료하는 중...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>레지스트리를 내보내는 중...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>설치 파일을 보내는 중...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>AppData Local을 보내는 중...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>AppData Roaming을 보내는 중...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>ProgramData를 보내는 중...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>설치된 앱을 검색하는 중...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>사용자가 설치한 앱을 검색하는 중...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>Program Files를 검색하는 중...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>사용자 소프트웨어 레지스트리를 검색하는 중...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>검색 완료</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>이것으로 응답할 수 있는 요청이 없습니다.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>연결을 요청한 PC가 더 이상 없습니다: %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>이 PC는 다른 PC를 찾고 있을 뿐입니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>%1 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1은(는) 폴더가 아닙니다.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>%1 폴더를 읽을 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>%1 앱은 옮길 수 없습니다.</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>이 PC에 %1 앱이 없습니다. zandrove-cli scan을 참조하십시오.</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>이 PC에 %1 설정이 없습니다. zandrove-cli scan을 참조하십시오.</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>이 PC에는 그중 전송할 것이 없습니다. zandrove-cli scan을 참조하십시오.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1도 있지만 똑같이 이전 PC로 되어 있습니다. 둘 중 하나에서 새 PC를 선택하십시오</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1도 있지만 똑같이 새 PC로 되어 있습니다. 둘 중 하나에서 이전 PC를 선택하십시오</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>다른 프로그램</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>%2에서 포트 %1을(를) 사용 중이어서 이 PC가 다른 PC를 감지하지 못합니다. 그 프로그램을 종료한 다음 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>%2에서 포트 %1을(를) 사용 중이어서 다른 PC가 이 PC에 연결할 수 없습니다. 그 프로그램을 종료한 다음 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>%2에서 포트 %1을(를) 사용 중이어서 다른 PC가 이 PC에 요청할 수 없습니다. 이 PC에서 다른 PC에 요청할 수는 있습니다.</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>20초 동안 %1을(를) 찾지 못했습니다. 찾은 PC: %2.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>새 PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>이전 PC</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>20초 동안 PC를 찾지 못했습니다. 가능성이 큰 것부터 다음을 확인하십시오: 다른 PC에서 Zandrove가 %1(으)로 실행 중인지, 두 PC가 같은 네트워크에 있거나 케이블로 연결되어 있는지, 두 PC 모두 VPN을 사용하지 않는지, 두 PC의 방화벽이 TCP 포트 %2과(와) UDP 포트 %3의 수신을 허용하는지 확인하십시오. zandrove-cli diagnose로 원인을 찾을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>초는 1에서 %2 사이의 숫자여야 합니다. 잘못된 값: %1.</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode에는 network 또는 cable만 쓸 수 있습니다. 잘못된 값: %1.</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role에는 old 또는 new만 쓸 수 있습니다. 잘못된 값: %1.</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to에는 확인 코드, 이름 또는 주소가 필요합니다.</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder에는 폴더가 필요합니다.</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>새 PC. 화면에 표시된 네 자리 숫자, 이름 또는 주소를 지정합니다.</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>옮길 폴더. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>연결을 요청하는 모든 PC를 묻지 않고 허용합니다.</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>첫 번째 전송 후 종료합니다.</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>S초 안에 아무것도 도착하기 시작하지 않으면 종료 코드 3으로 종료합니다. 대기를 시작할 때마다 다시 셉니다. 진행 중인 전송은 중단되지 않습니다.</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>이 PC의 역할. 이전 PC에는 새 PC가 보이고, 새 PC에는 이전 PC가 보입니다.</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>N초 동안 찾습니다. 지정하지 않으면 Ctrl-C를 누를 때까지 찾습니다.</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>PC가 서로를 찾는 방법. 브로드캐스트(기본값) 또는 직접 연결한 케이블입니다. 케이블에서는 이 PC의 주소 앞뒤에 있는 주소도 시도합니다.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>표준 입력의 명령을 한 줄에 하나씩 따릅니다. yes, no(요청에 응답), pause, resume, cancel, end.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>표준 입력의 명령을 한 줄에 하나씩 따릅니다. pause, resume, cancel, again [DIR](같은 연결로 다시 전송), end. 이때 연결은 전송 후에도 end 명령이나 표준 입력이 끝날 때까지 유지됩니다.</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>스크립트에서 쓸 수 있도록 한 줄에 JSON 개체를 하나씩 출력합니다.</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>프로그램의 로그를 표준 오류로 출력합니다.</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>새 PC가 됩니다. 확인 코드를 표시하고, 이전 PC를 기다리고, 보내는 것을 받습니다.</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>네트워크에 나타나고 사라지는 PC를 나열합니다.</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>이 PC에서 옮길 수 있는 앱, 폴더, 계정, 설정을 나열합니다.</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>이 도움말을 표시합니다. 명령 뒤에 쓰면 그 명령의 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>프로그램의 버전을 표시합니다.</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>알 수 없는 옵션 %1. --help를 참조하십시오.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1에는 값을 지정할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1에는 값이 필요합니다.</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send에는 새 PC의 확인 코드, 이름 또는 주소를 지정하는 --to가 필요합니다.</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover에는 --role old 또는 --role new가 필요합니다.</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>예기치 않은 인수 %1. --help를 참조하십시오.</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>알 수 없는 명령 %1. --help를 참조하십시오.</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>옮길 앱. scan에 표시되는 이름 그대로 지정합니다. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>옮길 수 있는 모든 앱을 옮깁니다.</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>옮길 설정. scan에 표시되는 ID로 지정합니다. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>이 PC의 모든 설정을 옮깁니다.</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>S초 안에 새 PC를 찾지 못하거나 새 PC가 이 PC를 허용하지 않으면 종료 코드 3으로 종료합니다. 찾기 시작한 때부터 셉니다. 전송 자체는 중단되지 않습니다.</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>이전 PC가 됩니다. 새 PC를 찾고, 허용을 기다리고, 폴더, 앱, 설정을 보냅니다.</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli는 같은 네트워크에 있는 이전 PC에서 새 PC로 폴더, 앱, 설정을 옮깁니다.</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send에는 옮길 것(--folder, --app 또는 --setting)이 필요합니다.</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>전송할 때마다 보고서를 FILE에 쓰고 이전 보고서를 대체합니다. 읽기용 페이지로 쓰며, 이름이 .json으로 끝나면 JSON으로 씁니다.</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>추가로 연결해 볼 PC의 주소 또는 호스트 이름.</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>이 PC의 역할. 감지된 PC의 역할과 비교합니다.</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>N초 동안 다른 PC를 감지합니다. 지정하지 않으면 5초입니다.</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>다른 PC를 찾지 못하는 원인을 알아봅니다. 어댑터, 포트, 방화벽, VPN을 살펴보고 어떤 PC가 감지되고 응답하는지 확인합니다. 아무것도 변경하지 않습니다.</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>종료 코드: 0 모두 옮겼거나 나열함, 1 연결 또는 실행이 실패했거나 거부됨, 2 잘못된 사용법, 3 시간 초과, 4 끝났으나 실패했거나 이미 있던 항목이 있음 또는 diagnose에서 방해 요인을 찾음, 130 Ctrl-C로 취소됨(다른 PC에 알립니다. Ctrl-C를 한 번 더 누르면 바로 종료합니다).</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>receive, send, discover, diagnose, scan 중 하나를 지정하십시오. --help를 참조하십시오.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>연결을 허용하시겠습니까? %1 (%2) [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>보고서를 쓸 수 없습니다. %1은(는) 폴더입니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>여기서는 물어볼 사람이 없습니다. --yes가 없으면 모든 요청을 거부합니다.</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>이 PC는 %1에서 받는 중입니다.</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>여기서는 물어볼 사람이 없습니다. 모든 PC를 허용하려면 --yes로 시작하십시오.</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>전송 중에 연결이 끊어졌습니다: %1.</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>전송 중에 상대 PC가 세션을 끝냈습니다: %1.</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>%1초 안에 아무것도 도착하기 시작하지 않았습니다.</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>일부 설정이 아직 적용 중이며 보고서에는 빠져 있습니다.</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>%1에서 오던 전송이 도중에 끊어졌습니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>이 PC는 %1(으)로 보내는 중입니다.</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>연결이 끊어졌습니다: %1.</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>상대 PC가 세션을 끝냈습니다: %1.</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>이어서 할 완료된 전송이 없습니다.</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%2초 안에 찾지 못했습니다: %1.</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%2초 안에 응답이 없었습니다: %1.</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1에서 전송을 끝냈습니다.</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>%1에 해당하는 PC가 둘 이상입니다: %2. 원하는 PC를 주소로 지정하십시오.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>알 수 없는 명령: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>다른 PC가 세션을 끝내지 않았습니다. 일부가 도착하지 않았을 수 있습니다.</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1에서 %2초 동안 응답이 없습니다</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1에서 다시 응답합니다</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>전송할 데이터는 %1인데 %3의 사용 가능한 공간은 %2뿐이므로 모두 담을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>모두 설치되었다는 알림이 오기 전에 %1과(와)의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>모두 설치되기 전에 %1에서 전송을 취소했습니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>이 PC의 확인 코드는 %1입니다. 이전 PC를 기다리는 중입니다.</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>확인 코드 %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>찾았습니다: %1. 연결 허용을 기다리는 중입니다.</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>거부했습니다: %1.</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>거부했습니다: %1: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>연결되었습니다: %1.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>연결이 끊어졌습니다: %1.</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>받는 중</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>보내는 중</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 남음</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>옮기지 못함: %1: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>일시 중지했습니다.</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>상대 PC가 일시 중지했습니다: %1.</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>다시 시작했습니다.</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>상대 PC가 다시 시작했습니다: %1.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>취소했습니다.</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>상대 PC가 취소했습니다: %1.</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>파일 저장 위치:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>검색 중 %1%  앱 %2개</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(옮길 수 없음)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>앱: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>파일: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>폴더: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>계정: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>설정: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>앱과 폴더를 합해 %1입니다.</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>%1 만에 완료: %2, 평균 %3.</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>%1 만에 완료: %2.</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>앱:</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>설치됨</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>보냄</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>설정:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>적용됨</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1에서 %2 설치 중...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 설치 중</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>파일: 도착 %1, 실패 %2, 이미 있음 %3.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>%1 기다리는 중: 그 PC에서 [예]를 눌러야 합니다</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>나머지는 보고서에 개수로만 표시됩니다.</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>방해가 되는 것을 찾지 못했습니다.</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>방해가 되는 항목: %1개.</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>파일, 앱, 설정을 모두 전송했습니다</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>앱</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>파일 저장 위치:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>추가 파일을 기다리는 중...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ 완료</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 파일 더 보내기...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>파일 더 보내기...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>받은 파일</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>파일 %1개</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>파일: 도착 %1, 이미 있고 내용이 같음 %2, 이미 있으나 내용이 다름 %3, 실패했거나 확인되지 않음 %4</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>앱 %2개 중 %1개가 도착하지 않았습니다</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>설정 %2개 중 %1개가 도착하지 않았습니다</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>앱과 설정을 보냈습니다. 결과는 %1의 화면에서 확인할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>사용 가능한 장치</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>장치 %1대 찾음, %2대 온라인</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>%1에 연결하는 중...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>코드를 확인하는 중...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>%1의 연결 요청...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>연결 요청</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>&apos;%1&apos;에서 이 PC에 연결하려고 합니다.

수락하시겠습니까?</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>연결이 거부되었습니다</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>다른 PC가 더 이상 기다리지 않습니다</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ %1에 연결됨</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ 연결되었습니다!</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ 연결 실패: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>직접 연결을 검색하는 중... 0%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>직접 연결을 검색하는 중...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>직접 연결을 검색하는 중... %1% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>장치를 찾을 수 없습니다. 다른 PC에서 Zandrove가 실행 중인지 확인하십시오</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>네트워크에서 장치를 찾는 중...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 새로 고침</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>다른 PC에 연결</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>장치를 선택하거나 확인 코드를 입력하십시오</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 두 PC가 같은 네트워크에 있고 Zandrove가 실행 중이어야 합니다</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>검색됨: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>네트워크 케이블이 연결되어 있는지 확인하십시오</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>내 확인 코드</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>다른 PC에서 이 코드를 사용하십시오</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>또는 상대방 코드 입력</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>상대방 코드, %1번째 문자</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>이 PC의 주소입니다.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>여기서는 192.168.1.23과 같은 IPv4 주소만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>주소는 192.168.1.23처럼 0에서 255까지의 숫자 네 개로 되어 있습니다.</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>한 대의 PC를 가리키는 주소가 아닙니다.</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>PC의 주소도 이름도 아닙니다.</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>다른 PC의 주소 또는 이름</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>또는 상대방 주소 입력</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>%1 찾는 중...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>이름이 %1인 PC를 찾을 수 없습니다. 주소를 입력하면 연결될 수도 있습니다.</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1에 IPv4 주소가 없습니다.</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>이 PC의 주소: %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>대신 상대방 코드 입력</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>대신 주소 입력</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>%1 기다리는 중: 그 PC에서 [예]를 눌러야 합니다</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>%1에 연결할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>상대방 주소: %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>다른 PC에서도 Zandrove가 열려 있고 이 페이지가 표시되어 있습니다.</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>네트워크 케이블이 두 PC에 모두 꽂혀 있고 표시등이 켜져 있습니다.</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>두 PC가 같은 네트워크에 있고, 어느 쪽도 게스트 Wi-Fi나 VPN에 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>둘 중 하나는 이전 PC이고 다른 하나는 새 PC입니다.</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>두 PC의 방화벽이 Zandrove를 허용합니다.</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>아직 PC를 찾지 못했습니다. 가능성이 큰 것부터 다음을 확인하십시오:</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>다른 PC를 찾을 수 없습니까?</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>장치 목록으로 돌아가기</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>다시 확인</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>이 PC와 네트워크를 살펴보는 중입니다. 몇 초 정도 걸립니다...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>여기서는 방해가 되는 것을 찾지 못했습니다. 다른 PC에서도 확인하십시오.</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>✗ 표시가 있는 항목이 방해가 됩니다.</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>다른 프로그램(또 하나의 Zandrove일 수 있음)</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>%2에서 포트 %1을(를) 사용 중이어서 다른 PC가 이 PC에 연결할 수 없습니다. 그 프로그램을 닫은 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>%2에서 포트 %1을(를) 사용 중이어서 이 PC가 다른 PC를 감지하지 못합니다. 그 프로그램을 닫은 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1도 있지만 똑같이 이전 PC로 되어 있습니다. 둘 중 하나에서 새 PC를 선택하십시오</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1도 있지만 똑같이 새 PC로 되어 있습니다. 둘 중 하나에서 이전 PC를 선택하십시오</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>유선</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>가상</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>%1 has the address %2.</source>
        <translation>%1의 주소는 %2입니다.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1의 주소는 %2이지만 아무것에도 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>케이블을 꽂거나 이 어댑터로 네트워크에 연결하십시오.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1의 주소는 %2이지만 이 연결로 브로드캐스트를 보낼 수 없습니다: %3.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>이 PC에 Zandrove의 전송을 막는 방화벽이나 보안 프로그램이 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1의 주소는 %2이며, 이 연결로 브로드캐스트를 보낼 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1이(가) 연결되어 있지만 아직 주소가 없습니다.</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>1분 정도 기다리십시오. 주소가 할당되지 않으면 공유기가 켜져 있는지 확인하십시오. 케이블로 직접 연결한 경우에는 이 연결을 링크-로컬 주소로 설정하십시오.</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1이(가) 아무것에도 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>이 PC에는 스스로 할당한 주소 %1만 있습니다.</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>케이블로 직접 연결한 경우에는 정상입니다. 두 PC에서 케이블 모드를 선택하십시오. 네트워크에 연결한 경우에는 공유기가 켜져 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>%3의 네트워크 %2(으)로 가야 할 통신이 VPN %1(으)로 나갑니다.</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>모두 옮길 때까지 VPN 연결을 끊으십시오.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>로컬 네트워크 이외의 통신은 VPN %1(으)로 나갑니다.</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>PC가 서로를 찾지 못하면 VPN 연결을 끊으십시오. 많은 VPN이 PC를 로컬 네트워크에서 분리합니다.</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>이 PC가 네트워크에 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>케이블을 꽂거나 Wi-Fi에 연결하십시오.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>새 PC</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>이전 PC</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>그 PC로 가야 할 통신이 VPN %1(으)로 나갑니다. 먼저 VPN 연결을 끊으십시오.</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>%1에서 이 진단을 실행하십시오. 그 PC의 포트가 이미 사용 중이거나 방화벽이 연결을 거부하는 것일 수 있습니다.</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>%1의 방화벽에서 Zandrove를 허용하십시오: TCP 포트 %2.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1(%2)이(가) %3(으)로 감지되지만 TCP 포트 %4에서 연결을 거부합니다.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1(%2)이(가) %3(으)로 감지되지만 연결할 수 없습니다: %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1(%2)이(가) %3(으)로 감지되지만 TCP 포트 %4에서 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>%1도 있지만 똑같이 %2(으)로 되어 있습니다.</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>둘 중 하나에서 %1을(를) 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1(%2)이(가) %3(으)로 감지되고 응답합니다.</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>이 네트워크에서 이름이 %1인 PC를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>대신 주소를 지정하십시오. 주소는 그 PC의 연결 페이지에 표시됩니다.</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1은(는) 바로 이 PC입니다.</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>다른 PC의 주소를 지정하십시오.</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1이(가) TCP 포트 %2에서 응답하지만 UDP 포트 %3에서 감지되지 않습니다.</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>그 PC에서 연결 페이지를 열고 두 PC의 방화벽에서 UDP 포트 %1을(를) 허용하십시오. 또는 주소로 연결하십시오.</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1이(가) 있지만 TCP 포트 %2에서 연결을 거부합니다.</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>그 PC에서 Zandrove를 열고 연결 페이지까지 이동하십시오.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>%1에 연결할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>주소가 올바른지, 두 PC가 같은 네트워크에 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1이(가) TCP 포트 %2에서 응답하지 않고 감지되지도 않습니다.</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>주소가 올바른지, 그 PC가 켜져 있는지, 방화벽이 Zandrove를 허용하는지 확인하십시오.</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>이 PC가 %1에서 자신의 브로드캐스트를 받지 못합니다.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>이 PC에 UDP 포트 %1의 수신을 막는 방화벽이나 보안 프로그램이 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>%1에서 아무 응답도 없고 공유기도 없습니다.</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>다른 PC가 이 연결에 있어야 한다면 케이블 반대쪽이 연결되어 있는지 또는 그 PC의 네트워크가 켜져 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>%1초 안에 다른 PC가 감지되지 않았습니다.</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>다른 PC에서 Zandrove를 열어 연결 페이지까지 이동하고, 두 PC를 같은 네트워크에 연결하십시오.</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>TCP 포트 %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>UDP 포트 %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1은(는) 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>%1은(는) Zandrove에서 사용 중이며, 정상입니다.</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>%1은(는) 다른 프로그램에서 사용 중입니다.</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>%1은(는) %2에서 사용 중입니다.</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>어떤 프로그램인지 알아내어 닫은 다음 Zandrove를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>그 프로그램을 닫은 다음 Zandrove를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 및 %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1이(가) 켜져 있고 두 포트의 수신을 모두 허용합니다.</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1이(가) 켜져 있고 %2의 수신을 차단합니다.</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>두 포트의 수신을 모두 허용하도록 설정하십시오.</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1이(가) 켜져 있습니다. 두 포트의 수신을 허용하는지는 보내는 쪽이나 여기서 판단할 수 없는 규칙에 따라 달라집니다.</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>규칙에서 %1 및 %2의 수신을 허용하는지 확인하십시오.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>관리자 권한이 없어 %1의 상태를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1에서 읽을 수 있는 응답이 없습니다.</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1이(가) 꺼져 있습니다.</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>상태를 확인할 수 있는 방화벽을 찾지 못했습니다.</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>시스템에서 네트워크 %1을(를) 공용으로 취급합니다.</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>직접 사용하는 개인 네트워크라면 네트워크 설정에서 개인으로 변경하십시오.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>바로 가기</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>전송할 폴더 선택</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>바탕 화면</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>내 문서</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>음악</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>내 PC</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>로컬 디스크 (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> - %2 중 %1 사용 가능</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>복사하는 동안 파일 크기가 줄었습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>쓰기 오류</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>받은 파일</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>파일을 만들지 못했습니다</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>체크섬이 일치하지 않습니다</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>보내는 동안 변경되었습니다</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>일부가 도착하지 않았습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>폴더 검색을 시작하는 중...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>파일을 찾을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>파일을 열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>다 보내기 전에 취소되었습니다</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>파일을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>보내는 동안 변경되었습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>영향을 줄 수 있음</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>방해가 됨</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>복사됨</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>관리자 권한으로 실행</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>완료했습니다. 다시 확인하십시오.</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>실행하지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>파일 %1개, %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>구성 오류</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>페이지 링크를 불러올 수 없습니다.

기술 지원에 문의하거나 소프트웨어를 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>브라우저를 열 수 없음</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>기본 브라우저를 열 수 없습니다.

다음 링크를 복사하여 직접 여십시오:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>다른 PC에서 %1초 동안 응답이 없습니다</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1에서 %2초 동안 응답이 없습니다</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>%1과(와)의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>다른 PC와의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>연결로 돌아가기</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>보고서 보기</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>다음 →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>PC 마이그레이션 도구</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>PC 사이에서 파일, 앱, 설정을 쉽게 전송합니다.</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. 모든 권리 보유.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>Zandrove 정보</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>언어 변경됨</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>언어가 변경되었습니다.

지금 앱을 다시 시작합니다.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>등록</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>이 Zandrove는 등록되어 있습니다.</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>이 Zandrove는 등록되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 뒤로</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>도착하지 않음</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>이유</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>목록 복사</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>보고서 저장…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>목록을 클립보드에 복사했습니다.</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>보고서 저장</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>웹 페이지 (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>보고서를 저장했습니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>PC를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>다음 확인 코드의 장치를 찾을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>알 수 없는 오류</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>연결 시간이 초과되었습니다</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>연결이 거부되었습니다</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>%1의 PC</translation>
    </message>
</context>
<context>
    <name>Zandrove::PCListItem</name>
    <message>
        <source>Online</source>
        <translation>온라인</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>오프라인</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressCard</name>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>남은 시간</translation>
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
        <translation>%2단계 중 %1단계</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>설치가 %1 %에서 중지되었습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>그 자리에 이름이 같은 폴더가 있습니다</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>그 자리에 있는 파일이 읽기 전용입니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>이전 PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>새 PC</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>걸린 시간</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>옮김</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>옮기지 못함</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>앱</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>All</source>
        <translation>합계</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>다음에 할 일</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>파일 저장 위치</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>%1에서의 위치</translation>
    </message>
    <message>
        <source>App</source>
        <translation>앱</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>앱 및 설정</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>이유</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>ko</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>%1 보고서</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>이번 전송</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>도착하지 않은 파일</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>다른 내용으로 이미 있던 파일</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>보고서 %1을(를) 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>이미 있음, 내용이 같음</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>이미 있음, 내용이 다름</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>%1개는 같은 내용으로 이미 있었습니다.</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Zandrove 보고서</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>이전 PC</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>새 PC</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>원본 / 보내는 쪽</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>대상 / 받는 쪽</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>이 PC의 역할 선택</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>전송에서 이 컴퓨터가 맡을 역할을 선택하십시오</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>두 컴퓨터 모두에 Zandrove가 설치되어 실행 중이어야 합니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>보내는 동안 변경되었습니다</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1에서 이유를 알리지 않았습니다</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>보냈지만 %1에서 도착을 확인하지 않았습니다</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>옮기지 못함: 차례가 오기 전에 전송이 끝났습니다</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>이미 있음</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>이미 있음, 내용이 같음</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>이미 있으나 내용이 다름: 이전 PC의 것은 옮기지 않았습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>드라이브 %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>파일 %2개 중 %1개가 도착하지 않았습니다</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>파일 %2개 중 %1개가 도착했습니다. 이전 PC에서는 아무것도 삭제되지 않았습니다</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>전송 취소됨</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>%1에서 전송을 취소했습니다</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>%1과(와)의 연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>%1에서 전송을 끝냈습니다</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>전송이 끝나지 않았습니다</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>전송은 끝났지만 %1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>전송은 끝났지만 옮기지 못한 것이 있습니다</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>전송 완료!</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>%2의 %1에 남은 공간이 없습니다: 담지 못한 파일 %3개, %4</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>옮김</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>이미 있었음</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>이미 있었으나 내용이 다름</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>확인되지 않음</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>아직 알 수 없음</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>이전 PC를 처분하기 전에 %1에서 파일을 몇 개 열어 보십시오. 이전 PC에서는 아무것도 삭제되지 않았습니다.</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>%3의 %2에 %1의 공간을 마련하거나 옮길 것을 줄이십시오.</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>일부 파일은 %1에 다른 내용으로 이미 있었습니다. 두 버전을 비교해 보십시오. 이전 PC의 파일이 필요하면 %1에 있는 파일의 이름을 바꾸거나 다른 곳으로 옮긴 다음 같은 폴더를 다시 옮기십시오.</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>두 PC를 다시 연결하고 같은 전송을 시작하십시오. 이미 도착한 것은 건너뛰고 빠진 것만 옮깁니다.</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>빠진 것이 없을 때까지 이전 PC를 그대로 두십시오. 이전 PC에서는 아무것도 삭제되지 않았습니다.</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[앱] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[설정] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>그 외 %1개.</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>보낼 예정이던 파일 1개가 도착하지 않았습니다. 이름은 %1의 보고서에 나옵니다.</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>보낼 예정이던 파일 %1개가 도착하지 않았습니다. 이름은 %2의 보고서에 나옵니다.</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>목록에서 이유를 확인하십시오.</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>%1의 보고서에서 이유를 확인하십시오.</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>원인을 해결한 다음 같은 전송을 다시 시작하십시오. 이미 도착한 것은 건너뛰고 빠진 것만 옮깁니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>전송할 앱, 파일, 설정을 찾는 중...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>시스템을 검색하는 중...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>PC 검색 중</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>앱</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>계정</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>검색 완료!</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>찾은 항목을 전송할 수 있습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::SelectionPage</name>
    <message>
        <source>Total: %1</source>
        <translation>합계: %1</translation>
    </message>
    <message>
        <source>Applications (%1)</source>
        <translation>앱 (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>파일 (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>설정 (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>앱</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>계정 및 설정</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>합계: 0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>전송할 내용 선택</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>모든 앱 선택</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>사용자 계정</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>시스템 설정</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>이름이 같은 파일:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>건너뛰기</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>덮어쓰기</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>기존 앱:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>파일을 찾을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>%1의 파일 중 도착하지 않은 것: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>보냈습니다. 결과는 %1의 보고서에 있습니다</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>보냈지만 %1에서 도착을 확인하지 않았습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>내보내지 못했습니다</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>설정을 적용하지 못했습니다</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>적용하기 전에 중지되었습니다</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>일부가 도착하지 않았습니다</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>적용하는 동안 중지되었습니다</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>시스템 설정을 검색하는 중...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>바탕 화면 배경</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>개인 설정</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>현재 바탕 화면 배경 이미지</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>작업 표시줄 설정을 검색하는 중...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>작업 표시줄 설정</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>작업 표시줄 위치, 자동 숨기기 및 아이콘 설정</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>파일 탐색기 설정을 검색하는 중...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>파일 탐색기 설정</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>숨김 파일 표시, 파일 확장명, 보기 옵션</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>마우스 설정을 검색하는 중...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>마우스 설정</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>하드웨어</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>마우스 속도, 단추 구성, 스크롤 설정</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>키보드 설정을 검색하는 중...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>키보드 설정</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>키보드 반복 속도 및 재입력 시간</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>전원 설정을 검색하는 중...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>전원 설정</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>현재 전원 관리 옵션 설정</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>환경 변수를 검색하는 중...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>사용자 환경 변수</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>사용자 정의 환경 변수 (%1개)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>디스플레이 설정을 검색하는 중...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>테마 및 디스플레이 설정</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>어두운/밝은 모드, 투명도, 색 설정</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>소리 설정을 검색하는 중...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>소리 구성표</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>시스템 소리 및 알림 설정</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>검색 완료</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>준비</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>앱</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>검증</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>정품 인증</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>등록</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>구매</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>지원</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>이전 크기로 복원</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>네트워크 관리자가 초기화되지 않았습니다</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>장치 검색을 시작했습니다. 확인 코드: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>브로드캐스트를 다시 시작했습니다. 확인 코드: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>다음 확인 코드의 PC를 찾을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>확인 코드가 잘못되었습니다</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1에 연결됨</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>연결 끊김</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>연결 실패: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>연결 시간이 초과되었습니다</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>전송이 이미 진행 중입니다</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>전송을 시작할 수 없습니다. 연결과 선택 항목을 확인하십시오.</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>전송 시작 - 항목 %1개 선택</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>파일 받기를 기다리는 중...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>전송 일시 중지됨</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>전송 다시 시작됨</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>전송 취소됨</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>실패한 항목을 다시 시도하는 중...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>전송 완료 - 성공률: %1%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>전송 실패: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>엔진을 초기화했습니다</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>새로 연결할 준비가 되었습니다</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>검색이 이미 진행 중입니다</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>원본 PC에 연결되어 있지 않습니다</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>시스템 검색을 시작하는 중...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>검색 취소됨</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>검색 오류: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>코드 %1을(를) 표시하는 PC가 둘 이상입니다: %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>데이터 받는 중</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>데이터 보내는 중</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>데이터를 기다리는 중...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>기다리는 중...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>데이터 받는 중 - %1%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>데이터 보내는 중 - %1%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>전송 실패</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>받기 일시 중지됨</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>보내기 일시 중지됨</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>전송 취소</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>전송을 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>예, 취소합니다</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>전송 계속</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>보내는 쪽에서 취소했습니다. 기다리는 중...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>데이터 전송 중</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>현재 파일</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ 다시 시작</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ 일시 중지</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1개 실패</translation>
    </message>
    <message>
        <source>received</source>
        <translation>받음</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>보냄</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>전송할 데이터는 %1인데 %3의 사용 가능한 공간은 %2뿐이므로 모두 담을 수 없습니다.</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>%1 설치 중 - %2 %</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1에서 설치 중...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Zandrove 닫기</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>전송이 진행 중입니다. 창을 닫으면 전송이 취소됩니다.</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>취소하고 닫기</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>선택으로 돌아가기</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>이미 도착한 것은 새 PC에 남으며, 이전 PC에서는 아무것도 삭제되지 않습니다. 보고서는 문서 폴더에 저장됩니다.</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>지금까지의 진행 내용이 사라집니다. 이미 도착한 파일은 남고, 완전하지 않은 파일은 남지 않습니다.</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>확인 코드</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>다른 PC에 입력하십시오</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>파일, 앱, 설정을 새 PC로 전송합니다</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>네트워크 모드</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi / LAN(같은 네트워크)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>케이블 모드</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>USB-C 또는 이더넷 케이블</translation>
    </message>
</context>
</TS>
