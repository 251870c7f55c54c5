<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>Español</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_REVIEWED</source>
        <extracomment>Never shown: &quot;no&quot;, and &quot;yes&quot; once speakers of this language have read every text</extracomment>
        <translation>no</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of a message box</extracomment>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>NetInfoRecordUIPlugin</name>
    <message>
        <source>IDS_BTN_OK</source>
        <extracomment>Button that closes a dialog</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_COMBO_ALLAPN</source>
        <extracomment>Statistics dialog: entry of the profile list</extracomment>
        <translation>Todos los perfiles</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Penúltimo mes</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Mes pasado</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Este mes</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Perfil (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Duración</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>Eliminar todo</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>Eliminar conexiones</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>Perfil:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>Tiempos y datos se miden en este equipo; la factura de su operador puede diferir.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>Mes:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>¿Desea eliminar todas las conexiones del historial? No se podrán recuperar.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>¿Desea eliminar del historial las conexiones seleccionadas? No se podrán recuperar.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>Última conexión</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Recibido:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Conectado durante:</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Enviado:</translation>
    </message>
</context>
<context>
    <name>common::ProblemText</name>
    <message>
        <source>&quot;/proc/sys/kernel/random/boot_id&quot; cannot be read, so connections are not recorded; mount /proc.</source>
        <translation>No se puede leer «/proc/sys/kernel/random/boot_id», así que no se registran las conexiones. Monte /proc.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>No se registran las conexiones, porque no se puede escribir en %1 (%2). Concédase permiso para escribir ahí.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>No se registran las conexiones, porque %1 ocupa el lugar del bloqueo (%2). Muévalo a otro sitio.</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>No se pueden vigilar las interfaces de red (%1), así que no se registran las conexiones. Se vuelve a intentar cada dos segundos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>«%1» puede contener conexiones que no están en el historial, pero no se puede leer (%2). Se ha dejado como estaba; muévalo a otro sitio.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>No se puede escribir en «%1» (%2), así que se pierden las conexiones que el historial no pudo guardar. Concédase permiso para escribir ahí.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>«%1» y «%2» estorban, así que se pierden las conexiones que el historial no pudo guardar. Muévalos a otro sitio.</translation>
    </message>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>No puede haber una interfaz de red «%1»: un nombre tiene como máximo 15 bytes, uno alternativo 127, y no contiene «/» ni espacios.</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>Otro programa ya registra las conexiones; aparecen aquí cuando han terminado.</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>Otro %1 ya registra las conexiones (proceso %2); aparecen aquí cuando han terminado.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>es un enlace duro a otro archivo</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>pertenece a otro usuario</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>está dañado o es de otro programa</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>El reloj del sistema muestra una hora que el historial no puede contener, así que las conexiones reciben %1 UTC en su lugar. Ponga el reloj en hora.</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>Usado el %1&#xa0;% del plan de datos «%2»</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>%1 de %2; el período dura hasta el %3.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>%1 de %2, quedan %3 hasta el %4.</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>CSV table</source>
        <translation>Tabla CSV</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JSON, an object a line</source>
        <translation>JSON, un objeto por línea</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>Registro del sistema con mensajes de pppd</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>JSON con los bytes por hora</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>falta el final</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>el principio está dañado</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>la primera línea tiene que ser el encabezado %1</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>la línea tiene %1 en lugar de %2 columnas</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>el texto contiene un byte NUL</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>el texto no es UTF-8</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>el archivo está vacío; la primera línea tiene que ser el encabezado %1</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1, línea %2, columna %3: %4. No se ha importado nada.</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>la línea tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>la línea tiene más de %1 columnas</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>el texto tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>hay una comilla en un texto que no está entero entre comillas</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>hay un retorno de carro en un texto que no está entre comillas</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>hay algo entre la comilla de cierre y la coma siguiente</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>la comilla no se cierra nunca</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>«%1» no es un número entero</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>«%1» es negativo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>«%1» es más que %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>«%1» no es una fecha y hora como 2024-05-31T18:30:00Z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>«%1» no está entre %2 y %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>«%1» es anterior al inicio, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>«%1» no es un día como 2024-05-31</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>bytes del texto: %1; como máximo: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>«%1» no es «%2» ni «%3» ni está vacío</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>No se puede leer %1 hasta el final: %2. No se ha importado nada.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>No se puede leer %1: %2. Compruebe el nombre y los permisos.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>la entrada estándar</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>campo «%1»: %2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>no es un texto</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>el texto contiene un carácter NUL</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>no es una hora en punto de UTC</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>no es «true» ni «false»</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>una hora aparece dos veces</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>la suma de los bytes por hora no cabe en 64 bits</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>la suma de los bytes por hora no da los bytes de la conexión</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>no es una lista</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>una conexión no tiene ese campo</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>no es un objeto</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>más de %1 bytes</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1: %2. No se ha importado nada.</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1, conexión %2: %3. No se ha importado nada.</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>el archivo tiene que ser una lista de objetos</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>está anidado más profundamente que una conexión</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1, línea %2: %3. No se ha importado nada.</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>una conexión no termina en el registro</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>una duración de conexión no tiene recuentos de bytes</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>unos recuentos de bytes no tienen duración de conexión</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>la marca de tiempo no se puede leer</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>un número o una hora está fuera de los límites</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1 es demasiado: en total solo se pueden leer a la vez %2 mensajes de pppd y saltos de un reloj. No se ha importado nada; importe menos archivos o más pequeños.</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>El registro de estos archivos</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1 no contiene ninguna línea en la que pppd hable de una conexión. Indique el registro del sistema de un equipo que se conecte con él.</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>Lo que se lee no se puede guardar en la carpeta «%1» hasta pasar al historial: %2. No se ha importado nada; libere espacio ahí o indique otra carpeta en TMPDIR.</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>la conexión aún duraba</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>El historial de conexiones «%1» ya tiene el plan «%2». No se ha cambiado nada; elija otro nombre.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>El historial de conexiones «%1» ya no tiene el plan «%2», porque otro programa lo ha eliminado. Créelo de nuevo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>El historial de conexiones «%1» tiene la versión %2, pero este programa solo conoce versiones hasta la %3. Se ha dejado como estaba; actualice este programa y reinícielo para usarlo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>El historial de conexiones «%1» no se puede abrir porque su ruta no es UTF-8. Cambie el nombre del archivo o de la carpeta que no lo sea, o indique otro archivo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>El historial de conexiones «%1» se sustituyó mientras estaba en uso, y «%2» todavía contiene registros del archivo anterior. Cierre todos los programas que lo usan y vuelva a poner el archivo anterior, o mueva el registro de cambios a otro sitio.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>El historial de conexiones «%1» se ha cambiado desde fuera o se ha sustituido, así que los cambios de su registro «%2» pueden ser los de un archivo anterior. Ambos se han dejado como estaban. Mueva el registro a otro sitio para usar el historial tal como está; o, si el archivo nunca se sustituyó, renueve la fecha del registro con «touch» para conservar sus cambios.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>Otro programa ha mantenido bloqueado el historial de conexiones «%1» durante %2 segundos. Cierre ese programa o vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>El historial de conexiones «%1» no se puede escribir porque el disco está lleno. No se ha cambiado nada; libere espacio y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>El historial de conexiones «%1» no se puede escribir (%2). No se ha cambiado nada; compruebe el disco y los permisos del archivo y de su carpeta.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>El historial de conexiones «%1» no se puede abrir (%2). Compruebe el disco y los permisos del archivo y de su carpeta, o indique otro archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>«%1» no es un historial de conexiones, sino una base de datos de otro programa. Se ha dejado como estaba; muévala a otro sitio o indique otro archivo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>El historial de conexiones «%1» está dañado (%2). Se ha dejado como estaba; muévalo a otro sitio o ponga una copia en su lugar.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>No se pudo trabajar con el historial de conexiones «%1» (no hay memoria suficiente). No se ha cambiado nada; cierre otros programas y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>No se pudo trabajar con el historial de conexiones «%1» (%2). No se ha cambiado nada; cierre otros programas y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>«%1» no es un historial de conexiones, sino otro archivo. Se ha dejado como estaba; muévalo a otro sitio o indique otro archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>«%1» no es un historial de conexiones, sino una carpeta. Se ha dejado como estaba; muévala a otro sitio o indique otro archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>«%1» no es un historial de conexiones, sino un dispositivo. Se ha dejado como estaba; muévalo a otro sitio o indique otro archivo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>El historial de conexiones «%1» está vacío, pero «%2» contiene registros suyos. Ambos se han dejado como estaban; ponga una copia en su lugar o mueva ambos a otro sitio.</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>la versión indicada es %1</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>«%2» (%1) no es de este programa</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>Un plan del historial de conexiones «%2», guardado por otro programa, no se puede usar (%1). Elimínelo y créelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>El complemento %1 no pudo iniciarse. «refdialer --debug» muestra hasta dónde llegó.</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>Desde ahora las conexiones se registran en segundo plano: el servicio connrecord.service está activado y en marcha.</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>Las conexiones solo se registran mientras esta ventana está abierta: el servicio connrecord.service está desactivado y se ha detenido.</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>Su sesión no tiene ningún systemd que pueda iniciar el servicio. Haga que su sesión inicie «connrecord record» en su lugar.</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>El servicio connrecord.service no está instalado. Instale el paquete connrecord, que lo incluye.</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>El servicio connrecord.service está activado, pero no se inició. «systemctl --user status connrecord» indica por qué.</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>systemd lo ha rechazado: %1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>Hay una conexión en curso y esta ventana la registra.</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>&amp;No volver a preguntar</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>&amp;Registrar en segundo plano</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>&amp;Dejar de registrar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>Un servicio puede seguir registrando sin la ventana, ahora y siempre que tenga la sesión iniciada.</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>Usar el historial de ARCHIVO en lugar del propio, para mostrarlo y para registrar.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>Cargar de ARCHIVO el complemento del historial.</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>Usar este idioma por esta vez: %1.</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>Escribir el registro de depuración en la salida de error estándar.</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>Mostrar una copia temporal de un historial de ejemplo; no se toca nada suyo.</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>Registrar también las conexiones de la interfaz de red NOMBRE (o nombre alternativo), no solo las de banda ancha móvil; puede indicarse varias veces.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>Registrar las conexiones con el perfil (APN) NOMBRE y no con el nombre de su interfaz.</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>Prescindir del servicio de marcado, sin el cual el historial no reacciona a las conexiones.</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>Dibujar la ventana, sin pantalla, en la imagen PNG ARCHIVO y salir.</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>Muestra el historial de las conexiones de banda ancha móvil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>«%1» no es una opción.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>La opción --%1 necesita un valor.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>La ruta «%1» del historial no es UTF-8. Cambie el nombre del archivo o de la carpeta cuyo nombre no lo sea, o indique otro archivo.</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>--demo y --store se excluyen: la primera muestra un historial de ejemplo; la segunda, uno suyo.</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>No hay textos en el idioma «%1»; los hay en: %2.</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>«refdialer --help» muestra las opciones.</translation>
    </message>
</context>
<context>
    <name>refdialer::CoverageEdit</name>
    <message>
        <source>Profile (APN)</source>
        <translation>Perfil (APN)</translation>
    </message>
    <message>
        <source>Number of the SIM, or its end</source>
        <translation>Número de la SIM, o su final</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Todas las conexiones</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>Un perfil (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>Una SIM</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>Conexiones a las que se aplica el plan</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>Sin número de SIM</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>No mientras haya filas ocultas: también se eliminarían. Seleccione todas las filas visibles (Ctrl+A) y elimínelas, o borre la búsqueda.</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>El historial de ejemplo %1 no se puede copiar en %2: %3. Reinstale refdialer o libere espacio ahí.</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>Este sistema no tiene un número propio en /etc/machine-id: %1.</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>Conexiones exportadas: %1</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>Están en «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>No se puede escribir «%1»: %2. Compruebe el disco, la carpeta y sus permisos.</translation>
    </message>
</context>
<context>
    <name>refdialer::FileChooser</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre del archivo:</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>Tipo de archivo:</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>Todos los archivos, reconocidos por su contenido (%1)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
</context>
<context>
    <name>refdialer::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>Se están importando o exportando conexiones.</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>Si la ventana se cierra ahora, eso se cancela: no se importa nada, y el archivo de destino queda como está.</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>&amp;Cerrar la ventana</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>&amp;Esperar</translation>
    </message>
</context>
<context>
    <name>refdialer::FileProblem</name>
    <message>
        <source>&quot;%1&quot; is a folder, a pipe or a device. Choose a file.</source>
        <translation>«%1» es una carpeta, una tubería o un dispositivo. Elija un archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>«%1» pertenece al historial que muestra esta ventana. Elija otro archivo.</translation>
    </message>
</context>
<context>
    <name>refdialer::HelpMenu</name>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened here. &quot;man refdialer&quot; shows it in a terminal.</source>
        <translation>El manual %1 no se puede abrir aquí. «man refdialer» lo muestra en un terminal.</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>El historial de las conexiones de banda ancha móvil.</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>Licencia: MIT. Puede usar, modificar y distribuir este programa; no hay ninguna garantía.</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>Usa Qt %1 y libmnl (LGPL), SQLite (dominio público), SQLiteCpp y JSON for Modern C++ (MIT), libarchive (BSD), zlib (licencia zlib) y UTF8-CPP (licencia Boost).</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>Acerca de refdialer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>&amp;Acerca de refdialer</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Acerca de &amp;Qt</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>Conexiones</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>Aún no hay conexiones. Una conexión móvil aparece aquí cuando ha terminado, con lo que ha enviado y recibido. Lo que tenga de otras fuentes se puede importar.</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>Ninguna conexión coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>Todas las conexiones son más cortas que la más corta que las preferencias permiten mostrar en esta ventana.</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>&amp;Registrar en segundo plano</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>Mostrar &amp;todas las conexiones</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>Buscar un perfil</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>&amp;Días:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Este mes</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mes pasado</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Este año</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>Desde … hasta …</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>Días en que comenzaron las conexiones</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primer día</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>&amp;hasta</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Seleccionadas: %1 · enviado: %2 · recibido: %3 · conectado: %4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Conexiones: %1 · enviado: %2 · recibido: %3 · conectado: %4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>De varios archivos a la vez solo se pueden importar registros. Elija un archivo cada vez.</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

Se ha leído como: %2. Si es otra cosa, elija su tipo junto con el archivo.</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>Conexiones añadidas: %1</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>Ya en el historial: %1</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>Completadas con lo que sabe el registro: %1</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1 no muestra los años; se supuso que su última línea es de %2. Si no es así, elimine lo añadido e importe con «connrecord import --year».</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>Sin usar, %1: %2; primero en la línea %3 de «%4»: %5</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>Eliminando conexiones…</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>Historial de conexiones</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>El complemento de historial dice tener estadísticas, pero no se le pueden pedir. Inicie refdialer con otro: --plugin ARCHIVO.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Consumo</translation>
    </message>
</context>
<context>
    <name>refdialer::PastPeriodsDialog</name>
    <message>
        <source>Periods of a data plan</source>
        <translation>Períodos de un plan de datos</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>Períodos, primero el actual</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primer día</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>&amp;Plan:</source>
        <translation>&amp;Plan:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>Leyendo el historial…</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>No ha comenzado ningún período de este plan.</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Actual</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>Cada tantos días</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>Una vez (prepago)</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>Tipo de período</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>Desde el día del &amp;mes:</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>Un mes sin ese día comienza con el último que tenga.</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>Día&amp;s:</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>Pr&amp;imer día de un período:</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>Pr&amp;imer día:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>Ú&amp;ltimo día:</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>An&amp;terior</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>No se puede escribir la imagen %1: %2. Indique un archivo en una carpeta en la que pueda escribir.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanDialog</name>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Períodos anteriores…</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>Planes de datos</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>Aún no hay ningún plan de datos. Con uno, la ventana muestra cuánto queda de él y avisa antes de que se agote.</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>¿Quitar el plan de datos «%1»?</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>El historial queda como está.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>Cómo va el plan</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>Sin itinerancia</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>En itinerancia</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>Sin itinerancia y en itinerancia</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>Enviado y recibido</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>Plan de datos nuevo</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>Plan de datos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>&amp;Para:</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Dónde:</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>&amp;Qué cuenta:</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>Can&amp;tidad por período:</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>P&amp;eríodo:</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>&amp;Usado en otra parte en este período:</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>&amp;Avisar al (en %):</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>Cantidad por período</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>Unidad de la cantidad</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>Usado en otra parte en este período</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>Unidad de lo usado en otra parte</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>Lo que el operador cuenta y el historial no conoce, por ejemplo de antes de su comienzo; menos de 0 lo resta.</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>Ponga un nombre al plan.</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>Ponga un nombre más corto al plan.</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>Otro plan ya tiene este nombre.</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>Escriba el número de la SIM o su final.</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>Indique el perfil.</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>Ninguna SIM tiene un número tan largo.</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>Un plan no puede ser de menos que nada.</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>El último día es anterior al primero.</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>Hoy no está en ningún período de este plan.</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>Escriba porcentajes de 1 a %1, por ejemplo 80, 100.</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>Otro programa ha cambiado este plan entretanto. Aceptar lo guarda como está aquí; Cancelar conserva lo que ha hecho el otro.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>Planes de datos</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>Consumo del plan de datos «%1»</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>Todos los planes de datos…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>&amp;Planes</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>Planes de &amp;datos…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Períodos anteriores…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanOffer</name>
    <message>
        <source>See here how much of a data plan is left.</source>
        <translation>Vea aquí cuánto queda de un plan de datos.</translation>
    </message>
    <message>
        <source>Set up a data plan…</source>
        <translation>Configurar un plan de datos…</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>No ofrecer</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>%1 de %2 usados, %3 de más, hoy es el último día</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>%1 de %2 usados, %3 de más, queda %n día</numerusform>
            <numerusform>%1 de %2 usados, %3 de más, quedan %n días</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>%1 de %2 usados, quedan %3, hoy es el último día</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>%1 de %2 usados, queda %n día, %3 al día</numerusform>
            <numerusform>%1 de %2 usados, quedan %n días, %3 al día</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>%1 usados, hoy es el último día</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>%1 usados, queda %n día</numerusform>
            <numerusform>%1 usados, quedan %n días</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>terminó el %1</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>comienza el %1</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>Camino de %1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>%1&#xa0;% alcanzado</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>Agotado</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>El período va del %1 al %2.</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>Quedan %1.</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>A este ritmo serán %1 al final.</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>Cada mes desde el día %1</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>Cada %n día desde el %1</numerusform>
            <numerusform>Cada %n días desde el %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>Una vez, del %1 al %2</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>%1 de más.</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>El complemento %1 no existe.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>No se puede cargar el complemento %1: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>El complemento %1 no ofrece las interfaces %2 y %3.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>%1 no es un complemento para Qt %2: %3.</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>El complemento %1 es para otra cosa: su interfaz es %2 y no %3.</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>Reinstale refdialer o indique con --plugin el archivo de un complemento adecuado.</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>&amp;Notificarme cuando un plan de datos alcance uno de sus avisos</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>Registrar también estas inter&amp;faces:</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>Las móviles se registran siempre. El registro en segundo plano tiene en cuenta un cambio la próxima vez que se inicia.</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>No se puede cargar el servicio de marcado %1: %2. Reinstale refdialer o prescinda del servicio con --no-dialup-service.</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>El servicio registra en su propio historial, no en el que muestra esta ventana.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>&amp;Mostrar un resumen tras cada conexión</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>&amp;Registrar en segundo plano, también con esta ventana cerrada</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>Esto solo vale hasta que se cierre la ventana: las preferencias no se pueden escribir en %1. Libere espacio ahí o concédase permiso para escribir.</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>Estos textos aún no los han revisado hablantes del idioma.</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>Cone&amp;xión más corta mostrada:</translation>
    </message>
    <message>
        <source> s</source>
        <translation>&#xa0;s</translation>
    </message>
    <message>
        <source>any</source>
        <translation>cualquiera</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>El del sistema (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>Es más de lo que se puede contar.</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>Escriba el número sin separadores de miles, por ejemplo %1 o %2.</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>Escriba un número, por ejemplo %1 o %2.</translation>
    </message>
</context>
<context>
    <name>refdialer::SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Inicio</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Perfil</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>&amp;Duración</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>&amp;Enviado</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>&amp;Recibido</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Ascendente</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>De&amp;scendente</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>connected since %1</source>
        <translation>conectado desde %1</translation>
    </message>
    <message>
        <source>Sent: %1 (%2)</source>
        <translation>Enviado: %1 (%2)</translation>
    </message>
    <message>
        <source>Received: %1 (%2)</source>
        <translation>Recibido: %1 (%2)</translation>
    </message>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>Historial de ejemplo. Los cambios se pierden al cerrar la ventana.</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>Historial en %1</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>Aún no hay conexiones registradas en %1</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>No hay memoria suficiente para esto. Cierre otros programas o tome archivos más pequeños.</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>No se ha importado nada.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>No se ha exportado nada.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Cancelando</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferProgress</name>
    <message>
        <source>Reading &quot;%1&quot;: %2 of %3</source>
        <translation>Leyendo «%1»: %2 de %3</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>Leyendo «%1»: %2</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>Añadiendo conexiones al historial: %1 de %2</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Leyendo el historial</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>Escribiendo conexiones: %1 de %2</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>&amp;Barras:</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Por día</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>Por mes</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>Como tab&amp;la</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>Copiar te&amp;xto</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>Copiar ima&amp;gen</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>Las teclas de flecha van de barra en barra.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>Aún no se ha registrado nada. Lo que transfieran sus conexiones aparece aquí.</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>No se envió ni recibió nada en este tiempo.</translation>
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
        <translation>Perfil: %1</translation>
    </message>
    <message>
        <source>SIM ending in %1</source>
        <translation>SIM terminada en %1</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Todas las conexiones</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>Recibido sin itinerancia</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>Enviado sin itinerancia</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>Recibido en itinerancia</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>Enviado en itinerancia</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>Del %1 al %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: nada</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1: recibido %2, enviado %3</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1: recibido %2 sin itinerancia y %3 en itinerancia, enviado %4 sin itinerancia y %5 en itinerancia</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
</context>
<context>
    <name>refdialer::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>&amp;Estadísticas…</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>El complemento de historial en uso no tiene estadísticas. Inicie refdialer con uno que las tenga: --plugin ARCHIVO.</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>&amp;Consumo</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
</context>
</TS>
