<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>Русский</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_REVIEWED</source>
        <extracomment>Never shown: &quot;no&quot;, and &quot;yes&quot; once speakers of this language have read every text</extracomment>
        <translation>no</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of a message box</extracomment>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>NetInfoRecordUIPlugin</name>
    <message>
        <source>IDS_BTN_OK</source>
        <extracomment>Button that closes a dialog</extracomment>
        <translation>ОК</translation>
    </message>
    <message>
        <source>IDS_COMBO_ALLAPN</source>
        <extracomment>Statistics dialog: entry of the profile list</extracomment>
        <translation>Все профили</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Позапрошлый месяц</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Этот месяц</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Профиль APN</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Получено</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Конец</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Начало</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>Удалить все</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>Удаление соединений</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>Профиль:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>Время и объём данных измеряет этот компьютер; счёт оператора может отличаться.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>Месяц:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>Удалить из истории все соединения? Восстановить их будет невозможно.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>Удалить из истории выбранные соединения? Восстановить их будет невозможно.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>Последнее соединение</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Получено:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Длительность:</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Отправлено:</translation>
    </message>
</context>
<context>
    <name>common::ProblemText</name>
    <message>
        <source>&quot;/proc/sys/kernel/random/boot_id&quot; cannot be read, so connections are not recorded; mount /proc.</source>
        <translation>Не удаётся прочитать «/proc/sys/kernel/random/boot_id», поэтому соединения не записываются. Подключите /proc.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>Соединения не записываются: запись в %1 невозможна (%2). Дайте себе право записи туда.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>Соединения не записываются: %1 занимает место файла блокировки (%2). Переместите его.</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>Не удаётся наблюдать за сетевыми интерфейсами (%1), поэтому соединения не записываются. Попытка повторяется каждые две секунды.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>«%1», возможно, хранит соединения, которых нет в истории, но не читается (%2). Файл оставлен как есть; переместите его.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>Запись в «%1» невозможна (%2), поэтому соединения, которые история не смогла принять, теряются. Дайте себе право записи туда.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>«%1» и «%2» мешают, поэтому соединения, которые история не смогла принять, теряются. Переместите их.</translation>
    </message>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>Сетевого интерфейса «%1» не может быть: имя занимает не более 15 байт, альтернативное — не более 127, и не содержит ни «/», ни пробелов.</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>Соединения уже записывает другая программа; они появятся здесь, когда завершатся.</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>Соединения уже записывает другой %1 (процесс %2); они появятся здесь, когда завершатся.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>это жёсткая ссылка на другой файл</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>принадлежит другому пользователю</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>повреждён или создан другой программой</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>Часы системы показывают время, которое не помещается в историю, поэтому соединения получают %1 UTC. Установите часы.</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>Израсходовано %1&#xa0;% тарифного плана «%2»</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>%1 из %2; период длится до %3.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>%1 из %2, осталось %3 до %4.</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>CSV table</source>
        <translation>Таблица CSV</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JSON, an object a line</source>
        <translation>JSON, по одному объекту в строке</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>Системный журнал с сообщениями pppd</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>JSON с байтами по часам</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>отсутствует конец</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>начало повреждено</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>первая строка должна быть заголовком %1</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>в строке %1 вместо %2 столбцов</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>текст содержит байт NUL</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>текст не в UTF-8</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>файл пуст; первая строка должна быть заголовком %1</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1, строка %2, столбец %3: %4. Ничего не импортировано.</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>строка длиннее %1 байт</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>столбцов в строке больше %1</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>текст длиннее %1 байт</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>кавычка стоит в тексте, который не заключён в кавычки целиком</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>возврат каретки стоит в тексте, который не заключён в кавычки</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>между закрывающей кавычкой и следующей запятой что-то стоит</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>кавычка нигде не закрыта</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>«%1» — не целое число</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>«%1» — отрицательное число</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>«%1» больше, чем %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>«%1» — не время вида 2024-05-31T18:30:00Z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>«%1» не между %2 и %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>«%1» раньше начала, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>«%1» — не день вида 2024-05-31</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>байт в тексте: %1, допустимо не более: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>«%1» — не «%2», не «%3» и не пустой текст</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>Не удаётся прочитать %1 до конца: %2. Ничего не импортировано.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>Не удаётся прочитать %1: %2. Проверьте имя и права доступа.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>стандартный ввод</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>поле «%1»: %2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>отсутствует</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>не число</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>не текст</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>текст содержит символ NUL</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>не целый час UTC</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>не «true» и не «false»</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>один из часов указан дважды</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>сумма по часам не помещается в 64 бита</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>сумма по часам не равна байтам соединения</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>не массив</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>у соединения нет такого поля</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>не объект</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>длиннее %1 байт</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1: %2. Ничего не импортировано.</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1, соединение %2: %3. Ничего не импортировано.</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>файл должен быть массивом объектов</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>вложенность глубже, чем у соединения</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1, строка %2: %3. Ничего не импортировано.</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>соединение не завершается в журнале</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>для времени соединения нет числа байт</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>для числа байт нет времени соединения</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>метка времени не читается</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>число или время вне допустимых границ</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1 — это слишком много: за один раз можно прочитать в сумме не более %2 сообщений pppd и скачков часов. Ничего не импортировано; импортируйте меньше файлов или файлы поменьше.</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>Журнал из этих файлов</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1 не содержит ни одной строки, в которой pppd сообщает о соединении. Укажите системный журнал компьютера, который подключается с его помощью.</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>Прочитанное нельзя сохранить в папке «%1» до записи в историю: %2. Ничего не импортировано; освободите там место или укажите другую папку в TMPDIR.</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>соединение ещё не завершилось</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>В истории соединений «%1» уже есть тарифный план «%2». Ничего не изменено; выберите другое имя.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>В истории соединений «%1» больше нет тарифного плана «%2»: его удалила другая программа. Создайте его заново.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>История соединений «%1» имеет версию %2, а эта программа знает только версии до %3. Файл оставлен как есть; чтобы использовать его, обновите и перезапустите эту программу.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Не удаётся открыть историю соединений «%1», потому что путь к ней не в UTF-8. Переименуйте файл или папку, имя которых не в UTF-8, или укажите другой файл.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>Историю соединений «%1» заменили во время работы с ней, а «%2» всё ещё содержит записи прежнего файла. Закройте все программы, которые её используют, и верните прежний файл или переместите журнал.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>Историю соединений «%1» изменили извне или заменили, поэтому изменения в её журнале «%2», возможно, относятся к прежнему файлу. Оба файла оставлены как есть. Чтобы использовать историю в её нынешнем виде, переместите журнал; если же файл никогда не заменяли, обновите время журнала командой «touch», чтобы сохранить его изменения.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>История соединений «%1» была заблокирована другой программой в течение %2 секунд. Закройте эту программу или повторите попытку позже.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>Не удаётся записать историю соединений «%1»: диск заполнен. Ничего не изменено; освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>Не удаётся записать историю соединений «%1» (%2). Ничего не изменено; проверьте диск и права доступа к файлу и его папке.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>Не удаётся открыть историю соединений «%1» (%2). Проверьте диск и права доступа к файлу и его папке или укажите другой файл.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>«%1» — не история соединений, а база данных другой программы. Она оставлена как есть; переместите её или укажите другой файл.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>История соединений «%1» повреждена (%2). Она оставлена как есть; переместите её или поместите на её место копию.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>Не удалось выполнить работу с историей соединений «%1» (недостаточно памяти). Ничего не изменено; закройте другие программы и повторите попытку.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>Не удалось выполнить работу с историей соединений «%1» (%2). Ничего не изменено; закройте другие программы и повторите попытку.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>«%1» — не история соединений, а какой-то другой файл. Он оставлен как есть; переместите его или укажите другой файл.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>«%1» — не история соединений, а папка. Она оставлена как есть; переместите её или укажите другой файл.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>«%1» — не история соединений, а устройство. Оно оставлено как есть; переместите его или укажите другой файл.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>История соединений «%1» пуста, но «%2» содержит её записи. Оба файла оставлены как есть; поместите на место истории копию или переместите оба файла.</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>указана версия %1</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>«%2» (%1) создано не этой программой</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>Тарифный план в истории соединений «%2», записанный другой программой, нельзя использовать (%1). Удалите его и создайте заново.</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>Модуль %1 не смог запуститься. «refdialer --debug» покажет, как далеко он продвинулся.</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>Теперь соединения записываются в фоновом режиме: служба connrecord.service включена и работает.</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>Соединения записываются, только пока открыто это окно: служба connrecord.service отключена и остановлена.</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>В вашем сеансе нет systemd, который мог бы запустить службу. Вместо этого настройте в сеансе запуск «connrecord record».</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>Служба connrecord.service не установлена. Установите пакет connrecord, в который она входит.</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>Служба connrecord.service включена, но не запустилась. Причину покажет «systemctl --user status connrecord».</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>systemd ответил отказом: %1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>Соединение активно, и это окно его записывает.</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>&amp;Больше не спрашивать</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>Записывать в &amp;фоне</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>&amp;Прекратить запись</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>Служба может продолжать запись и без окна — сейчас и всегда, когда вы в системе.</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Показать версию.</translation>
    </message>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>Показывать историю из ФАЙЛА и записывать в неё, а не в вашу собственную.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ФАЙЛ</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>Загрузить модуль истории из ФАЙЛА.</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>На этот раз использовать язык: %1.</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>Выводить отладочный журнал в стандартный поток ошибок.</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>Показать временную копию примера истории; ваши данные не затрагиваются.</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>Записывать соединения и сетевого интерфейса ИМЯ (или с таким альтернативным именем), а не только мобильных; можно указать несколько раз.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>Записывать соединения под профилем (APN) ИМЯ, а не под именем их интерфейса.</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>Обойтись без службы набора номера; без неё история не реагирует на соединения.</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>Нарисовать окно без экрана в изображение PNG с именем ФАЙЛ и завершить работу.</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>Показывает историю мобильных широкополосных соединений.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>«%1» не является параметром.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>Параметру --%1 нужно значение.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Путь «%1» к истории не в кодировке UTF-8. Переименуйте файл или папку, имя которых не в UTF-8, или укажите другой файл.</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>--demo и --store исключают друг друга: первый показывает пример истории, второй — одну из ваших.</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>Нет текстов на языке «%1»; есть на: %2.</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>«refdialer --help» покажет параметры.</translation>
    </message>
</context>
<context>
    <name>refdialer::CoverageEdit</name>
    <message>
        <source>Profile (APN)</source>
        <translation>Профиль (APN)</translation>
    </message>
    <message>
        <source>Number of the SIM, or its end</source>
        <translation>Номер SIM или его конец</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Все соединения</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>Один профиль (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>Одна SIM</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>Соединения, к которым относится план</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Без названия</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>Без номера SIM</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>Не сейчас, пока часть строк скрыта: они тоже были бы удалены. Выделите все видимые строки (Ctrl+A) и удалите их или очистите поиск.</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>Не удаётся скопировать пример истории %1 в %2: %3. Переустановите refdialer или освободите там место.</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>У этой системы нет собственного номера в /etc/machine-id: %1.</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>Экспортировано соединений: %1</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>Они в файле «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>Запись в «%1» невозможна: %2. Проверьте диск, папку и права доступа.</translation>
    </message>
</context>
<context>
    <name>refdialer::FileChooser</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Им&amp;я файла:</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>Вид файла:</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>Все файлы, распознаются по содержимому (%1)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Импортировать</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Экспортировать</translation>
    </message>
</context>
<context>
    <name>refdialer::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Импорт…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Экспорт…</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Настройки…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>Соединения импортируются или экспортируются.</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>Если закрыть окно сейчас, это будет отменено: ничего не импортируется, а файл для экспорта останется прежним.</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>&amp;Закрыть окно</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>&amp;Ждать</translation>
    </message>
</context>
<context>
    <name>refdialer::FileProblem</name>
    <message>
        <source>&quot;%1&quot; is a folder, a pipe or a device. Choose a file.</source>
        <translation>«%1» — это папка, канал или устройство. Выберите файл.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>«%1» относится к истории, которую показывает это окно. Выберите другой файл.</translation>
    </message>
</context>
<context>
    <name>refdialer::HelpMenu</name>
    <message>
        <source>Manual</source>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened here. &quot;man refdialer&quot; shows it in a terminal.</source>
        <translation>Руководство %1 не удаётся открыть здесь. В терминале его покажет «man refdialer».</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>История мобильных широкополосных соединений.</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>Лицензия: MIT. Эту программу можно использовать, изменять и передавать другим; гарантий нет.</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>Используются Qt %1 и libmnl (LGPL), SQLite (общественное достояние), SQLiteCpp и JSON for Modern C++ (MIT), libarchive (BSD), zlib (лицензия zlib) и UTF8-CPP (лицензия Boost).</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>О программе refdialer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Руководство</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>&amp;О программе refdialer</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>О &amp;Qt</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>Соединения</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>Соединений пока нет. Мобильное соединение появится здесь, когда завершится, с объёмом отправленного и полученного. Данные из других источников можно импортировать.</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>Ни одно соединение не подходит под поиск.</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>Все соединения короче самого короткого, которое настройки разрешают показывать в этом окне.</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Импорт…</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>Записывать в фон&amp;е</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>По&amp;казать все соединения</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>Поиск профиля</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>&amp;Дни:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Этот месяц</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Этот год</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>С … по …</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>Дни, когда начались соединения</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Первый день</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>п&amp;о</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Последний день</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Выделено: %1 · отправлено: %2 · получено: %3 · время: %4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Соединений: %1 · отправлено: %2 · получено: %3 · время: %4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>Из нескольких файлов сразу можно импортировать только журналы. Выбирайте по одному файлу.</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

Файл прочитан как: %2. Если это что-то другое, выберите вид вместе с файлом.</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>Добавлено соединений: %1</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>Уже в истории: %1</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>Дополнено по журналу: %1</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1 не указывает годы; принято, что последняя строка относится к %2 году. Если это не так, удалите добавленное и импортируйте командой «connrecord import --year».</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>Не использовано, %1: %2; впервые в строке %3 файла «%4»: %5</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>Удаление соединений…</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>История соединений</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>Модуль истории сообщает, что у него есть статистика, но запросить её нельзя. Запустите refdialer с другим модулем: --plugin ФАЙЛ.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Расход</translation>
    </message>
</context>
<context>
    <name>refdialer::PastPeriodsDialog</name>
    <message>
        <source>Periods of a data plan</source>
        <translation>Периоды тарифного плана</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>Периоды, текущий первым</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Первый день</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Последний день</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Израсходовано</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Осталось</translation>
    </message>
    <message>
        <source>&amp;Plan:</source>
        <translation>&amp;План:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>Чтение истории…</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>Ни один период этого плана ещё не начался.</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Текущий</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>Каждый месяц</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>Каждые несколько дней</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>Один раз (предоплата)</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>Вид периода</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>С числа &amp;месяца:</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>Месяц без этого числа начинается с последнего.</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>Дне&amp;й:</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>П&amp;ервый день периода:</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>П&amp;ервый день:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>Пос&amp;ледний день:</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Дал&amp;ее</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>Не удаётся записать изображение %1: %2. Укажите файл в папке, в которую вы можете писать.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanDialog</name>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Изменить…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Удалить…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Прошлые периоды…</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>Тарифные планы</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>План</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Объём</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Период</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Добавить…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>Тарифного плана пока нет. С ним окно показывает, сколько осталось, и предупреждает, прежде чем он будет исчерпан.</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>Удалить тарифный план «%1»?</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>История останется без изменений.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>Состояние плана</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>Вне роуминга</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>В роуминге</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>Вне роуминга и в роуминге</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>Отправленное и полученное</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Полученное</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Отправленное</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>не ограничен</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ничего</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>Новый тарифный план</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>Тарифный план</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>О&amp;тмена</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Название:</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>&amp;Для:</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Где:</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>&amp;Что считается:</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>&amp;Объём за период:</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>&amp;Период:</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>&amp;Использовано в другом месте за этот период:</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>П&amp;редупреждать при (%):</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>Объём за период</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>Единица объёма</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>Использовано в другом месте за этот период</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>Единица использованного в другом месте</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>То, что учитывает оператор и чего не знает история, например до её начала; меньше 0 — вычитается.</translation>
    </message>
    <message>
        <source>never</source>
        <translation>никогда</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>Дайте плану название.</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>Дайте плану название покороче.</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>Другой план уже так называется.</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>Введите номер SIM или его конец.</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>Укажите профиль.</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>У SIM не бывает такого длинного номера.</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>План не может быть меньше нуля.</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>Последний день раньше первого.</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>Сегодняшний день не входит ни в один период этого плана.</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>Введите проценты от 1 до %1, например 80, 100.</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>Другая программа тем временем изменила этот план. «ОК» сохранит его таким, как здесь, «Отмена» оставит то, что сделала другая программа.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>Тарифные планы</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>Расход по тарифному плану «%1»</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>Все тарифные планы…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>&amp;Планы</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>&amp;Тарифные планы…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Прошлые периоды…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanOffer</name>
    <message>
        <source>See here how much of a data plan is left.</source>
        <translation>Здесь видно, сколько осталось от тарифного плана.</translation>
    </message>
    <message>
        <source>Set up a data plan…</source>
        <translation>Настроить тарифный план…</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>Не предлагать</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>Расход: %1 из %2, сверх плана %3, последний день</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>Расход: %1 из %2, сверх плана %3, ещё %n день</numerusform>
            <numerusform>Расход: %1 из %2, сверх плана %3, ещё %n дня</numerusform>
            <numerusform>Расход: %1 из %2, сверх плана %3, ещё %n дней</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>Расход: %1 из %2, остаток %3, последний день</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>Расход: %1 из %2, ещё %n день, %3 в день</numerusform>
            <numerusform>Расход: %1 из %2, ещё %n дня, %3 в день</numerusform>
            <numerusform>Расход: %1 из %2, ещё %n дней, %3 в день</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>Расход: %1, последний день</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>Расход: %1, ещё %n день</numerusform>
            <numerusform>Расход: %1, ещё %n дня</numerusform>
            <numerusform>Расход: %1, ещё %n дней</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>закончился %1</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>начинается %1</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>Дойдёт до %1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>Достигнуто %1&#xa0;%</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>Исчерпан</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>Период с %1 по %2.</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>Осталось %1.</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>При таком темпе в конце будет %1.</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>Ежемесячно с %1 числа</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>Каждый %n день с %1</numerusform>
            <numerusform>Каждые %n дня с %1</numerusform>
            <numerusform>Каждые %n дней с %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>Один раз с %1 по %2</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>Сверх плана %1.</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>Модуля %1 нет.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>Не удаётся загрузить модуль %1: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>У модуля %1 нет интерфейсов %2 и %3.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>%1 не является модулем для Qt %2: %3.</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>Модуль %1 предназначен для другого: его интерфейс — %2, а не %3.</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>Переустановите refdialer или укажите файл подходящего модуля параметром --plugin.</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>&amp;Уведомлять, когда тарифный план достигает порога предупреждения</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>Записывать также &amp;интерфейсы:</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>Мобильные записываются всегда. Запись в фоновом режиме учтёт изменение при следующем запуске.</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>Не удаётся загрузить службу набора номера %1: %2. Переустановите refdialer или откажитесь от службы параметром --no-dialup-service.</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>Служба записывает в вашу собственную историю, а не в ту, которую показывает это окно.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>Показывать &amp;сводку после каждого соединения</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>Записывать в &amp;фоновом режиме, даже когда это окно закрыто</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Язык:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>Это действует только до закрытия окна: настройки не удаётся записать в %1. Освободите там место или дайте себе право записи.</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>Эти тексты ещё не проверены носителями языка.</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>Самое &amp;короткое соединение в списке:</translation>
    </message>
    <message>
        <source> s</source>
        <translation>&#xa0;с</translation>
    </message>
    <message>
        <source>any</source>
        <translation>любое</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>Язык системы (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>Это больше, чем можно сосчитать.</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>Введите число без разделителей тысяч, например %1 или %2.</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>Введите число, например %1 или %2.</translation>
    </message>
</context>
<context>
    <name>refdialer::SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Сортировать по</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Началу</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Концу</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Профилю</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>&amp;Длительности</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>&amp;Отправленному</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>По&amp;лученному</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>По &amp;возрастанию</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>По &amp;убыванию</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Not connected</source>
        <translation>Нет соединения</translation>
    </message>
    <message>
        <source>connected since %1</source>
        <translation>соединение с %1</translation>
    </message>
    <message>
        <source>Sent: %1 (%2)</source>
        <translation>Отправлено: %1 (%2)</translation>
    </message>
    <message>
        <source>Received: %1 (%2)</source>
        <translation>Получено: %1 (%2)</translation>
    </message>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>Пример истории. Изменения исчезнут при закрытии окна.</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>История в %1</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>В %1 ещё нет записанных соединений</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>Для этого не хватает памяти. Закройте другие программы или возьмите файлы поменьше.</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>Ничего не импортировано.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>Ничего не экспортировано.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferProgress</name>
    <message>
        <source>Reading &quot;%1&quot;: %2 of %3</source>
        <translation>Чтение «%1»: %2 из %3</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>Чтение «%1»: %2</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>Добавление соединений в историю: %1 из %2</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Чтение истории</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>Запись соединений: %1 из %2</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Показ&amp;ать:</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>Стол&amp;бцы:</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>По дням</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>По месяцам</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>Табли&amp;цей</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>Копировать те&amp;кст</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>Копировать р&amp;исунок</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>Клавиши со стрелками переходят от столбца к столбцу.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>Пока ничего не записано. Здесь появится то, что передают ваши соединения.</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>За это время ничего не отправлено и не получено.</translation>
    </message>
</context>
<context>
    <name>refdialer::UsageText</name>
    <message>
        <source>Plan: %1</source>
        <translation>План: %1</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Профиль: %1</translation>
    </message>
    <message>
        <source>SIM ending in %1</source>
        <translation>SIM с окончанием %1</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Все соединения</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>Получено вне роуминга</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>Отправлено вне роуминга</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>Получено в роуминге</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>Отправлено в роуминге</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>С %1 по %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: ничего</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1: получено %2, отправлено %3</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1: получено %2 вне роуминга и %3 в роуминге, отправлено %4 вне роуминга и %5 в роуминге</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Месяц</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
</context>
<context>
    <name>refdialer::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;История</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Обновить</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>С&amp;татистика…</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>У используемого модуля истории нет статистики. Запустите refdialer с модулем, у которого она есть: --plugin ФАЙЛ.</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>&amp;Расход</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Поиск</translation>
    </message>
</context>
</TS>
