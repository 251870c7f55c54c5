<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
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
        <translation>Português (Brasil)</translation>
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
        <translation>Todos os perfis</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Penúltimo mês</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Este mês</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Perfil (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Duração</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Recebido</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Fim</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Início</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>Excluir tudo</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>Excluir conexões</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>Perfil:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>Tempos e dados são medidos neste computador; a conta da sua operadora pode diferir.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>Mês:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>Deseja excluir todas as conexões do histórico? Elas não poderão ser restauradas.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>Deseja excluir do histórico as conexões selecionadas? Elas não poderão ser restauradas.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>Última conexão</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Recebido:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Conectado por:</translation>
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
        <translation>Não é possível ler “/proc/sys/kernel/random/boot_id”; por isso, as conexões não são registradas. Monte /proc.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>As conexões não são registradas, pois não é possível gravar em %1 (%2). Dê a si mesmo permissão para gravar ali.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>As conexões não são registradas, pois %1 ocupa o lugar da trava (%2). Mova-o para outro lugar.</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>Não é possível observar as interfaces de rede (%1); por isso, as conexões não são registradas. Uma nova tentativa é feita a cada dois segundos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>“%1” pode conter conexões que não estão no histórico, mas não pode ser lido (%2). Ele foi deixado como estava; mova-o para outro lugar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>Não é possível gravar em “%1” (%2); por isso, perdem-se as conexões que o histórico não pôde receber. Dê a si mesmo permissão para gravar ali.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>“%1” e “%2” estão no caminho; por isso, perdem-se as conexões que o histórico não pôde receber. Mova-os para outro lugar.</translation>
    </message>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>Não pode haver uma interface de rede “%1”: um nome tem no máximo 15 bytes, um alternativo 127, e não contém “/” nem espaços.</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>Outro programa já registra as conexões; elas aparecem aqui quando terminam.</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>Outro %1 já registra as conexões (processo %2); elas aparecem aqui quando terminam.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>é um link físico para outro arquivo</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>pertence a outro usuário</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>está danificado ou é de outro programa</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>O relógio do sistema mostra uma hora que o histórico não comporta; por isso, as conexões recebem %1 UTC. Acerte o relógio.</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>%1% do plano de dados “%2” usados</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>%1 de %2; o período vai até %3.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>%1 de %2, restam %3 até %4.</translation>
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
        <translation>JSON, um objeto por linha</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>Log do sistema com mensagens do pppd</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>JSON com os bytes por hora</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>falta o final</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>o início está danificado</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>a primeira linha precisa ser o cabeçalho %1</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>a linha tem %1 em vez de %2 colunas</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>o texto contém um byte NUL</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>o texto não está em UTF-8</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>o arquivo está vazio; a primeira linha precisa ser o cabeçalho %1</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1, linha %2, coluna %3: %4. Nada foi importado.</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>a linha tem mais de %1 bytes</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>a linha tem mais de %1 colunas</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>o texto tem mais de %1 bytes</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>há uma aspa em um texto que não está inteiro entre aspas</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>há um retorno de carro em um texto que não está entre aspas</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>há algo entre a aspa de fechamento e a vírgula seguinte</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>a aspa nunca é fechada</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>“%1” não é um número inteiro</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>“%1” é negativo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>“%1” é maior que %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>“%1” não é uma data e hora como 2024-05-31T18:30:00Z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>“%1” não está entre %2 e %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>“%1” é anterior ao início, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>“%1” não é um dia como 2024-05-31</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>bytes do texto: %1; no máximo: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>“%1” não é “%2” nem “%3” nem está vazio</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>Não é possível ler %1 até o final: %2. Nada foi importado.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>Não é possível ler %1: %2. Verifique o nome e as permissões.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>a entrada padrão</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>campo “%1”: %2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>ausente</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>não é um número</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>não é um texto</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>o texto contém um caractere NUL</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>não é uma hora cheia em UTC</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>não é “true” nem “false”</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>uma hora aparece duas vezes</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>a soma dos bytes por hora não cabe em 64 bits</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>a soma dos bytes por hora não dá os bytes da conexão</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>não é uma lista</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>uma conexão não tem esse campo</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>não é um objeto</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>mais de %1 bytes</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1: %2. Nada foi importado.</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1, conexão %2: %3. Nada foi importado.</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>o arquivo precisa ser uma lista de objetos</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>está aninhado mais fundo que uma conexão</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1, linha %2: %3. Nada foi importado.</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>uma conexão não termina no log</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>uma duração de conexão não tem contagens de bytes</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>contagens de bytes não têm duração de conexão</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>não é possível ler o carimbo de data e hora</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>um número ou horário está fora dos limites</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1 é demais: no total, só é possível ler de uma vez %2 mensagens do pppd e saltos de um relógio. Nada foi importado; importe menos arquivos ou arquivos menores.</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>O log destes arquivos</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1 não contém nenhuma linha em que o pppd fale de uma conexão. Indique o log do sistema de uma máquina que se conecta com ele.</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>O que é lido não pode ser guardado na pasta “%1” até ser gravado: %2. Nada foi importado; libere espaço ali ou indique outra pasta em TMPDIR.</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>a conexão ainda durava</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>O histórico de conexões “%1” já tem o plano “%2”. Nada foi alterado; escolha outro nome.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>O histórico de conexões “%1” não tem mais o plano “%2”, pois outro programa o removeu. Crie-o de novo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>O histórico de conexões “%1” tem a versão %2, mas este programa só conhece versões até a %3. Ele foi deixado como estava; atualize este programa e reinicie-o para usá-lo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Não é possível abrir o histórico de conexões “%1”, porque o caminho dele não está em UTF-8. Renomeie o arquivo ou a pasta cujo nome não está, ou indique outro arquivo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>O histórico de conexões “%1” foi substituído enquanto estava em uso, e “%2” ainda contém registros do arquivo anterior. Feche todos os programas que o usam e coloque o arquivo anterior de volta, ou mova o registro de alterações para outro lugar.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>O histórico de conexões “%1” foi alterado por fora ou substituído; por isso, as alterações no registro “%2” podem ser de um arquivo anterior. Ambos foram deixados como estavam. Mova o registro para outro lugar para usar o histórico como está; ou, se o arquivo nunca foi substituído, renove a data do registro com “touch” para manter as alterações.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>O histórico de conexões “%1” ficou bloqueado por outro programa durante %2 segundos. Feche esse programa ou tente de novo mais tarde.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>Não é possível gravar o histórico de conexões “%1”, porque o disco está cheio. Nada foi alterado; libere espaço e tente de novo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>Não é possível gravar o histórico de conexões “%1” (%2). Nada foi alterado; verifique o disco e as permissões do arquivo e da pasta dele.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>Não é possível abrir o histórico de conexões “%1” (%2). Verifique o disco e as permissões do arquivo e da pasta dele, ou indique outro arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>“%1” não é um histórico de conexões, mas um banco de dados de outro programa. Ele foi deixado como estava; mova-o para outro lugar ou indique outro arquivo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>O histórico de conexões “%1” está danificado (%2). Ele foi deixado como estava; mova-o para outro lugar ou coloque uma cópia no lugar dele.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>Não foi possível trabalhar com o histórico de conexões “%1” (não há memória suficiente). Nada foi alterado; feche outros programas e tente de novo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>Não foi possível trabalhar com o histórico de conexões “%1” (%2). Nada foi alterado; feche outros programas e tente de novo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>“%1” não é um histórico de conexões, mas outro arquivo. Ele foi deixado como estava; mova-o para outro lugar ou indique outro arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>“%1” não é um histórico de conexões, mas uma pasta. Ela foi deixada como estava; mova-a para outro lugar ou indique outro arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>“%1” não é um histórico de conexões, mas um dispositivo. Ele foi deixado como estava; mova-o para outro lugar ou indique outro arquivo.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>O histórico de conexões “%1” está vazio, mas “%2” contém registros dele. Ambos foram deixados como estavam; coloque uma cópia no lugar dele ou mova ambos para outro lugar.</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>a versão indicada é %1</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>“%2” (%1) não é deste programa</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>Um plano do histórico de conexões “%2”, gravado por outro programa, não pode ser usado (%1). Remova-o e crie-o de novo.</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>O plug-in %1 não pôde ser iniciado. “refdialer --debug” mostra até onde ele chegou.</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>A partir de agora, as conexões são registradas em segundo plano: o serviço connrecord.service está ativado e em execução.</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>As conexões só são registradas enquanto esta janela está aberta: o serviço connrecord.service está desativado e foi parado.</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>Não há systemd na sua sessão que possa iniciar o serviço. Em vez disso, faça sua sessão iniciar “connrecord record”.</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>O serviço connrecord.service não está instalado. Instale o pacote connrecord, que o contém.</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>O serviço connrecord.service está ativado, mas não iniciou. “systemctl --user status connrecord” diz por quê.</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>O systemd recusou: %1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>Há uma conexão em andamento, e esta janela a registra.</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>&amp;Não perguntar novamente</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>&amp;Registrar em segundo plano</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>&amp;Parar de registrar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>Um serviço pode continuar registrando sem a janela, agora e sempre que sua sessão estiver aberta.</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Exibir esta ajuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Exibir a versão.</translation>
    </message>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>Usar o histórico em ARQUIVO em vez do seu, para exibir e registrar.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARQUIVO</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>Carregar de ARQUIVO o plug-in do histórico.</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>Usar este idioma só desta vez: %1.</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>Gravar o registro de depuração na saída de erro padrão.</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>Exibir uma cópia temporária de um histórico de exemplo; nada seu é alterado.</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>Registrar também as conexões da interface de rede NOME (ou nome alternativo), não só as de banda larga móvel; pode ser usada várias vezes.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>Registrar as conexões com o perfil (APN) NOME, e não com o nome da interface.</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>Dispensar o serviço de discagem, sem o qual o histórico não reage às conexões.</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>Desenhar a janela, sem tela, na imagem PNG ARQUIVO e sair.</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>Exibe o histórico das conexões de banda larga móvel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>“%1” não é uma opção.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>A opção --%1 precisa de um valor.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>O caminho “%1” do histórico não está em UTF-8. Renomeie o arquivo ou a pasta cujo nome não está, ou informe outro arquivo.</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>--demo e --store excluem-se: a primeira exibe um histórico de exemplo; a segunda, um dos seus.</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>Não há textos no idioma “%1”; há em: %2.</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>“refdialer --help” mostra as opções.</translation>
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
        <translation>Número do SIM, ou seu final</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Todas as conexões</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>Um perfil (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>Um SIM</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>Conexões às quais o plano se aplica</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Sem nome</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>Sem número de SIM</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>Não enquanto houver linhas ocultas: elas também seriam excluídas. Selecione todas as linhas visíveis (Ctrl+A) e exclua-as, ou limpe a pesquisa.</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>Não é possível copiar o histórico de exemplo %1 para %2: %3. Reinstale o refdialer ou libere espaço ali.</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>Este sistema não tem um número próprio em /etc/machine-id: %1.</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>Conexões exportadas: %1</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>Estão em “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>Não é possível gravar “%1”: %2. Verifique o disco, a pasta e suas permissões.</translation>
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
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do arquivo:</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>Tipo de arquivo:</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>Todos os arquivos, reconhecidos pelo conteúdo (%1)</translation>
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
        <translation>&amp;Arquivo</translation>
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
        <translation>&amp;Configurações…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>Conexões estão sendo importadas ou exportadas.</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>Se a janela fechar agora, isso será cancelado: nada será importado, e o arquivo de destino ficará como está.</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>&amp;Fechar a janela</translation>
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
        <translation>“%1” é uma pasta, um pipe ou um dispositivo. Escolha um arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>“%1” pertence ao histórico que esta janela exibe. Escolha outro arquivo.</translation>
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
        <translation>O manual %1 não pode ser aberto aqui. “man refdialer” o mostra em um terminal.</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>O histórico das conexões de banda larga móvel.</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>Licença: MIT. Você pode usar, modificar e repassar este programa; não há garantia.</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>Ele usa Qt %1 e libmnl (LGPL), SQLite (domínio público), SQLiteCpp e JSON for Modern C++ (MIT), libarchive (BSD), zlib (licença zlib) e UTF8-CPP (licença Boost).</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>Sobre o refdialer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>&amp;Sobre o refdialer</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Sobre o &amp;Qt</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>Conexões</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>Ainda não há conexões. Uma conexão móvel aparece aqui quando termina, com o que enviou e recebeu. O que você tem de outras fontes pode ser importado.</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>Nenhuma conexão corresponde à pesquisa.</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>Todas as conexões são mais curtas do que a mais curta que as configurações permitem listar nesta janela.</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>&amp;Registrar em segundo plano</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>Mostrar t&amp;odas as conexões</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>Procurar um perfil</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>&amp;Dias:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Este mês</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Este ano</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>De … até …</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>Dias em que as conexões começaram</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primeiro dia</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>a&amp;té</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último dia</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Selecionadas: %1 · enviado: %2 · recebido: %3 · conectado: %4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Conexões: %1 · enviado: %2 · recebido: %3 · conectado: %4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>De vários arquivos de uma vez, só é possível importar logs. Escolha um arquivo por vez.</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

Foi lido como: %2. Se for outra coisa, escolha o tipo junto com o arquivo.</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>Conexões adicionadas: %1</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>Já no histórico: %1</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>Completadas com o que o log sabe: %1</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1 não mostra os anos; supôs-se que a última linha é de %2. Se estiver errado, exclua o que foi adicionado e importe com “connrecord import --year”.</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>Não usado, %1: %2; primeiro na linha %3 de “%4”: %5</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>Excluindo conexões…</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>Histórico de conexões</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>O plug-in de histórico diz ter estatísticas, mas não é possível pedi-las. Inicie o refdialer com outro: --plugin ARQUIVO.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
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
        <translation>Períodos de um plano de dados</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>Períodos, o atual primeiro</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primeiro dia</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último dia</translation>
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
        <translation>&amp;Plano:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>Lendo o histórico…</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>Nenhum período deste plano começou.</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Atual</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>Todo mês</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>A cada tantos dias</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>Uma vez (pré-pago)</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>Tipo de período</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>A partir do dia do &amp;mês:</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>Um mês sem esse dia começa em seu último dia.</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>Dia&amp;s:</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>Pr&amp;imeiro dia de um período:</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>Pr&amp;imeiro dia:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>Ú&amp;ltimo dia:</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>A&amp;nterior</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Próxi&amp;mo</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>Não é possível gravar a imagem %1: %2. Informe um arquivo em uma pasta na qual você possa gravar.</translation>
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
        <translation>&amp;Remover…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Períodos anteriores…</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>Planos de dados</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Quantidade</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Adicionar…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>Ainda não há plano de dados. Com um, a janela mostra quanto resta dele e avisa antes que se esgote.</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>Remover o plano de dados “%1”?</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>O histórico fica como está.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>Como está o plano</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>Sem roaming</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Em roaming</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>Sem roaming e em roaming</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>Enviado e recebido</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recebido</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>sem limite</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>Novo plano de dados</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>Plano de dados</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>&amp;Para:</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Onde:</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>O &amp;que conta:</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>Quan&amp;tidade por período:</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>P&amp;eríodo:</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>&amp;Usado em outro lugar neste período:</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>&amp;Avisar em (%):</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>Quantidade por período</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>Unidade da quantidade</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>Usado em outro lugar neste período</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>Unidade do que foi usado em outro lugar</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>O que a operadora conta e o histórico não conhece, por exemplo de antes do seu início; menos de 0 subtrai.</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>Dê um nome ao plano.</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>Dê um nome mais curto ao plano.</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>Outro plano já tem esse nome.</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>Escreva o número do SIM ou seu final.</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>Informe o perfil.</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>Nenhum SIM tem um número tão longo.</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>Um plano não pode ser menor que nada.</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>O último dia vem antes do primeiro.</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>Hoje não está em nenhum período deste plano.</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>Escreva porcentagens de 1 a %1, por exemplo 80, 100.</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>Outro programa alterou este plano nesse meio-tempo. OK o salva como está aqui; Cancelar mantém o que o outro fez.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>Planos de dados</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>Consumo do plano de dados “%1”</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>Todos os planos de dados…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>&amp;Planos</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>Planos de &amp;dados…</translation>
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
        <translation>Veja aqui quanto resta de um plano de dados.</translation>
    </message>
    <message>
        <source>Set up a data plan…</source>
        <translation>Configurar um plano de dados…</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>Não oferecer</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>%1 de %2 usados, %3 a mais, hoje é o último dia</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>%1 de %2 usados, %3 a mais, resta %n dia</numerusform>
            <numerusform>%1 de %2 usados, %3 a mais, restam %n dias</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>%1 de %2 usados, restam %3, hoje é o último dia</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>%1 de %2 usados, resta %n dia, %3 por dia</numerusform>
            <numerusform>%1 de %2 usados, restam %n dias, %3 por dia</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>%1 usados, hoje é o último dia</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>%1 usados, resta %n dia</numerusform>
            <numerusform>%1 usados, restam %n dias</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>terminou em %1</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>começa em %1</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>A caminho de %1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>%1% atingidos</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>Esgotado</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>O período vai de %1 a %2.</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>Restam %1.</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>Neste ritmo, serão %1 no final.</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>Todo mês a partir do dia %1</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>A cada %n dia a partir de %1</numerusform>
            <numerusform>A cada %n dias a partir de %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>Uma vez, de %1 a %2</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>%1 a mais.</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>O plug-in %1 não existe.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>Não é possível carregar o plug-in %1: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>O plug-in %1 não oferece as interfaces %2 e %3.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>%1 não é um plug-in para Qt %2: %3.</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>O plug-in %1 é para outra coisa: sua interface é %2, e não %3.</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>Reinstale o refdialer ou informe com --plugin o arquivo de um plug-in adequado.</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>&amp;Notificar-me quando um plano de dados atingir um de seus avisos</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>Registrar também estas in&amp;terfaces:</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>As móveis são sempre registradas. O registro em segundo plano adota uma alteração na próxima vez em que iniciar.</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>Não é possível carregar o serviço de discagem %1: %2. Reinstale o refdialer ou dispense o serviço com --no-dialup-service.</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>O serviço registra no seu próprio histórico, não no que esta janela exibe.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>&amp;Mostrar um resumo após cada conexão</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>&amp;Registrar em segundo plano, também com esta janela fechada</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>Isto só vale até a janela ser fechada: não é possível gravar as configurações em %1. Libere espaço ali ou dê a si mesmo permissão para gravar.</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>Estes textos ainda não foram revisados por falantes do idioma.</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>Cone&amp;xão mais curta listada:</translation>
    </message>
    <message>
        <source> s</source>
        <translation>&#xa0;s</translation>
    </message>
    <message>
        <source>any</source>
        <translation>qualquer</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>O do sistema (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>É mais do que se pode contar.</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>Escreva o número sem separadores de milhar, por exemplo %1 ou %2.</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>Escreva um número, por exemplo %1 ou %2.</translation>
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
        <translation>&amp;Início</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Fim</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Perfil</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>&amp;Duração</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>&amp;Enviado</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>&amp;Recebido</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Crescente</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>Decre&amp;scente</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Not connected</source>
        <translation>Sem conexão</translation>
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
        <translation>Recebido: %1 (%2)</translation>
    </message>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>Histórico de exemplo. As alterações se perdem ao fechar a janela.</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>Histórico em %1</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>Ainda não há conexões registradas em %1</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>Não há memória suficiente para isso. Feche outros programas ou use arquivos menores.</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nada foi importado.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>Nada foi exportado.</translation>
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
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
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
        <translation>Lendo “%1”: %2 de %3</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>Lendo “%1”: %2</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>Adicionando conexões ao histórico: %1 de %2</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Lendo o histórico</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>Gravando conexões: %1 de %2</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Mo&amp;strar:</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>&amp;Barras:</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Por dia</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>Por mês</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>Como &amp;tabela</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>&amp;Copiar texto</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>Copiar ima&amp;gem</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>As setas do teclado vão de barra em barra.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>Nada foi registrado ainda. O que suas conexões transferem aparece aqui.</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>Nada foi enviado nem recebido neste período.</translation>
    </message>
</context>
<context>
    <name>refdialer::UsageText</name>
    <message>
        <source>Plan: %1</source>
        <translation>Plano: %1</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Perfil: %1</translation>
    </message>
    <message>
        <source>SIM ending in %1</source>
        <translation>SIM terminado em %1</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Todas as conexões</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>Recebido sem roaming</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>Enviado sem roaming</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>Recebido em roaming</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>Enviado em roaming</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: nada</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1: recebido %2, enviado %3</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1: recebido %2 sem roaming e %3 em roaming, enviado %4 sem roaming e %5 em roaming</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mês</translation>
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
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Histórico</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Atualizar</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>&amp;Estatísticas…</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>O plug-in de histórico em uso não tem estatísticas. Inicie o refdialer com um que as tenha: --plugin ARQUIVO.</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>&amp;Consumo</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Localizar</translation>
    </message>
</context>
</TS>
