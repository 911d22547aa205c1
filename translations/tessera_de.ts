<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommandHintTexts</name>
    <message>
        <source>A rescan is running already. Wait until it has ended.</source>
        <translation>Es wird bereits neu eingelesen. Warten Sie, bis das beendet ist.</translation>
    </message>
    <message>
        <source>A disk is mounted at &apos;%1&apos;. It is not part of this scan; scan it by itself.</source>
        <translation>In „%1“ ist ein Datenträger eingehängt. Er gehört nicht zu dem, was eingelesen wurde; lesen Sie ihn für sich ein.</translation>
    </message>
    <message>
        <source>Only folders can be scanned again. Select one, or nothing to rescan the folder in view.</source>
        <translation>Nur Ordner können neu eingelesen werden. Wählen Sie einen aus, oder nichts, um den gezeigten Ordner neu einzulesen.</translation>
    </message>
    <message>
        <source>Select a folder first.</source>
        <translation>Wählen Sie zuerst einen Ordner aus.</translation>
    </message>
    <message>
        <source>This is about whole disks. Scan a disk to see where its space is.</source>
        <translation>Hier geht es um ganze Datenträger. Lesen Sie einen ein, um zu sehen, wo sein Speicherplatz ist.</translation>
    </message>
    <message>
        <source>Select a file or a folder first.</source>
        <translation>Wählen Sie zuerst eine Datei oder einen Ordner aus.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is all that was scanned. There is no folder around it here.</source>
        <translation>„%1“ ist alles, was eingelesen wurde. Einen Ordner darüber gibt es hier nicht.</translation>
    </message>
    <message>
        <source>There is no box that way.</source>
        <translation>In dieser Richtung ist kein Kasten.</translation>
    </message>
    <message>
        <source>A scan is running. Wait until it has ended.</source>
        <translation>Es wird gerade eingelesen. Warten Sie, bis das beendet ist.</translation>
    </message>
    <message>
        <source>Scan a disk or a folder first.</source>
        <translation>Lesen Sie zuerst einen Datenträger oder Ordner ein.</translation>
    </message>
    <message>
        <source>This is the home screen already.</source>
        <translation>Das ist bereits die Startseite.</translation>
    </message>
</context>
<context>
    <name>CompressWindow</name>
    <message>
        <source>Compress</source>
        <translation>Komprimieren</translation>
    </message>
    <message>
        <source>Icon of the archive</source>
        <translation>Symbol des Archivs</translation>
    </message>
    <message>
        <source>Progress of the compression</source>
        <translation>Fortschritt des Komprimierens</translation>
    </message>
    <message>
        <source>Move Original to Trash</source>
        <translation>Original in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FileDialogOpenPanel</name>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>FreedSpaceText</name>
    <message>
        <source>%1 has another name elsewhere, and stays.</source>
        <translation>%1 hat anderswo einen weiteren Namen und bleibt erhalten.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have other names elsewhere, and stay.</source>
        <translation>
            <numerusform>%1 hat anderswo weitere Namen und bleibt erhalten.</numerusform>
            <numerusform>%1 haben anderswo weitere Namen und bleiben erhalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has another name that was not scanned.</source>
        <translation>%1 hat einen weiteren Namen, der nicht eingelesen wurde.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have other names that were not scanned.</source>
        <translation>
            <numerusform>%1 hat weitere Namen, die nicht eingelesen wurden.</numerusform>
            <numerusform>%1 haben weitere Namen, die nicht eingelesen wurden.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is shared with other files.</source>
        <translation>%1 teilt sich Speicherplatz mit anderen Dateien.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are shared with other files.</source>
        <translation>
            <numerusform>%1 teilt sich Speicherplatz mit anderen Dateien.</numerusform>
            <numerusform>%1 teilen sich Speicherplatz mit anderen Dateien.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is compressed: how much it takes is not known.</source>
        <translation>%1 ist komprimiert: Wie viel Platz das belegt, ist nicht bekannt.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are compressed: how much they take is not known.</source>
        <translation>
            <numerusform>%1 ist komprimiert: Wie viel Platz das belegt, ist nicht bekannt.</numerusform>
            <numerusform>%1 sind komprimiert: Wie viel Platz sie belegen, ist nicht bekannt.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is held open by %2.</source>
        <translation>%1 ist noch geöffnet, und zwar von %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are held open, the first one by %2.</source>
        <translation>
            <numerusform>%1 ist noch geöffnet, und zwar von %2.</numerusform>
            <numerusform>%1 sind noch geöffnet, die erste von %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 may be shared with other files.</source>
        <translation>
            <numerusform>%1 teilt sich möglicherweise Speicherplatz mit anderen Dateien.</numerusform>
            <numerusform>%1 teilen sich möglicherweise Speicherplatz mit anderen Dateien.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has changed since the scan.</source>
        <translation>%1 hat sich seit dem Einlesen geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have changed since the scan.</source>
        <translation>
            <numerusform>%1 hat sich seit dem Einlesen geändert.</numerusform>
            <numerusform>%1 haben sich seit dem Einlesen geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was not looked at.</source>
        <translation>%1 wurde nicht untersucht.</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not looked at.</source>
        <translation>
            <numerusform>%1 wurde nicht untersucht.</numerusform>
            <numerusform>%1 wurden nicht untersucht.</numerusform>
        </translation>
    </message>
    <message>
        <source>One file</source>
        <translation>Eine Datei</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>“%1” and one other file</source>
        <translation>„%1“ und eine weitere Datei</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 other files</source>
        <translation>
            <numerusform>„%1“ und %2 weitere Datei</numerusform>
            <numerusform>„%1“ und %2 weitere Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%1 more</source>
        <translation>
            <numerusform>%1 weiteren</numerusform>
            <numerusform>%1 weiteren</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Programs that may not be looked at may hold files open.</source>
        <translation>Programme, die nicht untersucht werden dürfen, haben möglicherweise Dateien geöffnet.</translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message>
        <source>Moves to the Trash</source>
        <translation>In den Papierkorb verschoben</translation>
    </message>
    <message>
        <source>Moves to the trash</source>
        <translation>Was in den Papierkorb verschoben wurde</translation>
    </message>
</context>
<context>
    <name>HomeView</name>
    <message>
        <source>Disks and locations</source>
        <translation>Datenträger und Orte</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>Ord&amp;ner öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Choose any folder and scan it</source>
        <translation>Einen beliebigen Ordner wählen und einlesen</translation>
    </message>
    <message>
        <source>Recent Scans</source>
        <translation>Zuletzt eingelesen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Clear recent scans</source>
        <translation>Liste der zuletzt eingelesenen Ordner leeren</translation>
    </message>
    <message>
        <source>Recent scans</source>
        <translation>Zuletzt eingelesene Ordner</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>&amp;Einlesen</translation>
    </message>
</context>
<context>
    <name>ItemStatusTexts</name>
    <message>
        <source>less than %1% of %2</source>
        <translation>weniger als %1&#xa0;% von %2</translation>
    </message>
    <message>
        <source>%1% of %2</source>
        <translation>%1&#xa0;% von %2</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 Objekt</numerusform>
            <numerusform>%1 Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>being rescanned</source>
        <translation>wird neu eingelesen</translation>
    </message>
    <message>
        <source>Small items</source>
        <translation>Kleine Objekte</translation>
    </message>
</context>
<context>
    <name>LedgerListTexts</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Grund</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>und %1 weiterer</numerusform>
            <numerusform>und %1 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Covered by</source>
        <translation>Verdeckt durch</translation>
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
        <translation>Programm</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Deleted file</source>
        <translation>Gelöschte Datei</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
</context>
<context>
    <name>LedgerTexts</name>
    <message>
        <source>There may be more: the system does not tell Tessera what runs.</source>
        <translation>Es können mehr sein: Das System verrät Tessera nicht, welche Programme laufen.</translation>
    </message>
    <message numerus="yes">
        <source>There may be more: Tessera may not look into %1 of the programs that run.</source>
        <translation>
            <numerusform>Es können mehr sein: In %1 der laufenden Programme darf Tessera nicht hineinsehen.</numerusform>
            <numerusform>Es können mehr sein: In %1 der laufenden Programme darf Tessera nicht hineinsehen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There may be more: not everything could be looked at in time.</source>
        <translation>Es können mehr sein: Nicht alles konnte rechtzeitig untersucht werden.</translation>
    </message>
    <message>
        <source>There may be more, whose size the system does not tell.</source>
        <translation>Es können mehr sein, deren Größe das System nicht verrät.</translation>
    </message>
    <message>
        <source>Nothing was found that is deleted and that a program still has open.</source>
        <translation>Es wurde nichts gefunden, was gelöscht ist und was ein Programm noch geöffnet hat.</translation>
    </message>
    <message>
        <source>Deleted files that programs still have open. End or restart these programs, and the space is free.</source>
        <translation>Gelöschte Dateien, die Programme noch geöffnet haben. Beenden Sie diese Programme oder starten Sie sie neu, dann ist der Platz frei.</translation>
    </message>
    <message>
        <source>More was found than is in use. That happens where files are compressed, share what they take, or changed while they were counted.</source>
        <translation>Es wurde mehr gefunden, als belegt ist. Das kommt vor, wenn Dateien komprimiert sind, sich ihren Platz teilen oder sich während des Zählens geändert haben.</translation>
    </message>
    <message>
        <source>In use, and none of the other lines: journal, records and snapshots of the file system, and whatever nobody could see.</source>
        <translation>Belegt und in keiner der anderen Zeilen enthalten: Journal, Verwaltungsdaten und Schnappschüsse des Dateisystems und alles, was niemand sehen konnte.</translation>
    </message>
    <message>
        <source>The system does not tell what is hidden below other mounts.</source>
        <translation>Das System verrät nicht, was unter anderen Einhängepunkten verborgen ist.</translation>
    </message>
    <message>
        <source>Held back by the file system for its own records.</source>
        <translation>Vom Dateisystem für seine Verwaltungsdaten zurückgehalten.</translation>
    </message>
    <message>
        <source>Kept free for the administrator, so that the system goes on when the disk is full for everybody else.</source>
        <translation>Für den Systemverwalter frei gehalten, damit das System weiterläuft, wenn der Datenträger für alle anderen voll ist.</translation>
    </message>
    <message>
        <source>What is in them is part of the rest; how much that is nobody knows.</source>
        <translation>Ihr Inhalt zählt zum Rest; wie viel das ist, weiß niemand.</translation>
    </message>
    <message>
        <source>Files found, each once</source>
        <translation>Gefundene Dateien, jede einmal</translation>
    </message>
    <message>
        <source>Deleted but still open</source>
        <translation>Gelöscht, aber noch geöffnet</translation>
    </message>
    <message>
        <source>Folders that could not be read (%1)</source>
        <translation>Ordner, die nicht gelesen werden konnten (%1)</translation>
    </message>
    <message>
        <source>May be hidden below other mounts (%1)</source>
        <translation>Möglicherweise unter Einhängepunkten verborgen (%1)</translation>
    </message>
    <message>
        <source>Left out on purpose (%1)</source>
        <translation>Absichtlich ausgelassen (%1)</translation>
    </message>
    <message>
        <source>The file system&apos;s own, and the rest</source>
        <translation>Das Dateisystem selbst und der Rest</translation>
    </message>
    <message>
        <source>Reserved by the file system</source>
        <translation>Vom Dateisystem reserviert</translation>
    </message>
    <message>
        <source>Reserved for the administrator</source>
        <translation>Für den Systemverwalter reserviert</translation>
    </message>
    <message>
        <source>Free for you</source>
        <translation>Frei für Sie</translation>
    </message>
    <message>
        <source>What all files take on the disk. A file with several names counts once.</source>
        <translation>Was alle Dateien auf dem Datenträger belegen. Eine Datei mit mehreren Namen zählt einmal.</translation>
    </message>
    <message>
        <source>What the folders take themselves, for the names of what is in them.</source>
        <translation>Was die Ordner selbst belegen, für die Namen ihres Inhalts.</translation>
    </message>
    <message>
        <source>Something else is mounted there. If files lie below it, they cannot be seen, and are part of the rest.</source>
        <translation>Dort ist etwas anderes eingehängt. Falls darunter Dateien liegen, sind sie nicht zu sehen und zählen zum Rest.</translation>
    </message>
    <message>
        <source>Stores of backups and of encrypted homes, whose files would count twice. What they take is part of the rest.</source>
        <translation>Speicher von Datensicherungen und verschlüsselten Persönlichen Ordnern, deren Dateien doppelt zählen würden. Was sie belegen, zählt zum Rest.</translation>
    </message>
    <message>
        <source>What you can still fill.</source>
        <translation>Was Sie noch belegen können.</translation>
    </message>
    <message>
        <source>part of the rest</source>
        <translation>Teil des Rests</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>%1 byte</source>
        <translation>%1 Byte</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 Byte</numerusform>
            <numerusform>%1 Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>Gone meanwhile</source>
        <translation>Inzwischen nicht mehr da</translation>
    </message>
    <message>
        <source>Something else lies there by now</source>
        <translation>Dort liegt jetzt etwas anderes</translation>
    </message>
    <message>
        <source>A link lies there by now</source>
        <translation>Dort liegt jetzt eine Verknüpfung</translation>
    </message>
    <message>
        <source>The disk has an error</source>
        <translation>Der Datenträger hat einen Fehler</translation>
    </message>
    <message>
        <source>The disk gives no answer</source>
        <translation>Der Datenträger antwortet nicht</translation>
    </message>
    <message>
        <source>Tessera may not look into some of them. Frequently Asked Questions, in the Help menu, says how to scan with more rights.</source>
        <translation>In manche davon darf Tessera nicht hineinsehen. Wie Sie mit mehr Rechten einlesen, steht in den häufigen Fragen im Hilfemenü.</translation>
    </message>
    <message>
        <source>The folders themselves</source>
        <translation>Die Ordner selbst</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Keine Berechtigung</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Ordner öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Lets you choose a folder and scans it.</source>
        <translation>Lässt Sie einen Ordner wählen und liest ihn ein.</translation>
    </message>
    <message>
        <source>Choose &amp;Another Disk or Folder</source>
        <translation>&amp;Anderen Datenträger oder Ordner wählen</translation>
    </message>
    <message>
        <source>Goes back to the home screen, where you choose what to scan.</source>
        <translation>Geht zur Startseite zurück, auf der Sie wählen, was eingelesen wird.</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Lets you choose what is shown under the pointer and when Tessera warns you.</source>
        <translation>Lässt Sie wählen, was unter dem Mauszeiger angezeigt wird und wann Tessera Sie warnt.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ends Tessera, and asks you first while an archive is being made.</source>
        <translation>Beendet Tessera und fragt vorher, solange noch ein Archiv erstellt wird.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Puts what you moved to the trash last back where it was.</source>
        <translation>Legt das zuletzt in den Papierkorb Verschobene dorthin zurück, wo es war.</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Moves what you put back last to the trash again.</source>
        <translation>Verschiebt das zuletzt Zurückgelegte wieder in den Papierkorb.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Opens the selected item in the program that your desktop has for it, and never runs it.</source>
        <translation>Öffnet das ausgewählte Objekt mit dem Programm, das Ihre Arbeitsumgebung dafür vorsieht, und führt es niemals aus.</translation>
    </message>
    <message>
        <source>Open &amp;With…</source>
        <translation>Öffnen &amp;mit&#xa0;…</translation>
    </message>
    <message>
        <source>Lets you choose the program in which the selected item opens.</source>
        <translation>Lässt Sie das Programm wählen, mit dem das ausgewählte Objekt geöffnet wird.</translation>
    </message>
    <message>
        <source>&amp;Quick Look</source>
        <translation>Schn&amp;ellvorschau</translation>
    </message>
    <message>
        <source>Previews the selected item in a small window.</source>
        <translation>Zeigt eine Vorschau des ausgewählten Objekts in einem kleinen Fenster.</translation>
    </message>
    <message>
        <source>&amp;Show in Finder</source>
        <extracomment>Translate “Show in File Manager”: the system has words of its own.</extracomment>
        <translation>In &amp;Dateiverwaltung anzeigen</translation>
    </message>
    <message>
        <source>Shows the selected item in your file manager.</source>
        <translation>Zeigt das ausgewählte Objekt in Ihrer Dateiverwaltung.</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copies the path of the selected item, or of the folder in view while nothing is selected.</source>
        <translation>Kopiert den Pfad des ausgewählten Objekts oder den des gezeigten Ordners, solange nichts ausgewählt ist.</translation>
    </message>
    <message>
        <source>Open Ter&amp;minal Here</source>
        <translation>&amp;Terminal hier öffnen</translation>
    </message>
    <message>
        <source>Opens a terminal in the selected folder, in that of the selected file, or in the folder in view while nothing is selected.</source>
        <translation>Öffnet ein Terminal im ausgewählten Ordner, in dem der ausgewählten Datei oder im gezeigten Ordner, solange nichts ausgewählt ist.</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>Scans the selected folder again, or the folder in view while nothing is selected.</source>
        <translation>Liest den ausgewählten Ordner neu ein oder den gezeigten, solange nichts ausgewählt ist.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>Leaves the selected folder out of the picture and changes nothing on the disk.</source>
        <translation>Lässt den ausgewählten Ordner aus dem Bild weg und ändert nichts auf dem Datenträger.</translation>
    </message>
    <message>
        <source>&amp;Compress</source>
        <translation>&amp;Komprimieren</translation>
    </message>
    <message>
        <source>Makes a zip archive of the selected item beside it; the item itself stays.</source>
        <translation>Erstellt neben dem ausgewählten Objekt ein Zip-Archiv davon; das Objekt selbst bleibt.</translation>
    </message>
    <message>
        <source>Compress Folder</source>
        <translation>Ordner komprimieren</translation>
    </message>
    <message>
        <source>Compress File</source>
        <translation>Datei komprimieren</translation>
    </message>
    <message>
        <source>Add to &amp;Basket</source>
        <translation>In den &amp;Sammelkorb legen</translation>
    </message>
    <message>
        <source>Puts the selected item into the basket, or takes it out again; nothing moves on the disk.</source>
        <translation>Legt das ausgewählte Objekt in den Sammelkorb oder nimmt es wieder heraus; auf dem Datenträger wird nichts verschoben.</translation>
    </message>
    <message>
        <source>Move to &amp;Trash</source>
        <translation>In den Papierkorb &amp;verschieben</translation>
    </message>
    <message>
        <source>Moves the selected item to the trash, after a warning where that is risky.</source>
        <translation>Verschiebt das ausgewählte Objekt in den Papierkorb, wo es heikel ist erst nach einer Warnung.</translation>
    </message>
    <message>
        <source>Prop&amp;erties</source>
        <translation>Ei&amp;genschaften</translation>
    </message>
    <message>
        <source>Shows what your file manager tells of the selected item.</source>
        <translation>Zeigt, was Ihre Dateiverwaltung über das ausgewählte Objekt weiß.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Hineinzoomen</translation>
    </message>
    <message>
        <source>Fills the window with the selected folder.</source>
        <translation>Füllt das Fenster mit dem ausgewählten Ordner.</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Hinaus&amp;zoomen</translation>
    </message>
    <message>
        <source>Shows the folder around the one in view.</source>
        <translation>Zeigt den Ordner, in dem der gezeigte liegt.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Scans all that is shown again and leads you back to where you were, or looks for disks and folders again on the home screen.</source>
        <translation>Liest alles Gezeigte neu ein und führt Sie dorthin zurück, wo Sie waren; auf der Startseite wird erneut nach Datenträgern und Ordnern gesucht.</translation>
    </message>
    <message>
        <source>&amp;Basket</source>
        <translation>&amp;Sammelkorb</translation>
    </message>
    <message>
        <source>Shows, in a panel beside the picture, what you have collected and what moving it to the trash will free, or closes that panel.</source>
        <translation>Zeigt in einer Leiste neben dem Bild, was Sie gesammelt haben und wie viel Platz frei wird, wenn es in den Papierkorb verschoben wird, oder schließt diese Leiste.</translation>
    </message>
    <message>
        <source>Where the &amp;Space Is</source>
        <translation>&amp;Wo der Speicherplatz ist</translation>
    </message>
    <message>
        <source>Shows, in a panel beside the picture, what all of the scanned disk&apos;s space is used for, or closes that panel.</source>
        <translation>Zeigt in einer Leiste neben dem Bild, wofür der gesamte Platz des eingelesenen Datenträgers verwendet wird, oder schließt diese Leiste.</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>Lists what you moved to the trash, and puts it back where it was.</source>
        <translation>Listet auf, was Sie in den Papierkorb verschoben haben, und legt es zurück, wo es war.</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Voll&amp;bild</translation>
    </message>
    <message>
        <source>Lets the window fill the whole screen, or gives it back its size.</source>
        <translation>Lässt das Fenster den ganzen Bildschirm füllen oder gibt ihm seine Größe zurück.</translation>
    </message>
    <message>
        <source>Status &amp;Line</source>
        <translation>S&amp;tatuszeile</translation>
    </message>
    <message>
        <source>Shows, in a line below the picture, what is under the pointer or selected, or hides that line.</source>
        <translation>Zeigt in einer Zeile unter dem Bild, was unter dem Mauszeiger liegt oder ausgewählt ist, oder blendet diese Zeile aus.</translation>
    </message>
    <message>
        <source>What Tessera &amp;Does</source>
        <translation>Was Tessera &amp;kann</translation>
    </message>
    <message>
        <source>Opens a page that says what Tessera does and how you use it.</source>
        <translation>Öffnet eine Seite, die sagt, was Tessera kann und wie man es benutzt.</translation>
    </message>
    <message>
        <source>Frequently Asked &amp;Questions</source>
        <translation>Häufige &amp;Fragen</translation>
    </message>
    <message>
        <source>Opens a page that answers frequently asked questions about Tessera.</source>
        <translation>Öffnet eine Seite, die häufig gestellte Fragen zu Tessera beantwortet.</translation>
    </message>
    <message>
        <source>&amp;About Tessera</source>
        <translation>Ü&amp;ber Tessera</translation>
    </message>
    <message>
        <source>Says which version this is, what it is made with, and under which license.</source>
        <translation>Sagt, welche Version dies ist, womit und unter welcher Lizenz sie entstanden ist.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Item</source>
        <translation>&amp;Objekt</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Take Out of &amp;Basket</source>
        <translation>Aus dem &amp;Sammelkorb nehmen</translation>
    </message>
</context>
<context>
    <name>MainToolbar</name>
    <message>
        <source>Choose another disk or folder</source>
        <translation>Anderen Datenträger oder Ordner wählen</translation>
    </message>
    <message>
        <source>Commands for the selected item</source>
        <translation>Befehle für das ausgewählte Objekt</translation>
    </message>
    <message>
        <source>What the picture leaves out</source>
        <translation>Was das Bild weglässt</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
</context>
<context>
    <name>MoveAllReportTexts</name>
    <message>
        <source>A folder had changed since it was scanned</source>
        <translation>Ein Ordner hatte sich seit dem Einlesen geändert</translation>
    </message>
    <message>
        <source>Folders had changed since they were scanned</source>
        <translation>Ordner hatten sich seit dem Einlesen geändert</translation>
    </message>
    <message>
        <source>One item may not have been moved to the trash</source>
        <translation>Ein Objekt wurde möglicherweise nicht in den Papierkorb verschoben</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items may not have been moved to the trash</source>
        <translation>
            <numerusform>%Ln Objekt wurde möglicherweise nicht in den Papierkorb verschoben</numerusform>
            <numerusform>%Ln Objekte wurden möglicherweise nicht in den Papierkorb verschoben</numerusform>
        </translation>
    </message>
    <message>
        <source>One item was not moved to the trash</source>
        <translation>Ein Objekt wurde nicht in den Papierkorb verschoben</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items were not moved to the trash</source>
        <translation>
            <numerusform>%Ln Objekt wurde nicht in den Papierkorb verschoben</numerusform>
            <numerusform>%Ln Objekte wurden nicht in den Papierkorb verschoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>und %Ln weiteres</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is in the trash, with all that is in it now.</source>
        <translation>%1 ist im Papierkorb, mit allem, was jetzt darin liegt.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are in the trash, with all that is in them now.</source>
        <translation>
            <numerusform>%1 ist im Papierkorb, mit allem, was jetzt darin liegt.</numerusform>
            <numerusform>%1 sind im Papierkorb, mit allem, was jetzt darin liegt.</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>MoveAllTexts</name>
    <message>
        <source>%1 is hidden, or is in a hidden folder.</source>
        <translation>%1 ist versteckt oder liegt in einem versteckten Ordner.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are hidden, or are in hidden folders.</source>
        <translation>
            <numerusform>%1 ist versteckt oder liegt in einem versteckten Ordner.</numerusform>
            <numerusform>%1 sind versteckt oder liegen in versteckten Ordnern.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is in a system folder: other applications may be using it.</source>
        <translation>%1 liegt in einem Systemordner: Andere Anwendungen verwenden es möglicherweise.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are in system folders: other applications may be using them.</source>
        <translation>
            <numerusform>%1 liegt in einem Systemordner: Andere Anwendungen verwenden es möglicherweise.</numerusform>
            <numerusform>%1 liegen in Systemordnern: Andere Anwendungen verwenden sie möglicherweise.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 belongs to another user.</source>
        <translation>%1 gehört einem anderen Benutzer.</translation>
    </message>
    <message numerus="yes">
        <source>%1 belong to other users.</source>
        <translation>
            <numerusform>%1 gehört einem anderen Benutzer.</numerusform>
            <numerusform>%1 gehören anderen Benutzern.</numerusform>
        </translation>
    </message>
    <message>
        <source>No backup would be left in %1.</source>
        <translation>In %1 bliebe keine Datensicherung übrig.</translation>
    </message>
    <message numerus="yes">
        <source>No backups would be left in %1.</source>
        <translation>
            <numerusform>In %1 bliebe keine Datensicherung übrig.</numerusform>
            <numerusform>In %1 blieben keine Datensicherungen übrig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>und %1 weiteres</numerusform>
            <numerusform>und %1 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Are you sure you want to move one item (%1) to the trash?</source>
        <translation>Möchten Sie wirklich ein Objekt (%1) in den Papierkorb verschieben?</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to move %1 items (%2) to the trash?</source>
        <translation>
            <numerusform>Möchten Sie wirklich %1 Objekt (%2) in den Papierkorb verschieben?</numerusform>
            <numerusform>Möchten Sie wirklich %1 Objekte (%2) in den Papierkorb verschieben?</numerusform>
        </translation>
    </message>
    <message>
        <source>What has come into the folders since they were scanned goes with them.</source>
        <translation>Was seit dem Einlesen in die Ordner gekommen ist, wird mit ihnen verschoben.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Move To Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>NamesTexts</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1 und %2 weiteres</numerusform>
            <numerusform>%1 und %2 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
</context>
<context>
    <name>NoFileManagerTexts</name>
    <message>
        <source>There is no file manager</source>
        <translation>Es gibt keine Dateiverwaltung</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be shown, because the desktop offers no program for that.</source>
        <translation>„%1“ kann nicht angezeigt werden, weil die Arbeitsumgebung kein Programm dafür anbietet.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>NodeNames</name>
    <message>
        <source>Free Space</source>
        <translation>Freier Speicherplatz</translation>
    </message>
    <message>
        <source>Restricted Files</source>
        <translation>Unzugängliche Dateien</translation>
    </message>
</context>
<context>
    <name>PlaceNames</name>
    <message>
        <source>File System</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>App-Daten</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Warn before moving to the trash:</source>
        <translation>Vor dem Verschieben in den Papierkorb warnen:</translation>
    </message>
    <message>
        <source>&amp;Hidden items</source>
        <translation>&amp;Versteckte Objekte</translation>
    </message>
    <message>
        <source>Warn before a hidden item is moved to the trash</source>
        <translation>Warnen, bevor ein verstecktes Objekt in den Papierkorb verschoben wird</translation>
    </message>
    <message>
        <source>&amp;System items</source>
        <translation>&amp;Objekte des Systems</translation>
    </message>
    <message>
        <source>Warn before an item of the system is moved to the trash</source>
        <translation>Warnen, bevor ein Objekt des Systems in den Papierkorb verschoben wird</translation>
    </message>
    <message>
        <source>Under the &amp;pointer, show:</source>
        <translation>Unter dem &amp;Mauszeiger anzeigen:</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Name and size</source>
        <translation>Name und Größe</translation>
    </message>
    <message>
        <source>Name, size, date and path</source>
        <translation>Name, Größe, Datum und Pfad</translation>
    </message>
    <message>
        <source>In the picture, show:</source>
        <translation>Im Bild anzeigen:</translation>
    </message>
    <message>
        <source>Si&amp;zes behind folder names</source>
        <translation>&amp;Größen hinter Ordnernamen</translation>
    </message>
    <message>
        <source>Show the size of a folder behind its name in the picture, where there is room</source>
        <translation>Die Größe eines Ordners im Bild hinter seinem Namen anzeigen, wo Platz ist</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
</context>
<context>
    <name>ScanProblemTexts</name>
    <message>
        <source>There is no folder &apos;%1&apos; any more. It may have been moved, renamed or deleted, or its disk may not be connected.</source>
        <translation>Den Ordner „%1“ gibt es nicht mehr. Er wurde möglicherweise verschoben, umbenannt oder gelöscht, oder sein Datenträger ist nicht angeschlossen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The folder cannot be scanned</source>
        <translation>Der Ordner kann nicht eingelesen werden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You do not have permission to look into &apos;%1&apos;. Frequently Asked Questions, in the Help menu, says how to scan with more rights.</source>
        <translation>Sie haben keine Berechtigung, in „%1“ hineinzusehen. Wie Sie mit mehr Rechten einlesen, steht in den häufigen Fragen im Hilfemenü.</translation>
    </message>
    <message>
        <source>The system is too busy to scan &apos;%1&apos;. Close some programs and try again.</source>
        <translation>Das System ist zu ausgelastet, um „%1“ einzulesen. Schließen Sie einige Programme und versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Progress of the scan</source>
        <translation>Fortschritt des Einlesens</translation>
    </message>
    <message>
        <source>Read so far:</source>
        <translation>Bisher gelesen:</translation>
    </message>
    <message>
        <source>Amount read so far</source>
        <translation>Bisher gelesene Menge</translation>
    </message>
    <message>
        <source>Files read in a second</source>
        <translation>Gelesene Dateien in einer Sekunde</translation>
    </message>
    <message>
        <source>Tip: in the picture, a larger box is a larger folder or file. Double-click a folder to look inside, and press Backspace to come back.</source>
        <translation>Tipp: Im Bild ist ein größerer Kasten ein größerer Ordner oder eine größere Datei. Doppelklicken Sie auf einen Ordner, um hineinzusehen; mit der Rücktaste kommen Sie zurück.</translation>
    </message>
    <message>
        <source>Stop the scan and go back (Escape)</source>
        <translation>Das Einlesen abbrechen und zurückgehen (Esc)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>%1&#xa0;×&#xa0;%2</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Es ist nicht mehr da.</translation>
    </message>
    <message>
        <source>It cannot be looked at: %1</source>
        <translation>Es kann nicht untersucht werden: %1</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Es kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>It cannot be shown: the program tessera-preview cannot be started.</source>
        <translation>Es kann nicht angezeigt werden: Das Programm tessera-preview lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>It is damaged, or takes too much memory or time to be shown.</source>
        <translation>Es ist beschädigt oder braucht zu viel Arbeitsspeicher oder Zeit, um angezeigt zu werden.</translation>
    </message>
    <message>
        <source>The picture is damaged or too large to be shown.</source>
        <translation>Das Bild ist beschädigt oder zu groß, um angezeigt zu werden.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Abmessungen</translation>
    </message>
    <message>
        <source>Leads to</source>
        <translation>Führt zu</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Size on disk</source>
        <translation>Größe auf dem Datenträger</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen&#xa0;…</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages</source>
        <translation>
            <numerusform>%Ln Seite</numerusform>
            <numerusform>%Ln Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>first %1 shown</source>
        <comment>size</comment>
        <translation>die ersten %1 werden gezeigt</translation>
    </message>
    <message numerus="yes">
        <source>first %Ln shown</source>
        <comment>pages</comment>
        <translation>
            <numerusform>die erste wird gezeigt</numerusform>
            <numerusform>die ersten %Ln werden gezeigt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TooltipController</name>
    <message numerus="yes">
        <source>one of %1 names of a file that is counted at %2</source>
        <translation>
            <numerusform>einer von %1 Namen einer Datei, die bei %2 gezählt wird</numerusform>
            <numerusform>einer von %1 Namen einer Datei, die bei %2 gezählt wird</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TooltipWindow</name>
    <message>
        <source>Small items</source>
        <translation>Kleine Objekte</translation>
    </message>
    <message>
        <source>Largest first:</source>
        <translation>Größte zuerst:</translation>
    </message>
    <message>
        <source>Restricted Files</source>
        <translation>Unzugängliche Dateien</translation>
    </message>
    <message>
        <source>Space in use that the scan could not read, or that belongs to no file.</source>
        <translation>Belegter Platz, den das Einlesen nicht lesen konnte oder der zu keiner Datei gehört.</translation>
    </message>
</context>
<context>
    <name>TrashSentences</name>
    <message>
        <source>Nothing was moved to the trash, because the system is too busy to begin with it. Close some programs and try again.</source>
        <translation>Es wurde nichts in den Papierkorb verschoben, weil das System zu beschäftigt ist, um damit zu beginnen. Schließen Sie einige Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Nothing was put back, because the system is too busy to begin with it. Close some programs and try again.</source>
        <translation>Es wurde nichts zurückgelegt, weil das System zu beschäftigt ist, um damit zu beginnen. Schließen Sie einige Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan.</source>
        <translation>„%1“ wurde nicht verschoben, weil es sich seit dem Einlesen geändert hat.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because another item has taken its name since the scan.</source>
        <translation>„%1“ wurde nicht verschoben, weil seit dem Einlesen ein anderes Objekt diesen Namen bekommen hat.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it was made after the scan began.</source>
        <translation>„%1“ wurde nicht verschoben, weil es erst nach dem Beginn des Einlesens entstanden ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan: it is a folder now.</source>
        <translation>„%1“ wurde nicht verschoben, weil es sich seit dem Einlesen geändert hat: Es ist jetzt ein Ordner.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan: it is no folder any more.</source>
        <translation>„%1“ wurde nicht verschoben, weil es sich seit dem Einlesen geändert hat: Es ist kein Ordner mehr.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because it is not there any more.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil es nicht mehr da ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because you have no permission to do so.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil Sie keine Berechtigung dazu haben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because a folder on the way to it has become a link since the scan.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil ein Ordner auf dem Weg dorthin seit dem Einlesen zu einer Verknüpfung geworden ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk can only be read.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil sein Datenträger nur gelesen werden kann.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk has no space left.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil auf seinem Datenträger kein Platz mehr ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because it could only be copied there.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil es dorthin nur kopiert werden könnte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because the system is using it.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil das System es gerade verwendet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be in the trash or where it was, because its disk broke off while it was moved. Nothing has been removed.</source>
        <translation>„%1“ ist entweder im Papierkorb oder dort, wo es war, weil die Verbindung zum Datenträger während des Verschiebens abgebrochen ist. Es wurde nichts gelöscht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its path is too long.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil sein Pfad zu lang ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash: %2.</source>
        <extracomment>%2 is what the system says</extracomment>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk has no trash for you.</source>
        <translation>„%1“ wurde nicht in den Papierkorb verschoben, weil es auf seinem Datenträger keinen Papierkorb für Sie gibt.</translation>
    </message>
    <message>
        <source>it is not a file of your own in a folder that nobody else can write to</source>
        <translation>es ist keine eigene Datei von Ihnen in einem Ordner, in den sonst niemand schreiben kann</translation>
    </message>
    <message>
        <source>another program is writing to it</source>
        <translation>ein anderes Programm schreibt gerade hinein</translation>
    </message>
    <message>
        <source>What is moved to the trash can be restored there, but this program will not list it: &apos;%1&apos; cannot be written (%2).</source>
        <extracomment>%2 says why: the texts above, or what the system says</extracomment>
        <translation>Was in den Papierkorb verschoben wird, kann dort wiederhergestellt werden, aber dieses Programm wird es nicht auflisten: „%1“ kann nicht geschrieben werden (%2).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because something new is called &apos;%2&apos; there.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil dort etwas Neues „%2“ heißt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because the folder that it was in is not there any more.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil der Ordner, in dem es war, nicht mehr da ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because what was a folder on the way to its place is none any more.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil auf dem Weg zu seinem Platz etwas, das ein Ordner war, keiner mehr ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because a folder on the way to its place has become a link.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil ein Ordner auf dem Weg zu seinem Platz zu einer Verknüpfung geworden ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because it is not in the trash any more.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil es nicht mehr im Papierkorb ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because it cannot be told whether what is in its place in the trash is the same item still. Restore it from the trash.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil nicht festzustellen ist, ob an seinem Platz im Papierkorb noch dasselbe Objekt liegt. Stellen Sie es aus dem Papierkorb wieder her.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because the trash that it is in cannot be found. If its disk is not connected, connect it and try again.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil der Papierkorb, in dem es liegt, nicht zu finden ist. Falls der Datenträger nicht angeschlossen ist, schließen Sie ihn an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its place is on another disk than the trash now. You can copy it there from the trash.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil sein Platz jetzt auf einem anderen Datenträger als der Papierkorb ist. Sie können es aus dem Papierkorb dorthin kopieren.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its disk can only be read.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil sein Datenträger nur gelesen werden kann.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because you have no permission to do so.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil Sie keine Berechtigung dazu haben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its disk has no space left. Make some and try again.</source>
        <translation>„%1“ wurde nicht zurückgelegt, weil auf dem Datenträger kein Platz mehr ist. Schaffen Sie Platz und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be in the trash or where it was, because its disk broke off while it was put back. Nothing has been removed.</source>
        <translation>„%1“ ist entweder im Papierkorb oder dort, wo es war, weil die Verbindung zum Datenträger während des Zurücklegens abgebrochen ist. Es wurde nichts gelöscht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back: %2.</source>
        <translation>„%1“ wurde nicht zurückgelegt: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because something else is called so now.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden, weil jetzt etwas anderes so heißt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because the system does not say which disks are mounted.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden, weil das System nicht sagt, welche Datenträger eingehängt sind.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because a disk is mounted there.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden, weil dort ein Datenträger eingehängt ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because a disk is mounted inside it.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden, weil darin ein Datenträger eingehängt ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because your home folder is there.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden, weil dort Ihr Persönlicher Ordner liegt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because the trash is there.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden, weil dort der Papierkorb liegt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because it is in the trash already.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden, weil es bereits im Papierkorb ist.</translation>
    </message>
</context>
<context>
    <name>TrashStepTexts</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
</context>
<context>
    <name>TreeBranchTexts</name>
    <message>
        <source>You may not look into this folder. See Frequently Asked Questions in the Help menu.</source>
        <translation>In diesen Ordner dürfen Sie nicht hineinsehen. Mehr dazu in den häufigen Fragen im Hilfemenü.</translation>
    </message>
    <message>
        <source>This folder could not be read. Rescan it to try again.</source>
        <translation>Dieser Ordner konnte nicht gelesen werden. Lesen Sie ihn neu ein, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>This folder is empty. Rescan it when something has come.</source>
        <translation>Dieser Ordner ist leer. Lesen Sie ihn neu ein, wenn etwas hinzugekommen ist.</translation>
    </message>
    <message>
        <source>Everything in this folder is left out of the picture. The Ignore menu brings it back.</source>
        <translation>Alles in diesem Ordner ist im Bild weggelassen. Das Menü „Ignorieren“ holt es zurück.</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>Contextual Menu</source>
        <translation>Kontextmenü</translation>
    </message>
</context>
<context>
    <name>VolumeCollectionView</name>
    <message>
        <source>Used space</source>
        <translation>Belegter Platz</translation>
    </message>
</context>
<context>
    <name>tessera::AboutWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Shows where the space on a disk goes.</source>
        <translation>Zeigt, wo der Platz auf einem Datenträger bleibt.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>About Tessera</source>
        <translation>Über Tessera</translation>
    </message>
    <message>
        <source>License</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>&amp;Versions</source>
        <translation>&amp;Versionen</translation>
    </message>
    <message>
        <source>&amp;License</source>
        <translation>&amp;Lizenz</translation>
    </message>
    <message>
        <source>&amp;Copy Versions</source>
        <translation>Versionen &amp;kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>tessera::AppDelegate</name>
    <message>
        <source>An archive is still being made</source>
        <translation>Es wird noch ein Archiv erstellt</translation>
    </message>
    <message>
        <source>Tessera can finish it in the background, in a window of its own, and quit then. If it is stopped, the incomplete archive goes to the trash.</source>
        <translation>Tessera kann es im Hintergrund in einem eigenen Fenster fertigstellen und sich dann beenden. Wird es abgebrochen, kommt das unvollständige Archiv in den Papierkorb.</translation>
    </message>
    <message>
        <source>Finish in Background</source>
        <translation>Im Hintergrund fertigstellen</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Abbrechen und beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>If the session ends now it is stopped, and the incomplete archive goes to the trash.</source>
        <translation>Wenn die Sitzung jetzt endet, wird es abgebrochen, und das unvollständige Archiv kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>End Session</source>
        <translation>Sitzung beenden</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>Die Hilfe kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>Either its pages are not installed or the desktop offers no web browser.</source>
        <translation>Entweder sind ihre Seiten nicht installiert, oder die Arbeitsumgebung bietet keinen Webbrowser an.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>tessera::BasketList</name>
    <message>
        <source>Show in Picture</source>
        <translation>Im Bild zeigen</translation>
    </message>
    <message>
        <source>Take Out of Basket</source>
        <translation>Aus dem Sammelkorb nehmen</translation>
    </message>
</context>
<context>
    <name>tessera::BasketModel</name>
    <message>
        <source>inside “%1”</source>
        <translation>in „%1“</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>noch nicht gezählt</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Will free</source>
        <translation>Wird frei</translation>
    </message>
</context>
<context>
    <name>tessera::BasketPanel</name>
    <message>
        <source>Basket</source>
        <translation>Sammelkorb</translation>
    </message>
    <message>
        <source>Press B, or drag boxes here, to collect what you want to move to the trash. Nothing moves until you say so.</source>
        <translation>Drücken Sie B oder ziehen Sie Kästen hierher, um zu sammeln, was Sie in den Papierkorb verschieben möchten. Nichts wird verschoben, bevor Sie es sagen.</translation>
    </message>
    <message>
        <source>Items in the basket</source>
        <translation>Objekte im Sammelkorb</translation>
    </message>
    <message>
        <source>%1 Delete takes the selected items out of the basket; nothing moves to the trash.</source>
        <translation>%1 Entf nimmt die ausgewählten Objekte aus dem Sammelkorb; in den Papierkorb wird nichts verschoben.</translation>
    </message>
    <message>
        <source>Empty Basket</source>
        <translation>Sammelkorb leeren</translation>
    </message>
    <message>
        <source>Takes all items out of the basket. Nothing moves to the trash.</source>
        <translation>Nimmt alle Objekte aus dem Sammelkorb. In den Papierkorb wird nichts verschoben.</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>Keine Objekte</translation>
    </message>
    <message>
        <source>1 item, %1</source>
        <translation>1 Objekt, %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 items, %2</source>
        <translation>
            <numerusform>%1 Objekt, %2</numerusform>
            <numerusform>%1 Objekte, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Add to Basket</source>
        <translation>In den Sammelkorb legen</translation>
    </message>
    <message>
        <source>Moving to Trash…</source>
        <translation>Wird in den Papierkorb verschoben&#xa0;…</translation>
    </message>
    <message>
        <source>Looking at the Items…</source>
        <translation>Objekte werden untersucht&#xa0;…</translation>
    </message>
    <message>
        <source>Move All to Trash…</source>
        <translation>Alle in den Papierkorb verschieben&#xa0;…</translation>
    </message>
    <message>
        <source>Asks before anything moves. %1</source>
        <translation>Fragt, bevor etwas verschoben wird. %1</translation>
    </message>
    <message>
        <source>Take Out of Basket</source>
        <translation>Aus dem Sammelkorb nehmen</translation>
    </message>
    <message>
        <source>The items are being looked at.</source>
        <translation>Die Objekte werden gerade geprüft.</translation>
    </message>
    <message>
        <source>Another item has just been selected.</source>
        <translation>Eben wurde ein anderes Objekt ausgewählt.</translation>
    </message>
    <message>
        <source>This cannot be moved to the trash.</source>
        <translation>Das kann nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>Items are on their way to the trash. Wait until they have arrived.</source>
        <translation>Objekte sind auf dem Weg in den Papierkorb. Warten Sie, bis sie dort sind.</translation>
    </message>
    <message>
        <source>The basket is empty.</source>
        <translation>Der Sammelkorb ist leer.</translation>
    </message>
</context>
<context>
    <name>tessera::BasketTrasher</name>
    <message>
        <source>&apos;%1&apos; was not moved, because it could not be looked at when it was chosen.</source>
        <translation>„%1“ wurde nicht verschoben, weil es beim Auswählen nicht untersucht werden konnte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it is not there any more.</source>
        <translation>„%1“ wurde nicht verschoben, weil es nicht mehr da ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has left the basket meanwhile.</source>
        <translation>„%1“ wurde nicht verschoben, weil es inzwischen nicht mehr im Sammelkorb ist.</translation>
    </message>
</context>
<context>
    <name>tessera::CompressWindowController</name>
    <message>
        <source>Creating &apos;%1&apos;</source>
        <translation>„%1“ wird erstellt</translation>
    </message>
    <message>
        <source>Compression Canceled</source>
        <translation>Komprimieren abgebrochen</translation>
    </message>
    <message>
        <source>Compression Failed</source>
        <translation>Komprimieren fehlgeschlagen</translation>
    </message>
    <message>
        <source>The archive is finished</source>
        <translation>Das Archiv ist fertig</translation>
    </message>
    <message>
        <source>The archive cannot be made</source>
        <translation>Das Archiv kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>Archive Created</source>
        <translation>Archiv erstellt</translation>
    </message>
    <message>
        <source>Created &apos;%1&apos;</source>
        <translation>„%1“ wurde erstellt</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>%1. The archive takes %2 less.</source>
        <translation>%1. Das Archiv belegt %2 weniger.</translation>
    </message>
    <message>
        <source>%1. The archive saves nothing.</source>
        <translation>%1. Das Archiv spart nichts ein.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Looking whether the original is still what was archived…</source>
        <translation>Es wird geprüft, ob das Original noch dem Archivierten entspricht&#xa0;…</translation>
    </message>
    <message>
        <source>The original may have changed while it was archived, or since. It stays.</source>
        <translation>Das Original hat sich möglicherweise während des Archivierens oder seitdem geändert. Es bleibt.</translation>
    </message>
    <message>
        <source>The original is not there any more.</source>
        <translation>Das Original ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The archive is not where it was made any more. The original stays.</source>
        <translation>Das Archiv ist nicht mehr dort, wo es erstellt wurde. Das Original bleibt.</translation>
    </message>
    <message>
        <source>The original is not on screen any more. Scan its folder to move it to the trash.</source>
        <translation>Das Original ist nicht mehr im Bild. Lesen Sie seinen Ordner ein, um es in den Papierkorb zu verschieben.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing is left of the incomplete archive but an empty file in the trash.</source>
        <translation>Der Datenträger ist voll. Vom unvollständigen Archiv ist nur eine leere Datei im Papierkorb geblieben.</translation>
    </message>
    <message>
        <source>The disk is full. Of the incomplete archive an empty file is left, which could not be moved to the trash: &apos;%1&apos;.</source>
        <translation>Der Datenträger ist voll. Vom unvollständigen Archiv ist eine leere Datei geblieben, die nicht in den Papierkorb verschoben werden konnte: „%1“.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>tessera::DBusNotifications</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>tessera::GreetingView</name>
    <message>
        <source>Welcome to Tessera, which shows you what fills your disk.</source>
        <translation>Willkommen bei Tessera. Hier sehen Sie, was Ihren Datenträger füllt.</translation>
    </message>
    <message>
        <source>Select a disk or a folder, then press Scan.</source>
        <translation>Wählen Sie einen Datenträger oder Ordner aus und drücken Sie dann „Einlesen“.</translation>
    </message>
    <message>
        <source>&amp;Got It</source>
        <translation>&amp;Verstanden</translation>
    </message>
    <message>
        <source>Closes this greeting for good</source>
        <translation>Schließt diese Begrüßung für immer</translation>
    </message>
</context>
<context>
    <name>tessera::HistoryWindowController</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Anzeigen</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Zurücklegen</translation>
    </message>
    <message>
        <source>Looking where the items are…</source>
        <translation>Es wird nachgesehen, wo die Objekte sind&#xa0;…</translation>
    </message>
    <message>
        <source>One move</source>
        <translation>Einmal verschoben</translation>
    </message>
    <message numerus="yes">
        <source>%n moves</source>
        <translation>
            <numerusform>%n-mal verschoben</numerusform>
            <numerusform>%n-mal verschoben</numerusform>
        </translation>
    </message>
    <message>
        <source>Only what is in the trash can be put back.</source>
        <translation>Nur was im Papierkorb ist, kann zurückgelegt werden.</translation>
    </message>
    <message>
        <source>Puts the item back where it was.</source>
        <translation>Legt das Objekt zurück, wo es war.</translation>
    </message>
    <message>
        <source>Shows the item in your file manager, where it is now.</source>
        <translation>Zeigt das Objekt in Ihrer Dateiverwaltung dort, wo es jetzt ist.</translation>
    </message>
    <message>
        <source>Nobody knows where the item is now, or whether it still exists.</source>
        <translation>Niemand weiß, wo das Objekt jetzt ist oder ob es noch existiert.</translation>
    </message>
    <message>
        <source>What you move to the trash is listed here, and can be put back.</source>
        <translation>Was Sie in den Papierkorb verschieben, steht hier und kann zurückgelegt werden.</translation>
    </message>
    <message>
        <source>Select an item first.</source>
        <translation>Wählen Sie zuerst ein Objekt aus.</translation>
    </message>
</context>
<context>
    <name>tessera::HomeViewController</name>
    <message>
        <source>Disks</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Scan what is selected</source>
        <translation>Einlesen, was ausgewählt ist</translation>
    </message>
    <message>
        <source>Select a disk, a folder or a recent scan first.</source>
        <translation>Wählen Sie zuerst einen Datenträger, einen Ordner oder etwas zuletzt Eingelesenes aus.</translation>
    </message>
    <message>
        <source>Empty the list of recent scans</source>
        <translation>Die Liste der zuletzt eingelesenen Orte leeren</translation>
    </message>
    <message>
        <source>There are no recent scans.</source>
        <translation>Es gibt nichts zuletzt Eingelesenes.</translation>
    </message>
    <message>
        <source>Disks appear here when they are mounted. Reload in the View menu looks for them.</source>
        <translation>Datenträger erscheinen hier, wenn sie eingehängt sind. „Neu laden“ im Ansichtsmenü sucht nach ihnen.</translation>
    </message>
    <message>
        <source>A user&apos;s own folders appear here, and the administrator has none. Open Folder scans any other.</source>
        <translation>Hier erscheinen die eigenen Ordner eines Benutzers; der Systemverwalter hat keine. „Ordner öffnen“ liest jeden anderen ein.</translation>
    </message>
    <message>
        <source>Your folders, such as Downloads and Music, appear here when there are any.</source>
        <translation>Hier erscheinen Ihre Ordner wie Downloads und Musik, sobald es sie gibt.</translation>
    </message>
</context>
<context>
    <name>tessera::IgnoreMenu</name>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Leave Out of the Picture</source>
        <translation>Aus dem Bild weglassen</translation>
    </message>
    <message>
        <source>&amp;Free Space</source>
        <translation>&amp;Freien Speicherplatz</translation>
    </message>
    <message>
        <source>&amp;Hidden Files</source>
        <translation>&amp;Versteckte Dateien</translation>
    </message>
    <message>
        <source>&amp;Restricted Files</source>
        <translation>&amp;Unzugängliche Dateien</translation>
    </message>
    <message>
        <source>&amp;Show Everything</source>
        <translation>&amp;Alles anzeigen</translation>
    </message>
</context>
<context>
    <name>tessera::ItemOpening</name>
    <message>
        <source>It is not there any more. It was moved or deleted after the scan; a rescan of the folder around it shows what is there now.</source>
        <translation>Es ist nicht mehr da. Es wurde nach dem Einlesen verschoben oder gelöscht; lesen Sie den Ordner darüber neu ein, um zu sehen, was jetzt da ist.</translation>
    </message>
    <message>
        <source>You are not allowed to look there.</source>
        <translation>Sie dürfen dort nicht hineinsehen.</translation>
    </message>
    <message>
        <source>The disk that it is on does not answer.</source>
        <translation>Der Datenträger, auf dem es liegt, antwortet nicht.</translation>
    </message>
    <message>
        <source>The program did not start.</source>
        <translation>Das Programm ist nicht gestartet.</translation>
    </message>
    <message>
        <source>No terminal was found on this computer.</source>
        <translation>Auf diesem Rechner wurde kein Terminal gefunden.</translation>
    </message>
    <message>
        <source>The desktop offers no file manager that shows properties, or it did not answer.</source>
        <translation>Die Arbeitsumgebung bietet keine Dateiverwaltung an, die Eigenschaften zeigt, oder diese hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>The desktop has no program for it. Open With lets you choose among all programs.</source>
        <translation>Die Arbeitsumgebung hat kein Programm dafür. Mit „Öffnen mit“ können Sie unter allen Programmen wählen.</translation>
    </message>
    <message>
        <source>No terminal can be opened in &apos;%1&apos;</source>
        <translation>In „%1“ kann kein Terminal geöffnet werden</translation>
    </message>
    <message>
        <source>The properties of &apos;%1&apos; cannot be shown</source>
        <translation>Die Eigenschaften von „%1“ können nicht angezeigt werden</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened</source>
        <translation>„%1“ kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>It is a program, and Tessera runs none. Start it in your file manager, or look into it with Open With.</source>
        <translation>Es ist ein Programm, und Tessera führt keine aus. Starten Sie es in Ihrer Dateiverwaltung oder sehen Sie es mit „Öffnen mit“ an.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>tessera::ItemTrasher</name>
    <message>
        <source>The selected folder &apos;%1&apos; is located inside a system folder. Other applications may be using this folder. Are you sure you want to move this folder to the trash?</source>
        <translation>Der ausgewählte Ordner „%1“ liegt in einem Systemordner. Andere Anwendungen verwenden diesen Ordner möglicherweise. Möchten Sie diesen Ordner wirklich in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is located inside a system folder. Other applications may be using this file. Are you sure you want to move this file to the trash?</source>
        <translation>Die ausgewählte Datei „%1“ liegt in einem Systemordner. Andere Anwendungen verwenden diese Datei möglicherweise. Möchten Sie diese Datei wirklich in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>The selected folder &apos;%1&apos; is marked as hidden, are you sure you want to move this item to the trash?</source>
        <translation>Der ausgewählte Ordner „%1“ ist versteckt. Möchten Sie diesen Ordner wirklich in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is marked as hidden, are you sure you want to move this item to the trash?</source>
        <translation>Die ausgewählte Datei „%1“ ist versteckt. Möchten Sie diese Datei wirklich in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>The selected folder &apos;%1&apos; is located inside a hidden folder, are you sure you want to move this item to the trash?</source>
        <translation>Der ausgewählte Ordner „%1“ liegt in einem versteckten Ordner. Möchten Sie diesen Ordner wirklich in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is located inside a hidden folder, are you sure you want to move this item to the trash?</source>
        <translation>Die ausgewählte Datei „%1“ liegt in einem versteckten Ordner. Möchten Sie diese Datei wirklich in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Move To Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Error moving to Trash</source>
        <translation>Fehler beim Verschieben in den Papierkorb</translation>
    </message>
    <message>
        <source>Error moving &apos;%1&apos; to the Trash for recycling.</source>
        <translation>„%1“ konnte nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>tessera::LedgerBar</name>
    <message>
        <source>Shares of the disk</source>
        <translation>Anteile am Datenträger</translation>
    </message>
</context>
<context>
    <name>tessera::LedgerPanel</name>
    <message>
        <source>Count &amp;Again</source>
        <translation>&amp;Neu zählen</translation>
    </message>
    <message>
        <source>This is about whole disks. Scan a disk to see where its space is.</source>
        <translation>Hier geht es um ganze Datenträger. Lesen Sie einen ein, um zu sehen, wo sein Speicherplatz ist.</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Wird gezählt&#xa0;…</translation>
    </message>
    <message>
        <source>The file system tells no sizes that could be added up.</source>
        <translation>Das Dateisystem nennt keine Größen, die man zusammenzählen könnte.</translation>
    </message>
    <message>
        <source>The disk gives no answer. It may be gone, or very busy.</source>
        <translation>Der Datenträger antwortet nicht. Er ist möglicherweise nicht mehr da oder sehr beschäftigt.</translation>
    </message>
    <message>
        <source>The disk that was scanned is not there any more. Scan again what is.</source>
        <translation>Der eingelesene Datenträger ist nicht mehr da. Lesen Sie neu ein, was da ist.</translation>
    </message>
    <message>
        <source>Show Which</source>
        <translation>Anzeigen, welche</translation>
    </message>
    <message>
        <source>Size of the disk</source>
        <translation>Größe des Datenträgers</translation>
    </message>
    <message>
        <source>All lines together: %1, exactly.</source>
        <translation>Alle Zeilen zusammen: genau %1.</translation>
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
        <translation>%1 wird eingelesen</translation>
    </message>
    <message>
        <source>Time Machine Detected</source>
        <extracomment>Translate “Backup Detected”: the system has words of its own.</extracomment>
        <translation>Datensicherung erkannt</translation>
    </message>
    <message>
        <source>Tessera is unable to scan inside a Time Machine backup. To estimate the overall size of Time Machine, please scan the disk labeled &apos;%1&apos;.</source>
        <extracomment>Translate “a backup” and “the backups”: the system has words of its own.</extracomment>
        <translation>Tessera kann das Innere einer Datensicherung nicht einlesen. Um die Gesamtgröße der Datensicherungen abzuschätzen, lesen Sie bitte den Datenträger „%1“ ein.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>tessera::PanelBody</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>tessera::PreviewView</name>
    <message>
        <source>Nothing is selected</source>
        <translation>Nichts ist ausgewählt</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>Text of %1</source>
        <translation>Text von %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>tessera::ProgramChooser</name>
    <message>
        <source>&amp;Show all programs</source>
        <translation>&amp;Alle Programme anzeigen</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Öffnen mit</translation>
    </message>
    <message>
        <source>Open &apos;%1&apos; with:</source>
        <translation>„%1“ öffnen mit:</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tessera::PuttingBack</name>
    <message>
        <source>There is something new in the place of “%1”</source>
        <translation>An der Stelle von „%1“ ist etwas Neues</translation>
    </message>
    <message>
        <source>It has the same name, in the folder “%1”, and is not replaced.</source>
        <translation>Es hat denselben Namen, liegt im Ordner „%1“ und wird nicht ersetzt.</translation>
    </message>
    <message>
        <source>Put back as “%1”</source>
        <translation>Als „%1“ zurücklegen</translation>
    </message>
    <message>
        <source>The folder that “%1” was in is gone</source>
        <translation>Der Ordner, in dem „%1“ war, ist nicht mehr da</translation>
    </message>
    <message>
        <source>Tessera can make the folder “%1” again and put the item back into it.</source>
        <translation>Tessera kann den Ordner „%1“ neu anlegen und das Objekt wieder hineinlegen.</translation>
    </message>
    <message>
        <source>Make the folder again</source>
        <translation>Ordner neu anlegen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>An item was not put back</source>
        <translation>Ein Objekt wurde nicht zurückgelegt</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not put back</source>
        <translation>
            <numerusform>%n Objekt wurde nicht zurückgelegt</numerusform>
            <numerusform>%n Objekte wurden nicht zurückgelegt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>tessera::QuickLookPanel</name>
    <message>
        <source>Quick Look</source>
        <translation>Schnellvorschau</translation>
    </message>
    <message>
        <source>Quick Look: %1</source>
        <translation>Schnellvorschau: %1</translation>
    </message>
</context>
<context>
    <name>tessera::RecentsTableCell</name>
    <message>
        <source>Last Scan: %1</source>
        <translation>Zuletzt eingelesen: %1</translation>
    </message>
</context>
<context>
    <name>tessera::RecentsTableView</name>
    <message>
        <source>Disks and folders that you scan are listed here, to be scanned again.</source>
        <translation>Datenträger und Ordner, die Sie einlesen, stehen hier und können wieder eingelesen werden.</translation>
    </message>
</context>
<context>
    <name>tessera::RescanIndicator</name>
    <message>
        <source>Rescan progress</source>
        <translation>Fortschritt des Einlesens</translation>
    </message>
</context>
<context>
    <name>tessera::ScanningViewController</name>
    <message>
        <source>%1 files/sec</source>
        <translation>%1 Dateien/s</translation>
    </message>
    <message>
        <source>The scan is finished</source>
        <translation>Das Einlesen ist fertig</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 belegt %2.</translation>
    </message>
</context>
<context>
    <name>tessera::ToolbarPathControl</name>
    <message>
        <source>Path of the folder in view</source>
        <translation>Pfad des gezeigten Ordners</translation>
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
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>In the trash</source>
        <translation>Im Papierkorb</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>Nicht verschoben</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurückgelegt</translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation>Nicht mehr da</translation>
    </message>
    <message>
        <source>The item waits to be put back, until its disk answers and what was begun before is done.</source>
        <translation>Das Objekt wartet darauf, zurückgelegt zu werden, bis sein Datenträger antwortet und das zuvor Begonnene erledigt ist.</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Waiting to be put back</source>
        <translation>Wartet auf das Zurücklegen</translation>
    </message>
    <message>
        <source>Put back to %1</source>
        <translation>Zurückgelegt nach %1</translation>
    </message>
</context>
<context>
    <name>tessera::TrashNote</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Open Trash</source>
        <translation>Papierkorb öffnen</translation>
    </message>
    <message>
        <source>“%1” (%2) is in the trash. Its space is free once the trash is emptied.</source>
        <translation>„%1“ (%2) ist im Papierkorb. Der Platz wird frei, sobald der Papierkorb geleert ist.</translation>
    </message>
    <message>
        <source>“%1” is in the trash. Its space is free once the trash is emptied.</source>
        <translation>„%1“ ist im Papierkorb. Der Platz wird frei, sobald der Papierkorb geleert ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n items (%1) are in the trash. Their space is free once the trash is emptied.</source>
        <translation>
            <numerusform>%n Objekt (%1) ist im Papierkorb. Der Platz wird frei, sobald der Papierkorb geleert ist.</numerusform>
            <numerusform>%n Objekte (%1) sind im Papierkorb. Der Platz wird frei, sobald der Papierkorb geleert ist.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are in the trash. Their space is free once the trash is emptied.</source>
        <translation>
            <numerusform>%n Objekt ist im Papierkorb. Der Platz wird frei, sobald der Papierkorb geleert ist.</numerusform>
            <numerusform>%n Objekte sind im Papierkorb. Der Platz wird frei, sobald der Papierkorb geleert ist.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is in the trash. It has other names: its space stays in use until all of them are gone.</source>
        <translation>„%1“ ist im Papierkorb. Die Datei hat weitere Namen: Ihr Platz bleibt belegt, bis alle davon weg sind.</translation>
    </message>
    <message>
        <source>“%1” is in the trash. Files in it have other names: their space stays in use until all of those are gone.</source>
        <translation>„%1“ ist im Papierkorb. Dateien darin haben weitere Namen: Ihr Platz bleibt belegt, bis alle davon weg sind.</translation>
    </message>
    <message numerus="yes">
        <source>%n items are in the trash. Files among them have other names: their space stays in use until all of those are gone.</source>
        <translation>
            <numerusform>%n Objekt ist im Papierkorb. Dateien darunter haben weitere Namen: Ihr Platz bleibt belegt, bis alle davon weg sind.</numerusform>
            <numerusform>%n Objekte sind im Papierkorb. Dateien darunter haben weitere Namen: Ihr Platz bleibt belegt, bis alle davon weg sind.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TrashUndo</name>
    <message>
        <source>The list of moves to the trash cannot be written</source>
        <translation>Die Liste des in den Papierkorb Verschobenen kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Undo Move to Trash of %1</source>
        <translation>&amp;Rückgängig: %1 in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>&amp;Redo Move to Trash of %1</source>
        <translation>&amp;Wiederholen: %1 in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Something is on its way to the trash or back. Wait until it has arrived.</source>
        <translation>Etwas ist auf dem Weg in den Papierkorb oder zurück. Warten Sie, bis es angekommen ist.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>Error moving to Trash</source>
        <translation>Fehler beim Verschieben in den Papierkorb</translation>
    </message>
    <message numerus="yes">
        <source>%n items may not have been moved to the trash</source>
        <translation>
            <numerusform>%n Objekt wurde möglicherweise nicht in den Papierkorb verschoben</numerusform>
            <numerusform>%n Objekte wurden möglicherweise nicht in den Papierkorb verschoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items were not moved to the trash</source>
        <translation>
            <numerusform>%n Objekt wurde nicht in den Papierkorb verschoben</numerusform>
            <numerusform>%n Objekte wurden nicht in den Papierkorb verschoben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TreePanels</name>
    <message>
        <source>Where the Space Is</source>
        <translation>Wo der Speicherplatz ist</translation>
    </message>
    <message>
        <source>Basket</source>
        <translation>Sammelkorb</translation>
    </message>
    <message>
        <source>The basket is empty.</source>
        <translation>Der Sammelkorb ist leer.</translation>
    </message>
    <message>
        <source>The basket has one item.</source>
        <translation>Im Sammelkorb ist ein Objekt.</translation>
    </message>
    <message numerus="yes">
        <source>The basket has %1 items.</source>
        <translation>
            <numerusform>Im Sammelkorb ist %1 Objekt.</numerusform>
            <numerusform>Im Sammelkorb sind %1 Objekte.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TreeStatusBar</name>
    <message>
        <source>Status line</source>
        <translation>Statuszeile</translation>
    </message>
</context>
<context>
    <name>tessera::TreeViewController</name>
    <message>
        <source>The trash cannot be opened</source>
        <translation>Der Papierkorb kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>The desktop offers no program that shows it.</source>
        <translation>Die Arbeitsumgebung bietet kein Programm an, das ihn zeigt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>One item of the basket is not there any more.</source>
        <translation>Ein Objekt aus dem Sammelkorb ist nicht mehr da.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items of the basket are not there any more.</source>
        <translation>
            <numerusform>%1 Objekt aus dem Sammelkorb ist nicht mehr da.</numerusform>
            <numerusform>%1 Objekte aus dem Sammelkorb sind nicht mehr da.</numerusform>
        </translation>
    </message>
    <message>
        <source>The path of &apos;%1&apos; is copied.</source>
        <translation>Der Pfad von „%1“ ist kopiert.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; stays where it is</source>
        <translation>„%1“ bleibt, wo es ist</translation>
    </message>
    <message>
        <source>It is not in the picture any more. Rescan its folder to move it to the trash.</source>
        <translation>Es ist nicht mehr im Bild. Lesen Sie seinen Ordner neu ein, um es in den Papierkorb zu verschieben.</translation>
    </message>
</context>
<context>
    <name>tessera::VolumeCollectionView</name>
    <message>
        <source>Reserved by the file system: %1</source>
        <translation>Vom Dateisystem reserviert: %1</translation>
    </message>
    <message>
        <source>Reserved for the administrator: %1</source>
        <translation>Für den Systemverwalter reserviert: %1</translation>
    </message>
    <message>
        <source>Free for you: %1</source>
        <translation>Frei für Sie: %1</translation>
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
        <translation>Wird frei: %1, sobald der Papierkorb geleert ist</translation>
    </message>
</context>
</TS>
