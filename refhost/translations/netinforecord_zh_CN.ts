<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_REVIEWED</source>
        <extracomment>Never shown: &quot;no&quot;, and &quot;yes&quot; once speakers of this language have read every text</extracomment>
        <translation>no</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of a message box</extracomment>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>NetInfoRecordUIPlugin</name>
    <message>
        <source>IDS_BTN_OK</source>
        <extracomment>Button that closes a dialog</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_COMBO_ALLAPN</source>
        <extracomment>Statistics dialog: entry of the profile list</extracomment>
        <translation>所有配置</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>上上个月</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>上个月</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>本月</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>统计</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>配置 (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>时长</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>已接收</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>结束</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>开始</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>已发送</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>删除</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>全部删除</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>删除连接</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>配置：</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>时间和流量由本计算机测量，运营商的账单可能有所不同。</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>月份：</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>要从历史记录中删除所有连接吗？删除后无法恢复。</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>要从历史记录中删除所选的连接吗？删除后无法恢复。</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>上次连接</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>统计</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>已接收：</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>连接时长：</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>已发送：</translation>
    </message>
</context>
<context>
    <name>common::ProblemText</name>
    <message>
        <source>&quot;/proc/sys/kernel/random/boot_id&quot; cannot be read, so connections are not recorded; mount /proc.</source>
        <translation>无法读取“/proc/sys/kernel/random/boot_id”，因此不记录连接。请挂载 /proc。</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>无法写入 %1（%2），因此不记录连接。请为自己授予该处的写入权限。</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>%1 占用了锁文件的位置（%2），因此不记录连接。请将其移走。</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>无法监视网络接口（%1），因此不记录连接。每两秒会重试一次。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>“%1”中可能有历史记录里没有的连接，但无法读取（%2）。该文件保持原样，请将其移走。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>无法写入“%1”（%2），因此历史记录未能保存的连接会丢失。请为自己授予该处的写入权限。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>“%1”和“%2”占用了位置，因此历史记录未能保存的连接会丢失。请将它们移走。</translation>
    </message>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>不可能存在网络接口“%1”：名称最多 15 个字节，备用名称最多 127 个字节，且不含“/”和空白字符。</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>另一个程序已在记录连接，连接结束后会显示在这里。</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>另一个 %1 已在记录连接（进程 %2），连接结束后会显示在这里。</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>是另一个文件的硬链接</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>属于其他用户</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>已损坏或属于其他程序</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>系统时钟显示的时间超出了历史记录的范围，因此连接的时间记为 %1 UTC。请校准时钟。</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>流量套餐“%2”已使用 %1%</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>已用 %1，共 %2；本周期到 %3 为止。</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>已用 %1，共 %2，在 %4 之前还剩 %3。</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>CSV table</source>
        <translation>CSV 表格</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JSON, an object a line</source>
        <translation>JSON，每行一个对象</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>含 pppd 消息的系统日志</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>含每小时字节数的 JSON</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>缺少结尾</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>开头已损坏</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>第一行必须是表头 %1</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>该行有 %1 列，应有 %2 列</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>文本含有 NUL 字节</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>文本不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>文件为空，第一行必须是表头 %1</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1，第 %2 行，“%3”列：%4。未导入任何内容。</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>该行超过 %1 个字节</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>该行超过 %1 列</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>文本超过 %1 个字节</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>引号出现在没有整体用引号括起的文本中</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>回车符出现在没有用引号括起的文本中</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>右引号与下一个逗号之间有其他内容</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>引号始终没有闭合</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>“%1”不是整数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>“%1”是负数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>“%1”大于 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>“%1”不是 2024-05-31T18:30:00Z 这样的时间</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>“%1”不在 %2 和 %3 之间</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>“%1”早于开始时间 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>“%1”不是 2024-05-31 这样的日期</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>文本有 %1 个字节，最多允许 %2 个</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>“%1”既不是“%2”也不是“%3”，也不为空</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>无法将%1读到结尾：%2。未导入任何内容。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>无法读取%1：%2。请检查其名称和权限。</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>字段“%1”：%2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>不是数字</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>不是文本</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>文本含有 NUL 字符</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>不是 UTC 的整点</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>既不是“true”也不是“false”</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>某个小时出现了两次</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>各小时字节数之和超出 64 位</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>各小时字节数之和与该连接的字节数不符</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>不是数组</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>连接没有这样的字段</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>不是对象</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>超过 %1 个字节</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1：%2。未导入任何内容。</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1，第 %2 个连接：%3。未导入任何内容。</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>文件必须是对象数组</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>嵌套层次比连接更深</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1，第 %2 行：%3。未导入任何内容。</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>有连接在日志中没有结束</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>有连接时长但没有字节数</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>有字节数但没有连接时长</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>无法读取时间戳</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>数字或时间超出范围</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1过大：一次最多共可读取 %2 条 pppd 消息和时钟跳变。未导入任何内容，请导入更少或更小的文件。</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>这些文件的日志</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1中没有 pppd 报告连接的行。请指定用它拨号的计算机的系统日志。</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>在存入历史记录之前，无法将读取的内容保存在文件夹“%1”中：%2。未导入任何内容，请在该处腾出空间，或在 TMPDIR 中指定其他文件夹。</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>连接仍在进行</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>连接历史记录“%1”中已有套餐“%2”。未做任何更改，请选择其他名称。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>连接历史记录“%1”中已没有套餐“%2”，其他程序已将其移除。请重新创建。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>连接历史记录“%1”的版本为 %2，但此程序只支持到版本 %3。该文件保持原样，请更新并重新启动此程序后再使用。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>无法打开连接历史记录“%1”，因为其路径不是 UTF-8 编码。请重命名名称不是 UTF-8 的文件或文件夹，或指定其他文件。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>连接历史记录“%1”在使用过程中被替换，而“%2”中仍有原文件的记录。请关闭所有使用它的程序并放回原文件，或将该日志移走。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>连接历史记录“%1”被外部更改或替换，因此其日志“%2”中的更改可能属于以前的文件。两者均保持原样。要按现状使用历史记录，请将日志移走；如果文件从未被替换，请用“touch”更新日志的时间以保留其中的更改。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>连接历史记录“%1”已被其他程序锁定 %2 秒。请关闭该程序，或稍后重试。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>无法写入连接历史记录“%1”，因为磁盘已满。未做任何更改，请腾出空间后重试。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>无法写入连接历史记录“%1”（%2）。未做任何更改，请检查磁盘以及该文件及其文件夹的权限。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>无法打开连接历史记录“%1”（%2）。请检查磁盘以及该文件及其文件夹的权限，或指定其他文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>“%1”不是连接历史记录，而是其他程序的数据库。该文件保持原样，请将其移走，或指定其他文件。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>连接历史记录“%1”已损坏（%2）。该文件保持原样，请将其移走，或用副本替换。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>无法处理连接历史记录“%1”（内存不足）。未做任何更改，请关闭其他程序后重试。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>无法处理连接历史记录“%1”（%2）。未做任何更改，请关闭其他程序后重试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>“%1”不是连接历史记录，而是其他文件。该文件保持原样，请将其移走，或指定其他文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>“%1”不是连接历史记录，而是文件夹。该文件夹保持原样，请将其移走，或指定其他文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>“%1”不是连接历史记录，而是设备。该设备保持原样，请将其移走，或指定其他文件。</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>连接历史记录“%1”为空，但“%2”中有它的记录。两者均保持原样，请放入副本替换，或将两者都移走。</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>注明的版本为 %1</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>“%2”（%1）不是由此程序创建的</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>连接历史记录“%2”中有其他程序保存的套餐无法使用（%1）。请将其移除并重新创建。</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>插件 %1 无法启动。“refdialer --debug”会显示它进行到了哪一步。</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>从现在起在后台记录连接：服务 connrecord.service 已启用并正在运行。</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>仅在此窗口打开时记录连接：服务 connrecord.service 已禁用并停止。</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>您的会话中没有可以启动该服务的 systemd。请改为让会话启动“connrecord record”。</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>服务 connrecord.service 未安装。请安装提供它的软件包 connrecord。</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>服务 connrecord.service 已启用但未能启动。“systemctl --user status connrecord”会说明原因。</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>systemd 已拒绝：%1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>有一个连接正在进行，此窗口正在记录它。</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>不再询问(&amp;D)</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>在后台记录(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>停止记录(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>服务可以在没有窗口的情况下继续记录，无论现在还是您每次登录之后。</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>使用指定文件中的历史记录进行显示和记录，而不使用您自己的历史记录。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>从指定文件加载历史记录插件。</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>仅本次使用此语言：%1。</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>将调试日志写入标准错误输出。</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>显示示例历史记录的临时副本，不会改动您的任何数据。</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>也记录具有指定名称（或备用名称）的网络接口的连接，而不仅是移动宽带接口的；可多次指定。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>以指定的配置 (APN) 名称而不是接口名称记录连接。</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>不使用拨号服务；没有它，历史记录不会对连接作出反应。</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>不使用显示器，将窗口绘制到指定的 PNG 图片文件，然后退出。</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>显示移动宽带连接的历史记录。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>“%1”不是选项。</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>选项 --%1 需要一个值。</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>历史记录的路径“%1”不是 UTF-8 编码。请重命名不符合的文件或文件夹，或指定其他文件。</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>--demo 和 --store 不能同时使用：前者显示示例历史记录，后者显示您自己的历史记录。</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>没有“%1”语言的文本；可用的有：%2。</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>“refdialer --help”会显示选项。</translation>
    </message>
</context>
<context>
    <name>refdialer::CoverageEdit</name>
    <message>
        <source>Profile (APN)</source>
        <translation>配置 (APN)</translation>
    </message>
    <message>
        <source>Number of the SIM, or its end</source>
        <translation>SIM 卡号或其尾号</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>所有连接</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>一个配置 (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>一张 SIM 卡</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>套餐适用的连接</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>无名称</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>无 SIM 卡号</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>有隐藏的行时不能这样做：隐藏的行也会被删除。请选择所有可见的行 (Ctrl+A) 并删除，或清除搜索。</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>无法将示例历史记录 %1 复制到 %2：%3。请重新安装 refdialer，或在该处腾出空间。</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>此系统在 /etc/machine-id 中没有自己的编号：%1。</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>已导出的连接：%1</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>它们在“%1”中。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>无法写入“%1”：%2。请检查磁盘、文件夹及其权限。</translation>
    </message>
</context>
<context>
    <name>refdialer::FileChooser</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>文件种类：</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>所有文件，按内容识别 (%1)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>导出(&amp;E)</translation>
    </message>
</context>
<context>
    <name>refdialer::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>正在导入或导出连接。</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>如果现在关闭窗口，操作将取消：不会导入任何内容，要导出到的文件保持不变。</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>关闭窗口(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>等待(&amp;W)</translation>
    </message>
</context>
<context>
    <name>refdialer::FileProblem</name>
    <message>
        <source>&quot;%1&quot; is a folder, a pipe or a device. Choose a file.</source>
        <translation>“%1”是文件夹、管道或设备。请选择文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>“%1”属于此窗口显示的历史记录。请选择其他文件。</translation>
    </message>
</context>
<context>
    <name>refdialer::HelpMenu</name>
    <message>
        <source>Manual</source>
        <translation>手册</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened here. &quot;man refdialer&quot; shows it in a terminal.</source>
        <translation>无法在此处打开手册 %1。“man refdialer”会在终端中显示它。</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>移动宽带连接的历史记录。</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>许可证：MIT。您可以使用、修改和分发本程序；不提供任何担保。</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>它使用 Qt %1 和 libmnl (LGPL)、SQLite（公有领域）、SQLiteCpp 和 JSON for Modern C++ (MIT)、libarchive (BSD)、zlib（zlib 许可证）以及 UTF8-CPP（Boost 许可证）。</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>关于 refdialer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>手册(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>关于 refdialer(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>关于 Qt(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>连接</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>还没有连接。移动连接结束后会显示在这里，并附有其发送和接收的流量。您在别处已有的记录可以导入。</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>没有与搜索匹配的连接。</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>所有连接都短于设置允许此窗口列出的最短连接。</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>在后台记录(&amp;R)</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>显示所有连接(&amp;A)</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>搜索配置</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>日期(&amp;D)：</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>本月</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>今年</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>从…到…</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>连接开始的日期</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>第一天</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>至(&amp;O)</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>最后一天</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>已选择：%1 · 已发送：%2 · 已接收：%3 · 连接时长：%4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>连接：%1 · 已发送：%2 · 已接收：%3 · 连接时长：%4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>一次多个文件时只能导入日志。请每次选择一个文件。</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

已按此种类读取：%2。如果是其他种类，请在选择文件时一并选择。</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>已添加的连接：%1</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>历史记录中已有：%1</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>根据日志补全：%1</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1未显示年份；已假定其最后一行属于 %2 年。如果不对，请删除已添加的内容，并用“connrecord import --year”导入。</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>未使用，%1：%2；首次出现在“%4”的第 %3 行：%5</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>正在删除连接…</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>连接历史记录</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>历史记录插件声称有统计功能，但无法向它查询。请使用其他插件启动 refdialer：--plugin 文件。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>用量</translation>
    </message>
</context>
<context>
    <name>refdialer::PastPeriodsDialog</name>
    <message>
        <source>Periods of a data plan</source>
        <translation>流量套餐的周期</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>周期，当前周期在前</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>第一天</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>最后一天</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>剩余</translation>
    </message>
    <message>
        <source>&amp;Plan:</source>
        <translation>套餐(&amp;P)：</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>正在读取历史记录…</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>此套餐尚无已开始的周期。</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>当前</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>每隔若干天</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>一次性（预付费）</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>周期类型</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>每月起始日(&amp;D)：</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>没有该日的月份从其最后一天开始。</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>天数(&amp;D)：</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>周期的第一天(&amp;I)：</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>第一天(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>最后一天(&amp;L)：</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>上一个(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一个(&amp;N)</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>无法写入图片 %1：%2。请指定一个您可以写入的文件夹中的文件。</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanDialog</name>
    <message>
        <source>&amp;Edit…</source>
        <translation>编辑(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>移除(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>以往周期(&amp;P)…</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>流量套餐</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>套餐</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>周期</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>还没有流量套餐。设置套餐后，窗口会显示剩余流量，并在用完之前提醒您。</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>要移除流量套餐“%1”吗？</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>历史记录保持不变。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>套餐状况</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>非漫游</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>非漫游和漫游</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>已发送和已接收</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>不限量</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>新建流量套餐</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>流量套餐</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>适用于(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>位置(&amp;W)：</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>计入(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>每周期流量(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>周期(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>本周期在别处已用(&amp;U)：</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>提醒百分比(&amp;T)：</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>每周期流量</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>流量单位</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>本周期在别处已用</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>别处已用流量的单位</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>运营商计入而历史记录不知道的流量，例如记录开始之前的；小于 0 表示扣减。</translation>
    </message>
    <message>
        <source>never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>请为套餐命名。</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>请为套餐取一个较短的名称。</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>已有另一个套餐使用此名称。</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>请输入 SIM 卡号或其尾号。</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>请指定配置。</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>没有这么长的 SIM 卡号。</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>套餐不能少于零。</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>最后一天早于第一天。</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>今天不在此套餐的任何周期内。</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>请输入 1 到 %1 的百分比，例如 80, 100。</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>其他程序在此期间更改了此套餐。“确定”将按此处的内容保存，“取消”将保留其他程序所做的更改。</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>流量套餐</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>流量套餐“%1”的用量</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>所有流量套餐…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>套餐(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>流量套餐(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>以往周期(&amp;P)…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanOffer</name>
    <message>
        <source>See here how much of a data plan is left.</source>
        <translation>在此查看流量套餐还剩多少。</translation>
    </message>
    <message>
        <source>Set up a data plan…</source>
        <translation>设置流量套餐…</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>不再提示</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>已用 %1，共 %2，超出 %3，今天是最后一天</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>已用 %1，共 %2，超出 %3，剩余 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>已用 %1，共 %2，剩余 %3，今天是最后一天</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>已用 %1，共 %2，剩余 %n 天，每天 %3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>已用 %1，今天是最后一天</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>已用 %1，剩余 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>已于 %1 结束</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>将于 %1 开始</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>预计达到 %1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>已达 %1%</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>已用完</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>周期为 %1 至 %2。</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>剩余 %1。</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>按此速度，最终将达到 %1。</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>每月 %1 日起</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>自 %1 起每 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>一次性，%1 至 %2</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>超出 %1。</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>插件 %1 不存在。</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>无法加载插件 %1：%2。</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>插件 %1 不提供接口 %2 和 %3。</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>%1 不是 Qt %2 的插件：%3。</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>插件 %1 用于其他用途：它的接口是 %2 而不是 %3。</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>请重新安装 refdialer，或用 --plugin 指定合适的插件文件。</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>流量套餐达到提醒值时通知我(&amp;N)</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>同时记录这些接口(&amp;I)：</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>移动接口始终会记录。后台记录会在下次启动时采用更改。</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>无法加载拨号服务 %1：%2。请重新安装 refdialer，或用 --no-dialup-service 不使用该服务。</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>该服务记录到您自己的历史记录中，而不是此窗口显示的历史记录。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>每次连接后显示摘要(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>在后台记录，即使此窗口已关闭(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>此设置仅在窗口关闭之前有效：无法将设置写入 %1。请在该处腾出空间，或为自己授予写入权限。</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>这些文本尚未经该语言的使用者审阅。</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>列出的最短连接(&amp;T)：</translation>
    </message>
    <message>
        <source> s</source>
        <translation>&#xa0;秒</translation>
    </message>
    <message>
        <source>any</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>系统语言 (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>超出了可以计数的范围。</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>请输入不带千位分隔符的数字，例如 %1 或 %2。</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>请输入数字，例如 %1 或 %2。</translation>
    </message>
</context>
<context>
    <name>refdialer::SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>排序方式(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>结束(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>配置(&amp;P)</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>时长(&amp;U)</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>已发送(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>已接收(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>升序(&amp;A)</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>降序(&amp;G)</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>connected since %1</source>
        <translation>连接始于 %1</translation>
    </message>
    <message>
        <source>Sent: %1 (%2)</source>
        <translation>已发送：%1 (%2)</translation>
    </message>
    <message>
        <source>Received: %1 (%2)</source>
        <translation>已接收：%1 (%2)</translation>
    </message>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>示例历史记录。窗口关闭后更改会丢失。</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>历史记录位于 %1</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>%1 中尚无连接记录</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>内存不足，无法完成。请关闭其他程序，或使用较小的文件。</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>未导入任何内容。</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>未导出任何内容。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>正在取消</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferProgress</name>
    <message>
        <source>Reading &quot;%1&quot;: %2 of %3</source>
        <translation>正在读取“%1”：%2 / %3</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>正在读取“%1”：%2</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>正在将连接添加到历史记录：%1 / %2</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>正在读取历史记录</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>正在写入连接：%1 / %2</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>显示(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>柱形(&amp;B)：</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>按天</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>按月</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>表格形式(&amp;T)</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>复制文本(&amp;X)</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>复制图片(&amp;I)</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>用量</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>方向键在柱形之间移动。</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>还没有任何记录。您的连接传输的流量会显示在这里。</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>这段时间内没有发送或接收任何数据。</translation>
    </message>
</context>
<context>
    <name>refdialer::UsageText</name>
    <message>
        <source>Plan: %1</source>
        <translation>套餐：%1</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>配置：%1</translation>
    </message>
    <message>
        <source>SIM ending in %1</source>
        <translation>尾号为 %1 的 SIM 卡</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>所有连接</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>非漫游接收</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>非漫游发送</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>漫游接收</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>漫游发送</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%2年%1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1：无</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1：已接收 %2，已发送 %3</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1：非漫游接收 %2，漫游接收 %3；非漫游发送 %4，漫游发送 %5</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月份</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合计</translation>
    </message>
</context>
<context>
    <name>refdialer::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>历史记录(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>统计(&amp;T)…</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>正在使用的历史记录插件没有统计功能。请使用带有统计功能的插件启动 refdialer：--plugin 文件。</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>用量(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
</context>
</TS>
