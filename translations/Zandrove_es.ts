<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Se agotó el tiempo de espera de la conexión</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>No se encontró el equipo</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>No se puede acceder a la red</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Se agotó el tiempo de espera de la red</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No hay espacio suficiente en el disco</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Acceso denegado</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
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
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>El otro equipo interrumpió la conexión</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Se agotó el tiempo de espera de la conexión</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>No se puede acceder al equipo</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>La conexión se perdió al reiniciarse la red</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>Se agotó el tiempo de espera de la red</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>No se puede acceder a la red</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Acceso denegado</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>La dirección no está disponible</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>El equipo remoto cerró la conexión</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
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
        <translation>Desplazar hasta aquí</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borde derecho</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Principio</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página a la izquierda</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página a la derecha</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Desplazar a la izquierda</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Desplazar a la derecha</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Desplazar hacia abajo</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Folder not found</source>
        <translation>No se encontró la carpeta</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Su nombre no es un texto válido</translation>
    </message>
    <message>
        <source>Cannot list folder: %1</source>
        <translation>No se puede leer el contenido de la carpeta: %1</translation>
    </message>
    <message>
        <source>Its path contains a backslash, which separates folders on the New PC</source>
        <translation>Su ruta contiene una barra diagonal inversa, que en el PC nuevo separa las carpetas</translation>
    </message>
    <message>
        <source>Another ticked folder has a file of this name</source>
        <translation>Otra carpeta marcada contiene un archivo con este nombre</translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>No se puede acceder</translation>
    </message>
</context>
<context>
    <name>Zandrove::AccountScanner</name>
    <message>
        <source>Scanning user accounts...</source>
        <translation>Analizando las cuentas de usuario...</translation>
    </message>
    <message>
        <source>Enumerating Windows accounts...</source>
        <translation>Enumerando las cuentas de Windows...</translation>
    </message>
</context>
<context>
    <name>Zandrove::Aftermath</name>
    <message>
        <source>%1 was lost before it said that this is installed</source>
        <translation>Se perdió la conexión con %1 antes de que confirmara que se había instalado</translation>
    </message>
    <message>
        <source>%1 was lost before it said that this is applied</source>
        <translation>Se perdió la conexión con %1 antes de que confirmara que se había aplicado</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is installed</source>
        <translation>%1 canceló la transferencia antes de confirmar que se había instalado</translation>
    </message>
    <message>
        <source>%1 called the transfer off before it said that this is applied</source>
        <translation>%1 canceló la transferencia antes de confirmar que se había aplicado</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppInstaller</name>
    <message>
        <source>Copying install files...</source>
        <translation>Copiando los archivos de instalación...</translation>
    </message>
    <message>
        <source>Copying AppData files...</source>
        <translation>Copiando los archivos de AppData...</translation>
    </message>
    <message>
        <source>Importing registry...</source>
        <translation>Importando al Registro...</translation>
    </message>
    <message>
        <source>Creating shortcuts...</source>
        <translation>Creando los accesos directos...</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Instalación completada</translation>
    </message>
    <message>
        <source>Failed to copy install files</source>
        <translation>No se pudieron copiar los archivos de instalación</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files copied</source>
        <translation>Instalación interrumpida, archivos copiados: %1 de %2</translation>
    </message>
    <message>
        <source>Stopped before all of its keys and shortcuts were there</source>
        <translation>Instalación interrumpida antes de crear todas las claves del Registro y todos los accesos directos</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Archivos de %1 que no han llegado: %2</translation>
    </message>
    <message>
        <source>Files that could not be copied: %1 of %2 (%3: %4)</source>
        <translation>Archivos que no se pudieron copiar: %1 de %2 (%3: %4)</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppListItem</name>
    <message>
        <source>System App</source>
        <translation>Aplicación del sistema</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppMigrator</name>
    <message>
        <source>Sending app info...</source>
        <translation>Enviando los datos de la aplicación...</translation>
    </message>
    <message>
        <source>Sending shortcuts...</source>
        <translation>Enviando los accesos directos...</translation>
    </message>
    <message>
        <source>Completing...</source>
        <translation>Finalizando...</translation>
    </message>
    <message>
        <source>Exporting registry...</source>
        <translation>Exportando el Registro...</translation>
    </message>
    <message>
        <source>Sending install files...</source>
        <translation>Enviando los archivos de instalación...</translation>
    </message>
    <message>
        <source>Sending AppData Local...</source>
        <translation>Enviando AppData Local...</translation>
    </message>
    <message>
        <source>Sending AppData Roaming...</source>
        <translation>Enviando AppData Roaming...</translation>
    </message>
    <message>
        <source>Sending ProgramData...</source>
        <translation>Enviando ProgramData...</translation>
    </message>
</context>
<context>
    <name>Zandrove::AppScanner</name>
    <message>
        <source>Scanning installed applications...</source>
        <translation>Analizando las aplicaciones instaladas...</translation>
    </message>
    <message>
        <source>Scanning user installed applications...</source>
        <translation>Analizando las aplicaciones instaladas por el usuario...</translation>
    </message>
    <message>
        <source>Scanning Program Files...</source>
        <translation>Analizando Program Files...</translation>
    </message>
    <message>
        <source>Scanning user software registry...</source>
        <translation>Analizando el software del usuario en el Registro...</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Análisis completado</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Admission</name>
    <message>
        <source>No request is open that this could answer.</source>
        <translation>No hay ninguna solicitud abierta a la que esto pueda responder.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 ya no está disponible.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::DiscoverSession</name>
    <message>
        <source>this PC is only looking around.</source>
        <translation>este PC solo está buscando otros PC.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::FolderCheck</name>
    <message>
        <source>There is no folder %1.</source>
        <translation>No existe la carpeta %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be read.</source>
        <translation>No se puede leer la carpeta %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ItemChoice</name>
    <message>
        <source>The application %1 cannot be moved.</source>
        <translation>La aplicación %1 no se puede transferir.</translation>
    </message>
    <message>
        <source>There is no application %1 on this PC. See zandrove-cli scan.</source>
        <translation>No hay ninguna aplicación %1 en este PC. Consulte zandrove-cli scan.</translation>
    </message>
    <message>
        <source>There is no setting %1 on this PC. See zandrove-cli scan.</source>
        <translation>No hay ninguna opción de configuración %1 en este PC. Consulte zandrove-cli scan.</translation>
    </message>
    <message>
        <source>This PC has nothing of that to move. See zandrove-cli scan.</source>
        <translation>En este PC no hay nada de eso que transferir. Consulte zandrove-cli scan.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Notices</name>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 también está aquí, pero igualmente como PC antiguo: elija «PC nuevo» en uno de los dos</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 también está aquí, pero igualmente como PC nuevo: elija «PC antiguo» en uno de los dos</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>otro programa</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.</source>
        <translation>El puerto %1 está ocupado por %2: este PC no detecta ningún otro. Cierre ese programa y empiece de nuevo.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.</source>
        <translation>El puerto %1 está ocupado por %2: ningún otro PC puede acceder a este. Cierre ese programa y empiece de nuevo.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2: no other PC can ask this one, which can still ask others.</source>
        <translation>El puerto %1 está ocupado por %2: ningún otro PC puede enviar solicitudes a este, que sí puede enviarlas a otros.</translation>
    </message>
    <message>
        <source>%1 was not found for 20 seconds. In reach are: %2.</source>
        <translation>No se ha encontrado %1 en 20 segundos. PC disponibles: %2.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>PC nuevo</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>PC antiguo</translation>
    </message>
    <message>
        <source>Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the other PC, as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.</source>
        <translation>No se ha encontrado a nadie en 20 segundos. Qué comprobar, empezando por lo más probable: que Zandrove esté abierto en el otro PC, como «%1»; que los dos PC estén en la misma red o unidos por un cable; que ninguno de ellos use una VPN; que sus firewalls dejen entrar el puerto TCP %2 y el puerto UDP %3. zandrove-cli diagnose busca la causa.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Options</name>
    <message>
        <source>%1 is not a number of seconds from 1 to %2.</source>
        <translation>%1 no es un número de segundos entre 1 y %2.</translation>
    </message>
    <message>
        <source>--mode is network or cable, not %1.</source>
        <translation>--mode admite network o cable, no %1.</translation>
    </message>
    <message>
        <source>--role is old or new, not %1.</source>
        <translation>--role admite old o new, no %1.</translation>
    </message>
    <message>
        <source>--to needs a code, a name or an address.</source>
        <translation>--to requiere un código, un nombre o una dirección.</translation>
    </message>
    <message>
        <source>--folder needs a folder.</source>
        <translation>--folder requiere una carpeta.</translation>
    </message>
    <message>
        <source>The New PC: the four digits on its screen, its name or its address.</source>
        <translation>El PC nuevo: los cuatro dígitos que aparecen en su pantalla, su nombre o su dirección.</translation>
    </message>
    <message>
        <source>A folder to move; may be given several times.</source>
        <translation>Carpeta que se transferirá; puede indicarse varias veces.</translation>
    </message>
    <message>
        <source>Let every PC in that asks, without a question.</source>
        <translation>Aceptar todos los PC que soliciten conectarse, sin preguntar.</translation>
    </message>
    <message>
        <source>End after the first transfer.</source>
        <translation>Terminar después de la primera transferencia.</translation>
    </message>
    <message>
        <source>End with exit code 3 when nothing has begun to arrive within S seconds. Counted anew each time the program starts to wait; a running transfer is never cut.</source>
        <translation>Terminar con el código de salida 3 si no ha empezado a llegar nada en S segundos. La cuenta empieza de nuevo cada vez que el programa se pone a esperar; una transferencia en curso nunca se interrumpe.</translation>
    </message>
    <message>
        <source>What this PC is. An Old PC sees the New PCs, a New PC the Old PCs.</source>
        <translation>La función de este PC. Un PC antiguo ve los PC nuevos y un PC nuevo, los antiguos.</translation>
    </message>
    <message>
        <source>Look for N seconds; without it, until Ctrl-C.</source>
        <translation>Buscar durante N segundos; sin esta opción, hasta pulsar Ctrl-C.</translation>
    </message>
    <message>
        <source>How PCs find each other: by broadcast (the default), or over a direct cable, where the addresses around this PC&apos;s own are tried as well.</source>
        <translation>Cómo se encuentran los PC: por difusión en la red (opción predeterminada) o por un cable directo, en cuyo caso se prueban además las direcciones próximas a la de este PC.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: yes, no (answer a request), pause, resume, cancel, end.</source>
        <translation>Ejecutar las órdenes de la entrada estándar, una por línea: yes, no (respuesta a una solicitud), pause, resume, cancel, end.</translation>
    </message>
    <message>
        <source>Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] (a further transfer on the same link), end. The link then stays after a transfer until end, or until standard input ends.</source>
        <translation>Ejecutar las órdenes de la entrada estándar, una por línea: pause, resume, cancel, again [DIR] (otra transferencia por la misma conexión), end. Así, la conexión se mantiene después de una transferencia hasta la orden end o hasta que termine la entrada estándar.</translation>
    </message>
    <message>
        <source>Print one JSON object a line, for scripts.</source>
        <translation>Mostrar un objeto JSON por línea, para scripts.</translation>
    </message>
    <message>
        <source>Print the program&apos;s log on standard error.</source>
        <translation>Mostrar el registro de actividad del programa en la salida de error estándar.</translation>
    </message>
    <message>
        <source>Be the New PC: show a code, wait for an Old PC, receive what it sends.</source>
        <translation>Usar este PC como PC nuevo: mostrar un código, esperar a un PC antiguo y recibir lo que envíe.</translation>
    </message>
    <message>
        <source>List the PCs on the network as they come and go.</source>
        <translation>Mostrar los PC de la red a medida que aparecen y desaparecen.</translation>
    </message>
    <message>
        <source>List what can be moved from this PC: applications, folders, accounts and settings.</source>
        <translation>Mostrar lo que se puede transferir desde este PC: aplicaciones, carpetas, cuentas y configuración.</translation>
    </message>
    <message>
        <source>This text; after a command, the help of that command.</source>
        <translation>Este texto; después de una orden, la ayuda de esa orden.</translation>
    </message>
    <message>
        <source>The version of the program.</source>
        <translation>La versión del programa.</translation>
    </message>
    <message>
        <source>Unknown option %1. See --help.</source>
        <translation>Opción desconocida: %1. Consulte --help.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 no admite ningún valor.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 requiere un valor.</translation>
    </message>
    <message>
        <source>send needs --to with the New PC&apos;s code, name or address.</source>
        <translation>send requiere --to con el código, el nombre o la dirección del PC nuevo.</translation>
    </message>
    <message>
        <source>discover needs --role old or --role new.</source>
        <translation>discover requiere --role old o --role new.</translation>
    </message>
    <message>
        <source>Unexpected argument %1. See --help.</source>
        <translation>Argumento inesperado: %1. Consulte --help.</translation>
    </message>
    <message>
        <source>Unknown command %1. See --help.</source>
        <translation>Orden desconocida: %1. Consulte --help.</translation>
    </message>
    <message>
        <source>An application to move, by the exact name that scan lists; may be given several times.</source>
        <translation>Aplicación que se transferirá, con el nombre exacto que muestra scan; puede indicarse varias veces.</translation>
    </message>
    <message>
        <source>Move every application that can be moved.</source>
        <translation>Transferir todas las aplicaciones que se puedan transferir.</translation>
    </message>
    <message>
        <source>A setting to move, by the id that scan lists; may be given several times.</source>
        <translation>Opción de configuración que se transferirá, con el identificador que muestra scan; puede indicarse varias veces.</translation>
    </message>
    <message>
        <source>Move every setting that this PC has.</source>
        <translation>Transferir toda la configuración de este PC.</translation>
    </message>
    <message>
        <source>End with exit code 3 when the New PC was not found and has not let this PC in within S seconds. Counted from when it is looked for; the transfer itself is never cut.</source>
        <translation>Terminar con el código de salida 3 si en S segundos no se ha encontrado el PC nuevo o este no ha aceptado la conexión. Se cuenta desde que empieza la búsqueda; la transferencia en sí nunca se interrumpe.</translation>
    </message>
    <message>
        <source>Be the Old PC: find the New PC, wait for its yes, send folders, applications and settings.</source>
        <translation>Usar este PC como PC antiguo: buscar el PC nuevo, esperar a que acepte y enviar carpetas, aplicaciones y configuración.</translation>
    </message>
    <message>
        <source>zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same network.</source>
        <translation>zandrove-cli transfiere carpetas, aplicaciones y configuración de un PC antiguo a un PC nuevo de la misma red.</translation>
    </message>
    <message>
        <source>send needs something to move: a --folder, an --app or a --setting.</source>
        <translation>send requiere algo que transferir: --folder, --app o --setting.</translation>
    </message>
    <message>
        <source>Write the report of each transfer to FILE, in place of the one before: a page to read or, for a name that ends in .json, JSON.</source>
        <translation>Escribir el informe de cada transferencia en FILE, en lugar del anterior: una página para leer o, si el nombre termina en .json, JSON.</translation>
    </message>
    <message>
        <source>The address or host name of a PC that is tried as well.</source>
        <translation>La dirección o el nombre de host de un PC que también se probará.</translation>
    </message>
    <message>
        <source>What this PC is, to be compared with those that are heard.</source>
        <translation>La función de este PC, para compararla con la de los PC detectados.</translation>
    </message>
    <message>
        <source>Listen for N seconds; without it, for 5.</source>
        <translation>Escuchar durante N segundos; si no se indica, durante 5.</translation>
    </message>
    <message>
        <source>Find out why the other PC isn&apos;t found: look at adapters, ports, firewalls and VPNs, and at who is heard and answers. Changes nothing.</source>
        <translation>Averiguar por qué no se encuentra el otro PC: examinar los adaptadores, los puertos, los firewalls y las VPN, y qué PC se detectan y responden. No cambia nada.</translation>
    </message>
    <message>
        <source>Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has found what stands in the way; 130 cancelled with Ctrl-C (the other PC is told; a second Ctrl-C ends at once).</source>
        <translation>Códigos de salida: 0 todo se ha transferido o mostrado; 1 la conexión o la ejecución ha fallado o se ha rechazado; 2 uso incorrecto; 3 tiempo de espera agotado; 4 terminado, pero algo ha fallado o ya existía, o diagnose ha encontrado un obstáculo; 130 cancelado con Ctrl-C (se avisa al otro PC; un segundo Ctrl-C termina de inmediato).</translation>
    </message>
    <message>
        <source>Say receive, send, discover, diagnose or scan. See --help.</source>
        <translation>Indique receive, send, discover, diagnose o scan. Consulte --help.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Output</name>
    <message>
        <source>Allow %1 (%2) to connect? [y/N] </source>
        <translation>¿Permitir que %1 (%2) se conecte? [y/N] </translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Program</name>
    <message>
        <source>The report can&apos;t be written: %1 is a folder.</source>
        <translation>No se puede escribir el informe: %1 es una carpeta.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::ReceiveSession</name>
    <message>
        <source>Nobody can be asked here: every request will be refused without --yes.</source>
        <translation>Aquí no hay a quién preguntar: sin --yes se rechazarán todas las solicitudes.</translation>
    </message>
    <message>
        <source>this PC is receiving from %1.</source>
        <translation>este PC está recibiendo datos de %1.</translation>
    </message>
    <message>
        <source>nobody can be asked here. Start with --yes to let every PC in.</source>
        <translation>aquí no hay a quién preguntar. Inicie el programa con --yes para aceptar todos los PC.</translation>
    </message>
    <message>
        <source>The link to %1 broke during a transfer.</source>
        <translation>Se ha cortado la conexión con %1 durante una transferencia.</translation>
    </message>
    <message>
        <source>%1 ended the session during a transfer.</source>
        <translation>%1 ha finalizado la sesión durante una transferencia.</translation>
    </message>
    <message>
        <source>Nothing began to arrive within %1 seconds.</source>
        <translation>No ha empezado a llegar nada en %1&#xa0;s.</translation>
    </message>
    <message>
        <source>Some settings are still being applied; the report is without them.</source>
        <translation>Aún se están aplicando algunas opciones de configuración; faltan en el informe.</translation>
    </message>
    <message>
        <source>The transfer from %1 broke off.</source>
        <translation>Se ha interrumpido la transferencia desde %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::SendSession</name>
    <message>
        <source>this PC is sending to %1.</source>
        <translation>este PC está enviando datos a %1.</translation>
    </message>
    <message>
        <source>The link to %1 broke.</source>
        <translation>Se ha cortado la conexión con %1.</translation>
    </message>
    <message>
        <source>%1 ended the session.</source>
        <translation>%1 ha finalizado la sesión.</translation>
    </message>
    <message>
        <source>There is no finished transfer to follow.</source>
        <translation>No hay ninguna transferencia terminada a la que añadir otra.</translation>
    </message>
    <message>
        <source>%1 was not found within %2 seconds.</source>
        <translation>No se ha encontrado %1 en %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 did not answer within %2 seconds.</source>
        <translation>%1 no ha respondido en %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 ended the transfer.</source>
        <translation>%1 ha finalizado la transferencia.</translation>
    </message>
    <message>
        <source>More than one PC goes by %1: %2. Name the one that is meant by its address.</source>
        <translation>%1 corresponde a más de un PC: %2. Indique la dirección del que desea.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::Session</name>
    <message>
        <source>Unknown command: %1</source>
        <translation>Orden desconocida: %1</translation>
    </message>
    <message>
        <source>The other PC did not end the session: not everything may have arrived.</source>
        <translation>El otro PC no ha finalizado la sesión: es posible que no haya llegado todo.</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>Sin respuesta de %1 desde hace %2&#xa0;s</translation>
    </message>
    <message>
        <source>%1 answers again</source>
        <translation>%1 vuelve a responder</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>Hay %1 en camino, pero el espacio libre en %3 es de solo %2: no cabrá todo.</translation>
    </message>
    <message>
        <source>%1 was lost before it said that everything is installed.</source>
        <translation>Se perdió la conexión con %1 antes de que confirmara que todo se había instalado.</translation>
    </message>
    <message>
        <source>%1 called the transfer off before everything was installed.</source>
        <translation>%1 canceló la transferencia antes de que todo se hubiera instalado.</translation>
    </message>
</context>
<context>
    <name>Zandrove::Cli::TextOutput</name>
    <message>
        <source>The code of this PC is %1. Waiting for an Old PC.</source>
        <translation>El código de este PC es %1. Esperando a un PC antiguo.</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>código %1</translation>
    </message>
    <message>
        <source>Found %1. Waiting for it to let this PC in.</source>
        <translation>Se ha encontrado %1. Esperando a que acepte este PC.</translation>
    </message>
    <message>
        <source>%1 was refused.</source>
        <translation>Se ha rechazado %1.</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>Se ha rechazado %1: %2</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Conectado a %1.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Desconectado de %1.</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Recibiendo</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Enviando</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>faltan %1</translation>
    </message>
    <message>
        <source>%1 was not moved: %2</source>
        <translation>No se ha transferido %1: %2</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Transferencia en pausa.</translation>
    </message>
    <message>
        <source>Paused by %1.</source>
        <translation>Transferencia pausada por %1.</translation>
    </message>
    <message>
        <source>Resumed.</source>
        <translation>Transferencia reanudada.</translation>
    </message>
    <message>
        <source>Resumed by %1.</source>
        <translation>Transferencia reanudada por %1.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Transferencia cancelada.</translation>
    </message>
    <message>
        <source>Cancelled by %1.</source>
        <translation>Transferencia cancelada por %1.</translation>
    </message>
    <message>
        <source>Files saved:</source>
        <translation>Archivos guardados:</translation>
    </message>
    <message>
        <source>Scanning %1%  %2 applications</source>
        <translation>Analizando %1&#xa0;%  Aplicaciones: %2</translation>
    </message>
    <message>
        <source>(cannot be moved)</source>
        <translation>(no se puede transferir)</translation>
    </message>
    <message>
        <source>Applications: %1</source>
        <translation>Aplicaciones: %1</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>archivos: %1</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Carpetas: %1</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <translation>Cuentas: %1</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Configuración: %1</translation>
    </message>
    <message>
        <source>%1 in applications and folders.</source>
        <translation>%1 en aplicaciones y carpetas.</translation>
    </message>
    <message>
        <source>Done in %1: %2, %3 on average.</source>
        <translation>Terminado en %1: %2, %3 de media.</translation>
    </message>
    <message>
        <source>Done in %1: %2.</source>
        <translation>Terminado en %1: %2.</translation>
    </message>
    <message>
        <source>Applications:</source>
        <translation>Aplicaciones:</translation>
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
        <translation>Configuración:</translation>
    </message>
    <message>
        <source>applied</source>
        <translation>aplicada</translation>
    </message>
    <message>
        <source>%1 is installing %2...</source>
        <translation>%1 está instalando %2...</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Instalando %1</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 failed, %3 were there before.</source>
        <translation>Archivos que han llegado: %1, con error: %2, ya existentes: %3.</translation>
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
        <translation>Esperando a %1: alguien tiene que pulsar «Sí» allí</translation>
    </message>
    <message>
        <source>Further ones are counted in the report.</source>
        <translation>Los demás se contabilizan en el informe.</translation>
    </message>
    <message>
        <source>Nothing was found that stands in the way.</source>
        <translation>No se ha encontrado ningún obstáculo.</translation>
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
        <translation>Los archivos, las aplicaciones y la configuración se han transferido correctamente</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Files saved to:</source>
        <translation>Archivos guardados en:</translation>
    </message>
    <message>
        <source>Waiting for more files...</source>
        <translation>Esperando más archivos...</translation>
    </message>
    <message>
        <source>✓ Finished</source>
        <translation>✓ Finalizar</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>📂 Send More Files...</source>
        <translation>📂 Enviar más archivos...</translation>
    </message>
    <message>
        <source>Send More Files...</source>
        <translation>Enviar más archivos...</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Archivos recibidos</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Archivos: %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Files: %1 arrived, %2 were there already and identical, %3 were there already and different, %4 failed or are not confirmed</source>
        <translation>Archivos que han llegado: %1, ya existentes e idénticos: %2, ya existentes y distintos: %3, con error o sin confirmar: %4</translation>
    </message>
    <message>
        <source>%1 of %2 apps did not arrive</source>
        <translation>Aplicaciones que no han llegado: %1 de %2</translation>
    </message>
    <message>
        <source>%1 of %2 settings did not arrive</source>
        <translation>Opciones de configuración que no han llegado: %1 de %2</translation>
    </message>
    <message>
        <source>Apps and settings were sent. What became of them stands on the page of %1.</source>
        <translation>Se han enviado aplicaciones y configuración. El resultado figura en la pantalla de %1.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ConnectionPage</name>
    <message>
        <source>Available Devices</source>
        <translation>Dispositivos disponibles</translation>
    </message>
    <message>
        <source>%1 device(s) found, %2 online</source>
        <translation>Dispositivos encontrados: %1, en línea: %2</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Conectando con %1...</translation>
    </message>
    <message>
        <source>Verifying code...</source>
        <translation>Comprobando el código...</translation>
    </message>
    <message>
        <source>Connection request from %1...</source>
        <translation>Solicitud de conexión de %1...</translation>
    </message>
    <message>
        <source>Connection Request</source>
        <translation>Solicitud de conexión</translation>
    </message>
    <message>
        <source>&apos;%1&apos; wants to connect to this PC.

Do you want to accept?</source>
        <translation>«%1» quiere conectarse a este PC.

¿Desea aceptar la solicitud?</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message>
        <source>The other PC is no longer waiting</source>
        <translation>El otro PC ya no está esperando</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>✓ Connected to %1</source>
        <translation>✓ Conectado a %1</translation>
    </message>
    <message>
        <source>✓ Connected successfully!</source>
        <translation>✓ ¡Conexión establecida!</translation>
    </message>
    <message>
        <source>✗ Connection failed: %1</source>
        <translation>✗ Error de conexión: %1</translation>
    </message>
    <message>
        <source>Scanning direct connection... 0%</source>
        <translation>Buscando en la conexión directa... 0&#xa0;%</translation>
    </message>
    <message>
        <source>Scanning Direct Connection...</source>
        <translation>Buscando en la conexión directa...</translation>
    </message>
    <message>
        <source>Scanning direct connection... %1% (%2/%3)</source>
        <translation>Buscando en la conexión directa... %1&#xa0;% (%2/%3)</translation>
    </message>
    <message>
        <source>No device found. Please ensure the other PC has Zandrove running</source>
        <translation>No se encontró ningún dispositivo. Compruebe que Zandrove esté abierto en el otro PC</translation>
    </message>
    <message>
        <source>Looking for devices on your network...</source>
        <translation>Buscando dispositivos en la red...</translation>
    </message>
    <message>
        <source>🔄 Refresh</source>
        <translation>🔄 Actualizar</translation>
    </message>
    <message>
        <source>Connect to Another PC</source>
        <translation>Conéctese a otro PC</translation>
    </message>
    <message>
        <source>Select a device or enter verification code</source>
        <translation>Seleccione un dispositivo o escriba un código de verificación</translation>
    </message>
    <message>
        <source>💡 Both PCs must be on the same network with Zandrove running</source>
        <translation>💡 Los dos PC deben estar en la misma red y tener Zandrove abierto</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Scanned: 0 / 254</source>
        <translation>Direcciones probadas: 0 / 254</translation>
    </message>
    <message>
        <source>Please ensure the network cable is connected</source>
        <translation>Compruebe que el cable de red esté conectado</translation>
    </message>
    <message>
        <source>Your Verification Code</source>
        <translation>Su código de verificación</translation>
    </message>
    <message>
        <source>Show this code to the other PC</source>
        <translation>Escriba este código en el otro PC</translation>
    </message>
    <message>
        <source>Or Enter Their Code</source>
        <translation>O escriba el código del otro PC</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Their code, character %1</source>
        <translation>Código del otro PC, carácter %1</translation>
    </message>
    <message>
        <source>This is the address of this PC.</source>
        <translation>Esta es la dirección de este PC.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses work here, such as 192.168.1.23.</source>
        <translation>Aquí solo sirven las direcciones IPv4, como 192.168.1.23.</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255, such as 192.168.1.23.</source>
        <translation>Una dirección consta de cuatro números del 0 al 255, como 192.168.1.23.</translation>
    </message>
    <message>
        <source>This is not the address of one PC.</source>
        <translation>Esta no es la dirección de un único PC.</translation>
    </message>
    <message>
        <source>This is neither an address nor the name of a PC.</source>
        <translation>Esto no es ni una dirección ni el nombre de un PC.</translation>
    </message>
    <message>
        <source>Address or name of the other PC</source>
        <translation>Dirección o nombre del otro PC</translation>
    </message>
    <message>
        <source>Or Enter Their Address</source>
        <translation>O escriba la dirección del otro PC</translation>
    </message>
    <message>
        <source>Looking for %1...</source>
        <translation>Buscando %1...</translation>
    </message>
    <message>
        <source>No PC named %1 was found. Its address may work instead.</source>
        <translation>No se encontró ningún PC con el nombre %1. Pruebe con su dirección.</translation>
    </message>
    <message>
        <source>%1 has no IPv4 address.</source>
        <translation>%1 no tiene ninguna dirección IPv4.</translation>
    </message>
    <message>
        <source>Address of this PC: %1</source>
        <translation>Dirección de este PC: %1</translation>
    </message>
    <message>
        <source>Enter their code instead</source>
        <translation>Escribir el código del otro PC</translation>
    </message>
    <message>
        <source>Enter an address instead</source>
        <translation>Escribir una dirección</translation>
    </message>
    <message>
        <source>Waiting for %1: somebody has to press Yes there</source>
        <translation>Esperando a %1: alguien tiene que pulsar «Sí» allí</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>No hay conexión con %1: %2.</translation>
    </message>
    <message>
        <source>Its address: %1</source>
        <translation>Su dirección: %1</translation>
    </message>
    <message>
        <source>Zandrove is open on the other PC too, and shows this page there.</source>
        <translation>Zandrove también está abierto en el otro PC y muestra allí esta página.</translation>
    </message>
    <message>
        <source>The network cable is plugged in on both PCs, and its lights are on.</source>
        <translation>El cable de red está conectado a los dos PC y sus luces están encendidas.</translation>
    </message>
    <message>
        <source>Both are in the same network, and neither in a guest Wi-Fi or a VPN.</source>
        <translation>Los dos están en la misma red y ninguno está en una red Wi-Fi de invitados ni en una VPN.</translation>
    </message>
    <message>
        <source>One of the two is the Old PC, and the other one the New PC.</source>
        <translation>Uno de los dos es el PC antiguo y el otro, el PC nuevo.</translation>
    </message>
    <message>
        <source>The firewalls of both PCs let Zandrove through.</source>
        <translation>Los firewalls de los dos PC permiten el paso a Zandrove.</translation>
    </message>
    <message>
        <source>Nobody found yet. Please check, the likeliest first:</source>
        <translation>Aún no se ha encontrado a nadie. Compruebe lo siguiente, empezando por lo más probable:</translation>
    </message>
    <message>
        <source>Can&apos;t find the other PC?</source>
        <translation>¿No encuentra el otro PC?</translation>
    </message>
    <message>
        <source>Back to the devices</source>
        <translation>Volver a los dispositivos</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Comprobar de nuevo</translation>
    </message>
    <message>
        <source>Looking at this PC and its network. This takes some seconds...</source>
        <translation>Examinando este PC y su red. Tardará unos segundos...</translation>
    </message>
    <message>
        <source>Nothing was found here that stands in the way. Please check on the other PC as well.</source>
        <translation>Aquí no se ha encontrado ningún obstáculo. Compruebe también el otro PC.</translation>
    </message>
    <message>
        <source>What is marked with ✗ stands in the way.</source>
        <translation>Lo marcado con ✗ impide la conexión.</translation>
    </message>
    <message>
        <source>another program, maybe a second Zandrove</source>
        <translation>otro programa, quizá otro Zandrove</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so no other PC can connect to this one. Please close that program, then try again.</source>
        <translation>El puerto %1 está ocupado por %2, por lo que ningún otro PC puede conectarse a este. Cierre ese programa y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Port %1 is taken by %2, so this PC does not hear other PCs. Please close that program, then try again.</source>
        <translation>El puerto %1 está ocupado por %2, por lo que este PC no detecta otros PC. Cierre ese programa y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as Old PC: choose New PC on one of the two</source>
        <translation>%1 también está aquí, pero igualmente como PC antiguo: elija «PC nuevo» en uno de los dos</translation>
    </message>
    <message>
        <source>%1 is here too, but also as New PC: choose Old PC on one of the two</source>
        <translation>%1 también está aquí, pero igualmente como PC nuevo: elija «PC antiguo» en uno de los dos</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
</context>
<context>
    <name>Zandrove::Diagnosis</name>
    <message>
        <source>wired</source>
        <translation>por cable</translation>
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
        <translation>%1 tiene la dirección %2.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but is connected to nothing.</source>
        <translation>%1 tiene la dirección %2, pero no está conectado a nada.</translation>
    </message>
    <message>
        <source>Plug in its cable, or join a network with it.</source>
        <translation>Conecte su cable o conéctelo a una red.</translation>
    </message>
    <message>
        <source>%1 has the address %2, but no broadcast can leave by it: %3.</source>
        <translation>%1 tiene la dirección %2, pero no puede enviar ninguna difusión: %3.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps Zandrove from sending.</source>
        <translation>Busque en este PC un firewall o programa de seguridad que impida enviar a Zandrove.</translation>
    </message>
    <message>
        <source>%1 has the address %2, and broadcasts leave by it.</source>
        <translation>%1 tiene la dirección %2 y envía difusiones.</translation>
    </message>
    <message>
        <source>%1 is connected, but has no address yet.</source>
        <translation>%1 está conectado, pero aún no tiene dirección.</translation>
    </message>
    <message>
        <source>Wait a minute. If none comes, see whether the router is on; over a direct cable, set this connection to link-local addresses.</source>
        <translation>Espere un minuto. Si no recibe ninguna, compruebe que el router esté encendido; con un cable directo, configure esta conexión para usar direcciones de enlace local.</translation>
    </message>
    <message>
        <source>%1 is connected to nothing.</source>
        <translation>%1 no está conectado a nada.</translation>
    </message>
    <message>
        <source>This PC has only an address that it gave itself, %1.</source>
        <translation>Este PC solo tiene una dirección que se ha asignado él mismo, %1.</translation>
    </message>
    <message>
        <source>Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a network, see whether the router is on.</source>
        <translation>Con un cable directo, es lo normal: elija «Modo de cable» en los dos PC. En una red, compruebe que el router esté encendido.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is meant for the network %2 of %3.</source>
        <translation>La VPN %1 desvía lo que va destinado a la red %2 de %3.</translation>
    </message>
    <message>
        <source>Disconnect the VPN until everything has moved.</source>
        <translation>Desconecte la VPN hasta que se haya transferido todo.</translation>
    </message>
    <message>
        <source>The VPN %1 takes what is not for a local network.</source>
        <translation>La VPN %1 desvía lo que no va destinado a una red local.</translation>
    </message>
    <message>
        <source>Disconnect it if the PCs don&apos;t find each other: many a VPN keeps its PC away from the local network.</source>
        <translation>Desconéctela si los PC no se encuentran: muchas VPN aíslan el PC de la red local.</translation>
    </message>
    <message>
        <source>This PC is in no network.</source>
        <translation>Este PC no está en ninguna red.</translation>
    </message>
    <message>
        <source>Plug in a cable, or join a Wi-Fi.</source>
        <translation>Conecte un cable o únase a una red Wi-Fi.</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>PC nuevo</translation>
    </message>
    <message>
        <source>Old PC</source>
        <translation>PC antiguo</translation>
    </message>
    <message>
        <source>What is meant for it leaves by the VPN %1: disconnect that first.</source>
        <translation>Lo que va destinado a ese PC sale por la VPN %1: desconéctela primero.</translation>
    </message>
    <message>
        <source>Run this diagnosis on %1: its port may be taken there, or its firewall turns connections away.</source>
        <translation>Ejecute este diagnóstico en %1: puede que allí el puerto esté ocupado o que el firewall rechace las conexiones.</translation>
    </message>
    <message>
        <source>Let Zandrove through the firewall of %1: TCP port %2.</source>
        <translation>Permita el paso a Zandrove en el firewall de %1: puerto TCP %2.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but refuses connections on TCP port %4.</source>
        <translation>%1 (%2) se anuncia como «%3», pero rechaza las conexiones en el puerto TCP %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but can&apos;t be connected to: %4.</source>
        <translation>%1 (%2) se anuncia como «%3», pero no es posible conectarse a él: %4.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, but does not answer on TCP port %4.</source>
        <translation>%1 (%2) se anuncia como «%3», pero no responde en el puerto TCP %4.</translation>
    </message>
    <message>
        <source>%1 is here too, but also as %2.</source>
        <translation>%1 también está aquí, pero igualmente como «%2».</translation>
    </message>
    <message>
        <source>Choose %1 on one of the two.</source>
        <translation>Elija «%1» en uno de los dos.</translation>
    </message>
    <message>
        <source>%1 (%2) is heard as %3, and answers.</source>
        <translation>%1 (%2) se anuncia como «%3» y responde.</translation>
    </message>
    <message>
        <source>Nobody here knows a PC by the name %1.</source>
        <translation>Aquí nadie conoce ningún PC con el nombre %1.</translation>
    </message>
    <message>
        <source>Give its address instead; its page of connections shows it.</source>
        <translation>Indique su dirección; la muestra su página de conexión.</translation>
    </message>
    <message>
        <source>%1 is this PC itself.</source>
        <translation>%1 es este mismo PC.</translation>
    </message>
    <message>
        <source>Give the address of the other PC.</source>
        <translation>Indique la dirección del otro PC.</translation>
    </message>
    <message>
        <source>%1 answers on TCP port %2, but is not heard on UDP port %3.</source>
        <translation>%1 responde en el puerto TCP %2, pero no se detecta en el puerto UDP %3.</translation>
    </message>
    <message>
        <source>Open the page of connections there, and UDP port %1 in the firewalls of both PCs; or connect by the address.</source>
        <translation>Abra allí la página de conexión, y el puerto UDP %1 en los firewalls de los dos PC; o conéctese mediante la dirección.</translation>
    </message>
    <message>
        <source>%1 is there, but refuses connections on TCP port %2.</source>
        <translation>%1 está ahí, pero rechaza las conexiones en el puerto TCP %2.</translation>
    </message>
    <message>
        <source>Open Zandrove there, up to its page of connections.</source>
        <translation>Abra Zandrove allí, hasta llegar a la página de conexión.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be connected to: %2.</source>
        <translation>No es posible conectarse a %1: %2.</translation>
    </message>
    <message>
        <source>See whether the address is right, and both PCs are in the same network.</source>
        <translation>Compruebe que la dirección sea correcta y que los dos PC estén en la misma red.</translation>
    </message>
    <message>
        <source>%1 does not answer on TCP port %2, and is not heard.</source>
        <translation>%1 no responde en el puerto TCP %2 y no se detecta.</translation>
    </message>
    <message>
        <source>See whether the address is right, that PC on, and its firewall open for Zandrove.</source>
        <translation>Compruebe que la dirección sea correcta, que ese PC esté encendido y que su firewall permita el paso a Zandrove.</translation>
    </message>
    <message>
        <source>This PC doesn&apos;t hear its own broadcasts on %1.</source>
        <translation>Este PC no recibe sus propias difusiones en %1.</translation>
    </message>
    <message>
        <source>Look for a firewall or security program on this PC that keeps out UDP port %1.</source>
        <translation>Busque en este PC un firewall o programa de seguridad que bloquee el puerto UDP %1.</translation>
    </message>
    <message>
        <source>Nobody has answered on %1, and it has no router.</source>
        <translation>Nadie ha respondido en %1, que no tiene router.</translation>
    </message>
    <message>
        <source>If the other PC should be there, see whether its end of the cable, or its network, is on.</source>
        <translation>Si el otro PC debería estar ahí, compruebe que su extremo del cable o su red estén activos.</translation>
    </message>
    <message>
        <source>No other PC was heard within %1 s.</source>
        <translation>No se ha detectado ningún otro PC en %1 s.</translation>
    </message>
    <message>
        <source>Open Zandrove on the other PC, up to its page of connections, and put both PCs into the same network.</source>
        <translation>Abra Zandrove en el otro PC, hasta llegar a la página de conexión, y conecte los dos PC a la misma red.</translation>
    </message>
    <message>
        <source>TCP port %1</source>
        <translation>puerto TCP %1</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>puerto UDP %1</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>El %1 está libre.</translation>
    </message>
    <message>
        <source>%1 is held by Zandrove, as it should be.</source>
        <translation>El %1 está en uso por Zandrove, como debe ser.</translation>
    </message>
    <message>
        <source>%1 is taken by another program.</source>
        <translation>El %1 está ocupado por otro programa.</translation>
    </message>
    <message>
        <source>%1 is taken by %2.</source>
        <translation>El %1 está ocupado por %2.</translation>
    </message>
    <message>
        <source>Find out which one it is, close it, and start Zandrove anew.</source>
        <translation>Averigüe cuál es, ciérrelo y vuelva a iniciar Zandrove.</translation>
    </message>
    <message>
        <source>Close that program, and start Zandrove anew.</source>
        <translation>Cierre ese programa y vuelva a iniciar Zandrove.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y el %2</translation>
    </message>
    <message>
        <source>%1 is on, and lets both ports in.</source>
        <translation>%1 está activado y deja entrar los dos puertos.</translation>
    </message>
    <message>
        <source>%1 is on, and keeps out %2.</source>
        <translation>%1 está activado y bloquea el %2.</translation>
    </message>
    <message>
        <source>Have it let both ports in.</source>
        <translation>Configúrelo para que deje entrar los dos puertos.</translation>
    </message>
    <message>
        <source>%1 is on, and it depends on the sender, or on rules that can&apos;t be judged here, whether it lets both ports in.</source>
        <translation>%1 está activado y que deje entrar los dos puertos depende del remitente o de reglas que no se pueden evaluar aquí.</translation>
    </message>
    <message>
        <source>See whether its rules let in %1 and %2.</source>
        <translation>Compruebe que sus reglas dejen entrar el %1 y el %2.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be read without administrator rights.</source>
        <translation>%1 no se ha podido consultar sin derechos de administrador.</translation>
    </message>
    <message>
        <source>%1 gave no answer that could be read.</source>
        <translation>%1 no ha dado ninguna respuesta legible.</translation>
    </message>
    <message>
        <source>%1 is off.</source>
        <translation>%1 está desactivado.</translation>
    </message>
    <message>
        <source>No firewall was found of those that can be asked.</source>
        <translation>No se ha encontrado ninguno de los firewalls que se pueden consultar.</translation>
    </message>
    <message>
        <source>The system treats the network %1 as public.</source>
        <translation>El sistema considera pública la red %1.</translation>
    </message>
    <message>
        <source>If it is your own, set it to private in the network settings.</source>
        <translation>Si es su propia red, márquela como privada en la configuración de red.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileBrowserWidget</name>
    <message>
        <source>Quick Access</source>
        <translation>Acceso rápido</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Desmarcar todo</translation>
    </message>
    <message>
        <source>Select folders to transfer</source>
        <translation>Seleccione las carpetas que desea transferir</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>My Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
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
        <translation>Descargas</translation>
    </message>
    <message>
        <source>This PC</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>Local Disk (%1)</source>
        <translation>Disco local (%1)</translation>
    </message>
    <message>
        <source> - %1 free of %2</source>
        <translation> – %1 disponibles de %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileCopy</name>
    <message>
        <source>it became shorter meanwhile</source>
        <translation>se ha acortado entretanto</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileReceiverWorker</name>
    <message>
        <source>Write error</source>
        <translation>Error de escritura</translation>
    </message>
    <message>
        <source>Received Files</source>
        <translation>Archivos recibidos</translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>No se pudo crear el archivo</translation>
    </message>
    <message>
        <source>Checksum mismatch</source>
        <translation>La suma de comprobación no coincide</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>ha cambiado durante el envío</translation>
    </message>
    <message>
        <source>It did not arrive whole</source>
        <translation>No ha llegado por completo</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileScanner</name>
    <message>
        <source>Starting folder scan...</source>
        <translation>Iniciando el análisis de las carpetas...</translation>
    </message>
</context>
<context>
    <name>Zandrove::FileSenderWorker</name>
    <message>
        <source>File not found: %1</source>
        <translation>No se encontró el archivo: %1</translation>
    </message>
    <message>
        <source>Cannot open file: %1</source>
        <translation>No se puede abrir el archivo: %1</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>Cancelled before it was sent whole</source>
        <translation>Cancelado antes de terminar el envío</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>changed while it was sent</source>
        <translation>ha cambiado durante el envío</translation>
    </message>
</context>
<context>
    <name>Zandrove::FindingRow</name>
    <message>
        <source>As it should be</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>May matter</source>
        <translation>Puede influir</translation>
    </message>
    <message>
        <source>In the way</source>
        <translation>Impide la conexión</translation>
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
        <translation>Ejecutar como administrador</translation>
    </message>
    <message>
        <source>Done. Please check again.</source>
        <translation>Hecho. Compruebe de nuevo.</translation>
    </message>
    <message>
        <source>That did not work.</source>
        <translation>No ha funcionado.</translation>
    </message>
</context>
<context>
    <name>Zandrove::FolderListItem</name>
    <message>
        <source>%1 files, %2</source>
        <translation>Archivos: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Error de configuración</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>No se puede cargar el vínculo de la página.

Póngase en contacto con el soporte técnico o vuelva a instalar el software.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>No se puede abrir el navegador</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>No se puede abrir el navegador predeterminado.

Copie el vínculo y ábralo manualmente:
%1</translation>
    </message>
</context>
<context>
    <name>Zandrove::LinkWatch</name>
    <message>
        <source>No answer from the other PC for %1 s</source>
        <translation>Sin respuesta del otro PC desde hace %1&#xa0;s</translation>
    </message>
    <message>
        <source>No answer from %1 for %2 s</source>
        <translation>Sin respuesta de %1 desde hace %2&#xa0;s</translation>
    </message>
    <message>
        <source>The connection to %1 is lost.</source>
        <translation>Se ha perdido la conexión con %1.</translation>
    </message>
    <message>
        <source>The connection to the other PC is lost.</source>
        <translation>Se ha perdido la conexión con el otro PC.</translation>
    </message>
    <message>
        <source>Back to connections</source>
        <translation>Volver a las conexiones</translation>
    </message>
    <message>
        <source>Show report</source>
        <translation>Mostrar el informe</translation>
    </message>
</context>
<context>
    <name>Zandrove::MainWindow</name>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Siguiente →</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>PC Migration Tool</source>
        <translation>Herramienta de migración de PC</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Transfer files, apps, and settings between PCs easily.</source>
        <translation>Transfiera fácilmente archivos, aplicaciones y configuración de un PC a otro.</translation>
    </message>
    <message>
        <source>Copyright © %1. All rights reserved.</source>
        <translation>Copyright © %1. Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>About Zandrove</source>
        <translation>Acerca de Zandrove</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma cambiado</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Se ha cambiado el idioma.

La aplicación se reiniciará ahora.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrar producto</translation>
    </message>
    <message>
        <source>This copy of Zandrove is registered.</source>
        <translation>Esta copia de Zandrove está registrada.</translation>
    </message>
    <message>
        <source>This copy of Zandrove is not registered.</source>
        <translation>Esta copia de Zandrove no está registrada.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Atrás</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>Zandrove::MissingItems</name>
    <message>
        <source>Did not arrive</source>
        <translation>No ha llegado</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>Copiar la lista</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Guardar el informe…</translation>
    </message>
    <message>
        <source>The list is on the clipboard.</source>
        <translation>La lista está en el Portapapeles.</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Guardar el informe</translation>
    </message>
    <message>
        <source>Page (*.html);;JSON (*.json)</source>
        <translation>Página web (*.html);;JSON (*.json)</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>El informe se ha guardado.</translation>
    </message>
</context>
<context>
    <name>Zandrove::NetworkManager</name>
    <message>
        <source>PC not found</source>
        <translation>No se encontró el PC</translation>
    </message>
    <message>
        <source>No device found with verification code: %1</source>
        <translation>No se encontró ningún dispositivo con el código de verificación: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Se agotó el tiempo de espera de la conexión</translation>
    </message>
    <message>
        <source>Connection rejected</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message>
        <source>PC at %1</source>
        <translation>PC en %1</translation>
    </message>
</context>
<context>
    <name>Zandrove::PCListItem</name>
    <message>
        <source>Online</source>
        <translation>En línea</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
</context>
<context>
    <name>Zandrove::ProgressCard</name>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Tiempo restante</translation>
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
        <translation>Paso %1 de %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReceivingRun</name>
    <message>
        <source>the link was lost</source>
        <translation>se ha perdido la conexión</translation>
    </message>
    <message>
        <source>its installation was stopped at %1 %</source>
        <translation>su instalación se interrumpió al %1 %</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReplacingFile</name>
    <message>
        <source>a folder of this name stands in its place</source>
        <translation>en su lugar hay una carpeta con este nombre</translation>
    </message>
    <message>
        <source>the file that stands there is read-only</source>
        <translation>el archivo que hay allí es de solo lectura</translation>
    </message>
</context>
<context>
    <name>Zandrove::ReportDocument</name>
    <message>
        <source>Old PC</source>
        <translation>PC antiguo</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>PC nuevo</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Took</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Transferido</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>No transferido</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Con error</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Qué hacer a continuación</translation>
    </message>
    <message>
        <source>Where the files lie</source>
        <translation>Dónde están los archivos</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Place on %1</source>
        <translation>Ubicación en %1</translation>
    </message>
    <message>
        <source>App</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Apps and settings</source>
        <translation>Aplicaciones y configuración</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation, as in &quot;de&quot; or &quot;zh-TW&quot;.</extracomment>
        <translation>es</translation>
    </message>
    <message>
        <source>%1 report</source>
        <translation>Informe de %1</translation>
    </message>
    <message>
        <source>This transfer</source>
        <translation>Esta transferencia</translation>
    </message>
    <message>
        <source>Files that did not arrive</source>
        <translation>Archivos que no han llegado</translation>
    </message>
    <message>
        <source>Files that were there already, with other content</source>
        <translation>Archivos que ya existían, con otro contenido</translation>
    </message>
    <message>
        <source>The report %1 can&apos;t be written: %2</source>
        <translation>No se puede escribir el informe %1: %2</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>There already, identical</source>
        <translation>Ya existía, idéntico</translation>
    </message>
    <message>
        <source>There already, and different</source>
        <translation>Ya existía, pero distinto</translation>
    </message>
    <message>
        <source>%1 were there already, identical.</source>
        <translation>Ya existentes, idénticos: %1.</translation>
    </message>
    <message>
        <source>Zandrove report</source>
        <translation>Informe de Zandrove</translation>
    </message>
</context>
<context>
    <name>Zandrove::RoleCard</name>
    <message>
        <source>Old PC</source>
        <translation>PC antiguo</translation>
    </message>
    <message>
        <source>New PC</source>
        <translation>PC nuevo</translation>
    </message>
    <message>
        <source>Source / Sender</source>
        <translation>Origen / Remitente</translation>
    </message>
    <message>
        <source>Target / Receiver</source>
        <translation>Destino / Destinatario</translation>
    </message>
</context>
<context>
    <name>Zandrove::RolePage</name>
    <message>
        <source>Select This PC&apos;s Role</source>
        <translation>Seleccione la función de este PC</translation>
    </message>
    <message>
        <source>Choose what role this computer plays in the transfer</source>
        <translation>Elija qué función tiene este equipo en la transferencia</translation>
    </message>
    <message>
        <source>Both computers need Zandrove installed and running</source>
        <translation>Zandrove debe estar instalado y abierto en los dos equipos</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunLedger</name>
    <message>
        <source>changed while it was sent</source>
        <translation>ha cambiado durante el envío</translation>
    </message>
    <message>
        <source>%1 does not say why</source>
        <translation>%1 no indica el motivo</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>se ha enviado, pero %1 no ha confirmado que haya llegado</translation>
    </message>
    <message>
        <source>not moved: the transfer ended before its turn</source>
        <translation>no se ha transferido: la transferencia terminó antes de su turno</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>ya existía</translation>
    </message>
    <message>
        <source>there already, identical</source>
        <translation>ya existía, idéntico</translation>
    </message>
    <message>
        <source>there already, and different: the one from the Old PC was not moved</source>
        <translation>ya existía, pero distinto: la versión del PC antiguo no se ha transferido</translation>
    </message>
</context>
<context>
    <name>Zandrove::RunTexts</name>
    <message>
        <source>drive %1</source>
        <translation>la unidad %1</translation>
    </message>
    <message>
        <source>%1 of %2 files did not arrive</source>
        <translation>Archivos que no han llegado (%1 de %2)</translation>
    </message>
    <message>
        <source>%1 of %2 files arrived; nothing was deleted on the Old PC</source>
        <translation>Archivos que han llegado: %1 de %2; no se ha eliminado nada en el PC antiguo</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Transferencia cancelada</translation>
    </message>
    <message>
        <source>Transfer cancelled by %1</source>
        <translation>Transferencia cancelada por %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost</source>
        <translation>Se ha perdido la conexión con %1</translation>
    </message>
    <message>
        <source>Transfer ended by %1</source>
        <translation>Transferencia finalizada por %1</translation>
    </message>
    <message>
        <source>Transfer not finished</source>
        <translation>Transferencia sin terminar</translation>
    </message>
    <message>
        <source>Transfer finished, %1</source>
        <translation>Transferencia finalizada. %1</translation>
    </message>
    <message>
        <source>Transfer finished, but not everything was moved</source>
        <translation>Transferencia finalizada, pero no se ha transferido todo</translation>
    </message>
    <message>
        <source>Transfer Complete!</source>
        <translation>¡Transferencia completada!</translation>
    </message>
    <message>
        <source>no space left on %1 of %2: %3 files, %4 did not fit</source>
        <translation>no queda espacio en %1 de %2; archivos que no cabían: %3 (%4)</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>se ha transferido</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>ya existía</translation>
    </message>
    <message>
        <source>was there already, and different</source>
        <translation>ya existía, con otro contenido</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>error</translation>
    </message>
    <message>
        <source>not confirmed</source>
        <translation>sin confirmar</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>aún no se sabe</translation>
    </message>
    <message>
        <source>Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.</source>
        <translation>Abra algunos de los archivos en %1 antes de desprenderse del PC antiguo. En él no se ha eliminado nada.</translation>
    </message>
    <message>
        <source>Make room for %1 on %2 of %3, or move less.</source>
        <translation>Libere %1 en %2 de %3 o transfiera menos datos.</translation>
    </message>
    <message>
        <source>Some files stood on %1 before, with other content. Compare the two versions. To get the one from the Old PC, rename or move the one on %1, and move the same folder again.</source>
        <translation>Algunos archivos ya existían en %1, con otro contenido. Compare las dos versiones. Para obtener la del PC antiguo, cambie el nombre de la que está en %1 o muévala, y vuelva a transferir la misma carpeta.</translation>
    </message>
    <message>
        <source>Connect the two PCs again and start the same transfer: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Vuelva a conectar los dos PC e inicie la misma transferencia: lo que ya ha llegado se omite y solo se transfiere lo que falta.</translation>
    </message>
    <message>
        <source>Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there.</source>
        <translation>Conserve el PC antiguo tal como está hasta que no falte nada. En él no se ha eliminado nada.</translation>
    </message>
    <message>
        <source>[App] %1</source>
        <translation>[Aplicación] %1</translation>
    </message>
    <message>
        <source>[Setting] %1</source>
        <translation>[Configuración] %1</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Y %1 más.</translation>
    </message>
    <message>
        <source>1 announced file did not come. The report of %1 names it.</source>
        <translation>No ha llegado 1 archivo anunciado. El informe de %1 indica cuál es.</translation>
    </message>
    <message>
        <source>%1 announced files did not come. The report of %2 names them.</source>
        <translation>No han llegado %1 archivos anunciados. El informe de %2 indica cuáles son.</translation>
    </message>
    <message>
        <source>Read the reasons in the list.</source>
        <translation>Lea los motivos en la lista.</translation>
    </message>
    <message>
        <source>Read the reasons in the report of %1.</source>
        <translation>Lea los motivos en el informe de %1.</translation>
    </message>
    <message>
        <source>Once they are gone, start the same transfer again: what has arrived is skipped, only what is missing is moved.</source>
        <translation>Cuando estén resueltos, inicie de nuevo la misma transferencia: lo que ya ha llegado se omite y solo se transfiere lo que falta.</translation>
    </message>
</context>
<context>
    <name>Zandrove::ScanningPage</name>
    <message>
        <source>Finding apps, files and settings to transfer...</source>
        <translation>Buscando las aplicaciones, los archivos y la configuración que se pueden transferir...</translation>
    </message>
    <message>
        <source>Scanning system...</source>
        <translation>Analizando el sistema...</translation>
    </message>
    <message>
        <source>Scanning Your PC</source>
        <translation>Analizando su PC</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>Scan complete!</source>
        <translation>¡Análisis completado!</translation>
    </message>
    <message>
        <source>Found items ready to transfer</source>
        <translation>Hay elementos listos para transferir</translation>
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
        <translation>Aplicaciones (%1)</translation>
    </message>
    <message>
        <source>Files (%1)</source>
        <translation>Archivos (%1)</translation>
    </message>
    <message>
        <source>Settings (%1)</source>
        <translation>Configuración (%1)</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Accounts &amp; Settings</source>
        <translation>Cuentas y configuración</translation>
    </message>
    <message>
        <source>Total: 0 GB</source>
        <translation>Total: 0&#xa0;GB</translation>
    </message>
    <message>
        <source>Select Content to Transfer</source>
        <translation>Seleccione el contenido que desea transferir</translation>
    </message>
    <message>
        <source>Select All Applications</source>
        <translation>Seleccionar todas las aplicaciones</translation>
    </message>
    <message>
        <source>User Accounts</source>
        <translation>Cuentas de usuario</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Configuración del sistema</translation>
    </message>
    <message>
        <source>Same-name files:</source>
        <translation>Archivos con el mismo nombre:</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Existing apps:</source>
        <translation>Aplicaciones existentes:</translation>
    </message>
</context>
<context>
    <name>Zandrove::SendingRun</name>
    <message>
        <source>File not found: %1</source>
        <translation>No se encontró el archivo: %1</translation>
    </message>
    <message>
        <source>Files of %1 that did not arrive: %2</source>
        <translation>Archivos de %1 que no han llegado: %2</translation>
    </message>
    <message>
        <source>sent; what became of it stands in the report of %1</source>
        <translation>se ha enviado; el resultado figura en el informe de %1</translation>
    </message>
    <message>
        <source>sent, but %1 has not confirmed that it arrived</source>
        <translation>se ha enviado, pero %1 no ha confirmado que haya llegado</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingMigrator</name>
    <message>
        <source>Export failed</source>
        <translation>Error al exportar</translation>
    </message>
    <message>
        <source>Failed to apply setting</source>
        <translation>No se pudo aplicar la configuración</translation>
    </message>
    <message>
        <source>stopped before it was applied</source>
        <translation>se interrumpió antes de aplicar la configuración</translation>
    </message>
    <message>
        <source>it did not arrive whole</source>
        <translation>no ha llegado por completo</translation>
    </message>
    <message>
        <source>stopped while it was being applied</source>
        <translation>se interrumpió mientras se aplicaba la configuración</translation>
    </message>
</context>
<context>
    <name>Zandrove::SettingScanner</name>
    <message>
        <source>Scanning system settings...</source>
        <translation>Analizando la configuración del sistema...</translation>
    </message>
    <message>
        <source>Desktop Wallpaper</source>
        <translation>Fondo de escritorio</translation>
    </message>
    <message>
        <source>Personalization</source>
        <translation>Personalización</translation>
    </message>
    <message>
        <source>Current desktop background image</source>
        <translation>Imagen actual del fondo de escritorio</translation>
    </message>
    <message>
        <source>Scanning taskbar settings...</source>
        <translation>Analizando la configuración de la barra de tareas...</translation>
    </message>
    <message>
        <source>Taskbar Settings</source>
        <translation>Configuración de la barra de tareas</translation>
    </message>
    <message>
        <source>Taskbar position, auto-hide, and icon settings</source>
        <translation>Posición, ocultación automática e iconos de la barra de tareas</translation>
    </message>
    <message>
        <source>Scanning file explorer settings...</source>
        <translation>Analizando las opciones del Explorador de archivos...</translation>
    </message>
    <message>
        <source>File Explorer Settings</source>
        <translation>Opciones del Explorador de archivos</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Show hidden files, file extensions, view options</source>
        <translation>Archivos ocultos, extensiones de archivo, opciones de vista</translation>
    </message>
    <message>
        <source>Scanning mouse settings...</source>
        <translation>Analizando la configuración del mouse...</translation>
    </message>
    <message>
        <source>Mouse Settings</source>
        <translation>Configuración del mouse</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Mouse speed, button configuration, scroll settings</source>
        <translation>Velocidad, botones y desplazamiento del mouse</translation>
    </message>
    <message>
        <source>Scanning keyboard settings...</source>
        <translation>Analizando la configuración del teclado...</translation>
    </message>
    <message>
        <source>Keyboard Settings</source>
        <translation>Configuración del teclado</translation>
    </message>
    <message>
        <source>Keyboard repeat rate and delay</source>
        <translation>Velocidad y retraso de repetición del teclado</translation>
    </message>
    <message>
        <source>Scanning power settings...</source>
        <translation>Analizando las opciones de energía...</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Opciones de energía</translation>
    </message>
    <message>
        <source>Current power plan settings</source>
        <translation>Plan de energía actual</translation>
    </message>
    <message>
        <source>Scanning environment variables...</source>
        <translation>Analizando las variables de entorno...</translation>
    </message>
    <message>
        <source>User Environment Variables</source>
        <translation>Variables de entorno del usuario</translation>
    </message>
    <message>
        <source>User-defined environment variables (%1 variables)</source>
        <translation>Variables de entorno definidas por el usuario (%1)</translation>
    </message>
    <message>
        <source>Scanning display settings...</source>
        <translation>Analizando la configuración de pantalla...</translation>
    </message>
    <message>
        <source>Theme &amp; Display Settings</source>
        <translation>Configuración de tema y pantalla</translation>
    </message>
    <message>
        <source>Dark/Light mode, transparency, color settings</source>
        <translation>Modo oscuro o claro, transparencia, colores</translation>
    </message>
    <message>
        <source>Scanning sound settings...</source>
        <translation>Analizando la configuración de sonido...</translation>
    </message>
    <message>
        <source>Sound Scheme</source>
        <translation>Combinación de sonidos</translation>
    </message>
    <message>
        <source>System sounds and notification settings</source>
        <translation>Sonidos del sistema y notificaciones</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Análisis completado</translation>
    </message>
</context>
<context>
    <name>Zandrove::StageIndicator</name>
    <message>
        <source>Prepare</source>
        <translation>Preparación</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Comprobación</translation>
    </message>
</context>
<context>
    <name>Zandrove::TitleBar</name>
    <message>
        <source>Activate</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
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
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrar producto</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Comprar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Soporte técnico</translation>
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
        <translation>El administrador de red no está inicializado</translation>
    </message>
    <message>
        <source>Discovery started. Verification code: %1</source>
        <translation>Búsqueda iniciada. Código de verificación: %1</translation>
    </message>
    <message>
        <source>Broadcast restarted. Verification code: %1</source>
        <translation>Difusión reiniciada. Código de verificación: %1</translation>
    </message>
    <message>
        <source>No PC found with verification code: %1</source>
        <translation>No se encontró ningún PC con el código de verificación: %1</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>El código de verificación no es válido</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Error de conexión: %1</translation>
    </message>
    <message>
        <source>Connection timeout</source>
        <translation>Se agotó el tiempo de espera de la conexión</translation>
    </message>
    <message>
        <source>Transfer already in progress</source>
        <translation>Ya hay una transferencia en curso</translation>
    </message>
    <message>
        <source>Cannot start transfer. Check connection and selection.</source>
        <translation>No se puede iniciar la transferencia. Compruebe la conexión y la selección.</translation>
    </message>
    <message>
        <source>Transfer started - %1 items selected</source>
        <translation>Transferencia iniciada – elementos seleccionados: %1</translation>
    </message>
    <message>
        <source>Waiting to receive files...</source>
        <translation>Esperando archivos...</translation>
    </message>
    <message>
        <source>Transfer paused</source>
        <translation>Transferencia en pausa</translation>
    </message>
    <message>
        <source>Transfer resumed</source>
        <translation>Transferencia reanudada</translation>
    </message>
    <message>
        <source>Transfer cancelled</source>
        <translation>Transferencia cancelada</translation>
    </message>
    <message>
        <source>Retrying failed items...</source>
        <translation>Reintentando los elementos con error...</translation>
    </message>
    <message>
        <source>Transfer completed - Success rate: %1%</source>
        <translation>Transferencia completada – porcentaje de éxito: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Transfer failed: %1</source>
        <translation>Error en la transferencia: %1</translation>
    </message>
    <message>
        <source>Engine reset</source>
        <translation>Motor restablecido</translation>
    </message>
    <message>
        <source>Ready for new connection</source>
        <translation>Listo para una nueva conexión</translation>
    </message>
    <message>
        <source>Scan already in progress</source>
        <translation>Ya hay un análisis en curso</translation>
    </message>
    <message>
        <source>Not connected to source PC</source>
        <translation>Sin conexión con el PC de origen</translation>
    </message>
    <message>
        <source>Starting system scan...</source>
        <translation>Iniciando el análisis del sistema...</translation>
    </message>
    <message>
        <source>Scan cancelled</source>
        <translation>Análisis cancelado</translation>
    </message>
    <message>
        <source>Scan error: %1</source>
        <translation>Error de análisis: %1</translation>
    </message>
    <message>
        <source>More than one PC shows the code %1: %2</source>
        <translation>Hay más de un PC que muestra el código %1: %2</translation>
    </message>
</context>
<context>
    <name>Zandrove::TransferPage</name>
    <message>
        <source>Receiving Data</source>
        <translation>Recibiendo datos</translation>
    </message>
    <message>
        <source>Sending Data</source>
        <translation>Enviando datos</translation>
    </message>
    <message>
        <source>Waiting for Data...</source>
        <translation>Esperando datos...</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>En espera...</translation>
    </message>
    <message>
        <source>Receiving Data - %1%</source>
        <translation>Recibiendo datos – %1&#xa0;%</translation>
    </message>
    <message>
        <source>Sending Data - %1%</source>
        <translation>Enviando datos – %1&#xa0;%</translation>
    </message>
    <message>
        <source>Transfer Failed</source>
        <translation>Error en la transferencia</translation>
    </message>
    <message>
        <source>Receiving Paused</source>
        <translation>Recepción en pausa</translation>
    </message>
    <message>
        <source>Sending Paused</source>
        <translation>Envío en pausa</translation>
    </message>
    <message>
        <source>Cancel Transfer</source>
        <translation>Cancelar la transferencia</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the transfer?</source>
        <translation>¿Seguro que desea cancelar la transferencia?</translation>
    </message>
    <message>
        <source>Yes, Cancel</source>
        <translation>Sí, cancelar</translation>
    </message>
    <message>
        <source>Continue Transfer</source>
        <translation>Continuar la transferencia</translation>
    </message>
    <message>
        <source>Sender cancelled. Waiting...</source>
        <translation>Cancelado por el remitente. En espera...</translation>
    </message>
    <message>
        <source>Transferring Data</source>
        <translation>Transfiriendo datos</translation>
    </message>
    <message>
        <source>Current Files</source>
        <translation>Archivos en curso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>▶ Resume</source>
        <translation>▶ Reanudar</translation>
    </message>
    <message>
        <source>⏸ Pause</source>
        <translation>⏸ Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>Con error: %1</translation>
    </message>
    <message>
        <source>received</source>
        <translation>recibido</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviada</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>%1 are on their way, but only %2 are free on %3. Not everything will fit.</source>
        <translation>Hay %1 en camino, pero el espacio libre en %3 es de solo %2: no cabrá todo.</translation>
    </message>
    <message>
        <source>Installing %1 - %2 %</source>
        <translation>Instalando %1 – %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1 is installing...</source>
        <translation>%1 está instalando...</translation>
    </message>
    <message>
        <source>Close Zandrove</source>
        <translation>Cerrar Zandrove</translation>
    </message>
    <message>
        <source>A transfer is running. Closing the window cancels it.</source>
        <translation>Hay una transferencia en curso. Si cierra la ventana, se cancelará.</translation>
    </message>
    <message>
        <source>Cancel and Close</source>
        <translation>Cancelar y cerrar</translation>
    </message>
    <message>
        <source>Back to selection</source>
        <translation>Volver a la selección</translation>
    </message>
    <message>
        <source>What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in your documents.</source>
        <translation>Lo que ha llegado se queda en el PC nuevo y en el PC antiguo no se elimina nada. Se guarda un informe en su carpeta de documentos.</translation>
    </message>
    <message>
        <source>All progress will be lost. Files that have arrived stay; nothing incomplete remains.</source>
        <translation>Se perderá todo el progreso. Los archivos que han llegado se conservan; no queda nada incompleto.</translation>
    </message>
</context>
<context>
    <name>Zandrove::VerifyCodeWidget</name>
    <message>
        <source>Verification Code</source>
        <translation>Código de verificación</translation>
    </message>
    <message>
        <source>Enter on the other PC</source>
        <translation>Escríbalo en el otro PC</translation>
    </message>
</context>
<context>
    <name>Zandrove::WelcomePage</name>
    <message>
        <source>Transfer files, apps and settings to your new PC</source>
        <translation>Transfiera archivos, aplicaciones y configuración a su nuevo PC</translation>
    </message>
    <message>
        <source>Network Mode</source>
        <translation>Modo de red</translation>
    </message>
    <message>
        <source>Wi-Fi / LAN (Same Network)</source>
        <translation>Wi-Fi / LAN (misma red)</translation>
    </message>
    <message>
        <source>Cable Mode</source>
        <translation>Modo de cable</translation>
    </message>
    <message>
        <source>USB-C or Ethernet Cable</source>
        <translation>Cable USB-C o Ethernet</translation>
    </message>
</context>
</TS>
