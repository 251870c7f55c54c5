// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QAction;
class QMainWindow;

/// The entry of the window's menus that these texts lead to, without the marks of
/// their keys; null if there is none.
QAction *menuEntry(const QMainWindow &window, const QStringList &path);
