<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>A ligação foi recusada</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>A ligação excedeu o tempo limite</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>O anfitrião não foi encontrado</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>A rede está inacessível</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>A operação de rede excedeu o tempo limite</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>O ficheiro ou a pasta não existe</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Não há espaço suficiente no disco</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Acesso negado</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados ficheiros abertos</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erro desconhecido</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>A ligação foi recusada</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>O outro lado repôs a ligação</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>A ligação excedeu o tempo limite</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>O anfitrião está inacessível</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>A rede interrompeu a ligação ao ser reposta</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>A operação de rede excedeu o tempo limite</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>A rede está inacessível</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Acesso negado</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>O endereço não está disponível</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>O outro lado fechou a ligação</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erro desconhecido</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Deslocar para aqui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Margem esquerda</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Margem direita</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página para a esquerda</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página para a direita</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página para cima</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página para baixo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Deslocar para a esquerda</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Deslocar para a direita</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Deslocar para cima</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Deslocar para baixo</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>Pasta não encontrada</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>O nome não é um texto válido</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>Não é possível ler o conteúdo da pasta: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>O caminho contém uma barra invertida, que no PC novo separa as pastas</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>Outra pasta selecionada tem um ficheiro com este nome</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Não é possível aceder</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>A procurar contas de utilizador...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>A listar as contas do Windows...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>A ligação a %1 perdeu-se antes de este confirmar a instalação</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>A ligação a %1 perdeu-se antes de este confirmar a aplicação da definição</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>%1 cancelou a transferência antes de confirmar a instalação</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>%1 cancelou a transferência antes de confirmar a aplicação da definição</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>A copiar os ficheiros de instalação...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>A copiar os ficheiros de AppData...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>A importar o Registo...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>A criar atalhos...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Instalação concluída</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>Não foi possível copiar os ficheiros de instalação</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>Instalação interrompida – ficheiros copiados: %1 de %2</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>Instalação interrompida antes de estarem criados todas as suas chaves e todos os seus atalhos</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Ficheiros de %1 que não chegaram: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>Ficheiros que não foi possível copiar: %1 de %2 (%3: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>Aplicação do sistema</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>A enviar informações da aplicação...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>A enviar atalhos...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>A concluir...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>A exportar o Registo...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>A enviar os ficheiros de instalação...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>A enviar AppData Local...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>A enviar AppData Roaming...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>A enviar ProgramData...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>A procurar aplicações instaladas...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>A procurar aplicações instaladas pelo utilizador...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>A analisar Program Files...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>A procurar software do utilizador no Registo...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Análise concluída</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>Não há nenhum pedido em aberto a que isto possa responder.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 já não está presente.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>este PC está apenas a ver quem há na rede.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>A pasta %1 não existe.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 não é uma pasta.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>Não é possível ler a pasta %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>Não é possível transferir a aplicação %1.</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>A aplicação %1 não existe neste PC. Consulte zandrove-cli scan.</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>A definição %1 não existe neste PC. Consulte zandrove-cli scan.</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>Este PC não tem nada disso para transferir. Consulte zandrove-cli scan.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 também está aqui, mas igualmente como PC antigo: escolha «PC novo» num dos dois</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 também está aqui, mas igualmente como PC novo: escolha «PC antigo» num dos dois</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>outro programa</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>A porta %1 está ocupada por %2: este PC não deteta nenhum outro. Feche esse programa e comece de novo.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>A porta %1 está ocupada por %2: nenhum outro PC consegue aceder a este. Feche esse programa e comece de novo.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>A porta %1 está ocupada por %2: nenhum outro PC pode enviar pedidos a este, que continua a poder enviá-los a outros.</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>%1 não foi encontrado em 20 segundos. PC disponíveis: %2.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>PC novo</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>PC antigo</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>Ninguém foi encontrado em 20 segundos. O que verificar, a começar pelo mais provável: o Zandrove está em execução no outro PC, como «%1»; os dois PC estão na mesma rede ou ligados por um cabo; nenhum deles usa uma VPN; as firewalls de ambos deixam entrar a porta TCP %2 e a porta UDP %3. zandrove-cli diagnose procura a causa.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 não é um número de segundos entre 1 e %2.</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode é network ou cable, não %1.</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role é old ou new, não %1.</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to precisa de um código, um nome ou um endereço.</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder precisa de uma pasta.</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>O PC novo: os quatro algarismos que mostra no ecrã, o nome ou o endereço.</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>Uma pasta a transferir; pode ser indicada várias vezes.</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>Deixar entrar todos os PC que o peçam, sem perguntar.</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>Terminar após a primeira transferência.</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>Terminar com o código de saída 3 se nenhuma transferência começar no prazo de S segundos. A contagem recomeça sempre que o programa volta a esperar; uma transferência em curso nunca é interrompida.</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>O que este PC é. Um PC antigo vê os PC novos, um PC novo vê os antigos.</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>Procurar durante N segundos; sem esta opção, até Ctrl+C.</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>Como os PC se encontram: por difusão (predefinição) ou através de um cabo direto, caso em que também são experimentados os endereços próximos do deste PC.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>Obedecer a comandos na entrada padrão, um por linha: yes, no (responder a um pedido), pause, resume, cancel, end.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>Obedecer a comandos na entrada padrão, um por linha: pause, resume, cancel, again [DIR] (outra transferência na mesma ligação), end. Assim, a ligação mantém-se após uma transferência, até end ou até a entrada padrão terminar.</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>Escrever um objeto JSON por linha, para scripts.</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>Escrever o registo do programa na saída de erros padrão.</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>Como PC novo, mostrar um código, esperar por um PC antigo e receber o que este enviar.</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>Listar os PC da rede à medida que aparecem e desaparecem.</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>Listar o que pode ser transferido deste PC: aplicações, pastas, contas e definições.</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>Este texto; depois de um comando, a ajuda desse comando.</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>A versão do programa.</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>Opção desconhecida: %1. Consulte --help.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 não aceita nenhum valor.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 precisa de um valor.</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send precisa de --to com o código, o nome ou o endereço do PC novo.</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover precisa de --role old ou --role new.</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>Argumento inesperado: %1. Consulte --help.</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>Comando desconhecido: %1. Consulte --help.</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>Uma aplicação a transferir, com o nome exato que scan indica; pode ser indicada várias vezes.</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>Transferir todas as aplicações que for possível transferir.</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>Uma definição a transferir, com o ID que scan indica; pode ser indicada várias vezes.</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>Transferir todas as definições deste PC.</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>Terminar com o código de saída 3 se, no prazo de S segundos, o PC novo não for encontrado ou não deixar entrar este PC. O tempo conta desde o início da procura; a transferência em si nunca é interrompida.</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>Como PC antigo, encontrar o PC novo, esperar que este aceite e enviar pastas, aplicações e definições.</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli transfere pastas, aplicações e definições de um PC antigo para um PC novo na mesma rede.</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send precisa de algo para transferir: --folder, --app ou --setting.</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>Escrever o relatório de cada transferência em FILE, no lugar do anterior: uma página para ler ou, se o nome terminar em .json, JSON.</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>O endereço ou o nome de anfitrião de um PC a experimentar também.</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>A função deste PC, para comparar com a dos PC detetados.</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>Escutar durante N segundos; se não for indicado, durante 5.</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>Descobrir por que motivo o outro PC não é encontrado: examinar adaptadores, portas, firewalls e VPN, e que PC são detetados e respondem. Não altera nada.</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>Códigos de saída: 0 tudo transferido ou listado; 1 a ligação ou a transferência falhou ou foi recusada; 2 utilização incorreta; 3 tempo limite excedido; 4 concluído, mas algo falhou ou já existia, ou diagnose encontrou um obstáculo; 130 cancelado com Ctrl+C (o outro PC é avisado; um segundo Ctrl+C termina de imediato).</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>Indique receive, send, discover, diagnose ou scan. Consulte --help.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>Permitir que %1 (%2) se ligue? [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>Não é possível escrever o relatório: %1 é uma pasta.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>Não há aqui ninguém a quem perguntar: sem --yes, todos os pedidos serão recusados.</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>este PC está a receber de %1.</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>não há aqui ninguém a quem perguntar. Inicie com --yes para deixar entrar todos os PC.</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>A ligação a %1 caiu durante uma transferência.</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>%1 terminou a sessão durante uma transferência.</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>Nada chegou em %1&#xa0;s.</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>Algumas definições ainda estão a ser aplicadas; faltam no relatório.</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>A transferência de %1 foi interrompida.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>este PC está a enviar para %1.</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>A ligação a %1 caiu.</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 terminou a sessão.</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>Não há nenhuma transferência concluída a que dar seguimento.</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>%1 não foi encontrado em %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%1 não respondeu em %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 terminou a transferência.</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>%1 corresponde a mais do que um PC: %2. Indique o endereço do PC pretendido.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>Comando desconhecido: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>O outro PC não terminou a sessão: pode não ter chegado tudo.</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1 não responde há %2&#xa0;s</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 voltou a responder</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>Estão a caminho %1, mas %3 só tem %2 livres: nem tudo vai caber.</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>A ligação a %1 perdeu-se antes de este confirmar que tudo estava instalado.</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>%1 cancelou a transferência antes de tudo estar instalado.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>O código deste PC é %1. A aguardar um PC antigo.</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>código %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>%1 encontrado. A aguardar que deixe entrar este PC.</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>%1 foi recusado.</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>%1 foi recusado: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Ligado a %1.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Desligado de %1.</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>A receber</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>A enviar</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>faltam %1</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>%1 não foi transferido: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Em pausa.</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>Colocada em pausa por %1.</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>Retomada.</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>Retomada por %1.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelada.</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>Cancelada por %1.</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>Ficheiros guardados:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>A analisar %1%  aplicações: %2</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(não pode ser transferida)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>Aplicações: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>ficheiros: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Pastas: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>Contas: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Definições: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>%1 em aplicações e pastas.</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>Concluído em %1: %2, em média %3.</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>Concluído em %1: %2.</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>Aplicações:</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>instalada</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviada</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Definições:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>aplicada</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 está a instalar %2...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>A instalar %1</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>Ficheiros – transferidos: %1; com falha: %2; já existentes: %3.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>aviso</translation>
    </message>
    <message>
        <source>PROBLEM</source>
        <translation>PROBLEMA</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>A aguardar %1: alguém tem de premir «Sim» nesse PC</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>Os restantes são contabilizados no relatório.</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>Não foi encontrado nenhum obstáculo.</translation>
    </message>
    <message>
        <source>Found in the way: %1.</source>
        <translation>Obstáculos encontrados: %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::CompletePage</name>
    <message>
        <source>Your files, apps and settings have been successfully transferred</source>
        <translation>Os seus ficheiros, aplicações e definições foram transferidos com êxito</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Aplicações</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>Ficheiros guardados em:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>A aguardar mais ficheiros...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ Concluído</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 Enviar mais ficheiros...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>Enviar mais ficheiros...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Ficheiros recebidos</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Ficheiros: %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>Ficheiros – transferidos: %1; já existentes e idênticos: %2; já existentes mas diferentes: %3; com falha ou sem confirmação: %4</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>%1 de %2 aplicações por transferir</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>%1 de %2 definições por transferir</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>As aplicações e as definições foram enviadas. O resultado é mostrado no ecrã de %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>Dispositivos disponíveis</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>Dispositivos encontrados: %1, dos quais online: %2</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>A ligar a %1...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>A verificar o código...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>Pedido de ligação de %1...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>Pedido de ligação</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>«%1» quer ligar-se a este PC.

Pretende aceitar?</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Ligação rejeitada</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>O outro PC já não está à espera</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ Ligado a %1</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ Ligado com êxito!</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ A ligação falhou: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>A analisar a ligação direta... 0%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>A analisar a ligação direta...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>A analisar a ligação direta... %1% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>Nenhum dispositivo encontrado. Certifique-se de que o Zandrove está em execução no outro PC</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>A procurar dispositivos na rede...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 Atualizar</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>Ligar a outro PC</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>Selecione um dispositivo ou introduza o código de verificação</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 Os dois PC têm de estar na mesma rede e com o Zandrove em execução</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>Analisados: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>Certifique-se de que o cabo de rede está ligado</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>O seu código de verificação</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>Introduza este código no outro PC</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>Ou o código do outro PC</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>Código do outro PC, carácter %1</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>Este é o endereço deste PC.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>Aqui só funcionam endereços IPv4, como 192.168.1.23.</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>Um endereço é composto por quatro números de 0 a 255, como 192.168.1.23.</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>Este não é o endereço de um único PC.</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>Isto não é um endereço nem o nome de um PC.</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>Endereço ou nome do outro PC</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>Ou o endereço do outro PC</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>A procurar %1...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>Nenhum PC encontrado com o nome %1. Experimente o endereço.</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 não tem nenhum endereço IPv4.</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>Endereço deste PC: %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>Introduzir antes o código do outro PC</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>Introduzir antes um endereço</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>A aguardar %1: alguém tem de premir «Sim» nesse PC</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>Sem ligação a %1: %2.</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>O endereço: %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>O Zandrove também está aberto no outro PC e mostra lá esta página.</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>O cabo de rede está ligado aos dois PC e as luzes estão acesas.</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>Ambos estão na mesma rede e nenhum está numa rede Wi-Fi de convidados nem numa VPN.</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>Um dos dois é o PC antigo e o outro é o PC novo.</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>As firewalls dos dois PC deixam passar o Zandrove.</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>Ainda ninguém foi encontrado. Verifique o seguinte, a começar pelo mais provável:</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>Não encontra o outro PC?</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>Voltar aos dispositivos</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Verificar novamente</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>A examinar este PC e a respetiva rede. Demora alguns segundos...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>Não foi encontrado aqui nenhum obstáculo. Verifique também no outro PC.</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>O que está assinalado com ✗ impede a ligação.</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>outro programa, talvez um segundo Zandrove</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>A porta %1 está ocupada por %2, pelo que nenhum outro PC consegue ligar-se a este. Feche esse programa e tente novamente.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>A porta %1 está ocupada por %2, pelo que este PC não deteta outros PC. Feche esse programa e tente novamente.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 também está aqui, mas igualmente como PC antigo: escolha «PC novo» num dos dois</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 também está aqui, mas igualmente como PC novo: escolha «PC antigo» num dos dois</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>com fios</translation>
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
        <translation>%1 tem o endereço %2.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 tem o endereço %2, mas não está ligado a nada.</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>Ligue o respetivo cabo ou ligue-o a uma rede.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 tem o endereço %2, mas não consegue enviar nenhuma difusão: %3.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>Procure neste PC uma firewall ou um programa de segurança que impeça o Zandrove de enviar.</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 tem o endereço %2 e envia difusões.</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 está ligado, mas ainda não tem endereço.</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>Aguarde um minuto. Se não receber nenhum, verifique se o router está ligado; com um cabo direto, defina esta ligação para endereços de ligação local.</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 não está ligado a nada.</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>Este PC só tem um endereço que atribuiu a si próprio, %1.</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>Com um cabo direto, é normal: escolha «Modo de cabo» nos dois PC. Numa rede, verifique se o router está ligado.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>A VPN %1 desvia o que se destina à rede %2 de %3.</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>Desligue a VPN até tudo estar transferido.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>A VPN %1 desvia o que não se destina a uma rede local.</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>Desligue-a se os PC não se encontrarem: muitas VPN isolam o PC da rede local.</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>Este PC não está em nenhuma rede.</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>Ligue um cabo ou ligue-se a uma rede Wi-Fi.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>PC novo</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>PC antigo</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>O que se destina a esse PC sai pela VPN %1: desligue-a primeiro.</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>Execute este diagnóstico em %1: a porta pode estar ocupada nesse PC, ou a firewall pode estar a rejeitar as ligações.</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>Deixe passar o Zandrove na firewall de %1: porta TCP %2.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1 (%2) anuncia-se como «%3», mas recusa ligações na porta TCP %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1 (%2) anuncia-se como «%3», mas não é possível estabelecer ligação: %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1 (%2) anuncia-se como «%3», mas não responde na porta TCP %4.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>%1 também está aqui, mas igualmente como «%2».</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>Escolha «%1» num dos dois.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1 (%2) anuncia-se como «%3» e responde.</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>Aqui ninguém conhece um PC com o nome %1.</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>Indique antes o endereço; a página de ligação desse PC mostra-o.</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 é este mesmo PC.</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>Indique o endereço do outro PC.</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 responde na porta TCP %2, mas não é detetado na porta UDP %3.</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>Abra nesse PC a página de ligação, e a porta UDP %1 nas firewalls dos dois PC; ou ligue-se através do endereço.</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1 está presente, mas recusa ligações na porta TCP %2.</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>Abra o Zandrove nesse PC, até à página de ligação.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>Não é possível estabelecer ligação a %1: %2.</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>Verifique se o endereço está correto e se os dois PC estão na mesma rede.</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 não responde na porta TCP %2 e não é detetado.</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>Verifique se o endereço está correto, se esse PC está ligado e se a firewall dele deixa passar o Zandrove.</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>Este PC não recebe as suas próprias difusões em %1.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>Procure neste PC uma firewall ou um programa de segurança que bloqueie a porta UDP %1.</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>Ninguém respondeu em %1, que não tem router.</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>Se o outro PC devia estar aí, verifique se a ponta do cabo desse lado, ou a rede dele, está ativa.</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>Nenhum outro PC foi detetado em %1 s.</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>Abra o Zandrove no outro PC, até à página de ligação, e ligue os dois PC à mesma rede.</translation>
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
        <translation>A %1 está livre.</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>A %1 está a ser usada pelo Zandrove, como deve ser.</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>A %1 está ocupada por outro programa.</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>A %1 está ocupada por %2.</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>Descubra qual é, feche-o e reinicie o Zandrove.</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>Feche esse programa e reinicie o Zandrove.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e a %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1 está ativa e deixa entrar as duas portas.</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1 está ativa e bloqueia a %2.</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>Configure-a para deixar entrar as duas portas.</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1 está ativa; se deixa entrar as duas portas depende do remetente ou de regras que não é possível avaliar aqui.</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>Verifique se as regras deixam entrar a %1 e a %2.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>Não foi possível consultar %1 sem direitos de administrador.</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1 não deu nenhuma resposta legível.</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1 está desativada.</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>Não foi encontrada nenhuma das firewalls que é possível consultar.</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>O sistema considera pública a rede %1.</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>Se for a sua, defina-a como privada nas definições de rede.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>Acesso Rápido</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar seleção</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>Selecione as pastas a transferir</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Ambiente de trabalho</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Transferências</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>Este PC</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>Disco Local (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> – %1 livres de %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>entretanto, ficou mais curto</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>Erro de escrita</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Ficheiros recebidos</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Não foi possível criar o ficheiro</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>A soma de verificação não coincide</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>alterado durante o envio</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>Não chegou por inteiro</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>A iniciar a análise das pastas...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>Ficheiro não encontrado: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>Não é possível abrir o ficheiro: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>não é um ficheiro normal</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>Cancelado antes de ser enviado por inteiro</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Não é possível ler o ficheiro: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>alterado durante o envio</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>Tudo certo</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>Pode influenciar</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>Impede a ligação</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Run as administrator</source>
        <translation>Executar como administrador</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>Concluído. Verifique novamente.</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>Não funcionou.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>Ficheiros: %1, %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Erro de configuração</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Não é possível carregar a hiperligação da página.

Contacte o suporte técnico ou reinstale a aplicação.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Não é possível abrir o browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Não é possível abrir o browser predefinido.

Copie a hiperligação e abra-a manualmente:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>O outro PC não responde há %1&#xa0;s</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>%1 não responde há %2&#xa0;s</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>A ligação a %1 perdeu-se.</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>A ligação ao outro PC perdeu-se.</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>Voltar às ligações</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>Mostrar relatório</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Seguinte →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>Ferramenta de migração entre PC</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>Transfira facilmente ficheiros, aplicações e definições entre PC.</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. Todos os direitos reservados.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>Acerca do Zandrove</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma alterado</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>O idioma foi alterado.

A aplicação vai ser reiniciada agora.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registar</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>Esta cópia do Zandrove está registada.</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>Esta cópia do Zandrove não está registada.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Anterior</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>Não transferidos</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>Copiar lista</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Guardar relatório…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>A lista está na área de transferência.</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Guardar relatório</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>Página (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>O relatório foi guardado.</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>PC não encontrado</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>Nenhum dispositivo encontrado com o código de verificação: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erro desconhecido</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>A ligação excedeu o tempo limite</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Ligação rejeitada</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>PC em %1</translation>
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
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>de %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Passo %1 de %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>a ligação perdeu-se</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>a instalação foi interrompida a %1%</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>no seu lugar está uma pasta com este nome</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>o ficheiro que lá está é só de leitura</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>PC antigo</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>PC novo</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Transferidos</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>Não transferidos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Aplicações</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Com falha</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>O que fazer a seguir</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>Onde estão os ficheiros</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>Localização em %1</translation>
    </message>
    <message>
        <source>App</source>
        <translation>Aplicação</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Definição</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>Aplicações e definições</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>pt</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>Relatório do %1</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>Esta transferência</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>Ficheiros não transferidos</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>Ficheiros já existentes, com outro conteúdo</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>Não é possível escrever o relatório %1: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>não é um ficheiro normal</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>Já existentes, idênticos</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>Já existentes, mas diferentes</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>Já existentes, idênticos: %1.</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Relatório do Zandrove</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>PC antigo</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>PC novo</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>Origem / remetente</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>Destino / destinatário</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>Selecione a função deste PC</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>Escolha a função deste PC na transferência</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>O Zandrove tem de estar instalado e em execução nos dois PC</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>alterado durante o envio</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 não indica o motivo</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>enviado, mas %1 não confirmou a chegada</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>por transferir: a transferência terminou antes da sua vez</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>já existente</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>já existente, idêntico</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>já existente, mas diferente: o do PC antigo não foi transferido</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>unidade %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>%1 de %2 ficheiros por transferir</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>%1 de %2 ficheiros no destino; nada foi eliminado no PC antigo</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Transferência cancelada</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>Transferência cancelada por %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>A ligação a %1 perdeu-se</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>Transferência terminada por %1</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>Transferência não concluída</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>Transferência concluída, %1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>Transferência concluída, mas nem tudo foi transferido</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>Transferência concluída!</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>sem espaço livre (%1 de %2); ficheiros que não couberam: %3 (%4)</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>no destino</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>já lá estava</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>já lá estava, numa versão diferente</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>falhou</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>sem confirmação</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>resultado ainda desconhecido</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>Abra alguns ficheiros em %1 antes de se desfazer do PC antigo. Nada foi eliminado nele.</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>Arranje espaço para %1 (%2 de %3) ou transfira menos.</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>Já havia em %1 ficheiros com outro conteúdo. Compare as duas versões. Para obter a do PC antigo, mude o nome da que está em %1 ou mova-a, e transfira de novo a mesma pasta.</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Volte a ligar os dois PC e inicie a mesma transferência: o que já chegou é ignorado, só é transferido o que falta.</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>Mantenha o PC antigo tal como está até não faltar nada. Nada foi eliminado nele.</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[Aplicação] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[Definição] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>E mais %1.</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>1 ficheiro anunciado não chegou. O nome consta do relatório de %1.</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>%1 ficheiros anunciados não chegaram. Os nomes constam do relatório de %2.</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>Leia os motivos na lista.</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>Leia os motivos no relatório de %1.</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Quando estiverem resolvidos, inicie de novo a mesma transferência: o que já chegou é ignorado, só é transferido o que falta.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>A procurar aplicações, ficheiros e definições para transferir...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>A analisar o sistema...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>A analisar o seu PC</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicações</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Contas</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>Análise concluída!</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>Os itens encontrados podem ser transferidos</translation>
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
        <translation>Aplicações (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>Ficheiros (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>Definições (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicações</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>Contas e definições</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>Total: 0 GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>Selecione o que pretende transferir</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>Selecionar todas as aplicações</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>Contas de utilizador</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Definições do sistema</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>Ficheiros com o mesmo nome:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Mudar o nome</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>Aplicações existentes:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>Ficheiro não encontrado: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Ficheiros de %1 que não chegaram: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>enviada; o resultado consta do relatório de %1</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>enviado, mas %1 não confirmou a chegada</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>A exportação falhou</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>Não foi possível aplicar a definição</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>interrompida antes de ser aplicada</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>não chegou por inteiro</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>interrompida enquanto estava a ser aplicada</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>A procurar definições do sistema...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>Fundo do ambiente de trabalho</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>Personalização</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>Imagem de fundo atual do ambiente de trabalho</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>A procurar definições da barra de tarefas...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>Definições da barra de tarefas</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>Posição, ocultação automática e ícones da barra de tarefas</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>A procurar definições do Explorador de Ficheiros...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>Definições do Explorador de Ficheiros</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>Ficheiros ocultos, extensões de ficheiros, opções de visualização</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>A procurar definições do rato...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>Definições do rato</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>Velocidade do ponteiro, botões, deslocamento</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>A procurar definições do teclado...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>Definições do teclado</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>Velocidade e atraso de repetição do teclado</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>A procurar definições de energia...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Definições de energia</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>Definições do esquema de energia atual</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>A procurar variáveis de ambiente...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>Variáveis de ambiente do utilizador</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>Variáveis de ambiente definidas pelo utilizador (%1)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>A procurar definições de visualização...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>Definições de tema e visualização</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>Modo escuro/claro, transparência, cores</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>A procurar definições de som...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>Esquema de sons</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>Sons do sistema e definições de notificação</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Análise concluída</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>Preparar</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Aplicações</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registar</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Comprar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Suporte</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferEngine</name>
    <message>
        <source>Network manager not initialized</source>
        <translation>A rede não está inicializada</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>Procura iniciada. Código de verificação: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>Difusão reiniciada. Código de verificação: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>Nenhum PC encontrado com o código de verificação: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Código de verificação inválido</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Ligado a %1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>A ligação falhou: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>A ligação excedeu o tempo limite</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>Já está em curso uma transferência</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>Não é possível iniciar a transferência. Verifique a ligação e a seleção.</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>Transferência iniciada – itens selecionados: %1</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>A aguardar ficheiros...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>Transferência em pausa</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>Transferência retomada</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Transferência cancelada</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>A repetir os itens que falharam...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>Transferência concluída – taxa de êxito: %1%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>A transferência falhou: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>Reposição efetuada</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>Pronto para uma nova ligação</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>A análise já está em curso</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>Sem ligação ao PC de origem</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>A iniciar a análise do sistema...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>Análise cancelada</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>Erro na análise: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>Mais do que um PC mostra o código %1: %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>A receber dados</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>A enviar dados</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>A aguardar dados...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>A aguardar...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>A receber dados – %1%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>A enviar dados – %1%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>A transferência falhou</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>Receção em pausa</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>Envio em pausa</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>Cancelar transferência</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>Tem a certeza de que pretende cancelar a transferência?</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>Sim, cancelar</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>Continuar a transferir</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>Cancelada pelo remetente. A aguardar...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>A transferir dados</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>Ficheiros atuais</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ Retomar</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>Falhas: %1</translation>
    </message>
    <message>
        <source>received</source>
        <translation>recebido</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviada</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Ligação perdida</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>Estão a caminho %1, mas %3 só tem %2 livres: nem tudo vai caber.</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>A instalar %1 – %2%</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1 está a instalar...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Fechar o Zandrove</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>Está em curso uma transferência. Se fechar a janela, será cancelada.</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>Cancelar e fechar</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>Voltar à seleção</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>O que já chegou permanece no PC novo e nada é eliminado no PC antigo. Fica um relatório guardado nos seus documentos.</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>Todo o progresso será perdido. Os ficheiros que já chegaram mantêm-se; não fica nada incompleto.</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>Código de verificação</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>Introduza no outro PC</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>Transfira ficheiros, aplicações e definições para o seu novo PC</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>Modo de rede</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi / LAN (mesma rede)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>Modo de cabo</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>Cabo USB-C ou Ethernet</translation>
    </message>
</context>
</TS>
