<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CommandHintTexts</name>
    <message>
        <source>A scan is running. Wait until it has ended.</source>
        <translation>スキャン中です。終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>Scan a disk or a folder first.</source>
        <translation>先にディスクまたはフォルダーをスキャンしてください。</translation>
    </message>
    <message>
        <source>This is the home screen already.</source>
        <translation>すでにスタート画面です。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is all that was scanned. There is no folder around it here.</source>
        <translation>スキャンしたのは「%1」だけです。これより上のフォルダーはここにはありません。</translation>
    </message>
    <message>
        <source>A rescan is running already. Wait until it has ended.</source>
        <translation>すでに再スキャン中です。終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>Only folders can be scanned again. Select one, or nothing to rescan the folder in view.</source>
        <translation>再スキャンできるのはフォルダーだけです。フォルダーを選択してください。何も選択しないと、表示中のフォルダーを再スキャンします。</translation>
    </message>
    <message>
        <source>A disk is mounted at &apos;%1&apos;. It is not part of this scan; scan it by itself.</source>
        <translation>「%1」にはディスクがマウントされています。今回のスキャンには含まれていないため、そのディスクを個別にスキャンしてください。</translation>
    </message>
    <message>
        <source>This is about whole disks. Scan a disk to see where its space is.</source>
        <translation>これはディスク全体に関するものです。容量の内訳を見るには、ディスクをスキャンしてください。</translation>
    </message>
    <message>
        <source>Select a folder first.</source>
        <translation>先にフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Select a file or a folder first.</source>
        <translation>先にファイルまたはフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>There is no box that way.</source>
        <translation>その方向にボックスはありません。</translation>
    </message>
</context>
<context>
    <name>CompressWindow</name>
    <message>
        <source>Compress</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>Icon of the archive</source>
        <translation>アーカイブのアイコン</translation>
    </message>
    <message>
        <source>Progress of the compression</source>
        <translation>圧縮の進行状況</translation>
    </message>
    <message>
        <source>Move Original to Trash</source>
        <translation>元の項目をゴミ箱に移動</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>FileDialogOpenPanel</name>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
</context>
<context>
    <name>FreedSpaceText</name>
    <message>
        <source>%1 has another name elsewhere, and stays.</source>
        <translation>%1には別の場所にほかの名前があるため、そのまま残ります。</translation>
    </message>
    <message numerus="yes">
        <source>%1 have other names elsewhere, and stay.</source>
        <translation>
            <numerusform>%1には別の場所にほかの名前があるため、そのまま残ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has another name that was not scanned.</source>
        <translation>%1には、スキャンされていないほかの名前があります。</translation>
    </message>
    <message numerus="yes">
        <source>%1 have other names that were not scanned.</source>
        <translation>
            <numerusform>%1には、スキャンされていないほかの名前があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is shared with other files.</source>
        <translation>%1は、ほかのファイルと容量を共有しています。</translation>
    </message>
    <message numerus="yes">
        <source>%1 are shared with other files.</source>
        <translation>
            <numerusform>%1は、ほかのファイルと容量を共有しています。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is compressed: how much it takes is not known.</source>
        <translation>%1は圧縮されているため、使用している容量がわかりません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 are compressed: how much they take is not known.</source>
        <translation>
            <numerusform>%1は圧縮されているため、使用している容量がわかりません。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is held open by %2.</source>
        <translation>%1は、次のプログラムが開いています: %2。</translation>
    </message>
    <message numerus="yes">
        <source>%1 are held open, the first one by %2.</source>
        <translation>
            <numerusform>%1が開かれています。最初のファイルを開いているプログラム: %2。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 may be shared with other files.</source>
        <translation>
            <numerusform>%1は、ほかのファイルと容量を共有している可能性があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has changed since the scan.</source>
        <translation>%1は、スキャン後に変更されています。</translation>
    </message>
    <message numerus="yes">
        <source>%1 have changed since the scan.</source>
        <translation>
            <numerusform>%1は、スキャン後に変更されています。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was not looked at.</source>
        <translation>%1は調べられていません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not looked at.</source>
        <translation>
            <numerusform>%1は調べられていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>One file</source>
        <translation>1 個のファイル</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>“%1” and one other file</source>
        <translation>「%1」とほか 1 個のファイル</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 other files</source>
        <translation>
            <numerusform>「%1」とほか %2 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%1 more</source>
        <translation>
            <numerusform>ほか %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>%1 以上</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>Programs that may not be looked at may hold files open.</source>
        <translation>調べる権限のないプログラムが、ファイルを開いている可能性があります。</translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message>
        <source>Moves to the Trash</source>
        <translation>ゴミ箱への移動履歴</translation>
    </message>
    <message>
        <source>Moves to the trash</source>
        <translation>ゴミ箱への移動履歴</translation>
    </message>
</context>
<context>
    <name>HomeView</name>
    <message>
        <source>Disks and locations</source>
        <translation>ディスクと場所</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>フォルダーを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Choose any folder and scan it</source>
        <translation>任意のフォルダーを選択してスキャンします</translation>
    </message>
    <message>
        <source>Recent Scans</source>
        <translation>最近のスキャン</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>消去(&amp;L)</translation>
    </message>
    <message>
        <source>Clear recent scans</source>
        <translation>最近のスキャンの一覧を消去します</translation>
    </message>
    <message>
        <source>Recent scans</source>
        <translation>最近のスキャン</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>スキャン(&amp;S)</translation>
    </message>
</context>
<context>
    <name>ItemStatusTexts</name>
    <message>
        <source>less than %1% of %2</source>
        <translation>%2 の %1% 未満</translation>
    </message>
    <message>
        <source>%1% of %2</source>
        <translation>%2 の %1%</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 個の項目</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 個の項目</numerusform>
        </translation>
    </message>
    <message>
        <source>being rescanned</source>
        <translation>再スキャン中</translation>
    </message>
    <message>
        <source>Small items</source>
        <translation>小さい項目</translation>
    </message>
</context>
<context>
    <name>LedgerListTexts</name>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>理由</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>ほか %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Covered by</source>
        <translation>上にあるマウント</translation>
    </message>
    <message>
        <source>%2 (%1)</source>
        <translation>%2 (%1)</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Deleted file</source>
        <translation>削除されたファイル</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>LedgerTexts</name>
    <message>
        <source>There may be more: the system does not tell Tessera what runs.</source>
        <translation>ほかにもある可能性があります。実行中のプログラムの情報を、Tessera はシステムから得られません。</translation>
    </message>
    <message numerus="yes">
        <source>There may be more: Tessera may not look into %1 of the programs that run.</source>
        <translation>
            <numerusform>ほかにもある可能性があります。実行中のプログラムのうち %1 個は、Tessera に調べる権限がありません。</numerusform>
        </translation>
    </message>
    <message>
        <source>There may be more: not everything could be looked at in time.</source>
        <translation>ほかにもある可能性があります。時間内にすべてを調べられませんでした。</translation>
    </message>
    <message>
        <source>There may be more, whose size the system does not tell.</source>
        <translation>ほかにも、システムからサイズを得られないものがある可能性があります。</translation>
    </message>
    <message>
        <source>Nothing was found that is deleted and that a program still has open.</source>
        <translation>削除された後もプログラムが開いているファイルは、見つかりませんでした。</translation>
    </message>
    <message>
        <source>Deleted files that programs still have open. End or restart these programs, and the space is free.</source>
        <translation>削除された後もプログラムが開いているファイルです。これらのプログラムを終了するか再起動すると、容量が空きます。</translation>
    </message>
    <message>
        <source>More was found than is in use. That happens where files are compressed, share what they take, or changed while they were counted.</source>
        <translation>使用中の容量より多く見つかりました。ファイルが圧縮されている場合、容量を共有している場合、集計中に変更された場合に起こります。</translation>
    </message>
    <message>
        <source>In use, and none of the other lines: journal, records and snapshots of the file system, and whatever nobody could see.</source>
        <translation>使用中で、ほかのどの行にも含まれないもの: ファイルシステムのジャーナル、管理情報、スナップショット、および誰からも見えなかったものです。</translation>
    </message>
    <message>
        <source>The system does not tell what is hidden below other mounts.</source>
        <translation>ほかのマウントの下に隠れているものの情報は、システムから得られません。</translation>
    </message>
    <message>
        <source>Held back by the file system for its own records.</source>
        <translation>ファイルシステムが自身の管理情報のために確保しています。</translation>
    </message>
    <message>
        <source>Kept free for the administrator, so that the system goes on when the disk is full for everybody else.</source>
        <translation>ほかのユーザーにとってディスクがいっぱいになってもシステムが動き続けるよう、管理者のために空けてあります。</translation>
    </message>
    <message>
        <source>What is in them is part of the rest; how much that is nobody knows.</source>
        <translation>これらの中身は「その他」に含まれます。どのくらいあるかはわかりません。</translation>
    </message>
    <message>
        <source>Tessera may not look into some of them. Frequently Asked Questions, in the Help menu, says how to scan with more rights.</source>
        <translation>その一部は、Tessera に中を見る権限がありません。より高い権限でスキャンする方法は、「ヘルプ」メニューの「よくある質問」をご覧ください。</translation>
    </message>
    <message>
        <source>Files found, each once</source>
        <translation>見つかったファイル (重複なし)</translation>
    </message>
    <message>
        <source>The folders themselves</source>
        <translation>フォルダー自身</translation>
    </message>
    <message>
        <source>Deleted but still open</source>
        <translation>削除後も開かれているファイル</translation>
    </message>
    <message>
        <source>Folders that could not be read (%1)</source>
        <translation>読み取れなかったフォルダー (%1)</translation>
    </message>
    <message>
        <source>May be hidden below other mounts (%1)</source>
        <translation>ほかのマウントの下に隠れている可能性 (%1)</translation>
    </message>
    <message>
        <source>Left out on purpose (%1)</source>
        <translation>意図的に除外したもの (%1)</translation>
    </message>
    <message>
        <source>The file system&apos;s own, and the rest</source>
        <translation>ファイルシステム自身とその他</translation>
    </message>
    <message>
        <source>Reserved by the file system</source>
        <translation>ファイルシステムの予約</translation>
    </message>
    <message>
        <source>Reserved for the administrator</source>
        <translation>管理者用の予約</translation>
    </message>
    <message>
        <source>Free for you</source>
        <translation>使用できる空き容量</translation>
    </message>
    <message>
        <source>What all files take on the disk. A file with several names counts once.</source>
        <translation>すべてのファイルがディスク上で使用している容量です。複数の名前を持つファイルは 1 回だけ数えます。</translation>
    </message>
    <message>
        <source>What the folders take themselves, for the names of what is in them.</source>
        <translation>フォルダー自身が、中にあるものの名前を記録するために使用している容量です。</translation>
    </message>
    <message>
        <source>Something else is mounted there. If files lie below it, they cannot be seen, and are part of the rest.</source>
        <translation>別のものがマウントされています。その下にファイルがあっても見ることができず、「その他」に含まれます。</translation>
    </message>
    <message>
        <source>Stores of backups and of encrypted homes, whose files would count twice. What they take is part of the rest.</source>
        <translation>バックアップや暗号化されたホームフォルダーの保存場所です。ファイルが二重に数えられるため除外しました。使用している容量は「その他」に含まれます。</translation>
    </message>
    <message>
        <source>What you can still fill.</source>
        <translation>まだ使用できる容量です。</translation>
    </message>
    <message>
        <source>part of the rest</source>
        <translation>「その他」に含む</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>%1 以上</translation>
    </message>
    <message>
        <source>%1 byte</source>
        <translation>%1 バイト</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 バイト</numerusform>
        </translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>権限がありません</translation>
    </message>
    <message>
        <source>Gone meanwhile</source>
        <translation>途中でなくなりました</translation>
    </message>
    <message>
        <source>Something else lies there by now</source>
        <translation>すでに別のものに変わっています</translation>
    </message>
    <message>
        <source>A link lies there by now</source>
        <translation>すでにリンクに変わっています</translation>
    </message>
    <message>
        <source>The disk has an error</source>
        <translation>ディスクにエラーがあります</translation>
    </message>
    <message>
        <source>The disk gives no answer</source>
        <translation>ディスクが応答しません</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Take Out of &amp;Basket</source>
        <translation>バスケットから取り出す(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>フォルダーを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Lets you choose a folder and scans it.</source>
        <translation>フォルダーを選択してスキャンします。</translation>
    </message>
    <message>
        <source>Choose &amp;Another Disk or Folder</source>
        <translation>別のディスクまたはフォルダーを選択(&amp;A)</translation>
    </message>
    <message>
        <source>Goes back to the home screen, where you choose what to scan.</source>
        <translation>スキャンするものを選択するスタート画面に戻ります。</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message>
        <source>Lets you choose what is shown under the pointer and when Tessera warns you.</source>
        <translation>ポインターの下に表示する内容と、Tessera が警告する場面を設定します。</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Ends Tessera, and asks you first while an archive is being made.</source>
        <translation>Tessera を終了します。アーカイブの作成中は、先に確認します。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Puts what you moved to the trash last back where it was.</source>
        <translation>最後にゴミ箱に移動したものを元の場所に戻します。</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Moves what you put back last to the trash again.</source>
        <translation>最後に元の場所に戻したものを、もう一度ゴミ箱に移動します。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the selected item in the program that your desktop has for it, and never runs it.</source>
        <translation>選択した項目を、デスクトップ環境で設定されたプログラムで開きます。項目自体を実行することはありません。</translation>
    </message>
    <message>
        <source>Open &amp;With…</source>
        <translation>プログラムから開く(&amp;W)…</translation>
    </message>
    <message>
        <source>Lets you choose the program in which the selected item opens.</source>
        <translation>選択した項目を開くプログラムを選択します。</translation>
    </message>
    <message>
        <source>&amp;Quick Look</source>
        <translation>クイックプレビュー(&amp;Q)</translation>
    </message>
    <message>
        <source>Previews the selected item in a small window.</source>
        <translation>選択した項目を小さなウィンドウでプレビューします。</translation>
    </message>
    <message>
        <source>&amp;Show in Finder</source>
        <extracomment>Translate “Show in File Manager”: the system has words of its own.</extracomment>
        <translation>ファイルマネージャーで表示(&amp;S)</translation>
    </message>
    <message>
        <source>Shows the selected item in your file manager.</source>
        <translation>選択した項目をファイルマネージャーで表示します。</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>パスをコピー(&amp;P)</translation>
    </message>
    <message>
        <source>Copies the path of the selected item, or of the folder in view while nothing is selected.</source>
        <translation>選択した項目のパスをコピーします。何も選択していないときは、表示中のフォルダーのパスをコピーします。</translation>
    </message>
    <message>
        <source>Open Ter&amp;minal Here</source>
        <translation>ここでターミナルを開く(&amp;M)</translation>
    </message>
    <message>
        <source>Opens a terminal in the selected folder, in that of the selected file, or in the folder in view while nothing is selected.</source>
        <translation>選択したフォルダー、または選択したファイルのあるフォルダーでターミナルを開きます。何も選択していないときは、表示中のフォルダーで開きます。</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>再スキャン(&amp;R)</translation>
    </message>
    <message>
        <source>Scans the selected folder again, or the folder in view while nothing is selected.</source>
        <translation>選択したフォルダーを再スキャンします。何も選択していないときは、表示中のフォルダーを再スキャンします。</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>Leaves the selected folder out of the picture and changes nothing on the disk.</source>
        <translation>選択したフォルダーを図から除外します。ディスク上のものは何も変更しません。</translation>
    </message>
    <message>
        <source>&amp;Compress</source>
        <translation>圧縮(&amp;C)</translation>
    </message>
    <message>
        <source>Makes a zip archive of the selected item beside it; the item itself stays.</source>
        <translation>選択した項目の ZIP アーカイブを同じ場所に作成します。元の項目はそのまま残ります。</translation>
    </message>
    <message>
        <source>Compress Folder</source>
        <translation>フォルダーを圧縮</translation>
    </message>
    <message>
        <source>Compress File</source>
        <translation>ファイルを圧縮</translation>
    </message>
    <message>
        <source>Add to &amp;Basket</source>
        <translation>バスケットに追加(&amp;B)</translation>
    </message>
    <message>
        <source>Puts the selected item into the basket, or takes it out again; nothing moves on the disk.</source>
        <translation>選択した項目をバスケットに追加、またはバスケットから取り出します。ディスク上のものは何も移動しません。</translation>
    </message>
    <message>
        <source>Move to &amp;Trash</source>
        <translation>ゴミ箱に移動(&amp;T)</translation>
    </message>
    <message>
        <source>Moves the selected item to the trash, after a warning where that is risky.</source>
        <translation>選択した項目をゴミ箱に移動します。危険がある場合は、先に警告します。</translation>
    </message>
    <message>
        <source>Prop&amp;erties</source>
        <translation>プロパティ(&amp;E)</translation>
    </message>
    <message>
        <source>Shows what your file manager tells of the selected item.</source>
        <translation>選択した項目の情報をファイルマネージャーで表示します。</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Fills the window with the selected folder.</source>
        <translation>選択したフォルダーをウィンドウいっぱいに表示します。</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Shows the folder around the one in view.</source>
        <translation>表示中のフォルダーの上のフォルダーを表示します。</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>Scans all that is shown again and leads you back to where you were, or looks for disks and folders again on the home screen.</source>
        <translation>表示しているものすべてを再スキャンして、元の位置に戻ります。スタート画面では、ディスクとフォルダーを探し直します。</translation>
    </message>
    <message>
        <source>&amp;Basket</source>
        <translation>バスケット(&amp;B)</translation>
    </message>
    <message>
        <source>Shows, in a panel beside the picture, what you have collected and what moving it to the trash will free, or closes that panel.</source>
        <translation>集めた項目と、それらをゴミ箱に移動すると空く容量を、図の横のパネルに表示します。または、そのパネルを閉じます。</translation>
    </message>
    <message>
        <source>Where the &amp;Space Is</source>
        <translation>容量の内訳(&amp;S)</translation>
    </message>
    <message>
        <source>Shows, in a panel beside the picture, what all of the scanned disk&apos;s space is used for, or closes that panel.</source>
        <translation>スキャンしたディスクの全容量が何に使われているかを、図の横のパネルに表示します。または、そのパネルを閉じます。</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>履歴(&amp;H)</translation>
    </message>
    <message>
        <source>Lists what you moved to the trash, and puts it back where it was.</source>
        <translation>ゴミ箱に移動したものを一覧表示し、元の場所に戻します。</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>全画面表示(&amp;F)</translation>
    </message>
    <message>
        <source>Lets the window fill the whole screen, or gives it back its size.</source>
        <translation>ウィンドウを画面全体に広げるか、元の大きさに戻します。</translation>
    </message>
    <message>
        <source>Status &amp;Line</source>
        <translation>ステータスバー(&amp;L)</translation>
    </message>
    <message>
        <source>Shows, in a line below the picture, what is under the pointer or selected, or hides that line.</source>
        <translation>ポインターの下にあるもの、または選択したものを、図の下のバーに表示します。または、そのバーを隠します。</translation>
    </message>
    <message>
        <source>What Tessera &amp;Does</source>
        <translation>Tessera の機能(&amp;D)</translation>
    </message>
    <message>
        <source>Opens a page that says what Tessera does and how you use it.</source>
        <translation>Tessera の機能と使い方を説明するページを開きます。</translation>
    </message>
    <message>
        <source>Frequently Asked &amp;Questions</source>
        <translation>よくある質問(&amp;Q)</translation>
    </message>
    <message>
        <source>Opens a page that answers frequently asked questions about Tessera.</source>
        <translation>Tessera についてのよくある質問に答えるページを開きます。</translation>
    </message>
    <message>
        <source>&amp;About Tessera</source>
        <translation>Tessera について(&amp;A)</translation>
    </message>
    <message>
        <source>Says which version this is, what it is made with, and under which license.</source>
        <translation>バージョン、使用しているソフトウェア、ライセンスを表示します。</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Item</source>
        <translation>項目(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
</context>
<context>
    <name>MainToolbar</name>
    <message>
        <source>Choose another disk or folder</source>
        <translation>別のディスクまたはフォルダーを選択</translation>
    </message>
    <message>
        <source>Commands for the selected item</source>
        <translation>選択した項目に対するコマンド</translation>
    </message>
    <message>
        <source>What the picture leaves out</source>
        <translation>図から除外するもの</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
</context>
<context>
    <name>MoveAllReportTexts</name>
    <message>
        <source>A folder had changed since it was scanned</source>
        <translation>フォルダーがスキャン後に変更されていました</translation>
    </message>
    <message>
        <source>Folders had changed since they were scanned</source>
        <translation>複数のフォルダーがスキャン後に変更されていました</translation>
    </message>
    <message>
        <source>One item may not have been moved to the trash</source>
        <translation>1 個の項目がゴミ箱に移動されていない可能性があります</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items may not have been moved to the trash</source>
        <translation>
            <numerusform>%Ln 個の項目がゴミ箱に移動されていない可能性があります</numerusform>
        </translation>
    </message>
    <message>
        <source>One item was not moved to the trash</source>
        <translation>1 個の項目をゴミ箱に移動できませんでした</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items were not moved to the trash</source>
        <translation>
            <numerusform>%Ln 個の項目をゴミ箱に移動できませんでした</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>ほか %Ln 個</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is in the trash, with all that is in it now.</source>
        <translation>%1は、現在の中身ごとゴミ箱にあります。</translation>
    </message>
    <message numerus="yes">
        <source>%1 are in the trash, with all that is in them now.</source>
        <translation>
            <numerusform>%1は、現在の中身ごとゴミ箱にあります。</numerusform>
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
        <translation>%1は隠し項目であるか、隠しフォルダーの中にあります。</translation>
    </message>
    <message numerus="yes">
        <source>%1 are hidden, or are in hidden folders.</source>
        <translation>
            <numerusform>%1は隠し項目であるか、隠しフォルダーの中にあります。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is in a system folder: other applications may be using it.</source>
        <translation>%1はシステムフォルダーの中にあります。ほかのアプリケーションが使用している可能性があります。</translation>
    </message>
    <message numerus="yes">
        <source>%1 are in system folders: other applications may be using them.</source>
        <translation>
            <numerusform>%1はシステムフォルダーの中にあります。ほかのアプリケーションが使用している可能性があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 belongs to another user.</source>
        <translation>%1は、ほかのユーザーのものです。</translation>
    </message>
    <message numerus="yes">
        <source>%1 belong to other users.</source>
        <translation>
            <numerusform>%1は、ほかのユーザーのものです。</numerusform>
        </translation>
    </message>
    <message>
        <source>No backup would be left in %1.</source>
        <translation>%1にバックアップが 1 つも残らなくなります。</translation>
    </message>
    <message numerus="yes">
        <source>No backups would be left in %1.</source>
        <translation>
            <numerusform>%1にバックアップが 1 つも残らなくなります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>ほか %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Are you sure you want to move one item (%1) to the trash?</source>
        <translation>1 個の項目 (%1) をゴミ箱に移動してもよろしいですか?</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to move %1 items (%2) to the trash?</source>
        <translation>
            <numerusform>%1 個の項目 (%2) をゴミ箱に移動してもよろしいですか?</numerusform>
        </translation>
    </message>
    <message>
        <source>What has come into the folders since they were scanned goes with them.</source>
        <translation>スキャン後にフォルダーに加わったものも、一緒に移動されます。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に移動</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Move To Trash</source>
        <translation>ゴミ箱に移動</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>NamesTexts</name>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1とほか %2 個</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
</context>
<context>
    <name>NoFileManagerTexts</name>
    <message>
        <source>There is no file manager</source>
        <translation>ファイルマネージャーがありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be shown, because the desktop offers no program for that.</source>
        <translation>表示するためのプログラムがデスクトップ環境にないため、「%1」を表示できません。</translation>
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
        <translation>空き容量</translation>
    </message>
    <message>
        <source>Restricted Files</source>
        <translation>アクセスできないファイル</translation>
    </message>
</context>
<context>
    <name>PlaceNames</name>
    <message>
        <source>File System</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>アプリのデータ</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>ゴミ箱</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Warn before moving to the trash:</source>
        <translation>ゴミ箱に移動する前に警告:</translation>
    </message>
    <message>
        <source>&amp;Hidden items</source>
        <translation>隠し項目(&amp;H)</translation>
    </message>
    <message>
        <source>Warn before a hidden item is moved to the trash</source>
        <translation>隠し項目をゴミ箱に移動する前に警告します</translation>
    </message>
    <message>
        <source>&amp;System items</source>
        <translation>システムの項目(&amp;S)</translation>
    </message>
    <message>
        <source>Warn before an item of the system is moved to the trash</source>
        <translation>システムの項目をゴミ箱に移動する前に警告します</translation>
    </message>
    <message>
        <source>Under the &amp;pointer, show:</source>
        <translation>ポインターの下に表示(&amp;P):</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Name and size</source>
        <translation>名前とサイズ</translation>
    </message>
    <message>
        <source>Name, size, date and path</source>
        <translation>名前、サイズ、日付、パス</translation>
    </message>
    <message>
        <source>In the picture, show:</source>
        <translation>図に表示:</translation>
    </message>
    <message>
        <source>Si&amp;zes behind folder names</source>
        <translation>フォルダー名の後のサイズ(&amp;Z)</translation>
    </message>
    <message>
        <source>Show the size of a folder behind its name in the picture, where there is room</source>
        <translation>図に余裕がある場合、フォルダー名の後にサイズを表示します</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
</context>
<context>
    <name>ScanProblemTexts</name>
    <message>
        <source>There is no folder &apos;%1&apos; any more. It may have been moved, renamed or deleted, or its disk may not be connected.</source>
        <translation>フォルダー「%1」はもうありません。移動、名前の変更、または削除されたか、ディスクが接続されていない可能性があります。</translation>
    </message>
    <message>
        <source>You do not have permission to look into &apos;%1&apos;. Frequently Asked Questions, in the Help menu, says how to scan with more rights.</source>
        <translation>「%1」の中を見る権限がありません。より高い権限でスキャンする方法は、「ヘルプ」メニューの「よくある質問」をご覧ください。</translation>
    </message>
    <message>
        <source>The system is too busy to scan &apos;%1&apos;. Close some programs and try again.</source>
        <translation>システムの負荷が高いため、「%1」をスキャンできません。いくつかのプログラムを閉じてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read.</source>
        <translation>「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>The folder cannot be scanned</source>
        <translation>フォルダーをスキャンできません</translation>
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
        <translation>スキャンの進行状況</translation>
    </message>
    <message>
        <source>Read so far:</source>
        <translation>読み取り済み:</translation>
    </message>
    <message>
        <source>Amount read so far</source>
        <translation>これまでに読み取った量</translation>
    </message>
    <message>
        <source>Files read in a second</source>
        <translation>1 秒間に読み取ったファイル数</translation>
    </message>
    <message>
        <source>Tip: in the picture, a larger box is a larger folder or file. Double-click a folder to look inside, and press Backspace to come back.</source>
        <translation>ヒント: 図のボックスが大きいほど、フォルダーやファイルも大きくなります。フォルダーをダブルクリックすると中を表示し、Backspace キーで戻ります。</translation>
    </message>
    <message>
        <source>Stop the scan and go back (Escape)</source>
        <translation>スキャンを中止して戻ります (Esc)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>%1 B</source>
        <extracomment>%1 is a number, the rest the unit: of bytes</extracomment>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <extracomment>of thousands of bytes</extracomment>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
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
        <translation>もう存在しません。</translation>
    </message>
    <message>
        <source>It cannot be looked at: %1</source>
        <translation>調べられません: %1</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>読み取れません: %1</translation>
    </message>
    <message>
        <source>It cannot be shown: the program tessera-preview cannot be started.</source>
        <translation>プログラム tessera-preview を起動できないため、表示できません。</translation>
    </message>
    <message>
        <source>It is damaged, or takes too much memory or time to be shown.</source>
        <translation>壊れているか、表示に必要なメモリーや時間が多すぎます。</translation>
    </message>
    <message>
        <source>The picture is damaged or too large to be shown.</source>
        <translation>画像が壊れているか、大きすぎて表示できません。</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>寸法</translation>
    </message>
    <message>
        <source>Leads to</source>
        <translation>リンク先</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>項目数</translation>
    </message>
    <message>
        <source>Size on disk</source>
        <translation>ディスク上のサイズ</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 ページ</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages</source>
        <translation>
            <numerusform>%Ln ページ</numerusform>
        </translation>
    </message>
    <message>
        <source>first %1 shown</source>
        <comment>size</comment>
        <translation>先頭の %1 を表示</translation>
    </message>
    <message numerus="yes">
        <source>first %Ln shown</source>
        <comment>pages</comment>
        <translation>
            <numerusform>先頭の %Ln ページを表示</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TooltipController</name>
    <message numerus="yes">
        <source>one of %1 names of a file that is counted at %2</source>
        <translation>
            <numerusform>%2 で集計されるファイルの %1 個の名前の 1 つ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TooltipWindow</name>
    <message>
        <source>Small items</source>
        <translation>小さい項目</translation>
    </message>
    <message>
        <source>Largest first:</source>
        <translation>大きい順:</translation>
    </message>
    <message>
        <source>Restricted Files</source>
        <translation>アクセスできないファイル</translation>
    </message>
    <message>
        <source>Space in use that the scan could not read, or that belongs to no file.</source>
        <translation>使用中の容量のうち、スキャンで読み取れなかったもの、またはどのファイルのものでもないものです。</translation>
    </message>
</context>
<context>
    <name>TrashSentences</name>
    <message>
        <source>Nothing was moved to the trash, because the system is too busy to begin with it. Close some programs and try again.</source>
        <translation>システムの負荷が高く処理を始められないため、ゴミ箱に何も移動しませんでした。いくつかのプログラムを閉じてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>Nothing was put back, because the system is too busy to begin with it. Close some programs and try again.</source>
        <translation>システムの負荷が高く処理を始められないため、何も元の場所に戻しませんでした。いくつかのプログラムを閉じてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan.</source>
        <translation>「%1」は、スキャン後に変更されたため、移動しませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because another item has taken its name since the scan.</source>
        <translation>「%1」は、スキャン後に別の項目がその名前になったため、移動しませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it was made after the scan began.</source>
        <translation>「%1」は、スキャンの開始後に作成されたため、移動しませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan: it is a folder now.</source>
        <translation>「%1」は、スキャン後に変更されてフォルダーになったため、移動しませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has changed since the scan: it is no folder any more.</source>
        <translation>「%1」は、スキャン後に変更されてフォルダーではなくなったため、移動しませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash.</source>
        <translation>「%1」をゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because it is not there any more.</source>
        <translation>「%1」は、もう存在しないため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because you have no permission to do so.</source>
        <translation>「%1」は、権限がないため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because a folder on the way to it has become a link since the scan.</source>
        <translation>「%1」は、そこに至る途中のフォルダーがスキャン後にリンクに変わったため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk can only be read.</source>
        <translation>「%1」は、ディスクが読み取り専用のため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk has no space left.</source>
        <translation>「%1」は、ディスクに空き容量がないため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because it could only be copied there.</source>
        <translation>「%1」は、コピーでしかゴミ箱に入れられないため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because the system is using it.</source>
        <translation>「%1」は、システムが使用中のため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be in the trash or where it was, because its disk broke off while it was moved. Nothing has been removed.</source>
        <translation>移動中にディスクとの接続が切れたため、「%1」はゴミ箱と元の場所のどちらかにあります。何も削除されていません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its path is too long.</source>
        <translation>「%1」は、パスが長すぎるため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash: %2.</source>
        <extracomment>%2 is what the system says</extracomment>
        <translation>「%1」をゴミ箱に移動できませんでした: %2。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved to the trash, because its disk has no trash for you.</source>
        <translation>「%1」は、ディスクにあなたが使えるゴミ箱がないため、ゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>it is not a file of your own in a folder that nobody else can write to</source>
        <translation>ほかの誰も書き込めないフォルダーにある、あなた自身のファイルではありません</translation>
    </message>
    <message>
        <source>another program is writing to it</source>
        <translation>ほかのプログラムが書き込み中です</translation>
    </message>
    <message>
        <source>What is moved to the trash can be restored there, but this program will not list it: &apos;%1&apos; cannot be written (%2).</source>
        <extracomment>%2 says why: the texts above, or what the system says</extracomment>
        <translation>ゴミ箱に移動したものはゴミ箱から復元できますが、このプログラムの一覧には表示されません。「%1」に書き込めません (%2)。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because something new is called &apos;%2&apos; there.</source>
        <translation>「%1」は、その場所に「%2」という名前の新しいものがあるため、元の場所に戻せませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because the folder that it was in is not there any more.</source>
        <translation>「%1」は、入っていたフォルダーがもう存在しないため、元の場所に戻せませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because what was a folder on the way to its place is none any more.</source>
        <translation>「%1」は、元の場所に至る途中のフォルダーがフォルダーではなくなったため、元の場所に戻せませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because a folder on the way to its place has become a link.</source>
        <translation>「%1」は、元の場所に至る途中のフォルダーがリンクに変わったため、元の場所に戻せませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because it is not in the trash any more.</source>
        <translation>「%1」は、もうゴミ箱にないため、元の場所に戻せませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because it cannot be told whether what is in its place in the trash is the same item still. Restore it from the trash.</source>
        <translation>「%1」は、ゴミ箱のその位置にあるものが今も同じ項目かどうか判断できないため、元の場所に戻せませんでした。ゴミ箱から復元してください。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because the trash that it is in cannot be found. If its disk is not connected, connect it and try again.</source>
        <translation>「%1」は、入っているゴミ箱が見つからないため、元の場所に戻せませんでした。ディスクが接続されていない場合は、接続してからもう一度試してください。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its place is on another disk than the trash now. You can copy it there from the trash.</source>
        <translation>「%1」は、元の場所が今はゴミ箱とは別のディスクにあるため、元の場所に戻せませんでした。ゴミ箱から元の場所にコピーできます。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its disk can only be read.</source>
        <translation>「%1」は、ディスクが読み取り専用のため、元の場所に戻せませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because you have no permission to do so.</source>
        <translation>「%1」は、権限がないため、元の場所に戻せませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back, because its disk has no space left. Make some and try again.</source>
        <translation>「%1」は、ディスクに空き容量がないため、元の場所に戻せませんでした。容量を空けてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be in the trash or where it was, because its disk broke off while it was put back. Nothing has been removed.</source>
        <translation>元の場所に戻す途中でディスクとの接続が切れたため、「%1」はゴミ箱と元の場所のどちらかにあります。何も削除されていません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not put back: %2.</source>
        <translation>「%1」を元の場所に戻せませんでした: %2。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because something else is called so now.</source>
        <translation>「%1」は、今は別のものがその名前になっているため、ゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because the system does not say which disks are mounted.</source>
        <translation>「%1」は、どのディスクがマウントされているかの情報をシステムから得られないため、ゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because a disk is mounted there.</source>
        <translation>「%1」は、そこにディスクがマウントされているため、ゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because a disk is mounted inside it.</source>
        <translation>「%1」は、中にディスクがマウントされているため、ゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because your home folder is there.</source>
        <translation>「%1」は、ホームフォルダーがそこにあるため、ゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because the trash is there.</source>
        <translation>「%1」は、ゴミ箱がそこにあるため、ゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be moved to the trash, because it is in the trash already.</source>
        <translation>「%1」は、すでにゴミ箱にあるため、ゴミ箱に移動できません。</translation>
    </message>
</context>
<context>
    <name>TrashStepTexts</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n 個の項目</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
</context>
<context>
    <name>TreeBranchTexts</name>
    <message>
        <source>You may not look into this folder. See Frequently Asked Questions in the Help menu.</source>
        <translation>このフォルダーの中を見る権限がありません。「ヘルプ」メニューの「よくある質問」をご覧ください。</translation>
    </message>
    <message>
        <source>This folder could not be read. Rescan it to try again.</source>
        <translation>このフォルダーは読み取れませんでした。もう一度試すには、再スキャンしてください。</translation>
    </message>
    <message>
        <source>This folder is empty. Rescan it when something has come.</source>
        <translation>このフォルダーは空です。何かが追加されたら、再スキャンしてください。</translation>
    </message>
    <message>
        <source>Everything in this folder is left out of the picture. The Ignore menu brings it back.</source>
        <translation>このフォルダーの中身はすべて図から除外されています。「無視」メニューで再び表示できます。</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>Contextual Menu</source>
        <translation>コンテキストメニュー</translation>
    </message>
</context>
<context>
    <name>VolumeCollectionView</name>
    <message>
        <source>Used space</source>
        <translation>使用中の容量</translation>
    </message>
</context>
<context>
    <name>tessera::AboutWindow</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Shows where the space on a disk goes.</source>
        <translation>ディスクの容量が何に使われているかを表示します。</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>About Tessera</source>
        <translation>Tessera について</translation>
    </message>
    <message>
        <source>License</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>&amp;Versions</source>
        <translation>バージョン(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;License</source>
        <translation>ライセンス(&amp;L)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Copy Versions</source>
        <translation>バージョンをコピー(&amp;C)</translation>
    </message>
</context>
<context>
    <name>tessera::AppDelegate</name>
    <message>
        <source>An archive is still being made</source>
        <translation>まだアーカイブを作成中です</translation>
    </message>
    <message>
        <source>Tessera can finish it in the background, in a window of its own, and quit then. If it is stopped, the incomplete archive goes to the trash.</source>
        <translation>Tessera は、バックグラウンドの専用ウィンドウでアーカイブを完成させてから終了できます。中止すると、未完成のアーカイブはゴミ箱に移動されます。</translation>
    </message>
    <message>
        <source>Finish in Background</source>
        <translation>バックグラウンドで完成</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>中止して終了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>If the session ends now it is stopped, and the incomplete archive goes to the trash.</source>
        <translation>今セッションを終了すると作成は中止され、未完成のアーカイブはゴミ箱に移動されます。</translation>
    </message>
    <message>
        <source>End Session</source>
        <translation>セッションを終了</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>ヘルプを表示できません</translation>
    </message>
    <message>
        <source>Either its pages are not installed or the desktop offers no web browser.</source>
        <translation>ヘルプのページがインストールされていないか、デスクトップ環境にウェブブラウザーがありません。</translation>
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
        <translation>図に表示</translation>
    </message>
    <message>
        <source>Take Out of Basket</source>
        <translation>バスケットから取り出す</translation>
    </message>
</context>
<context>
    <name>tessera::BasketModel</name>
    <message>
        <source>inside “%1”</source>
        <translation>「%1」の中</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>未集計</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Will free</source>
        <translation>空く容量</translation>
    </message>
</context>
<context>
    <name>tessera::BasketPanel</name>
    <message>
        <source>Basket</source>
        <translation>バスケット</translation>
    </message>
    <message>
        <source>Press B, or drag boxes here, to collect what you want to move to the trash. Nothing moves until you say so.</source>
        <translation>B キーを押すかボックスをここにドラッグして、ゴミ箱に移動したいものを集めてください。指示するまで何も移動しません。</translation>
    </message>
    <message>
        <source>Items in the basket</source>
        <translation>バスケットの項目</translation>
    </message>
    <message>
        <source>%1 Delete takes the selected items out of the basket; nothing moves to the trash.</source>
        <translation>%1Delete キーで、選択した項目をバスケットから取り出します。ゴミ箱には何も移動しません。</translation>
    </message>
    <message>
        <source>Empty Basket</source>
        <translation>バスケットを空にする</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>項目なし</translation>
    </message>
    <message>
        <source>1 item, %1</source>
        <translation>1 個の項目、%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 items, %2</source>
        <translation>
            <numerusform>%1 個の項目、%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Take Out of Basket</source>
        <translation>バスケットから取り出す</translation>
    </message>
    <message>
        <source>Add to Basket</source>
        <translation>バスケットに追加</translation>
    </message>
    <message>
        <source>Takes all items out of the basket. Nothing moves to the trash.</source>
        <translation>すべての項目をバスケットから取り出します。ゴミ箱には何も移動しません。</translation>
    </message>
    <message>
        <source>Moving to Trash…</source>
        <translation>ゴミ箱に移動中…</translation>
    </message>
    <message>
        <source>Looking at the Items…</source>
        <translation>項目を調べています…</translation>
    </message>
    <message>
        <source>Move All to Trash…</source>
        <translation>すべてゴミ箱に移動…</translation>
    </message>
    <message>
        <source>Asks before anything moves. %1</source>
        <translation>移動する前に確認します。%1</translation>
    </message>
    <message>
        <source>The items are being looked at.</source>
        <translation>項目を調べています。</translation>
    </message>
    <message>
        <source>Another item has just been selected.</source>
        <translation>別の項目が選択されたところです。</translation>
    </message>
    <message>
        <source>This cannot be moved to the trash.</source>
        <translation>これはゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>Items are on their way to the trash. Wait until they have arrived.</source>
        <translation>項目をゴミ箱に移動中です。終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>The basket is empty.</source>
        <translation>バスケットは空です。</translation>
    </message>
</context>
<context>
    <name>tessera::BasketTrasher</name>
    <message>
        <source>&apos;%1&apos; was not moved, because it could not be looked at when it was chosen.</source>
        <translation>「%1」は、選択されたときに調べられなかったため、移動しませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it is not there any more.</source>
        <translation>「%1」は、もう存在しないため、移動しませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was not moved, because it has left the basket meanwhile.</source>
        <translation>「%1」は、その間にバスケットから取り出されたため、移動しませんでした。</translation>
    </message>
</context>
<context>
    <name>tessera::CompressWindowController</name>
    <message>
        <source>Creating &apos;%1&apos;</source>
        <translation>「%1」を作成中</translation>
    </message>
    <message>
        <source>Compression Canceled</source>
        <translation>圧縮をキャンセルしました</translation>
    </message>
    <message>
        <source>Compression Failed</source>
        <translation>圧縮に失敗しました</translation>
    </message>
    <message>
        <source>The archive is finished</source>
        <translation>アーカイブが完成しました</translation>
    </message>
    <message>
        <source>The archive cannot be made</source>
        <translation>アーカイブを作成できません</translation>
    </message>
    <message>
        <source>Archive Created</source>
        <translation>アーカイブを作成しました</translation>
    </message>
    <message>
        <source>Created &apos;%1&apos;</source>
        <translation>「%1」を作成しました</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>%1. The archive takes %2 less.</source>
        <translation>%1。アーカイブのほうが %2 小さくなりました。</translation>
    </message>
    <message>
        <source>%1. The archive saves nothing.</source>
        <translation>%1。アーカイブにしても容量は減りません。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Looking whether the original is still what was archived…</source>
        <translation>元の項目がアーカイブしたときのままかどうかを調べています…</translation>
    </message>
    <message>
        <source>The original may have changed while it was archived, or since. It stays.</source>
        <translation>元の項目は、アーカイブの作成中またはその後に変更された可能性があるため、そのまま残します。</translation>
    </message>
    <message>
        <source>The original is not there any more.</source>
        <translation>元の項目はもう存在しません。</translation>
    </message>
    <message>
        <source>The archive is not where it was made any more. The original stays.</source>
        <translation>アーカイブが作成した場所にありません。元の項目はそのまま残します。</translation>
    </message>
    <message>
        <source>The original is not on screen any more. Scan its folder to move it to the trash.</source>
        <translation>元の項目はもう画面にありません。ゴミ箱に移動するには、そのフォルダーをスキャンしてください。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>The disk is full. Nothing is left of the incomplete archive but an empty file in the trash.</source>
        <translation>ディスクがいっぱいです。未完成のアーカイブは、空のファイルがゴミ箱に残っているだけです。</translation>
    </message>
    <message>
        <source>The disk is full. Of the incomplete archive an empty file is left, which could not be moved to the trash: &apos;%1&apos;.</source>
        <translation>ディスクがいっぱいです。未完成のアーカイブの空のファイルが残っていますが、ゴミ箱に移動できませんでした: 「%1」。</translation>
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
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>tessera::GreetingView</name>
    <message>
        <source>Welcome to Tessera, which shows you what fills your disk.</source>
        <translation>Tessera へようこそ。ディスクを何が占めているかを表示します。</translation>
    </message>
    <message>
        <source>Select a disk or a folder, then press Scan.</source>
        <translation>ディスクまたはフォルダーを選択して、「スキャン」を押してください。</translation>
    </message>
    <message>
        <source>&amp;Got It</source>
        <translation>了解(&amp;G)</translation>
    </message>
    <message>
        <source>Closes this greeting for good</source>
        <translation>この案内を閉じ、今後は表示しません</translation>
    </message>
</context>
<context>
    <name>tessera::HistoryWindowController</name>
    <message>
        <source>&amp;Show</source>
        <translation>表示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>元の場所に戻す(&amp;P)</translation>
    </message>
    <message>
        <source>Looking where the items are…</source>
        <translation>項目の場所を調べています…</translation>
    </message>
    <message>
        <source>What you move to the trash is listed here, and can be put back.</source>
        <translation>ゴミ箱に移動したものがここに表示され、元の場所に戻せます。</translation>
    </message>
    <message>
        <source>One move</source>
        <translation>1 件の移動</translation>
    </message>
    <message numerus="yes">
        <source>%n moves</source>
        <translation>
            <numerusform>%n 件の移動</numerusform>
        </translation>
    </message>
    <message>
        <source>Select an item first.</source>
        <translation>先に項目を選択してください。</translation>
    </message>
    <message>
        <source>Only what is in the trash can be put back.</source>
        <translation>元の場所に戻せるのは、ゴミ箱にあるものだけです。</translation>
    </message>
    <message>
        <source>Puts the item back where it was.</source>
        <translation>項目を元の場所に戻します。</translation>
    </message>
    <message>
        <source>Shows the item in your file manager, where it is now.</source>
        <translation>項目を、現在ある場所でファイルマネージャーに表示します。</translation>
    </message>
    <message>
        <source>Nobody knows where the item is now, or whether it still exists.</source>
        <translation>項目が今どこにあるのか、まだ存在するのかはわかりません。</translation>
    </message>
</context>
<context>
    <name>tessera::HomeViewController</name>
    <message>
        <source>Scan what is selected</source>
        <translation>選択したものをスキャンします</translation>
    </message>
    <message>
        <source>Select a disk, a folder or a recent scan first.</source>
        <translation>先にディスク、フォルダー、または最近のスキャンを選択してください。</translation>
    </message>
    <message>
        <source>Empty the list of recent scans</source>
        <translation>最近のスキャンの一覧を空にします</translation>
    </message>
    <message>
        <source>There are no recent scans.</source>
        <translation>最近のスキャンはありません。</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Disks appear here when they are mounted. Reload in the View menu looks for them.</source>
        <translation>ディスクをマウントすると、ここに表示されます。「表示」メニューの「再読み込み」で探し直します。</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>A user&apos;s own folders appear here, and the administrator has none. Open Folder scans any other.</source>
        <translation>ここにはユーザー自身のフォルダーが表示されますが、管理者にはありません。ほかのフォルダーは「フォルダーを開く」でスキャンできます。</translation>
    </message>
    <message>
        <source>Your folders, such as Downloads and Music, appear here when there are any.</source>
        <translation>「ダウンロード」や「ミュージック」などのフォルダーがあると、ここに表示されます。</translation>
    </message>
</context>
<context>
    <name>tessera::IgnoreMenu</name>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>Leave Out of the Picture</source>
        <translation>図から除外</translation>
    </message>
    <message>
        <source>&amp;Free Space</source>
        <translation>空き容量(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Hidden Files</source>
        <translation>隠しファイル(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Restricted Files</source>
        <translation>アクセスできないファイル(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Show Everything</source>
        <translation>すべて表示(&amp;S)</translation>
    </message>
</context>
<context>
    <name>tessera::ItemOpening</name>
    <message>
        <source>It is not there any more. It was moved or deleted after the scan; a rescan of the folder around it shows what is there now.</source>
        <translation>もう存在しません。スキャン後に移動または削除されました。上のフォルダーを再スキャンすると、現在の内容が表示されます。</translation>
    </message>
    <message>
        <source>You are not allowed to look there.</source>
        <translation>その場所を見る権限がありません。</translation>
    </message>
    <message>
        <source>The disk that it is on does not answer.</source>
        <translation>これがあるディスクが応答しません。</translation>
    </message>
    <message>
        <source>The program did not start.</source>
        <translation>プログラムが起動しませんでした。</translation>
    </message>
    <message>
        <source>No terminal was found on this computer.</source>
        <translation>このコンピューターにターミナルが見つかりませんでした。</translation>
    </message>
    <message>
        <source>The desktop offers no file manager that shows properties, or it did not answer.</source>
        <translation>プロパティを表示できるファイルマネージャーがデスクトップ環境にないか、応答がありませんでした。</translation>
    </message>
    <message>
        <source>The desktop has no program for it. Open With lets you choose among all programs.</source>
        <translation>これを開くプログラムがデスクトップ環境にありません。「プログラムから開く」で、すべてのプログラムから選択できます。</translation>
    </message>
    <message>
        <source>No terminal can be opened in &apos;%1&apos;</source>
        <translation>「%1」でターミナルを開けません</translation>
    </message>
    <message>
        <source>The properties of &apos;%1&apos; cannot be shown</source>
        <translation>「%1」のプロパティを表示できません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened</source>
        <translation>「%1」を開けません</translation>
    </message>
    <message>
        <source>It is a program, and Tessera runs none. Start it in your file manager, or look into it with Open With.</source>
        <translation>これはプログラムです。Tessera はプログラムを実行しません。ファイルマネージャーで起動するか、「プログラムから開く」で中身をご覧ください。</translation>
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
        <translation>選択したフォルダー「%1」はシステムフォルダーの中にあります。ほかのアプリケーションが使用している可能性があります。このフォルダーをゴミ箱に移動してもよろしいですか?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is located inside a system folder. Other applications may be using this file. Are you sure you want to move this file to the trash?</source>
        <translation>選択したファイル「%1」はシステムフォルダーの中にあります。ほかのアプリケーションが使用している可能性があります。このファイルをゴミ箱に移動してもよろしいですか?</translation>
    </message>
    <message>
        <source>The selected folder &apos;%1&apos; is marked as hidden, are you sure you want to move this item to the trash?</source>
        <translation>選択したフォルダー「%1」は隠しフォルダーです。このフォルダーをゴミ箱に移動してもよろしいですか?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is marked as hidden, are you sure you want to move this item to the trash?</source>
        <translation>選択したファイル「%1」は隠しファイルです。このファイルをゴミ箱に移動してもよろしいですか?</translation>
    </message>
    <message>
        <source>The selected folder &apos;%1&apos; is located inside a hidden folder, are you sure you want to move this item to the trash?</source>
        <translation>選択したフォルダー「%1」は隠しフォルダーの中にあります。このフォルダーをゴミ箱に移動してもよろしいですか?</translation>
    </message>
    <message>
        <source>The selected file &apos;%1&apos; is located inside a hidden folder, are you sure you want to move this item to the trash?</source>
        <translation>選択したファイル「%1」は隠しフォルダーの中にあります。このファイルをゴミ箱に移動してもよろしいですか?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Move To Trash</source>
        <translation>ゴミ箱に移動</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Error moving to Trash</source>
        <translation>ゴミ箱への移動エラー</translation>
    </message>
    <message>
        <source>Error moving &apos;%1&apos; to the Trash for recycling.</source>
        <translation>「%1」をゴミ箱に移動できませんでした。</translation>
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
        <translation>ディスクの割合</translation>
    </message>
</context>
<context>
    <name>tessera::LedgerPanel</name>
    <message>
        <source>Count &amp;Again</source>
        <translation>集計し直す(&amp;A)</translation>
    </message>
    <message>
        <source>This is about whole disks. Scan a disk to see where its space is.</source>
        <translation>これはディスク全体に関するものです。容量の内訳を見るには、ディスクをスキャンしてください。</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>集計中…</translation>
    </message>
    <message>
        <source>The file system tells no sizes that could be added up.</source>
        <translation>合計できるサイズの情報をファイルシステムから得られません。</translation>
    </message>
    <message>
        <source>The disk gives no answer. It may be gone, or very busy.</source>
        <translation>ディスクが応答しません。取り外されたか、負荷が非常に高い可能性があります。</translation>
    </message>
    <message>
        <source>The disk that was scanned is not there any more. Scan again what is.</source>
        <translation>スキャンしたディスクはもうありません。今あるものをスキャンし直してください。</translation>
    </message>
    <message>
        <source>Show Which</source>
        <translation>一覧を表示</translation>
    </message>
    <message>
        <source>Size of the disk</source>
        <translation>ディスクのサイズ</translation>
    </message>
    <message>
        <source>All lines together: %1, exactly.</source>
        <translation>すべての行の合計は、正確に %1 です。</translation>
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
        <translation>%1 をスキャン中</translation>
    </message>
    <message>
        <source>Time Machine Detected</source>
        <extracomment>Translate “Backup Detected”: the system has words of its own.</extracomment>
        <translation>バックアップを検出しました</translation>
    </message>
    <message>
        <source>Tessera is unable to scan inside a Time Machine backup. To estimate the overall size of Time Machine, please scan the disk labeled &apos;%1&apos;.</source>
        <extracomment>Translate “a backup” and “the backups”: the system has words of its own.</extracomment>
        <translation>Tessera はバックアップの中をスキャンできません。バックアップ全体のサイズを見積もるには、ディスク「%1」をスキャンしてください。</translation>
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
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>tessera::PreviewView</name>
    <message>
        <source>Nothing is selected</source>
        <translation>何も選択されていません</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>画像 %1</translation>
    </message>
    <message>
        <source>Text of %1</source>
        <translation>%1 のテキスト</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
</context>
<context>
    <name>tessera::ProgramChooser</name>
    <message>
        <source>&amp;Show all programs</source>
        <translation>すべてのプログラムを表示(&amp;S)</translation>
    </message>
    <message>
        <source>Open With</source>
        <translation>プログラムから開く</translation>
    </message>
    <message>
        <source>Open &apos;%1&apos; with:</source>
        <translation>「%1」を開くプログラム:</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
</context>
<context>
    <name>tessera::PuttingBack</name>
    <message>
        <source>There is something new in the place of “%1”</source>
        <translation>「%1」の元の場所に新しいものがあります</translation>
    </message>
    <message>
        <source>It has the same name, in the folder “%1”, and is not replaced.</source>
        <translation>フォルダー「%1」に同じ名前のものがあり、置き換えられません。</translation>
    </message>
    <message>
        <source>Put back as “%1”</source>
        <translation>「%1」として戻す</translation>
    </message>
    <message>
        <source>The folder that “%1” was in is gone</source>
        <translation>「%1」が入っていたフォルダーがありません</translation>
    </message>
    <message>
        <source>Tessera can make the folder “%1” again and put the item back into it.</source>
        <translation>Tessera は、フォルダー「%1」を作成し直して、その中に項目を戻すことができます。</translation>
    </message>
    <message>
        <source>Make the folder again</source>
        <translation>フォルダーを作成し直す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>An item was not put back</source>
        <translation>項目を元の場所に戻せませんでした</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not put back</source>
        <translation>
            <numerusform>%n 個の項目を元の場所に戻せませんでした</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ほか %n 個</numerusform>
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
        <translation>クイックプレビュー</translation>
    </message>
    <message>
        <source>Quick Look: %1</source>
        <translation>クイックプレビュー: %1</translation>
    </message>
</context>
<context>
    <name>tessera::RecentsTableCell</name>
    <message>
        <source>Last Scan: %1</source>
        <translation>前回のスキャン: %1</translation>
    </message>
</context>
<context>
    <name>tessera::RecentsTableView</name>
    <message>
        <source>Disks and folders that you scan are listed here, to be scanned again.</source>
        <translation>スキャンしたディスクとフォルダーがここに表示され、もう一度スキャンできます。</translation>
    </message>
</context>
<context>
    <name>tessera::RescanIndicator</name>
    <message>
        <source>Rescan progress</source>
        <translation>再スキャンの進行状況</translation>
    </message>
</context>
<context>
    <name>tessera::ScanningViewController</name>
    <message>
        <source>%1 files/sec</source>
        <translation>%1 ファイル/秒</translation>
    </message>
    <message>
        <source>The scan is finished</source>
        <translation>スキャンが終わりました</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 は %2 を使用しています。</translation>
    </message>
</context>
<context>
    <name>tessera::ToolbarPathControl</name>
    <message>
        <source>Path of the folder in view</source>
        <translation>表示中のフォルダーのパス</translation>
    </message>
</context>
<context>
    <name>tessera::TrashHistoryModel</name>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>From</source>
        <translation>移動元</translation>
    </message>
    <message>
        <source>To</source>
        <translation>移動先</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>In the trash</source>
        <translation>ゴミ箱内</translation>
    </message>
    <message>
        <source>Not moved</source>
        <translation>未移動</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>戻し済み</translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation>存在しません</translation>
    </message>
    <message>
        <source>The item waits to be put back, until its disk answers and what was begun before is done.</source>
        <translation>項目は、ディスクが応答し、前に始めた処理が終わるのを待ってから、元の場所に戻されます。</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Waiting to be put back</source>
        <translation>戻し待ち</translation>
    </message>
    <message>
        <source>Put back to %1</source>
        <translation>%1 に戻しました</translation>
    </message>
</context>
<context>
    <name>tessera::TrashNote</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Open Trash</source>
        <translation>ゴミ箱を開く</translation>
    </message>
    <message>
        <source>“%1” (%2) is in the trash. Its space is free once the trash is emptied.</source>
        <translation>「%1」(%2) はゴミ箱にあります。ゴミ箱を空にすると、その容量が空きます。</translation>
    </message>
    <message>
        <source>“%1” is in the trash. Its space is free once the trash is emptied.</source>
        <translation>「%1」はゴミ箱にあります。ゴミ箱を空にすると、その容量が空きます。</translation>
    </message>
    <message numerus="yes">
        <source>%n items (%1) are in the trash. Their space is free once the trash is emptied.</source>
        <translation>
            <numerusform>%n 個の項目 (%1) はゴミ箱にあります。ゴミ箱を空にすると、その容量が空きます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are in the trash. Their space is free once the trash is emptied.</source>
        <translation>
            <numerusform>%n 個の項目はゴミ箱にあります。ゴミ箱を空にすると、その容量が空きます。</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is in the trash. It has other names: its space stays in use until all of them are gone.</source>
        <translation>「%1」はゴミ箱にあります。このファイルにはほかの名前があるため、それらがすべてなくなるまで、容量は使用されたままです。</translation>
    </message>
    <message>
        <source>“%1” is in the trash. Files in it have other names: their space stays in use until all of those are gone.</source>
        <translation>「%1」はゴミ箱にあります。ほかの名前を持つファイルを含むため、それらがすべてなくなるまで、容量は使用されたままです。</translation>
    </message>
    <message numerus="yes">
        <source>%n items are in the trash. Files among them have other names: their space stays in use until all of those are gone.</source>
        <translation>
            <numerusform>%n 個の項目はゴミ箱にあります。ほかの名前を持つファイルを含むため、それらがすべてなくなるまで、容量は使用されたままです。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TrashUndo</name>
    <message>
        <source>The list of moves to the trash cannot be written</source>
        <translation>ゴミ箱への移動履歴を書き込めません</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Undo Move to Trash of %1</source>
        <translation>%1のゴミ箱への移動を元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo Move to Trash of %1</source>
        <translation>%1のゴミ箱への移動をやり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Something is on its way to the trash or back. Wait until it has arrived.</source>
        <translation>ゴミ箱への移動または元の場所に戻す処理の途中です。終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>元に戻す操作はありません。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>やり直す操作はありません。</translation>
    </message>
    <message>
        <source>Error moving to Trash</source>
        <translation>ゴミ箱への移動エラー</translation>
    </message>
    <message numerus="yes">
        <source>%n items may not have been moved to the trash</source>
        <translation>
            <numerusform>%n 個の項目がゴミ箱に移動されていない可能性があります</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items were not moved to the trash</source>
        <translation>
            <numerusform>%n 個の項目をゴミ箱に移動できませんでした</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TreePanels</name>
    <message>
        <source>Where the Space Is</source>
        <translation>容量の内訳</translation>
    </message>
    <message>
        <source>Basket</source>
        <translation>バスケット</translation>
    </message>
    <message>
        <source>The basket is empty.</source>
        <translation>バスケットは空です。</translation>
    </message>
    <message>
        <source>The basket has one item.</source>
        <translation>バスケットに 1 個の項目があります。</translation>
    </message>
    <message numerus="yes">
        <source>The basket has %1 items.</source>
        <translation>
            <numerusform>バスケットに %1 個の項目があります。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessera::TreeStatusBar</name>
    <message>
        <source>Status line</source>
        <translation>ステータスバー</translation>
    </message>
</context>
<context>
    <name>tessera::TreeViewController</name>
    <message>
        <source>The trash cannot be opened</source>
        <translation>ゴミ箱を開けません</translation>
    </message>
    <message>
        <source>The desktop offers no program that shows it.</source>
        <translation>ゴミ箱を表示するプログラムがデスクトップ環境にありません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>One item of the basket is not there any more.</source>
        <translation>バスケットの項目のうち 1 個は、もう存在しません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 items of the basket are not there any more.</source>
        <translation>
            <numerusform>バスケットの項目のうち %1 個は、もう存在しません。</numerusform>
        </translation>
    </message>
    <message>
        <source>The path of &apos;%1&apos; is copied.</source>
        <translation>「%1」のパスをコピーしました。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; stays where it is</source>
        <translation>「%1」は今の場所に残ります</translation>
    </message>
    <message>
        <source>It is not in the picture any more. Rescan its folder to move it to the trash.</source>
        <translation>もう図にありません。ゴミ箱に移動するには、そのフォルダーを再スキャンしてください。</translation>
    </message>
</context>
<context>
    <name>tessera::VolumeCollectionView</name>
    <message>
        <source>Reserved by the file system: %1</source>
        <translation>ファイルシステムの予約: %1</translation>
    </message>
    <message>
        <source>Reserved for the administrator: %1</source>
        <translation>管理者用の予約: %1</translation>
    </message>
    <message>
        <source>Free for you: %1</source>
        <translation>使用できる空き容量: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>tessera::WillFreeView</name>
    <message>
        <source>Will free: %1, once the trash is emptied</source>
        <translation>空く容量: %1 (ゴミ箱を空にした後)</translation>
    </message>
</context>
</TS>
