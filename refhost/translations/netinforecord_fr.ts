<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Host</name>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of a message box</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it</extracomment>
        <translation>Français</translation>
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
        <translation>Tous les profils</translation>
    </message>
    <message>
        <source>IDS_COMBO_BEFORELASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Avant-dernier mois</translation>
    </message>
    <message>
        <source>IDS_COMBO_LASTMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Mois dernier</translation>
    </message>
    <message>
        <source>IDS_COMBO_THISMONTH</source>
        <extracomment>Statistics dialog: entry of the month list</extracomment>
        <translation>Ce mois-ci</translation>
    </message>
    <message>
        <source>IDS_GROUP_STATISTIC</source>
        <extracomment>Title of the group of figures</extracomment>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>IDS_LIST_APN</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Profil (APN)</translation>
    </message>
    <message>
        <source>IDS_LIST_CONNECTEDTIME</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Durée</translation>
    </message>
    <message>
        <source>IDS_LIST_DOWNLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>IDS_LIST_ENDTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>IDS_LIST_STARTTIME</source>
        <extracomment>History window: column of 135 pixels</extracomment>
        <translation>Début</translation>
    </message>
    <message>
        <source>IDS_LIST_UPLOADED</source>
        <extracomment>History window: column of 110 pixels</extracomment>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETE</source>
        <extracomment>History window: menu entry; the key D acts like it</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>IDS_MENU_DELETEALL</source>
        <extracomment>History window: menu entry; the key A acts like it</extracomment>
        <translation>Tout supprimer</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>History window: title of both questions before a deletion</extracomment>
        <translation>Supprimer des connexions</translation>
    </message>
    <message>
        <source>IDS_STC_APN</source>
        <extracomment>Statistics dialog: caption of the profile list, 100 pixels</extracomment>
        <translation>Profil&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_STC_EXPLAIN_TEXT</source>
        <extracomment>History window: note below the table, one line</extracomment>
        <translation>Durées et volumes sont mesurés sur cet ordinateur&#xa0;; votre facture peut différer.</translation>
    </message>
    <message>
        <source>IDS_STC_MONTH</source>
        <extracomment>Statistics dialog: caption of the month list, 100 pixels</extracomment>
        <translation>Mois&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_STC_SINGLEPACKET_UNIT</source>
        <extracomment>Unit of the volumes in the statistics dialog</extracomment>
        <translation>MB</translation>
    </message>
    <message>
        <source>IDS_STR_CLEARALL</source>
        <extracomment>History window: question before all are deleted</extracomment>
        <translation>Voulez-vous supprimer toutes les connexions de l’historique&#xa0;? Elles ne pourront pas être restaurées.</translation>
    </message>
    <message>
        <source>IDS_STR_DELETE</source>
        <extracomment>History window: question before the selected ones are deleted</extracomment>
        <translation>Voulez-vous supprimer de l’historique les connexions sélectionnées&#xa0;? Elles ne pourront pas être restaurées.</translation>
    </message>
    <message>
        <source>IDS_TITLE_SINGLE</source>
        <extracomment>Title of the summary after a connection</extracomment>
        <translation>Dernière connexion</translation>
    </message>
    <message>
        <source>IDS_TITLE_TOTAL</source>
        <extracomment>Title of the statistics dialog; the range of dates follows it, so one short word fits</extracomment>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>IDS_TREE_DOWNLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Reçu&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_TREE_TIME_TRANSFER</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Connecté pendant&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_TREE_UPLOADED_DATA</source>
        <extracomment>Caption of a figure</extracomment>
        <translation>Envoyé&#xa0;:</translation>
    </message>
</context>
<context>
    <name>common::ProblemText</name>
    <message>
        <source>&quot;/proc/sys/kernel/random/boot_id&quot; cannot be read, so connections are not recorded; mount /proc.</source>
        <translation>«&#xa0;/proc/sys/kernel/random/boot_id&#xa0;» ne peut pas être lu&#xa0;; les connexions ne sont donc pas enregistrées. Montez /proc.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 cannot be written (%2); allow yourself to write there.</source>
        <translation>Les connexions ne sont pas enregistrées, car %1 n’est pas accessible en écriture (%2). Donnez-vous le droit d’y écrire.</translation>
    </message>
    <message>
        <source>Connections are not recorded, for %1 is in the way of the lock (%2); move it away.</source>
        <translation>Les connexions ne sont pas enregistrées, car %1 occupe la place du verrou (%2). Déplacez-le ailleurs.</translation>
    </message>
    <message>
        <source>The network interfaces cannot be watched (%1), so connections are not recorded; that is tried again every other second.</source>
        <translation>Les interfaces réseau ne peuvent pas être surveillées (%1)&#xa0;; les connexions ne sont donc pas enregistrées. Un nouvel essai a lieu toutes les deux secondes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may keep connections that are not in the history, but cannot be read (%2); it was left as it is, move it away.</source>
        <translation>«&#xa0;%1&#xa0;» contient peut-être des connexions absentes de l’historique, mais ne peut pas être lu (%2). Il a été laissé tel quel&#xa0;; déplacez-le ailleurs.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written (%2), so connections that the history could not take are lost; allow yourself to write there.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas accessible en écriture (%2)&#xa0;; les connexions que l’historique n’a pas pu recevoir sont donc perdues. Donnez-vous le droit d’y écrire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are in the way, so connections that the history could not take are lost; move them away.</source>
        <translation>«&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» gênent&#xa0;: les connexions que l’historique n’a pas pu recevoir sont perdues. Déplacez-les ailleurs.</translation>
    </message>
    <message>
        <source>There can be no network interface &quot;%1&quot;: a name has at most 15 bytes, an alternative one 127, and neither &quot;/&quot; nor white space.</source>
        <translation>Il ne peut pas exister d’interface réseau «&#xa0;%1&#xa0;»&#xa0;: un nom a au plus 15 octets, un nom alternatif 127, et ne contient ni «&#xa0;/&#xa0;» ni espace.</translation>
    </message>
    <message>
        <source>Connections are recorded by another program already, and appear here when they have ended.</source>
        <translation>Un autre programme enregistre déjà les connexions&#xa0;; elles apparaissent ici une fois terminées.</translation>
    </message>
    <message>
        <source>Connections are recorded by another %1 already (process %2), and appear here when they have ended.</source>
        <translation>Un autre %1 enregistre déjà les connexions (processus %2)&#xa0;; elles apparaissent ici une fois terminées.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is a hard link to another file</source>
        <translation>c’est un lien physique vers un autre fichier</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>it is damaged or of another program</source>
        <translation>endommagé ou provenant d’un autre programme</translation>
    </message>
    <message>
        <source>The system&apos;s clock shows a time that the history cannot hold, so connections get %1 UTC instead; set the clock.</source>
        <translation>L’horloge du système affiche une heure que l’historique ne peut pas contenir&#xa0;; les connexions reçoivent %1 UTC à la place. Réglez l’horloge.</translation>
    </message>
</context>
<context>
    <name>common::WarningText</name>
    <message>
        <source>%1 % of the data plan &quot;%2&quot; used</source>
        <translation>%1&#xa0;% du forfait de données «&#xa0;%2&#xa0;» utilisés</translation>
    </message>
    <message>
        <source>%1 of %2; the period lasts until %3.</source>
        <translation>%1 sur %2&#xa0;; la période dure jusqu’au %3.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 left until %4.</source>
        <translation>%1 sur %2, reste %3 jusqu’au %4.</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>CSV table</source>
        <translation>Tableau CSV</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JSON, an object a line</source>
        <translation>JSON, un objet par ligne</translation>
    </message>
    <message>
        <source>System log with messages of pppd</source>
        <translation>Journal système avec des messages de pppd</translation>
    </message>
    <message>
        <source>JSON with the bytes by the hour</source>
        <translation>JSON avec les octets par heure</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>la fin manque</translation>
    </message>
    <message>
        <source>its beginning is broken</source>
        <translation>le début est endommagé</translation>
    </message>
    <message>
        <source>the first line has to be the header %1</source>
        <translation>la première ligne doit être l’en-tête %1</translation>
    </message>
    <message>
        <source>the line has %1 columns and should have %2</source>
        <translation>%1 au lieu de %2 colonnes dans la ligne</translation>
    </message>
    <message>
        <source>the text holds a NUL byte</source>
        <translation>le texte contient un octet NUL</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>le texte n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>the file is empty, the first line has to be the header %1</source>
        <translation>le fichier est vide&#xa0;; la première ligne doit être l’en-tête %1</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4. Nothing was imported.</source>
        <translation>%1, ligne %2, colonne %3&#xa0;: %4. Rien n’a été importé.</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>la ligne dépasse %1 octets</translation>
    </message>
    <message>
        <source>the line has more than %1 columns</source>
        <translation>la ligne a plus de %1 colonnes</translation>
    </message>
    <message>
        <source>the text has more than %1 bytes</source>
        <translation>le texte dépasse %1 octets</translation>
    </message>
    <message>
        <source>a quotation mark stands in a text that is not quoted as a whole</source>
        <translation>un guillemet se trouve dans un texte qui n’est pas entièrement entre guillemets</translation>
    </message>
    <message>
        <source>a carriage return stands in a text that is not quoted</source>
        <translation>un retour chariot se trouve dans un texte qui n’est pas entre guillemets</translation>
    </message>
    <message>
        <source>something stands between the closing quotation mark and the next comma</source>
        <translation>il y a quelque chose entre le guillemet fermant et la virgule suivante</translation>
    </message>
    <message>
        <source>the quotation mark is never closed</source>
        <translation>le guillemet n’est jamais fermé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is negative</source>
        <translation>«&#xa0;%1&#xa0;» est négatif</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2</source>
        <translation>«&#xa0;%1&#xa0;» est supérieur à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 2024-05-31T18:30:00Z</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date et heure comme 2024-05-31T18:30:00Z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas compris entre %2 et %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is before the start, %2</source>
        <translation>«&#xa0;%1&#xa0;» est avant le début, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day such as 2024-05-31</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un jour comme 2024-05-31</translation>
    </message>
    <message>
        <source>the text has %1 bytes, at most %2 are allowed</source>
        <translation>octets du texte&#xa0;: %1, au plus&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;%2&quot; nor &quot;%3&quot; nor empty</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni «&#xa0;%2&#xa0;», ni «&#xa0;%3&#xa0;», ni vide</translation>
    </message>
    <message>
        <source>%1 cannot be read to its end: %2. Nothing was imported.</source>
        <translation>Impossible de lire %1 jusqu’à la fin&#xa0;: %2. Rien n’a été importé.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2. Check its name and its permissions.</source>
        <translation>Impossible de lire %1&#xa0;: %2. Vérifiez le nom et les droits.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>l’entrée standard</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>champ «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>ce n’est pas un nombre</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>ce n’est pas un texte</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>le texte contient un caractère NUL</translation>
    </message>
    <message>
        <source>it is no whole hour of UTC</source>
        <translation>ce n’est pas une heure entière en UTC</translation>
    </message>
    <message>
        <source>it is neither true nor false</source>
        <translation>ce n’est ni «&#xa0;true&#xa0;» ni «&#xa0;false&#xa0;»</translation>
    </message>
    <message>
        <source>an hour is there twice</source>
        <translation>une heure s’y trouve deux fois</translation>
    </message>
    <message>
        <source>the hours add up to more than 64 bits hold</source>
        <translation>la somme des octets par heure dépasse 64&#xa0;bits</translation>
    </message>
    <message>
        <source>the hours do not add up to the bytes of the connection</source>
        <translation>la somme des octets par heure ne donne pas les octets de la connexion</translation>
    </message>
    <message>
        <source>it is no array</source>
        <translation>ce n’est pas un tableau</translation>
    </message>
    <message>
        <source>a connection has no such member</source>
        <translation>une connexion n’a pas un tel champ</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>ce n’est pas un objet</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>plus de %1 octets</translation>
    </message>
    <message>
        <source>%1: %2. Nothing was imported.</source>
        <translation>%1&#xa0;: %2. Rien n’a été importé.</translation>
    </message>
    <message>
        <source>%1, connection %2: %3. Nothing was imported.</source>
        <translation>%1, connexion %2&#xa0;: %3. Rien n’a été importé.</translation>
    </message>
    <message>
        <source>the file has to be an array of objects</source>
        <translation>le fichier doit être un tableau d’objets</translation>
    </message>
    <message>
        <source>it is nested more deeply than a connection</source>
        <translation>imbrication plus profonde que celle d’une connexion</translation>
    </message>
    <message>
        <source>%1, line %2: %3. Nothing was imported.</source>
        <translation>%1, ligne %2&#xa0;: %3. Rien n’a été importé.</translation>
    </message>
    <message>
        <source>a connection does not end in the log</source>
        <translation>une connexion ne se termine pas dans le journal</translation>
    </message>
    <message>
        <source>a connect time has no byte counts</source>
        <translation>une durée de connexion n’a pas de nombres d’octets</translation>
    </message>
    <message>
        <source>byte counts have no connect time</source>
        <translation>des nombres d’octets n’ont pas de durée de connexion</translation>
    </message>
    <message>
        <source>the time stamp cannot be read</source>
        <translation>l’horodatage est illisible</translation>
    </message>
    <message>
        <source>a number or time is out of range</source>
        <translation>un nombre ou une heure est hors limites</translation>
    </message>
    <message>
        <source>%1 is too much: together, more than %2 messages of pppd and jumps of a clock cannot be read at once. Nothing was imported; import fewer or smaller files.</source>
        <translation>%1, c’est trop&#xa0;: au plus %2 messages de pppd et sauts d’horloge, ensemble, peuvent être lus à la fois. Rien n’a été importé&#xa0;; importez moins de fichiers ou de plus petits.</translation>
    </message>
    <message>
        <source>The log of these files</source>
        <translation>Le journal de ces fichiers</translation>
    </message>
    <message>
        <source>%1 holds no line in which pppd tells of a connection; give a system log of a machine that dials with it.</source>
        <translation>%1 ne contient aucune ligne où pppd parle d’une connexion. Donnez le journal système d’une machine qui se connecte avec lui.</translation>
    </message>
    <message>
        <source>What is read cannot be kept in the folder &quot;%1&quot; until it is stored: %2. Nothing was imported; make room there, or name another folder in TMPDIR.</source>
        <translation>Ce qui est lu ne peut pas être gardé dans le dossier «&#xa0;%1&#xa0;» jusqu’à son enregistrement&#xa0;: %2. Rien n’a été importé&#xa0;; libérez de la place, ou indiquez un autre dossier dans TMPDIR.</translation>
    </message>
    <message>
        <source>the connection still lasted</source>
        <translation>la connexion durait encore</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; already; nothing was changed, choose another name.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» a déjà le forfait «&#xa0;%2&#xa0;». Rien n’a été modifié&#xa0;; choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has the plan &quot;%2&quot; no longer; another program has removed it, make it again.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» n’a plus le forfait «&#xa0;%2&#xa0;»&#xa0;: un autre programme l’a supprimé. Créez-le de nouveau.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has version %2, but this program knows only versions up to %3; it was left as it is, update and restart this program to use it.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» est de la version %2, mais ce programme ne connaît que les versions jusqu’à %3. Il a été laissé tel quel&#xa0;; mettez ce programme à jour et redémarrez-le pour l’utiliser.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened because its path is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» ne peut pas être ouvert, car son chemin n’est pas en UTF-8. Renommez le fichier ou le dossier dont le nom ne l’est pas, ou indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was replaced while it was in use, and &quot;%2&quot; still holds records of the former file; close all programs that use it and put the former file back, or move the log away.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» a été remplacé pendant son utilisation, et «&#xa0;%2&#xa0;» contient encore des entrées de l’ancien fichier. Fermez tous les programmes qui l’utilisent et remettez l’ancien fichier en place, ou déplacez le journal ailleurs.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; was changed from outside or replaced, so the changes in its log &quot;%2&quot; may be those of a former file; both were left as they are, move the log away to use the history as it is, or, if the file was never replaced, touch the log to keep its changes.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» a été modifié de l’extérieur ou remplacé&#xa0;; les modifications de son journal «&#xa0;%2&#xa0;» sont donc peut-être celles d’un ancien fichier. Les deux ont été laissés tels quels. Déplacez le journal ailleurs pour utiliser l’historique tel qu’il est&#xa0;; ou, si le fichier n’a jamais été remplacé, renouvelez la date du journal avec «&#xa0;touch&#xa0;» pour conserver ses modifications.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; has been locked by another program for %2 seconds; close that program or try again later.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» est resté verrouillé par un autre programme pendant %2&#xa0;secondes. Fermez ce programme, ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written because the disk is full; nothing was changed, free some space and try again.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» ne peut pas être écrit, car le disque est plein. Rien n’a été modifié&#xa0;; libérez de la place et réessayez.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be written (%2); nothing was changed, check the disk and the permissions of the file and its folder.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» ne peut pas être écrit (%2). Rien n’a été modifié&#xa0;; vérifiez le disque et les droits du fichier et de son dossier.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; cannot be opened (%2); check the disk and the permissions of the file and its folder, or name another file.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» ne peut pas être ouvert (%2). Vérifiez le disque et les droits du fichier et de son dossier, ou indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a database of another program; it was left as it is, move it away or name another file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un historique des connexions, mais une base de données d’un autre programme. Elle a été laissée telle quelle&#xa0;; déplacez-la ailleurs, ou indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is damaged (%2); it was left as it is, move it away or put a copy in its place.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» est endommagé (%2). Il a été laissé tel quel&#xa0;; déplacez-le ailleurs, ou mettez une copie à sa place.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (there is not enough memory); nothing was changed, close other programs and try again.</source>
        <translation>Impossible de travailler sur l’historique des connexions «&#xa0;%1&#xa0;» (la mémoire ne suffit pas). Rien n’a été modifié&#xa0;; fermez d’autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; could not be worked on (%2); nothing was changed, close other programs and try again.</source>
        <translation>Impossible de travailler sur l’historique des connexions «&#xa0;%1&#xa0;» (%2). Rien n’a été modifié&#xa0;; fermez d’autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but some other file; it was left as it is, move it away or name another file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un historique des connexions, mais un autre fichier. Il a été laissé tel quel&#xa0;; déplacez-le ailleurs, ou indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a folder; it was left as it is, move it away or name another file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un historique des connexions, mais un dossier. Il a été laissé tel quel&#xa0;; déplacez-le ailleurs, ou indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a connection history but a device; it was left as it is, move it away or name another file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un historique des connexions, mais un périphérique. Il a été laissé tel quel&#xa0;; déplacez-le ailleurs, ou indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>The connection history &quot;%1&quot; is empty, but &quot;%2&quot; holds records of it; both were left as they are, put a copy in its place or move both away.</source>
        <translation>L’historique des connexions «&#xa0;%1&#xa0;» est vide, mais «&#xa0;%2&#xa0;» contient des entrées qui en font partie. Les deux ont été laissés tels quels&#xa0;; mettez une copie à sa place, ou déplacez les deux ailleurs.</translation>
    </message>
    <message>
        <source>it says that its version is %1</source>
        <translation>la version indiquée est %1</translation>
    </message>
    <message>
        <source>its %1 &quot;%2&quot; is not one that this program makes</source>
        <translation>«&#xa0;%2&#xa0;» (%1) ne vient pas de ce programme</translation>
    </message>
    <message>
        <source>%1 The connection history &quot;%2&quot; has it so from another program; remove this plan and make it again.</source>
        <translation>Un forfait de l’historique des connexions «&#xa0;%2&#xa0;», enregistré par un autre programme, est inutilisable (%1). Supprimez-le et créez-le de nouveau.</translation>
    </message>
</context>
<context>
    <name>refdialer::Application</name>
    <message>
        <source>The plug-in %1 could not start. &quot;refdialer --debug&quot; shows how far it came.</source>
        <translation>Le greffon %1 n’a pas pu démarrer. «&#xa0;refdialer --debug&#xa0;» montre jusqu’où il est allé.</translation>
    </message>
</context>
<context>
    <name>refdialer::BackgroundUnit</name>
    <message>
        <source>Connections are recorded in the background from now on: the service connrecord.service is enabled and runs.</source>
        <translation>Les connexions sont désormais enregistrées en arrière-plan&#xa0;: le service connrecord.service est activé et fonctionne.</translation>
    </message>
    <message>
        <source>Connections are recorded only while this window is open: the service connrecord.service is disabled and has been stopped.</source>
        <translation>Les connexions ne sont enregistrées que tant que cette fenêtre est ouverte&#xa0;: le service connrecord.service est désactivé et a été arrêté.</translation>
    </message>
    <message>
        <source>There is no systemd for your session that could start the service. Have your session start &quot;connrecord record&quot; instead.</source>
        <translation>Votre session n’a pas de systemd qui puisse démarrer le service. Faites plutôt démarrer «&#xa0;connrecord record&#xa0;» par votre session.</translation>
    </message>
    <message>
        <source>The service connrecord.service is not installed. Install the package connrecord, which brings it.</source>
        <translation>Le service connrecord.service n’est pas installé. Installez le paquet connrecord, qui le fournit.</translation>
    </message>
    <message>
        <source>The service connrecord.service is enabled but did not start. &quot;systemctl --user status connrecord&quot; tells why.</source>
        <translation>Le service connrecord.service est activé mais n’a pas démarré. «&#xa0;systemctl --user status connrecord&#xa0;» en donne la raison.</translation>
    </message>
    <message>
        <source>systemd has refused: %1</source>
        <translation>systemd a refusé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>refdialer::ClosingQuestion</name>
    <message>
        <source>A connection lasts, and this window records it.</source>
        <translation>Une connexion est en cours, et cette fenêtre l’enregistre.</translation>
    </message>
    <message>
        <source>&amp;Do not ask again</source>
        <translation>&amp;Ne plus demander</translation>
    </message>
    <message>
        <source>Record in the &amp;background</source>
        <translation>&amp;Enregistrer en arrière-plan</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>A&amp;rrêter l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>A service can go on recording without the window, now and whenever you are logged in.</source>
        <translation>Un service peut poursuivre l’enregistrement sans la fenêtre, maintenant et à chacune de vos sessions.</translation>
    </message>
</context>
<context>
    <name>refdialer::CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>Use the history in FILE instead of your own, to show and to record.</source>
        <translation>Utilise l’historique de FICHIER au lieu du vôtre, pour l’affichage et l’enregistrement.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Load the history plug-in from FILE.</source>
        <translation>Charge le greffon d’historique depuis FICHIER.</translation>
    </message>
    <message>
        <source>Speak this language for once: %1.</source>
        <translation>Utilise cette langue pour cette fois&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Write the debug log to standard error.</source>
        <translation>Écrit le journal de débogage sur la sortie d’erreur standard.</translation>
    </message>
    <message>
        <source>Show a temporary copy of a sample history; nothing of yours is touched.</source>
        <translation>Affiche une copie temporaire d’un historique d’exemple&#xa0;; vos données restent intactes.</translation>
    </message>
    <message>
        <source>Record the connections of the network interface NAME (or alternative name) too, not only of mobile-broadband ones; may be given several times.</source>
        <translation>Enregistre aussi les connexions de l’interface réseau NOM (ou nom alternatif), et pas seulement celles des interfaces mobiles&#xa0;; peut être répétée.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Record connections under the profile (APN) NAME, not under their interface&apos;s name.</source>
        <translation>Enregistre les connexions sous le profil (APN) NOM, et non sous le nom de leur interface.</translation>
    </message>
    <message>
        <source>Leave the dial-up service out, without which the history does not react to connections.</source>
        <translation>Omet le service de numérotation, sans lequel l’historique ne réagit pas aux connexions.</translation>
    </message>
    <message>
        <source>Draw the window to the PNG picture FILE without a display and exit.</source>
        <translation>Dessine la fenêtre dans l’image PNG FICHIER, sans écran, puis quitte.</translation>
    </message>
    <message>
        <source>Shows the history of mobile-broadband connections.</source>
        <translation>Affiche l’historique des connexions mobiles à haut débit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une option.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>L’option --%1 nécessite une valeur.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; of the history is not UTF-8; rename the file or folder whose name is not, or name another file.</source>
        <translation>Le chemin «&#xa0;%1&#xa0;» de l’historique n’est pas en UTF-8. Renommez le fichier ou le dossier dont le nom ne l’est pas, ou indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>--demo and --store exclude each other: the first shows a sample history, the second one of yours.</source>
        <translation>--demo et --store s’excluent&#xa0;: la première affiche un historique d’exemple, la seconde l’un des vôtres.</translation>
    </message>
    <message>
        <source>There are no texts in the language &quot;%1&quot;; there are: %2.</source>
        <translation>Il n’y a pas de textes dans la langue «&#xa0;%1&#xa0;»&#xa0;; langues disponibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;refdialer --help&quot; shows the options.</source>
        <translation>«&#xa0;refdialer --help&#xa0;» affiche les options.</translation>
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
        <translation>Numéro de la SIM, ou sa fin</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Toutes les connexions</translation>
    </message>
    <message>
        <source>One profile (APN)</source>
        <translation>Un profil (APN)</translation>
    </message>
    <message>
        <source>One SIM</source>
        <translation>Une SIM</translation>
    </message>
    <message>
        <source>Connections that the plan is for</source>
        <translation>Connexions auxquelles le forfait s’applique</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>Without a SIM number</source>
        <translation>Sans numéro de SIM</translation>
    </message>
</context>
<context>
    <name>refdialer::DeleteAllGuard</name>
    <message>
        <source>Not while rows are hidden: it would delete these too. Select all rows that you see (Ctrl+A) and delete them, or clear the search.</source>
        <translation>Impossible tant que des lignes sont masquées&#xa0;: elles seraient supprimées aussi. Sélectionnez toutes les lignes visibles (Ctrl+A) et supprimez-les, ou effacez la recherche.</translation>
    </message>
</context>
<context>
    <name>refdialer::DemoStore</name>
    <message>
        <source>The sample history %1 cannot be copied to %2: %3. Install refdialer again, or make room there.</source>
        <translation>L’historique d’exemple %1 ne peut pas être copié vers %2&#xa0;: %3. Réinstallez refdialer ou libérez de la place à cet endroit.</translation>
    </message>
</context>
<context>
    <name>refdialer::ExportWork</name>
    <message>
        <source>This system has no number of its own in /etc/machine-id: %1.</source>
        <translation>Ce système n’a pas de numéro propre dans /etc/machine-id&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Connections exported: %1</source>
        <translation>Connexions exportées&#xa0;: %1</translation>
    </message>
    <message>
        <source>They are in &quot;%1&quot;.</source>
        <translation>Elles sont dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. Check the disk, the folder and its permissions.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2. Vérifiez le disque, le dossier et ses droits.</translation>
    </message>
</context>
<context>
    <name>refdialer::FileChooser</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nom du fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Kind of file:</source>
        <translation>Type de fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>All files, recognised by what they hold (%1)</source>
        <translation>Tous les fichiers, reconnus à leur contenu (%1)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
</context>
<context>
    <name>refdialer::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Paramètres…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Connections are being imported or exported.</source>
        <translation>Des connexions sont en cours d’importation ou d’exportation.</translation>
    </message>
    <message>
        <source>If the window closes now, that is cancelled: nothing is imported, and the file to export to stays as it is.</source>
        <translation>Si la fenêtre se ferme maintenant, cela est annulé&#xa0;: rien n’est importé, et le fichier de destination reste tel quel.</translation>
    </message>
    <message>
        <source>&amp;Close the window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>&amp;Attendre</translation>
    </message>
</context>
<context>
    <name>refdialer::FileProblem</name>
    <message>
        <source>&quot;%1&quot; is a folder, a pipe or a device. Choose a file.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, un tube ou un périphérique. Choisissez un fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the history that this window shows. Choose another file.</source>
        <translation>«&#xa0;%1&#xa0;» appartient à l’historique que cette fenêtre affiche. Choisissez un autre fichier.</translation>
    </message>
</context>
<context>
    <name>refdialer::HelpMenu</name>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>The manual %1 cannot be opened here. &quot;man refdialer&quot; shows it in a terminal.</source>
        <translation>Le manuel %1 ne peut pas être ouvert ici. «&#xa0;man refdialer&#xa0;» l’affiche dans un terminal.</translation>
    </message>
    <message>
        <source>The history of mobile-broadband connections.</source>
        <translation>L’historique des connexions mobiles à haut débit.</translation>
    </message>
    <message>
        <source>Licence: MIT. You may use, change and pass on this program; there is no warranty.</source>
        <translation>Licence&#xa0;: MIT. Vous pouvez utiliser, modifier et transmettre ce programme&#xa0;; il est fourni sans garantie.</translation>
    </message>
    <message>
        <source>It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).</source>
        <translation>Il utilise Qt %1 et libmnl (LGPL), SQLite (domaine public), SQLiteCpp et JSON for Modern C++ (MIT), libarchive (BSD), zlib (licence zlib) et UTF8-CPP (licence Boost).</translation>
    </message>
    <message>
        <source>About refdialer</source>
        <translation>À propos de refdialer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>&amp;About refdialer</source>
        <translation>À &amp;propos de refdialer</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>À propos de &amp;Qt</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryArea</name>
    <message>
        <source>Connections</source>
        <translation>Connexions</translation>
    </message>
</context>
<context>
    <name>refdialer::HistoryNotice</name>
    <message>
        <source>There are no connections yet. A mobile connection appears here when it has ended, with what it has sent and received. What you have from elsewhere can be imported.</source>
        <translation>Il n’y a pas encore de connexions. Une connexion mobile apparaît ici une fois terminée, avec ce qu’elle a envoyé et reçu. Ce que vous avez ailleurs peut être importé.</translation>
    </message>
    <message>
        <source>No connection matches the search.</source>
        <translation>Aucune connexion ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>All connections are shorter than the shortest one that the settings let this window list.</source>
        <translation>Toutes les connexions sont plus courtes que la plus courte que les paramètres laissent afficher dans cette fenêtre.</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>&amp;Record in the background</source>
        <translation>Enregistrer en arrière-pla&amp;n</translation>
    </message>
    <message>
        <source>Show &amp;all connections</source>
        <translation>Afficher &amp;toutes les connexions</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySearch</name>
    <message>
        <source>Search for a profile</source>
        <translation>Rechercher un profil</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>&amp;Jours&#xa0;:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Ce mois-ci</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mois dernier</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Cette année</translation>
    </message>
    <message>
        <source>From … to …</source>
        <translation>Du … au …</translation>
    </message>
    <message>
        <source>Days on which connections began</source>
        <translation>Jours où des connexions ont débuté</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Premier jour</translation>
    </message>
    <message>
        <source>t&amp;o</source>
        <translation>a&amp;u</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
</context>
<context>
    <name>refdialer::HistorySum</name>
    <message>
        <source>Selected: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Sélection&#xa0;: %1 · envoyé&#xa0;: %2 · reçu&#xa0;: %3 · connecté&#xa0;: %4</translation>
    </message>
    <message>
        <source>Connections: %1 · sent: %2 · received: %3 · connected: %4</source>
        <translation>Connexions&#xa0;: %1 · envoyé&#xa0;: %2 · reçu&#xa0;: %3 · connecté&#xa0;: %4</translation>
    </message>
</context>
<context>
    <name>refdialer::ImportWork</name>
    <message>
        <source>Of several files at once, only logs can be imported. Choose one file at a time.</source>
        <translation>De plusieurs fichiers à la fois, seuls des journaux peuvent être importés. Choisissez un seul fichier à la fois.</translation>
    </message>
    <message>
        <source>%1

It was taken to be: %2. If it is something else, choose its kind together with the file.</source>
        <translation>%1

Il a été lu comme&#xa0;: %2. Si c’est autre chose, choisissez son type avec le fichier.</translation>
    </message>
    <message>
        <source>Connections added: %1</source>
        <translation>Connexions ajoutées&#xa0;: %1</translation>
    </message>
    <message>
        <source>In the history already: %1</source>
        <translation>Déjà dans l’historique&#xa0;: %1</translation>
    </message>
    <message>
        <source>Completed by what the log knows: %1</source>
        <translation>Complétées d’après le journal&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 does not show its years; its last line was taken to be of %2. If that is wrong, delete what was added and import with &quot;connrecord import --year&quot;.</source>
        <translation>%1 n’indique pas les années&#xa0;; sa dernière ligne a été supposée de %2. Si c’est faux, supprimez ce qui a été ajouté et importez avec «&#xa0;connrecord import --year&#xa0;».</translation>
    </message>
    <message>
        <source>Not used, %1: %2; first in line %3 of &quot;%4&quot;: %5</source>
        <translation>Non utilisé, %1&#xa0;: %2&#xa0;; d’abord à la ligne %3 de «&#xa0;%4&#xa0;»&#xa0;: %5</translation>
    </message>
</context>
<context>
    <name>refdialer::MainWindow</name>
    <message>
        <source>Deleting connections…</source>
        <translation>Suppression des connexions…</translation>
    </message>
    <message>
        <source>Connection history</source>
        <translation>Historique des connexions</translation>
    </message>
    <message>
        <source>The history plug-in says that it has statistics but cannot be asked for them. Start refdialer with another one: --plugin FILE.</source>
        <translation>Le greffon d’historique annonce des statistiques, mais on ne peut pas les lui demander. Lancez refdialer avec un autre greffon&#xa0;: --plugin FICHIER.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Consommation</translation>
    </message>
</context>
<context>
    <name>refdialer::PastPeriodsDialog</name>
    <message>
        <source>Periods of a data plan</source>
        <translation>Périodes d’un forfait</translation>
    </message>
    <message>
        <source>Periods, the present one first</source>
        <translation>Périodes, la période actuelle en premier</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Premier jour</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Restant</translation>
    </message>
    <message>
        <source>&amp;Plan:</source>
        <translation>F&amp;orfait&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation>Lecture de l’historique…</translation>
    </message>
    <message>
        <source>No period of this plan has begun.</source>
        <translation>Aucune période de ce forfait n’a commencé.</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodEdit</name>
    <message>
        <source>Every month</source>
        <translation>Chaque mois</translation>
    </message>
    <message>
        <source>Every so many days</source>
        <translation>Tous les N jours</translation>
    </message>
    <message>
        <source>Once (prepaid)</source>
        <translation>Une fois (prépayé)</translation>
    </message>
    <message>
        <source>Kind of period</source>
        <translation>Type de période</translation>
    </message>
    <message>
        <source>From &amp;day of the month:</source>
        <translation>À partir du &amp;jour du mois&#xa0;:</translation>
    </message>
    <message>
        <source>A month without this day begins with its last one.</source>
        <translation>Un mois sans ce jour commence par son dernier jour.</translation>
    </message>
    <message>
        <source>&amp;Days:</source>
        <translation>&amp;Jours&#xa0;:</translation>
    </message>
    <message>
        <source>F&amp;irst day of a period:</source>
        <translation>Pre&amp;mier jour d’une période&#xa0;:</translation>
    </message>
    <message>
        <source>F&amp;irst day:</source>
        <translation>Pre&amp;mier jour&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>&amp;Dernier jour&#xa0;:</translation>
    </message>
</context>
<context>
    <name>refdialer::PeriodRow</name>
    <message>
        <source>P&amp;revious</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
</context>
<context>
    <name>refdialer::Picture</name>
    <message>
        <source>The picture %1 cannot be written: %2. Name a file in a folder that you may write to.</source>
        <translation>L’image %1 ne peut pas être écrite&#xa0;: %2. Indiquez un fichier dans un dossier où vous avez le droit d’écrire.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanDialog</name>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Périodes passées…</translation>
    </message>
    <message>
        <source>Data plans</source>
        <translation>Forfaits de données</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Forfait</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>There is no data plan yet. With one, the window shows how much is left of it, and warns before it is used up.</source>
        <translation>Il n’y a pas encore de forfait. Avec un forfait, la fenêtre montre combien il en reste et avertit avant qu’il soit épuisé.</translation>
    </message>
    <message>
        <source>Remove the data plan &quot;%1&quot;?</source>
        <translation>Supprimer le forfait «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>The history stays as it is.</source>
        <translation>L’historique reste tel quel.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>How the plan stands</source>
        <translation>Où en est le forfait</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanEditor</name>
    <message>
        <source>At home</source>
        <translation>Hors itinérance</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>En itinérance</translation>
    </message>
    <message>
        <source>At home and roaming</source>
        <translation>Hors itinérance et en itinérance</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>Envoyé et reçu</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>not limited</source>
        <translation>illimité</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>New data plan</source>
        <translation>Nouveau forfait</translation>
    </message>
    <message>
        <source>Data plan</source>
        <translation>Forfait</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;For:</source>
        <translation>&amp;Pour&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Where:</source>
        <translation>&amp;Où&#xa0;:</translation>
    </message>
    <message>
        <source>W&amp;hat counts:</source>
        <translation>Ce &amp;qui compte&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Amount in a period:</source>
        <translation>&amp;Volume par période&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>Pé&amp;riode&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Used elsewhere in this period:</source>
        <translation>Utilisé a&amp;illeurs dans cette période&#xa0;:</translation>
    </message>
    <message>
        <source>Warn a&amp;t percent:</source>
        <translation>Aver&amp;tir à (en %)&#xa0;:</translation>
    </message>
    <message>
        <source>Amount in a period</source>
        <translation>Volume par période</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>Unité du volume</translation>
    </message>
    <message>
        <source>Used elsewhere in this period</source>
        <translation>Utilisé ailleurs dans cette période</translation>
    </message>
    <message>
        <source>Unit of what was used elsewhere</source>
        <translation>Unité de ce qui a été utilisé ailleurs</translation>
    </message>
    <message>
        <source>What the provider counts and the history does not know of, such as before it began; less than 0 takes off.</source>
        <translation>Ce que l’opérateur compte et que l’historique ignore, par exemple avant son début&#xa0;; moins de 0 en retranche.</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>Give the plan a name.</source>
        <translation>Donnez un nom au forfait.</translation>
    </message>
    <message>
        <source>Give the plan a shorter name.</source>
        <translation>Donnez un nom plus court au forfait.</translation>
    </message>
    <message>
        <source>Another plan has this name already.</source>
        <translation>Un autre forfait porte déjà ce nom.</translation>
    </message>
    <message>
        <source>Write the SIM&apos;s number, or the end of it.</source>
        <translation>Écrivez le numéro de la SIM, ou sa fin.</translation>
    </message>
    <message>
        <source>Name the profile.</source>
        <translation>Indiquez le profil.</translation>
    </message>
    <message>
        <source>No SIM has so long a number.</source>
        <translation>Aucune SIM n’a un numéro aussi long.</translation>
    </message>
    <message>
        <source>There is no plan of less than nothing.</source>
        <translation>Un forfait ne peut pas être inférieur à zéro.</translation>
    </message>
    <message>
        <source>The last day is before the first one.</source>
        <translation>Le dernier jour précède le premier.</translation>
    </message>
    <message>
        <source>Today is in no period of this plan.</source>
        <translation>Aujourd’hui n’est dans aucune période de ce forfait.</translation>
    </message>
    <message>
        <source>Write percentages from 1 to %1, such as 80, 100.</source>
        <translation>Écrivez des pourcentages de 1 à %1, par exemple 80, 100.</translation>
    </message>
    <message>
        <source>Another program has changed this plan meanwhile. OK stores it as it stands here, Cancel keeps what the other has made.</source>
        <translation>Un autre programme a modifié ce forfait entre-temps. OK l’enregistre tel qu’il est ici, Annuler garde ce que l’autre en a fait.</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanLine</name>
    <message>
        <source>Data plans</source>
        <translation>Forfaits</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Used of the data plan &quot;%1&quot;</source>
        <translation>Consommation du forfait «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>All data plans…</source>
        <translation>Tous les forfaits…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanMenu</name>
    <message>
        <source>&amp;Plans</source>
        <translation>F&amp;orfaits</translation>
    </message>
    <message>
        <source>&amp;Data plans…</source>
        <translation>&amp;Forfaits de données…</translation>
    </message>
    <message>
        <source>&amp;Past periods…</source>
        <translation>&amp;Périodes passées…</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanOffer</name>
    <message>
        <source>See here how much of a data plan is left.</source>
        <translation>Voyez ici ce qu’il reste d’un forfait de données.</translation>
    </message>
    <message>
        <source>Set up a data plan…</source>
        <translation>Définir un forfait…</translation>
    </message>
    <message>
        <source>Do not offer</source>
        <translation>Ne pas proposer</translation>
    </message>
</context>
<context>
    <name>refdialer::PlanText</name>
    <message>
        <source>%1 of %2 used, %3 over, today is the last day</source>
        <translation>%1 sur %2 utilisés, %3 en trop, dernier jour aujourd’hui</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>%1 sur %2 utilisés, %3 en trop, %n jour restant</numerusform>
            <numerusform>%1 sur %2 utilisés, %3 en trop, %n jours restants</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 left, today is the last day</source>
        <translation>%1 sur %2 utilisés, reste %3, dernier jour aujourd’hui</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>%1 sur %2 utilisés, %n jour restant, %3 par jour</numerusform>
            <numerusform>%1 sur %2 utilisés, %n jours restants, %3 par jour</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 used, today is the last day</source>
        <translation>%1 utilisés, dernier jour aujourd’hui</translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>%1 utilisés, %n jour restant</numerusform>
            <numerusform>%1 utilisés, %n jours restants</numerusform>
        </translation>
    </message>
    <message>
        <source>ended on %1</source>
        <translation>terminé le %1</translation>
    </message>
    <message>
        <source>begins on %1</source>
        <translation>commence le %1</translation>
    </message>
    <message>
        <source>Heading for %1</source>
        <translation>En route vers %1</translation>
    </message>
    <message>
        <source>%1 % reached</source>
        <translation>%1&#xa0;% atteints</translation>
    </message>
    <message>
        <source>Used up</source>
        <translation>Épuisé</translation>
    </message>
    <message>
        <source>The period is from %1 to %2.</source>
        <translation>La période va du %1 au %2.</translation>
    </message>
    <message>
        <source>%1 left.</source>
        <translation>Reste %1.</translation>
    </message>
    <message>
        <source>At this pace it will be %1 in the end.</source>
        <translation>À ce rythme, ce sera %1 à la fin.</translation>
    </message>
    <message>
        <source>Monthly from day %1</source>
        <translation>Chaque mois à partir du jour %1</translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>Tous les %n jours à partir du %1</numerusform>
            <numerusform>Tous les %n jours à partir du %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Once from %1 to %2</source>
        <translation>Une fois, du %1 au %2</translation>
    </message>
    <message>
        <source>%1 over.</source>
        <translation>%1 en trop.</translation>
    </message>
</context>
<context>
    <name>refdialer::PluginHandle</name>
    <message>
        <source>The plug-in %1 is not there.</source>
        <translation>Le greffon %1 est introuvable.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be loaded: %2.</source>
        <translation>Le greffon %1 ne peut pas être chargé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not offer the interfaces %2 and %3.</source>
        <translation>Le greffon %1 n’offre pas les interfaces %2 et %3.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for Qt %2: %3.</source>
        <translation>%1 n’est pas un greffon pour Qt %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The plug-in %1 is for something else: its interface is %2 and not %3.</source>
        <translation>Le greffon %1 sert à autre chose&#xa0;: son interface est %2 et non %3.</translation>
    </message>
    <message>
        <source>Install refdialer again, or name the file of a fitting plug-in with --plugin.</source>
        <translation>Réinstallez refdialer, ou indiquez avec --plugin le fichier d’un greffon adapté.</translation>
    </message>
</context>
<context>
    <name>refdialer::RecordingSettings</name>
    <message>
        <source>&amp;Notify me when a data plan reaches one of its warnings</source>
        <translation>M’a&amp;vertir quand un forfait atteint l’un de ses seuils</translation>
    </message>
    <message>
        <source>Also record these &amp;interfaces:</source>
        <translation>&amp;Interfaces à enregistrer aussi&#xa0;:</translation>
    </message>
    <message>
        <source>Mobile ones are recorded anyway. The recorder in the background takes over a change when it starts next.</source>
        <translation>Les interfaces mobiles sont toujours enregistrées. L’enregistrement en arrière-plan tient compte d’un changement à son prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>refdialer::ServicePlugin</name>
    <message>
        <source>The dial-up service %1 cannot be loaded: %2. Install refdialer again, or leave the service out with --no-dialup-service.</source>
        <translation>Le service de numérotation %1 ne peut pas être chargé&#xa0;: %2. Réinstallez refdialer, ou omettez le service avec --no-dialup-service.</translation>
    </message>
</context>
<context>
    <name>refdialer::SettingsDialog</name>
    <message>
        <source>The service records into your own history, not into the one that this window shows.</source>
        <translation>Le service enregistre dans votre propre historique, pas dans celui que cette fenêtre affiche.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>&amp;Show a summary after each connection</source>
        <translation>Afficher un &amp;résumé après chaque connexion</translation>
    </message>
    <message>
        <source>&amp;Record in the background, also when this window is closed</source>
        <translation>&amp;Enregistrer en arrière-plan, même quand cette fenêtre est fermée</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>This lasts until the window closes only: the settings cannot be written to %1. Make room there, or allow yourself to write to it.</source>
        <translation>Cela ne vaut que jusqu’à la fermeture de la fenêtre&#xa0;: les paramètres ne peuvent pas être écrits dans %1. Libérez-y de la place ou donnez-vous le droit d’y écrire.</translation>
    </message>
    <message>
        <source>These texts have not been reviewed by speakers of the language yet.</source>
        <translation>Ces textes n’ont pas encore été relus par des locuteurs de la langue.</translation>
    </message>
    <message>
        <source>Shortest connection lis&amp;ted:</source>
        <translation>Connexion la plus &amp;courte affichée&#xa0;:</translation>
    </message>
    <message>
        <source> s</source>
        <translation>&#xa0;s</translation>
    </message>
    <message>
        <source>any</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>The system&apos;s (%1)</source>
        <translation>Celle du système (%1)</translation>
    </message>
</context>
<context>
    <name>refdialer::SizeEdit</name>
    <message>
        <source>That is more than can be counted.</source>
        <translation>C’est plus qu’on ne peut compter.</translation>
    </message>
    <message>
        <source>Write the number without separators of thousands, such as %1 or %2.</source>
        <translation>Écrivez le nombre sans séparateur de milliers, par exemple %1 ou %2.</translation>
    </message>
    <message>
        <source>Write a number, such as %1 or %2.</source>
        <translation>Écrivez un nombre, par exemple %1 ou %2.</translation>
    </message>
</context>
<context>
    <name>refdialer::SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Début</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>D&amp;urée</translation>
    </message>
    <message>
        <source>Up&amp;loaded</source>
        <translation>&amp;Envoyé</translation>
    </message>
    <message>
        <source>&amp;Downloaded</source>
        <translation>&amp;Reçu</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Croissant</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>Décr&amp;oissant</translation>
    </message>
</context>
<context>
    <name>refdialer::StateLine</name>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>connected since %1</source>
        <translation>connecté depuis le %1</translation>
    </message>
    <message>
        <source>Sent: %1 (%2)</source>
        <translation>Envoyé&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Received: %1 (%2)</source>
        <translation>Reçu&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Sample history. Changes are gone when the window closes.</source>
        <translation>Historique d’exemple. Les modifications sont perdues à la fermeture de la fenêtre.</translation>
    </message>
    <message>
        <source>History in %1</source>
        <translation>Historique dans %1</translation>
    </message>
    <message>
        <source>No connections recorded yet in %1</source>
        <translation>Aucune connexion encore enregistrée dans %1</translation>
    </message>
</context>
<context>
    <name>refdialer::Transfer</name>
    <message>
        <source>There is not enough memory for this. Close other programs, or take smaller files.</source>
        <translation>La mémoire ne suffit pas pour cela. Fermez d’autres programmes, ou prenez des fichiers plus petits.</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferDialog</name>
    <message>
        <source>Nothing was imported.</source>
        <translation>Rien n’a été importé.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>Rien n’a été exporté.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Annulation</translation>
    </message>
</context>
<context>
    <name>refdialer::TransferProgress</name>
    <message>
        <source>Reading &quot;%1&quot;: %2 of %3</source>
        <translation>Lecture de «&#xa0;%1&#xa0;»&#xa0;: %2 sur %3</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;: %2</source>
        <translation>Lecture de «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Adding connections to the history: %1 of %2</source>
        <translation>Ajout de connexions à l’historique&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Lecture de l’historique</translation>
    </message>
    <message>
        <source>Writing connections: %1 of %2</source>
        <translation>Écriture des connexions&#xa0;: %1 sur %2</translation>
    </message>
</context>
<context>
    <name>refdialer::UsagePage</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Affic&amp;her&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>&amp;Barres&#xa0;:</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Par jour</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>Par mois</translation>
    </message>
    <message>
        <source>As &amp;table</source>
        <translation>En &amp;tableau</translation>
    </message>
    <message>
        <source>Copy te&amp;xt</source>
        <translation>Copier le te&amp;xte</translation>
    </message>
    <message>
        <source>Copy p&amp;icture</source>
        <translation>Copier l’i&amp;mage</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Consommation</translation>
    </message>
    <message>
        <source>The arrow keys go from bar to bar.</source>
        <translation>Les touches fléchées vont d’une barre à l’autre.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. What your connections move appears here.</source>
        <translation>Rien n’a encore été enregistré. Ce que vos connexions transfèrent apparaît ici.</translation>
    </message>
    <message>
        <source>Nothing was sent or received in this time.</source>
        <translation>Rien n’a été envoyé ni reçu pendant cette période.</translation>
    </message>
</context>
<context>
    <name>refdialer::UsageText</name>
    <message>
        <source>Plan: %1</source>
        <translation>Forfait&#xa0;: %1</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Profil&#xa0;: %1</translation>
    </message>
    <message>
        <source>SIM ending in %1</source>
        <translation>SIM se terminant par %1</translation>
    </message>
    <message>
        <source>All connections</source>
        <translation>Toutes les connexions</translation>
    </message>
    <message>
        <source>Received at home</source>
        <translation>Reçu hors itinérance</translation>
    </message>
    <message>
        <source>Sent at home</source>
        <translation>Envoyé hors itinérance</translation>
    </message>
    <message>
        <source>Received roaming</source>
        <translation>Reçu en itinérance</translation>
    </message>
    <message>
        <source>Sent roaming</source>
        <translation>Envoyé en itinérance</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>a month and its year</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>Du %1 au %2</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1&#xa0;: rien</translation>
    </message>
    <message>
        <source>%1: received %2, sent %3</source>
        <translation>%1&#xa0;: reçu %2, envoyé %3</translation>
    </message>
    <message>
        <source>%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming</source>
        <translation>%1&#xa0;: reçu %2 hors itinérance et %3 en itinérance, envoyé %4 hors itinérance et %5 en itinérance</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
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
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>S&amp;tatistics…</source>
        <translation>&amp;Statistiques…</translation>
    </message>
    <message>
        <source>The history plug-in in use has no statistics. Start refdialer with one that has them: --plugin FILE.</source>
        <translation>Le greffon d’historique utilisé n’a pas de statistiques. Lancez refdialer avec un greffon qui en a&#xa0;: --plugin FICHIER.</translation>
    </message>
    <message>
        <source>&amp;Usage</source>
        <translation>&amp;Consommation</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
</context>
</TS>
