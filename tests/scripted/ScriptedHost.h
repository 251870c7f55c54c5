// SPDX-License-Identifier: MIT
#pragma once

#include "KoraStatistics.h"

#include <QHash>
#include <QMessageBox>
#include <QPair>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

class IPluginContainer;

namespace scripted
{

/// The arguments of one message box, as the plug-in passed them.
struct MessageBox {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QPointer<QWidget> parent;
    QString title;
    QString text;
    QString buttons[3];
    bool flag1 = false;
    int windowFlags = 0;
    bool hasDialogPointer = false;
    QString extraText;
    bool flag2 = false;
};

/// What a scripted host has been asked, and what it answers. One for the
/// process; reset() before each test.
class Host
{
public:
    static Host &instance();
    void reset();

    /// Every call in its order, as "Name(argument, argument)". Translations are
    /// left out; they have a list of their own.
    QStringList calls;
    /// Every identifier translated, in order, as "id/context".
    QStringList translated;

    /// A translation is the prefix followed by the identifier.
    QString textPrefix;
    QHash<QPair<QString, QString>, QString> settings;
    /// Told of every question for a setting, before it is answered.
    std::function<void()> settingAsked;
    QPointer<QWidget> mainWindow;
    IPluginContainer *container = nullptr;
    /// Answers a message box; without it the answer is 0 (not confirmed).
    std::function<int(const MessageBox &)> answer;
    QVector<MessageBox> messageBoxes;

    QVector<_KORA_ST_CONNRECORD> records;
    int getAllStatus = 0;
    /// Told of every array that is handed out with success.
    std::function<void()> handedOut;
    /// Overrides the count that goes with a null array.
    bool handsOutNullArray = false;
    int nullArrayCount = 0;
    std::function<int(int index)> removeStatus;
    _KORA_ST_CONNRECORD lastRecord = {};
    int getLastStatus = 0;
    /// Arrays handed out and not yet released.
    int openArrays = 0;
};

/// A record with these texts; numbers as decimal text.
_KORA_ST_CONNRECORD record(const QString &profile, const QByteArray &start, const QByteArray &end,
                           const QByteArray &duration, const QByteArray &uploaded,
                           const QByteArray &downloaded, const QByteArray &extra1 = {},
                           const QByteArray &extra2 = {});

} // namespace scripted
