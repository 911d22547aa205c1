<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CommandHintTexts</name>
    <message>
        <source>A scan is running. Wait until it has ended.</source>
        <translation>Hay un análisis en curso. Espere a que termine.</translation>
    </message>
    <message>
        <source>Scan a disk or a folder first.</source>
        <translation>Analice primero un disco o una carpeta.</translation>
    </message>
    <message>
        <source>This is the home screen already.</source>
        <translation>Ya está en la pantalla de inicio.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is all that was scanned. There is no folder around it here.</source>
        <translation>Solo se ha analizado «%1». Aquí no hay ninguna carpeta por encima.</translation>
    </message>
    <message>
        <source>A rescan is running already. Wait until it has ended.</source>
        <translation>Ya hay un nuevo análisis en curso. Espere a que termine.</translation>
    </message>
    <message>
        <source>Only folders can be scanned again. Select one, or nothing to rescan the folder in view.</source>
        <translation>Solo se pueden volver a analizar carpetas. Seleccione una, o ninguna para volver a analizar la mostrada.</translation>
    </message>
    <message>
        <source>A disk is mounted at &apos;%1&apos;. It is not part of this scan; scan it by itself.</source>
        <translation>Hay un disco montado en «%1». No forma parte de este análisis; analícelo por separado.</translation>
    </message>
    <message>
        <source>This is about whole disks. Scan a disk to see where its space is.</source>
        <translation>Esto solo sirve para discos completos. Analice uno para ver cómo se usa su espacio.</translation>
    </message>
    <message>
        <source>Select a folder first.</source>
        <translation>Seleccione primero una carpeta.</translation>
    </message>
    <message>
        <source>Select a file or a folder first.</source>
        <translation>Seleccione primero un archivo o una carpeta.</translation>
    </message>
    <message>
        <source>There is no box that way.</source>
        <translation>No hay ningún recuadro en esa dirección.</translation>
    </message>
</context>
<context>
    <name>CompressWindow</name>
    <message>
        <source>Compress</source>
        <translation>Comprimir</translation>
    </message>
    <message>
        <source>Icon of the archive</source>
        <translation>Icono del archivo comprimido</translation>
    </message>
    <message>
        <source>Progress of the compression</source>
        <translation>Progreso de la compresión</translation>
    </message>
    <message>
        <source>Move Original to Trash</source>
        <translation>Mover el original a la papelera</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>FileDialogOpenPanel</name>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>FreedSpaceText</name>
    <message>
        <source>%1 has another name elsewhere, and stays.</source>
        <translation>%1 tiene otro nombre en otro lugar y se conserva.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have other names elsewhere, and stay.</source>
        <translation>
            <numerusform>%1 tiene otros nombres en otro lugar y se conserva.</numerusform>
            <numerusform>%1 tienen otros nombres en otro lugar y se conservan.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has another name that was not scanned.</source>
        <translation>%1 tiene otro nombre que no se analizó.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have other names that were not scanned.</source>
        <translation>
            <numerusform>%1 tiene otros nombres que no se analizaron.</numerusform>
            <numerusform>%1 tienen otros nombres que no se analizaron.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is shared with other files.</source>
        <translation>%1 comparte espacio con otros archivos.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are shared with other files.</source>
        <translation>
            <numerusform>%1 comparte espacio con otros archivos.</numerusform>
            <numerusform>%1 comparten espacio con otros archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is compressed: how much it takes is not known.</source>
        <translation>%1 está comprimido: no se sabe cuánto ocupa.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are compressed: how much they take is not known.</source>
        <translation>
            <numerusform>%1 está comprimido: no se sabe cuánto ocupa.</numerusform>
            <numerusform>%1 están comprimidos: no se sabe cuánto ocupan.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is held open by %2.</source>
        <translation>%1 sigue abierto en %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are held open, the first one by %2.</source>
        <translation>
            <numerusform>%1 sigue abierto en %2.</numerusform>
            <numerusform>%1 siguen abiertos, el primero en %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 may be shared with other files.</source>
        <translation>
            <numerusform>%1 puede compartir espacio con otros archivos.</numerusform>
            <numerusform>%1 pueden compartir espacio con otros archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has changed since the scan.</source>
        <translation>%1 ha cambiado desde el análisis.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have changed since the scan.</source>
        <translation>
            <numerusform>%1 ha cambiado desde el análisis.</numerusform>
            <numerusform>%1 han cambiado desde el análisis.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was not looked at.</source>
        <translation>%1 no se examinó.</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not looked at.</source>
        <translation>
            <numerusform>%1 no se examinó.</numerusform>
            <numerusform>%1 no se examinaron.</numerusform>
        </translation>
    </message>
    <message>
        <source>One file</source>
        <translation>Un archivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 archivo</numerusform>
            <numerusform>%1 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>“%1” and one other file</source>
        <translation>«%1» y otro archivo</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 other files</source>
        <translation>
            <numerusform>«%1» y %2 archivo más</numerusform>
            <numerusform>«%1» y %2 archivos más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%1 more</source>
        <translation>
            <numerusform>%1 más</numerusform>
            <numerusform>%1 más</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>al menos %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>Programs that may not be looked at may hold files open.</source>
        <translation>Puede que programas que no se permite examinar tengan archivos abiertos.</translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message>
        <source>Moves to the Trash</source>
        <translation>Movimientos a la papelera</translation>
    </message>
    <message>
        <source>Moves to the trash</source>
        <translation>Movimientos a la papelera</translation>
    </message>
</context>
<context>
    <name>HomeView</name>
    <message>
        <source>Disks and locations</source>
        <translation>Discos y ubicaciones</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>Abrir &amp;carpeta…</translation>
    </message>
    <message>
        <source>Choose any folder and scan it</source>
        <translation>Elegir cualquier carpeta y analizarla</translation>
    </message>
    <message>
        <source>Recent Scans</source>
        <translation>Análisis recientes</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Limpiar</translation>
    </message>
    <message>
        <source>Clear recent scans</source>
        <translation>Limpiar los análisis recientes</translation>
    </message>
    <message>
        <source>Recent scans</source>
        <translation>Análisis recientes</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>A&amp;nalizar</translation>
    </message>
</context>
<context>
    <name>ItemStatusTexts</name>
    <message>
        <source>less than %1% of %2</source>
        <translation>menos del %1&#xa0;% de %2</translation>
    </message>
    <message>
        <source>%1% of %2</source>
        <translation>%1&#xa0;% de %2</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 elemento</numerusform>
            <numerusform>%1 elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>being rescanned</source>
        <translation>se está volviendo a analizar</translation>
    </message>
    <message>
        <source>Small items</source>
        <translation>Elementos pequeños</translation>
    </message>
</context>
<context>
    <name>LedgerListTexts</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Motivo</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>y %1 más</numerusform>
            <numerusform>y %1 más</numerusform>
        </translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Covered by</source>
        <translation>Cubierto por</translation>
    </message>
    <message>
        <source>%2 (%1)</source>
        <translation>%2 (%1)</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Deleted file</source>
        <translation>Archivo eliminado</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
</context>
<context>
    <name>LedgerTexts</name>
    <message>
        <source>There may be more: the system does not tell Tessera what runs.</source>
        <translation>Puede haber más: el sistema no le dice a Tessera qué programas se están ejecutando.</translation>
    </message>
    <message numerus="yes">
        <source>There may be more: Tessera may not look into %1 of the programs that run.</source>
        <translation>
            <numerusform>Puede haber más: Tessera no puede examinar %1 de los programas en ejecución.</numerusform>
            <numerusform>Puede haber más: Tessera no puede examinar %1 de los programas en ejecución.</numerusform>
        </translation>
    </message>
    <message>
        <source>There may be more: not everything could be looked at in time.</source>
        <translation>Puede haber más: no se pudo examinar todo a tiempo.</translation>
    </message>
    <message>
        <source>There may be more, whose size the system does not tell.</source>
        <translation>Puede haber más, cuyo tamaño el sistema no indica.</translation>
    </message>
    <message>
        <source>Nothing was found that is deleted and that a program still has open.</source>
        <translation>No se encontró nada eliminado que un programa mantenga abierto.</translation>
    </message>
    <message>
        <source>Deleted files that programs still have open. End or restart these programs, and the space is free.</source>
        <translation>Archivos eliminados que algún programa mantiene abiertos. Cierre o reinicie esos programas y el espacio quedará libre.</translation>
    </message>
    <message>
        <source>More was found than is in use. That happens where files are compressed, share what they take, or changed while they were counted.</source>
        <translation>Se encontró más de lo que está en uso. Ocurre cuando los archivos están comprimidos, comparten espacio o cambiaron mientras se contaban.</translation>
    </message>
    <message>
        <source>In use, and none of the other lines: journal, records and snapshots of the file system, and whatever nobody could see.</source>
        <translation>En uso y en ninguna de las otras líneas: diario, metadatos e instantáneas del sistema de archivos, y todo lo que nadie pudo ver.</translation>
    </message>
    <message>
        <source>The system does not tell what is hidden below other mounts.</source>
        <translation>El sistema no indica qué está oculto bajo otros puntos de montaje.</translation>
    </message>
    <message>
        <source>Held back by the file system for its own records.</source>
        <translation>Retenido por el sistema de archivos para sus propios metadatos.</translation>
    </message>
    <message>
        <source>Kept free for the administrator, so that the system goes on when the disk is full for everybody else.</source>
        <translation>Se mantiene libre para el administrador, de modo que el sistema siga funcionando cuando el disco esté lleno para los demás.</translation>
    </message>
    <message>
        <source>What is in them is part of the rest; how much that is nobody knows.</source>
        <translation>Su contenido forma parte del resto; nadie sabe cuánto es.</translation>
    </message>
    <message>
        <source>Tessera may not look into some of them. Frequently Asked Questions, in the Help menu, says how to scan with more rights.</source>
        <translation>Tessera no tiene permiso para leer algunas. En «Preguntas frecuentes», en el menú Ayuda, se explica cómo analizar con más permisos.</translation>
    </message>
    <message>
        <source>Files found, each once</source>
        <translation>Archivos encontrados, cada uno una vez</translation>
    </message>
    <message>
        <source>The folders themselves</source>
        <translation>Las propias carpetas</translation>
    </message>
    <message>
        <source>Deleted but still open</source>
        <translation>Eliminado pero aún abierto</translation>
    </message>
    <message>
        <source>Folders that could not be read (%1)</source>
        <translation>Carpetas que no se pudieron leer (%1)</translation>
    </message>
    <message>
        <source>May be hidden below other mounts (%1)</source>
        <translation>Posiblemente oculto bajo otros puntos de montaje (%1)</translation>
    </message>
    <message>
        <source>Left out on purpose (%1)</source>
        <translation>Omitido a propósito (%1)</translation>
    </message>
    <message>
        <source>The file system&apos;s own, and the rest</source>
        <translation>El propio sistema de archivos y el resto</translation>
    </message>
    <message>
        <source>Reserved by the file system</source>
        <translation>Reservado por el sistema de archivos</translation>
    </message>
    <message>
        <source>Reserved for the administrator</source>
        <translation>Reservado para el administrador</translation>
    </message>
    <message>
        <source>Free for you</source>
        <translation>Libre para usted</translation>
    </message>
    <message>
        <source>What all files take on the disk. A file with several names counts once.</source>
        <translation>Lo que ocupan todos los archivos en el disco. Un archivo con varios nombres cuenta una vez.</translation>
    </message>
    <message>
        <source>What the folders take themselves, for the names of what is in them.</source>
        <translation>Lo que ocupan las propias carpetas para los nombres de su contenido.</translation>
    </message>
    <message>
        <source>Something else is mounted there. If files lie below it, they cannot be seen, and are part of the rest.</source>
        <translation>Hay otra cosa montada ahí. Si debajo hay archivos, no se pueden ver y forman parte del resto.</translation>
    </message>
    <message>
        <source>Stores of backups and of encrypted homes, whose files would count twice. What they take is part of the rest.</source>
        <translation>Almacenes de copias de seguridad y de carpetas personales cifradas, cuyos archivos contarían dos veces. Lo que ocupan forma parte del resto.</translation>
    </message>
    <message>
        <source>What you can still fill.</source>
        <translation>Lo que usted aún puede llenar.</translation>
    </message>
    <message>
        <source>part of the rest</source>
        <translation>parte del resto</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>al menos %1</translation>
    </message>
    <message>
        <source>%1 byte</source>
        <translation>%1 byte</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 byte</numerusform>
            <numerusform>%1 bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>Gone meanwhile</source>
        <translation>Ya no existe</translation>
    </message>
    <message>
        <source>Something else lies there by now</source>
        <translation>Ahora hay otra cosa ahí</translation>
    </message>
    <message>
        <source>A link lies there by now</source>
        <translation>Ahora hay un enlace ahí</translation>
    </message>
    <message>
        <source>The disk has an error</source>
        <translation>El disco tiene un error</translation>
    </message>
    <message>
        <source>The disk gives no answer</source>
        <translation>El disco no responde</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Take Out of &amp;Basket</source>
        <translation>Sacar de la ce&amp;sta</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Abrir carpeta…</translation>
    </message>
    <message>
        <source>Lets you choose a folder and scans it.</source>
        <translation>Permite elegir una carpeta y la analiza.</translation>
    </message>
    <message>
        <source>Choose &amp;Another Disk or Folder</source>
        <translation>Elegir &amp;otro disco o carpeta</translation>
    </message>
    <message>
        <source>Goes back to the home screen, where you choose what to scan.</source>
        <translation>Vuelve a la pantalla de inicio, donde se elige qué analizar.</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>Lets you choose what is shown under the pointer and when Tessera warns you.</source>
        <translation>Permite elegir qué se muestra bajo el puntero y cuándo avisa Tessera.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Ends Tessera, and asks you first while an archive is being made.</source>
        <translation>Cierra Tessera; pregunta antes si se está creando un archivo comprimido.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Puts what you moved to the trash last back where it was.</source>
        <translation>Restaura a su lugar lo último que movió a la papelera.</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Moves what you put back last to the trash again.</source>
        <translation>Mueve de nuevo a la papelera lo último que restauró.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Opens the selected item in the program that your desktop has for it, and never runs it.</source>
        <translation>Abre el elemento seleccionado con el programa que su escritorio tiene para él; nunca lo ejecuta.</translation>
    </message>
    <message>
        <source>Open &amp;With…</source>
        <translation>Abrir &amp;con…</translation>
    </message>
    <message>
        <source>Lets you choose the program in which the selected item opens.</source>
        <translation>Permite elegir el programa con el que se abre el elemento seleccionado.</translation>
    </message>
    <message>
        <source>&amp;Quick Look</source>
        <translation>&amp;Vista rápida</translation>
    </message>
    <message>
        <source>Previews the selected item in a small window.</source>
        <translation>Muestra una vista previa del elemento seleccionado en una ventana pequeña.</translation>
    </message>
    <message>
        <source>&amp;Show in Finder</source>
        <extracomment>Translate “Show in File Manager”: the system has words of its own.</extracomment>
        <translation>Mostrar en el &amp;gestor de archivos</translation>
    </message>
    <message>
        <source>Shows the selected item in your file manager.</source>
        <translation>Muestra el elemento seleccionado en su gestor de archivos.</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>Copiar la &amp;ruta</translation>
    </message>
    <message>
        <source>Copies the path of the selected item, or of the folder in view while nothing is selected.</source>
        <translation>Copia la ruta del elemento seleccionado, o de la carpeta mostrada si no hay nada seleccionado.</translation>
    </message>
    <message>
        <source>Open Ter&amp;minal Here</source>
        <translation>Abrir &amp;terminal aquí</translation>
    </message>
    <message>
        <source>Opens a terminal in the selected folder, in that of the selected file, or in the folder in view while nothing is selected.</source>
        <translation>Abre una terminal en la carpeta seleccionada, en la del archivo seleccionado o en la carpeta mostrada si no hay nada seleccionado.</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>Vo&amp;lver a analizar</translation>
    </message>
    <message>
        <source>Scans the selected folder again, or the folder in view while nothing is selected.</source>
        <translation>Vuelve a analizar la carpeta seleccionada, o la mostrada si no hay nada seleccionado.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>Leaves the selected folder out of the picture and changes nothing on the disk.</source>
        <translation>Excluye del gráfico la carpeta seleccionada; no cambia nada en el disco.</translation>
    </message>
    <message>
        <source>&amp;Compress</source>
        <translation>Co&amp;mprimir</translation>
    </message>
    <message>
        <source>Makes a zip archive of the selected item beside it; the item itself stays.</source>
        <translation>Crea junto al elemento seleccionado un archivo zip con su contenido; el elemento se conserva.</translation>
    </message>
    <message>
        <source>Compress Folder</source>
        <translation>Comprimir carpeta</translation>
    </message>
    <message>
        <source>Compress File</source>
        <translation>Comprimir archivo</translation>
    </message>
    <message>
        <source>Add to &amp;Basket</source>
        <translation>Añadir a la ce&amp;sta</translation>
    </message>
    <message>
        <source>Puts the selected item into the basket, or takes it out again; nothing moves on the disk.</source>
        <translation>Añade el elemento seleccionado a la cesta o lo saca de ella; en el disco no se mueve nada.</translation>
    </message>
    <message>
        <source>Move to &amp;Trash</source>
        <translation>Mover a la &amp;papelera</translation>
    </message>
    <message>
        <source>Moves the selected item to the trash, after a warning where that is risky.</source>
        <translation>Mueve el elemento seleccionado a la papelera, tras un aviso si es arriesgado.</translation>
    </message>
    <message>
        <source>Prop&amp;erties</source>
        <translation>Propieda&amp;des</translation>
    </message>
    <message>
        <source>Shows what your file manager tells of the selected item.</source>
        <translation>Muestra lo que su gestor de archivos sabe del elemento seleccionado.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Fills the window with the selected folder.</source>
        <translation>Llena la ventana con la carpeta seleccionada.</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Re&amp;ducir</translation>
    </message>
    <message>
        <source>Shows the folder around the one in view.</source>
        <translation>Muestra la carpeta que contiene a la mostrada.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recargar</translation>
    </message>
    <message>
        <source>Scans all that is shown again and leads you back to where you were, or looks for disks and folders again on the home screen.</source>
        <translation>Vuelve a analizar todo lo mostrado y regresa a donde usted estaba; en la pantalla de inicio, busca de nuevo discos y carpetas.</translation>
    </message>
    <message>
        <source>&amp;Basket</source>
        <translation>&amp;Cesta</translation>
    </message>
    <message>
        <source>Shows, in a panel beside the picture, what you have collected and what moving it to the trash will free, or closes that panel.</source>
        <translation>Muestra, en un panel junto al gráfico, lo que ha reunido y cuánto espacio se liberará al moverlo a la papelera, o cierra ese panel.</translation>
    </message>
    <message>
        <source>Where the &amp;Space Is</source>
        <translation>Uso del &amp;espacio</translation>
    </message>
    <message>
        <source>Shows, in a panel beside the picture, what all of the scanned disk&apos;s space is used for, or closes that panel.</source>
        <translation>Muestra, en un panel junto al gráfico, en qué se usa todo el espacio del disco analizado, o cierra ese panel.</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>Lists what you moved to the trash, and puts it back where it was.</source>
        <translation>Muestra lo que ha movido a la papelera y permite restaurarlo a su lugar.</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Pantalla completa</translation>
    </message>
    <message>
        <source>Lets the window fill the whole screen, or gives it back its size.</source>
        <translation>Hace que la ventana ocupe toda la pantalla o le devuelve su tamaño.</translation>
    </message>
    <message>
        <source>Status &amp;Line</source>
        <translation>&amp;Barra de estado</translation>
    </message>
    <message>
        <source>Shows, in a line below the picture, what is under the pointer or selected, or hides that line.</source>
        <translation>Muestra, en una barra bajo el gráfico, lo que está bajo el puntero o seleccionado, u oculta esa barra.</translation>
    </message>
    <message>
        <source>What Tessera &amp;Does</source>
        <translation>&amp;Qué hace Tessera</translation>
    </message>
    <message>
        <source>Opens a page that says what Tessera does and how you use it.</source>
        <translation>Abre una página que explica qué hace Tessera y cómo se usa.</translation>
    </message>
    <message>
        <source>Frequently Asked &amp;Questions</source>
        <translation>&amp;Preguntas frecuentes</translation>
    </message>
    <message>
        <source>Opens a page that answers frequently asked questions about Tessera.</source>
        <translation>Abre una página que responde a preguntas frecuentes sobre Tessera.</translation>
    </message>
    <message>
        <source>&amp;About Tessera</source>
        <translation>&amp;Acerca de Tessera</translation>
    </message>
    <message>
        <source>Says which version this is, what it is made with, and under which license.</source>
        <translation>Indica qué versión es esta, con qué está hecha y bajo qué licencia.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Item</source>
        <translation>Ele&amp;mento</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
</context>
<context>
    <name>MainToolbar</name>
    <message>
        <source>Choose another disk or folder</source>
        <translation>Elegir otro disco o carpeta</translation>
    </message>
    <message>
        <source>Commands for the selected item</source>
        <translation>Acciones para el elemento seleccionado</translation>
    </message>
    <message>
        <source>What the picture leaves out</source>
        <translation>Lo que el gráfico excluye</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
</context>
<context>
    <name>MoveAllReportTexts</name>
    <message>
        <source>A folder had changed since it was scanned</source>
        <translation>Una carpeta había cambiado desde que se analizó</translation>
    </message>
    <message>
        <source>Folders had changed since they were scanned</source>
        <translation>Algunas carpetas habían cambiado desde que se analizaron</translation>
    </message>
    <message>
        <source>One item may not have been moved to the trash</source>
        <translation>Es posible que un elemento no se haya movido a la papelera</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items may not have been moved to the trash</source>
        <translation>
            <numerusform>Es posible que %Ln elemento no se haya movido a la papelera</numerusform>
            <numerusform>Es posible que %Ln elementos no se hayan movido a la papelera</numerusform>
        </translation>
    </message>
    <message>
        <source>One item was not moved to the trash</source>
        <translation>Un elemento no se movió a la papelera</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items were not moved to the trash</source>
        <translation>
            <numerusform>%Ln elemento no se movió a la papelera</numerusform>
            <numerusform>%Ln elementos no se movieron a la papelera</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>y %Ln más</numerusform>
            <numerusform>y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is in the trash, with all that is in it now.</source>
        <translation>%1 está en la papelera, con todo lo que contiene ahora.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are in the trash, with all that is in them now.</source>
        <translation>
            <numerusform>%1 está en la papelera, con todo lo que contiene ahora.</numerusform>
            <numerusform>%1 están en la papelera, con todo lo que contienen ahora.</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>MoveAllTexts</name>
    <message>
        <source>%1 is hidden, or is in a hidden folder.</source>
        <translation>%1 está oculto o en una carpeta oculta.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are hidden, or are in hidden folders.</source>
        <translation>
            <numerusform>%1 está oculto o en una carpeta oculta.</numerusform>
            <numerusform>%1 están ocultos o en carpetas ocultas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is in a system folder: other applications may be using it.</source>
        <translation>%1 está en una carpeta del sistema: puede que otras aplicaciones lo estén usando.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are in system folders: other applications may be using them.</source>
        <translation>
            <numerusform>%1 está en una carpeta del sistema: puede que otras aplicaciones lo estén usando.</numerusform>
            <numerusform>%1 están en carpetas del sistema: puede que otras aplicaciones los estén usando.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 belongs to another user.</source>
        <translation>%1 pertenece a otro usuario.</translation>
    </message>
    <message numerus="yes">
        <source>%1 belong to other users.</source>
        <translation>
            <numerusform>%1 pertenece a otro usuario.</numerusform>
            <numerusform>%1 pertenecen a otros usuarios.</numerusform>
        </translation>
    </message>
    <message>
        <source>No backup would be left in %1.</source>
        <translation>No quedaría ninguna copia de seguridad en %1.</translation>
    </message>
    <message numerus="yes">
        <source>No backups would be left in %1.</source>
        <translation>
            <numerusform>No quedaría ninguna copia de seguridad en %1.</numerusform>
            <numerusform>No quedarían copias de seguridad en %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>y %1 más</numerusform>
            <numerusform>y %1 más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Are you sure you want to move one item (%1) to the trash?</source>
        <translation>¿Seguro que quiere mover un elemento (%1) a la papelera?</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to move %1 items (%2) to the trash?</source>
        <translation>
            <numerusform>¿Seguro que quiere mover %1 elemento (%2) a la papelera?</numerusform>
            <numerusform>¿Seguro que quiere mover %1 elementos (%2) a la papelera?</numerusform>
        </translation>
    </message>
    <message>
        <source>What has come into the folders since they were scanned goes with them.</source>
        <translation>Lo que se haya añadido a las carpetas desde que se analizaron se moverá con ellas.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Move To Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>NamesTexts</name>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1 y %2 más</numerusform>
            <numerusform>%1 y %2 más</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
</context>
<context>
    <name>NoFileManagerTexts</name>
    <message>
        <source>There is no file manager</source>
        <translation>No hay gestor de archivos</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be shown, because the desktop offers no program for that.</source>
        <translation>No se puede mostrar «%1» porque el escritorio no ofrece ningún programa para ello.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>NodeNames</name>
    <message>
        <source>Free Space</source>
        <translation>Espacio libre</translation>
    </message>
    <message>
        <source>Restricted Files</source>
        <translation>Archivos inaccesibles</translation>
    </message>
</context>
<context>
    <name>PlaceNames</name>
    <message>
        <source>File System</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>Datos de aplicaciones</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papelera</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Warn before moving to the trash:</source>
        <translation>Avisar antes de mover a la papelera:</translation>
    </message>
    <message>
        <source>&amp;Hidden items</source>
        <translation>Elementos &amp;ocultos</translation>
    </message>
    <message>
        <source>Warn before a hidden item is moved to the trash</source>
        <translation>Avisar antes de mover un elemento oculto a la papelera</translation>
    </message>
    <message>
        <source>&amp;System items</source>
        <translation>Elementos del &amp;sistema</translation>
    </message>
    <message>
        <source>Warn before an item of the system is moved to the trash</source>
        <translation>Avisar antes de mover un elemento del sistema a la papelera</translation>
    </message>
    <message>
        <source>Under the &amp;pointer, show:</source>
        <translation>Bajo el &amp;puntero, mostrar:</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Name and size</source>
        <translation>Nombre y tamaño</translation>
    </message>
    <message>
        <source>Name, size, date and path</source>
        <translation>Nombre, tamaño, fecha y ruta</translation>
    </message>
    <message>
        <source>In the picture, show:</source>
        <translation>En el gráfico, mostrar:</translation>
    </message>
    <message>
        <source>Si&amp;zes behind folder names</source>
        <translation>&amp;Tamaños tras los nombres de carpeta</translation>
    </message>
    <message>
        <source>Show the size of a folder behind its name in the picture, where there is room</source>
        <translation>Mostrar en el gráfico el tamaño de una carpeta tras su nombre, si hay sitio</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
</context>
<context>
    <name>ScanProblemTexts</name>
    <message>
        <source>There is no folder &apos;%1&apos; any more. It may have been moved, renamed or deleted, or its disk may not be connected.</source>
        <translation>La carpeta «%1» ya no existe. Puede que se haya movido, renombrado o eliminado, o que su disco no esté conectado.</translation>
    </message>
    <message>
        <source>You do not have permission to look into &apos;%1&apos;. Frequently Asked Questions, in the Help menu, says how to scan with more rights.</source>
        <translation>No tiene permiso para ver el contenido de «%1». En «Preguntas frecuentes», en el menú Ayuda, se explica cómo analizar con más permisos.</translation>
    </message>
    <message>
        <source>The system is too busy to scan &apos;%1&apos;. Close some programs and try again.</source>
        <translation>El sistema está demasiado ocupado para analizar «%1». Cierre algunos programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read.</source>
        <translation>No se puede leer «%1».</translation>
    </message>
    <message>
        <source>The folder cannot be scanned</source>
        <translation>No se puede analizar la carpeta</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Progress of the scan</source>
        <translation>Progreso del análisis</translation>
    </message>
    <message>
        <source>Read so far:</source>
        <translation>Leído hasta ahora:</translation>
    </message>
    <message>
        <source>Amount read so far</source>
        <translation>Cantidad leída hasta ahora</translation>
    </message>
    <message>
        <source>Files read in a second</source>
        <translation>Archivos leídos por segundo</translation>
    </message>
    <message>
        <source>Tip: in the picture, a larger box is a larger folder or file. Double-click a folder to look inside, and press Backspace to come back.</source>
        <translation>Consejo: en el gráfico, cuanto mayor es el recuadro, mayor es la carpeta o el archivo. Haga doble clic en una carpeta para ver su interior y pulse Retroceso para volver.</translation>
    </message>
    <message>
        <source>Stop the scan and go back (Escape)</source>
        <translation>Detener el análisis y volver (Esc)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>%1 B</source>
        <extracomment>%1 is a number, the rest the unit: of bytes</extracomment>
        <translation>%1&#xa0;B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <extracomment>of thousands of bytes</extracomment>
        <translation>%1&#xa0;kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;TB</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Ya no existe.</translation>
    </message>
    <message>
        <source>It cannot be looked at: %1</source>
        <translation>No se puede examinar: %1</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>No se puede leer: %1</translation>
    </message>
    <message>
        <source>It cannot be shown: the program tessera-preview cannot be started.</source>
        <translation>No se puede mostrar: no es posible iniciar el programa tessera-preview.</translation>
    </message>
    <message>
        <source>It is damaged, or takes too much memory or time to be shown.</source>
        <translation>Está dañado, o mostrarlo requiere demasiada memoria o tiempo.</translation>
    </message>
    <message>
        <source>The picture is damaged or too large to be shown.</source>
        <translation>La imagen está dañada o es demasiado grande para mostrarla.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensiones</translation>
    </message>
    <message>
        <source>Leads to</source>
        <translation>Apunta a</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creado</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Size on disk</source>
        <translation>Tamaño en disco</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages</source>
        <translation>
            <numerusform>%Ln página</numerusform>
            <numerusform>%Ln páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>first %1 shown</source>
        <comment>size</comment>
        <translation>se muestran los primeros %1</translation>
    </message>
    <message numerus="yes">
        <source>first %Ln shown</source>
        <comment>pages</comment>
        <translation>
            <numerusform>se muestra la primera</numerusform>
            <numerusform>se muestran las primeras %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TooltipController</name>
    <message numerus="yes">
        <source>one of %1 names of a file that is counted at %2</source>
        <translation>
            <numerusform>uno de los %1 nombres de un archivo que se cuenta en %2</numerusform>
            <numerusform>uno de los %1 nombres de un archivo que se cuenta en %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TooltipWindow</name>
    <message>
        <source>Small items</source>
        <translation>Elementos pequeños</translation>
    </message>
    <message>
        <source>Largest first:</source>
        <translation>Los mayores primero:</translation>
    </message>
    <message>
        <source>Restricted Files</source>
        <translation>Archivos inaccesibles</translation>
    </message>
    <message>
        <source>Space in use that the scan could not read, or that belongs to no file.</source>
        <translation>Espacio en uso que el análisis no pudo leer o que no pertenece a ningún archivo.</translation>
    </message>
</context>
<context>
    <name>TrashSentences</name>
    <message>
        <source>Nothing was moved to the trash, because the system is too busy to begin with it. Close some programs and try again.</source>
        <translation>No se movió nada a la papelera porque el sistema está demasiado ocupado para empezar. Cierre algunos programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Nothing was put back, because the system is too busy to begin with it. Close some programs and try again.</source>
        <translation>No se restauró nada porque el sistema está demasiado ocupado para empezar. Cierre algunos programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan.</source>
        <translation>No se movió «%1» porque ha cambiado desde el análisis.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because another item has taken its name since the scan.</source>
        <translation>No se movió «%1» porque otro elemento ha tomado su nombre desde el análisis.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it was made after the scan began.</source>
        <translation>No se movió «%1» porque se creó después de empezar el análisis.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan: it is a folder now.</source>
        <translation>No se movió «%1» porque ha cambiado desde el análisis: ahora es una carpeta.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan: it is no folder any more.</source>
        <translation>No se movió «%1» porque ha cambiado desde el análisis: ya no es una carpeta.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash.</source>
        <translation>No se puede mover «%1» a la papelera.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because it is not there any more.</source>
        <translation>No se movió «%1» a la papelera porque ya no existe.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because you have no permission to do so.</source>
        <translation>No se movió «%1» a la papelera porque usted no tiene permiso para hacerlo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because a folder on the way to it has become a link since the scan.</source>
        <translation>No se movió «%1» a la papelera porque una carpeta de su ruta se ha convertido en un enlace desde el análisis.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk can only be read.</source>
        <translation>No se movió «%1» a la papelera porque su disco es de solo lectura.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk has no space left.</source>
        <translation>No se movió «%1» a la papelera porque no queda espacio en su disco.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because it could only be copied there.</source>
        <translation>No se movió «%1» a la papelera porque solo se podría copiar allí.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because the system is using it.</source>
        <translation>No se movió «%1» a la papelera porque el sistema lo está usando.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be in the trash or where it was, because its disk broke off while it was moved. Nothing has been removed.</source>
        <translation>Puede que «%1» esté en la papelera o donde estaba, porque se perdió la conexión con su disco mientras se movía. No se ha eliminado nada.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its path is too long.</source>
        <translation>No se movió «%1» a la papelera porque su ruta es demasiado larga.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash: %2.</source>
        <extracomment>%2 is what the system says</extracomment>
        <translation>No se movió «%1» a la papelera: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk has no trash for you.</source>
        <translation>No se movió «%1» a la papelera porque su disco no tiene papelera para usted.</translation>
    </message>
    <message>
        <source>it is not a file of your own in a folder that nobody else can write to</source>
        <translation>no es un archivo suyo en una carpeta en la que nadie más pueda escribir</translation>
    </message>
    <message>
        <source>another program is writing to it</source>
        <translation>otro programa está escribiendo en él</translation>
    </message>
    <message>
        <source>What is moved to the trash can be restored there, but this program will not list it: &apos;%1&apos; cannot be written (%2).</source>
        <extracomment>%2 says why: the texts above, or what the system says</extracomment>
        <translation>Lo que se mueva a la papelera se puede restaurar desde ella, pero este programa no lo mostrará en el historial: no se puede escribir «%1» (%2).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because something new is called &apos;%2&apos; there.</source>
        <translation>No se restauró «%1» porque en su lugar hay algo nuevo llamado «%2».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because the folder that it was in is not there any more.</source>
        <translation>No se restauró «%1» porque la carpeta en la que estaba ya no existe.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because what was a folder on the way to its place is none any more.</source>
        <translation>No se restauró «%1» porque algo que era una carpeta en la ruta hasta su lugar ya no lo es.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because a folder on the way to its place has become a link.</source>
        <translation>No se restauró «%1» porque una carpeta en la ruta hasta su lugar se ha convertido en un enlace.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because it is not in the trash any more.</source>
        <translation>No se restauró «%1» porque ya no está en la papelera.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because it cannot be told whether what is in its place in the trash is the same item still. Restore it from the trash.</source>
        <translation>No se restauró «%1» porque no se puede saber si lo que ocupa su lugar en la papelera sigue siendo el mismo elemento. Restáurelo desde la papelera.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because the trash that it is in cannot be found. If its disk is not connected, connect it and try again.</source>
        <translation>No se restauró «%1» porque no se encuentra la papelera en la que está. Si su disco no está conectado, conéctelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its place is on another disk than the trash now. You can copy it there from the trash.</source>
        <translation>No se restauró «%1» porque su lugar está ahora en un disco distinto del de la papelera. Puede copiarlo allí desde la papelera.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its disk can only be read.</source>
        <translation>No se restauró «%1» porque su disco es de solo lectura.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because you have no permission to do so.</source>
        <translation>No se restauró «%1» porque usted no tiene permiso para hacerlo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its disk has no space left. Make some and try again.</source>
        <translation>No se restauró «%1» porque no queda espacio en su disco. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be in the trash or where it was, because its disk broke off while it was put back. Nothing has been removed.</source>
        <translation>Puede que «%1» esté en la papelera o donde estaba, porque se perdió la conexión con su disco mientras se restauraba. No se ha eliminado nada.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back: %2.</source>
        <translation>No se restauró «%1»: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because something else is called so now.</source>
        <translation>No se puede mover «%1» a la papelera porque ahora otra cosa tiene ese nombre.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because the system does not say which disks are mounted.</source>
        <translation>No se puede mover «%1» a la papelera porque el sistema no indica qué discos están montados.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because a disk is mounted there.</source>
        <translation>No se puede mover «%1» a la papelera porque hay un disco montado ahí.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because a disk is mounted inside it.</source>
        <translation>No se puede mover «%1» a la papelera porque contiene un disco montado.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because your home folder is there.</source>
        <translation>No se puede mover «%1» a la papelera porque ahí está su carpeta personal.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because the trash is there.</source>
        <translation>No se puede mover «%1» a la papelera porque ahí está la papelera.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because it is in the trash already.</source>
        <translation>No se puede mover «%1» a la papelera porque ya está en ella.</translation>
    </message>
</context>
<context>
    <name>TrashStepTexts</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
<context>
    <name>TreeBranchTexts</name>
    <message>
        <source>You may not look into this folder. See Frequently Asked Questions in the Help menu.</source>
        <translation>No tiene permiso para ver el contenido de esta carpeta. Consulte «Preguntas frecuentes», en el menú Ayuda.</translation>
    </message>
    <message>
        <source>This folder could not be read. Rescan it to try again.</source>
        <translation>No se pudo leer esta carpeta. Vuelva a analizarla para intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>This folder is empty. Rescan it when something has come.</source>
        <translation>Esta carpeta está vacía. Vuelva a analizarla cuando haya algo en ella.</translation>
    </message>
    <message>
        <source>Everything in this folder is left out of the picture. The Ignore menu brings it back.</source>
        <translation>Todo el contenido de esta carpeta está excluido del gráfico. El menú «Ignorar» permite volver a mostrarlo.</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>Contextual Menu</source>
        <translation>Menú contextual</translation>
    </message>
</context>
<context>
    <name>VolumeCollectionView</name>
    <message>
        <source>Used space</source>
        <translation>Espacio usado</translation>
    </message>
</context>
<context>
    <name>tessera::AboutWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Shows where the space on a disk goes.</source>
        <translation>Muestra en qué se usa el espacio de un disco.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versiones</translation>
    </message>
    <message>
        <source>About Tessera</source>
        <translation>Acerca de Tessera</translation>
    </message>
    <message>
        <source>License</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>&amp;Versions</source>
        <translation>&amp;Versiones</translation>
    </message>
    <message>
        <source>&amp;License</source>
        <translation>&amp;Licencia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;Copy Versions</source>
        <translation>&amp;Copiar versiones</translation>
    </message>
</context>
<context>
    <name>tessera::AppDelegate</name>
    <message>
        <source>An archive is still being made</source>
        <translation>Aún se está creando un archivo comprimido</translation>
    </message>
    <message>
        <source>Tessera can finish it in the background, in a window of its own, and quit then. If it is stopped, the incomplete archive goes to the trash.</source>
        <translation>Tessera puede terminarlo en segundo plano, en una ventana propia, y cerrarse después. Si se detiene, el archivo comprimido incompleto irá a la papelera.</translation>
    </message>
    <message>
        <source>Finish in Background</source>
        <translation>Terminar en segundo plano</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Detener y salir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>If the session ends now it is stopped, and the incomplete archive goes to the trash.</source>
        <translation>Si la sesión termina ahora, se detendrá y el archivo comprimido incompleto irá a la papelera.</translation>
    </message>
    <message>
        <source>End Session</source>
        <translation>Terminar la sesión</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>No se puede mostrar la ayuda</translation>
    </message>
    <message>
        <source>Either its pages are not installed or the desktop offers no web browser.</source>
        <translation>Sus páginas no están instaladas o el escritorio no ofrece ningún navegador web.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>tessera::BasketList</name>
    <message>
        <source>Show in Picture</source>
        <translation>Mostrar en el gráfico</translation>
    </message>
    <message>
        <source>Take Out of Basket</source>
        <translation>Sacar de la cesta</translation>
    </message>
</context>
<context>
    <name>tessera::BasketModel</name>
    <message>
        <source>inside “%1”</source>
        <translation>en «%1»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>aún sin contar</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Will free</source>
        <translation>Se liberará</translation>
    </message>
</context>
<context>
    <name>tessera::BasketPanel</name>
    <message>
        <source>Basket</source>
        <translation>Cesta</translation>
    </message>
    <message>
        <source>Press B, or drag boxes here, to collect what you want to move to the trash. Nothing moves until you say so.</source>
        <translation>Pulse B o arrastre recuadros aquí para reunir lo que quiera mover a la papelera. No se moverá nada hasta que usted lo indique.</translation>
    </message>
    <message>
        <source>Items in the basket</source>
        <translation>Elementos de la cesta</translation>
    </message>
    <message>
        <source>%1 Delete takes the selected items out of the basket; nothing moves to the trash.</source>
        <translation>%1 Supr saca de la cesta los elementos seleccionados; no se mueve nada a la papelera.</translation>
    </message>
    <message>
        <source>Empty Basket</source>
        <translation>Vaciar la cesta</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>Ningún elemento</translation>
    </message>
    <message>
        <source>1 item, %1</source>
        <translation>1 elemento, %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 items, %2</source>
        <translation>
            <numerusform>%1 elemento, %2</numerusform>
            <numerusform>%1 elementos, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Take Out of Basket</source>
        <translation>Sacar de la cesta</translation>
    </message>
    <message>
        <source>Add to Basket</source>
        <translation>Añadir a la cesta</translation>
    </message>
    <message>
        <source>Takes all items out of the basket. Nothing moves to the trash.</source>
        <translation>Saca todos los elementos de la cesta. No se mueve nada a la papelera.</translation>
    </message>
    <message>
        <source>Moving to Trash…</source>
        <translation>Moviendo a la papelera…</translation>
    </message>
    <message>
        <source>Looking at the Items…</source>
        <translation>Examinando los elementos…</translation>
    </message>
    <message>
        <source>Move All to Trash…</source>
        <translation>Mover todo a la papelera…</translation>
    </message>
    <message>
        <source>Asks before anything moves. %1</source>
        <translation>Pregunta antes de mover nada. %1</translation>
    </message>
    <message>
        <source>The items are being looked at.</source>
        <translation>Se están examinando los elementos.</translation>
    </message>
    <message>
        <source>Another item has just been selected.</source>
        <translation>Se acaba de seleccionar otro elemento.</translation>
    </message>
    <message>
        <source>This cannot be moved to the trash.</source>
        <translation>Esto no se puede mover a la papelera.</translation>
    </message>
    <message>
        <source>Items are on their way to the trash. Wait until they have arrived.</source>
        <translation>Hay elementos en camino a la papelera. Espere a que lleguen.</translation>
    </message>
    <message>
        <source>The basket is empty.</source>
        <translation>La cesta está vacía.</translation>
    </message>
</context>
<context>
    <name>tessera::BasketTrasher</name>
    <message>
        <source>&apos;%1&apos; was not moved, because it could not be looked at when it was chosen.</source>
        <translation>No se movió «%1» porque no se pudo examinar cuando se eligió.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it is not there any more.</source>
        <translation>No se movió «%1» porque ya no existe.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has left the basket meanwhile.</source>
        <translation>No se movió «%1» porque entretanto ha salido de la cesta.</translation>
    </message>
</context>
<context>
    <name>tessera::CompressWindowController</name>
    <message>
        <source>Creating &apos;%1&apos;</source>
        <translation>Creando «%1»</translation>
    </message>
    <message>
        <source>Compression Canceled</source>
        <translation>Compresión cancelada</translation>
    </message>
    <message>
        <source>Compression Failed</source>
        <translation>Falló la compresión</translation>
    </message>
    <message>
        <source>The archive is finished</source>
        <translation>El archivo comprimido está listo</translation>
    </message>
    <message>
        <source>The archive cannot be made</source>
        <translation>No se puede crear el archivo comprimido</translation>
    </message>
    <message>
        <source>Archive Created</source>
        <translation>Archivo comprimido creado</translation>
    </message>
    <message>
        <source>Created &apos;%1&apos;</source>
        <translation>Se ha creado «%1»</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>%1. The archive takes %2 less.</source>
        <translation>%1. El archivo comprimido ocupa %2 menos.</translation>
    </message>
    <message>
        <source>%1. The archive saves nothing.</source>
        <translation>%1. El archivo comprimido no ahorra nada.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Looking whether the original is still what was archived…</source>
        <translation>Comprobando si el original sigue siendo el que se comprimió…</translation>
    </message>
    <message>
        <source>The original may have changed while it was archived, or since. It stays.</source>
        <translation>Puede que el original haya cambiado durante la compresión o después. Se conserva.</translation>
    </message>
    <message>
        <source>The original is not there any more.</source>
        <translation>El original ya no existe.</translation>
    </message>
    <message>
        <source>The archive is not where it was made any more. The original stays.</source>
        <translation>El archivo comprimido ya no está donde se creó. El original se conserva.</translation>
    </message>
    <message>
        <source>The original is not on screen any more. Scan its folder to move it to the trash.</source>
        <translation>El original ya no está en pantalla. Analice su carpeta para moverlo a la papelera.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing is left of the incomplete archive but an empty file in the trash.</source>
        <translation>El disco está lleno. Del archivo comprimido incompleto solo queda un archivo vacío en la papelera.</translation>
    </message>
    <message>
        <source>The disk is full. Of the incomplete archive an empty file is left, which could not be moved to the trash: &apos;%1&apos;.</source>
        <translation>El disco está lleno. Del archivo comprimido incompleto queda un archivo vacío que no se pudo mover a la papelera: «%1».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>tessera::DBusNotifications</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>tessera::GreetingView</name>
    <message>
        <source>Welcome to Tessera, which shows you what fills your disk.</source>
        <translation>Le damos la bienvenida a Tessera, que muestra qué llena su disco.</translation>
    </message>
    <message>
        <source>Select a disk or a folder, then press Scan.</source>
        <translation>Seleccione un disco o una carpeta y pulse «Analizar».</translation>
    </message>
    <message>
        <source>&amp;Got It</source>
        <translation>En&amp;tendido</translation>
    </message>
    <message>
        <source>Closes this greeting for good</source>
        <translation>Cierra esta bienvenida para siempre</translation>
    </message>
</context>
<context>
    <name>tessera::HistoryWindowController</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Looking where the items are…</source>
        <translation>Comprobando dónde están los elementos…</translation>
    </message>
    <message>
        <source>What you move to the trash is listed here, and can be put back.</source>
        <translation>Aquí aparece lo que mueve a la papelera, y desde aquí se puede restaurar.</translation>
    </message>
    <message>
        <source>One move</source>
        <translation>Un movimiento</translation>
    </message>
    <message numerus="yes">
        <source>%n moves</source>
        <translation>
            <numerusform>%n movimiento</numerusform>
            <numerusform>%n movimientos</numerusform>
        </translation>
    </message>
    <message>
        <source>Select an item first.</source>
        <translation>Seleccione primero un elemento.</translation>
    </message>
    <message>
        <source>Only what is in the trash can be put back.</source>
        <translation>Solo se puede restaurar lo que está en la papelera.</translation>
    </message>
    <message>
        <source>Puts the item back where it was.</source>
        <translation>Restaura el elemento al lugar donde estaba.</translation>
    </message>
    <message>
        <source>Shows the item in your file manager, where it is now.</source>
        <translation>Muestra el elemento en su gestor de archivos, donde está ahora.</translation>
    </message>
    <message>
        <source>Nobody knows where the item is now, or whether it still exists.</source>
        <translation>Nadie sabe dónde está ahora el elemento ni si aún existe.</translation>
    </message>
</context>
<context>
    <name>tessera::HomeViewController</name>
    <message>
        <source>Scan what is selected</source>
        <translation>Analizar lo seleccionado</translation>
    </message>
    <message>
        <source>Select a disk, a folder or a recent scan first.</source>
        <translation>Seleccione primero un disco, una carpeta o un análisis reciente.</translation>
    </message>
    <message>
        <source>Empty the list of recent scans</source>
        <translation>Limpiar la lista de análisis recientes</translation>
    </message>
    <message>
        <source>There are no recent scans.</source>
        <translation>No hay análisis recientes.</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>Disks appear here when they are mounted. Reload in the View menu looks for them.</source>
        <translation>Los discos aparecen aquí cuando están montados. «Recargar», en el menú Ver, los busca.</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>A user&apos;s own folders appear here, and the administrator has none. Open Folder scans any other.</source>
        <translation>Aquí aparecen las carpetas propias de un usuario, y el administrador no tiene ninguna. «Abrir carpeta» analiza cualquier otra.</translation>
    </message>
    <message>
        <source>Your folders, such as Downloads and Music, appear here when there are any.</source>
        <translation>Aquí aparecen sus carpetas, como Descargas y Música, cuando existen.</translation>
    </message>
</context>
<context>
    <name>tessera::IgnoreMenu</name>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Leave Out of the Picture</source>
        <translation>Excluir del gráfico</translation>
    </message>
    <message>
        <source>&amp;Free Space</source>
        <translation>Espacio &amp;libre</translation>
    </message>
    <message>
        <source>&amp;Hidden Files</source>
        <translation>Archivos &amp;ocultos</translation>
    </message>
    <message>
        <source>&amp;Restricted Files</source>
        <translation>Archivos &amp;inaccesibles</translation>
    </message>
    <message>
        <source>&amp;Show Everything</source>
        <translation>&amp;Mostrar todo</translation>
    </message>
</context>
<context>
    <name>tessera::ItemOpening</name>
    <message>
        <source>It is not there any more. It was moved or deleted after the scan; a rescan of the folder around it shows what is there now.</source>
        <translation>Ya no existe. Se movió o se eliminó después del análisis; vuelva a analizar la carpeta que lo contenía para ver qué hay ahora.</translation>
    </message>
    <message>
        <source>You are not allowed to look there.</source>
        <translation>No tiene permiso para acceder ahí.</translation>
    </message>
    <message>
        <source>The disk that it is on does not answer.</source>
        <translation>El disco en el que está no responde.</translation>
    </message>
    <message>
        <source>The program did not start.</source>
        <translation>El programa no se inició.</translation>
    </message>
    <message>
        <source>No terminal was found on this computer.</source>
        <translation>No se encontró ninguna terminal en este equipo.</translation>
    </message>
    <message>
        <source>The desktop offers no file manager that shows properties, or it did not answer.</source>
        <translation>El escritorio no ofrece ningún gestor de archivos que muestre propiedades, o el que hay no respondió.</translation>
    </message>
    <message>
        <source>The desktop has no program for it. Open With lets you choose among all programs.</source>
        <translation>El escritorio no tiene ningún programa para ello. «Abrir con» permite elegir entre todos los programas.</translation>
    </message>
    <message>
        <source>No terminal can be opened in &apos;%1&apos;</source>
        <translation>No se puede abrir una terminal en «%1»</translation>
    </message>
    <message>
        <source>The properties of &apos;%1&apos; cannot be shown</source>
        <translation>No se pueden mostrar las propiedades de «%1»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened</source>
        <translation>No se puede abrir «%1»</translation>
    </message>
    <message>
        <source>It is a program, and Tessera runs none. Start it in your file manager, or look into it with Open With.</source>
        <translation>Es un programa, y Tessera no ejecuta ninguno. Inícielo en su gestor de archivos o examínelo con «Abrir con».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>tessera::ItemTrasher</name>
    <message>
        <source>The selected folder &apos;%1&apos; is located inside a system folder. Other applications may be using this folder. Are you sure you want to move this folder to the trash?</source>
        <translation>La carpeta seleccionada, «%1», está dentro de una carpeta del sistema. Puede que otras aplicaciones la estén usando. ¿Seguro que quiere mover esta carpeta a la papelera?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is located inside a system folder. Other applications may be using this file. Are you sure you want to move this file to the trash?</source>
        <translation>El archivo seleccionado, «%1», está dentro de una carpeta del sistema. Puede que otras aplicaciones lo estén usando. ¿Seguro que quiere mover este archivo a la papelera?</translation>
    </message>
    <message>
        <source>The selected folder &apos;%1&apos; is marked as hidden, are you sure you want to move this item to the trash?</source>
        <translation>La carpeta seleccionada, «%1», está oculta. ¿Seguro que quiere moverla a la papelera?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is marked as hidden, are you sure you want to move this item to the trash?</source>
        <translation>El archivo seleccionado, «%1», está oculto. ¿Seguro que quiere moverlo a la papelera?</translation>
    </message>
    <message>
        <source>The selected folder &apos;%1&apos; is located inside a hidden folder, are you sure you want to move this item to the trash?</source>
        <translation>La carpeta seleccionada, «%1», está dentro de una carpeta oculta. ¿Seguro que quiere moverla a la papelera?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is located inside a hidden folder, are you sure you want to move this item to the trash?</source>
        <translation>El archivo seleccionado, «%1», está dentro de una carpeta oculta. ¿Seguro que quiere moverlo a la papelera?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Move To Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Error moving to Trash</source>
        <translation>Error al mover a la papelera</translation>
    </message>
    <message>
        <source>Error moving &apos;%1&apos; to the Trash for recycling.</source>
        <translation>No se pudo mover «%1» a la papelera.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>tessera::LedgerBar</name>
    <message>
        <source>Shares of the disk</source>
        <translation>Partes del disco</translation>
    </message>
</context>
<context>
    <name>tessera::LedgerPanel</name>
    <message>
        <source>Count &amp;Again</source>
        <translation>Contar de &amp;nuevo</translation>
    </message>
    <message>
        <source>This is about whole disks. Scan a disk to see where its space is.</source>
        <translation>Esto solo sirve para discos completos. Analice uno para ver cómo se usa su espacio.</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Contando…</translation>
    </message>
    <message>
        <source>The file system tells no sizes that could be added up.</source>
        <translation>El sistema de archivos no indica tamaños que se puedan sumar.</translation>
    </message>
    <message>
        <source>The disk gives no answer. It may be gone, or very busy.</source>
        <translation>El disco no responde. Puede que ya no esté o que esté muy ocupado.</translation>
    </message>
    <message>
        <source>The disk that was scanned is not there any more. Scan again what is.</source>
        <translation>El disco analizado ya no está. Analice de nuevo lo que haya ahora.</translation>
    </message>
    <message>
        <source>Show Which</source>
        <translation>Ver cuáles</translation>
    </message>
    <message>
        <source>Size of the disk</source>
        <translation>Tamaño del disco</translation>
    </message>
    <message>
        <source>All lines together: %1, exactly.</source>
        <translation>Todas las líneas juntas: exactamente %1.</translation>
    </message>
</context>
<context>
    <name>tessera::LedgerRow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tessera::MainWindowController</name>
    <message>
        <source>Scanning %1</source>
        <translation>Analizando %1</translation>
    </message>
    <message>
        <source>Time Machine Detected</source>
        <extracomment>Translate “Backup Detected”: the system has words of its own.</extracomment>
        <translation>Copia de seguridad detectada</translation>
    </message>
    <message>
        <source>Tessera is unable to scan inside a Time Machine backup. To estimate the overall size of Time Machine, please scan the disk labeled &apos;%1&apos;.</source>
        <extracomment>Translate “a backup” and “the backups”: the system has words of its own.</extracomment>
        <translation>Tessera no puede analizar el interior de una copia de seguridad. Para estimar el tamaño total de las copias de seguridad, analice el disco «%1».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>tessera::PanelBody</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>tessera::PreviewView</name>
    <message>
        <source>Nothing is selected</source>
        <translation>No hay nada seleccionado</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Imagen %1</translation>
    </message>
    <message>
        <source>Text of %1</source>
        <translation>Texto de %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>tessera::ProgramChooser</name>
    <message>
        <source>&amp;Show all programs</source>
        <translation>&amp;Mostrar todos los programas</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Abrir con</translation>
    </message>
    <message>
        <source>Open &apos;%1&apos; with:</source>
        <translation>Abrir «%1» con:</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
</context>
<context>
    <name>tessera::PuttingBack</name>
    <message>
        <source>There is something new in the place of “%1”</source>
        <translation>Hay algo nuevo en el lugar de «%1»</translation>
    </message>
    <message>
        <source>It has the same name, in the folder “%1”, and is not replaced.</source>
        <translation>Tiene el mismo nombre, está en la carpeta «%1» y no se reemplazará.</translation>
    </message>
    <message>
        <source>Put back as “%1”</source>
        <translation>Restaurar como «%1»</translation>
    </message>
    <message>
        <source>The folder that “%1” was in is gone</source>
        <translation>La carpeta en la que estaba «%1» ya no existe</translation>
    </message>
    <message>
        <source>Tessera can make the folder “%1” again and put the item back into it.</source>
        <translation>Tessera puede volver a crear la carpeta «%1» y restaurar el elemento en ella.</translation>
    </message>
    <message>
        <source>Make the folder again</source>
        <translation>Volver a crear la carpeta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>An item was not put back</source>
        <translation>Un elemento no se restauró</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not put back</source>
        <translation>
            <numerusform>%n elemento no se restauró</numerusform>
            <numerusform>%n elementos no se restauraron</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>tessera::QuickLookPanel</name>
    <message>
        <source>Quick Look</source>
        <translation>Vista rápida</translation>
    </message>
    <message>
        <source>Quick Look: %1</source>
        <translation>Vista rápida: %1</translation>
    </message>
</context>
<context>
    <name>tessera::RecentsTableCell</name>
    <message>
        <source>Last Scan: %1</source>
        <translation>Último análisis: %1</translation>
    </message>
</context>
<context>
    <name>tessera::RecentsTableView</name>
    <message>
        <source>Disks and folders that you scan are listed here, to be scanned again.</source>
        <translation>Aquí aparecen los discos y las carpetas que analice, para volver a analizarlos.</translation>
    </message>
</context>
<context>
    <name>tessera::RescanIndicator</name>
    <message>
        <source>Rescan progress</source>
        <translation>Progreso del nuevo análisis</translation>
    </message>
</context>
<context>
    <name>tessera::ScanningViewController</name>
    <message>
        <source>%1 files/sec</source>
        <translation>%1 archivos/s</translation>
    </message>
    <message>
        <source>The scan is finished</source>
        <translation>El análisis ha terminado</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 ocupa %2.</translation>
    </message>
</context>
<context>
    <name>tessera::ToolbarPathControl</name>
    <message>
        <source>Path of the folder in view</source>
        <translation>Ruta de la carpeta mostrada</translation>
    </message>
</context>
<context>
    <name>tessera::TrashHistoryModel</name>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>In the trash</source>
        <translation>En la papelera</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>No movido</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Restaurado</translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation>Ya no existe</translation>
    </message>
    <message>
        <source>The item waits to be put back, until its disk answers and what was begun before is done.</source>
        <translation>El elemento se restaurará cuando su disco responda y termine lo que se empezó antes.</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Waiting to be put back</source>
        <translation>Pendiente de restaurar</translation>
    </message>
    <message>
        <source>Put back to %1</source>
        <translation>Restaurado en %1</translation>
    </message>
</context>
<context>
    <name>tessera::TrashNote</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Open Trash</source>
        <translation>Abrir la papelera</translation>
    </message>
    <message>
        <source>“%1” (%2) is in the trash. Its space is free once the trash is emptied.</source>
        <translation>«%1» (%2) está en la papelera. Su espacio quedará libre al vaciar la papelera.</translation>
    </message>
    <message>
        <source>“%1” is in the trash. Its space is free once the trash is emptied.</source>
        <translation>«%1» está en la papelera. Su espacio quedará libre al vaciar la papelera.</translation>
    </message>
    <message numerus="yes">
        <source>%n items (%1) are in the trash. Their space is free once the trash is emptied.</source>
        <translation>
            <numerusform>%n elemento (%1) está en la papelera. Su espacio quedará libre al vaciar la papelera.</numerusform>
            <numerusform>%n elementos (%1) están en la papelera. Su espacio quedará libre al vaciar la papelera.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are in the trash. Their space is free once the trash is emptied.</source>
        <translation>
            <numerusform>%n elemento está en la papelera. Su espacio quedará libre al vaciar la papelera.</numerusform>
            <numerusform>%n elementos están en la papelera. Su espacio quedará libre al vaciar la papelera.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is in the trash. It has other names: its space stays in use until all of them are gone.</source>
        <translation>«%1» está en la papelera. Tiene otros nombres: su espacio seguirá en uso hasta que desaparezcan todos.</translation>
    </message>
    <message>
        <source>“%1” is in the trash. Files in it have other names: their space stays in use until all of those are gone.</source>
        <translation>«%1» está en la papelera. Contiene archivos con otros nombres: su espacio seguirá en uso hasta que desaparezcan todos.</translation>
    </message>
    <message numerus="yes">
        <source>%n items are in the trash. Files among them have other names: their space stays in use until all of those are gone.</source>
        <translation>
            <numerusform>%n elemento está en la papelera. Incluye archivos con otros nombres: su espacio seguirá en uso hasta que desaparezcan todos.</numerusform>
            <numerusform>%n elementos están en la papelera. Entre ellos hay archivos con otros nombres: su espacio seguirá en uso hasta que desaparezcan todos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TrashUndo</name>
    <message>
        <source>The list of moves to the trash cannot be written</source>
        <translation>No se puede escribir la lista de movimientos a la papelera</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Undo Move to Trash of %1</source>
        <translation>&amp;Deshacer mover %1 a la papelera</translation>
    </message>
    <message>
        <source>&amp;Redo Move to Trash of %1</source>
        <translation>&amp;Rehacer mover %1 a la papelera</translation>
    </message>
    <message>
        <source>Something is on its way to the trash or back. Wait until it has arrived.</source>
        <translation>Hay algo en camino a la papelera o de vuelta. Espere a que llegue.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>Error moving to Trash</source>
        <translation>Error al mover a la papelera</translation>
    </message>
    <message numerus="yes">
        <source>%n items may not have been moved to the trash</source>
        <translation>
            <numerusform>Es posible que %n elemento no se haya movido a la papelera</numerusform>
            <numerusform>Es posible que %n elementos no se hayan movido a la papelera</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items were not moved to the trash</source>
        <translation>
            <numerusform>%n elemento no se movió a la papelera</numerusform>
            <numerusform>%n elementos no se movieron a la papelera</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TreePanels</name>
    <message>
        <source>Where the Space Is</source>
        <translation>Uso del espacio</translation>
    </message>
    <message>
        <source>Basket</source>
        <translation>Cesta</translation>
    </message>
    <message>
        <source>The basket is empty.</source>
        <translation>La cesta está vacía.</translation>
    </message>
    <message>
        <source>The basket has one item.</source>
        <translation>La cesta tiene un elemento.</translation>
    </message>
    <message numerus="yes">
        <source>The basket has %1 items.</source>
        <translation>
            <numerusform>La cesta tiene %1 elemento.</numerusform>
            <numerusform>La cesta tiene %1 elementos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TreeStatusBar</name>
    <message>
        <source>Status line</source>
        <translation>Barra de estado</translation>
    </message>
</context>
<context>
    <name>tessera::TreeViewController</name>
    <message>
        <source>The trash cannot be opened</source>
        <translation>No se puede abrir la papelera</translation>
    </message>
    <message>
        <source>The desktop offers no program that shows it.</source>
        <translation>El escritorio no ofrece ningún programa que la muestre.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>One item of the basket is not there any more.</source>
        <translation>Un elemento de la cesta ya no existe.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items of the basket are not there any more.</source>
        <translation>
            <numerusform>%1 elemento de la cesta ya no existe.</numerusform>
            <numerusform>%1 elementos de la cesta ya no existen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The path of &apos;%1&apos; is copied.</source>
        <translation>Se ha copiado la ruta de «%1».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; stays where it is</source>
        <translation>«%1» se queda donde está</translation>
    </message>
    <message>
        <source>It is not in the picture any more. Rescan its folder to move it to the trash.</source>
        <translation>Ya no está en el gráfico. Vuelva a analizar su carpeta para moverlo a la papelera.</translation>
    </message>
</context>
<context>
    <name>tessera::VolumeCollectionView</name>
    <message>
        <source>Reserved by the file system: %1</source>
        <translation>Reservado por el sistema de archivos: %1</translation>
    </message>
    <message>
        <source>Reserved for the administrator: %1</source>
        <translation>Reservado para el administrador: %1</translation>
    </message>
    <message>
        <source>Free for you: %1</source>
        <translation>Libre para usted: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>tessera::WillFreeView</name>
    <message>
        <source>Will free: %1, once the trash is emptied</source>
        <translation>Se liberará: %1, al vaciar la papelera</translation>
    </message>
</context>
</TS>
