<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CommandHintTexts</name>
    <message>
        <source>A scan is running. Wait until it has ended.</source>
        <translation>Une analyse est en cours. Attendez qu’elle se termine.</translation>
    </message>
    <message>
        <source>Scan a disk or a folder first.</source>
        <translation>Analysez d’abord un disque ou un dossier.</translation>
    </message>
    <message>
        <source>This is the home screen already.</source>
        <translation>L’écran d’accueil est déjà affiché.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is all that was scanned. There is no folder around it here.</source>
        <translation>Seul «&#x202f;%1&#x202f;» a été analysé. Il n’y a pas ici de dossier qui le contienne.</translation>
    </message>
    <message>
        <source>A rescan is running already. Wait until it has ended.</source>
        <translation>Une nouvelle analyse est déjà en cours. Attendez qu’elle se termine.</translation>
    </message>
    <message>
        <source>Only folders can be scanned again. Select one, or nothing to rescan the folder in view.</source>
        <translation>Seuls les dossiers peuvent être analysés à nouveau. Sélectionnez-en un, ou ne sélectionnez rien pour analyser à nouveau le dossier affiché.</translation>
    </message>
    <message>
        <source>A disk is mounted at &apos;%1&apos;. It is not part of this scan; scan it by itself.</source>
        <translation>Un disque est monté sur «&#x202f;%1&#x202f;». Il ne fait pas partie de cette analyse&#x202f;; analysez-le séparément.</translation>
    </message>
    <message>
        <source>This is about whole disks. Scan a disk to see where its space is.</source>
        <translation>Il s’agit ici de disques entiers. Analysez un disque pour voir la répartition de son espace.</translation>
    </message>
    <message>
        <source>Select a folder first.</source>
        <translation>Sélectionnez d’abord un dossier.</translation>
    </message>
    <message>
        <source>Select a file or a folder first.</source>
        <translation>Sélectionnez d’abord un fichier ou un dossier.</translation>
    </message>
    <message>
        <source>There is no box that way.</source>
        <translation>Il n’y a pas de rectangle dans cette direction.</translation>
    </message>
</context>
<context>
    <name>CompressWindow</name>
    <message>
        <source>Compress</source>
        <translation>Compresser</translation>
    </message>
    <message>
        <source>Icon of the archive</source>
        <translation>Icône de l’archive</translation>
    </message>
    <message>
        <source>Progress of the compression</source>
        <translation>Progression de la compression</translation>
    </message>
    <message>
        <source>Move Original to Trash</source>
        <translation>Mettre l’original à la corbeille</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FileDialogOpenPanel</name>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
</context>
<context>
    <name>FreedSpaceText</name>
    <message>
        <source>%1 has another name elsewhere, and stays.</source>
        <translation>%1 a un autre nom ailleurs et reste sur le disque.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have other names elsewhere, and stay.</source>
        <translation>
            <numerusform>%1 a d’autres noms ailleurs et reste sur le disque.</numerusform>
            <numerusform>%1 ont d’autres noms ailleurs et restent sur le disque.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has another name that was not scanned.</source>
        <translation>%1 a un autre nom qui n’a pas été analysé.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have other names that were not scanned.</source>
        <translation>
            <numerusform>%1 a d’autres noms qui n’ont pas été analysés.</numerusform>
            <numerusform>%1 ont d’autres noms qui n’ont pas été analysés.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is shared with other files.</source>
        <translation>%1 partage son espace avec d’autres fichiers.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are shared with other files.</source>
        <translation>
            <numerusform>%1 partage son espace avec d’autres fichiers.</numerusform>
            <numerusform>%1 partagent leur espace avec d’autres fichiers.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is compressed: how much it takes is not known.</source>
        <translation>%1 est compressé&#x202f;: l’espace qu’il occupe est inconnu.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are compressed: how much they take is not known.</source>
        <translation>
            <numerusform>%1 est compressé&#x202f;: l’espace qu’il occupe est inconnu.</numerusform>
            <numerusform>%1 sont compressés&#x202f;: l’espace qu’ils occupent est inconnu.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is held open by %2.</source>
        <translation>%1 est encore ouvert dans %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are held open, the first one by %2.</source>
        <translation>
            <numerusform>%1 est encore ouvert dans %2.</numerusform>
            <numerusform>%1 sont encore ouverts, le premier dans %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 may be shared with other files.</source>
        <translation>
            <numerusform>%1 partage peut-être son espace avec d’autres fichiers.</numerusform>
            <numerusform>%1 partagent peut-être leur espace avec d’autres fichiers.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has changed since the scan.</source>
        <translation>%1 a changé depuis l’analyse.</translation>
    </message>
    <message numerus="yes">
        <source>%1 have changed since the scan.</source>
        <translation>
            <numerusform>%1 a changé depuis l’analyse.</numerusform>
            <numerusform>%1 ont changé depuis l’analyse.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was not looked at.</source>
        <translation>%1 n’a pas été examiné.</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not looked at.</source>
        <translation>
            <numerusform>%1 n’a pas été examiné.</numerusform>
            <numerusform>%1 n’ont pas été examinés.</numerusform>
        </translation>
    </message>
    <message>
        <source>One file</source>
        <translation>Un fichier</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 fichier</numerusform>
            <numerusform>%1 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>“%1” and one other file</source>
        <translation>«&#x202f;%1&#x202f;» et un autre fichier</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 other files</source>
        <translation>
            <numerusform>«&#x202f;%1&#x202f;» et %2 autre fichier</numerusform>
            <numerusform>«&#x202f;%1&#x202f;» et %2 autres fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%1 more</source>
        <translation>
            <numerusform>%1 autre</numerusform>
            <numerusform>%1 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>au moins %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 à %2</translation>
    </message>
    <message>
        <source>Programs that may not be looked at may hold files open.</source>
        <translation>Des programmes qu’il n’est pas permis d’examiner gardent peut-être des fichiers ouverts.</translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message>
        <source>Moves to the Trash</source>
        <translation>Mises à la corbeille</translation>
    </message>
    <message>
        <source>Moves to the trash</source>
        <translation>Mises à la corbeille</translation>
    </message>
</context>
<context>
    <name>HomeView</name>
    <message>
        <source>Disks and locations</source>
        <translation>Disques et emplacements</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Ouvrir un dossier…</translation>
    </message>
    <message>
        <source>Choose any folder and scan it</source>
        <translation>Choisir n’importe quel dossier et l’analyser</translation>
    </message>
    <message>
        <source>Recent Scans</source>
        <translation>Analyses récentes</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Effa&amp;cer</translation>
    </message>
    <message>
        <source>Clear recent scans</source>
        <translation>Effacer les analyses récentes</translation>
    </message>
    <message>
        <source>Recent scans</source>
        <translation>Analyses récentes</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>Analy&amp;ser</translation>
    </message>
</context>
<context>
    <name>ItemStatusTexts</name>
    <message>
        <source>less than %1% of %2</source>
        <translation>moins de %1&#x202f;% de «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>%1% of %2</source>
        <translation>%1&#x202f;% de «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1&#xa0;élément</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1&#xa0;élément</numerusform>
            <numerusform>%1&#xa0;éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>being rescanned</source>
        <translation>nouvelle analyse en cours</translation>
    </message>
    <message>
        <source>Small items</source>
        <translation>Petits éléments</translation>
    </message>
</context>
<context>
    <name>LedgerListTexts</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Raison</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>et %1 autre</numerusform>
            <numerusform>et %1 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Covered by</source>
        <translation>Masqué par</translation>
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
        <translation>Programme</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Deleted file</source>
        <translation>Fichier supprimé</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
</context>
<context>
    <name>LedgerTexts</name>
    <message>
        <source>There may be more: the system does not tell Tessera what runs.</source>
        <translation>Il peut y en avoir d’autres&#x202f;: le système n’indique pas à Tessera quels programmes sont en cours d’exécution.</translation>
    </message>
    <message numerus="yes">
        <source>There may be more: Tessera may not look into %1 of the programs that run.</source>
        <translation>
            <numerusform>Il peut y en avoir d’autres&#x202f;: Tessera n’a pas le droit d’examiner %1&#xa0;des programmes en cours d’exécution.</numerusform>
            <numerusform>Il peut y en avoir d’autres&#x202f;: Tessera n’a pas le droit d’examiner %1&#xa0;des programmes en cours d’exécution.</numerusform>
        </translation>
    </message>
    <message>
        <source>There may be more: not everything could be looked at in time.</source>
        <translation>Il peut y en avoir d’autres&#x202f;: tout n’a pas pu être examiné à temps.</translation>
    </message>
    <message>
        <source>There may be more, whose size the system does not tell.</source>
        <translation>Il peut y en avoir d’autres, dont le système n’indique pas la taille.</translation>
    </message>
    <message>
        <source>Nothing was found that is deleted and that a program still has open.</source>
        <translation>Aucun fichier supprimé et encore ouvert dans un programme n’a été trouvé.</translation>
    </message>
    <message>
        <source>Deleted files that programs still have open. End or restart these programs, and the space is free.</source>
        <translation>Fichiers supprimés que des programmes gardent encore ouverts. Fermez ou redémarrez ces programmes pour libérer l’espace.</translation>
    </message>
    <message>
        <source>More was found than is in use. That happens where files are compressed, share what they take, or changed while they were counted.</source>
        <translation>L’espace trouvé dépasse l’espace utilisé. Cela se produit lorsque des fichiers sont compressés, partagent leur espace ou ont changé pendant le comptage.</translation>
    </message>
    <message>
        <source>In use, and none of the other lines: journal, records and snapshots of the file system, and whatever nobody could see.</source>
        <translation>Espace utilisé qui ne relève d’aucune autre ligne&#x202f;: journal, données internes et instantanés du système de fichiers, et tout ce qui n’a pas pu être vu.</translation>
    </message>
    <message>
        <source>The system does not tell what is hidden below other mounts.</source>
        <translation>Le système n’indique pas ce qui est masqué sous d’autres points de montage.</translation>
    </message>
    <message>
        <source>Held back by the file system for its own records.</source>
        <translation>Retenu par le système de fichiers pour ses données internes.</translation>
    </message>
    <message>
        <source>Kept free for the administrator, so that the system goes on when the disk is full for everybody else.</source>
        <translation>Gardé libre pour l’administrateur, afin que le système continue de fonctionner lorsque le disque est plein pour tous les autres.</translation>
    </message>
    <message>
        <source>What is in them is part of the rest; how much that is nobody knows.</source>
        <translation>Leur contenu fait partie du reste&#x202f;; l’espace qu’il occupe est inconnu.</translation>
    </message>
    <message>
        <source>Tessera may not look into some of them. Frequently Asked Questions, in the Help menu, says how to scan with more rights.</source>
        <translation>Tessera n’a pas le droit d’en examiner certains. La foire aux questions, dans le menu Aide, explique comment analyser avec plus de droits.</translation>
    </message>
    <message>
        <source>Files found, each once</source>
        <translation>Fichiers trouvés, chacun une fois</translation>
    </message>
    <message>
        <source>The folders themselves</source>
        <translation>Les dossiers eux-mêmes</translation>
    </message>
    <message>
        <source>Deleted but still open</source>
        <translation>Supprimés mais encore ouverts</translation>
    </message>
    <message>
        <source>Folders that could not be read (%1)</source>
        <translation>Dossiers qui n’ont pas pu être lus (%1)</translation>
    </message>
    <message>
        <source>May be hidden below other mounts (%1)</source>
        <translation>Peut-être masqués sous d’autres points de montage (%1)</translation>
    </message>
    <message>
        <source>Left out on purpose (%1)</source>
        <translation>Exclus volontairement (%1)</translation>
    </message>
    <message>
        <source>The file system&apos;s own, and the rest</source>
        <translation>Système de fichiers et reste</translation>
    </message>
    <message>
        <source>Reserved by the file system</source>
        <translation>Réservé par le système de fichiers</translation>
    </message>
    <message>
        <source>Reserved for the administrator</source>
        <translation>Réservé à l’administrateur</translation>
    </message>
    <message>
        <source>Free for you</source>
        <translation>Libre pour vous</translation>
    </message>
    <message>
        <source>What all files take on the disk. A file with several names counts once.</source>
        <translation>Ce que tous les fichiers occupent sur le disque. Un fichier à plusieurs noms compte une fois.</translation>
    </message>
    <message>
        <source>What the folders take themselves, for the names of what is in them.</source>
        <translation>Ce que les dossiers occupent eux-mêmes, pour les noms de ce qu’ils contiennent.</translation>
    </message>
    <message>
        <source>Something else is mounted there. If files lie below it, they cannot be seen, and are part of the rest.</source>
        <translation>Autre chose est monté à cet endroit. S’il y a des fichiers en dessous, ils sont invisibles et font partie du reste.</translation>
    </message>
    <message>
        <source>Stores of backups and of encrypted homes, whose files would count twice. What they take is part of the rest.</source>
        <translation>Espaces de stockage de sauvegardes et de dossiers personnels chiffrés, dont les fichiers compteraient deux fois. Ce qu’ils occupent fait partie du reste.</translation>
    </message>
    <message>
        <source>What you can still fill.</source>
        <translation>Ce que vous pouvez encore remplir.</translation>
    </message>
    <message>
        <source>part of the rest</source>
        <translation>compris dans le reste</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>au moins %1</translation>
    </message>
    <message>
        <source>%1 byte</source>
        <translation>%1&#xa0;octet</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1&#xa0;octet</numerusform>
            <numerusform>%1&#xa0;octets</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>Gone meanwhile</source>
        <translation>Disparu entre-temps</translation>
    </message>
    <message>
        <source>Something else lies there by now</source>
        <translation>Autre chose s’y trouve désormais</translation>
    </message>
    <message>
        <source>A link lies there by now</source>
        <translation>Un lien s’y trouve désormais</translation>
    </message>
    <message>
        <source>The disk has an error</source>
        <translation>Le disque présente une erreur</translation>
    </message>
    <message>
        <source>The disk gives no answer</source>
        <translation>Le disque ne répond pas</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Take Out of &amp;Basket</source>
        <translation>Retirer du p&amp;anier</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Ouvrir un dossier…</translation>
    </message>
    <message>
        <source>Lets you choose a folder and scans it.</source>
        <translation>Permet de choisir un dossier et l’analyse.</translation>
    </message>
    <message>
        <source>Choose &amp;Another Disk or Folder</source>
        <translation>Choisir un &amp;autre disque ou dossier</translation>
    </message>
    <message>
        <source>Goes back to the home screen, where you choose what to scan.</source>
        <translation>Revient à l’écran d’accueil, où vous choisissez ce qu’il faut analyser.</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>Lets you choose what is shown under the pointer and when Tessera warns you.</source>
        <translation>Permet de choisir ce qui s’affiche sous le pointeur et quand Tessera vous avertit.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ends Tessera, and asks you first while an archive is being made.</source>
        <translation>Ferme Tessera, après confirmation si une archive est en cours de création.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Puts what you moved to the trash last back where it was.</source>
        <translation>Remet en place ce que vous avez mis en dernier à la corbeille.</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Moves what you put back last to the trash again.</source>
        <translation>Met de nouveau à la corbeille ce que vous avez remis en place en dernier.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Opens the selected item in the program that your desktop has for it, and never runs it.</source>
        <translation>Ouvre l’élément sélectionné dans l’application prévue par votre environnement de bureau, sans jamais l’exécuter.</translation>
    </message>
    <message>
        <source>Open &amp;With…</source>
        <translation>Ouvrir a&amp;vec…</translation>
    </message>
    <message>
        <source>Lets you choose the program in which the selected item opens.</source>
        <translation>Permet de choisir l’application dans laquelle s’ouvre l’élément sélectionné.</translation>
    </message>
    <message>
        <source>&amp;Quick Look</source>
        <translation>A&amp;perçu rapide</translation>
    </message>
    <message>
        <source>Previews the selected item in a small window.</source>
        <translation>Affiche un aperçu de l’élément sélectionné dans une petite fenêtre.</translation>
    </message>
    <message>
        <source>&amp;Show in Finder</source>
        <extracomment>Translate “Show in File Manager”: the system has words of its own.</extracomment>
        <translation>Afficher dans le &amp;gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Shows the selected item in your file manager.</source>
        <translation>Affiche l’élément sélectionné dans votre gestionnaire de fichiers.</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>Copier le &amp;chemin</translation>
    </message>
    <message>
        <source>Copies the path of the selected item, or of the folder in view while nothing is selected.</source>
        <translation>Copie le chemin de l’élément sélectionné ou, si rien n’est sélectionné, celui du dossier affiché.</translation>
    </message>
    <message>
        <source>Open Ter&amp;minal Here</source>
        <translation>Ouvrir un &amp;terminal ici</translation>
    </message>
    <message>
        <source>Opens a terminal in the selected folder, in that of the selected file, or in the folder in view while nothing is selected.</source>
        <translation>Ouvre un terminal dans le dossier sélectionné, dans celui du fichier sélectionné ou, si rien n’est sélectionné, dans le dossier affiché.</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>Analyser à &amp;nouveau</translation>
    </message>
    <message>
        <source>Scans the selected folder again, or the folder in view while nothing is selected.</source>
        <translation>Analyse à nouveau le dossier sélectionné ou, si rien n’est sélectionné, le dossier affiché.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Leaves the selected folder out of the picture and changes nothing on the disk.</source>
        <translation>Exclut le dossier sélectionné du graphique, sans rien changer sur le disque.</translation>
    </message>
    <message>
        <source>&amp;Compress</source>
        <translation>Comp&amp;resser</translation>
    </message>
    <message>
        <source>Makes a zip archive of the selected item beside it; the item itself stays.</source>
        <translation>Crée une archive zip de l’élément sélectionné à côté de celui-ci&#x202f;; l’élément lui-même est conservé.</translation>
    </message>
    <message>
        <source>Compress Folder</source>
        <translation>Compresser le dossier</translation>
    </message>
    <message>
        <source>Compress File</source>
        <translation>Compresser le fichier</translation>
    </message>
    <message>
        <source>Add to &amp;Basket</source>
        <translation>&amp;Ajouter au panier</translation>
    </message>
    <message>
        <source>Puts the selected item into the basket, or takes it out again; nothing moves on the disk.</source>
        <translation>Met l’élément sélectionné dans le panier ou l’en retire&#x202f;; rien n’est déplacé sur le disque.</translation>
    </message>
    <message>
        <source>Move to &amp;Trash</source>
        <translation>&amp;Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Moves the selected item to the trash, after a warning where that is risky.</source>
        <translation>Met l’élément sélectionné à la corbeille, après un avertissement si c’est risqué.</translation>
    </message>
    <message>
        <source>Prop&amp;erties</source>
        <translation>Propriété&amp;s</translation>
    </message>
    <message>
        <source>Shows what your file manager tells of the selected item.</source>
        <translation>Affiche ce que votre gestionnaire de fichiers indique sur l’élément sélectionné.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;avant</translation>
    </message>
    <message>
        <source>Fills the window with the selected folder.</source>
        <translation>Remplit la fenêtre avec le dossier sélectionné.</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>Shows the folder around the one in view.</source>
        <translation>Affiche le dossier qui contient le dossier affiché.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Actuali&amp;ser</translation>
    </message>
    <message>
        <source>Scans all that is shown again and leads you back to where you were, or looks for disks and folders again on the home screen.</source>
        <translation>Analyse à nouveau tout ce qui est affiché et vous ramène là où vous étiez ou, sur l’écran d’accueil, recherche à nouveau les disques et les dossiers.</translation>
    </message>
    <message>
        <source>&amp;Basket</source>
        <translation>&amp;Panier</translation>
    </message>
    <message>
        <source>Shows, in a panel beside the picture, what you have collected and what moving it to the trash will free, or closes that panel.</source>
        <translation>Affiche, dans un panneau à côté du graphique, ce que vous avez rassemblé et l’espace que sa mise à la corbeille libérera, ou ferme ce panneau.</translation>
    </message>
    <message>
        <source>Where the &amp;Space Is</source>
        <translation>Répartition de l’&amp;espace</translation>
    </message>
    <message>
        <source>Shows, in a panel beside the picture, what all of the scanned disk&apos;s space is used for, or closes that panel.</source>
        <translation>Affiche, dans un panneau à côté du graphique, à quoi sert tout l’espace du disque analysé, ou ferme ce panneau.</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>Lists what you moved to the trash, and puts it back where it was.</source>
        <translation>Liste ce que vous avez mis à la corbeille et permet de le remettre en place.</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>P&amp;lein écran</translation>
    </message>
    <message>
        <source>Lets the window fill the whole screen, or gives it back its size.</source>
        <translation>Étend la fenêtre à tout l’écran ou lui rend sa taille.</translation>
    </message>
    <message>
        <source>Status &amp;Line</source>
        <translation>Barre d’é&amp;tat</translation>
    </message>
    <message>
        <source>Shows, in a line below the picture, what is under the pointer or selected, or hides that line.</source>
        <translation>Affiche, dans une barre sous le graphique, ce qui est sous le pointeur ou sélectionné, ou masque cette barre.</translation>
    </message>
    <message>
        <source>What Tessera &amp;Does</source>
        <translation>Ce que fait &amp;Tessera</translation>
    </message>
    <message>
        <source>Opens a page that says what Tessera does and how you use it.</source>
        <translation>Ouvre une page qui explique ce que fait Tessera et comment l’utiliser.</translation>
    </message>
    <message>
        <source>Frequently Asked &amp;Questions</source>
        <translation>&amp;Foire aux questions</translation>
    </message>
    <message>
        <source>Opens a page that answers frequently asked questions about Tessera.</source>
        <translation>Ouvre une page qui répond aux questions fréquentes sur Tessera.</translation>
    </message>
    <message>
        <source>&amp;About Tessera</source>
        <translation>À &amp;propos de Tessera</translation>
    </message>
    <message>
        <source>Says which version this is, what it is made with, and under which license.</source>
        <translation>Indique la version de Tessera, ce qui a servi à le créer et sa licence.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Item</source>
        <translation>É&amp;lément</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
</context>
<context>
    <name>MainToolbar</name>
    <message>
        <source>Choose another disk or folder</source>
        <translation>Choisir un autre disque ou dossier</translation>
    </message>
    <message>
        <source>Commands for the selected item</source>
        <translation>Commandes pour l’élément sélectionné</translation>
    </message>
    <message>
        <source>What the picture leaves out</source>
        <translation>Ce que le graphique exclut</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
</context>
<context>
    <name>MoveAllReportTexts</name>
    <message>
        <source>A folder had changed since it was scanned</source>
        <translation>Un dossier avait changé depuis son analyse</translation>
    </message>
    <message>
        <source>Folders had changed since they were scanned</source>
        <translation>Des dossiers avaient changé depuis leur analyse</translation>
    </message>
    <message>
        <source>One item may not have been moved to the trash</source>
        <translation>Un élément n’a peut-être pas été mis à la corbeille</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items may not have been moved to the trash</source>
        <translation>
            <numerusform>%Ln&#xa0;élément n’a peut-être pas été mis à la corbeille</numerusform>
            <numerusform>%Ln&#xa0;éléments n’ont peut-être pas été mis à la corbeille</numerusform>
        </translation>
    </message>
    <message>
        <source>One item was not moved to the trash</source>
        <translation>Un élément n’a pas été mis à la corbeille</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items were not moved to the trash</source>
        <translation>
            <numerusform>%Ln&#xa0;élément n’a pas été mis à la corbeille</numerusform>
            <numerusform>%Ln&#xa0;éléments n’ont pas été mis à la corbeille</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>et %Ln autre</numerusform>
            <numerusform>et %Ln autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is in the trash, with all that is in it now.</source>
        <translation>%1 est dans la corbeille, avec tout ce qu’il contient maintenant.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are in the trash, with all that is in them now.</source>
        <translation>
            <numerusform>%1 est dans la corbeille, avec tout ce qu’il contient maintenant.</numerusform>
            <numerusform>%1 sont dans la corbeille, avec tout ce qu’ils contiennent maintenant.</numerusform>
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
        <translation>%1 est caché ou se trouve dans un dossier caché.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are hidden, or are in hidden folders.</source>
        <translation>
            <numerusform>%1 est caché ou se trouve dans un dossier caché.</numerusform>
            <numerusform>%1 sont cachés ou se trouvent dans des dossiers cachés.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is in a system folder: other applications may be using it.</source>
        <translation>%1 se trouve dans un dossier système&#x202f;: d’autres applications l’utilisent peut-être.</translation>
    </message>
    <message numerus="yes">
        <source>%1 are in system folders: other applications may be using them.</source>
        <translation>
            <numerusform>%1 se trouve dans un dossier système&#x202f;: d’autres applications l’utilisent peut-être.</numerusform>
            <numerusform>%1 se trouvent dans des dossiers système&#x202f;: d’autres applications les utilisent peut-être.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 belongs to another user.</source>
        <translation>%1 appartient à un autre utilisateur.</translation>
    </message>
    <message numerus="yes">
        <source>%1 belong to other users.</source>
        <translation>
            <numerusform>%1 appartient à un autre utilisateur.</numerusform>
            <numerusform>%1 appartiennent à d’autres utilisateurs.</numerusform>
        </translation>
    </message>
    <message>
        <source>No backup would be left in %1.</source>
        <translation>Il ne resterait aucune sauvegarde dans %1.</translation>
    </message>
    <message numerus="yes">
        <source>No backups would be left in %1.</source>
        <translation>
            <numerusform>Il ne resterait aucune sauvegarde dans %1.</numerusform>
            <numerusform>Il ne resterait aucune sauvegarde dans %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>et %1 autre</numerusform>
            <numerusform>et %1 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Are you sure you want to move one item (%1) to the trash?</source>
        <translation>Voulez-vous vraiment mettre un élément (%1) à la corbeille&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to move %1 items (%2) to the trash?</source>
        <translation>
            <numerusform>Voulez-vous vraiment mettre %1&#xa0;élément (%2) à la corbeille&#x202f;?</numerusform>
            <numerusform>Voulez-vous vraiment mettre %1&#xa0;éléments (%2) à la corbeille&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>What has come into the folders since they were scanned goes with them.</source>
        <translation>Ce qui est arrivé dans les dossiers depuis leur analyse part avec eux.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Move To Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>NamesTexts</name>
    <message>
        <source>“%1”</source>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1 et %2 autre</numerusform>
            <numerusform>%1 et %2 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
</context>
<context>
    <name>NoFileManagerTexts</name>
    <message>
        <source>There is no file manager</source>
        <translation>Il n’y a pas de gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be shown, because the desktop offers no program for that.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être affiché, car l’environnement de bureau ne propose aucune application pour cela.</translation>
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
        <translation>Espace libre</translation>
    </message>
    <message>
        <source>Restricted Files</source>
        <translation>Fichiers inaccessibles</translation>
    </message>
</context>
<context>
    <name>PlaceNames</name>
    <message>
        <source>File System</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>Données d’applications</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Warn before moving to the trash:</source>
        <translation>Avertir avant de mettre à la corbeille&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Hidden items</source>
        <translation>Les éléments &amp;cachés</translation>
    </message>
    <message>
        <source>Warn before a hidden item is moved to the trash</source>
        <translation>Avertir avant qu’un élément caché soit mis à la corbeille</translation>
    </message>
    <message>
        <source>&amp;System items</source>
        <translation>Les éléments du &amp;système</translation>
    </message>
    <message>
        <source>Warn before an item of the system is moved to the trash</source>
        <translation>Avertir avant qu’un élément du système soit mis à la corbeille</translation>
    </message>
    <message>
        <source>Under the &amp;pointer, show:</source>
        <translation>Sous le &amp;pointeur, afficher&#x202f;:</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>Name and size</source>
        <translation>Nom et taille</translation>
    </message>
    <message>
        <source>Name, size, date and path</source>
        <translation>Nom, taille, date et chemin</translation>
    </message>
    <message>
        <source>In the picture, show:</source>
        <translation>Dans le graphique, afficher&#x202f;:</translation>
    </message>
    <message>
        <source>Si&amp;zes behind folder names</source>
        <translation>La &amp;taille après le nom des dossiers</translation>
    </message>
    <message>
        <source>Show the size of a folder behind its name in the picture, where there is room</source>
        <translation>Afficher dans le graphique la taille d’un dossier après son nom, s’il y a la place</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
</context>
<context>
    <name>ScanProblemTexts</name>
    <message>
        <source>There is no folder &apos;%1&apos; any more. It may have been moved, renamed or deleted, or its disk may not be connected.</source>
        <translation>Il n’y a plus de dossier «&#x202f;%1&#x202f;». Il a peut-être été déplacé, renommé ou supprimé, ou son disque n’est pas connecté.</translation>
    </message>
    <message>
        <source>You do not have permission to look into &apos;%1&apos;. Frequently Asked Questions, in the Help menu, says how to scan with more rights.</source>
        <translation>Vous n’avez pas la permission d’examiner «&#x202f;%1&#x202f;». La foire aux questions, dans le menu Aide, explique comment analyser avec plus de droits.</translation>
    </message>
    <message>
        <source>The system is too busy to scan &apos;%1&apos;. Close some programs and try again.</source>
        <translation>Le système est trop occupé pour analyser «&#x202f;%1&#x202f;». Fermez quelques programmes et réessayez.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The folder cannot be scanned</source>
        <translation>Le dossier ne peut pas être analysé</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Progress of the scan</source>
        <translation>Progression de l’analyse</translation>
    </message>
    <message>
        <source>Read so far:</source>
        <translation>Lu jusqu’ici&#x202f;:</translation>
    </message>
    <message>
        <source>Amount read so far</source>
        <translation>Quantité lue jusqu’ici</translation>
    </message>
    <message>
        <source>Files read in a second</source>
        <translation>Fichiers lus par seconde</translation>
    </message>
    <message>
        <source>Tip: in the picture, a larger box is a larger folder or file. Double-click a folder to look inside, and press Backspace to come back.</source>
        <translation>Astuce&#x202f;: dans le graphique, plus un rectangle est grand, plus le dossier ou le fichier l’est aussi. Double-cliquez sur un dossier pour voir son contenu et appuyez sur Retour arrière pour revenir.</translation>
    </message>
    <message>
        <source>Stop the scan and go back (Escape)</source>
        <translation>Arrêter l’analyse et revenir (Échap)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>%1 B</source>
        <extracomment>%1 is a number, the rest the unit: of bytes</extracomment>
        <translation>%1&#xa0;o</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <extracomment>of thousands of bytes</extracomment>
        <translation>%1&#xa0;ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;To</translation>
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
        <translation>L’élément n’est plus là.</translation>
    </message>
    <message>
        <source>It cannot be looked at: %1</source>
        <translation>L’élément ne peut pas être examiné&#x202f;: %1</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>L’élément ne peut pas être lu&#x202f;: %1</translation>
    </message>
    <message>
        <source>It cannot be shown: the program tessera-preview cannot be started.</source>
        <translation>L’élément ne peut pas être affiché&#x202f;: le programme tessera-preview ne peut pas être démarré.</translation>
    </message>
    <message>
        <source>It is damaged, or takes too much memory or time to be shown.</source>
        <translation>L’élément est endommagé, ou demande trop de mémoire ou de temps pour être affiché.</translation>
    </message>
    <message>
        <source>The picture is damaged or too large to be shown.</source>
        <translation>L’image est endommagée ou trop grande pour être affichée.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensions</translation>
    </message>
    <message>
        <source>Leads to</source>
        <translation>Mène à</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Size on disk</source>
        <translation>Taille sur le disque</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1&#xa0;page</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages</source>
        <translation>
            <numerusform>%Ln&#xa0;page</numerusform>
            <numerusform>%Ln&#xa0;pages</numerusform>
        </translation>
    </message>
    <message>
        <source>first %1 shown</source>
        <comment>size</comment>
        <translation>début affiché&#x202f;: %1</translation>
    </message>
    <message numerus="yes">
        <source>first %Ln shown</source>
        <comment>pages</comment>
        <translation>
            <numerusform>première page affichée</numerusform>
            <numerusform>%Ln&#xa0;premières pages affichées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TooltipController</name>
    <message numerus="yes">
        <source>one of %1 names of a file that is counted at %2</source>
        <translation>
            <numerusform>l’un des %1&#xa0;noms d’un fichier compté à l’emplacement %2</numerusform>
            <numerusform>l’un des %1&#xa0;noms d’un fichier compté à l’emplacement %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TooltipWindow</name>
    <message>
        <source>Small items</source>
        <translation>Petits éléments</translation>
    </message>
    <message>
        <source>Largest first:</source>
        <translation>Les plus gros d’abord&#x202f;:</translation>
    </message>
    <message>
        <source>Restricted Files</source>
        <translation>Fichiers inaccessibles</translation>
    </message>
    <message>
        <source>Space in use that the scan could not read, or that belongs to no file.</source>
        <translation>Espace utilisé que l’analyse n’a pas pu lire ou qui n’appartient à aucun fichier.</translation>
    </message>
</context>
<context>
    <name>TrashSentences</name>
    <message>
        <source>Nothing was moved to the trash, because the system is too busy to begin with it. Close some programs and try again.</source>
        <translation>Rien n’a été mis à la corbeille, car le système est trop occupé pour commencer. Fermez quelques programmes et réessayez.</translation>
    </message>
    <message>
        <source>Nothing was put back, because the system is too busy to begin with it. Close some programs and try again.</source>
        <translation>Rien n’a été remis en place, car le système est trop occupé pour commencer. Fermez quelques programmes et réessayez.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été déplacé, car il a changé depuis l’analyse.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because another item has taken its name since the scan.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été déplacé, car un autre élément a pris son nom depuis l’analyse.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it was made after the scan began.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été déplacé, car il a été créé après le début de l’analyse.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan: it is a folder now.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été déplacé, car il a changé depuis l’analyse&#x202f;: c’est maintenant un dossier.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan: it is no folder any more.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été déplacé, car il a changé depuis l’analyse&#x202f;: ce n’est plus un dossier.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être mis à la corbeille.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because it is not there any more.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car il n’est plus là.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because you have no permission to do so.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car vous n’en avez pas la permission.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because a folder on the way to it has become a link since the scan.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car un dossier de son chemin est devenu un lien depuis l’analyse.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk can only be read.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car son disque est en lecture seule.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk has no space left.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car il n’y a plus d’espace sur son disque.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because it could only be copied there.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car il ne pourrait y être que copié.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because the system is using it.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car le système l’utilise.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be in the trash or where it was, because its disk broke off while it was moved. Nothing has been removed.</source>
        <translation>«&#x202f;%1&#x202f;» se trouve soit dans la corbeille, soit là où il était, car la connexion à son disque a été interrompue pendant le déplacement. Rien n’a été supprimé.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its path is too long.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car son chemin est trop long.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash: %2.</source>
        <extracomment>%2 is what the system says</extracomment>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille&#x202f;: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk has no trash for you.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été mis à la corbeille, car son disque n’a pas de corbeille pour vous.</translation>
    </message>
    <message>
        <source>it is not a file of your own in a folder that nobody else can write to</source>
        <translation>ce n’est pas un fichier vous appartenant dans un dossier où personne d’autre ne peut écrire</translation>
    </message>
    <message>
        <source>another program is writing to it</source>
        <translation>un autre programme est en train d’y écrire</translation>
    </message>
    <message>
        <source>What is moved to the trash can be restored there, but this program will not list it: &apos;%1&apos; cannot be written (%2).</source>
        <extracomment>%2 says why: the texts above, or what the system says</extracomment>
        <translation>Ce qui est mis à la corbeille peut y être restauré, mais ce programme ne l’affichera pas dans sa liste&#x202f;: «&#x202f;%1&#x202f;» ne peut pas être écrit (%2).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because something new is called &apos;%2&apos; there.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car un nouvel élément s’y nomme «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because the folder that it was in is not there any more.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car le dossier qui le contenait n’est plus là.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because what was a folder on the way to its place is none any more.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car l’un des dossiers du chemin vers son emplacement n’est plus un dossier.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because a folder on the way to its place has become a link.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car l’un des dossiers du chemin vers son emplacement est devenu un lien.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because it is not in the trash any more.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car il n’est plus dans la corbeille.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because it cannot be told whether what is in its place in the trash is the same item still. Restore it from the trash.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car il est impossible de savoir si ce qui se trouve à sa place dans la corbeille est toujours le même élément. Restaurez-le depuis la corbeille.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because the trash that it is in cannot be found. If its disk is not connected, connect it and try again.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car la corbeille qui le contient est introuvable. Si son disque n’est pas connecté, connectez-le et réessayez.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its place is on another disk than the trash now. You can copy it there from the trash.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car son emplacement est maintenant sur un autre disque que la corbeille. Vous pouvez l’y copier depuis la corbeille.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its disk can only be read.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car son disque est en lecture seule.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because you have no permission to do so.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car vous n’en avez pas la permission.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its disk has no space left. Make some and try again.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place, car il n’y a plus d’espace sur son disque. Libérez-en et réessayez.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be in the trash or where it was, because its disk broke off while it was put back. Nothing has been removed.</source>
        <translation>«&#x202f;%1&#x202f;» se trouve soit dans la corbeille, soit là où il était, car la connexion à son disque a été interrompue pendant la remise en place. Rien n’a été supprimé.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back: %2.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été remis en place&#x202f;: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because something else is called so now.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être mis à la corbeille, car autre chose porte maintenant ce nom.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because the system does not say which disks are mounted.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être mis à la corbeille, car le système n’indique pas quels disques sont montés.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because a disk is mounted there.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être mis à la corbeille, car un disque y est monté.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because a disk is mounted inside it.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être mis à la corbeille, car un disque est monté à l’intérieur.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because your home folder is there.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être mis à la corbeille, car votre dossier personnel s’y trouve.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because the trash is there.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être mis à la corbeille, car la corbeille s’y trouve.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because it is in the trash already.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être mis à la corbeille, car il y est déjà.</translation>
    </message>
</context>
<context>
    <name>TrashStepTexts</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n&#xa0;élément</numerusform>
            <numerusform>%n&#xa0;éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
</context>
<context>
    <name>TreeBranchTexts</name>
    <message>
        <source>You may not look into this folder. See Frequently Asked Questions in the Help menu.</source>
        <translation>Vous n’avez pas le droit d’examiner ce dossier. Consultez la foire aux questions dans le menu Aide.</translation>
    </message>
    <message>
        <source>This folder could not be read. Rescan it to try again.</source>
        <translation>Ce dossier n’a pas pu être lu. Analysez-le à nouveau pour réessayer.</translation>
    </message>
    <message>
        <source>This folder is empty. Rescan it when something has come.</source>
        <translation>Ce dossier est vide. Analysez-le à nouveau lorsqu’il contiendra quelque chose.</translation>
    </message>
    <message>
        <source>Everything in this folder is left out of the picture. The Ignore menu brings it back.</source>
        <translation>Tout le contenu de ce dossier est exclu du graphique. Le menu «&#x202f;Ignorer&#x202f;» permet de le réafficher.</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>Contextual Menu</source>
        <translation>Menu contextuel</translation>
    </message>
</context>
<context>
    <name>VolumeCollectionView</name>
    <message>
        <source>Used space</source>
        <translation>Espace utilisé</translation>
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
        <translation>Montre où passe l’espace d’un disque.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versions</translation>
    </message>
    <message>
        <source>About Tessera</source>
        <translation>À propos de Tessera</translation>
    </message>
    <message>
        <source>License</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>&amp;Versions</source>
        <translation>&amp;Versions</translation>
    </message>
    <message>
        <source>&amp;License</source>
        <translation>&amp;Licence</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;Copy Versions</source>
        <translation>&amp;Copier les versions</translation>
    </message>
</context>
<context>
    <name>tessera::AppDelegate</name>
    <message>
        <source>An archive is still being made</source>
        <translation>Une archive est encore en cours de création</translation>
    </message>
    <message>
        <source>Tessera can finish it in the background, in a window of its own, and quit then. If it is stopped, the incomplete archive goes to the trash.</source>
        <translation>Tessera peut la terminer en arrière-plan, dans une fenêtre à part, puis quitter. Si la création est arrêtée, l’archive incomplète est mise à la corbeille.</translation>
    </message>
    <message>
        <source>Finish in Background</source>
        <translation>Terminer en arrière-plan</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Arrêter et quitter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>If the session ends now it is stopped, and the incomplete archive goes to the trash.</source>
        <translation>Si la session se ferme maintenant, la création est arrêtée et l’archive incomplète est mise à la corbeille.</translation>
    </message>
    <message>
        <source>End Session</source>
        <translation>Fermer la session</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>L’aide ne peut pas être affichée</translation>
    </message>
    <message>
        <source>Either its pages are not installed or the desktop offers no web browser.</source>
        <translation>Soit ses pages ne sont pas installées, soit l’environnement de bureau ne propose aucun navigateur web.</translation>
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
        <translation>Afficher dans le graphique</translation>
    </message>
    <message>
        <source>Take Out of Basket</source>
        <translation>Retirer du panier</translation>
    </message>
</context>
<context>
    <name>tessera::BasketModel</name>
    <message>
        <source>inside “%1”</source>
        <translation>dans «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>pas encore compté</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Will free</source>
        <translation>Sera libéré</translation>
    </message>
</context>
<context>
    <name>tessera::BasketPanel</name>
    <message>
        <source>Basket</source>
        <translation>Panier</translation>
    </message>
    <message>
        <source>Press B, or drag boxes here, to collect what you want to move to the trash. Nothing moves until you say so.</source>
        <translation>Appuyez sur B ou faites glisser des rectangles ici pour rassembler ce que vous voulez mettre à la corbeille. Rien n’est déplacé avant que vous ne le demandiez.</translation>
    </message>
    <message>
        <source>Items in the basket</source>
        <translation>Éléments du panier</translation>
    </message>
    <message>
        <source>%1 Delete takes the selected items out of the basket; nothing moves to the trash.</source>
        <translation>%1 Suppr retire du panier les éléments sélectionnés&#x202f;; rien n’est mis à la corbeille.</translation>
    </message>
    <message>
        <source>Empty Basket</source>
        <translation>Vider le panier</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>Aucun élément</translation>
    </message>
    <message>
        <source>1 item, %1</source>
        <translation>1&#xa0;élément, %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 items, %2</source>
        <translation>
            <numerusform>%1&#xa0;élément, %2</numerusform>
            <numerusform>%1&#xa0;éléments, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Take Out of Basket</source>
        <translation>Retirer du panier</translation>
    </message>
    <message>
        <source>Add to Basket</source>
        <translation>Ajouter au panier</translation>
    </message>
    <message>
        <source>Takes all items out of the basket. Nothing moves to the trash.</source>
        <translation>Retire tous les éléments du panier. Rien n’est mis à la corbeille.</translation>
    </message>
    <message>
        <source>Moving to Trash…</source>
        <translation>Mise à la corbeille…</translation>
    </message>
    <message>
        <source>Looking at the Items…</source>
        <translation>Examen des éléments…</translation>
    </message>
    <message>
        <source>Move All to Trash…</source>
        <translation>Tout mettre à la corbeille…</translation>
    </message>
    <message>
        <source>Asks before anything moves. %1</source>
        <translation>Demande confirmation avant tout déplacement. %1</translation>
    </message>
    <message>
        <source>The items are being looked at.</source>
        <translation>Les éléments sont en cours d’examen.</translation>
    </message>
    <message>
        <source>Another item has just been selected.</source>
        <translation>Un autre élément vient d’être sélectionné.</translation>
    </message>
    <message>
        <source>This cannot be moved to the trash.</source>
        <translation>Ceci ne peut pas être mis à la corbeille.</translation>
    </message>
    <message>
        <source>Items are on their way to the trash. Wait until they have arrived.</source>
        <translation>Des éléments sont en cours de mise à la corbeille. Attendez qu’ils y soient.</translation>
    </message>
    <message>
        <source>The basket is empty.</source>
        <translation>Le panier est vide.</translation>
    </message>
</context>
<context>
    <name>tessera::BasketTrasher</name>
    <message>
        <source>&apos;%1&apos; was not moved, because it could not be looked at when it was chosen.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été déplacé, car il n’a pas pu être examiné lors de son choix.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it is not there any more.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été déplacé, car il n’est plus là.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has left the basket meanwhile.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été déplacé, car il a entre-temps été retiré du panier.</translation>
    </message>
</context>
<context>
    <name>tessera::CompressWindowController</name>
    <message>
        <source>Creating &apos;%1&apos;</source>
        <translation>Création de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Compression Canceled</source>
        <translation>Compression annulée</translation>
    </message>
    <message>
        <source>Compression Failed</source>
        <translation>Échec de la compression</translation>
    </message>
    <message>
        <source>The archive is finished</source>
        <translation>L’archive est terminée</translation>
    </message>
    <message>
        <source>The archive cannot be made</source>
        <translation>L’archive ne peut pas être créée</translation>
    </message>
    <message>
        <source>Archive Created</source>
        <translation>Archive créée</translation>
    </message>
    <message>
        <source>Created &apos;%1&apos;</source>
        <translation>«&#x202f;%1&#x202f;» a été créé</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>%1. The archive takes %2 less.</source>
        <translation>%1. L’archive occupe %2 de moins.</translation>
    </message>
    <message>
        <source>%1. The archive saves nothing.</source>
        <translation>%1. L’archive ne fait rien gagner.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Looking whether the original is still what was archived…</source>
        <translation>Vérification que l’original correspond encore à l’archive…</translation>
    </message>
    <message>
        <source>The original may have changed while it was archived, or since. It stays.</source>
        <translation>L’original a peut-être changé pendant l’archivage ou depuis. Il est conservé.</translation>
    </message>
    <message>
        <source>The original is not there any more.</source>
        <translation>L’original n’est plus là.</translation>
    </message>
    <message>
        <source>The archive is not where it was made any more. The original stays.</source>
        <translation>L’archive n’est plus là où elle a été créée. L’original est conservé.</translation>
    </message>
    <message>
        <source>The original is not on screen any more. Scan its folder to move it to the trash.</source>
        <translation>L’original n’est plus à l’écran. Analysez son dossier pour le mettre à la corbeille.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing is left of the incomplete archive but an empty file in the trash.</source>
        <translation>Le disque est plein. Il ne reste de l’archive incomplète qu’un fichier vide dans la corbeille.</translation>
    </message>
    <message>
        <source>The disk is full. Of the incomplete archive an empty file is left, which could not be moved to the trash: &apos;%1&apos;.</source>
        <translation>Le disque est plein. Il reste de l’archive incomplète un fichier vide, qui n’a pas pu être mis à la corbeille&#x202f;: «&#x202f;%1&#x202f;».</translation>
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
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>tessera::GreetingView</name>
    <message>
        <source>Welcome to Tessera, which shows you what fills your disk.</source>
        <translation>Bienvenue dans Tessera, qui vous montre ce qui remplit votre disque.</translation>
    </message>
    <message>
        <source>Select a disk or a folder, then press Scan.</source>
        <translation>Sélectionnez un disque ou un dossier, puis appuyez sur «&#x202f;Analyser&#x202f;».</translation>
    </message>
    <message>
        <source>&amp;Got It</source>
        <translation>J’ai co&amp;mpris</translation>
    </message>
    <message>
        <source>Closes this greeting for good</source>
        <translation>Ferme définitivement ce message d’accueil</translation>
    </message>
</context>
<context>
    <name>tessera::HistoryWindowController</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Remettre en place</translation>
    </message>
    <message>
        <source>Looking where the items are…</source>
        <translation>Recherche de l’emplacement des éléments…</translation>
    </message>
    <message>
        <source>What you move to the trash is listed here, and can be put back.</source>
        <translation>Ce que vous mettez à la corbeille est listé ici et peut être remis en place.</translation>
    </message>
    <message>
        <source>One move</source>
        <translation>Une mise à la corbeille</translation>
    </message>
    <message numerus="yes">
        <source>%n moves</source>
        <translation>
            <numerusform>%n&#xa0;mise à la corbeille</numerusform>
            <numerusform>%n&#xa0;mises à la corbeille</numerusform>
        </translation>
    </message>
    <message>
        <source>Select an item first.</source>
        <translation>Sélectionnez d’abord un élément.</translation>
    </message>
    <message>
        <source>Only what is in the trash can be put back.</source>
        <translation>Seul ce qui est dans la corbeille peut être remis en place.</translation>
    </message>
    <message>
        <source>Puts the item back where it was.</source>
        <translation>Remet l’élément là où il était.</translation>
    </message>
    <message>
        <source>Shows the item in your file manager, where it is now.</source>
        <translation>Affiche l’élément dans votre gestionnaire de fichiers, là où il est maintenant.</translation>
    </message>
    <message>
        <source>Nobody knows where the item is now, or whether it still exists.</source>
        <translation>On ignore où se trouve l’élément maintenant et s’il existe encore.</translation>
    </message>
</context>
<context>
    <name>tessera::HomeViewController</name>
    <message>
        <source>Scan what is selected</source>
        <translation>Analyser ce qui est sélectionné</translation>
    </message>
    <message>
        <source>Select a disk, a folder or a recent scan first.</source>
        <translation>Sélectionnez d’abord un disque, un dossier ou une analyse récente.</translation>
    </message>
    <message>
        <source>Empty the list of recent scans</source>
        <translation>Vider la liste des analyses récentes</translation>
    </message>
    <message>
        <source>There are no recent scans.</source>
        <translation>Il n’y a pas d’analyses récentes.</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Disques</translation>
    </message>
    <message>
        <source>Disks appear here when they are mounted. Reload in the View menu looks for them.</source>
        <translation>Les disques apparaissent ici lorsqu’ils sont montés. «&#x202f;Actualiser&#x202f;», dans le menu Affichage, les recherche.</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Emplacements</translation>
    </message>
    <message>
        <source>A user&apos;s own folders appear here, and the administrator has none. Open Folder scans any other.</source>
        <translation>Les dossiers de l’utilisateur apparaissent ici&#x202f;; l’administrateur n’en a pas. «&#x202f;Ouvrir un dossier&#x202f;» permet d’analyser tout autre dossier.</translation>
    </message>
    <message>
        <source>Your folders, such as Downloads and Music, appear here when there are any.</source>
        <translation>Vos dossiers, comme Téléchargements et Musique, apparaissent ici lorsqu’ils existent.</translation>
    </message>
</context>
<context>
    <name>tessera::IgnoreMenu</name>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Leave Out of the Picture</source>
        <translation>Exclure du graphique</translation>
    </message>
    <message>
        <source>&amp;Free Space</source>
        <translation>Espace &amp;libre</translation>
    </message>
    <message>
        <source>&amp;Hidden Files</source>
        <translation>Fichiers &amp;cachés</translation>
    </message>
    <message>
        <source>&amp;Restricted Files</source>
        <translation>Fichiers &amp;inaccessibles</translation>
    </message>
    <message>
        <source>&amp;Show Everything</source>
        <translation>&amp;Tout afficher</translation>
    </message>
</context>
<context>
    <name>tessera::ItemOpening</name>
    <message>
        <source>It is not there any more. It was moved or deleted after the scan; a rescan of the folder around it shows what is there now.</source>
        <translation>L’élément n’est plus là. Il a été déplacé ou supprimé après l’analyse&#x202f;; une nouvelle analyse du dossier qui le contenait montre ce qui s’y trouve maintenant.</translation>
    </message>
    <message>
        <source>You are not allowed to look there.</source>
        <translation>Vous n’avez pas le droit d’accéder à cet emplacement.</translation>
    </message>
    <message>
        <source>The disk that it is on does not answer.</source>
        <translation>Le disque sur lequel il se trouve ne répond pas.</translation>
    </message>
    <message>
        <source>The program did not start.</source>
        <translation>L’application n’a pas démarré.</translation>
    </message>
    <message>
        <source>No terminal was found on this computer.</source>
        <translation>Aucun terminal n’a été trouvé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The desktop offers no file manager that shows properties, or it did not answer.</source>
        <translation>L’environnement de bureau ne propose aucun gestionnaire de fichiers qui affiche les propriétés, ou celui-ci n’a pas répondu.</translation>
    </message>
    <message>
        <source>The desktop has no program for it. Open With lets you choose among all programs.</source>
        <translation>L’environnement de bureau n’a pas d’application pour cet élément. «&#x202f;Ouvrir avec&#x202f;» permet de choisir parmi toutes les applications.</translation>
    </message>
    <message>
        <source>No terminal can be opened in &apos;%1&apos;</source>
        <translation>Impossible d’ouvrir un terminal dans «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>The properties of &apos;%1&apos; cannot be shown</source>
        <translation>Impossible d’afficher les propriétés de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened</source>
        <translation>Impossible d’ouvrir «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>It is a program, and Tessera runs none. Start it in your file manager, or look into it with Open With.</source>
        <translation>C’est un programme, et Tessera n’en exécute aucun. Lancez-le depuis votre gestionnaire de fichiers ou examinez-le avec «&#x202f;Ouvrir avec&#x202f;».</translation>
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
        <translation>Le dossier sélectionné «&#x202f;%1&#x202f;» se trouve dans un dossier système. D’autres applications l’utilisent peut-être. Voulez-vous vraiment mettre ce dossier à la corbeille&#x202f;?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is located inside a system folder. Other applications may be using this file. Are you sure you want to move this file to the trash?</source>
        <translation>Le fichier sélectionné «&#x202f;%1&#x202f;» se trouve dans un dossier système. D’autres applications l’utilisent peut-être. Voulez-vous vraiment mettre ce fichier à la corbeille&#x202f;?</translation>
    </message>
    <message>
        <source>The selected folder &apos;%1&apos; is marked as hidden, are you sure you want to move this item to the trash?</source>
        <translation>Le dossier sélectionné «&#x202f;%1&#x202f;» est caché. Voulez-vous vraiment mettre ce dossier à la corbeille&#x202f;?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is marked as hidden, are you sure you want to move this item to the trash?</source>
        <translation>Le fichier sélectionné «&#x202f;%1&#x202f;» est caché. Voulez-vous vraiment mettre ce fichier à la corbeille&#x202f;?</translation>
    </message>
    <message>
        <source>The selected folder &apos;%1&apos; is located inside a hidden folder, are you sure you want to move this item to the trash?</source>
        <translation>Le dossier sélectionné «&#x202f;%1&#x202f;» se trouve dans un dossier caché. Voulez-vous vraiment mettre ce dossier à la corbeille&#x202f;?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is located inside a hidden folder, are you sure you want to move this item to the trash?</source>
        <translation>Le fichier sélectionné «&#x202f;%1&#x202f;» se trouve dans un dossier caché. Voulez-vous vraiment mettre ce fichier à la corbeille&#x202f;?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Move To Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Error moving to Trash</source>
        <translation>Erreur lors de la mise à la corbeille</translation>
    </message>
    <message>
        <source>Error moving &apos;%1&apos; to the Trash for recycling.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas pu être mis à la corbeille.</translation>
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
        <translation>Parts du disque</translation>
    </message>
</context>
<context>
    <name>tessera::LedgerPanel</name>
    <message>
        <source>Count &amp;Again</source>
        <translation>Compter à &amp;nouveau</translation>
    </message>
    <message>
        <source>This is about whole disks. Scan a disk to see where its space is.</source>
        <translation>Il s’agit ici de disques entiers. Analysez un disque pour voir la répartition de son espace.</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Comptage…</translation>
    </message>
    <message>
        <source>The file system tells no sizes that could be added up.</source>
        <translation>Le système de fichiers n’indique pas de tailles qui puissent être additionnées.</translation>
    </message>
    <message>
        <source>The disk gives no answer. It may be gone, or very busy.</source>
        <translation>Le disque ne répond pas. Il n’est peut-être plus là, ou est très occupé.</translation>
    </message>
    <message>
        <source>The disk that was scanned is not there any more. Scan again what is.</source>
        <translation>Le disque analysé n’est plus là. Analysez à nouveau ce qui se trouve à sa place.</translation>
    </message>
    <message>
        <source>Show Which</source>
        <translation>Afficher lesquels</translation>
    </message>
    <message>
        <source>Size of the disk</source>
        <translation>Taille du disque</translation>
    </message>
    <message>
        <source>All lines together: %1, exactly.</source>
        <translation>Total exact de toutes les lignes&#x202f;: %1.</translation>
    </message>
</context>
<context>
    <name>tessera::LedgerRow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>tessera::MainWindowController</name>
    <message>
        <source>Scanning %1</source>
        <translation>Analyse de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Time Machine Detected</source>
        <extracomment>Translate “Backup Detected”: the system has words of its own.</extracomment>
        <translation>Sauvegarde détectée</translation>
    </message>
    <message>
        <source>Tessera is unable to scan inside a Time Machine backup. To estimate the overall size of Time Machine, please scan the disk labeled &apos;%1&apos;.</source>
        <extracomment>Translate “a backup” and “the backups”: the system has words of its own.</extracomment>
        <translation>Tessera ne peut pas analyser l’intérieur d’une sauvegarde. Pour estimer la taille totale des sauvegardes, veuillez analyser le disque nommé «&#x202f;%1&#x202f;».</translation>
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
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>tessera::PreviewView</name>
    <message>
        <source>Nothing is selected</source>
        <translation>Rien n’est sélectionné</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Image «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Text of %1</source>
        <translation>Texte de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>tessera::ProgramChooser</name>
    <message>
        <source>&amp;Show all programs</source>
        <translation>&amp;Afficher toutes les applications</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>Ouvrir avec</translation>
    </message>
    <message>
        <source>Open &apos;%1&apos; with:</source>
        <translation>Ouvrir «&#x202f;%1&#x202f;» avec&#x202f;:</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
</context>
<context>
    <name>tessera::PuttingBack</name>
    <message>
        <source>There is something new in the place of “%1”</source>
        <translation>Un nouvel élément se trouve à la place de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>It has the same name, in the folder “%1”, and is not replaced.</source>
        <translation>Il porte le même nom, dans le dossier «&#x202f;%1&#x202f;», et n’est pas remplacé.</translation>
    </message>
    <message>
        <source>Put back as “%1”</source>
        <translation>Remettre en place sous le nom «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>The folder that “%1” was in is gone</source>
        <translation>Le dossier qui contenait «&#x202f;%1&#x202f;» a disparu</translation>
    </message>
    <message>
        <source>Tessera can make the folder “%1” again and put the item back into it.</source>
        <translation>Tessera peut recréer le dossier «&#x202f;%1&#x202f;» et y remettre l’élément.</translation>
    </message>
    <message>
        <source>Make the folder again</source>
        <translation>Recréer le dossier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>An item was not put back</source>
        <translation>Un élément n’a pas été remis en place</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not put back</source>
        <translation>
            <numerusform>%n&#xa0;élément n’a pas été remis en place</numerusform>
            <numerusform>%n&#xa0;éléments n’ont pas été remis en place</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
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
        <translation>Aperçu rapide</translation>
    </message>
    <message>
        <source>Quick Look: %1</source>
        <translation>Aperçu rapide&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>tessera::RecentsTableCell</name>
    <message>
        <source>Last Scan: %1</source>
        <translation>Dernière analyse&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>tessera::RecentsTableView</name>
    <message>
        <source>Disks and folders that you scan are listed here, to be scanned again.</source>
        <translation>Les disques et dossiers que vous analysez sont listés ici, pour être analysés à nouveau.</translation>
    </message>
</context>
<context>
    <name>tessera::RescanIndicator</name>
    <message>
        <source>Rescan progress</source>
        <translation>Progression de la nouvelle analyse</translation>
    </message>
</context>
<context>
    <name>tessera::ScanningViewController</name>
    <message>
        <source>%1 files/sec</source>
        <translation>%1&#xa0;fichiers/s</translation>
    </message>
    <message>
        <source>The scan is finished</source>
        <translation>L’analyse est terminée</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>«&#x202f;%1&#x202f;» occupe %2.</translation>
    </message>
</context>
<context>
    <name>tessera::ToolbarPathControl</name>
    <message>
        <source>Path of the folder in view</source>
        <translation>Chemin du dossier affiché</translation>
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
        <translation>Date</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vers</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>In the trash</source>
        <translation>Dans la corbeille</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>Non déplacé</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Remis en place</translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation>N’est plus là</translation>
    </message>
    <message>
        <source>The item waits to be put back, until its disk answers and what was begun before is done.</source>
        <translation>L’élément attend d’être remis en place, jusqu’à ce que son disque réponde et que ce qui a été commencé avant soit terminé.</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Waiting to be put back</source>
        <translation>En attente de remise en place</translation>
    </message>
    <message>
        <source>Put back to %1</source>
        <translation>Remis en place&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>tessera::TrashNote</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Open Trash</source>
        <translation>Ouvrir la corbeille</translation>
    </message>
    <message>
        <source>“%1” (%2) is in the trash. Its space is free once the trash is emptied.</source>
        <translation>«&#x202f;%1&#x202f;» (%2) est dans la corbeille. Son espace sera libéré une fois la corbeille vidée.</translation>
    </message>
    <message>
        <source>“%1” is in the trash. Its space is free once the trash is emptied.</source>
        <translation>«&#x202f;%1&#x202f;» est dans la corbeille. Son espace sera libéré une fois la corbeille vidée.</translation>
    </message>
    <message numerus="yes">
        <source>%n items (%1) are in the trash. Their space is free once the trash is emptied.</source>
        <translation>
            <numerusform>%n&#xa0;élément (%1) est dans la corbeille. Son espace sera libéré une fois la corbeille vidée.</numerusform>
            <numerusform>%n&#xa0;éléments (%1) sont dans la corbeille. Leur espace sera libéré une fois la corbeille vidée.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are in the trash. Their space is free once the trash is emptied.</source>
        <translation>
            <numerusform>%n&#xa0;élément est dans la corbeille. Son espace sera libéré une fois la corbeille vidée.</numerusform>
            <numerusform>%n&#xa0;éléments sont dans la corbeille. Leur espace sera libéré une fois la corbeille vidée.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is in the trash. It has other names: its space stays in use until all of them are gone.</source>
        <translation>«&#x202f;%1&#x202f;» est dans la corbeille. Il a d’autres noms&#x202f;: son espace reste utilisé tant qu’ils n’ont pas tous disparu.</translation>
    </message>
    <message>
        <source>“%1” is in the trash. Files in it have other names: their space stays in use until all of those are gone.</source>
        <translation>«&#x202f;%1&#x202f;» est dans la corbeille. Des fichiers qu’il contient ont d’autres noms&#x202f;: leur espace reste utilisé tant que ceux-ci n’ont pas tous disparu.</translation>
    </message>
    <message numerus="yes">
        <source>%n items are in the trash. Files among them have other names: their space stays in use until all of those are gone.</source>
        <translation>
            <numerusform>%n&#xa0;élément est dans la corbeille. Des fichiers qui en font partie ont d’autres noms&#x202f;: leur espace reste utilisé tant que ceux-ci n’ont pas tous disparu.</numerusform>
            <numerusform>%n&#xa0;éléments sont dans la corbeille. Des fichiers qui en font partie ont d’autres noms&#x202f;: leur espace reste utilisé tant que ceux-ci n’ont pas tous disparu.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TrashUndo</name>
    <message>
        <source>The list of moves to the trash cannot be written</source>
        <translation>La liste des mises à la corbeille ne peut pas être écrite</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Undo Move to Trash of %1</source>
        <translation>&amp;Annuler la mise à la corbeille de %1</translation>
    </message>
    <message>
        <source>&amp;Redo Move to Trash of %1</source>
        <translation>&amp;Rétablir la mise à la corbeille de %1</translation>
    </message>
    <message>
        <source>Something is on its way to the trash or back. Wait until it has arrived.</source>
        <translation>Un déplacement vers la corbeille ou depuis celle-ci est en cours. Attendez qu’il se termine.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Il n’y a rien à rétablir.</translation>
    </message>
    <message>
        <source>Error moving to Trash</source>
        <translation>Erreur lors de la mise à la corbeille</translation>
    </message>
    <message numerus="yes">
        <source>%n items may not have been moved to the trash</source>
        <translation>
            <numerusform>%n&#xa0;élément n’a peut-être pas été mis à la corbeille</numerusform>
            <numerusform>%n&#xa0;éléments n’ont peut-être pas été mis à la corbeille</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items were not moved to the trash</source>
        <translation>
            <numerusform>%n&#xa0;élément n’a pas été mis à la corbeille</numerusform>
            <numerusform>%n&#xa0;éléments n’ont pas été mis à la corbeille</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TreePanels</name>
    <message>
        <source>Where the Space Is</source>
        <translation>Répartition de l’espace</translation>
    </message>
    <message>
        <source>Basket</source>
        <translation>Panier</translation>
    </message>
    <message>
        <source>The basket is empty.</source>
        <translation>Le panier est vide.</translation>
    </message>
    <message>
        <source>The basket has one item.</source>
        <translation>Le panier contient un élément.</translation>
    </message>
    <message numerus="yes">
        <source>The basket has %1 items.</source>
        <translation>
            <numerusform>Le panier contient %1&#xa0;élément.</numerusform>
            <numerusform>Le panier contient %1&#xa0;éléments.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TreeStatusBar</name>
    <message>
        <source>Status line</source>
        <translation>Barre d’état</translation>
    </message>
</context>
<context>
    <name>tessera::TreeViewController</name>
    <message>
        <source>The trash cannot be opened</source>
        <translation>La corbeille ne peut pas être ouverte</translation>
    </message>
    <message>
        <source>The desktop offers no program that shows it.</source>
        <translation>L’environnement de bureau ne propose aucune application pour l’afficher.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>One item of the basket is not there any more.</source>
        <translation>Un élément du panier n’est plus là.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items of the basket are not there any more.</source>
        <translation>
            <numerusform>%1&#xa0;élément du panier n’est plus là.</numerusform>
            <numerusform>%1&#xa0;éléments du panier ne sont plus là.</numerusform>
        </translation>
    </message>
    <message>
        <source>The path of &apos;%1&apos; is copied.</source>
        <translation>Le chemin de «&#x202f;%1&#x202f;» a été copié.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; stays where it is</source>
        <translation>«&#x202f;%1&#x202f;» reste là où il est</translation>
    </message>
    <message>
        <source>It is not in the picture any more. Rescan its folder to move it to the trash.</source>
        <translation>Il n’est plus dans le graphique. Analysez à nouveau son dossier pour le mettre à la corbeille.</translation>
    </message>
</context>
<context>
    <name>tessera::VolumeCollectionView</name>
    <message>
        <source>Reserved by the file system: %1</source>
        <translation>Réservé par le système de fichiers&#x202f;: %1</translation>
    </message>
    <message>
        <source>Reserved for the administrator: %1</source>
        <translation>Réservé à l’administrateur&#x202f;: %1</translation>
    </message>
    <message>
        <source>Free for you: %1</source>
        <translation>Libre pour vous&#x202f;: %1</translation>
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
        <translation>Sera libéré&#x202f;: %1, une fois la corbeille vidée</translation>
    </message>
</context>
</TS>
