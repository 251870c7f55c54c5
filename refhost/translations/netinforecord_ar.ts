<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>العربية</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_REVIEWED</source>
        <extracomment>Never shown: &quot;no&quot;, and &quot;yes&quot; once speakers of this language have read every text</extracomment>
        <translation>no</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of a message box</extracomment>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>NetInfoRecordUIPlugin</name>
    <message>
        <source>IDS_BTN_OK</source>
        <extracomment>Button that closes a dialog</extracomment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>IDS_COMBO_ALLAPN</source>
        <extracomment>Statistics dialog: entry of the profile list</extracomment>
        <translation>كل ملفات التعريف</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>الشهر قبل الماضي</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>الشهر الماضي</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>هذا الشهر</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>الإحصائيات</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>الملف (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>المدة</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>المستلم</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>النهاية</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>البداية</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>المرسل</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>حذف</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>حذف الكل</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>حذف الاتصالات</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>ملف التعريف:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>يقيس هذا الحاسوب الأوقات وأحجام البيانات، وقد تختلف عنها فاتورة مزود الخدمة.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>الشهر:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>هل تريد حذف كل الاتصالات من السجل؟ لا يمكن استعادتها.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>هل تريد حذف الاتصالات المحددة من السجل؟ لا يمكن استعادتها.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>آخر اتصال</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>الإحصائيات</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>المستلم:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>مدة الاتصال:</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>المرسل:</translation>
    </message>
</context>
<context>
    <name>common::ProblemText</name>
    <message>
        <source>&quot;/proc/sys/kernel/random/boot_id&quot; cannot be read, so connections are not recorded; mount /proc.</source>
        <translation>تتعذر قراءة «‎/proc/sys/kernel/random/boot_id»، ولذلك لا تُسجَّل الاتصالات. صِل نظام الملفات ‎/proc‎.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>لا تُسجَّل الاتصالات لتعذر الكتابة في ⁦%1⁩ (‎%2‎). امنح نفسك إذن الكتابة هناك.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>لا تُسجَّل الاتصالات لأن ⁦%1⁩ يشغل مكان القفل (‎%2‎). انقله إلى مكان آخر.</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>تتعذر مراقبة واجهات الشبكة (‎%1‎)، ولذلك لا تُسجَّل الاتصالات. تعاد المحاولة كل ثانيتين.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>قد يحتوي «⁦%1⁩» على اتصالات ليست في السجل، لكن تتعذر قراءته (‎%2‎). تُرك كما هو؛ انقله إلى مكان آخر.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>تتعذر الكتابة في «⁦%1⁩»‏ (‎%2‎)، ولذلك تضيع الاتصالات التي لم يتمكن السجل من حفظها. امنح نفسك إذن الكتابة هناك.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>الملفان «⁦%1⁩» و«⁦%2⁩» في الطريق، ولذلك تضيع الاتصالات التي لم يتمكن السجل من حفظها. انقلهما إلى مكان آخر.</translation>
    </message>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>لا يمكن أن توجد واجهة شبكة باسم «‎%1‎»: لا يزيد الاسم على 15 بايت والاسم البديل على 127، ولا يحتوي على «/» ولا على مسافات.</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>يسجل برنامج آخر الاتصالات بالفعل، وتظهر هنا عند انتهائها.</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>يسجل %1 آخر الاتصالات بالفعل (العملية %2)، وتظهر هنا عند انتهائها.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>رابط صلب إلى ملف آخر</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>يخص مستخدمًا آخر</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>تالف أو يخص برنامجًا آخر</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>تعرض ساعة النظام وقتًا لا يتسع له السجل، ولذلك يسجَّل للاتصالات ‎%1 UTC‎ بدلًا منه. اضبط الساعة.</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>استُهلك ‎%1%‎ من باقة البيانات «%2»</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>‎%1‎ من ‎%2‎؛ تستمر الفترة حتى ‎%3‎.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>‎%1‎ من ‎%2‎، ويتبقى ‎%3‎ حتى ‎%4‎.</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>CSV table</source>
        <translation>جدول CSV</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JSON, an object a line</source>
        <translation>JSON، كائن واحد في كل سطر</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>سجل نظام فيه رسائل pppd</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>JSON مع البايتات لكل ساعة</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>نهايته مفقودة</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>بدايته تالفة</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>يجب أن يكون السطر الأول الترويسة ‎%1‎</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>عدد أعمدة السطر ‎%1‎، والمطلوب ‎%2‎</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>يحتوي النص على بايت ‎NUL‎</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>النص ليس بترميز ‎UTF-8‎</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>الملف فارغ؛ يجب أن يكون السطر الأول الترويسة ‎%1‎</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1، السطر ‎%2‎، العمود ‎%3‎‏: %4. لم يُستورد شيء.</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>السطر أطول من ‎%1‎ بايت</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>عدد أعمدة السطر أكبر من ‎%1‎</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>النص أطول من ‎%1‎ بايت</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>توجد علامة اقتباس في نص ليس بأكمله بين علامتي اقتباس</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>يوجد محرف إرجاع العربة في نص ليس بين علامتي اقتباس</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>يوجد شيء بين علامة الاقتباس الختامية والفاصلة التالية</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>علامة الاقتباس لا تُغلق أبدًا</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>«⁨%1⁩» ليس عددًا صحيحًا</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>«⁨%1⁩» عدد سالب</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>«⁨%1⁩» أكبر من ‎%2‎</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>«⁨%1⁩» ليس وقتًا بالشكل ‎2024-05-31T18:30:00Z‎</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>«⁨%1⁩» ليس بين ‎%2‎ و‎%3‎</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>«⁨%1⁩» قبل البداية، ‎%2‎</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>«⁨%1⁩» ليس يومًا بالشكل ‎2024-05-31‎</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>عدد بايتات النص ‎%1‎، والحد الأقصى ‎%2‎</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>«⁨%1⁩» ليس «‎%2‎» ولا «‎%3‎» ولا فارغًا</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>تتعذر قراءة %1 حتى النهاية: ⁨%2⁩. لم يُستورد شيء.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>تتعذر قراءة %1‏: ⁨%2⁩. تحقق من الاسم ومن الأذونات.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>الدخل القياسي</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«⁦%1⁩»</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>الحقل «⁨%1⁩»‏: %2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>مفقود</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>ليس عددًا</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>ليس نصًا</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>يحتوي النص على محرف ‎NUL‎</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>ليست ساعة كاملة بتوقيت ‎UTC‎</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>ليس «‎true‎» ولا «‎false‎»</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>إحدى الساعات مكررة</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>مجموع بايتات الساعات لا تتسع له ‎64‎ بتًا</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>مجموع بايتات الساعات لا يساوي بايتات الاتصال</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>ليس مصفوفة</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>ليس للاتصال حقل كهذا</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>ليس كائنًا</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>أطول من ‎%1‎ بايت</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1‏: ⁨%2⁩. لم يُستورد شيء.</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1، الاتصال ‎%2‎‏: %3. لم يُستورد شيء.</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>يجب أن يكون الملف مصفوفة من الكائنات</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>أعمق تداخلًا من اتصال</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1، السطر ‎%2‎‏: ⁨%3⁩. لم يُستورد شيء.</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>اتصال لا ينتهي في سجل النظام</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>مدة اتصال بلا أعداد بايتات</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>أعداد بايتات بلا مدة اتصال</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>تتعذر قراءة الطابع الزمني</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>عدد أو وقت خارج النطاق</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1 أكثر مما يمكن: لا يُقرأ معًا أكثر من ‎%2‎ من رسائل ‎pppd‎ وقفزات الساعة. لم يُستورد شيء؛ استورد ملفات أقل أو أصغر.</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>سجل النظام من هذه الملفات</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1 لا يحتوي على أي سطر يذكر فيه ‎pppd‎ اتصالًا. حدد سجل نظام لجهاز يتصل بواسطته.</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>يتعذر حفظ ما يُقرأ في المجلد «⁦%1⁩» حتى يُضاف إلى السجل: ⁨%2⁩. لم يُستورد شيء؛ وفّر مساحة هناك أو حدد مجلدًا آخر في ‎TMPDIR‎.</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>كان الاتصال ما زال قائمًا</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>يحتوي سجل الاتصالات «⁦%1⁩» على الباقة «%2» بالفعل. لم يتغير شيء؛ اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>لم يعد سجل الاتصالات «⁦%1⁩» يحتوي على الباقة «%2» لأن برنامجًا آخر أزالها. أنشئها من جديد.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>إصدار سجل الاتصالات «⁦%1⁩» هو %2، لكن هذا البرنامج لا يعرف إلا الإصدارات حتى %3. تُرك كما هو؛ حدّث هذا البرنامج وأعد تشغيله لاستخدامه.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>يتعذر فتح سجل الاتصالات «⁦%1⁩» لأن مساره ليس بترميز ‎UTF-8‎. أعد تسمية الملف أو المجلد الذي ليس اسمه كذلك، أو حدد ملفًا آخر.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>استُبدل سجل الاتصالات «⁦%1⁩» أثناء استخدامه، وما زال «⁦%2⁩» يحتوي على تسجيلات من الملف السابق. أغلق كل البرامج التي تستخدمه وأعد الملف السابق إلى مكانه، أو انقل ملف التغييرات إلى مكان آخر.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>عُدّل سجل الاتصالات «⁦%1⁩» من الخارج أو استُبدل، ولذلك قد تكون التغييرات في ملف تغييراته «⁦%2⁩» من ملف سابق. تُرك كلاهما كما هو. انقل ملف التغييرات إلى مكان آخر لاستخدام السجل بحالته هذه؛ وإذا لم يُستبدل الملف قط، فجدّد وقت ملف التغييرات بالأمر «touch» للاحتفاظ بتغييراته.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>ظل سجل الاتصالات «⁦%1⁩» مقفلًا من برنامج آخر لمدة %2 ثوانٍ. أغلق ذلك البرنامج أو أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>تتعذر الكتابة في سجل الاتصالات «⁦%1⁩» لأن القرص ممتلئ. لم يتغير شيء؛ وفّر مساحة وأعد المحاولة.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>تتعذر الكتابة في سجل الاتصالات «⁦%1⁩»‏ (‎%2‎). لم يتغير شيء؛ تحقق من القرص ومن أذونات الملف ومجلده.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>يتعذر فتح سجل الاتصالات «⁦%1⁩»‏ (‎%2‎). تحقق من القرص ومن أذونات الملف ومجلده، أو حدد ملفًا آخر.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>«⁦%1⁩» ليس سجل اتصالات بل قاعدة بيانات لبرنامج آخر. تُركت كما هي؛ انقلها إلى مكان آخر أو حدد ملفًا آخر.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>سجل الاتصالات «⁦%1⁩» تالف (‎%2‎). تُرك كما هو؛ انقله إلى مكان آخر أو ضع نسخة مكانه.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>تعذر العمل على سجل الاتصالات «⁦%1⁩» (الذاكرة لا تكفي). لم يتغير شيء؛ أغلق برامج أخرى وأعد المحاولة.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>تعذر العمل على سجل الاتصالات «⁦%1⁩»‏ (‎%2‎). لم يتغير شيء؛ أغلق برامج أخرى وأعد المحاولة.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>«⁦%1⁩» ليس سجل اتصالات بل ملف آخر. تُرك كما هو؛ انقله إلى مكان آخر أو حدد ملفًا آخر.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>«⁦%1⁩» ليس سجل اتصالات بل مجلد. تُرك كما هو؛ انقله إلى مكان آخر أو حدد ملفًا آخر.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>«⁦%1⁩» ليس سجل اتصالات بل جهاز. تُرك كما هو؛ انقله إلى مكان آخر أو حدد ملفًا آخر.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>سجل الاتصالات «⁦%1⁩» فارغ، لكن «⁦%2⁩» يحتوي على تسجيلات منه. تُرك كلاهما كما هو؛ ضع نسخة مكانه أو انقل كليهما إلى مكان آخر.</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>الإصدار المذكور هو ‎%1‎</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>‏«‎%2‎»‏ (‎%1‎) ليس من صنع هذا البرنامج</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>لا يمكن استخدام باقة في سجل الاتصالات «⁦%2⁩» حفظها برنامج آخر (⁨%1⁩). أزلها وأنشئها من جديد.</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>تعذر بدء الملحق ⁦%1⁩. يبيّن «refdialer --debug» إلى أين وصل.</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>تُسجَّل الاتصالات في الخلفية من الآن فصاعدًا: الخدمة connrecord.service مفعّلة وتعمل.</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>لا تُسجَّل الاتصالات إلا وهذه النافذة مفتوحة: الخدمة connrecord.service معطّلة وقد أُوقفت.</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>ليس لجلستك systemd يمكنه بدء الخدمة. اجعل جلستك تبدأ «connrecord record» بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>الخدمة connrecord.service غير مثبّتة. ثبّت الحزمة connrecord التي تحتويها.</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>الخدمة connrecord.service مفعّلة لكنها لم تبدأ. يبيّن «systemctl --user status connrecord» السبب.</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>رفض systemd: %1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>هناك اتصال جارٍ، وهذه النافذة تسجله.</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>عدم السؤال مجددًا (&amp;D)</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>التسجيل في الخلفية (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>إيقاف التسجيل (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>يمكن لخدمة أن تواصل التسجيل دون النافذة، الآن وكلما سجلت الدخول.</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>عرض الإصدار.</translation>
    </message>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>استخدام السجل الذي في FILE بدلًا من سجلك للعرض والتسجيل.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>تحميل ملحق السجل من FILE.</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>استخدام هذه اللغة هذه المرة: %1.</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>كتابة سجل التنقيح إلى خرج الخطأ القياسي.</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>عرض نسخة مؤقتة من سجل نموذجي؛ لا يُمس شيء من بياناتك.</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>تسجيل اتصالات واجهة الشبكة NAME أيضًا (أو التي هذا اسمها البديل)، لا اتصالات النطاق العريض المحمول فقط؛ يمكن تكراره.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>تسجيل الاتصالات بملف التعريف (APN) المسمى NAME بدلًا من اسم واجهتها.</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>الاستغناء عن خدمة الطلب الهاتفي التي لا يستجيب السجل للاتصالات من دونها.</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>رسم النافذة دون شاشة في صورة PNG اسمها FILE ثم الخروج.</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>يعرض سجل اتصالات النطاق العريض المحمول.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>«‎%1‎» ليس خيارًا.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>يحتاج الخيار ‎--%1‎ إلى قيمة.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>المسار «⁦%1⁩» للسجل ليس بترميز UTF-8. غيّر اسم الملف أو المجلد الذي ليس اسمه كذلك، أو حدد ملفًا آخر.</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>الخياران ‎--demo‎ و‎--store‎ لا يجتمعان: الأول يعرض سجلًا نموذجيًا والثاني سجلًا من سجلاتك.</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>لا توجد نصوص باللغة «%1»؛ المتوفر: ‎%2‎.</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>يعرض «refdialer --help» الخيارات.</translation>
    </message>
</context>
<context>
    <name>refdialer::CoverageEdit</name>
    <message>
        <source>Profile (APN)</source>
        <translation>الملف (APN)</translation>
    </message>
    <message>
        <source>Number of the SIM, or its end</source>
        <translation>رقم الشريحة أو آخره</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>كل الاتصالات</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>ملف تعريف واحد (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>شريحة SIM واحدة</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>الاتصالات التي تشملها الباقة</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>بلا اسم</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>بلا رقم شريحة</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>لا يمكن ذلك ما دامت هناك صفوف مخفية، لأنها ستُحذف أيضًا. حدد كل الصفوف الظاهرة (‎Ctrl+A‎) واحذفها، أو امسح البحث.</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>يتعذر نسخ السجل النموذجي ⁦%1⁩ إلى ⁦%2⁩‏: ‎%3‎. أعد تثبيت refdialer أو وفّر مساحة هناك.</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>ليس لهذا النظام رقم خاص به في ‎/etc/machine-id‏: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>الاتصالات المصدّرة: ‎%1‎</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>وهي في «⁦%1⁩».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>تتعذر الكتابة في «⁦%1⁩»‏: ⁨%2⁩. تحقق من القرص والمجلد وأذوناته.</translation>
    </message>
</context>
<context>
    <name>refdialer::FileChooser</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>المجلد:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>اسم الملف (&amp;N):</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>نوع الملف:</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>كل الملفات، تُعرف من محتواها (%1)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>استيراد (&amp;I)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>تصدير</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>تصدير (&amp;E)</translation>
    </message>
</context>
<context>
    <name>refdialer::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>ملف (&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>استيراد (&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>تصدير (&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>الإعدادات (&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>خروج (&amp;Q)</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>يجري استيراد اتصالات أو تصديرها.</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>إذا أُغلقت النافذة الآن فسيُلغى ذلك: لن يُستورد شيء، ويبقى ملف التصدير كما هو.</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>إغلاق النافذة (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>انتظار (&amp;W)</translation>
    </message>
</context>
<context>
    <name>refdialer::FileProblem</name>
    <message>
        <source>&quot;%1&quot; is a folder, a pipe or a device. Choose a file.</source>
        <translation>«⁦%1⁩» مجلد أو أنبوب أو جهاز. اختر ملفًا.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>«⁦%1⁩» من ملفات السجل الذي تعرضه هذه النافذة. اختر ملفًا آخر.</translation>
    </message>
</context>
<context>
    <name>refdialer::HelpMenu</name>
    <message>
        <source>Manual</source>
        <translation>الدليل</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened here. &quot;man refdialer&quot; shows it in a terminal.</source>
        <translation>يتعذر فتح الدليل ⁦%1⁩ هنا. يعرضه «man refdialer» في الطرفية.</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>سجل اتصالات النطاق العريض المحمول.</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>الترخيص: MIT. يجوز لك استخدام هذا البرنامج وتعديله ونقله إلى غيرك؛ ولا ضمان له.</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>يستخدم ‎Qt %1‎ وlibmnl‎ (LGPL)‎ وSQLite (ملكية عامة) وSQLiteCpp وJSON for Modern C++‎ (MIT)‎ وlibarchive‎ (BSD)‎ وzlib (رخصة zlib) وUTF8-CPP (رخصة Boost).</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>حول refdialer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مساعدة (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>الدليل (&amp;M)</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>حول refdialer (&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>حول &amp;Qt</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>الاتصالات</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>لا توجد اتصالات بعد. يظهر الاتصال المحمول هنا عند انتهائه مع ما أُرسل فيه واستُلم. وما لديك من مصدر آخر يمكن استيراده.</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>لا يطابق البحث أي اتصال.</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>كل الاتصالات أقصر من أقصر اتصال تسمح الإعدادات بعرضه في هذه النافذة.</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>استيراد (&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>التسجيل في الخلفية (&amp;R)</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>عرض كل الاتصالات (&amp;A)</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>البحث عن ملف تعريف</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>الأيام (&amp;D):</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>هذا الشهر</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>الشهر الماضي</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>هذه السنة</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>من … إلى …</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>الأيام التي بدأت فيها الاتصالات</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>اليوم الأول</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>إلى (&amp;O)</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>اليوم الأخير</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>المحدد: %1 · المرسل: ‎%2‎ · المستلم: ‎%3‎ · مدة الاتصال: ‎%4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>الاتصالات: %1 · المرسل: ‎%2‎ · المستلم: ‎%3‎ · مدة الاتصال: ‎%4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>من عدة ملفات معًا لا يمكن استيراد سوى سجلات النظام. اختر ملفًا واحدًا في كل مرة.</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

قُرئ على أنه: %2. إن كان شيئًا آخر فاختر نوعه مع الملف.</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>الاتصالات المضافة: ‎%1‎</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>موجودة في السجل من قبل: ‎%1‎</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>مُكمَّلة من سجل النظام: ‎%1‎</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1 لا يبيّن السنوات؛ افتُرض أن سطره الأخير من سنة ‎%2‎. إن كان ذلك خطأ فاحذف ما أُضيف واستورد بالأمر «‎connrecord import --year‎».</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>لم يُستخدم، ⁨%1⁩‏: ‎%2‎؛ أول مرة في السطر ‎%3‎ من «⁦%4⁩»‏: ⁨%5⁩</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>جارٍ حذف الاتصالات…</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>سجل الاتصالات</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>يذكر ملحق السجل أن فيه إحصائيات لكن يتعذر طلبها منه. شغّل refdialer بملحق آخر: ‎--plugin FILE‎.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>الاستهلاك</translation>
    </message>
</context>
<context>
    <name>refdialer::PastPeriodsDialog</name>
    <message>
        <source>Periods of a data plan</source>
        <translation>فترات باقة بيانات</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>الفترات، والحالية أولًا</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>اليوم الأول</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>اليوم الأخير</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>المستهلك</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>المتبقي</translation>
    </message>
    <message>
        <source>&amp;Plan:</source>
        <translation>الباقة (&amp;P):</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>نسخ (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>قراءة السجل…</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>لم تبدأ أي فترة من هذه الباقة.</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>الحالية</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>كل شهر</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>كل عدد من الأيام</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>مرة واحدة (مسبقة الدفع)</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>نوع الفترة</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>من يوم الشهر (&amp;D):</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>الشهر الذي ليس فيه هذا اليوم يبدأ بآخر أيامه.</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>عدد الأيام (&amp;D):</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>اليوم الأول من فترة (&amp;I):</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>اليوم الأول (&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>اليوم الأخير (&amp;L):</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>السابق (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>التالي (&amp;N)</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>تتعذر كتابة الصورة ⁦%1⁩‏: ‎%2‎. حدد ملفًا في مجلد يمكنك الكتابة فيه.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanDialog</name>
    <message>
        <source>&amp;Edit…</source>
        <translation>تحرير (&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>إزالة (&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>الفترات السابقة (&amp;P)…</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>باقات البيانات</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>الباقة</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>الكمية</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>الفترة</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>إضافة (&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>لا توجد باقة بيانات بعد. عند وجودها تعرض النافذة كم بقي منها وتحذر قبل نفادها.</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>هل تريد إزالة باقة البيانات «%1»؟</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>يبقى السجل كما هو.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>إزالة (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>حالة الباقة</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>محليًا</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>أثناء التجوال</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>محليًا وأثناء التجوال</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>المرسل والمستلم</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>المستلم</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>المرسل</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>بلا حد</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>باقة بيانات جديدة</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>باقة بيانات</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الاسم (&amp;N):</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>تشمل (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>أين (&amp;W):</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>ما يُحتسب (&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>الكمية في الفترة (&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>الفترة (&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>المستهلك في مكان آخر في هذه الفترة (&amp;U):</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>التحذير عند (%) (&amp;T):</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>الكمية في الفترة</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>وحدة الكمية</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>المستهلك في مكان آخر في هذه الفترة</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>وحدة المستهلك في مكان آخر</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>ما يحتسبه مزود الخدمة ولا يعرفه السجل، مثل ما قبل بدايته؛ وما دون 0 يُطرح.</translation>
    </message>
    <message>
        <source>never</source>
        <translation>أبدًا</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>أعط الباقة اسمًا.</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>أعط الباقة اسمًا أقصر.</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>لباقة أخرى هذا الاسم من قبل.</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>اكتب رقم الشريحة أو آخره.</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>حدد ملف التعريف.</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>ليس لأي شريحة رقم بهذا الطول.</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>لا تقل الباقة عن لا شيء.</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>اليوم الأخير قبل الأول.</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>اليوم ليس في أي فترة من هذه الباقة.</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>اكتب نسبًا مئوية من 1 إلى %1، مثل 80, 100.</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>غيّر برنامج آخر هذه الباقة في هذه الأثناء. «موافق» يحفظها كما هي هنا، و«إلغاء» يُبقي ما فعله البرنامج الآخر.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>باقات البيانات</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>‎%1%</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>استهلاك باقة البيانات «%1»</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>كل باقات البيانات…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>الباقات (&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>باقات البيانات (&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>الفترات السابقة (&amp;P)…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanOffer</name>
    <message>
        <source>See here how much of a data plan is left.</source>
        <translation>اعرف هنا كم بقي من باقة البيانات.</translation>
    </message>
    <message>
        <source>Set up a data plan…</source>
        <translation>إعداد باقة بيانات…</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>عدم العرض</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>استُهلك ‎%1‎ من ‎%2‎، بزيادة ‎%3‎، واليوم هو الأخير</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، بزيادة ‎%3‎، ولم يبق أي يوم</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، بزيادة ‎%3‎، وبقي يوم واحد</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، بزيادة ‎%3‎، وبقي يومان</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، بزيادة ‎%3‎، وبقيت %n أيام</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، بزيادة ‎%3‎، وبقي %n يومًا</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، بزيادة ‎%3‎، وبقي %n يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>استُهلك ‎%1‎ من ‎%2‎، وبقي ‎%3‎، واليوم هو الأخير</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، ولم يبق أي يوم، ‎%3‎ في اليوم</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، وبقي يوم واحد، ‎%3‎ في اليوم</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، وبقي يومان، ‎%3‎ في اليوم</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، وبقيت %n أيام، ‎%3‎ في اليوم</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، وبقي %n يومًا، ‎%3‎ في اليوم</numerusform>
            <numerusform>استُهلك ‎%1‎ من ‎%2‎، وبقي %n يوم، ‎%3‎ في اليوم</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>استُهلك ‎%1‎، واليوم هو الأخير</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>استُهلك ‎%1‎، ولم يبق أي يوم</numerusform>
            <numerusform>استُهلك ‎%1‎، وبقي يوم واحد</numerusform>
            <numerusform>استُهلك ‎%1‎، وبقي يومان</numerusform>
            <numerusform>استُهلك ‎%1‎، وبقيت %n أيام</numerusform>
            <numerusform>استُهلك ‎%1‎، وبقي %n يومًا</numerusform>
            <numerusform>استُهلك ‎%1‎، وبقي %n يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>انتهت في %1</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>تبدأ في %1</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>في الطريق إلى ‎%1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>بُلغ ‎%1%</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>نفدت</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>تمتد الفترة من %1 إلى %2.</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>بقي ‎%1‎.</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>بهذه الوتيرة سيكون المجموع في النهاية ‎%1‎.</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>شهريًا من اليوم %1</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>كل %n يوم من %1</numerusform>
            <numerusform>كل يوم من %1</numerusform>
            <numerusform>كل يومين من %1</numerusform>
            <numerusform>كل %n أيام من %1</numerusform>
            <numerusform>كل %n يومًا من %1</numerusform>
            <numerusform>كل %n يوم من %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>مرة واحدة من %1 إلى %2</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>بزيادة ‎%1‎.</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>الملحق ⁦%1⁩ غير موجود.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>يتعذر تحميل الملحق ⁦%1⁩‏: ‎%2‎.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>لا يقدّم الملحق ⁦%1⁩ الواجهتين %2 و%3.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>⁦%1⁩ ليس ملحقًا لإصدار Qt %2: ‎%3‎.</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>الملحق ⁦%1⁩ لغرض آخر: واجهته %2 وليست %3.</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>أعد تثبيت refdialer، أو حدد ملف ملحق مناسب باستخدام ‎--plugin‎.</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>إشعاري عندما تبلغ باقة بيانات أحد تنبيهاتها (&amp;N)</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>تسجيل هذه الواجهات أيضًا (&amp;I):</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>تُسجَّل الواجهات المحمولة دائمًا. ويأخذ التسجيل في الخلفية بالتغيير عند بدئه في المرة القادمة.</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>يتعذر تحميل خدمة الطلب الهاتفي ⁦%1⁩‏: ‎%2‎. أعد تثبيت refdialer، أو استغن عن الخدمة باستخدام ‎--no-dialup-service‎.</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>تسجل الخدمة في سجلك أنت، لا في السجل الذي تعرضه هذه النافذة.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>عرض ملخص بعد كل اتصال (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>التسجيل في الخلفية، حتى عندما تكون هذه النافذة مغلقة (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>اللغة (&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>يسري هذا حتى إغلاق النافذة فقط: تتعذر كتابة الإعدادات في ⁦%1⁩. وفّر مساحة هناك أو امنح نفسك إذن الكتابة.</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>لم يراجع متحدثو اللغة هذه النصوص بعد.</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>أقصر اتصال يُعرض (&amp;T):</translation>
    </message>
    <message>
        <source> s</source>
        <translation>&#xa0;ث</translation>
    </message>
    <message>
        <source>any</source>
        <translation>أي اتصال</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>لغة النظام (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>هذا أكثر مما يمكن عدّه.</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>اكتب العدد دون فواصل للآلاف، مثل %1 أو %2.</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>اكتب عددًا، مثل %1 أو %2.</translation>
    </message>
</context>
<context>
    <name>refdialer::SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>فرز حسب (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>البداية (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>النهاية (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>ملف التعريف (&amp;P)</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>المدة (&amp;U)</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>المرسل (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>المستلم (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>تصاعدي (&amp;A)</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>تنازلي (&amp;G)</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>connected since %1</source>
        <translation>متصل منذ %1</translation>
    </message>
    <message>
        <source>Sent: %1 (%2)</source>
        <translation>المرسل: ‎%1 (‎%2)</translation>
    </message>
    <message>
        <source>Received: %1 (%2)</source>
        <translation>المستلم: ‎%1 (‎%2)</translation>
    </message>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>سجل نموذجي. تزول التغييرات عند إغلاق النافذة.</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>السجل في ⁦%1⁩</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>لم تُسجَّل اتصالات بعد في ⁦%1⁩</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>الذاكرة لا تكفي لهذا. أغلق برامج أخرى، أو استخدم ملفات أصغر.</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>لم يُستورد شيء.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>لم يُصدَّر شيء.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>تصدير</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>جارٍ الإلغاء</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferProgress</name>
    <message>
        <source>Reading &quot;%1&quot;: %2 of %3</source>
        <translation>قراءة «⁦%1⁩»‏: ‎%2‎ من ‎%3‎</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>قراءة «⁦%1⁩»‏: ‎%2‎</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>إضافة الاتصالات إلى السجل: ‎%1‎ من ‎%2‎</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>قراءة السجل</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>كتابة الاتصالات: ‎%1‎ من ‎%2‎</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>إظهار (&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>الأعمدة (&amp;B):</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>حسب اليوم</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>حسب الشهر</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>كجدول (&amp;T)</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>نسخ النص (&amp;X)</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>نسخ الصورة (&amp;I)</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>الاستهلاك</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>تنتقل مفاتيح الأسهم من عمود إلى عمود.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>لم يُسجَّل شيء بعد. يظهر هنا ما تنقله اتصالاتك.</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>لم يُرسل أو يُستلم شيء في هذه المدة.</translation>
    </message>
</context>
<context>
    <name>refdialer::UsageText</name>
    <message>
        <source>Plan: %1</source>
        <translation>الباقة: %1</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>ملف التعريف: %1</translation>
    </message>
    <message>
        <source>SIM ending in %1</source>
        <translation>شريحة تنتهي بالرقم ‎%1</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>كل الاتصالات</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>المستلم محليًا</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>المرسل محليًا</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>المستلم أثناء التجوال</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>المرسل أثناء التجوال</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>من %1 إلى %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: لا شيء</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1: المستلم ‎%2‎، المرسل ‎%3</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1: المستلم ‎%2‎ محليًا و‎%3‎ أثناء التجوال، والمرسل ‎%4‎ محليًا و‎%5‎ أثناء التجوال</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>الشهر</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>المجموع</translation>
    </message>
</context>
<context>
    <name>refdialer::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>عرض (&amp;V)</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>السجل (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>تحديث (&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>الإحصائيات (&amp;T)…</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>ملحق السجل المستخدم ليس فيه إحصائيات. شغّل refdialer بملحق فيه إحصائيات: ‎--plugin FILE‎.</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>الاستهلاك (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>بحث (&amp;F)</translation>
    </message>
</context>
</TS>
