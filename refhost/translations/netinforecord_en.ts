<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>English</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of a message box</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_REVIEWED</source>
        <extracomment>Never shown: &quot;no&quot;, and &quot;yes&quot; once speakers of this language have read every text</extracomment>
        <translation>yes</translation>
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
        <translation>All profiles</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Month before last</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Last month</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>This month</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Profile (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Duration</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Downloaded</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>End</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Start</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Uploaded</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>Delete</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>Delete all</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>Delete connections</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>Profile:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>Times and volumes are measured on this computer; your provider&apos;s bill may differ.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>Month:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>Do you want to delete all connections from the history? They cannot be restored.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>Do you want to delete the selected connections from the history? They cannot be restored.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>Last connection</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Downloaded:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Connected for:</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Uploaded:</translation>
    </message>
</context>
</TS>
