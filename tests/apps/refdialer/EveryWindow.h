// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryWindow.h"

#include <QString>

#include <functional>

class QWidget;

/// Called with a window, or a part of one, and with a name for what it shows.
using Look = std::function<void(const QString &name, const QWidget &window)>;

/// What the user has named in the windows that are looked at.
extern const QString profileForEveryWindow;

/// Stores what gives the windows long figures to show.
bool storeForEveryWindow(const HistoryWindow &history);

/// Makes the history the user's own, whose home that folder is, and the session bus none at all.
bool makeItTheUsersOwn(const HistoryWindow &history, const QString &home);

/// Opens each window of the program, brings it into each of its states and looks at it then.
/// A new window, page or state gets a line there.
void lookAtEveryWindow(HistoryWindow &history, const Look &look);

/// Parts of that; after the last one the plug-in has ended.
void lookAtEveryPage(HistoryWindow &history, const Look &look);
void lookAtEveryDialog(HistoryWindow &history, const Look &look);
void lookAtEveryPlan(HistoryWindow &history, const Look &look);
void lookAtEveryMessage(HistoryWindow &history, const Look &look);

/// Does what opens a modal window or a menu, looks at that and closes it.
void lookAtModal(const QString &name, const Look &look, const std::function<void()> &open);

/// Returns when everything lies as it is to.
void settle();

/// A connection as the recorder tells of it, with figures as long as they get.
recorder::ConnectionState lastingConnection(qint64 id);
