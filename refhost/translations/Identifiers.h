// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace refhost
{

/// The string identifiers that the host itself shows.
constexpr const char *hostIdentifiers[] = {
    //: Button of a message box
    QT_TRANSLATE_NOOP("Host", "IDS_CANCEL"),
    //: What speakers of this language call it
    QT_TRANSLATE_NOOP("Host", "IDS_LANGUAGE_NAME"),
    //: Never shown: "no", and "yes" once speakers of this language have read every text
    QT_TRANSLATE_NOOP("Host", "IDS_LANGUAGE_REVIEWED"),
    //: Button of a message box
    QT_TRANSLATE_NOOP("Host", "IDS_OK"),
};

/// The string identifiers that the history plug-in asks Change::tr for.
constexpr const char *pluginIdentifiers[] = {
    //: Button that closes a dialog
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_BTN_OK"),
    //: Statistics dialog: entry of the profile list
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_COMBO_ALLAPN"),
    //: Statistics dialog: entry of the month list
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_COMBO_BEFORELASTMONTH"),
    //: Statistics dialog: entry of the month list
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_COMBO_LASTMONTH"),
    //: Statistics dialog: entry of the month list
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_COMBO_THISMONTH"),
    //: Title of the group of figures
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_GROUP_STATISTIC"),
    //: History window: column of 110 pixels
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_LIST_APN"),
    //: History window: column of 110 pixels
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_LIST_CONNECTEDTIME"),
    //: History window: column of 110 pixels
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_LIST_DOWNLOADED"),
    //: History window: column of 135 pixels
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_LIST_ENDTIME"),
    //: History window: column of 135 pixels
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_LIST_STARTTIME"),
    //: History window: column of 110 pixels
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_LIST_UPLOADED"),
    //: History window: menu entry; the key D acts like it
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_MENU_DELETE"),
    //: History window: menu entry; the key A acts like it
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_MENU_DELETEALL"),
    //: History window: title of both questions before a deletion
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_PROMPT_CAPTION"),
    //: Statistics dialog: caption of the profile list, 100 pixels
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_STC_APN"),
    //: History window: note below the table, one line
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_STC_EXPLAIN_TEXT"),
    //: Statistics dialog: caption of the month list, 100 pixels
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_STC_MONTH"),
    //: Unit of the volumes in the statistics dialog
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_STC_SINGLEPACKET_UNIT"),
    //: History window: question before all are deleted
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_STR_CLEARALL"),
    //: History window: question before the selected ones are deleted
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_STR_DELETE"),
    //: Title of the summary after a connection
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_TITLE_SINGLE"),
    //: Title of the statistics dialog; the range of dates follows it, so one short word fits
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_TITLE_TOTAL"),
    //: Caption of a figure
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_TREE_DOWNLOADED_DATA"),
    //: Caption of a figure
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_TREE_TIME_TRANSFER"),
    //: Caption of a figure
    QT_TRANSLATE_NOOP("NetInfoRecordUIPlugin", "IDS_TREE_UPLOADED_DATA"),
};

} // namespace refhost
