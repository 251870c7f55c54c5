<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of a message box</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_REVIEWED</source>
        <extracomment>Never shown: &quot;no&quot;, and &quot;yes&quot; once speakers of this language have read every text</extracomment>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>NetInfoRecordUIPlugin</name>
    <message>
        <source>IDS_BTN_OK</source>
        <extracomment>Button that closes a dialog</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_COMBO_ALLAPN</source>
        <extracomment>Statistics dialog: entry of the profile list</extracomment>
        <translation>Alle Profile</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Vorletzter Monat</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Dieser Monat</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Profil (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Ende</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>Verbindungen löschen</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>Zeiten und Datenmengen misst dieser Computer; die Abrechnung Ihres Anbieters kann davon abweichen.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>Monat:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>Möchten Sie alle Verbindungen aus dem Verlauf löschen? Sie lassen sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>Möchten Sie die ausgewählten Verbindungen aus dem Verlauf löschen? Sie lassen sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>Letzte Verbindung</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Empfangen:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Verbunden für:</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Gesendet:</translation>
    </message>
</context>
<context>
    <name>common::ProblemText</name>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>Eine Netzwerkschnittstelle „%1“ kann es nicht geben: Ein Name hat höchstens 15 Bytes, ein Alternativname 127, und weder „/“ noch Leerraum.</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>Die Uhr des Systems zeigt eine Zeit, die der Verlauf nicht fassen kann. Verbindungen bekommen stattdessen %1 UTC; stellen Sie die Uhr.</translation>
    </message>
    <message>
        <source>&quot;/proc/sys/kernel/random/boot_id&quot; cannot be read, so connections are not recorded; mount /proc.</source>
        <translation>„/proc/sys/kernel/random/boot_id“ lässt sich nicht lesen, daher werden keine Verbindungen aufgezeichnet. Hängen Sie /proc ein.</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>Ein anderes Programm zeichnet die Verbindungen schon auf. Sie erscheinen hier, wenn sie beendet sind.</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>Ein anderes %1 zeichnet die Verbindungen schon auf (Prozess %2). Sie erscheinen hier, wenn sie beendet sind.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>Es werden keine Verbindungen aufgezeichnet, denn %1 lässt sich nicht schreiben (%2). Erlauben Sie sich dort das Schreiben.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>Es werden keine Verbindungen aufgezeichnet, denn %1 steht der Sperre im Weg (%2). Verschieben Sie es an einen anderen Ort.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>ein harter Verweis auf eine andere Datei</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>die Datei gehört jemand anderem</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>sie ist beschädigt oder stammt von einem anderen Programm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>„%1“ lässt sich nicht schreiben (%2), daher gehen Verbindungen verloren, die der Verlauf nicht aufnehmen konnte. Erlauben Sie sich, dort zu schreiben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>„%1“ enthält vielleicht Verbindungen, die im Verlauf fehlen, lässt sich aber nicht lesen (%2). Die Datei blieb, wie sie ist; verschieben Sie sie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>„%1“ und „%2“ sind im Weg, daher gehen Verbindungen verloren, die der Verlauf nicht aufnehmen konnte. Verschieben Sie beide.</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>Die Netzschnittstellen lassen sich nicht beobachten (%1), daher werden keine Verbindungen aufgezeichnet. Das wird alle zwei Sekunden von neuem versucht.</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>%1 % des Datentarifs „%2“ verbraucht</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>%1 von %2; der Zeitraum läuft bis %3.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>%1 von %2, %3 übrig bis %4.</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>CSV table</source>
        <translation>CSV-Tabelle</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JSON, an object a line</source>
        <translation>JSON, ein Objekt je Zeile</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>Systemprotokoll mit Meldungen von pppd</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>JSON mit den Bytes je Stunde</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>das Ende fehlt</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>der Anfang ist beschädigt</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>die erste Zeile muss die Kopfzeile %1 sein</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>die Zeile hat %1 statt %2 Spalten</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>der Text enthält ein NUL-Byte</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>der Text ist kein UTF-8</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>die Datei ist leer; die erste Zeile muss die Kopfzeile %1 sein</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1, Zeile %2, Spalte %3: %4. Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>die Zeile ist länger als %1 Bytes</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>die Zeile hat mehr als %1 Spalten</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>der Text ist länger als %1 Bytes</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>ein Anführungszeichen steht in einem Text, der nicht als Ganzes in Anführungszeichen steht</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>ein Wagenrücklauf steht in einem Text, der nicht in Anführungszeichen steht</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>zwischen dem schließenden Anführungszeichen und dem nächsten Komma steht etwas</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>das Anführungszeichen wird nie geschlossen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>„%1“ ist negativ</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>„%1“ ist mehr als %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>„%1“ ist kein Zeitpunkt wie 2024-05-31T18:30:00Z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>„%1“ liegt nicht zwischen %2 und %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>„%1“ liegt vor dem Beginn, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>„%1“ ist kein Tag wie 2024-05-31</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>Bytes des Textes: %1, erlaubt: höchstens %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>„%1“ ist weder „%2“ noch „%3“ noch leer</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>%1 lässt sich nicht bis zum Ende lesen: %2. Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>%1 lässt sich nicht lesen: %2. Prüfen Sie Namen und Rechte.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>die Standardeingabe</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>Feld „%1“: %2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>der Text enthält ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>keine volle Stunde in UTC</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>weder „true“ noch „false“</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>eine Stunde ist doppelt vorhanden</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>die Summe über die Stunden ist größer, als 64 Bit fassen</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>die Summe über die Stunden ergibt nicht die Bytes der Verbindung</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>keine Liste</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>eine Verbindung hat kein solches Feld</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>kein Objekt</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>länger als %1 Bytes</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1: %2. Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1, Verbindung %2: %3. Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>die Datei muss eine Liste von Objekten sein</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>tiefer verschachtelt als eine Verbindung</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1, Zeile %2: %3. Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>eine Verbindung endet nicht im Protokoll</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>zu einer Verbindungsdauer fehlen die Bytes</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>zu Bytes fehlt die Verbindungsdauer</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>der Zeitstempel ist nicht lesbar</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>eine Zahl oder Zeit liegt außerhalb des zulässigen Bereichs</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1 ist zu viel: zusammen lassen sich höchstens %2 Meldungen von pppd und Sprünge einer Uhr auf einmal lesen. Nichts wurde importiert; importieren Sie weniger oder kleinere Dateien.</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>Das Protokoll aus diesen Dateien</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1 enthält keine Zeile, in der pppd von einer Verbindung berichtet. Geben Sie das Systemprotokoll eines Rechners an, der sich damit einwählt.</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>Was gelesen wird, lässt sich im Ordner „%1“ nicht bis zum Speichern aufbewahren: %2. Nichts wurde importiert; schaffen Sie dort Platz, oder nennen Sie in TMPDIR einen anderen Ordner.</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>die Verbindung bestand noch</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>Der Verbindungsverlauf „%1“ hat den Tarif „%2“ schon. Nichts wurde geändert; wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>Der Verbindungsverlauf „%1“ hat den Tarif „%2“ nicht mehr, denn ein anderes Programm hat ihn entfernt. Legen Sie ihn neu an.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>Der Verbindungsverlauf „%1“ hat die Version %2, dieses Programm kennt aber nur Versionen bis %3. Er blieb, wie er ist; aktualisieren Sie dieses Programm und starten Sie es neu, um ihn zu verwenden.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Der Verbindungsverlauf „%1“ lässt sich nicht öffnen, weil sein Pfad kein UTF-8 ist. Benennen Sie die Datei oder den Ordner um, deren Name keines ist, oder nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>Der Verbindungsverlauf „%1“ wurde ersetzt, während er in Gebrauch war, und „%2“ enthält noch Einträge der früheren Datei. Schließen Sie alle Programme, die ihn verwenden, und legen Sie die frühere Datei zurück, oder verschieben Sie das Protokoll an einen anderen Ort.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>Der Verbindungsverlauf „%1“ wurde von außen geändert oder ersetzt, daher gehören die Änderungen in seinem Protokoll „%2“ vielleicht zu einer früheren Datei. Beide blieben, wie sie sind. Verschieben Sie das Protokoll, um den Verlauf so zu verwenden, wie er ist; oder erneuern Sie, falls die Datei nie ersetzt wurde, mit „touch“ die Zeit des Protokolls, um dessen Änderungen zu behalten.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>Der Verbindungsverlauf „%1“ war %2 Sekunden lang von einem anderen Programm gesperrt. Schließen Sie dieses Programm, oder versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>Der Verbindungsverlauf „%1“ lässt sich nicht schreiben, weil der Datenträger voll ist. Nichts wurde geändert; schaffen Sie Platz, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>Der Verbindungsverlauf „%1“ lässt sich nicht schreiben (%2). Nichts wurde geändert; prüfen Sie den Datenträger und die Rechte der Datei und ihres Ordners.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>Der Verbindungsverlauf „%1“ lässt sich nicht öffnen (%2). Prüfen Sie den Datenträger und die Rechte der Datei und ihres Ordners, oder nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>„%1“ ist kein Verbindungsverlauf, sondern eine Datenbank eines anderen Programms. Sie blieb, wie sie ist; verschieben Sie sie, oder nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>Der Verbindungsverlauf „%1“ ist beschädigt (%2). Er blieb, wie er ist; verschieben Sie ihn, oder setzen Sie eine Kopie an seine Stelle.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>Mit dem Verbindungsverlauf „%1“ ließ sich nicht arbeiten (der Speicher reicht nicht). Nichts wurde geändert; schließen Sie andere Programme, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>Mit dem Verbindungsverlauf „%1“ ließ sich nicht arbeiten (%2). Nichts wurde geändert; schließen Sie andere Programme, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>„%1“ ist kein Verbindungsverlauf, sondern eine andere Datei. Sie blieb, wie sie ist; verschieben Sie sie, oder nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>„%1“ ist kein Verbindungsverlauf, sondern ein Ordner. Er blieb, wie er ist; verschieben Sie ihn, oder nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>„%1“ ist kein Verbindungsverlauf, sondern ein Gerät. Es blieb, wie es ist; verschieben Sie es, oder nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>Der Verbindungsverlauf „%1“ ist leer, aber „%2“ enthält Einträge von ihm. Beide blieben, wie sie sind; setzen Sie eine Kopie an seine Stelle, oder verschieben Sie beide.</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>als Version ist %1 angegeben</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>„%2“ (%1) stammt nicht von diesem Programm</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>Ein Tarif im Verbindungsverlauf „%2“ stammt von einem anderen Programm und lässt sich nicht verwenden (%1). Entfernen Sie ihn, und legen Sie ihn neu an.</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>Die Erweiterung %1 konnte nicht starten. „refdialer --debug“ zeigt, wie weit sie kam.</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>Verbindungen werden von nun an im Hintergrund aufgezeichnet: Der Dienst connrecord.service ist eingerichtet und läuft.</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>Verbindungen werden nur aufgezeichnet, solange dieses Fenster offen ist: Der Dienst connrecord.service ist ausgeschaltet und beendet.</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>Ihre Sitzung hat kein systemd, das den Dienst starten könnte. Lassen Sie stattdessen Ihre Sitzung „connrecord record“ starten.</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>Der Dienst connrecord.service ist nicht installiert. Installieren Sie das Paket connrecord, das ihn mitbringt.</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>Der Dienst connrecord.service ist eingerichtet, ist aber nicht angelaufen. „systemctl --user status connrecord“ sagt, warum.</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>systemd hat abgelehnt: %1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>Eine Verbindung besteht, und dieses Fenster zeichnet sie auf.</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>&amp;Nicht mehr fragen</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>Im &amp;Hintergrund aufzeichnen</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>Aufzeichnung &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>Ein Dienst kann ohne das Fenster weiter aufzeichnen, jetzt und immer, wenn Sie angemeldet sind.</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>Den Verlauf in DATEI statt des eigenen zeigen und dort aufzeichnen.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>Die Verlaufserweiterung aus DATEI laden.</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>Diesmal in dieser Sprache erscheinen: %1.</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>Das Fehlersuchprotokoll auf die Standardfehlerausgabe schreiben.</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>Eine vorübergehende Kopie eines Beispielverlaufs zeigen; Ihre Daten bleiben unberührt.</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>Das Fenster ohne Bildschirm in das PNG-Bild DATEI zeichnen und beenden.</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>Zeigt den Verlauf der Mobilfunkverbindungen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>„%1“ ist keine Option.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>Die Option --%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Der Pfad „%1“ des Verlaufs ist nicht UTF-8; benennen Sie die Datei oder den Ordner um, dessen Name es nicht ist, oder nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>--demo und --store schließen einander aus: Das eine zeigt einen Beispielverlauf, das andere einen von Ihnen.</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>Es gibt keine Texte in der Sprache „%1“, sondern nur: %2.</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>„refdialer --help“ zeigt die Optionen.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe zeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version zeigen.</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>Auch die Verbindungen der Netzwerkschnittstelle mit dem Namen oder Alternativnamen NAME aufzeichnen, nicht nur die mobiler; mehrfach möglich.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>Verbindungen unter dem Profil (APN) NAME aufzeichnen, nicht unter dem Namen ihrer Schnittstelle.</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>Den Einwahldienst weglassen, ohne den der Verlauf nicht auf Verbindungen reagiert.</translation>
    </message>
</context>
<context>
    <name>refdialer::CoverageEdit</name>
    <message>
        <source>Profile (APN)</source>
        <translation>Profil (APN)</translation>
    </message>
    <message>
        <source>Number of the SIM, or its end</source>
        <translation>Nummer der SIM oder ihr Ende</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Alle Verbindungen</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>Ein Profil (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>Eine SIM</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>Verbindungen, für die der Tarif gilt</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Ohne Namen</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>Ohne SIM-Nummer</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>Nicht, solange Zeilen ausgeblendet sind: Auch diese würden gelöscht. Markieren Sie alle sichtbaren Zeilen (Strg+A) und löschen Sie diese, oder leeren Sie die Suche.</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>Der Beispielverlauf %1 lässt sich nicht nach %2 kopieren: %3. Installieren Sie refdialer neu, oder schaffen Sie dort Platz.</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>Dieses System hat in /etc/machine-id keine eigene Nummer: %1.</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>Exportierte Verbindungen: %1</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>Sie stehen in „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>„%1“ lässt sich nicht schreiben: %2. Prüfen Sie Datenträger, Ordner und Rechte.</translation>
    </message>
</context>
<context>
    <name>refdialer::FileChooser</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>Art der Datei:</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>Alle Dateien, am Inhalt erkannt (%1)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
</context>
<context>
    <name>refdialer::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren …</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>Ein&amp;stellungen …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>Es werden gerade Verbindungen importiert oder exportiert.</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>Schließt das Fenster jetzt, wird das abgebrochen: Importiert wird nichts, und die Datei, in die exportiert wird, bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>Fenster &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>&amp;Warten</translation>
    </message>
</context>
<context>
    <name>refdialer::FileProblem</name>
    <message>
        <source>&quot;%1&quot; is a folder, a pipe or a device. Choose a file.</source>
        <translation>„%1“ ist ein Ordner, eine Pipe oder ein Gerät. Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>„%1“ gehört zum Verlauf, den dieses Fenster zeigt. Wählen Sie eine andere Datei.</translation>
    </message>
</context>
<context>
    <name>refdialer::HelpMenu</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened here. &quot;man refdialer&quot; shows it in a terminal.</source>
        <translation>Das Handbuch %1 lässt sich hier nicht öffnen. „man refdialer“ zeigt es in einem Terminal.</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>Der Verlauf mobiler Breitbandverbindungen.</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>Lizenz: MIT. Sie dürfen dieses Programm benutzen, ändern und weitergeben; es gibt keine Gewährleistung.</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>Es benutzt Qt %1 und libmnl (LGPL), SQLite (gemeinfrei), SQLiteCpp und JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib-Lizenz) und UTF8-CPP (Boost-Lizenz).</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>Über refdialer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>Ü&amp;ber refdialer</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>Noch gibt es keine Verbindungen. Eine mobile Verbindung erscheint hier, sobald sie beendet ist, mit dem, was sie gesendet und empfangen hat. Was Sie von anderswo haben, lässt sich importieren.</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>Keine Verbindung passt zur Suche.</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>Alle Verbindungen sind kürzer als die kürzeste, die dieses Fenster nach den Einstellungen auflistet.</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren …</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>Im Hintergrund auf&amp;zeichnen</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>Alle &amp;Verbindungen zeigen</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>Nach einem Profil suchen</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>Ta&amp;ge:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Dieser Monat</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Dieses Jahr</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>Von … bis …</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>Tage, an denen Verbindungen begannen</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>bi&amp;s</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Markiert: %1 · gesendet: %2 · empfangen: %3 · verbunden: %4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Verbindungen: %1 · gesendet: %2 · empfangen: %3 · verbunden: %4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>Mehrere Dateien auf einmal können nur Protokolle sein. Wählen Sie jeweils eine Datei.</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

Es wurde gelesen als: %2. Ist es etwas anderes, wählen Sie die Art zusammen mit der Datei.</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>Neue Verbindungen: %1</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>Bereits im Verlauf: %1</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>Aus dem Protokoll ergänzt: %1</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1 zeigt keine Jahre; als Jahr der letzten Zeile wurde %2 angenommen. Ist das falsch, löschen Sie, was neu ist, und importieren Sie mit „connrecord import --year“.</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>Nicht benutzt, %1: %2; zuerst in Zeile %3 von „%4“: %5</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>Verbindungen werden gelöscht …</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>Verbindungsverlauf</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>Die Verlaufserweiterung gibt an, eine Statistik zu haben, lässt sich aber nicht danach fragen. Starten Sie refdialer mit einer anderen: --plugin DATEI.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Verbrauch</translation>
    </message>
</context>
<context>
    <name>refdialer::PastPeriodsDialog</name>
    <message>
        <source>Periods of a data plan</source>
        <translation>Zeiträume eines Datentarifs</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>Zeiträume, der jetzige zuerst</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verbraucht</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Übrig</translation>
    </message>
    <message>
        <source>&amp;Plan:</source>
        <translation>&amp;Tarif:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>Der Verlauf wird gelesen …</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>Noch kein Zeitraum dieses Tarifs hat begonnen.</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Jetzt</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>Jeden Monat</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>Alle so viele Tage</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>Einmal (Prepaid)</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>Art des Zeitraums</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>Ab &amp;Tag des Monats:</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>Ein Monat ohne diesen Tag beginnt mit seinem letzten.</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>Ta&amp;ge:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>&amp;Letzter Tag:</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>Er&amp;ster Tag eines Zeitraums:</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>Er&amp;ster Tag:</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>Zu&amp;rück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>Das Bild %1 lässt sich nicht schreiben: %2. Nennen Sie eine Datei in einem Ordner, in den Sie schreiben dürfen.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanDialog</name>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten …</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Entfernen …</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Frühere Zeiträume …</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>Datentarife</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Tarif</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>Es gibt noch keinen Datentarif. Mit einem zeigt das Fenster, wie viel davon übrig ist, und warnt, bevor er verbraucht ist.</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>Den Datentarif „%1“ entfernen?</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>Der Verlauf bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>Wie der Tarif steht</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>Im Heimatnetz</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Beim Roaming</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>Im Heimatnetz und beim Roaming</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>Gesendetes und Empfangenes</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Empfangenes</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendetes</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>Neuer Datentarif</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>Datentarif</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>&amp;Für:</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Wo:</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>Was &amp;zählt:</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>&amp;Datenmenge je Zeitraum:</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>Z&amp;eitraum:</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>Anderswo &amp;verbraucht in diesem Zeitraum:</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>Wa&amp;rnen bei Prozent:</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>Datenmenge je Zeitraum</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>Einheit der Datenmenge</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>Anderswo verbraucht in diesem Zeitraum</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>Einheit des anderswo Verbrauchten</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>Was der Anbieter zählt und der Verlauf nicht kennt, etwa vor seinem Beginn; weniger als 0 zieht ab.</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>Geben Sie dem Tarif einen Namen.</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>Geben Sie dem Tarif einen kürzeren Namen.</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>Ein anderer Tarif heißt schon so.</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>Schreiben Sie die Nummer der SIM oder ihr Ende.</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>Nennen Sie das Profil.</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>Keine SIM hat eine so lange Nummer.</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>Weniger als nichts hat kein Tarif.</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>Der letzte Tag liegt vor dem ersten.</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>Heute liegt in keinem Zeitraum dieses Tarifs.</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>Schreiben Sie Prozentzahlen von 1 bis %1, etwa 80, 100.</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>Ein anderes Programm hat diesen Tarif inzwischen geändert. OK speichert ihn, wie er hier steht; Abbrechen behält, was das andere daraus gemacht hat.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>Datentarife</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>Verbrauch des Datentarifs „%1“</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>Alle Datentarife …</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>&amp;Tarife</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>&amp;Datentarife …</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Frühere Zeiträume …</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanOffer</name>
    <message>
        <source>Set up a data plan…</source>
        <translation>Datentarif einrichten …</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>Nicht anbieten</translation>
    </message>
    <message>
        <source>See here how much of a data plan is left.</source>
        <translation>Hier steht, wie viel vom Datentarif übrig ist.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>%1 von %2 verbraucht, %3 darüber, heute ist der letzte Tag</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>%1 von %2 verbraucht, %3 darüber, noch %n Tag</numerusform>
            <numerusform>%1 von %2 verbraucht, %3 darüber, noch %n Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>%1 von %2 verbraucht, noch %3, heute ist der letzte Tag</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>%1 von %2 verbraucht, noch %n Tag, %3 am Tag</numerusform>
            <numerusform>%1 von %2 verbraucht, noch %n Tage, %3 am Tag</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>%1 verbraucht, heute ist der letzte Tag</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>%1 verbraucht, noch %n Tag</numerusform>
            <numerusform>%1 verbraucht, noch %n Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>endete am %1</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>beginnt am %1</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>Auf dem Weg zu %1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>%1 % erreicht</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>Verbraucht</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>Der Zeitraum geht von %1 bis %2.</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>Noch %1.</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>In diesem Tempo sind es am Ende %1.</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>Monatlich ab Tag %1</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>Jeden Tag ab %1</numerusform>
            <numerusform>Alle %n Tage ab %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>Einmal von %1 bis %2</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>Um %1 überschritten.</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>Die Erweiterung %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>Die Erweiterung %1 lässt sich nicht laden: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>Die Erweiterung %1 bietet die Schnittstellen %2 und %3 nicht.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>%1 ist keine Erweiterung für Qt %2: %3.</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>Die Erweiterung %1 ist für etwas anderes: Ihre Schnittstelle ist %2 und nicht %3.</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>Installieren Sie refdialer neu, oder nennen Sie mit --plugin die Datei einer passenden Erweiterung.</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>&amp;Benachrichtigen, wenn ein Datentarif eine seiner Warnungen erreicht</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>Auch diese Schni&amp;ttstellen aufzeichnen:</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>Mobile werden ohnehin aufgezeichnet. Die Aufzeichnung im Hintergrund übernimmt eine Änderung, sobald sie das nächste Mal startet.</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>Der Einwahldienst %1 lässt sich nicht laden: %2. Installieren Sie refdialer neu, oder lassen Sie den Dienst mit --no-dialup-service weg.</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>Nach jeder Verbindung eine &amp;Zusammenfassung zeigen</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>Das gilt nur, bis sich das Fenster schließt: Die Einstellungen lassen sich nicht in %1 schreiben. Schaffen Sie dort Platz, oder erlauben Sie sich das Schreiben.</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>Im &amp;Hintergrund aufzeichnen, auch wenn dieses Fenster geschlossen ist</translation>
    </message>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>Der Dienst zeichnet in Ihren eigenen Verlauf auf, nicht in den, den dieses Fenster zeigt.</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>Diese Texte haben Sprecher der Sprache noch nicht durchgesehen.</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>&amp;Kürzeste aufgelistete Verbindung:</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>Die des Systems (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>Das ist mehr, als sich zählen lässt.</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>Schreiben Sie die Zahl ohne Tausendertrennzeichen, etwa %1 oder %2.</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>Schreiben Sie eine Zahl, etwa %1 oder %2.</translation>
    </message>
</context>
<context>
    <name>refdialer::SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Beginn</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>&amp;Dauer</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>&amp;Gesendet</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>E&amp;mpfangen</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Aufsteigend</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>Ab&amp;steigend</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>Beispielverlauf. Änderungen sind fort, sobald das Fenster sich schließt.</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>Verlauf in %1</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>Noch keine Verbindungen aufgezeichnet in %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>connected since %1</source>
        <translation>verbunden seit %1</translation>
    </message>
    <message>
        <source>Sent: %1 (%2)</source>
        <translation>Gesendet: %1 (%2)</translation>
    </message>
    <message>
        <source>Received: %1 (%2)</source>
        <translation>Empfangen: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>Dafür reicht der Speicher nicht. Schließen Sie andere Programme, oder nehmen Sie kleinere Dateien.</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>Nichts wurde exportiert.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Wird abgebrochen</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferProgress</name>
    <message>
        <source>Reading &quot;%1&quot;: %2 of %3</source>
        <translation>„%1“ wird gelesen: %2 von %3</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>„%1“ wird gelesen: %2</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>Verbindungen kommen in den Verlauf: %1 von %2</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Der Verlauf wird gelesen</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>Verbindungen werden geschrieben: %1 von %2</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>An&amp;zeigen:</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>&amp;Balken:</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Nach Tagen</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>Nach Monaten</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>Te&amp;xt kopieren</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>B&amp;ild kopieren</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Verbrauch</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>Die Pfeiltasten gehen von Balken zu Balken.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>Es ist noch nichts aufgezeichnet. Was Ihre Verbindungen übertragen, erscheint hier.</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>In dieser Zeit wurde nichts gesendet oder empfangen.</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>Als Tabe&amp;lle</translation>
    </message>
</context>
<context>
    <name>refdialer::UsageText</name>
    <message>
        <source>Plan: %1</source>
        <translation>Tarif: %1</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Profil: %1</translation>
    </message>
    <message>
        <source>SIM ending in %1</source>
        <translation>SIM mit den letzten Ziffern %1</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Alle Verbindungen</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>Im Heimatnetz empfangen</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>Im Heimatnetz gesendet</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>Im Roaming empfangen</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>Im Roaming gesendet</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: nichts</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1: %2 empfangen, %3 gesendet</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1: im Heimatnetz %2 und im Roaming %3 empfangen, im Heimatnetz %4 und im Roaming %5 gesendet</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Zusammen</translation>
    </message>
</context>
<context>
    <name>refdialer::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>S&amp;tatistik …</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>Die benutzte Verlaufserweiterung hat keine Statistik. Starten Sie refdialer mit einer, die sie hat: --plugin DATEI.</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>Verb&amp;rauch</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>S&amp;uchen</translation>
    </message>
</context>
</TS>
