// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

/// What the user can get to with keys, but for what Qt makes for its own widgets.
QList<QWidget *> controlsIn(const QWidget &window);
/// Class and name of the object, for a failing test.
QString descriptionOf(const QWidget &control);
/// Those that a screen reader has no name for, described.
QStringList namelessControlsIn(const QWidget &window);
