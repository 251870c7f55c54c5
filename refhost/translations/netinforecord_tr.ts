<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>Türkçe</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_REVIEWED</source>
        <extracomment>Never shown: &quot;no&quot;, and &quot;yes&quot; once speakers of this language have read every text</extracomment>
        <translation>no</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of a message box</extracomment>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>NetInfoRecordUIPlugin</name>
    <message>
        <source>IDS_BTN_OK</source>
        <extracomment>Button that closes a dialog</extracomment>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>IDS_COMBO_ALLAPN</source>
        <extracomment>Statistics dialog: entry of the profile list</extracomment>
        <translation>Tüm profiller</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Önceki aydan önceki ay</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Bu ay</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>İstatistikler</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Profil (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Süre</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Alınan</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Gönderilen</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>Sil</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>Tümünü sil</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>Bağlantıları sil</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>Süreleri ve veri miktarını bu bilgisayar ölçer; operatörünüzün faturası farklı olabilir.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>Ay:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>Geçmişteki tüm bağlantıları silmek istiyor musunuz? Geri getirilemezler.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>Seçili bağlantıları geçmişten silmek istiyor musunuz? Geri getirilemezler.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>Son bağlantı</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>İstatistikler</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Alınan:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Bağlı kalınan:</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Gönderilen:</translation>
    </message>
</context>
<context>
    <name>common::ProblemText</name>
    <message>
        <source>&quot;/proc/sys/kernel/random/boot_id&quot; cannot be read, so connections are not recorded; mount /proc.</source>
        <translation>“/proc/sys/kernel/random/boot_id” okunamıyor, bu yüzden bağlantılar kaydedilmiyor. /proc dosya sistemini bağlayın.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>Bağlantılar kaydedilmiyor, çünkü %1 yazılamıyor (%2). Kendinize oraya yazma izni verin.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>Bağlantılar kaydedilmiyor, çünkü %1 kilidin yerini tutuyor (%2). Onu başka yere taşıyın.</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>Ağ arayüzleri izlenemiyor (%1), bu yüzden bağlantılar kaydedilmiyor. İki saniyede bir yeniden deneniyor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>“%1” geçmişte olmayan bağlantılar içeriyor olabilir, ancak okunamıyor (%2). Olduğu gibi bırakıldı; onu başka yere taşıyın.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>“%1” yazılamıyor (%2), bu yüzden geçmişin alamadığı bağlantılar kayboluyor. Kendinize oraya yazma izni verin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>“%1” ve “%2” engel oluyor, bu yüzden geçmişin alamadığı bağlantılar kayboluyor. Onları başka yere taşıyın.</translation>
    </message>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>“%1” adlı bir ağ arayüzü olamaz: bir ad en çok 15 bayt, alternatif ad en çok 127 bayttır; “/” ve boşluk içermez.</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>Bağlantıları zaten başka bir program kaydediyor; sona erdiklerinde burada görünürler.</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>Bağlantıları zaten başka bir %1 kaydediyor (süreç %2); sona erdiklerinde burada görünürler.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>normal bir dosya değil</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>başka bir dosyaya sabit bağ</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>başka bir kullanıcıya ait</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>bozuk ya da başka bir programa ait</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>Sistem saati, geçmişin tutamayacağı bir zamanı gösteriyor; bu yüzden bağlantılara %1 UTC yazılıyor. Saati ayarlayın.</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>“%2” veri planının %%1 kadarı kullanıldı</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>%1 / %2; dönem %3 tarihine kadar sürüyor.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>%1 / %2, %4 tarihine kadar %3 kaldı.</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>CSV table</source>
        <translation>CSV tablosu</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JSON, an object a line</source>
        <translation>JSON, her satırda bir nesne</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>pppd iletileri içeren sistem günlüğü</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>Saatlik baytlarla JSON</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>sonu eksik</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>başı bozuk</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>ilk satır şu başlık olmalı: %1</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>satırda %2 yerine %1 sütun var</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>metin bir NUL baytı içeriyor</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>metin UTF-8 değil</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>dosya boş; ilk satır şu başlık olmalı: %1</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1, satır %2, sütun %3: %4. Hiçbir şey içe aktarılmadı.</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>satır %1 bayttan uzun</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>satırda %1 sütundan fazlası var</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>metin %1 bayttan uzun</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>tamamı tırnak içinde olmayan bir metinde tırnak işareti var</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>tırnak içinde olmayan bir metinde satır başı karakteri var</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>kapanış tırnağı ile sonraki virgül arasında bir şey var</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>tırnak hiç kapatılmıyor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>“%1” bir tam sayı değil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>“%1” negatif</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>“%1”, %2 değerinden büyük</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>“%1”, 2024-05-31T18:30:00Z gibi bir zaman değil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>“%1”, %2 ile %3 arasında değil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>“%1”, %2 olan başlangıçtan önce</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>“%1”, 2024-05-31 gibi bir gün değil</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>metnin bayt sayısı: %1, en çok: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>“%1” ne “%2”, ne “%3”, ne de boş</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>%1 sonuna kadar okunamıyor: %2. Hiçbir şey içe aktarılmadı.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>%1 okunamıyor: %2. Adını ve izinlerini denetleyin.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standart girdi</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>“%1” alanı: %2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>eksik</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>bir sayı değil</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>bir metin değil</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>metin bir NUL karakteri içeriyor</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>UTC’ye göre tam bir saat değil</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>ne “true” ne de “false”</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>bir saat iki kez var</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>saatlik baytların toplamı 64 bite sığmıyor</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>saatlik baytların toplamı bağlantının baytlarına eşit değil</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>bir dizi değil</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>bir bağlantının böyle bir alanı yok</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>bir nesne değil</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>%1 bayttan uzun</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1: %2. Hiçbir şey içe aktarılmadı.</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1, bağlantı %2: %3. Hiçbir şey içe aktarılmadı.</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>dosya bir nesne dizisi olmalı</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>bir bağlantıdan daha derin iç içe</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1, satır %2: %3. Hiçbir şey içe aktarılmadı.</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>bir bağlantı günlükte bitmiyor</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>bir bağlantı süresinin bayt sayıları yok</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>bayt sayılarının bağlantı süresi yok</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>zaman damgası okunamıyor</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>bir sayı ya da zaman aralık dışında</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1 çok fazla: toplamda en çok %2 pppd iletisi ve saat sıçraması bir kerede okunabilir. Hiçbir şey içe aktarılmadı; daha az veya daha küçük dosya içe aktarın.</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>Bu dosyaların günlüğü</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1, pppd’nin bir bağlantıdan söz ettiği hiçbir satır içermiyor. Onunla bağlanan bir makinenin sistem günlüğünü verin.</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>Okunanlar, geçmişe yazılana dek “%1” klasöründe tutulamıyor: %2. Hiçbir şey içe aktarılmadı; orada yer açın ya da TMPDIR içinde başka bir klasör verin.</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>bağlantı hâlâ sürüyordu</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>“%1” bağlantı geçmişinde “%2” planı zaten var. Hiçbir şey değiştirilmedi; başka bir ad seçin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>“%1” bağlantı geçmişinde “%2” planı artık yok, çünkü başka bir program onu kaldırdı. Planı yeniden oluşturun.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>“%1” bağlantı geçmişinin sürümü %2, ancak bu program yalnızca %3 sürümüne kadar olanları tanıyor. Olduğu gibi bırakıldı; kullanmak için bu programı güncelleyip yeniden başlatın.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>“%1” bağlantı geçmişi açılamıyor, çünkü yolu UTF-8 değil. Adı UTF-8 olmayan dosyanın ya da klasörün adını değiştirin veya başka bir dosya verin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>“%1” bağlantı geçmişi kullanılırken değiştirildi ve “%2” hâlâ önceki dosyanın kayıtlarını içeriyor. Onu kullanan tüm programları kapatıp önceki dosyayı geri koyun ya da günlüğü başka yere taşıyın.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>“%1” bağlantı geçmişi dışarıdan düzenlendi ya da yerine başka bir dosya kondu; bu yüzden “%2” günlüğündeki değişiklikler önceki bir dosyaya ait olabilir. İkisi de olduğu gibi bırakıldı. Geçmişi bu hâliyle kullanmak için günlüğü başka yere taşıyın; dosyanın yerine hiç başkası konmadıysa, günlükteki değişiklikleri korumak için “touch” ile günlüğün zamanını yenileyin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>“%1” bağlantı geçmişi başka bir program tarafından %2 saniye boyunca kilitli tutuldu. O programı kapatın ya da daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>“%1” bağlantı geçmişi yazılamıyor, çünkü disk dolu. Hiçbir şey değiştirilmedi; yer açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>“%1” bağlantı geçmişi yazılamıyor (%2). Hiçbir şey değiştirilmedi; diski, dosyanın ve klasörünün izinlerini denetleyin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>“%1” bağlantı geçmişi açılamıyor (%2). Diski, dosyanın ve klasörünün izinlerini denetleyin ya da başka bir dosya verin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>“%1” bir bağlantı geçmişi değil, başka bir programın veri tabanı. Olduğu gibi bırakıldı; onu başka yere taşıyın ya da başka bir dosya verin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>“%1” bağlantı geçmişi bozuk (%2). Olduğu gibi bırakıldı; onu başka yere taşıyın ya da yerine bir kopya koyun.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>“%1” bağlantı geçmişiyle çalışılamadı (bellek yetmiyor). Hiçbir şey değiştirilmedi; başka programları kapatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>“%1” bağlantı geçmişiyle çalışılamadı (%2). Hiçbir şey değiştirilmedi; başka programları kapatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>“%1” bir bağlantı geçmişi değil, başka bir dosya. Olduğu gibi bırakıldı; onu başka yere taşıyın ya da başka bir dosya verin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>“%1” bir bağlantı geçmişi değil, bir klasör. Olduğu gibi bırakıldı; onu başka yere taşıyın ya da başka bir dosya verin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>“%1” bir bağlantı geçmişi değil, bir aygıt. Olduğu gibi bırakıldı; onu başka yere taşıyın ya da başka bir dosya verin.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>“%1” bağlantı geçmişi boş, ancak “%2” onun kayıtlarını içeriyor. İkisi de olduğu gibi bırakıldı; yerine bir kopya koyun ya da ikisini de başka yere taşıyın.</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>belirtilen sürüm %1</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>“%2” (%1) bu programdan değil</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>“%2” bağlantı geçmişinde başka bir programın kaydettiği bir plan kullanılamıyor (%1). Bu planı kaldırın ve yeniden oluşturun.</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>%1 eklentisi başlatılamadı. “refdialer --debug” nereye kadar geldiğini gösterir.</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>Bağlantılar artık arka planda kaydediliyor: connrecord.service hizmeti etkin ve çalışıyor.</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>Bağlantılar yalnızca bu pencere açıkken kaydediliyor: connrecord.service hizmeti devre dışı ve durduruldu.</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>Oturumunuzda hizmeti başlatabilecek bir systemd yok. Bunun yerine oturumunuzun “connrecord record” komutunu başlatmasını sağlayın.</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>connrecord.service hizmeti kurulu değil. Onu içeren connrecord paketini kurun.</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>connrecord.service hizmeti etkin, ancak başlamadı. “systemctl --user status connrecord” nedenini söyler.</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>systemd reddetti: %1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>Bir bağlantı sürüyor ve bu pencere onu kaydediyor.</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>Bir daha &amp;sorma</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>&amp;Arka planda kaydet</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>Kaydı &amp;durdur</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>Bir hizmet, pencere olmadan da kaydı sürdürebilir: şimdi ve oturumunuzun açık olduğu her zaman.</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Bu yardımı göster.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Sürümü göster.</translation>
    </message>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>Göstermek ve kaydetmek için kendi geçmişiniz yerine DOSYA içindeki geçmişi kullan.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DOSYA</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>Geçmiş eklentisini DOSYA içinden yükle.</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>Yalnızca bu kez şu dili kullan: %1.</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>Hata ayıklama günlüğünü standart hataya yaz.</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>Örnek bir geçmişin geçici kopyasını göster; size ait hiçbir şeye dokunulmaz.</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>Yalnızca mobil geniş bant arayüzlerinin değil, AD adlı (ya da alternatif adı bu olan) ağ arayüzünün bağlantılarını da kaydet; birden çok kez verilebilir.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>AD</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>Bağlantıları arayüzlerinin adıyla değil, AD adlı profille (APN) kaydet.</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>Çevirmeli bağlantı hizmetini kullanma; onsuz geçmiş bağlantılara tepki vermez.</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>Pencereyi ekransız olarak DOSYA adlı PNG resmine çiz ve çık.</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>Mobil geniş bant bağlantılarının geçmişini gösterir.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>“%1” bir seçenek değil.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>--%1 seçeneğine bir değer gerekli.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Geçmişin “%1” yolu UTF-8 değil. Adı UTF-8 olmayan dosyayı ya da klasörü yeniden adlandırın ya da başka bir dosya verin.</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>--demo ve --store birlikte kullanılamaz: ilki örnek bir geçmişi, ikincisi sizinkilerden birini gösterir.</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>“%1” dilinde metin yok; olanlar: %2.</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>“refdialer --help” seçenekleri gösterir.</translation>
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
        <translation>SIM numarası ya da sonu</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Tüm bağlantılar</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>Bir profil (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>Bir SIM</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>Planın geçerli olduğu bağlantılar</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Adsız</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>SIM numarası olmayan</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>Satırlar gizliyken olmaz: onlar da silinirdi. Görünen tüm satırları seçip (Ctrl+A) silin ya da aramayı temizleyin.</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>Örnek geçmiş %1, %2 konumuna kopyalanamıyor: %3. refdialer’ı yeniden kurun ya da orada yer açın.</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>Bu sistemin /etc/machine-id içinde kendi numarası yok: %1.</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>Dışa aktarılan bağlantılar: %1</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>Bunlar “%1” içinde.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>“%1” yazılamıyor: %2. Diski, klasörü ve izinlerini denetleyin.</translation>
    </message>
</context>
<context>
    <name>refdialer::FileChooser</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Klasör:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Dosya &amp;adı:</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>Dosya türü:</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>İçe aktar</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>Tüm dosyalar, içeriğinden tanınır (%1)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>İç&amp;e aktar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Dışa aktar</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Dışa aktar</translation>
    </message>
</context>
<context>
    <name>refdialer::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>İç&amp;e aktar…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Dışa aktar…</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Ayarlar…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Çık</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>Bağlantılar içe veya dışa aktarılıyor.</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>Pencere şimdi kapanırsa bu iptal edilir: hiçbir şey içe aktarılmaz ve dışa aktarılacak dosya olduğu gibi kalır.</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>&amp;Pencereyi kapat</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>&amp;Bekle</translation>
    </message>
</context>
<context>
    <name>refdialer::FileProblem</name>
    <message>
        <source>&quot;%1&quot; is a folder, a pipe or a device. Choose a file.</source>
        <translation>“%1” bir klasör, boru veya aygıt. Bir dosya seçin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>“%1” bu pencerenin gösterdiği geçmişe ait. Başka bir dosya seçin.</translation>
    </message>
</context>
<context>
    <name>refdialer::HelpMenu</name>
    <message>
        <source>Manual</source>
        <translation>Kılavuz</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened here. &quot;man refdialer&quot; shows it in a terminal.</source>
        <translation>%1 kılavuzu burada açılamıyor. “man refdialer” onu uçbirimde gösterir.</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>Mobil geniş bant bağlantılarının geçmişi.</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>Lisans: MIT. Bu programı kullanabilir, değiştirebilir ve başkalarına verebilirsiniz; garanti yoktur.</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>Qt %1 ve libmnl (LGPL), SQLite (kamu malı), SQLiteCpp ve JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib lisansı) ve UTF8-CPP (Boost lisansı) kullanır.</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>refdialer hakkında</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Kılavuz</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>&amp;refdialer hakkında</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>&amp;Qt hakkında</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>Bağlantılar</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>Henüz bağlantı yok. Bir mobil bağlantı sona erdiğinde, gönderdikleri ve aldıklarıyla burada görünür. Başka yerden elinizde olanlar içe aktarılabilir.</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>Aramaya uyan bağlantı yok.</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>Tüm bağlantılar, ayarların bu pencerede listelenmesine izin verdiği en kısa bağlantıdan daha kısa.</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>İçe a&amp;ktar…</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>A&amp;rka planda kaydet</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>&amp;Tüm bağlantıları göster</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>Profil ara</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>Gü&amp;nler:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Bu ay</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Bu yıl</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>… ile … arası</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>Bağlantıların başladığı günler</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>İlk gün</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>i&amp;le</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Son gün</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Seçili: %1 · gönderilen: %2 · alınan: %3 · süre: %4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Bağlantı: %1 · gönderilen: %2 · alınan: %3 · süre: %4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>Birden çok dosyadan yalnızca günlükler birlikte içe aktarılabilir. Her seferinde bir dosya seçin.</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

Şöyle okundu: %2. Başka bir şeyse türünü dosyayla birlikte seçin.</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>Eklenen bağlantılar: %1</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>Geçmişte zaten var: %1</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>Günlükten tamamlanan: %1</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1 yılları göstermiyor; son satırının %2 yılından olduğu varsayıldı. Bu yanlışsa ekleneni silin ve “connrecord import --year” ile içe aktarın.</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>Kullanılmadı, %1: %2; ilk olarak “%4” dosyasının %3. satırında: %5</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>Bağlantılar siliniyor…</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>Bağlantı geçmişi</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>Geçmiş eklentisi istatistikleri olduğunu söylüyor, ancak bunlar istenemiyor. refdialer’ı başka bir eklentiyle başlatın: --plugin DOSYA.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Kullanım</translation>
    </message>
</context>
<context>
    <name>refdialer::PastPeriodsDialog</name>
    <message>
        <source>Periods of a data plan</source>
        <translation>Bir veri planının dönemleri</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>Dönemler, şimdiki ilk sırada</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>İlk gün</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Son gün</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Kullanılan</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Kalan</translation>
    </message>
    <message>
        <source>&amp;Plan:</source>
        <translation>&amp;Plan:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>K&amp;opyala</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>Geçmiş okunuyor…</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>Bu planın hiçbir dönemi başlamadı.</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Şimdiki</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>Her ay</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>Belirli sayıda günde bir</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>Bir kez (ön ödemeli)</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>Dönem türü</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>Ayın şu &amp;gününden:</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>Bu günü olmayan bir ay son günüyle başlar.</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>&amp;Gün sayısı:</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>Bir dönemin i&amp;lk günü:</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>İ&amp;lk gün:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>S&amp;on gün:</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>Ö&amp;nceki</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Sonra&amp;ki</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>%1 resmi yazılamıyor: %2. Yazabildiğiniz bir klasörde bir dosya verin.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanDialog</name>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Düzenle…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>Ka&amp;ldır…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Geçmiş dönemler…</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>Veri planları</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Miktar</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Dönem</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ekle…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>Henüz veri planı yok. Bir plan olduğunda pencere ne kadar kaldığını gösterir ve tükenmeden önce uyarır.</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>“%1” veri planı kaldırılsın mı?</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>Geçmiş olduğu gibi kalır.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ka&amp;ldır</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>Planın durumu</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>Dolaşım dışı</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Dolaşım</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>Dolaşım dışı ve dolaşım</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>Gönderilen ve alınan</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Alınan</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gönderilen</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>sınırsız</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>hiç</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>Yeni veri planı</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>Veri planı</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Ad:</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>&amp;Kapsam:</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Nerede:</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>&amp;Sayılan:</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>Dönem &amp;miktarı:</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>&amp;Dönem:</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>Bu dönemde &amp;başka yerde kullanılan:</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>&amp;Uyarı yüzdeleri:</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>Dönem miktarı</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>Miktarın birimi</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>Bu dönemde başka yerde kullanılan</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>Başka yerde kullanılanın birimi</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>Operatörün saydığı ve geçmişin bilmediği, örneğin başlangıcından önceki; 0’dan azı düşülür.</translation>
    </message>
    <message>
        <source>never</source>
        <translation>hiçbir zaman</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>Plana bir ad verin.</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>Plana daha kısa bir ad verin.</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>Başka bir planın adı zaten bu.</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>SIM numarasını ya da sonunu yazın.</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>Profilin adını verin.</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>Hiçbir SIM bu kadar uzun numaralı değildir.</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>Sıfırdan az plan olamaz.</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>Son gün ilk günden önce.</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>Bugün bu planın hiçbir döneminde değil.</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>1 ile %1 arasında yüzdeler yazın, örneğin 80, 100.</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>Bu arada başka bir program bu planı değiştirdi. Tamam, planı burada durduğu gibi kaydeder; İptal, diğerinin yaptığını korur.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>Veri planları</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%%1</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>“%1” veri planının kullanımı</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>Tüm veri planları…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>&amp;Planlar</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>&amp;Veri planları…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Geçmiş dönemler…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanOffer</name>
    <message>
        <source>See here how much of a data plan is left.</source>
        <translation>Bir veri planından ne kadar kaldığını burada görün.</translation>
    </message>
    <message>
        <source>Set up a data plan…</source>
        <translation>Veri planı oluştur…</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>Önerme</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>%1 / %2 kullanıldı, %3 aşıldı, bugün son gün</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>%1 / %2 kullanıldı, %3 aşıldı, %n gün kaldı</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>%1 / %2 kullanıldı, %3 kaldı, bugün son gün</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>%1 / %2 kullanıldı, %n gün kaldı, günde %3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>%1 kullanıldı, bugün son gün</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>%1 kullanıldı, %n gün kaldı</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>bitiş: %1</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>başlangıç: %1</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>Gidişat: %1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>%%1 doldu</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>Tükendi</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>Dönem: %1 – %2.</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>%1 kaldı.</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>Bu hızla sonunda %1 olacak.</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>Her ayın %1. gününden</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>%1 tarihinden %n günde bir</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>%1 – %2 arasında bir kez</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>%1 aşıldı.</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>%1 eklentisi yok.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>%1 eklentisi yüklenemiyor: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>%1 eklentisi %2 ve %3 arayüzlerini sunmuyor.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>%1, Qt %2 için bir eklenti değil: %3.</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>%1 eklentisi başka bir şey için: arayüzü %2, %3 değil.</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>refdialer’ı yeniden kurun ya da uygun bir eklentinin dosyasını --plugin ile verin.</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>Bir veri planı uyarılarından birine ulaşınca &amp;bildir</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>Şu a&amp;rayüzleri de kaydet:</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>Mobil olanlar her zaman kaydedilir. Arka plandaki kayıt, bir değişikliği bir sonraki başlangıcında dikkate alır.</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>Çevirmeli bağlantı hizmeti %1 yüklenemiyor: %2. refdialer’ı yeniden kurun ya da hizmeti --no-dialup-service ile dışarıda bırakın.</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>Hizmet, bu pencerenin gösterdiği geçmişe değil, kendi geçmişinize kaydeder.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>Her bağlantıdan sonra bir &amp;özet göster</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>Bu pencere kapalıyken de &amp;arka planda kaydet</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Dil:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>Bu yalnızca pencere kapanana kadar geçerli: ayarlar %1 içine yazılamıyor. Orada yer açın ya da kendinize yazma izni verin.</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>Bu metinler henüz bu dili konuşanlarca gözden geçirilmedi.</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>Li&amp;stelenen en kısa bağlantı:</translation>
    </message>
    <message>
        <source> s</source>
        <translation>&#xa0;sn</translation>
    </message>
    <message>
        <source>any</source>
        <translation>herhangi</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>Sisteminki (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>Bu, sayılabilecek olandan fazla.</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>Sayıyı binlik ayırıcı kullanmadan yazın, örneğin %1 ya da %2.</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>Bir sayı yazın, örneğin %1 ya da %2.</translation>
    </message>
</context>
<context>
    <name>refdialer::SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Sırala</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Başlangıç</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>Bi&amp;tiş</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>&amp;Süre</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>&amp;Gönderilen</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>&amp;Alınan</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>A&amp;rtan</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>A&amp;zalan</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Not connected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>connected since %1</source>
        <translation>bağlantı başlangıcı: %1</translation>
    </message>
    <message>
        <source>Sent: %1 (%2)</source>
        <translation>Gönderilen: %1 (%2)</translation>
    </message>
    <message>
        <source>Received: %1 (%2)</source>
        <translation>Alınan: %1 (%2)</translation>
    </message>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>Örnek geçmiş. Değişiklikler pencere kapanınca kaybolur.</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>Geçmiş: %1</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>%1 içinde henüz kayıtlı bağlantı yok</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>Bunun için bellek yetmiyor. Başka programları kapatın veya daha küçük dosyalar alın.</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>Hiçbir şey içe aktarılmadı.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>Hiçbir şey dışa aktarılmadı.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>İçe aktar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Dışa aktar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>İptal ediliyor</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferProgress</name>
    <message>
        <source>Reading &quot;%1&quot;: %2 of %3</source>
        <translation>“%1” okunuyor: %2 / %3</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>“%1” okunuyor: %2</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>Bağlantılar geçmişe ekleniyor: %1 / %2</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Geçmiş okunuyor</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>Bağlantılar yazılıyor: %1 / %2</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Gö&amp;ster:</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>Çu&amp;buklar:</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Güne göre</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>Aya göre</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>&amp;Tablo olarak</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>&amp;Metni kopyala</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>&amp;Resmi kopyala</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Kullanım</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>Ok tuşları çubuktan çubuğa gider.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>Henüz hiçbir şey kaydedilmedi. Bağlantılarınızın aktardıkları burada görünür.</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>Bu sürede hiçbir şey gönderilmedi ya da alınmadı.</translation>
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
        <translation>%1 ile biten SIM</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Tüm bağlantılar</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>Alınan (dolaşım dışı)</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>Gönderilen (dolaşım dışı)</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>Alınan (dolaşım)</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>Gönderilen (dolaşım)</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: hiçbir şey</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1: alınan %2, gönderilen %3</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1: alınan %2 dolaşım dışı ve %3 dolaşım, gönderilen %4 dolaşım dışı ve %5 dolaşım</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Gün</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Ay</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Toplam</translation>
    </message>
</context>
<context>
    <name>refdialer::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Geçmiş</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Yenile</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>İs&amp;tatistikler…</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>Kullanılan geçmiş eklentisinin istatistikleri yok. refdialer’ı istatistikleri olan bir eklentiyle başlatın: --plugin DOSYA.</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>&amp;Kullanım</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Bul</translation>
    </message>
</context>
</TS>
