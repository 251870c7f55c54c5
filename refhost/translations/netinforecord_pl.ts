<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>Polski</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_REVIEWED</source>
        <extracomment>Never shown: &quot;no&quot;, and &quot;yes&quot; once speakers of this language have read every text</extracomment>
        <translation>no</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of a message box</extracomment>
        <translation>OK</translation>
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
        <translation>Wszystkie profile</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Przedostatni miesiąc</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Bieżący miesiąc</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>Statystyki</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Profil (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Pobrano</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Początek</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>Usuń wszystko</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>Usuwanie połączeń</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>Czas i ilość danych mierzy ten komputer; rachunek operatora może się różnić.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>Miesiąc:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>Czy usunąć wszystkie połączenia z historii? Nie będzie można ich przywrócić.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>Czy usunąć wybrane połączenia z historii? Nie będzie można ich przywrócić.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>Ostatnie połączenie</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>Statystyki</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Pobrano:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Czas połączenia:</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Wysłano:</translation>
    </message>
</context>
<context>
    <name>common::ProblemText</name>
    <message>
        <source>&quot;/proc/sys/kernel/random/boot_id&quot; cannot be read, so connections are not recorded; mount /proc.</source>
        <translation>Nie można odczytać „/proc/sys/kernel/random/boot_id”, więc połączenia nie są zapisywane. Zamontuj /proc.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>Połączenia nie są zapisywane, ponieważ nie można zapisać %1 (%2). Nadaj sobie prawo zapisu w tym miejscu.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>Połączenia nie są zapisywane, ponieważ %1 zajmuje miejsce blokady (%2). Przenieś to gdzie indziej.</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>Nie można obserwować interfejsów sieciowych (%1), więc połączenia nie są zapisywane. Próba jest ponawiana co dwie sekundy.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>„%1” może zawierać połączenia, których nie ma w historii, ale nie można go odczytać (%2). Plik pozostawiono bez zmian; przenieś go gdzie indziej.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>Nie można zapisać „%1” (%2), więc połączenia, których historia nie mogła przyjąć, są tracone. Nadaj sobie prawo zapisu w tym miejscu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>„%1” i „%2” są na drodze, więc połączenia, których historia nie mogła przyjąć, są tracone. Przenieś je gdzie indziej.</translation>
    </message>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>Interfejs sieciowy „%1” nie może istnieć: nazwa ma najwyżej 15 bajtów, nazwa alternatywna 127, i nie zawiera „/” ani białych znaków.</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>Połączenia zapisuje już inny program. Pojawią się tutaj po zakończeniu.</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>Połączenia zapisuje już inny %1 (proces %2). Pojawią się tutaj po zakończeniu.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>to dowiązanie twarde do innego pliku</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>należy do innego użytkownika</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>uszkodzony lub należy do innego programu</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>Zegar systemowy pokazuje czas, którego historia nie może zapisać, więc połączenia otrzymują %1 UTC. Ustaw zegar.</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>Wykorzystano %1% planu danych „%2”</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>%1 z %2; okres trwa do %3.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>%1 z %2, pozostało %3 do %4.</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>CSV table</source>
        <translation>Tabela CSV</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JSON, an object a line</source>
        <translation>JSON, jeden obiekt w wierszu</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>Dziennik systemowy z komunikatami pppd</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>JSON z bajtami na godzinę</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>brakuje końca</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>początek jest uszkodzony</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>pierwszy wiersz musi być nagłówkiem %1</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>wiersz ma %1 zamiast %2 kolumn</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>tekst zawiera bajt NUL</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>tekst nie jest w UTF-8</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>plik jest pusty; pierwszy wiersz musi być nagłówkiem %1</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1, wiersz %2, kolumna %3: %4. Nic nie zaimportowano.</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>wiersz jest dłuższy niż %1 bajtów</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>kolumn w wierszu jest więcej niż %1</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>tekst jest dłuższy niż %1 bajtów</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>znak cudzysłowu znajduje się w tekście, który nie jest w całości ujęty w cudzysłów</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>znak powrotu karetki znajduje się w tekście, który nie jest ujęty w cudzysłów</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>między zamykającym znakiem cudzysłowu a następnym przecinkiem coś się znajduje</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>cudzysłów nigdzie nie jest zamknięty</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>„%1” nie jest liczbą całkowitą</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>„%1” jest liczbą ujemną</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>„%1” to więcej niż %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>„%1” nie jest czasem takim jak 2024-05-31T18:30:00Z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>„%1” nie leży między %2 a %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>„%1” jest przed początkiem, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>„%1” nie jest dniem takim jak 2024-05-31</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>liczba bajtów tekstu: %1, najwyżej: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>„%1” to ani „%2”, ani „%3”, ani pusty tekst</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>Nie można odczytać %1 do końca: %2. Nic nie zaimportowano.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>Nie można odczytać %1: %2. Sprawdź nazwę i uprawnienia.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standardowe wejście</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1”</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>pole „%1”: %2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>to nie liczba</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>to nie tekst</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>tekst zawiera znak NUL</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>to nie pełna godzina UTC</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>to ani „true”, ani „false”</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>jedna z godzin występuje dwa razy</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>suma bajtów z poszczególnych godzin nie mieści się w 64 bitach</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>suma bajtów z poszczególnych godzin nie zgadza się z bajtami połączenia</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>to nie tablica</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>połączenie nie ma takiego pola</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>to nie obiekt</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>więcej niż %1 bajtów</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1: %2. Nic nie zaimportowano.</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1, połączenie %2: %3. Nic nie zaimportowano.</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>plik musi być tablicą obiektów</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>zagnieżdżenie głębsze niż w połączeniu</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1, wiersz %2: %3. Nic nie zaimportowano.</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>połączenie nie kończy się w dzienniku</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>do czasu połączenia brakuje liczby bajtów</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>do liczby bajtów brakuje czasu połączenia</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>nie można odczytać znacznika czasu</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>liczba lub czas jest poza zakresem</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1 to za dużo: łącznie można odczytać naraz najwyżej %2 komunikatów pppd i skoków zegara. Nic nie zaimportowano; zaimportuj mniej plików lub mniejsze.</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>Dziennik z tych plików</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1 nie zawiera wiersza, w którym pppd mówi o połączeniu. Wskaż dziennik systemowy komputera, który łączy się za jego pomocą.</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>Odczytanych danych nie można przechować w folderze „%1” do czasu zapisania: %2. Nic nie zaimportowano; zwolnij tam miejsce albo wskaż inny folder w TMPDIR.</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>połączenie jeszcze trwało</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>Historia połączeń „%1” ma już plan „%2”. Nic nie zmieniono; wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>Historia połączeń „%1” nie ma już planu „%2”, ponieważ usunął go inny program. Utwórz go ponownie.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>Historia połączeń „%1” ma wersję %2, a ten program zna tylko wersje do %3. Plik pozostawiono bez zmian; aby go używać, zaktualizuj ten program i uruchom go ponownie.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Nie można otworzyć historii połączeń „%1”, ponieważ jej ścieżka nie jest w UTF-8. Zmień nazwę pliku lub folderu, która nie jest, albo wskaż inny plik.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>Historię połączeń „%1” podmieniono w trakcie używania, a „%2” nadal zawiera wpisy poprzedniego pliku. Zamknij wszystkie programy, które jej używają, i przywróć poprzedni plik albo przenieś dziennik gdzie indziej.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>Historię połączeń „%1” zmieniono z zewnątrz lub podmieniono, więc zmiany w jej dzienniku „%2” mogą pochodzić z poprzedniego pliku. Oba pliki pozostawiono bez zmian. Aby używać historii takiej, jaka jest, przenieś dziennik gdzie indziej; jeśli pliku nigdy nie podmieniono, odśwież datę dziennika poleceniem „touch”, aby zachować jego zmiany.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>Historia połączeń „%1” była przez %2 sekund zablokowana przez inny program. Zamknij ten program albo spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>Nie można zapisać historii połączeń „%1”, ponieważ dysk jest pełny. Nic nie zmieniono; zwolnij miejsce i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>Nie można zapisać historii połączeń „%1” (%2). Nic nie zmieniono; sprawdź dysk oraz uprawnienia pliku i jego folderu.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>Nie można otworzyć historii połączeń „%1” (%2). Sprawdź dysk oraz uprawnienia pliku i jego folderu albo wskaż inny plik.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>„%1” to nie historia połączeń, lecz baza danych innego programu. Pozostawiono ją bez zmian; przenieś ją gdzie indziej albo wskaż inny plik.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>Historia połączeń „%1” jest uszkodzona (%2). Pozostawiono ją bez zmian; przenieś ją gdzie indziej albo umieść w jej miejscu kopię.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>Nie udało się pracować z historią połączeń „%1” (za mało pamięci). Nic nie zmieniono; zamknij inne programy i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>Nie udało się pracować z historią połączeń „%1” (%2). Nic nie zmieniono; zamknij inne programy i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>„%1” to nie historia połączeń, lecz inny plik. Pozostawiono go bez zmian; przenieś go gdzie indziej albo wskaż inny plik.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>„%1” to nie historia połączeń, lecz folder. Pozostawiono go bez zmian; przenieś go gdzie indziej albo wskaż inny plik.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>„%1” to nie historia połączeń, lecz urządzenie. Pozostawiono je bez zmian; przenieś je gdzie indziej albo wskaż inny plik.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>Historia połączeń „%1” jest pusta, ale „%2” zawiera jej wpisy. Oba pliki pozostawiono bez zmian; umieść w jej miejscu kopię albo przenieś oba gdzie indziej.</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>podana wersja to %1</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>„%2” (%1) nie pochodzi z tego programu</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>Planu z historii połączeń „%2”, zapisanego przez inny program, nie można użyć (%1). Usuń go i utwórz ponownie.</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>Wtyczka %1 nie mogła się uruchomić. „refdialer --debug” pokazuje, jak daleko doszła.</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>Od teraz połączenia są zapisywane w tle: usługa connrecord.service jest włączona i działa.</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>Połączenia są zapisywane tylko, gdy to okno jest otwarte: usługa connrecord.service jest wyłączona i została zatrzymana.</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>W tej sesji nie ma systemd, który mógłby uruchomić usługę. Zamiast tego niech sesja uruchamia „connrecord record”.</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>Usługa connrecord.service nie jest zainstalowana. Zainstaluj pakiet connrecord, który ją zawiera.</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>Usługa connrecord.service jest włączona, ale nie uruchomiła się. „systemctl --user status connrecord” podaje przyczynę.</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>systemd odmówił: %1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>Trwa połączenie, a to okno je zapisuje.</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>&amp;Nie pytaj ponownie</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>Zapisuj w &amp;tle</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>&amp;Zatrzymaj zapisywanie</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>Usługa może dalej zapisywać bez okna, teraz i zawsze, gdy użytkownik jest zalogowany.</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Pokazuje tę pomoc.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Pokazuje wersję.</translation>
    </message>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>Używa historii z PLIKU zamiast własnej, do pokazywania i zapisywania.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>PLIK</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>Wczytuje wtyczkę historii z PLIKU.</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>Jednorazowo używa tego języka: %1.</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>Wypisuje dziennik debugowania na standardowe wyjście błędów.</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>Pokazuje tymczasową kopię przykładowej historii; własne dane pozostają nietknięte.</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>Zapisuje także połączenia interfejsu sieciowego NAZWA (lub nazwa alternatywna), nie tylko mobilnych; można podać wielokrotnie.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAZWA</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>Zapisuje połączenia pod profilem (APN) NAZWA, a nie pod nazwą ich interfejsu.</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>Pomija usługę telefoniczną, bez której historia nie reaguje na połączenia.</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>Rysuje okno bez ekranu do obrazu PNG o nazwie PLIK i kończy działanie.</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>Pokazuje historię mobilnych połączeń szerokopasmowych.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>„%1” nie jest opcją.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>Opcja --%1 wymaga wartości.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Ścieżka „%1” historii nie jest w UTF-8. Zmień nazwę pliku lub katalogu, który jej nie ma w UTF-8, albo podaj inny plik.</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>--demo i --store wykluczają się: pierwsza pokazuje przykładową historię, druga jedną z własnych.</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>Nie ma tekstów w języku „%1”; dostępne są: %2.</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>„refdialer --help” pokazuje opcje.</translation>
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
        <translation>Numer karty SIM lub jego końcówka</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Wszystkie połączenia</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>Jeden profil (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>Jedna karta SIM</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>Połączenia, których dotyczy plan</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Bez nazwy</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>Bez numeru karty SIM</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>Nie, dopóki są ukryte wiersze: one też zostałyby usunięte. Zaznacz wszystkie widoczne wiersze (Ctrl+A) i usuń je albo wyczyść wyszukiwanie.</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>Nie można skopiować przykładowej historii %1 do %2: %3. Zainstaluj refdialer ponownie lub zwolnij tam miejsce.</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>Ten system nie ma własnego numeru w /etc/machine-id: %1.</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>Wyeksportowane połączenia: %1</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>Są w „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>Nie można zapisać „%1”: %2. Sprawdź dysk, folder i jego uprawnienia.</translation>
    </message>
</context>
<context>
    <name>refdialer::FileChooser</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nazwa pliku:</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>Rodzaj pliku:</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>Wszystkie pliki, rozpoznawane po zawartości (%1)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Eksportuj</translation>
    </message>
</context>
<context>
    <name>refdialer::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importuj…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Eksportuj…</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Ustawienia…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>Trwa import lub eksport połączeń.</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>Jeśli okno zamknie się teraz, zostanie to anulowane: nic nie zostanie zaimportowane, a plik docelowy pozostanie bez zmian.</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>&amp;Zamknij okno</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>&amp;Czekaj</translation>
    </message>
</context>
<context>
    <name>refdialer::FileProblem</name>
    <message>
        <source>&quot;%1&quot; is a folder, a pipe or a device. Choose a file.</source>
        <translation>„%1” to folder, potok lub urządzenie. Wybierz plik.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>„%1” należy do historii, którą pokazuje to okno. Wybierz inny plik.</translation>
    </message>
</context>
<context>
    <name>refdialer::HelpMenu</name>
    <message>
        <source>Manual</source>
        <translation>Podręcznik</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened here. &quot;man refdialer&quot; shows it in a terminal.</source>
        <translation>Nie można tutaj otworzyć podręcznika %1. „man refdialer” pokazuje go w terminalu.</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>Historia mobilnych połączeń szerokopasmowych.</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>Licencja: MIT. Wolno używać, zmieniać i przekazywać ten program; nie ma gwarancji.</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>Używa Qt %1 i libmnl (LGPL), SQLite (domena publiczna), SQLiteCpp i JSON for Modern C++ (MIT), libarchive (BSD), zlib (licencja zlib) oraz UTF8-CPP (licencja Boost).</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>O programie refdialer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Podręcznik</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>&amp;O programie refdialer</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>O &amp;Qt</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>Połączenia</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>Nie ma jeszcze połączeń. Połączenie mobilne pojawi się tutaj po zakończeniu, z ilością wysłanych i pobranych danych. Dane z innych źródeł można zaimportować.</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>Żadne połączenie nie pasuje do wyszukiwania.</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>Wszystkie połączenia są krótsze od najkrótszego, jakie to okno wyświetla zgodnie z ustawieniami.</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importuj…</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>Zapisuj w &amp;tle</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>Pokaż wszy&amp;stkie połączenia</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>Szukaj profilu</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>&amp;Dni:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Bieżący miesiąc</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Bieżący rok</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>Od … do …</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>Dni, w których zaczęły się połączenia</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Pierwszy dzień</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>d&amp;o</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Ostatni dzień</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Zaznaczone: %1 · wysłano: %2 · pobrano: %3 · połączono: %4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Połączenia: %1 · wysłano: %2 · pobrano: %3 · połączono: %4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>Z kilku plików naraz można importować tylko dzienniki. Wybierz po jednym pliku.</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

Odczytano to jako: %2. Jeśli to coś innego, wybierz rodzaj razem z plikiem.</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>Dodane połączenia: %1</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>Już w historii: %1</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>Uzupełnione według dziennika: %1</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1 nie podaje lat; przyjęto, że ostatni wiersz jest z roku %2. Jeśli to błąd, usuń to, co dodano, i zaimportuj za pomocą „connrecord import --year”.</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>Nie użyto, %1: %2; najpierw w wierszu %3 pliku „%4”: %5</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>Usuwanie połączeń…</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>Historia połączeń</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>Wtyczka historii podaje, że ma statystyki, ale nie można jej o nie zapytać. Uruchom refdialer z inną: --plugin PLIK.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Zużycie</translation>
    </message>
</context>
<context>
    <name>refdialer::PastPeriodsDialog</name>
    <message>
        <source>Periods of a data plan</source>
        <translation>Okresy planu danych</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>Okresy, bieżący jako pierwszy</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Pierwszy dzień</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Ostatni dzień</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Użyto</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Pozostało</translation>
    </message>
    <message>
        <source>&amp;Plan:</source>
        <translation>&amp;Plan:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>Odczytywanie historii…</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>Żaden okres tego planu jeszcze się nie zaczął.</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Bieżący</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>Co miesiąc</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>Co określoną liczbę dni</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>Jednorazowo (na kartę)</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>Rodzaj okresu</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>Od dnia miesią&amp;ca:</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>Miesiąc bez tego dnia zaczyna się od swojego ostatniego.</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>&amp;Co ile dni:</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>Pi&amp;erwszy dzień okresu:</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>Pi&amp;erwszy dzień:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>O&amp;statni dzień:</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>Popr&amp;zedni</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Nas&amp;tępny</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>Nie można zapisać obrazu %1: %2. Podaj plik w katalogu, w którym wolno zapisywać.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanDialog</name>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Edytuj…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Usuń…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Poprzednie okresy…</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>Plany danych</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Ilość</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Okres</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Dodaj…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>Nie ma jeszcze planu danych. Dzięki niemu okno pokaże, ile jeszcze zostało, i ostrzeże przed wyczerpaniem.</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>Usunąć plan danych „%1”?</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>Historia pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>Stan planu</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>Poza roamingiem</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>W roamingu</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>Poza roamingiem i w roamingu</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>Wysłane i pobrane</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Pobrane</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Wysłane</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>bez limitu</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nic</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>Nowy plan danych</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>Plan danych</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nazwa:</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>&amp;Dla:</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Gdzie:</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>Co się &amp;liczy:</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>&amp;Ilość na okres:</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>&amp;Okres:</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>&amp;Użyto gdzie indziej w tym okresie:</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>Os&amp;trzegaj przy (%):</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>Ilość na okres</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>Jednostka ilości</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>Użyto gdzie indziej w tym okresie</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>Jednostka tego, co użyto gdzie indziej</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>To, co liczy operator, a czego nie zna historia, na przykład sprzed jej początku; mniej niż 0 odejmuje.</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nigdy</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>Nadaj planowi nazwę.</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>Nadaj planowi krótszą nazwę.</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>Inny plan ma już tę nazwę.</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>Wpisz numer karty SIM lub jego końcówkę.</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>Podaj profil.</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>Żadna karta SIM nie ma tak długiego numeru.</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>Plan nie może być mniejszy niż nic.</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>Ostatni dzień jest przed pierwszym.</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>Dzisiejszy dzień nie należy do żadnego okresu tego planu.</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>Wpisz wartości procentowe od 1 do %1, na przykład 80, 100.</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>Inny program w międzyczasie zmienił ten plan. OK zapisuje go tak, jak jest tutaj, Anuluj zachowuje zmiany innego programu.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>Plany danych</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>Zużycie planu danych „%1”</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>Wszystkie plany danych…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>Pla&amp;ny</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>&amp;Plany danych…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>P&amp;oprzednie okresy…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanOffer</name>
    <message>
        <source>See here how much of a data plan is left.</source>
        <translation>Tutaj widać, ile zostało z planu danych.</translation>
    </message>
    <message>
        <source>Set up a data plan…</source>
        <translation>Skonfiguruj plan danych…</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>Nie proponuj</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>Użyto %1 z %2, przekroczono o %3, dziś ostatni dzień</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>Użyto %1 z %2, przekroczono o %3, pozostał %n dzień</numerusform>
            <numerusform>Użyto %1 z %2, przekroczono o %3, pozostały %n dni</numerusform>
            <numerusform>Użyto %1 z %2, przekroczono o %3, pozostało %n dni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>Użyto %1 z %2, pozostało %3, dziś ostatni dzień</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>Użyto %1 z %2, pozostał %n dzień, %3 dziennie</numerusform>
            <numerusform>Użyto %1 z %2, pozostały %n dni, %3 dziennie</numerusform>
            <numerusform>Użyto %1 z %2, pozostało %n dni, %3 dziennie</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>Użyto %1, dziś ostatni dzień</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>Użyto %1, pozostał %n dzień</numerusform>
            <numerusform>Użyto %1, pozostały %n dni</numerusform>
            <numerusform>Użyto %1, pozostało %n dni</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>zakończył się %1</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>rozpoczyna się %1</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>Zmierza do %1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>Osiągnięto %1%</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>Wyczerpany</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>Okres trwa od %1 do %2.</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>Pozostało %1.</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>W tym tempie na koniec będzie %1.</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>Co miesiąc od dnia %1</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>Co %n dzień od %1</numerusform>
            <numerusform>Co %n dni od %1</numerusform>
            <numerusform>Co %n dni od %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>Jednorazowo od %1 do %2</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>Przekroczono o %1.</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>Nie ma wtyczki %1.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>Nie można wczytać wtyczki %1: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>Wtyczka %1 nie oferuje interfejsów %2 i %3.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>%1 nie jest wtyczką dla Qt %2: %3.</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>Wtyczka %1 służy do czegoś innego: jej interfejs to %2, a nie %3.</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>Zainstaluj refdialer ponownie albo podaj plik odpowiedniej wtyczki opcją --plugin.</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>Po&amp;wiadamiaj, gdy plan danych osiągnie jedno z ostrzeżeń</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>Zapisuj także te &amp;interfejsy:</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>Mobilne są zapisywane zawsze. Zapisywanie w tle uwzględni zmianę przy następnym uruchomieniu.</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>Nie można wczytać usługi telefonicznej %1: %2. Zainstaluj refdialer ponownie albo pomiń usługę opcją --no-dialup-service.</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>Usługa zapisuje do własnej historii użytkownika, a nie do tej, którą pokazuje to okno.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>&amp;Pokazuj podsumowanie po każdym połączeniu</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>Zapisuj w &amp;tle, także gdy to okno jest zamknięte</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Język:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>To obowiązuje tylko do zamknięcia okna: nie można zapisać ustawień w %1. Zwolnij tam miejsce albo nadaj sobie prawo zapisu.</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>Tych tekstów nie sprawdziły jeszcze osoby mówiące tym językiem.</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>Najkrótsze wyświetlane p&amp;ołączenie:</translation>
    </message>
    <message>
        <source> s</source>
        <translation>&#xa0;s</translation>
    </message>
    <message>
        <source>any</source>
        <translation>dowolne</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>Język systemu (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>To więcej, niż można policzyć.</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>Wpisz liczbę bez separatorów tysięcy, na przykład %1 lub %2.</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>Wpisz liczbę, na przykład %1 lub %2.</translation>
    </message>
</context>
<context>
    <name>refdialer::SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Sortuj według</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Początek</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Koniec</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>P&amp;rofil</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>&amp;Czas trwania</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>&amp;Wysłano</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>Po&amp;brano</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>Ros&amp;nąco</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>&amp;Malejąco</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Not connected</source>
        <translation>Brak połączenia</translation>
    </message>
    <message>
        <source>connected since %1</source>
        <translation>połączono od %1</translation>
    </message>
    <message>
        <source>Sent: %1 (%2)</source>
        <translation>Wysłano: %1 (%2)</translation>
    </message>
    <message>
        <source>Received: %1 (%2)</source>
        <translation>Pobrano: %1 (%2)</translation>
    </message>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>Przykładowa historia. Zmiany znikną po zamknięciu okna.</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>Historia w %1</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>Nie ma jeszcze zapisanych połączeń w %1</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>Brak pamięci na tę czynność. Zamknij inne programy lub weź mniejsze pliki.</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nic nie zaimportowano.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>Nic nie wyeksportowano.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Anulowanie</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferProgress</name>
    <message>
        <source>Reading &quot;%1&quot;: %2 of %3</source>
        <translation>Odczyt „%1”: %2 z %3</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>Odczyt „%1”: %2</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>Dodawanie połączeń do historii: %1 z %2</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Odczyt historii</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>Zapis połączeń: %1 z %2</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Pok&amp;aż:</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>&amp;Słupki:</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Według dni</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>Według miesięcy</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>Jako ta&amp;bela</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>Kopiuj te&amp;kst</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>Kopiuj ob&amp;raz</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Zużycie</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>Klawisze strzałek przechodzą od słupka do słupka.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>Nic jeszcze nie zapisano. Tutaj pojawi się to, co przesyłają połączenia.</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>W tym czasie nic nie wysłano ani nie pobrano.</translation>
    </message>
</context>
<context>
    <name>refdialer::UsageText</name>
    <message>
        <source>Plan: %1</source>
        <translation>Plan: %1</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Profil: %1</translation>
    </message>
    <message>
        <source>SIM ending in %1</source>
        <translation>SIM z końcówką %1</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Wszystkie połączenia</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>Pobrano poza roamingiem</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>Wysłano poza roamingiem</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>Pobrano w roamingu</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>Wysłano w roamingu</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>Od %1 do %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: nic</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1: pobrano %2, wysłano %3</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1: pobrano %2 poza roamingiem i %3 w roamingu, wysłano %4 poza roamingiem i %5 w roamingu</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Miesiąc</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Razem</translation>
    </message>
</context>
<context>
    <name>refdialer::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historia</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Odśwież</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>S&amp;tatystyki…</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>Używana wtyczka historii nie ma statystyk. Uruchom refdialer z wtyczką, która je ma: --plugin PLIK.</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>&amp;Zużycie</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Z&amp;najdź</translation>
    </message>
</context>
</TS>
